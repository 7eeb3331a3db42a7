#include "core/Grids.h"

namespace zorik {
namespace {

// What the flags are made of. What settles has something to end in the closing scan, with a heading or not.
struct Duty {
  bool acts = false;         // in the object scan
  bool followsMark = false;  // once a tick
  bool settles = false;
};

constexpr Duty DutyOf(const ObjectRow& object) {
  const bool follows = object.acts == Acting::Steps;
  const bool monster = (object.traits & trait::kMonster) != 0;
  return {.acts = object.acts != Acting::Nothing && object.acts != Acting::GivesRoom,
          .followsMark = follows,
          .settles = monster || (object.ends != Ending::Nothing && object.ends != Ending::Burns)};
}

constexpr auto kDuties = [] {
  std::array<Duty, kCodes> duties{};
  for (const ObjectRow& object : kObjects) duties[object.code] = DutyOf(object);
  duties[kVacated % kCodes].settles = true;
  return duties;
}();

// A heading above 4 has been followed in this tick.
constexpr bool MayAct(std::size_t code, std::size_t state, bool highMark) {
  const bool done = highMark && kDuties[code].followsMark;
  return (kDuties[code].acts && !done) || state >= kResting;
}

constexpr bool MaySettle(std::size_t code, bool highMark) {
  return kDuties[code].settles || highMark;
}

}  // namespace

const std::array<std::uint8_t, kCodes* 8> Grids::kFlags = [] {
  std::array<std::uint8_t, kCodes * 8> flags{};
  for (std::size_t i = 0; i < flags.size(); ++i) {
    const std::size_t code = i % kCodes;
    const bool highMark = i >= 4 * kCodes;
    flags[i] = static_cast<std::uint8_t>((MayAct(code, i / kCodes % 4, highMark) ? kActing : 0) |
                                         (MaySettle(code, highMark) ? kSettling : 0));
  }
  return flags;
}();

void Grids::Recount(Cell c, Content old) {
  const std::uint16_t code = Field(c);
  if ((kTraits[old % kCodes] & trait::kCounted) != 0) --count_[old % kCodes];
  if ((Traits(code) & trait::kCounted) != 0) ++count_[code % kCodes];
  amoeba_.Put(c, code == kAmoeba);
  burning_.Put(c, code == kExplosion || code == kSensor);
  std::uint64_t& column = glitter_[static_cast<std::size_t>(c.x() - Cell::kMinX)];
  const std::uint64_t row = std::uint64_t{1} << (c.y() - Cell::kMinY);
  column = (Traits(code) & trait::kGlitters) != 0 ? column | row : column & ~row;
}

}  // namespace zorik
