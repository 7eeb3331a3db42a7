// Explosions: a block of 3 x 3 cells burns for four ticks; its kind follows from what stood in the middle.
// Steel is spared, bombs are lit and go off one tick later by themselves.
#include "core/Patterns.h"
#include "core/Rules.h"

namespace zorik {
namespace {

// Kinds: the picture's column, and what the burning leaves.
enum Kind : int { kPlain = 0, kOfDog = 1, kOfFly = 2, kOfButterFly = 3 };

Kind KindOf(std::uint16_t centre) {
  switch (centre) {
    case kDog:
      return kOfDog;
    case kFly:
      return kOfFly;
    case kButterFly:
      return kOfButterFly;
    default:
      return kPlain;
  }
}

void Destroy(Hra& hra, Cell c, Kind kind) {
  const bool mouth = IsSplitterMouth(hra, c);
  hra.SetField(c, kExplosion);
  hra.SetFieldMark(c, static_cast<std::uint8_t>(kind * 4));
  hra.SetFieldState(c, kFlat);
  PREKR(hra, c);
  hra.SetFieldMoved(c, true);
  if (mouth) {
    PREKR(hra, c + kLeft);
    PREKR(hra, c + kRight);
  }
  if (hra.CatPresent && c == Cell(hra.CatX, hra.CatY)) hra.CatPresent = false;
}

void BlowUp(Hra& hra, Cell c, Kind kind) {
  if (hra.Field(c) == kSteel || IsStruckBomb(hra, c)) return;
  if (IsBomb(hra, c)) {
    LightBomb(hra, c);
  } else {
    Destroy(hra, c, kind);
  }
}

void Leave(Hra& hra, Cell c, std::uint16_t code) {
  hra.SetFieldMark(c, 0);
  hra.SetField(c, code);
  if (code != kSpace) hra.SetFieldState(c, kResting);
}

}  // namespace

void LightBomb(Hra& hra, Cell c) {
  hra.SetFieldMoved(c, true);
  hra.SetObject(c, kBoulder, kFlat);
  PREKR(hra, c);
}

void Exploze(Hra& hra, Cell c) {
  hra.stage().PZvuk(SoundId::Explosion);
  ++hra.Explosions;
  const Kind kind = KindOf(hra.Field(c));
  if (IsStruckBomb(hra, c)) hra.SetField(c, kSpace);
  for (const Step row : {kUp, Step{}, kDown}) {
    for (const Step column : {kLeft, Step{}, kRight}) BlowUp(hra, c + row + column, kind);
  }
}

void Burn(Hra& hra, Cell c) {
  const int mark = hra.FieldMark(c);
  if (mark == 3 || mark == 7) {
    Leave(hra, c, kSpace);
  } else if (mark == 11) {
    Leave(hra, c, kBoulder);
  } else if (mark == 15) {
    Leave(hra, c, kGem);
  } else {
    hra.SetFieldMark(c, static_cast<std::uint8_t>(mark + 1));
  }
  PREKR(hra, c);
  hra.SetFieldMoved(c, true);
}

}  // namespace zorik
