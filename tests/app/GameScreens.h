#pragma once

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QElapsedTimer>
#include <QFileDialog>
#include <QLabel>
#include <QPointer>
#include <QSettings>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <future>
#include <thread>

#include "app/Game.h"
#include "data/Files.h"
#include "data/RecordFile.h"
#include "editors/FrmMain.h"
#include "editors/FrmSada.h"
#include "screens/CaveList.h"
#include "screens/DialogScript.h"
#include "screens/Folder.h"
#include "screens/SkinButton.h"
#include "screens/StartLists.h"
#include "support/Patience.h"

namespace zorik::test {

inline constexpr int kPatience = 10000;  // milliseconds

template <class Window>
Window* Screen() {
  for (QWidget* const widget : QApplication::topLevelWidgets()) {
    if (auto* const window = dynamic_cast<Window*>(widget)) return window;
  }
  return nullptr;
}

template <class Window>
bool Shows() {
  const auto* const window = Screen<Window>();
  return window != nullptr && window->isVisible();
}

template <class Condition>
bool Wait(Condition condition) {
  return WaitFor(condition, kPatience);
}

// Reads every message box, and answers it with this key.
class BoxReader : public QObject {
 public:
  explicit BoxReader(Qt::Key answer = Qt::Key_Return) : answer_(answer) { startTimer(10); }

  QStringList said;
  QStringList titles;
  QWidgetList owners;

 protected:
  void timerEvent(QTimerEvent* /*event*/) override {
    QWidget* const box = QApplication::activeModalWidget();
    const auto* const text = box == nullptr ? nullptr : box->findChild<QLabel*>("lblText");
    if (text == nullptr) return;
    said.push_back(text->text());
    titles.push_back(box->windowTitle());
    owners.push_back(box->parentWidget());
    QTest::keyRelease(box, answer_);  // the finger whose press has opened the box
    QTest::keyClick(box, answer_);
  }

 private:
  Qt::Key answer_;
};

// Closes a dialog that stays open for longer than any test lets it, which is an error: so a test fails that
// would wait for it for ever.
class DialogLimit : public QObject {
 public:
  DialogLimit() { startTimer(500); }

 protected:
  void timerEvent(QTimerEvent* /*event*/) override {
    QWidget* const dialog = QApplication::activeModalWidget();
    if (dialog == nullptr || dialog != open_) {
      open_ = dialog;
      since_.start();
    } else if (since_.hasExpired(2 * kPatience)) {
      ADD_FAILURE() << "nobody closes " << dialog->windowTitle().toStdString();
      dialog->close();
    }
  }

 private:
  QPointer<QWidget> open_;
  QElapsedTimer since_;
};

// The whole program on a folder with a collection of two caves and a player, walked through by keys.
class GameTest : public testing::Test {
 protected:
  void SetUp() override {
    folder.Collection("a.zk", "Alfa", {OneStepCave("Jedna"), OneStepCave("Druha")});
    std::filesystem::create_directories(folder.Root() + "/Players/Ada");
    Begin();
  }

  void Begin() {
    Start();
    ASSERT_TRUE(Wait(Shows<FrmStart2>));
  }

  void Start() {
    Paths paths = folder.Paths();
    paths.ShippedSkins = ZORIK_BUILT_SKINS;
    game.reset();
    inbox = std::make_unique<Inbox>(InboxPlace(folder.Root()));
    game = std::make_unique<Game>(paths, settings, *inbox);
    game->Begin();
  }

  // What is pressed while the busy notice is there is lost, so that has to go first.
  static void Press(QWidget* window, Qt::Key key) {
    QTest::qWait(1);
    QTest::keyClick(window, key);
  }
  static void Click(QWidget* window, const char* button) {
    QTest::qWait(1);
    QTest::mouseClick(window->findChild<QWidget*>(button), Qt::LeftButton);
  }
  // A key of a menu.
  static void Command(QWidget* window, Qt::Key key) {
    QTest::qWait(1);
    window->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window));
    QTest::keyClick(window, key);
  }
  static void Close(QWidget* window) {
    QTest::qWait(1);
    window->close();
  }

  void OpenCollection() const {
    Press(Screen<FrmStart2>(), Qt::Key_Return);
    ASSERT_TRUE(Wait(Shows<FrmPoSt>));
  }

  void PlayCave() const {
    OpenCollection();
    Press(Screen<FrmPoSt>(), Qt::Key_Return);
    ASSERT_TRUE(Wait(Shows<HraWindow>));
  }

  // Closes the score as often as it comes, until the selection is alone.
  static void ReadScores() {
    ASSERT_TRUE(Wait(Shows<FrmAnalyze>));
    ASSERT_TRUE(Wait([] {
      if (Shows<FrmAnalyze>()) Press(Screen<FrmAnalyze>(), Qt::Key_Return);
      return !Shows<FrmAnalyze>() && Shows<FrmPoSt>();
    }));
  }

  void WinCave() const {
    PlayCave();
    Press(Screen<HraWindow>(), Qt::Key_Right);
    ReadScores();
  }

  std::string RecordPath() const { return folder.Root() + "/Players/Ada/Alfa - Jedna.zkr"; }

  DialogLimit limit;
  Folder folder;
  Settings settings{.Speed = 2, .SpeedR = 5, .Sound = false};
  std::unique_ptr<Inbox> inbox;
  std::unique_ptr<Game> game;
};

// In the editors, on the first cave of the collection.
class GameEditors : public GameTest {
 protected:
  void SetUp() override {
    GameTest::SetUp();
    Enter();
  }

  static void Enter() {
    Click(Screen<FrmStart2>(), "fingerEditor");
    Click(Screen<FrmStart2>(), "play");
    ASSERT_TRUE(Wait(Shows<FrmSada>));
    EXPECT_FALSE(Shows<FrmStart2>());
    // The cave is lower than the editor takes.
    const DialogScript script = {test::Press(Qt::Key_Y)};
    Command(Screen<FrmSada>(), Qt::Key_F4);
    ASSERT_TRUE(Wait(Shows<FrmMain>));
    EXPECT_FALSE(Shows<FrmSada>());
  }

  void TestRun() const {
    Command(Screen<FrmMain>(), Qt::Key_F5);
    ASSERT_TRUE(Wait(Shows<HraWindow>));
    EXPECT_FALSE(Shows<FrmMain>());
  }

  // Leaves both editors, and keeps nothing.
  void Leave() const {
    Command(Screen<FrmMain>(), Qt::Key_Escape);
    ASSERT_TRUE(Wait(Shows<FrmSada>));
    EXPECT_FALSE(Shows<FrmMain>());
    const DialogScript script = {test::Press(Qt::Key_N)};
    Close(Screen<FrmSada>());
    ASSERT_TRUE(Wait(Shows<FrmStart2>));
    EXPECT_FALSE(Shows<FrmSada>());
  }
};

}  // namespace zorik::test
