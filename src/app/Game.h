#pragma once

#include <QObject>
#include <QString>
#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "app/OutsideFiles.h"
#include "flow/Flow.h"
#include "platform/DSound.h"
#include "platform/Inbox.h"
#include "platform/Paths.h"
#include "platform/Settings.h"
#include "screens/CaretRest.h"
#include "screens/FrmAnalyze.h"
#include "screens/FrmLoading.h"
#include "screens/FrmPoSt.h"
#include "screens/FrmStart2.h"
#include "screens/HeldKeys.h"
#include "screens/HraWindow.h"
#include "screens/RecordKeeper.h"
#include "screens/WinFlow.h"
#include "skin/Skin.h"

namespace zorik {

class FrmCat;
class FrmMain;
class FrmSada;
struct CaveOrigin;
struct KeptEntry;

// The program as a whole: all long-lived screens, which are made once, the editors when they open first, and
// the ways between them. One screen shows at a time; each keeps its own state while it is hidden.
class Game : public QObject {
  Q_OBJECT

 public:
  // The inbox lives longer.
  Game(const Paths& paths, const Settings& settings, Inbox& inbox);
  ~Game() override;

  // Brings the start screen up, behind the busy notice. At a first start the player is asked for the language
  // before.
  void Begin(bool firstStart = false);

  // Begins, and goes on until the program ends; answers its exit code.
  int Run(bool firstStart);

  // Ends without asking anything; what is being edited is kept.
  void EndByDesktop();

 protected:
  bool eventFilter(QObject* object, QEvent* event) override;

 private:
  void EndWithoutSound(const QString& why);
  void ApplyStoredSkin();
  void AskLanguage();
  ApplyOutcome ApplyBehindNotice(const SkinPlaces& places);
  void ConnectScreens();
  FrmSada& CollectionEditor();
  FrmMain& CaveEditor();
  void EditCollection(const QString& path, const QString& player);
  std::optional<KeptEntry> OfferLeft();
  void OpenLeft(const KeptEntry& left);
  std::optional<std::string> CaveSoFar() const;
  void ShowStart();
  void ShowPoSt();
  void ShowGame();
  void OpenCollection(const QString& path, const QString& player);
  void PlayCave();
  void PractiseCave();
  void PlayWith(const std::function<Result<Done>()>& step);
  void PlayRecord();
  void PlayRecordFile(const QString& path);
  void ReplayWith(const std::function<Result<Done>()>& step, QWidget& from, const std::string& path);
  bool Begun(const std::function<Result<Done>()>& step);
  void EditCave(const std::string& caveText, const CaveOrigin& origin);
  void TestRun(const std::string& caveText);
  void TryOut(const std::function<Result<Done>()>& step, int tick);
  void TestWon();
  void ShowEditor();
  void EndGame();
  void StoreAgain();
  OutsideScreens ScreensForFiles();
  OnScreen WhatShows() const;
  void CameFromOutside(const QString& path);
  void ShowHelpOfGame();
  void ShowHelpOfEditor(const QString& page);
  void OpenFromOutside(const QString& path);
  void ShowUp();
  void ReSkin();
  void EndProgram();

  HeldKeys heldKeys_;
  CaretRest caretRest_;
  Paths paths_;
  Settings settings_;
  Skin skin_;
  DSound sound_;

  FrmLoading frmLoading_;
  FrmStart2 frmStart2_;
  HraWindow hra_;
  Flow flow_;
  RecordKeeper keeper_;
  FrmPoSt frmPoSt_;
  FrmAnalyze frmAnalyze_;
  std::unique_ptr<FrmSada> frmSada_;  // from the first editing on
  std::unique_ptr<FrmMain> frmMain_;  // likewise, of a cave
  const FrmCat* frmCat_ = nullptr;    // as long as the cat's program is edited
  bool caveOpen_ = false;             // a cave is with its editor
  bool ended_ = false;                // by the desktop
  WinFlow winFlow_;
  OutsideFiles files_;
  Inbox& inbox_;
};

}  // namespace zorik
