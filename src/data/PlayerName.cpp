#include "data/PlayerName.h"

#include <algorithm>
#include <optional>

#include "data/Cp1250.h"

namespace zorik {
namespace {

constexpr std::string_view kForbidden = "?*\\/,;:=\t\"";

bool Forbidden(char character) {
  return kForbidden.find(character) != std::string_view::npos || IsControl(character);
}

std::string_view WithoutFront(std::string_view text, std::string_view characters) {
  text.remove_prefix(std::min(text.find_first_not_of(characters), text.size()));
  return text;
}

std::string_view WithoutEnd(std::string_view text, std::string_view characters) {
  return text.substr(0, text.find_last_not_of(characters) + 1);
}

}  // namespace

std::string StripNameChars(std::string_view text) {
  std::string name(text);
  std::erase_if(name, Forbidden);
  return name;
}

std::string PlayerName(std::string_view typed) {
  constexpr std::string_view kBlanks = " \xA0";
  constexpr std::string_view kBlanksAndDots = " \xA0.";
  // A gap is marked by "?", which no name may hold.
  const std::string name = StripNameChars(FromUtf8Lossy(typed));
  return std::string(WithoutEnd(WithoutFront(name, kBlanksAndDots), kBlanks));
}

bool IsPlayerFolder(std::string_view folder) {
  return !IsUtf8(folder) || FromUtf8(folder);
}

std::string PlayerOfFolder(std::string_view folder) {
  return IsUtf8(folder) ? FromUtf8Lossy(folder) : std::string(folder);
}

}  // namespace zorik
