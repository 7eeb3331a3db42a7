#include "run/PlayOut.h"

namespace zorik {

std::unique_ptr<Hra> Unwatched(const Hra& run) {
  auto copy = std::make_unique<Hra>(run);
  copy->LeaveStage();
  return copy;
}

PlayedOut PlayOut(Hra& run, int mostTicks) {
  PlayedOut played;
  for (int i = 0; i < mostTicks && played.end == TickEnd::Running; ++i) {
    played.end = Tick(run, {});
    played.ranDry = played.ranDry || run.RanDry;
    if (played.end == TickEnd::Running || played.end == TickEnd::Won) ++played.ticks;
  }
  return played;
}

}  // namespace zorik
