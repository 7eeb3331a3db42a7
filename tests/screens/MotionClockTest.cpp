#include <gtest/gtest.h>

#include <QSignalSpy>

#include "screens/MotionClock.h"

namespace zorik {
namespace {

TEST(MotionClock, StandsAtTheEndOfTheWayUntilItRuns) {
  const MotionClock clock;
  EXPECT_FALSE(clock.Runs());
  EXPECT_EQ(clock.Way(), 1);
}

TEST(MotionClock, GoesFromOneTickToTheNextAndAsksForPictures) {
  MotionClock clock;
  QSignalSpy due(&clock, &MotionClock::Due);
  clock.Begin(200, 60);
  EXPECT_TRUE(clock.Runs());
  const double first = clock.Way();
  EXPECT_LT(first, 1);
  ASSERT_TRUE(due.wait());
  EXPECT_GT(clock.Way(), first);
  EXPECT_LE(clock.Way(), 1);
}

TEST(MotionClock, EndsWhereNobodyTicksAnyMore) {
  MotionClock clock;
  QSignalSpy due(&clock, &MotionClock::Due);
  clock.Begin(2, 1000);
  while (clock.Way() < 1) ASSERT_TRUE(due.wait());
  EXPECT_EQ(clock.Way(), 1);
}

// A screen of 60 pictures a second has one after 17 ms.
TEST(MotionClock, DoesNotRunWhereTicksComeAsOftenAsPictures) {
  MotionClock clock;
  clock.Begin(21, 60);
  EXPECT_FALSE(clock.Runs());
  clock.Begin(33, 60);
  EXPECT_FALSE(clock.Runs());
  clock.Begin(34, 60);
  EXPECT_TRUE(clock.Runs()) << "there is time for one between";
  clock.Begin(21, 60);
  EXPECT_FALSE(clock.Runs()) << "the game is faster now";
}

TEST(MotionClock, EndsWhenItIsTold) {
  MotionClock clock;
  clock.Begin(1000, 60);
  clock.End();
  EXPECT_FALSE(clock.Runs());
  EXPECT_EQ(clock.Way(), 1);
}

}  // namespace
}  // namespace zorik
