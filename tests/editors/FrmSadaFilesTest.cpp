// Files of the collection editor: saving, opening, and what is asked before changes are lost.
#include <gtest/gtest.h>

#include <filesystem>

#include "data/Result.h"
#include "editors/FrmSada.h"
#include "editors/SadaScreen.h"
#include "platform/PathText.h"

namespace zorik {
namespace {

using test::Names;

class FrmSadaFilesTest : public test::SadaWindowTest {};

// Saving

TEST_F(FrmSadaFilesTest, AsksForAFileWhenACollectionHasNone) {
  Open();
  TypeName("Jeskyně");
  dialogs.Type(Path("nova"));
  Key(Qt::Key_S, Qt::ControlModifier);
  EXPECT_EQ(Lines("nova.zk").size(), 5U);
  EXPECT_EQ(Line("nova.zk", 0),
            "HJeskyn\xEC"
            "A");
  EXPECT_EQ(Sada().FileName(), Path("nova.zk"));
  EXPECT_FALSE(window->isWindowModified());
}

TEST_F(FrmSadaFilesTest, StoresACollectionOfAnOldArchiveInItsPlace) {
  OpenCaves({"*Jedna"});
  const std::string path = folder.Root() + "/Caves/Sk\xE1la.zk";
  ASSERT_TRUE(WriteWhole(path, *ReadWhole(Sada().FileName())));
  window->Open(PathText(path));
  EXPECT_EQ(Sada().FileName(), path);
  TypeName("Nova");
  Key(Qt::Key_S, Qt::ControlModifier);
  EXPECT_FALSE(window->isWindowModified());
  EXPECT_EQ(Line("Sk\xE1la.zk", 0).substr(1, 4), "Nova");
  dialogs.Then([](QWidget& dialog) {
    EXPECT_EQ(dialog.findChild<QLineEdit*>("fileNameEdit")->text(), "Skála.zk");
    dialog.close();
  });
  Action("mnuSaveAs").trigger();
}

TEST_F(FrmSadaFilesTest, ProposesTheNameOfTheCollectionForItsFile) {
  Open();
  TypeName("Můj \"svět\"");
  dialogs.Then([this](QWidget& dialog) {
    EXPECT_EQ(dialog.windowTitle(), "Uložit sadu komnat");
    EXPECT_EQ(dialog.findChild<QLineEdit*>("fileNameEdit")->text(), "Můj svět.zk");
    const auto& box = dynamic_cast<const QFileDialog&>(dialog);
    EXPECT_EQ(box.directory().path().toStdString(), folder.Root() + "/Caves");
    EXPECT_TRUE(box.testOption(QFileDialog::ReadOnly)) << "it could rename and delete files";
    dialog.close();
  });
  Action("mnuSaveAs").trigger();
}

TEST_F(FrmSadaFilesTest, PutsTheEndingBehindAnyNameThatLacksIt) {
  Open();
  const std::vector<std::pair<const char*, const char*>> rows = {
      {"b", "b.zk"}, {"verze 1.5", "verze 1.5.zk"}, {"c.zk", "c.zk"}, {"D.ZK", "D.ZK"}};
  for (const auto& [typed, file] : rows) {
    dialogs.Type(Path(typed));
    Action("mnuSaveAs").trigger();
    EXPECT_EQ(Sada().FileName(), Path(file));
    EXPECT_EQ(Lines(file).size(), 5U);
  }
}

TEST_F(FrmSadaFilesTest, AsksBeforeItReplacesAFileWhoseEndingWasNotTyped) {
  Open();
  folder.File("Caves/verze 1.5.zk", "stary");
  dialogs.Type(Path("verze 1.5")).Press("no").Cancel();
  Action("mnuSaveAs").trigger();
  EXPECT_EQ(Bytes("verze 1.5.zk"), "stary");
}

TEST_F(FrmSadaFilesTest, SavesEmptyTextsAndLineBreaks) {
  OpenCaves({"A"});
  for (const char* box : {"Text3", "Text1", "Text2", "Text4"}) {
    Child<QWidget>(box).setFocus();
    Key(Qt::Key_A, Qt::ControlModifier);
    Key(Qt::Key_Delete);
  }
  Key(Qt::Key_S, Qt::ControlModifier);
  EXPECT_EQ(Lines("a.zk"), (Names{"AA", "A", "0", test::OneStepCave("A") + "---01", "Hura"}));
  TypeInto("Text4", "a");
  Key(Qt::Key_Return);
  QTest::keyClicks(&Text4(), "b");
  Key(Qt::Key_S, Qt::ControlModifier);
  EXPECT_EQ(Line("a.zk", 1), "Aa\r\nb");
  Open(Path("a.zk"));
  EXPECT_EQ(Text4().toPlainText(), "a\nb");
}

TEST_F(FrmSadaFilesTest, SavesIntoItsFileWithoutAsking) {
  OpenCaves({"A", "B"});
  Key(Qt::Key_F3);
  Key(Qt::Key_S, Qt::ControlModifier);
  EXPECT_FALSE(window->isWindowModified());
  EXPECT_EQ(Lines("a.zk").size(), 7U);
}

TEST_F(FrmSadaFilesTest, AsksBeforeItReplacesAnotherFile) {
  OpenCaves({"A", "B"});
  folder.File("Caves/b.zk", "stary");
  dialogs.Type(Path("b.zk")).Press("no").Cancel();
  Action("mnuSaveAs").trigger();
  EXPECT_EQ(Bytes("b.zk"), "stary");
  EXPECT_EQ(Sada().FileName(), Path("a.zk"));
  dialogs.Type(Path("b.zk")).Press("yes");
  Action("mnuSaveAs").trigger();
  EXPECT_EQ(Lines("b.zk").size(), 6U);
  EXPECT_EQ(Sada().FileName(), Path("b.zk"));
}

TEST_F(FrmSadaFilesTest, TellsWhenAFileCannotBeWrittenAndKeepsEverything) {
  OpenCaves({"A"});
  TypeName("Jinak");
  dialogs.Type(Path("neni/b.zk")).Press("later");
  Action("mnuSaveAs").trigger();
  EXPECT_TRUE(dialogs.Last().startsWith("Soubor se nepodařilo uložit.")) << dialogs.Last().toStdString();
  EXPECT_TRUE(window->isWindowModified());
  EXPECT_EQ(Sada().FileName(), Path("a.zk"));
  EXPECT_EQ(Line("a.zk", 0), "ESadaA");
  EXPECT_EQ(Box("Text3").text(), "Jinak");
  EXPECT_EQ(Rows(), Names{"*A"});
}

TEST_F(FrmSadaFilesTest, LosesNothingWhenTheFileAskedForCannotBeWritten) {
  OpenCaves({"A"});
  TypeName("Jinak");
  Key(Qt::Key_F3);
  std::filesystem::remove(Path("a.zk"));
  std::filesystem::create_directory(Path("a.zk"));
  for (int i = 0; i < 2; ++i) {
    dialogs.Press("yes").Press("later");
    i == 0 ? Key(Qt::Key_O, Qt::ControlModifier) : static_cast<void>(window->close());
    const std::string words = "Soubor se nepodařilo uložit. " + Path("a.zk") +
                              " Toto jméno má složka. Sada zatím zůstává v paměti.";
    // The way to a file is broken into lines where it is long.
    EXPECT_EQ(dialogs.Last().remove(' '), QString::fromStdString(words).remove(' '));
    EXPECT_EQ(Box("Text3").text(), "Jinak");
    EXPECT_EQ(Rows(), (Names{"*Nová malá komnata", "*A"}));
    EXPECT_TRUE(window->isWindowModified());
    EXPECT_TRUE(window->isVisible());
  }
  EXPECT_EQ(closed, 0);
}

TEST_F(FrmSadaFilesTest, TellsWhenItsFileHasGoneWithItsFolder) {
  OpenCaves({"A"});
  TypeName("Jinak");
  std::filesystem::remove_all(folder.Root() + "/Caves");
  dialogs.Press("later");
  Key(Qt::Key_S, Qt::ControlModifier);
  ASSERT_EQ(dialogs.said.size(), 1);
  EXPECT_TRUE(dialogs.said.value(0).startsWith("Soubor se nepodařilo uložit."));
  EXPECT_TRUE(window->isWindowModified());
  EXPECT_EQ(Box("Text3").text(), "Jinak");
}

TEST_F(FrmSadaFilesTest, TriesAgainToSaveUntilItSucceeds) {
  OpenCaves({"A"});
  TypeName("Jinak");
  const std::string caves = folder.Root() + "/Caves";
  std::filesystem::rename(caves, caves + "x");
  dialogs.Press("retry").Then([caves](QWidget& dialog) {
    std::filesystem::rename(caves + "x", caves);
    QTest::keyClick(&dialog, Qt::Key_R);
  });
  Key(Qt::Key_S, Qt::ControlModifier);
  EXPECT_EQ(dialogs.said.size(), 2);
  EXPECT_EQ(Line("a.zk", 0), "FJinakA");
  EXPECT_FALSE(window->isWindowModified());
}

TEST_F(FrmSadaFilesTest, SavesElsewhereWhatCannotBeSavedWhereItWas) {
  OpenCaves({"A"});
  TypeName("Jinak");
  std::filesystem::remove(Path("a.zk"));
  std::filesystem::create_directory(Path("a.zk"));
  dialogs.Press("elsewhere").Cancel();
  Key(Qt::Key_S, Qt::ControlModifier);
  EXPECT_TRUE(window->isWindowModified());
  dialogs.Press("yes").Press("elsewhere").Type(Path("neni/b.zk")).Press("elsewhere").Type(Path("b.zk"));
  window->close();
  EXPECT_EQ(closed, 1);
  EXPECT_EQ(Line("b.zk", 0), "FJinakA");
}

TEST_F(FrmSadaFilesTest, NamesTheTextThatIsTooLongToBeSaved) {
  for (const auto& [box, label] : {std::pair("Text3", "Název sady"), std::pair("Text1", "Autor")}) {
    dialogs.said.clear();
    OpenCaves({"A"});
    Box(box).setFocus();
    Box(box).selectAll();
    Type(Box(box), QString(191, QChar(u'š')));
    List().setFocus();
    dialogs.Press("ok");
    Key(Qt::Key_S, Qt::ControlModifier);
    ASSERT_EQ(dialogs.said.size(), 1);
    EXPECT_TRUE(dialogs.said.value(0).contains(QString(label) + ": ")) << dialogs.said.value(0).toStdString();
    EXPECT_TRUE(dialogs.said.value(0).contains("191") && dialogs.said.value(0).contains("190"));
    EXPECT_EQ(window->focusWidget(), &Box(box));
    EXPECT_EQ(Line("a.zk", 0), "ESadaA");
    EXPECT_TRUE(window->isWindowModified());
  }
}

// Opening

TEST_F(FrmSadaFilesTest, BringsEveryShippedCollectionBackLineByLine) {
  int collections = 0;
  for (const auto& entry : std::filesystem::directory_iterator(ZORIK_CAVES)) {
    if (entry.path().extension() != ".zk") continue;
    ++collections;
    const std::string file = entry.path().filename().string();
    folder.File("Caves/" + file, *ReadWhole(entry.path().string()));
    const Names before = Lines(file);
    Open(Path(file));
    Key(Qt::Key_S, Qt::ControlModifier);
    EXPECT_TRUE(Lines(file) == before) << file;
    TypeName(Box("Text3").text());
    Text4().setFocus();
    Key(Qt::Key_X);
    EXPECT_TRUE(window->isWindowModified());
    Key(Qt::Key_Z, Qt::ControlModifier);
    Key(Qt::Key_S, Qt::ControlModifier);
    EXPECT_TRUE(Lines(file) == before) << file << " by typing the same";
  }
  EXPECT_GE(collections, 1);
}

TEST_F(FrmSadaFilesTest, KeepsLettersThatNoObjectHas) {
  test::Numbers numbers;
  numbers.name = "A";
  const std::string cave = test::CaveTextOf({"WWWWW", "W1T?\xE1", "WW*z\x01"}, numbers) + "*A-A/Z";
  Chance chance;
  const Names lines = {"ESadaA", "CEva", "@0", cave + "---01", "Hura"};
  folder.File("Caves/l.zk", ScrambleLines(lines, chance));
  Open(Path("l.zk"));
  Key(Qt::Key_S, Qt::ControlModifier);
  EXPECT_EQ(Lines("l.zk"), lines);
}

TEST_F(FrmSadaFilesTest, OpensAFileByCtrlO) {
  OpenCaves({"A", "*B"});
  Open();
  dialogs.Type(Path("a.zk"));
  Key(Qt::Key_O, Qt::ControlModifier);
  EXPECT_EQ(Rows(), (Names{"*A", "*B"}));
  EXPECT_EQ(Box("Text3").text(), "Sada");
  EXPECT_EQ(Box("Text1").text(), "Eva");
  EXPECT_EQ(Box("Text2").text(), "eva@priklad.cz");
  EXPECT_EQ(Text4().toPlainText(), "Popis");
  EXPECT_FALSE(window->isWindowModified());
}

TEST_F(FrmSadaFilesTest, AsksToSaveBeforeItOpensAnotherFile) {
  OpenCaves({"A", "B"});
  TypeName("Jinak");
  dialogs.Press("close");
  Key(Qt::Key_O, Qt::ControlModifier);
  EXPECT_EQ(dialogs.said, QStringList("Sada „Jinak“ byla změněna. Uložit změny?"));
  EXPECT_EQ(dialogs.titles, QStringList("Neuložené změny"));
  EXPECT_EQ(Box("Text3").text(), "Jinak");
  dialogs.Press("no").Type(Path("a.zk"));
  Key(Qt::Key_O, Qt::ControlModifier);
  EXPECT_EQ(Box("Text3").text(), "Sada");
  TypeName("Jinak");
  dialogs.Press("yes").Cancel();
  Key(Qt::Key_O, Qt::ControlModifier);
  EXPECT_EQ(Line("a.zk", 0), "FJinakA");
  EXPECT_FALSE(window->isWindowModified());
}

TEST_F(FrmSadaFilesTest, KeepsAllWhenTheAuthorGivesUpSaving) {
  Open();
  TypeName("Jinak");
  dialogs.Press("yes").Cancel();
  Key(Qt::Key_O, Qt::ControlModifier);
  EXPECT_EQ(Box("Text3").text(), "Jinak");
  EXPECT_TRUE(window->isWindowModified());
}

TEST_F(FrmSadaFilesTest, KeepsAllWhenTheAuthorChoosesNoFile) {
  OpenCaves({"A", "B"});
  TypeName("Jinak");
  dialogs.Press("no").Cancel();
  Key(Qt::Key_O, Qt::ControlModifier);
  EXPECT_EQ(Box("Text3").text(), "Jinak");
  EXPECT_TRUE(window->isWindowModified());
}

TEST_F(FrmSadaFilesTest, ShowsAClosedCollectionAsClosedAndBeginsANewOne) {
  Chance chance;
  folder.File("Caves/z.zk", ScrambleLines({"ESadaA", "AX", "a@b.czQ", "x---01", ""}, chance));
  dialogs.Then([this](QWidget& dialog) {
    for (const char* box : {"Text3", "Text1", "Text2"}) EXPECT_EQ(Box(box).text(), "(uzavřeno)");
    EXPECT_EQ(Text4().toPlainText(), "(uzavřeno)");
    QTest::keyClick(&dialog, Qt::Key_Return);
  });
  Open(Path("z.zk"));
  EXPECT_EQ(dialogs.titles, QStringList("Uzavřená sada"));
  EXPECT_TRUE(dialogs.said.value(0).startsWith("Autor tuto sadu uzavřel"));
  EXPECT_EQ(Box("Text3").text(), "Nová sada");
  EXPECT_EQ(Rows(), Names{"*Nová malá komnata"});
  EXPECT_EQ(Sada().FileName(), "");
  EXPECT_FALSE(window->isWindowModified());
}

TEST_F(FrmSadaFilesTest, BeginsANewCollectionWhenAClosedOneWasChosen) {
  Chance chance;
  folder.File("Caves/z.zk", ScrambleLines({"ESadaA", "AX", "a@b.czQ", "x---01", ""}, chance));
  OpenCaves({"A", "B"});
  dialogs.Type(Path("z.zk")).Press("ok");
  Key(Qt::Key_O, Qt::ControlModifier);
  EXPECT_EQ(Rows(), Names{"*Nová malá komnata"});
  EXPECT_EQ(Sada().FileName(), "");
  EXPECT_EQ(Line("z.zk", 2), "a@b.czQ") << "its file stays";
}

TEST_F(FrmSadaFilesTest, SpeaksTheLanguageOfTheSkin) {
  ASSERT_TRUE(skin.Apply(SkinPlaces{ZORIK_SKINS, "English"}));
  Chance chance;
  folder.File("Caves/d.zk", ScrambleLines({"ESadaA", "AX", "a@b.cz0", "E!---01", "x",
                                           test::OneStepCave("B") + "---02", "y---X3", "E---04", "x---ab"},
                                          chance) +
                                "abc");
  folder.File("Caves/z.zk", ScrambleLines({"ESadaA", "AX", "a@b.czz", "x---01", ""}, chance));
  dialogs.Press("ok");
  Open(Path("d.zk"));
  EXPECT_EQ(Rows(), Names{"*B"});
  folder.File("Caves/e.zk", ScrambleLines({"ESadaA", "AX", "a@b.cz0", "Hura"}, chance));
  dialogs.Press("ok");
  Open(Path("e.zk"));
  EXPECT_EQ(Rows(), Names{"*New small cave"});
  dialogs.Then([this](QWidget& dialog) {
    EXPECT_EQ(Box("Text3").text(), "(closed)");
    QTest::keyClick(&dialog, Qt::Key_Return);
  });
  Open(Path("z.zk"));
  TypeInto("Text1", QString(191, 'x'));
  dialogs.Press("close");
  Key(Qt::Key_O, Qt::ControlModifier);
  dialogs.Type(Path("b.zk")).Press("ok");
  Key(Qt::Key_S, Qt::ControlModifier);
  Key(Qt::Key_F3);
  dialogs.Press("no");
  Key(Qt::Key_F8);
  const std::vector<std::pair<std::string, std::string>> wanted = {
      {"Zorík",
       "Something in the collection's file is not right (the numbers are its lines): Left out, a cave that "
       "cannot be read: 4, 8 Left out, a cave with a damaged number: 7, 9 Left out, a line that is no cave: "
       "5 "
       "The line holds characters that do not belong there: 10 The file ends in the middle of a line: 10 "
       "When "
       "you first save, the old file stays beside the new one."},
      {"Zorík",
       "Something in the collection's file is not right (the numbers are its lines): No cave was found, the "
       "collection has a new one. When you first save, the old file stays beside the new one."},
      {"Closed collection",
       "The author has closed this collection; it cannot be edited. A new, empty collection will be opened."},
      {"Unsaved changes", "The collection “New collection” has changed. Save the changes?"},
      {"Zorík", "The file could not be saved. Author: 191 characters; there is room for 190."},
      {"Delete cave", "Really delete the cave 'New small cave' from this collection?"},
  };
  ASSERT_EQ(dialogs.said.size(), static_cast<int>(wanted.size()));
  for (int i = 0; i < dialogs.said.size(); ++i) {
    EXPECT_EQ(std::pair(dialogs.titles[i].toStdString(), dialogs.said[i].toStdString()),
              wanted[static_cast<std::size_t>(i)]);
  }
}

TEST_F(FrmSadaFilesTest, TellsOfAFileThatCannotBeOpenedAndBeginsANewCollection) {
  OpenCaves({"A", "B"});
  dialogs.Then([this](QWidget& dialog) {
    EXPECT_EQ(Box("Text3").text(), "Nová sada") << "what was edited before is not what the message is about";
    QTest::keyClick(&dialog, Qt::Key_Return);
  });
  Open(Path("neni.zk"));
  EXPECT_TRUE(dialogs.said.value(0).contains("neni.zk"));
  EXPECT_EQ(Box("Text3").text(), "Nová sada");
  EXPECT_TRUE(window->isVisible());
}

TEST_F(FrmSadaFilesTest, KeepsItsCollectionWhenAnotherCannotBeOpened) {
  OpenCaves({"A", "B"});
  folder.File("Caves/x.zk", "ABC\r\n");
  dialogs.Type(Path("x.zk")).Press("ok");
  Key(Qt::Key_O, Qt::ControlModifier);
  EXPECT_EQ(Rows(), (Names{"*A", "B"}));
  EXPECT_EQ(Box("Text3").text(), "Sada");
  EXPECT_EQ(Sada().FileName(), Path("a.zk"));
}

// Closing

TEST_F(FrmSadaFilesTest, ClosesAtOnceWithoutChanges) {
  OpenCaves({"A"});
  Action("mnuClose").trigger();
  EXPECT_EQ(closed, 1);
  EXPECT_FALSE(window->isVisible());
}

TEST_F(FrmSadaFilesTest, AsksToSaveWhenItIsClosed) {
  for (const bool byMenu : {true, false}) {
    const auto leave = [&] { byMenu ? Action("mnuClose").trigger() : static_cast<void>(window->close()); };
    closed = 0;
    OpenCaves({"A"});
    TypeName("Jinak");
    dialogs.Press("close");
    leave();
    EXPECT_EQ(closed, 0);
    EXPECT_TRUE(window->isVisible());
    dialogs.Press("yes");
    leave();
    EXPECT_EQ(closed, 1);
    EXPECT_EQ(Line("a.zk", 0), "FJinakA");
    OpenCaves({"A"});
    TypeName("Zahodit");
    dialogs.Press("no");
    leave();
    EXPECT_EQ(closed, 2);
    EXPECT_EQ(Line("a.zk", 0), "ESadaA");
  }
}

TEST_F(FrmSadaFilesTest, StaysWhenItCannotBeSavedAtTheEnd) {
  OpenCaves({"A"});
  TypeName(QString(200, 'x'));
  dialogs.Press("yes").Press("ok");
  window->close();
  EXPECT_EQ(closed, 0);
  EXPECT_TRUE(window->isVisible());
}

TEST_F(FrmSadaFilesTest, LooksForAnotherFileBesideTheOneThatIsOpen) {
  folder.File("Jinde/b.zk", "");
  OpenCaves({"A"});
  const std::string elsewhere = folder.Root() + "/Jinde/a.zk";
  std::filesystem::copy(Path("a.zk"), elsewhere);
  Open(elsewhere);
  dialogs.Then([&](QWidget& dialog) {
    EXPECT_EQ(dynamic_cast<QFileDialog&>(dialog).directory().path().toStdString(), folder.Root() + "/Jinde");
    dialog.close();
  });
  Key(Qt::Key_O, Qt::ControlModifier);
}

TEST_F(FrmSadaFilesTest, ProposesAFileForACollectionWithoutAName) {
  Open();
  TypeName("?");
  dialogs.Then([](QWidget& dialog) {
    EXPECT_EQ(dialog.findChild<QLineEdit*>("fileNameEdit")->text(), "sada.zk");
    dialog.close();
  });
  Action("mnuSaveAs").trigger();
}

}  // namespace
}  // namespace zorik
