#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "Samples.h"
#include "data/CaveO.h"
#include "data/Files.h"
#include "editors/SadaModel.h"

namespace zorik {
namespace {

using samples::CaveText;
using samples::CollectionFile;
using samples::Letter;
using samples::Measured;
using samples::Scrambled;

SadaWords Words() {
  return {"Nova", "Hurra, $P", {"Mala", "Velka", "Popis"}};
}

class SadaTest : public testing::Test {
 protected:
  SadaTest() {
    std::string pattern = (std::filesystem::temp_directory_path() / "zorik-sada-XXXXXX").string();
    folder_ = mkdtemp(pattern.data());
  }
  ~SadaTest() override { std::filesystem::remove_all(folder_); }

  std::string Path(const std::string& name) const { return folder_ + "/" + name; }
  std::string Write(const std::string& name, const std::string& bytes) const {
    EXPECT_TRUE(WriteWhole(Path(name), bytes));
    return Path(name);
  }
  std::vector<std::string> Saved(const std::string& name = "a.zk") {
    const Result<Done> saved = sada_.Save(Path(name));
    EXPECT_TRUE(saved) << (saved ? "" : saved.Message());
    const Result<std::string> bytes = ReadWhole(Path(name));
    return bytes ? PlainLines(*bytes) : std::vector<std::string>();
  }
  SadaModel::OpenReport Opened(const std::string& bytes) {
    const auto report = sada_.Open(Write("o.zk", bytes));
    EXPECT_TRUE(report) << (report ? "" : report.Message());
    return report ? *report : SadaModel::OpenReport();
  }

  // Opens a collection of caves with these names; the open ones are marked by "*" in front.
  void OpenCaves(const std::vector<std::string>& names) {
    std::vector<std::string> body;
    std::string open;
    for (std::size_t i = 0; i < names.size(); ++i) {
      const bool marked = names[i].front() == '*';
      const int number = static_cast<int>(i + 1);
      body.push_back(CaveText(marked ? names[i].substr(1) : names[i]) + "---" + MarkerDigits(number));
      if (marked) open += static_cast<char>(kOpenCaveOffset + number);
    }
    body.push_back("Gratuluji");
    Opened(CollectionFile(body, open));
  }
  void OpenMany(int count) {
    std::vector<std::string> names;
    for (int i = 1; i <= count; ++i) names.push_back("K" + std::to_string(i));
    OpenCaves(names);
  }

  // The names of the list, those of open caves with "*" in front.
  std::vector<std::string> Rows() const {
    std::vector<std::string> rows;
    for (int i = 1; i <= sada_.ListCount(); ++i) rows.push_back((sada_.IsOpen(i) ? "*" : "") + sada_.Name(i));
    return rows;
  }
  using Names = std::vector<std::string>;

