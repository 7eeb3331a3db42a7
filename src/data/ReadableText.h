#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "data/ResultFwd.h"

namespace zorik {

// The grammar of readable files: entries with a key and a text (Windows-1250 in memory, UTF-8 in the file). A
// text is a single line behind the key, or any number of lines below it, each behind "| ".

struct ReadableLine {
  std::string text;
  int number = 0;  // in its file, from 1
};

// One entry of a readable file.
struct ReadableEntry {
  std::string key;
  int number = 0;                   // of the key's line
  std::vector<ReadableLine> lines;  // none when nothing stands behind the key or below

  // The whole text; line breaks are carriage return and line feed.
  std::string Text() const;
};

// The failure of a readable file at a line.
Failure FailureAt(std::string_view fileName, int number, std::string_view message);

// Takes a readable file apart. Fails at a line that is no entry, at a character that Windows-1250 lacks and
// at an escape that means nothing.
Result<std::vector<ReadableEntry>> ReadEntries(std::string_view fileName, std::string_view content);

// Fails at an entry with a key that is none of these, and at the second with one of the single keys.
Result<Done> CheckKeys(std::string_view fileName, const std::vector<ReadableEntry>& entries,
                       std::span<const std::string_view> single, std::span<const std::string_view> repeated);

// The first entry with this key, or none.
const ReadableEntry* FindEntry(const std::vector<ReadableEntry>& entries, std::string_view key);

// What stands between blanks.
std::vector<std::string> WordsOf(std::string_view text);

// The number that the whole text is, if it lies between these two.
std::optional<int> NumberOf(std::string_view text, int lowest, int highest);

// Adds an entry with a text: behind the key if it is one line, otherwise below.
void WriteText(std::string& content, std::string_view key, std::string_view text);

// Adds an entry with lines below.
void WriteLines(std::string& content, std::string_view key, const std::vector<std::string>& lines);

}  // namespace zorik
