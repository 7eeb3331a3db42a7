#pragma once

#include <cstdint>

#include "soundmaker/Recipe.h"
#include "soundmaker/Room.h"

namespace zorik::sound {

// How a recipe is to be played this time.
struct Order {
  double seconds = 1;
  bool loop = false;  // the end leads to the beginning
  double shift = 1;   // all pitches are multiplied with this
  std::uint64_t seed = 0;
};

// Plays the recipe, at any loudness. The same order gives the same samples, everywhere.
Stereo Play(const Recipe& recipe, const Order& order);

}  // namespace zorik::sound
