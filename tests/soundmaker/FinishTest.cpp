#include <gtest/gtest.h>

#include "data/Result.h"
#include "soundmaker/Ear.h"
#include "soundmaker/Finish.h"

namespace zorik::sound::test {
namespace {

Stereo Both(const Samples& samples) {
  return {samples, samples};
}

TEST(Loudness, IsThatOfTheLoudestTenthOfASecond) {
  Samples samples(kRate, 0.0);
  std::fill(samples.begin() + 5000, samples.begin() + 5000 + kRate / 10, 0.5);
  EXPECT_NEAR(Loudness(Both(samples), false), 0.5, 1e-9);
  EXPECT_NEAR(Loudness({samples, Samples(kRate, 0.0)}, false), 0.5 * std::sqrt(0.5), 1e-9);
}

TEST(Loudness, CountsWhatIsMissingOfAShortSoundAsSilence) {
  EXPECT_NEAR(Loudness(Both(Samples(kRate / 20, 0.5)), false), 0.5 * std::sqrt(0.5), 1e-3);
}

TEST(Loudness, OfALoopGoesRoundItsEnd) {
  Samples samples(kRate, 0.0);
  std::fill(samples.begin(), samples.begin() + kRate / 20, 0.5);
  std::fill(samples.end() - kRate / 20, samples.end(), 0.5);
  EXPECT_NEAR(Loudness(Both(samples), true), 0.5, 1e-3);
  EXPECT_NEAR(Loudness(Both(samples), false), 0.5 * std::sqrt(0.5), 1e-3);
}

TEST(Finish, GivesTheLoudnessAskedFor) {
  for (const bool loop : {false, true}) {
    Stereo stereo = Both(Sine(440, 0.5));
    ASSERT_TRUE(Finish(-20, loop, stereo));
    EXPECT_NEAR(Loudness(stereo, loop), 0.1, 1e-6);
  }
}

TEST(Finish, RefusesPeaksAboveTheCeiling) {
  Stereo loud = Both(Sine(440, 0.5)), silent = Both(Samples(1000, 0.0));
  EXPECT_TRUE(Finish(-6.1, true, loud));  // a sine's peaks are 3.01 decibels above its loudness
  EXPECT_FALSE(Finish(-5.9, true, loud));
  EXPECT_FALSE(Finish(-20, false, silent));
}

TEST(Finish, EndsInSilence) {
  Stereo stereo = Both(Sine(441, 0.3));
  ASSERT_TRUE(Finish(-20, false, stereo));
  EXPECT_NEAR(stereo.left.back(), 0, 1e-6);
  EXPECT_LT(Level(stereo.left, stereo.left.size() - 22, stereo.left.size()), 0.001);
}

TEST(Finish, BeginsALoopAtRestAndKeepsItsCircle) {
  Samples samples = Sine(100, 1);
  std::rotate(samples.begin(), samples.begin() + 55, samples.end());
  ASSERT_GT(samples.front(), 0.9);
  Stereo stereo = Both(samples);
  ASSERT_TRUE(Finish(-20, true, stereo));
  EXPECT_NEAR(stereo.left.front(), 0, 0.005);
  EXPECT_NEAR(stereo.left.back(), 0, 0.005);
}

TEST(Finish, TakesAwayAnOffset) {
  for (const bool loop : {false, true}) {
    Samples samples = Sine(440, 0.5);
    for (double& sample : samples) sample += 0.7;
    Stereo stereo = Both(samples);
    ASSERT_TRUE(Finish(-20, loop, stereo));
    double sum = 0;
    for (const double sample : stereo.left) sum += sample;
    EXPECT_NEAR(sum / static_cast<double>(stereo.left.size()), 0, 1e-9);
  }
}

TEST(Press, FlattensPeaksAndLeavesWhatIsSoft) {
  Samples samples = Sine(441, 1);
  for (std::size_t i = samples.size() / 2; i < samples.size(); ++i) samples[i] /= 100;
  Stereo stereo = Both(samples);
  Press(6, stereo);
  EXPECT_LT(Peak(stereo), 1);
  EXPECT_GT(Level(stereo.left, 0, 10000) / Peak(stereo), 0.75);
  EXPECT_NEAR(Level(stereo.left, 12000, 22000), Gain(6) / 100 * std::sqrt(0.5), 1e-4);
}

}  // namespace
}  // namespace zorik::sound::test
