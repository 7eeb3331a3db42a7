#pragma once

#include <string>
#include <vector>

#include "data/Readable.h"
#include "solve/Doubt.h"
#include "zktool/Caves.h"

namespace zorik {

// A doubt and where an author finds what it is about.
struct PlacedDoubt {
  std::string place;   // "FILE, line N" or "line N" of readable texts, "cave N", or empty
  std::size_t cave{};  // of the set, from 0; only where there is one
  bool ofCave = false;
  Doubt doubt;
};

// What is wrong or suspicious in readable texts of a collection, in the order of collection.txt; each cave's
// file once. The files are such as PackCollection has taken.
std::vector<PlacedDoubt> DoubtsOf(const TextFiles& files);

// The same for whatever a command line names.
std::vector<PlacedDoubt> DoubtsOf(const CaveSet& set);

// Where the doubt about a cave of the set is to be found.
PlacedDoubt Placed(const CaveSet& set, std::size_t cave, Doubt doubt);

}  // namespace zorik
