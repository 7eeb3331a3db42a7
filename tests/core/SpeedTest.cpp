#include <gtest/gtest.h>

#include "core/Speed.h"

namespace zorik {
namespace {

TEST(ASpeed, GoesDownByOneForFasterAndUpForSlowerFromOneToTen) {
  EXPECT_EQ(ZmenRychlost(8, 1), 7);
  EXPECT_EQ(ZmenRychlost(8, -1), 9);
  EXPECT_EQ(ZmenRychlost(1, 1), 1);
  EXPECT_EQ(ZmenRychlost(10, -1), 10);
}

TEST(ASpeed, GivesAnIntervalOfTwentyMillisecondsAStepLessNineteen) {
  EXPECT_EQ(TimerInterval(1), 1);
  EXPECT_EQ(TimerInterval(2), 21);
  EXPECT_EQ(TimerInterval(8), 141);
  EXPECT_EQ(TimerInterval(10), 181);
}

}  // namespace
}  // namespace zorik
