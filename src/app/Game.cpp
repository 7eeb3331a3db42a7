#include "app/Game.h"

#include <QApplication>
#include <QFileInfo>
#include <cstdlib>
#include <random>

#include "core/Hra.h"
#include "data/Files.h"
#include "data/Result.h"
#include "editors/FrmCat.h"
#include "platform/PathText.h"
#include "screens/CavesOffer.h"
#include "screens/MsgBox.h"
#include "screens/Outside.h"
#include "screens/SkinFlaws.h"
#include "screens/StartWords.h"
#include "skin/Shown.h"

namespace zorik {
namespace {

constexpr auto kOnceAndLater =
    static_cast<Qt::ConnectionType>(Qt::QueuedConnection | Qt::SingleShotConnection);

}  // namespace
Game::Game(const Paths& paths, const Settings& settings, Inbox& inbox)
    : paths_(paths),
      settings_(settings),
      keeper_(skin_, wins_),
      frmLoading_(skin_),
      frmStart2_(skin_, paths_, settings_),
      frmPoSt_(skin_, paths_, wins_),
      frmAnalyze_(skin_, &frmPoSt_),
      hra_(skin_, sound_, settings_),
      frmSada_(skin_, paths_),
      frmMain_(
          skin_, [this](const std::string& script) { return FrmCat(skin_, &frmMain_).Edit(script); },
          std::random_device()()),
      winFlow_(paths_, frmPoSt_, frmAnalyze_, keeper_),
      files_(skin_, ScreensForFiles()),
      inbox_(inbox) {
  skin_.SetRetry([this](const std::string& question) {
    return AskRetry(skin_, nullptr, skin_.Text(99), QString::fromStdString(question));
  });
  hra_.setWindowState(Qt::WindowMaximized);
  ConnectScreens();
  qApp->installEventFilter(this);
}

Game::~Game() {
  inbox_.Deliver({});
}

void Game::Begin() {
  WearStored();
  OfferCaves(skin_, paths_);
  frmStart2_.SetPaths(paths_);
  frmSada_.SetPaths(paths_);
  frmStart2_.FrmLoad();
  connect(&frmStart2_, &FrmStart2::Painted, this, &Game::OpenSound, kOnceAndLater);
  inbox_.Deliver([this](const QString& path) { CameFromOutside(path); });
  const QString first = TakeFileFromStart();
  if (!first.isEmpty())
    QMetaObject::invokeMethod(
        this, [this, first] { files_.Add(first); }, Qt::QueuedConnection);
}

// The way to the sound card can be long, so the start screen goes before.
void Game::OpenSound() {
  const Result<Done> opened = sound_.DSInit();
  if (opened) return;
  zorik::Tell(nullptr, kProgramTitle, QString::fromStdString(opened.Message()));
  QCoreApplication::exit(EXIT_FAILURE);
}

// A stored skin that cannot be worn gives way to the default one, for this start; without that there is
// nothing to play with. The notice is gone before any dialog comes.
void Game::WearStored() {
  SkinPlaces places{paths_.SkinsPath, settings_.Skin.toStdString(), paths_.ShippedSkins};
  skin_.LookInto(places);
  const Worn worn = WearBehindNotice(places);
  if (worn.worn) return TellFlaws(skin_, nullptr, worn.flaws);
  places.Skin = kDefaultSkin;
  const Worn plain = WearBehindNotice(places);
  if (plain.worn) return TellFlaws(skin_, nullptr, worn.flaws, kSkinDefaultWords.In(skin_));
  Skin none;
  TellFlaws(none, nullptr, plain.flaws);
  std::exit(EXIT_FAILURE);
}

Worn Game::WearBehindNotice(const SkinPlaces& places) {
  const BusyNotice notice(frmLoading_);
  Worn worn = skin_.Wear(places);
  if (worn.worn) ReSkin();
  return worn;
}

void Game::ConnectScreens() {
  connect(&frmStart2_, &FrmStart2::OpenCollection, this, &Game::OpenCollection);
  connect(&frmStart2_, &FrmStart2::PlayRecord, this,
          [this](const QString& path) { PlayRecord(path, kNobody); });
  connect(&frmStart2_, &FrmStart2::SkinChanged, this, &Game::ReSkin);
  connect(&frmStart2_, &FrmStart2::Quit, this, &Game::EndProgram);
  connect(&frmPoSt_, &FrmPoSt::PlayCave, this, &Game::PlayCave);
  connect(&frmPoSt_, &FrmPoSt::PlayRecord, this, [this](const QString& path) { PlayRecord(path, player_); });
  connect(&frmPoSt_, &FrmPoSt::StoreWanted, this, &Game::StoreAgain);
  connect(&frmPoSt_, &FrmPoSt::Back, this, &Game::ShowStart);
  connect(&frmPoSt_, &FrmPoSt::HelpWanted, this,
          [this] { OpenFileOrTell(skin_, &frmPoSt_, HelpPage(paths_, skin_, "help.html")); });
  connect(&hra_, &HraWindow::RunWon, this, [this] { winFlow_.RunWon(hra_.Machine(), slot_); });
  connect(&hra_, &HraWindow::EndRequested, this, &Game::EndGame);
  connect(&hra_, &HraWindow::OtherKey, this, [this](int key) {
    if (key == Qt::Key_Escape && hra_.Machine().ReplayPlaying) EndGame();
    if (key == Qt::Key_F1) ShowHelpOfGame();
  });
  connect(&winFlow_, &WinFlow::HideGame, &hra_, &QWidget::hide);
  connect(&winFlow_, &WinFlow::ShowStart, this, &Game::ShowStart);
  connect(&winFlow_, &WinFlow::ShowEditor, this, &Game::ShowEditor);
  ConnectEditors();
}

void Game::ConnectEditors() {
  connect(&frmStart2_, &FrmStart2::EditCollection, this, [this](const QString& path) {
    frmSada_.Open(path);
    frmStart2_.hide();
  });
  connect(&frmSada_, &FrmSada::EditCave, this, &Game::EditCave);
  connect(&frmSada_, &FrmSada::Closed, this, [this] {
    ShowStart();
    frmStart2_.SelectFile(PathText(frmSada_.Sada().FileName()));
  });
  connect(&frmMain_, &FrmMain::Done, this,
          [this](const std::string& text) { frmSada_.CaveDone(QByteArray::fromStdString(text)); });
  connect(&frmMain_, &FrmMain::TestRun, this, &Game::TestRun);
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
    wins_.StoreAll();
    Result<Done> result = frmPoSt_.LoadColl(path, player);
    if (result) frmStart2_.hide();
    return result;
  }();
  if (loaded) {
    player_ = PlayerOfFolder(player);
    return;
  }
  ShowStart();
  zorik::Tell(skin_, &frmStart2_, skin_.Text(99), QString::fromStdString(loaded.Message()));
}

