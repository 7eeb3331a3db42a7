#pragma once

#include <memory>

#include "support/Scene.h"

namespace zorik::test {

// A run in practice after so many ticks in which no key was pressed.
inline std::unique_ptr<Hra> Practise(const Picture& picture, const Numbers& numbers = {.needed = 1},
                                     int ticks = 0) {
  auto run = std::make_unique<Hra>(Play(picture, numbers));
  run->Kind = RunKind::Practice;
  Pass(*run, ticks);
  return run;
}

}  // namespace zorik::test
