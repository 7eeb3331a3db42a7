#include <gtest/gtest.h>

#include "core/Machine.h"
#include "solve/Shorten.h"
#include "solve/Walks.h"

namespace zorik::test {
namespace {

bool Never() {
  return false;
}

Plan Short(const Picture& picture, const std::string& plan, const Avoided& avoided = {}) {
  return Shorten(Play(picture, {.needed = 1}), PlanOf(plan), Never, avoided);
}

const Picture kLane{"WWWWWW", "W1;D;T", "WWWWWW"};
const Picture kHall{"WWWWWWW", "W;;;;;W", "W1;D;;T", "W;;;;;W", "WWWWWWW"};

TEST(Shorten, DropsWhatStandsBehindTheWin) {
  EXPECT_EQ(Short(kLane, "RRRR."), PlanOf("RRRR"));
  EXPECT_EQ(Short(kLane, "RRRR......................."), PlanOf("RRRR"));
}

TEST(Shorten, DropsWaysThereAndBackAroundAWait) {
  // The two steps go only once the wait between them has gone.
  EXPECT_EQ(Short(kHall, "D.URRRRR"), PlanOf("RRRRR"));
}

TEST(Shorten, DropsPiecesOfAnyLengthFromLongPlans) {
  EXPECT_EQ(Short(kLane, std::string(300, '.') + "RRRR"), PlanOf("RRRR"));
  std::string plan;
  for (const char letter : std::string("RRRR")) plan += std::string(37, '.') + letter + std::string(11, '.');
  EXPECT_EQ(Short(kLane, plan), PlanOf("RRRR"));
  std::string walk;
  for (int i = 0; i < 30; ++i) walk += "RL.U..D.";
  EXPECT_EQ(Short(kHall, walk + "RRRRR"), PlanOf("RRRRR"));
}

// Far from the start, and again behind what has been dropped.
TEST(Shorten, DropsWaitsBehindALongWay) {
  const Picture lane{"1" + std::string(60, ';') + "DT"};
  const auto steps = [](std::size_t count) { return std::string(count, 'R'); };
  EXPECT_EQ(Short(lane, steps(20) + "..." + steps(42)), PlanOf(steps(62)));
  EXPECT_EQ(Short(lane, steps(20) + "..." + steps(20) + "....." + steps(22)), PlanOf(steps(62)));
}

// Two finishes: straight on, or a row below.
const Picture kFork{"WWWWWWW", "W1;D;;T", "W;;;;;T", "WWWWWWW"};

TEST(Shorten, EntersNoCellThatIsAvoided) {
  auto cells = std::make_shared<CellSet>();
  cells->Add({4, 1});
  EXPECT_EQ(Short(kFork, "..RR.DRRR", cells), PlanOf("RRDRRR"));
  EXPECT_EQ(Short(kFork, "..RR.DRRR"), PlanOf("RRRRR"));
}

TEST(Shorten, StopsInTheMiddleOfATry) {
  const Plan plan = PlanOf(std::string(200, '.') + "RRRR");
  int asked = 0;
  const Plan left = Shorten(Play(kLane, {.needed = 1}), plan, [&asked] { return ++asked > 5; });
  EXPECT_EQ(left, plan);
}

const Picture kBlock{"WWWWWWWW", "W;;;;;;W", "W1WWWWDT", "W;WWWW;W", "W;;;;;;W", "WWWWWWWW"};

// Below the block the way is longer, and no piece of it can be spared.
TEST(MakeShort, FindsAnotherWayThatIsShorter) {
  const Hra begin = Play(kBlock, {.needed = 1});
  const Plan below = PlanOf("DDRRRRRUUR"), above = PlanOf("URRRRRDR");
  EXPECT_EQ(Shorten(begin, below, Never), below);
  int asked = 0;
  const Plan plan = MakeShort(begin, below, 1, std::size_t{64} << 20U, [&asked] { return ++asked > 2'000; });
  EXPECT_EQ(plan.size(), above.size());
}

TEST(MakeShort, MakesNoPlanLonger) {
  const Hra begin = Play(kBlock, {.needed = 1});
  const Plan above = PlanOf("URRRRRDR");
  for (std::uint64_t seed = 1; seed < 6; ++seed) {
    int asked = 0;
    EXPECT_EQ(MakeShort(begin, above, seed, std::size_t{64} << 20U, [&asked] { return ++asked > 500; }),
              above)
        << seed;
  }
}

TEST(MakeShort, EntersNoCellThatIsAvoided) {
  auto cells = std::make_shared<CellSet>();
  cells->Add({4, 1});
  const Hra begin = Play(kFork, {.needed = 1});
  int asked = 0;
  const Plan plan = MakeShort(
      begin, PlanOf("..RR.DRRR"), 1, std::size_t{64} << 20U, [&asked] { return ++asked > 500; }, cells);
  Hra run = begin;
  for (const Move move : plan) {
    Tick(run, KeysOf(move));
    EXPECT_NE(UnitCell(run, 1), std::optional(Cell(4, 1)));
  }
  EXPECT_TRUE(run.Win);
  EXPECT_EQ(plan.size(), 6U);
}

// There are many ways of the same length.
TEST(MakeShort, LeavesAShortestPlanAsItIs) {
  const Hra begin = Play({"1;;;;", ";;;;;", ";;;;;", ";;;;D", ";;;;T"}, {.needed = 1});
  const Plan plan = PlanOf("RDRDRDRD");
  int asked = 0;
  EXPECT_EQ(MakeShort(begin, plan, 1, std::size_t{64} << 20U, [&asked] { return ++asked > 500; }), plan);
}

}  // namespace
}  // namespace zorik::test