void Game::PlayCave(const QByteArray& caveText) {
  slot_ = frmPoSt_.Slot();
  hra_.SetPlayer(player_);
  hra_.SetCollection(frmPoSt_.CollectionName());
  const Result<Done> started = [&] {
    const BusyNotice notice(frmLoading_);
    ShowGame();
    Result<Done> result = hra_.Start(caveText.toStdString(), RunKind::Play);
    if (result) frmPoSt_.hide();
    return result;
  }();
  if (started) return;
  ShowPoSt();
  zorik::Tell(skin_, &frmPoSt_, skin_.Text(99), kNoCaveWords.In(skin_));
}

void Game::PlayRecord(const QString& path, const std::string& player) {
  QWidget* const from = frmPoSt_.isVisible() ? static_cast<QWidget*>(&frmPoSt_) : &frmStart2_;
  hra_.SetPlayer(player);
  hra_.SetCollection({});
  const Result<std::string> bytes = ReadWhole(PathBytes(path));
  bool started = false;
  if (bytes) {
    const BusyNotice notice(frmLoading_);
    ShowGame();
    started = static_cast<bool>(hra_.StartRecord(*bytes));
  }
  if (!started) {
    hra_.hide();
    from->show();
    zorik::Tell(skin_, from, skin_.Text(99), kNoRecordWords.Before(skin_) + "\n" + ShownPath(path));
    return;
  }
  from->hide();
  const Hra& machine = hra_.Machine();
  if (machine.RecordPlayer == machine.PlayerName) return;
  hra_.WithDialog([&] {
    zorik::Tell(skin_, &hra_, skin_.Text(99),
                Shown(machine.RecordPlayer) + "  " + skin_.Text(106) + "\n" + skin_.Text(107));
  });
}

