#include "screens/Moment.h"

#include "screens/MessageStrip.h"
#include "screens/TopBar.h"
#include "skin/CavePainter.h"
#include "skin/Sounds.h"

namespace zorik {
namespace {

// A number that the cave does not have is shown as dead once a tick has looked for it.
std::optional<int> LookOf(const Hra& hra, int n) {
  const Unit& unit = hra.Dog[static_cast<std::size_t>(n)];
  if (unit.Alive) return n == hra.ActiveDog ? 0 : 1;
  return n > 0 && hra.Ticks > 0 ? std::optional(2) : std::nullopt;
}

// A strip that shows stays, also where there is but one unit left to steer.
void ShowUnits(const Hra& hra, TopBar& bar) {
  if (!hra.MultiDog && !bar.UnitsShown()) return;
  bar.ShowUnits(hra.DogCount, hra.SchemeHue);
  for (int n = 0; n <= hra.DogCount; ++n) {
    if (const std::optional<int> look = LookOf(hra, n)) bar.DrawDogN(n, *look);
  }
}

}  // namespace

void ShowMoment(const Hra& hra, bool jump, CavePainter& painter, TopBar& bar, MessageStrip& strip) {
  strip.Clear();
  painter.ShowMoment(hra, jump);
  bar.SetClock(hra.ClockShown);
  bar.SetGems(hra.GemsCollected);
  bar.SetNeeded(hra.GemsNeeded);
  bar.SetValue(hra.GemValue);
  ShowUnits(hra, bar);
}

void SoundLoops(const Hra& hra, Sounds& sounds) {
  if (hra.Win) return;
  if (hra.MagicState == kMagicRunning) sounds.PZvuk(SoundId::MagicWall);
  const bool grows = hra.Ticks == 0 || hra.PrevAmoebaRoom > 0;
  if (grows && hra.Count(kAmoeba) > 0) sounds.PZvuk(SoundId::Amoeba);
}

}  // namespace zorik
