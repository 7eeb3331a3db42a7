#include <gtest/gtest.h>

#include <QApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QShortcut>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>

#include "screens/HeldKeys.h"
#include "screens/MsgBox.h"
#include "screens/TestSkin.h"

namespace zorik {
namespace {

// A window that counts what reaches it.
class Counting : public QWidget {
 public:
  explicit Counting() {
    show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(this));
  }

  int presses = 0;

 protected:
  void keyPressEvent(QKeyEvent* /*event*/) override { ++presses; }
};

void Send(QWidget& widget, QEvent::Type type, bool repeat = false, quint64 time = 0,
          int key = Qt::Key_Return) {
  QKeyEvent event(type, key, {}, 36, 0, 0, {}, repeat);
  event.setTimestamp(time);
  QApplication::sendEvent(&widget, &event);
}

class HeldKeysTest : public testing::Test {
 protected:
  HeldKeys keys_;
  Counting one_, other_;
};

TEST_F(HeldKeysTest, ReachTheWindowInWhichTheyWentDownWithAllTheirRepeats) {
  Send(one_, QEvent::KeyPress);
  Send(one_, QEvent::KeyPress, true);
  Send(one_, QEvent::KeyPress);
  EXPECT_EQ(one_.presses, 3);
}

TEST_F(HeldKeysTest, MeanNothingToAnotherWindowUntilTheyAreLetGo) {
  Send(one_, QEvent::KeyPress);
  Send(other_, QEvent::KeyPress, true);
  Send(other_, QEvent::KeyPress);
  EXPECT_EQ(other_.presses, 0);
  Send(other_, QEvent::KeyRelease, true);
  Send(other_, QEvent::KeyPress, true);
  EXPECT_EQ(other_.presses, 0) << "a release between two repeats lets nothing go";
  Send(other_, QEvent::KeyRelease);
  Send(other_, QEvent::KeyPress);
  EXPECT_EQ(other_.presses, 1);
}

// The desktop sends them to the first menu, which has them handed to the last.
TEST_F(HeldKeysTest, ReachAMenuThatAnotherOneHasOpened) {
  QMenu menu(&one_);
  QMenu& inner = *menu.addMenu("inner");
  inner.addAction("first");
  QAction* const second = inner.addAction("second");
  menu.popup({0, 0});
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&menu));
  inner.popup({50, 0});
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&inner));
  QTest::keyClick(menu.windowHandle(), Qt::Key_Down);
  QTest::keyClick(menu.windowHandle(), Qt::Key_Down);
  EXPECT_EQ(inner.activeAction(), second);
  QTest::keyClick(menu.windowHandle(), Qt::Key_Escape);
  EXPECT_FALSE(inner.isVisible());
}

TEST_F(HeldKeysTest, MeanNothingWhenTheirRepeatsLookLikePressesOfTheSameMoment) {
  Send(one_, QEvent::KeyPress, false, 100);
  for (quint64 time = 700; time < 900; time += 40) {
    Send(other_, QEvent::KeyRelease, false, time);
    Send(other_, QEvent::KeyPress, false, time);
  }
  EXPECT_EQ(other_.presses, 0);
  Send(other_, QEvent::KeyRelease, false, 1000);
  Send(other_, QEvent::KeyPress, false, 1100);
  EXPECT_EQ(other_.presses, 1);
}

// A window that goes can take the release with it.
TEST_F(HeldKeysTest, WhoseReleaseWasLostMeanSomethingWhenTheyArePressedAgain) {
  Send(one_, QEvent::KeyPress, false, 100);
  one_.hide();
  for (quint64 time = 140; time < 300; time += 40) Send(other_, QEvent::KeyPress, false, time);
  EXPECT_EQ(other_.presses, 0) << "so fast no finger is";
  Send(other_, QEvent::KeyPress, true, 900);
  EXPECT_EQ(other_.presses, 0) << "it calls itself a repeat";
  Send(other_, QEvent::KeyPress, false, 1400);
  EXPECT_EQ(other_.presses, 1);
}

// So can another program.
TEST_F(HeldKeysTest, WhoseReleaseWentToAnotherProgramMeanSomethingWhenTheyArePressedAgain) {
  Send(one_, QEvent::KeyPress, false, 100);
  emit qApp->applicationStateChanged(Qt::ApplicationInactive);
  emit qApp->applicationStateChanged(Qt::ApplicationActive);
  Send(other_, QEvent::KeyPress, true, 180);
  EXPECT_EQ(other_.presses, 0) << "it calls itself a repeat";
  Send(other_, QEvent::KeyPress, false, 200);
  EXPECT_EQ(other_.presses, 1);
}

TEST_F(HeldKeysTest, MeanNothingToAWindowThatWasHiddenMeanwhile) {
  Send(one_, QEvent::KeyPress);
  one_.hide();
  one_.show();
  Send(one_, QEvent::KeyPress, true);
  Send(one_, QEvent::KeyPress);
  EXPECT_EQ(one_.presses, 1);
  Send(one_, QEvent::KeyRelease);
  Send(one_, QEvent::KeyPress);
  EXPECT_EQ(one_.presses, 2);
}

TEST_F(HeldKeysTest, MeanNothingWhenTheyWereDownBeforeTheProgramCame) {
  Send(one_, QEvent::KeyPress, true);
  EXPECT_EQ(one_.presses, 0);
  Send(one_, QEvent::KeyRelease);
  Send(one_, QEvent::KeyPress);
  EXPECT_EQ(one_.presses, 1);
}

TEST_F(HeldKeysTest, DoNotHinderOtherKeys) {
  Send(one_, QEvent::KeyPress);
  QTest::keyPress(&other_, Qt::Key_Escape);
  EXPECT_EQ(other_.presses, 1);
}

TEST_F(HeldKeysTest, AreNoShortcutsOfAnotherWindow) {
  QShortcut shortcut(QKeySequence(Qt::Key_F3), &other_);
  QSignalSpy used(&shortcut, &QShortcut::activated);
  one_.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&one_));
  QTest::keyPress(&one_, Qt::Key_F3);
  other_.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&other_));
  QTest::keyPress(&other_, Qt::Key_F3);
  EXPECT_EQ(used.count(), 0);
  QTest::keyRelease(&other_, Qt::Key_F3);
  QTest::keyPress(&other_, Qt::Key_F3);
  EXPECT_EQ(used.count(), 1);
}

TEST_F(HeldKeysTest, DoNotAnswerTheBoxThatTheyOpened) {
  Skin skin;
  bool stayed = false;
  const test::InDialog held([&stayed](QWidget& box) {
    for (const bool repeat : {true, false, true}) Send(box, QEvent::KeyPress, repeat);
    stayed = box.isVisible();
    Send(box, QEvent::KeyRelease);
    Send(box, QEvent::KeyPress);
  });
  Send(one_, QEvent::KeyPress);
  EXPECT_TRUE(Ask(skin, &one_, "Dotaz", "Opravdu?"));
  EXPECT_TRUE(stayed);
}

}  // namespace
}  // namespace zorik
