#include "flow/Rivals.h"

#include <algorithm>
#include <filesystem>
#include <system_error>
#include <tuple>
#include <utility>

#include "data/Files.h"
#include "data/FolderNames.h"
#include "data/Folders.h"
#include "data/PlayerName.h"
#include "data/Result.h"

namespace zorik {
namespace {

namespace fs = std::filesystem;

// The place that a record of the same name has in another player's folder.
RecordSlot SlotIn(const std::string& players, const std::string& folder, const RecordSlot& slot) {
  RecordSlot his = slot;
  his.Path = FolderNames(players + "/" + folder).PathOf(fs::path(slot.Path).filename().string());
  return his;
}

}  // namespace

std::vector<Rival> FindRivals(const std::string& players, const RecordSlot& slot) {
  std::vector<Rival> rivals;
  const fs::path own = fs::path(slot.Path).parent_path();
  for (const std::string& folder : FoldersIn(players)) {
    if (!IsPlayerFolder(folder)) continue;
    std::error_code error;
    if (fs::equivalent(players + "/" + folder, own, error)) continue;
    const StandingRecord standing = ReadStanding(SlotIn(players, folder, slot));
    if (standing.Of != StandingRecord::Kind::ThisCave) continue;
    rivals.push_back({folder, PlayerOfFolder(folder), standing.Score});
  }
  std::sort(rivals.begin(), rivals.end(), [](const Rival& one, const Rival& other) {
    return std::tie(other.Score, one.Player, one.Folder) < std::tie(one.Score, other.Player, other.Folder);
  });
  return rivals;
}

std::optional<std::string> RecordOfRival(const std::string& players, const std::string& folder,
                                         const RecordSlot& slot) {
  const RecordSlot his = SlotIn(players, folder, slot);
  if (ReadStanding(his).Of != StandingRecord::Kind::ThisCave) return std::nullopt;
  Result<std::string> bytes = ReadWhole(his.Path);
  if (!bytes) return std::nullopt;
  return std::move(*bytes);
}

}  // namespace zorik
