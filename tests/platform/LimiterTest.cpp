#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <vector>

#include "platform/Limiter.h"

namespace zorik {
namespace {

constexpr double kPeriod = 64;

float ToneAt(std::size_t frame) {
  return static_cast<float>(std::sin(2 * std::numbers::pi * static_cast<double>(frame) / kPeriod));
}

TEST(Limiter, PassesWhatStaysBelowItsCeilingUnchanged) {
  Limiter limiter;
  for (std::size_t i = 0; i < 2000; ++i) {
    const SoundFrame out = limiter.Next({0.88F * ToneAt(i), -0.5F * ToneAt(i)});
    const std::size_t then = i - Limiter::kDelay;
    ASSERT_EQ(out.left, i < Limiter::kDelay ? 0 : 0.88F * ToneAt(then)) << "frame " << i;
    ASSERT_EQ(out.right, i < Limiter::kDelay ? 0 : -0.5F * ToneAt(then)) << "frame " << i;
  }
}

TEST(Limiter, NeverLetsAPeakPastItsCeilingWhereverItComes) {
  for (std::size_t start = 0; start < 2 * Limiter::kGlide; ++start) {
    Limiter limiter;
    for (std::size_t i = 0; i < 1000; ++i) {
      const float in = i == start + 200 ? 20.0F : i < start ? 0.0F : 3 * ToneAt(i);
      const SoundFrame out = limiter.Next({in, -in});
      ASSERT_LE(std::abs(out.left), Limiter::kCeiling * 1.0001F) << "frame " << i << ", start " << start;
      ASSERT_EQ(out.right, -out.left);
    }
  }
}

TEST(Limiter, TurnsASteadyToneDownWithoutBendingIt) {
  Limiter limiter;
  for (std::size_t i = 0; i < 4096; ++i) {
    const float out = limiter.Next({8 * ToneAt(i), 0}).left;
    if (i >= 1024) {
      ASSERT_NEAR(out, Limiter::kCeiling * ToneAt(i), 0.001) << "frame " << i;
    }
  }
}

TEST(Limiter, TurnsDownInAGlideThatBeginsBeforeThePeak) {
  Limiter limiter;
  float before = 0.1F;
  for (std::size_t i = 0; i < 600; ++i) {
    const float out = limiter.Next({i == 300 ? 8.9F : 0.1F, 0}).left;
    if (i <= Limiter::kDelay || i == 300 + Limiter::kDelay) continue;
    ASSERT_NEAR(out, before, 0.1 * 0.9 / (Limiter::kGlide - 2)) << "frame " << i;
    before = out;
  }
}

TEST(Limiter, IsBackAtFullVolumeAfterAQuarterOfASecond) {
  Limiter limiter;
  limiter.Next({100, 100});
  float out = 0;
  for (std::size_t i = 0; i < Limiter::kDelay + 22050 / 4 + 3 * Limiter::kGlide; ++i)
    out = limiter.Next({0.5F, 0.5F}).left;
  EXPECT_EQ(out, 0.5F);
}

}  // namespace
}  // namespace zorik
