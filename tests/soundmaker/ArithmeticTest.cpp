#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

#include "soundmaker/Arithmetic.h"

namespace zorik::sound {
namespace {

TEST(SoundArithmetic, HasTheSineOfAnyTurn) {
  for (int i = -4000; i <= 4000; ++i) {
    const double turns = i / 997.0;
    EXPECT_NEAR(SineOfTurns(turns), std::sin(2 * std::numbers::pi * turns), 1e-11) << turns;
  }
}

TEST(SoundArithmetic, HasThePowersOfTwo) {
  for (int i = -3000; i <= 3000; ++i) {
    const double x = i / 61.0;
    EXPECT_NEAR(PowerOfTwo(x) / std::exp2(x), 1, 1e-13) << x;
  }
}

TEST(SoundArithmetic, TakesTwentyDecibelsForAFactorOfTen) {
  EXPECT_NEAR(Gain(0), 1, 1e-15);
  EXPECT_NEAR(Gain(20), 10, 1e-12);
  EXPECT_NEAR(Gain(-60), 0.001, 1e-15);
}

TEST(SoundArithmetic, FadesToAThousandthInItsTime) {
  EXPECT_NEAR(std::pow(FadeFactor(0.5), kRate / 2), 0.001, 1e-12);
}

}  // namespace
}  // namespace zorik::sound
