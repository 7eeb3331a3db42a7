#pragma once

#include <QString>
#include <vector>

#include "data/CollectionFaults.h"

namespace zorik {

class Skin;

// A message that tells what is wrong with a collection's file, in which lines, and what will become of it.
QString FaultsInWords(const Skin& skin, const std::vector<FaultyLine>& faults);

}  // namespace zorik
