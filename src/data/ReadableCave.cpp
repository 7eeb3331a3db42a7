#include "data/ReadableCave.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

#include "data/CaveO.h"
#include "data/Collection.h"
#include "data/Cp1250.h"
#include "data/ReadableText.h"
#include "data/Result.h"

namespace zorik {

namespace {

// A number of a cave: one that shares a character in the cave text, or one with a character of its own.
struct NumberField {
  std::string_view key;
  std::int16_t CaveRecord::*pair;
  std::uint8_t CaveRecord::*byte;
};

constexpr std::array<NumberField, 8> kNumbers = {{
    {"time", &CaveRecord::Time, nullptr},
    {"gems", &CaveRecord::GemsNeeded, nullptr},
    {"points-before", nullptr, &CaveRecord::PointsBefore},
    {"points-after", nullptr, &CaveRecord::PointsAfter},
    {"magic-wall-time", nullptr, &CaveRecord::MagicWallTime},
    {"amoeba-time", nullptr, &CaveRecord::AmoebaTime},
    {"colouring", nullptr, &CaveRecord::Colouring},
    {"slime", nullptr, &CaveRecord::SlimePermeability},
}};

constexpr std::array<std::string_view, 14> kKeys = {
    "name",        "description", "time",  "gems",   "points-before", "points-after", "magic-wall-time",
    "amoeba-time", "colouring",   "slime", "marker", "cells",         "cat",          "cat-text"};

std::string MarkerOf(int number) {
  return number > kMostCaves ? std::string() : MarkerDigits(number);
}

// A program is shown by its commands if all of them are two characters that can be told from blanks.
bool IsMadeOfTokens(std::string_view script) {
  return script.size() % 2 == 0 &&
         std::all_of(script.begin(), script.end(), [](char c) { return c > ' ' && c < '\x7F'; });
}

// The commands with a blank between them, a line for each label.
std::vector<std::string> TokenLines(std::string_view script) {
  std::vector<std::string> lines;
  for (std::size_t i = 0; i < script.size(); i += 2) {
    const std::string_view token = script.substr(i, 2);
    if (lines.empty() || token[0] == '*') {
      lines.emplace_back(token);
    } else {
      lines.back() += " ";
      lines.back() += token;
    }
  }
  return lines;
}

std::vector<std::string> RowsOf(const CaveRecord& cave) {
  std::vector<std::string> rows(cave.Height);
  for (std::size_t y = 0; y < cave.Height; ++y) {
    for (std::size_t x = 0; x < cave.Width; ++x) rows[y] += cave.Cells[x][y];
  }
  return rows;
}

std::string WriteCave(const CaveRecord& cave, std::string_view marker, int number) {
  std::string content;
  WriteText(content, "name", cave.Name);
  WriteText(content, "description", cave.Description);
  for (const NumberField& field : kNumbers) {
    WriteText(content, field.key, std::to_string(field.pair ? cave.*field.pair : cave.*field.byte));
  }
  if (marker != MarkerOf(number)) WriteText(content, "marker", marker);
  WriteLines(content, "cells", RowsOf(cave));
  if (cave.Script.empty()) return content;
  if (IsMadeOfTokens(cave.Script)) {
    WriteLines(content, "cat", TokenLines(cave.Script));
  } else {
    WriteText(content, "cat-text", cave.Script);
  }
  return content;
}

const ReadableEntry kNoEntry;

// Reads a cave's file field by field. The first thing that is wrong sets the failure; what is read afterwards
// is of no value.
class CaveFile {
 public:
  CaveFile(std::string_view fileName, const std::vector<ReadableEntry>& entries)
      : fileName_(fileName), entries_(entries) {}

  const std::string& failure() const { return failure_; }

  std::string Text(std::string_view key) {
    const ReadableEntry& entry = Get(key);
    std::string text = entry.Text();
    if (text.size() > kHighestNumber) {
      Fail(entry.number, "the " + entry.key + " has " + std::to_string(text.size()) +
                             " characters, it may have " + std::to_string(kHighestNumber));
    }
    return text;
  }

  std::string TextIfThere(std::string_view key) { return Find(key) ? Text(key) : std::string(); }

  int Number(std::string_view key, int highest) {
    const ReadableEntry& entry = Get(key);
    const std::optional<int> number = NumberOf(entry.Text(), 0, highest);
    if (!number) Fail(entry.number, "the entry is no number from 0 to " + std::to_string(highest));
    return number.value_or(0);
  }

