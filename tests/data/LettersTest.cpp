#include <gtest/gtest.h>

#include <set>
#include <string_view>

#include "core/Objects.h"

namespace zorik {
namespace {

int PlaceOf(char letter) {
  const ObjectLetter* object = FindLetter(letter);
  return object == nullptr ? -1 : object->palette;
}

// The letters at their places; a blank stands for the one place that no letter has.
constexpr std::string_view kPalette = ".;RDHX!@WTAMK#%SLFOPQUYZBEV&^ INGJ:";

TEST(CaveLetters, HaveTheirPlacesInTheEditorsPalette) {
  for (std::size_t place = 0; place < kPalette.size(); ++place) {
    if (kPalette[place] == ' ') continue;
    EXPECT_EQ(PlaceOf(kPalette[place]), static_cast<int>(place)) << place;
  }
  for (char digit = '1'; digit <= '9'; ++digit) EXPECT_EQ(PlaceOf(digit), PlaceOf('H')) << digit;
}

TEST(CaveLetters, FillThePaletteUpToOnePlace) {
  std::set<int> told{-1};  // of the letters that the palette does not offer
  for (std::size_t place = 0; place < kPalette.size(); ++place) {
    if (kPalette[place] != ' ') told.insert(static_cast<int>(place));
  }
  std::set<int> places;
  for (const ObjectLetter& object : kObjectLetters) places.insert(object.palette);
  EXPECT_EQ(places, told);
  EXPECT_FALSE(places.contains(29));
}

}  // namespace
}  // namespace zorik
