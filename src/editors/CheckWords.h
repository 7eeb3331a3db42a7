#pragma once

#include <QString>

#include "solve/Doubt.h"
#include "solve/Gems.h"

namespace zorik {

class Skin;

// What an author should look at, in the words of a skin; empty for what is wrong with a
// file rather than with a cave.
QString DoubtInWords(const Skin& skin, const Doubt& doubt);

// The gems of a cave: those at its start, those that its dogs can come to, those that are needed.
QString GemsInWords(const Skin& skin, const GemCount& gems);

}  // namespace zorik
