#pragma once

#include <QString>

#include "skin/Skin.h"

namespace zorik {

// What the windows say though it has no place in the language table: the key of a
// caption in the skin, and the words for a skin that has none, UTF-8.
struct StartWords {
  const char* key;
  const char* otherwise;

  QString In(const Skin& skin) const { return skin.Caption(key, otherwise); }
};

inline constexpr StartWords kLoadingWords{"caption.loading", "Pracuji..."};
inline constexpr StartWords kHelpWords{"caption.sada.menu.help", "Nápověda"};
inline constexpr StartWords kCloseWords{"caption.slang.close", "Zavřít"};
inline constexpr StartWords kAboutSkinWords{"caption.slang.about", "O skinu..."};
inline constexpr StartWords kSkinWords{"caption.slang.title", "Skin"};
inline constexpr StartWords kProgramWords{"caption.sada.help.program", "O programu"};
inline constexpr StartWords kYesWords{"caption.dialog.yes", "Ano"};
inline constexpr StartWords kNoWords{"caption.dialog.no", "Ne"};
inline constexpr StartWords kOkWords{"caption.dialog.ok", "OK"};
inline constexpr StartWords kCancelWords{"caption.dialog.close", "Zrušit"};

// Of the buttons above the play picture.
inline constexpr StartWords kRestartWords{"caption.game.restart", "Znovu od začátku (Ctrl+R)"};
inline constexpr StartWords kSettingsWords{"settings.text", "Nastavení"};
inline constexpr StartWords kViewWords{"caption.game.view", "Celá komnata, nebo jen okolí"};
inline constexpr StartWords kLeaveWords{"caption.game.leave", "Opustit komnatu"};

// What else the game window says.
inline constexpr StartWords kRecordEndWords{"caption.game.recordend", "Záznam tu končí a do cíle nedošel."};
inline constexpr StartWords kTableWords{"caption.game.table", "Tabulka"};

// Messages; the path of a file stands behind those that end in a colon.
inline constexpr StartWords kNoCollectionWords{"caption.error.nocollection", "Nenašla se žádná sada komnat."};
inline constexpr StartWords kNoCaveWords{"caption.error.cave", "Komnatu nelze otevřít."};
inline constexpr StartWords kNoRecordWords{"caption.error.record", "Záznam nelze přehrát:"};
inline constexpr StartWords kNotOpenedWords{"caption.error.open", "Soubor nelze otevřít:"};
inline constexpr StartWords kNotStoredWords{"caption.error.store", "Soubor se nepodařilo uložit."};
inline constexpr StartWords kNotDeletedWords{"caption.error.delete", "Soubor se nepodařilo vymazat:"};
inline constexpr StartWords kUnknownFileWords{"caption.error.kind", "S tímto souborem si hra neporadí:"};
inline constexpr StartWords kNoProgramWords{"caption.error.program",
                                            "Program pro tento soubor nebyl nalezen:"};
inline constexpr StartWords kNoLanguageWords{"caption.error.language",
                                             "Soubor s texty hry chybí nebo není celý."};
inline constexpr StartWords kSkinFaultWords{"caption.error.skin",
                                            "V údajích skinu je něco, čemu nelze rozumět."};

// Of the box that asks for a file.
inline constexpr StartWords kLookInWords{"caption.file.folder", "Složka:"};
inline constexpr StartWords kFileNameWords{"caption.file.name", "Soubor:"};
inline constexpr StartWords kFileTypeWords{"caption.file.kind", "Druh:"};
inline constexpr StartWords kOpenWords{"caption.sada.open", "Otevřít"};

}  // namespace zorik
