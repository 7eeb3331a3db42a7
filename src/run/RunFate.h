#pragma once

#include "core/Hra.h"

namespace zorik {

// A dog that the cave has is dead.
bool UnitIsLost(const RunState& run);

// The run goes on, but nobody can bring it to an end any more: no dog lives, or the time is up.
// Fleas never come into the finish.
bool NothingHelps(const RunState& run);

}  // namespace zorik
