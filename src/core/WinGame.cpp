// WinGame: what a won run is worth.
#include <algorithm>
#include <cstdio>

#include "core/Machine.h"
#include "data/CaveO.h"
#include "data/RecordFile.h"

namespace zorik {
int LiveDogs(const RunState& run) {
  int dogs = 0;
  for (int n = 1; n <= run.DogCount; ++n) dogs += run.Dog[static_cast<std::size_t>(n)].Alive ? 1 : 0;
  return dogs;
}

void WinGame(Hra& hra) {
  hra.stage().StopSounds();
  hra.stage().MoveView(false);
  WinResult win;
  win.LiveDogs = LiveDogs(hra);
  win.BonusCave = JeBonus(hra.CaveName);
  win.TimeLeft = hra.ClockShown;
  win.BaseScore = hra.GemsNeeded * hra.GemValueBefore +
                  (hra.GemsCollected - hra.GemsNeeded) * hra.GemValueAfter + win.TimeLeft * win.LiveDogs;
  win.Score = std::min(win.BaseScore + (win.BonusCave ? kBonusPoints : 0), kHighestScore);
  hra.Win = win;
  hra.stage().Won(win);
}

std::string ScoreBreakdown(const RunState& run, const WinResult& win) {
  std::array<char, 128> text{};
  std::snprintf(text.data(), text.size(), "%03d \xB7 %02d + %03d \xB7 %02d + %03d \xB7 %d = %05d",
                run.GemsNeeded, run.GemValueBefore, run.GemsCollected - run.GemsNeeded, run.GemValueAfter,
                win.TimeLeft, win.LiveDogs, win.BaseScore);
  return text.data();
}

}  // namespace zorik
