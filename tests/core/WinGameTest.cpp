#include <gtest/gtest.h>

#include "data/Result.h"
#include "support/Scene.h"

namespace zorik::test {
namespace {

// One gem, then the finish, which opens in the tick after the gem.
const Picture kWayOut{"1DT", "WWW"};
constexpr int kNeeded = 1;

Hra AtTheFinish(const Numbers& numbers, Stage* stage = nullptr) {
  Hra hra = Play(kWayOut, numbers, stage);
  Pass(hra, 1, "R");
  return hra;
}

TEST(TheRun, IsWonByTheStepIntoTheOpenFinish) {
  Hra hra = AtTheFinish({.needed = kNeeded});
  EXPECT_FALSE(hra.Win);
  EXPECT_EQ(Pass(hra, 1, "R"), TickEnd::Won);
  ASSERT_TRUE(hra.Win);
  EXPECT_EQ(Drawn(hra), (Picture{"..1", "WWW"}));
}

TEST(AWonRun, DoesNotGoOn) {
  Hra hra = AtTheFinish({.needed = kNeeded});
  Pass(hra, 1, "R");
  const int ticks = hra.Ticks;
  EXPECT_EQ(Pass(hra, 3, "L"), TickEnd::Won);
  EXPECT_EQ(hra.Ticks, ticks);
  EXPECT_EQ(Drawn(hra)[0], "..1");
}

TEST(TheClosedFinish, IsAWall) {
  Hra hra = Play({"1T"}, {.needed = 1});
  Pass(hra, 5, "R");
  EXPECT_FALSE(hra.Win);
  EXPECT_EQ(Drawn(hra)[0], "1T");
}

TEST(TheScore, CountsNeededGemsThenFurtherGemsThenEachSecondForEachLiveDog) {
  Hra hra = Play({"12..T"}, {.time = 77, .needed = 3, .before = 5, .after = 11});
  hra.GemsCollected = 7;
  hra.ClockShown = 60;
  WinGame(hra);
  ASSERT_TRUE(hra.Win);
  EXPECT_EQ(hra.Win->LiveDogs, 2);
  EXPECT_EQ(hra.Win->TimeLeft, 60);
  EXPECT_EQ(hra.Win->BaseScore, 3 * 5 + 4 * 11 + 60 * 2);
  EXPECT_EQ(hra.Win->Score, 179);
  EXPECT_FALSE(hra.Win->BonusCave);
}

TEST(EachSecondLeft, CountsDoubleWithTwoDogsAliveThoughOneOnlyHasReachedTheFinish) {
  Hra one = Play({"1T", "WW"}, {.time = 50, .needed = 0});
  Pass(one);
  Pass(one, 1, "R");
  Hra two = Play({"1T", "W2"}, {.time = 50, .needed = 0});
  Pass(two);
  Pass(two, 1, "R");
  ASSERT_TRUE(one.Win && two.Win);
  EXPECT_EQ(one.Win->BaseScore, 49);
  EXPECT_EQ(two.Win->BaseScore, 98);
}

TEST(DeadDogsAndTheSwarm, CountForNothingInTheScore) {
  Hra hra = Play({"1234N"}, {.time = 10, .needed = 0});
  hra.Dog[2].Alive = hra.Dog[4].Alive = false;
  WinGame(hra);
  EXPECT_EQ(hra.Win->LiveDogs, 2);
  EXPECT_EQ(hra.Win->BaseScore, 20);
}

TEST(TheTimeLeft, IsTheNumberOnTheClock) {
  Hra hra = AtTheFinish({.time = 20, .needed = kNeeded});
  Pass(hra, 9);
  EXPECT_EQ(hra.Elapsed, 10);
  Pass(hra, 1, "R");
  EXPECT_EQ(hra.Win->TimeLeft, 19) << "the clock runs on at the end of the tick only";
}

TEST(TheTimeLeft, IsTheFullLimitWhileAClockOfFourDigitsStands) {
  Hra hra = AtTheFinish({.time = 1200, .needed = kNeeded});
  Pass(hra, 50);
  Pass(hra, 1, "R");
  EXPECT_EQ(hra.Win->TimeLeft, 1200);
}

TEST(ABonusCave, IsWorth500MoreThanTheBreakdownSays) {
  Hra hra = AtTheFinish({.time = 20, .needed = kNeeded, .before = 5, .name = "Velky BoNuS 3"});
  Pass(hra, 1, "R");
  ASSERT_TRUE(hra.Win);
  EXPECT_TRUE(hra.Win->BonusCave);
  EXPECT_EQ(hra.Win->BaseScore, 5 + 19);
  EXPECT_EQ(hra.Win->Score, 5 + 19 + 500);
  EXPECT_EQ(ScoreBreakdown(hra, *hra.Win), "001 \xB7 05 + 000 \xB7 20 + 019 \xB7 1 = 00024");
}

TEST(TheBreakdown, ShowsEachPartWithItsDigits) {
  Hra hra = Play({"123"}, {.needed = 12, .before = 7, .after = 105});
  hra.GemsCollected = 15;
  hra.ClockShown = 8;
  WinGame(hra);
  EXPECT_EQ(ScoreBreakdown(hra, *hra.Win), "012 \xB7 07 + 003 \xB7 105 + 008 \xB7 3 = 00423");
}

TEST(TheStoredScore, IsAtMost99999) {
  Hra hra = Play({"1"}, {.needed = 1000, .before = 190});
  hra.GemsCollected = 1000;
  WinGame(hra);
  EXPECT_EQ(hra.Win->BaseScore, 190100);
  EXPECT_EQ(hra.Win->Score, 99999);
}

TEST(TheRunningScore, PlaysNoPartInTheResult) {
  Hra hra = Play({"1"}, {.time = 3, .needed = 0});
  hra.Score = 5000;
  WinGame(hra);
  EXPECT_EQ(hra.Win->Score, 3);
}

TEST(TheRunningScore, StaysAtTheHighestNumberThatThereIs) {
  Hra hra = Play({"1D", "WW"}, {.before = 190});
  hra.Score = 2147483600;
  Pass(hra, 1, "R");
  EXPECT_EQ(hra.Score, 2147483647);
}

TEST(AWin, StopsTheSoundsSettlesTheViewAndThenReportsItself) {
  Diary diary;
  Hra hra = Play({"1"}, {.time = 3, .needed = 0}, &diary);
  diary.Clear();
  WinGame(hra);
  EXPECT_EQ(diary.entries, (std::vector<std::string>{"stopall", "view", "won 3"}));
}

TEST(TheRestOfTheWinningTick, StillRuns) {
  Diary diary;
  Hra hra = AtTheFinish({.time = 20, .needed = kNeeded}, &diary);
  diary.Clear();
  Pass(hra, 1, "R");
  EXPECT_EQ(hra.Elapsed, 2);
  EXPECT_EQ(diary.Count("view"), 2) << "one of the win, one of the tick";
  EXPECT_LT(diary.Place("won 29"), static_cast<int>(diary.entries.size()) - 1);
}

TEST(TheRestOfTheWinningTick, ReadsNoKeys) {
  Diary diary;
  Hra hra = AtTheFinish({.needed = kNeeded}, &diary);
  KeySnapshot keys = Keys("R");
  for (const int code : {kKeyR, kKeyCtrl, kKeyC, kKeyP, kKeyF12, kKeyPadPlus, kKeyPadMinus})
    keys.down.set(static_cast<std::size_t>(code));
  keys.down.reset(kKeyCtrl);
  diary.Clear();
  EXPECT_EQ(Tick(hra, keys), TickEnd::Won);
  for (const char* asked : {"pause", "hide", "faster", "slower", "toggle"})
    EXPECT_FALSE(diary.Has(asked)) << asked;
}

TEST(TheWinningTickOfAReplay, DoesNotRestartWithCtrlAndR) {
  Hra played = AtTheFinish({.needed = kNeeded});
  Pass(played, 1, "R");
  Hra hra(1);
  ASSERT_TRUE(Replay(hra, SaveRecord(played, 0)));
  Pass(hra);
  KeySnapshot keys;
  keys.down.set(kKeyR).set(kKeyCtrl).set(kKeyC);
  Diary diary;
  hra.SetStage(diary);
  EXPECT_EQ(Tick(hra, keys), TickEnd::Won);
  EXPECT_FALSE(diary.Has("toggle"));
  EXPECT_EQ(Drawn(hra)[0], "..1");
}

TEST(TheLastLineOfAWonRecord, HasNoEnd) {
  Hra hra = AtTheFinish({.needed = kNeeded});
  Pass(hra, 1, "R");
  const std::string bytes = SaveRecord(hra, hra.Win->Score);
  EXPECT_EQ(bytes.substr(bytes.size() - 4, 3), "hAB");
}

TEST(AWonRecord, ReplaysToTheSameScoreAndStoresNothing) {
  Hra played = AtTheFinish({.time = 20, .needed = kNeeded, .before = 5});
  Pass(played, 1, "R");
  Diary diary;
  Hra hra(5);
  hra.SetStage(diary);
  ASSERT_TRUE(Replay(hra, SaveRecord(played, played.Win->Score)));
  EXPECT_EQ(Pass(hra, 2), TickEnd::Won);
  EXPECT_EQ(hra.Win->Score, played.Win->Score);
  EXPECT_TRUE(diary.Has("won 24"));
  EXPECT_EQ(SaveRecord(hra, hra.Win->Score), "");
}

TEST(TheFinish, CannotBeReachedWhenTheTimeHasRunOut) {
  Hra hra = AtTheFinish({.time = 1, .needed = kNeeded});
  Pass(hra, 9);
  ASSERT_EQ(hra.Elapsed, 10);
  ASSERT_TRUE(hra.ExitOpen);
  Pass(hra, 5, "R");
  EXPECT_FALSE(hra.Win);
}

TEST(TheFinish, IsAWallAsLongAsOneGemIsMissing) {
  Hra hra = AtTheFinish({.needed = 2});
  Pass(hra, 5, "R");
  EXPECT_EQ(hra.GemsCollected, 1);
  EXPECT_FALSE(hra.Win);
}

TEST(ADeadRun, IsNotLostButGoesOnUntilThePlayerRestarts) {
  Hra hra = Live({".r.", ".1.", "WWW"});
  Pass(hra, 50, "R");
  EXPECT_FALSE(hra.Dog[1].Alive);
  EXPECT_FALSE(hra.Win);
  EXPECT_EQ(hra.Elapsed, 50);
}

}  // namespace
}  // namespace zorik::test