// A cave that cannot be edited, or is not to be changed by that, stays as it is.
void Game::EditCave(const QByteArray& caveText) {
  const FrmMain::Start start = frmMain_.Edit(caveText.toStdString());
  if (start == FrmMain::Start::Editing) return;
  frmSada_.CaveDone(caveText);
  if (start == FrmMain::Start::Unreadable)
    zorik::Tell(skin_, &frmSada_, skin_.Text(99), kNoCaveWords.In(skin_));
}

// A test run plays for the player of the start screen, or for nobody, who has no name.
void Game::TestRun(const std::string& caveText) {
  hra_.SetPlayer(PlayerOfFolder(frmStart2_.Player()));
  hra_.SetCollection(frmSada_.Sada().Text(SadaText::Name));
  ShowGame();
  if (hra_.Start(caveText, RunKind::Test)) return;
  ShowEditor();
  zorik::Tell(skin_, &frmMain_, skin_.Text(99), kNoCaveWords.In(skin_));
}

void Game::ShowEditor() {
  frmMain_.ComeBack();
  hra_.hide();
}

// Leaves the game window for the screen that the run came from; what was not won is gone.
void Game::EndGame() {
  if (winFlow_.Busy()) return;
  hra_.Stop();
  zorik::EndGame(hra_.Machine());
  if (hra_.Machine().EditorRun) {
    ShowEditor();
  } else if (hra_.Machine().PlayerName == kNobody) {
    ShowStart();
  } else {
    ShowPoSt();
  }
}

void Game::StoreAgain() {
  keeper_.OfferAgain(frmPoSt_.Slot(), &frmPoSt_);
  frmPoSt_.SetLWPost();
}

// What comes from outside

OutsideScreens Game::ScreensForFiles() {
  const auto ask = [this](const QString& path) {
    bool yes = false;
    ShowUp();
    hra_.WithDialog([&] {
      yes = Ask(skin_, &hra_, skin_.Text(99),
                ShownPath(QFileInfo(path).fileName()) + "\n" + kEndRunWords.In(skin_));
    });
    return yes;
  };
  return {[this] { return WhatShows(); }, ask, [this](const QString& path) { OpenFromOutside(path); }};
}

OnScreen Game::WhatShows() const {
  OnScreen screen;
  screen.Notice = BusyNotice::Lives();
  screen.Hidden = hra_.Hidden().isVisible();
  screen.Box = QApplication::activeModalWidget() != nullptr || QApplication::activePopupWidget() != nullptr;
  screen.Score = winFlow_.Busy();
  screen.Editors =
      frmSada_.isVisible() || frmMain_.isVisible() || (hra_.isVisible() && hra_.Machine().EditorRun);
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
  frmSada_.SetLWEd();
  frmMain_.SetLW();
}

void Game::EndProgram() {
  if (!keeper_.MayEnd(&frmStart2_)) return;
  StoreMaximized(hra_.Maximised() && !hra_.isMinimized());
  frmStart2_.hide();  // a window that shows would be asked whether it agrees
  QCoreApplication::quit();
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
