#include "zktool/Verdict.h"

#include <array>
#include <utility>

#include "data/RecordFile.h"
#include "data/Result.h"
#include "run/PlayOut.h"

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
  const PlayedOut played = PlayOut(hra);
  judgement.ticks = played.ticks;
  if (played.end == TickEnd::Won) {
    judgement.score = hra.Win->Score;
    judgement.verdict = judgement.score == judgement.stored ? Verdict::Won : Verdict::ScoreDiffers;
  }
  if (played.ranDry) judgement.verdict = Verdict::RanDry;
  return judgement;
}

}  // namespace zorik
