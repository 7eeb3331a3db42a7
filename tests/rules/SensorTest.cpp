#include <gtest/gtest.h>

#include "support/Scene.h"

namespace zorik::test {
namespace {

const RecordTick kQuiet{.before = {2}};

// A sensor alone among steel, far from the dog.
const Picture kAlone{"1WWWW", "WWWWW", "WWGWW", "WWWWW"};
constexpr Cell kSensorCell(2, 2);

int MarkAfterRepaintOf(char letter) {
  Hra hra = Play({"1WWWW", "WWG.W", "WWWWW"});
  Put(hra, 3, 1, letter);
  hra.SensorsListen = true;
  PREKR(hra, {3, 1});
  return hra.FieldMark({2, 1});
}

TEST(SensorTest, ArmsTheIdleSensorsAtTheFourSidesOfTheCell) {
  Hra hra = Play({"1WWWWW", "WGGGWW", "WG.GWG", "WGGGWW"});
  TestCidla(hra, {2, 2});
  for (int y = 1; y <= 3; ++y) {
    for (int x = 1; x <= 3; ++x) {
      const bool beside = (x == 2) != (y == 2);
      EXPECT_EQ(hra.FieldMark({x, y}), beside ? 1 : 0) << x << "," << y;
    }
  }
  EXPECT_EQ(hra.FieldMark({5, 2}), 0);
}

TEST(SensorTest, LeavesSensorsAloneThatCount) {
  for (const std::uint8_t mark : std::initializer_list<std::uint8_t>{1, 2, 17, 29}) {
    Hra hra = Play(kAlone);
    hra.SetFieldMark(kSensorCell, mark);
    TestCidla(hra, kSensorCell + kLeft);
    EXPECT_EQ(hra.FieldMark(kSensorCell), mark);
  }
}

TEST(SensorTest, MarksNothingButSensors) {
  Hra hra = Play({"1WLWW", "WR.XW", "WWSWW"});
  TestCidla(hra, {2, 1});
  for (const Cell c : {Cell(2, 0), Cell(1, 1), Cell(3, 1), Cell(2, 2)}) EXPECT_EQ(hra.FieldMark(c), 0);
}

TEST(Sensor, ThatIsArmedBeginsToCountInTheNextOpeningScan) {
  Hra hra = Play(kAlone);
  hra.SetFieldMark(kSensorCell, 1);
  ClosingScan(hra);
  EXPECT_EQ(hra.FieldMark(kSensorCell), 1);
  ExplosionScan(hra);
  EXPECT_EQ(hra.FieldMark(kSensorCell), 2);
  ExplosionScan(hra);
  EXPECT_EQ(hra.FieldMark(kSensorCell), 2);
  ClosingScan(hra);
  EXPECT_EQ(hra.FieldMark(kSensorCell), 3);
}

TEST(Sensor, ThatIsIdleStaysSo) {
  Hra hra = PlayBack(kAlone, std::vector<RecordTick>(40, kQuiet));
  Pass(hra, 40);
  EXPECT_EQ(Drawn(hra), kAlone);
  EXPECT_EQ(hra.FieldMark(kSensorCell), 0);
}

TEST(Sensor, ArmedInATickShowsTwoInTheNextAndExplodesTwentyEightTicksAfterIt) {
  std::vector<RecordTick> ticks(40, kQuiet);
  ticks[0].before = {1, 1};
  Diary diary;
  Hra hra = PlayBack({"1WWWWWW", "WWGWWWW", "WA.;WWW", "WWWWWWW"}, ticks, {}, &diary);
  const Cell sensor(2, 1);
  Pass(hra);
  EXPECT_EQ(hra.FieldMark(sensor), 1);
  Hra opening = hra;
  ExplosionScan(opening);
  EXPECT_EQ(opening.FieldMark(sensor), 2);
  // The closing scan of each tick counts on.
  for (int mark = 3; mark < 30; ++mark) {
    Pass(hra);
    ASSERT_EQ(hra.FieldMark(sensor), mark);
    ASSERT_EQ(hra.Field(sensor), kSensor);
  }
  EXPECT_FALSE(diary.Has("sound 14"));
  Pass(hra);
  EXPECT_EQ(hra.Ticks, 1 + 28);
  EXPECT_EQ(hra.Field(sensor), kExplosion);
  EXPECT_EQ(hra.FieldMark(sensor), 5);
  EXPECT_EQ(diary.Count("sound 14"), 1);
  Pass(hra);
  EXPECT_EQ(hra.FieldMark(sensor), 6);
  Pass(hra);
  EXPECT_EQ(hra.FieldMark(sensor), 7);
  Pass(hra);
  EXPECT_EQ(Drawn(hra), (Picture{"1WWWWWW", "WW.WWWW", "WAA;WWW", "WWWWWWW"}));
}

TEST(Sensor, BlowsUpItsOwnCellOnly) {
  Hra hra = Play({"1;;;;", ";;;;;", ";;G;;", ";;;;;"});
  hra.SetFieldMark(kSensorCell, 29);
  Pass(hra);
  EXPECT_EQ(Drawn(hra), (Picture{"1;;;;", ";;;;;", ";;x;;", ";;;;;"}));
}

TEST(Sensor, AtItsEndSoundsAtOnceAndIsNotRepaintedInThatTick) {
  Diary diary;
  Hra hra = Play({"1XXXX", "XXXXX", "XXGXS", "XXXXX"}, {}, &diary);
  hra.SetFieldMark(kSensorCell, 29);
  diary.Clear();
  EXPECT_EQ(ClosingScan(hra), std::nullopt);
  EXPECT_EQ(diary.entries, (std::vector<std::string>{"sound 14", "cell 4,2"}));
}

TEST(Sensor, IsRepaintedAtEvenCountsAndTicksAtEveryFourth) {
  for (int mark = 2; mark < 29; ++mark) {
    Diary diary;
    Hra hra = Play(kAlone, {}, &diary);
    hra.SetFieldMark(kSensorCell, static_cast<std::uint8_t>(mark));
    diary.Clear();
    EXPECT_EQ(ClosingScan(hra), (mark + 1) % 4 == 0 ? std::optional(SoundId::Sensor) : std::nullopt) << mark;
    EXPECT_EQ(diary.Count("cell 2,2"), (mark + 1) % 2 == 0 ? 1 : 0) << mark;
    EXPECT_FALSE(diary.Has("sound*"));
  }
}

TEST(Sensor, SoundsOnceHoweverManyCount) {
  Diary diary;
  Hra hra = Play({"1WWW", "WWWW", "WGWG"}, {}, &diary);
  hra.SetFieldMark({1, 2}, 7);
  hra.SetFieldMark({3, 2}, 11);
  diary.Clear();
  Pass(hra);
  EXPECT_EQ(SoundsOf(diary), (std::vector<SoundId>{SoundId::Sensor}));
}

TEST(Sensor, TheLastOneThatTheScanMeetsChoosesTheSound) {
  // An enclosed amoeba before and behind a sensor that ticks.
  Hra before = Play({"1WWWW", "WWWWW", "WAWGW", "WWWWW"});
  before.SetFieldMark({3, 2}, 7);
  EXPECT_EQ(ClosingScan(before), SoundId::Sensor);
  Hra behind = Play({"1WWWW", "WWWWW", "WGWAW", "WWWWW"});
  behind.SetFieldMark({1, 2}, 7);
  EXPECT_EQ(ClosingScan(behind), SoundId::AmoebaEnclosed);
  Hra quiet = Play({"1WWWW", "WWWWW", "WAWGW", "WWWWW"});
  quiet.SetFieldMark({3, 2}, 8);
  EXPECT_EQ(ClosingScan(quiet), SoundId::AmoebaEnclosed);
}

TEST(Sensor, WithAmoebaAllRoundThatGrewBeforeTheCaveBeganIsNotArmed) {
  Hra hra = PlayBack({"1WWWWWWW", "WWWAWWWW", "WWAGAWWW", "WWWA;WWW"}, std::vector<RecordTick>(10, kQuiet));
  EXPECT_EQ(hra.FieldMark({3, 2}), 0);
  Pass(hra, 10);
  EXPECT_EQ(Drawn(hra), (Picture{"1WWWWWWW", "WWWAWWWW", "WWAGAWWW", "WWWA;WWW"}));
  EXPECT_EQ(hra.FieldMark({3, 2}), 0);
}

TEST(Sensor, ThatCountsIsNotResetByASecondGrowth) {
  std::vector<RecordTick> ticks(6, kQuiet);
  ticks[0].before = {1, 1};
  ticks[4].before = {1, 1};
  Hra hra = PlayBack({"1WWWWWWW", "WA.GW;;W", "WWW;AWWW", "WWWWWWWW"}, ticks);
  Pass(hra, 5);
  EXPECT_EQ(Drawn(hra)[1], "WAAGW;;W");
  EXPECT_EQ(Drawn(hra)[2], "WWWAAWWW");
  EXPECT_EQ(hra.FieldMark({3, 1}), 6);
}

TEST(Sensor, StopsTheDogDoesNotFallAndBurns) {
  Hra hra = Play({"1GW", "W.W", "W.W"});
  Pass(hra, 10, "R");
  EXPECT_EQ(Drawn(hra), (Picture{"1GW", "W.W", "W.W"}));
  Exploze(hra, {1, 1});
  EXPECT_EQ(hra.Field({1, 0}), kExplosion);
}

TEST(Sensor, HearsTheRepaintingOfWhatStirsAndOfAllThatIsNotFlat) {
  for (const char letter : std::string(".1FOPQUYZBTKIEVLNJ:RDX!@#%^&$")) {
    EXPECT_EQ(MarkAfterRepaintOf(letter), 1) << letter;
  }
}

TEST(Sensor, DoesNotHearTheRepaintingOfOtherFlatThings) {
  for (const char letter : std::string(";MWASGC")) EXPECT_EQ(MarkAfterRepaintOf(letter), 0) << letter;
}

TEST(Sensor, HearsExplosionsAndNoVacatedCell) {
  Hra hra = Live({"1WWWWWW", "WGxWG-W", "WWWWWWW"});
  hra.SensorsListen = true;
  PREKR(hra, {2, 1});
  PREKR(hra, {5, 1});
  EXPECT_EQ(hra.FieldMark({1, 1}), 1);
  EXPECT_EQ(hra.FieldMark({4, 1}), 0);
}

TEST(Sensor, HearsNothingWhileACaveIsSetUp) {
  Hra hra = Play({"1WWWW", "WDGRW", "WW.WW"});
  EXPECT_EQ(hra.FieldMark({2, 1}), 0);
  Pass(hra);
  EXPECT_EQ(hra.FieldMark({2, 1}), 1);  // the gem glitters
}

TEST(Sensor, BesideTheCatIsArmedAndCountsInOneTickSinceTheCatComesFirst) {
  Hra hra = PlayBack({"1WWWW", "WWJGW", "WWWWW"}, {kQuiet}, {.script = "*A/Z"});
  Pass(hra);
  EXPECT_EQ(hra.FieldMark({3, 1}), 3);
}

TEST(Sensor, BehindABurningCellCountsInTheSameTickAndOneBeforeItInTheNext) {
  Hra hra = Live({"1WWWW", "WGxGW", "WWWWW"});
  Pass(hra);
  EXPECT_EQ(hra.FieldMark({3, 1}), 3);
  EXPECT_EQ(hra.FieldMark({1, 1}), 1);
}

TEST(Sensor, HearsTheDogThatStandsBesideIt) {
  Hra hra = Play({"1G"});
  Pass(hra);
  EXPECT_EQ(hra.FieldMark({1, 0}), 1);
}

TEST(Sensor, HearsNothingAfterTheWinningStep) {
  const Picture cave{"1TWWW", "WWWWW", "WWGDW"};
  Hra won = Play(cave, {.needed = 0});
  EXPECT_EQ(Pass(won, 1, "R"), TickEnd::Won);
  EXPECT_EQ(won.FieldMark({2, 2}), 0);
  Hra waiting = Play(cave, {.needed = 0});
  Pass(waiting);
  EXPECT_EQ(waiting.FieldMark({2, 2}), 1);
}

TEST(Sensor, HearsNothingInTheRestOfATickAfterARestart) {
  Hra hra = Play({"1WWW", "WDGW"});
  KeySnapshot keys;
  keys.down[kKeyR] = keys.down[kKeyCtrl] = true;
  EXPECT_EQ(Tick(hra, keys), TickEnd::Restarted);
  EXPECT_EQ(hra.FieldMark({2, 1}), 0);
  Pass(hra);
  EXPECT_EQ(hra.FieldMark({2, 1}), 1);
}

TEST(Sensor, HearsAChangeOfTheUnitOnceAndAKeyThatChangesNothingNot) {
  Hra hra = Play({"1GWWG2"});
  hra.SensorsListen = true;
  Klavesy(hra, Keys("1"));
  EXPECT_EQ(hra.FieldMark({1, 0}), 0);
  Klavesy(hra, Keys("3"));
  EXPECT_EQ(hra.FieldMark({1, 0}), 0);
  Klavesy(hra, Keys("2"));
  EXPECT_EQ(hra.ActiveDog, 2);
  EXPECT_EQ(hra.FieldMark({1, 0}), 1);
  EXPECT_EQ(hra.FieldMark({4, 0}), 1);
}

}  // namespace
}  // namespace zorik::test
