#include <gtest/gtest.h>

#include <string>

#include "data/CaveO.h"
#include "data/Result.h"
#include "data/Samples.h"

namespace zorik {
namespace {

using samples::CaveText;
using samples::Letter;
using samples::Measured;
using samples::Properties;

// A cave of 3 x 2 cells with a value of its own in every field.
CaveRecord SampleCave() {
  CaveRecord cave;
  cave.SlimePermeability = 4;
  cave.Name = "Jeskyn\xEC";
  cave.Description =
      "dv\xEC\r\n\xF8\xE1"
      "dky";
  cave.Width = 3;
  cave.Height = 2;
  cave.Time = 255;
  cave.GemsNeeded = 17;
  cave.PointsBefore = 10;
  cave.PointsAfter = 15;
  cave.MagicWallTime = 20;
  cave.AmoebaTime = 30;
  cave.Colouring = 12;
  const std::string rows[] = {"W1;", "DTW"};
  for (std::size_t y = 0; y < 2; ++y) {
    for (std::size_t x = 0; x < 3; ++x) cave.Cells[x][y] = rows[y][x];
  }
  cave.Script = "*A-E/Z";
  return cave;
}

// The text of that cave, put together by hand: A is 0, so E is 4.
const std::string kSampleText =
    "E"
    "HJeskyn\xEC"                // 7 characters
    "Kdv\xEC\r\n\xF8\xE1\x64ky"  // 10 characters
    "DCZzB"                      // 3 x 2, time 25 tens, units 5 and 7, gems 1 ten
    "KPU_M"                      // 10, 15, 20, 30, 12
    "W1;DTW"
    "*A-E/Z";

TEST(BuildCaveText, WritesTheFieldsInTheirOrder) {
  const auto text = BuildCaveText(SampleCave());
  ASSERT_TRUE(text) << text.Message();
  EXPECT_EQ(*text, kSampleText);
}

TEST(ParseCaveText, ReadsTheFieldsInTheirOrder) {
  const auto cave = ParseCaveText(kSampleText);
  ASSERT_TRUE(cave) << cave.Message();
  EXPECT_EQ(*cave, SampleCave());
}

TEST(ParseCaveText, ReadsTheRowsFromTheTopAndEachFromTheLeft) {
  const auto cave = ParseCaveText(CaveText("", "abcdef"));
  ASSERT_TRUE(cave) << cave.Message();
  EXPECT_EQ(cave->Cells[0][0], 'a');
  EXPECT_EQ(cave->Cells[2][0], 'c');
  EXPECT_EQ(cave->Cells[0][1], 'd');
  EXPECT_EQ(cave->Cells[2][1], 'f');
}

TEST(ParseCaveText, LeavesTheCellsOutsideOfTheCaveUnset) {
  const auto cave = ParseCaveText(CaveText("", "abcdef"));
  ASSERT_TRUE(cave) << cave.Message();
  EXPECT_EQ(cave->Cells[3][0], '\0');
  EXPECT_EQ(cave->Cells[0][2], '\0');
}

TEST(CaveText, KeepsTimeAndGemsEndingInEveryPairOfDigits) {
  for (int time = 0; time < 10; ++time) {
    for (int gems = 0; gems < 10; ++gems) {
      CaveRecord cave = SampleCave();
      cave.Time = static_cast<std::int16_t>(120 + time);
      cave.GemsNeeded = static_cast<std::int16_t>(30 + gems);
      const auto text = BuildCaveText(cave);
      ASSERT_TRUE(text) << text.Message();
      const auto again = ParseCaveText(*text);
      ASSERT_TRUE(again) << again.Message();
      EXPECT_EQ(*again, cave) << time << " " << gems;
    }
  }
}

TEST(BuildCaveText, WritesTime255AndGems17AsTheValues25And57And1) {
  const auto text = BuildCaveText(SampleCave());
  ASSERT_TRUE(text) << text.Message();
  const std::size_t time = 1 + 1 + 7 + 1 + 10 + 2;
  EXPECT_EQ(text->substr(time, 3), (std::string{Letter(25), Letter(57), Letter(1)}));
}

TEST(ParseCaveText, TakesUnitsAbove99AsTheyAre) {
  std::string text = CaveText("x");
  text[3 + 1 + 3] = Letter(190);  // 19 of time, 0 of gems
  const auto cave = ParseCaveText(text);
  ASSERT_TRUE(cave) << cave.Message();
  EXPECT_EQ(cave->Time, 25 * 10 + 19);
  EXPECT_EQ(cave->GemsNeeded, 1 * 10 + 0);
}

TEST(ParseCaveText, CutsTheMarkerOff) {
  const auto cave = ParseCaveText(kSampleText + "---07");
  ASSERT_TRUE(cave) << cave.Message();
  EXPECT_EQ(*cave, SampleCave());
}

TEST(ParseCaveText, CutsAMarkerOffWhateverItsLastTwoCharactersAre) {
  const auto cave = ParseCaveText(kSampleText + "---?-");
  ASSERT_TRUE(cave) << cave.Message();
  EXPECT_EQ(cave->Script, "*A-E/Z");
}

TEST(ParseCaveText, CutsAScriptThatEndsLikeAMarker) {
  const auto cave = ParseCaveText(CaveText("x", "W1;DTW", "*A---/Z"));
  ASSERT_TRUE(cave) << cave.Message();
  EXPECT_EQ(cave->Script, "*A");
}

TEST(ParseCaveText, CutsOnlyOneMarkerOff) {
  const auto cave = ParseCaveText(CaveText("x", "W1;DTW", "*A---/Z---03"));
  ASSERT_TRUE(cave) << cave.Message();
  EXPECT_EQ(cave->Script, "*A---/Z");
}

TEST(ParseCaveText, NeverCutsAScriptOfFewerThanFiveCharacters) {
  for (const std::string script : {"---1", "---", "--12", "-"}) {
    const auto cave = ParseCaveText(CaveText("x", "W1;DTW", script));
    ASSERT_TRUE(cave) << cave.Message();
    EXPECT_EQ(cave->Script, script);
  }
}

TEST(ParseCaveText, CutsNoMarkerThatBeginsInTheCells) {
  const auto cave = ParseCaveText(CaveText("x", "W1;D--", "-12"));
  ASSERT_TRUE(cave) << cave.Message();
  EXPECT_EQ(cave->Cells[2][1], '-');
  EXPECT_EQ(cave->Script, "-12");
}

TEST(ParseCaveText, CutsAScriptThatIsNothingButAMarker) {
  const auto cave = ParseCaveText(CaveText("x", "W1;DTW", "---12"));
  ASSERT_TRUE(cave) << cave.Message();
  EXPECT_EQ(cave->Script, "");
}

TEST(ParseCaveText, TakesNoMarkerOutOfTheCells) {
  const auto cave = ParseCaveText(CaveText("x", "W---12"));
  ASSERT_TRUE(cave) << cave.Message();
  EXPECT_EQ(cave->Cells[1][0], '-');
  EXPECT_EQ(cave->Cells[2][1], '2');
  EXPECT_EQ(cave->Script, "");
}

TEST(ParseCaveText, GivesAnEmptyRecordForAnEmptyText) {
  const auto cave = ParseCaveText("");
  ASSERT_TRUE(cave) << cave.Message();
  EXPECT_EQ(*cave, CaveRecord());
}

TEST(CaveText, KeepsACellOfAnyCharacter) {
  for (int code = 0; code < 256; ++code) {
    const std::string text = CaveText("x", std::string(6, static_cast<char>(code)));
    const auto cave = ParseCaveText(text);
    ASSERT_TRUE(cave) << cave.Message();
    EXPECT_EQ(cave->Cells[2][1], static_cast<char>(code));
    const auto again = BuildCaveText(*cave);
    ASSERT_TRUE(again) << again.Message();
    EXPECT_EQ(*again, text) << code;
  }
}

TEST(BuildCaveText, WritesACellThatWasNeverSetAsCodeZero) {
  CaveRecord cave = SampleCave();
  cave.Height = 3;
  cave.Script.clear();
  const auto text = BuildCaveText(cave);
  ASSERT_TRUE(text) << text.Message();
  EXPECT_EQ(text->substr(text->size() - 3), std::string(3, '\0'));
}

TEST(ParseCaveText, TakesCellsBehindTheEndAsEmptySpace) {
  const auto cave = ParseCaveText(CaveText("x", "W1;D"));
  ASSERT_TRUE(cave) << cave.Message();
  EXPECT_EQ(cave->Cells[0][1], 'D');
  EXPECT_EQ(cave->Cells[1][1], '.');
  EXPECT_EQ(cave->Cells[2][1], '.');
  EXPECT_EQ(cave->Script, "");
}

TEST(ParseCaveText, FailsAtTheFirstNumberBehindTheEnd) {
  struct Case {
    std::size_t length;
    const char* field;
  };
  const Case cases[] = {{1, "length of the name"},
                        {5, "length of the description"},
                        {9, "length of the description"},
                        {15, "width"},
                        {20, "width"},
                        {21, "height"},
                        {22, "time"},
                        {23, "units of time and gems"},
                        {24, "number of gems needed"},
                        {25, "points before the finish opens"},
                        {26, "points after the finish opens"},
                        {27, "magic wall time"},
                        {28, "amoeba time"},
                        {29, "colouring"}};
  for (const Case& c : cases) {
    const auto cave = ParseCaveText(kSampleText.substr(0, c.length));
    ASSERT_FALSE(cave) << c.length;
    EXPECT_EQ(cave.Message(),
              "the cave text ends at byte " + std::to_string(c.length) + ", before its " + c.field);
  }
  EXPECT_TRUE(ParseCaveText(kSampleText.substr(0, 30)));
}

TEST(ParseCaveText, FailsAtANumberBelowA) {
  struct Case {
    std::size_t byte;  // from 1
    const char* field;
  };
  const Case cases[] = {{1, "slime permeability"},
                        {2, "length of the name"},
                        {10, "length of the description"},
                        {21, "width"},
                        {22, "height"},
                        {23, "time"},
                        {24, "units of time and gems"},
                        {25, "number of gems needed"},
                        {26, "points before the finish opens"},
                        {27, "points after the finish opens"},
                        {28, "magic wall time"},
                        {29, "amoeba time"},
                        {30, "colouring"}};
  for (const Case& c : cases) {
    std::string text = kSampleText;
    text[c.byte - 1] = '@';
    const auto cave = ParseCaveText(text);
    ASSERT_FALSE(cave) << c.field;
    EXPECT_EQ(cave.Message(), std::string("the ") + c.field + " at byte " + std::to_string(c.byte) +
                                  " of the cave text is no number (code 64, at least 65 expected)");
  }
}

TEST(ParseCaveText, TakesASizeAsLargeAsTheMatrix) {
  const auto cave = ParseCaveText(Letter(0) + Measured("") + Measured("") + Properties(102, 62) +
                                  std::string(102 * 62 - 1, '.') + "W");
  ASSERT_TRUE(cave) << cave.Message();
  EXPECT_EQ(cave->Cells[101][61], 'W');
}

TEST(ParseCaveText, FailsAtASizeBeyondTheMatrix) {
  const std::string start = Letter(0) + Measured("") + Measured("");
  const auto wide = ParseCaveText(start + Properties(103, 62));
  ASSERT_FALSE(wide);
  EXPECT_EQ(wide.Message(), "a cave of 103 x 62 cells is too large, 102 x 62 is the most");
  const auto high = ParseCaveText(start + Properties(102, 63));
  ASSERT_FALSE(high);
  EXPECT_EQ(high.Message(), "a cave of 102 x 63 cells is too large, 102 x 62 is the most");
}

TEST(BuildCaveText, TakesTheLongestTextsAndHighestNumbers) {
  CaveRecord cave = SampleCave();
  cave.Name = std::string(190, 'n');
  cave.Description = std::string(190, 'd');
  cave.Time = 1909;
  cave.GemsNeeded = 1909;
  for (auto field : {&CaveRecord::SlimePermeability, &CaveRecord::PointsBefore, &CaveRecord::PointsAfter,
                     &CaveRecord::MagicWallTime, &CaveRecord::AmoebaTime, &CaveRecord::Colouring}) {
    cave.*field = 190;
  }
  const auto text = BuildCaveText(cave);
  ASSERT_TRUE(text) << text.Message();
  const auto again = ParseCaveText(*text);
  ASSERT_TRUE(again) << again.Message();
  EXPECT_EQ(*again, cave);
}

TEST(BuildCaveText, FailsAtANumberWithoutACharacter) {
  struct Case {
    std::uint8_t CaveRecord::*field;
    const char* name;
  };
  const Case cases[] = {{&CaveRecord::SlimePermeability, "slime permeability"},
                        {&CaveRecord::PointsBefore, "points before the finish opens"},
                        {&CaveRecord::PointsAfter, "points after the finish opens"},
                        {&CaveRecord::MagicWallTime, "magic wall time"},
                        {&CaveRecord::AmoebaTime, "amoeba time"},
                        {&CaveRecord::Colouring, "colouring"}};
  for (const Case& c : cases) {
    CaveRecord cave = SampleCave();
    cave.*c.field = 191;
    const auto text = BuildCaveText(cave);
    ASSERT_FALSE(text) << c.name;
    EXPECT_EQ(text.Message(), std::string("the ") + c.name + " is 191, a cave text holds 0 to 190");
  }
}

TEST(BuildCaveText, FailsAtATimeOrGemsAbove1909OrBelowZero) {
  for (const int number : {1910, 32767, -1, -650}) {
    CaveRecord late = SampleCave();
    late.Time = static_cast<std::int16_t>(number);
    const auto time = BuildCaveText(late);
    ASSERT_FALSE(time) << number;
    EXPECT_EQ(time.Message(), "the time is " + std::to_string(number) + ", a cave text holds 0 to 1909");
    CaveRecord rich = SampleCave();
    rich.GemsNeeded = static_cast<std::int16_t>(number);
    const auto gems = BuildCaveText(rich);
    ASSERT_FALSE(gems) << number;
    EXPECT_EQ(gems.Message(),
              "the number of gems needed is " + std::to_string(number) + ", a cave text holds 0 to 1909");
  }
}

TEST(BuildCaveText, FailsAtATextAbove190Characters) {
  CaveRecord cave = SampleCave();
  cave.Name = std::string(191, 'n');
  const auto name = BuildCaveText(cave);
  ASSERT_FALSE(name);
  EXPECT_EQ(name.Message(), "the name has 191 characters, a cave text holds at most 190");
  cave = SampleCave();
  cave.Description = std::string(280, 'd');
  const auto description = BuildCaveText(cave);
  ASSERT_FALSE(description);
  EXPECT_EQ(description.Message(), "the description has 280 characters, a cave text holds at most 190");
}

TEST(BuildCaveText, FailsAtASizeBeyondTheMatrix) {
  CaveRecord cave = SampleCave();
  cave.Width = 103;
  EXPECT_FALSE(BuildCaveText(cave));
  cave.Width = 102;
  EXPECT_TRUE(BuildCaveText(cave));
  cave.Height = 63;
  EXPECT_FALSE(BuildCaveText(cave));
}

CaveRecord RandomCave(Chance& chance) {
  CaveRecord cave;
  cave.Name = samples::RandomBytes(chance, 190);
  cave.Description = samples::RandomBytes(chance, 190);
  cave.Script = samples::RandomBytes(chance, 60);
  cave.Time = static_cast<std::int16_t>(chance.Below(1910));
  cave.GemsNeeded = static_cast<std::int16_t>(chance.Below(1910));
  for (auto field : {&CaveRecord::SlimePermeability, &CaveRecord::PointsBefore, &CaveRecord::PointsAfter,
                     &CaveRecord::MagicWallTime, &CaveRecord::AmoebaTime, &CaveRecord::Colouring}) {
    cave.*field = static_cast<std::uint8_t>(chance.Below(191));
  }
  cave.Width = static_cast<std::uint8_t>(chance.Below(CaveRecord::kColumns + 1));
  cave.Height = static_cast<std::uint8_t>(chance.Below(CaveRecord::kRows + 1));
  for (std::size_t x = 0; x < cave.Width; ++x) {
    for (std::size_t y = 0; y < cave.Height; ++y) cave.Cells[x][y] = static_cast<char>(chance.Below(256));
  }
  return cave;
}

TEST(CaveText, BuiltAndParsedAgainHasTheSameFields) {
  Chance chance(11);
  for (int round = 0; round < 300; ++round) {
    const CaveRecord cave = RandomCave(chance);
    const auto text = BuildCaveText(cave);
    ASSERT_TRUE(text) << text.Message();
    const auto again = ParseCaveText(*text + "---01");
    ASSERT_TRUE(again) << again.Message();
    EXPECT_EQ(*again, cave);
  }
}

TEST(CaveText, OfAnyBytesParsesOrFailsWithAMessage) {
  Chance chance(12);
  int parsed = 0;
  for (int round = 0; round < 20000; ++round) {
    std::string text = samples::RandomBytes(chance, 60);
    for (char& byte : text) {
      if (chance.Below(3) != 0) byte = Letter(static_cast<int>(chance.Below(12)));
    }
    const auto cave = ParseCaveText(text);
    if (!cave) {
      EXPECT_FALSE(cave.Message().empty());
      continue;
    }
    ++parsed;
    const auto again = BuildCaveText(*cave);
    if (!again) continue;
    EXPECT_EQ(*ParseCaveText(*again + "---01"), *cave);
  }
  EXPECT_GT(parsed, 100);
}

TEST(WithoutMarker, IsEmptyOfFiveCharactersOrFewer) {
  for (const char* text : {"", "a", "abcd", "---01"}) EXPECT_EQ(WithoutMarker(text), "") << text;
  EXPECT_EQ(WithoutMarker("abcdef"), "a");
}

TEST(CleanFileName, DropsTheTenForbiddenCharacters) {
  EXPECT_EQ(CleanFileName("a?b*c\\d/e,f;g:h=i\tj\"k"), "abcdefghijk");
}

TEST(CleanFileName, KeepsAllOtherCharacters) {
  std::string kept;
  for (int code = 0; code < 256; ++code) {
    if (std::string_view("?*\\/,;:=\t\"").find(static_cast<char>(code)) == std::string_view::npos) {
      kept += static_cast<char>(code);
    }
  }
  ASSERT_EQ(kept.size(), 246U);
  EXPECT_EQ(CleanFileName(kept), kept);
}

TEST(CleanFileName, LeavesAnEmptyTextEmpty) {
  EXPECT_EQ(CleanFileName(""), "");
  EXPECT_EQ(CleanFileName("?:/"), "");
}

TEST(JeBonus, FindsTheWordInAnyLetterCaseAnywhere) {
  EXPECT_TRUE(JeBonus("BONUS"));
  EXPECT_TRUE(JeBonus("Mal\xFD bonus na konec"));
  EXPECT_TRUE(JeBonus("superBoNuS1"));
}

TEST(JeBonus, IsFalseWithoutTheWholeWord) {
  EXPECT_FALSE(JeBonus(""));
  EXPECT_FALSE(JeBonus("BONU S"));
  EXPECT_FALSE(JeBonus("b\xF3nus"));
}

}  // namespace
}  // namespace zorik
