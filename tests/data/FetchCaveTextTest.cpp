#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "core/Hra.h"
#include "data/CaveO.h"
#include "data/Collection.h"
#include "data/Files.h"
#include "data/Result.h"
#include "data/Samples.h"
#include "support/TempFolder.h"

namespace zorik {
namespace {

using samples::CaveText;
using samples::CollectionFile;
using samples::Scrambled;
using test::TempFolder;
using Lines = std::vector<std::string>;

TEST(FindCaveText, SearchesForTheMarkersValue) {
  const std::string bytes = CollectionFile({CaveText("a") + "---02", CaveText("b") + "---10", "Konec"});
  EXPECT_EQ(FindCaveText(bytes, 2), CaveText("a") + "---02");
  EXPECT_EQ(FindCaveText(bytes, 10), CaveText("b") + "---10");
}

TEST(FindCaveText, TakesTheFirstOfTwoEqualMarkers) {
  const std::string bytes = CollectionFile({CaveText("a") + "---02", CaveText("b") + "---02"});
  EXPECT_EQ(FindCaveText(bytes, 2), CaveText("a") + "---02");
}

TEST(FindCaveText, GivesAnEmptyTextForANumberInNoLine) {
  const std::string bytes = CollectionFile({CaveText("a") + "---02", "---100", "-----1"});
  for (const int number : {1, 3, 100, -1, -99}) EXPECT_EQ(FindCaveText(bytes, number), "") << number;
  EXPECT_EQ(FindCaveText("", 1), "");
}

TEST(FindCaveText, TakesNoCharactersBesideTheDigitsForANumber) {
  const std::string bytes = CollectionFile({CaveText("a") + "---:0", CaveText("a") + "---0/"});
  EXPECT_EQ(FindCaveText(bytes, 100), "");
  EXPECT_EQ(FindCaveText(bytes, -1), "");
}

TEST(FindCaveText, TakesNoLineWithoutTheDashes) {
  EXPECT_EQ(FindCaveText(CollectionFile({"Rok 2001", "--x01"}), 1), "");
}

TEST(FindCaveText, TakesALineThatIsNothingButTheMarker) {
  const std::string bytes = CollectionFile({"---00", "---07"});
  EXPECT_EQ(FindCaveText(bytes, 0), "---00");
  EXPECT_EQ(FindCaveText(bytes, 7), "---07");
}

// A description, too, can end like a cave.
TEST(FindCaveText, LooksAtEachLineOfTheFile) {
  const std::string bytes = Scrambled({"ESadaA---01", "APopis---02", "a@b.cz---03", CaveText("a") + "---01",
                                       CaveText("b") + "---02", "Konec---04"});
  EXPECT_EQ(FindCaveText(bytes, 1), "ESadaA---01");
  EXPECT_EQ(FindCaveText(bytes, 2), "APopis---02");
  EXPECT_EQ(FindCaveText(bytes, 3), "a@b.cz---03");
  EXPECT_EQ(FindCaveText(bytes, 4), "Konec---04");
}

TEST(NewCaveText, OfTheSmallCaveParsesTo19ColumnsAnd11Rows) {
  const auto cave = ParseCaveText(*NewCaveText(NewCaveSize::Small));
  ASSERT_TRUE(cave) << cave.Message();
  EXPECT_EQ(cave->Width, 19);
  EXPECT_EQ(cave->Height, 11);
  EXPECT_EQ(cave->Name, "Nov\xE1 mal\xE1 komnata");
}

TEST(NewCaveText, OfTheLargeCaveParsesTo30ColumnsAnd20Rows) {
  const auto cave = ParseCaveText(*NewCaveText(NewCaveSize::Large));
  ASSERT_TRUE(cave) << cave.Message();
  EXPECT_EQ(cave->Width, 30);
  EXPECT_EQ(cave->Height, 20);
  EXPECT_EQ(cave->Name, "Nov\xE1 velk\xE1 komnata");
}

std::vector<std::string> RowsOf(const std::string& text, std::size_t width, std::size_t height) {
  std::vector<std::string> rows;
  const std::string cells = text.substr(text.size() - width * height);
  for (std::size_t y = 0; y < height; ++y) rows.push_back(cells.substr(y * width, width));
  return rows;
}

TEST(NewCaveText, OfTheLargeCaveHasSteelAroundDirtADogAndAFinish) {
  const Lines rows = RowsOf(*NewCaveText(NewCaveSize::Large), 30, 20);
  EXPECT_EQ(rows[0], "WWWWWWWWWWWWWWWWWWWWWWWWWWWWWW");
  EXPECT_EQ(rows[1], "W;;;;;;;;;;;;;;;;;;;;;;;;;;;;W");
  EXPECT_EQ(rows[2], "W;1;;;;;;;;;;;;;;;;;;;;;;;;;;W");
  for (std::size_t y = 3; y < 18; ++y) EXPECT_EQ(rows[y], rows[1]) << y;
  EXPECT_EQ(rows[18], "W;;;;;;;;;;;;;;;;;;;;;;;;;;;;T");
  EXPECT_EQ(rows[19], rows[0]);
}

TEST(NewCaveText, OfTheSmallCaveHasSteelAroundDirtADogAndAFinish) {
  const Lines rows = RowsOf(*NewCaveText(NewCaveSize::Small), 19, 11);
  EXPECT_EQ(rows[0], "WWWWWWWWWWWWWWWWWWW");
  EXPECT_EQ(rows[1], "W;;;;;;;;;;;;;;;;;W");
  EXPECT_EQ(rows[2], "W;1;;;;;;;;;;;;;;;W");
  for (std::size_t y = 3; y < 9; ++y) EXPECT_EQ(rows[y], rows[1]) << y;
  EXPECT_EQ(rows[9], "W;;;;;;;;;;;;;;;;;T");
  EXPECT_EQ(rows[10], rows[0]);
}

TEST(NewCaveText, TakesItsTextsFromTheLanguage) {
  const NewCaveTexts english{"New small cave", "New large cave", "No description"};
  const auto small = ParseCaveText(*NewCaveText(NewCaveSize::Small, english));
  EXPECT_EQ(small->Name, "New small cave");
  EXPECT_EQ(small->Description, "No description");
  EXPECT_EQ(ParseCaveText(*NewCaveText(NewCaveSize::Large, english))->Name, "New large cave");
}

TEST(NewCaveText, HasPermeabilityFourNoProgramAndNoMarker) {
  const auto text = NewCaveText(NewCaveSize::Small);
  EXPECT_EQ(text->front(), 'E');
  EXPECT_TRUE(ParseCaveText(*text)->Script.empty());
  EXPECT_TRUE(text->ends_with("W"));
}

// Those that the editor lets pass without a correction.
TEST(NewCaveText, HasNumbersWithinTheLimitsOfTheEditor) {
  for (const NewCaveSize size : {NewCaveSize::Small, NewCaveSize::Large}) {
    const auto cave = ParseCaveText(*NewCaveText(size));
    ASSERT_TRUE(cave) << cave.Message();
    EXPECT_GE(cave->Time, 5);
    EXPECT_LE(cave->Time, 999);
    for (const int points : {cave->PointsBefore, cave->PointsAfter}) {
      EXPECT_GE(points, 1);
      EXPECT_LE(points, 99);
    }
    for (const int seconds : {cave->MagicWallTime, cave->AmoebaTime}) {
      EXPECT_GE(seconds, 1);
      EXPECT_LE(seconds, 150);
    }
    EXPECT_EQ(cave->Colouring, 4);  // as the editor writes the classic colours
  }
}

TEST(NewCaveText, CanBeWonInTime) {
  for (const NewCaveSize size : {NewCaveSize::Small, NewCaveSize::Large}) {
    const auto cave = ParseCaveText(*NewCaveText(size));
    EXPECT_EQ(cave->GemsNeeded, 0);
    EXPECT_GE(cave->Time, cave->Width + cave->Height);
  }
}

TEST(NewCaveText, FailsAtATextTheLanguageMadeTooLong) {
  EXPECT_FALSE(NewCaveText(NewCaveSize::Small, {std::string(191, 'x'), "", ""}));
  EXPECT_TRUE(NewCaveText(NewCaveSize::Large, {std::string(191, 'x'), "", ""}));
}

TEST(FetchCaveText, GivesNewCavesForTheTwoLiteralsWhateverTheNumber) {
  EXPECT_EQ(*FetchCaveText("*1", 5), *NewCaveText(NewCaveSize::Small));
  EXPECT_EQ(*FetchCaveText("*2", 0), *NewCaveText(NewCaveSize::Large));
}

TEST(FetchCaveText, GivesNewCavesTheTextsOfTheLanguage) {
  const NewCaveTexts english{"New small cave", "New large cave", "No description"};
  EXPECT_EQ(*FetchCaveText("*1", 0, english), *NewCaveText(NewCaveSize::Small, english));
  EXPECT_EQ(*FetchCaveText("*2", 0, english), *NewCaveText(NewCaveSize::Large, english));
}

TEST(FetchCaveText, ReadsACollectionFile) {
  const TempFolder folder("fetch");
  const std::string path = folder.Path() + "/a.zk";
  ASSERT_TRUE(WriteWhole(path, CollectionFile({CaveText("a") + "---01", "Konec"})));
  EXPECT_EQ(*FetchCaveText(path, 1), CaveText("a") + "---01");
  EXPECT_EQ(*FetchCaveText(path, 2), "");
}

TEST(FetchCaveText, FailsAtAFileThatCannotBeRead) {
  const TempFolder folder("fetch");
  const std::string path = folder.Path() + "/neni.zk";
  const auto text = FetchCaveText(path, 1);
  ASSERT_FALSE(text);
  EXPECT_NE(text.Message().find(path), std::string::npos);
}

// The only cave of a collection, as the selection has read it.
PlayedCave OnlyCave() {
  return ReadForPlay(CollectionFile({CaveText("a") + "---07", "Konec"}))->Caves[0];
}

TEST(OpenCave, StartsTheCaveWithItsMarkerInPlay) {
  Hra hra;
  hra.Kind = RunKind::Replay;
  ASSERT_TRUE(OpenCave(hra, OnlyCave()));
  EXPECT_EQ(hra.CaveText, CaveText("a") + "---07");
  EXPECT_EQ(hra.CaveName, "a");
  EXPECT_EQ(hra.CaveWidth, 3);
  EXPECT_EQ(hra.Kind, RunKind::Play);
  EXPECT_TRUE(hra.Recording);
}

TEST(OpenCave, OfALostCaveStartsNothing) {
  Hra hra;
  ASSERT_TRUE(OpenCave(hra, OnlyCave()));
  const auto lost = OpenCave(hra, {});
  ASSERT_FALSE(lost);
  EXPECT_FALSE(lost.Message().empty());
  EXPECT_EQ(hra.CaveName, "a");
}

TEST(OpenCave, OfACaveThatIsTooLargeStartsNothingAndTellsItsSize) {
  Hra hra;
  ASSERT_TRUE(OpenCave(hra, OnlyCave()));
  PlayedCave large = OnlyCave();
  large.Record.Width = 101;
  const auto opened = OpenCave(hra, large);
  ASSERT_FALSE(opened);
  EXPECT_NE(opened.Message().find("101 x 2"), std::string::npos) << opened.Message();
  EXPECT_EQ(hra.CaveWidth, 3);
}

}  // namespace
}  // namespace zorik
