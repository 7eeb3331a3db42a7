#include <gtest/gtest.h>

#include "app/HeadlessWords.h"

namespace zorik::test {
namespace {

bool SpeaksCzech(const char* lcAll, const char* lcMessages, const char* lang) {
  const std::string_view words = WordsFor(lcAll, lcMessages, lang).NoCave;
  EXPECT_TRUE(words == "Komnatu nelze otevřít." || words == "The cave cannot be opened.") << words;
  return words == "Komnatu nelze otevřít.";
}

TEST(HeadlessWords, AreCzechForACzechDesktopAndEnglishForAnyOther) {
  for (const char* czech : {"cs_CZ.UTF-8", "cs", "cs_CZ", "cs.UTF-8", "cs@latin"})
    EXPECT_TRUE(SpeaksCzech(nullptr, nullptr, czech)) << czech;
  for (const char* other : {"en_US.UTF-8", "de_DE", "sk_SK.UTF-8", "pl", "CS", "nonsense", "c"})
    EXPECT_FALSE(SpeaksCzech(nullptr, nullptr, other)) << other;
}

TEST(HeadlessWords, AreCzechWhereNoLanguageIsTold) {
  EXPECT_TRUE(SpeaksCzech(nullptr, nullptr, nullptr));
  EXPECT_TRUE(SpeaksCzech("", "", ""));
  for (const char* none : {"C", "POSIX", "C.UTF-8", "C.utf8"})
    EXPECT_TRUE(SpeaksCzech(nullptr, nullptr, none)) << none;
}

TEST(HeadlessWords, FollowTheFirstVariableThatIsNotEmpty) {
  EXPECT_FALSE(SpeaksCzech("en_GB.UTF-8", "cs_CZ.UTF-8", "cs_CZ.UTF-8"));
  EXPECT_TRUE(SpeaksCzech("cs_CZ.UTF-8", "en_GB.UTF-8", "en_GB.UTF-8"));
  EXPECT_FALSE(SpeaksCzech("", "en_GB.UTF-8", "cs_CZ.UTF-8"));
  EXPECT_TRUE(SpeaksCzech(nullptr, "cs_CZ.UTF-8", "en_GB.UTF-8"));
  EXPECT_FALSE(SpeaksCzech(nullptr, "", "en_GB.UTF-8"));
}

TEST(HeadlessWords, GoWithTheSkinOfTheSameLanguage) {
  EXPECT_STREQ(WordsFor(nullptr, nullptr, "cs_CZ.UTF-8").Skin, "Default");
  EXPECT_STREQ(WordsFor(nullptr, nullptr, nullptr).Skin, "Default");
  EXPECT_STREQ(WordsFor(nullptr, nullptr, "de_DE.UTF-8").Skin, "English");
}

}  // namespace
}  // namespace zorik::test
