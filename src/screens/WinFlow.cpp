#include "screens/WinFlow.h"

#include <QApplication>

#include "flow/Flow.h"
#include "screens/FrmAnalyze.h"
#include "screens/FrmPoSt.h"
#include "screens/RecordKeeper.h"
#include "skin/ToQString.h"

namespace zorik {
namespace {

constexpr int kFirstSeconds = 3;

}  // namespace

WinFlow::WinFlow(Flow& flow, FrmPoSt& frmPoSt, FrmAnalyze& frmAnalyze, RecordKeeper& keeper)
    : flow_(flow), frmPoSt_(frmPoSt), frmAnalyze_(frmAnalyze), keeper_(keeper) {
  connect(&frmAnalyze_, &FrmAnalyze::Closed, this, &WinFlow::OnClosed);
  connect(&frmAnalyze_, &FrmAnalyze::AgainWanted, this, &WinFlow::OnAgain);
}

void WinFlow::RunWon() {
  if (!flow_.Win()) return;
  const ShownScore& score = flow_.Score();
  frmAnalyze_.SetScore(ToQString(score.Line), score.Total, score.Bonus);
  emit HideGame();
  ShowScore();
}

void WinFlow::ShowScore() {
  if (flow_.ShownOnceMore()) {
    frmAnalyze_.NastavCas(kFirstSeconds);
  } else {
    frmAnalyze_.ClearCountdown();
  }
  frmAnalyze_.OfferAgain(flow_.Kind() == RunKind::Replay);
  frmAnalyze_.Open();
}

void WinFlow::OnAgain() {
  if (!flow_.Busy()) return;
  flow_.ScoreClosed();
  emit PlayAgain();
}

void WinFlow::OnClosed() {
  if (!flow_.Busy()) return;
  ShowNext();
  StoreWin();
  flow_.ScoreClosed();
  if (flow_.Busy()) return ShowScore();
  if (flow_.After() == WayBack::Selection) frmPoSt_.ShowCaves();
}

void WinFlow::StoreWin() {
  const WonRun& run = flow_.Won();
  switch (flow_.Due()) {
    case Storing::None:
      break;
    case Storing::Stored:
      keeper_.Store(run, QApplication::activeWindow());
      break;
    case Storing::Asked:
      if (keeper_.MayReplace(run, &frmPoSt_)) keeper_.Store(run, &frmPoSt_);
      break;
  }
}

void WinFlow::ShowNext() {
  switch (flow_.After()) {
    case WayBack::Start:
      emit ShowStart();
      break;
    case WayBack::Editor:
      emit ShowEditor();
      break;
    case WayBack::Selection:
      frmPoSt_.SetLWPost();
      frmPoSt_.show();
      frmPoSt_.activateWindow();
      break;
  }
}

}  // namespace zorik
