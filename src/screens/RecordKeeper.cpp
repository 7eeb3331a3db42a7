#include "screens/RecordKeeper.h"

#include <QFileInfo>
#include <QString>
#include <optional>
#include <vector>

#include "data/Files.h"
#include "data/Result.h"
#include "flow/Flow.h"
#include "platform/PathText.h"
#include "platform/UserFolders.h"
#include "screens/MsgBox.h"
#include "screens/SaveBox.h"
#include "screens/StartWords.h"
#include "skin/Skin.h"
#include "skin/ToQString.h"

namespace zorik {
namespace {

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
  return flow_.JeLepsi(run) || Ask(skin_, parent, kBetterTitle.In(skin_), kBetterWords.In(skin_));
}

bool RecordKeeper::MayReplaceOthers(const WonRun& run, QWidget* parent) {
  const std::optional<StandingRecord> standing = flow_.OtherCave(run);
  if (!standing) return true;
  const QString other = ToQString(standing->CollectionName) + " - " + ToQString(standing->CaveName);
  return Ask(skin_, parent, skin_.Text(TextId::Program), kOtherCaveWords.In(skin_) + '\n' + other);
}

void RecordKeeper::Store(const WonRun& run, QWidget* parent) {
  if (!flow_.Store(run)) Offer(run, parent);
}

void RecordKeeper::OfferAgain(const RecordSlot& slot, QWidget* parent) {
  const WonRun* const run = flow_.Unstored().Find(slot);
  if (run != nullptr) Offer(WonRun(*run), parent);
}

void RecordKeeper::Offer(const WonRun& run, QWidget* parent) {
  const QString text = kNotStoredWords.In(skin_) + '\n' + ShownPath(run.Slot.Path);
  while (flow_.Unstored().Find(run.Slot) != nullptr) {
    switch (
        SkinMsgBox(skin_, parent, text, MsgButtons::NotStored, MsgIcon::OfSet, skin_.Text(TextId::Program))) {
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
  if (!MayReplaceOthers(run, parent)) return;
  Disregard(flow_.StoreKept(run));  // a win that is still kept is offered again by who called this
}

bool RecordKeeper::SaveElsewhere(const WonRun& run, QWidget* parent) {
  const QString path = AskForNewFile(
      skin_, parent, {kElsewhereWords.In(skin_), skin_.Text(TextId::RecordKind), "zkr", ProposedPath(run)});
  if (path.isEmpty()) return false;
  if (flow_.StoreElsewhere(run, PathBytes(path))) return true;
  Tell(skin_, parent, skin_.Text(TextId::Program), kNotStoredWords.In(skin_) + '\n' + ShownPath(path));
  return false;
}

// The record's own folder has just failed.
QString RecordKeeper::ProposedPath(const WonRun& run) const {
  return HomeText() + '/' + QFileInfo(PathOf(run)).fileName();
}

bool RecordKeeper::MayEnd(QWidget* parent) {
  UnstoredWins& wins = flow_.Unstored();
  wins.StoreAll();
  for (std::vector<WonRun> runs = wins.AtRisk(); !runs.empty(); runs = wins.AtRisk()) {
    switch (SkinMsgBox(skin_, parent, kAtRiskWords.In(skin_) + ListOf(runs), MsgButtons::NotStoredAtEnd,
                       MsgIcon::OfSet, skin_.Text(TextId::Program))) {
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
