#include "app/Game.h"

#include <QApplication>
#include <QFileInfo>
#include <cstdlib>
#include <optional>
#include <random>

#include "app/HeadlessWords.h"
#include "core/Hra.h"
#include "core/Speed.h"
#include "data/Result.h"
#include "editors/FrmCat.h"
#include "editors/FrmMain.h"
#include "editors/FrmSada.h"
#include "editors/ProofDesk.h"
#include "editors/RecoveryOffer.h"
#include "editors/UnfinishedCave.h"
#include "platform/PathText.h"
#include "screens/CavesOffer.h"
#include "screens/DesktopServices.h"
#include "screens/FrmLanguage.h"
#include "screens/GhostMenu.h"
#include "screens/MsgBox.h"
#include "screens/PairMenu.h"
#include "screens/RunControls.h"
#include "screens/SkinFlaws.h"
#include "screens/StartWords.h"
#include "skin/ToQString.h"

namespace zorik {

Game::Game(const Paths& paths, const Settings& settings, Inbox& inbox)
    : paths_(paths),
      settings_(settings),
      frmLoading_(skin_),
      frmStart2_(skin_, paths_, settings_),
      hra_(skin_, sound_, settings_),
      flow_(hra_.Machine(), {paths_.PlayersPath, paths_.TestRecordsPath}, std::random_device()()),
      keeper_(skin_, flow_),
      frmPoSt_(skin_, flow_),
      frmAnalyze_(skin_, &frmPoSt_),
      winFlow_(flow_, frmPoSt_, frmAnalyze_, keeper_),
      files_(skin_, ScreensForFiles()),
      inbox_(inbox) {
  skin_.SetRetry([this](const std::string& question) {
    return AskRetry(skin_, nullptr, skin_.Text(TextId::Program), QString::fromStdString(question));
  });
  hra_.setWindowState(Qt::WindowMaximized);
  ConnectScreens();
  qApp->installEventFilter(this);
  connect(qApp, &QGuiApplication::commitDataRequest, this, [this] {
    if (frmSada_) frmSada_->Keeper().Keep();
  });
}

Game::~Game() {
  inbox_.Deliver({});
}

void Game::Begin(bool firstStart) {
  if (firstStart) settings_.Skin = SkinOfDesktop();
  ApplyStoredSkin();
  if (firstStart) AskLanguage();
  OfferCaves(skin_, paths_);
  const std::optional<KeptEntry> left = OfferLeft();
  frmStart2_.SetPaths(paths_);
  frmStart2_.FrmLoad();
  if (left) OpenLeft(*left);
  inbox_.Deliver([this](const QString& path) { CameFromOutside(path); });
  const QString first = TakeFileFromStart();
  if (!first.isEmpty())
    QMetaObject::invokeMethod(
        this, [this, first] { files_.Add(first); }, Qt::QueuedConnection);
}

// An end that came while a box of the beginning was open has closed that box alone.
int Game::Run(bool firstStart) {
  Begin(firstStart);
  return ended_ ? EXIT_SUCCESS : QCoreApplication::exec();
}

// Sound is opened when the first cave is, for the way to the sound card can be long.
void Game::EndWithoutSound(const QString& why) {
  zorik::Tell(nullptr, kProgramTitle, why);
  QCoreApplication::exit(EXIT_FAILURE);
}

// A stored skin that cannot be worn gives way to the default one, for this start; without that there is
// nothing to play with. The notice is gone before any dialog comes.
void Game::ApplyStoredSkin() {
  SkinPlaces places{paths_.SkinsPath, settings_.Skin.toStdString(), paths_.ShippedSkins};
  skin_.LookInto(places);
  const ApplyOutcome outcome = ApplyBehindNotice(places);
  if (outcome.applied) return TellFlaws(skin_, nullptr, outcome.flaws);
  places.Skin = kDefaultSkin;
  const ApplyOutcome plain = ApplyBehindNotice(places);
  if (plain.applied) return TellFlaws(skin_, nullptr, outcome.flaws, kSkinDefaultWords.In(skin_));
  Skin none;
  TellFlaws(none, nullptr, plain.flaws);
  std::exit(EXIT_FAILURE);
}

// What is chosen here is stored, so nobody is asked twice.
void Game::AskLanguage() {
  const std::optional<QString> chosen = FrmLanguage(skin_).AskSkin();
  if (!chosen) return;
  if (chosen->toStdString() != skin_.Places().Skin) {
    settings_.Skin = *chosen;
    ApplyStoredSkin();
  }
  if (!StoreSkin(*chosen))
    zorik::Tell(skin_, nullptr, skin_.Text(TextId::Program), kNotStoredWords.In(skin_));
}

ApplyOutcome Game::ApplyBehindNotice(const SkinPlaces& places) {
  const BusyNotice notice(frmLoading_);
  return skin_.Apply(places);
}

void Game::ConnectScreens() {
  connect(&frmStart2_, &FrmStart2::OpenCollection, this, &Game::OpenCollection);
  connect(&frmStart2_, &FrmStart2::EditCollection, this, &Game::EditCollection);
  connect(&frmStart2_, &FrmStart2::PlayRecord, this, &Game::PlayRecordFile);
  connect(&frmStart2_, &FrmStart2::SkinChanged, this, &Game::ReSkin);
  connect(&frmStart2_, &FrmStart2::Quit, this, &Game::EndProgram);
  connect(&frmPoSt_, &FrmPoSt::PlayCave, this, &Game::PlayCave);
  connect(&frmPoSt_, &FrmPoSt::PracticeWanted, this, &Game::PractiseCave);
  connect(&hra_.Controls().Training(), &Practice::EarnestWanted, this, &Game::PlayCave, Qt::QueuedConnection);
  connect(&frmPoSt_, &FrmPoSt::PlayRecord, this, &Game::PlayRecord);
  connect(&frmPoSt_, &FrmPoSt::StoreWanted, this, &Game::StoreAgain);
  connect(&frmPoSt_, &FrmPoSt::Back, this, &Game::ShowStart);
  connect(&frmPoSt_, &FrmPoSt::HelpWanted, this,
          [this] { OpenFileOrTell(skin_, &frmPoSt_, HelpPage(paths_, skin_, "help.html")); });
  connect(&frmPoSt_, &FrmPoSt::GhostWanted, this,
          [this](const QPoint& at) { AskForGhost(skin_, flow_, settings_, frmPoSt_, at); });
  connect(&frmPoSt_, &FrmPoSt::PairWanted, this, [this](const QPoint& at) {
    ShowPairOfRecords(skin_, flow_, hra_.Paced(TimerInterval(settings_.Speed)), frmPoSt_, at);
  });
  connect(&hra_, &HraWindow::NoSound, this, &Game::EndWithoutSound, Qt::QueuedConnection);
  connect(&hra_, &HraWindow::RunWon, &winFlow_, &WinFlow::RunWon);
  connect(&hra_, &HraWindow::EndRequested, this, &Game::EndGame);
  connect(&hra_, &HraWindow::OtherKey, this, [this](int key) {
    const bool light = flow_.Kind() == RunKind::Replay || flow_.Kind() == RunKind::Practice;
    if (key == Qt::Key_Escape && light) EndGame();
    if (key == Qt::Key_F1) ShowHelpOfGame();
  });
  connect(&winFlow_, &WinFlow::HideGame, &hra_, &QWidget::hide);
  connect(&winFlow_, &WinFlow::PlayAgain, this, [this] {
    ShowGame();
    hra_.Controls().Record().PlayAgain();
  });
  connect(&winFlow_, &WinFlow::ShowStart, this, &Game::ShowStart);
  connect(&winFlow_, &WinFlow::ShowEditor, this, &Game::TestWon);
}

FrmSada& Game::CollectionEditor() {
  if (frmSada_) return *frmSada_;
  frmSada_ = std::make_unique<FrmSada>(skin_, paths_, flow_.Sada());
  connect(frmSada_.get(), &FrmSada::EditCave, this, &Game::EditCave);
  connect(frmSada_.get(), &FrmSada::Saved, this, [this] {
    if (frmMain_) frmMain_->Proof().CollectionSaved(flow_.Sada());
  });
  connect(frmSada_.get(), &FrmSada::Closed, this, [this] {
    ShowStart();
    frmStart2_.SelectFile(PathText(flow_.Sada().FileName()));
  });
  return *frmSada_;
}

FrmMain& Game::CaveEditor() {
  if (frmMain_) return *frmMain_;
  const auto editCat = [this](const std::string& script) {
    FrmCat cat(skin_, frmMain_.get());
    connect(&cat, &FrmCat::HelpWanted, this, &Game::ShowHelpOfEditor);
    frmCat_ = &cat;
    auto program = cat.Edit(script);
    frmCat_ = nullptr;
    return program;
  };
  frmMain_ = std::make_unique<FrmMain>(skin_, editCat, std::random_device()());
  connect(frmMain_.get(), &FrmMain::Done, this, [this] { caveOpen_ = false; });
  connect(frmMain_.get(), &FrmMain::Done, &CollectionEditor(), &FrmSada::CaveDone);
  connect(frmMain_.get(), &FrmMain::StoreWanted, this, [this](const std::string& cave) {
    if (frmSada_->StoreCave(cave, *frmMain_)) frmMain_->Stored(cave, frmSada_->OriginOfSelected());
  });
  CollectionEditor().Keeper().SetCave([this] { return CaveSoFar(); });
  connect(frmMain_.get(), &FrmMain::TestRun, this, &Game::TestRun);
  connect(&frmMain_->Proof(), &ProofDesk::TryRun, this, [this](const std::string& record, int tick) {
    TryOut([&] { return flow_.TryRun(record); }, tick);
  });
  connect(&frmMain_->Proof(), &ProofDesk::TryCave, this,
          [this](const std::string& caveText) { TryOut([&] { return flow_.TryCave(caveText); }, 0); });
  connect(frmMain_.get(), &FrmMain::HelpWanted, this, &Game::ShowHelpOfEditor);
  return *frmMain_;
}

// The ways between the screens

void Game::ShowStart() {
  frmPoSt_.hide();
  hra_.hide();
  frmStart2_.show();
  frmStart2_.activateWindow();
}

void Game::ShowPoSt() {
  frmPoSt_.SetLWPost();
  frmPoSt_.show();
  frmPoSt_.activateWindow();
  hra_.hide();
}

void Game::ShowGame() {
  if (hra_.isVisible()) return;
  if (hra_.windowState().testFlag(Qt::WindowMinimized)) hra_.setWindowState(Qt::WindowMaximized);
  hra_.show();
  hra_.activateWindow();
  hra_.setFocus();
}

void Game::OpenCollection(const QString& path, const QString& player) {
  const Result<Done> loaded = [&] {
    const BusyNotice notice(frmLoading_);
    Result<Done> result = frmPoSt_.LoadColl(path, player);
    if (result) frmStart2_.hide();
    return result;
  }();
  if (loaded) return;
  ShowStart();
  zorik::Tell(skin_, &frmStart2_, skin_.Text(TextId::Program), QString::fromStdString(loaded.Message()));
}

// Shows the game window and takes a step of the flow that starts a run; false when none could be started.
bool Game::Begun(const std::function<Result<Done>()>& step) {
  ShowGame();
  if (!step()) return false;
  hra_.StartTicking();
  return true;
}

void Game::PlayCave() {
  PlayWith([this] {
    Result<Done> started = flow_.Start();
    if (started) hra_.SetGhost(flow_.GhostRecord());
    return started;
  });
}

void Game::PractiseCave() {
  PlayWith([this] { return flow_.StartPractice(); });
}

void Game::PlayWith(const std::function<Result<Done>()>& step) {
  bool begun = false;
  {
    const BusyNotice notice(frmLoading_);
    begun = Begun(step);
    if (begun) frmPoSt_.hide();
  }
  if (begun) return;
  ShowPoSt();
  zorik::Tell(skin_, &frmPoSt_, skin_.Text(TextId::Program), kNoCaveWords.In(skin_));
}

void Game::PlayRecord() {
  ReplayWith([this] { return flow_.ReplayChosen(); }, frmPoSt_, flow_.Caves().RecordPath());
}

void Game::PlayRecordFile(const QString& path) {
  ReplayWith([&] { return flow_.ReplayFile(PathBytes(path)); }, frmStart2_, PathBytes(path));
}

void Game::ReplayWith(const std::function<Result<Done>()>& step, QWidget& from, const std::string& path) {
  bool begun = false;
  {
    const BusyNotice notice(frmLoading_);
    begun = Begun(step);
  }
  if (!begun) {
    hra_.hide();
    from.show();
    zorik::Tell(skin_, &from, skin_.Text(TextId::Program),
                kNoRecordWords.Before(skin_) + "\n" + ShownPath(path));
    return;
  }
  from.hide();
  const std::optional<std::string> other = flow_.MadeByAnother();
  if (!other) return;
  hra_.WithDialog([&] {
    zorik::Tell(skin_, &hra_, skin_.Text(TextId::Program),
                ToQString(*other) + "  " + skin_.Text(TextId::RecordedBy) + "\n" +
                    skin_.Text(TextId::RecordWillPlay));
  });
}

void Game::EditCollection(const QString& path, const QString& player) {
  flow_.BeginEditing(PathBytes(player));
  CollectionEditor().Open(path);
  frmStart2_.hide();
}

// What was being edited when the program was killed. Nothing is looked through where there is nothing.
std::optional<KeptEntry> Game::OfferLeft() {
  if (RecoveryStore(RecoveryFolder(paths_)).Left().empty()) return std::nullopt;
  return zorik::OfferLeft(skin_, nullptr, CollectionEditor().Keeper().Store());
}

void Game::OpenLeft(const KeptEntry& left) {
  flow_.BeginEditing(PathBytes(frmStart2_.Player()));
  frmStart2_.hide();
  CollectionEditor().OpenLeft(left);
}

// The cave that is with the cave editor, as it is by now.
std::optional<std::string> Game::CaveSoFar() const {
  if (!caveOpen_) return std::nullopt;
  return UnfinishedCave(frmMain_->Model(), frmCat_ == nullptr ? std::nullopt : frmCat_->Program());
}

// A cave that cannot be edited, or is not to be changed by that, stays as it is.
void Game::EditCave(const std::string& caveText, const CaveOrigin& origin) {
  const FrmMain::Start start = CaveEditor().Edit(caveText, origin);
  caveOpen_ = start == FrmMain::Start::Editing;
  if (caveOpen_) return;
  frmSada_->CaveDone(caveText);
  if (start == FrmMain::Start::Unreadable)
    zorik::Tell(skin_, frmSada_.get(), skin_.Text(TextId::Program), kNoCaveWords.In(skin_));
}

// A test run plays for the player of the start screen, or for nobody, who has no name.
void Game::TestRun(const std::string& caveText) {
  if (Begun([&] { return flow_.TestRun(caveText); })) return;
  ShowEditor();
  zorik::Tell(skin_, frmMain_.get(), skin_.Text(TextId::Program), kNoCaveWords.In(skin_));
}

void Game::TryOut(const std::function<Result<Done>()>& step, int tick) {
  frmMain_->hide();
  if (Begun(step)) return hra_.Controls().TryFrom(tick);
  ShowEditor();
  zorik::Tell(skin_, frmMain_.get(), skin_.Text(TextId::Program), kNoCaveWords.In(skin_));
}

void Game::TestWon() {
  ShowEditor();
  frmMain_->Proof().Won(flow_.Won().Bytes);
}

void Game::ShowEditor() {
  frmMain_->ComeBack();
  hra_.hide();
}

// Leaves the game window for the screen that the run came from.
void Game::EndGame() {
  if (flow_.Busy()) return;
  hra_.Stop();
  switch (flow_.Leave()) {
    case WayBack::Start:
      return ShowStart();
    case WayBack::Selection:
      return ShowPoSt();
    case WayBack::Editor:
      return ShowEditor();
  }
}

void Game::StoreAgain() {
  keeper_.OfferAgain(flow_.ChosenSlot(), &frmPoSt_);
  frmPoSt_.SetLWPost();
}

// What comes from outside

OutsideScreens Game::ScreensForFiles() {
  const auto ask = [this](QWidget* window, const QString& path, const StartWords& question) {
    return Ask(skin_, window, skin_.Text(TextId::Program),
               ShownPath(QFileInfo(path).fileName()) + "\n" + question.In(skin_));
  };
  const auto askToEndRun = [this, ask](const QString& path) {
    bool yes = false;
    ShowUp();
    hra_.WithDialog([&] { yes = ask(&hra_, path, kEndRunWords); });
    return yes;
  };
  const auto askToOpen = [this, ask](const QString& path) {
    QWidget* const here = frmPoSt_.isVisible() ? static_cast<QWidget*>(&frmPoSt_) : &frmStart2_;
    return ask(here, path, kOpenNowWords);
  };
  return {[this] { return WhatShows(); }, askToEndRun, askToOpen,
          [this](const QString& path) { OpenFromOutside(path); }};
}

OnScreen Game::WhatShows() const {
  OnScreen screen;
  screen.Notice = BusyNotice::Lives();
  screen.Hidden = hra_.Hidden().isVisible();
  screen.Box = QApplication::activeModalWidget() != nullptr || QApplication::activePopupWidget() != nullptr;
  screen.Score = flow_.Busy();
  const bool editing = (frmSada_ && frmSada_->isVisible()) || (frmMain_ && frmMain_->isVisible());
  screen.Editors = editing || (hra_.isVisible() && flow_.FromEditor());
  screen.Run = hra_.isVisible();
  return screen;
}

// Nothing but the wish to see the game comes without a path.
void Game::CameFromOutside(const QString& path) {
  if (path.isEmpty()) return ShowUp();
  files_.Add(path);
}

// The help opens beside the game, which waits as long as its player reads.
void Game::ShowHelpOfGame() {
  const bool runs = hra_.Ticking();
  hra_.WithDialog([this] { OpenFileOrTell(skin_, &hra_, HelpPage(paths_, skin_, "help.html")); });
  if (runs) hra_.PauseRun();
}

void Game::ShowHelpOfEditor(const QString& page) {
  QWidget* const dialog = QApplication::activeModalWidget();
  OpenFileOrTell(skin_, dialog == nullptr ? frmMain_.get() : dialog, HelpPage(paths_, skin_, page));
}

void Game::OpenFromOutside(const QString& path) {
  if (hra_.isVisible()) EndGame();
  ShowStart();
  frmStart2_.OpenFromOutside(path);
}

// Brings up what shows by now; a box belongs before its screen.
void Game::ShowUp() {
  const auto raise = [](QWidget& window) {
    if (window.isMinimized()) window.setWindowState(window.windowState() & ~Qt::WindowMinimized);
    window.raise();
    window.activateWindow();
  };
  for (QWidget* const window : QApplication::topLevelWidgets()) {
    if (window->isVisible() && window->windowType() == Qt::Window) raise(*window);
  }
  if (QWidget* const box = QApplication::activeModalWidget()) raise(*box);
}

void Game::ReSkin() {
  if (frmSada_) frmSada_->SetLWEd();
  if (frmMain_) frmMain_->SetLW();
}

void Game::EndProgram() {
  if (!keeper_.MayEnd(&frmStart2_)) return;
  StoreMaximized(hra_.Maximised() && !hra_.isMinimized());
  frmStart2_.hide();  // a window that shows would be asked whether it agrees
  QCoreApplication::quit();
}

// A box that waits for an answer goes unanswered.
void Game::EndByDesktop() {
  ended_ = true;
  if (frmSada_) frmSada_->Keeper().KeepForEnd();
  StoreMaximized(hra_.Maximised() && !hra_.isMinimized());
  QCoreApplication::exit();
}

// The end of the desktop's session is told by closing each window, and a screen that leads back to another
// one stops that. So only the start screen, or an editor, is left to be closed.
bool Game::eventFilter(QObject* object, QEvent* event) {
  if (object != qApp || event->type() != QEvent::Quit) return QObject::eventFilter(object, event);
  if (hra_.isVisible() || hra_.Hidden().isVisible()) EndGame();
  if (frmPoSt_.isVisible()) ShowStart();
  return false;
}

}  // namespace zorik
