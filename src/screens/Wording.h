#pragma once

#include <QColor>

namespace zorik {

// Words of the game that have no place in the language table, UTF-8.
namespace wording {

inline constexpr const char* kCannotOpen = "Komnatu nelze otevřít.";
inline constexpr const char* kNoCollection = "Nenašla se žádná sada komnat.";
inline constexpr const char* kNoFolder = "Složku hry nelze vytvořit.";
inline constexpr const char* kNotStored = "Soubor se nepodařilo uložit.";
inline constexpr const char* kNoLanguage = "Soubor s texty hry chybí nebo není celý.";
inline constexpr const char* kOverwrite =
    "Při minulém hraní této komnaty jsi získal více bodů. Přepsat starý záznam novým?";
inline constexpr const char* kQuestion = "Dotaz";
inline constexpr const char* kOk = "OK";
inline constexpr const char* kYes = "Ano";
inline constexpr const char* kNo = "Ne";
inline constexpr const char* kCancel = "Zrušit";
inline constexpr const char* kSolved = "Komnata je vyřešena!";
inline constexpr const char* kStored = "Záznam je uložen:";
inline constexpr const char* kOldKept = "Zůstal starý záznam.";
inline constexpr const char* kNoRecord = "Tuto komnatu jsi ještě nevyřešil, nemá tedy žádný záznam.";
inline constexpr const char* kReplayWon = "Záznam dovedl Zoríka do cíle!";
inline constexpr const char* kReplayOver = "Záznam skončil, aniž Zorík došel do cíle.";
inline constexpr const char* kAllSolved = "Prošel jsi celou sadu!";

}  // namespace wording

// What lies around the play picture.
inline constexpr QColor kBarColour(0x14, 0x0F, 0x1A);

}  // namespace zorik
