#include <gtest/gtest.h>

#include "core/Machine.h"
#include "solve/Solver.h"
#include "support/Scene.h"

namespace zorik::test {
namespace {

const Picture kRoom{"WWWWWWWWW", "W1;D;D;;W", "W;;;;D;;W", "W;K;;;R;W", "WWWWWWWWW"};

TEST(Solver, IsTheSameForTheSameSeedAndAnotherOneForAnother) {
  Picture picture = kRoom;
  picture[1][8] = 'T';
  const Hra begin = Play(picture, {.needed = 3});
  const auto found = [&begin](std::uint64_t seed) {
    Solver solver(begin, seed);
    EXPECT_TRUE(solver.Go(1'000'000));
    return solver.Found().value_or(Plan());
  };
  const Plan first = found(1);
  EXPECT_EQ(found(1), first);
  int others = 0;
  for (std::uint64_t seed = 2; seed < 6; ++seed) others += found(seed) != first ? 1 : 0;
  EXPECT_GT(others, 0);
}

// It is asked in pieces between which nothing may be lost, neither ticks nor what was found.
TEST(Solver, SpendsAboutTheTicksThatItIsGiven) {
  Solver solver(Play(kRoom, {.needed = 9}), 1);
  for (std::uint64_t pieces = 1; pieces <= 20; ++pieces) {
    EXPECT_FALSE(solver.Go(500));
    EXPECT_GE(solver.Ticks(), 500 * pieces);
    EXPECT_LT(solver.Ticks(), 700 * pieces + 500);
    EXPECT_FALSE(solver.Found().has_value());
  }
}

TEST(Solver, ThatHasFoundAWayStaysWithIt) {
  const Hra begin = Play({"WWWWWW", "W1;D;T", "WWWWWW"}, {.needed = 1});
  Solver solver(begin, 1);
  ASSERT_TRUE(solver.Go(100'000));
  const Plan plan = *solver.Found();
  const std::uint64_t ticks = solver.Ticks();
  EXPECT_TRUE(solver.Go(100'000));
  EXPECT_EQ(solver.Ticks(), ticks);
  EXPECT_EQ(*solver.Found(), plan);
  EXPECT_EQ(solver.MostGems(), 1);
  solver.SetBound(static_cast<int>(plan.size()));
  EXPECT_FALSE(solver.Found().has_value()) << "forgotten";
}

// Six searches of their own, none of which enters the cell.
TEST(Solver, LeadsNoDogThroughCellsThatItShallAvoid) {
  const Hra begin = Play({"WWWWWWW", "W1;D;;T", "W;;;;;W", "WWWWWWW"}, {.needed = 1});
  auto cells = std::make_shared<CellSet>();
  cells->Add({2, 1});
  for (std::uint64_t seed = 1; seed < 5; ++seed) {
    Solver solver(begin, seed, std::size_t{64} << 20U, cells);
    solver.SetBound(100);
    ASSERT_TRUE(solver.Go(100'000));
    Hra run = begin;
    for (const Move move : *solver.Found()) {
      Tick(run, KeysOf(move));
      EXPECT_NE(UnitCell(run, 1), std::optional(Cell(2, 1)));
    }
    EXPECT_TRUE(run.Win);
  }
}

// The only way leads through it.
TEST(Solver, FindsNothingWhereTheOnlyWayIsToBeAvoided) {
  const Hra begin = Play({"WWWWWW", "W1;D;T", "WWWWWW"}, {.needed = 1});
  auto cells = std::make_shared<CellSet>();
  cells->Add({4, 1});
  Solver solver(begin, 1, std::size_t{64} << 20U, cells);
  EXPECT_FALSE(solver.Go(2000));
  EXPECT_EQ(solver.MostGems(), 1);
}

TEST(Solver, WithABoundFindsNoPlanAsLong) {
  const Hra begin = Play({"WWWWWW", "W1;D;T", "WWWWWW"}, {.needed = 1});
  Solver solver(begin, 1);
  solver.SetBound(4);
  EXPECT_FALSE(solver.Go(5000));
  solver.SetBound(5);
  ASSERT_TRUE(solver.Go(100'000));
  EXPECT_EQ(solver.Found()->size(), 4U);
}

// The most gems that so many turns of a tick each have had. There is one in each of nine nooks, and a turn
// goes for four things at the most.
int MostGemsOfTurns(std::size_t mostBytes) {
  const Picture picture{"WWWWWWWWWWWWWWWWWWWWW", "W;;W;;W;;W;;W;;W;;W;W", "WD;WD;WD;WD;WD;WD;WDW",
                        "WW;WW;WW;WW;WW;WW;W;W", "W1;;;;;;;;;;;;;;;;;;W", "WW;WWWWW;WWWWWWWWWWWW",
                        "WW;;DWWW;;DWWWWWWWWWW", "WWWWWWWWWWWWWWWWWWWWW"};
  Solver solver(Play(picture, {.needed = 99}), 1, mostBytes);
  for (int turn = 0; turn < 120; ++turn) solver.Go(1);
  return solver.MostGems();
}

TEST(Solver, BeginsASearchAnewThatNeedsMoreMemoryThanThereIs) {
  EXPECT_LE(MostGemsOfTurns(1), 4);
  EXPECT_GT(MostGemsOfTurns(1), 0);
  EXPECT_GT(MostGemsOfTurns(std::size_t{64} << 20U), 4);
}

}  // namespace
}  // namespace zorik::test
