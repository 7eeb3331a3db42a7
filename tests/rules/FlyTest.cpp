#include <gtest/gtest.h>

#include "data/Result.h"
#include "support/Scene.h"

namespace zorik::test {
namespace {

constexpr std::array<Step, 5> kWays{Step{}, kUp, kRight, kDown, kLeft};
constexpr Cell kMiddle(2, 2);

// A fly in the open, with some of its ways walled up: 1 up, 2 right, 3 down, 4 left.
Hra Open(std::uint8_t mark, std::initializer_list<int> walls = {}) {
  Hra hra = Play({"1....", ".....", "..L..", ".....", "....."});
  hra.SetFieldMark(kMiddle, mark);
  for (const int wall : walls) {
    const Cell c = kMiddle + kWays[static_cast<std::size_t>(wall)];
    Put(hra, c.x(), c.y(), 'W');
  }
  return hra;
}

TEST(Fly, WithoutAHeadingDrawsOneAndFliesInTheSameTick) {
  for (const int heading : {1, 2, 3, 4}) {
    Hra hra = Open(0);
    Foretell(hra, {heading});
    Potvory(hra, kMiddle);
    const Cell target = kMiddle + kWays[static_cast<std::size_t>(heading)];
    EXPECT_EQ(hra.Field(target), kFly) << heading;
    EXPECT_EQ(hra.FieldMark(target), heading * 10) << heading;
    EXPECT_TRUE(Drained(hra));
  }
}

TEST(Fly, DrawsItsFirstHeadingFromOneToFour) {
  std::array<int, 5> seen{};
  for (int i = 0; i < 200; ++i) {
    Hra hra = Open(0);
    hra.Luck.Seed(static_cast<std::uint64_t>(i));
    const std::size_t before = hra.RecordText.size();
    Potvory(hra, kMiddle);
    ASSERT_EQ(hra.RecordText.size(), before + 1);
    ++seen.at(static_cast<std::size_t>(hra.RecordText.back() - 65));
  }
  EXPECT_EQ(seen[0], 0);
  for (const std::size_t heading : {1U, 2U, 3U, 4U}) EXPECT_GT(seen[heading], 0);
}

TEST(Fly, FliesStraightOnWhileItCanWithoutADraw) {
  for (const int heading : {1, 2, 3, 4}) {
    Hra hra = Open(static_cast<std::uint8_t>(heading));
    Foretell(hra, {});
    Potvory(hra, kMiddle);
    const Cell target = kMiddle + kWays[static_cast<std::size_t>(heading)];
    EXPECT_EQ(hra.Field(target), kFly);
    EXPECT_EQ(hra.FieldMark(target), heading * 10);
    EXPECT_EQ(hra.Field(kMiddle), kVacated);
    EXPECT_EQ(hra.FieldMark(kMiddle), 0);
    EXPECT_TRUE(Drained(hra));
  }
}

TEST(Fly, ThatIsBlockedTurnsInThisTickAndFliesInTheNext) {
  Hra hra = PlayBack({"1WWWWW", "WWW.WW", "W.L;WW", "WWWWWW"}, {{.before = {2, 2}}, {.before = {2}}});
  Pass(hra);  // drawn: right, which is dirt; of one free way there is no draw
  EXPECT_EQ(Drawn(hra)[2], "W.L;WW");
  EXPECT_EQ(hra.FieldMark({2, 2}), 4);
  Pass(hra);
  EXPECT_EQ(Drawn(hra)[2], "WL.;WW");
  EXPECT_TRUE(Drained(hra));
}

TEST(Fly, ThatIsBlockedTakesTheWayThatIsDrawn) {
  Hra hra = Open(1, {1});
  Foretell(hra, {4});
  Potvory(hra, kMiddle);
  EXPECT_EQ(hra.Field(kMiddle), kFly);
  EXPECT_EQ(hra.FieldMark(kMiddle), 40);
  EXPECT_TRUE(Drained(hra));
}

TEST(Fly, InACorridorFliesToTheEndAndTakesTheOneWayBack) {
  Hra hra =
      PlayBack({"1WWWWW", "WL..WW", "WWWWWW"},
               {{.before = {2, 2}}, {.before = {2}}, {.before = {2}}, {.before = {2}}, {.before = {2}}});
  Pass(hra, 2);
  EXPECT_EQ(Drawn(hra)[1], "W..LWW");
  Pass(hra);
  EXPECT_EQ(Drawn(hra)[1], "W..LWW");
  EXPECT_EQ(hra.FieldMark({3, 1}), 4);
  Pass(hra, 2);
  EXPECT_EQ(Drawn(hra)[1], "WL..WW");
}

TEST(Fly, WithoutAFreeNeighbourKeepsItsHeadingAndDrawsNothing) {
  for (const int heading : {1, 2, 3, 4}) {
    Hra hra = Open(static_cast<std::uint8_t>(heading), {1, 2, 3, 4});
    Foretell(hra, {});
    Potvory(hra, kMiddle);
    EXPECT_EQ(hra.FieldMark(kMiddle), heading * 10);
    EXPECT_TRUE(Drained(hra));
  }
}

TEST(Fly, TakesDirtAndVacatedCellsForBlocked) {
  Hra hra = Open(2);
  Put(hra, 3, 2, ';');
  hra.SetField({1, 2}, kVacated);
  Foretell(hra, {4, 2, 3});
  Potvory(hra, kMiddle);
  EXPECT_EQ(hra.FieldMark(kMiddle), 30);
  EXPECT_TRUE(Drained(hra));
}

TEST(Fly, ThatHasActedInThisTickDoesNothing) {
  for (const std::uint8_t mark : std::initializer_list<std::uint8_t>{5, 10, 20, 30, 40}) {
    Hra hra = Open(mark);
    Foretell(hra, {});
    Potvory(hra, kMiddle);
    EXPECT_EQ(hra.Field(kMiddle), kFly);
    EXPECT_EQ(hra.FieldMark(kMiddle), mark);
    EXPECT_TRUE(Drained(hra));
  }
}

TEST(Fly, KeepsNoHeadingWhenTheRecordHasRunDry) {
  Hra hra = Open(0);
  Foretell(hra, {});
  Potvory(hra, kMiddle);
  EXPECT_EQ(hra.Field(kMiddle), kFly);
  EXPECT_EQ(hra.FieldMark(kMiddle), 0);
}

TEST(Fly, KeepsNoHeadingWhenTheRecordHasRunDryAlsoWhereOneWayIsFree) {
  Hra hra = Open(0, {1, 2, 3});
  Foretell(hra, {});
  Potvory(hra, kMiddle);
  EXPECT_EQ(hra.Field(kMiddle), kFly);
  EXPECT_EQ(hra.FieldMark(kMiddle), 0);
}

// A mark cannot hold what is below 0, so it is not written.
TEST(Fly, KeepsNoHeadingWhereADamagedRecordNamesOneBelowNought) {
  for (const int drawn : {-1, -2, -60}) {
    Hra hra = Open(0, {1, 2, 3});
    Foretell(hra, {drawn});
    Potvory(hra, kMiddle);
    EXPECT_EQ(hra.Field(kMiddle), kFly) << drawn;
    EXPECT_EQ(hra.FieldMark(kMiddle), 0) << drawn;
    EXPECT_TRUE(Drained(hra));
  }
}

TEST(MouchaS, StrikesOutTheWayBackAndDrawsUntilAFreeWayComesUp) {
  // Way back of 1 up is 3, of 2 right is 4, and so on; the blocked way comes up in vain too.
  struct Row {
    int heading, wall, back, free;
  };
  for (const auto& [heading, wall, back, free] :
       {Row{1, 2, 3, 4}, {2, 3, 4, 1}, {3, 4, 1, 2}, {4, 1, 2, 3}}) {
    Hra hra = Open(0, {wall});
    Foretell(hra, {back, wall, back, free});
    EXPECT_EQ(MouchaS(hra, kMiddle, heading), free);
    EXPECT_TRUE(Drained(hra));
  }
}

TEST(MouchaS, MayAnswerTheWayStraightOn) {
  Hra hra = Open(0);
  Foretell(hra, {2});
  EXPECT_EQ(MouchaS(hra, kMiddle, 2), 2);
}

TEST(MouchaS, DrawsAlsoWhenOnlyOneOfTwoFreeWaysIsLeft) {
  Hra hra = Open(0, {1, 2});
  Foretell(hra, {1, 2, 3, 4});
  EXPECT_EQ(MouchaS(hra, kMiddle, 1), 4);
  EXPECT_TRUE(Drained(hra));
}

TEST(MouchaS, TakesTheOnlyFreeWayWithoutADrawAlsoBack) {
  for (const int only : {1, 2, 3, 4}) {
    for (const int heading : {1, 2, 3, 4}) {
      Hra hra = Open(0, {1, 2, 3, 4});
      const Cell c = kMiddle + kWays[static_cast<std::size_t>(only)];
      Put(hra, c.x(), c.y(), '.');
      Foretell(hra, {});
      EXPECT_EQ(MouchaS(hra, kMiddle, heading), only);
      EXPECT_TRUE(Drained(hra));
    }
  }
}

TEST(MouchaS, KeepsTheHeadingWithoutAFreeWay) {
  for (const int heading : {1, 2, 3, 4}) {
    Hra hra = Open(0, {1, 2, 3, 4});
    Foretell(hra, {});
    EXPECT_EQ(MouchaS(hra, kMiddle, heading), heading);
    EXPECT_TRUE(Drained(hra));
  }
}

TEST(MouchaS, DrawsFromOneToFour) {
  Hra hra = Open(0);
  hra.RecordText.clear();
  for (int i = 0; i < 500; ++i) MouchaS(hra, kMiddle, 1);
  for (const char letter : {'B', 'C', 'D', 'E'}) EXPECT_NE(hra.RecordText.find(letter), std::string::npos);
  EXPECT_EQ(hra.RecordText.find_first_not_of("BCDE"), std::string::npos);
}

TEST(MouchaS, ChangesNothingInTheCave) {
  Hra hra = Open(1, {2});
  const Picture before = Drawn(hra);
  Foretell(hra, {4});
  MouchaS(hra, kMiddle, 1);
  EXPECT_EQ(Drawn(hra), before);
  EXPECT_EQ(hra.FieldMark(kMiddle), 1);
}

TEST(MouchaS, AnswersTheOldHeadingWhenTheRecordRunsDry) {
  Hra hra = Open(0);
  Foretell(hra, {3, 0, 9});
  EXPECT_EQ(MouchaS(hra, kMiddle, 1), 1);
  EXPECT_TRUE(hra.RecordLine.empty());
}

TEST(MouchaS, DrawsOnInALaterTickOfARecordThatHasRunDryOnce) {
  // The first line ends before the amoeba's draw. The second tick's fly waits for 4 as ever.
  Hra hra(1);
  const Picture cave{"1WWWWW", "WW;WWW", "W.L.WW", "WW;WWW", "WWWWWW"};
  ASSERT_TRUE(Replay(hra, RecordOfLines(cave, {"B", LineOf({.before = {3, 3, 4, 2}})})));
  Pass(hra);  // heading 1 up is dirt; two ways are free, nothing is left to draw
  EXPECT_EQ(hra.FieldMark({2, 2}), 1);
  Pass(hra);
  EXPECT_EQ(hra.FieldMark({2, 2}), 4);
}

}  // namespace
}  // namespace zorik::test
