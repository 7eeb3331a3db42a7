#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "data/ResultFwd.h"

namespace zorik {

// A record as one word that a QR code holds, a person can send in a letter, and no mail program breaks:
// docs/formats.md tells its form.

// So many of its letters fit into the largest code.
inline constexpr std::size_t kMostPostcardLetters = 4296;

// The word of a record, given as the bytes of its file. Fails when they are none, and at a run that is longer
// than any postcard's.
Result<std::string> PostcardOf(const std::string& record);

// The way back: the bytes of a record with the same head and the same moves. Blanks and line ends in the word
// count for nothing. Fails when the word is damaged.
Result<std::string> RecordOnPostcard(std::string_view word);

// Whether this program can do that: it has been built with zlib and libqrencode.
bool KnowsPostcards();

// The word as a QR code, a PNG with so many pixels for each module.
Result<std::string> QrPicture(const std::string& word, int module);

}  // namespace zorik
