#include "run/RunFate.h"

#include <algorithm>

namespace zorik {

bool UnitIsLost(const RunState& run) {
  return std::any_of(run.Dog.begin() + 1, run.Dog.begin() + run.DogCount + 1,
                     [](const Unit& unit) { return unit.x != kAbsentUnit && !unit.Alive; });
}

bool NothingHelps(const RunState& run) {
  const auto* const end = run.Dog.begin() + run.DogCount + 1;
  const bool alive = std::any_of(run.Dog.begin(), end, [](const Unit& unit) { return unit.Alive; });
  return !alive || run.Elapsed >= run.TimeLimit * kTicksPerSecond;
}

}  // namespace zorik
