#pragma once

#include <string>

namespace zorik {

// Where to look for what belongs to a skin; paths are UTF-8.
struct SkinPlaces {
  std::string SkinsPath;         // folder of all skins
  std::string Skin = "Default";  // folder of the skin within it
};

}  // namespace zorik
