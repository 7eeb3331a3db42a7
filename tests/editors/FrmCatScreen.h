#pragma once

#include <gtest/gtest.h>

#include <QListWidget>
#include <QPushButton>
#include <QSettings>
#include <functional>
#include <optional>
#include <string>

#include "editors/Dialogs.h"
#include "editors/EditorScreen.h"
#include "editors/FrmCat.h"
#include "editors/MenuLines.h"
#include "screens/TestSkin.h"

namespace zorik::test {

// The editor of the cat's program.
class FrmCatScreen : public testing::Test {
 protected:
  FrmCatScreen() {
    QSettings(QSettings::IniFormat, QSettings::UserScope, "Ortvan", "Zorik2").clear();
    EXPECT_TRUE(skin_.Apply(SkinPlaces{ZORIK_SKINS, "Default"}));
  }
  void TearDown() override { EXPECT_TRUE(dialogs_.Done()) << dialogs_.said.join(" | ").toStdString(); }

  // Opens a program, does something to the window and answers what comes of it.
  std::optional<std::string> Edit(const std::string& script, const std::function<void()>& act) {
    return EditIn(skin_, script, act);
  }
  std::optional<std::string> EditIn(Skin& skin, const std::string& script, const std::function<void()>& act) {
    FrmCat window(skin, nullptr);
    dialogs_.Then([this, &act](QWidget& dialog) {
      dialog_ = &dialog;
      ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
      act();
    });
    return window.Edit(script);
  }

  void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) const {
    QTest::keyClick(dialog_->windowHandle(), key, modifiers);
  }
  QAction& Action(const char* name) const { return *dialog_->findChild<QAction*>(name); }
  // The list of steps, from the top.
  QStringList Steps() const { return StepLines(*dialog_->findChild<QMenu*>("mnuSteps")); }
  QListWidget& List(const char* name) const { return *dialog_->findChild<QListWidget*>(name); }
  QPushButton& Button(const char* name) const { return *dialog_->findChild<QPushButton*>(name); }
  QStringList Lines(const char* list = "lstScript") const {
    QStringList lines;
    for (int i = 0; i < List(list).count(); ++i) lines << List(list).item(i)->text();
    return lines;
  }
  void ClickLine(const char* list, int line) const {
    QListWidget& found = List(list);
    found.scrollToItem(found.item(line));
    QTest::mouseClick(found.viewport(), Qt::LeftButton, {}, found.visualItemRect(found.item(line)).center());
  }
  void Command(const QString& caption) const {
    ClickLine("lstCmds", static_cast<int>(Lines("lstCmds").indexOf(caption)));
  }
  void Press(const char* button) const { QTest::mouseClick(&Button(button), Qt::LeftButton); }
  int Selected() const { return List("lstScript").currentRow(); }

  Skin skin_;
  Dialogs dialogs_;
  QWidget* dialog_ = nullptr;

  // How a program begins and ends, as the list shows it.
  const QString kStart = "== Událost: začátek";
  const QString kEnd = "Konec programu";
};

}  // namespace zorik::test
