#include "data/Progress.h"

#include <cstddef>
#include <utility>

#include "data/Cp1250.h"
#include "data/Files.h"
#include "data/Lines.h"
#include "data/RecordFile.h"
#include "data/Result.h"
#include "data/Trimmed.h"

namespace zorik {

namespace {

struct CaveResult {
  CaveState state;
  int score;
};

// What a record file says about a cave; nothing if it is missing or of another cave.
std::optional<CaveResult> ResultOf(const PlayedCollection& collection, const PlayedCave& cave,
                                   std::string_view player, const RecordSource& records) {
  std::optional<std::string> bytes = records(RecordFileName(collection.Name, cave.Record.Name));
  if (!bytes) return std::nullopt;
  RecordLines lines(std::move(*bytes));
  const RecordHead head = ReadRecordHead(lines);
  if (WithoutMarker(head.CaveText) != WithoutMarker(cave.Text)) return std::nullopt;
  return CaveResult{SamePlayer(head.Player, player) ? CaveState::Solved : CaveState::SolvedByOther,
                    head.Score};
}

bool IsBonus(const PlayedCollection& collection, std::size_t number) {
  return JeBonus(collection.Caves[number - 1].Record.Name);
}

}  // namespace

bool SamePlayer(std::string_view left, std::string_view right) {
  return LowerCase(Trimmed(left)) == LowerCase(Trimmed(right));
}

RecordSource RecordsInFolder(std::string folder) {
  return RecordsInFolder(std::make_shared<FolderNames>(std::move(folder)));
}

RecordSource RecordsInFolder(std::shared_ptr<FolderNames> names) {
  return [names = std::move(names)](const std::string& name) -> std::optional<std::string> {
    Result<std::string> bytes = ReadWhole(names->PathOf(FileSystemName(name)));
    if (!bytes) return std::nullopt;
    return std::move(*bytes);
  };
}

Progress ReadProgress(const PlayedCollection& collection, std::string_view player,
                      const RecordSource& records) {
  Progress progress;
  auto& states = progress.CaveStates;
  const std::size_t count = collection.Caves.size();
  for (std::size_t i = 1; i < states.size(); ++i) {
    if (collection.OpenCaves[i]) states[i] = CaveState::Open;
  }
  for (std::size_t i = 1; i <= count; ++i) {
    if (const auto result = ResultOf(collection, collection.Caves[i - 1], player, records)) {
      states[i] = result->state;
      progress.Scores[i] = result->score;
      if (i + 1 < states.size()) states[i + 1] = CaveState::Open;
    }
    const bool afterOpenBonus = i > 1 && IsBonus(collection, i - 1) && states[i - 1] != CaveState::Closed;
    if (afterOpenBonus && states[i] == CaveState::Closed) states[i] = CaveState::Open;
  }
  CelkSkore(collection, progress);
  return progress;
}

void CelkSkore(const PlayedCollection& collection, Progress& progress) {
  const std::size_t count = collection.Caves.size();
  progress.Total = 0;
  progress.Done = 0;
  for (std::size_t i = 1; i <= count; ++i) {
    const CaveState state = progress.CaveStates[i];
    progress.Total += progress.Scores[i];
    if (state == CaveState::Solved || (state == CaveState::Open && IsBonus(collection, i))) ++progress.Done;
  }
  progress.Rest = static_cast<int>(count) - progress.Done;
}

}  // namespace zorik
