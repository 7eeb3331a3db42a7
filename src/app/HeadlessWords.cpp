#include "app/HeadlessWords.h"

#include <cstdlib>

#include "skin/SkinPlaces.h"

namespace zorik {
namespace {

constexpr HeadlessWords kCzech{
    .Skin = kDefaultSkin,
    .NoDisplay = "Není tu žádná obrazovka, Zorík proto přehraje záznam první komnaty bez okna.",
    .NoRecord = "Záznam první komnaty chybí.",
    .NoCave = "Komnatu nelze otevřít.",
    .Won = "Komnata „?1?“: záznam dovedl Zoríka do cíle, skóre ?2?.",
    .NotWon = "Komnata „?1?“: záznam skončil, aniž Zorík došel do cíle.",
    .Picture = "posledni-okamzik.png",
    .PictureIs = "Poslední okamžik je na obrázku ?1?",
    .NotStored = "Soubor se nepodařilo uložit.",
    .NoFolder = "Složku hry nelze vytvořit.",
    .NoAnswer = "Zorík už běží, ale neodpovídá.",
};

constexpr HeadlessWords kEnglish{
    .Skin = kEnglishSkin,
    .NoDisplay = "There is no display here, so Zorík plays the record of the first cave without a window.",
    .NoRecord = "The record of the first cave is missing.",
    .NoCave = "The cave cannot be opened.",
    .Won = "Cave “?1?”: the record led Zorík to the finish, score ?2?.",
    .NotWon = "Cave “?1?”: the record ended before Zorík reached the finish.",
    .Picture = "last-moment.png",
    .PictureIs = "The last moment is in the picture ?1?",
    .NotStored = "The file could not be saved.",
    .NoFolder = "The game's folder cannot be made.",
    .NoAnswer = "Zorík is running already, but does not answer.",
};

// "C.UTF-8" says no more about a language than "C" does.
bool IsCzech(std::string_view locale) {
  const std::string_view language = locale.substr(0, locale.find_first_of(".@"));
  return language.starts_with("cs") || language == "C" || language == "POSIX";
}

}  // namespace

const HeadlessWords& WordsFor(const char* lcAll, const char* lcMessages, const char* lang) {
  for (const char* locale : {lcAll, lcMessages, lang}) {
    if (locale != nullptr && *locale != '\0') return IsCzech(locale) ? kCzech : kEnglish;
  }
  return kCzech;
}

const HeadlessWords& WordsOfDesktop() {
  return WordsFor(std::getenv("LC_ALL"), std::getenv("LC_MESSAGES"), std::getenv("LANG"));
}

const char* SkinOfDesktop() {
  return WordsOfDesktop().Skin;
}

}  // namespace zorik
