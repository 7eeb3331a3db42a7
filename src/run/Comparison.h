#pragma once

#include <optional>
#include <string>
#include <vector>

#include "data/ResultFwd.h"
#include "run/Parting.h"
#include "run/Timeline.h"

namespace zorik {

// What a run has come to.
struct RunTotals {
  int ticks = 0;
  int gems = 0;
  int score = 0;  // 0 where it does not win
  bool won = false;
  std::vector<int> gemTicks;  // in which a gem was taken, in their order
};

// Two recorded runs of one cave, on one timeline.
struct Comparison {
  Timeline a, b;
  // The first tick after which they are not the same, and what differs there; nothing where they are one.
  // Where one is over before the other it is the tick that only the other has, and no counter or cell.
  std::optional<int> firstDifference;
  std::optional<Parting> parting;
  RunTotals totalsOfA, totalsOfB;

  int Length() const;
};

// Replays two records, given as the bytes of their files. Fails where one cannot be played, or where they are
// of different caves.
Result<Comparison> Compare(const std::string& recordA, const std::string& recordB);

}  // namespace zorik
