#pragma once

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <vector>

#include "solve/Odds.h"
#include "solve/Walks.h"

namespace zorik::test {

// A deed in the letters of plans: L U R D steps, l u r d at arm's length; by dog 1 from a cell, beside which
// that object was.
inline Deed Did(char letter, Cell from, std::uint16_t found, int tick = 0) {
  constexpr std::array<Step, 4> kWays{kLeft, kUp, kRight, kDown};
  const std::size_t place = std::string("LURDlurd").find(letter);
  Deed deed;
  deed.tick = tick;
  deed.direction = static_cast<int>(place % 4);
  deed.action = place >= 4;
  deed.moved = !deed.action;
  deed.changed = true;
  deed.from = from;
  deed.target = from + kWays[place % 4];
  deed.found = found;
  return deed;
}

inline Deed By(int unit, Deed deed) {
  deed.unit = unit;
  return deed;
}

// How somebody fares who follows deeds under a seed, and how often he asked whether it is enough, which he
// does about once a tick.
struct Followed {
  bool won = false;
  int asked = 0;
};
inline Followed Follow(const Picture& picture, const std::vector<Deed>& deeds, const Numbers& numbers,
                       int rescues, std::uint64_t seed = 1) {
  Followed followed;
  const auto count = [&followed] {
    ++followed.asked;
    return false;
  };
  followed.won = FollowPlan(CaveTextOf(picture, numbers), deeds, seed, count, rescues);
  return followed;
}

// Whether he wins who never looks for another way.
inline bool Alone(const Picture& picture, const std::vector<Deed>& deeds,
                  const Numbers& numbers = {.needed = 0}, std::uint64_t seed = 1) {
  return Follow(picture, deeds, numbers, 0, seed).won;
}

}  // namespace zorik::test
