#include <gtest/gtest.h>

#include <cmath>

#include "soundmaker/Ear.h"
#include "soundmaker/Filters.h"

namespace zorik::sound::test {
namespace {

// What a filter leaves of a sine, as a factor; measured when it has settled.
double Left(const Filter& filter, double hertz, double shift = 1) {
  Samples samples = Sine(hertz, 1);
  Pass(filter, shift, false, samples);
  samples.erase(samples.begin(), samples.begin() + kRate / 2);
  return Strength(samples, hertz);
}

Filter Of(Filter::Kind kind, double hertz) {
  return {.kind = kind, .hertz = {{{0, hertz}}}};
}

TEST(Filters, HalveThePowerAtTheirPitch) {
  EXPECT_NEAR(Left(Of(Filter::Kind::kLow, 1000), 1000), std::sqrt(0.5), 1e-3);
  EXPECT_NEAR(Left(Of(Filter::Kind::kHigh, 1000), 1000), std::sqrt(0.5), 1e-3);
}

TEST(Filters, LetPassTheirSideAndTakeAwayTheOther) {
  EXPECT_NEAR(Left(Of(Filter::Kind::kLow, 1000), 100), 1, 1e-3);
  EXPECT_LT(Left(Of(Filter::Kind::kLow, 1000), 8000), 0.01);
  EXPECT_NEAR(Left(Of(Filter::Kind::kHigh, 1000), 8000), 1, 1e-3);
  EXPECT_NEAR(Left(Of(Filter::Kind::kHigh, 1000), 100), 0.01, 1e-3);
}

TEST(Filters, LetABandPassWhole) {
  Filter band = Of(Filter::Kind::kBand, 1000);
  band.q = 5;
  EXPECT_NEAR(Left(band, 1000), 1, 1e-3);
  EXPECT_LT(Left(band, 500), 0.15);
  EXPECT_LT(Left(band, 2000), 0.15);
}

TEST(Filters, RaiseAPeakByItsGain) {
  Filter peak = Of(Filter::Kind::kPeak, 1000);
  peak.q = 3;
  peak.gain = 12;
  EXPECT_NEAR(Left(peak, 1000), Gain(12), 0.01);
  EXPECT_NEAR(Left(peak, 60), 1, 0.02);
}

TEST(Filters, AreShiftedWithTheSound) {
  EXPECT_NEAR(Left(Of(Filter::Kind::kLow, 1000), 1500, 1.5), std::sqrt(0.5), 1e-3);
}

TEST(Filters, MoveWithTheirCurve) {
  const Filter falling{.kind = Filter::Kind::kLow, .hertz = {{{0, 9000}, {0.5, 200}}}};
  Samples samples = Sine(3000, 1);
  Pass(falling, 1, false, samples);
  EXPECT_GT(Level(samples, 0, 1000), 0.6);
  EXPECT_LT(Level(samples, 15000, 22050), 0.01);
}

TEST(Filters, HaveHeardALoopBeforeItBegins) {
  const Filter low = Of(Filter::Kind::kLow, 300);
  Samples once = Sine(100, 0.1), thrice = Sine(100, 0.3);
  Pass(low, 1, true, once);
  Pass(low, 1, false, thrice);
  for (std::size_t i = 0; i < once.size(); ++i) EXPECT_NEAR(once[i], thrice[once.size() * 2 + i], 1e-6);
}

}  // namespace
}  // namespace zorik::sound::test
