// Walls that grow into free cells on both sides, one cell a tick. They look like brick and never stop by
// themselves. The new part does not grow in the tick in which it came.
#include "core/Rules.h"

namespace zorik {
namespace {

void GrowTo(Hra& hra, Cell c, std::uint16_t wall) {
  if (hra.Field(c) != kSpace) return;
  hra.SetField(c, wall);
  PREKR(hra, c);
  hra.SetFieldMoved(c, true);
}

}  // namespace

void GrowWallH(Hra& hra, Cell c) {
  GrowTo(hra, c + kLeft, kWallH);
  GrowTo(hra, c + kRight, kWallH);
}

void GrowWallV(Hra& hra, Cell c) {
  GrowTo(hra, c + kUp, kWallV);
  GrowTo(hra, c + kDown, kWallV);
}

}  // namespace zorik
