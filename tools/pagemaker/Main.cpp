// pagemaker SKINS SOUNDS CAVES FOLDER   what the game in a page needs of the default skin and the caves:
//   pictures/...png   the tile sets of all schemes, with what is clear on the desktop clear
//   index.json        all that there is, the texts of both languages, and the recipes of the sounds
// SKINS and CAVES are folders that the build has made, SOUNDS the one with the recipes.

#include <QDir>
#include <QFileInfo>
#include <QImage>
#include <array>
#include <cstdio>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "core/Schemes.h"
#include "data/Collection.h"
#include "data/Cp1250.h"
#include "data/Files.h"
#include "data/Result.h"
#include "skin/Pictures.h"
#include "skin/SkinTable.h"
#include "skin/Texts.h"
#include "skin/TileSets.h"
#include "zktool/Json.h"

namespace zorik {
namespace {

struct Language {
  const char* code;
  const char* skin;
};
constexpr std::array<Language, 2> kLanguages{{{"cs", kDefaultSkin}, {"en", kEnglishSkin}}};

// Pictures of all schemes; what looks the same in several is written once.
class PictureWriter {
 public:
  PictureWriter(SkinPlaces places, QString folder) : places_(std::move(places)), folder_(std::move(folder)) {}

  // JSON of what a scheme is drawn with. An empty text if a picture could not be written.
  std::string Write(std::string_view scheme) {
    TileSets tiles;
    tiles.Load(cache_, places_, scheme);
    const PictureFinder finder(places_, scheme);
    std::vector<std::string> sheets, sizes;
    for (std::size_t set = 0; set < kTileSetCount; ++set) {
      sheets.push_back(JsonText(Sheet(finder.GetSchPicPath(kTileSets[set]), set != kSetSpace)));
      sizes.push_back(JsonNumbers({tiles.Columns()[set], tiles.Frames()[set]}));
    }
    JsonObject about;
    about.Raw("sizes", JsonList(sizes)).Text("grounds", GroundsOf(tiles)).Raw("sheets", JsonList(sheets));
    if (tiles.HasEdges()) about.Text("edges", Sheet(finder.GetSchPicPath("Edges"), true));
    return about.Done();
  }

  bool Failed() const { return failed_; }

 private:
  // Where the page finds a picture; it is written as PNG, and is made smaller later.
  std::string Sheet(const std::string& path, bool blackIsClear) {
    const QString inside = QDir(game_).relativeFilePath(QString::fromStdString(path)).section('.', 0, -2);
    if (written_.insert(inside).second) {
      QImage image = cache_.Load(places_, path, kMostTilePixels);
      if (blackIsClear) image = WithoutBlack(std::move(image));
      const QString file = folder_ + "/pictures/" + inside + ".png";
      failed_ = !QDir().mkpath(QFileInfo(file).path()) || !image.save(file) || failed_;
    }
    return ("pictures/" + inside + ".webp").toStdString();
  }

  static std::string GroundsOf(const TileSets& tiles) {
    std::string grounds;
    if (!tiles.HasEdges()) return grounds;
    for (std::size_t set = 0; set < kTileSetCount; ++set) {
      for (int row = 0; row < tiles.Frames()[set]; ++row) {
        for (int column = 0; column < tiles.Columns()[set]; ++column) {
          const CellPicture frame{static_cast<std::uint8_t>(set), static_cast<std::uint16_t>(column),
                                  static_cast<std::uint16_t>(row)};
          grounds += static_cast<char>('0' + static_cast<int>(tiles.GroundOf(frame)));
        }
      }
    }
    return grounds;
  }

