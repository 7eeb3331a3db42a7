#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "solve/Move.h"
#include "solve/Ways.h"
#include "support/Scene.h"

namespace zorik::test {
namespace {

// The ways of a dog from a cell, the shortest ones.
Ways WaysOf(const Hra& run, Cell from) {
  Ways ways;
  Chance chance(1);
  ways.Find(run, from, 0, chance);
  return ways;
}

TEST(Ways, CostAStepForEachCellDugOrWalked) {
  const Ways ways = WaysOf(Play({"WWWWWW", "W1;D.W", "WWWW;W", "WWWWWW"}), {1, 1});
  EXPECT_EQ(ways.Cost({1, 1}), 0);
  EXPECT_EQ(ways.Cost({4, 1}), 3);
  EXPECT_EQ(ways.Cost({4, 2}), 4);
  EXPECT_FALSE(ways.Reaches({1, 2}));
  EXPECT_EQ(ways.To({4, 2}), (std::vector<std::uint8_t>{2, 2, 2, 3}));
  EXPECT_TRUE(ways.To({1, 1}).empty());
}

// A push of a box costs three steps, of a boulder, which moves at one try of four, six.
TEST(Ways, CostMoreWhereSomethingHasToBePushed) {
  const Ways box = WaysOf(Play({"WWWWWW", "W1K..W", "WWWWWW"}), {1, 1});
  EXPECT_EQ(box.Cost({2, 1}), 3);
  EXPECT_EQ(box.Cost({3, 1}), 4);
  const Ways boulder = WaysOf(Play({"WWWWWW", "W1R..W", "WWWWWW"}), {1, 1});
  EXPECT_EQ(boulder.Cost({2, 1}), 6);
  EXPECT_EQ(boulder.Cost({3, 1}), 7);
}

TEST(Ways, NeedSpaceBehindABoulderThatIsPushed) {
  for (const char* const row : {"W1R;.W", "W1RK.W", "W1RW.W", "W1RD.W"})
    EXPECT_FALSE(WaysOf(Play({"WWWWWW", row, "WWWWWW"}), {1, 1}).Reaches({2, 1})) << row;
}

// At one try of four he changes places with it.
TEST(Ways, LeadThroughABoxThatCannotMove) {
  for (const char* const row : {"W1K;.W", "W1KK.W", "W1KW.W", "W1IW.W"})
    EXPECT_EQ(WaysOf(Play({"WWWWWW", row, "WWWWWW"}), {1, 1}).Cost({2, 1}), 7) << row;
}

TEST(Ways, PushABoxUpButNoBoulder) {
  EXPECT_EQ(WaysOf(Play({"WWW", "W.W", "WKW", "W1W", "WWW"}), {1, 3}).Cost({1, 2}), 3);
  EXPECT_FALSE(WaysOf(Play({"WWW", "W.W", "WRW", "W1W", "WWW"}), {1, 3}).Reaches({1, 2}));
}

TEST(Ways, PushNoBoulderThatFalls) {
  EXPECT_FALSE(WaysOf(Live({"WWWWW", "W1r.W", "WWWWW"}), {1, 1}).Reaches({2, 1}));
}

TEST(Ways, LeadThroughTheFinishWhenItIsOpen) {
  Hra run = Play({"WWWWWW", "W1T;;W", "WWWWWW"}, {.needed = 1});
  EXPECT_FALSE(WaysOf(run, {1, 1}).Reaches({2, 1}));
  run.ExitOpen = true;
  EXPECT_EQ(WaysOf(run, {1, 1}).Cost({2, 1}), 1);
}

TEST(Ways, ReachEachCellOnceTheNearestFirst) {
  const Hra run = Play({"WWWWWW", "W1;;;W", "W;;;;W", "W;;;;W", "WWWWWW"});
  const Ways ways = WaysOf(run, {1, 1});
  EXPECT_EQ(ways.Reached().size(), 12U);
  std::set<std::size_t> places;
  for (const Cell c : ways.Reached()) EXPECT_TRUE(places.insert(c.place()).second);
  EXPECT_TRUE(std::is_sorted(ways.Reached().begin(), ways.Reached().end(),
                             [&](Cell a, Cell b) { return ways.Cost(a) < ways.Cost(b); }));
}

// The box can be changed places with from where the dog stands, and be pushed from above or below.
TEST(Ways, ReachACellOnceToWhichACheaperWayIsFoundLater) {
  const Ways ways = WaysOf(Play({"WWWW", "W..W", "W1KW", "W..W", "WWWW"}), {1, 2});
  EXPECT_EQ(ways.Cost({2, 2}), 5);
  EXPECT_EQ(ways.Reached().size(), 6U);
}

TEST(Ways, ThatAreAskedForAnewForgetTheOldOnes) {
  const Hra run = Play({"WWWWWWW", "W1;W;;W", "WWWWWWW"});
  Ways ways;
  Chance chance(1);
  ways.Find(run, {1, 1}, 0, chance);
  ways.Find(run, {4, 1}, 0, chance);
  EXPECT_FALSE(ways.Reaches({1, 1}));
  ASSERT_EQ(ways.Reached().size(), 2U);
  EXPECT_EQ(ways.Reached().front(), Cell(4, 1));
}

TEST(Ways, ThatAreRoughAreDearerByUpToSoMuchACell) {
  const Hra run = Play({"WWWWWW", "W1;;;W", "W;;;;W", "W;;;;W", "WWWWWW"});
  Ways ways;
  Chance chance(1);
  std::set<int> costs;
  for (int i = 0; i < 50; ++i) {
    ways.Find(run, {1, 1}, 5, chance);
    const int steps = static_cast<int>(ways.To({4, 3}).size());
    EXPECT_GE(ways.Cost({4, 3}), steps);
    EXPECT_LE(ways.Cost({4, 3}), 6 * steps);
    costs.insert(ways.Cost({4, 3}));
  }
  EXPECT_GT(costs.size(), 1U);
}

// Whether a move leads dog 1 at 2,1 into a cell that it shall not enter.
TEST(Move, TrespassesWhereItLeadsIntoACellThatIsAvoided) {
  const Hra run = Play({"WWWWW", "W;1;W", "W;2;W", "WWWWW"});
  const auto enters = [&run](Cell cell, Move move) {
    auto cells = std::make_shared<CellSet>();
    cells->Add(cell);
    return Trespasses(run, move, cells);
  };
  const std::vector<Cell> beside{{1, 1}, {2, 0}, {3, 1}, {2, 2}};
  for (Move direction = 0; direction < 4; ++direction) {
    for (std::size_t place = 0; place < 4; ++place) {
      const bool there = place == direction;
      EXPECT_EQ(enters(beside[place], static_cast<Move>(kStepBase + direction)), there);
      EXPECT_EQ(enters(beside[place], static_cast<Move>(kActBase + direction)), there);
    }
  }
  EXPECT_FALSE(enters({2, 1}, kWait));
  EXPECT_FALSE(enters({1, 1}, kChooseBase));
  EXPECT_FALSE(enters({3, 1}, kChooseBase + 2));
  EXPECT_FALSE(Trespasses(run, kStepBase, nullptr));
}

}  // namespace
}  // namespace zorik::test
