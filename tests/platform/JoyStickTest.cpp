#include <gtest/gtest.h>

#include "platform/JoyStick.h"

namespace zorik {
namespace {

constexpr int kMiddle = 32768;
constexpr int kEnd = 65535;
constexpr JoyInfo kRest{kMiddle, kMiddle, 0};

// A stick that was read at rest.
JoyStick Stick() {
  JoyStick stick;
  stick.JoyInit(kRest);
  return stick;
}

int DirectionAt(JoyStick& stick, int x, int y) {
  stick.Read({x, y, 0});
  return stick.JoyDirection(2);
}

TEST(JoyStick, GivesNoDirectionWhenItWasNotMoved) {
  JoyStick stick = Stick();
  for (int tick = 0; tick < 5; ++tick) EXPECT_EQ(stick.JoyDirection(2), 0);
}

TEST(JoyStick, TellsTheFourDirections) {
  JoyStick stick = Stick();
  EXPECT_EQ(DirectionAt(stick, 0, kMiddle), 1);
  EXPECT_EQ(DirectionAt(stick, kMiddle, 0), 2);
  EXPECT_EQ(DirectionAt(stick, kEnd, kMiddle), 3);
  EXPECT_EQ(DirectionAt(stick, kMiddle, kEnd), 4);
}

TEST(JoyStick, LetsTheDirectionPushedLastWin) {
  JoyStick stick = Stick();
  EXPECT_EQ(DirectionAt(stick, 0, kMiddle), 1);
  EXPECT_EQ(DirectionAt(stick, 0, 0), 2);
  EXPECT_EQ(DirectionAt(stick, 0, 0), 2);
  EXPECT_EQ(DirectionAt(stick, 0, kMiddle), 1);
}

TEST(JoyStick, CancelsTwoDirectionsOfOneTickUntilOneIsLetGo) {
  JoyStick stick = Stick();
  EXPECT_EQ(DirectionAt(stick, 0, 0), 0);
  EXPECT_EQ(DirectionAt(stick, 0, 0), 0);
  EXPECT_EQ(DirectionAt(stick, kMiddle, 0), 2);
}

TEST(JoyStick, HasADeadZoneOfHalfTheCentresValue) {
  JoyStick stick = Stick();
  EXPECT_EQ(DirectionAt(stick, kMiddle / 2, kMiddle), 0);
  EXPECT_EQ(DirectionAt(stick, kMiddle / 2 - 1, kMiddle), 1);
  EXPECT_EQ(DirectionAt(stick, kMiddle + kMiddle / 2, kMiddle), 0);
  EXPECT_EQ(DirectionAt(stick, kMiddle + kMiddle / 2 + 1, kMiddle), 3);
}

TEST(JoyStick, TakesWhereItWasFirstReadForTheCentre) {
  JoyStick stick;
  stick.JoyInit({24000, 40000, 0});
  EXPECT_EQ(stick.JoyDirection(2), 0);
  EXPECT_EQ(DirectionAt(stick, 11999, 40000), 1);
  EXPECT_EQ(DirectionAt(stick, 36001, 40000), 3);
  EXPECT_EQ(DirectionAt(stick, 24000, 19999), 2);
  EXPECT_EQ(DirectionAt(stick, 24000, 60001), 4);
}

TEST(JoyStick, TakesTheMiddleForTheCentreOfAnAxisThatWasFirstReadOutsideOfTheMiddleThird) {
  for (const int pushed : {0, 21844, 43691, kEnd}) {
    JoyStick stick;
    stick.JoyInit({pushed, kMiddle, 0});
    EXPECT_EQ(DirectionAt(stick, kMiddle, kMiddle), 0) << pushed;
    EXPECT_EQ(DirectionAt(stick, kMiddle / 2, kMiddle), 0) << pushed;
    EXPECT_EQ(DirectionAt(stick, kMiddle / 2 - 1, kMiddle), 1) << pushed;
  }
  for (const int rests : {21845, 43690}) {
    JoyStick stick;
    stick.JoyInit({kMiddle, rests, 0});
    EXPECT_EQ(DirectionAt(stick, kMiddle, (rests + 1) / 2), 0) << rests;
    EXPECT_EQ(DirectionAt(stick, kMiddle, (rests + 1) / 2 - 1), 2) << rests;
  }
}

TEST(JoyStick, StopsWhereItIsLetGoHoweverSlowlyItGoesBack) {
  JoyStick stick = Stick();
  EXPECT_EQ(DirectionAt(stick, kEnd, kMiddle), 3);
  stick.Read({55000, kMiddle, 0});
  stick.Read({40000, kMiddle, 0});
  EXPECT_EQ(DirectionAt(stick, kMiddle, kMiddle), 0);
}

TEST(JoyStick, CountsAPushThatIsOverForOneTick) {
  JoyStick stick = Stick();
  stick.Read({0, kMiddle, 0});
  stick.Read(kRest);
  EXPECT_EQ(stick.JoyDirection(2), 1);
  EXPECT_EQ(stick.JoyDirection(2), 0);
}

TEST(JoyStick, ThatIsMoreSensitiveHasASmallerDeadZone) {
  JoyStick stick = Stick();
  stick.Read({kMiddle * 3 / 4 - 1, kMiddle, 0});
  EXPECT_EQ(stick.JoyDirection(2), 0);
  EXPECT_EQ(stick.JoyDirection(4), 1);
}

TEST(JoyStick, GoesOnFromItsLastValuesWhenItCannotBeRead) {
  JoyStick stick = Stick();
  EXPECT_EQ(DirectionAt(stick, 0, kMiddle), 1);
  EXPECT_EQ(stick.JoyDirection(2), 1);
  EXPECT_EQ(DirectionAt(stick, 0, 0), 2) << "left has been held for two ticks more";
}

TEST(JoyStick, StillSteersAfterATimeThatNoCounterHolds) {
  JoyStick stick = Stick();
  stick.Read({0, kMiddle, 0});
  for (int tick = 0; tick < 2500; ++tick) ASSERT_EQ(stick.JoyDirection(2), 1) << "in tick " << tick;
  EXPECT_EQ(DirectionAt(stick, 0, kEnd), 4);
}

TEST(JoyStick, KnowsTwoButtons) {
  JoyStick stick = Stick();
  stick.Read({kMiddle, kMiddle, 0xFE});
  EXPECT_EQ(stick.JoyButtons(), 2);
  stick.Read({kMiddle, kMiddle, 0xFD});
  EXPECT_EQ(stick.JoyButtons(), 1);
  stick.Read({kMiddle, kMiddle, 0xFF});
  EXPECT_EQ(stick.JoyButtons(), 3);
  stick.Read({kMiddle, kMiddle, 0xFC});
  EXPECT_EQ(stick.JoyButtons(), 0);
}

}  // namespace
}  // namespace zorik
