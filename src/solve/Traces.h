#pragma once

#include <cstdint>
#include <vector>

#include "core/Hra.h"

namespace zorik {

// Whether a run has touched a cell whose content has become another one: what comes and goes by itself, as
// monsters do, leaves no trace.
bool LeavesTrace(std::uint16_t was, std::uint16_t is);

// The cells above a cell into which something has just fallen, and past which it must have come: slime, and
// the mouths of splitters. before: the moment before.
std::vector<Cell> PassedBy(const RunState& before, Cell c);

}  // namespace zorik
