#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace zorik {

inline constexpr const char* kDefaultSkin = "Default";
inline constexpr const char* kEnglishSkin = "English";  // comes with the game, too

// Where to look for what belongs to a skin; paths are UTF-8.
struct SkinPlaces {
  std::string SkinsPath;            // folder of the player's own skins, looked into first
  std::string Skin = kDefaultSkin;  // folder of the skin within it
  std::string ShippedSkins = {};    // folder of the skins that came with the game; may be empty
};

// Whether a name is the default skin's; letter case plays no part.
bool IsDefaultSkin(std::string_view name);

// The folders of all skins, in the order in which they are searched.
std::vector<std::string> SkinRoots(const SkinPlaces& places);

// The places of one skin's folder, "Menu" or the like, one for each folder of skins, in the same order. A
// name that leads out of the folder of skins is the default skin's.
std::vector<std::string> FoldersOf(const SkinPlaces& places, std::string_view skin, std::string_view folder);

// The same of the skin that is worn, and then of the default skin.
std::vector<std::string> SearchFolders(const SkinPlaces& places, std::string_view folder);

// The first of the files with this path in the folders of skins; the last when none is there.
std::string FindInRoots(const SkinPlaces& places, std::string_view path);

}  // namespace zorik
