#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "zktool/CommandLine.h"
#include "zktool/Console.h"

namespace zorik {

// What pictures and movies of caves are to be like, as a command line says it.
struct PictureTerms {
  int cell = 0;         // pixels
  std::string scheme;   // empty for the cave's own
  bool follow = false;  // the view that follows the dog, or the whole cave
  int tick = 0;
  int number = 0;  // of the cave in a collection; 0 if none is given
};

inline constexpr int kRenderedCell = 32, kFilmedCell = 16;  // pixels, where nobody says anything else

// The options --cell, --scheme, --follow, --tick and --cave, as far as they are there.
Result<PictureTerms> ReadPictureTerms(const CommandLine& line, int cell);

// The same as words of a command line.
std::vector<std::string> WordsOf(const PictureTerms& terms);

// The program that makes the pictures, and what is said where it is not there.
inline constexpr const char* kPainter = "zkpaint";
inline constexpr std::string_view kNoPainter =
    "zkpaint is not beside zktool: it makes the pictures, and comes with the game alone (it needs Qt)";

// How a command ends that such a program has worked for and spoken for. One that was killed has not.
Exit EndOf(int exitCode, Console& console);

}  // namespace zorik
