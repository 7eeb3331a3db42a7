#pragma once

#include <cstdint>
#include <random>
#include <string_view>

#include "data/CaveO.h"

namespace zorik {

// A cave that lasts and is never won, of these letters by chance within a frame of walls, with a dog in its
// corner.
inline CaveRecord FramedCave(std::uint8_t width, std::uint8_t height, unsigned seed,
                             std::string_view letters) {
  CaveRecord cave;
  cave.Time = 1900;
  cave.GemsNeeded = 1900;
  cave.Colouring = 4;
  cave.Width = width;
  cave.Height = height;
  std::mt19937 random(seed);
  for (std::size_t x = 0; x < width; ++x) {
    for (std::size_t y = 0; y < height; ++y) {
      const bool edge = x == 0 || y == 0 || x + 1 == width || y + 1 == height;
      cave.Cells[x][y] = edge ? 'W' : letters[random() % letters.size()];
    }
  }
  cave.Cells[1][1] = '1';
  return cave;
}

}  // namespace zorik
