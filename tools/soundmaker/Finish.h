#pragma once

#include "data/ResultFwd.h"
#include "soundmaker/Room.h"

namespace zorik::sound {

// No sample goes beyond this, in decibels below full scale.
constexpr double kCeiling = -3;

// The root of the mean square of the loudest tenth of a second, both ears together; 1 is full scale.
double Loudness(const Stereo& stereo, bool loop);

// The largest sample.
double Peak(const Stereo& stereo);

// Drives the sound so many decibels over a ceiling that gives way.
void Press(double drive, Stereo& stereo);

// Makes a recording of what was played: takes away what is lower than a loudspeaker moves, ends it softly or,
// for a loop, begins it where both ears are nearest to rest, and gives it its loudness in decibels. Fails
// when it is silent, or when peaks would go through the ceiling.
Result<Done> Finish(double loudness, bool loop, Stereo& stereo);

}  // namespace zorik::sound
