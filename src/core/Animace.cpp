// Animace, what time alone changes: the first step of a tick. The magic wall runs out, the finish opens and
// glows.
#include "core/Scans.h"

namespace zorik {
namespace {

void RepaintFlatCells(Hra& hra) {
  const auto repaint = [&hra](Cell c) {
    if (hra.FieldState(c) == kFlat) PREKR(hra, c);
  };
  if (IsHeard(hra)) return ForEachCell(hra, repaint);
  ForEachOf(hra, hra.Deadly(), repaint);  // of which the dogs take a pose
}

// The running wall flickers, and so does all that is flat: sensors beside it hear that.
void RunMagicWall(Hra& hra) {
  if (hra.MagicState != kMagicRunning) return;
  if (hra.Elapsed - hra.MagicStart > hra.MagicTime * kTicksPerSecond) {
    hra.MagicState = kMagicSpent;
    hra.stage().ShowMessage(TextId::MagicWallSpent, Colour::Yellow);
    KockaEvent(hra, 'D');
    hra.stage().PZvukStop(SoundId::MagicWall);
  }
  RepaintFlatCells(hra);
}

void OpenExit(Hra& hra) {
  if (hra.GemsCollected != hra.GemsNeeded || hra.ExitOpen) return;
  hra.stage().Flash();
  hra.ExitOpen = true;
  hra.GemValue = hra.GemValueAfter;
  hra.stage().Label(LabelId::Value, hra.GemValue);
  hra.stage().ShowMessage(TextId::FinishOpen, Colour::White);
  hra.stage().PZvuk(SoundId::ExitOpen);
  KockaEvent(hra, 'B');
}

void GlowFinish(Hra& hra) {
  if (hra.GemsCollected < hra.GemsNeeded || !IsHeard(hra)) return;
  ForEachOf(hra, hra.Finishes(), [&hra](Cell c) { PREKR(hra, c); });
}

}  // namespace

void Animace(Hra& hra) {
  RunMagicWall(hra);
  ++hra.Ticks;
  OpenExit(hra);
  GlowFinish(hra);
}

}  // namespace zorik
