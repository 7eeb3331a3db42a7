// The cat: walks by its program, one token's step a tick, digs, takes keys and resting gems (which the dog
// then lacks), pushes boxes and boulders. How the program jumps on events is told in CatScript.cpp.
#include "core/Rules.h"
#include "rules/Push.h"

namespace zorik {
namespace {

// Directions of the language; -1 is none. A damaged record may name others, which lead nowhere.
enum Direction : int { kNone = -1, kWest = 0, kEast = 1, kNorth = 2, kSouth = 3 };
constexpr std::array<Step, 4> kWays{kLeft, kRight, kUp, kDown};

bool LeadsOn(int direction) {
  return direction >= kWest && direction <= kSouth;
}

// What the token of this tick wants.
struct Want {
  int direction = kNone;
  bool advance = false;  // on to the next token after this step
  bool walk = false;     // on when the way ends
  bool push = false;     // on when something has been pushed
};

using Token = std::string_view;

Token TokenAt(const Hra& hra, int pc) {
  const std::string_view program = hra.CatProgram;
  const std::size_t place = static_cast<std::size_t>(pc) * 2;
  return place < program.size() ? program.substr(place, 2) : Token();
}

bool MuzeKockaJit(const Hra& hra, Cell c) {
  const std::uint16_t code = hra.Field(c);
  if (code == kGem && hra.FieldState(c) != kResting) return false;
  return (Grids::Traits(code) & trait::kCatEnters) != 0;
}

// A fly's headings: 1 up, 2 right, 3 down, 4 left.
int FlyHeading(int direction) {
  constexpr std::array<int, 4> kHeadings{4, 2, 1, 3};
  return LeadsOn(direction) ? kHeadings[static_cast<std::size_t>(direction)] : 0;
}

int DirectionOf(int flyHeading) {
  constexpr std::array<int, 5> kDirections{kNone, kNorth, kEast, kSouth, kWest};
  return kDirections[static_cast<std::size_t>(flyHeading)];
}

// Sideways wins over up and down, and of the two sides the one to which the cat was heading.
int GemBeside(const Hra& hra, Cell c) {
  const bool east = hra.CatLastDir == kEast;
  int found = kNone;
  for (const int direction : {+kSouth, +kNorth, east ? +kWest : +kEast, east ? +kEast : +kWest}) {
    const Cell beside = c + kWays[static_cast<std::size_t>(direction)];
    if (hra.Field(beside) == kGem && hra.FieldState(beside) == kResting) found = direction;
  }
  return found;
}

// A turn towards a gem costs time.
Want Collect(Hra& hra, Cell c) {
  Want want;
  want.direction = GemBeside(hra, c);
  if (want.direction != hra.CatLastDir && !hra.CatLastAdvanced) hra.CatWait = 2;
  if (want.direction == kNone) {
    want.advance = true;
    ++hra.CatPC;
    hra.CatWait = 1;
  }
  return want;
}

// Letters A to D step, E to H walk, I to L push: left, right, up, down.
Want Decode(Hra& hra, Token token, Cell c) {
  Want want;
  if (token.size() < 2) return want;
  const int place = token[1] - 'A';
  if (token[0] == '-' && place >= 0 && place < 12) {
    want.direction = place % 4;
    want.advance = place < 4;
    want.walk = place >= 4 && place < 8;
    want.push = place >= 8;
  } else if (token == "-P") {
    want.direction = Nahoda(hra, 4) - 1;
    want.advance = true;
  } else if (token == "/D") {
    want.direction = DirectionOf(MouchaS(hra, c, FlyHeading(hra.CatLastDir)));
  } else if (token[0] == '/' && place >= 4 && place < 8) {
    want.direction = place % 4;
  } else if (token == "+A") {
    want = Collect(hra, c);
  }
  return want;
}

// The end of a wait moves the program on, also when an event has moved it meanwhile.
void Wait(Hra& hra, Token token) {
  if (hra.CatWait > 0) {
    --hra.CatWait;
    if (hra.CatWait == 0 && token.substr(0, 1) != "+") ++hra.CatPC;
  } else if (token == "-N") {
    hra.CatWait = 9;
  } else if (token == "-O") {
    hra.CatWait = 99;
  }
}

// A key of its own that moves the program holds the cat at the token to which it has jumped.
void Enter(Hra& hra, Cell old, Cell target, Want& want) {
  const int before = hra.CatPC;
  SpapanZamek(hra, target);
  if (hra.CatPC != before) want.advance = false;
  if (hra.Field(old) != kBox) {
    hra.SetField(old, kSpace);
    PREKR(hra, old);
  }
  hra.CatX = target.x();
  hra.CatY = target.y();
}

void GoOn(Hra& hra, const Want& want) {
  if (want.advance) ++hra.CatPC;
}

void Move(Hra& hra, Cell old, Want& want) {
  if (!LeadsOn(want.direction)) {
    Nahoda(hra, 4);
    return GoOn(hra, want);
  }
  Step step = kWays[static_cast<std::size_t>(want.direction)];
  const Cell target = old + step;
  if (want.walk && (!MuzeKockaJit(hra, target + step) || !MuzeKockaJit(hra, target))) want.advance = true;
  const int chance = Nahoda(hra, 4);
  const bool swapped = PushBox(hra, target, step, chance == 1) == Push::Swapped;
  const bool pushed = chance == 1 && PushBoulder(hra, target, step, kFlat);
  if (want.push && (swapped || pushed)) want.advance = true;
  if (MuzeKockaJit(hra, target)) Enter(hra, old, target, want);
  GoOn(hra, want);
}

int PoseOf(int direction) {
  constexpr std::array<int, 4> kPoses{0, 2, 3, 1};
  return LeadsOn(direction) ? kPoses[static_cast<std::size_t>(direction)] : 1;
}

}  // namespace

void Kocka(Hra& hra) {
  if (!hra.CatPresent || hra.CatInTransit) return;
  const Cell old(hra.CatX, hra.CatY);
  const Token token = TokenAt(hra, hra.CatPC);
  Want want = Decode(hra, token, old);
  Wait(hra, token);
  if (want.direction != kNone && hra.CatWait == 0) Move(hra, old, want);
  hra.CatPose = PoseOf(want.direction);
  const Cell now(hra.CatX, hra.CatY);
  hra.SetObject(now, kCat, kFlat);
  TellMove(hra, old, now);
  PREKR(hra, now);
  hra.CatLastDir = want.direction;
  hra.CatLastAdvanced = want.advance;
  hra.CatLastX = old.x();
  hra.CatLastY = old.y();
}

}  // namespace zorik
