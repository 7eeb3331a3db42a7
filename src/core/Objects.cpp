#include "core/Objects.h"

#include <algorithm>

namespace zorik {
namespace {

constexpr bool RowsStandAtTheirCodes() {
  for (std::size_t i = 0; i < kObjectCount; ++i) {
    if (kObjects[i].code != i) return false;
  }
  return true;
}
static_assert(RowsStandAtTheirCodes(), "the rows of kObjects stand in the order of their codes");
static_assert((kCodes & (kCodes - 1)) == 0, "kCodes is a power of two");
static_assert(kFleaInTransit % kCodes == kCodes - 2 && kVacated % kCodes == kCodes - 1);
static_assert(kObjectCount <= kCodes - 2, "no code is left: double kCodes");
static_assert(kSpace == 0 && kFlat == 0, "a cell of nothing but zeros is empty");
static_assert(!kTileSets.back().empty(), "each tile set has its name");

// The key of a colour and its lock are as far apart in all colours.
static_assert(LockOf(kKeyRed) == kLockRed && LockOf(kKeyGreen) == kLockGreen &&
              LockOf(kKeyBlue) == kLockBlue);

constexpr bool LettersDiffer() {
  for (const ObjectLetter& one : kObjectLetters) {
    const auto same = [&one](const ObjectLetter& other) { return other.letter == one.letter; };
    if (std::count_if(kObjectLetters.begin(), kObjectLetters.end(), same) != 1) return false;
  }
  return true;
}
static_assert(LettersDiffer(), "a letter stands for one object");

constexpr bool PalettePlacesDiffer() {
  for (const ObjectLetter& one : kObjectLetters) {
    const auto takes = [&one](const ObjectLetter& other) {
      return other.palette == one.palette && other.palette >= 0 &&
             (other.code != one.code || other.state != one.state || other.mark != one.mark);
    };
    if (std::any_of(kObjectLetters.begin(), kObjectLetters.end(), takes)) return false;
  }
  return true;
}
static_assert(PalettePlacesDiffer(), "a place of the palette holds one object");

constexpr bool AllInThePaletteHaveNames() {
  return std::all_of(kObjectLetters.begin(), kObjectLetters.end(),
                     [](const ObjectLetter& object) { return (object.palette < 0) == !object.name; });
}
static_assert(AllInThePaletteHaveNames(), "what stands in the palette has a name there, nothing else has");

constexpr bool WhatGlittersIsCounted() {
  return std::all_of(kObjects.begin(), kObjects.end(), [](const ObjectRow& object) {
    return (object.traits & trait::kGlitters) == 0 || (object.traits & trait::kCounted) != 0;
  });
}
static_assert(WhatGlittersIsCounted(), "what glitters is counted as well, since the count finds it");

constexpr std::array<std::int8_t, 256> LetterRows() {
  std::array<std::int8_t, 256> rows{};
  rows.fill(-1);
  for (std::size_t i = 0; i < kObjectLetters.size(); ++i) {
    const char letter = kObjectLetters[i].letter;
    rows[static_cast<unsigned char>(letter)] = static_cast<std::int8_t>(i);
  }
  return rows;
}

constexpr auto kLetterRows = LetterRows();

}  // namespace

const ObjectLetter* FindLetter(char letter) {
  const int row = kLetterRows[static_cast<unsigned char>(letter)];
  return row < 0 ? nullptr : &kObjectLetters[static_cast<std::size_t>(row)];
}

int DogNumber(char letter) {
  if (letter == 'H') return 1;
  return letter >= '1' && letter <= '9' ? letter - '0' : 0;
}

}  // namespace zorik
