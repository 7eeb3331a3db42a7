#pragma once

#include <QColor>

namespace zorik {

// Words of the game that have no place in the language table, UTF-8.
namespace wording {

inline constexpr const char* kSkinFault = "V údajích skinu je něco, čemu nelze rozumět.";
inline constexpr const char* kNoFolder = "Složku hry nelze vytvořit.";
inline constexpr const char* kNoLanguage = "Soubor s texty hry chybí nebo není celý.";
inline constexpr const char* kOverwrite =
    "Při minulém hraní této komnaty jsi získal více bodů. Přepsat starý záznam novým?";
inline constexpr const char* kQuestion = "Dotaz";
inline constexpr const char* kOk = "OK";
inline constexpr const char* kYes = "Ano";
inline constexpr const char* kNo = "Ne";
inline constexpr const char* kCancel = "Zrušit";

}  // namespace wording

// What lies around the play picture.
inline constexpr QColor kBarColour(0x14, 0x0F, 0x1A);

}  // namespace zorik
