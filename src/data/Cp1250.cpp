#include "data/Cp1250.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>

namespace zorik {

namespace {

// One of the 128 characters that are the same in both encodings.
bool IsPlain(char character) {
  return static_cast<unsigned char>(character) < 0x80U;
}

// Code points of the bytes from 128 on.
constexpr std::array<char32_t, 128> kUpperHalf = {
    0x20AC, 0x0081, 0x201A, 0x0083, 0x201E, 0x2026, 0x2020, 0x2021,  // 80
    0x0088, 0x2030, 0x0160, 0x2039, 0x015A, 0x0164, 0x017D, 0x0179,  // 88
    0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,  // 90
    0x0098, 0x2122, 0x0161, 0x203A, 0x015B, 0x0165, 0x017E, 0x017A,  // 98
    0x00A0, 0x02C7, 0x02D8, 0x0141, 0x00A4, 0x0104, 0x00A6, 0x00A7,  // A0
    0x00A8, 0x00A9, 0x015E, 0x00AB, 0x00AC, 0x00AD, 0x00AE, 0x017B,  // A8
    0x00B0, 0x00B1, 0x02DB, 0x0142, 0x00B4, 0x00B5, 0x00B6, 0x00B7,  // B0
    0x00B8, 0x0105, 0x015F, 0x00BB, 0x013D, 0x02DD, 0x013E, 0x017C,  // B8
    0x0154, 0x00C1, 0x00C2, 0x0102, 0x00C4, 0x0139, 0x0106, 0x00C7,  // C0
    0x010C, 0x00C9, 0x0118, 0x00CB, 0x011A, 0x00CD, 0x00CE, 0x010E,  // C8
    0x0110, 0x0143, 0x0147, 0x00D3, 0x00D4, 0x0150, 0x00D6, 0x00D7,  // D0
    0x0158, 0x016E, 0x00DA, 0x0170, 0x00DC, 0x00DD, 0x0162, 0x00DF,  // D8
    0x0155, 0x00E1, 0x00E2, 0x0103, 0x00E4, 0x013A, 0x0107, 0x00E7,  // E0
    0x010D, 0x00E9, 0x0119, 0x00EB, 0x011B, 0x00ED, 0x00EE, 0x010F,  // E8
    0x0111, 0x0144, 0x0148, 0x00F3, 0x00F4, 0x0151, 0x00F6, 0x00F7,  // F0
    0x0159, 0x016F, 0x00FA, 0x0171, 0x00FC, 0x00FD, 0x0163, 0x02D9,  // F8
};

char32_t CodePointOf(char character) {
  const auto byte = static_cast<unsigned char>(character);
  return byte < 128 ? byte : kUpperHalf[byte - 128U];
}

std::optional<char> ByteOf(char32_t codePoint) {
  if (codePoint < 128) return static_cast<char>(codePoint);
  const auto place = std::find(kUpperHalf.begin(), kUpperHalf.end(), codePoint);
  if (place == kUpperHalf.end()) return std::nullopt;
  return static_cast<char>(place - kUpperHalf.begin() + 128);
}

void AppendUtf8(std::string& text, char32_t codePoint) {
  const auto tail = [&](unsigned shift) {
    text += static_cast<char>(0x80U | ((codePoint >> shift) & 0x3FU));
  };
  if (codePoint < 0x80) {
    text += static_cast<char>(codePoint);
  } else if (codePoint < 0x800) {
    text += static_cast<char>(0xC0U | (codePoint >> 6U));
    tail(0);
  } else if (codePoint < 0x10000) {
    text += static_cast<char>(0xE0U | (codePoint >> 12U));
    tail(6);
    tail(0);
  } else {
    text += static_cast<char>(0xF0U | (codePoint >> 18U));
    tail(12);
    tail(6);
    tail(0);
  }
}

// A lead byte's share of the code point, how many bytes follow it, and the smallest code point that needs
// that many: a longer form of a smaller one is no UTF-8.
struct Lead {
  char32_t bits;
  std::size_t following;
  char32_t smallest;
};

std::optional<Lead> LeadOf(unsigned char byte) {
  if (byte < 0x80) return Lead{byte, 0, 0};
  if (byte >= 0xC0 && byte < 0xE0) return Lead{byte & 0x1FU, 1, 0x80};
  if (byte >= 0xE0 && byte < 0xF0) return Lead{byte & 0x0FU, 2, 0x800};
  if (byte >= 0xF0 && byte < 0xF8) return Lead{byte & 0x07U, 3, 0x10000};
  return std::nullopt;
}

bool IsCharacter(char32_t codePoint) {
  return codePoint <= 0x10FFFF && (codePoint < 0xD800 || codePoint > 0xDFFF);
}

std::optional<char> TakeByte(std::string_view& rest) {
  const std::optional<char32_t> codePoint = TakeCodePoint(rest);
  return codePoint ? ByteOf(*codePoint) : std::nullopt;
}

// Most letters lie 32 bytes below their small form; these ten do not.
constexpr std::string_view kScatteredCapitals = "\x8A\x8C\x8D\x8E\x8F\xA3\xA5\xAA\xAF\xBC";
constexpr std::string_view kScatteredSmall = "\x9A\x9C\x9D\x9E\x9F\xB3\xB9\xBA\xBF\xBE";

char LowerCaseOf(char character) {
  constexpr unsigned char kTimesSign = 0xD7;
  const auto byte = static_cast<unsigned char>(character);
  const bool plainLetter = byte >= 'A' && byte <= 'Z';
  const bool accentedLetter = byte >= 0xC0 && byte <= 0xDE && byte != kTimesSign;
  if (plainLetter || accentedLetter) return static_cast<char>(byte + 0x20);
  if (IsPlain(character)) return character;
  const std::size_t place = kScatteredCapitals.find(character);
  return place == std::string_view::npos ? character : kScatteredSmall[place];
}

bool IsControlCode(char32_t codePoint) {
  return codePoint < ' ' || (codePoint >= 0x7F && codePoint < 0xA0);
}

}  // namespace

std::optional<char32_t> TakeCodePoint(std::string_view& rest) {
  const std::string_view text = rest;
  rest.remove_prefix(1);
  const std::optional<Lead> lead = LeadOf(static_cast<unsigned char>(text[0]));
  if (!lead || text.size() <= lead->following) return std::nullopt;
  char32_t codePoint = lead->bits;
  for (std::size_t i = 1; i <= lead->following; ++i) {
    const auto byte = static_cast<unsigned char>(text[i]);
    if ((byte & 0xC0U) != 0x80U) return std::nullopt;
    codePoint = (codePoint << 6U) | (byte & 0x3FU);
  }
  if (codePoint < lead->smallest || !IsCharacter(codePoint)) return std::nullopt;
  rest.remove_prefix(lead->following);
  return codePoint;
}

bool IsUtf8(std::string_view text) {
  while (!text.empty()) {
    if (!TakeCodePoint(text)) return false;
  }
  return true;
}

std::string ToUtf8(std::string_view text) {
  std::string utf8;
  utf8.reserve(text.size());
  for (const char character : text) AppendUtf8(utf8, CodePointOf(character));
  return utf8;
}

std::optional<std::string> FromUtf8(std::string_view utf8) {
  std::string text;
  while (!utf8.empty()) {
    const std::optional<char> byte = TakeByte(utf8);
    if (!byte) return std::nullopt;
    text += *byte;
  }
  return text;
}

std::string FromUtf8Lossy(std::string_view utf8) {
  std::string text;
  while (!utf8.empty()) text += TakeByte(utf8).value_or('?');
  return text;
}

bool IsControl(char character) {
  return IsControlCode(CodePointOf(character));
}

std::string WithoutControls(std::string_view utf8) {
  const auto stays = [](char character) { return IsPlain(character) && !IsControl(character); };
  if (std::all_of(utf8.begin(), utf8.end(), stays)) return std::string(utf8);
  std::string text;
  while (!utf8.empty()) {
    const std::string_view before = utf8;
    const std::optional<char32_t> codePoint = TakeCodePoint(utf8);
    if (codePoint && IsControlCode(*codePoint)) continue;
    text += before.substr(0, before.size() - utf8.size());
  }
  return text;
}

std::string LowerCase(std::string_view text) {
  std::string lower(text);
  std::transform(lower.begin(), lower.end(), lower.begin(), LowerCaseOf);
  return lower;
}

// Of all that are folded at a start nearly each is plain.
std::string FoldFileName(std::string_view name) {
  if (std::all_of(name.begin(), name.end(), IsPlain)) return LowerCase(name);
  if (!IsUtf8(name)) return ToUtf8(LowerCase(name));
  std::string folded;
  while (!name.empty()) {
    const char32_t codePoint = *TakeCodePoint(name);
    const std::optional<char> byte = ByteOf(codePoint);
    AppendUtf8(folded, byte ? CodePointOf(LowerCaseOf(*byte)) : codePoint);
  }
  return folded;
}

}  // namespace zorik
