// Monsters: fireflies keep a wall at their left, butterflies at their right. Flies and dragonflies have files
// of their own. All of them die of touching a dog, the cat or amoeba at the end of the tick. Headings are 1
// left, 2 up, 3 right, 4 down; a monster that has acted in this tick holds ten times its heading.
#include "core/Rules.h"

namespace zorik {
namespace {

// A way, and the heading that a monster has after it.
struct Heading {
  Step way;
  std::uint8_t number = 0;
};
constexpr Heading kWest{kLeft, 1}, kNorth{kUp, 2}, kEast{kRight, 3}, kSouth{kDown, 4};

struct Turn {
  Heading first;    // tried first
  Heading then;     // tried next
  Heading blocked;  // to turn to, which takes the whole tick
};

// By heading.
using Turns = std::array<Turn, 5>;
constexpr Turns kFireFlyTurns{
    {{}, {kSouth, kWest, kNorth}, {kWest, kNorth, kEast}, {kNorth, kEast, kSouth}, {kEast, kSouth, kWest}}};
constexpr Turns kButterFlyTurns{
    {{}, {kNorth, kWest, kSouth}, {kEast, kNorth, kWest}, {kSouth, kEast, kNorth}, {kWest, kSouth, kEast}}};

// Chooses from behind, and a blocked monster enters its own cell: that is quicker than to leave at the first
// free way, since the processor then need not guess which it is.
void FollowWall(Hra& hra, Cell c, const Turns& turns) {
  const std::size_t heading = hra.FieldMark(c);
  if (heading == 0 || heading >= turns.size()) return;
  const Turn& turn = turns[heading];
  const std::uint16_t code = hra.Field(c);
  const Cell first = c + turn.first.way;
  const Cell then = c + turn.then.way;
  Cell target = hra.Field(then) == kSpace ? then : c;
  std::uint8_t now = hra.Field(then) == kSpace ? turn.then.number : turn.blocked.number;
  const bool free = hra.Field(first) == kSpace;
  target = free ? first : target;
  now = free ? turn.first.number : now;
  hra.Vacate(c);
  hra.Enter(target, code, static_cast<std::uint8_t>(10 * now));
  if (hra.Watched()) [[unlikely]]
    TellMove(hra, c, target);
}

}  // namespace

void Potvory(Hra& hra, Cell c) {
  const std::uint16_t code = hra.Field(c);
  if (code == kFly) return MoveFly(hra, c);
  if (code == kDragonFly) return MoveDragonFly(hra, c);
  FollowWall(hra, c, code == kFireFly ? kFireFlyTurns : kButterFlyTurns);
}

void Contact(Hra& hra, Cell c) {
  const std::uint16_t code = hra.Field(c);
  if ((Grids::Traits(code) & trait::kMonster) != 0 && BesideDeadly(hra, c)) return Exploze(hra, c);
  if (code == kFlea && BesideAmoeba(hra, c)) Exploze(hra, c);
}

}  // namespace zorik
