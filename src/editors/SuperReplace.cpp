#include "editors/SuperReplace.h"

#include <array>

#include "data/Cp1250.h"
#include "data/Trimmed.h"

namespace zorik {
namespace {

struct Spelling {
  const char* found;  // UTF-8
  const char* replacement;
};

// In this order, each over the whole text.
constexpr std::array<Spelling, 16> kSpellings{{
    {"zorí", "Zorí"},
    {"zori", "Zorí"},
    {"diamant", "drahokam"},
    {"Diamant", "Drahokam"},
    {"ambén", "améb"},
    {"ambéb", "améb"},
    {"ambém", "améb"},
    {"hmiz", "hmyz"},
    {"diamond", "gem"},
    {"Diamond", "Gem"},
    {"morek", "Morvek"},
    {"morvek", "Morvek"},
    {"morveak", "Morvek"},
    {"morec", "Morvek"},
    {"morveec", "Morvek"},
    {"morveac", "Morvek"},
}};

// What has been put in is not looked at again.
std::string ReplaceAll(std::string text, std::string_view found, std::string_view replacement) {
  for (std::size_t at = text.find(found); at != std::string::npos;
       at = text.find(found, at + replacement.size())) {
    text.replace(at, found.size(), replacement);
  }
  return text;
}

// The capital of a letter, or the letter itself when it has none.
char Capital(char letter) {
  for (int code = 0; code < 256; ++code) {
    const char capital = static_cast<char>(code);
    if (capital != letter && LowerCase(std::string(1, capital))[0] == letter) return capital;
  }
  return letter;
}

}  // namespace

std::string SuperReplace(std::string_view text) {
  std::string clean(text);
  for (const Spelling& row : kSpellings) {
    clean = ReplaceAll(std::move(clean), *FromUtf8(row.found), *FromUtf8(row.replacement));
  }
  clean = std::string(Trimmed(clean));
  if (!clean.empty()) clean.front() = Capital(clean.front());
  return clean;
}

}  // namespace zorik
