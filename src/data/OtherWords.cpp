#include "data/OtherWords.h"

#include <algorithm>
#include <array>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "data/Cp1250.h"
#include "data/ReadableText.h"
#include "data/Result.h"

namespace zorik {
namespace {

constexpr std::array<std::string_view, 4> kOfCollection = {"name", "author", "description", "congratulation"};
constexpr std::array<std::string_view, 3> kOfCaves = {"cave", "cave-name", "cave-description"};

// Words by the keys under which the readable file of a collection or of a cave has them.
using Words = std::map<std::string, std::string, std::less<>>;

struct WordTable {
  Words Collection;
  std::map<std::string, Words> Caves;  // by the names of their files
};

Result<Words*> CaveOfEntry(WordTable& table, std::string_view tableName, const ReadableEntry& entry) {
  const auto [cave, isNew] = table.Caves.try_emplace(ToUtf8(entry.Text()));
  if (!isNew) return FailureAt(tableName, entry.number, "this cave stands here for the second time");
  return &cave->second;
}

Result<WordTable> ReadTable(std::string_view tableName, std::string_view text) {
  const Result<std::vector<ReadableEntry>> entries = ReadEntries(tableName, text);
  if (!entries) return Failure{entries.Message()};
  const Result<Done> known = CheckKeys(tableName, *entries, kOfCollection, kOfCaves);
  if (!known) return Failure{known.Message()};
  WordTable table;
  Words* cave = nullptr;
  for (const ReadableEntry& entry : *entries) {
    if (entry.key == "cave") {
      const Result<Words*> begun = CaveOfEntry(table, tableName, entry);
      if (!begun) return Failure{begun.Message()};
      cave = *begun;
    } else if (!entry.key.starts_with("cave-")) {
      table.Collection.emplace(entry.key, entry.Text());
    } else if (cave == nullptr) {
      return FailureAt(tableName, entry.number, "it stands behind no cave");
    } else if (!cave->emplace(entry.key.substr(std::string_view("cave-").size()), entry.Text()).second) {
      return FailureAt(tableName, entry.number, "this cave has two of them");
    }
  }
  return table;
}

// A readable file with these of its texts replaced. What the table may not leave out are the texts that the
// file has; an author is called the same in every language.
Result<std::string> Reworded(const std::string& fileName, const std::string& content, const Words& words,
                             std::string_view tableName) {
  const Result<std::vector<ReadableEntry>> entries = ReadEntries(fileName, content);
  if (!entries) return Failure{entries.Message()};
  constexpr std::array<std::string_view, 3> kDue = {"name", "description", "congratulation"};
  for (const auto& [key, text] : words) {
    if (FindEntry(*entries, key) == nullptr)
      return Failure{std::string(tableName) + ": there is a " + key + ", but none in " + fileName};
  }
  std::string reworded;
  for (const ReadableEntry& entry : *entries) {
    const auto word = words.find(entry.key);
    const bool due = std::find(kDue.begin(), kDue.end(), entry.key) != kDue.end();
    if (word != words.end()) {
      WriteText(reworded, entry.key, word->second);
    } else if (due && !entry.Text().empty()) {
      return Failure{std::string(tableName) + ": there is no " + entry.key + " for " + fileName};
    } else if (entry.key == "cells" || entry.key == "cat") {
      std::vector<std::string> lines;
      for (const ReadableLine& line : entry.lines) lines.push_back(line.text);
      WriteLines(reworded, entry.key, lines);
    } else {
      WriteText(reworded, entry.key, entry.Text());
    }
  }
  return reworded;
}

}  // namespace

Result<TextFiles> InOtherWords(const TextFiles& files, std::string_view tableName, std::string_view table) {
  const Result<WordTable> words = ReadTable(tableName, table);
  if (!words) return Failure{words.Message()};
  for (const auto& [file, cave] : words->Caves) {
    if (!files.contains(file) || file == kCollectionFile) {
      return Failure{std::string(tableName) + ": the collection has no cave \"" + file + "\""};
    }
  }
  TextFiles reworded;
  for (const auto& [file, content] : files) {
    const auto cave = words->Caves.find(file);
    const Words& own = file == kCollectionFile      ? words->Collection
                       : cave == words->Caves.end() ? Words()
                                                    : cave->second;
    Result<std::string> text = Reworded(file, content, own, tableName);
    if (!text) return Failure{text.Message()};
    reworded.emplace(file, std::move(*text));
  }
  return reworded;
}

}  // namespace zorik
