#pragma once

#include <bitset>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "data/CaveO.h"
#include "data/Chance.h"
#include "data/ResultFwd.h"

namespace zorik {

// Collections of caves. Every line of their files is scrambled; a line may end in a line feed alone. Texts
// are bytes in Windows-1250, caves count from 1.

// The lists of caves end at this number.
inline constexpr int kMostCaves = 99;

// Lines in front of the caves: name and open caves, author and description, e-mail and flag.
inline constexpr std::size_t kHeadLines = 3;

// A cave that is open from the start is marked by the character with this code plus its number.
inline constexpr int kOpenCaveOffset = 64;

// One flag for each cave number; 0 is no cave.
using CaveFlags = std::bitset<kMostCaves + 1>;

// Whether a line ends like a cave with a number: "---" and two digits.
bool EndsWithCaveNumber(std::string_view line);

// The two digits of a cave number, 0 to 99, as they stand in its marker.
std::string MarkerDigits(int number);

// All lines of a scrambled file in their plain form.
std::vector<std::string> PlainLines(std::string_view bytes);

// The way back: each line scrambled and ended.
std::string ScrambleLines(const std::vector<std::string>& lines, Chance& decoration);

// A collection as the editor holds it.
struct EditedCollection {
  std::string Name;
  std::string Author;
  std::string Description;
  std::string Mail;
  bool Closed = false;                // not to be edited: nothing else but the texts above is read
  std::vector<std::string> CaveList;  // cave texts without marker, cave 1 first
  CaveFlags OpenFlags;                // the caves that are open from the start
  std::string CongratulationText;
};

// What the editor reads. A cave is a line whose marker holds two digits; the congratulation is the last line,
// even if that is a cave. The caves are not parsed, those beyond 99 are left out. Fails when one of the first
// three lines is missing and when a length letter is missing or no letter.
Result<EditedCollection> ReadForEditor(std::string_view bytes);

// A cave to be played.
struct PlayedCave {
  std::string Text;  // with its marker, as it is handed to the game and compared with records
  CaveRecord Record;
};

// A collection as the selection screen holds it.
struct PlayedCollection {
  std::string Name;
  std::string Author;
  std::string Description;
  std::string AuthorMail;         // empty when the address can be none
  std::vector<PlayedCave> Caves;  // cave 1 first
  CaveFlags OpenCaves;            // the caves that are open from the start
  std::string Congratulation;     // empty when no line stands behind the last cave
};

// What the selection screen reads. A cave is a line whose last five characters begin with "---", whatever
// follows these. Fails as ReadForEditor does, when a cave does not parse and when there are more than 99.
Result<PlayedCollection> ReadForPlay(std::string_view bytes);

// The bytes of a collection file. Cave 1 is marked as open in any case. Fails when the name or the author has
// more than 190 characters and when there is no cave or more than 99. A congratulation that
// itself ends like a cave would be one to the next reader, so its line is left empty.
Result<std::string> BuildCollection(const EditedCollection& collection, Chance& decoration);

// The plain line, marker included, of the cave whose marker holds this number with two digits; empty if there
// is none.
std::string FindCaveText(std::string_view bytes, int number);

// What the language gives to new caves.
struct NewCaveTexts {
  std::string SmallName = "Nov\xE1 mal\xE1 komnata";
  std::string LargeName = "Nov\xE1 velk\xE1 komnata";
  std::string Description = "Bez popisu";
};

enum class NewCaveSize { Small, Large };  // 19 x 11 and 30 x 20 cells

// A cave of dirt in a steel frame with a dog and a finish. Fails when a text has more than 190 characters.
Result<std::string> NewCaveText(NewCaveSize size, const NewCaveTexts& texts = {});

// A cave text by its source: "*1" is a new small cave, "*2" a new large one (the number plays no part),
// anything else the path of a collection file. Empty when the file has no such cave; fails when it cannot be
// read.
Result<std::string> FetchCaveText(const std::string& source, int number, const NewCaveTexts& texts = {});

}  // namespace zorik
