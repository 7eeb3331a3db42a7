#include <gtest/gtest.h>

#include "data/Lines.h"
#include "data/Result.h"
#include "support/Scene.h"

namespace zorik::test {
namespace {

// What one tick writes into the record.
std::string LineOfTick(Hra& hra, std::string_view keys = "") {
  const std::size_t before = hra.RecordText.size();
  Pass(hra, 1, keys);
  return hra.RecordText.substr(before);
}

std::string Dots(int count) {
  return std::string(static_cast<std::size_t>(count), '.');
}

TEST(TheTick, OpensTheExitBeforeTheCatMovesSoItsEventCountsAtOnce) {
  Hra hra = Play({"1WJ.T"}, {.needed = 0, .script = "*A/Z*B/F"});
  Pass(hra);
  EXPECT_EQ(Drawn(hra)[0], "1W.JT");
}

TEST(AtTheEndOfTheRecord, NothingMovesBeyondTheFirstStepOfTheTick) {
  Hra hra = PlayBack({"1WR", "WW.", "WW."}, {{.before = {9}}}, {.needed = 0});
  EXPECT_EQ(Pass(hra), TickEnd::Running);
  EXPECT_EQ(Pass(hra), TickEnd::RecordOver);
  EXPECT_EQ(Pass(hra), TickEnd::RecordOver);
  EXPECT_EQ(Drawn(hra), (Picture{"1W.", "WWr", "WW."}));
  EXPECT_EQ(hra.Ticks, 3);
}

TEST(AnEmptyRecordLine, RestartsTheReplayAndLeavesTheTick) {
  Diary diary;
  Hra hra(1);
  hra.SetStage(diary);
  ASSERT_TRUE(Replay(hra, RecordOfLines({"1..", "R..", "..."}, {"JhABC", "", "JiABC"})));
  Pass(hra);
  EXPECT_EQ(Drawn(hra)[0], ".1.");
  diary.Clear();
  EXPECT_EQ(Pass(hra), TickEnd::Restarted);
  EXPECT_EQ(hra.Ticks, 0);
  EXPECT_EQ(Drawn(hra), (Picture{"1..", "R..", "..."}));
  EXPECT_EQ(diary.entries.back(), "jump");
  EXPECT_EQ(Pass(hra), TickEnd::Running);
  EXPECT_EQ(Drawn(hra)[0], ".1.");
}

TEST(TheCat, StepsOntoTheTeleportThatTakesItInTheSameTick) {
  Hra hra = Play({"1....", "JSWWW", "WWS.."}, {.script = "*A/F/Z"});
  Pass(hra);
  EXPECT_TRUE(hra.CatInTransit);
  EXPECT_EQ(hra.TeleportStage, 2);
}

TEST(TheCat, MovesBeforeExplosionsEndSoItEntersTheFreedCellOneTickLater) {
  Hra hra = Live({"1WWW", "WJx.", "WWWW"}, {.script = "*A/F/Z"});
  hra.SetFieldMark({2, 1}, 3);
  Pass(hra);
  EXPECT_EQ(Drawn(hra)[1], "WJ..");
  Pass(hra);
  EXPECT_EQ(Drawn(hra)[1], "W.J.");
}

TEST(TheTeleport, LooksAtItsExitBeforeExplosionsEnd) {
  Hra hra = Live({"1...", "KS.W", "WW.S"});
  Put(hra, 1, 1, 'K');
  hra.SetField({3, 2}, kExplosion);
  hra.SetFieldMark({3, 2}, 3);
  Pass(hra);
  EXPECT_EQ(hra.TeleportStage, 0);
  Pass(hra);
  EXPECT_EQ(hra.TeleportStage, 2);
}

TEST(ABoulder, FallsIntoTheSpaceThatAnExplosionLeavesInTheSameTick) {
  Hra hra = Live({"1R", "Wx", "WW"});
  hra.SetFieldMark({1, 1}, 3);
  Pass(hra);
  EXPECT_EQ(Drawn(hra), (Picture{"1.", "Wr", "WW"}));
}

TEST(EveryTick, DrawsForTheAmoebaAlsoInACaveWithoutAny) {
  Hra hra = Play({"1"});
  int highest = 0;
  for (int i = 0; i < 600; ++i) {
    const std::string line = LineOfTick(hra);
    ASSERT_EQ(line.size(), 1U + 3U + 2U);
    ASSERT_EQ(line.substr(1), "AAB\r\n");
    const int drawn = line[0] - 65;
    ASSERT_GE(drawn, 1);
    highest = std::max(highest, drawn);
  }
  EXPECT_EQ(highest, 32);
}

TEST(AFastAmoeba, DrawsFromFour) {
  Hra hra = Play({"1"});
  hra.AmoebaState = kAmoebaFast;
  int highest = 0;
  for (int i = 0; i < 200; ++i) highest = std::max(highest, LineOfTick(hra)[0] - 65);
  EXPECT_EQ(highest, 4);
}

TEST(TheAmoeba, GrowsIntoTheDrawnCandidateWhenTheFirstDrawIsOne) {
  Hra hra = PlayBack({"1WWW", "W.A;", "WW.W"}, {{.before = {1, 2}}, {.before = {2}}});
  Pass(hra);
  EXPECT_EQ(Drawn(hra), (Picture{"1WWW", "W.AA", "WW.W"}));
  EXPECT_TRUE(Drained(hra));
  Pass(hra);
  EXPECT_EQ(Drawn(hra), (Picture{"1WWW", "W.AA", "WW.W"}));
  EXPECT_TRUE(Drained(hra));
}

TEST(TheAmoeba, DoesNotGrowNorDrawAgainWhenItsFirstCandidateHasBeenTaken) {
  Hra hra = PlayBack({"1.WWW", "A.E..", "WWWWW"}, {{.before = {1}, .direction = 39, .after = {2}}});
  Pass(hra);
  EXPECT_EQ(Drawn(hra), (Picture{".1WWW", "AEEE.", "WWWWW"}));
  EXPECT_TRUE(Drained(hra));
}

TEST(TheAmoeba, OvergrowsAnyOtherCandidateThatHasBeenTaken) {
  Hra hra = PlayBack({"1WWWWW", ".A.PWW", "WWWWWW"}, {{.before = {1, 2}}});
  hra.SetFieldMark({3, 1}, 1);
  Pass(hra);
  EXPECT_EQ(Drawn(hra)[1], ".AA.WW");
  EXPECT_EQ(hra.FieldMark({2, 1}), 0);
}

TEST(TheAmoeba, OvergrowsABoulderAndTakesItsState) {
  Hra hra = PlayBack({"1WWWW", ".A.RW", "WW.XW", "WWWWW"}, {{.before = {1, 2}}});
  Pass(hra);
  EXPECT_EQ(Drawn(hra)[1], ".AA.W");
  EXPECT_EQ(hra.FieldState({2, 1}), 0);
}

TEST(TheAmoeba, SetsOffTheSensorsBesideTheCellThatItGrowsInto) {
  Hra hra = PlayBack({"1WWWW", "WA;GW", "WWWWW"}, {{.before = {1, 1}}});
  Pass(hra);
  EXPECT_EQ(hra.Field({2, 1}), kAmoeba);
  EXPECT_EQ(hra.FieldMark({3, 1}), 1);
}

TEST(TheAmoeba, WithADrawBeyondItsCandidatesGrowsNowhere) {
  Hra hra =
      PlayBack({"1WWW", "W.A;", "WWWW"}, {{.before = {1, 100}}, {.before = {1, 0}}, {.before = {1, -5}}});
  Pass(hra, 3);
  EXPECT_EQ(Drawn(hra)[1], "W.A;");
  EXPECT_TRUE(Drained(hra));
}

TEST(TheAmoeba, FallsSilentWhenItsRoomIsGone) {
  Diary diary;
  Hra hra = Play({"1WWW", "W.AW", "WWWW"}, {}, &diary);
  Pass(hra);
  EXPECT_EQ(hra.PrevAmoebaRoom, 1);
  hra.SetField({2, 1}, kDirt);
  diary.Clear();
  Pass(hra);
  EXPECT_EQ(diary.Count("stop 13"), 1);
  Pass(hra);
  EXPECT_EQ(diary.Count("stop 13"), 1);
}

TEST(TheRecordOfATick, HoldsTheSlimesDrawThenTheAmoebasThenTheKeysThenTheDogsDraw) {
  Hra hra = Play({"1..", "D.W", "S.W", "..W", "WWW"}, {.permeability = 7});
  const std::string line = LineOfTick(hra, "R");
  ASSERT_EQ(line.size(), 1U + 1U + 3U + 1U + 2U);
  EXPECT_LE(line[0] - 65, 2);
  EXPECT_EQ(line.substr(2, 3), "hAB");
  EXPECT_LE(line[5] - 65, 4);
  EXPECT_EQ(line.substr(6), "\r\n");
}

TEST(Keys, AreNotReadOnceTheTimeIsUpAndTheDogStandsStill) {
  Hra hra = Play({"1......"}, {.time = 0});
  hra.KeyDirection = 39;
  hra.KeyAction = 1;
  const std::string line = LineOfTick(hra, "R");
  EXPECT_EQ(hra.KeyDirection, 0);
  EXPECT_EQ(hra.KeyAction, 0);
  EXPECT_EQ(line.size(), 1U + 2U);
  EXPECT_EQ(Drawn(hra)[0], "1......");
}

TEST(Keys, AreReadInTheLastTickOfTheTimeAndNoLonger) {
  Hra hra = Play({"1" + Dots(20)}, {.time = 1});
  Pass(hra, 15, "R");
  EXPECT_EQ(hra.Elapsed, 10);
  EXPECT_EQ(Drawn(hra)[0], Dots(10) + "1" + Dots(10));
  EXPECT_EQ(hra.KeyDirection, 0);
}

TEST(ARecordedTickAfterTheTime, HasNoKeysAndItsReplayReadsNone) {
  Hra hra = PlayBack({"1.."}, {}, {.time = 0});
  hra.Record = RecordLines("J\r\nJhAB\r\n");
  Pass(hra);
  EXPECT_TRUE(Drained(hra));
  Pass(hra);
  EXPECT_EQ(Drawn(hra)[0], "1..");
  EXPECT_EQ(hra.RecordLine, "hAB");
}

TEST(Keys, AreNotReadWhileADogRidesAndItsRecordHasNone) {
  Hra hra = Play({"...", "1S.", ".W.", "W..", "S.."});
  Pass(hra, 1, "R");
  ASSERT_EQ(hra.Field({1, 1}), kDog);
  for (int i = 0; i < 3; ++i) {
    EXPECT_EQ(LineOfTick(hra, "R").size(), 1U + 2U) << i;
    EXPECT_TRUE(hra.TeleportDogBusy);
    EXPECT_EQ(hra.KeyDirection, 0);
  }
  EXPECT_EQ(LineOfTick(hra, "R").size(), 1U + 3U + 1U + 2U);
}

TEST(ARecordLineOfOneCharacter, IsNeverReadAsInput) {
  Hra hra(1);
  ASSERT_TRUE(Replay(hra, RecordOfLines({"1.."}, {"J", "Jh", "JhA", "JhAC"})));
  Pass(hra);
  EXPECT_EQ(hra.KeyDirection, 0);
  EXPECT_FALSE(hra.RanDry);
  Pass(hra);
  EXPECT_EQ(hra.KeyDirection, 0);
  EXPECT_EQ(hra.RecordLine, "h");
  Pass(hra);
  EXPECT_EQ(Drawn(hra)[0], ".1.");
}

TEST(AReplay, ChangesTheUnitOnlyWhenItsLineNamesAnother) {
  Diary diary;
  Hra hra =
      PlayBack({"1.2"}, {{.before = {9}, .unit = 1}, {.before = {9}, .unit = 2}, {.before = {9}, .unit = 7}},
               {}, &diary);
  diary.Clear();
  Pass(hra);
  EXPECT_FALSE(diary.Has("dog 1 0"));
  Pass(hra);
  EXPECT_EQ(hra.ActiveDog, 2);
  EXPECT_EQ(diary.Count("sound 7"), 1);
  Pass(hra);
  EXPECT_EQ(hra.ActiveDog, 2);
}

TEST(ADogThatIsMissingFromItsCell, IsDeadAndShownSoInEachTick) {
  Diary diary;
  Hra hra = Play({"1.3"}, {}, &diary);
  hra.SetField({2, 0}, kSpace);
  diary.Clear();
  Pass(hra);
  EXPECT_FALSE(hra.Dog[3].Alive);
  EXPECT_EQ(hra.Dog[3].x, 2);
  EXPECT_TRUE(hra.Dog[1].Alive);
  EXPECT_EQ(diary.Count("dog 3 2"), 1);
  EXPECT_EQ(diary.Count("dog 2 2"), 1) << "a number that the cave does not have";
  EXPECT_EQ(diary.Count("dog 1 2"), 0);
  Pass(hra);
  EXPECT_EQ(diary.Count("dog 3 2"), 2);
}

TEST(Dogs, AreNotCheckedWhileOneRides) {
  Hra hra = Play({"...", "1S.", ".W.", "W..", "S.."});
  Pass(hra, 2, "R");
  ASSERT_TRUE(hra.TeleportDogBusy);
  EXPECT_TRUE(hra.Dog[1].Alive);
  Pass(hra, 3);
  EXPECT_TRUE(hra.Dog[1].Alive);
  EXPECT_EQ(Drawn(hra), (Picture{"...", "...", ".W.", "W..", "1.."}));
}

TEST(ADogKilledInTheObjectScan, TakesNoStepInThatTick) {
  Hra hra = Live({".r.W", ".1.W", "WWWW"});
  const std::string line = LineOfTick(hra, "R");
  EXPECT_FALSE(hra.Dog[1].Alive);
  EXPECT_EQ(line.size(), 1U + 3U + 2U);
}

TEST(ADogKilledInTheObjectScan, CanStillBeChosenInThatTickBeforeItIsFoundDead) {
  Hra hra = Live({".r.1", ".2.W", "WWWW"});
  Pass(hra, 1, "2");
  EXPECT_EQ(hra.ActiveDog, 2);
  EXPECT_FALSE(hra.Dog[2].Alive);
}

TEST(TheSteeredUnit, StepsAsADogOrAsTheSwarm) {
  Hra hra = Play({"1..", "N.."});
  Pass(hra, 1, "R");
  EXPECT_EQ(Drawn(hra), (Picture{".1.", "N.."}));
  const std::string line = LineOfTick(hra, "0R");
  EXPECT_EQ(Drawn(hra), (Picture{".1.", ".N."}));
  EXPECT_EQ(line.size(), 1U + 3U + 2U) << "the swarm draws nothing";
}

TEST(IdleTicks, AreCountedAndTheDogRepaintedInEachTick) {
  Diary diary;
  Hra hra = Play({"1.."}, {}, &diary);
  diary.Clear();
  Pass(hra, 5);
  EXPECT_EQ(hra.DogIdleTicks, 5);
  EXPECT_EQ(diary.Count("cell 0,0"), 5);
  Pass(hra, 1, "R");
  EXPECT_EQ(hra.DogIdleTicks, 1);
}

TEST(IdleTicks, AreCountedDuringARideWithoutARepaint) {
  Diary diary;
  Hra hra = Play({"...", "1S.", ".W.", "W..", "S.."}, {}, &diary);
  Pass(hra, 1, "R");
  EXPECT_EQ(hra.DogIdleTicks, 1);
  diary.Clear();
  Pass(hra, 2);
  EXPECT_EQ(hra.DogIdleTicks, 3);
  EXPECT_EQ(diary.Count("cell 1,1"), 2) << "by the teleport alone";
}

TEST(IdleTicks, AreNotCountedForADeadDogNorForTheSwarm) {
  Hra hra = Play({"1N"});
  Pass(hra, 1, "0");
  Pass(hra, 5);
  EXPECT_EQ(hra.DogIdleTicks, 0);
  Pass(hra, 1, "1");
  EXPECT_EQ(hra.DogIdleTicks, 1);
  hra.SetField({0, 0}, kSpace);
  Pass(hra, 5);
  EXPECT_EQ(hra.DogIdleTicks, 1);
}

TEST(ADogThatWalksBesideAMonster, IsBlownUpAtTheEndOfTheSameTick) {
  Hra hra = Play({"1.FW", "WWWW"});
  hra.SetFieldMark({2, 0}, 0);
  Pass(hra, 1, "R");
  EXPECT_EQ(Drawn(hra)[0], ".xxW");
  EXPECT_TRUE(hra.Dog[1].Alive);
  Pass(hra);
  EXPECT_FALSE(hra.Dog[1].Alive);
}

}  // namespace
}  // namespace zorik::test
