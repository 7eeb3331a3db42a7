#pragma once

#include <functional>

#include "core/Hra.h"
#include "solve/Move.h"

namespace zorik {

// Takes out of a plan that wins what it wins without, until nothing is left to take out or the caller has
// enough, which is asked many times in each of thousands of tries. begin: the run at its start, with the
// chance with which the plan wins.
Plan Shorten(const Hra& begin, Plan plan, const std::function<bool()>& enough, const Avoided& avoided = {});

}  // namespace zorik
