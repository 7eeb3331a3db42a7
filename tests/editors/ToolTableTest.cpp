#include <gtest/gtest.h>

#include <set>
#include <vector>

#include "editors/ToolTable.h"

namespace zorik {
namespace {

TEST(ToolTable, GivesEachLetterItsPaletteNumber) {
  struct Row {
    char letter;
    int palette;
  };
  constexpr Row kRows[] = {
      {'.', 0},  {';', 1},  {'R', 2},  {'D', 3},  {'H', 4},  {'1', 4},  {'9', 4},  {'X', 5},  {'!', 6},
      {'@', 7},  {'W', 8},  {'T', 9},  {'A', 10}, {'M', 11}, {'K', 12}, {'#', 13}, {'%', 14}, {'S', 15},
      {'L', 16}, {'F', 17}, {'O', 18}, {'P', 19}, {'Q', 20}, {'U', 21}, {'Y', 22}, {'Z', 23}, {'B', 24},
      {'E', 25}, {'V', 26}, {'&', 27}, {'^', 28}, {'I', 30}, {'N', 31}, {'G', 32}, {'J', 33}, {':', 34},
  };
  for (const Row& row : kRows) {
    EXPECT_EQ(ToolOfLetter(row.letter), row.palette) << row.letter;
    if (row.palette == kDogTool) continue;
    EXPECT_EQ(LetterOfTool(row.palette, 7), row.letter);
  }
}

TEST(ToolTable, HasNoTileForTheGapAndBeyondItsEnds) {
  EXPECT_EQ(ObjectOfTool(29), nullptr);
  EXPECT_EQ(ObjectOfTool(-1), nullptr);
  EXPECT_EQ(ObjectOfTool(kPaletteEnd), nullptr);
}

TEST(ToolTable, ListsEachNumberWithATileOnceAndAscending) {
  std::vector<int> told;
  for (int palette = 0; palette < kPaletteEnd; ++palette) {
    if (ObjectOfTool(palette) != nullptr) told.push_back(palette);
  }
  EXPECT_EQ(std::vector<int>(kTools.begin(), kTools.end()), told);
}

TEST(ToolTable, HasALetterOfItsOwnForEachTile) {
  std::set<char> letters;
  for (const int palette : kTools) letters.insert(LetterOfTool(palette, 1));
  EXPECT_EQ(letters.size(), kTools.size());
}

TEST(ToolTable, DrawsTheCurrentDogsNumber) {
  EXPECT_EQ(LetterOfTool(kDogTool, 1), '1');
  EXPECT_EQ(LetterOfTool(kDogTool, 9), '9');
}

TEST(ToolTable, HasNoTileForBiomassCatKeyAndLettersWithoutMeaning) {
  for (const char letter : {'C', '$', '0', 'x', '\xFF', '\0'}) EXPECT_EQ(ToolOfLetter(letter), -1) << letter;
}

TEST(ToolTable, CountsDigitsOnlyAsNumbers) {
  EXPECT_EQ(ValueOf('3'), 3);
  EXPECT_EQ(ValueOf('0'), 0);
  EXPECT_EQ(ValueOf('H'), 0);
  EXPECT_EQ(ValueOf('&'), 0);
}

}  // namespace
}  // namespace zorik
