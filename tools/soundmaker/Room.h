#pragma once

#include "soundmaker/Filters.h"

namespace zorik::sound {

struct Stereo {
  Samples left, right;
};

// Adds the echoes of a small space. In what is endless they reach around from the end to the beginning; they
// must have faded within one turn.
void AddRoom(const Room& room, bool endless, Stereo& stereo);

}  // namespace zorik::sound
