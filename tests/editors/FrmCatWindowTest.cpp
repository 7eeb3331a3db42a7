// Where the parts of the window of the cat's program stand.
#include <QMenuBar>
#include <QToolButton>

#include "editors/FrmCatScreen.h"

namespace zorik {
namespace {

class FrmCatWindowTest : public test::FrmCatScreen {
 protected:
  // Where a part stands in the window.
  QRect Place(const QWidget& part) const { return {part.mapTo(dialog_, QPoint()), part.size()}; }
  const QLabel& LabelOf(const char* list) const {
    for (const QLabel* const label : dialog_->findChildren<QLabel*>())
      if (label->buddy() == &List(list)) return *label;
    ADD_FAILURE() << list;
    return *dialog_->findChild<QLabel*>();
  }
};

TEST_F(FrmCatWindowTest, HasItsListsSideBySideWithTheirNamesAbove) {
  Edit("*A-A/Z", [this] {
    dialog_->resize(780, 600);
    QCoreApplication::processEvents();
    const QRect script = Place(List("lstScript")), commands = Place(List("lstCmds"));
    EXPECT_LT(script.right(), commands.left());
    EXPECT_EQ(script.top(), commands.top());
    EXPECT_EQ(script.bottom(), commands.bottom());
    EXPECT_NEAR(script.width(), commands.width(), 1);
    EXPECT_GT(script.width(), dialog_->width() / 3) << "they take what room there is";
    EXPECT_GT(script.height(), dialog_->height() / 2);
    for (const char* const list : {"lstScript", "lstCmds"}) {
      const QRect label = Place(LabelOf(list));
      EXPECT_EQ(label.left(), Place(List(list)).left()) << list;
      EXPECT_LT(label.bottom(), script.top()) << list;
    }
    EXPECT_EQ(LabelOf("lstScript").text(), "Program kočky");
    EXPECT_EQ(LabelOf("lstCmds").text(), "Příkazy pro kočku");
    Press("Command4");
  });
}

TEST_F(FrmCatWindowTest, HasItsButtonsBetweenTheListsOneBelowTheOther) {
  Edit("*A-A/Z", [this] {
    const QRect script = Place(List("lstScript")), commands = Place(List("lstCmds"));
    int top = script.top();
    for (const char* const name : {"Command3", "Command1", "Label1"}) {
      const QRect button = Place(Button(name));
      EXPECT_GT(button.left(), script.right()) << name;
      EXPECT_LT(button.right(), commands.left()) << name;
      EXPECT_GT(button.top(), top) << name;
      top = button.bottom();
    }
    const int middle = (Place(Button("Command3")).top() + top) / 2;
    EXPECT_NEAR(middle, script.center().y(), 2) << "in the middle of their height";
    EXPECT_LT(top - Place(Button("Command3")).top(), script.height() / 2) << "close together";
    Press("Command4");
  });
}

TEST_F(FrmCatWindowTest, HasTheMenusOnTopAndOkInTheLowerCorner) {
  Edit("*A-A/Z", [this] {
    const QRect bar = Place(*dialog_->findChild<QMenuBar*>());
    EXPECT_EQ(bar.topLeft(), QPoint(0, 0));
    EXPECT_EQ(bar.width(), dialog_->width());
    EXPECT_LT(bar.bottom(), Place(LabelOf("lstScript")).top());
    const QRect ok = Place(Button("Command4"));
    EXPECT_GT(ok.top(), Place(List("lstScript")).bottom());
    EXPECT_EQ(ok.right(), Place(List("lstCmds")).right());
    EXPECT_GT(ok.left(), Place(List("lstCmds")).left()) << "it is no wider than its word needs";
    for (const char* const name : {"Command1", "Command3", "Command4"})
      EXPECT_FALSE(Button(name).icon().isNull()) << name;
    Press("Command4");
  });
}

TEST_F(FrmCatWindowTest, HasTheStepsAndTheMovesAtHandBelowTheProgram) {
  Edit("*A-A/Z", [this] {
    const QList<QAction*> actions{&Action("mnuUndo"), &Action("mnuRedo"),
                                  dialog_->findChild<QMenu*>("mnuSteps")->menuAction(), &Action("mnuMoveUp"),
                                  &Action("mnuMoveDown")};
    int left = -1;
    for (QAction* const action : actions) {
      const QToolButton* found = nullptr;
      for (const QToolButton* const button : dialog_->findChildren<QToolButton*>())
        if (button->defaultAction() == action) found = button;
      ASSERT_NE(found, nullptr) << action->text().toStdString();
      EXPECT_FALSE(found->icon().isNull());
      EXPECT_EQ(found->popupMode(), QToolButton::InstantPopup);
      EXPECT_EQ(found->focusPolicy(), Qt::NoFocus);
      EXPECT_GT(Place(*found).left(), left) << action->text().toStdString();
      EXPECT_GT(Place(*found).top(), Place(List("lstScript")).bottom());
      left = Place(*found).right();
    }
    EXPECT_LT(left, Place(Button("Command4")).left());
    Press("Command4");
  });
}

TEST_F(FrmCatWindowTest, DoesByItsMenuWhatItsButtonsDo) {
  Edit("*A-A-B/Z", [this] {
    ClickLine("lstScript", 2);
    Action("mnuSwap").trigger();
    EXPECT_EQ(Lines(), (QStringList{kStart, "Jdio1Doleva", kEnd, "Jdio1Doprava"}));
    EXPECT_EQ(Selected(), 1);
    Action("mnuDelete").trigger();
    EXPECT_EQ(Lines(), (QStringList{kStart, kEnd, "Jdio1Doprava"}));
    ClickLine("lstScript", 1);
    Command("JdiMaxDolu");
    Action("mnuInsert").trigger();
    EXPECT_EQ(Lines(), (QStringList{kStart, "JdiMaxDolu", kEnd, "Jdio1Doprava"}));
    Press("Command4");
  });
}

TEST_F(FrmCatWindowTest, OffersInItsMenuOnlyWhatCanBeDone) {
  Edit("*A-A-B/Z", [this] {
    struct Row {
      int line;
      bool insert, remove, up, down;
    };
    for (const Row& row : {Row{0, false, false, false, false}, Row{1, true, true, false, true},
                           Row{2, true, true, true, false}, Row{3, true, false, false, false}}) {
      ClickLine("lstScript", row.line);
      EXPECT_EQ(Action("mnuInsert").isEnabled(), row.insert) << row.line;
      EXPECT_EQ(Action("mnuDelete").isEnabled(), row.remove) << row.line;
      EXPECT_EQ(Action("mnuMoveUp").isEnabled(), row.up) << row.line;
      EXPECT_EQ(Action("mnuMoveDown").isEnabled(), row.down) << row.line;
    }
    const auto steps = [this] {
      return std::vector<bool>{Action("mnuUndo").isEnabled(), Action("mnuRedo").isEnabled(),
                               dialog_->findChild<QMenu*>("mnuSteps")->menuAction()->isEnabled()};
    };
    EXPECT_EQ(steps(), (std::vector<bool>{false, false, false}));
    Press("Command3");
    EXPECT_EQ(steps(), (std::vector<bool>{true, false, true}));
    Press("Command3");
    Action("mnuUndo").trigger();
    EXPECT_EQ(steps(), (std::vector<bool>{true, true, true}));
    Action("mnuUndo").trigger();
    EXPECT_EQ(steps(), (std::vector<bool>{false, true, true}));
    Press("Command4");
  });
}

TEST_F(FrmCatWindowTest, BeginsEachProgramInItsLines) {
  FrmCat window(skin_, nullptr);
  for (int time = 0; time < 2; ++time) {
    dialogs_.Then([this, time](QWidget& dialog) {
      dialog_ = &dialog;
      ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
      EXPECT_EQ(dialog.focusWidget(), &List("lstScript")) << time;
      List("lstCmds").setFocus();
      Press("Command4");
    });
    window.Edit("");
  }
}

TEST_F(FrmCatWindowTest, LetsNoButtonTakeEnter) {
  Edit("*A-A/Z", [this] {
    for (const char* const name : {"Command1", "Command3", "Label1", "Command4"}) {
      Button(name).setFocus();
      Key(Qt::Key_Return);
      EXPECT_TRUE(dialog_->isVisible()) << name;
      EXPECT_EQ(Lines(), (QStringList{kStart, "Jdio1Doleva", kEnd})) << name;
    }
    Press("Command4");
  });
}

TEST_F(FrmCatWindowTest, HasItsUsualSizeAtFirstAndANameToKeepAnother) {
  Edit("", [this] {
    EXPECT_EQ(dialog_->size(), QSize(660, 460));
    EXPECT_EQ(dialog_->objectName(), "frmCat");
    EXPECT_TRUE(dialog_->isModal());
    Press("Command4");
  });
}

}  // namespace
}  // namespace zorik
