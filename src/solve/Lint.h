#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "core/Hra.h"
#include "data/CaveO.h"
#include "solve/Doubt.h"

namespace zorik {

// What is wrong or suspicious in a cave by itself, without a look at a run that wins it.
std::vector<Doubt> DoubtsAboutCave(const CaveRecord& cave);

// What is wrong with the cat and the program that it gets; of DoubtsAboutCave. run: at its start.
std::vector<Doubt> DoubtsAboutCat(const CaveRecord& cave, const Hra& run);

// What is wrong with the names under which the caves' records are kept, for each cave by its place.
struct NameDoubt {
  std::size_t cave = 0;  // from 0
  Doubt doubt;
};
std::vector<NameDoubt> DoubtsAboutNames(std::string_view collection, std::span<const std::string> caves);

// The part of a cave's cells that equal their mirror, left and right or top and bottom, whichever is more.
double MirrorShare(const CaveRecord& cave);

}  // namespace zorik
