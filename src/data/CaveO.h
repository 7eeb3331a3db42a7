// All about the cave text: how a cave is written as one text, read from it, and known in a collection's line.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "data/ResultFwd.h"

namespace zorik {

// A cave as text: bytes one after another, without any between them. A number is one byte, its value plus
// 65; texts are Windows-1250.
//
//   slime permeability              0 to 8
//   length of the name, name
//   length of the description, description
//   width, height                   of the cave in cells
//   time                            seconds, without their units
//   units of both                   those of the time times 10, plus those of the gems needed
//   gems needed                     without their units
//   points of a gem                 before the finish opens
//   points of a gem                 afterwards
//   magic wall time, amoeba time    seconds
//   colouring                       0 to 14
//   cells                           width x height letters, row by row from the top left; Objects.h lists
//   them the cat's program               all the rest, empty in most caves; CatScript.cpp reads it
//
// In a collection, and so in the records of its caves, five more bytes end the text, its marker: "---" and
// the number of the cave with two digits.

// In all files a number is one character, with this code for 0.
inline constexpr int kNumberOffset = 65;

// So this is the highest number, and the longest text that stands behind its length.
inline constexpr int kHighestNumber = 255 - kNumberOffset;

// A cave's time and its gems have their tens in one character and share one for their units.
inline constexpr int kHighestPair = kHighestNumber * 10 + 9;

// A cave in memory. Texts are bytes in Windows-1250.
struct CaveRecord {
  static constexpr int kColumns = 102;  // the matrix is larger than any cave that can be played
  static constexpr int kRows = 62;

  std::int16_t Time = 0;           // seconds
  std::uint8_t PointsBefore = 0;   // points of a gem before the finish opens
  std::uint8_t PointsAfter = 0;    // and afterwards
  std::uint8_t MagicWallTime = 0;  // seconds
  std::uint8_t AmoebaTime = 0;     // seconds
  std::uint8_t Colouring = 0;      // 0 to 14
  std::int16_t GemsNeeded = 0;
  std::string Description;  // may hold line breaks
  std::string Name;
  std::uint8_t Height = 0;                                // rows used
  std::uint8_t Width = 0;                                 // columns used
  std::array<std::array<char, kRows>, kColumns> Cells{};  // letters, first index the column; 0 = never set
  std::uint8_t SlimePermeability = 0;                     // 0 to 8
  std::string Script;                                     // the cat's program

  bool operator==(const CaveRecord&) const = default;
};

// Reads a cave text, with or without the marker that it carries in a collection. An empty text gives an
// empty record. Cells behind the end of the text are empty space. Fails at a number that is missing or has
// a character below "A", and at a size beyond the matrix; the message names the field and its byte, from 1.
Result<CaveRecord> ParseCaveText(std::string_view text);

// Writes a cave text without marker. Fails when a number or a length has no character of its own (texts
// above 190 bytes, numbers above 1909 or 190, a negative number) and at a size beyond the matrix.
Result<std::string> BuildCaveText(const CaveRecord& record);

// Whether a text ends like a cave in a collection: "---" and two more characters.
bool EndsWithMarker(std::string_view text);

// Length of that marker in bytes.
inline constexpr std::size_t kMarkerLength = 5;

// The text without its last five bytes; empty if it is no longer than these.
std::string_view WithoutMarker(std::string_view text);

// Drops what a file name must not hold.
std::string CleanFileName(std::string_view text);

// A cave with BONUS in its name, in any letter case, may be skipped and is worth 500 points more.
bool JeBonus(std::string_view name);

// Points for a won bonus cave on top of what the run itself is worth.
inline constexpr int kBonusPoints = 500;

}  // namespace zorik
