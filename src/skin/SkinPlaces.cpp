#include "skin/SkinPlaces.h"

#include <filesystem>
#include <system_error>

#include "data/Cp1250.h"
#include "data/Files.h"

namespace zorik {
namespace {

bool LeadsOut(std::string_view name) {
  return name.empty() || name == "." || name == ".." || name.find_first_of("/\\") != std::string_view::npos;
}

}  // namespace

bool IsDefaultSkin(std::string_view name) {
  return FoldFileName(name) == FoldFileName(kDefaultSkin);
}

std::vector<std::string> SkinRoots(const SkinPlaces& places) {
  std::vector<std::string> roots = {places.SkinsPath};
  if (!places.ShippedSkins.empty() && places.ShippedSkins != places.SkinsPath)
    roots.push_back(places.ShippedSkins);
  return roots;
}

std::vector<std::string> FoldersOf(const SkinPlaces& places, std::string_view skin, std::string_view folder) {
  std::vector<std::string> folders;
  for (const std::string& root : SkinRoots(places)) {
    folders.push_back(root + "/" + std::string(LeadsOut(skin) ? kDefaultSkin : skin) + "/" +
                      std::string(folder));
  }
  return folders;
}

std::vector<std::string> SearchFolders(const SkinPlaces& places, std::string_view folder) {
  std::vector<std::string> folders = FoldersOf(places, places.Skin, folder);
  for (std::string& other : FoldersOf(places, kDefaultSkin, folder)) folders.push_back(std::move(other));
  return folders;
}

std::string FindInRoots(const SkinPlaces& places, std::string_view path) {
  std::string file;
  for (const std::string& root : SkinRoots(places)) {
    file = ResolvePath(root + "/" + std::string(path));
    std::error_code error;
    if (std::filesystem::is_regular_file(file, error)) break;
  }
  return file;
}

}  // namespace zorik
