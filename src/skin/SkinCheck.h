#pragma once

#include "skin/SkinFlaw.h"
#include "skin/SkinPlaces.h"

namespace zorik {

// Looks through the pictures and sounds that the worn skin brings, and adds those that the game cannot use.
// The default skin of the installation is taken as it is.
void AddFileFlaws(const SkinPlaces& places, SkinFlaws& flaws);

}  // namespace zorik
