#include "soundmaker/Synth.h"

#include <algorithm>
#include <cmath>
#include <optional>

#include "data/Chance.h"
#include "soundmaker/Arithmetic.h"

namespace zorik::sound {

namespace {

std::size_t SamplesIn(double seconds) {
  return static_cast<std::size_t>(std::max(0.0, std::floor(seconds * kRate + 0.5)));
}

// From 0 to 1, 1 excluded.
double Portion(Chance& chance) {
  return chance.Below(1U << 24U) / static_cast<double>(1U << 24U);
}

// From -1 to 1.
double Either(Chance& chance) {
  return 2 * Portion(chance) - 1;
}

// One sounding of a layer.
struct Grain {
  std::size_t length = 0;
  double shift = 1;
  bool endless = false;
};

// In a loop only what comes round a whole number of times has no seam.
double Rounded(double hertz, const Grain& grain) {
  if (!grain.endless) return hertz;
  const double turn = static_cast<double>(grain.length) / kRate;
  return std::max(1.0, std::floor(hertz * turn + 0.5)) / turn;
}

double Swung(const Swing& swing, double time, const Grain& grain) {
  return swing.depth > 0 ? swing.depth * SineOfTurns(Rounded(swing.hertz, grain) * time) : 0;
}

// Fades a partial out before it would fold back from the end of what the sample rate carries.
double Audible(double hertz) {
  constexpr double kFrom = 9000, kTo = 10500;
  return std::clamp((kTo - hertz) / (kTo - kFrom), 0.0, 1.0);
}

void AddPartial(const Layer& layer, const Partial& partial, const Grain& grain, Samples& samples) {
  const double hertz = Rounded(*layer.hertz * partial.ratio * grain.shift, grain);
  const double fall = partial.fade ? FadeFactor(*partial.fade) : 1;
  double turns = 0, level = partial.level;
  for (std::size_t i = 0; i < grain.length; ++i) {
    const double time = static_cast<double>(i) / kRate;
    const double bend = layer.pitch.Given() ? layer.pitch.At(time) : 1;
    const double now = hertz * bend * (1 + Swung(layer.vibrato, time, grain));
    samples[i] += level * Audible(now) * SineOfTurns(turns);
    turns += now / kRate;
    turns -= std::floor(turns);
    level *= fall;
  }
}

Samples Source(const Layer& layer, const Grain& grain, Chance& chance) {
  Samples samples(grain.length, 0.0);
  if (!layer.hertz) {
    for (double& sample : samples) sample = Either(chance);
  } else if (layer.partials.empty()) {
    AddPartial(layer, {}, grain, samples);
  } else {
    for (const Partial& partial : layer.partials) AddPartial(layer, partial, grain, samples);
  }
  return samples;
}

// Half a wave of a cosine from 0 to 1, in this many seconds.
double Ramp(double time, double seconds) {
  if (time >= seconds) return 1;
  return 0.5 - 0.5 * SineOfTurns(0.25 + 0.5 * time / seconds);
}

void Shape(const Layer& layer, const Grain& grain, Samples& samples) {
  const double fall = layer.fade ? FadeFactor(*layer.fade) : 1;
  double level = 1;
  for (std::size_t i = 0; i < grain.length; ++i) {
    const double time = static_cast<double>(i) / kRate;
    samples[i] *= level * (1 + Swung(layer.tremolo, time, grain));
    if (layer.level.Given()) samples[i] *= layer.level.At(time);
    if (!grain.endless) {
      const double left = static_cast<double>(grain.length - i) / kRate;
      samples[i] *= Ramp(time, layer.attack) * Ramp(left, layer.release);
    }
    level *= fall;
  }
}

// A loop takes up at its beginning what lasts beyond its end; any other sound ends there.
void Mix(const Samples& samples, std::size_t start, double gain, double pan, bool loop, Stereo& stereo) {
  const double left = gain * std::sqrt(1 - pan), right = gain * std::sqrt(1 + pan);
  const std::size_t size = stereo.left.size();
  for (std::size_t i = 0; i < samples.size(); ++i) {
    std::size_t at = start + i;
    if (at >= size && !loop) return;
    at %= size;
    stereo.left[at] += left * samples[i];
    stereo.right[at] += right * samples[i];
  }
}

// Where and how one sounding of a layer is placed; times in seconds.
struct Place {
  double at = 0;
  std::optional<double> length;  // none: to the end of the sound, or for ever in a loop
  double gain = 1, pan = 0, shift = 1;
};

void PlayOnce(const Layer& layer, const Place& place, bool loop, Chance& chance, Stereo& stereo) {
  const std::size_t size = stereo.left.size(), start = SamplesIn(place.at);
  if (start >= size && !loop) return;
  Grain grain{.length = size, .shift = place.shift, .endless = loop && !place.length};
  if (!loop) grain.length -= start;
  if (place.length) grain.length = SamplesIn(*place.length);
  Samples samples = Source(layer, grain, chance);
  for (const Filter& filter : layer.filters) Pass(filter, grain.shift, grain.endless, samples);
  Shape(layer, grain, samples);
  Mix(samples, start, Gain(layer.gain) * place.gain, place.pan, loop, stereo);
}

void PlayScattered(const Layer& layer, const Order& order, Chance& chance, Stereo& stereo) {
  const Scatter& scatter = *layer.scatter;
  const double over = scatter.over.value_or(std::max(0.0, order.seconds - layer.at));
  for (int i = 0; i < scatter.count; ++i) {
    const double time = over * (i + Portion(chance)) / scatter.count;
    Place place{.at = layer.at + time, .length = layer.length, .shift = order.shift};
    if (!place.length && order.loop) place.length = order.seconds;
    place.gain = Gain(-scatter.gain * Portion(chance));
    if (scatter.swell.Given()) place.gain *= scatter.swell.At(time);
    place.pan = std::clamp(layer.pan + scatter.pan * Either(chance), -1.0, 1.0);
    const double up = 1 + scatter.pitch * Portion(chance);
    place.shift *= chance.Below(2) == 0 ? up : 1 / up;
    if (scatter.drift.Given()) place.shift *= scatter.drift.At(time);
    const auto notes = static_cast<std::uint32_t>(scatter.notes.size());
    if (notes > 0) place.shift *= scatter.notes[chance.Below(notes)];
    PlayOnce(layer, place, order.loop, chance, stereo);
  }
}

void PlayLayer(const Layer& layer, const Order& order, Chance& chance, Stereo& stereo) {
  if (layer.scatter) return PlayScattered(layer, order, chance, stereo);
  const Place place{.at = layer.at, .length = layer.length, .pan = layer.pan, .shift = order.shift};
  PlayOnce(layer, place, order.loop, chance, stereo);
}

}  // namespace

Stereo Play(const Recipe& recipe, const Order& order) {
  const std::size_t size = SamplesIn(order.seconds);
  Stereo stereo{Samples(size, 0.0), Samples(size, 0.0)};
  std::uint64_t seed = order.seed + static_cast<std::uint64_t>(recipe.seed) * 7919;
  for (const Layer& layer : recipe.layers) {
    Chance chance(seed++ * 1000003);
    PlayLayer(layer, order, chance, stereo);
  }
  if (recipe.room) AddRoom(*recipe.room, order.loop, stereo);
  return stereo;
}

}  // namespace zorik::sound
