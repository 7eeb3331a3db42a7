#pragma once

#include <optional>
#include <string>

#include "core/Hra.h"

namespace zorik {

class Reach;

// Why a cave can certainly not be won, in a sentence; nothing where that is not sure. run: at its start.
std::optional<std::string> WhyImpossible(const Hra& run);

// Whether the cave is as one at its start may be: nothing falls, burns, rides, or is about to go off. Only
// then a look at its cells tells what can come of it.
bool IsAtRest(const Hra& run);

// Whether a run can certainly not be won any more, at any of its moments.
bool IsLost(const Hra& run);

// So many ticks every win takes from here; most take far more. Nothing where no dog can come to the finish.
std::optional<int> FewestTicks(const Hra& run, const Reach& reach);

}  // namespace zorik
