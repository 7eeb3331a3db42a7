#pragma once

#include <string>
#include <vector>

namespace zorik {

// Where a cave that is being edited comes from.
struct CaveOrigin {
  std::string File;                        // path of the collection, UTF-8; empty when it was not saved yet
  std::string Collection;                  // its name, in Windows-1250
  int Number = 0;                          // the cave's place in it, from 1; 0 for a cave of no collection
  std::vector<std::string> NamesBefore{};  // of the caves before it
};

}  // namespace zorik
