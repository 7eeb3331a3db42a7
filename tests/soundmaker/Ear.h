#pragma once

#include <algorithm>
#include <cmath>
#include <cstddef>

#include "soundmaker/Arithmetic.h"
#include "soundmaker/Filters.h"

namespace zorik::sound::test {

// The root of the mean square from one sample to before another.
inline double Level(const Samples& samples, std::size_t from, std::size_t to) {
  double sum = 0;
  for (std::size_t i = from; i < to; ++i) sum += samples[i] * samples[i];
  return std::sqrt(sum / static_cast<double>(to - from));
}

inline double Level(const Samples& samples) {
  return Level(samples, 0, samples.size());
}

// How strong a sine of this pitch is in the samples; 1 for a full one.
inline double Strength(const Samples& samples, double hertz) {
  double sine = 0, cosine = 0;
  for (std::size_t i = 0; i < samples.size(); ++i) {
    const double turns = hertz * static_cast<double>(i) / kRate;
    sine += samples[i] * SineOfTurns(turns);
    cosine += samples[i] * SineOfTurns(turns + 0.25);
  }
  return 2 * std::hypot(sine, cosine) / static_cast<double>(samples.size());
}

// A sine for some seconds.
inline Samples Sine(double hertz, double seconds) {
  Samples samples(static_cast<std::size_t>(seconds * kRate));
  for (std::size_t i = 0; i < samples.size(); ++i) {
    samples[i] = SineOfTurns(hertz * static_cast<double>(i) / kRate);
  }
  return samples;
}

}  // namespace zorik::sound::test
