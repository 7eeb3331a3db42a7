#pragma once

#include <cstddef>
#include <string>

#include "data/ResultFwd.h"
#include "soundmaker/Recipe.h"
#include "soundmaker/SoundList.h"

namespace zorik::sound {

// The bytes of the wave file of one recording of a sound, counted from 1. They are the same wherever it is
// made.
Result<std::string> MakeRecording(const SoundEntry& entry, const Recipe& recipe, std::size_t number);

}  // namespace zorik::sound
