#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "data/Result.h"

namespace zorik {

// What sound buffers hold: 16 bit, left and right in turn.
inline constexpr int kSoundRate = 22050;  // frames a second
inline constexpr int kSoundChannels = 2;

// No sound of this game is longer; a file that would fill more memory is refused.
inline constexpr int kLongestSound = 30;               // seconds
inline constexpr std::size_t kLargestWave = 16 << 20;  // bytes of the file

// Reads a wave file of any rate, size of samples and number of channels into the form of the buffers. One
// that is cut short gives what it holds. Fails when nothing can be read, and for what is too large or too
// long.
Result<std::vector<std::int16_t>> ReadWave(const std::string& path);

}  // namespace zorik
