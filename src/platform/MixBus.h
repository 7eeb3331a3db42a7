#pragma once

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "platform/Limiter.h"

namespace zorik {

// Where all that sounds comes together, buffer by buffer: 16 bit, left and right in turn. However many sound
// at once, nothing is clipped; and what is broken off before its end sinks within a few milliseconds, so that
// it does not click. It does not allocate once every voice has sounded.
class MixBus {
 public:
  static constexpr std::size_t kSink = 110;  // frames that a broken sound takes to sink: 5 ms

  // Frames of one buffer.
  explicit MixBus(std::size_t frames);

  // Adds a voice's next piece to the buffer: `piece` is taken from `samples`, all of its recording, which
  // starts anew at its end if it loops. A voice that is new, or has been broken, is at the start of its
  // recording.
  void Add(std::size_t voice, std::span<const std::int16_t> samples, bool looping,
           std::span<const std::int16_t> piece);

  // The voice stops here, at its end or before.
  void Break(std::size_t voice);

  // How loud the whole is from the next buffer on, 0 to 1. It gets there within that buffer. Any thread may
  // say so.
  void SetVolume(float volume) { wanted_ = volume; }

  // Ends the buffer. A voice that has not filled it and was not broken stands still and will go on later.
  void Finish(std::span<std::int16_t> out);

 private:
  struct Voice {
    std::span<const std::int16_t> samples{};  // empty: the voice is silent
    bool looping = false;
    bool standing = false;
    std::size_t position = 0;  // in samples: what comes next
    std::size_t filled = 0;    // samples of this buffer
  };

  void Sink(const Voice& voice);

  std::vector<Voice> voices_;
  std::vector<float> sum_;  // of this buffer, and of what sinks beyond its end
  Limiter limiter_;
  std::atomic<float> wanted_ = 1;
  float volume_ = 1;  // as it is now
};

}  // namespace zorik
