#include <gtest/gtest.h>

#include <string>

#include "data/Cp1250.h"
#include "data/Samples.h"

namespace zorik {
namespace {

TEST(Cp1250, BecomesUtf8) {
  EXPECT_EQ(ToUtf8("\x8Elu\x9Dou\xE8k\xFD k\xF9\xF2"), "Žluťoučký kůň");
  EXPECT_EQ(ToUtf8("\x80 \x96 \x84\x93"), "€ – „“");
}

TEST(Cp1250, GivesPlainCharactersAsTheyAre) {
  for (int code = 0; code < 128; ++code) {
    const std::string text(1, static_cast<char>(code));
    EXPECT_EQ(ToUtf8(text), text);
    EXPECT_EQ(FromUtf8(text), text);
  }
}

TEST(Cp1250, GivesTheFiveEmptyCodesTheCodePointsOfTheSameNumber) {
  EXPECT_EQ(ToUtf8("\x81\x83\x88\x90\x98"), "\xC2\x81\xC2\x83\xC2\x88\xC2\x90\xC2\x98");
}

TEST(Cp1250, ComesBackFromUtf8WithAll256Codes) {
  for (int code = 0; code < 256; ++code) {
    const std::string text(1, static_cast<char>(code));
    EXPECT_EQ(FromUtf8(ToUtf8(text)), text) << code;
    EXPECT_EQ(FromUtf8Lossy(ToUtf8(text)), text) << code;
  }
}

TEST(Cp1250, RefusesCharactersThatItLacks) {
  EXPECT_EQ(FromUtf8("Жук"), std::nullopt);
  EXPECT_EQ(FromUtf8("\U0001F415"), std::nullopt);
  EXPECT_EQ(FromUtf8("\xC2\x80"), std::nullopt);  // byte 128 is the euro sign
}

TEST(Cp1250, PutsAQuestionMarkForEachCharacterThatItLacks) {
  EXPECT_EQ(FromUtf8Lossy("pes Жук"), "pes ???");
  EXPECT_EQ(FromUtf8Lossy("\U0001F415!"), "?!");
}

TEST(Cp1250, RefusesWhatIsNoUtf8) {
  for (const char* text :
       {"\xE1", "\xC3", "a\x80", "\xC3(", "\xE2\x82", "\xF0\x9F\x90", "\xFF", "\xF8\x88\x80\x80\x80"}) {
    EXPECT_EQ(FromUtf8(text), std::nullopt) << text;
  }
}

TEST(Cp1250, RefusesLongFormsSurrogatesAndWhatLiesBeyondUnicode) {
  EXPECT_EQ(FromUtf8("\xC1\x81"), std::nullopt);          // "A" in two bytes
  EXPECT_EQ(FromUtf8("\xE0\x83\xA1"), std::nullopt);      // "á" in three
  EXPECT_EQ(FromUtf8("\xF0\x82\x82\xAC"), std::nullopt);  // "€" in four
  EXPECT_EQ(FromUtf8("\xED\xA0\x80"), std::nullopt);
  EXPECT_EQ(FromUtf8("\xF4\x90\x80\x80"), std::nullopt);
}

TEST(Cp1250, PutsAQuestionMarkForEachByteThatIsNoUtf8) {
  EXPECT_EQ(FromUtf8Lossy("a\xE1z"), "a?z");
  EXPECT_EQ(FromUtf8Lossy("\xE2\x82"), "??");
  EXPECT_EQ(FromUtf8Lossy("\xC3"), "?");
  EXPECT_EQ(FromUtf8Lossy("\xC1\x81"), "??");
  EXPECT_EQ(FromUtf8Lossy("\xED\xA0\x80"), "???");
  EXPECT_EQ(FromUtf8Lossy("\xF4\x90\x80\x80"), "????");
}

TEST(Cp1250, ReadsNothingBehindTheEndOfItsText) {
  EXPECT_EQ(FromUtf8Lossy(std::string_view("\xC3\xA1", 1)), "?");
}

TEST(LowerCase, ChangesCzechLetters) {
  // Á Č Ď É Ě Í Ň Ó Ř Š Ť Ú Ů Ý Ž
  EXPECT_EQ(LowerCase("\xC1\xC8\xCF\xC9\xCC\xCD\xD2\xD3\xD8\x8A\x8D\xDA\xD9\xDD\x8E"),
            "\xE1\xE8\xEF\xE9\xEC\xED\xF2\xF3\xF8\x9A\x9D\xFA\xF9\xFD\x9E");
  EXPECT_EQ(LowerCase("ZOR\xCDK 2"), "zor\xEDk 2");
}

TEST(LowerCase, ChangesTheOtherLettersOfTheCodePage) {
  // Ś Ź Ł Ą Ş Ż Ľ
  EXPECT_EQ(LowerCase("\x8C\x8F\xA3\xA5\xAA\xAF\xBC"), "\x9C\x9F\xB3\xB9\xBA\xBF\xBE");
}

TEST(LowerCase, LeavesSignsAndSmallLettersAlone) {
  const std::string text =
      "\xD7\xF7\xDF\xFF\x80\xA0\xAB\xBB@[`{19";  // times, division, sharp s, dot above ...
  EXPECT_EQ(LowerCase(text), text);
  std::string small;
  for (int code = 0xE0; code < 256; ++code) small += static_cast<char>(code);
  EXPECT_EQ(LowerCase(small), small);
}

TEST(FoldFileName, DisregardsTheCaseOfCzechLettersInUtf8) {
  EXPECT_EQ(FoldFileName("ŽLUŤOUČKÝ Kůň.ZKR"), "žluťoučký kůň.zkr");
}

TEST(FoldFileName, TakesWhatIsNoUtf8ForWindows1250) {
  EXPECT_EQ(FoldFileName("K\xD9\xD2"), "kůň");
}

TEST(FoldFileName, LeavesLettersThatTheCodePageLacksAlone) {
  EXPECT_EQ(FoldFileName("ŽЖ"), "žЖ");
}

TEST(Cp1250, TakesAnyBytes) {
  Chance chance(17);
  for (int round = 0; round < 3000; ++round) {
    const std::string bytes = samples::RandomBytes(chance, 30);
    EXPECT_EQ(FromUtf8(ToUtf8(bytes)), bytes);
    EXPECT_LE(FromUtf8Lossy(bytes).size(), bytes.size());
    EXPECT_EQ(FoldFileName(FoldFileName(bytes)), FoldFileName(bytes));
  }
}

TEST(Cp1250, KnowsControlCharactersByTheirCodePoints) {
  for (const char* const control : {"\x01", "\x1F", "\x7F", "\xC2\x80", "\xC2\x9F"})
    EXPECT_EQ(WithoutControls(std::string("a") + control + "b"), "ab");
  for (const char* const other : {" ", "~", "\xC2\xA0"})
    EXPECT_EQ(WithoutControls(std::string("a") + other + "b"), std::string("a") + other + "b");
}

}  // namespace
}  // namespace zorik
