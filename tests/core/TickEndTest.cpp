#include <gtest/gtest.h>

#include "data/Lines.h"
#include "data/Result.h"
#include "data/Scramble.h"
#include "support/Scene.h"

// The steps of a tick behind the dog's step, in their order.
namespace zorik::test {
namespace {

using Entries = std::vector<std::string>;

KeySnapshot Holding(std::initializer_list<int> codes) {
  KeySnapshot keys;
  for (const int code : codes) keys.down.set(static_cast<std::size_t>(code));
  return keys;
}

// What one tick writes into the record.
std::string LineOfTick(Hra& hra, std::string_view keys = "") {
  const std::size_t before = hra.RecordText.size();
  Pass(hra, 1, keys);
  return hra.RecordText.substr(before);
}

TEST(TheDog, ShowsItsPoseBeforeTheClosingScanBegins) {
  Diary diary;
  Hra hra = Play({"..1", "SWW"}, {}, &diary);
  diary.Clear();
  Pass(hra);
  EXPECT_EQ(diary.entries, (Entries{"cell 2,0", "cell 0,1", "clock 99", "view"}));
}

TEST(TheSoundOfTheClosingScan, IsPlayedOnceAfterIt) {
  Diary diary;
  Hra hra = Play({"1WGWG", "WWWWW", "GWS.."}, {}, &diary);
  for (const Cell c : {Cell(2, 0), Cell(4, 0), Cell(0, 2)}) hra.SetFieldMark(c, 3);
  diary.Clear();
  Pass(hra);
  EXPECT_EQ(diary.Count("sound 11"), 1);
  EXPECT_GT(diary.Place("sound 11"), diary.Place("cell 2,2"));
}

TEST(TheClock, ShowsTheWholeSecondsThatAreLeft) {
  Diary diary;
  Hra hra = Play({"1"}, {.time = 20}, &diary);
  diary.Clear();
  Pass(hra);
  EXPECT_EQ(diary.Count("clock *"), 1);
  EXPECT_EQ(hra.ClockShown, 19);
  Pass(hra, 9);
  EXPECT_EQ(diary.Count("clock *"), 1);
  Pass(hra);
  EXPECT_EQ(hra.ClockShown, 18);
}

TEST(TheClock, MarksTheLastTenSecondsAndStopsAtNought) {
  Diary diary;
  Hra hra = Play({"1"}, {.time = 13}, &diary);
  Pass(hra, 20);
  EXPECT_EQ(diary.Count("time *"), 0);
  Pass(hra, 300);
  EXPECT_EQ(diary.Count("time *"), 11);
  for (int second = 0; second <= 10; ++second) EXPECT_EQ(diary.Count("time " + std::to_string(second)), 1);
  EXPECT_EQ(hra.ClockShown, 0);
  EXPECT_EQ(hra.Elapsed, 130);
}

TEST(TheClock, IsSetToNoughtWhenTheTimeIsUpAndItShowsAnythingElse) {
  Diary diary;
  Hra hra = Play({"1"}, {.time = 0}, &diary);
  hra.ClockShown = 5;
  diary.Clear();
  Pass(hra, 2);
  EXPECT_EQ(hra.ClockShown, 0);
  EXPECT_EQ(diary.Count("clock 0"), 1);
}

TEST(TheClock, KeepsALimitOfFourDigitsUntilTheRestHasThree) {
  Hra hra = Play({"1"}, {.time = 1001});
  Pass(hra, 10);
  EXPECT_EQ(hra.ClockShown, 1001);
  Pass(hra);
  EXPECT_EQ(hra.ClockShown, 999);
}

TEST(TheWorld, GoesOnWhenTheTimeIsUp) {
  Hra hra = Play({"1R", "W.", "W."}, {.time = 0});
  Pass(hra, 2);
  EXPECT_EQ(Drawn(hra), (Picture{"1.", "W.", "Wr"}));
}

TEST(TheAmoeba, HurriesAtTheEndOfTheTickInWhichItsSecondBegins) {
  Diary diary;
  Hra hra = Play({"1WW", "A;W", "WWW"}, {.amoebaTime = 3}, &diary);
  hra.Luck.Seed(7);
  Pass(hra, 19);
  ASSERT_GT(hra.AmoebaRoom, 0);
  EXPECT_EQ(hra.AmoebaState, kAmoebaSlow);
  Pass(hra);
  EXPECT_EQ(hra.AmoebaState, kAmoebaFast);
  EXPECT_EQ(diary.Count("message 103 green"), 1);
}

TEST(TheAmoeba, DoesNotHurryWithoutRoomNorWhenItHasEnded) {
  Hra hra = Play({"1"}, {.amoebaTime = 0});
  HurryAmoeba(hra);
  EXPECT_EQ(hra.AmoebaState, kAmoebaSlow);
  hra.AmoebaRoom = 1;
  hra.AmoebaState = kAmoebaTooBig;
  HurryAmoeba(hra);
  EXPECT_EQ(hra.AmoebaState, kAmoebaTooBig);
}

TEST(WhatIsLeftOfARecordLine, IsShownAsARemark) {
  Diary diary;
  Hra hra(1);
  hra.SetStage(diary);
  Chance decoration;
  const std::string remark = ScrambleText("Pozor!", decoration);
  ASSERT_TRUE(Replay(hra, RecordOfLines({"1.."}, {"JAAB" + remark, "JhABC" + remark, "JAAB"})));
  Pass(hra);
  EXPECT_EQ(diary.Count("remark Pozor! cyan"), 1);
  EXPECT_LT(diary.Place("clock 99"), diary.Place("remark Pozor! cyan"));
  EXPECT_LT(diary.Place("remark Pozor! cyan"), diary.Place("view"));
  Pass(hra);
  EXPECT_EQ(diary.Count("remark Pozor! cyan"), 2) << "the dog's draw comes before the remark";
  Pass(hra);
  EXPECT_EQ(diary.Count("remark *"), 2);
}

TEST(ARemark, IsShownInAReplayOnly) {
  Diary diary;
  Hra hra = Play({"1"}, {}, &diary);
  hra.RecordLine = "XYZ";
  Pass(hra);
  EXPECT_EQ(diary.Count("remark *"), 0);
}

TEST(EachTickOfPlay, EndsItsLineInTheRecordAndAReplayWritesNothing) {
  Hra played = Play({"1"});
  EXPECT_EQ(LineOfTick(played).substr(4), "\r\n");
  played.Recording = false;
  EXPECT_EQ(LineOfTick(played).substr(4), "");
  played.Recording = true;
  ASSERT_TRUE(Replay(played, RecordOf({"1"}, {{.before = {9}}})));
  ASSERT_TRUE(played.Recording);
  EXPECT_EQ(LineOfTick(played), "");
}

TEST(EachTick, ScrollsTheViewByOneStep) {
  Diary diary;
  Hra hra = Play({"1"}, {}, &diary);
  diary.Clear();
  Pass(hra, 3);
  EXPECT_EQ(diary.Count("view"), 3);
  EXPECT_EQ(diary.Count("jump"), 0);
}

TEST(CtrlAndR, RestartTheCaveAfterTheRecordLineHasEndedAndTheViewHasMoved) {
  Diary diary;
  Hra hra = Play({"1.D", ";;;"}, {}, &diary);
  Pass(hra, 4, "R");
  diary.Clear();
  EXPECT_EQ(Tick(hra, Holding({kKeyR, kKeyCtrl})), TickEnd::Restarted);
  EXPECT_EQ(Drawn(hra), (Picture{"1.D", ";;;"}));
  EXPECT_EQ(hra.Ticks, 0);
  EXPECT_EQ(hra.RecordText.find("\r\n"), hra.RecordText.size() - 2) << "a fresh record";
  EXPECT_LT(diary.Place("view"), diary.Place("jump"));
  EXPECT_EQ(diary.entries.back(), "cell 2,0") << "the gem of the new cave glitters in the same tick";
}

TEST(CtrlAndR, AloneDoNotRestart) {
  Hra hra = Play({"1.."});
  EXPECT_EQ(Tick(hra, Holding({kKeyR})), TickEnd::Running);
  EXPECT_EQ(Tick(hra, Holding({kKeyCtrl})), TickEnd::Running);
  EXPECT_EQ(hra.Ticks, 2);
}

TEST(TheRestOfATickAfterARestart, SetsOffNoSensor) {
  Hra hra = Play({"1DG"});
  Tick(hra, Holding({kKeyR, kKeyCtrl}));
  EXPECT_EQ(hra.FieldMark({2, 0}), 0);
  Pass(hra);
  EXPECT_EQ(hra.FieldMark({2, 0}), 1);
}

TEST(TheKeyC, FlipsTheViewInAReplayAndInATestRunOnly) {
  const auto flips = [](RunKind kind) {
    Diary diary;
    Hra hra(1);
    hra.SetStage(diary);
    EXPECT_TRUE(PaintCave(hra, CaveTextOf({"1"}), kind));
    hra.Record = RecordLines("JAAB\r\n");
    Tick(hra, Holding({kKeyC}));
    return diary.Count("toggle");
  };
  EXPECT_EQ(flips(RunKind::Play), 0);
  EXPECT_EQ(flips(RunKind::Replay), 1);
  EXPECT_EQ(flips(RunKind::Test), 1);
}

TEST(GemsAndKeys, GlitterInEachTickColumnByColumn) {
  Diary diary;
  Hra hra = Play({"1WRW@", "DW$WW", "!W#WD"}, {}, &diary);
  diary.Clear();
  Pass(hra);
  const auto view = diary.entries.begin() + diary.Place("view") + 1;
  EXPECT_EQ(Entries(view, diary.entries.end()),
            (Entries{"cell 0,1", "cell 0,2", "cell 2,1", "cell 2,2", "cell 4,0", "cell 4,2"}));
}

TEST(CommandKeys, AskForAPauseTheHideAwayAndTheSpeedsAfterTheGlitter) {
  Diary diary;
  Hra hra = Play({"1D"}, {}, &diary);
  diary.Clear();
  Tick(hra, Holding({kKeyP, kKeyF12, kKeyPadPlus, kKeyPadMinus}));
  const auto view = diary.entries.begin() + diary.Place("view") + 1;
  EXPECT_EQ(Entries(view, diary.entries.end()), (Entries{"cell 1,0", "pause", "hide", "faster", "slower"}));
}

}  // namespace
}  // namespace zorik::test
