#pragma once

#include <algorithm>

namespace zorik {

// The pace of the game: speeds run from 1, the fastest, to 10. A delta of 1 makes the game faster.
constexpr int ZmenRychlost(int speed, int delta) {
  return std::clamp(speed - delta, 1, 10);
}

// The interval of the tick's timer, in milliseconds.
constexpr int TimerInterval(int speed) {
  return 20 * speed - 19;
}

}  // namespace zorik
