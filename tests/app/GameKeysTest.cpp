#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QTest>
#include <filesystem>

#include "app/GameScreens.h"
#include "data/Files.h"
#include "screens/CaveList.h"
#include "screens/Folder.h"
#include "support/DesktopStandIn.h"

namespace zorik::test {
namespace {

// The whole program, whose player keeps a finger on a key.
class GameKeysTest : public GameTest {
 protected:
  void SetUp() override {
    GameTest::SetUp();
    QTest::qWait(1);  // until the notice is gone
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

TEST_F(GameKeysTest, LeavesNoRunWithEsc) {
  PlayCave();
  Press(Screen<HraWindow>(), Qt::Key_Escape);
  QTest::qWait(100);
  EXPECT_TRUE(Shows<HraWindow>() && !Shows<FrmPoSt>());
  EXPECT_TRUE(Screen<HraWindow>()->Ticking());
}

TEST_F(GameKeysTest, OpensTheHelpWithF1WhileTheRunWaits) {
  folder.File("Help/help.html", "<p>");
  PlayCave();
  const DesktopStandIn desktop(0);
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

TEST_F(GameKeysTest, OpensTheHelpWithF1AndNoPauseWhereNothingRuns) {
  folder.File("Help/help.html", "<p>");
  PlayCave();
  Screen<HraWindow>()->Stop();
  const DesktopStandIn desktop(0);
  const DialogScript nothing = {};
  QTest::keyClick(Screen<HraWindow>(), Qt::Key_F1);
  EXPECT_TRUE(desktop.Opened().endsWith("help.html"));
}

TEST_F(GameKeysTest, StaysWithTheScoreWhenTheGameIsClosedBehindIt) {
  PlayCave();
  QTest::keyClick(Screen<HraWindow>(), Qt::Key_Right);
  ASSERT_TRUE(Wait(Shows<FrmAnalyze>));
  Screen<HraWindow>()->close();
  EXPECT_FALSE(Shows<FrmPoSt>());
  ReadScores();
  EXPECT_TRUE(ReadWhole(RecordPath()));
}

}  // namespace
}  // namespace zorik::test
