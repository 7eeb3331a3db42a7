#pragma once

#include <string_view>

namespace zorik {

// What the game says before a skin tells the language, or where none does, on a terminal. ?1? and ?2? are
// filled in.
struct HeadlessWords {
  const char* Skin;  // folder of the skin with the same language
  std::string_view NoDisplay;
  std::string_view NoRecord;
  std::string_view NoCave;
  std::string_view Won;        // ?1? = the cave, ?2? = the score
  std::string_view NotWon;     // ?1? = the cave
  std::string_view Picture;    // name of the picture's file
  std::string_view PictureIs;  // ?1? = its path
  std::string_view NotStored;
  std::string_view NoFolder;  // of the game, that could be made
  std::string_view NoAnswer;  // of a game that runs already
};

// In the language of the desktop, by the first of these variables of the environment that is not empty:
// Czech for one that begins with "cs", for "C" and "POSIX", and if all are empty; English for all others. A
// variable that is not set is null.
const HeadlessWords& WordsFor(const char* lcAll, const char* lcMessages, const char* lang);

// The same for the environment of this program.
const HeadlessWords& WordsOfDesktop();

// The folder of the skin that speaks that language.
const char* SkinOfDesktop();

}  // namespace zorik
