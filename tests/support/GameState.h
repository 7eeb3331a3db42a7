#pragma once

#include <string>

#include "core/Hra.h"

namespace zorik::test {

// All of the state that later ticks of a run can depend on, in play and in a replay alike. What only one of
// the two has, or only shows, is left out: held keys, the latch, poses, idle ticks.
std::string GameState(const Hra& hra);

}  // namespace zorik::test
