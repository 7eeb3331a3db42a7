#include "core/Grids.h"

namespace zorik {
namespace {

struct Row {
  std::uint16_t code;
  int traits;
};

constexpr std::array<Row, 22> kRows{{
    {kSpace, trait::kStirring},
    {kBoulder, trait::kActs},  // flat, it is a struck bomb
    {kGem, trait::kCounted | trait::kGlitters},
    {kDog, trait::kStirring | trait::kDeadly},
    {kFireFly, trait::kFollowsMark | trait::kActs | trait::kSettles | trait::kStirring},
    {kButterFly, trait::kFollowsMark | trait::kActs | trait::kSettles | trait::kStirring},
    {kFinish, trait::kCounted | trait::kStirring},
    {kAmoeba, trait::kOwnEnd | trait::kSettles | trait::kCounted | trait::kDeadly},
    {kBox, trait::kStirring},
    {kWallH, trait::kActs | trait::kStirring},
    {kWallV, trait::kActs | trait::kStirring},
    {kSlime, trait::kActs | trait::kSettles | trait::kOwnEnd},
    {kFly, trait::kFollowsMark | trait::kActs | trait::kSettles | trait::kStirring},
    {kExplosion, trait::kOwnEnd | trait::kCounted | trait::kStirring},
    {kKeyRed, trait::kCounted | trait::kGlitters},
    {kKeyGreen, trait::kCounted | trait::kGlitters},
    {kKeyBlue, trait::kCounted | trait::kGlitters},
    {kFlea, trait::kSettles | trait::kOwnEnd | trait::kStirring},
    {kSensor, trait::kSettles | trait::kOwnEnd | trait::kCounted},
    {kCat, trait::kDeadly | trait::kStirring},
    {kDragonFly, trait::kActs | trait::kSettles | trait::kStirring},
    {kCatKey, trait::kCounted | trait::kGlitters},
}};

constexpr std::array<std::uint8_t, 32> ByCode() {
  std::array<std::uint8_t, 32> traits{};
  for (const Row& row : kRows) traits[row.code] = static_cast<std::uint8_t>(row.traits);
  traits[kVacated % traits.size()] = trait::kSettles;
  return traits;
}

constexpr auto kTraitsByCode = ByCode();

// A heading above 4 has been followed in this tick.
constexpr bool MayAct(std::size_t code, std::size_t state, bool highMark) {
  const int traits = kTraitsByCode[code];
  const bool done = highMark && (traits & trait::kFollowsMark) != 0;
  return ((traits & trait::kActs) != 0 && !done) || state >= kResting;
}

constexpr bool MaySettle(std::size_t code, bool highMark) {
  return (kTraitsByCode[code] & trait::kSettles) != 0 || highMark;
}

}  // namespace

const std::array<std::uint8_t, Grids::kCodes> Grids::kTraits = kTraitsByCode;

const std::array<std::uint8_t, Grids::kCodes* 8> Grids::kFlags = [] {
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
