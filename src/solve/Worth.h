#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "core/Hra.h"

namespace zorik {

// How finely a search tells situations apart.
enum class Grain {
  None,    // only by their level
  Bombs,   // by what is left of walls, locks and keys, and by where the bombs are
  Heaps,   // by where boulders and boxes are as well, roughly
  Things,  // by where they are exactly
};

// Tells moments of a run from each other as far as it matters to a search for a win.
class Worth {
 public:
  // begin: the run at its start.
  explicit Worth(const Hra& begin);

  // The more has been reached the higher.
  int Level(const Hra& run) const;

  // Moments that are alike in what matters have the same; of them the earlier one is the better.
  std::uint64_t Key(const Hra& run, int level) const;

  // What moments have in common whatever moves in them.
  std::uint64_t Situation(const Hra& run, Grain grain) const;

 private:
  int ReachableGems(const Hra& run) const;

  int keys_ = 0, dogs_ = 0, gems_ = 0, walls_ = 0, bombs_ = 0;  // at the start
  mutable std::array<std::uint8_t, Cell::kPlaces> seen_{};
  mutable std::vector<Cell> due_;
};

}  // namespace zorik
