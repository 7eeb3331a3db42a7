#pragma once

#include <QFont>

namespace zorik {

// The first font of the game's list that this desktop has, with letters of this size in the desktop's units.
QFont GameFont(int pixelSize);

}  // namespace zorik
