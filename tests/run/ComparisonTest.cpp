#include <gtest/gtest.h>

#include <memory>

#include "data/Result.h"
#include "run/Comparison.h"
#include "run/Parting.h"
#include "support/Scene.h"

namespace zorik::test {
namespace {

const Picture kCave{"WWWWWWWW", "W1;D;;TW", "W;;;D;;W", "WWWWWWWW"};

// The record of a run with these keys, a letter a tick.
std::string RecordOfKeys(const std::string& keys, const Picture& picture = kCave, std::uint64_t seed = 1) {
  auto run = std::make_unique<Hra>(seed);
  run->CollectionName = "sada";
  run->PlayerName = "hrac";
  EXPECT_TRUE(PaintCave(*run, CaveTextOf(picture, {.needed = 1}), RunKind::Play));
  for (const char key : keys) Tick(*run, Keys(std::string(1, key)));
  return SaveRecord(*run, run->Win ? run->Win->Score : 0);
}

TEST(AComparison, OfARecordWithItselfFindsNoDifference) {
  const std::string record = RecordOfKeys("RRRRR");
  const auto found = Compare(record, record);
  ASSERT_TRUE(found);
  EXPECT_FALSE(found->firstDifference);
  EXPECT_FALSE(found->parting);
  EXPECT_EQ(found->Length(), 5);
}

TEST(AComparison, FindsTheFirstTickAndCounterThatDiffer) {
  const auto found = Compare(RecordOfKeys("RRRRR"), RecordOfKeys("RR.RRR"));
  ASSERT_TRUE(found);
  EXPECT_EQ(found->firstDifference, 3);
  ASSERT_TRUE(found->parting);
  EXPECT_EQ(found->parting->what, "dogs");
  EXPECT_EQ(found->parting->a, "1:4,1,1");
  EXPECT_EQ(found->parting->b, "1:3,1,1");
}

// At arm's length the dog digs and stays, as one that waits does.
TEST(AComparison, FindsTheCellWhereNoCounterDiffers) {
  const auto act = [](const char* held) {
    auto run = std::make_unique<Hra>(Play(kCave, {.needed = 1}));
    Tick(*run, Keys("R"));
    Tick(*run, Keys(held));
    return SaveRecord(*run, 0);
  };
  const auto found = Compare(act("D!"), act(""));
  ASSERT_TRUE(found);
  EXPECT_EQ(found->firstDifference, 2);
  ASSERT_TRUE(found->parting);
  EXPECT_EQ(found->parting->what, "2,2");
}

TEST(AComparison, OfARunWithItsBeginningFindsTheTickThatOnlyOneHas) {
  const auto found = Compare(RecordOfKeys("RRRRR"), RecordOfKeys("RRR"));
  ASSERT_TRUE(found);
  EXPECT_EQ(found->firstDifference, 4);
  EXPECT_FALSE(found->parting);
  EXPECT_EQ(found->Length(), 5);
  EXPECT_EQ(found->totalsOfB.ticks, 3);
  EXPECT_EQ(found->totalsOfB.gems, 1);
  EXPECT_FALSE(found->totalsOfB.won);
  EXPECT_EQ(found->totalsOfB.score, 0);
}

// A hundred seconds, 10 points for the gem that is needed and 20 for the one that is not, one dog: after five
// and seven ticks the clock still shows 99.
TEST(AComparison, TellsWhatEachRunHasComeTo) {
  const auto found = Compare(RecordOfKeys("RRRRR"), RecordOfKeys("RRRDRUR"));
  ASSERT_TRUE(found);
  const RunTotals& a = found->totalsOfA;
  EXPECT_EQ(a.ticks, 5);
  EXPECT_EQ(a.gems, 1);
  EXPECT_EQ(a.gemTicks, std::vector<int>{2});
  EXPECT_TRUE(a.won);
  EXPECT_EQ(a.score, 10 + 99);
  const RunTotals& b = found->totalsOfB;
  EXPECT_EQ(b.gems, 2);
  EXPECT_EQ(b.gemTicks, (std::vector<int>{2, 4}));
}

TEST(AComparison, NeedsTwoRecordsOfOneCave) {
  const auto other = Compare(RecordOfKeys("RRRRR"), RecordOfKeys("RRRRR", {"WWWWWW", "W1;D;T", "WWWWWW"}));
  ASSERT_FALSE(other);
  EXPECT_EQ(other.Message(), "the records are of different caves");
  EXPECT_FALSE(Compare(RecordOfKeys("RRRRR"), "no record"));
  EXPECT_FALSE(Compare("", RecordOfKeys("RRRRR")));
}

TEST(AComparison, TakesACaveOfACollectionAndTheSameInTheEditorForOne) {
  const auto of = [](const std::string& caveText) {
    auto run = std::make_unique<Hra>(1);
    EXPECT_TRUE(PaintCave(*run, caveText, RunKind::Play));
    Pass(*run, 2, "R");
    return SaveRecord(*run, 0);
  };
  const std::string text = CaveTextOf(kCave);
  EXPECT_TRUE(Compare(of(text), of(text + "---07")));
}

TEST(APartingOfGrids, IsInTheFirstCellThatBothHaveAndThatDiffers) {
  const auto cell = PartingOfGrids("row=0 a b\nrow=1 c d", "row=0 a b e\nrow=1 c f");
  ASSERT_TRUE(cell);
  EXPECT_EQ(cell->what, "1,1");
  EXPECT_EQ(cell->a, "d");
  EXPECT_EQ(cell->b, "f");
  const auto turned = PartingOfGrids("row=0 a b e\nrow=1 c f", "row=0 a b\nrow=1 c d");
  ASSERT_TRUE(turned);
  EXPECT_EQ(turned->what, "1,1");
  EXPECT_FALSE(PartingOfGrids("", "row=0 a"));
}

TEST(APartingOfLines, OfWhichOneEndsBeforeTheOtherIsTheWholeLine) {
  const auto parting = PartingOfLines("a=1 b=2", "a=1");
  ASSERT_TRUE(parting);
  EXPECT_EQ(parting->what, "line");
  EXPECT_EQ(parting->a, "a=1 b=2");
  EXPECT_EQ(parting->b, "a=1");
}

}  // namespace
}  // namespace zorik::test
