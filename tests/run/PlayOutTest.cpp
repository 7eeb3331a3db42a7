#include <gtest/gtest.h>

#include "data/Result.h"
#include "run/PlayOut.h"
#include "support/Scene.h"

namespace zorik::test {
namespace {

const Picture kWithGem{"WWWWW", "W1DTW", "WWWWW"};
constexpr int kRight = 39;

// The dog takes the gem and goes into the finish; each step asks for chance.
Hra TakesTheGem(const std::vector<int>& first, const std::vector<int>& last = {1}) {
  return PlayBack(kWithGem,
                  {{.before = {1}, .direction = kRight, .after = first},
                   {.before = {1}, .direction = kRight, .after = last}},
                  {.needed = 0});
}

TEST(PlayOut, GoesOnToTheWin) {
  Hra run = TakesTheGem({1});
  const PlayedOut played = PlayOut(run);
  EXPECT_EQ(played.end, TickEnd::Won);
  EXPECT_EQ(played.ticks, 2);
  EXPECT_TRUE(played.Wins());
  EXPECT_TRUE(run.Win);
}

TEST(PlayOut, CountsNoWinOfARecordThatRanDryOnTheWay) {
  Hra run = TakesTheGem({});
  const PlayedOut played = PlayOut(run);
  EXPECT_EQ(played.end, TickEnd::Won);
  EXPECT_FALSE(run.RanDry) << "the last tick holds all that it asks for";
  EXPECT_TRUE(played.ranDry);
  EXPECT_FALSE(played.Wins());
}

TEST(PlayOut, CountsNoWinOfARecordThatRanDryInItsLastTick) {
  Hra run = TakesTheGem({1}, {});
  const PlayedOut played = PlayOut(run);
  EXPECT_EQ(played.end, TickEnd::Won);
  EXPECT_FALSE(played.Wins());
}

TEST(PlayOut, EndsWithTheRecord) {
  Hra run = PlayBack(kWithGem, {{.before = {1}}, {.before = {1}}, {.before = {1}}}, {.needed = 0});
  const PlayedOut played = PlayOut(run);
  EXPECT_EQ(played.end, TickEnd::RecordOver);
  EXPECT_EQ(played.ticks, 3);
  EXPECT_FALSE(played.Wins());
}

TEST(PlayOut, EndsWhereTheRecordBeginsAgainForEver) {
  Hra run(1);
  ASSERT_TRUE(Replay(run, RecordOfLines(kWithGem, {LineOf({.before = {1}}), ""}, {.needed = 0})));
  EXPECT_EQ(PlayOut(run).end, TickEnd::Restarted);
}

TEST(PlayOut, GivesUpARunThatIsTooLong) {
  Hra run = Play(kWithGem, {.needed = 0});
  const PlayedOut played = PlayOut(run, 10);
  EXPECT_EQ(played.end, TickEnd::Running);
  EXPECT_EQ(played.ticks, 10);
  EXPECT_EQ(run.Ticks, 10);
}

TEST(ACopyThatNobodyWatches, GoesOnAsTheRunDoes) {
  Diary diary;
  Hra run = Play(kWithGem, {.needed = 0}, &diary);
  const auto copy = Unwatched(run);
  diary.Clear();
  EXPECT_EQ(Pass(*copy, 2, "R"), TickEnd::Won);
  EXPECT_TRUE(diary.entries.empty());
  EXPECT_EQ(run.Ticks, 0);
}

}  // namespace
}  // namespace zorik::test
