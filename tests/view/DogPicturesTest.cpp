#include <gtest/gtest.h>

#include "support/Pictured.h"

namespace zorik {
namespace {

using test::Of;
using test::Pictured;

// The picture of the dog in the upper left cell after so many idle ticks.
int ColumnAfter(Pictured& cave, int idleTicks) {
  cave.hra.DogIdleTicks = idleTicks;
  PREKR(cave.hra, Cell(0, 0));
  return cave.At(0, 0).Col;
}

TEST(DogPictures, TurnToUsAfterThreeIdleTicks) {
  Pictured cave({"1."}, {}, 1);
  cave.hra.DogPose = kKeyLeft;
  EXPECT_EQ(ColumnAfter(cave, 2), 0);
  EXPECT_EQ(ColumnAfter(cave, 3), 1);
}

TEST(DogPictures, KeepTheDirectionUntilTheDogHasBeenIdleFor100Ticks) {
  Pictured cave({"1."}, {}, 1);
  cave.hra.DogPose = kKeyUp;
  EXPECT_EQ(ColumnAfter(cave, 100), 3);
  EXPECT_EQ(ColumnAfter(cave, 101), 5);
}

TEST(DogPictures, FollowTheTimesOfAnIdleDog) {
  Pictured cave({"1."}, {}, 1);
  struct Time {
    int from, to, column;
  };
  for (const auto& [from, to, column] :
       {Time{101, 139, 5}, {171, 190, 1}, {191, 220, 5}, {221, 280, 6}, {281, 299, 7}, {301, 400, 7}}) {
    for (int idle = from; idle <= to; ++idle) ASSERT_EQ(ColumnAfter(cave, idle), column) << idle;
  }
}

TEST(DogPictures, StandAsTheyWereBetweenTicks140And160) {
  Pictured cave({"1."}, {}, 1);
  for (const auto& [pose, column] : {std::pair(2, 5), {kKeyRight, 2}, {0, 1}}) {
    cave.hra.DogPose = pose;
    for (int idle = 140; idle <= 160; ++idle) ASSERT_EQ(ColumnAfter(cave, idle), column) << idle;
  }
}

TEST(DogPictures, BlinkBetweenTicks161And170) {
  Pictured cave({"1."}, {}, 1);
  for (int idle = 161; idle <= 170; ++idle) {
    EXPECT_EQ(ColumnAfter(cave, idle), idle % 2 == 1 ? 1 : 4) << idle;
  }
}

TEST(DogPictures, OfTwoDogsInACellAreThatOfTheHigherNumber) {
  Pictured cave({"1.2"}, {}, 1);
  cave.hra.Dog[2] = cave.hra.Dog[1];
  cave.hra.ActiveDog = 1;
  EXPECT_EQ(cave.Again(0, 0), Of(kDog, 8));
  cave.hra.ActiveDog = 2;
  EXPECT_EQ(cave.Again(0, 0), Of(kDog, 1));
}

TEST(DogPictures, OfADogWithoutANumberAreThoseOfTheSteeredOne) {
  Pictured cave({"1.."}, {}, 1);
  cave.hra.SetField({2, 0}, kDog);
  cave.hra.DogPose = kKeyRight;
  EXPECT_EQ(cave.Again(2, 0), Of(kDog, 2));
}

TEST(DogPictures, ShowAllDogsAtRestWhileTheSwarmIsSteered) {
  Pictured cave({"1.2N"}, {}, 1);
  cave.hra.ActiveDog = 0;
  EXPECT_EQ(cave.Again(0, 0), Of(kDog, 8));
  EXPECT_EQ(cave.Again(2, 0), Of(kDog, 8));
}

TEST(DogPictures, OfAPoseThatHasNoneAreTheFirstColumn) {
  Pictured cave({"1."}, {}, 1);
  cave.hra.DogPose = 5;
  EXPECT_EQ(cave.Again(0, 0), Of(kDog, 0));
}

}  // namespace
}  // namespace zorik
