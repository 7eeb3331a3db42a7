#include <gtest/gtest.h>

#include "data/Cp1250.h"
#include "data/Files.h"
#include "data/PlayerName.h"

namespace zorik {
namespace {

TEST(StripNameChars, DropsEachOfTheTenForbiddenCharacters) {
  for (const char character : std::string("?*\\/,;:=\t\"")) {
    EXPECT_EQ(StripNameChars(std::string("a") + character + "b"), "ab") << character;
  }
}

TEST(StripNameChars, LeavesNothingOfANameOfForbiddenCharacters) {
  EXPECT_EQ(StripNameChars("???"), "");
  EXPECT_EQ(StripNameChars("?*\\/,;:=\t\""), "");
}

TEST(StripNameChars, KeepsEverythingElseThatCanBeTyped) {
  for (int code = ' '; code < 127; ++code) {
    const std::string name{'x', static_cast<char>(code)};
    const bool forbidden = std::string("?*\\/,;:=\"").find(static_cast<char>(code)) != std::string::npos;
    EXPECT_EQ(StripNameChars(name), forbidden ? "x" : name) << code;
  }
}

TEST(StripNameChars, DropsControlCharacters) {
  for (int code = 0; code < 32; ++code) {
    EXPECT_EQ(StripNameChars(std::string{'a', static_cast<char>(code), 'b'}), "ab") << code;
  }
  EXPECT_EQ(StripNameChars("a\x7F\x81\x83\x88\x90\x98z"), "az");
}

TEST(PlayerName, KeepsCzechLetters) {
  const std::string czech = "Příliš žluťoučký kůň ĎŠČŘŽÝÁÍÉ";
  EXPECT_EQ(ToUtf8(PlayerName(czech)), czech);
}

TEST(PlayerName, DropsLettersThatTheCodePageLacks) {
  EXPECT_EQ(PlayerName("Adam\xE4\xB8\xADЯ!"), "Adam!");
  EXPECT_EQ(PlayerName("Юрий"), "");
}

TEST(PlayerName, DropsBytesThatAreNoText) {
  EXPECT_EQ(PlayerName("A\xFF\xFE\xC3"), "A");
}

TEST(PlayerName, DropsBlanksAroundTheName) {
  EXPECT_EQ(PlayerName("  Jan Novák "), *FromUtf8("Jan Novák"));
  EXPECT_EQ(PlayerName(" \u00A0 "), "");
}

TEST(PlayerName, IsNeitherTheFolderItselfNorTheOneAbove) {
  for (const char* name : {".", "..", " . ", "./..", "...", "?.?"}) EXPECT_EQ(PlayerName(name), "") << name;
}

TEST(PlayerName, IsNotHiddenByADotInFrontOfIt) {
  EXPECT_EQ(PlayerName(".skryty"), "skryty");
  EXPECT_EQ(PlayerName("J. R."), "J. R.");
}

TEST(PlayerName, IsWhatItsFolderIsCalled) {
  for (const char* typed : {"Adam", "a?b*", "../../etc", "Žofie", "tři slova v jménu"}) {
    const std::string name = PlayerName(typed);
    EXPECT_EQ(FileSystemName(name), ToUtf8(name)) << typed;
  }
}

TEST(PlayerName, ForgetsSeparatorsOfAPath) {
  EXPECT_EQ(PlayerName("../../etc"), "etc");
  EXPECT_EQ(PlayerName("a?b*"), "ab");
}

TEST(PlayerOfFolder, IsTheNameInWindows1250HoweverTheFolderIsWritten) {
  EXPECT_EQ(PlayerOfFolder("Hráč"), "Hr\xE1\xE8");
  EXPECT_EQ(PlayerOfFolder("Hr\xE1\xE8"), "Hr\xE1\xE8");
}

}  // namespace
}  // namespace zorik
