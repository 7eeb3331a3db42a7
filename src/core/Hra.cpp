// Hra, the game: the stage of a run that nobody watches. All else that Hra.h tells of lives in the files
// named by it: Setup, Tick, Record, WinGame.
#include "core/Hra.h"

namespace zorik {

Stage& Hra::Silence() {
  static Stage silence;
  return silence;
}

}  // namespace zorik
