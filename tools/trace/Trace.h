#pragma once

#include <functional>
#include <limits>
#include <string>
#include <string_view>
#include <vector>

#include "core/Hra.h"

namespace zorik {

// A run as text, so that two machines can be compared tick by tick. A line for the cave, one for each
// finished tick (with a grid also one for each row of the cave), one for the end.

// The first line, without line end; so are the others.
std::string CaveLine(const RunState& run);

// The state at this moment.
std::string TickLine(const Hra& hra);

// The cells of all rows, a line each, each with a line end.
std::string GridLines(const RunState& run);

// FNV-1a over the cave's cells, row by row from the top left, four bytes a cell: the object's low and high
// byte, its state, its mark.
std::uint64_t CellHash(const RunState& run);

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
