#include "core/Machine.h"
#include "core/Rules.h"

namespace zorik {
namespace {

constexpr int kTicksToQuestion = 300;

// The objects whose repainting a sensor notices whatever their state.
constexpr std::uint32_t Bit(int code) {
  return std::uint32_t{1} << code;
}
constexpr std::uint32_t kStirring = Bit(kSpace) | Bit(kDog) | Bit(kFireFly) | Bit(kButterFly) | Bit(kFinish) |
                                    Bit(kBox) | Bit(kWallH) | Bit(kWallV) | Bit(kFly) | Bit(kExplosion) |
                                    Bit(kFlea) | Bit(kCat) | Bit(kDragonFly);

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
  const std::uint16_t code = hra.Field(c);
  const bool listed = code < Grids::kCodes && (kStirring & Bit(code)) != 0;
  if (listed || hra.FieldState(c) != kFlat) TestCidla(hra, c);
}

}  // namespace zorik
