// Animace, what time alone changes: the first step of a tick. The magic wall runs out, the finish opens and
// glows.
#include "core/Scans.h"

namespace zorik {
namespace {

// The running wall flickers, and so does all that is flat: sensors beside it hear that.
void RunMagicWall(Hra& hra) {
  if (hra.MagicState != kMagicRunning) return;
  if (hra.Elapsed - hra.MagicStart > hra.MagicTime * kTicksPerSecond) {
    hra.MagicState = kMagicSpent;
    hra.stage().ShowMessage(104, Colour::Yellow);
    KockaEvent(hra, 'D');
    hra.stage().PZvukStop(9);
  }
  ForEachCell(hra, [&hra](Cell c) {
    if (hra.FieldState(c) == kFlat) PREKR(hra, c);
  });
}

void OpenExit(Hra& hra) {
  if (hra.GemsCollected != hra.GemsNeeded || hra.ExitOpen) return;
  hra.stage().Flash();
  hra.ExitOpen = true;
  hra.GemValue = hra.GemValueAfter;
  hra.stage().Label(LabelId::Value, hra.GemValue);
  hra.stage().ShowMessage(105, Colour::White);
  hra.stage().PZvuk(8);
  KockaEvent(hra, 'B');
}

void GlowFinish(Hra& hra) {
  if (hra.GemsCollected < hra.GemsNeeded || hra.Count(kFinish) == 0) return;
  ForEachCell(hra, [&hra](Cell c) {
    if (hra.Field(c) == kFinish) PREKR(hra, c);
  });
}

}  // namespace

void Animace(Hra& hra) {
  RunMagicWall(hra);
  ++hra.Ticks;
  OpenExit(hra);
  GlowFinish(hra);
}

}  // namespace zorik
