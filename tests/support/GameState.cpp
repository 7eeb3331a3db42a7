#include "support/GameState.h"

#include <sstream>

#include "core/Machine.h"
#include "trace/Trace.h"

namespace zorik::test {

std::string GameState(const Hra& hra) {
  std::uint64_t moved = 0;
  ForEachCell(hra, [&](Cell c) { moved = moved * 31 + (hra.FieldMoved(c) ? 1 : 0); });
  std::ostringstream text;
  text << TickLine(hra) << ' ' << moved << ' ' << hra.MagicStart << ' ' << hra.AmoebaRoom << ' '
       << hra.PrevAmoebaRoom << ' ' << hra.KeyDirection << ' ' << hra.KeyAction << ' ' << hra.DogCount << ' '
       << hra.TeleportField << ' ' << int{hra.TeleportState} << ' ' << int{hra.TeleportMark} << ' '
       << hra.TeleportDogBusy << hra.CatInTransit << hra.Win.has_value() << ' ' << hra.CatPose << ' '
       << hra.CatLastDir << ' ' << hra.CatLastAdvanced << ' ' << hra.CatLastX << ' ' << hra.CatLastY;
  return text.str();
}

}  // namespace zorik::test
