#include "view/Motion.h"

#include <utility>

namespace zorik {

void Motion::Clear() {
  for (const Move& move : moves_) arrived_[move.to.place()] = 0;
  moves_.clear();
  left_ = {};
}

// What goes on from where it has just arrived has come all the way, unless two change places. What was in the
// way is gone.
void Motion::Add(Cell from, Cell to, std::uint16_t code) {
  left_.Add(from);
  std::uint16_t& before = arrived_[from.place()];
  const bool goesOn = before != 0 && moves_[before - 1U].from != to;
  const Cell start = goesOn ? moves_[before - 1U].from : from;
  if (goesOn) {
    Move& done = moves_[std::exchange(before, std::uint16_t{0}) - 1U];
    done.from = done.to;
  }
  std::uint16_t& here = arrived_[to.place()];
  if (here != 0) moves_[here - 1U].from = moves_[here - 1U].to;
  moves_.push_back({start, to, code});
  here = static_cast<std::uint16_t>(moves_.size());
}

}  // namespace zorik
