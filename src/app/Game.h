#pragma once

#include <QObject>
#include <QString>
#include <memory>
#include <optional>
#include <string>

#include "editors/FrmMain.h"
#include "editors/FrmSada.h"
#include "platform/DSound.h"
#include "platform/Inbox.h"
#include "platform/Paths.h"
#include "platform/Settings.h"
#include "screens/FrmAnalyze.h"
#include "screens/FrmLoading.h"
#include "screens/FrmPoSt.h"
#include "screens/FrmStart2.h"
#include "screens/HeldKeys.h"
#include "screens/HraWindow.h"
#include "screens/WinFlow.h"
#include "skin/Skin.h"

namespace zorik {

// The program as a whole: all long-lived screens, which are made once, and the ways between them. One screen
// shows at a time; each keeps its own state while it is hidden.
class Game : public QObject {
  Q_OBJECT

 public:
  Game(const Paths& paths, const Settings& settings);

  // Brings the start screen up, behind the busy notice.
  void Begin();

 private:
  void OpenSound();
  bool WearBehindNotice(const SkinPlaces& places);
  void ConnectScreens();
  void ConnectEditors();
  void ShowStart();
  void ShowPoSt();
  void ShowGame();
  void OpenCollection(const QString& path, const QString& player);
  void PlayCave(const QByteArray& caveText);
  void PlayRecord(const QString& path, const std::string& player);
  void EditCave(const QByteArray& caveText);
  void TestRun(const std::string& caveText);
  void ShowEditor();
  void EndGame();
  void ShowHelpOfGame();
  void OpenFromOutside(const QString& path);
  void ReSkin();
  void EndProgram();

  HeldKeys heldKeys_;
  Paths paths_;
  Settings settings_;
  Skin skin_;
  DSound sound_;
  std::string player_;  // Windows-1250

  FrmLoading frmLoading_;
  FrmStart2 frmStart2_;
  FrmPoSt frmPoSt_;
  FrmAnalyze frmAnalyze_;
  HraWindow hra_;
  FrmSada frmSada_;
  FrmMain frmMain_;
  WinFlow winFlow_;
  std::unique_ptr<Inbox> inbox_;
};

}  // namespace zorik
