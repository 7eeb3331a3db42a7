#include "skin/SkinTable.h"

#include <algorithm>
#include <charconv>
#include <iterator>
#include <system_error>
#include <utility>

#include "data/Cp1250.h"
#include "data/Trimmed.h"
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
  if (!divider_) return;
  const std::string_view whole = line;
  const std::size_t keyEnd = PlaceOf(whole, *divider_);
  const std::size_t valueStart = PlaceOf(whole, *divider_ + 1);
  Keep(
      {FoldFileName(Trimmed(whole.substr(0, keyEnd))), std::string(Trimmed(whole.substr(valueStart))), file});
}

void SkinTable::Keep(Entry entry) {
  const auto known = last_.find(entry.Key);
  if (entries_.size() >= kMostEntries) {
    if (known != last_.end()) {
      entries_[known->second] = std::move(entry);
      return;
    }
    if (!MakeRoom(entry.file)) {
      ++passedOver_;
      return;
    }
  }
  last_[entry.Key] = entries_.size();
  entries_.push_back(std::move(entry));
}

// For a new key of a file.
bool SkinTable::MakeRoom(std::size_t file) {
  if (last_.size() < entries_.size()) {
    DropOverridden();
    return true;
  }
  const auto earliest = std::min_element(entries_.begin(), entries_.end(),
                                         [](const Entry& a, const Entry& b) { return a.file < b.file; });
  if (earliest->file >= file) return false;
  const auto end = std::find_if(earliest, entries_.end(),
                                [&](const Entry& entry) { return entry.file != earliest->file; });
  entries_.erase(std::prev(end));
  Index();
  ++passedOver_;
  return true;
}

void SkinTable::DropOverridden() {
  std::vector<Entry> kept;
  for (std::size_t i = 0; i < entries_.size(); ++i) {
    if (last_[entries_[i].Key] == i) kept.push_back(std::move(entries_[i]));
  }
  entries_ = std::move(kept);
  Index();
}

void SkinTable::Index() {
  last_.clear();
  for (std::size_t i = 0; i < entries_.size(); ++i) last_[entries_[i].Key] = i;
}

const SkinTable::Entry* SkinTable::Find(std::string_view key) const {
  const auto found = last_.find(FoldFileName(Trimmed(key)));
  return found == last_.end() ? nullptr : &entries_[found->second];
}

void SkinTable::Replace(std::string_view key, std::string value) {
  entries_[last_.find(FoldFileName(Trimmed(key)))->second].Value = std::move(value);
}

}  // namespace zorik
