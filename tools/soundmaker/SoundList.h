#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "data/ResultFwd.h"

namespace zorik::sound {

// What the list of all sounds tells of one.
struct SoundEntry {
  std::string name;
  double seconds = 0;
  double loudness = 0;          // of the loudest tenth of a second, in decibels below full scale
  std::vector<double> pitches;  // of its recordings, in percent above the recipe
  bool loop = false;

  // The file of a recording, counted from 1: the first has no number.
  std::string FileOf(std::size_t recording) const;
};

// The list has a line for each sound: NAME SECONDS LOUDNESS PITCH PITCH... [loop]; '#' begins a remark. Fails
// with the number of the first line that is not so, or that tells of fewer than two recordings or more
// than 9.
Result<std::vector<SoundEntry>> ParseSoundList(std::string_view text);

}  // namespace zorik::sound
