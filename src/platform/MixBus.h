#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "platform/Limiter.h"

namespace zorik {

// The mixer: all voices come together in it, 16 bit, left and right in turn. However many sound at once,
// nothing is clipped; and what is broken off before its end sinks within a few milliseconds, so that it does
// not click. It does not allocate once every voice has sounded. Recordings must live as long as a voice plays
// them.
class MixBus {
 public:
  static constexpr std::size_t kSink = 110;  // frames that a broken sound takes to sink: 5 ms

  // Plays a recording from its start, over and over if it loops. What the voice played before is broken off.
  void Start(std::size_t voice, std::span<const std::int16_t> samples, bool looping);
  void Stop(std::size_t voice);
  // Stops what does not loop, without a sound: nobody has heard it, and its moment is over.
  void ForgetShort();

  // Lets a voice stand still where it is, and go on from there.
  void Hold(std::size_t voice);
  void GoOn(std::size_t voice);

  // Whether a voice has neither come to its end nor stands still; and whether any is so.
  bool Sounds(std::size_t voice) const;
  bool Sounds() const;

  // How loud the whole is, 0 to 1. It gets there within a buffer, or at once if nothing sounds.
  void SetVolume(float volume) { wanted_ = volume; }

  // Makes the next buffer, of any size.
  void Mix(std::span<std::int16_t> out);

  // How many frames were mixed since a voice last sounded.
  std::size_t Quiet() const { return quiet_; }

 private:
  static constexpr std::size_t kTail = kSink + Limiter::kDelay;  // what is heard of the last voice in the end

  struct Voice {
    std::span<const std::int16_t> samples{};  // empty: the voice is silent
    bool looping = false;
    bool standing = false;
    std::size_t position = 0;       // in samples: what comes next
    std::size_t risen = 2 * kSink;  // samples since it went on
  };

  void Sink(const Voice& voice);
  void Add(Voice& voice, std::size_t count);
  void Emit(std::span<std::int16_t> out);

  std::vector<Voice> voices_;
  std::vector<float> sum_ =
      std::vector<float>(2 * kSink);  // of this buffer, and of what sinks beyond its end
  Limiter limiter_;
  float wanted_ = 1;
  float volume_ = 1;  // as it is now
  std::size_t quiet_ = kTail;
};

}  // namespace zorik
