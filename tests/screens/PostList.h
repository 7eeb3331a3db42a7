#pragma once

#include <gtest/gtest.h>

#include <QLabel>

#include "screens/CaveList.h"
#include "screens/DialogScript.h"
#include "screens/PostScreen.h"

namespace zorik::test {

// The selection screen, its list and its messages.
class PostList : public testing::Test, public PostScreen {
 protected:
  CaveList& List() const { return *window->findChild<CaveList*>(); }
  QString Row(int number) const { return List().Rows()[static_cast<std::size_t>(number - 1)].name; }
  int Score(int number) const { return List().Rows()[static_cast<std::size_t>(number - 1)].score; }
  QColor Key(const std::string& key) const { return skin.Colour("select.caves." + key, Qt::transparent); }

  void ClickRow(int number) {
    QTest::mouseClick(List().viewport(), Qt::LeftButton, {},
                      QPoint(50, 1 + List().Top() + 14 * (number - 1) + 7));
  }

  // The text of the message box that an action opens.
  template <class Action>
  QString Message(Action action) {
    QString text;
    const InDialog dialog([&](QWidget& box) {
      text = box.findChild<QLabel*>("lblText")->text();
      QTest::keyClick(&box, Qt::Key_Return);
    });
    action();
    QCoreApplication::processEvents();
    EXPECT_TRUE(dialog.Opened());
    return text.simplified();
  }
};

}  // namespace zorik::test
