#pragma once

#include <limits>
#include <memory>

#include "core/Hra.h"

namespace zorik {

// A copy of a run that goes on by itself: nobody sees or hears what becomes of it.
std::unique_ptr<Hra> Unwatched(const Hra& run);

// What became of a run that was played to its end.
struct PlayedOut {
  TickEnd end = TickEnd::Running;  // stays so where the run was given up
  int ticks = 0;                   // of the run, that of the win included
  bool ranDry = false;             // a tick has asked for more chance than its line held: a damaged record

  // Whether it is a win that counts.
  bool Wins() const { return end == TickEnd::Won && !ranDry; }
};

// Plays a run on, a replay above all, until it is won, its record is over or it has begun anew, as a damaged
// record would do for ever; and no further than so many ticks. Nobody presses a key.
PlayedOut PlayOut(Hra& run, int mostTicks = std::numeric_limits<int>::max());

}  // namespace zorik
