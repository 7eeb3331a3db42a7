// The swarm: all fleas of a cave step together, into free cells only; those in front go first, so that they
// make room for the others. They take nothing, dig nothing and push nothing.
#include "core/Rules.h"

namespace zorik {
namespace {

// A flea that has stepped is hidden from the scan until all have, so it cannot be carried along twice.
void StepFlea(Hra& hra, Cell c, Step step) {
  if (hra.Field(c) != kFlea || hra.Field(c + step) != kSpace) return;
  hra.SetField(c + step, kFleaInTransit);
  hra.SetField(c, kSpace);
  TellMove(hra, c, c + step);
  PREKR(hra, c);
}

// Column by column; from the far side when the swarm goes there.
void StepAll(Hra& hra, Step step) {
  const bool fromRight = step == kRight;
  const bool fromBottom = step == kDown;
  for (int i = 0; i < hra.CaveWidth; ++i) {
    const int x = fromRight ? hra.CaveWidth - 1 - i : i;
    for (int j = 0; j < hra.CaveHeight; ++j)
      StepFlea(hra, {x, fromBottom ? hra.CaveHeight - 1 - j : j}, step);
  }
}

// To the nearest whole number, ties to the even one.
int Mean(int sum, int count) {
  const int whole = sum / count;
  const int rest = 2 * (sum % count);
  const bool up = rest > count || (rest == count && whole % 2 == 1);
  return up ? whole + 1 : whole;
}

}  // namespace

void PohybB(Hra& hra) {
  hra.DogIdleTicks = 0;
  StepAll(hra, StepOf(hra.KeyDirection));
  int count = 0, sumX = 0, sumY = 0;
  ForEachCell(hra, [&](Cell c) {
    if (hra.Field(c) != kFleaInTransit) return;
    hra.SetField(c, kFlea);
    ++count;
    sumX += c.x();
    sumY += c.y();
  });
  if (count == 0) return;
  hra.Dog[0].x = Mean(sumX, count);
  hra.Dog[0].y = Mean(sumY, count);
}

}  // namespace zorik
