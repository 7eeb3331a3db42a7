#pragma once

#include <cstdint>
#include <random>

namespace zorik {

// A stream of random numbers. The game has one for everything that can change a run and another for what
// only decorates (scrambling, pictures, sounds), so that the two can never meet. It is plain state: a copy
// goes on with the same numbers.
class Chance {
 public:
  explicit Chance(std::uint64_t seed = 0) : engine_(seed) {}

  // A number from 0 to range - 1, evenly spread; 0 for a range of 0 or 1.
  std::uint32_t Below(std::uint32_t range) {
    const std::uint64_t high = engine_() >> 32;
    return static_cast<std::uint32_t>((high * range) >> 32);
  }

  // Starts the stream afresh.
  void Seed(std::uint64_t seed) { engine_.seed(seed); }

 private:
  std::mt19937_64 engine_;
};

}  // namespace zorik
