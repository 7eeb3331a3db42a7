// PREKR, repainting a cell: the two parts of it that are rules, the pose of an idle dog and what sensors
// hear. The rest stands in Machine.h.
#include "core/Machine.h"
#include "core/Rules.h"

namespace zorik {
namespace {

constexpr int kTicksToQuestion = 300;

// Between 140 and 160 idle ticks the pose stands as it was.
void IdlePose(Hra& hra) {
  const int idle = hra.DogIdleTicks;
  if (idle == 3) hra.DogPose = 0;
  if (idle <= 100) return;
  if (idle < 140) {
    hra.DogPose = 2;
  } else if (idle > 280) {
    hra.DogPose = 4;
  } else if (idle > 220) {
    hra.DogPose = 3;
  } else if (idle > 190) {
    hra.DogPose = 2;
  } else if (idle > 170) {
    hra.DogPose = 0;
  } else if (idle > 160) {
    hra.DogPose = idle % 2 == 1 ? 0 : 1;
  }
}

}  // namespace

void ChoosePose(Hra& hra, Cell c) {
  const int n = DogIn(hra, c);
  if (n != 0 && n != hra.ActiveDog) return;
  IdlePose(hra);
  if (hra.DogIdleTicks != kTicksToQuestion || hra.ClockShown == 0 || hra.ReplayPlaying) return;
  hra.DogIdleTicks = 0;
  hra.stage().Post(Request::IdleQuestion);
}

void Stir(Hra& hra, Cell c) {
  if ((Grids::Traits(hra.Field(c)) & trait::kStirring) != 0 || hra.FieldState(c) != kFlat) TestCidla(hra, c);
}

}  // namespace zorik
