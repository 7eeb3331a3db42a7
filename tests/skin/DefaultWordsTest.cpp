#include <gtest/gtest.h>

#include <cctype>
#include <sstream>

#include "SkinFolder.h"
#include "data/Files.h"
#include "data/Result.h"
#include "skin/DefaultWords.h"
#include "skin/SkinData.h"
#include "skin/SkinTable.h"

namespace zorik {
namespace {

constexpr std::string_view kCaption = "caption.error.store";
const std::string kCzech = "Soubor se nepodařilo uložit.";

TEST(DefaultWords, AreThoseOfTheDefaultSkinsTable) {
  const auto source = ReadWhole(ZORIK_SKIN_SOURCES "/Default/Menu/skindata.txt");
  ASSERT_TRUE(source);
  SkinTable table;
  table.Add("\xEF\xBB\xBF" + *source, 0);
  ASSERT_NE(table.Find(kCaption), nullptr);
  for (const SkinTable::Entry& entry : table.Entries()) EXPECT_EQ(DefaultWords(entry.Key), entry.Value);
  EXPECT_EQ(DefaultWords(kCaption), kCzech);
  EXPECT_EQ(DefaultWords("caption.error.unheardof"), "");
}

// Windows also ask for words that have stood in other sections from the beginning.
TEST(DefaultWords, BesidesCaptionsAreInBothSkins) {
  for (const std::string skin : {"Default", "English"}) {
    const auto source = ReadWhole(ZORIK_SKIN_SOURCES "/" + skin + "/Menu/skindata.txt");
    ASSERT_TRUE(source);
    SkinTable table;
    table.Add("\xEF\xBB\xBF" + *source, 0);
    for (const char* key :
         {"settings.text", "settings.speed.text", "settings.speedreplay.text", "settings.volume.text",
          "settings.check1.text", "settings.check2.text", "settings.check3.text", "settings.check4.text",
          "settings.check5.text", "settings.check6.text", "settings.check7.text", "settings.check8.text",
          "start.fingerPlay.text", "start.fingerReplay.text", "start.fingerEditor.text", "addplayer.text"}) {
      const SkinTable::Entry* const entry = table.Find(key);
      EXPECT_TRUE(entry != nullptr && !entry->Value.empty()) << key << " of " << skin;
    }
  }
}

// He is a friend, and nobody is spoken to as to several, but for the hint above the column of marks, which
// has stood so from the beginning.
TEST(DefaultWords, SpeakToThePlayerInOneWay) {
  for (const std::string name : {"skindata.txt", "cestina.txt", "catdata.txt"}) {
    const auto source = ReadWhole(ZORIK_SKIN_SOURCES "/Default/Menu/" + name);
    ASSERT_TRUE(source);
    std::istringstream words(*source);
    for (std::string word; words >> word;) {
      word.erase(0, word.find_last_of("=|#") + 1);  // a key, and what stands in front of a line break
      while (!word.empty() && std::ispunct(static_cast<unsigned char>(word.back())) != 0) word.pop_back();
      for (const char* ending : {"áte", "íte", "ete", "ěte", "jte"}) {
        EXPECT_FALSE(word.ends_with(ending) && !word.ends_with("Delete") && word != "změníte")
            << word << " in " << name;
      }
    }
  }
}

class WordsOfASkin : public test::SkinFolder {
 protected:
  std::string Words(const std::string& skin, std::string_view key) {
    places_.Skin = skin;
    SkinData data;
    data.LoadSkinData(places_);
    return data.SkinWords(key);
  }
};

TEST_F(WordsOfASkin, AreItsOwnAndThenThoseOfTheDefaultSkinInItsFolder) {
  Touch("Default/Menu/skindata.txt", "caption:\nerror.store=default\nloading=default\n");
  Touch("Mine/Menu/skindata.txt", "caption:\nerror.store=mine\n");
  EXPECT_EQ(Words("Mine", kCaption), "mine");
  EXPECT_EQ(Words("Mine", "caption.loading"), "default");
}

TEST_F(WordsOfASkin, AreInTheProgramForAFolderWithoutCaptions) {
  EXPECT_EQ(Words("Default", kCaption), kCzech);
  Touch("Default/Menu/skindata.txt", "start:\nclose.left=1\n");
  EXPECT_EQ(Words("Default", kCaption), kCzech);
  Touch("Mine/Menu/skindata.txt", "caption:\nerror.store=\nloading=mine\n");
  EXPECT_EQ(Words("Mine", kCaption), kCzech) << "an empty value is none";
  EXPECT_EQ(Words("Mine", "caption.loading"), "mine");
}

TEST_F(WordsOfASkin, BreakTheirLinesAtANumberSign) {
  EXPECT_EQ(Words("Default", "caption.file.nofolder"), "%1\rTaková složka tu není.");
  Touch("Mine/Menu/skindata.txt", "caption:\nloading=a#b\n");
  EXPECT_EQ(Words("Mine", "caption.loading"), "a\rb");
}

TEST_F(WordsOfASkin, TakeNoRoomFromItsKeys) {
  std::string keys = "many:\n";
  for (std::size_t i = 0; i < SkinTable::kMostEntries; ++i) keys += std::to_string(i) + "=1\n";
  Touch("Mine/Menu/skindata.txt", keys);
  places_.Skin = "Mine";
  SkinData data;
  EXPECT_TRUE(data.LoadSkinData(places_).empty());
  EXPECT_EQ(data.SkinWords(kCaption), kCzech);
}

}  // namespace
}  // namespace zorik
