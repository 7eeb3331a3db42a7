#pragma once

#include <span>
#include <string>

#include "skin/SkinPlaces.h"
#include "zktool/Console.h"

namespace zorik {

// Where the default skin lies for a program of this folder, and $ZORIK_HOME: in front what is the player's
// own, as in the game. Fails when it is nowhere.
Needed<SkinPlaces> FindSkin(const std::string& programFolder, const std::string& zorikHome);

// The whole program, told by the words behind its name.
Exit RunZkpaint(std::span<const std::string> arguments, Console& console);

}  // namespace zorik