  void Cells(CaveRecord& cave) {
    const std::vector<ReadableLine>& rows = Get("cells").lines;
    const std::size_t width = rows.empty() ? 0 : rows[0].text.size();
    if (width > CaveRecord::kColumns) {
      return Fail(rows[0].number, CellsIn(width) + ", there may be " + std::to_string(CaveRecord::kColumns));
    }
    if (rows.size() > CaveRecord::kRows) {
      return Fail(rows[CaveRecord::kRows].number,
                  "a row too many, there may be " + std::to_string(CaveRecord::kRows));
    }
    cave.Width = static_cast<std::uint8_t>(width);
    cave.Height = static_cast<std::uint8_t>(rows.size());
    for (std::size_t y = 0; y < rows.size(); ++y) {
      const std::string& row = rows[y].text;
      if (row.size() != width) {
        return Fail(rows[y].number, CellsIn(row.size()) + ", the first row has " + std::to_string(width));
      }
      for (std::size_t x = 0; x < width; ++x) cave.Cells[x][y] = row[x];
    }
  }

  std::string Script() {
    const ReadableEntry* commands = Find("cat");
    const ReadableEntry* text = Find("cat-text");
    if (commands && text) Fail(text->number, "the cat has two programs");
    if (commands) return Commands(*commands);
    return text ? text->Text() : std::string();
  }

  std::string Marker(int number) {
    const ReadableEntry* entry = Find("marker");
    const std::string marker = entry ? entry->Text() : MarkerOf(number);
    if (entry && marker.size() != 2) Fail(entry->number, "the marker has not two characters");
    if (!entry && marker.empty())
      FailAtAll("the collection has more than " + std::to_string(kMostCaves) + " caves");
    return marker;
  }

 private:
  static std::string CellsIn(std::size_t width) { return "a row of " + std::to_string(width) + " cells"; }

  const ReadableEntry* Find(std::string_view key) const { return FindEntry(entries_, key); }

  // An entry that must be there.
  const ReadableEntry& Get(std::string_view key) {
    if (const ReadableEntry* entry = Find(key)) return *entry;
    FailAtAll("the entry \"" + std::string(key) + "\" is missing");
    return kNoEntry;
  }

  std::string Commands(const ReadableEntry& entry) {
    std::string script;
    for (const ReadableLine& line : entry.lines) {
      for (const std::string& command : WordsOf(line.text)) {
        if (command.size() != 2)
          Fail(line.number, "the command \"" + ToUtf8(command) + "\" has not two characters");
        script += command;
      }
    }
    return script;
  }

  void Fail(int number, const std::string& message) {
    if (failure_.empty()) failure_ = FailureAt(fileName_, number, message).message;
  }

  void FailAtAll(const std::string& message) {
    if (failure_.empty()) failure_ = std::string(fileName_) + ": " + message;
  }

  std::string_view fileName_;
  const std::vector<ReadableEntry>& entries_;
  std::string failure_;
};

}  // namespace

std::optional<std::string> WriteReadableCave(std::string_view line, int number) {
  const Result<CaveRecord> cave = ParseCaveText(line);
  if (!cave || !EndsWithMarker(line)) return std::nullopt;
  std::string content = WriteCave(*cave, line.substr(line.size() - 2), number);
  const Result<std::string> again = ReadReadableCave({}, content, number);
  if (!again || *again != line) return std::nullopt;
  return content;
}

Result<std::string> ReadReadableCave(std::string_view fileName, std::string_view content, int number) {
  const Result<std::vector<ReadableEntry>> entries = ReadEntries(fileName, content);
  if (!entries) return Failure{entries.Message()};
  const Result<Done> keysFit = CheckKeys(fileName, *entries, kKeys, {});
  if (!keysFit) return Failure{keysFit.Message()};
  CaveFile file(fileName, *entries);
  CaveRecord cave;
  cave.Name = file.Text("name");
  cave.Description = file.TextIfThere("description");
  for (const NumberField& field : kNumbers) {
    const int value = file.Number(field.key, field.pair ? kHighestPair : kHighestNumber);
    if (field.pair) cave.*field.pair = static_cast<std::int16_t>(value);
    if (field.byte) cave.*field.byte = static_cast<std::uint8_t>(value);
  }
  file.Cells(cave);
  cave.Script = file.Script();
  const std::string marker = file.Marker(number);
  if (!file.failure().empty()) return Failure{file.failure()};
  const Result<std::string> text = BuildCaveText(cave);
  if (!text) return Failure{std::string(fileName) + ": " + text.Message()};
  return *text + "---" + marker;
}

}  // namespace zorik
