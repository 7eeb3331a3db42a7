// A collection as a folder of texts and as a picture.
#include <QComboBox>
#include <QImage>
#include <QLabel>
#include <filesystem>
#include <map>

#include "editors/ContactSheet.h"
#include "editors/SadaScreen.h"

namespace zorik {
namespace {

using test::Names;

class SadaOtherFormsTest : public test::SadaWindowTest {
 protected:
  std::string Here(const std::string& name) const { return folder.Root() + "/" + name; }
  void Edit(const std::string& name, const std::string& from, const std::string& to) const {
    std::string text = *ReadWhole(Here(name));
    const std::size_t place = text.find(from);
    ASSERT_NE(place, std::string::npos);
    ASSERT_TRUE(WriteWhole(Here(name), text.replace(place, from.size(), to)));
  }
  // Writes the collection into the folder of its name.
  void WriteTexts() {
    dialogs.Type(folder.Root()).Press("ok");
    Action("mnuToTexts").trigger();
    ASSERT_TRUE(std::filesystem::exists(Here("Sada/collection.txt"))) << dialogs.Last().toStdString();
  }
};

TEST_F(SadaOtherFormsTest, ComeBackFromAFolderOfTexts) {
  OpenCaves({"*A", "B", "*C"});
  WriteTexts();
  EXPECT_TRUE(dialogs.Last().contains("Sada je uložena jako texty"));
  Edit("Sada/cave-02.txt", "name: B", "name: Nová");
  Action("mnuNew").trigger();
  ASSERT_EQ(Sada().ListCount(), 1);
  dialogs.Type(Here("Sada"));
  Action("mnuFromTexts").trigger();
  EXPECT_EQ(Rows(), (Names{"*A", "Nová", "*C"}));
  EXPECT_EQ(Box("Text3").text(), "Sada");
  EXPECT_EQ(Box("Text1").text(), "Eva");
  EXPECT_TRUE(Sada().Chg());
  EXPECT_EQ(Sada().FileName(), "");
  EXPECT_TRUE(window->isWindowModified());
}

TEST_F(SadaOtherFormsTest, GoIntoAFolderWithTheCollectionsName) {
  OpenCaves({"*A"});
  for (const auto& [name, made] : std::map<const char*, const char*>{{"A?B:", "AB"}, {"", "sada"}}) {
    TypeName(name);
    Key(Qt::Key_Delete);
    dialogs.Type(folder.Root()).Press("ok");
    Action("mnuToTexts").trigger();
    EXPECT_TRUE(std::filesystem::exists(Here(std::string(made) + "/collection.txt"))) << made;
  }
}

TEST_F(SadaOtherFormsTest, AskForNoFolderWhereATextIsTooLong) {
  OpenCaves({"*A"});
  TypeName(QString(191, 'x'));
  dialogs.Press("ok");
  Action("mnuToTexts").trigger();
  EXPECT_TRUE(dialogs.Last().endsWith("znaků 191, vejde se 190.")) << dialogs.Last().toStdString();
}

TEST_F(SadaOtherFormsTest, AskBeforeTheyWriteOverAFolder) {
  OpenCaves({"*A"});
  WriteTexts();
  folder.File("Sada/cave-01.txt", "mine");
  dialogs.Type(folder.Root()).Press("no");
  Action("mnuToTexts").trigger();
  EXPECT_EQ(*ReadWhole(Here("Sada/cave-01.txt")), "mine");
  dialogs.Type(folder.Root()).Press("yes").Press("ok");
  Action("mnuToTexts").trigger();
  EXPECT_TRUE(ReadWhole(Here("Sada/cave-01.txt"))->starts_with("name: A\n"));
}

TEST_F(SadaOtherFormsTest, TellInWhichLineOfWhichTextAMistakeIsAndChangeNothing) {
  OpenCaves({"*A", "B"});
  WriteTexts();
  Edit("Sada/cave-02.txt", "gems:", "gemy:");
  dialogs.Type(Here("Sada")).Press("ok");
  Action("mnuFromTexts").trigger();
  EXPECT_TRUE(dialogs.Last().contains("Soubor cave-02.txt, řádek 4 Údaj s tímto klíčem hra nezná."))
      << dialogs.Last().toStdString();
  EXPECT_EQ(Rows(), (Names{"*A", "B"}));
  EXPECT_FALSE(Sada().Chg());
  EXPECT_EQ(Sada().FileName(), Path("a.zk"));
}

TEST_F(SadaOtherFormsTest, TellWhichTextIsMissing) {
  OpenCaves({"*A", "B"});
  WriteTexts();
  std::filesystem::remove(Here("Sada/cave-02.txt"));
  dialogs.Type(Here("Sada")).Press("ok");
  Action("mnuFromTexts").trigger();
  EXPECT_TRUE(dialogs.Last().contains("Soubor cave-02.txt Tento soubor nelze přečíst."))
      << dialogs.Last().toStdString();
  dialogs.Type(Here("Caves")).Press("ok");
  Action("mnuFromTexts").trigger();
  EXPECT_TRUE(dialogs.Last().contains("Soubor collection.txt"));
}

TEST_F(SadaOtherFormsTest, SpeakNoEnglishOfMistakesInACzechWindow) {
  OpenCaves({"*A"});
  WriteTexts();
  const std::string whole = *ReadWhole(Here("Sada/cave-01.txt"));
  for (const char* line :
       {"what\n", "\\q: 1\n", "name: \\q\n", "name: \xD0\x96\n", "time: x\n", "| x\n", "cat: 123\n"}) {
    folder.File("Sada/cave-01.txt", whole + line);
    dialogs.Type(Here("Sada")).Press("ok");
    Action("mnuFromTexts").trigger();
    for (const char* word : {"neither", "second", "entry", "unknown", "backslash", "line", " the "})
      EXPECT_FALSE(dialogs.Last().contains(word)) << line << dialogs.Last().toStdString();
  }
}

TEST_F(SadaOtherFormsTest, AskToSaveBeforeAnotherCollectionTakesThePlaceOfAChangedOne) {
  OpenCaves({"*A"});
  WriteTexts();
  TypeName("Jinak");
  dialogs.Press("close");
  Action("mnuFromTexts").trigger();
  EXPECT_EQ(Box("Text3").text(), "Jinak");
}

TEST_F(SadaOtherFormsTest, AreCalledByTheirNamesInTheBoxesForFiles) {
  OpenCaves({"*A"});
  for (const auto& [item, title] : std::map<const char*, QString>{{"mnuSheet", "Uložit přehled komnat"},
                                                                  {"mnuToTexts", "Uložit jako složku textů"},
                                                                  {"mnuFromTexts", "Otevřít složku textů"}}) {
    dialogs.Then([title = title](QWidget& dialog) {
      EXPECT_EQ(dialog.windowTitle(), title);
      dialog.close();
    });
    Action(item).trigger();
  }
}

TEST_F(SadaOtherFormsTest, AskForAFolderInTheWordsOfTheSkinAlone) {
  OpenCaves({"*A"});
  for (const char* item : {"mnuToTexts", "mnuFromTexts"}) {
    dialogs.Then([](QWidget& dialog) {
      QStringList words;
      for (const auto* label : dialog.findChildren<QLabel*>()) {
        if (label->isVisible()) words << label->text();
      }
      EXPECT_EQ(words, (QStringList{"Složka:", "Složka:"}));
      for (const auto* list : dialog.findChildren<QComboBox*>())
        EXPECT_TRUE(!list->isVisible() || list->objectName() == "lookInCombo");
      dialog.close();
    });
    Action(item).trigger();
  }
}

TEST_F(SadaOtherFormsTest, ShowAllCavesOnOnePicture) {
  OpenCaves({"*A", "B", "C"});
  dialogs.Type(Here("all"));
  Action("mnuSheet").trigger();
  const QImage sheet(QString::fromStdString(Here("all.png")));
  const QImage expected =
      ContactSheet(skin.Places(), "Sada", {Sada().Cave(1), Sada().Cave(2), Sada().Cave(3)});
  EXPECT_EQ(sheet.convertToFormat(QImage::Format_RGB32), expected);
}

TEST_F(SadaOtherFormsTest, TellWhyTheyCannotBeWritten) {
  OpenCaves({"*A"});
  dialogs.Type(Here("neni/all.png")).Press("ok");
  Action("mnuSheet").trigger();
  EXPECT_TRUE(dialogs.Last().endsWith(" Taková složka neexistuje.")) << dialogs.Last().toStdString();
  folder.File("Sada", "a file of the author's");
  dialogs.Type(folder.Root()).Press("ok");
  Action("mnuToTexts").trigger();
  EXPECT_TRUE(dialogs.Last().endsWith("/Sada Taková složka neexistuje.")) << dialogs.Last().toStdString();
}

TEST_F(SadaOtherFormsTest, CallTheOverviewByItsNameWhereItsFileIsAskedFor) {
  OpenCaves({"*A"});
  dialogs.Then([](QWidget& dialog) {
    EXPECT_EQ(dialog.windowTitle(), "Uložit přehled komnat");
    dialog.close();
  });
  Action("mnuSheet").trigger();
}

}  // namespace
}  // namespace zorik
