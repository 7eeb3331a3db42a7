#include "zktool/Doubts.h"

#include <algorithm>
#include <array>
#include <map>
#include <optional>
#include <set>
#include <string_view>

#include "core/Hra.h"
#include "core/Objects.h"
#include "data/CaveO.h"
#include "data/Cp1250.h"
#include "data/ReadableText.h"
#include "data/Result.h"

namespace zorik {
namespace {

constexpr const char* kMainFile = "collection.txt";

// What a cave's number may be. Some matter only where one of these letters stands.
struct Limits {
  std::string_view key;
  int lowest;
  int highest;
  std::string_view letters;
};
constexpr std::array<Limits, 5> kLimits{{
    {"time", 5, kHighestPair, ""},
    {"magic-wall-time", 1, 150, "M"},
    {"amoeba-time", 1, 150, "A"},
    {"colouring", 0, 14, ""},
    {"slime", 0, 8, ""},
}};

constexpr std::string_view kButterFlies = "UYZB";

// What falls, or leaves something behind that does.
bool Falls(char letter) {
  const ObjectLetter* object = FindLetter(letter);
  if (object == nullptr) return false;
  return object->state == kResting || object->code == kFly || object->code == kAmoeba;
}

// A letter as it can be typed into a readable file.
std::string Spelled(char letter) {
  std::string content;
  WriteLines(content, "", {std::string(1, letter)});
  return content.substr(4, content.size() - 5);  // without ":\n| " and the line end
}

// The doubts about one file.
class CaveFile {
 public:
  CaveFile(const std::string& name, const std::string& content)
      : name_(name), entries_(*ReadEntries(name, content)), cells_(*FindEntry(entries_, "cells")) {
    for (const ReadableLine& row : cells_.lines) {
      for (const char letter : row.text) ++counts_[letter];
    }
  }

  std::vector<std::string> Doubts() {
    NumbersOutOfLimits();
    TooLarge();
    UnknownLetters();
    Dogs();
    if (!Has("T")) Add(cells_.number, "there is no finish");
    TooFewGems();
    return std::move(doubts_);
  }

 private:
  void Add(int line, const std::string& message) {
    doubts_.push_back(FailureAt(name_, line, message).message);
  }

  int CountOf(std::string_view letters) const {
    int count = 0;
    for (const auto& [letter, times] : counts_) {
      if (letters.find(letter) != std::string_view::npos) count += times;
    }
    return count;
  }
  bool Has(std::string_view letters) const { return CountOf(letters) > 0; }
  bool HasWhatFalls() const {
    return std::any_of(counts_.begin(), counts_.end(), [](const auto& count) { return Falls(count.first); });
  }

  // The entry stands in the file, and holds a number.
  int Number(const ReadableEntry& entry) const { return *NumberOf(entry.Text(), 0, kHighestPair); }

  void NumbersOutOfLimits() {
    for (const Limits& limits : kLimits) {
      const ReadableEntry& entry = *FindEntry(entries_, limits.key);
      const int number = Number(entry);
      const bool matters = limits.letters.empty() || Has(limits.letters);
      if (!matters || (number >= limits.lowest && number <= limits.highest)) continue;
      Add(entry.number, entry.key + " is " + std::to_string(number) + ", it should be from " +
                            std::to_string(limits.lowest) + " to " + std::to_string(limits.highest));
    }
  }

  void TooLarge() {
    const std::size_t width = cells_.lines.empty() ? 0 : cells_.lines[0].text.size();
    const std::size_t height = cells_.lines.size();
    if (width > 0 && width <= kMaxWidth && height <= kMaxHeight) return;
    Add(cells_.number, "a cave of " + std::to_string(width) + " x " + std::to_string(height) +
                           " cells cannot be played, the largest has " + std::to_string(kMaxWidth) + " x " +
                           std::to_string(kMaxHeight));
  }

  // Each letter once, where it stands first.
  void UnknownLetters() {
    std::set<char> told;
    for (const ReadableLine& row : cells_.lines) {
      for (const char letter : row.text) {
        if (FindLetter(letter) != nullptr || !told.insert(letter).second) continue;
        const int times = CountOf({&letter, 1});
        Add(row.number, "the letter \"" + Spelled(letter) + "\" means no object" +
                            (times > 1 ? ", it stands there " + std::to_string(times) + " times" : ""));
      }
    }
  }

