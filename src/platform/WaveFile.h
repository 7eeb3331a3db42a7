#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "data/ResultFwd.h"

namespace zorik {

// What sound buffers hold: 16 bit, left and right in turn.
inline constexpr int kSoundRate = 22050;  // frames a second
inline constexpr int kSoundChannels = 2;

// A file that would fill more memory is refused. What sounds on and on may be a piece of music.
struct WaveLimits {
  int seconds;
  std::size_t bytes;  // of the file
};
inline constexpr WaveLimits kSoundLimits{30, std::size_t{16} << 20U};
inline constexpr WaveLimits kLoopLimits{300, std::size_t{64} << 20U};

enum class WaveState : std::uint8_t { Good, Broken, TooLong };

// Whether a wave file can be read.
WaveState StateOfWave(const std::string& path, const WaveLimits& limits = kSoundLimits);

// Reads a wave file of any rate, size of samples and number of channels into the form of the buffers. One
// that is cut short gives what it holds. Fails when nothing can be read, and for what is too large or too
// long.
Result<std::vector<std::int16_t>> ReadWave(const std::string& path, const WaveLimits& limits = kSoundLimits);

}  // namespace zorik
