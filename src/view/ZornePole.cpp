#include "view/ZornePole.h"

#include <algorithm>
#include <cmath>

namespace zorik {
namespace {

constexpr float kShare = 5;  // of the distance to the target, closed in a tick

}  // namespace

void ZornePole::Axis::Follow(int place, int cave, double most, bool jump) {
  const float old = offset;
  extent = static_cast<float>(std::min(most, static_cast<double>(cave)));
  const float centred = extent / 2 - (static_cast<float>(place) + 0.5F);
  const float target = std::max(std::min(centred, 0.0F), extent - static_cast<float>(cave));
  offset = jump ? target : old - (old - target) / kShare;
}

int ZornePole::Axis::Start() const {
  return std::max(0, static_cast<int>(std::lrint(-offset * kTileSize)));
}

int ZornePole::Axis::Length() const {
  return static_cast<int>(extent * kTileSize);
}

void ZornePole::SetReach(double columns, double rows) {
  columns_ = std::max(1.0, columns);
  rows_ = std::max(1.0, rows);
}

void ZornePole::Follow(int x, int y, int caveWidth, int caveHeight, bool jump) {
  across_.Follow(x, caveWidth, columns_, jump);
  down_.Follow(y, caveHeight, rows_, jump);
}

ViewArea ZornePole::Scrolled() const {
  return {across_.Start(), down_.Start(), across_.Length(), down_.Length()};
}

ViewArea ZornePole::Whole(int caveWidth, int caveHeight) {
  return {0, 0, caveWidth * kTileSize, caveHeight * kTileSize};
}

}  // namespace zorik
