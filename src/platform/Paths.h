#pragma once

#include <string>

#include "data/Result.h"

namespace zorik {

// What the surroundings say about the places of files; paths are UTF-8, empty where not set.
struct Surroundings {
  std::string ProgramFolder;  // of the running program
  std::string ZorikHome;      // $ZORIK_HOME
  std::string DataHome;       // $XDG_DATA_HOME
  std::string Home;           // $HOME
};

Surroundings ReadSurroundings(const std::string& programFolder);

// The folder that is the game's own, wherever it is: AppPath as told below, though nothing is made or looked
// for in it.
std::string OwnFolder(const Surroundings& surroundings);

// Where the game finds and keeps its files. All but AppPath may be missing.
struct Paths {
  std::string AppPath;         // the folder that is the game's own and can be written to
  std::string SkinsPath;       // folder of the skins
  std::string CavesPath;       // folder of the collections
  std::string RecordsPath;     // folder of records that belong to no player
  std::string PlayersPath;     // folder with a folder for each player
  std::string HelpPath;        // folder of the pages that tell about the game
  std::string ShippedReplays;  // records that came with the game: a folder for each collection
};

// AppPath is $ZORIK_HOME if that is set; otherwise the program's folder if it holds Skins, as in a build tree
// or a copy on a stick; otherwise "zorik" in the user's data folder. In the first and last case the skins and
// the help are those of the installation unless AppPath has its own, and the shipped collections are copied
// at the first start. A folder for caves or records that shows no entry gives way to AppPath. Fails with
// AppPath when that cannot be made.
Result<Paths> FindPaths(const Surroundings& surroundings);

}  // namespace zorik
