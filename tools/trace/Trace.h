#pragma once

#include <functional>
#include <limits>
#include <string>
#include <string_view>
#include <vector>

#include "core/Hra.h"
#include "run/TickText.h"

namespace zorik {

// A run as text, so that two machines can be compared tick by tick. A line for the cave, one for each
// finished tick (with a grid also one for each row of the cave), one for the end.

struct TraceOptions {
  bool grid = false;
  int ticks = std::numeric_limits<int>::max();  // end after so many
};

enum class TraceEnd { Win, RecordOver, Restart, Ticks };

// What is held in each tick, from the first; nothing beyond the end.
using KeyScript = std::vector<KeySnapshot>;

// Reads keys from text: line t belongs to tick t. Letters: L U R D arrows, ! action key, s and a the action
// latch, > Tab, digits of the keypad, . nothing. Fails at any other character.
Result<KeyScript> ReadKeyScript(std::string_view text);

// Runs on to its end what has been set up, and writes the lines. A run in play goes on for ever, so it needs
// a number of ticks; the key script ends it only when none is given.
TraceEnd TraceRun(Hra& hra, const KeyScript& keys, const TraceOptions& options,
                  const std::function<void(std::string_view)>& write);

}  // namespace zorik
