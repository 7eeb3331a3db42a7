#include "app/Game.h"

#include <QCoreApplication>
#include <cstdlib>
#include <random>

#include "core/Hra.h"
#include "data/Cp1250.h"
#include "data/Files.h"
#include "editors/FrmCat.h"
#include "screens/MsgBox.h"
#include "screens/Outside.h"
#include "screens/StartWords.h"
#include "screens/Wording.h"
#include "skin/Shown.h"

namespace zorik {
namespace {

constexpr auto kOnceAndLater =
    static_cast<Qt::ConnectionType>(Qt::QueuedConnection | Qt::SingleShotConnection);

}  // namespace
Game::Game(const Paths& paths, const Settings& settings)
    : paths_(paths),
      settings_(settings),
      frmLoading_(skin_),
      frmStart2_(skin_, paths_, settings_),
      frmPoSt_(skin_, paths_),
      frmAnalyze_(skin_, &frmPoSt_),
      hra_(skin_, sound_, settings_),
      frmSada_(skin_, paths_),
      frmMain_(
          skin_, [this](const std::string& script) { return FrmCat(skin_, &frmMain_).Edit(script); },
          std::random_device()()),
      winFlow_(skin_, paths_, frmPoSt_, frmAnalyze_) {
  skin_.SetRetry([this](const std::string& question) {
    return Ask(skin_, nullptr, kProgramTitle, QString::fromStdString(question));
  });
  // A skin that says what cannot be understood is not to be trusted any further.
  skin_.SetFault([this](const std::string& key, const std::string& file) {
    zorik::Tell(nullptr, kProgramTitle,
                kSkinFaultWords.In(skin_) + "\n" + QString::fromStdString(key + "\n" + file));
    std::exit(EXIT_FAILURE);
  });
  hra_.setWindowState(Qt::WindowMaximized);
  ConnectScreens();
}

void Game::Begin() {
  const SkinPlaces places{paths_.SkinsPath, settings_.Skin.toStdString()};
  if (!WearBehindNotice(places)) zorik::Tell(skin_, nullptr, kProgramTitle, kNoLanguageWords.In(skin_));
  frmStart2_.FrmLoad();
  connect(&frmStart2_, &FrmStart2::Painted, this, &Game::OpenSound, kOnceAndLater);
  inbox_ = std::make_unique<Inbox>([this](const QString& path) { OpenFromOutside(path); });
  const QString first = TakeFileFromStart();
  if (!first.isEmpty())
    QMetaObject::invokeMethod(
        this, [this, first] { OpenFromOutside(first); }, Qt::QueuedConnection);
}

// The way to the sound card can be long, so the start screen goes before.
void Game::OpenSound() {
  const Result<Done> opened = sound_.DSInit();
  if (opened) return;
  zorik::Tell(nullptr, kProgramTitle, QString::fromStdString(opened.Message()));
  QCoreApplication::exit(EXIT_FAILURE);
}

// The notice is gone before any dialog comes.
bool Game::WearBehindNotice(const SkinPlaces& places) {
  const BusyNotice notice(frmLoading_);
  const bool whole = skin_.Wear(places);
  ReSkin();
  return whole;
}

void Game::ConnectScreens() {
  connect(&frmStart2_, &FrmStart2::OpenCollection, this, &Game::OpenCollection);
  connect(&frmStart2_, &FrmStart2::PlayRecord, this,
          [this](const QString& path) { PlayRecord(path, kNobody); });
  connect(&frmStart2_, &FrmStart2::SkinChanged, this, &Game::ReSkin);
  connect(&frmStart2_, &FrmStart2::Quit, this, &Game::EndProgram);
  connect(&frmPoSt_, &FrmPoSt::PlayCave, this, &Game::PlayCave);
  connect(&frmPoSt_, &FrmPoSt::PlayRecord, this, [this](const QString& path) { PlayRecord(path, player_); });
  connect(&frmPoSt_, &FrmPoSt::Back, this, &Game::ShowStart);
  connect(&frmPoSt_, &FrmPoSt::HelpWanted, this,
          [this] { OpenFileOrTell(skin_, &frmPoSt_, HelpPage(paths_, skin_, "help.html")); });
  connect(&hra_, &HraWindow::RunWon, this, [this] { winFlow_.RunWon(hra_.Machine()); });
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
  connect(&frmSada_, &FrmSada::Closed, this, &Game::ShowStart);
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
  player_ = FromUtf8WithGaps(player.toStdString());
  std::optional<QString> failure;
  {
    const BusyNotice notice(frmLoading_);
    failure = frmPoSt_.LoadColl(path, player);
    if (!failure) frmStart2_.hide();
  }
  if (!failure) return;
  ShowStart();
  zorik::Tell(skin_, &frmStart2_, kProgramTitle, *failure);
}

void Game::PlayCave(const QByteArray& caveText) {
  hra_.SetPlayer(player_);
  hra_.SetCollection(frmPoSt_.CollectionName());
  std::optional<Failure> failure;
  {
    const BusyNotice notice(frmLoading_);
    ShowGame();
    failure = hra_.Start(caveText.toStdString(), RunKind::Play);
    if (!failure) frmPoSt_.hide();
  }
  if (!failure) return;
  ShowPoSt();
  zorik::Tell(skin_, &frmPoSt_, kProgramTitle, kNoCaveWords.In(skin_));
}

void Game::PlayRecord(const QString& path, const std::string& player) {
  QWidget* const from = frmPoSt_.isVisible() ? static_cast<QWidget*>(&frmPoSt_) : &frmStart2_;
  hra_.SetPlayer(player);
  hra_.SetCollection({});
  const Result<std::string> bytes = ReadWhole(path.toStdString());
  bool started = false;
  if (bytes) {
    const BusyNotice notice(frmLoading_);
    ShowGame();
    started = !hra_.StartRecord(*bytes);
  }
  if (!started) {
    hra_.hide();
    from->show();
    zorik::Tell(skin_, from, kProgramTitle, kNoRecordWords.In(skin_) + "\n" + path);
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

// A cave that cannot be edited stays as it is.
void Game::EditCave(const QByteArray& caveText) {
  if (!frmMain_.Edit(caveText.toStdString())) return;
  frmSada_.CaveDone(caveText);
  zorik::Tell(skin_, &frmSada_, kProgramTitle, kNoCaveWords.In(skin_));
}

// A test run plays for the player of the start screen, or for nobody, who has no name.
void Game::TestRun(const std::string& caveText) {
  hra_.SetPlayer(FromUtf8WithGaps(frmStart2_.Player().toStdString()));
  hra_.SetCollection(frmSada_.Sada().Text(SadaText::Name));
  ShowGame();
  if (!hra_.Start(caveText, RunKind::Test)) return;
  ShowEditor();
  zorik::Tell(skin_, &frmMain_, kProgramTitle, kNoCaveWords.In(skin_));
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

// The help opens beside the game, which waits as long as its player reads.
void Game::ShowHelpOfGame() {
  const bool runs = hra_.Ticking();
  hra_.WithDialog([this] { OpenFileOrTell(skin_, &hra_, HelpPage(paths_, skin_, "help.html")); });
  if (runs) hra_.PauseRun();
}

// A score is read in peace, and work in an editor goes on: the file is opened when the start screen is next.
void Game::OpenFromOutside(const QString& path) {
  if (winFlow_.Busy()) {
    connect(
        &winFlow_, &WinFlow::Finished, this, [this, path] { OpenFromOutside(path); }, kOnceAndLater);
    return;
  }
  if (hra_.isVisible() || hra_.Hidden().isVisible()) EndGame();
  if (!frmSada_.isVisible() && !frmMain_.isVisible()) ShowStart();
  frmStart2_.OpenFromOutside(path);
}

void Game::ReSkin() {
  frmSada_.SetLWEd();
  frmMain_.SetLW();
}

void Game::EndProgram() {
  StoreMaximized(hra_.Maximised() && !hra_.isMinimized());
  QCoreApplication::quit();
}

}  // namespace zorik
