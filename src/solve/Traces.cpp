#include "solve/Traces.h"

#include "core/Patterns.h"

namespace zorik {
namespace {

bool Passes(std::uint16_t code) {
  const bool monster = (Grids::Traits(code) & trait::kMonster) != 0;
  return code == kSpace || !IsObject(code) || monster || code == kDog || code == kFlea || code == kCat ||
         code == kExplosion;
}

}  // namespace

bool LeavesTrace(std::uint16_t was, std::uint16_t is) {
  return was != is && !(Passes(was) && Passes(is));
}

std::vector<Cell> PassedBy(const RunState& before, Cell c) {
  std::vector<Cell> cells;
  const Cell above = c + kUp;
  if (before.Field(above) == kSlime && before.FieldState(above + kUp) == kResting) cells.push_back(above);
  for (const Step side : {kLeft, kRight}) {
    if (IsSplitterMouth(before, above + side)) cells.push_back(above + side);
  }
  return cells;
}

}  // namespace zorik