  SkinPlaces places_;
  QString folder_;
  QString game_ = QString::fromStdString(places_.SkinsPath) + "/" + kDefaultSkin + "/Game";
  PictureCache cache_;
  std::set<QString> written_;
  bool failed_ = false;
};

// A text as JSON; an empty one where the file cannot be read, which is told.
std::string TextOf(const std::string& path) {
  const Result<std::string> bytes = ReadWhole(path);
  if (!bytes) std::fprintf(stderr, "%s\n", bytes.Message().c_str());
  return bytes ? JsonText(*bytes) : std::string();
}

// The list of sounds and their recipes, as they stand in their files.
std::string SoundsIn(const QString& folder) {
  JsonObject recipes;
  const QStringList names = QDir(folder).entryList({"*.txt"}, QDir::Files, QDir::Name);
  for (const QString& name : names) {
    if (name == "sounds.txt") continue;
    recipes.Raw(name.section('.', 0, 0).toStdString(), TextOf((folder + "/" + name).toStdString()));
  }
  return JsonObject()
      .Raw("list", TextOf((folder + "/sounds.txt").toStdString()))
      .Raw("recipes", recipes.Done())
      .Done();
}

std::string TextsIn(const SkinPlaces& places) {
  Texts texts;
  Disregard(LoadLanguage(places, texts));  // what is missing is empty
  std::vector<std::string> all;
  for (std::size_t place = 0; place < kTextCount; ++place)
    all.push_back(JsonText(texts.At(static_cast<TextId>(place))));
  return JsonList(all);
}

// The words that stand in no numbered place: those of the skin, and what it leaves out of the default skin.
std::string WordsIn(const SkinPlaces& places) {
  SkinTable table;
  for (const std::string_view skin : {std::string_view(kDefaultSkin), std::string_view(places.Skin)}) {
    const Result<std::string> bytes =
        ReadWhole(places.SkinsPath + "/" + std::string(skin) + "/Menu/skindata.txt");
    if (bytes) table.Add(*bytes, 0);
  }
  std::map<std::string, std::string> words;
  for (const SkinTable::Entry& entry : table.Entries()) {
    if (entry.Key.starts_with("caption.") || entry.Key.starts_with("language."))
      words[entry.Key] = entry.Value;
  }
  JsonObject all;
  for (const auto& [key, value] : words) all.Text(key, value);
  return all.Done();
}

std::string CollectionsIn(const QString& folder, const QString& language) {
  std::vector<std::string> collections;
  const QStringList files = QDir(folder).entryList({"*-" + language + ".zk"}, QDir::Files, QDir::Name);
  for (const QString& file : files) {
    const Result<std::string> bytes = ReadWhole((folder + "/" + file).toStdString());
    const Result<PlayedCollection> collection = ReadForPlay(bytes ? *bytes : std::string());
    if (!collection) continue;
    const QString records = "records/" + file.section('.', 0, -2);
    std::vector<std::string> proofs;
    const QStringList names = QDir(folder + "/" + records).entryList({"*.zkr"}, QDir::Files, QDir::Name);
    for (const QString& name : names)
      proofs.push_back(JsonText(("caves/" + records + "/" + name).toStdString()));
    collections.push_back(JsonObject()
                              .Text("file", ("caves/" + file).toStdString())
                              .Text("name", ToUtf8(collection->Name))
                              .Raw("records", JsonList(proofs))
                              .Done());
  }
  return JsonList(collections);
}

int Run(const QString& skins, const QString& sounds, const QString& caves, const QString& out) {
  PictureWriter pictures({skins.toStdString()}, out);
  std::vector<std::string> sets;
  for (const std::string_view set : kTileSets) sets.push_back(JsonText(set));
  JsonObject schemes, texts, words, collections;
  for (const SchemeRow& scheme : kSchemes) schemes.Raw(scheme.name, pictures.Write(scheme.name));
  for (const Language& language : kLanguages) {
    const SkinPlaces places{skins.toStdString(), language.skin};
    texts.Raw(language.code, TextsIn(places));
    words.Raw(language.code, WordsIn(places));
    collections.Raw(language.code, CollectionsIn(caves, language.code));
  }
  const std::string index = JsonObject()
                                .Raw("sets", JsonList(sets))
                                .Number("tile", kTileSize)
                                .Raw("schemes", schemes.Done())
                                .Raw("sounds", SoundsIn(sounds))
                                .Raw("texts", texts.Done())
                                .Raw("words", words.Done())
                                .Raw("collections", collections.Done())
                                .Done();
  const Result<Done> written = WriteWhole((out + "/index.json").toStdString(), index + "\n");
  if (!written) std::fprintf(stderr, "%s\n", written.Message().c_str());
  return written && !pictures.Failed() ? 0 : 1;
}

}  // namespace
}  // namespace zorik

int main(int argc, char** argv) {
  if (argc != 5) {
    std::fputs("usage: pagemaker SKINS SOUNDS CAVES FOLDER\n", stderr);
    return 2;
  }
  return zorik::Run(argv[1], argv[2], argv[3], argv[4]);
}
