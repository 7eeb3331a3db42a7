// A run and its record: played back, started afresh, let go at the end, handed out when the run is won.
#include "core/Machine.h"
#include "data/Lines.h"
#include "data/RecordFile.h"
#include "data/Result.h"

namespace zorik {
namespace {

Result<Done> PlayFromStart(Hra& hra, RecordLines lines) {
  const RecordLines whole = lines;
  const RecordHead head = ReadRecordHead(lines);
  const Result<CaveRecord> cave = ReadCave(head.CaveText);
  if (!cave) return Failure{cave.Message()};
  hra.WholeRecord = whole;
  hra.Record = lines;
  hra.CollectionName = head.CollectionName;
  hra.RecordPlayer = head.Player.empty() ? hra.PlayerName : head.Player;
  hra.Score = 0;
  StartRun(hra, head.CaveText, *cave, RunKind::Replay);
  return Done{};
}

}  // namespace

Result<Done> Replay(Hra& hra, std::string bytes) {
  return PlayFromStart(hra, RecordLines(std::move(bytes)));
}

// What has been started once can be started again.
void RestartCave(Hra& hra) {
  if (hra.ReplayPlaying()) {
    Disregard(PlayFromStart(hra, RecordLines(hra.WholeRecord)));
  } else {
    Disregard(PaintCave(hra, hra.CaveText, hra.Kind));
  }
}

void EndGame(Hra& hra) {
  hra.stage().StopSounds();
  hra.Record = RecordLines();
  hra.WholeRecord = RecordLines();
}

std::string SaveRecord(Hra& hra, int score) {
  if (!hra.Recording || hra.ReplayPlaying() || hra.Practising()) return {};
  const std::string player = hra.EditorRun() ? std::string() : hra.PlayerName;
  return BuildRecordHead(hra.CollectionName, score, player, hra.Decoration) + hra.RecordText;
}

}  // namespace zorik
