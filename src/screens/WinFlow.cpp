#include "screens/WinFlow.h"

#include <QApplication>

#include "data/CaveO.h"
#include "data/Files.h"
#include "data/RecordFile.h"
#include "screens/FrmAnalyze.h"
#include "screens/FrmPoSt.h"
#include "screens/RecordKeeper.h"
#include "skin/Shown.h"

namespace zorik {
namespace {

constexpr int kFirstSeconds = 3;

RunKind KindOf(const Hra& hra) {
  if (hra.ReplayPlaying) return RunKind::Replay;
  return hra.EditorRun ? RunKind::Test : RunKind::Play;
}

}  // namespace

WinFlow::WinFlow(const Paths& paths, FrmPoSt& frmPoSt, FrmAnalyze& frmAnalyze, RecordKeeper& keeper)
    : paths_(paths), frmPoSt_(frmPoSt), frmAnalyze_(frmAnalyze), keeper_(keeper) {
  connect(&frmAnalyze_, &FrmAnalyze::Closed, this, &WinFlow::OnClosed);
}

void WinFlow::RunWon(Hra& hra, const RecordSlot& slot) {
  if (!hra.Win || Busy()) return;
  const WinResult& win = *hra.Win;
  kind_ = KindOf(hra);
  nobody_ = hra.PlayerName == kNobody;
  run_ = {kind_ == RunKind::Test ? TestSlot(hra) : slot, win.Score, SaveRecord(hra, win.Score)};
  frmAnalyze_.SetScore(Shown(ScoreBreakdown(hra, win)), win.BaseScore, win.BonusCave);

  emit HideGame();
  if (kind_ == RunKind::Play) {
    step_ = Step::First;
    frmAnalyze_.NastavCas(kFirstSeconds);
  } else {
    step_ = Step::Last;
    frmAnalyze_.ClearCountdown();
  }
  frmAnalyze_.Open();
}

RecordSlot WinFlow::TestSlot(const Hra& hra) const {
  const std::string name = FileSystemName(TestRecordFileName(hra.CaveName));
  return {ResolvePath(paths_.TestRecordsPath + "/" + name),
          hra.CollectionName,
          hra.CaveName,
          std::string(WithoutMarker(hra.CaveText)),
          {}};
}

void WinFlow::OnClosed() {
  if (step_ == Step::Idle) return;
  ShowNext();
  if (step_ == Step::First) {
    if (keeper_.MayReplace(run_, &frmPoSt_)) keeper_.Store(run_, &frmPoSt_);
    step_ = Step::Last;
    frmAnalyze_.ClearCountdown();
    frmAnalyze_.Open();
    return;
  }
  if (kind_ == RunKind::Test) keeper_.Store(run_, QApplication::activeWindow());
  Finish();
}

void WinFlow::Finish() {
  if (kind_ == RunKind::Play) frmPoSt_.Prosel(run_.Slot, frmAnalyze_.Total(), frmAnalyze_.BonusVisible());
  step_ = Step::Idle;
  emit Finished();
}

void WinFlow::ShowNext() {
  if (nobody_) {
    emit ShowStart();
  } else if (kind_ == RunKind::Test) {
    emit ShowEditor();
  } else {
    frmPoSt_.SetLWPost();
    frmPoSt_.show();
    frmPoSt_.activateWindow();
  }
}

}  // namespace zorik
