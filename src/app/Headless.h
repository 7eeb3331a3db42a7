#pragma once

#include "platform/Paths.h"

namespace zorik {

// Whether there seems to be a display. Only opening a window tells for sure.
bool DisplayNamed();

// While it lives, a display that cannot be opened makes the program begin anew without one, where the toolkit
// would end it. One at a time; what the toolkit says meanwhile is not for players.
class AnewWithoutDisplay {
 public:
  AnewWithoutDisplay();
  ~AnewWithoutDisplay();
  AnewWithoutDisplay(const AnewWithoutDisplay&) = delete;
  AnewWithoutDisplay& operator=(const AnewWithoutDisplay&) = delete;
};

// What the game does without a display: it plays the record of the first cave that came with the game, says
// how it ended and leaves a picture of its last moment in AppPath. The answer is the program's exit code: 0
// when the record wins.
int PlayHeadless(const Paths& paths);

}  // namespace zorik
