#include "screens/RecordKeeper.h"

#include <QDir>
#include <QFileInfo>
#include <QString>
#include <vector>

#include "data/Files.h"
#include "data/Result.h"
#include "platform/PathText.h"
#include "screens/MsgBox.h"
#include "screens/SaveBox.h"
#include "screens/StartWords.h"
#include "screens/Wording.h"
#include "skin/Shown.h"
#include "skin/Skin.h"

namespace zorik {
namespace {

constexpr int kTitle = 99;  // places in the language table
constexpr int kRecordKind = 109;
constexpr std::size_t kMostNamed = 12;  // of the records that a box lists

QString PathOf(const WonRun& run) {
  return PathText(run.Slot.Path);
}

QString ListOf(const std::vector<WonRun>& runs) {
  QString list;
  for (std::size_t i = 0; i < std::min(runs.size(), kMostNamed); ++i) {
    list += '\n' + ShownPath(QFileInfo(PathOf(runs[i])).completeBaseName());
  }
  return runs.size() > kMostNamed ? list + '\n' + QChar(0x2026) : list;
}

}  // namespace

bool RecordKeeper::MayReplace(const WonRun& run, QWidget* parent) {
  if (!MayReplaceOthers(run, parent)) return false;
  return BestScore(run.Slot, ReadStanding(run.Slot), wins_) <= run.Score ||
         Ask(skin_, parent, wording::kQuestion, wording::kOverwrite);
}

bool RecordKeeper::MayReplaceOthers(const WonRun& run, QWidget* parent) {
  const StandingRecord standing = ReadStanding(run.Slot);
  if (standing.Of != StandingRecord::Kind::AnotherCave) return true;
  const QString other = Shown(standing.CollectionName) + " - " + Shown(standing.CaveName);
  return Ask(skin_, parent, skin_.Text(kTitle), kOtherCaveWords.In(skin_) + '\n' + other);
}

void RecordKeeper::Store(const WonRun& run, QWidget* parent) {
  if (StoreRun(run)) {
    wins_.Drop(run.Slot);
    wins_.StoreAll();
    return;
  }
  wins_.Keep(run);
  Offer(run, parent);
}

void RecordKeeper::OfferAgain(const RecordSlot& slot, QWidget* parent) {
  const WonRun* const run = wins_.Find(slot);
  if (run != nullptr) Offer(WonRun(*run), parent);
}

void RecordKeeper::Offer(const WonRun& run, QWidget* parent) {
  const QString text = kNotStoredWords.In(skin_) + '\n' + ShownPath(run.Slot.Path);
  while (wins_.Find(run.Slot) != nullptr) {
    switch (SkinMsgBox(skin_, parent, text, MsgButtons::NotStored, MsgIcon::OfSet, skin_.Text(kTitle))) {
      case MsgResult::Retry:
        Try(run, parent);
        break;
      case MsgResult::Elsewhere:
        if (SaveElsewhere(run, parent)) return;
        break;
      default:
        return;
    }
  }
}

void RecordKeeper::Try(const WonRun& run, QWidget* parent) {
  if (MayReplaceOthers(run, parent) && StoreRun(run)) wins_.Drop(run.Slot);
}

bool RecordKeeper::SaveElsewhere(const WonRun& run, QWidget* parent) {
  const QString path = AskForNewFile(
      skin_, parent, {kElsewhereWords.In(skin_), skin_.Text(kRecordKind), "zkr", ProposedPath(run)});
  if (path.isEmpty()) return false;
  if (!WriteWhole(PathBytes(path), run.Bytes)) {
    Tell(skin_, parent, skin_.Text(kTitle), kNotStoredWords.In(skin_) + '\n' + ShownPath(path));
    return false;
  }
  wins_.SavedElsewhere(run.Slot);
  return true;
}

// The record's own folder has just failed.
QString RecordKeeper::ProposedPath(const WonRun& run) const {
  return QDir::homePath() + '/' + QFileInfo(PathOf(run)).fileName();
}

bool RecordKeeper::MayEnd(QWidget* parent) {
  wins_.StoreAll();
  for (std::vector<WonRun> runs = wins_.AtRisk(); !runs.empty(); runs = wins_.AtRisk()) {
    switch (SkinMsgBox(skin_, parent, kAtRiskWords.In(skin_) + ListOf(runs), MsgButtons::NotStoredAtEnd,
                       MsgIcon::OfSet, skin_.Text(kTitle))) {
      case MsgResult::Retry:
        for (const WonRun& run : runs) Try(run, parent);
        break;
      case MsgResult::Elsewhere:
        for (const WonRun& run : runs) {
          if (!SaveElsewhere(run, parent)) break;
        }
        break;
      case MsgResult::Leave:
        return true;
      default:
        return false;
    }
  }
  return true;
}

}  // namespace zorik
