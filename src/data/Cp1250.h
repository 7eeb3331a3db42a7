#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace zorik {

// Texts inside the machine are bytes in Windows-1250; what people and the file system see is Unicode. This is
// the one place where the two meet. All 256 bytes have a character: the five that the code page leaves empty
// stand for the code points of the same number.

// Windows-1250 bytes as UTF-8.
std::string ToUtf8(std::string_view text);

// The way back; nothing if the text is no UTF-8 or holds a character that Windows-1250 lacks.
std::optional<std::string> FromUtf8(std::string_view utf8);

// The same, with "?" for each character that is lacking and each byte that belongs to none.
std::string FromUtf8Lossy(std::string_view utf8);

// Takes one code point from the front of a text in UTF-8 that is not empty. What is no UTF-8 gives nothing
// and costs one byte.
std::optional<char32_t> TakeCodePoint(std::string_view& rest);

bool IsUtf8(std::string_view text);

// Whether a byte of Windows-1250 is no character to be seen: a control character, or one of the five that the
// code page leaves empty.
bool IsControl(char character);

// A text (UTF-8) without its control characters.
std::string WithoutControls(std::string_view utf8);

// Windows-1250 bytes in lower case, Czech and other accented letters too.
std::string LowerCase(std::string_view text);

// A file name (UTF-8, or Windows-1250 if it is no UTF-8) as UTF-8 in which letter case plays no part: the
// letters that Windows-1250 has are in lower case, all others stay as they are.
std::string FoldFileName(std::string_view name);

}  // namespace zorik
