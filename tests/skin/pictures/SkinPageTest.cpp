#include <gtest/gtest.h>

#include <QImage>
#include <algorithm>
#include <filesystem>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "SkinKeys.h"
#include "core/Objects.h"
#include "data/Files.h"
#include "data/Result.h"
#include "data/Trimmed.h"
#include "platform/WaveFile.h"
#include "skin/Pictures.h"
#include "skin/Skin.h"
#include "skin/SkinKeys.h"
#include "skin/Sounds.h"
#include "skin/TileSets.h"
#include "support/TempFolder.h"

namespace zorik {
namespace {

const std::string kPage = ZORIK_DOCS "/skins.md";
const std::string kExamples = ZORIK_DOCS "/example-skin";

// The lines of a part of the page, up to the next heading.
std::vector<std::string> Part(const std::string& heading) {
  const auto bytes = ReadWhole(kPage);
  EXPECT_TRUE(bytes);
  std::vector<std::string> lines;
  bool inside = false;
  for (std::size_t begin = 0; bytes && begin < bytes->size();) {
    const std::size_t end = bytes->find('\n', begin);
    const std::string line = bytes->substr(begin, end - begin);
    if (line.starts_with('#')) {
      inside = line == heading;
    } else if (inside) {
      lines.push_back(line);
    }
    begin = end + 1;
  }
  EXPECT_FALSE(lines.empty()) << heading;
  return lines;
}

// The cells of a line of a table, without the blanks around them.
std::vector<std::string> Cells(const std::string& line) {
  std::vector<std::string> cells;
  for (std::size_t begin = 1; begin < line.size();) {
    const std::size_t end = line.find('|', begin);
    cells.emplace_back(Trimmed(std::string_view(line).substr(begin, end - begin)));
    begin = end + 1;
  }
  return cells;
}

// What stands in marks of code.
std::vector<std::string> Words(const std::string& text) {
  std::vector<std::string> words;
  for (std::size_t begin = text.find('`'); begin != std::string::npos;) {
    const std::size_t end = text.find('`', begin + 1);
    words.push_back(text.substr(begin + 1, end - begin - 1));
    begin = text.find('`', end + 1);
  }
  return words;
}

std::set<std::string> KeysOfThePage() {
  std::set<std::string> keys;
  for (const std::string& line : Part("### Keys")) {
    if (!line.starts_with("| `")) continue;
    const std::vector<std::string> cells = Cells(line);
    for (const std::string& name : Words(cells[0])) {
      for (const std::string& ending : Words(cells[1]))
        EXPECT_TRUE(keys.insert(name + "." + ending).second) << name << "." << ending;
    }
  }
  for (const std::string& line : Part("### caption:")) {
    if (!line.starts_with("| `")) continue;
    const std::vector<std::string> cells = Cells(line);
    EXPECT_FALSE(cells[1].empty()) << line;
    for (const std::string& name : Words(cells[0]))
      EXPECT_TRUE(keys.insert("caption." + name).second) << name;
  }
  return keys;
}

TEST(PageForSkinMakers, NamesEveryKeyOfTheTable) {
  const std::set<std::string> keys = KeysOfThePage();
  std::set<std::string> known = {"maker.web", "maker.mail", "help.folder"};
  for (const zorik::SkinKey& key : CheckedSkinKeys()) known.insert(std::string(key.name));
  for (const auto& [key, value] : test::ReadSkinKeys("Default/Menu/skindata.txt").Values) known.insert(key);
  for (const std::string& key : known) EXPECT_TRUE(keys.contains(key)) << key << " is not told";
  for (const std::string& key : keys) EXPECT_TRUE(known.contains(key)) << key << " is no key";
}

TEST(PageForSkinMakers, NamesEveryTileSetInItsOrder) {
  std::vector<std::string> names;
  for (const std::string& line : Part("## Tiles")) {
    if (line.starts_with("| `")) names.push_back(Words(Cells(line)[0]).front());
  }
  EXPECT_EQ(names, std::vector<std::string>(kTileSets.begin(), kTileSets.end()));
}

// The number of columns of each set is that of the shipped picture.
TEST(PageForSkinMakers, TellsTheColumnsOfEveryTileSet) {
  for (const std::string& line : Part("## Tiles")) {
    if (!line.starts_with("| `")) continue;
    const std::vector<std::string> cells = Cells(line);
    const std::string name = Words(cells[0]).front();
    const QImage image(QString::fromStdString(ZORIK_SKINS "/Default/Game/" + name + ".bmp"));
    EXPECT_EQ(std::to_string(image.width() / kTileSize), cells[1].substr(0, 1)) << name;
  }
}

TEST(PageForSkinMakers, TellsInWhichOrderAPictureOfACaveIsLookedFor) {
  const std::vector<std::string> lines = Part("## Where a file is looked for");
  const auto says = [&](const std::string& words) {
    return std::any_of(lines.begin(), lines.end(),
                       [&](const std::string& line) { return line.find(words) != std::string::npos; });
  };
  EXPECT_TRUE(says("every single file is looked for in the player's own first"));
  EXPECT_TRUE(
      says("`Game/SCHEME` of the skin, `Game` of the skin; the same of `Default`; `error.bmp` beside"));
  EXPECT_TRUE(says("`.jpg` goes first, then `.bmp`, then `.gif`"));

  const test::TempFolder temp("skinpage");
  const SkinPlaces places{temp.Path() + "/own", "Granat", temp.Path() + "/shipped"};
  std::vector<std::string> files;
  for (const std::string skin : {"Granat", "Default"}) {
    for (const std::string folder : {"Game/Hot", "Game"}) {
      for (const std::string root : {"/own/", "/shipped/"}) {
        const std::string path = temp.Path() + root + skin + "/" + folder;
        std::filesystem::create_directories(path);
        for (const std::string kind : {".jpg", ".bmp", ".gif"}) files.push_back(path + "/Gem" + kind);
      }
    }
  }
  files.push_back(temp.Path() + "/own/error.bmp");
  for (const std::string& file : files) ASSERT_TRUE(WriteWhole(file, "picture"));
  for (const std::string& file : files) {
    EXPECT_EQ(GetSchPicPath(places, "Hot", "Gem"), file);
    std::filesystem::remove(file);
  }
}

TEST(PageForSkinMakers, TellsTheLimits) {
  const std::vector<std::string> lines = Part("## Formats and limits");
  const auto says = [&](const std::string& words) {
    return std::any_of(lines.begin(), lines.end(),
                       [&](const std::string& line) { return line.find(words) != std::string::npos; });
  };
  EXPECT_EQ(kMostPixels, 4194304);
  EXPECT_TRUE(says("4,194,304 pixels"));
  EXPECT_EQ(kMostTilePixels, 819200);
  EXPECT_TRUE(says("819,200 pixels, which are " + std::to_string(kMostFrames) + " frames"));
  const auto limits = [](const WaveLimits& wave) {
    return std::to_string(wave.seconds) + " seconds and " + std::to_string(wave.bytes >> 20U) + " MiB";
  };
  EXPECT_TRUE(says(limits(kSoundLimits)));
  EXPECT_TRUE(says(limits(kLoopLimits)));
  EXPECT_TRUE(says(std::to_string(SkinTable::kMostEntries) + " keys"));
  EXPECT_TRUE(says(std::to_string(kTextCount) + " lines"));
}

TEST(PageForSkinMakers, TellsTheRangesOfNumbers) {
  std::map<std::string, std::string> endings;
  for (const std::string& line : Part("## skindata.txt")) {
    if (line.starts_with("| `")) endings[Words(Cells(line)[0]).front()] = Cells(line)[1];
  }
  const auto range = [](SkinKind kind) {
    return std::to_string(RangeOf(kind).least) + " to " + std::to_string(RangeOf(kind).most);
  };
  const std::vector<std::pair<std::string, SkinKind>> rows = {{"left", SkinKind::Place},
                                                              {"width", SkinKind::Size},
                                                              {"width", SkinKind::Window},
                                                              {"lines", SkinKind::Lines},
                                                              {"size", SkinKind::Border}};
  for (const auto& [ending, kind] : rows)
    EXPECT_NE(endings[ending].find(range(kind)), std::string::npos) << ending << ": " << range(kind);
}

class ExampleSkin : public testing::Test {
 protected:
  const SkinPlaces places_{kExamples, "Granat", ZORIK_SKINS};
  Skin skin_;
};

TEST_F(ExampleSkin, IsWornWithoutAFlaw) {
  const ApplyOutcome outcome = skin_.Apply(places_);
  EXPECT_TRUE(outcome.applied);
  for (const SkinFlaw& flaw : outcome.flaws) ADD_FAILURE() << flaw.what << ' ' << flaw.file;
}

TEST_F(ExampleSkin, ChangesColoursWordsAndAButton) {
  Skin plain;
  plain.Apply({ZORIK_SKINS});
  skin_.Apply(places_);
  EXPECT_EQ(skin_.Colour("dialog.color"), QColor(0x40, 0x10, 0x18));
  EXPECT_EQ(skin_.Said("version.text"), "Zorík 2\nv granátovém");
  EXPECT_EQ(skin_.Caption("caption.loading"), "Vydrž...");
  EXPECT_NE(skin_.Picture("dialog.ok.image"), plain.Picture("dialog.ok.image"));
  EXPECT_EQ(skin_.Picture("dialog.ok.image").size(), QSize(240, 32));
  EXPECT_EQ(skin_.Picture("dialog.yes.image"), plain.Picture("dialog.yes.image"))
      << "what it lacks is Default's";
  EXPECT_EQ(skin_.Text(TextId::Program), plain.Text(TextId::Program));
}

TEST_F(ExampleSkin, ChangesATileInAllSchemesAndOneInHotCaves) {
  const auto within = [](const std::string& path) { return path.substr(path.find("/Granat/") + 1); };
  for (const char* const scheme : {"Classic", "Cold", "Hot"})
    EXPECT_EQ(within(GetSchPicPath(places_, scheme, "Gem")), "Granat/Game/Gem.bmp") << scheme;
  EXPECT_EQ(within(GetSchPicPath(places_, "Hot", "Steel")), "Granat/Game/Hot/Steel.bmp");
  EXPECT_EQ(GetSchPicPath(places_, "Cold", "Steel"), ZORIK_SKINS "/Default/Game/Cold/Steel.bmp");
  const QImage gem = ReadImage(GetSchPicPath(places_, "Cold", "Gem"));
  EXPECT_EQ(gem.size(), QSize(80, 160)) << "two steps of its animation";
  EXPECT_EQ(WithoutBlack(gem).pixelColor(0, 0).alpha(), 0);
}

TEST_F(ExampleSkin, HasTwoBarksOfItsOwn) {
  for (const char* const name : {"dog", "dog2"})
    EXPECT_EQ(StateOfWave(kExamples + "/Granat/Sound/" + name + ".wav"), WaveState::Good) << name;
}

}  // namespace
}  // namespace zorik
