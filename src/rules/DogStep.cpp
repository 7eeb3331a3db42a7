// The dog's step: digging, collecting, pushing, taking over another dog, leaving through the finish. With
// the action key it does all that at arm's length and stays where it is.
#include <algorithm>
#include <limits>

#include "core/Patterns.h"
#include "core/Rules.h"
#include "rules/Push.h"

namespace zorik {
namespace {

void TakeOverDog(Hra& hra, Cell target) {
  for (int n = 1; n <= hra.DogCount; ++n) {
    if (UnitCell(hra, n) != target) continue;
    ZmenitPsa(hra, (n + 1) * 10);
    return;
  }
}

void Place(Hra& hra, Cell c) {
  ActiveUnit(hra).x = c.x();
  ActiveUnit(hra).y = c.y();
}

void Leave(Hra& hra, Cell old, Cell finish) {
  hra.SensorsListen = false;
  hra.SetField(finish, kDog);
  hra.SetField(old, kSpace);
  TellMove(hra, old, finish);
  PREKR(hra, old);
  hra.DogPose = hra.KeyDirection;
  PREKR(hra, finish);
  Place(hra, finish);
  WinGame(hra);
}

void Collect(Hra& hra, Cell target) {
  if (hra.Field(target) == kGem) {
    ++hra.GemsCollected;
    hra.stage().Label(LabelId::Gems, hra.GemsCollected);
    hra.Score = static_cast<int>(
        std::min<std::int64_t>(std::int64_t{hra.Score} + hra.GemValue, std::numeric_limits<int>::max()));
    hra.stage().PZvuk(SoundId::CollectGem);
  }
  SpapanZamek(hra, target);
  hra.SetFieldState(target, kFlat);
}

void Enter(Hra& hra, Cell old, Cell target) {
  hra.SetField(target, kDog);
  if (hra.Field(old) != kBox) hra.SetField(old, kSpace);
  TellMove(hra, old, target);
  PREKR(hra, old);
}

void Snap(Hra& hra, Cell target) {
  hra.SetField(target, kSpace);
  PREKR(hra, target);
}

// The cell in which the dog ends.
Cell Go(Hra& hra, Cell old, Cell target) {
  if (hra.Field(target) == kDirt) hra.stage().PZvuk(SoundId::Dirt);
  if (BlocksDog(hra, target)) return old;
  Collect(hra, target);
  if (hra.KeyAction != 0) {
    Snap(hra, target);
    return old;
  }
  Enter(hra, old, target);
  return target;
}

// A replay asks for no chance, and practice that was taken back shall go on as it did.
void Reseed(Hra& hra) {
  if (hra.ReplayPlaying() || hra.Practising()) return;
  if (const auto seed = hra.stage().Reseed()) hra.Luck.Seed(*seed);
}

}  // namespace

void PohybH(Hra& hra) {
  const auto own = UnitCell(hra, hra.ActiveDog);
  if (!own) return;
  const Cell old = *own;
  hra.DogIdleTicks = 0;
  Reseed(hra);
  Step step = StepOf(hra.KeyDirection);
  const Cell target = old + step;
  const int chance = Nahoda(hra, 4);
  PushBox(hra, target, step, chance == 1 && hra.KeyAction == 0);
  if (chance == 1) PushBoulder(hra, target, step, kRounded);
  if (hra.Field(target) == kDog && chance == 1) return TakeOverDog(hra, target);
  if (IsOpenFinish(hra, target) && hra.KeyAction == 0) return Leave(hra, old, target);
  const Cell now = Go(hra, old, target);
  Place(hra, now);
  hra.DogPose = hra.KeyDirection;
  PREKR(hra, now);
}

}  // namespace zorik
