#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "data/Collection.h"
#include "data/FolderNames.h"

namespace zorik {

// How a cave stands for one player. The numbers are those that tools print.
enum class CaveState : std::uint8_t {
  Closed = 0,
  Open = 1,           // not solved
  Solved = 2,         // by this player
  SolvedByOther = 3,  // there is a record, but somebody else's
};

// How a collection stands for one player. Lists are indexed by the cave's number, from 1.
struct Progress {
  std::array<CaveState, kMostCaves + 1> CaveStates{};
  std::array<int, kMostCaves + 1> Scores{};  // 0 where there is no valid record
  int Total = 0;                             // points of all caves
  int Done = 0;  // caves solved by this player and bonus caves that are open and not solved
  int Rest = 0;  // the others; with none left the collection is finished
};

// Whether a name in a record is that of a player: letter case and outer blanks play no part.
bool SamePlayer(std::string_view left, std::string_view right);

// Answers the bytes of the record file with this name (RecordFileName, Windows-1250), or nothing if the
// player has no such file.
using RecordSource = std::function<std::optional<std::string>(const std::string& name)>;

// The records in a player's folder (a UTF-8 path). A file that cannot be read counts as missing.
RecordSource RecordsInFolder(std::string folder);
RecordSource RecordsInFolder(std::shared_ptr<FolderNames> names);

// Works out a player's progress from nothing but the player's record files. A record counts when the cave in
// it equals the collection's up to the marker; it opens the next cave, whoever made it. Bonus caves that are
// open do not block the way.
Progress ReadProgress(const PlayedCollection& collection, std::string_view player,
                      const RecordSource& records);

// Adds up Total, Done and Rest anew from the states and scores.
void CelkSkore(const PlayedCollection& collection, Progress& progress);

}  // namespace zorik
