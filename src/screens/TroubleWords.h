#pragma once

#include <QString>

#include "data/FileTrouble.h"

namespace zorik {

class Skin;

// Why a file could not be read or written, in the player's language: a line of its own behind what was said,
// nothing for a reason that only the system has words for.
QString LineOfTrouble(const Skin& skin, FileTrouble trouble);

}  // namespace zorik
