#include "skin/SkinCheck.h"

#include <algorithm>
#include <filesystem>
#include <optional>
#include <set>
#include <string>
#include <system_error>
#include <vector>

#include "core/Objects.h"
#include "data/Cp1250.h"
#include "data/Files.h"
#include "skin/Pictures.h"
#include "skin/Sounds.h"
#include "skin/TileSets.h"

namespace zorik {
namespace {

namespace fs = std::filesystem;

constexpr std::array<std::string_view, 5> kAroundTheCave{"Border1", "Border2", "Bar", "Restart", "Settings"};

// Those of a folder of the search that the player or somebody else has made.
std::vector<std::string> BroughtFolders(const SkinPlaces& places, std::string_view folder) {
  std::vector<std::string> folders = SearchFolders(places, folder);
  const std::string shipped = folders.back();
  std::vector<std::string> brought;
  for (const std::string& path : folders) {
    const std::string resolved = ResolvePath(path);
    if (path != shipped && std::find(brought.begin(), brought.end(), resolved) == brought.end())
      brought.push_back(resolved);
  }
  return brought;
}

bool IsPicture(const fs::path& path) {
  const std::string kind = FoldFileName(path.extension().string());
  return kind == ".jpg" || kind == ".bmp" || kind == ".gif";
}

template <class Names>
bool Contains(const Names& names, const fs::path& path) {
  const std::string stem = FoldFileName(path.stem().string());
  return std::any_of(names.begin(), names.end(),
                     [&](std::string_view name) { return FoldFileName(name) == stem; });
}

// How many pixels a picture of the game may have; nothing for one that the game does not know.
std::optional<std::int64_t> MostPixelsInGame(const fs::path& path) {
  if (Contains(kTileSets, path)) return kMostTilePixels;
  if (Contains(kAroundTheCave, path)) return kMostPixels;
  return std::nullopt;
}

std::optional<std::int64_t> MostPixelsInMenu(const fs::path& /*path*/) {
  return kMostPixels;
}

// The files of a folder in the order of their names.
std::set<fs::path> EntriesOf(const fs::path& folder) {
  std::set<fs::path> entries;
  std::error_code error;
  for (fs::directory_iterator entry(folder, error); !error && entry != fs::directory_iterator();
       entry.increment(error))
    entries.insert(entry->path());
  return entries;
}

template <class MostPixels>
void AddPictureFlaws(const fs::path& folder, MostPixels mostPixels, SkinFlaws& flaws) {
  for (const fs::path& path : EntriesOf(folder)) {
    std::error_code error;
    if (!fs::is_regular_file(path, error) || !IsPicture(path)) continue;
    const std::optional<std::int64_t> most = mostPixels(path);
    const PictureState state = most ? StateOf(path.string(), *most) : PictureState::Good;
    if (state == PictureState::Good) continue;
    const bool broken = state == PictureState::Broken;
    flaws.push_back(
        {broken ? SkinFlaw::Kind::PictureBroken : SkinFlaw::Kind::PictureTooLarge, {}, path.string()});
  }
}

}  // namespace

void AddFileFlaws(const SkinPlaces& places, SkinFlaws& flaws) {
  for (const std::string& menu : BroughtFolders(places, "Menu"))
    AddPictureFlaws(menu, MostPixelsInMenu, flaws);
  for (const std::string& game : BroughtFolders(places, "Game")) {
    AddPictureFlaws(game, MostPixelsInGame, flaws);
    for (const fs::path& scheme : EntriesOf(game)) {
      std::error_code error;
      if (fs::is_directory(scheme, error)) AddPictureFlaws(scheme, MostPixelsInGame, flaws);
    }
  }
  AddSoundFlaws(BroughtFolders(places, "Sound"), flaws);
}

}  // namespace zorik
