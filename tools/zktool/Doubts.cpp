#include "zktool/Doubts.h"

#include <algorithm>
#include <array>
#include <set>
#include <string_view>

#include "data/CaveO.h"
#include "data/Collection.h"
#include "data/CollectionFaults.h"
#include "data/Cp1250.h"
#include "data/ReadableCave.h"
#include "data/ReadableText.h"
#include "data/Result.h"
#include "solve/Lint.h"

namespace zorik {
namespace {

std::string LineOf(std::string_view file, int line) {
  return std::string(file) + ", line " + std::to_string(line);
}

// The line of a cave's readable file in which the doubt is to be mended.
int LineOf(const Doubt& doubt, const std::vector<ReadableEntry>& entries) {
  const ReadableEntry* entry = FindEntry(entries, doubt.key);
  if (entry == nullptr && doubt.key == "cat") entry = FindEntry(entries, "cat-text");
  if (entry == nullptr) entry = FindEntry(entries, "cells");
  const bool row =
      doubt.cell && entry->key == "cells" && static_cast<std::size_t>(doubt.cell->y) < entry->lines.size();
  return row ? entry->lines[static_cast<std::size_t>(doubt.cell->y)].number : entry->number;
}

// The doubts about collection.txt.
class MainFile {
 public:
  explicit MainFile(const std::vector<ReadableEntry>& entries) : entries_(entries) {}

  std::vector<PlacedDoubt> Doubts() {
    OpenCaves();
    Lines();
    return std::move(doubts_);
  }

 private:
  void Add(DoubtKind kind, const std::string& place, std::string sentence) {
    doubts_.push_back({place, 0, false, {kind, std::move(sentence), {}, {}}});
  }

  int CaveCount() const {
    return static_cast<int>(std::count_if(entries_.begin(), entries_.end(), [](const ReadableEntry& entry) {
      return entry.key == "cave" || (entry.key == "line" && EndsWithMarker(entry.Text()));
    }));
  }

  void OpenCaves() {
    const int caves = CaveCount();
    if (caves == 0) Add(DoubtKind::NoCave, kCollectionFile, "there is no cave");
    const ReadableEntry* open = FindEntry(entries_, "open");
    if (!open) return;
    for (const std::string& word : WordsOf(open->Text())) {
      if (NumberOf(word, 1, caves)) continue;
      Add(DoubtKind::OpenCave, LineOf(kCollectionFile, open->number),
          "there is no cave " + word + " that could be open, there are " + std::to_string(caves));
    }
  }

  // The game takes a line for a cave by its end alone, and opens no collection with a cave that is none.
  void Lines() {
    for (const ReadableEntry& entry : entries_) {
      const std::string text = entry.Text();
      if (entry.key != "line" || !EndsWithMarker(text)) continue;
      const Result<CaveRecord> cave = ParseCaveText(text);
      if (!cave) {
        Add(DoubtKind::BadLine, LineOf(kCollectionFile, entry.number),
            "the game cannot open the collection with this cave: " + cave.Message());
      }
    }
  }

