// The steps that the collection editor takes back, and what the keys of its list do.
#include <QStatusBar>

#include "editors/MenuLines.h"
#include "editors/SadaScreen.h"
#include "support/AsNobody.h"

namespace zorik {
namespace {

using test::Names;

class FrmSadaUndoTest : public test::SadaWindowTest {
 protected:
  void InList(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) const {
    Activate();
    List().setFocus();
    Key(key, modifiers);
  }
  void ExpectNotOpened(const std::string& file, const char* why) {
    dialogs.Press("ok");
    Open(Path(file));
    EXPECT_TRUE(dialogs.Last().startsWith("Soubor nelze otevřít:"));
    EXPECT_TRUE(dialogs.Last().endsWith(why)) << dialogs.Last().toStdString();
  }
  void ExpectNotSaved(const std::string& file, const char* why) {
    dialogs.Type(Path(file)).Press("later");
    Action("mnuSaveAs").trigger();
    EXPECT_TRUE(dialogs.Last().startsWith("Soubor se nepodařilo uložit."));
    EXPECT_TRUE(dialogs.Last().endsWith(why + QString(" Sada zatím zůstává v paměti.")))
        << dialogs.Last().toStdString();
  }
  QStringList Steps() const { return test::StepLines(Child<QMenu>("mnuSteps")); }
  QString Said() const { return window->statusBar()->currentMessage(); }
};

// Steps

TEST_F(FrmSadaUndoTest, HasNothingToTakeBackWhenItOpens) {
  OpenCaves({"A", "B"});
  EXPECT_EQ(Action("mnuUndo").text(), "Zpět");
  EXPECT_FALSE(Action("mnuUndo").isEnabled());
  EXPECT_FALSE(Action("mnuRedo").isEnabled());
  EXPECT_FALSE(Action("mnuSteps").isEnabled());
}

TEST_F(FrmSadaUndoTest, TakesADeletedCaveBackByCtrlZ) {
  OpenCaves({"A", "*B", "C"});
  ClickCave(2);
  dialogs.Press("yes");
  Key(Qt::Key_F8);
  EXPECT_EQ(Rows(), (Names{"*A", "C"}));
  EXPECT_EQ(Action("mnuUndo").text(), "Zpět: Vymazat „B“");
  InList(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Rows(), (Names{"*A", "*B", "C"}));
  EXPECT_FALSE(window->isWindowModified());
  EXPECT_EQ(Action("mnuRedo").text(), "Znovu: Vymazat „B“");
  InList(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(Rows(), (Names{"*A", "C"}));
  EXPECT_TRUE(window->isWindowModified());
  InList(Qt::Key_Z, Qt::ControlModifier);
  InList(Qt::Key_Y, Qt::ControlModifier);
  EXPECT_EQ(Rows(), (Names{"*A", "C"}));
}

TEST_F(FrmSadaUndoTest, BringsTheTextsBackIntoTheirBoxes) {
  OpenCaves({"A"});
  TypeName("Jinak");
  EXPECT_EQ(Action("mnuUndo").text(), "Zpět: Název sady");
  Action("mnuUndo").trigger();
  EXPECT_EQ(Box("Text3").text(), "Sada");
  EXPECT_EQ(window->windowTitle(), "Zoríkův editor sady komnat - Sada - a.zk[*]");
}

TEST_F(FrmSadaUndoTest, LeavesCtrlZInABoxToTheBox) {
  OpenCaves({"A", "B"});
  Action("mnuAdd(0)").trigger();
  TypeName("Jinak");
  Key(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_NE(Box("Text3").text(), "Jinak");
  EXPECT_EQ(Rows().size(), 3U);
  Text4().setFocus();
  Type(Text4(), "!");
  Key(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Text4().toPlainText(), "Popis");
  EXPECT_EQ(Rows().size(), 3U);
}

TEST_F(FrmSadaUndoTest, BringsBackTheCollectionThatCtrlNDropped) {
  OpenCaves({"A", "B"});
  TypeName("Jinak");
  InList(Qt::Key_N, Qt::ControlModifier);
  EXPECT_EQ(Box("Text3").text(), "Nová sada");
  InList(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Box("Text3").text(), "Jinak");
  EXPECT_EQ(Sada().FileName(), Path("a.zk"));
  EXPECT_TRUE(window->isWindowModified());
}

TEST_F(FrmSadaUndoTest, BringsBackWhatWasLeftUnsavedWhenTheEditorWasClosed) {
  OpenCaves({"A", "B"});
  TypeName("Jinak");
  dialogs.Press("no");
  window->close();
  Open();
  InList(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Box("Text3").text(), "Jinak");
}

TEST_F(FrmSadaUndoTest, ListsItsStepsAndGoesBackSeveral) {
  OpenCaves({"A", "B", "C&D"});
  TypeName("Jinak");
  ClickMark(2);
  ClickCave(3);
  Key(Qt::Key_F5);
  EXPECT_EQ(Steps(), (QStringList{"> Nahoru „C&&D“", "Otevřená od začátku „B“", "Název sady", "Začátek"}));
  Action("mnuStep(1)").trigger();
  EXPECT_EQ(Rows(), (Names{"*A", "B", "C&D"}));
  EXPECT_EQ(Box("Text3").text(), "Jinak");
}

TEST_F(FrmSadaUndoTest, GoesForthAgainByTheListAndBackToTheBeginning) {
  OpenCaves({"A", "B", "C"});
  TypeName("Jinak");
  ClickMark(2);
  ClickCave(3);
  Key(Qt::Key_F5);
  const Names last = Rows();
  EXPECT_EQ(Steps().first(), "> Nahoru „C“");
  Action("mnuStep(0)").trigger();
  EXPECT_EQ(Rows(), (Names{"*A", "B", "C"}));
  EXPECT_EQ(Box("Text3").text(), "Sada");
  EXPECT_FALSE(Action("mnuUndo").isEnabled());
  EXPECT_TRUE(Action("mnuSteps").isEnabled()) << "it leads forth as well";
  EXPECT_EQ(Steps(), (QStringList{"Nahoru „C“", "Otevřená od začátku „B“", "Název sady", "> Začátek"}));
  Action("mnuStep(3)").trigger();
  EXPECT_EQ(Rows(), last);
  EXPECT_EQ(Box("Text3").text(), "Jinak");
}

// Keys of the list

TEST_F(FrmSadaUndoTest, CopiesCutsAndPastesByTheUsualKeysInTheList) {
  OpenCaves({"A", "B", "C"});
  ClickCave(2);
  InList(Qt::Key_C, Qt::ControlModifier);
  InList(Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(Rows(), (Names{"*A", "B", "B", "C"}));
  ClickCave(4);
  InList(Qt::Key_X, Qt::ControlModifier);
  EXPECT_EQ(Rows(), (Names{"*A", "B", "B"}));
  ClickCave(1);
  InList(Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(Rows(), (Names{"*C", "*A", "B", "B"}));
}

TEST_F(FrmSadaUndoTest, DeletesByDeleteInTheListAfterAQuestion) {
  OpenCaves({"A", "B"});
  ClickCave(2);
  dialogs.Press("no");
  InList(Qt::Key_Delete);
  EXPECT_EQ(Rows().size(), 2U);
  dialogs.Press("yes");
  InList(Qt::Key_Delete);
  EXPECT_EQ(Rows(), Names{"*A"});
}

TEST_F(FrmSadaUndoTest, LeavesTheUsualKeysInABoxToTheBox) {
  OpenCaves({"A", "B"});
  ClickCave(2);
  InList(Qt::Key_C, Qt::ControlModifier);
  for (const char* const box : {"Text3", "Text4"}) {
    Child<QWidget>(box).setFocus();
    Key(Qt::Key_A, Qt::ControlModifier);
    Key(Qt::Key_X, Qt::ControlModifier);
    Key(Qt::Key_V, Qt::ControlModifier);
    Key(Qt::Key_Delete);
  }
  EXPECT_EQ(Rows(), (Names{"*A", "B"}));
}

// Caves at the end

TEST_F(FrmSadaUndoTest, AddsCavesBehindAllAndSaysWhetherTheyAreOpen) {
  OpenCaves({"*A", "*B"});
  Key(Qt::Key_F3, Qt::ShiftModifier);
  EXPECT_EQ(Rows(), (Names{"*A", "*B", "Nová malá komnata"}));
  EXPECT_EQ(Said(), "Komnata 3 je přidaná, od začátku otevřená není.");
  Action("mnuAddEnd(1)").trigger();
  EXPECT_EQ(Rows().back(), "Nová velká komnata");
  ClickCave(2);
  Key(Qt::Key_F3);
  EXPECT_EQ(Rows()[1], "*Nová malá komnata");
  EXPECT_EQ(Said(), "Komnata 2 je přidaná a otevřená od začátku.");
  Action("mnuUndo").trigger();
  EXPECT_EQ(Said(), "");
}

TEST_F(FrmSadaUndoTest, PastesBehindAll) {
  OpenCaves({"A", "B"});
  EXPECT_FALSE(Action("mnuPasteEnd").isEnabled());
  Action("mnuCopy").trigger();
  Action("mnuPasteEnd").trigger();
  EXPECT_EQ(Rows(), (Names{"*A", "B", "A"}));
}

// The cave editor stores

TEST_F(FrmSadaUndoTest, StoresACaveThatIsStillBeingEdited) {
  OpenCaves({"A", "B"});
  ClickCave(2);
  Key(Qt::Key_F4);
  EXPECT_TRUE(window->StoreCave(test::OneStepCave("C"), *window));
  EXPECT_EQ(Line("a.zk", 4), test::OneStepCave("C") + "---02");
  EXPECT_FALSE(window->isWindowModified());
  window->CaveDone(test::OneStepCave("C"));
  EXPECT_FALSE(window->isWindowModified());
  Action("mnuUndo").trigger();
  EXPECT_EQ(Rows(), (Names{"*A", "B"}));
  EXPECT_TRUE(window->isWindowModified());
}

TEST_F(FrmSadaUndoTest, AsksWhereToStoreTheCaveOfACollectionWithoutAFile) {
  Open();
  Key(Qt::Key_F4);
  dialogs.Cancel();
  EXPECT_FALSE(window->StoreCave(test::OneStepCave("C"), *window));
  EXPECT_EQ(Rows(), Names{"*C"});
  dialogs.Type(Path("c.zk"));
  EXPECT_TRUE(window->StoreCave(test::OneStepCave("C"), *window));
  EXPECT_EQ(window->OriginOfSelected().File, Path("c.zk"));
  EXPECT_EQ(Line("c.zk", 3), test::OneStepCave("C") + "---01");
}

// Files

TEST_F(FrmSadaUndoTest, SaysWhyAFileCannotBeOpened) {
  folder.File("Caves/zmatek.zk", "");
  std::filesystem::create_directory(Path("slozka.zk"));
  ExpectNotOpened("neni.zk", "Takový soubor tu není.");
  ExpectNotOpened("zmatek.zk", "Tento soubor není sada komnat.");
  ExpectNotOpened("slozka.zk", "Toto jméno má složka.");
  std::filesystem::permissions(Path("zmatek.zk"), std::filesystem::perms::none);
  const test::AsNobody nobody;
  ExpectNotOpened("zmatek.zk", "Nemáš k tomu oprávnění.");
}

TEST_F(FrmSadaUndoTest, SaysWhyAFileCannotBeWritten) {
  OpenCaves({"A"});
  folder.File("Caves/soubor", "");
  std::filesystem::create_directory(Path("zamcena"));
  ExpectNotSaved("neni/b.zk", "Taková složka neexistuje.");
  ExpectNotSaved("soubor/b.zk", "Taková složka neexistuje.");
  std::filesystem::permissions(Path("zamcena"), std::filesystem::perms::none);
  const test::AsNobody nobody;
  ExpectNotSaved("zamcena/b.zk", "Nemáš k tomu oprávnění.");
}

TEST_F(FrmSadaUndoTest, OffersACopyOfACollectionOutsideTheFolderOfTheGame) {
  OpenCaves({"A"});
  const std::string outside = folder.Root() + "/venku.zk";
  dialogs.Type(outside).Press("yes").Press("ok");
  Action("mnuSaveAs").trigger();
  EXPECT_EQ(Bytes("venku.zk"), *ReadWhole(outside));
  EXPECT_EQ(Sada().FileName(), outside);
  const std::string words =
      "Kopie je uložená jako: " + Path("venku.zk") + " Dál se upravuje soubor: " + outside;
  // The way to a file is broken into lines where it is long.
  EXPECT_EQ(dialogs.Last().remove(' '), QString::fromStdString(words).remove(' '));
  TypeName("Jinak");
  InList(Qt::Key_S, Qt::ControlModifier);
  EXPECT_EQ(dialogs.said.size(), 2);
}

TEST_F(FrmSadaUndoTest, CopiesNothingOfACollectionOutsideThatTheAuthorWillHaveThereOnly) {
  OpenCaves({"A"});
  dialogs.Type(folder.Root() + "/venku.zk").Press("no");
  Action("mnuSaveAs").trigger();
  EXPECT_FALSE(std::filesystem::exists(Path("venku.zk")));
  EXPECT_TRUE(std::filesystem::exists(folder.Root() + "/venku.zk"));
}

TEST_F(FrmSadaUndoTest, SaysWhyThereIsNoCopy) {
  OpenCaves({"A"});
  std::filesystem::remove_all(folder.Root() + "/Caves");
  dialogs.Type(folder.Root() + "/venku.zk").Press("yes").Press("ok");
  Action("mnuSaveAs").trigger();
  EXPECT_TRUE(dialogs.Last().startsWith("Do této složky se nepodařilo nic zapsat"));
  EXPECT_TRUE(dialogs.Last().endsWith(" Taková složka neexistuje.")) << dialogs.Last().toStdString();
}

TEST_F(FrmSadaUndoTest, WritesNoCopyOverAnotherCollection) {
  OpenCaves({"A"});
  const std::string before = Bytes("a.zk");
  TypeName("Jinak");
  dialogs.Type(folder.Root() + "/a.zk").Press("yes").Press("ok");
  Action("mnuSaveAs").trigger();
  EXPECT_EQ(Bytes("a.zk"), before);
  EXPECT_EQ(Bytes("a~.zk"), *ReadWhole(folder.Root() + "/a.zk"));
}

}  // namespace
}  // namespace zorik
