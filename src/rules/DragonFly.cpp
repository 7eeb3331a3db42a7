// Dragonflies hunt the unit that is steered, closing the shorter distance first. While the swarm is steered
// they wander.
#include <cstdlib>

#include "core/Rules.h"

namespace zorik {
namespace {

int Sign(int value) {
  return (value > 0) - (value < 0);
}

Step Wander(Hra& hra, Cell c) {
  constexpr std::array<Step, 5> kWays{Step{}, kRight, kLeft, kDown, kUp};
  const int drawn = Nahoda(hra, 4);
  if (drawn < 1 || drawn > 4) return {};
  const Step way = kWays[static_cast<std::size_t>(drawn)];
  return hra.Field(c + way) == kSpace ? way : Step{};
}

// A way of no length is the dragonfly's own cell, which is never free.
Step FirstFree(const Hra& hra, Cell c, Step first, Step then) {
  if (hra.Field(c + first) == kSpace) return first;
  return hra.Field(c + then) == kSpace ? then : Step{};
}

Step Hunt(Hra& hra, Cell c) {
  const Unit& prey = ActiveUnit(hra);
  const int dx = prey.x - c.x();
  const int dy = prey.y - c.y();
  const Step across{Sign(dx), 0};
  const Step along{0, Sign(dy)};
  const int drawn = std::abs(dx) == std::abs(dy) ? Nahoda(hra, 2) : 0;
  if (std::abs(dx) < std::abs(dy) || drawn == 1) return FirstFree(hra, c, across, along);
  if (std::abs(dx) > std::abs(dy) || drawn == 2) return FirstFree(hra, c, along, across);
  return {};
}

}  // namespace

void MoveDragonFly(Hra& hra, Cell c) {
  const Step step = hra.ActiveDog == 0 ? Wander(hra, c) : Hunt(hra, c);
  if (step != Step{}) {
    hra.SetField(c, kSpace);
    hra.SetFieldMark(c, 0);
    PREKR(hra, c);
  }
  const Cell now = c + step;
  hra.SetField(now, kDragonFly);
  TellMove(hra, c, now);
  PREKR(hra, now);
  hra.SetFieldMoved(now, true);
}

}  // namespace zorik