  const std::vector<ReadableEntry>& entries_;
  std::vector<PlacedDoubt> doubts_;
};

// What a line of a collection's file may have.
std::string SentenceOf(CollectionFault fault) {
  switch (fault) {
    case CollectionFault::UnreadableCave:
      return "the cave cannot be read";
    case CollectionFault::Marker:
      return "the two characters behind \"---\" are no number";
    case CollectionFault::NoCave:
      return "a line among the caves is none";
    case CollectionFault::TooMany:
      return "a collection holds no more caves";
    case CollectionFault::Letters:
      return "there are letters that no scrambling gives";
    case CollectionFault::CutLine:
      return "the last line has no end";
    case CollectionFault::NoCongratulation:
    case CollectionFault::NoCaves:
      break;
  }
  return "there is no cave";
}

// The doubts about the file of a collection.
std::vector<PlacedDoubt> DoubtsOfBytes(const CaveSet& set) {
  std::vector<PlacedDoubt> doubts;
  for (const FaultyLine& line : FaultsOfCollection(set.bytes)) {
    if (line.fault == CollectionFault::NoCongratulation) continue;
    const bool none = line.fault == CollectionFault::NoCaves;
    doubts.push_back({none ? "" : "line " + std::to_string(line.line),
                      0,
                      false,
                      {none ? DoubtKind::NoCave : DoubtKind::BadLine, SentenceOf(line.fault), {}, {}}});
  }
  const Result<PlayedCollection> collection = ReadForPlay(set.bytes);
  for (std::size_t i = set.caves.size() + 1; collection && i < collection->OpenCaves.size(); ++i) {
    if (!collection->OpenCaves[i]) continue;
    doubts.push_back({"line 1",
                      0,
                      false,
                      {DoubtKind::OpenCave,
                       "there is no cave " + std::to_string(i) + " that could be open, there are " +
                           std::to_string(set.caves.size()),
                       {},
                       {}}});
  }
  return doubts;
}

// Those about the names of the records need all caves at once.
void AddNames(const CaveSet& set, std::vector<PlacedDoubt>& doubts) {
  std::vector<std::string> names;
  for (const NamedCave& cave : set.caves) names.push_back(cave.record.Name);
  for (NameDoubt& doubt : DoubtsAboutNames(set.name, names))
    doubts.push_back(Placed(set, doubt.cave, std::move(doubt.doubt)));
}

void AddCaves(const CaveSet& set, std::vector<PlacedDoubt>& doubts) {
  std::set<std::string> seen;
  for (std::size_t i = 0; i < set.caves.size(); ++i) {
    const NamedCave& cave = set.caves[i];
    if (!cave.file.empty() && !seen.insert(cave.file).second) continue;
    for (Doubt& doubt : DoubtsAboutCave(cave.record)) doubts.push_back(Placed(set, i, std::move(doubt)));
  }
}

// The caves that readable files tell, also where a collection with them could not be opened.
CaveSet SetOf(const TextFiles& files, const std::vector<ReadableEntry>& entries) {
  CaveSet set{true, {}, {}, files, {}};
  if (const ReadableEntry* name = FindEntry(entries, "name")) set.name = name->Text();
  for (const ReadableEntry& entry : entries) {
    if (entry.key != "cave") continue;
    const int number = static_cast<int>(set.caves.size()) + 1;
    const std::string file = ToUtf8(entry.Text());
    const Result<std::string> text = ReadReadableCave(file, files.at(file), number);
    const Result<CaveRecord> record = text ? ParseCaveText(*text) : Result<CaveRecord>(Failure{});
    if (record) set.caves.push_back({number, *text, *record, file});
  }
  return set;
}

}  // namespace

PlacedDoubt Placed(const CaveSet& set, std::size_t cave, Doubt doubt) {
  const NamedCave& named = set.caves[cave];
  const auto file = set.texts.find(named.file);
  std::string place = set.collection ? "cave " + std::to_string(named.number) : std::string();
  if (file != set.texts.end()) {
    const auto entries = ReadEntries(file->first, file->second);
    const int line = entries ? LineOf(doubt, *entries) : 0;
    place = set.collection ? LineOf(file->first, line) : "line " + std::to_string(line);
  }
  return {std::move(place), cave, true, std::move(doubt)};
}

std::vector<PlacedDoubt> DoubtsOf(const TextFiles& files) {
  const std::vector<ReadableEntry> entries = *ReadEntries(kCollectionFile, files.at(kCollectionFile));
  std::vector<PlacedDoubt> doubts = MainFile(entries).Doubts();
  const CaveSet set = SetOf(files, entries);
  AddCaves(set, doubts);
  AddNames(set, doubts);
  return doubts;
}

std::vector<PlacedDoubt> DoubtsOf(const CaveSet& set) {
  if (set.texts.contains(kCollectionFile)) return DoubtsOf(set.texts);
  std::vector<PlacedDoubt> doubts;
  if (set.collection) doubts = DoubtsOfBytes(set);
  AddCaves(set, doubts);
  AddNames(set, doubts);
  return doubts;
}

}  // namespace zorik
