#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "data/Samples.h"
#include "data/Scramble.h"

namespace zorik {
namespace {

using samples::Letter;

std::string Byte(int code) {
  return std::string(1, static_cast<char>(code));
}

std::string ThereAndBack(const std::string& text, std::uint64_t seed = 1) {
  Chance chance(seed);
  return UnscrambleText(ScrambleText(text, chance));
}

bool IsCapitalLetter(char character) {
  return character >= 'A' && character <= 'Z';
}

TEST(Scrambling, GivesALetterABack) {
  EXPECT_EQ(ThereAndBack("A"), "A");
}

TEST(Scrambling, GivesCodeZeroBack) {
  EXPECT_EQ(ThereAndBack(Byte(0)), Byte(0));
}

TEST(Scrambling, GivesCode255Back) {
  EXPECT_EQ(ThereAndBack(Byte(255)), Byte(255));
}

TEST(Scrambling, GivesAllCodesBackWhateverIsDrawn) {
  std::string all;
  for (int code = 0; code < 256; ++code) all += Byte(code);
  for (std::uint64_t seed = 0; seed < 50; ++seed) EXPECT_EQ(ThereAndBack(all, seed), all);
}

TEST(Unscrambling, ReadsAllCodesWithEveryDivisor) {
  for (int divisor = 10; divisor <= 14; ++divisor) {
    for (int code = 0; code < 256; ++code) {
      const std::string triple{Letter(code / divisor), Letter(code % divisor), Letter((divisor - 10) * 4)};
      EXPECT_EQ(UnscrambleText(triple), Byte(code)) << code << " by " << divisor;
    }
  }
}

TEST(Scrambling, TurnsALineBreakIntoLettersAndBack) {
  Chance chance(3);
  const std::string scrambled = ScrambleText("first\r\nsecond", chance);
  EXPECT_EQ(scrambled.size(), 13U * 3U);
  EXPECT_TRUE(std::all_of(scrambled.begin(), scrambled.end(), IsCapitalLetter)) << scrambled;
  EXPECT_EQ(UnscrambleText(scrambled), "first\r\nsecond");
}

TEST(Scrambling, DiffersBetweenTwoCallsAndReadsAlike) {
  Chance chance(4);
  const std::string first = ScrambleText("the same text", chance);
  const std::string second = ScrambleText("the same text", chance);
  EXPECT_NE(first, second);
  EXPECT_EQ(UnscrambleText(first), "the same text");
  EXPECT_EQ(UnscrambleText(second), "the same text");
}

TEST(Scrambling, GivesNothingForNothing) {
  Chance chance(5);
  EXPECT_EQ(ScrambleText("", chance), "");
  EXPECT_EQ(UnscrambleText(""), "");
}

// 200 = 20 * 10 + 0 = 18 * 11 + 2 = 16 * 12 + 8 = 15 * 13 + 5 = 14 * 14 + 4.
TEST(Scrambling, DrawsTheDivisorFirstAndTheNoiseSecondForEachCharacter) {
  constexpr std::string_view kQuotients = "USQPO";
  constexpr std::string_view kRemainders = "ACIFE";
  Chance chance(6);
  Chance sameDraws = chance;
  const std::string scrambled = ScrambleText(std::string(100, '\xC8'), chance);
  ASSERT_EQ(scrambled.size(), 300U);
  for (std::size_t i = 0; i < scrambled.size(); i += 3) {
    const std::uint32_t divisor = sameDraws.Below(5);
    const std::uint32_t noise = sameDraws.Below(3);
    EXPECT_EQ(scrambled[i], kQuotients[divisor]);
    EXPECT_EQ(scrambled[i + 1], kRemainders[divisor]);
    EXPECT_EQ(scrambled[i + 2], Letter(static_cast<int>(divisor * 4 + noise)));
  }
}

TEST(Scrambling, WritesLettersOnlyUpToZNAndS) {
  Chance chance(8);
  std::string all;
  for (int code = 0; code < 256; ++code) all += Byte(code);
  for (int round = 0; round < 20; ++round) {
    const std::string scrambled = ScrambleText(all, chance);
    for (std::size_t i = 0; i < scrambled.size(); i += 3) {
      EXPECT_TRUE(scrambled[i] >= 'A' && scrambled[i] <= 'Z');
      EXPECT_TRUE(scrambled[i + 1] >= 'A' && scrambled[i + 1] <= 'N');
      EXPECT_TRUE(scrambled[i + 2] >= 'A' && scrambled[i + 2] <= 'S');
      EXPECT_EQ(std::string_view("DHLPT").find(scrambled[i + 2]), std::string_view::npos);
    }
  }
}

// F and C are 5 and 2.
TEST(Unscrambling, TakesTheDivisorTenFromAThirdLetterD) {
  EXPECT_EQ(UnscrambleText("FCD"), Byte(5 * 10 + 2));
}

TEST(Unscrambling, TakesTheDivisorFourteenFromAThirdLetterT) {
  EXPECT_EQ(UnscrambleText("FCT"), Byte(5 * 14 + 2));
}

TEST(Unscrambling, TakesADivisorAboveFourteenFromAThirdLetterUOrBeyond) {
  EXPECT_EQ(UnscrambleText("FCU"), Byte(5 * 15 + 2));
  EXPECT_EQ(UnscrambleText("FCX"), Byte(5 * 15 + 2));
  EXPECT_EQ(UnscrambleText("FCY"), Byte(5 * 16 + 2));
  EXPECT_EQ(UnscrambleText("FCa"), Byte(5 * 18 + 2));  // "a" is 32
}

TEST(Unscrambling, IgnoresTheNoiseOfTheThirdLetter) {
  for (const char third : {'E', 'F', 'G', 'H'}) {
    EXPECT_EQ(UnscrambleText(std::string("FC") + third), Byte(5 * 11 + 2)) << third;
  }
}

TEST(Unscrambling, OfALastGroupOfTwoBorrowsTheThirdLetter) {
  EXPECT_EQ(UnscrambleText("AABFC"), Byte(0) + Byte(5 * 10 + 2));
  EXPECT_EQ(UnscrambleText("AAEFC"), Byte(0) + Byte(5 * 11 + 2));
}

TEST(Unscrambling, OfALastGroupOfOneBorrowsBothOtherLetters) {
  EXPECT_EQ(UnscrambleText("ACEF"), Byte(2) + Byte(5 * 11 + 2));
}

TEST(Unscrambling, OfALonelyShortGroupCountsMissingLettersAsZero) {
  EXPECT_EQ(UnscrambleText("F"), Byte(50));
  EXPECT_EQ(UnscrambleText("FC"), Byte(52));
}

// Z is 25, so ZZZ is 25 * 16 + 25 = 425.
TEST(Unscrambling, RepeatsTheCharacterBeforeAValueAbove255) {
  EXPECT_EQ(UnscrambleText("FCAZZZ"), Byte(52) + Byte(52));
  EXPECT_EQ(UnscrambleText("FCAZZZZZZFDA"), Byte(52) + Byte(52) + Byte(52) + Byte(53));
}

TEST(Unscrambling, AddsNothingForAValueAbove255InTheFirstGroup) {
  EXPECT_EQ(UnscrambleText("ZZZ"), "");
  EXPECT_EQ(UnscrambleText("ZZZFCA"), Byte(52));
}

// What a writer can have written are groups of capitals that have a character.
TEST(Unscrambling, TakesAGroupForAWritersIfItHasACharacter) {
  std::string group = "AAA";
  for (group[0] = 'A'; group[0] <= 'Z'; ++group[0]) {
    for (group[1] = 'A'; group[1] <= 'Z'; ++group[1]) {
      for (group[2] = 'A'; group[2] <= 'Z'; ++group[2])
        ASSERT_EQ(IsScrambled(group), !UnscrambleText(group).empty()) << group;
    }
  }
  EXPECT_TRUE(IsScrambled("ZFA")) << 255;
  EXPECT_FALSE(IsScrambled("ZGA")) << 256;
}

TEST(Unscrambling, RepeatsTheCharacterBeforeAValueBelowZero) {
  EXPECT_EQ(UnscrambleText("FCA!AA"), Byte(52) + Byte(52));  // "!" is -32
}

// Z, F and G are 25, 5 and 6; "@" is -1 and "7" is -10.
TEST(Unscrambling, HasCharactersForTheValues0To255Alone) {
  EXPECT_EQ(UnscrambleText("ZFA"), Byte(255));
  EXPECT_EQ(UnscrambleText("ZGA"), "");
  EXPECT_EQ(UnscrambleText("B7A"), Byte(0));
  EXPECT_EQ(UnscrambleText("A@A"), "");
}

// The code 200 is the number 135, as a divisor 43.
TEST(Unscrambling, TakesBytesFrom128OnByTheirCode) {
  EXPECT_EQ(UnscrambleText("A\xC8\x41"), Byte(135));
  EXPECT_EQ(UnscrambleText("FC\xC8"), Byte(5 * 43 + 2));
}

TEST(Unscrambling, KeepsTheValuesOfAGroupThatHasNoCharacter) {
  EXPECT_EQ(UnscrambleText("FCAZDEF"), Byte(52) + Byte(52) + Byte(5 * 11 + 3));
}

TEST(Unscrambling, RoundsDivisorsBelowTheWritersDown) {
  EXPECT_EQ(UnscrambleText("FC@"), Byte(5 * 9 + 2));  // "@" is -1, a quarter of it rounds down to -1
  EXPECT_EQ(UnscrambleText("FC="), Byte(5 * 9 + 2));  // -4
  EXPECT_EQ(UnscrambleText("FC<"), Byte(5 * 8 + 2));  // -5
}

TEST(Unscrambling, TakesAnyBytesAndGivesAtMostAThirdOfThem) {
  Chance chance(9);
  for (int round = 0; round < 2000; ++round) {
    const std::string bytes = samples::RandomBytes(chance, 200);
    EXPECT_LE(UnscrambleText(bytes).size(), (bytes.size() + 2) / 3);
  }
}

TEST(Scrambling, GivesRandomTextsBackAtThreeTimesTheirLength) {
  Chance chance(10);
  for (int round = 0; round < 2000; ++round) {
    const std::string text = samples::RandomBytes(chance, 200);
    const std::string scrambled = ScrambleText(text, chance);
    EXPECT_EQ(scrambled.size(), text.size() * 3);
    EXPECT_EQ(UnscrambleText(scrambled), text);
  }
}

}  // namespace
}  // namespace zorik
