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
  stick.JoyInit({20000, 40000, 0});
  EXPECT_EQ(stick.JoyDirection(2), 0);
  EXPECT_EQ(DirectionAt(stick, 9999, 40000), 1);
  EXPECT_EQ(DirectionAt(stick, 30001, 40000), 3);
  EXPECT_EQ(DirectionAt(stick, 20000, 19999), 2);
  EXPECT_EQ(DirectionAt(stick, 20000, 60001), 4);
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
  stick.Read({kMiddle, kMiddle, 0xFF});
  EXPECT_EQ(stick.JoyButtons(), 3);
  stick.Read({kMiddle, kMiddle, 0xFC});
  EXPECT_EQ(stick.JoyButtons(), 0);
}

}  // namespace
}  // namespace zorik
