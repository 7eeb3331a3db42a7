// Slime: lets what rests on it pass to the free cell below, by chance. What falls on it must come to rest
// first.
#include "core/Rules.h"

namespace zorik {
namespace {

// One object in so many passes in a tick.
int Odds(int permeability) {
  return permeability >= 8 ? 1 : 1 << (8 - permeability);
}

}  // namespace

void Slime(Hra& hra, Cell c) {
  const Cell above = c + kUp;
  const Cell below = c + kDown;
  if (hra.Field(below) != kSpace || hra.FieldState(above) != kResting || hra.SlimePermeability == 0) return;
  if (Nahoda(hra, Odds(hra.SlimePermeability)) != 1) return;
  hra.SetObject(below, hra.Field(above), kFalling);
  hra.SetFieldMoved(below, true);
  PREKR(hra, below);
  ClearField(hra, above);
}

}  // namespace zorik
