#pragma once

#include <map>
#include <string>

#include "data/Collection.h"

// A collection that a page has opened.
struct ZkCollection {
  zorik::PlayedCollection collection;
  std::map<std::string, std::string> records;  // of the player who is asked about next, by their names
};
