#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "data/ResultFwd.h"

namespace zorik {

// A record as one word of letters that a QR code, a letter and an address hold: docs/formats.md tells its
// form. Between the record and the letters stands zlib's packing, which whoever calls these brings along.

// What every such word begins with.
inline constexpr std::string_view kPostcardStart = "ZORIK1:";

// No word holds more than so many bytes before they are packed.
inline constexpr std::size_t kMostPostcardContent = std::size_t{1} << 20U;

// What is to be packed of a record, given as the bytes of its file.
std::string PostcardContent(const std::string& record);

// The way back: the bytes of a record with the same head and the same moves. Fails when it is no such
// content.
Result<std::string> RecordOfPostcardContent(std::string_view content);

// Packed bytes as a word.
std::string PostcardWord(std::string_view packed);

// The way back. Blanks and line ends in the word count for nothing. Fails when it is no such word.
Result<std::string> PackedOfPostcardWord(std::string_view word);

}  // namespace zorik
