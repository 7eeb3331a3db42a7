#pragma once

#include <string>
#include <string_view>

#include "data/Collection.h"
#include "data/RecordFile.h"

namespace zorik {

// What a record is worth to a collection. Of those that are true the last is given.
enum class Worth {
  No,        // the collection has no such cave
  Changed,   // it has a cave of this name, but another one
  Misnamed,  // it has this cave, but the game looks for its record under another file name
  Yes,       // in a player's folder the game takes it for a win, whoever made it
};

// The fixed word of a worth: "no", "changed", "misnamed", "yes".
std::string_view WordOf(Worth worth);

struct Standing {
  Worth worth = Worth::No;
  int number = 0;      // of the cave, 0 if there is none
  std::string reason;  // why the record does not count, empty if it does
};

// How the record in this file stands to a collection.
Standing StandingOf(const std::string& path, const RecordHead& head, const PlayedCollection& collection);

}  // namespace zorik
