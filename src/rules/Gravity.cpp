// Gravity: whatever stands in a cell with state 2 or 3 falls and rolls, whatever it is; a magic wall turns
// what falls on it into something else, and the mouth of a splitter makes two of one. What a landing does
// to the thing below is told in Impact.cpp.
#include "core/Patterns.h"
#include "core/Rules.h"

namespace zorik {
namespace {

void Drop(Hra& hra, Cell target, std::uint16_t code) {
  hra.SetObject(target, code, kFalling);
  hra.SetFieldMoved(target, true);
  PREKR(hra, target);
}

// Also what rolls sideways falls from then on. Where nobody listens the cell that is empty now matters to
// none.
void MoveObject(Hra& hra, Cell from, Cell to) {
  hra.LetFall(from, to);
  hra.SetFieldMoved(to, true);
  if (IsHeard(hra)) {
    TellMove(hra, from, to);
    PREKR(hra, from);
  }
  PREKR(hra, to);
}

// Left before right, always.
bool Roll(Hra& hra, Cell c) {
  for (const Step side : {kLeft, kRight}) {
    if (hra.Field(c + side + kDown) != kSpace || hra.Field(c + side) != kSpace) continue;
    MoveObject(hra, c, c + side);
    return true;
  }
  return false;
}

// Answers, like all that follow, whether more has happened than a fall into the cell below.
bool Rest(Hra& hra, Cell c) {
  const Cell below = c + kDown;
  if (hra.Field(below) == kSpace) {
    MoveObject(hra, c, below);
    return false;
  }
  return hra.FieldState(below) != kFlat && Roll(hra, c);
}

void WakeMagicWall(Hra& hra) {
  hra.MagicState = kMagicRunning;
  hra.MagicStart = hra.Elapsed;
  hra.stage().ShowMessage(TextId::MagicWallWakes, Colour::Yellow);
  hra.stage().PZvuk(SoundId::MagicWall);
  KockaEvent(hra, 'C');
}

std::uint16_t Converted(std::uint16_t code) {
  return code == kGem ? kBoulder : kGem;
}

// Swallows the object, with room below it or not, working or spent.
void PassMagicWall(Hra& hra, Cell c) {
  if (hra.MagicState == kMagicDormant) WakeMagicWall(hra);
  const Cell outlet = c + kDown + kDown;
  if (hra.MagicState == kMagicRunning && hra.Field(outlet) == kSpace)
    Drop(hra, outlet, Converted(hra.Field(c)));
  ClearField(hra, c);
}

// An object that does not outlive its landing needs a branch of its own in front of those that call Dopad:
// they let whatever is in the cell by then roll or rest, be it nothing. The branch leaves alone what is over
// the mouth of a splitter, for that is split right after, be it nothing.
//
// Goes on also over a magic wall, on the cell that it has just emptied. So that cell keeps the state of a
// resting object though it is space, and what enters it without a state of its own can fall.
bool Fall(Hra& hra, Cell c) {
  const Cell below = c + kDown;
  const bool magic = IsMagicWall(hra, below);
  if (magic) PassMagicWall(hra, c);
  if (hra.Field(below) == kSpace) {
    MoveObject(hra, c, below);
    return magic;
  }
  if (hra.FieldState(below) != kFlat) {
    Dopad(hra, c);
    if (!Roll(hra, c)) hra.SetFieldState(c, kResting);
  } else {
    hra.SetFieldState(c, kResting);
    Dopad(hra, c);
  }
  return true;
}

// With both outlets taken the object is simply gone.
void Split(Hra& hra, Cell c) {
  for (const Step side : {kLeft, kRight}) {
    const Cell outlet = c + kDown + kDown + side;
    if (hra.Field(outlet) == kSpace) Drop(hra, outlet, hra.Field(c));
  }
  ClearField(hra, c);
}

}  // namespace

bool NewGravitace(Hra& hra, Cell c) {
  bool more = false;
  if (hra.FieldState(c) == kResting) more = Rest(hra, c);
  if (hra.FieldState(c) == kFalling) more = Fall(hra, c) || more;
  if (!IsSplitterMouth(hra, c + kDown)) return more;
  Split(hra, c);
  return true;
}

}  // namespace zorik
