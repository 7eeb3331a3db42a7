#pragma once

#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>

#include "editors/EditorScreen.h"

namespace zorik::test {

// A test of the dialog of properties, on a small cave with two gems and an amoeba.
class FormalityWindowTest : public testing::Test, public EditorScreen {
 protected:
  FormalityWindowTest() { Open(kRoom); }

  static inline const Picture kRoom = {"WWWWWW", "W1D..W", "W..D.W", "W...AW", "WWWWWW"};

  // Opens the dialog and acts on it; true when the act has shut it.
  bool Dialog(const std::function<void(QWidget& dialog)>& act) const {
    InDialogNamed dialog("frmFormality", act);
    QTest::mouseClick(&Child<QToolButton>("Label3"), Qt::LeftButton);
    EXPECT_TRUE(dialog.opened);
    return !dialog.stayed;
  }

  static QLineEdit& Box(QWidget& dialog, const char* name) { return *dialog.findChild<QLineEdit*>(name); }
  static QPlainTextEdit& Description(QWidget& dialog) { return *dialog.findChild<QPlainTextEdit*>("Text4"); }
  static void Press(QWidget& dialog, const char* button) {
    QTest::mouseClick(dialog.findChild<QPushButton*>(button), Qt::LeftButton);
  }
  // As a player does it: all that is there goes.
  static void Type(QLineEdit& box, const QString& text) {
    box.setFocus();
    box.selectAll();
    QTest::keyClick(&box, Qt::Key_Delete);
    for (const QChar letter : text) {
      QKeyEvent key(QEvent::KeyPress, Qt::Key_unknown, Qt::NoModifier, QString(letter));
      QApplication::sendEvent(&box, &key);
    }
  }

  const CaveRecord& Cave() const { return window->Model().Cave(); }
};

}  // namespace zorik::test
