#include <gtest/gtest.h>

#include "data/Cp1250.h"
#include "editors/SuperReplace.h"

namespace zorik {
namespace {

std::string Cleaned(const std::string& utf8) {
  return ToUtf8(SuperReplace(*FromUtf8(utf8)));
}

// In the middle of a text, where no capital is put in.
std::string CleanedInside(const std::string& utf8) {
  return Cleaned("A " + utf8 + " b").substr(2, Cleaned("A " + utf8 + " b").size() - 4);
}

TEST(SuperReplace, ReplacesEachRowOfItsTable) {
  struct Row {
    const char* found;
    const char* replaced;
  };
  constexpr Row kRows[] = {
      {"zorík", "Zorík"},    {"zorik", "Zorík"},   {"diamanty", "drahokamy"}, {"Diamanty", "Drahokamy"},
      {"ambéna", "améba"},   {"ambéba", "améba"},  {"ambéma", "améba"},       {"hmiz", "hmyz"},
      {"diamonds", "gems"},  {"Diamonds", "Gems"}, {"morek", "Morvek"},       {"morvek", "Morvek"},
      {"morveak", "Morvek"}, {"morec", "Morvek"},  {"morveec", "Morvek"},     {"morveac", "Morvek"},
  };
  for (const Row& row : kRows) EXPECT_EQ(CleanedInside(row.found), row.replaced);
}

TEST(SuperReplace, TakesLetterCaseAsItStands) {
  EXPECT_EQ(CleanedInside("ZORÍK DIAMANT Zorik HMIZ"), "ZORÍK DIAMANT Zorik HMIZ");
}

TEST(SuperReplace, ReplacesEveryPlace) {
  EXPECT_EQ(Cleaned("Zorí a zorí a zorí"), "Zorí a Zorí a Zorí");
}

TEST(SuperReplace, CleansWhatAnAuthorTypes) {
  EXPECT_EQ(Cleaned("zorik hledá diamant"), "Zorík hledá drahokam");
}

TEST(SuperReplace, TrimsBlanksAndMakesTheFirstLetterACapital) {
  EXPECT_EQ(Cleaned("  první cave  "), "První cave");
  EXPECT_EQ(Cleaned("čert a ďas"), "Čert a ďas");
  EXPECT_EQ(Cleaned("žížala"), "Žížala");
}

TEST(SuperReplace, LeavesWhatHasNoCapital) {
  EXPECT_EQ(Cleaned("1. cave"), "1. cave");
  EXPECT_EQ(Cleaned("ß"), "ß");
  EXPECT_EQ(Cleaned("Hotovo"), "Hotovo");
}

TEST(SuperReplace, TrimsBlanksOnlyAndKeepsLineBreaks) {
  EXPECT_EQ(SuperReplace("\r\n a \r\n"), "\r\n a \r\n");
}

TEST(SuperReplace, MakesBlanksAnEmptyText) {
  EXPECT_EQ(SuperReplace("   "), "");
  EXPECT_EQ(SuperReplace(""), "");
}

}  // namespace
}  // namespace zorik
