#pragma once

#include <QColor>

namespace zorik {

// Words of the game that are in no skin, UTF-8.
namespace wording {

inline constexpr const char* kNoFolder = "Složku hry nelze vytvořit.";
inline constexpr const char* kNoAnswer = "Zorík už běží, ale neodpovídá.";
inline constexpr const char* kOverwrite =
    "Při minulém hraní této komnaty jsi získal více bodů. Přepsat starý záznam novým?";
inline constexpr const char* kQuestion = "Dotaz";

}  // namespace wording

// What lies around the play picture.
inline constexpr QColor kBarColour(0x14, 0x0F, 0x1A);

// What the numbers of the units stand on.
inline constexpr QColor kUnitPlate(0xF4, 0xEA, 0xD4);

}  // namespace zorik
