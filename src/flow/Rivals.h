#pragma once

#include <optional>
#include <string>
#include <vector>

#include "data/RecordSlot.h"

namespace zorik {

// Another player who has won a cave.
struct Rival {
  std::string Folder;  // the name of his folder, UTF-8
  std::string Player;  // his name, Windows-1250
  int Score = 0;

  bool operator==(const Rival&) const = default;
};

// The players, with a folder each in that one (a UTF-8 path), who have a record of the cave of a slot, but
// for the one whose slot it is. Those with the most points come first.
std::vector<Rival> FindRivals(const std::string& players, const RecordSlot& slot);

// The bytes of a rival's record of that cave; nothing when he has none.
std::optional<std::string> RecordOfRival(const std::string& players, const std::string& folder,
                                         const RecordSlot& slot);

}  // namespace zorik
