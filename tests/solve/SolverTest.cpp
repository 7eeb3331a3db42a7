#include <gtest/gtest.h>

#include "core/Machine.h"
#include "solve/Shorten.h"
#include "solve/Solver.h"
#include "support/Scene.h"

namespace zorik::test {
namespace {

constexpr std::uint64_t kPatience = 2'000'000;  // ticks

// A cave, and the number of gems that it asks for.
struct Sample {
  const char* name;
  Picture picture;
  Numbers numbers;
};

const std::vector<Sample>& Samples() {
  static const std::vector<Sample> samples{
      {"dig and take", {"WWWWWWWW", "W1;D;D;W", "W;;;;;;T", "WWWWWWWW"}, {.needed = 2}},
      {"push a box away", {"WWWWWWWW", "W1K..D;T", "WWWWWWWW"}, {.needed = 1}},
      {"push a boulder away", {"WWWWWWWW", "W1R.;D;T", "WWW.WWWW", "WWWWWWWW"}, {.needed = 1}},
      {"open the lock", {"WWWWWWWW", "W1#D&;;T", "WWWWWWWW"}, {.needed = 1}},
      {"take the other dog", {"WWWWWWWW", "W1WWWWWW", "W2;D;D;T", "WWWWWWWW"}, {.needed = 2}},
      {"ride the teleport", {"WWWWWWWWW", "W1;;WWWWW", "WWS;WWS;T", "WWW;W;;DW", "WWWWWWWWW"}, {.needed = 1}},
      {"make gems of a butterfly",
       {"WWWWWWWWW", "W1;;R;;;W", "W;;;;;;;W", "W;;;;;;;W", "W;;XUX;;W", "W;;XXX;;T", "WWWWWWWWW"},
       {.needed = 5}},
  };
  return samples;
}

TEST(Solver, FindsPlansThatWin) {
  for (const Sample& sample : Samples()) {
    const Hra begin = Play(sample.picture, sample.numbers);
    Solver solver(begin, 1);
    ASSERT_TRUE(solver.Go(kPatience)) << sample.name;
    Hra run = begin;
    TickEnd end = TickEnd::Running;
    for (const Move move : *solver.Found()) {
      ASSERT_EQ(end, TickEnd::Running) << sample.name;
      end = Tick(run, KeysOf(move));
    }
    EXPECT_EQ(end, TickEnd::Won) << sample.name;
  }
}

TEST(Solver, ThatIsAskedTheSameFindsTheSame) {
  const Sample& sample = Samples().back();
  const Hra begin = Play(sample.picture, sample.numbers);
  Solver a(begin, 3), b(begin, 3);
  ASSERT_TRUE(a.Go(kPatience));
  // In other pieces, too.
  while (!b.Go(20'000)) continue;
  EXPECT_EQ(a.Found(), b.Found());
}

TEST(Solver, EndsWithItsTicksWhereThereIsNoWay) {
  const Hra begin = Play({"WWWWWW", "W1DWDT", "WWWWWW"}, {.needed = 2});
  Solver solver(begin, 1);
  EXPECT_FALSE(solver.Go(50'000));
  EXPECT_GE(solver.Ticks(), 50'000U);
  EXPECT_LT(solver.Ticks(), 60'000U);
  EXPECT_EQ(solver.MostGems(), 1);
}

TEST(Solver, WithABoundFindsShorterPlansOnly) {
  const Sample& sample = Samples().front();
  const Hra begin = Play(sample.picture, sample.numbers);
  // Six steps to the right and one down: no plan has fewer than seven ticks.
  Solver solver(begin, 1);
  solver.SetBound(8);
  ASSERT_TRUE(solver.Go(kPatience));
  EXPECT_LT(solver.Found()->size(), 8U);
  solver.SetBound(6);
  EXPECT_FALSE(solver.Go(100'000));
}

TEST(Shorten, LeavesAWinThatNeedsEveryMove) {
  const Hra begin = Play({"WWWWWW", "W1;D;T", "WWWWWW"}, {.needed = 1});
  Plan plan(4, kStepBase + 2);
  const Plan padded{kWait,         kStepBase + 2, kWait,         kWait, kStepBase + 0,
                    kStepBase + 2, kStepBase + 2, kStepBase + 2, kWait, kStepBase + 2};
  const Plan shortened = Shorten(begin, padded, [] { return false; });
  EXPECT_EQ(shortened, plan);
}

TEST(Shorten, StopsWhenTheCallerHasEnough) {
  const Hra begin = Play({"WWWWWW", "W1;D;T", "WWWWWW"}, {.needed = 1});
  const Plan padded{kWait, kStepBase + 2, kStepBase + 2, kStepBase + 2, kStepBase + 2};
  EXPECT_EQ(Shorten(begin, padded, [] { return true; }), padded);
}

TEST(Move, IsHeldAsTheKeysThatItsTextNames) {
  const Plan plan{kWait, kStepBase, kStepBase + 1, kActBase + 2, kActBase + 3, kChooseBase, kChooseBase + 9};
  EXPECT_EQ(KeyText(plan), ".\nL\nU\n!R\n!D\n0\n9\n");
  EXPECT_EQ(KeysOf(kStepBase).down, Keys("L").down);
  EXPECT_TRUE(KeysOf(kActBase + 3).Down(kKeyDown));
  EXPECT_TRUE(KeysOf(kActBase + 3).Down(kKeySpace));
  EXPECT_EQ(KeysOf(kChooseBase).down, Keys("0").down);
  EXPECT_EQ(KeysOf(kChooseBase + 9).down, Keys("9").down);
  EXPECT_TRUE(KeysOf(kWait).down.none());
}

TEST(Move, NamesTheArrowsThatAreHeldAndTheAction) {
  for (Move move = kStepBase; move < kChooseBase; ++move) {
    std::string line = KeyText({move});
    ASSERT_EQ(line.back(), '\n');
    line.pop_back();
    EXPECT_EQ(Keys(line).down, KeysOf(move).down) << line;
  }
}

}  // namespace
}  // namespace zorik::test
