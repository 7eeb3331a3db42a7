#include <gtest/gtest.h>

#include <QImage>
#include <QRect>
#include <algorithm>
#include <array>
#include <cmath>
#include <set>

#include "SkinKeys.h"
#include "data/Result.h"
#include "skin/Texts.h"

namespace zorik::test {
namespace {

// A group of keys: each of the parts behind each of the names.
struct Group {
  std::vector<const char*> names;
  std::vector<const char*> parts;
};

const std::vector<Group> kGroups = {
    {{"start.palm",         "start.palmPlay", "start.fingerPlay", "start.fingerrePlay",
      "start.fingereditor", "start.finger4",  "select",           "score",
      "congratulation",     "addplayer",      "settings.ok",      "settings.close",
      "settings.checks",    "dialog.yes",     "dialog.no",        "dialog.ok",
      "dialog.retry",       "dialog.close",   "dialog.plate",     "dialog.plateback"},
     {"image"}},
    {{"start.close",         "start.help",      "start.vscroll",     "start.hscroll",
      "start.play",          "start.addplayer", "start.changeskin",  "start.statistics",
      "select.bonus",        "select.replay",   "select.play",       "select.congratulation",
      "select.send",         "select.practice", "select.vscroll",    "select.close",
      "select.help",         "select.ghost",    "congratulation.ok", "congratulation.close",
      "congratulation.help", "addplayer.ok",    "addplayer.close",   "score.ok"},
     {"image", "left", "top"}},
    {{"select.pair"}, {"image", "left", "top"}},
    {{"start.caves", "start.players"},
     {"left", "top", "width", "height", "color", "textcolor", "selection.color", "selection.textcolor",
      "border.size", "border.color"}},
    {{"start.caves", "select.caves"}, {"lines"}},
    {{"select.caves"},
     {"left", "top", "width", "height", "color", "border.size", "border.color", "textcolor", "cantcolor",
      "solvcolor", "elsecolor", "canttext", "selection.bgcolor", "selection.textcolor", "selection.cantcolor",
      "selection.solvcolor", "selection.elsecolor"}},
    {{"select", "congratulation", "addplayer"}, {"width", "height"}},
    {{"select.collname", "select.colldescription", "select.collauthor", "select.cavename",
      "select.cavedescription"},
     {"left", "top", "alignment", "textcolor"}},
    {{"select.colldescription", "select.collauthor", "select.cavedescription"}, {"width"}},
    {{"select.collauthor"}, {"linkcolor", "hovercolor"}},
    {{"select.score"}, {"left", "top", "textcolor"}},
    {{"congratulation.congrat", "addplayer.name"}, {"left", "top", "width", "height", "color", "textcolor"}},
    {{"select.preview"}, {"left", "top", "width", "height", "color", "textcolor"}},
    {{"select.rest", "select.record"}, {"left", "top", "width", "height", "alignment", "textcolor"}},
    {{"score.line", "score.total", "score.seconds", "score.again"}, {"left", "top", "width", "height"}},
    {{"score.bonus"}, {"left", "top"}},
    {{"version"}, {"textcolor"}},
    {{"settings", "dialog"}, {"color"}},
    {{"start.fingerPlay", "start.fingerReplay", "start.fingerEditor", "version", "settings",
      "settings.check1", "settings.check2", "settings.check3", "settings.check4", "settings.check5",
      "settings.check6", "settings.check7", "settings.check8", "settings.speed", "settings.speedreplay",
      "settings.volume", "congratulation", "addplayer", "skin.author"},
     {"text"}},
    {{"language"}, {"code", "text"}},
};

const char* const kDefault = "Default/Menu/skindata.txt";
const char* const kEnglish = "English/Menu/skindata.txt";

bool EndsWith(const std::string& text, const std::string& end) {
  return text.size() >= end.size() && text.compare(text.size() - end.size(), end.size(), end) == 0;
}

// Captions are words; that each of them is known is seen to elsewhere in the house.
bool IsCaption(const std::string& key) {
  return key.starts_with("caption.");
}

QImage Read(const std::string& name) {
  const QImage image(QString::fromStdString(ZORIK_SKINS "/Default/Menu/" + name + ".bmp"));
  return image.convertToFormat(QImage::Format_ARGB32);
}

// Light as it is counted for contrast, from 0 to 1.
double Luminance(QRgb colour) {
  const auto part = [](int value) {
    const double x = value / 255.0;
    return x <= 0.03928 ? x / 12.92 : std::pow((x + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * part(qRed(colour)) + 0.7152 * part(qGreen(colour)) + 0.0722 * part(qBlue(colour));
}

double Contrast(double one, double other) {
  return (std::max(one, other) + 0.05) / (std::min(one, other) + 0.05);
}

// Lightness as the eye sees it, from 0 to 100.
double Lightness(QRgb colour) {
  const double light = Luminance(colour);
  return light > 0.008856 ? 116 * std::cbrt(light) - 16 : 903.3 * light;
}

class SkinFiles : public testing::Test {
 protected:
  QRgb Colour(const std::string& key) const {
    return static_cast<QRgb>(std::stoul(keys_.Text(key), nullptr, 16)) | 0xFF000000U;
  }

  double Between(const std::string& text, const std::string& ground) const {
    return Contrast(Luminance(Colour(text)), Luminance(Colour(ground)));
  }

  QRect Button(const std::string& key) const {
    const QSize size = Read(keys_.Text(key + ".image")).size();
    return {keys_.Number(key + ".left"), keys_.Number(key + ".top"), size.width() / 3, size.height()};
  }

  QRect Box(const std::string& key) const {
    return {keys_.Number(key + ".left"), keys_.Number(key + ".top"), keys_.Number(key + ".width"),
            keys_.Number(key + ".height")};
  }

  // Whether the whole rectangle lies where the window's picture is drawn.
  static bool Inside(const QImage& window, const QRect& area) {
    if (!window.rect().contains(area)) return false;
    for (int y = area.top(); y <= area.bottom(); ++y) {
      for (int x = area.left(); x <= area.right(); ++x) {
        if (window.pixel(x, y) == 0) return false;
      }
    }
    return true;
  }

  // The least contrast of a colour with the picture below it.
  double WorstOn(const QImage& window, const QRect& area, const std::string& text) const {
    double worst = 21;
    for (int y = area.top(); y <= area.bottom(); ++y) {
      for (int x = area.left(); x <= area.right(); ++x) {
        worst = std::min(worst, Contrast(Luminance(Colour(text)), Luminance(window.pixel(x, y))));
      }
    }
    return worst;
  }

  // Buttons and boxes of a window lie on its picture, and no two of them on each other.
  void CheckPlaces(const std::string& image, const std::vector<std::string>& buttons,
                   const std::vector<std::string>& boxes) const {
    const QImage window = Read(keys_.Text(image));
    std::vector<std::pair<std::string, QRect>> places;
    for (const std::string& key : buttons) places.emplace_back(key, Button(key));
    for (const std::string& key : boxes) places.emplace_back(key, Box(key));
    for (std::size_t i = 0; i < places.size(); ++i) {
      EXPECT_TRUE(Inside(window, places[i].second)) << places[i].first;
      for (std::size_t j = 0; j < i; ++j) {
        EXPECT_FALSE(places[i].second.intersects(places[j].second))
            << places[i].first << " and " << places[j].first;
      }
    }
  }

  const SkinKeys keys_ = ReadSkinKeys(kDefault);
};

TEST_F(SkinFiles, HoldNothingThatTheLoaderStumblesOver) {
  EXPECT_EQ(keys_.Traps, std::vector<std::string>{});
  EXPECT_EQ(ReadSkinKeys(kEnglish).Traps, std::vector<std::string>{});
}

TEST_F(SkinFiles, HaveEachKeyThatTheProgramReadsAndNoOther) {
  std::set<std::string> known;
  for (const Group& group : kGroups) {
    for (const std::string name : group.names) {
      for (const char* part : group.parts) known.insert(Lower(name + "." + part));
    }
  }
  for (const std::string& key : known) EXPECT_NE(keys_.Text(key), "") << key;
  for (const auto& [key, value] : keys_.Values) {
    if (IsCaption(key)) continue;
    EXPECT_EQ(known.count(key), 1U) << key;
  }
}

TEST_F(SkinFiles, HaveValuesOfTheRightKind) {
  constexpr std::array kNumbers{".left", ".top", ".width", ".height", ".lines", ".size"};
  for (const auto& [key, value] : keys_.Values) {
    if (IsCaption(key)) continue;
    if (EndsWith(key, ".image")) {
      EXPECT_FALSE(Read(value).isNull()) << key;
    }
    if (EndsWith(key, "color")) {
      EXPECT_EQ(value.size(), 6U) << key;
      EXPECT_EQ(value.find_first_not_of("0123456789ABCDEF"), std::string::npos) << key;
    }
    if (EndsWith(key, ".alignment")) {
      EXPECT_TRUE(value == "left" || value == "right" || value == "center") << key;
    }
    for (const char* end : kNumbers) {
      if (!EndsWith(key, end)) continue;
      EXPECT_EQ(value.find_first_not_of("0123456789"), std::string::npos) << key;
    }
  }
}

TEST_F(SkinFiles, PutButtonsAndBoxesOntoTheWindowsPicture) {
  CheckPlaces("start.palm.image",
              {"start.close", "start.help", "start.vscroll", "start.hscroll", "start.play", "start.addplayer",
               "start.changeskin"},
              {"start.caves", "start.players"});
  CheckPlaces("select.image",
              {"select.replay", "select.play", "select.congratulation", "select.send", "select.practice",
               "select.vscroll", "select.close", "select.help"},
              {"select.caves", "select.preview"});
  CheckPlaces("congratulation.image", {"congratulation.ok", "congratulation.close", "congratulation.help"},
              {"congratulation.congrat"});
  CheckPlaces("addplayer.image", {"addplayer.ok", "addplayer.close"}, {"addplayer.name"});
  CheckPlaces("score.image", {"score.ok"}, {});
}

TEST_F(SkinFiles, KeepTheFingersClearOfButtonsAndLists) {
  std::vector<QRect> places{Box("start.caves"), Box("start.players")};
  for (const char* name : {"close", "help", "vscroll", "hscroll", "play", "addplayer", "changeskin"}) {
    places.push_back(Button(std::string("start.") + name));
  }
  for (const char* name : {"fingerPlay", "fingerRePlay", "fingerEditor", "finger4"}) {
    const QImage finger = Read(name);
    for (const QRect& place : places) {
      int covered = 0;
      for (int y = place.top(); y <= place.bottom(); ++y) {
        for (int x = place.left(); x <= place.right(); ++x) covered += finger.pixel(x, y) == 0 ? 0 : 1;
      }
      EXPECT_EQ(covered, 0) << name << " at " << place.left() << "," << place.top();
    }
  }
}

TEST_F(SkinFiles, GiveWindowsTheSizesOfTheirPictures) {
  for (const char* window : {"select", "congratulation", "addplayer"}) {
    const std::string name = window;
    EXPECT_EQ(Read(keys_.Text(name + ".image")).size(), Box(name).size()) << name;
  }
}

TEST_F(SkinFiles, FitWholeRowsIntoTheLists) {
  for (const std::string list : {"start.caves", "select.caves"}) {
    const int frame = 2 * keys_.Number(list + ".border.size");
    EXPECT_EQ(Box(list).height() - frame, 14 * keys_.Number(list + ".lines")) << list;
  }
}

TEST_F(SkinFiles, LetTextsStandOutFromTheirGround) {
  for (const std::string list : {"start.caves", "start.players"}) {
    EXPECT_GE(Between(list + ".textcolor", list + ".color"), 4.5) << list;
    EXPECT_GE(Between(list + ".selection.textcolor", list + ".selection.color"), 4.5) << list;
  }
  for (const std::string state : {"textcolor", "cantcolor", "solvcolor", "elsecolor"}) {
    EXPECT_GE(Between("select.caves." + state, "select.caves.color"), 4.5) << state;
    EXPECT_GE(Between("select.caves.selection." + state, "select.caves.selection.bgcolor"), 4.5) << state;
  }
  for (const std::string box : {"congratulation.congrat", "addplayer.name"}) {
    EXPECT_GE(Between(box + ".textcolor", box + ".color"), 4.5) << box;
  }
}

TEST_F(SkinFiles, LetTextsStandOutFromTheSelectionScreensPicture) {
  const QImage window = Read(keys_.Text("select.image"));
  const auto at = [&](const std::string& key, int width, int height) {
    return QRect(keys_.Number(key + ".left"), keys_.Number(key + ".top"), width, height);
  };
  EXPECT_GE(WorstOn(window, at("select.collname", 540, 22), "select.collname.textcolor"), 4.5);
  EXPECT_GE(WorstOn(window, at("select.colldescription", 640, 56), "select.colldescription.textcolor"), 4.5);
  for (const char* colour : {"textcolor", "linkcolor", "hovercolor"}) {
    EXPECT_GE(WorstOn(window, at("select.collauthor", 300, 14), std::string("select.collauthor.") + colour),
              4.5);
  }
  EXPECT_GE(WorstOn(window, at("select.score", 60, 22), "select.score.textcolor"), 4.5);
  EXPECT_GE(WorstOn(window, at("select.cavename", 310, 17), "select.cavename.textcolor"), 4.5);
  EXPECT_GE(WorstOn(window, at("select.cavedescription", 314, 98), "select.cavedescription.textcolor"), 4.5);
}

TEST_F(SkinFiles, TellTheStatesOfCavesByLightnessToo) {
  for (const std::string part : {"select.caves.", "select.caves.selection."}) {
    std::vector<double> lightness;
    for (const char* state : {"textcolor", "cantcolor", "solvcolor", "elsecolor"}) {
      lightness.push_back(Lightness(Colour(part + state)));
    }
    std::sort(lightness.begin(), lightness.end());
    for (std::size_t i = 1; i < lightness.size(); ++i)
      EXPECT_GE(lightness[i] - lightness[i - 1], 7) << part << i;
  }
}

TEST_F(SkinFiles, InEnglishReplaceEveryWordAndNoPlaceOrColour) {
  const SkinKeys english = ReadSkinKeys(kEnglish);
  for (const auto& [key, value] : keys_.Values) {
    if (!EndsWith(key, "text")) continue;
    EXPECT_NE(english.Text(key), "") << key;
  }
  for (const auto& [key, value] : english.Values) {
    // Where the pages of the help lie is a matter of the language, too.
    if (IsCaption(key) || key == "help.folder" || key == "language.code") continue;
    EXPECT_TRUE(EndsWith(key, "text")) << key;
    EXPECT_EQ(keys_.Values.count(key), 1U) << key;
  }
}

TEST_F(SkinFiles, SayAtThePaletteThatASkinBringsTheLanguage) {
  const std::string czech = keys_.Text("caption.start.skin");
  const std::string english = ReadSkinKeys(kEnglish).Text("caption.start.skin");
  EXPECT_NE(czech.find("jazyk hry"), std::string::npos) << czech;
  EXPECT_NE(english.find("the language of the game"), std::string::npos) << english;
}

TEST_F(SkinFiles, NameTheKeyAtTheButtonThatBeginsAnew) {
  for (const char* const file : {kDefault, kEnglish}) {
    const std::string words = ReadSkinKeys(file).Text("caption.game.restart");
    EXPECT_TRUE(EndsWith(words, " (?1?)")) << words;
  }
}

TEST_F(SkinFiles, HoldTheSamePlacesOfTheLanguageTableInBothLanguages) {
  Texts czech, english;
  for (const auto& [skin, texts] : {std::pair("Default", &czech), std::pair("English", &english)}) {
    const std::string path = std::string(skin) + "/Menu/cestina.txt";
    const auto lines = LinesOf(path);
    ASSERT_TRUE(lines) << path;
    EXPECT_EQ(lines->size(), 202U) << path;
    ASSERT_TRUE(texts->LoadTexts(*ReadWhole(ZORIK_SKINS "/" + path)));
  }
  for (int place = 0; place < 200; ++place)
    EXPECT_EQ(czech.At(static_cast<TextId>(place)).empty(), english.At(static_cast<TextId>(place)).empty())
        << place;
}

TEST_F(SkinFiles, HoldTheSameGapsForNamesAndNumbersInBothLanguages) {
  Texts czech, english;
  ASSERT_TRUE(czech.LoadTexts(*ReadWhole(ZORIK_SKINS "/Default/Menu/cestina.txt")));
  ASSERT_TRUE(english.LoadTexts(*ReadWhole(ZORIK_SKINS "/English/Menu/cestina.txt")));
  for (int place = 0; place < 200; ++place) {
    for (const char* gap : {"?1?", "?2?", " 2-4", " 5-9", "$P"}) {
      EXPECT_EQ(czech.At(static_cast<TextId>(place)).find(gap) == std::string::npos,
                english.At(static_cast<TextId>(place)).find(gap) == std::string::npos)
          << place << gap;
    }
  }
}

TEST_F(SkinFiles, NameEachCommandOfTheCatOnce) {
  const std::string events = "ABCDEFI", steps = "ABCDEFGHIJKLMNOP", lasting = "DEFGHZ";
  std::vector<std::string> tokens;
  for (const char letter : events) tokens.push_back(std::string("*") + letter);
  for (const char letter : steps) tokens.push_back(std::string("-") + letter);
  for (const char letter : lasting) tokens.push_back(std::string("/") + letter);
  tokens.push_back("+A");
  for (const char* skin : {"Default", "English"}) {
    const auto lines = LinesOf(std::string(skin) + "/Menu/catdata.txt");
    ASSERT_TRUE(lines) << skin;
    ASSERT_EQ(lines->size(), 36U) << skin;
    std::set<char> groups;
    for (std::size_t i = 2; i < 6; ++i) {
      const std::string& line = (*lines)[i];
      groups.insert(line.front());
      EXPECT_EQ(line[1], ' ') << line;
      EXPECT_GT(line.size(), 4U) << line;
      EXPECT_EQ(line.back(), ' ') << line;
    }
    EXPECT_EQ(groups, (std::set<char>{'*', '-', '/', '+'})) << skin;
    std::vector<std::string> found;
    for (std::size_t i = 6; i < lines->size(); ++i) {
      const std::string& line = (*lines)[i];
      EXPECT_GT(line.size(), 4U) << line;
      EXPECT_EQ(line[2], ' ') << line;
      found.push_back(line.substr(0, 2));
    }
    EXPECT_EQ(found, tokens) << skin;
  }
}

TEST_F(SkinFiles, NameNoTwoCommandsOfTheCatAlike) {
  for (const char* skin : {"Default", "English"}) {
    const auto lines = LinesOf(std::string(skin) + "/Menu/catdata.txt");
    ASSERT_TRUE(lines) << skin;
    std::set<std::string> captions;
    for (std::size_t i = 6; i < lines->size(); ++i) {
      const std::string& line = (*lines)[i];
      EXPECT_TRUE(captions.insert((line[3] == '#' ? line.substr(0, 1) : "") + line.substr(3)).second) << line;
    }
  }
}

}  // namespace
}  // namespace zorik::test
