#include "soundmaker/Finish.h"

#include <algorithm>
#include <cmath>
#include <string>

#include "data/Result.h"
#include "soundmaker/Arithmetic.h"

namespace zorik::sound {

namespace {

double SquareAt(const Stereo& stereo, std::size_t i) {
  return stereo.left[i] * stereo.left[i] + stereo.right[i] * stereo.right[i];
}

// The last moment of any sound but a loop sinks into silence.
void EndSoftly(Samples& samples) {
  const std::size_t ramp = std::min(samples.size() / 6, static_cast<std::size_t>(0.03 * kRate));
  for (std::size_t i = 0; i < ramp; ++i) {
    const double share = static_cast<double>(i) / static_cast<double>(ramp);
    samples[samples.size() - 1 - i] *= 0.5 - 0.5 * SineOfTurns(0.25 + share / 2);
  }
}

// What is left of a constant offset goes in a shape that is nothing at both ends.
void Centre(bool loop, Samples& samples) {
  double sum = 0;
  for (const double sample : samples) sum += sample;
  const double mean = sum / static_cast<double>(samples.size());
  for (std::size_t i = 0; i < samples.size(); ++i) {
    const double turns = static_cast<double>(i) / static_cast<double>(samples.size());
    samples[i] -= loop ? mean : mean * (1 - SineOfTurns(turns + 0.25));
  }
}

// Rest is a sample near zero that comes out of one near zero.
void BeginAtRest(Stereo& stereo) {
  const std::size_t size = stereo.left.size();
  std::size_t best = 0;
  double least = SquareAt(stereo, 0) + SquareAt(stereo, size - 1);
  for (std::size_t i = 1; i < size; ++i) {
    const double unrest = SquareAt(stereo, i) + SquareAt(stereo, i - 1);
    if (unrest < least) best = i;
    least = std::min(least, unrest);
  }
  for (Samples* samples : {&stereo.left, &stereo.right}) {
    std::rotate(samples->begin(), samples->begin() + static_cast<std::ptrdiff_t>(best), samples->end());
  }
}

void Amplify(double factor, Stereo& stereo) {
  for (double& sample : stereo.left) sample *= factor;
  for (double& sample : stereo.right) sample *= factor;
}

}  // namespace

double Loudness(const Stereo& stereo, bool loop) {
  constexpr std::size_t kWindow = kRate / 10;
  const std::size_t size = stereo.left.size();
  double sum = 0, loudest = 0;
  const std::size_t end = loop ? size + kWindow : size;
  for (std::size_t i = 0; i < end; ++i) {
    sum += SquareAt(stereo, i % size);
    if (i >= kWindow) sum -= SquareAt(stereo, i - kWindow);
    loudest = std::max(loudest, sum);
  }
  return std::sqrt(loudest / (2.0 * kWindow));
}

double Peak(const Stereo& stereo) {
  double peak = 0;
  for (const double sample : stereo.left) peak = std::max(peak, std::abs(sample));
  for (const double sample : stereo.right) peak = std::max(peak, std::abs(sample));
  return peak;
}

void Press(double drive, Stereo& stereo) {
  const double peak = Peak(stereo);
  if (peak == 0) return;
  const double factor = Gain(drive) / peak;
  for (Samples* samples : {&stereo.left, &stereo.right}) {
    for (double& sample : *samples) {
      const double x = std::clamp(sample * factor, -3.0, 3.0);
      sample = x * (27 + x * x) / (27 + 9 * x * x);
    }
  }
}

Result<Done> Finish(double loudness, bool loop, Stereo& stereo) {
  const Filter rumble{.kind = Filter::Kind::kHigh, .hertz = {{{0, 35}}}};
  for (Samples* samples : {&stereo.left, &stereo.right}) {
    Pass(rumble, 1, loop, *samples);
    if (!loop) EndSoftly(*samples);
    Centre(loop, *samples);
  }
  if (loop) BeginAtRest(stereo);
  const double now = Loudness(stereo, loop);
  if (now == 0) return Failure{"it is silent"};
  Amplify(Gain(loudness) / now, stereo);
  const double over = Peak(stereo) / Gain(kCeiling);
  if (over <= 1) return Done{};
  return Failure{"its peaks are " + std::to_string(over) + " times what they may be"};
}

}  // namespace zorik::sound
