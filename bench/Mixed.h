#pragma once

#include <random>
#include <string>

#include "core/Hra.h"
#include "data/CaveO.h"
#include "data/Result.h"

namespace zorik {

inline constexpr int kMixedWidth = 80;
inline constexpr int kMixedHeight = 50;

// A cave of everything, so that hardly any two neighbours show the same frame.
inline std::string MixedCave() {
  std::mt19937 random(3);
  const std::string letters = ";;;;....RRRDXXWFUL:SNCKI$!@#%^&GJTEVM";
  CaveRecord cave;
  cave.Time = 900;
  cave.Width = kMixedWidth;
  cave.Height = kMixedHeight;
  for (int x = 0; x < kMixedWidth; ++x) {
    for (int y = 0; y < kMixedHeight; ++y) {
      cave.Cells[static_cast<std::size_t>(x)][static_cast<std::size_t>(y)] =
          letters[random() % letters.size()];
    }
  }
  cave.Cells[40][25] = '1';
  return *BuildCaveText(cave);
}

}  // namespace zorik
