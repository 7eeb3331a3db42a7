#include "data/Readable.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <optional>
#include <utility>
#include <vector>

#include "data/Collection.h"
#include "data/Cp1250.h"
#include "data/ReadableCave.h"
#include "data/ReadableText.h"
#include "data/Result.h"

namespace zorik {

namespace {

constexpr int kHighestOpenCave = 255 - kOpenCaveOffset;

int CodeOf(char character) {
  return static_cast<unsigned char>(character);
}

// The keys of a line of the head: of its two parts, and of the whole line where it has no such parts.
struct HeadKeys {
  std::string_view first;
  std::string_view second;
  std::string_view whole;
};
constexpr std::array<HeadKeys, kHeadLines> kHeadKeys = {{
    {"name", "open", "line-1"},
    {"author", "description", "line-2"},
    {"mail", "flag", "line-3"},
}};
constexpr std::array<std::string_view, 9> kSingleKeys = {"name",   "open", "line-1", "author", "description",
                                                         "line-2", "mail", "flag",   "line-3"};
constexpr std::array<std::string_view, 3> kBodyKeys = {"cave", "line", "congratulation"};

using Entries = std::vector<ReadableEntry>;

bool IsOfBody(const ReadableEntry& entry) {
  return std::find(kBodyKeys.begin(), kBodyKeys.end(), entry.key) != kBodyKeys.end();
}

Failure FailureIn(int number, const std::string& message) {
  return FailureAt(kCollectionFile, number, message);
}

// The characters that mark the caves as open, from their numbers.
Result<std::string> OpenLetters(const ReadableEntry& entry) {
  std::string letters;
  for (const std::string& word : WordsOf(entry.Text())) {
    const std::optional<int> number = NumberOf(word, 1, kHighestOpenCave);
    if (!number) return FailureIn(entry.number, "\"" + ToUtf8(word) + "\" is no number of a cave");
    letters += static_cast<char>(*number + kOpenCaveOffset);
  }
  return letters;
}

Result<std::string> BuildMeasured(const ReadableEntry& entry, const Result<std::string>& rest) {
  const std::string text = entry.Text();
  if (text.size() > kHighestNumber) {
    return FailureIn(entry.number, "the " + entry.key + " has " + std::to_string(text.size()) +
                                       " characters, it may have " + std::to_string(kHighestNumber));
  }
  if (!rest) return rest;
  return static_cast<char>(text.size() + kNumberOffset) + text + *rest;
}

Result<std::string> BuildMail(const ReadableEntry& mail, const ReadableEntry* flag) {
  if (!flag) return mail.Text() + "0";
  const std::string character = flag->Text();
  if (character.size() != 1) return FailureIn(flag->number, "the flag is not one character");
  return mail.Text() + character;
}

// A line of the head (0 to 2) from the entries of its two parts.
Result<std::string> BuildFromParts(std::size_t line, const ReadableEntry& first,
                                   const ReadableEntry* second) {
  if (line == 2) return BuildMail(first, second);
  if (!second) return BuildMeasured(first, std::string());
  return BuildMeasured(first, line == 0 ? OpenLetters(*second) : second->Text());
}

Result<std::string> BuildHeadLine(const Entries& entries, std::size_t line) {
  const HeadKeys& keys = kHeadKeys[line];
  const ReadableEntry* first = FindEntry(entries, keys.first);
  const ReadableEntry* second = FindEntry(entries, keys.second);
  const ReadableEntry* whole = FindEntry(entries, keys.whole);
  const ReadableEntry* part = first ? first : second;
  if (whole && part) {
    return FailureIn(whole->number, "\"" + whole->key + "\" and \"" + part->key + "\" tell the same line");
  }
  if (whole) return whole->Text();
  if (first) return BuildFromParts(line, *first, second);
  return Failure{std::string(kCollectionFile) + ": the entry \"" + std::string(keys.first) + "\" is missing"};
}

// How many lines the head has: all three if anything stands behind it.
std::size_t HeadLength(const Entries& entries) {
  if (std::any_of(entries.begin(), entries.end(), IsOfBody)) return kHeadLines;
  std::size_t length = kHeadLines;
  while (length > 0) {
    const HeadKeys& keys = kHeadKeys[length - 1];
    if (FindEntry(entries, keys.first) || FindEntry(entries, keys.second) || FindEntry(entries, keys.whole))
      break;
    --length;
  }
  return length;
}

Result<std::string> BuildCaveLine(const TextFiles& files, const ReadableEntry& entry, int number) {
  const std::string name = ToUtf8(entry.Text());
  const auto file = files.find(name);
  if (file == files.end()) return FailureIn(entry.number, "there is no file \"" + name + "\"");
  return ReadReadableCave(name, file->second, number);
}

Result<std::vector<std::string>> BuildLines(const TextFiles& files, const Entries& entries) {
  std::vector<std::string> lines;
  const std::size_t headLength = HeadLength(entries);
  for (std::size_t i = 0; i < headLength; ++i) {
    Result<std::string> line = BuildHeadLine(entries, i);
    if (!line) return Failure{line.Message()};
    lines.push_back(std::move(*line));
  }
  int caveNumber = 1;
  for (const ReadableEntry& entry : entries) {
    if (!IsOfBody(entry)) continue;
    Result<std::string> line =
        entry.key == "cave" ? BuildCaveLine(files, entry, caveNumber) : Result<std::string>(entry.Text());
    if (!line) return Failure{line.Message()};
    const bool isCave = EndsWithMarker(*line);
    if (isCave && entry.key == "congratulation") {
      return FailureIn(entry.number, "the congratulation ends like a cave, the game would read it as one");
    }
    if (isCave) ++caveNumber;
    lines.push_back(std::move(*line));
  }
  return lines;
}

// The readable entries of a line that starts with a text and its length; nothing if it does not.
std::optional<std::string> WriteMeasured(const HeadKeys& keys, std::string_view line) {
  if (line.empty() || CodeOf(line[0]) < kNumberOffset) return std::nullopt;
  const auto length = static_cast<std::size_t>(CodeOf(line[0]) - kNumberOffset);
  if (line.size() < 1 + length) return std::nullopt;
  const std::string_view rest = line.substr(1 + length);
  std::string content;
  WriteText(content, keys.first, line.substr(1, length));
  if (keys.second == "description") {
    WriteText(content, keys.second, rest);
    return content;
  }
  std::string numbers;
  for (const char letter : rest) {
    if (CodeOf(letter) <= kOpenCaveOffset) return std::nullopt;
    numbers += (numbers.empty() ? "" : " ") + std::to_string(CodeOf(letter) - kOpenCaveOffset);
  }
  WriteText(content, keys.second, numbers);
  return content;
}

std::optional<std::string> WriteMail(const HeadKeys& keys, std::string_view line) {
  if (line.empty()) return std::nullopt;
  std::string content;
  WriteText(content, keys.first, line.substr(0, line.size() - 1));
  WriteText(content, keys.second, line.substr(line.size() - 1));
  return content;
}

void WriteHeadLine(std::string& content, std::size_t line, const std::string& plain) {
  const HeadKeys& keys = kHeadKeys[line];
  const std::optional<std::string> readable = line == 2 ? WriteMail(keys, plain) : WriteMeasured(keys, plain);
  if (readable) {
    content += *readable;
  } else {
    WriteText(content, keys.whole, plain);
  }
}

std::string CaveFileName(int number) {
  return std::string(number < 10 ? "cave-0" : "cave-") + std::to_string(number) + ".txt";
}

}  // namespace

TextFiles UnpackCollection(std::string_view bytes) {
  const std::vector<std::string> lines = PlainLines(bytes);
  TextFiles files;
  std::string content;
  int caveNumber = 1;
  for (std::size_t i = 0; i < lines.size(); ++i) {
    if (i < kHeadLines) {
      WriteHeadLine(content, i, lines[i]);
      continue;
    }
    const bool isCave = EndsWithMarker(lines[i]);
    std::optional<std::string> cave;
    if (isCave) cave = WriteReadableCave(lines[i], caveNumber);
    if (cave) {
      const std::string name = CaveFileName(caveNumber);
      WriteText(content, "cave", name);
      files[name] = std::move(*cave);
    } else {
      const bool isCongratulation = !isCave && i + 1 == lines.size();
      WriteText(content, isCongratulation ? "congratulation" : "line", lines[i]);
    }
    if (isCave) ++caveNumber;
  }
  files[std::string(kCollectionFile)] = std::move(content);
  return files;
}

Result<std::string> PackCollection(const TextFiles& files, Chance& decoration) {
  const auto file = files.find(std::string(kCollectionFile));
  if (file == files.end()) return Failure{"there is no file \"" + std::string(kCollectionFile) + "\""};
  const Result<Entries> entries = ReadEntries(kCollectionFile, file->second);
  if (!entries) return Failure{entries.Message()};
  const Result<Done> keysFit = CheckKeys(kCollectionFile, *entries, kSingleKeys, kBodyKeys);
  if (!keysFit) return Failure{keysFit.Message()};
  const Result<std::vector<std::string>> lines = BuildLines(files, *entries);
  if (!lines) return Failure{lines.Message()};
  return ScrambleLines(*lines, decoration);
}

}  // namespace zorik
