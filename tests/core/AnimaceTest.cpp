#include <gtest/gtest.h>

#include "support/Scene.h"

namespace zorik::test {
namespace {

using Entries = std::vector<std::string>;

// A cave whose magic wall runs since tick 0 and is due to end after two seconds.
Hra WithRunningWall(Diary* diary, const std::string& script = "") {
  Hra hra = Play({"1M.", "JRD"}, {.magicTime = 2, .script = script}, diary);
  hra.MagicState = kMagicRunning;
  hra.MagicStart = 0;
  return hra;
}

TEST(TheMagicWall, RunsUntilMoreThanItsTimeHasPassed) {
  Diary diary;
  Hra hra = WithRunningWall(&diary);
  hra.Elapsed = 20;
  Animace(hra);
  EXPECT_EQ(hra.MagicState, kMagicRunning);
  hra.Elapsed = 21;
  Animace(hra);
  EXPECT_EQ(hra.MagicState, kMagicSpent);
}

TEST(TheMagicWall, CountsItsTimeFromTheMomentItWoke) {
  Hra hra = WithRunningWall(nullptr);
  hra.MagicStart = 100;
  hra.Elapsed = 120;
  Animace(hra);
  EXPECT_EQ(hra.MagicState, kMagicRunning);
  hra.Elapsed = 121;
  Animace(hra);
  EXPECT_EQ(hra.MagicState, kMagicSpent);
}

TEST(TheMagicWall, EndsWithAMessageAnEventForTheCatAndSilence) {
  Diary diary;
  Hra hra = WithRunningWall(&diary, "*A/Z*D-N");
  hra.Elapsed = 21;
  diary.Clear();
  Animace(hra);
  EXPECT_EQ(Entries(diary.entries.begin(), diary.entries.begin() + 2),
            (Entries{"message 104 yellow", "stop 9"}));
  EXPECT_EQ(hra.CatPC, 3);
  diary.Clear();
  Animace(hra);
  EXPECT_EQ(diary.entries, Entries{});
}

TEST(TheMagicWall, FlickersWithAllThatIsFlatWhileItRunsAndInTheTickOfItsEnd) {
  Diary diary;
  Hra hra = WithRunningWall(&diary);
  for (const int elapsed : {5, 21}) {
    hra.Elapsed = elapsed;
    diary.Clear();
    Animace(hra);
    for (const char* flat : {"cell 0,0", "cell 1,0", "cell 2,0", "cell 0,1"}) EXPECT_EQ(diary.Count(flat), 1);
    EXPECT_EQ(diary.Count("cell *"), 4);
  }
}

TEST(TheMagicWall, FlickersNeitherDormantNorSpent) {
  Diary diary;
  Hra hra = WithRunningWall(&diary);
  for (const int state : {kMagicDormant, kMagicSpent}) {
    hra.MagicState = state;
    diary.Clear();
    Animace(hra);
    EXPECT_EQ(diary.entries, Entries{});
  }
}

TEST(TheMagicWall, StopsCountingWhenTheTimeOfTheCaveIsUp) {
  Hra hra = Play({"1M"}, {.time = 3, .magicTime = 2});
  hra.MagicState = kMagicRunning;
  hra.MagicStart = 10;
  Pass(hra, 60);
  EXPECT_EQ(hra.Elapsed, 30);
  EXPECT_EQ(hra.MagicState, kMagicRunning);
}

TEST(Animace, CountsEachTickAlsoAfterTheTimeIsUp) {
  Hra hra = Play({"1"}, {.time = 1});
  Pass(hra, 25);
  EXPECT_EQ(hra.Ticks, 25);
  EXPECT_EQ(hra.Elapsed, 10);
}

TEST(TheExit, OpensWithAFlashANewValueAMessageASoundAndAnEvent) {
  Diary diary;
  Hra hra = Play({"1JT"}, {.needed = 2, .before = 5, .after = 11, .script = "*A/Z*B-N"}, &diary);
  hra.GemsCollected = 2;
  diary.Clear();
  Animace(hra);
  EXPECT_TRUE(hra.ExitOpen);
  EXPECT_EQ(hra.GemValue, 11);
  EXPECT_EQ(diary.entries, (Entries{"flash", "value 11", "message 105 white", "sound 8", "cell 2,0"}));
  EXPECT_EQ(hra.CatPC, 3);
}

TEST(TheExit, OpensOnceOnly) {
  Diary diary;
  Hra hra = Play({"1T"}, {.needed = 0}, &diary);
  Animace(hra);
  diary.Clear();
  Animace(hra);
  EXPECT_FALSE(diary.Has("flash"));
  EXPECT_FALSE(diary.Has("sound 8"));
}

TEST(TheExit, StaysClosedWithOneGemTooFewAndOpensAtEqualityOnly) {
  Hra hra = Play({"1T"}, {.needed = 2});
  hra.GemsCollected = 1;
  Animace(hra);
  EXPECT_FALSE(hra.ExitOpen);
  hra.GemsCollected = 3;
  Animace(hra);
  EXPECT_FALSE(hra.ExitOpen);
}

TEST(TheExit, OfACaveThatNeedsNoGemsOpensInTheFirstTick) {
  Hra hra = Play({"1.T"}, {.needed = 0});
  EXPECT_FALSE(hra.ExitOpen);
  Pass(hra);
  EXPECT_TRUE(hra.ExitOpen);
}

TEST(TheExit, OpensInTheTickAfterTheLastGem) {
  Hra hra = Play({"1DT"}, {.needed = 1});
  Pass(hra, 1, "R");
  EXPECT_FALSE(hra.ExitOpen);
  Pass(hra);
  EXPECT_TRUE(hra.ExitOpen);
}

TEST(Finishes, AreAllRepaintedInEachTickOnceTheGemsAreThere) {
  Diary diary;
  Hra hra = Play({"1TDT"}, {.needed = 2}, &diary);
  diary.Clear();
  Animace(hra);
  EXPECT_EQ(diary.Count("cell *"), 0);
  for (const int gems : {2, 3}) {
    hra.GemsCollected = gems;
    diary.Clear();
    Animace(hra);
    EXPECT_EQ(diary.Count("cell *"), 2) << gems;
    EXPECT_TRUE(diary.Has("cell 1,0"));
    EXPECT_TRUE(diary.Has("cell 3,0"));
  }
}

// The magic wall's end comes before the exit's opening, so of two labels the exit's is the last word.
TEST(Animace, EndsTheMagicWallBeforeItOpensTheExit) {
  Diary diary;
  Hra hra = WithRunningWall(&diary, "*A/Z*B-N*D-O");
  hra.Elapsed = 21;
  hra.GemsCollected = hra.GemsNeeded;
  Animace(hra);
  EXPECT_LT(diary.Place("message 104 yellow"), diary.Place("message 105 white"));
  EXPECT_EQ(hra.CatPC, 3);
}

}  // namespace
}  // namespace zorik::test
