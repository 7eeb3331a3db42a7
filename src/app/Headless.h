#pragma once

#include "platform/Paths.h"

namespace zorik {

// Finds out whether a window can be opened. It is tried in a process of its own, since a failed try ends the
// process; that one keeps the display open as long as this object lives, for a display that nobody uses any
// more may go down for a moment.
class DisplayTrial {
 public:
  DisplayTrial(int argc, char** argv);
  ~DisplayTrial();
  DisplayTrial(const DisplayTrial&) = delete;
  DisplayTrial& operator=(const DisplayTrial&) = delete;

  bool There() const { return there_; }

 private:
  int child_ = -1;
  int hold_ = -1;
  bool there_ = false;
};

// What the game does without a display: it plays the record of the first cave that came with the game, says
// how it ended and leaves a picture of its last moment in AppPath. The answer is the program's exit code: 0
// when the record wins.
int PlayHeadless(const Paths& paths);

}  // namespace zorik
