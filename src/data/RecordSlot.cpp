#include "data/RecordSlot.h"

#include <algorithm>
#include <filesystem>
#include <system_error>
#include <utility>

#include "data/CaveO.h"
#include "data/Cp1250.h"
#include "data/Files.h"
#include "data/Lines.h"
#include "data/RecordFile.h"
#include "data/Result.h"

namespace zorik {
namespace {

// A cave that was changed keeps its names; one that shares its name with another is known by its text.
bool IsOfAnotherCave(const RecordSlot& slot, const RecordHead& head, const std::string& caveName) {
  const std::string text(WithoutMarker(head.CaveText));
  const bool sameNames = head.CollectionName == slot.CollectionName && caveName == slot.CaveName;
  const auto& others = slot.OtherCaves;
  return !sameNames || std::find(others.begin(), others.end(), text) != others.end();
}

}  // namespace

bool SameSlot(const RecordSlot& one, const RecordSlot& other) {
  return one.CaveText == other.CaveText && FoldFileName(one.Path) == FoldFileName(other.Path);
}

StandingRecord ReadStanding(const RecordSlot& slot) {
  Result<std::string> bytes = ReadWhole(slot.Path);
  if (!bytes) return {};
  RecordLines lines(std::move(*bytes));
  const RecordHead head = ReadRecordHead(lines);
  if (WithoutMarker(head.CaveText) == slot.CaveText) {
    return {StandingRecord::Kind::ThisCave, head.Score, {}, {}};
  }
  const auto cave = ParseCaveText(head.CaveText);
  const bool isRecord = cave && cave->Width > 0;  // an empty text is an empty cave
  if (!isRecord || !IsOfAnotherCave(slot, head, cave->Name)) return {};
  return {StandingRecord::Kind::AnotherCave, head.Score, head.CollectionName, cave->Name};
}

Result<Done> StoreRun(const WonRun& run) {
  std::error_code error;
  std::filesystem::create_directories(std::filesystem::path(run.Slot.Path).parent_path(), error);
  return WriteWhole(run.Slot.Path, run.Bytes);
}

void UnstoredWins::Keep(WonRun run) {
  Drop(run.Slot);
  kept_.push_back({std::move(run), false});
}

void UnstoredWins::Drop(const RecordSlot& slot) {
  std::erase_if(kept_, [&slot](const Kept& kept) { return SameSlot(kept.Run.Slot, slot); });
}

void UnstoredWins::SavedElsewhere(const RecordSlot& slot) {
  for (Kept& kept : kept_) {
    if (SameSlot(kept.Run.Slot, slot)) kept.Elsewhere = true;
  }
}

const WonRun* UnstoredWins::Find(const RecordSlot& slot) const {
  for (const Kept& kept : kept_) {
    if (SameSlot(kept.Run.Slot, slot)) return &kept.Run;
  }
  return nullptr;
}

void UnstoredWins::StoreAll() {
  std::erase_if(kept_, [](const Kept& kept) {
    return ReadStanding(kept.Run.Slot).Of != StandingRecord::Kind::AnotherCave && StoreRun(kept.Run);
  });
}

std::vector<WonRun> UnstoredWins::AtRisk() const {
  std::vector<WonRun> runs;
  for (const Kept& kept : kept_) {
    if (!kept.Elsewhere) runs.push_back(kept.Run);
  }
  return runs;
}

bool JeLepsi(const WonRun& run, const UnstoredWins& wins) {
  if (const WonRun* const kept = wins.Find(run.Slot)) return kept->Score <= run.Score;
  const StandingRecord standing = ReadStanding(run.Slot);
  return standing.Of != StandingRecord::Kind::ThisCave || standing.Score <= run.Score;
}

}  // namespace zorik
