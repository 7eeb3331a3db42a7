#include <gtest/gtest.h>

#include <set>
#include <string>
#include <string_view>

#include "core/Objects.h"
#include "support/Scene.h"

namespace zorik::test {
namespace {

struct Told {
  char letter;
  int code;
  int state;
  int mark;
  int image;
};

// The objects as the makers of caves know them.
constexpr Told kTold[] = {
    {'.', 0, 0, 0, 0},   {';', 1, 0, 0, 1},   {'R', 2, 2, 0, 2},   {'D', 3, 2, 0, 3},   {'H', 4, 0, 0, 4},
    {'1', 4, 0, 0, 4},   {'2', 4, 0, 0, 4},   {'3', 4, 0, 0, 4},   {'4', 4, 0, 0, 4},   {'5', 4, 0, 0, 4},
    {'6', 4, 0, 0, 4},   {'7', 4, 0, 0, 4},   {'8', 4, 0, 0, 4},   {'9', 4, 0, 0, 4},   {'X', 5, 1, 0, 5},
    {'M', 5, 0, 0, 5},   {'F', 6, 0, 1, 6},   {'O', 6, 0, 2, 6},   {'P', 6, 0, 3, 6},   {'Q', 6, 0, 4, 6},
    {'U', 7, 0, 1, 7},   {'Y', 7, 0, 2, 7},   {'Z', 7, 0, 3, 7},   {'B', 7, 0, 4, 7},   {'W', 8, 0, 0, 8},
    {'T', 9, 0, 0, 9},   {'A', 10, 0, 0, 10}, {'K', 11, 1, 0, 11}, {'I', 11, 0, 0, 22}, {'E', 12, 0, 0, 5},
    {'V', 13, 0, 0, 5},  {'S', 14, 0, 0, 14}, {'L', 15, 0, 0, 15}, {'!', 17, 2, 0, 17}, {'@', 18, 2, 0, 17},
    {'#', 19, 2, 0, 17}, {'%', 20, 1, 0, 18}, {'^', 21, 1, 0, 18}, {'&', 22, 1, 0, 18}, {'C', 23, 0, 0, 23},
    {'N', 24, 0, 0, 24}, {'G', 25, 0, 0, 25}, {'J', 26, 0, 0, 21}, {':', 27, 0, 0, 20}, {'$', 28, 2, 0, 26},
};

TEST(Objects, HaveTheirCodeStateMarkAndTileSetByTheirLetter) {
  for (const Told& told : kTold) {
    const ObjectLetter* object = FindLetter(told.letter);
    ASSERT_NE(object, nullptr) << told.letter;
    EXPECT_EQ(object->letter, told.letter);
    EXPECT_EQ(object->code, told.code) << told.letter;
    EXPECT_EQ(object->state, told.state) << told.letter;
    EXPECT_EQ(object->mark, told.mark) << told.letter;
    EXPECT_EQ(object->image, told.image) << told.letter;
  }
}

TEST(Objects, AreAllInTheTableAndEachLetterOnce) {
  std::set<char> letters;
  for (const ObjectLetter& object : kObjectLetters) EXPECT_TRUE(letters.insert(object.letter).second);
  EXPECT_EQ(letters.size(), std::size(kTold));
}

TEST(Objects, HaveNoLetterThatIsNotInTheTable) {
  const std::string letters = [] {
    std::string text;
    for (const Told& told : kTold) text += told.letter;
    return text;
  }();
  for (int code = 0; code < 256; ++code) {
    const char letter = static_cast<char>(code);
    EXPECT_EQ(FindLetter(letter) != nullptr, letters.find(letter) != std::string::npos) << code;
  }
}

TEST(Dogs, AreNumberedByTheirDigitAndHIsTheFirst) {
  EXPECT_EQ(DogNumber('H'), 1);
  for (int n = 1; n <= 9; ++n) EXPECT_EQ(DogNumber(static_cast<char>('0' + n)), n);
  for (const char letter : {'0', 'h', 'N', 'J', '.', ':', '\xFF'}) EXPECT_EQ(DogNumber(letter), 0) << letter;
}

TEST(Brick, AndMagicWallSideBySideShareTheCodeAndDifferInTheirStateOnly) {
  const Hra hra = Play({"MX", "11"});
  EXPECT_EQ(hra.Field({0, 0}), 5);
  EXPECT_EQ(hra.Field({1, 0}), 5);
  EXPECT_EQ(hra.FieldState({0, 0}), 0);
  EXPECT_EQ(hra.FieldState({1, 0}), 1);
}

TEST(ABoulderWithStateNought, ComesFromNoLetter) {
  for (const ObjectLetter& object : kObjectLetters)
    EXPECT_FALSE(object.code == kBoulder && object.state == 0);
}

TEST(ABoulderWithStateNought, ComesFromABombThatWasStruck) {
  Hra hra = Live({"r", "I", "W", "1"});
  Pass(hra);
  EXPECT_EQ(hra.Field({0, 1}), kBoulder);
  EXPECT_EQ(hra.FieldState({0, 1}), 0);
}

// Each at its number, for a cell's picture in the tests goes by that.
constexpr std::string_view kSets[] = {
    "Space",     "Dirt",  "Boulder",   "Gem",    "Dog",    "Brick",     "FireFly",
    "ButterFly", "Steel", "Finish",    "Amoeba", "Box",    "MagicWall", "1to2",
    "Slime",     "Fly",   "Explosion", "Keys",   "Locks",  "Teleport",  "DragonFly",
    "Cat",       "Bomb",  "Biomasa",   "Flea",   "Sensor", "CatKey",    "NoSurprise",
};

TEST(TheTileSets, StandAtTheirNumbers) {
  ASSERT_EQ(kTileSets.size(), std::size(kSets));
  for (std::size_t number = 0; number < kTileSets.size(); ++number)
    EXPECT_EQ(kTileSets[number], kSets[number]) << number;
}

}  // namespace
}  // namespace zorik::test
