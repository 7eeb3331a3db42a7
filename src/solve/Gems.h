#pragma once

#include <optional>

#include "data/CaveO.h"

namespace zorik {

// The gems of a cave.
struct GemCount {
  int there = 0;              // at the start
  std::optional<int> most{};  // that its dogs can come to at the very most; none where nobody can tell
  int needed = 0;             // for the finish to open

  bool operator==(const GemCount&) const = default;
};

// Counts them. The cave is none that is too large to be played.
GemCount GemsOf(const CaveRecord& cave);

}  // namespace zorik
