#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>

#include "data/Files.h"
#include "data/RecordFile.h"
#include "data/RecordSlot.h"
#include "data/Result.h"
#include "data/Samples.h"
#include "data/Scramble.h"
#include "support/TempFolder.h"

namespace zorik {
namespace {

namespace fs = std::filesystem;

using Kind = StandingRecord::Kind;

// A folder with the place for the record of the cave "a" of the collection "Sada".
class RecordSlotTest : public testing::Test {
 protected:
  RecordSlotTest() { slot_ = Slot("a"); }

  RecordSlot Slot(const std::string& name, const std::string& file = "Sada - a.zkr") const {
    return {root_ + "/Ada/" + file, "Sada", name, samples::CaveText(name), {}};
  }

  static std::string Record(const std::string& collection, const std::string& cave, int score) {
    Chance chance(3);
    return BuildRecordHead(collection, score, "Ada", chance) + ScrambleText(cave + "---01", chance) +
           "\r\nAAA\r\n";
  }

  // What stands there once these bytes do.
  StandingRecord With(const std::string& bytes) const {
    EXPECT_TRUE(StoreRun({slot_, 0, bytes}));
    return ReadStanding(slot_);
  }

  test::TempFolder temp_{"slot"};
  const std::string root_ = temp_.Path();
  RecordSlot slot_;
};

TEST_F(RecordSlotTest, HoldsNothingAsLongAsThereIsNoRecord) {
  EXPECT_EQ(ReadStanding(slot_).Of, Kind::Nothing);
  EXPECT_EQ(With("garbage").Of, Kind::Nothing);
  EXPECT_EQ(With("").Of, Kind::Nothing);
  EXPECT_EQ(With(Record("Sada", "no cave", 5)).Of, Kind::Nothing);
}

TEST_F(RecordSlotTest, HoldsTheScoreOfItsOwnCave) {
  const StandingRecord standing = With(Record("Sada", slot_.CaveText, 123));
  EXPECT_EQ(standing.Of, Kind::ThisCave);
  EXPECT_EQ(standing.Score, 123);
}

TEST_F(RecordSlotTest, HoldsNothingOfWhatItsCaveWasBeforeItWasChanged) {
  EXPECT_EQ(With(Record("Sada", samples::CaveText("a", "W1;TDW"), 123)).Of, Kind::Nothing);
}

TEST_F(RecordSlotTest, TellsTheNamesOfAnotherCaveWhoseRecordIsThere) {
  const StandingRecord standing = With(Record("Sada", samples::CaveText("a?"), 123));
  EXPECT_EQ(standing.Of, Kind::AnotherCave);
  EXPECT_EQ(standing.CaveName, "a?");
  EXPECT_EQ(standing.CollectionName, "Sada");
  EXPECT_EQ(With(Record("Sada?", samples::CaveText("a", "W1;TDW"), 123)).Of, Kind::AnotherCave);
}

TEST_F(RecordSlotTest, KnowsACaveOfTheSameNamesByItsText) {
  slot_.OtherCaves = {samples::CaveText("a", "W1;TDW")};
  EXPECT_EQ(With(Record("Sada", slot_.OtherCaves[0], 123)).Of, Kind::AnotherCave);
}

TEST_F(RecordSlotTest, IsNotStoredWhereItsFolderCannotBeMade) {
  ASSERT_TRUE(WriteWhole(root_ + "/Ada", "no folder"));
  EXPECT_FALSE(StoreRun({slot_, 5, "bytes"}));
  EXPECT_EQ(*ReadWhole(root_ + "/Ada"), "no folder");
}

TEST_F(RecordSlotTest, IsTheSameWhateverTheLetterCaseOfItsFile) {
  EXPECT_TRUE(SameSlot(slot_, Slot("a", "SADA - A.zkr")));
  EXPECT_FALSE(SameSlot(slot_, Slot("a", "Sada - b.zkr")));
  EXPECT_FALSE(SameSlot(slot_, Slot("b")));
}

TEST_F(RecordSlotTest, KeepsAWinUntilItIsStored) {
  ASSERT_TRUE(WriteWhole(root_ + "/Ada", "no folder"));
  UnstoredWins wins;
  wins.Keep({slot_, 5, "one"});
  wins.Keep({Slot("b", "Sada - b.zkr"), 6, "other"});
  wins.StoreAll();
  ASSERT_EQ(wins.All().size(), 2U);
  EXPECT_EQ(wins.Find(slot_)->Score, 5);
  fs::remove(root_ + "/Ada");
  wins.StoreAll();
  EXPECT_TRUE(wins.All().empty());
  EXPECT_EQ(*ReadWhole(slot_.Path), "one");
  EXPECT_EQ(*ReadWhole(root_ + "/Ada/Sada - b.zkr"), "other");
}

TEST_F(RecordSlotTest, KeepsOneWinOfACave) {
  UnstoredWins wins;
  wins.Keep({slot_, 5, "one"});
  wins.SavedElsewhere(slot_);
  EXPECT_TRUE(wins.AtRisk().empty());
  wins.Keep({slot_, 7, "better"});
  ASSERT_EQ(wins.All().size(), 1U);
  ASSERT_EQ(wins.AtRisk().size(), 1U) << "the new one is nowhere else";
  EXPECT_EQ(wins.AtRisk()[0].Bytes, "better");
  wins.Drop(slot_);
  EXPECT_EQ(wins.Find(slot_), nullptr);
}

TEST_F(RecordSlotTest, ComparesAScoreWithTheOneThatIsKept) {
  UnstoredWins wins;
  EXPECT_TRUE(JeLepsi({slot_, 0, {}}, wins)) << "than none";
  With(Record("Sada", slot_.CaveText, 123));
  EXPECT_FALSE(JeLepsi({slot_, 122, {}}, wins));
  EXPECT_TRUE(JeLepsi({slot_, 123, {}}, wins));
  wins.Keep({slot_, 60, "one"});
  EXPECT_TRUE(JeLepsi({slot_, 60, {}}, wins)) << "the player has let it take the other's place";
  EXPECT_FALSE(JeLepsi({slot_, 59, {}}, wins));
}

}  // namespace
}  // namespace zorik
