#include <gtest/gtest.h>

#include "skin/SkinTable.h"

namespace zorik {
namespace {

// The value of a key in a table of one file; "(none)" when the key is absent.
std::string Value(std::string_view bytes, std::string_view key) {
  SkinTable table;
  table.Add(bytes, 0);
  const SkinTable::Entry* entry = table.Find(key);
  return entry == nullptr ? "(none)" : entry->Value;
}

TEST(SkinTable, PutsTheSectionBeforeEachKey) {
  EXPECT_EQ(Value("start:\r\nclose.left=640\r\nhelp.left=600\r\n", "start.close.left"), "640");
  EXPECT_EQ(Value("start:\r\nclose.left=640\r\nhelp.left=600\r\n", "start.help.left"), "600");
  EXPECT_EQ(Value("start:\r\nselect:\r\nwidth=760\r\n", "select.width"), "760");
}

TEST(SkinTable, ReadsLinesThatEndInALineFeedAlone) {
  EXPECT_EQ(Value("start:\nclose.left=640\n", "start.close.left"), "640");
}

TEST(SkinTable, ReadsALastLineWithoutAnEnd) {
  EXPECT_EQ(Value("a=1\r\nb=2", "b"), "2");
}

TEST(SkinTable, CarriesTheSectionIntoTheNextFile) {
  SkinTable table;
  table.Add("score:\r\nimage=score\r\n", 0);
  table.Add("width=9\r\n", 1);
  ASSERT_NE(table.Find("score.width"), nullptr);
  EXPECT_EQ(table.Find("score.width")->file, 1U);
  EXPECT_EQ(table.Find("width"), nullptr);
}

TEST(SkinTable, DividesAtTheLastEqualsSign) {
  EXPECT_EQ(Value("a=b=c\r\n", "a=b"), "c");
  EXPECT_EQ(Value("a=b=c\r\n", "a"), "(none)");
}

TEST(SkinTable, DividesAtAnEqualsSignOfTheSectionWhenTheLineHasNone) {
  EXPECT_EQ(Value("a=b:\r\ncd\r\n", "a"), "b.cd");
}

TEST(SkinTable, DividesALineWithoutAnEqualsSignWhereTheOneBeforeWasDivided) {
  EXPECT_EQ(Value("abc=1\r\nxyz-rest\r\n", "xyz"), "rest") << "the character at the divider is lost";
  EXPECT_EQ(Value("abc=1\r\nxy\r\n", "xy"), "") << "a line that ends before the divider has no value";
  EXPECT_EQ(Value("abc=1\r\nxyz-rest\r\nuvw+more\r\n", "uvw"), "more");
}

TEST(SkinTable, DividesByCharactersWhateverBytesTheyAre) {
  EXPECT_EQ(Value("\xE8\xE8=1\r\nxy-rest\r\n", "xy"), "rest") << "Windows-1250";
  EXPECT_EQ(Value("\xEF\xBB\xBFčč=1\r\nxy-rest\r\n", "xy"), "rest") << "UTF-8";
}

TEST(SkinTable, CarriesTheDividerIntoTheNextFile) {
  SkinTable table;
  table.Add("abc=1\r\n", 0);
  table.Add("xyz-rest\r\n", 1);
  ASSERT_NE(table.Find("xyz"), nullptr);
  EXPECT_EQ(table.Find("xyz")->Value, "rest");
}

TEST(SkinTable, PassesOverLinesBeforeTheFirstEqualsSign) {
  SkinTable table;
  table.Add("nothing here\r\n\r\na=1\r\n", 0);
  ASSERT_EQ(table.Entries().size(), 1U);
  EXPECT_EQ(table.Entries()[0].Key, "a");
}

TEST(SkinTable, TakesAnEmptyLineForOneWithoutAnEqualsSign) {
  SkinTable table;
  table.Add("s:\r\na=1\r\n\r\n", 0);
  ASSERT_EQ(table.Entries().size(), 2U);
  EXPECT_EQ(table.Entries()[1].Key, "s.") << "the section alone, cut at the divider behind s.a";
  EXPECT_EQ(table.Entries()[1].Value, "");
}

TEST(SkinTable, TrimsBlanksAroundKeyAndValue) {
  EXPECT_EQ(Value("  a  =  some words  \r\n", "a"), "some words");
}

TEST(SkinTable, TrimsNoTabs) {
  EXPECT_EQ(Value("a=\tx\r\n", "a"), "\tx");
}

TEST(SkinTable, DoesNotFindAKeyIndentedUnderItsSection) {
  EXPECT_EQ(Value("start:\r\n  left=1\r\n", "start.left"), "(none)");
  EXPECT_EQ(Value("start:\r\n  left=1\r\n", "start.  left"), "1");
}

TEST(SkinTable, TakesALineWithABlankBehindTheColonForNoSection) {
  EXPECT_EQ(Value("a=1\r\nstart: \r\nleft=2\r\n", "left"), "2");
}

TEST(SkinTable, TakesAValueThatEndsInAColonForASection) {
  EXPECT_EQ(Value("a=1\r\nb=time:\r\nc=3\r\n", "b"), "(none)");
  EXPECT_EQ(Value("a=1\r\nb=time:\r\nc=3\r\n", "b=time.c"), "3");
}

TEST(SkinTable, DoesNotTrimTheSection) {
  EXPECT_EQ(Value("start :\r\nleft=1\r\n", "start .left"), "1");
  EXPECT_EQ(Value(" start:\r\nleft=1\r\n", "start.left"), "1") << "the whole key is trimmed";
}

TEST(SkinTable, HasNoComments) {
  EXPECT_EQ(Value("; a=1\r\n", "; a"), "1");
}

TEST(SkinTable, FindsKeysInAnyLetterCase) {
  EXPECT_EQ(Value("Start.FingerRePlay=x\r\n", " START.fingerREPLAY "), "x");
  EXPECT_EQ(Value("\xC8=x\r\n", "č"), "x") << "a capital letter of Windows-1250";
}

TEST(SkinTable, FindsTheLastOfSeveralPairsOfAKey) {
  EXPECT_EQ(Value("a=1\r\nA=2\r\n", "a"), "2");
}

TEST(SkinTable, HoldsValuesAsUtf8) {
  EXPECT_EQ(Value("a=Hr\xE1t\r\n", "a"), "Hrát");
  EXPECT_EQ(Value("\xEF\xBB\xBF"
                  "a=Hrát – €\r\n",
                  "a"),
            "Hrát – €");
}

TEST(SkinTable, MixesFilesOfBothKinds) {
  SkinTable table;
  table.Add("\xEF\xBB\xBFčást:\r\n", 0);
  table.Add("d\xE9lka=1\r\n", 1);
  ASSERT_NE(table.Find("část.délka"), nullptr);
}

TEST(SkinTable, KeepsNoMoreThan2001Pairs) {
  std::string bytes;
  for (int i = 0; i < 2002; ++i) bytes += "k" + std::to_string(i) + "=" + std::to_string(i) + "\r\n";
  SkinTable table;
  table.Add(bytes, 0);
  EXPECT_EQ(table.Entries().size(), 2001U);
  EXPECT_NE(table.Find("k2000"), nullptr);
  EXPECT_EQ(table.Find("k2001"), nullptr);
}

// So many keys of their own, each with the same value.
std::string Keys(const std::string& name, int count, const std::string& value) {
  std::string bytes;
  for (int i = 0; i < count; ++i) bytes += name + std::to_string(i) + "=" + value + "\r\n";
  return bytes;
}

TEST(SkinTable, LetsOverriddenPairsGiveWayToNewKeys) {
  SkinTable table;
  table.Add(Keys("a", 1500, "1"), 0);
  table.Add(Keys("a", 1500, "2"), 1);
  table.Add(Keys("b", 501, "3"), 2);
  EXPECT_EQ(table.PassedOver(), 0U);
  EXPECT_LE(table.Entries().size(), 2001U);
  for (const char* const key : {"a0", "a1499"}) EXPECT_EQ(table.Find(key)->Value, "2") << key;
  for (const char* const key : {"b0", "b500"}) EXPECT_EQ(table.Find(key)->Value, "3") << key;
}

TEST(SkinTable, LetsTheFirstFilesGiveWayToTheLast) {
  SkinTable table;
  table.Add(Keys("default", 1000, "1"), 0);
  table.Add(Keys("own", 1100, "2"), 1);
  EXPECT_EQ(table.PassedOver(), 99U);
  EXPECT_EQ(table.Entries().size(), 2001U);
  for (const char* const key : {"own0", "own1099"}) EXPECT_NE(table.Find(key), nullptr) << key;
  EXPECT_NE(table.Find("default900"), nullptr);
  EXPECT_EQ(table.Find("default901"), nullptr);
}

TEST(SkinTable, TakesANewValueOfAKeyWhenItIsFull) {
  SkinTable table;
  table.Add(Keys("k", 2001, "1"), 0);
  table.Add("k7=2\r\nnew=3\r\n", 0);
  EXPECT_EQ(table.Find("k7")->Value, "2");
  EXPECT_EQ(table.Find("new"), nullptr);
  EXPECT_EQ(table.PassedOver(), 1U);
}

TEST(SkinTable, IsEmptyWithoutFiles) {
  EXPECT_EQ(SkinTable().Find(""), nullptr);
}

TEST(SkinNumber, IsAWholeNumberOf16Bits) {
  EXPECT_EQ(SkinNumber("640"), 640);
  EXPECT_EQ(SkinNumber("-12"), -12);
  EXPECT_EQ(SkinNumber("+12"), 12);
  EXPECT_EQ(SkinNumber("32767"), 32767);
  EXPECT_EQ(SkinNumber("-32768"), -32768);
  for (const char* none : {"", "32768", "-32769", "x", "1x", "1.5", "+-1", "0x10", "+"}) {
    EXPECT_EQ(SkinNumber(none), std::nullopt) << none;
  }
}

TEST(SkinColour, HasItsBytesTurnedRound) {
  EXPECT_EQ(SkinColourNumber("FF0000"), 255U);
  EXPECT_EQ(SkinColourNumber("00ff00"), 0x00FF00U);
  EXPECT_EQ(SkinColourNumber("0000FF"), 0xFF0000U);
  EXPECT_EQ(SkinColourNumber("123456"), 0x563412U);
}

TEST(SkinColour, OfAnotherLengthThanSixIsBlack) {
  for (const char* text : {"", "ff00", "1234567", "&HFF0000", "#FF0000", "xyz"}) {
    EXPECT_EQ(SkinColourNumber(text), 0U) << text;
  }
}

TEST(SkinColour, OfSixCharactersThatAreNoDigitsIsNone) {
  for (const char* text : {"GG0000", "12345 ", "-12345", "0x1234", "čččččč", "#12345"}) {
    EXPECT_EQ(SkinColourNumber(text), std::nullopt) << text;
  }
}

}  // namespace
}  // namespace zorik
