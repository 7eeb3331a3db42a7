#include <algorithm>
#include <set>

#include "data/Result.h"
#include "screens/SkinKeys.h"
#include "skin/SkinKeys.h"
#include "skin/SkinTable.h"

namespace zorik {
namespace {

// The keys of a shipped file but its captions, in small letters.
std::set<std::string> ShippedKeys(const std::string& skin) {
  const auto bytes = ReadWhole(ZORIK_BUILT_SKINS "/" + skin + "/Menu/skindata.txt");
  EXPECT_TRUE(bytes) << skin;
  SkinTable table;
  table.Add(*bytes, 0);
  std::set<std::string> keys;
  // That each caption is known is seen to elsewhere in the house.
  for (const SkinTable::Entry& entry : table.Entries()) {
    if (!entry.Key.starts_with("caption.")) keys.insert(entry.Key);
  }
  return keys;
}

// The first window of a first start shows what these say; FrmLanguageTest sees to it.
bool IsOfLanguage(const std::string& key) {
  return key.starts_with("language.");
}

// Those whose effect is seen in these tests.
std::set<std::string> SeenKeys() {
  using namespace test;
  const SkinKeys all = KeysOfStart() + KeysOfSelection() + KeysOfPlainAuthor() + KeysOfSettings() +
                       KeysOfQuestion() + KeysOfNotice() + KeysOfRetry() + KeysOfPlates() +
                       KeysOfCongratulation("picText") + KeysOfNewPlayer() + KeysOfScore() +
                       KeysOfSkinWindow();
  std::set<std::string> keys;
  for (const test::SkinKey& row : all) {
    std::string key = row.key;
    std::transform(key.begin(), key.end(), key.begin(), [](unsigned char c) { return std::tolower(c); });
    keys.insert(key);
  }
  return keys;
}

TEST(SkinKeys, AreAllSeenInSomeWindow) {
  const std::set<std::string> seen = SeenKeys();
  const std::set<std::string> shipped = ShippedKeys("Default");
  EXPECT_GT(shipped.size(), 150U);
  for (const std::string& key : shipped)
    EXPECT_NE(seen.contains(key), IsOfLanguage(key)) << key << " has no row";
}

// The version stands at the lower edge of the palm, however large a skin makes that, unless it is told where.
TEST(SkinKeys, AreAllInTheShippedSkin) {
  const std::set<std::string> shipped = ShippedKeys("Default");
  const std::set<std::string> byThePalm = {"version.left", "version.top", "version.width", "version.height"};
  for (const std::string& key : SeenKeys()) EXPECT_NE(shipped.contains(key), byThePalm.contains(key)) << key;
}

TEST(SkinKeys, ThatAreNumbersOrColoursAreCheckedBeforeTheSkinIsWorn) {
  std::set<std::string> checked;
  for (const zorik::SkinKey& key : CheckedSkinKeys()) checked.insert(std::string(key.name));
  for (const std::string& key : SeenKeys()) {
    const std::string last = key.substr(key.rfind('.') + 1);
    const bool number =
        std::set<std::string>{"left", "top", "width", "height", "lines", "size"}.contains(last) ||
        last.ends_with("color");
    EXPECT_EQ(checked.contains(key), number) << key;
  }
}

TEST(SkinKeys, OfAnotherLanguageAreWords) {
  const std::set<std::string> seen = SeenKeys();
  for (const std::string& key : ShippedKeys("English")) {
    if (key.starts_with("caption.") || key == "help.folder" || IsOfLanguage(key)) continue;
    EXPECT_TRUE(seen.contains(key)) << key;
    EXPECT_TRUE(key.ends_with("text")) << key;
  }
}

}  // namespace
}  // namespace zorik
