#include "run/RunFate.h"

#include <algorithm>

#include "core/Machine.h"

namespace zorik {

bool UnitIsLost(const RunState& run) {
  return std::any_of(run.Dog.begin() + 1, run.Dog.begin() + run.DogCount + 1,
                     [](const Unit& unit) { return unit.x != kAbsentUnit && !unit.Alive; });
}

bool NothingHelps(const RunState& run) {
  const bool dogs = LiveDogs(run) > 0 || run.TeleportDogBusy;
  return !dogs || run.Elapsed >= run.TimeLimit * kTicksPerSecond;
}

}  // namespace zorik
