#include <gtest/gtest.h>

#include <algorithm>

#include "support/Scene.h"

namespace zorik::test {
namespace {

// A tick in which chance lets the amoeba be.
const RecordTick kQuiet{.before = {2}};

AmoebaList RoomOf(Hra& hra) {
  AmoebaList room;
  ObjectScan(hra, room);
  return room;
}

// The largest and the smallest outcome of many first draws.
std::pair<int, int> RangeOfFirstDraw(int amoebaState) {
  Hra hra = Play({"1."});
  hra.AmoebaState = amoebaState;
  hra.RecordText.clear();
  for (int i = 0; i < 3000; ++i) GrowAmoeba(hra, {});
  const auto [least, most] = std::minmax_element(hra.RecordText.begin(), hra.RecordText.end());
  return {*least - 65, *most - 65};
}

TEST(AmoebaRoom, IsTheSpaceAndTheDirtAtItsFourSidesInTheOrderOfTheScan) {
  Hra hra = Play({"1....",  //
                  "..;..", "..A;.", "....."});
  const AmoebaList room = RoomOf(hra);
  ASSERT_EQ(room.count, 4);
  EXPECT_EQ(room.At(0), Cell(2, 1));
  EXPECT_EQ(room.At(1), Cell(1, 2));
  EXPECT_EQ(room.At(2), Cell(3, 2));
  EXPECT_EQ(room.At(3), Cell(2, 3));
}

TEST(AmoebaRoom, IsNothingElseAndNoVacatedCell) {
  Hra hra = Live({"1.X..",  //
                  ".KA-.", "..W.."});
  EXPECT_EQ(RoomOf(hra).count, 0);
  std::vector<std::uint16_t> codes{kFleaInTransit, kVacated};
  for (std::uint16_t code = kSpace; code < kObjectCount; ++code) codes.push_back(code);
  for (const std::uint16_t code : codes) {
    hra.SetField({3, 1}, code);
    AmoebaList room;
    FindAmoebaRoom(hra, {3, 1}, room);
    EXPECT_EQ(room.count, code == kSpace || code == kDirt ? 1 : 0) << code;
  }
}

TEST(AmoebaRoom, LeavesOutACellThatHasMovedInThisTick) {
  Hra hra = Play({"1WWW",  //
                  "W.A;", "WWWW"});
  hra.SetFieldMoved({1, 1}, true);
  const AmoebaList room = RoomOf(hra);
  ASSERT_EQ(room.count, 1);
  EXPECT_EQ(room.At(0), Cell(3, 1));
}

TEST(AmoebaRoom, TakesInTheCellThatAFallingThingHasJustLeft) {
  Hra hra = Play({"1WWWW",  //
                  "WWRAW", "WW.WW", "WW.WW"});
  const AmoebaList room = RoomOf(hra);
  ASSERT_EQ(room.count, 1);
  EXPECT_EQ(room.At(0), Cell(2, 1));
}

TEST(AmoebaRoom, IsFoundAtEveryPlaceOfAWideCave) {
  for (int x = 1; x < 99; ++x) {
    Hra hra = Play({"1" + std::string(99, 'W'), std::string(100, '.')});
    Put(hra, x, 1, 'A');
    const AmoebaList room = RoomOf(hra);
    ASSERT_EQ(room.count, 2) << x;
    EXPECT_EQ(room.At(0), Cell(x - 1, 1));
    EXPECT_EQ(room.At(1), Cell(x + 1, 1));
  }
}

TEST(AmoebaRoom, CountsCandidatesBeyondTheListAndLosesThem) {
  Picture picture(60, std::string(100, ';'));
  for (std::string& row : picture) {
    for (std::size_t x = 1; x < row.size(); x += 3) row[x] = 'A';
  }
  Hra hra = Play(picture);
  AmoebaList room = RoomOf(hra);
  // 33 columns of amoeba; the 67 others of dirt lie beside one, but for the last.
  EXPECT_EQ(room.count, 66 * 60);
  // The list ends with place 2501: 37 rows of 66, then the 59th of the next, which are 0, 2, 3, 5, 6, ...
  EXPECT_EQ(room.At(kAmoebaListSize - 1), Cell(87, 37));
  Foretell(hra, {1, 190});
  GrowAmoeba(hra, room);
  EXPECT_EQ(hra.AmoebaRoom, 66 * 60);
  EXPECT_EQ(hra.Field(room.At(189)), kAmoeba);
}

TEST(AmoebaGrowth, DrawsOneInThirtyTwoWhileSlowAndOneInFourWhenFast) {
  EXPECT_EQ(RangeOfFirstDraw(kAmoebaSlow), std::pair(1, 32));
  EXPECT_EQ(RangeOfFirstDraw(kAmoebaFast), std::pair(1, 4));
  EXPECT_EQ(RangeOfFirstDraw(kAmoebaTooBig), std::pair(1, 32));
  EXPECT_EQ(RangeOfFirstDraw(kAmoebaEnclosed), std::pair(1, 32));
}

TEST(AmoebaGrowth, DrawsOnceInEveryTickOfACaveWithoutAmoeba) {
  Hra hra = PlayBack({"1."}, {{.before = {1}, .direction = 39, .after = {2}}});
  Pass(hra);
  EXPECT_EQ(Drawn(hra), (Picture{".1"}));
  EXPECT_TRUE(Drained(hra));
}

TEST(AmoebaGrowth, TakesTheCandidateThatTheSecondDrawCountsOut) {
  const Picture start{"1WWWWW", "W.A;.W", "WWWWWW", "WWWWWW"};
  Hra first = PlayBack(start, {{.before = {1, 1}}});
  Pass(first);
  EXPECT_EQ(Drawn(first), (Picture{"1WWWWW", "WAA;.W", "WWWWWW", "WWWWWW"}));
  Hra second = PlayBack(start, {{.before = {1, 2}}});
  Pass(second);
  EXPECT_EQ(Drawn(second), (Picture{"1WWWWW", "W.AA.W", "WWWWWW", "WWWWWW"}));
}

TEST(AmoebaGrowth, WaitsForAOneAndDrawsNoPlaceBefore) {
  const Picture start{"1WWWWW", "W.A;.W", "WWWWWW", "WWWWWW"};
  for (const int drawn : {2, 3, 4, 32}) {
    Hra hra = Play(start);
    const AmoebaList room = RoomOf(hra);
    Foretell(hra, {drawn, 1});
    GrowAmoeba(hra, room);
    EXPECT_EQ(Drawn(hra), start) << drawn;
    EXPECT_EQ(hra.RecordLine.size(), 1U) << drawn;
  }
}

TEST(AmoebaGrowth, AddsOneCellToTheWholeCaveInATick) {
  Hra hra = PlayBack({"1WWWWWWW", "W.AWWA.W", "WWWWWWWW"}, {{.before = {1, 2}}});
  Pass(hra);
  EXPECT_EQ(Drawn(hra), (Picture{"1WWWWWWW", "W.AWWAAW", "WWWWWWWW"}));
}

TEST(AmoebaGrowth, DrawsNoPlaceWithoutRoom) {
  Hra hra = Play({"1WA"});
  Foretell(hra, {1});
  GrowAmoeba(hra, {});
  EXPECT_TRUE(Drained(hra));
}

TEST(AmoebaGrowth, NeitherGrowsNorDrawsAPlaceWhenTheFirstCandidateIsTakenMeanwhile) {
  // The wall at the bottom grows into the first candidate after it was listed.
  Hra hra = Play({"1WWWWW", "WA.WWW", "W;VWWW", "WWWWWW"});
  const AmoebaList room = RoomOf(hra);
  Foretell(hra, {1, 2});
  GrowAmoeba(hra, room);
  EXPECT_EQ(Drawn(hra), (Picture{"1WWWWW", "WAVWWW", "W;VWWW", "WWWWWW"}));
  EXPECT_EQ(hra.AmoebaRoom, 2);
  EXPECT_EQ(hra.RecordLine.size(), 1U);
}

TEST(AmoebaGrowth, OvergrowsATakenCandidateThatIsNotTheFirst) {
  Hra hra = PlayBack({"1WWWWW", ";A.WWW", "WWVWWW", "WWWWWW"}, {{.before = {1, 2}}});
  Pass(hra);
  EXPECT_EQ(Drawn(hra), (Picture{"1WWWWW", ";AAWWW", "WWVWWW", "WWWWWW"}));
}

TEST(AmoebaGrowth, MakesAFlatUnmarkedCellAndRepaintsIt) {
  Diary diary;
  Hra hra = Play({"1WWW", "WA.W"}, {}, &diary);
  hra.SetFieldState({2, 1}, kResting);
  hra.SetFieldMark({2, 1}, 7);
  AmoebaList room;
  FindAmoebaRoom(hra, {2, 1}, room);
  Foretell(hra, {1, 1});
  diary.Clear();
  GrowAmoeba(hra, room);
  EXPECT_EQ(hra.Field({2, 1}), kAmoeba);
  EXPECT_EQ(hra.FieldState({2, 1}), kFlat);
  EXPECT_EQ(hra.FieldMark({2, 1}), 0);
  EXPECT_EQ(diary.Count("cell 2,1"), 1);
}

TEST(AmoebaGrowth, ArmsASensorBesideTheNewCell) {
  Hra hra = PlayBack({"1WWWWW", "WWGWWW", "WA.WWW", "WWWWWW"}, {{.before = {1, 1}}});
  Pass(hra);
  EXPECT_EQ(hra.Field({2, 2}), kAmoeba);
  EXPECT_EQ(hra.FieldMark({2, 1}), 1);
}

TEST(AmoebaGrowth, TakesNothingWhenTheRecordNamesAPlaceBeyondTheList) {
  Hra hra = Play({"1WWW", "WA.W", ".WWW"});
  AmoebaList room;
  room.places.fill(static_cast<std::uint16_t>(Cell(0, 2).place()));  // what stands behind the candidates
  FindAmoebaRoom(hra, {2, 1}, room);
  for (const int place : {0, 2, 3, 150}) {
    Foretell(hra, {1, place});
    GrowAmoeba(hra, room);
    EXPECT_EQ(Drawn(hra), (Picture{"1WWW", "WA.W", ".WWW"})) << place;
    EXPECT_TRUE(Drained(hra));
  }
}

TEST(AmoebaGrowth, FallsSilentInTheTickInWhichItsRoomIsGone) {
  Diary diary;
  Hra hra = Play({"1WWW", "WA.W"}, {}, &diary);
  AmoebaList room;
  FindAmoebaRoom(hra, {2, 1}, room);
  Foretell(hra, {2, 2, 2});
  diary.Clear();
  GrowAmoeba(hra, room);
  EXPECT_EQ(hra.PrevAmoebaRoom, 1);
  EXPECT_FALSE(diary.Has("stop 13"));
  GrowAmoeba(hra, {});
  EXPECT_EQ(diary.Count("stop 13"), 1);
  EXPECT_EQ(hra.PrevAmoebaRoom, 0);
  GrowAmoeba(hra, {});
  EXPECT_EQ(diary.Count("stop 13"), 1);
}

TEST(AmoebaEnd, AnEnclosedOneTurnsToGemsInOneClosingScanAndFalls) {
  // The explosion ends in this tick; a cell that has moved is no room.
  Hra hra = PlayBack({"1WWWWW", "WAAWWW", "WAWWWW", "W.WWWW"}, {kQuiet, kQuiet});
  hra.SetField({1, 3}, kExplosion);
  hra.SetFieldMark({1, 3}, 3);
  Pass(hra);
  EXPECT_EQ(Drawn(hra), (Picture{"1WWWWW", "WDDWWW", "WDWWWW", "W.WWWW"}));
  EXPECT_EQ(hra.FieldState({1, 1}), kResting);
  Pass(hra);
  EXPECT_EQ(Drawn(hra), (Picture{"1WWWWW", "WDDWWW", "W.WWWW", "WdWWWW"}));
}

TEST(AmoebaEnd, AnEnclosedOneSaysSoOnceAndRaisesF) {
  Diary diary;
  Hra hra = PlayBack({"1WWWWJ", "WAAWAW", "WWWWWW", "WWWWWW"}, {kQuiet, kQuiet}, {.script = "*A-M*F-M*E-M/Z"},
                     &diary);
  diary.Clear();
  Pass(hra);
  EXPECT_EQ(Drawn(hra), (Picture{"1WWWWJ", "WDDWDW", "WWWWWW", "WWWWWW"}));
  EXPECT_EQ(hra.AmoebaState, kAmoebaEnclosed);
  EXPECT_EQ(diary.Count("message 101 green"), 1);
  EXPECT_EQ(hra.CatPC, 3);
  EXPECT_EQ(diary.Count("sound 12"), 1);
  EXPECT_EQ(diary.Count("stop 13"), 3);
  EXPECT_EQ(diary.Count("cell 1,1"), 2 + 1);  // as amoeba, as gem, and glittering

  // Another patch that is enclosed later turns too, without a word.
  Put(hra, 4, 2, 'A');
  hra.CatPC = 1;
  diary.Clear();
  Pass(hra);
  EXPECT_EQ(hra.Field({4, 2}), kGem);
  EXPECT_FALSE(diary.Has("message 101 green"));
  EXPECT_EQ(hra.CatPC, 1);
  EXPECT_EQ(diary.Count("sound 12"), 1);
}

TEST(AmoebaEnd, TheEnclosingSoundWaitsForTheEndOfTheClosingScan) {
  Diary diary;
  Hra hra = Play({"1WWWW", "WAWWS", "WWWWW"}, {}, &diary);
  diary.Clear();
  int cells = 0;
  EXPECT_EQ(SettleAmoeba(hra, {1, 1}, cells), SoundId::AmoebaEnclosed);
  EXPECT_EQ(cells, 1);
  EXPECT_FALSE(diary.Has("sound 12"));
  Put(hra, 1, 1, 'A');
  EXPECT_EQ(ClosingScan(hra), SoundId::AmoebaEnclosed);
  EXPECT_FALSE(diary.Has("sound 12"));
}

TEST(AmoebaEnd, ATooBigOneTurnsToBouldersFromTheCellThatReachesTheLimitOn) {
  // 22 cells, so 5 are too many; those before the fifth follow one tick later.
  Diary diary;
  Hra hra = PlayBack({"1AAAAAAA;WJ", "WWWWWWWWWWW"}, {kQuiet, kQuiet, kQuiet}, {.script = "*A-M*F-M*E-M/Z"},
                     &diary);
  diary.Clear();
  Pass(hra);
  EXPECT_EQ(Drawn(hra), (Picture{"1AAAARRR;WJ", "WWWWWWWWWWW"}));
  EXPECT_EQ(hra.FieldState({5, 0}), kResting);
  EXPECT_EQ(hra.AmoebaState, kAmoebaTooBig);
  EXPECT_EQ(hra.CatPC, 5);
  EXPECT_EQ(diary.Count("message 102 green"), 1);
  EXPECT_EQ(diary.Count("sound 15"), 1);
  EXPECT_EQ(diary.Count("stop 13"), 3);
  EXPECT_EQ(diary.Count("cell 4,0"), 1);
  EXPECT_EQ(diary.Count("cell 5,0"), 2);

  diary.Clear();
  Pass(hra);
  EXPECT_EQ(Drawn(hra), (Picture{"1RRRRRRR;WJ", "WWWWWWWWWWW"}));
  EXPECT_FALSE(diary.Has("message 102 green"));
  EXPECT_EQ(diary.Count("sound 15"), 1);
}

TEST(AmoebaEnd, FourCellsOfTwentyTwoAreNotTooMany) {
  Hra hra = PlayBack({"1AAAA;WWWWW", "WWWWWWWWWWW"}, {kQuiet});
  Pass(hra);
  EXPECT_EQ(Drawn(hra), (Picture{"1AAAA;WWWWW", "WWWWWWWWWWW"}));
  EXPECT_EQ(hra.AmoebaState, kAmoebaSlow);
}

TEST(AmoebaEnd, TheLimitOfFiveTwentySecondsIsNotRounded) {
  // 16 cells: the limit is 3.64.
  Hra three = PlayBack({"1WWW", "WAAA", "WWW;", "WWWW"}, {kQuiet});
  Pass(three);
  EXPECT_EQ(three.AmoebaState, kAmoebaSlow);
  Hra four = PlayBack({"1WWW", "AAAA", "WWW;", "WWWW"}, {kQuiet});
  Pass(four);
  EXPECT_EQ(Drawn(four), (Picture{"1WWW", "AAAR", "WWW;", "WWWW"}));
}

TEST(AmoebaEnd, ATooBigOneStaysSoAndNeverTurnsToGems) {
  Diary diary;
  Hra hra = PlayBack({"1WWWW", "WAWWW", "WWWWW"}, {kQuiet}, {}, &diary);
  hra.AmoebaState = kAmoebaTooBig;
  diary.Clear();
  Pass(hra);
  EXPECT_EQ(Drawn(hra), (Picture{"1WWWW", "WRWWW", "WWWWW"}));
  EXPECT_EQ(hra.AmoebaState, kAmoebaTooBig);
  EXPECT_FALSE(diary.Has("message*"));
}

TEST(AmoebaEnd, EnclosedAndTooBigInOneScanGoesGemThenBoulderAndRaisesFThenE) {
  Diary diary;
  Hra hra = PlayBack({"1AAAAAAWWWJ", "WWWWWWWWWWW"}, {kQuiet}, {.script = "*A-M*F-M*E-M/Z"}, &diary);
  diary.Clear();
  Pass(hra);
  EXPECT_EQ(Drawn(hra), (Picture{"1DDDDRRWWWJ", "WWWWWWWWWWW"}));
  EXPECT_LT(diary.Place("message 101 green"), diary.Place("message 102 green"));
  EXPECT_EQ(diary.Count("message*"), 2);
  EXPECT_EQ(diary.Count("cell 5,0"), 3);  // as amoeba, as gem, as boulder
  EXPECT_EQ(hra.CatPC, 5);
  EXPECT_EQ(hra.AmoebaState, kAmoebaTooBig);
  EXPECT_EQ(SoundsOf(diary), (std::vector<SoundId>{SoundId::AmoebaDead}));
}

TEST(AmoebaEnd, FIsRaisedAlsoWhenEFollowsInTheSameScan) {
  Hra hra = PlayBack({"1AAAAAAWWWJ", "WWWWWWWWWWW"}, {kQuiet}, {.script = "*A-M*F-M/Z"});
  Pass(hra);
  EXPECT_EQ(hra.CatPC, 3);
}

TEST(AmoebaEnd, AQuietOneIsRepaintedOnceInATick) {
  Diary diary;
  Hra hra = PlayBack({"1WWWW", "WA;WW", "WWWWW"}, {kQuiet}, {}, &diary);
  diary.Clear();
  Pass(hra);
  EXPECT_EQ(diary.Count("cell 1,1"), 1);
  EXPECT_EQ(diary.Count("sound*"), 0);
  EXPECT_EQ(diary.Count("stop*"), 0);
}

TEST(AmoebaSpeed, TurnsFastAtTheSecondBeforeItsTime) {
  Diary diary;
  Hra hra =
      PlayBack({"1WWWW", "WA;WW", "WWWWW"}, std::vector<RecordTick>(11, kQuiet), {.amoebaTime = 2}, &diary);
  Pass(hra, 9);
  EXPECT_EQ(hra.AmoebaState, kAmoebaSlow);
  EXPECT_FALSE(diary.Has("message 103 green"));
  Pass(hra);
  EXPECT_EQ(hra.Elapsed, 10);
  EXPECT_EQ(hra.AmoebaState, kAmoebaFast);
  EXPECT_EQ(diary.Count("message 103 green"), 1);
  Pass(hra);
  EXPECT_EQ(diary.Count("message 103 green"), 1);
}

TEST(AmoebaSpeed, NeedsASlowAmoebaWithRoom) {
  Diary diary;
  Hra hra = Play({"1."}, {.amoebaTime = 1}, &diary);
  HurryAmoeba(hra);
  EXPECT_EQ(hra.AmoebaState, kAmoebaSlow);
  hra.AmoebaRoom = 1;
  for (const int state : {kAmoebaTooBig, kAmoebaEnclosed}) {
    hra.AmoebaState = state;
    HurryAmoeba(hra);
    EXPECT_EQ(hra.AmoebaState, state);
  }
  EXPECT_FALSE(diary.Has("message 103 green"));
  hra.AmoebaState = kAmoebaSlow;
  HurryAmoeba(hra);
  EXPECT_EQ(hra.AmoebaState, kAmoebaFast);
}

TEST(Biomass, NeverGrows) {
  Hra hra = Play({"1WWWWWW", "W;C.WCW", "W;WKCWW", "WWWWWWW"});
  Pass(hra, 50);
  EXPECT_EQ(Drawn(hra), (Picture{"1WWWWWW", "W;C.WCW", "W;WKCWW", "WWWWWWW"}));
}

TEST(Biomass, StopsTheDog) {
  Hra hra = Play({"1C."});
  Pass(hra, 20, "R");
  EXPECT_EQ(Drawn(hra), (Picture{"1C."}));
}

TEST(Biomass, BurnsLikeAnythingElse) {
  Hra hra = Play({"1WWWW", "WWCIW", "WWWWW"});
  Exploze(hra, {1, 1});
  EXPECT_EQ(hra.Field({2, 1}), kExplosion);
}

}  // namespace
}  // namespace zorik::test
