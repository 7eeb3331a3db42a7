// The commands of the collection editor.
#include <gtest/gtest.h>

#include <QMenu>
#include <QMenuBar>
#include <algorithm>

#include "editors/FrmSada.h"
#include "editors/SadaScreen.h"

namespace zorik {
namespace {

using test::Names;
using test::SadaScreen;

class FrmSadaTest : public testing::Test, protected SadaScreen {
 protected:
  void TearDown() override { EXPECT_TRUE(dialogs.Done()) << dialogs.said.join(" | ").toStdString(); }

  void TypeName(const QString& name) const {
    Activate();
    Box("Text3").setFocus();
    Box("Text3").selectAll();
    Type(Box("Text3"), name);
  }
};

// Menus

struct MenuRow {
  const char* name;
  const char* caption;
  const char* english;
  const char* key;
};

const std::vector<MenuRow> kMenus = {
    {"mnuNew", "Nová", "New", "Ctrl+N"},
    {"mnuOpen", "Otevřít", "Open", "Ctrl+O"},
    {"mnuSave", "Uložit", "Save", "Ctrl+S"},
    {"mnuSaveAs", "Uložit jako", "Save as", ""},
    {"mnuGratulace", "Gratulace při výhře", "Congratulation", "Ctrl+G"},
    {"mnuClose", "Zavřít", "Close", ""},
    {"mnuCopy", "Zkopírovat do schránky", "Copy", "Ctrl+Ins"},
    {"mnuPaste", "Vložit ze schránky", "Paste", "Shift+Ins"},
    {"mnuAdd(0)", "Malou", "Small", "F3"},
    {"mnuAdd(1)", "Velkou", "Large", ""},
    {"mnuEdit", "Editovat", "Edit", "F4"},
    {"mnuUp", "Nahoru", "Up", "F5"},
    {"mnuDown", "Dolu", "Down", "F6"},
    {"mnuDelete", "Vymazat", "Delete", "F8"},
};

TEST_F(FrmSadaTest, HasTheMenusWithTheirKeys) {
  for (const MenuRow& row : kMenus) {
    EXPECT_EQ(Action(row.name).text(), row.caption);
    EXPECT_EQ(Action(row.name).shortcut().toString(), row.key);
    const auto menus = window->menuBar()->findChildren<QMenu*>();
    EXPECT_TRUE(std::any_of(menus.begin(), menus.end(), [&](const QMenu* menu) {
      return menu->actions().contains(&Action(row.name));
    })) << row.name;
  }
  EXPECT_EQ(window->windowTitle(), "Zoríkův editor sady komnat[*]");
}

TEST_F(FrmSadaTest, SpeaksTheLanguageOfTheSkinWhenItOpens) {
  ASSERT_TRUE(skin.Wear(SkinPlaces{ZORIK_SKINS, "English"}));
  Open();
  for (const MenuRow& row : kMenus) EXPECT_EQ(Action(row.name).text(), row.english);
  EXPECT_EQ(Box("Text3").text(), "New collection");
  EXPECT_EQ(Rows(), Names{"*New small cave"});
  EXPECT_EQ(window->windowTitle(), "Zorík's collection editor[*]");
}

TEST_F(FrmSadaTest, TellsOfEachKeyInAHint) {
  EXPECT_EQ(Action("mnuUp").toolTip(), "Nahoru (F5)");
  EXPECT_EQ(Action("mnuAdd(1)").toolTip(), "Velkou");
}

// New

TEST_F(FrmSadaTest, OpensWithANewCollection) {
  Open();
  EXPECT_TRUE(window->isVisible());
  EXPECT_EQ(Box("Text3").text(), "Nová sada");
  EXPECT_EQ(Box("Text1").text(), "");
  EXPECT_EQ(Box("Text2").text(), "@");
  EXPECT_EQ(Text4().toPlainText(), "Bez popisu");
  EXPECT_EQ(Rows(), Names{"*Nová malá komnata"});
  EXPECT_FALSE(window->isWindowModified());
  EXPECT_TRUE(MarkSeen(1));
}

TEST_F(FrmSadaTest, WaitsForTheNameOfTheCollection) {
  Open();
  EXPECT_EQ(window->focusWidget(), &Box("Text3"));
  EXPECT_EQ(Box("Text3").selectedText(), "Nová sada");
}

TEST_F(FrmSadaTest, MakesANewCollectionAtOnceByCtrlN) {
  OpenCaves({"A", "B"});
  TypeName("Jinak");
  Key(Qt::Key_N, Qt::ControlModifier);
  EXPECT_EQ(Box("Text3").text(), "Nová sada");
  EXPECT_EQ(Rows(), Names{"*Nová malá komnata"});
  EXPECT_EQ(Sada().FileName(), "");
  EXPECT_FALSE(window->isWindowModified());
}

// Caves

TEST_F(FrmSadaTest, AddsASmallCaveAboveTheSelectedOneByF3) {
  OpenCaves({"A", "B"});
  ClickCave(2);
  Key(Qt::Key_F3);
  EXPECT_EQ(Rows(), (Names{"*A", "Nová malá komnata", "B"}));
  EXPECT_EQ(Sada().ListSelected(), 2);
  EXPECT_TRUE(window->isWindowModified());
}

TEST_F(FrmSadaTest, AddsALargeCaveByTheMenu) {
  OpenCaves({"A"});
  Action("mnuAdd(1)").trigger();
  EXPECT_EQ(Rows(), (Names{"*Nová velká komnata", "*A"}));
}

TEST_F(FrmSadaTest, MovesACaveWithItsMarkByF5AndF6) {
  OpenCaves({"A", "B", "*C"});
  ClickCave(3);
  Key(Qt::Key_F5);
  EXPECT_EQ(Rows(), (Names{"*A", "*C", "B"}));
  EXPECT_TRUE(MarkSeen(2));
  EXPECT_FALSE(MarkSeen(3));
  Key(Qt::Key_F6);
  EXPECT_EQ(Rows(), (Names{"*A", "B", "*C"}));
  EXPECT_TRUE(window->isWindowModified());
}

TEST_F(FrmSadaTest, ChangesNothingAtTheEndsOfTheList) {
  OpenCaves({"A", "B"});
  Key(Qt::Key_F5);
  EXPECT_FALSE(Action("mnuUp").isEnabled());
  ClickCave(2);
  Key(Qt::Key_F6);
  EXPECT_FALSE(Action("mnuDown").isEnabled());
  EXPECT_EQ(Rows(), (Names{"*A", "B"}));
  EXPECT_FALSE(window->isWindowModified());
}

TEST_F(FrmSadaTest, AsksByNameBeforeItDeletes) {
  OpenCaves({"A", "Jedna"});
  ClickCave(2);
  dialogs.Press("no");
  Key(Qt::Key_F8);
  EXPECT_EQ(Rows(), (Names{"*A", "Jedna"}));
  EXPECT_FALSE(window->isWindowModified());
  dialogs.Press("yes");
  Key(Qt::Key_F8);
  EXPECT_EQ(Rows(), Names{"*A"});
  EXPECT_TRUE(window->isWindowModified());
  EXPECT_EQ(dialogs.said, QStringList(2, "Opravdu vymazat komnatu 'Jedna' z této sady?"));
  EXPECT_EQ(dialogs.titles, QStringList(2, "Vymazat komnatu"));
}

TEST_F(FrmSadaTest, KeepsTheOnlyCaveWithoutAWord) {
  Open();
  Key(Qt::Key_F8);
  EXPECT_EQ(Sada().ListCount(), 1);
  EXPECT_TRUE(dialogs.said.isEmpty());
}

TEST_F(FrmSadaTest, CopiesAndPastesByKeysOfTheList) {
  OpenCaves({"A", "B"});
  EXPECT_FALSE(Action("mnuPaste").isEnabled()) << "nothing was copied yet";
  ClickCave(2);
  List().setFocus();
  Key(Qt::Key_Insert, Qt::ControlModifier);
  EXPECT_FALSE(window->isWindowModified());
  ClickCave(1);
  Key(Qt::Key_Insert, Qt::ShiftModifier);
  EXPECT_EQ(Rows(), (Names{"*B", "*A", "B"}));
  EXPECT_TRUE(window->isWindowModified());
}

TEST_F(FrmSadaTest, LeavesTheClipboardKeysToTheTextBoxes) {
  OpenCaves({"A"});
  Action("mnuCopy").trigger();
  Box("Text1").setFocus();
  Box("Text1").selectAll();
  Key(Qt::Key_Insert, Qt::ControlModifier);
  Box("Text3").setFocus();
  Box("Text3").selectAll();
  Key(Qt::Key_Insert, Qt::ShiftModifier);
  EXPECT_EQ(Box("Text3").text(), "Eva");
  Text4().setFocus();
  Text4().selectAll();
  Key(Qt::Key_Insert, Qt::ShiftModifier);
  EXPECT_EQ(Text4().toPlainText(), "Eva");
  EXPECT_EQ(Rows(), Names{"*A"});
}

TEST_F(FrmSadaTest, RefusesTheNinetySecondCaveSilentlyButCountsAsChanged) {
  OpenMany(91);
  Key(Qt::Key_F3);
  EXPECT_EQ(Sada().ListCount(), 91);
  EXPECT_TRUE(window->isWindowModified());
  OpenMany(91);
  Action("mnuCopy").trigger();
  EXPECT_FALSE(window->isWindowModified());
  Action("mnuPaste").trigger();
  EXPECT_EQ(Sada().ListCount(), 91);
  EXPECT_TRUE(window->isWindowModified());
}

// The cave editor

TEST_F(FrmSadaTest, HandsTheSelectedCaveToTheEditorAndCountsAsChanged) {
  OpenCaves({"A", "B"});
  ClickCave(2);
  Key(Qt::Key_F4);
  EXPECT_EQ(edited, Names{test::OneStepCave("B")});
  EXPECT_TRUE(changedWhileEdited);
  EXPECT_FALSE(window->isVisible());
  EXPECT_EQ(closed, 0);
}

TEST_F(FrmSadaTest, TakesTheEditedCaveBackIntoItsRow) {
  OpenCaves({"A", "B", "*C"});
  ClickCave(2);
  Action("mnuEdit").trigger();
  window->CaveDone(QByteArray::fromStdString(test::OneStepCave("Jina")));
  EXPECT_TRUE(window->isVisible());
  EXPECT_EQ(Rows(), (Names{"*A", "Jina", "*C"}));
  EXPECT_EQ(Sada().ListSelected(), 2);
}

TEST_F(FrmSadaTest, StaysWhenTheEditorGivesTheCaveBackAtOnce) {
  OpenCaves({"A"});
  QObject::connect(window.get(), &FrmSada::EditCave, window.get(), &FrmSada::CaveDone);
  Key(Qt::Key_F4);
  EXPECT_TRUE(window->isVisible());
  EXPECT_EQ(Rows(), Names{"*A"});
}

TEST_F(FrmSadaTest, CountsAsChangedEvenIfTheCaveStaysAsItWas) {
  OpenCaves({"A"});
  Action("mnuEdit").trigger();
  window->CaveDone(QByteArray::fromStdString(edited.front()));
  EXPECT_TRUE(window->isWindowModified());
}

// The congratulation

TEST_F(FrmSadaTest, EditsTheCongratulationByCtrlG) {
  OpenCaves({"A"});
  dialogs.Then([](QWidget& dialog) {
    auto* const text = dialog.findChild<QPlainTextEdit*>("Text1");
    EXPECT_EQ(text->toPlainText(), "Hura");
    text->selectAll();
    QTest::keyClicks(text, "Prvni");
    QTest::keyClick(text, Qt::Key_Return);
    QTest::keyClicks(text, "$P");
    QTest::mouseClick(dialog.findChild<SkinButton*>("ok"), Qt::LeftButton);
  });
  Key(Qt::Key_G, Qt::ControlModifier);
  EXPECT_EQ(Sada().CongratulationText(), "Prvni\r\n$P");
  EXPECT_TRUE(window->isWindowModified());
  Key(Qt::Key_S, Qt::ControlModifier);
  EXPECT_EQ(Lines("a.zk").back(), "Prvni\r\n$P");
}

TEST_F(FrmSadaTest, DropsOrKeepsTheCongratulationAsItWas) {
  OpenCaves({"A"});
  dialogs.Then([](QWidget& dialog) {
    QTest::keyClicks(dialog.findChild<QPlainTextEdit*>("Text1"), "Jinak");
    QTest::mouseClick(dialog.findChild<SkinButton*>("close"), Qt::LeftButton);
  });
  Action("mnuGratulace").trigger();
  dialogs.Press("ok");
  Action("mnuGratulace").trigger();
  EXPECT_EQ(Sada().CongratulationText(), "Hura");
  EXPECT_FALSE(window->isWindowModified());
}

// Help

TEST_F(FrmSadaTest, HasFivePagesOfHelpAndTheCredits) {
  const QStringList captions = {"O programu", "Pravidla", "Přispět", "Editování", "Obsah"};
  for (int i = 0; i < captions.size(); ++i) {
    EXPECT_EQ(Action(qPrintable(QString("mnuHelp(%1)").arg(i))).text(), captions[i]);
  }
  dialogs.Then([](QWidget& dialog) {
    EXPECT_TRUE(dialog.findChild<QLabel*>("lblText")->text().contains("Zorík"));
    QTest::keyClick(&dialog, Qt::Key_Escape);
  });
  Action("mnuAbout").trigger();
  EXPECT_FALSE(Action("mnuWeb").isVisible() || Action("mnuMail").isVisible())
      << "the skin names no such places";
}

TEST_F(FrmSadaTest, TellsOfEachPageThatIsNotThere) {
  Open();
  const QStringList pages = {"oprogramu", "pravidla", "prispet", "editovat", "help"};
  for (int i = 0; i < pages.size(); ++i) {
    dialogs.Press("ok");
    Action(qPrintable(QString("mnuHelp(%1)").arg(i))).trigger();
    ASSERT_EQ(dialogs.said.size(), i + 1);
    EXPECT_TRUE(dialogs.said.last().endsWith(pages[i] + ".html")) << dialogs.said.last().toStdString();
  }
}

}  // namespace
}  // namespace zorik
