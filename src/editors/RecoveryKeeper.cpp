#include "editors/RecoveryKeeper.h"

#include <QDateTime>
#include <utility>

#include "data/Result.h"
#include "flow/SadaModel.h"
#include "platform/Paths.h"
#include "screens/StartWords.h"
#include "skin/Skin.h"

namespace zorik {
namespace {

constexpr StartWords kFailedWords{"caption.recovery.failed"};

}  // namespace

std::string RecoveryFolder(const Paths& paths) {
  return paths.AppPath + "/Recovery";
}

RecoveryKeeper::RecoveryKeeper(const Skin& skin, const SadaModel& sada, const Paths& paths)
    : skin_(skin), sada_(sada), store_(RecoveryFolder(paths)) {
  timer_.setTimerType(Qt::PreciseTimer);
  timer_.setInterval(kEvery);
  timer_.callOnTimeout(this, &RecoveryKeeper::Keep);
}

void RecoveryKeeper::Begin() {
  editing_ = true;
  timer_.start();
}

void RecoveryKeeper::End() {
  editing_ = false;
  timer_.stop();
  if (!ending_) store_.Clear();
}

// A collection whose cave editor has stored it counts as unchanged, and yet the cave may go on.
bool RecoveryKeeper::ToBeLost(const std::optional<std::string>& cave) const {
  return editing_ && (sada_.Chg() || (cave && *cave != sada_.Cave(sada_.ListSelected())));
}

void RecoveryKeeper::Keep() {
  if (ending_) return;
  const std::optional<std::string> cave = cave_ ? cave_() : std::nullopt;
  if (!ToBeLost(cave)) return Settle();
  const Result<KeptSada> sada = sada_.Kept(cave);
  Written(sada ? store_.Keep(*sada, QDateTime::currentSecsSinceEpoch()) : Failure{sada.Message()});
}

void RecoveryKeeper::Settle() {
  if (!ending_ && !ToBeLost(cave_ ? cave_() : std::nullopt)) store_.Clear();
}

void RecoveryKeeper::Discard() {
  if (ending_ || !ToBeLost(std::nullopt)) return;
  const Result<KeptSada> sada = sada_.Kept(std::nullopt);
  Written(sada ? store_.Discard(*sada, QDateTime::currentSecsSinceEpoch()) : Failure{sada.Message()});
}

void RecoveryKeeper::KeepForEnd() {
  Keep();
  ending_ = true;
  timer_.stop();
}

void RecoveryKeeper::TookUp(const KeptEntry& left) {
  Keep();
  if (!failed_) Written(store_.Delete(left));
}

// Told once, until it goes well again.
void RecoveryKeeper::Written(const Result<Done>& written) {
  const bool told = std::exchange(failed_, !written);
  if (failed_ && !told) sign_.Say(kFailedWords.In(skin_));
}

}  // namespace zorik