  void Dogs() {
    int highest = 0;
    std::array<int, 10> count{};
    for (const auto& [letter, times] : counts_) {
      const int dog = DogNumber(letter);
      highest = std::max(highest, dog);
      count[static_cast<std::size_t>(dog)] += times;
    }
    if (highest == 0) return Add(cells_.number, "there is no dog");
    for (int dog = 1; dog <= highest; ++dog) {
      const int times = count[static_cast<std::size_t>(dog)];
      const std::string name = "dog " + std::to_string(dog);
      if (times == 0) Add(cells_.number, name + " is missing, the highest is dog " + std::to_string(highest));
      if (times > 1) Add(cells_.number, name + " stands there " + std::to_string(times) + " times");
    }
  }

  // Steel lies around the cave as well.
  bool HasSplitter() const {
    return std::any_of(cells_.lines.begin(), cells_.lines.end(), [](const ReadableLine& row) {
      return ("W" + row.text + "W").find("WEW") != std::string::npos;
    });
  }

  // Gems come from butterflies and amoebas, and from all that falls into a magic wall; a splitter makes two
  // of one. Where any of these is nobody can tell how many there will be.
  bool GemsCanBeMade() const {
    if (Has(kButterFlies) || Has("A")) return true;
    if (Has("M") && HasWhatFalls()) return true;
    return Has("D") && HasSplitter();
  }

  void TooFewGems() {
    const ReadableEntry& entry = *FindEntry(entries_, "gems");
    const int needed = Number(entry);
    const int there = CountOf("D");
    if (there >= needed || GemsCanBeMade()) return;
    Add(entry.number, "the finish opens at " + std::to_string(needed) + " gems, but the cave has " +
                          std::to_string(there) + " and nothing that makes more");
  }

  const std::string& name_;
  std::vector<ReadableEntry> entries_;
  const ReadableEntry& cells_;
  std::map<char, int> counts_;
  std::vector<std::string> doubts_;
};

// The doubts about collection.txt.
class MainFile {
 public:
  explicit MainFile(const std::vector<ReadableEntry>& entries) : entries_(entries) {}

  std::vector<std::string> Doubts() {
    OpenCaves();
    Lines();
    return std::move(doubts_);
  }

 private:
  void Add(int line, const std::string& message) {
    doubts_.push_back(FailureAt(kMainFile, line, message).message);
  }

  int CaveCount() const {
    return static_cast<int>(std::count_if(entries_.begin(), entries_.end(), [](const ReadableEntry& entry) {
      return entry.key == "cave" || (entry.key == "line" && EndsWithMarker(entry.Text()));
    }));
  }

  void OpenCaves() {
    const int caves = CaveCount();
    if (caves == 0) doubts_.push_back(std::string(kMainFile) + ": there is no cave");
    const ReadableEntry* open = FindEntry(entries_, "open");
    if (!open) return;
    for (const std::string& word : WordsOf(open->Text())) {
      if (NumberOf(word, 1, caves)) continue;
      Add(open->number,
          "there is no cave " + word + " that could be open, there are " + std::to_string(caves));
    }
  }

  // The game takes a line for a cave by its end alone, and opens no collection with a cave that is none.
  void Lines() {
    for (const ReadableEntry& entry : entries_) {
      const std::string text = entry.Text();
      if (entry.key != "line" || !EndsWithMarker(text)) continue;
      const Result<CaveRecord> cave = ParseCaveText(text);
      if (!cave) Add(entry.number, "the game cannot open the collection with this cave: " + cave.Message());
    }
  }

  const std::vector<ReadableEntry>& entries_;
  std::vector<std::string> doubts_;
};

}  // namespace

std::vector<std::string> DoubtsOf(const TextFiles& files) {
  const std::vector<ReadableEntry> entries = *ReadEntries(kMainFile, files.at(kMainFile));
  std::vector<std::string> doubts = MainFile(entries).Doubts();
  std::set<std::string> seen;
  for (const ReadableEntry& entry : entries) {
    const std::string name = ToUtf8(entry.Text());
    if (entry.key != "cave" || !seen.insert(name).second) continue;
    const auto file = files.find(name);
    for (std::string& doubt : CaveFile(file->first, file->second).Doubts())
      doubts.push_back(std::move(doubt));
  }
  return doubts;
}

}  // namespace zorik
