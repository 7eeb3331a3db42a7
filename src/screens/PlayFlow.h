#pragma once

#include <QObject>

#include "screens/HraWindow.h"
#include "screens/Session.h"

namespace zorik {

// Leads a player through the caves of a session, one after another, and through the records of them: a won
// cave is stored and the next one follows. F5 plays the record of the cave, PageUp and PageDown change the
// cave, Esc leaves a record.
class PlayFlow : public QObject {
  Q_OBJECT

 public:
  PlayFlow(Session session, Skin& skin, HraWindow& window);

  // Starts a cave; a message tells when it cannot be read.
  void OpenCave(int number);

  // Plays the player's record of the present cave.
  void PlayRecord();

  int CaveNumber() const { return cave_; }

 private:
  void Finished();
  QString StoreWin();
  void NextCave();
  void ReplayFinished();
  void LeaveReplay();
  void StepCave(int delta);
  void OnKey(int key);
  void Say(const QString& text);
  QString Breakdown() const;

  Session session_;
  Skin& skin_;
  HraWindow& window_;
  int cave_ = 1;
};

}  // namespace zorik
