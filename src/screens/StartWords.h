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

  // The same in front of what is named there, with a colon: no line of a skin's table may end in one, it
  // would begin a section.
  QString Before(const Skin& skin) const {
    const QString words = In(skin);
    return words.endsWith(':') ? words : words + ':';
  }
};

inline constexpr StartWords kLoadingWords{"caption.loading", "Pracuji..."};
inline constexpr StartWords kHelpWords{"caption.sada.menu.help", "Nápověda"};
inline constexpr StartWords kCloseWords{"caption.slang.close", "Zavřít"};
inline constexpr StartWords kAboutSkinWords{"caption.slang.about", "O skinu..."};
inline constexpr StartWords kSkinWords{"caption.slang.title", "Skin"};
inline constexpr StartWords kChangeSkinWords{"caption.start.skin", "Skin: obrázky, zvuky i jazyk hry"};
inline constexpr StartWords kProgramWords{"caption.sada.help.program", "O programu"};
inline constexpr StartWords kYesWords{"caption.dialog.yes", "Ano"};
inline constexpr StartWords kNoWords{"caption.dialog.no", "Ne"};
inline constexpr StartWords kOkWords{"caption.dialog.ok", "OK"};
inline constexpr StartWords kCancelWords{"caption.dialog.close", "Zrušit"};
inline constexpr StartWords kRetryWords{"caption.dialog.retry", "Zkusit znovu"};
inline constexpr StartWords kElsewhereWords{"caption.dialog.elsewhere", "Uložit jinam"};
inline constexpr StartWords kLaterWords{"caption.dialog.later", "Později"};
inline constexpr StartWords kLeaveWithoutWords{"caption.dialog.leave", "Skončit bez nich"};

// Of the buttons above the play picture.
inline constexpr StartWords kRestartWords{"caption.game.restart", "Znovu od začátku (Ctrl+R)"};
inline constexpr StartWords kSettingsWords{"settings.text", "Nastavení"};
inline constexpr StartWords kViewWords{"caption.game.view", "Celá komnata, nebo jen okolí"};
inline constexpr StartWords kLeaveWords{"caption.game.leave", "Opustit komnatu"};

// What else the game window says.
inline constexpr StartWords kRecordEndWords{"caption.game.recordend", "Záznam tu končí a do cíle nedošel."};
inline constexpr StartWords kTableWords{"caption.game.table", "Tabulka"};

// Messages; what is meant stands behind those that end in a colon.
inline constexpr StartWords kNoCollectionWords{"caption.error.nocollection", "Nenašla se žádná sada komnat."};
inline constexpr StartWords kNoCaveWords{"caption.error.cave", "Komnatu nelze otevřít."};
inline constexpr StartWords kNoRecordWords{"caption.error.record", "Záznam nelze přehrát:"};
inline constexpr StartWords kNotOpenedWords{"caption.error.open", "Soubor nelze otevřít:"};
inline constexpr StartWords kNotStoredWords{"caption.error.store", "Soubor se nepodařilo uložit."};
inline constexpr StartWords kFolderWords{"caption.error.folder", "Do této složky se nepodařilo nic zapsat:"};
inline constexpr StartWords kNotDeletedWords{"caption.error.delete", "Soubor se nepodařilo vymazat:"};
inline constexpr StartWords kUnknownFileWords{"caption.error.kind", "S tímto souborem si hra neporadí:"};
inline constexpr StartWords kNoProgramWords{"caption.error.program",
                                            "Program pro tento soubor nebyl nalezen:"};
inline constexpr StartWords kNoLanguageWords{"caption.error.language",
                                             "Soubor s texty hry chybí nebo není celý."};
inline constexpr StartWords kSkinFaultWords{"caption.error.skin",
                                            "V údajích skinu je něco, čemu nelze rozumět."};
inline constexpr StartWords kSkinStaysWords{"caption.error.skinstays", "Skin zůstává, jaký byl."};
inline constexpr StartWords kSkinDefaultWords{"caption.error.skindefault",
                                              "Hra má proto tentokrát výchozí skin."};
inline constexpr StartWords kSkinHeldWords{"caption.error.skinheld",
                                           "Tato čísla skinu přesahují obrazovku a byla upravena."};
inline constexpr StartWords kSkinManyWords{"caption.error.skinmany",
                                           "Skin má příliš mnoho údajů; tolik jich bylo vynecháno."};
inline constexpr StartWords kPictureLargeWords{"caption.error.picturelarge",
                                               "Příliš velké obrázky skinu byly vynechány."};
inline constexpr StartWords kPictureBrokenWords{"caption.error.picturebroken",
                                                "Obrázky skinu, které nelze přečíst, byly vynechány."};
inline constexpr StartWords kSoundLongWords{"caption.error.soundlong",
                                            "Příliš dlouhé zvuky skinu byly vynechány."};
inline constexpr StartWords kSoundBrokenWords{"caption.error.soundbroken",
                                              "Zvuky skinu, které nelze přečíst, byly vynechány."};

// Of a record that was not stored, or would take another one's place.
inline constexpr StartWords kNotKeptWords{"caption.record.unstored", "Záznam není uložen (U)"};
inline constexpr StartWords kAtRiskWords{"caption.record.atrisk",
                                         "Tyto záznamy nejsou uloženy. Když hra skončí, budou pryč."};
inline constexpr StartWords kOtherCaveWords{"caption.record.other",
                                            "Ve stejném souboru je záznam jiné komnaty. Přepsat ho novým?"};

// Of files from outside.
inline constexpr StartWords kWaitsWords{"caption.outside.waits", "Tento soubor počká, až tu skončíš."};
inline constexpr StartWords kEndRunWords{"caption.outside.endrun",
                                         "Tento soubor přišel zvenčí. Ukončit hru a otevřít ho? "
                                         "Jinak počká, až hra skončí."};
inline constexpr StartWords kOpenNowWords{"caption.outside.open",
                                          "Tento soubor čekal, až hra skončí. Otevřít ho?"};

// Of the box that asks for a file.
inline constexpr StartWords kLookInWords{"caption.file.folder", "Složka:"};
inline constexpr StartWords kFileNameWords{"caption.file.name", "Soubor:"};
inline constexpr StartWords kFileTypeWords{"caption.file.kind", "Druh:"};
inline constexpr StartWords kOpenWords{"caption.sada.open", "Otevřít"};

}  // namespace zorik
