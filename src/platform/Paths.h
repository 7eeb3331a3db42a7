#pragma once

#include <string>

#include "data/ResultFwd.h"

namespace zorik {

// What the environment say about the places of files; paths are UTF-8, empty where not set.
struct Environment {
  std::string ProgramFolder;  // of the running program
  std::string ZorikHome;      // $ZORIK_HOME
  std::string DataHome;       // $XDG_DATA_HOME
  std::string Home;           // $HOME, or what the system says of the user
  std::string ConfigHome;     // $XDG_CONFIG_HOME
};

Environment ReadEnvironment(const std::string& programFolder);

// The folder that is the game's own, wherever it is: AppPath as told below, though nothing is made or looked
// for in it.
std::string OwnFolder(const Environment& environment);

// Where the game finds and keeps its files. All but AppPath may be missing.
struct Paths {
  std::string AppPath;          // the folder that is the game's own and can be written to
  std::string SkinsPath;        // folder of the player's own skins
  std::string CavesPath;        // folder of the collections
  std::string RecordsPath;      // folder of records that belong to no player
  std::string PlayersPath;      // folder with a folder for each player
  std::string HelpPath;         // folder of the player's own pages that tell about the game
  std::string ShippedReplays;   // records that came with the game: a folder for each collection
  std::string ShippedCaves;     // collections that came with it; empty where it plays these themselves
  std::string TestRecordsPath;  // folder that the records of test runs are written to
  std::string CavesFailure;     // what of the collections the first start could not write; else empty
  // The skins and the pages that came with the game: each file that the player's own folder lacks is from
  // here.
  std::string ShippedSkins;
  std::string ShippedHelp;
};

// AppPath is $ZORIK_HOME if that is set; otherwise the program's folder if it holds Skins, as in a build tree
// or a copy on a stick; otherwise "zorik" in the user's data folder. In the first and last case the
// skins and the help of the installation are used beside those in AppPath, and the shipped collections are
// copied at the first start. Fails with AppPath when that cannot be made.
Result<Paths> FindPaths(const Environment& environment);

// Looks anew for the folders of caves and records. One that shows no entry gives way to AppPath.
void FindFolders(Paths& paths);

}  // namespace zorik
