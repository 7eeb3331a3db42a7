#include <gtest/gtest.h>

#include "core/Machine.h"
#include "data/Lines.h"
#include "data/RecordFile.h"
#include "data/Result.h"
#include "solve/Walks.h"
#include "solve/Win.h"

namespace zorik::test {
namespace {

const Picture kLane{"WWWWWW", "W1;D;T", "WWWWWW"};

TEST(Win, LeavesARecordOfThePlayerTheCollectionAndTheScore) {
  const RunTerms terms{CaveTextOf(kLane, {.needed = 1}), "Sada", 3, "Eva"};
  const std::string record = RecordOfPlan(terms, PlanOf("RRRR"));
  RecordLines lines(record);
  const RecordHead head = ReadRecordHead(lines);
  EXPECT_EQ(head.CollectionName, "Sada");
  EXPECT_EQ(head.Player, "Eva");
  EXPECT_EQ(head.CaveText, terms.caveText);
  const auto run = BeginRun(terms);
  ASSERT_TRUE(run);
  Hra played = **run;
  for (const Move move : PlanOf("RRRR")) Tick(played, KeysOf(move));
  ASSERT_TRUE(played.Win);
  EXPECT_EQ(head.Score, played.Win->Score);
  EXPECT_GT(head.Score, 0);
}

TEST(Win, LeavesNoRecordOfAPlanThatDoesNotWin) {
  EXPECT_EQ(RecordOfPlan({CaveTextOf(kLane, {.needed = 1}), "Sada"}, PlanOf("RRR")), "");
  EXPECT_EQ(RecordOfPlan({"rubbish", "Sada"}, PlanOf("RRRR")), "");
}

TEST(Win, BeginsARunWithItsSeed) {
  const std::string cave = CaveTextOf({"WWWWWWW", "W1....W", "W..L..W", "W.....W", "WWWWWWW"});
  const auto cells = [&cave](std::uint64_t seed) {
    const auto run = BeginRun({cave, "Sada", seed});
    std::string all;
    for (int i = 0; run && i < 20; ++i) {
      Tick(**run, {});
      for (const std::string& row : Drawn(**run)) all += row;
    }
    return all;
  };
  EXPECT_EQ(cells(5), cells(5));
  int others = 0;
  for (std::uint64_t seed = 6; seed < 16; ++seed) others += cells(seed) != cells(5) ? 1 : 0;
  EXPECT_GT(others, 0);
}

}  // namespace
}  // namespace zorik::test
