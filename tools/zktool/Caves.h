#pragma once

#include <string>
#include <vector>

#include "data/CaveO.h"
#include "data/Readable.h"
#include "zktool/Console.h"

namespace zorik {

// A cave that a command line names, by itself or as one of a collection.
struct NamedCave {
  int number = 0;    // in its collection, from 1; 0 where nobody knows
  std::string text;  // a cave text, with its marker if it has one
  CaveRecord record;
  std::string file;  // the readable one that tells it, if there is one
};

struct CaveSet {
  bool collection = false;  // or a single cave
  std::string name;         // of the collection; "sada" where nobody knows
  std::vector<NamedCave> caves;
  TextFiles texts;    // the readable files, with collection.txt if it is a collection
  std::string bytes;  // of the collection
};

// What a command takes for CAVE-OR-COLLECTION: a collection (.zk), a folder with readable texts, a readable
// cave, or a plain cave text. A readable cave that a collection.txt beside it names has its number and the
// name of that collection.
Needed<CaveSet> ReadCaves(const std::string& path);

// The same for a file of this path whose bytes are known.
Needed<CaveSet> ReadCavesIn(const std::string& path, std::string bytes);

// The name of a cave for a terminal.
std::string ShownName(const CaveRecord& cave);

}  // namespace zorik
