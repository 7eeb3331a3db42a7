// Monsters: fireflies keep a wall at their left, butterflies at their right. Flies and dragonflies have files
// of their own. All of them die of touching a dog, the cat or amoeba at the end of the tick. Headings are 1
// left, 2 up, 3 right, 4 down; a monster that has acted in this tick holds ten times its heading.
#include "core/Rules.h"

namespace zorik {
namespace {

constexpr std::array<Step, 5> kWays{Step{}, kLeft, kUp, kRight, kDown};

struct Turn {
  std::size_t first;    // the heading tried first
  std::size_t then;     // the one tried next
  std::size_t blocked;  // the one to turn to, which takes the whole tick
};

// By heading.
constexpr std::array<Turn, 5> kFireFlyTurns{{{}, {4, 1, 2}, {1, 2, 3}, {2, 3, 4}, {3, 4, 1}}};
constexpr std::array<Turn, 5> kButterFlyTurns{{{}, {2, 1, 4}, {3, 2, 1}, {4, 3, 2}, {1, 4, 3}}};

// Looks at both ways before it chooses, and a blocked monster enters its own cell: that is quicker than to
// ask one after the other.
void FollowWall(Hra& hra, Cell c, const std::array<Turn, 5>& turns) {
  const std::size_t heading = hra.FieldMark(c);
  if (heading == 0 || heading >= turns.size()) return;
  const Turn& turn = turns[heading];
  const bool first = hra.Field(c + kWays[turn.first]) == kSpace;
  const bool then = hra.Field(c + kWays[turn.then]) == kSpace;
  const std::size_t open = first ? turn.first : turn.then;
  const bool blocked = !(first | then);
  const std::uint16_t code = hra.Field(c);
  hra.Vacate(c);
  hra.Enter(c + kWays[blocked ? 0 : open], code,
            static_cast<std::uint8_t>(10 * (blocked ? turn.blocked : open)));
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
