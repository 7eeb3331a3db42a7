#pragma once

#include <array>
#include <climits>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/TextId.h"
#include "data/CaveO.h"

namespace zorik {

// The numbers among a cave's properties, in the order in which they are confirmed.
enum class CaveNumber {
  Width,
  Height,
  Time,
  GemsNeeded,
  PointsBefore,
  PointsAfter,
  MagicWallTime,
  AmoebaTime,
  SlimePermeability,
};
inline constexpr std::size_t kCaveNumbers = 9;

// What the dialog knows of a number.
struct NumberRow {
  CaveNumber number;
  const char* control;  // name of its box
  TextId label;
  int digits;  // that can be typed
  int lower;
  int upper;
};
inline constexpr std::array<NumberRow, kCaveNumbers> kNumberRows{{
    {CaveNumber::Width, "Text1", TextId::CaveWidth, 2, 5, 100},
    {CaveNumber::Height, "Text2", TextId::CaveHeight, 2, 5, 60},
    {CaveNumber::Time, "Text5", TextId::TotalTime, 3, 5, INT_MAX},
    {CaveNumber::GemsNeeded, "Text6", TextId::GemsNeeded, 3, 0, INT_MAX},
    {CaveNumber::PointsBefore, "Text9", TextId::PointsBefore, 2, 0, INT_MAX},
    {CaveNumber::PointsAfter, "Text10", TextId::PointsAfter, 2, 0, INT_MAX},
    {CaveNumber::MagicWallTime, "Text7", TextId::MagicWallTime, 3, 1, 150},
    {CaveNumber::AmoebaTime, "Text8", TextId::AmoebaTime, 3, 1, 150},
    {CaveNumber::SlimePermeability, "Text11", TextId::SlimePermeability, 1, 0, 8},
}};

// An entry of the list of colourings: the number that it stands for in the cave, and all numbers that the
// game takes for the same.
struct ColouringRow {
  int number;
  std::string_view scheme;
  std::array<int, 3> alike;
  TextId caption;
};
inline constexpr std::array<ColouringRow, 5> kColourings{{
    {4, "Classic", {3, 4, 9}, TextId::Classic},
    {10, "Cold", {2, 5, 10}, TextId::Cold},
    {11, "Hot", {0, 8, 11}, TextId::Hot},
    {12, "Natural", {6, 7, 12}, TextId::Natural},
    {13, "Mystery", {1, 13, 14}, TextId::Mystery},
}};

// The entry that shows a colouring. The numbers below 10 all go by the first one, though the game knows
// better, and so does what no cave should have.
std::size_t EntryOfColouring(int colouring);

// The caption of the colours that the game gives to a colouring; nothing for a number that no cave should
// have.
std::optional<TextId> CaptionOfColouring(int colouring);

// A cave's properties as the dialog holds them; texts are bytes in Windows-1250.
struct Formality {
  std::string Name;
  std::string Description;
  std::array<int, kCaveNumbers> Numbers{};
  std::size_t Colouring = 0;  // an entry of the list

  int Number(CaveNumber number) const { return Numbers[static_cast<std::size_t>(number)]; }
  bool operator==(const Formality&) const = default;
};

Formality FormalityOf(const CaveRecord& cave);

// Takes the properties into a cave. Its size may be larger than the editor lets through.
void TakeFormality(const Formality& formality, CaveRecord& cave);

// A line of the report on what was wrong.
struct Correction {
  TextId label{};
  std::optional<int> limit{};     // that the value has now
  std::optional<TextId> entry{};  // that is chosen now
  // What opening a cave has to tell besides; empty when there is nothing to tell.
  std::string was{};                 // the old number or text
  std::optional<TextId> wasEntry{};  // that the game goes by
  std::string text{};                // the new text

  bool operator==(const Correction&) const = default;
};

// Puts all values within their limits and cleans the spelling of both texts. A text that a cave has no room
// for when it is clean stays as it is.
std::vector<Correction> Correct(Formality& formality);

// The label of a property that a cave text has no room for.
std::optional<TextId> LabelWithoutRoom(const CaveRecord& cave);

// When an amoeba turns to stone.
struct Petrifying {
  int cells = 0;  // that it grows until then
  int time = 0;   // seconds that this takes
};
Petrifying ComputePetrifying(int width, int height, int amoebas, int amoebaTime);

// The odds are 1 to this that something passes through slime of a permeability from 1 to 7.
int SlimeOdds(int permeability);

}  // namespace zorik
