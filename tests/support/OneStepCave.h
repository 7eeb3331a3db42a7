#pragma once

#include <gtest/gtest.h>

#include <string>

#include "core/Hra.h"
#include "support/Scene.h"

namespace zorik::test {

// A cave that a step to the right wins: its finish opens at once. So many seconds are as many points.
inline std::string OneStepCave(const std::string& name, int time = 50) {
  Numbers numbers;
  numbers.name = name;
  numbers.needed = 0;
  numbers.time = time;
  return CaveTextOf({"WWWWW", "W1TWW", "WWWWW"}, numbers);
}

// Takes that step in a run that has been started.
inline void StepToWin(Hra& hra) {
  const KeySnapshot keys = Keys("R");
  TickEnd end = TickEnd::Running;
  for (int i = 0; i < 5 && end == TickEnd::Running; ++i) end = Tick(hra, keys);
  ASSERT_EQ(end, TickEnd::Won);
}

}  // namespace zorik::test
