#pragma once

#include <QObject>

namespace zorik {

class Flow;
class FrmAnalyze;
class FrmPoSt;
class RecordKeeper;

// The windows that follow a won run, in the order of the flow: the score, what the player is asked about its
// record, and the screen that he is led on to.
class WinFlow : public QObject {
  Q_OBJECT

 public:
  WinFlow(Flow& flow, FrmPoSt& frmPoSt, FrmAnalyze& frmAnalyze, RecordKeeper& keeper);

  // To be called when a run is won.
  void RunWon();

 signals:
  // The game window is to go.
  void HideGame();
  // A window is to come that this one does not know: the start screen, or the cave editor.
  void ShowStart();
  void ShowEditor();
  // The record that was won is to be played again, in the game window.
  void PlayAgain();

 private:
  void ShowScore();
  void OnAgain();
  void OnClosed();
  void ShowNext();
  void StoreWin();

  Flow& flow_;
  FrmPoSt& frmPoSt_;
  FrmAnalyze& frmAnalyze_;
  RecordKeeper& keeper_;
};

}  // namespace zorik
