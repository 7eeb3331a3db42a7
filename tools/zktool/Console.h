#pragma once

#include <iosfwd>
#include <string_view>

#include "data/Result.h"

namespace zorik {

// Where a command reads and writes: the standard streams, or those of a test.
struct Console {
  std::istream& in;
  std::ostream& out;
  std::ostream& err;
};

// How a command ends; the number is the program's exit code.
enum class Exit : int {
  Fine = 0,
  No = 1,
  Usage = 2,
  CannotRead = 3,
  CannotWrite = 4,
  BadCave = 5,
  BadKeys = 6,
  BadCollection = 7,
  BadText = 8,
  BadTrace = 9,
  NoSuchCave = 10,
  Failed = 11,
  Impossible = 12,
};

// A failure that says by itself how the command ends.
struct Refusal : Failure {
  Exit exit = Exit::Failed;
};

// What a command needs, or why and how it ends without.
template <class T>
using Needed = Result<T, Refusal>;

// The table of all ends, a line each: code, word, meaning.
void PrintExitCodes(std::ostream& out);

// Tells a failure to the user, "zktool: word: sentence", and answers it.
Exit Fail(Console& console, Exit exit, std::string_view sentence);

// Tells what a refusal says, and answers its end.
Exit Fail(Console& console, const Refusal& refusal);

// Tells the user what looks wrong and yet stops nothing, "zktool: warning: sentence".
void Warn(Console& console, std::string_view sentence);

}  // namespace zorik
