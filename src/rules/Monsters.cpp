// Monsters: fireflies keep a wall at their left, butterflies at their right. Flies and dragonflies have files
// of their own. All of them die of touching a dog, the cat or amoeba at the end of the tick. Headings are 1
// left, 2 up, 3 right, 4 down; a monster that has acted in this tick holds ten times its heading.
#include "core/Rules.h"

namespace zorik {
namespace {

constexpr std::array<Step, 5> kWays{Step{}, kLeft, kUp, kRight, kDown};

struct Turn {
  int first;    // the heading tried first
  int then;     // the one tried next
  int blocked;  // the one to turn to, which takes the whole tick
};

// By heading.
constexpr std::array<Turn, 5> kFireFlyTurns{{{}, {4, 1, 2}, {1, 2, 3}, {2, 3, 4}, {3, 4, 1}}};
constexpr std::array<Turn, 5> kButterFlyTurns{{{}, {2, 1, 4}, {3, 2, 1}, {4, 3, 2}, {1, 4, 3}}};

bool Go(Hra& hra, Cell c, int heading) {
  const Cell target = c + kWays[static_cast<std::size_t>(heading)];
  if (hra.Field(target) != kSpace) return false;
  hra.SetFieldMark(target, static_cast<std::uint8_t>(heading * 10));
  hra.SetFieldMark(c, 0);
  hra.SetField(target, hra.Field(c));
  hra.SetField(c, kVacated);
  return true;
}

void FollowWall(Hra& hra, Cell c, const std::array<Turn, 5>& turns) {
  const std::size_t heading = hra.FieldMark(c);
  if (heading == 0 || heading >= turns.size()) return;
  const Turn& turn = turns[heading];
  if (Go(hra, c, turn.first) || Go(hra, c, turn.then)) return;
  hra.SetFieldMark(c, static_cast<std::uint8_t>(turn.blocked * 10));
}

bool Touches(const Hra& hra, Cell c, std::initializer_list<std::uint16_t> codes) {
  for (const Step way : {kLeft, kRight, kUp, kDown}) {
    for (const std::uint16_t code : codes) {
      if (hra.Field(c + way) == code) return true;
    }
  }
  return false;
}

}  // namespace

void Potvory(Hra& hra, Cell c) {
  switch (hra.Field(c)) {
    case kFireFly:
      return FollowWall(hra, c, kFireFlyTurns);
    case kButterFly:
      return FollowWall(hra, c, kButterFlyTurns);
    case kFly:
      return MoveFly(hra, c);
    default:
      return MoveDragonFly(hra, c);
  }
}

void Contact(Hra& hra, Cell c) {
  switch (hra.Field(c)) {
    case kFireFly:
    case kButterFly:
    case kFly:
    case kDragonFly:
      if (Touches(hra, c, {kDog, kAmoeba, kCat})) Exploze(hra, c);
      return;
    case kFlea:
      if (Touches(hra, c, {kAmoeba})) Exploze(hra, c);
      return;
    default:
      return;
  }
}

}  // namespace zorik
