#pragma once

#include <string>

#include "data/Collection.h"

namespace zorik {

// The name of a cave's colour scheme.
std::string SchemeOf(const CaveRecord& cave);

// JSON of a collection and its caves.
std::string TellCollection(const PlayedCollection& collection);

}  // namespace zorik
