#pragma once

#include "platform/Paths.h"
#include "screens/Session.h"
#include "skin/TileSets.h"

namespace zorik {

// Whether a window could be opened. It is tried in a process of its own, since a failed try ends the process.
bool DisplayThere(int argc, char** argv);

// What the game does without a display: it plays the record of the first cave that came with the game, says
// how it ended and leaves a picture of its last moment in AppPath. The answer is the program's exit code: 0
// when the record wins.
int PlayHeadless(const Paths& paths, const Session& session, const SkinPlaces& places);

}  // namespace zorik
