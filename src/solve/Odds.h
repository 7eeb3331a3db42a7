#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "core/Hra.h"
#include "solve/Review.h"

namespace zorik {

// Follows what was done in a run that won under another seed: not its keys but its goals. Each deed is waited
// for until what was found there is there again, pushed at until it gives way, and put off while it would
// kill; where the way is lost a search finds the next one. What it looks ahead with has a chance of its own,
// so the run's is never foreseen. enough: asked now and then; true ends it. rescues: searches for a lost way
// at the most, 0 for somebody who does what was done or nothing. True when the run is won.
bool FollowPlan(const std::string& caveText, const std::vector<Deed>& deeds, std::uint64_t seed,
                const std::function<bool()>& enough, int rescues = 60);

}  // namespace zorik
