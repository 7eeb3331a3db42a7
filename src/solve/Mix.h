#pragma once

#include <cstdint>

namespace zorik {

// A hash that has taken in one value more. The odd number is 2^64 divided by the golden ratio.
inline std::uint64_t Mix(std::uint64_t hash, std::uint64_t value) {
  hash = (hash ^ value) * 0x9E3779B97F4A7C15U;
  return hash ^ (hash >> 29U);
}

}  // namespace zorik
