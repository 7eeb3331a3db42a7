#pragma once

#include <string_view>

#include "data/Readable.h"
#include "data/ResultFwd.h"

namespace zorik {

// A collection told in another language. Its caves are drawn once, in their readable files; a table beside
// them holds the other words, as a readable file of its own:
//
//   name: Zorík's School
//   author: Zorík             left out: that of the collection
//   description:
//   | How to dig.
//   congratulation: Well dug, $P points!
//
//   cave: 01-hrabani.txt      a cave's file, and behind it what the cave is called
//   cave-name: First Dig
//   cave-description: Dig to the gem.
//
// The table tells whatever the collection tells: nothing is left half in one language.

// The readable files of the same collection in the words of the table. Fails, with file and line, where the
// table cannot be understood, speaks of a cave that is not in the collection, or leaves one of its texts out.
Result<TextFiles> InOtherWords(const TextFiles& files, std::string_view tableName, std::string_view table);

}  // namespace zorik
