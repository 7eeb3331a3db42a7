#pragma once

#include <QColor>

namespace zorik {

// What lies around the play picture.
inline constexpr QColor kBarColour(0x14, 0x0F, 0x1A);

// What the numbers of the units stand on.
inline constexpr QColor kUnitPlate(0xF4, 0xEA, 0xD4);

}  // namespace zorik
