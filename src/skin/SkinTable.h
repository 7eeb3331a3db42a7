#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace zorik {

// The pairs of a key and a value that skin files hold, all UTF-8. Files are added one after another, and what
// one leaves behind, its last section and its last divider, counts for the first lines of the next.
class SkinTable {
 public:
  // There are no more pairs than these. Where more are said, those that a later one overrides give way, then
  // those of earlier files, and what finds no room even so is passed over.
  static constexpr std::size_t kMostEntries = 2001;

  struct Entry {
    std::string Key;  // in lower case
    std::string Value;
    std::size_t file = 0;  // which of the added files it is from
  };

  // Reads the pairs of a file. A line that ends in ":" opens a section, whose name stands before all keys up
  // to the next one; every other line, an empty one too, is a pair.
  void Add(std::string_view bytes, std::size_t file);

  // The last pair of a key, which is asked for in any case and with blanks around; nullptr without one.
  const Entry* Find(std::string_view key) const;

  // Gives the last pair of a key, which must be there, another value.
  void Replace(std::string_view key, std::string value);

  const std::vector<Entry>& Entries() const { return entries_; }

  // How many keys found no room.
  std::size_t PassedOver() const { return passedOver_; }

 private:
  void AddLine(const std::string& line, std::size_t file);
  void Keep(Entry entry);
  bool MakeRoom(std::size_t file);
  void DropOverridden();
  void Index();

  std::vector<Entry> entries_;
  std::unordered_map<std::string, std::size_t> last_;  // the last pair of each key
  std::size_t passedOver_ = 0;
  std::string prefix_;
  // Characters in front of the last "=" that was seen; a line without one is divided at the same place.
  std::optional<std::size_t> divider_;
};

// The number of 16 bits that a value is; nothing if it is no whole decimal number, or too large.
std::optional<int> SkinNumber(std::string_view value);

// The colour that a value of six hexadecimal digits is, with red in the low byte; black for a value of
// another length. Nothing if six characters are not all digits.
std::optional<std::uint32_t> SkinColourNumber(std::string_view value);

// How many characters a UTF-8 text has.
std::size_t CharactersOf(std::string_view utf8);

}  // namespace zorik
