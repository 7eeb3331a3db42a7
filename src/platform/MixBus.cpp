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

void MixBus::Start(std::size_t voice, std::span<const std::int16_t> samples, bool looping) {
  Stop(voice);
  if (voice >= voices_.size()) voices_.resize(voice + 1);
  voices_[voice] = {.samples = samples, .looping = looping};
}

void MixBus::Stop(std::size_t voice) {
  if (Sounds(voice)) Sink(voices_[voice]);
  if (voice < voices_.size()) voices_[voice] = {};
}

void MixBus::ForgetShort() {
  for (Voice& voice : voices_) {
    if (!voice.looping && !voice.standing) voice = {};
  }
}

void MixBus::Hold(std::size_t voice) {
  if (!Sounds(voice)) return;
  Sink(voices_[voice]);
  voices_[voice].standing = true;
}

void MixBus::GoOn(std::size_t voice) {
  if (voice >= voices_.size() || !voices_[voice].standing) return;
  voices_[voice].standing = false;
  voices_[voice].risen = 0;
}

bool MixBus::Sounds(std::size_t voice) const {
  return voice < voices_.size() && !voices_[voice].samples.empty() && !voices_[voice].standing;
}

bool MixBus::Sounds() const {
  return std::any_of(voices_.begin(), voices_.end(),
                     [](const Voice& voice) { return !voice.samples.empty() && !voice.standing; });
}

void MixBus::Sink(const Voice& voice) {
  const std::size_t size = voice.samples.size();
  for (std::size_t i = 0; i < kSinkSamples; ++i) {
    std::size_t place = voice.position + i;
    if (voice.looping) place %= size;
    if (place >= size) return;
    sum_[i] += Sinking(i) * static_cast<float>(voice.samples[place]);
  }
}

void MixBus::Add(Voice& voice, std::size_t count) {
  for (std::size_t i = 0; i < count && voice.position < voice.samples.size(); ++i) {
    const float rise = voice.risen < kSinkSamples ? 1 - Sinking(voice.risen++) : 1;
    sum_[i] += rise * static_cast<float>(voice.samples[voice.position++]);
    if (voice.looping) voice.position %= voice.samples.size();
  }
  if (voice.position >= voice.samples.size()) voice = {};
}

void MixBus::Mix(std::span<std::int16_t> out) {
  if (sum_.size() < out.size() + kSinkSamples) sum_.resize(out.size() + kSinkSamples);
  if (quiet_ >= kTail) volume_ = wanted_;
  quiet_ = Sounds() ? 0 : quiet_ + out.size() / 2;
  for (Voice& voice : voices_) {
    if (!voice.standing) Add(voice, out.size());
  }
  Emit(out);
  const auto next = sum_.begin() + static_cast<std::ptrdiff_t>(out.size());
  std::fill(std::move(next, sum_.end(), sum_.begin()), sum_.end(), 0.0F);
}

void MixBus::Emit(std::span<std::int16_t> out) {
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
}

}  // namespace zorik
