// The teleport: whatever stands on the entrance rides to the free exit, in four ticks in which both pads are
// steel and the passenger is in no cell at all.
#include "core/Rules.h"

namespace zorik {
namespace {

constexpr int kLastStage = 5;

// The unit numbered one below the passenger takes over when it lives. Records depend on it.
void Board(Hra& hra) {
  const Cell in = hra.TeleportIn;
  hra.TeleportStage = 1;
  if (hra.Field(in) == kCat) hra.CatInTransit = true;
  if (hra.Field(in) == kDog) {
    hra.TeleportDogBusy = true;
    ZmenitPsa(hra, DogIn(hra, in) * 10);
  }
  hra.TeleportField = hra.Field(in);
  hra.TeleportState = hra.FieldState(in);
  hra.TeleportMark = hra.FieldMark(in);
  hra.SetField(in, kSteel);
  hra.SetField(hra.TeleportOut, kSteel);
  hra.SetFieldMark(in, 0);
}

// The steered unit is the one that arrives, whoever rode.
void Arrive(Hra& hra) {
  const Cell in = hra.TeleportIn;
  const Cell out = hra.TeleportOut;
  hra.TeleportStage = 0;
  if (hra.TeleportDogBusy) ActiveUnit(hra) = {out.x(), out.y(), true};
  if (hra.CatInTransit) {
    hra.CatX = out.x();
    hra.CatY = out.y();
  }
  hra.TeleportDogBusy = false;
  hra.CatInTransit = false;
  hra.SetObject(out, hra.TeleportField, hra.TeleportState);
  hra.SetFieldMark(out, hra.TeleportMark);
  PREKR(hra, out);
  hra.SetObject(in, kSpace, kFlat);
  hra.SetFieldMark(in, 0);
  PREKR(hra, in);
}

}  // namespace

void Teleport(Hra& hra) {
  if (hra.TeleportStage == 0 && hra.Field(hra.TeleportIn) != kSpace && hra.Field(hra.TeleportOut) == kSpace) {
    Board(hra);
  }
  if (hra.TeleportStage == 0) return;
  ++hra.TeleportStage;
  PREKR(hra, hra.TeleportIn);
  PREKR(hra, hra.TeleportOut);
  if (hra.TeleportStage == kLastStage) Arrive(hra);
}

}  // namespace zorik
