// ZmenitPsa, changing the dog: which unit the player steers, by its number or by a step to the next.
#include "core/Machine.h"

namespace zorik {
namespace {

bool Lives(const Hra& hra, int n) {
  return hra.Dog[static_cast<std::size_t>(n)].Alive;
}

bool AnyUnitLives(const Hra& hra) {
  for (int n = 0; n <= hra.DogCount; ++n) {
    if (Lives(hra, n)) return true;
  }
  return false;
}

void ChooseByNumber(Hra& hra, int selector) {
  const int n = selector / 10 - 1;
  if (n >= 0 && n < kUnits && Lives(hra, n)) hra.ActiveDog = n;
}

// Beyond the last dog comes number 1, so stepping forward passes the swarm by; before the swarm comes the
// last dog. False when there is nobody to go to.
bool ChooseByStep(Hra& hra, int step) {
  int n = hra.ActiveDog;
  for (int round = 0; round <= hra.DogCount; ++round) {
    n += step;
    if (n > hra.DogCount) n = 1;
    if (n < 0) n = hra.DogCount;
    if (n >= kUnits || !Lives(hra, n)) continue;
    hra.ActiveDog = n;
    return true;
  }
  return false;
}

void RepaintUnit(Hra& hra, int n) {
  if (const auto c = UnitCell(hra, n)) PREKR(hra, *c);
}

}  // namespace

void ZmenitPsa(Hra& hra, int selector) {
  if (!hra.MultiDog) return;
  const int old = hra.ActiveDog;
  if (Lives(hra, old)) hra.stage().DrawDogN(old, 1);
  if (selector > 1) {
    ChooseByNumber(hra, selector);
  } else if (!ChooseByStep(hra, selector)) {
    hra.MultiDog = AnyUnitLives(hra);
    return;
  }
  hra.DogPose = 0;
  RepaintUnit(hra, old);
  RepaintUnit(hra, hra.ActiveDog);
  hra.stage().DrawDogN(hra.ActiveDog, 0);
  hra.DogIdleTicks = 0;
  if (hra.ActiveDog != old) hra.stage().PZvuk(7);
}

}  // namespace zorik
