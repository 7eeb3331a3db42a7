#pragma once

#include <string>

#include "soundmaker/Room.h"

namespace zorik::sound {

// The bytes of a wave file: PCM, two channels, 16 bits, 22,050 samples a second. 1 is full scale, and nothing
// goes beyond it.
std::string WaveFile(const Stereo& stereo);

}  // namespace zorik::sound
