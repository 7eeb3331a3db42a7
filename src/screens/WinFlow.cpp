#include "screens/WinFlow.h"

#include <QApplication>
#include <filesystem>
#include <system_error>

#include "data/Files.h"
#include "data/RecordFile.h"
#include "platform/PathText.h"
#include "screens/FrmAnalyze.h"
#include "screens/FrmPoSt.h"
#include "screens/MsgBox.h"
#include "screens/StartWords.h"
#include "screens/Wording.h"
#include "skin/Shown.h"
#include "skin/Skin.h"

namespace zorik {
namespace {

constexpr int kFirstSeconds = 3;
constexpr int kTitle = 99;  // place in the language table

RunKind KindOf(const Hra& hra) {
  if (hra.ReplayPlaying) return RunKind::Replay;
  return hra.EditorRun ? RunKind::Test : RunKind::Play;
}

}  // namespace

WinFlow::WinFlow(Skin& skin, const Paths& paths, FrmPoSt& frmPoSt, FrmAnalyze& frmAnalyze)
    : skin_(skin), paths_(paths), frmPoSt_(frmPoSt), frmAnalyze_(frmAnalyze) {
  connect(&frmAnalyze_, &FrmAnalyze::Closed, this, &WinFlow::OnClosed);
}

void WinFlow::RunWon(Hra& hra) {
  if (!hra.Win || Busy()) return;
  const WinResult& win = *hra.Win;
  kind_ = KindOf(hra);
  nobody_ = hra.PlayerName == kNobody;
  score_ = win.Score;
  record_ = SaveRecord(hra, score_);
  testPath_ = ResolvePath(paths_.TestRecordsPath + "/" + FileSystemName(TestRecordFileName(hra.CaveName)));
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

void WinFlow::OnClosed() {
  if (step_ == Step::Idle) return;
  ShowNext();
  if (step_ == Step::First) {
    StoreWin();
    step_ = Step::Last;
    frmAnalyze_.ClearCountdown();
    frmAnalyze_.Open();
    return;
  }
  step_ = Step::Idle;
  if (kind_ == RunKind::Test) StoreTest();
  if (kind_ == RunKind::Play) frmPoSt_.Prosel(frmAnalyze_.Total(), frmAnalyze_.BonusVisible());
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

void WinFlow::StoreWin() {
  const bool store =
      frmPoSt_.JeLepsi(score_) || Ask(skin_, &frmPoSt_, wording::kQuestion, wording::kOverwrite);
  if (!store) return;
  const Result<Done> stored = frmPoSt_.StoreRecord(record_);
  if (!stored) TellFailure(frmPoSt_.RecordPath());
}

void WinFlow::StoreTest() {
  std::error_code error;
  std::filesystem::create_directories(paths_.TestRecordsPath, error);
  const Result<Done> stored = WriteWhole(testPath_, record_);
  if (!stored) TellFailure(testPath_);
}

void WinFlow::TellFailure(const std::string& path) {
  QWidget* const here = kind_ == RunKind::Test ? QApplication::activeWindow() : &frmPoSt_;
  Tell(skin_, here, skin_.Text(kTitle), kNotStoredWords.Before(skin_) + "\r\n" + ShownPath(path));
}

}  // namespace zorik
