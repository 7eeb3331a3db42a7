#include "zktool/Standing.h"

#include <array>
#include <cstddef>
#include <filesystem>
#include <system_error>

#include "data/CaveO.h"
#include "data/Cp1250.h"
#include "data/Files.h"
#include "data/Result.h"

namespace zorik {
namespace {

namespace fs = std::filesystem;

std::string NameOfCave(const RecordHead& head) {
  const Result<CaveRecord> cave = ParseCaveText(head.CaveText);
  return cave ? cave->Name : std::string();
}

// Whether the game, looking for the record of this name in the file's folder, would find the file.
bool GoesBy(const std::string& name, const fs::path& file) {
  const fs::path folder = file.has_parent_path() ? file.parent_path() : fs::path(".");
  std::error_code error;
  return fs::equivalent(ResolvePath((folder / FileSystemName(name)).string()), file, error);
}

Worth WorthOf(const fs::path& file, const RecordHead& head, const std::string& nameOfCave,
              const PlayedCollection& collection, const PlayedCave& cave) {
  if (!head.CaveText.empty() && WithoutMarker(head.CaveText) == WithoutMarker(cave.Text)) {
    return GoesBy(RecordFileName(collection.Name, cave.Record.Name), file) ? Worth::Yes : Worth::Misnamed;
  }
  return !nameOfCave.empty() && nameOfCave == cave.Record.Name ? Worth::Changed : Worth::No;
}

std::string ReasonOf(const Standing& standing, const PlayedCollection& collection) {
  const std::string number = std::to_string(standing.number);
  switch (standing.worth) {
    case Worth::No:
      return "the collection has no such cave";
    case Worth::Changed:
      return "cave " + number + " has the same name, but it is another cave";
    case Worth::Misnamed: {
      const std::string& cave = collection.Caves[static_cast<std::size_t>(standing.number) - 1].Record.Name;
      return "cave " + number + "; the game looks for its record as \"" +
             FileSystemName(RecordFileName(collection.Name, cave)) + "\"";
    }
    case Worth::Yes:
      break;
  }
  return {};
}

}  // namespace

std::string_view WordOf(Worth worth) {
  constexpr std::array<std::string_view, 4> kWords{"no", "changed", "misnamed", "yes"};
  return kWords[static_cast<std::size_t>(worth)];
}

Standing StandingOf(const std::string& path, const RecordHead& head, const PlayedCollection& collection) {
  Standing standing;
  const std::string nameOfCave = NameOfCave(head);
  for (std::size_t i = 0; i < collection.Caves.size(); ++i) {
    const Worth worth = WorthOf(path, head, nameOfCave, collection, collection.Caves[i]);
    if (worth > standing.worth) standing = {worth, static_cast<int>(i) + 1, {}};
  }
  standing.reason = ReasonOf(standing, collection);
  return standing;
}

}  // namespace zorik
