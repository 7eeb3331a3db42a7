#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QTest>
#include <filesystem>

#include "app/Game.h"
#include "data/Files.h"
#include "screens/CaveList.h"
#include "screens/Folder.h"
#include "support/DesktopStandIn.h"

namespace zorik {
namespace {

using test::Folder;
using test::OneStepCave;

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
  return QTest::qWaitFor(condition, 10000);
}

// The whole program, whose player keeps a finger on a key.
class GameKeysTest : public testing::Test {
 protected:
  void SetUp() override {
    folder.Collection("a.zk", "Alfa", {OneStepCave("Jedna"), OneStepCave("Druha")});
    std::filesystem::create_directories(folder.Root() + "/Players/Ada");
    Paths paths = folder.Paths();
    paths.SkinsPath = ZORIK_BUILT_SKINS;
    inbox = std::make_unique<Inbox>(InboxPlace(folder.Root()));
    game = std::make_unique<Game>(paths, settings, *inbox);
    game->Begin();
    ASSERT_TRUE(Wait(Shows<FrmStart2>));
    QTest::qWait(1);
  }

  static void Down(QWidget* window, Qt::Key key, bool repeat = false) {
    QKeyEvent event(QEvent::KeyPress, key, {}, {}, repeat);
    QApplication::sendEvent(window, &event);
  }
  static void Up(QWidget* window, Qt::Key key) {
    QKeyEvent event(QEvent::KeyRelease, key, {});
    QApplication::sendEvent(window, &event);
  }

  // The key stays down for a while: its repeats go to whichever windows show, as such and as bare presses.
  static void Hold(Qt::Key key, int times = 20) {
    for (int i = 0; i < times; ++i) {
      for (QWidget* const window : QApplication::topLevelWidgets()) {
        if (window->isVisible()) Down(window, key, i % 2 == 0);
      }
      QTest::qWait(10);
    }
  }

  void PlayCave() const {
    QTest::keyClick(Screen<FrmStart2>(), Qt::Key_Return);
    ASSERT_TRUE(Wait(Shows<FrmPoSt>));
    QTest::qWait(1);
    QTest::keyClick(Screen<FrmPoSt>(), Qt::Key_Return);
    ASSERT_TRUE(Wait(Shows<HraWindow>));
    QTest::qWait(1);  // until the notice is gone
  }

  Folder folder;
  Settings settings{.Speed = 2, .SpeedR = 5, .Sound = false};
  std::unique_ptr<Inbox> inbox;
  std::unique_ptr<Game> game;
};

TEST_F(GameKeysTest, OpensTheCavesAndNoCaveForEnterThatIsHeld) {
  Down(Screen<FrmStart2>(), Qt::Key_Return);
  ASSERT_TRUE(Wait(Shows<FrmPoSt>));
  Hold(Qt::Key_Return);
  EXPECT_TRUE(Shows<FrmPoSt>());
  EXPECT_FALSE(Shows<HraWindow>());
  Up(Screen<FrmPoSt>(), Qt::Key_Return);
  QTest::keyClick(Screen<FrmPoSt>(), Qt::Key_Return);
  EXPECT_TRUE(Wait(Shows<HraWindow>));
}

TEST_F(GameKeysTest, ClosesTheFirstScoreAndNotTheSecondForEnterThatIsHeld) {
  PlayCave();
  QTest::keyClick(Screen<HraWindow>(), Qt::Key_Right);
  ASSERT_TRUE(Wait(Shows<FrmAnalyze>));
  Down(Screen<FrmAnalyze>(), Qt::Key_Return);
  Hold(Qt::Key_Return);
  EXPECT_TRUE(Shows<FrmAnalyze>()) << "the second time";
  EXPECT_FALSE(Shows<HraWindow>());
  Up(Screen<FrmAnalyze>(), Qt::Key_Return);
  QTest::keyClick(Screen<FrmAnalyze>(), Qt::Key_Return);
  EXPECT_TRUE(Wait([] { return !Shows<FrmAnalyze>() && Shows<FrmPoSt>(); }));
}

TEST_F(GameKeysTest, DoesNotAskForAPauseAgainForPThatIsHeldWhenItEndedOne) {
  PlayCave();
  int boxes = 0;
  QTimer ends;
  ends.callOnTimeout([&boxes] {
    QWidget* const box = QApplication::activeModalWidget();
    if (box == nullptr) return;
    ++boxes;
    Up(box, Qt::Key_P);
    Down(box, Qt::Key_P);
    EXPECT_FALSE(box->isVisible());
    box->close();
  });
  ends.start(5);
  Down(Screen<HraWindow>(), Qt::Key_P);
  ASSERT_TRUE(Wait([&boxes] { return boxes == 1; }));
  Hold(Qt::Key_P);
  EXPECT_EQ(boxes, 1);
  EXPECT_TRUE(Screen<HraWindow>()->Ticking());
}

TEST_F(GameKeysTest, OpensTheHelpWithF1WhileTheRunWaits) {
  folder.File("Help/help.html", "<p>");
  PlayCave();
  const test::DesktopStandIn desktop(0);
  bool waits = false;
  QString said;
  QTimer::singleShot(50, [&] {
    QWidget* const box = QApplication::activeModalWidget();
    ASSERT_NE(box, nullptr);
    waits = !Screen<HraWindow>()->Ticking();
    said = box->findChild<QLabel*>("lblText")->text();
    QTest::keyClick(box, Qt::Key_Return);
  });
  QTest::keyClick(Screen<HraWindow>(), Qt::Key_F1);
  EXPECT_TRUE(desktop.Opened().endsWith("help.html"));
  EXPECT_TRUE(waits);
  EXPECT_EQ(said, "Pauza. Pokračuj stiskem OK.");
  EXPECT_TRUE(Screen<HraWindow>()->Ticking());
}

}  // namespace
}  // namespace zorik
