#include <gtest/gtest.h>

#include "SkinFolder.h"
#include "data/Cp1250.h"
#include "data/Files.h"
#include "data/Result.h"
#include "skin/Texts.h"

namespace zorik {
namespace {

std::string LanguageFile(int lines, const std::string& lineEnd = "\r\n") {
  std::string bytes = "head" + lineEnd + "head" + lineEnd;
  for (int i = 0; i < lines; ++i) bytes += "text " + std::to_string(i) + lineEnd;
  return bytes;
}

// By the place, as skins know it.
const std::string& TextAt(const Texts& texts, int place) {
  return texts.At(static_cast<TextId>(place));
}

TEST(Texts, BeginBehindTwoLinesOfHead) {
  Texts texts;
  EXPECT_TRUE(texts.LoadTexts(LanguageFile(200)));
  EXPECT_EQ(TextAt(texts, 0), "text 0");
  EXPECT_EQ(TextAt(texts, 199), "text 199");
}

TEST(Texts, AlsoComeFromLinesThatEndInALineFeedAlone) {
  Texts texts;
  EXPECT_TRUE(texts.LoadTexts(LanguageFile(200, "\n")));
  EXPECT_EQ(TextAt(texts, 199), "text 199");
}

TEST(Texts, BreakTheirLinesAtANumberSign) {
  Texts texts;
  EXPECT_FALSE(texts.LoadTexts("\n\none#two##three\n")) << "it has one text only";
  EXPECT_EQ(TextAt(texts, 0), "one\r\ntwo\r\n\r\nthree");
}

TEST(Texts, AreWindows1250UnlessTheFileIsMarkedAsUtf8) {
  Texts texts;
  EXPECT_FALSE(texts.LoadTexts("\n\nZor\xEDk \xE8\n")) << "it has one text only";
  EXPECT_EQ(TextAt(texts, 0), "Zorík č");
  EXPECT_FALSE(texts.LoadTexts("\xEF\xBB\xBF\n\nZorík č\n"));
  EXPECT_EQ(TextAt(texts, 0), "Zorík č");
}

TEST(Texts, ThatAFileLacksAreEmpty) {
  Texts texts;
  ASSERT_TRUE(texts.LoadTexts(LanguageFile(200)));
  const auto loaded = texts.LoadTexts(LanguageFile(199));
  ASSERT_FALSE(loaded);
  EXPECT_EQ(loaded.Message(), "the language file has 199 texts of 200");
  EXPECT_EQ(TextAt(texts, 198), "text 198");
  EXPECT_EQ(TextAt(texts, 199), "");
  EXPECT_FALSE(texts.LoadTexts(""));
  EXPECT_EQ(TextAt(texts, 0), "");
}

TEST(Texts, AreEmptyAtPlacesThatDoNotExist) {
  const Texts texts;
  EXPECT_EQ(TextAt(texts, -1), "");
  EXPECT_EQ(TextAt(texts, 200), "");
}

class LanguageTest : public test::SkinFolder {};

TEST_F(LanguageTest, OfTheSkinGoesBeforeTheDefaultSkins) {
  places_.Skin = "Mine";
  Touch("Default/Menu/cestina.txt", LanguageFile(200));
  Texts texts;
  EXPECT_TRUE(LoadLanguage(places_, texts));
  EXPECT_EQ(TextAt(texts, 7), "text 7");
  Touch("Mine/Menu/cestina.txt", "\r\n\r\nmine\r\n" + LanguageFile(200));
  EXPECT_TRUE(LoadLanguage(places_, texts));
  EXPECT_EQ(TextAt(texts, 0), "mine");
}

TEST_F(LanguageTest, ThatIsTooShortIsNotMadeUpForByTheDefaultSkins) {
  places_.Skin = "Mine";
  Touch("Default/Menu/cestina.txt", LanguageFile(200));
  Touch("Mine/Menu/cestina.txt", LanguageFile(3));
  Texts texts;
  EXPECT_FALSE(LoadLanguage(places_, texts));
  EXPECT_EQ(TextAt(texts, 2), "text 2");
  EXPECT_EQ(TextAt(texts, 3), "");
}

TEST_F(LanguageTest, ThatIsMissingIsAskedForAndLeavesNoTexts) {
  Texts texts;
  ASSERT_TRUE(texts.LoadTexts(LanguageFile(200)));
  std::string asked;
  EXPECT_FALSE(LoadLanguage(places_, texts, [&](const std::string& name) {
    asked = name;
    return false;
  }));
  EXPECT_EQ(asked, "menu\\cestina");
  EXPECT_EQ(TextAt(texts, 0), "");
}

TEST(Texts, TakeANumberWithOneBlankInFront) {
  EXPECT_EQ(WithNumber("Zoríci v komnatě: 2-4. Přepínáš klávesou Tab.", " 2-4", 3),
            "Zoríci v komnatě: 3. Přepínáš klávesou Tab.");
  EXPECT_EQ(WithNumber("V komnatě je 5-9 Zoríků.", " 5-9", 5), "V komnatě je 5 Zoríků.");
  EXPECT_EQ(WithNumber("chybí ?1? buněk", " ?1?", -7), "chybí-7 buněk");
  EXPECT_EQ(WithNumber("chybí ?1? buněk", " ?1?", 0), "chybí 0 buněk")
      << "as of a number that is not negative";
  EXPECT_EQ(WithNumber("nic", " 2-4", 3), "nic");
}

TEST(Texts, JoinWithExactlyOneBlank) {
  EXPECT_EQ(BlankJoin("hraje", "Petr"), "hraje Petr");
  EXPECT_EQ(BlankJoin("hraje ", "Petr"), "hraje Petr");
  EXPECT_EQ(BlankJoin("hraje", ""), "hraje ");
}

TEST(Texts, OfTheDefaultSkinAreCompleteAndInWindows1250) {
  const auto source = ReadWhole(ZORIK_SKIN_SOURCES "/Default/Menu/cestina.txt");
  ASSERT_TRUE(source);
  const auto bytes = FromUtf8(*source);
  ASSERT_TRUE(bytes) << "a character that Windows-1250 lacks";
  Texts texts;
  EXPECT_TRUE(texts.LoadTexts(*bytes));
  int used = 0;
  for (int place = 0; place < 200; ++place) used += TextAt(texts, place).empty() ? 0 : 1;
  EXPECT_GE(used, 147) << "texts may come, and none may go";
  EXPECT_EQ(TextAt(texts, 0), "Hrát komnatu");
  EXPECT_EQ(TextAt(texts, 89), "Doveď Zoríka do cíle!");
  EXPECT_EQ(TextAt(texts, 196), "Nová malá komnata");
}

}  // namespace
}  // namespace zorik
