#include "zktool/Caves.h"

#include <algorithm>
#include <filesystem>

#include "data/Collection.h"
#include "data/Cp1250.h"
#include "data/Files.h"
#include "data/ReadableCave.h"
#include "data/ReadableText.h"
#include "data/Result.h"
#include "data/TextFolder.h"

namespace zorik {
namespace {

constexpr const char* kNoCollection = "sada";

bool LooksReadable(const std::string& bytes) {
  return bytes.starts_with("cells:") || bytes.find("\ncells:") != std::string::npos;
}

CaveSet OfCollection(const PlayedCollection& collection, std::string bytes) {
  CaveSet set{true, collection.Name, {}, {}, std::move(bytes)};
  for (const PlayedCave& cave : collection.Caves)
    set.caves.push_back({static_cast<int>(set.caves.size()) + 1, cave.Text, cave.Record, {}});
  return set;
}

Needed<CaveSet> ReadFolder(const std::string& folder) {
  Result<TextFiles, TextFailure> texts = ReadTexts(folder);
  if (!texts) return Refusal{{texts.Message()}, Exit::CannotRead};
  Chance decoration;
  Result<std::string> bytes = PackCollection(*texts, decoration);
  if (!bytes) return Refusal{{folder + ": " + bytes.Message()}, Exit::BadText};
  const Result<PlayedCollection> collection = ReadForPlay(*bytes);
  if (!collection) return Refusal{{folder + ": " + collection.Message()}, Exit::BadCollection};
  CaveSet set = OfCollection(*collection, std::move(*bytes));
  set.texts = std::move(*texts);
  const std::vector<std::string> files = NamedCaveFiles(set.texts[kCollectionFile]);
  for (std::size_t i = 0; i < std::min(files.size(), set.caves.size()); ++i) set.caves[i].file = files[i];
  return set;
}

// The collection of which the file beside is the main one, if the cave is one of it.
void FindPlace(const std::filesystem::path& path, NamedCave& cave, std::string& collection) {
  const Result<std::string> content = ReadWhole((path.parent_path() / kCollectionFile).string());
  if (!content) return;
  const std::vector<std::string> files = NamedCaveFiles(*content);
  const auto place = std::find(files.begin(), files.end(), cave.file);
  const auto entries = ReadEntries(kCollectionFile, *content);
  if (place == files.end() || !entries) return;
  cave.number = static_cast<int>(place - files.begin()) + 1;
  if (const ReadableEntry* name = FindEntry(*entries, "name")) collection = name->Text();
}

Needed<CaveSet> ReadReadable(const std::string& path, const std::string& content) {
  CaveSet set{false, kNoCollection, {}, {}, {}};
  NamedCave cave;
  cave.file = std::filesystem::path(path).filename().string();
  FindPlace(path, cave, set.name);
  Result<std::string> text = ReadReadableCave(path, content, std::max(cave.number, 1));
  if (!text) return Refusal{{text.Message()}, Exit::BadText};
  const Result<CaveRecord> record = ParseCaveText(*text);
  if (!record) return Refusal{{path + ": " + record.Message()}, Exit::BadCave};
  cave.text = std::move(*text);
  cave.record = *record;
  set.texts[cave.file] = content;
  set.caves.push_back(std::move(cave));
  return set;
}

}  // namespace

Needed<CaveSet> ReadCaves(const std::string& path) {
  std::error_code error;
  if (std::filesystem::is_directory(path, error)) return ReadFolder(path);
  Result<std::string> bytes = ReadStream(path);
  if (!bytes) return Refusal{{bytes.Message()}, Exit::CannotRead};
  return ReadCavesIn(path, std::move(*bytes));
}

Needed<CaveSet> ReadCavesIn(const std::string& path, std::string bytes) {
  if (LooksReadable(bytes)) return ReadReadable(path, bytes);
  const Result<PlayedCollection> collection = ReadForPlay(bytes);
  if (collection) return OfCollection(*collection, std::move(bytes));
  const Result<CaveRecord> record = ParseCaveText(bytes);
  const bool named = FoldFileName(path).ends_with(".zk");
  if (named) return Refusal{{path + ": " + collection.Message()}, Exit::BadCollection};
  if (!record) return Refusal{{path + ": " + record.Message()}, Exit::BadCave};
  if (bytes.empty()) return Refusal{{path + ": the cave is empty"}, Exit::BadCave};
  return CaveSet{false, kNoCollection, {{0, std::move(bytes), *record, {}}}, {}, {}};
}

std::string ShownName(const CaveRecord& cave) {
  return WithoutControls(ToUtf8(cave.Name));
}

}  // namespace zorik
