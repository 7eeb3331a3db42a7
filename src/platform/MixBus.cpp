#include "platform/MixBus.h"

#include <algorithm>
#include <cmath>

namespace zorik {
namespace {

constexpr float kFullScale = 32768;
constexpr std::size_t kSinkSamples = 2 * MixBus::kSink;

// The loudness of a sample on the way down, from nearly 1 to 0.
float Sinking(std::size_t sample) {
  const std::size_t frame = sample / 2;
  return 1 - static_cast<float>(frame + 1) / static_cast<float>(MixBus::kSink);
}

std::int16_t ToSample(float value) {
  return static_cast<std::int16_t>(std::lround(value * kFullScale));
}

}  // namespace

MixBus::MixBus(std::size_t frames) : sum_(2 * frames + kSinkSamples) {}

void MixBus::Add(std::size_t voice, std::span<const std::int16_t> samples, bool looping,
                 std::span<const std::int16_t> piece) {
  if (samples.empty()) return;
  if (voice >= voices_.size()) voices_.resize(voice + 1);
  Voice& v = voices_[voice];
  if (v.samples.empty()) v = {.samples = samples, .looping = looping, .filled = v.filled};
  const std::size_t count = std::min(piece.size(), sum_.size() - kSinkSamples - v.filled);
  for (std::size_t i = 0; i < count; ++i) {
    const float rise = v.standing && i < kSinkSamples ? 1 - Sinking(i) : 1;
    sum_[v.filled + i] += rise * static_cast<float>(piece[i]);
  }
  v.standing = false;
  v.filled += count;
  v.position += count;
  if (looping) v.position %= samples.size();
}

void MixBus::Sink(const Voice& voice) {
  const std::size_t size = voice.samples.size();
  for (std::size_t i = 0; i < kSinkSamples; ++i) {
    std::size_t place = voice.position + i;
    if (voice.looping) place %= size;
    if (place >= size) return;
    sum_[voice.filled + i] += Sinking(i) * static_cast<float>(voice.samples[place]);
  }
}

void MixBus::Break(std::size_t voice) {
  if (voice >= voices_.size()) return;
  Voice& v = voices_[voice];
  if (!v.samples.empty() && !v.standing) Sink(v);
  v = {.filled = v.filled};
}

void MixBus::Finish(std::span<std::int16_t> out) {
  for (Voice& voice : voices_) {
    const bool full = voice.filled >= out.size();
    if (!voice.samples.empty() && !full && !voice.standing) {
      Sink(voice);
      voice.standing = true;
    }
    voice.filled = 0;
  }
  const float wanted = wanted_;
  const float step = (wanted - volume_) / static_cast<float>(std::max<std::size_t>(out.size() / 2, 1));
  for (std::size_t i = 0; i + 1 < out.size(); i += 2) {
    volume_ += step;
    const float scale = volume_ / kFullScale;
    const SoundFrame frame = limiter_.Next({sum_[i] * scale, sum_[i + 1] * scale});
    out[i] = ToSample(frame.left);
    out[i + 1] = ToSample(frame.right);
  }
  volume_ = wanted;
  const auto next = sum_.begin() + static_cast<std::ptrdiff_t>(std::min(out.size(), sum_.size()));
  std::fill(std::move(next, sum_.end(), sum_.begin()), sum_.end(), 0.0F);
}

}  // namespace zorik
