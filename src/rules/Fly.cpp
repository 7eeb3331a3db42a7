// Flies: straight on until the way is blocked, then into a way that chance picks, back only if there is no
// other. Headings are 1 up, 2 right, 3 down, 4 left, 0 none yet; one that has acted in this tick holds ten
// times its heading.
#include "core/Rules.h"

namespace zorik {
namespace {

constexpr std::array<Step, 5> kWays{Step{}, kUp, kRight, kDown, kLeft};

bool IsHeading(int heading) {
  return heading >= 1 && heading <= 4;
}

}  // namespace

void MoveFly(Hra& hra, Cell c) {
  if (hra.FieldMark(c) == 0) {
    const int drawn = Nahoda(hra, 4);
    if (drawn >= 0) hra.SetFieldMark(c, static_cast<std::uint8_t>(drawn));
  }
  const int heading = hra.FieldMark(c);
  if (!IsHeading(heading)) return;
  const Cell target = c + kWays[static_cast<std::size_t>(heading)];
  if (hra.Field(target) != kSpace) {
    hra.SetFieldMark(c, static_cast<std::uint8_t>(MouchaS(hra, c, heading) * 10));
    return;
  }
  hra.Vacate(c);
  hra.Enter(target, kFly, static_cast<std::uint8_t>(heading * 10));
  TellMove(hra, c, target);
}

int MouchaS(Hra& hra, Cell c, int heading) {
  std::array<bool, 5> open{};
  int ways = 0;
  int last = heading;
  for (int way = 1; way <= 4; ++way) {
    if (hra.Field(c + kWays[static_cast<std::size_t>(way)]) != kSpace) continue;
    open[static_cast<std::size_t>(way)] = true;
    ++ways;
    last = way;
  }
  if (ways <= 1) return last;
  open[static_cast<std::size_t>((heading - 1 + 2) % 4 + 1)] = false;
  for (;;) {
    const int drawn = Nahoda(hra, 4);
    if (IsHeading(drawn) && open[static_cast<std::size_t>(drawn)]) return drawn;
    if (hra.RanDry) return heading;
  }
}

}  // namespace zorik
