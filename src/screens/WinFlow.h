#pragma once

#include <QObject>
#include <QString>
#include <string>

#include "core/Hra.h"
#include "platform/Paths.h"

namespace zorik {

class FrmAnalyze;
class FrmPoSt;
class Skin;

// What follows a won run: its score is shown, its record is stored, and the player is led on. A run in play
// shows the score twice, first for a few seconds and then, when its record is stored, until the player has
// read it; a replay and a test show it once. It has all that it needs of the run from its start on.
class WinFlow : public QObject {
  Q_OBJECT

 public:
  WinFlow(Skin& skin, const Paths& paths, FrmPoSt& frmPoSt, FrmAnalyze& frmAnalyze);

  // To be called when a run is won, with the machine as it is at that moment.
  void RunWon(Hra& hra);

  // Whether the score of a run is still on show.
  bool Busy() const { return step_ != Step::Idle; }

 signals:
  // The game window is to go.
  void HideGame();
  // A window is to come that this one does not know: the start screen, or the cave editor.
  void ShowStart();
  void ShowEditor();
  // The player has been led on.
  void Finished();

 private:
  enum class Step { Idle, First, Last };

  void OnClosed();
  void ShowNext();
  void StoreWin();
  void StoreTest();
  void TellFailure(const std::string& path);

  Skin& skin_;
  Paths paths_;
  FrmPoSt& frmPoSt_;
  FrmAnalyze& frmAnalyze_;

  Step step_ = Step::Idle;
  RunKind kind_ = RunKind::Play;
  bool nobody_ = false;  // a record from outside: no player is there to be led back to
  int score_ = 0;        // what is stored
  std::string record_;
  std::string testPath_;
};

}  // namespace zorik
