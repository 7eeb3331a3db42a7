#pragma once

#include <string>
#include <vector>

#include "data/ResultFwd.h"

namespace zorik {

struct Paths;

// The collections that come with an installation, and the player's copies of them in his folder of caves.

// The files of the collections that the player lacks, by name: those that are not there, and those of which
// there is only a part, since the game was killed or the disk full when they came. What he has changed and
// what he has put there himself is not among them, nor is what he did not want again.
std::vector<std::string> LackingCaves(const Paths& paths);

// Copies these collections, each as a whole or not at all. Fails with the path of the first that cannot be.
Result<Done> BringCaves(const Paths& paths, const std::vector<std::string>& names);

// Remembers that the player does not want these.
Result<Done> DeclineCaves(const Paths& paths, const std::vector<std::string>& names);

}  // namespace zorik
