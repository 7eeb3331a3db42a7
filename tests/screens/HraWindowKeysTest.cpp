#include <QSignalSpy>

#include "data/Result.h"
#include "screens/DialogScript.h"
#include "screens/HraScreen.h"
#include "screens/TestSkin.h"
#include "support/VirtualPad.h"

namespace zorik {
namespace {

using test::Answers;
using test::Corridor;
using test::VirtualPad;
using test::Wait;

// The window with keys and buttons of the player's own, and when he goes to another window.
class HraWindowKeysTest : public test::HraScreen {
 protected:
  void OpenInFront() {
    Open(Corridor());
    window->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
  }

  // The player goes to another program.
  static void LookAway() { QApplication::setActiveWindow(nullptr); }
  void LookBack() const { QApplication::setActiveWindow(window.get()); }

  void WalkAway() {
    QTest::keyPress(window.get(), Qt::Key_Right);
    ASSERT_TRUE(Wait([&] { return Dog() == Cell(10, 1); }));
    QTest::keyRelease(window.get(), Qt::Key_Right);
  }
};

TEST_F(HraWindowKeysTest, IsSteeredByTheKeysOfTheSettings) {
  settings.Keys.Choose(KeyUse::Right, {Qt::Key_D});
  Open(Corridor());
  QTest::keyClick(window.get(), Qt::Key_Right);
  ASSERT_TRUE(TicksPass(3));
  EXPECT_EQ(Dog(), Cell(1, 1)) << "the arrow does it no more";
  QTest::keyPress(window.get(), Qt::Key_D);
  EXPECT_TRUE(Wait([&] { return Dog() == Cell(10, 1); }));
}

TEST_F(HraWindowKeysTest, IsSteeredInTheRunningCaveByKeysThatHaveJustBeenChosen) {
  Open(Corridor());
  EditSettings([](QWidget& dialog) {
    const test::InDialog inside([](QWidget& keys) {
      auto* const box = keys.findChild<QAbstractButton*>("key2");
      box->click();
      QTest::keyClick(box, Qt::Key_D);
      QTest::keyClick(&keys, Qt::Key_Return);
    });
    dialog.findChild<QAbstractButton*>("keys")->click();
    EXPECT_TRUE(inside.Opened());
    QTest::keyClick(&dialog, Qt::Key_Return);
  });
  QTest::keyPress(window.get(), Qt::Key_D);
  EXPECT_TRUE(Wait([&] { return Dog() == Cell(10, 1); }));
}

TEST_F(HraWindowKeysTest, RestartsWithAKeyOfItsOwn) {
  settings.Keys.Choose(KeyUse::Restart, {Qt::Key_F9});
  Open(Corridor());
  WalkAway();
  QTest::keyClick(window.get(), Qt::Key_F9);
  EXPECT_TRUE(Wait([&] { return Dog() == Cell(1, 1); }));
}

TEST_F(HraWindowKeysTest, EndsThePauseWithTheKeyThatBeganIt) {
  settings.Keys.Choose(KeyUse::Pause, {Qt::Key_K});
  Open(Corridor());
  bool ended = false;
  bool endedByP = false;
  const test::DialogScript script = {[&](QWidget& box) {
    QTest::keyClick(&box, Qt::Key_P);
    endedByP = !box.isVisible();
    QTest::keyClick(&box, Qt::Key_K);
    ended = !box.isVisible();
    if (!ended) box.close();
  }};
  QTest::keyClick(window.get(), Qt::Key_K);
  EXPECT_TRUE(TicksPass(2));
  EXPECT_TRUE(ended);
  EXPECT_FALSE(endedByP);
}

TEST_F(HraWindowKeysTest, ChoosesADogByADigitOfTheMainRow) {
  Open({"WWWWWWW", "W1.2.3W", "WWWWWWW"});
  QTest::keyClick(window.get(), Qt::Key_3);
  EXPECT_TRUE(Wait([&] { return window->Machine().ActiveDog == 3; }));
  QTest::keyClick(window.get(), Qt::Key_2);
  EXPECT_TRUE(Wait([&] { return window->Machine().ActiveDog == 2; }));
}

TEST_F(HraWindowKeysTest, HandsOnTheKeysOfPracticeAndOnesThatNobodyHasAnyMore) {
  settings.Keys.Choose(KeyUse::Right, {Qt::Key_D});
  Open(Corridor());
  QSignalSpy others(window.get(), &HraWindow::OtherKey);
  for (const Qt::Key key : {Qt::Key_Backspace, Qt::Key_D, Qt::Key_Right}) QTest::keyClick(window.get(), key);
  ASSERT_EQ(others.count(), 2);
  EXPECT_EQ(others[0][0].toInt(), Qt::Key_Backspace);
  EXPECT_EQ(others[1][0].toInt(), Qt::Key_Right);
}

// The pad

TEST_F(HraWindowKeysTest, PausesAndGoesOnByAButtonOfThePad) {
  VirtualPad pad;
  settings.Joystick = true;
  settings.Pad.Choose(PadUse::Pause, 3);
  OpenInFront();
  const auto tap = [&pad] {
    pad.Button(3, true);
    pad.Button(3, false);
  };
  bool ended = false;
  const test::DialogScript script = {[&](QWidget& box) {
    EXPECT_TRUE(QTest::qWaitForWindowActive(&box));
    QTest::qWait(50);  // the window behind it forgets what was pressed when it loses the focus
    tap();
    ended = Wait([&box] { return !box.isVisible(); });
    if (!ended) box.close();
  }};
  tap();
  EXPECT_TRUE(TicksPass(3)) << "and the press that ended it begins no other";
  EXPECT_TRUE(ended);
}

TEST_F(HraWindowKeysTest, RestartsByAButtonOfThePad) {
  VirtualPad pad;
  settings.Joystick = true;
  settings.Pad.Choose(PadUse::Restart, 2);
  OpenInFront();
  WalkAway();
  pad.Button(2, true);
  EXPECT_TRUE(Wait([&] { return Dog() == Cell(1, 1); }));
}

// Another window

TEST_F(HraWindowKeysTest, GoesOnWhenThePlayerLooksAwayUnlessHeWantsAPause) {
  OpenInFront();
  LookAway();
  EXPECT_TRUE(TicksPass(5));
}

TEST_F(HraWindowKeysTest, StandsStillWhileThePlayerLooksAwayAndTakesNoKeysFromHim) {
  settings.PauseOnFocusLoss = true;
  OpenInFront();
  LookAway();
  ASSERT_TRUE(Wait([&] { return !window->Ticking(); }));
  EXPECT_EQ(window->Message().Text(), "Pauza");
  const int ticks = window->Machine().Ticks;
  QTest::qWait(100);
  EXPECT_EQ(window->Machine().Ticks, ticks);
  EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST_F(HraWindowKeysTest, EndsThatPauseAsAnyOtherWhenThePlayerIsBack) {
  settings.PauseOnFocusLoss = true;
  OpenInFront();
  LookAway();
  ASSERT_TRUE(Wait([&] { return !window->Ticking(); }));
  Answers answers(0);
  answers.Linger(20, [&] { return window->Machine().Ticks; });
  LookBack();
  ASSERT_TRUE(Wait([&] { return !answers.said.isEmpty(); }));
  EXPECT_EQ(answers.said, QStringList{"Pauza. Pokračuj stiskem OK."});
  EXPECT_EQ(answers.seen, QSet<int>{*answers.seen.begin()});
  EXPECT_FALSE(window->Message().isVisible());
  LookBack();  // as desktops give the focus back behind a box
  EXPECT_TRUE(TicksPass(2));
}

TEST_F(HraWindowKeysTest, PausesOnceForThePlayerWhoLooksAwayFromAPause) {
  settings.PauseOnFocusLoss = true;
  OpenInFront();
  int opened = 0;
  const test::DialogScript script = {[this, &opened](QWidget& box) {
    ++opened;
    LookAway();
    QTest::qWait(150);
    EXPECT_NE(window->Message().Text(), "Pauza");
    box.close();
  }};
  QTest::keyClick(window.get(), Qt::Key_P);
  ASSERT_TRUE(Wait([&] { return opened == 1; }));
  LookBack();
  EXPECT_TRUE(TicksPass(3));
}

TEST_F(HraWindowKeysTest, DoesNotPauseForTheSettingsNorBehindTheTableNorWhenNothingRuns) {
  settings.PauseOnFocusLoss = true;
  OpenInFront();
  EditSettings([](QWidget& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
  ASSERT_TRUE(TicksPass(3));
  QTest::keyClick(window.get(), Qt::Key_F12);
  ASSERT_TRUE(Wait([&] { return !window->isVisible(); }));
  QTest::qWait(150);
  EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
  const_cast<HideAway*>(&window->Hidden())->close();
  ASSERT_TRUE(TicksPass(2));
  window->Stop();
  LookAway();
  QTest::qWait(150);
  LookBack();
  QTest::qWait(150);
  EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST_F(HraWindowKeysTest, GoesOnWhileThePlayerIsInAnotherWindowOfTheGame) {
  settings.PauseOnFocusLoss = true;
  OpenInFront();
  QWidget other;
  other.show();
  other.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
  QTest::qWait(200);  // longer than a window may take to get the focus
  EXPECT_TRUE(window->Ticking());
  EXPECT_NE(window->Message().Text(), "Pauza");
}

}  // namespace
}  // namespace zorik
