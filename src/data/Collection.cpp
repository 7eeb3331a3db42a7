#include "data/Collection.h"

#include <algorithm>
#include <cstddef>
#include <utility>

#include "data/Files.h"
#include "data/Lines.h"
#include "data/RecordFile.h"
#include "data/Result.h"
#include "data/Scramble.h"

namespace zorik {

namespace {

constexpr int kClosedFlag = 'Q';
constexpr char kOpenToEditing = '0';

int CodeOf(char character) {
  return static_cast<unsigned char>(character);
}

bool IsDigit(char character) {
  return character >= '0' && character <= '9';
}

// What both readers take from the first three lines.
struct Head {
  std::string name;
  CaveFlags openCaves;
  std::string author;
  std::string description;
  std::string mail;
  char flag = kOpenToEditing;
};

// A line that starts with a text and its length.
struct MeasuredLine {
  std::string text;
  std::string rest;
};

Result<MeasuredLine> ReadMeasured(const std::string& line, int number) {
  const std::string place = "line " + std::to_string(number) + " of the collection ";
  if (line.empty()) return Failure{place + "is empty"};
  const int code = CodeOf(line[0]);
  if (code < kNumberOffset) {
    return Failure{place + "starts with no length (code " + std::to_string(code) + ", at least 65 expected)"};
  }
  const auto length = static_cast<std::size_t>(code - kNumberOffset);
  return MeasuredLine{line.substr(1, length), line.substr(std::min(line.size(), 1 + length))};
}

// Numbers beyond the lists mark nothing.
CaveFlags OpenCavesOf(std::string_view letters) {
  CaveFlags open;
  for (const char letter : letters) {
    const int number = CodeOf(letter) - kOpenCaveOffset;
    if (number >= 1 && number <= kMostCaves) open.set(static_cast<std::size_t>(number));
  }
  return open;
}

Result<Head> ReadHead(const std::vector<std::string>& lines) {
  if (lines.size() < kHeadLines) {
    return Failure{"the collection ends after line " + std::to_string(lines.size()) +
                   ", its name, author and e-mail take three"};
  }
  Result<MeasuredLine> first = ReadMeasured(lines[0], 1);
  if (!first) return Failure{first.Message()};
  Result<MeasuredLine> second = ReadMeasured(lines[1], 2);
  if (!second) return Failure{second.Message()};
  Head head;
  head.name = std::move(first->text);
  head.openCaves = OpenCavesOf(first->rest);
  head.author = std::move(second->text);
  head.description = std::move(second->rest);
  head.mail = lines[2];
  if (!head.mail.empty()) {
    head.flag = head.mail.back();
    head.mail.pop_back();
  }
  return head;
}

Failure TooManyCaves(std::size_t line) {
  return Failure{"line " + std::to_string(line) + " of the collection is cave " +
                 std::to_string(kMostCaves + 1) + ", there may be " + std::to_string(kMostCaves)};
}

// An address that a mail program could do something with.
bool IsAddress(std::string_view mail) {
  constexpr std::size_t kShortest = 6;
  return mail.size() >= kShortest && mail.find('@') != std::string_view::npos;
}

Result<std::string> MeasuredText(const std::string& text, const char* what) {
  if (text.size() > kHighestNumber) {
    return Failure{std::string("the ") + what + " of the collection has " + std::to_string(text.size()) +
                   " characters, it may have " + std::to_string(kHighestNumber)};
  }
  return static_cast<char>(text.size() + kNumberOffset) + text;
}

// The rows of a new cave are told by its frame: steel around dirt, a dog in the corner and a finish in the
// frame at the other end.
char NewCell(int x, int y, int width, int height) {
  if (x == width - 1 && y == height - 2) return 'T';
  if (x == 0 || y == 0 || x == width - 1 || y == height - 1) return 'W';
  return x == 2 && y == 2 ? '1' : ';';
}

}  // namespace

bool EndsWithCaveNumber(std::string_view line) {
  return EndsWithMarker(line) && IsDigit(line[line.size() - 2]) && IsDigit(line.back());
}

std::string MarkerDigits(int number) {
  return {static_cast<char>('0' + number / 10), static_cast<char>('0' + number % 10)};
}

std::vector<std::string> PlainLines(std::string_view bytes) {
  std::vector<std::string> plain;
  for (RecordLines lines(std::string(bytes), LineEnds::CrLfOrLf); !lines.AtEnd();) {
    plain.push_back(UnscrambleText(lines.Next()));
  }
  return plain;
}

std::string ScrambleLines(const std::vector<std::string>& lines, Chance& decoration) {
  std::string bytes;
  for (const std::string& line : lines) bytes += ScrambleText(line, decoration) + "\r\n";
  return bytes;
}

Result<EditedCollection> ReadForEditor(std::string_view bytes) {
  const std::vector<std::string> lines = PlainLines(bytes);
  Result<Head> head = ReadHead(lines);
  if (!head) return Failure{head.Message()};
  EditedCollection collection;
  collection.Name = std::move(head->name);
  collection.Author = std::move(head->author);
  collection.Description = std::move(head->description);
  collection.Mail = std::move(head->mail);
  collection.Closed = CodeOf(head->flag) >= kClosedFlag;
  if (collection.Closed) return collection;
  collection.OpenFlags = head->openCaves;
  for (std::size_t i = kHeadLines; i < lines.size(); ++i) {
    if (!EndsWithCaveNumber(lines[i]) || collection.CaveList.size() == kMostCaves) continue;
    collection.CaveList.emplace_back(WithoutMarker(lines[i]));
  }
  if (lines.size() > kHeadLines) collection.CongratulationText = lines.back();
  return collection;
}

Result<PlayedCollection> ReadForPlay(std::string_view bytes) {
  const std::vector<std::string> lines = PlainLines(bytes);
  Result<Head> head = ReadHead(lines);
  if (!head) return Failure{head.Message()};
  PlayedCollection collection;
  collection.Name = std::move(head->name);
  collection.Author = std::move(head->author);
  collection.Description = std::move(head->description);
  if (IsAddress(head->mail)) collection.AuthorMail = std::move(head->mail);
  collection.OpenCaves = head->openCaves;
  for (std::size_t i = kHeadLines; i < lines.size(); ++i) {
    if (!EndsWithMarker(lines[i])) continue;
    if (collection.Caves.size() == kMostCaves) return TooManyCaves(i + 1);
    Result<CaveRecord> record = ParseCaveText(lines[i]);
    if (!record) {
      return Failure{"cave " + std::to_string(collection.Caves.size() + 1) + " in line " +
                     std::to_string(i + 1) + " of the collection: " + record.Message()};
    }
    collection.Caves.push_back({lines[i], std::move(*record)});
  }
  const bool caveComesLast = lines.size() == kHeadLines || EndsWithMarker(lines.back());
  if (!caveComesLast) collection.Congratulation = lines.back();
  return collection;
}

Result<std::string> BuildCollection(const EditedCollection& collection, Chance& decoration) {
  Result<std::string> first = MeasuredText(collection.Name, "name");
  if (!first) return first;
  const Result<std::string> second = MeasuredText(collection.Author, "author");
  if (!second) return second;
  const std::size_t count = collection.CaveList.size();
  if (count == 0) return Failure{"the collection has no cave"};
  if (count > kMostCaves) {
    return Failure{"the collection has " + std::to_string(count) + " caves, it may have " +
                   std::to_string(kMostCaves)};
  }
  std::vector<std::string> lines;
  for (std::size_t number = 1; number <= count; ++number) {
    if (number == 1 || collection.OpenFlags[number]) *first += static_cast<char>(kOpenCaveOffset + number);
  }
  lines.push_back(std::move(*first));
  lines.push_back(*second + collection.Description);
  lines.push_back(collection.Mail + kOpenToEditing);
  for (std::size_t i = 0; i < count; ++i) {
    lines.push_back(collection.CaveList[i] + "---" + MarkerDigits(static_cast<int>(i + 1)));
  }
  lines.push_back(EndsWithMarker(collection.CongratulationText) ? "" : collection.CongratulationText);
  return ScrambleLines(lines, decoration);
}

std::string FindCaveText(std::string_view bytes, int number) {
  if (number < 0 || number > kMostCaves) return {};
  const std::string digits = MarkerDigits(number);
  for (RecordLines lines(std::string(bytes), LineEnds::CrLfOrLf); !lines.AtEnd();) {
    std::string plain = UnscrambleText(lines.Next());
    if (EndsWithMarker(plain) && plain.ends_with(digits)) return plain;
  }
  return {};
}

Result<std::string> NewCaveText(NewCaveSize size, const NewCaveTexts& texts) {
  const bool small = size == NewCaveSize::Small;
  CaveRecord cave;
  cave.Name = small ? texts.SmallName : texts.LargeName;
  cave.Description = texts.Description;
  cave.SlimePermeability = 4;
  cave.Width = small ? 19 : 30;
  cave.Height = small ? 11 : 20;
  cave.Time = small ? 150 : 300;
  cave.GemsNeeded = 0;  // no gem lies in it, so the finish opens at once
  cave.PointsBefore = 10;
  cave.PointsAfter = 15;
  cave.MagicWallTime = 20;
  cave.AmoebaTime = 30;
  cave.Colouring = 4;
  for (int x = 0; x < cave.Width; ++x) {
    for (int y = 0; y < cave.Height; ++y) {
      cave.Cells[static_cast<std::size_t>(x)][static_cast<std::size_t>(y)] =
          NewCell(x, y, cave.Width, cave.Height);
    }
  }
  return BuildCaveText(cave);
}

Result<std::string> FetchCaveText(const std::string& source, int number, const NewCaveTexts& texts) {
  if (source == "*2") return NewCaveText(NewCaveSize::Large, texts);
  if (source == "*1") return NewCaveText(NewCaveSize::Small, texts);
  const Result<std::string> bytes = ReadStream(source);
  if (!bytes) return bytes;
  return FindCaveText(*bytes, number);
}

}  // namespace zorik
