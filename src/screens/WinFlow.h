#pragma once

#include <QObject>

#include "core/Hra.h"
#include "data/RecordSlot.h"
#include "platform/Paths.h"

namespace zorik {

class FrmAnalyze;
class FrmPoSt;
class RecordKeeper;

// What follows a won run: its score is shown, its record is stored, and the player is led on. A run in play
// shows the score twice, first for a few seconds and then, when its record is stored, until the player has
// read it; a replay and a test show it once. It has all that it needs of the run from its start on.
class WinFlow : public QObject {
  Q_OBJECT

 public:
  WinFlow(const Paths& paths, FrmPoSt& frmPoSt, FrmAnalyze& frmAnalyze, RecordKeeper& keeper);

  // To be called when a run is won, with the machine as it is at that moment and with the place for the
  // record, as it was when the run started. Only a run in play uses that.
  void RunWon(Hra& hra, const RecordSlot& slot);

  // Whether the player has not been led on yet from the score of a run.
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
  RecordSlot TestSlot(const Hra& hra) const;
  void Finish();

  Paths paths_;
  FrmPoSt& frmPoSt_;
  FrmAnalyze& frmAnalyze_;
  RecordKeeper& keeper_;

  Step step_ = Step::Idle;
  RunKind kind_ = RunKind::Play;
  bool nobody_ = false;  // a record from outside: no player is there to be led back to
  WonRun run_;
};

}  // namespace zorik
