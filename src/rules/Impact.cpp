// Impact: what a falling object does to the thing that it lands on. The object itself is moved by
// Gravity.cpp.
#include "core/Patterns.h"
#include "core/Rules.h"

namespace zorik {
namespace {

bool Has(std::uint16_t code, std::uint16_t trait) {
  return (Grids::Traits(code) & trait) != 0;
}

SoundId LandingSound(std::uint16_t code) {
  return Has(code, trait::kRings) ? SoundId::FallGem : SoundId::Boulder;
}

}  // namespace

void Dopad(Hra& hra, Cell c) {
  const Cell hit = c + kDown;
  if (Has(hra.Field(hit), trait::kSquashable)) {
    Exploze(hra, hit);
  } else if (IsBomb(hra, hit)) {
    LightBomb(hra, hit);
  } else if (IsMagicWall(hra, hit)) {
    hra.stage().PZvuk(SoundId::FallGem);
  } else {
    hra.stage().PZvuk(LandingSound(hra.Field(c)));
  }
}

}  // namespace zorik
