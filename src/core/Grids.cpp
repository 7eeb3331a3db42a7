#include "core/Grids.h"

#include <bit>

namespace zorik {
namespace {

// The rows of the table by code; the codes that are no objects have empty ones.
constexpr auto kRows = [] {
  std::array<ObjectRow, kCodes> rows{};
  for (const ObjectRow& object : kObjects) rows[object.code] = object;
  return rows;
}();

// A heading above the highest has been followed in this tick.
constexpr bool HasStepped(std::size_t code, bool highMark) {
  return code == kVacated % kCodes || (kRows[code].acts == Acting::Steps && highMark);
}

constexpr bool Acts(std::size_t code, std::size_t state, bool highMark) {
  switch (kRows[code].acts) {
    case Acting::Nothing:
    case Acting::GivesRoom:
      return false;
    case Acting::GoesOff:
      return state == kFlat;
    default:
      return !HasStepped(code, highMark);
  }
}

constexpr bool Settles(std::size_t code, bool highMark) {
  const Ending ends = kRows[code].ends;
  if (ends == Ending::Burns || HasStepped(code, highMark)) return false;
  return ends == Ending::Repaints || ends == Ending::Counts || highMark;
}

bool IsAny(std::uint16_t code, std::uint16_t traits) {
  return (Grids::Traits(code) & traits) != 0;
}

}  // namespace

const std::array<std::uint8_t, kCodes* 8> Grids::kFlags = [] {
  std::array<std::uint8_t, kCodes * 8> flags{};
  for (std::size_t i = 0; i < flags.size(); ++i) {
    const std::size_t code = i % kCodes;
    const std::size_t state = i / kCodes % 4;
    const bool highMark = i >= 4 * kCodes;
    flags[i] = static_cast<std::uint8_t>(
        (code != kSpace ? kTaken : 0) | (state == kFalling ? kFalls : 0) | (state == kResting ? kRests : 0) |
        (Acts(code, state, highMark) ? kActs : 0) | (HasStepped(code, highMark) ? kStepped : 0) |
        (Settles(code, highMark) ? kSettles : 0));
  }
  return flags;
}();

// A tenth, ties to the even number.
const std::array<std::uint8_t, 256> Grids::kEndedMarks = [] {
  std::array<std::uint8_t, 256> marks{};
  for (std::size_t mark = 0; mark < marks.size(); ++mark) {
    const bool up = mark % 10 > 5 || (mark % 10 == 5 && mark / 10 % 2 == 1);
    marks[mark] = static_cast<std::uint8_t>(mark <= kHighestHeading ? mark : mark / 10 + (up ? 1 : 0));
  }
  return marks;
}();

// Those damaged headings that are still too high are left to EndStep.
void Grids::EndSteps(std::size_t place, std::uint64_t cells) {
  std::uint64_t ended = 0;
  std::uint64_t opened = 0;
  for (cells &= stepped_.From(place); cells != 0; cells &= cells - 1) {
    const int bit = std::countr_zero(cells);
    Content& cell = cells_[place + static_cast<std::size_t>(bit)];
    const Content now = Ended(cell);
    if (now >> kMarkBit > kHighestHeading) continue;
    opened |= std::uint64_t{(cell & kCodeBits) == kVacated} << bit;
    ended |= std::uint64_t{1} << bit;
    cell = now;
  }
  taken_.RemoveFrom(place, opened);
  acting_.AddFrom(place, ended & ~opened);
  stepped_.RemoveFrom(place, ended);
}

void Grids::Recount(Cell c, Content old) {
  const std::uint16_t code = Field(c);
  if ((kTraits[old % kCodes] & trait::kCounted) != 0) --count_[old % kCodes];
  if (IsAny(code, trait::kCounted)) ++count_[code % kCodes];
  amoeba_.Put(c, code == kAmoeba);
  burning_.Put(c, code == kExplosion || code == kSensor);
  finishes_.Put(c, code == kFinish);
  deadly_.Put(c, IsAny(code, trait::kDeadly));
  PutGlitter(c, IsAny(code, trait::kGlitters));
}

// Of what is counted gems and keys fall all the time, the others hardly ever.
void Grids::CarryOver(Cell from, Cell to) {
  const std::uint16_t code = Field(to);
  if (IsAny(code, trait::kGlitters)) {
    PutGlitter(from, false);
    PutGlitter(to, true);
  } else {
    Recount(to, kSpace);
    Recount(from, code);
  }
}

bool Grids::KeptRight(Cell c) const {
  const std::uint16_t code = Field(c);
  const bool glitters = (Glitter(c.x()) >> (c.y() - Cell::kMinY) & 1) != 0;
  return FlagsAgree(c) && amoeba_.Has(c) == (code == kAmoeba) &&
         burning_.Has(c) == (code == kExplosion || code == kSensor) &&
         finishes_.Has(c) == (code == kFinish) && deadly_.Has(c) == IsAny(code, trait::kDeadly) &&
         glitters == IsAny(code, trait::kGlitters);
}

}  // namespace zorik
