// Pushing: what the dog and the cat do alike to boxes, bombs and boulders. When they may push is told with
// each of them.
#include "rules/Push.h"

namespace zorik {
namespace {

void MoveOn(Hra& hra, Cell from, Cell to) {
  hra.SetObject(to, hra.Field(from), hra.FieldState(from));
  hra.SetObject(from, kSpace, kFlat);
  TellMove(hra, from, to);
}

}  // namespace

Push PushBox(Hra& hra, Cell target, Step& step, bool mayTurn) {
  if (hra.Field(target) != kBox) return Push::None;
  Push done = Push::Pushed;
  if (hra.Field(target + step) != kSpace) {
    if (!mayTurn) return Push::None;
    step = -step;
    hra.stage().PZvuk(SoundId::BoxPush);
    done = Push::Swapped;
  }
  MoveOn(hra, target, target + step);
  PREKR(hra, target + step);
  hra.stage().PZvuk(SoundId::BoxPush);
  return done;
}

bool PushBoulder(Hra& hra, Cell target, Step step, State markedOver) {
  if (hra.Field(target) != kBoulder || hra.FieldState(target) != kResting || step.dx == 0) return false;
  const Cell goal = target + Step{step.dx, 0};
  if (hra.Field(goal) != kSpace) return false;
  MoveOn(hra, target, goal);
  const bool flatFloor = hra.FieldState(goal + kDown) == kFlat;
  if (flatFloor == (markedOver == kFlat)) hra.SetFieldMoved(goal, true);
  PREKR(hra, goal);
  hra.stage().PZvuk(SoundId::BoulderPush);
  return true;
}

}  // namespace zorik
