// The caves of a collection: adding, moving, deleting, marks and the clipboard.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "data/Result.h"
#include "editors/SadaFolder.h"

namespace zorik {
namespace {

using samples::CaveText;
using samples::Measured;
using test::SadaTest;

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

}  // namespace
}  // namespace zorik
