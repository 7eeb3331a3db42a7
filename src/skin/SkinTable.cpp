#include "skin/SkinTable.h"

#include <algorithm>
#include <charconv>
#include <system_error>

#include "data/Cp1250.h"
#include "skin/SkinLines.h"

namespace zorik {
namespace {

constexpr std::size_t kColourDigits = 6;

bool StartsCharacter(char byte) {
  return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U;
}

// Where the character with this number starts; the end of the text when it has fewer.
std::size_t PlaceOf(std::string_view utf8, std::size_t character) {
  for (std::size_t place = 0; place < utf8.size(); ++place) {
    if (StartsCharacter(utf8[place]) && character-- == 0) return place;
  }
  return utf8.size();
}

// The number that the whole text is; nothing if it is none, or too large for its kind.
template <class Number>
std::optional<Number> NumberOf(std::string_view text, int base) {
  Number number = 0;
  const char* const end = text.data() + text.size();
  const auto [rest, error] = std::from_chars(text.data(), end, number, base);
  if (error != std::errc() || rest != end) return std::nullopt;
  return number;
}

}  // namespace

std::optional<int> SkinNumber(std::string_view value) {
  if (value.starts_with('+') && !value.starts_with("+-")) value.remove_prefix(1);
  const auto number = NumberOf<std::int16_t>(value, 10);
  return number ? std::optional<int>(*number) : std::nullopt;
}

std::optional<std::uint32_t> SkinColourNumber(std::string_view value) {
  if (CharactersOf(value) != kColourDigits) return 0;
  const auto rgb = NumberOf<std::uint32_t>(value, 16);
  if (!rgb) return std::nullopt;
  return (*rgb & 0xFFU) << 16U | (*rgb & 0xFF00U) | *rgb >> 16U;
}

std::string_view Trimmed(std::string_view text) {
  const std::size_t start = text.find_first_not_of(' ');
  if (start == std::string_view::npos) return {};
  return text.substr(start, text.find_last_not_of(' ') - start + 1);
}

std::size_t CharactersOf(std::string_view utf8) {
  return static_cast<std::size_t>(std::count_if(utf8.begin(), utf8.end(), StartsCharacter));
}

void SkinTable::Add(std::string_view bytes, std::size_t file) {
  SkinLines lines(bytes);
  while (!lines.AtEnd()) {
    std::string line = lines.Next();
    if (line.ends_with(':')) {
      line.back() = '.';
      prefix_ = std::move(line);
    } else {
      AddLine(prefix_ + line, file);
    }
  }
}

void SkinTable::AddLine(const std::string& line, std::size_t file) {
  const std::size_t sign = line.rfind('=');
  if (sign != std::string::npos) divider_ = CharactersOf(std::string_view(line).substr(0, sign));
  // Before the first "=" of all files nothing says where to divide.
  if (!divider_ || entries_.size() >= kMostEntries) return;
  const std::string_view whole = line;
  const std::size_t keyEnd = PlaceOf(whole, *divider_);
  const std::size_t valueStart = PlaceOf(whole, *divider_ + 1);
  entries_.push_back(
      {FoldFileName(Trimmed(whole.substr(0, keyEnd))), std::string(Trimmed(whole.substr(valueStart))), file});
}

const SkinTable::Entry* SkinTable::Find(std::string_view key) const {
  const std::string wanted = FoldFileName(Trimmed(key));
  const auto found = std::find_if(entries_.rbegin(), entries_.rend(),
                                  [&](const Entry& entry) { return entry.Key == wanted; });
  return found == entries_.rend() ? nullptr : &*found;
}

}  // namespace zorik
