// Impact: what a falling object does to the thing that it lands on. The object itself is moved by
// Gravity.cpp.
#include "core/Rules.h"

namespace zorik {
namespace {

bool DiesOfImpact(std::uint16_t code) {
  switch (code) {
    case kFireFly:
    case kButterFly:
    case kFly:
    case kDog:
    case kFlea:
    case kCat:
    case kDragonFly:
      return true;
    default:
      return false;
  }
}

SoundId LandingSound(std::uint16_t code) {
  return code == kGem || IsOneOf(code, kKeyRed, kKeyBlue) ? SoundId::FallGem : SoundId::Boulder;
}

}  // namespace

void Dopad(Hra& hra, Cell c) {
  const Cell hit = c + kDown;
  const std::uint16_t thing = hra.Field(hit);
  const bool flat = hra.FieldState(hit) == kFlat;
  if (DiesOfImpact(thing)) {
    Exploze(hra, hit);
  } else if (thing == kBox && flat) {
    LightBomb(hra, hit);
  } else if (thing == kBrick && flat) {
    hra.stage().PZvuk(SoundId::FallGem);
  } else {
    hra.stage().PZvuk(LandingSound(hra.Field(c)));
  }
}

}  // namespace zorik
