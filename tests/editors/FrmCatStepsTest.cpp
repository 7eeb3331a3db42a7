// The steps of the cat's editor, and its menus.

#include "editors/FrmCatScreen.h"
#include "editors/MenuLines.h"
#include "editors/ShortcutRows.h"

namespace zorik {
namespace {

class FrmCatStepsTest : public test::FrmCatScreen {};

TEST_F(FrmCatStepsTest, MovesTheSelectedLineWithAltAndTheArrows) {
  const auto program = Edit("*A-A-B-C/Z", [this] {
    ClickLine("lstScript", 3);
    Key(Qt::Key_Up, Qt::AltModifier);
    EXPECT_EQ(Lines(), (QStringList{kStart, "Jdio1Doleva", "Jdio1Nahoru", "Jdio1Doprava", kEnd}));
    EXPECT_EQ(Selected(), 2);
    Key(Qt::Key_Up, Qt::AltModifier);
    EXPECT_EQ(Selected(), 1);
    EXPECT_FALSE(Action("mnuMoveUp").isEnabled());
    Key(Qt::Key_Up, Qt::AltModifier);
    EXPECT_EQ(Selected(), 1);
    Key(Qt::Key_Down, Qt::AltModifier);
    EXPECT_EQ(Lines(), (QStringList{kStart, "Jdio1Doleva", "Jdio1Nahoru", "Jdio1Doprava", kEnd}));
    EXPECT_EQ(Selected(), 2);
    Press("Command4");
  });
  EXPECT_EQ(program, "*A-A-C-B/Z");
}

TEST_F(FrmCatStepsTest, SelectsNoOtherLineWhereNothingCanBeMoved) {
  Edit("*A-A-B/Z", [this] {
    ClickLine("lstScript", 1);
    Key(Qt::Key_Up, Qt::AltModifier);
    EXPECT_EQ(Selected(), 1) << "the head is above";
    ClickLine("lstScript", 2);
    Key(Qt::Key_Down, Qt::AltModifier);
    EXPECT_EQ(Selected(), 2) << "the end is below";
    EXPECT_EQ(Lines(), (QStringList{kStart, "Jdio1Doleva", "Jdio1Doprava", kEnd}));
    Press("Command4");
  });
}

TEST_F(FrmCatStepsTest, TakesBackAndDoesAgainByKeys) {
  const auto program = Edit("*A-A/Z", [this] {
    EXPECT_FALSE(Action("mnuUndo").isEnabled() || Action("mnuRedo").isEnabled());
    Press("Command1");
    ClickLine("lstScript", 1);
    Press("Command3");
    EXPECT_EQ(Lines(), (QStringList{kStart, "Jdio1Nahoru", kEnd}));
    Key(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(Lines(), (QStringList{kStart, kEnd}));
    Key(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(Lines(), (QStringList{kStart, "Jdio1Doleva", kEnd}));
    EXPECT_EQ(Selected(), 1);
    EXPECT_FALSE(Action("mnuUndo").isEnabled());
    Key(Qt::Key_Z, Qt::ControlModifier);
    Key(Qt::Key_Y, Qt::ControlModifier);
    EXPECT_EQ(Lines(), (QStringList{kStart, kEnd}));
    Key(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(Lines(), (QStringList{kStart, "Jdio1Nahoru", kEnd}));
    EXPECT_FALSE(Action("mnuRedo").isEnabled());
    Key(Qt::Key_Z, Qt::ControlModifier);
    Press("Command4");
  });
  EXPECT_EQ(program, "*A/Z");
}

TEST_F(FrmCatStepsTest, GoesBackSeveralStepsByTheirList) {
  const auto program = Edit("*A-A-B-D/Z", [this] {
    EXPECT_EQ(Steps(), QStringList("> Začátek"));
    EXPECT_FALSE(Action("mnuSteps").isEnabled());
    Press("Command3");
    Press("Label1");
    ClickLine("lstScript", 4);
    Press("Command1");
    EXPECT_EQ(Steps(), (QStringList{"> Smazat: Jdio1Dolu", "Prohodit: Jdio1Doleva", "Vložit: Jdio1Nahoru",
                                    "Začátek"}));
    EXPECT_TRUE(Action("mnuSteps").isEnabled());
    const QStringList last = Lines();
    Action("mnuStep(1)").trigger();
    EXPECT_EQ(Lines(),
              (QStringList{kStart, "Jdio1Nahoru", "Jdio1Doleva", "Jdio1Doprava", "Jdio1Dolu", kEnd}));
    EXPECT_EQ(Steps(), (QStringList{"Smazat: Jdio1Dolu", "Prohodit: Jdio1Doleva", "> Vložit: Jdio1Nahoru",
                                    "Začátek"}));
    Action("mnuStep(3)").trigger();
    EXPECT_EQ(Lines(), last);
    Steps();
    Action("mnuStep(0)").trigger();
    EXPECT_TRUE(Action("mnuSteps").isEnabled()) << "there are steps that can be done again";
    Press("Command4");
  });
  EXPECT_EQ(program, "*A-A-B-D/Z");
}

TEST_F(FrmCatStepsTest, ListsTheStepsAroundThePresentOneOnly) {
  Edit("", [this] {
    for (int i = 0; i < 40; ++i) Press("Command3");
    EXPECT_EQ(Steps().size(), 17) << "sixteen steps back and the beginning";
    EXPECT_EQ(Steps().last(), "Začátek");
    Action("mnuStep(30)").trigger();
    EXPECT_EQ(Steps().size(), 25) << "and eight forward";
    EXPECT_EQ(Steps().indexOf("> Vložit: Jdio1Nahoru"), 8);
    Press("Command4");
  });
}

TEST_F(FrmCatStepsTest, HasItsMenusWithTheirKeys) {
  Edit("*A-A/Z", [this] {
    const QStringList lines{
        "mnuEd | Editace",
        "  mnuUndo | Zpět | Ctrl+Z",
        "  mnuRedo | Znovu | Ctrl+Y | Ctrl+Shift+Z",
        "  mnuSteps | Kroky",
        "  -",
        "  mnuInsert | Vložit",
        "  mnuDelete | Smazat",
        "  mnuSwap | Prohodit",
        "  -",
        "  mnuMoveUp | Posunout nahoru | Alt+Up",
        "  mnuMoveDown | Posunout dolů | Alt+Down",
        "mnuHelp | Nápověda",
        "  mnuEditing | Editování | F1",
        "  mnuShortcuts | Klávesové zkratky | Ctrl+?",
    };
    const auto found = test::MenuLines(dialog_->findChild<QMenuBar*>()->actions());
    EXPECT_EQ(found.join('\n').toStdString(), lines.join('\n').toStdString());
    Press("Command4");
  });
}

TEST_F(FrmCatStepsTest, GivesEachEntryALetterOfItsOwnInBothLanguages) {
  for (const char* const name : {"Default", "English"}) {
    ASSERT_TRUE(skin_.Apply(SkinPlaces{ZORIK_SKINS, name}));
    Edit("*A-A/Z", [&] {
      Press("Command1");
      EXPECT_EQ(test::MnemonicFaults(dialog_->findChild<QMenuBar*>()->actions()), QStringList()) << name;
      Press("Command4");
    });
  }
}

TEST_F(FrmCatStepsTest, AsksForItsPageAndHasASheetOfShortcuts) {
  FrmCat window(skin_, nullptr);
  QStringList pages;
  QObject::connect(&window, &FrmCat::HelpWanted, [&pages](const QString& page) { pages << page; });
  dialogs_.Then([this](QWidget& dialog) {
    dialog_ = &dialog;
    ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
    Key(Qt::Key_F1);
    QStringList rows;
    const test::InDialogNamed sheet("frmShortcuts", [&rows](QWidget& it) { rows = test::Rows(it); });
    Key(Qt::Key_Question, Qt::ControlModifier);
    EXPECT_TRUE(sheet.opened);
    EXPECT_TRUE(rows.contains("Editace | Posunout nahoru | Alt+Up")) << rows.join('\n').toStdString();
    EXPECT_TRUE(rows.contains("Seznamy | smaže vybraný řádek | Delete"));
    Press("Command4");
  });
  window.Edit("");
  EXPECT_EQ(pages, QStringList("kocka.html"));
}

TEST_F(FrmCatStepsTest, HasNoProgramThatCouldBeLostOnceItIsShut) {
  FrmCat window(skin_, nullptr);
  EXPECT_EQ(window.Program(), std::nullopt);
  dialogs_.Then([&window](QWidget& dialog) {
    EXPECT_EQ(window.Program(), "*A-A/Z");
    QTest::mouseClick(dialog.findChild<QPushButton*>("Command4"), Qt::LeftButton);
  });
  window.Edit("*A-A/Z");
  EXPECT_EQ(window.Program(), std::nullopt);
}

}  // namespace
}  // namespace zorik
