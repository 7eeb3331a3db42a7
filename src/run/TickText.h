#pragma once

#include <cstdint>
#include <string>

#include "core/Hra.h"

namespace zorik {

// The state of a run as text, so that two runs can be compared tick by tick. Lines have no line end.

// The cave's name and size.
std::string CaveLine(const RunState& run);

// The state at this moment.
std::string TickLine(const Hra& hra);

// The cells of all rows, a line each, each with a line end.
std::string GridLines(const RunState& run);

// FNV-1a over the cave's cells, row by row from the top left, four bytes a cell: the object's low and high
// byte, its state, its mark.
std::uint64_t CellHash(const RunState& run);

}  // namespace zorik
