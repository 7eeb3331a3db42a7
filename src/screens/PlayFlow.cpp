#include "screens/PlayFlow.h"

#include <QCoreApplication>

#include "data/Cp1250.h"
#include "screens/MsgBox.h"
#include "screens/Wording.h"

namespace zorik {
namespace {

QString Shown(std::string_view bytes) {
  return QString::fromStdString(ToUtf8(bytes));
}

}  // namespace

PlayFlow::PlayFlow(Session session, Skin& skin, HraWindow& window)
    : session_(std::move(session)), skin_(skin), window_(window) {
  window_.SetPlayer(session_.Player());
  window_.SetCollection(session_.Collection().Name);
  connect(&window_, &HraWindow::RunWon, this, &PlayFlow::Finished);
  connect(&window_, &HraWindow::RecordOver, this, &PlayFlow::ReplayFinished);
  connect(&window_, &HraWindow::OtherKey, this, &PlayFlow::OnKey);
  connect(&window_, &HraWindow::EndRequested, this, [this] {
    window_.Stop();
    EndGame(window_.Machine());
    QCoreApplication::quit();
  });
}

void PlayFlow::OpenCave(int number) {
  cave_ = number;
  if (window_.Start(session_.CaveText(number), RunKind::Play)) Say(wording::kCannotOpen);
}

void PlayFlow::PlayRecord() {
  const std::optional<std::string> record = session_.StoredRecord(cave_);
  if (!record) {
    Say(wording::kNoRecord);
    return;
  }
  if (window_.StartRecord(*record)) {
    Say(wording::kCannotOpen);
    return;
  }
  const Hra& hra = window_.Machine();
  if (hra.RecordPlayer != hra.PlayerName) {
    Say(Shown(hra.RecordPlayer) + "  " + skin_.Text(106) + "\n" + skin_.Text(107));
  }
}

void PlayFlow::Finished() {
  if (window_.Machine().ReplayPlaying) {
    ReplayFinished();
    return;
  }
  const QString stored = StoreWin();
  Say(QString(wording::kSolved) + "\n\n" + Breakdown() + "\n\n" + stored);
  NextCave();
}

QString PlayFlow::StoreWin() {
  Hra& hra = window_.Machine();
  const int score = hra.Win->Score;
  bool store = session_.JeLepsi(cave_, score);
  if (!store) {
    window_.WithDialog([&] { store = Ask(skin_, &window_, wording::kQuestion, wording::kOverwrite); });
  }
  if (!store) return wording::kOldKept;
  const Result<std::string> path = session_.Store(cave_, SaveRecord(hra, score));
  if (!path) return wording::kNotStored;
  return QString(wording::kStored) + "\n" + QString::fromStdString(*path);
}

void PlayFlow::NextCave() {
  if (cave_ < session_.CaveCount()) {
    OpenCave(cave_ + 1);
    return;
  }
  const std::string text =
      WithText(session_.Collection().Congratulation, "$P", std::to_string(session_.Total()));
  Say(text.empty() ? QString(wording::kAllSolved) : Shown(text));
  OpenCave(1);
}

void PlayFlow::ReplayFinished() {
  const bool won = window_.Machine().Win.has_value();
  Say(won ? QString(wording::kReplayWon) + "\n\n" + Breakdown() : QString(wording::kReplayOver));
  LeaveReplay();
}

void PlayFlow::LeaveReplay() {
  OpenCave(cave_);
}

// To the next or the last one of the caves that are open to the player.
void PlayFlow::StepCave(int delta) {
  for (int number = cave_ + delta; number >= 1 && number <= session_.CaveCount(); number += delta) {
    if (!session_.IsOpen(number)) continue;
    OpenCave(number);
    return;
  }
}

void PlayFlow::OnKey(int key) {
  switch (key) {
    case Qt::Key_F5:
      PlayRecord();
      break;
    case Qt::Key_Escape:
      if (window_.Machine().ReplayPlaying) LeaveReplay();
      break;
    case Qt::Key_PageDown:
      StepCave(1);
      break;
    case Qt::Key_PageUp:
      StepCave(-1);
      break;
    default:
      break;
  }
}

void PlayFlow::Say(const QString& text) {
  window_.WithDialog([&] { Tell(skin_, &window_, skin_.Text(99), text); });
}

QString PlayFlow::Breakdown() const {
  const Hra& hra = window_.Machine();
  return Shown(ScoreBreakdown(hra, *hra.Win));
}

}  // namespace zorik