  std::string folder_;
  SadaModel sada_{Words(), 1};
};

// A new collection

TEST_F(SadaTest, BeginsWithANewCollection) {
  EXPECT_EQ(sada_.Text(SadaText::Name), "Nova");
  EXPECT_EQ(sada_.Text(SadaText::Author), "");
  EXPECT_EQ(sada_.Text(SadaText::Mail), "@");
  EXPECT_EQ(sada_.Text(SadaText::Description), "Popis");
  EXPECT_EQ(sada_.CongratulationText(), "Hurra, $P");
  EXPECT_EQ(sada_.FileName(), "");
  EXPECT_EQ(Rows(), Names{"*Mala"});
  EXPECT_EQ(sada_.ListSelected(), 1);
  EXPECT_FALSE(sada_.Chg());
  const Result<CaveRecord> cave = ParseCaveText(sada_.Cave(1));
  ASSERT_TRUE(cave);
  EXPECT_EQ(cave->Width, 19);
  EXPECT_EQ(cave->Height, 11);
  EXPECT_EQ(cave->Description, "Popis");
}

TEST_F(SadaTest, ForgetsTheOldCollectionForANewOne) {
  OpenCaves({"*Jedna", "*Dve", "Tri"});
  sada_.SetText(SadaText::Author, "Adam");
  sada_.Select(3);
  sada_.New();
  EXPECT_EQ(Rows(), Names{"*Mala"});
  EXPECT_EQ(sada_.Text(SadaText::Author), "");
  EXPECT_EQ(sada_.FileName(), "");
  EXPECT_EQ(sada_.ListSelected(), 1);
  EXPECT_FALSE(sada_.Chg());
}

TEST_F(SadaTest, WritesANewCollectionAsFiveLinesWithOneOpenLetter) {
  const std::vector<std::string> lines = Saved();
  ASSERT_EQ(lines.size(), 5U);
  EXPECT_EQ(lines[0], Measured("Nova") + "A");
  EXPECT_EQ(lines[1], Measured("") + "Popis");
  EXPECT_EQ(lines[2], "@0");
  EXPECT_EQ(lines[3], sada_.Cave(1) + "---01");
  EXPECT_EQ(lines[4], "Hurra, $P");
}

TEST_F(SadaTest, TakesWordsThatNoCaveHasRoomForFromTheGame) {
  const std::string tooLong(191, 'x');
  SadaModel sada({"Nova", "", {tooLong, tooLong, tooLong}}, 1);
  EXPECT_EQ(sada.ListCount(), 1);
  EXPECT_EQ(sada.Name(1), NewCaveTexts().SmallName);
}

// Adding

TEST_F(SadaTest, AddsACaveAtTheSelectedRowWhichTakesOverItsFlag) {
  OpenCaves({"*A", "B", "*C", "D"});
  sada_.Select(3);
  sada_.AddCave(CaveText("Nova"));
  EXPECT_EQ(Rows(), (Names{"*A", "B", "*Nova", "*C", "D"}));
  EXPECT_EQ(sada_.ListSelected(), 3);
  EXPECT_TRUE(sada_.Chg());
}

TEST_F(SadaTest, MovesAllFlagsDownWithTheirCaves) {
  OpenCaves({"*A", "B", "*C", "D", "*E"});
  sada_.Select(2);
  sada_.AddCave(CaveText("Nova"));
  EXPECT_EQ(Rows(), (Names{"*A", "Nova", "B", "*C", "D", "*E"}));
  sada_.Select(1);
  sada_.AddCave(CaveText("Prvni"));
  EXPECT_EQ(Rows(), (Names{"*Prvni", "*A", "Nova", "B", "*C", "D", "*E"}));
}

TEST_F(SadaTest, AddsSmallAndLargeCaves) {
  sada_.AddCave(NewCaveSize::Large);
  EXPECT_EQ(Rows(), (Names{"*Velka", "*Mala"}));
  const Result<CaveRecord> cave = ParseCaveText(sada_.Cave(1));
  ASSERT_TRUE(cave);
  EXPECT_EQ(cave->Width, 30);
  EXPECT_EQ(cave->Height, 20);
  sada_.AddCave(NewCaveSize::Small);
  EXPECT_EQ(Rows(), (Names{"*Mala", "*Velka", "*Mala"}));
}

TEST_F(SadaTest, HoldsNinetyOneCaves) {
  OpenMany(90);
  sada_.AddCave(CaveText("Posledni"));
  EXPECT_EQ(sada_.ListCount(), 91);
  EXPECT_EQ(sada_.Name(1), "Posledni");
  EXPECT_EQ(sada_.Name(91), "K90");
}

TEST_F(SadaTest, LosesTheNinetySecondCaveAndCountsAsChanged) {
  OpenMany(91);
  const Names before = Rows();
  sada_.AddCave(NewCaveSize::Small);
  EXPECT_EQ(Rows(), before);
  EXPECT_TRUE(sada_.Chg());
}

TEST_F(SadaTest, KeepsTheCopyOfAPasteIntoAFullCollection) {
  OpenMany(99);
  sada_.Select(5);
  sada_.Copy();
  EXPECT_FALSE(sada_.Chg());
  const Names before = Rows();
  sada_.Paste();
  EXPECT_EQ(Rows(), before);
  EXPECT_TRUE(sada_.Chg());
  EXPECT_EQ(sada_.ClipCave(), sada_.Cave(5));
}

// Moving

TEST_F(SadaTest, MovesACaveUpWithItsFlag) {
  OpenCaves({"*A", "B", "*C"});
  sada_.Select(3);
  sada_.Up();
  EXPECT_EQ(Rows(), (Names{"*A", "*C", "B"}));
  EXPECT_EQ(sada_.ListSelected(), 2);
  EXPECT_TRUE(sada_.Chg());
}

TEST_F(SadaTest, MovesACaveDownWithItsFlag) {
  OpenCaves({"*A", "*B", "C"});
  sada_.Select(2);
  sada_.Down();
  EXPECT_EQ(Rows(), (Names{"*A", "C", "*B"}));
  EXPECT_EQ(sada_.ListSelected(), 3);
  EXPECT_TRUE(sada_.Chg());
}

TEST_F(SadaTest, OpensTheFirstCaveAgainWhenAClosedOneMovesThere) {
  OpenCaves({"*A", "B", "C"});
  sada_.Down();
  EXPECT_EQ(Rows(), (Names{"*B", "*A", "C"}));
  EXPECT_EQ(sada_.ListSelected(), 2);
  EXPECT_EQ(Saved().front(), Measured("Sada") + "AB");
}

TEST_F(SadaTest, StopsMovingAtBothEnds) {
  OpenCaves({"*A", "B"});
  sada_.Up();
  EXPECT_EQ(Rows(), (Names{"*A", "B"}));
  sada_.Select(2);
  sada_.Down();
  EXPECT_EQ(Rows(), (Names{"*A", "B"}));
  EXPECT_EQ(sada_.ListSelected(), 2);
  EXPECT_FALSE(sada_.Chg());
}

// Deleting

TEST_F(SadaTest, MovesLaterCavesAndFlagsUpWhenOneGoes) {
  OpenCaves({"*A", "B", "*C", "D", "*E"});
  sada_.Select(2);
  sada_.Delete();
  EXPECT_EQ(Rows(), (Names{"*A", "*C", "D", "*E"}));
  EXPECT_EQ(sada_.ListSelected(), 2);
  EXPECT_TRUE(sada_.Chg());
}

TEST_F(SadaTest, OpensTheCaveThatBecomesTheFirst) {
  OpenCaves({"*A", "B"});
  sada_.Delete();
  EXPECT_EQ(Rows(), Names{"*B"});
}

TEST_F(SadaTest, SelectsTheCaveBeforeADeletedLastOne) {
  OpenCaves({"*A", "B", "C"});
  sada_.Select(3);
  sada_.Delete();
  EXPECT_EQ(Rows(), (Names{"*A", "B"}));
  EXPECT_EQ(sada_.ListSelected(), 2);
}

TEST_F(SadaTest, KeepsTheOnlyCave) {
  sada_.Delete();
  EXPECT_EQ(sada_.ListCount(), 1);
  EXPECT_FALSE(sada_.Chg());
}

TEST_F(SadaTest, GivesNoFlagOfADeletedCaveToALaterOne) {
  OpenCaves({"*A", "*B"});
  sada_.Select(2);
  sada_.Delete();
  sada_.Select(1);
  sada_.AddCave(CaveText("C"));
  sada_.Select(2);
  sada_.ToggleOpen(2);
  EXPECT_EQ(Rows(), (Names{"*C", "A"}));
  sada_.AddCave(CaveText("D"));
  EXPECT_EQ(Rows(), (Names{"*C", "D", "A"}));
}

// Marks and selection

TEST_F(SadaTest, TogglesTheMarkOfEveryCaveButTheFirst) {
  OpenCaves({"*A", "B", "*C"});
  sada_.ToggleOpen(1);
  EXPECT_FALSE(sada_.Chg());
  sada_.ToggleOpen(2);
  EXPECT_TRUE(sada_.Chg());
  sada_.ToggleOpen(3);
  EXPECT_EQ(Rows(), (Names{"*A", "*B", "C"}));
}

TEST_F(SadaTest, IgnoresRowsThatNoCaveHas) {
  OpenCaves({"*A", "B"});
  sada_.Select(2);
  for (const int number : {-1, 0, 3, 99, 1000}) {
    sada_.Select(number);
    sada_.ToggleOpen(number);
  }
  EXPECT_EQ(sada_.ListSelected(), 2);
  EXPECT_EQ(Rows(), (Names{"*A", "B"}));
  EXPECT_FALSE(sada_.Chg());
}

TEST_F(SadaTest, ListsOpenCavesInAscendingOrderBeyondTheLetters) {
  OpenMany(91);
  for (const int number : {91, 27, 2}) sada_.ToggleOpen(number);
  const std::string line = Saved().front();
  EXPECT_EQ(line, Measured("Sada") + "AB" + static_cast<char>(64 + 27) + static_cast<char>(64 + 91));
}

// The clipboard

TEST_F(SadaTest, PastesACopiedCaveAndKeepsIt) {
  OpenCaves({"*A", "B"});
  sada_.Select(2);
  sada_.Copy();
  EXPECT_FALSE(sada_.Chg());
  sada_.Select(1);
  sada_.Paste();
  EXPECT_EQ(Rows(), (Names{"*B", "*A", "B"}));
  EXPECT_TRUE(sada_.Chg());
  sada_.Paste();
  EXPECT_EQ(sada_.ListCount(), 4);
}

TEST_F(SadaTest, CarriesACaveFromOneCollectionToAnother) {
  OpenCaves({"*A"});
  sada_.Copy();
  sada_.New();
  sada_.Paste();
  EXPECT_EQ(Rows(), (Names{"*A", "*Mala"}));
}

// From the cave editor

TEST_F(SadaTest, StoresAnEditedCaveInTheSelectedRow) {
  OpenCaves({"*A", "B", "*C"});
  sada_.Select(2);
  sada_.SetSelected(CaveText("Jina"));
  EXPECT_EQ(Rows(), (Names{"*A", "Jina", "*C"}));
  EXPECT_EQ(sada_.ListSelected(), 2);
}

TEST_F(SadaTest, ShowsNoNameForATextThatDoesNotParse) {
  sada_.SetSelected("!");
  EXPECT_EQ(sada_.Name(1), "");
}

// Texts

TEST_F(SadaTest, CountsAsChangedAfterAnyTextHasChanged) {
  for (const SadaText text : {SadaText::Name, SadaText::Author, SadaText::Mail, SadaText::Description}) {
    sada_.New();
    sada_.SetText(text, "Jinak");
    EXPECT_EQ(sada_.Text(text), "Jinak");
    EXPECT_TRUE(sada_.Chg());
  }
  sada_.New();
  sada_.SetCongratulation("Jinak");
  EXPECT_TRUE(sada_.Chg());
}

TEST_F(SadaTest, WritesTextsWhereTheyBelong) {
  sada_.SetText(SadaText::Name, "Jeskyn\xEC");
  sada_.SetText(SadaText::Author, "Eva");
  sada_.SetText(SadaText::Mail, "eva@priklad.cz");
  sada_.SetText(SadaText::Description, "Dva\r\nradky");
  sada_.SetCongratulation("Hur\xE1\r\n$P");
  const std::vector<std::string> lines = Saved();
  ASSERT_EQ(lines.size(), 5U);
  EXPECT_EQ(lines[0], Letter(7) + std::string("Jeskyn\xEC") + "A");
  EXPECT_EQ(lines[1], Letter(3) + std::string("EvaDva\r\nradky"));
  EXPECT_EQ(lines[2], "eva@priklad.cz0");
  EXPECT_EQ(lines[4], "Hur\xE1\r\n$P");
}

TEST_F(SadaTest, WritesEmptyTexts) {
  for (const SadaText text : {SadaText::Name, SadaText::Author, SadaText::Mail, SadaText::Description}) {
    sada_.SetText(text, "");
  }
  sada_.SetCongratulation("");
  const std::vector<std::string> lines = Saved();
  ASSERT_EQ(lines.size(), 5U);
  EXPECT_EQ(lines[0], "AA");
  EXPECT_EQ(lines[1], "A");
  EXPECT_EQ(lines[2], "0");
  EXPECT_EQ(lines[4], "");
}

TEST_F(SadaTest, NamesTheTextThatIsTooLongForTheFile) {
  EXPECT_FALSE(sada_.CannotHold());
  for (const SadaText text : {SadaText::Name, SadaText::Author}) {
    sada_.New();
    sada_.SetText(text, std::string(190, 'x'));
    EXPECT_FALSE(sada_.CannotHold());
    EXPECT_EQ(Saved().size(), 5U);
    sada_.SetText(text, std::string(191, 'x'));
    const auto tooLong = sada_.CannotHold();
    ASSERT_TRUE(tooLong);
    EXPECT_EQ(tooLong->text, text);
    EXPECT_EQ(tooLong->length, 191U);
    EXPECT_EQ(tooLong->most, 190U);
    EXPECT_FALSE(sada_.Save(Path("b.zk")));
    EXPECT_TRUE(sada_.Chg());
    EXPECT_FALSE(std::filesystem::exists(Path("b.zk")));
  }
}

// Opening

TEST_F(SadaTest, OpensACollection) {
  const auto report =
      Opened(CollectionFile({CaveText("A") + "---01", CaveText("B") + "---02", "Hura"}, "AB"));
  EXPECT_FALSE(report.Closed);
  EXPECT_TRUE(report.Unreadable.empty());
  EXPECT_EQ(sada_.Text(SadaText::Name), "Sada");
  EXPECT_EQ(sada_.Text(SadaText::Author), "Autor");
  EXPECT_EQ(sada_.Text(SadaText::Description), "Popis");
  EXPECT_EQ(sada_.Text(SadaText::Mail), "a@b.cz");
  EXPECT_EQ(sada_.CongratulationText(), "Hura");
  EXPECT_EQ(Rows(), (Names{"*A", "*B"}));
  EXPECT_EQ(sada_.Cave(2), CaveText("B"));
  EXPECT_EQ(sada_.ListSelected(), 1);
  EXPECT_EQ(sada_.FileName(), Path("o.zk"));
  EXPECT_FALSE(sada_.Chg());
}

TEST_F(SadaTest, OpensTheFirstCaveWhateverTheFileSays) {
  Opened(CollectionFile({CaveText("A") + "---01", CaveText("B") + "---02", ""}, "B"));
  EXPECT_EQ(Rows(), (Names{"*A", "*B"}));
}

TEST_F(SadaTest, ForgetsTheMarksOfTheLastCollection) {
  OpenCaves({"*A", "*B", "*C"});
  OpenCaves({"*D", "E", "F"});
  EXPECT_EQ(Rows(), (Names{"*D", "E", "F"}));
}

TEST_F(SadaTest, TakesACaveAtTheEndForTheCongratulationToo) {
  Opened(CollectionFile({CaveText("A") + "---01", CaveText("B") + "---02"}));
  EXPECT_EQ(Rows(), (Names{"*A", "B"}));
  EXPECT_EQ(sada_.CongratulationText(), CaveText("B") + "---02");
}

TEST_F(SadaTest, CountsOnlyCavesWhoseMarkerHasDigits) {
  const auto report = Opened(CollectionFile({CaveText("A") + "---01", CaveText("B") + "---x2", "?", "Hura"}));
  EXPECT_EQ(Rows(), Names{"*A"});
  EXPECT_TRUE(report.Unreadable.empty());
}

TEST_F(SadaTest, LeavesOutCavesThatCannotBeReadAndSaysWhich) {
  const auto report = Opened(CollectionFile(
      {CaveText("A") + "---01", "E!---02", CaveText("C") + "---03", "---04", CaveText("E") + "---05", "Hura"},
      "ABE"));
  EXPECT_EQ(report.Unreadable, (std::vector<int>{2, 4}));
  EXPECT_EQ(Rows(), (Names{"*A", "C", "*E"}));
  EXPECT_FALSE(sada_.Chg());
}

TEST_F(SadaTest, OpensWithANewCaveWhenNoneCanBeRead) {
  EXPECT_EQ(Opened(CollectionFile({"E!---01", "Hura"})).Unreadable, std::vector<int>{1});
  EXPECT_EQ(Rows(), Names{"*Mala"});
  EXPECT_TRUE(Opened(CollectionFile({"Hura"})).Unreadable.empty());
  EXPECT_EQ(Rows(), Names{"*Mala"});
  EXPECT_EQ(sada_.Text(SadaText::Name), "Sada");
  EXPECT_EQ(sada_.CongratulationText(), "Hura");
}

TEST_F(SadaTest, KeepsLettersThatNoObjectHas) {
  const std::string odd = CaveText("A", "W?\xE1*z\x01");
  Opened(CollectionFile({odd + "---01", "Hura"}));
  EXPECT_EQ(Saved()[3], odd + "---01");
}

TEST_F(SadaTest, RefusesAClosedCollectionAndChangesNothing) {
  for (const char flag : {'Q', 'R', 'z', '\xFF'}) {
    OpenCaves({"*A"});
    sada_.SetText(SadaText::Author, "Eva");
    const std::string mail = std::string("a@b.cz") + flag;
    EXPECT_TRUE(Opened(Scrambled({Measured("Sada") + "A", "A", mail, CaveText("X") + "---01", ""})).Closed);
    EXPECT_EQ(Rows(), Names{"*A"});
    EXPECT_EQ(sada_.Text(SadaText::Author), "Eva");
    EXPECT_TRUE(sada_.Chg());
  }
}

TEST_F(SadaTest, OpensACollectionWithAnyFlagBelowQ) {
  for (const char flag : {'0', '1', 'A', 'P', ' '}) {
    const std::string mail = std::string("a@b.cz") + flag;
    EXPECT_FALSE(Opened(Scrambled({Measured("Sada") + "A", "A", mail, CaveText("X") + "---01", ""})).Closed);
    EXPECT_EQ(sada_.Text(SadaText::Mail), "a@b.cz");
    EXPECT_EQ(Saved()[2], "a@b.cz0");
  }
}

TEST_F(SadaTest, KeepsEverythingWhenAFileCannotBeOpened) {
  OpenCaves({"*A", "B"});
  const std::string file = sada_.FileName();
  for (const std::string& path : {Path("neni.zk"), folder_, Write("x.zk", ""), Write("y.zk", "ABC\r\n")}) {
    EXPECT_FALSE(sada_.Open(path));
    EXPECT_EQ(Rows(), (Names{"*A", "B"}));
    EXPECT_EQ(sada_.FileName(), file);
  }
}

}  // namespace
}  // namespace zorik
