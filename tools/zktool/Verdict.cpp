#include "zktool/Verdict.h"

#include <array>
#include <utility>

#include "data/RecordFile.h"
#include "data/Result.h"

namespace zorik {
namespace {

// The score in the head of the record that has been started.
int StoredScore(const Hra& hra) {
  RecordLines whole = hra.WholeRecord;
  RecordLines firstLine{std::string(whole.Next())};
  return ReadRecordHead(firstLine).Score;
}

}  // namespace

std::string_view WordOf(Verdict verdict) {
  constexpr std::array<std::string_view, kVerdicts> kWords{"unreadable", "bad-cave",      "ran-dry",
                                                           "not-won",    "score-differs", "won"};
  return kWords[static_cast<std::size_t>(verdict)];
}

Judgement Judge(Hra& hra, std::string bytes) {
  Judgement judgement;
  const Result<Done> started = Replay(hra, std::move(bytes));
  if (!started) {
    judgement.verdict = Verdict::BadCave;
    judgement.message = started.Message();
    return judgement;
  }
  judgement.stored = StoredScore(hra);
  judgement.verdict = Verdict::NotWon;
  const KeySnapshot nothing;
  bool ranDry = false;
  TickEnd end = TickEnd::Running;
  while (end == TickEnd::Running) {
    judgement.ticks = hra.Ticks;
    end = Tick(hra, nothing);
    ranDry = ranDry || hra.RanDry;
  }
  if (end == TickEnd::Won) {
    judgement.ticks = hra.Ticks;
    judgement.score = hra.Win->Score;
    judgement.verdict = judgement.score == judgement.stored ? Verdict::Won : Verdict::ScoreDiffers;
  }
  if (ranDry) judgement.verdict = Verdict::RanDry;
  return judgement;
}

}  // namespace zorik
