#include <QSignalSpy>

#include "screens/HraScreen.h"
#include "support/VirtualPad.h"

namespace zorik {
namespace {

using test::Answers;
using test::Corridor;
using test::VirtualPad;
using test::Wait;

// The window on a desktop: the whole screen, pads, other windows.
class HraWindowDesktopTest : public test::HraScreen {
 protected:
  void OpenWithPad() {
    settings.Joystick = true;
    Open(Corridor());
    window->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
  }

  // Moves the pad, whose axis stood at 8000 just now, before the next tick.
  void ExpectCentreOf8000(VirtualPad& pad) {
    pad.Axes(17000, 0);  // beyond the middle's dead zone, and not beyond this one's
    window->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
    ASSERT_TRUE(TicksPass(5));
    EXPECT_EQ(Dog(), Cell(1, 1));
    pad.Axes(32767, 0);
    EXPECT_TRUE(Wait([&] { return Dog() == Cell(10, 1); })) << "and the pad steers";
  }

  bool FillsTheScreen() const { return window->windowState().testFlag(Qt::WindowFullScreen); }
};

// Sound

TEST(HraWindowWithoutSound, SaysSoWhenACaveOpens) {
  Skin skin;
  DSound none({"nonsense"});
  Settings settings;
  HraWindow window(skin, none, settings);
  QSignalSpy told(&window, &HraWindow::NoSound);
  ASSERT_TRUE(PaintCave(window.Machine(), test::CaveTextOf(Corridor()), RunKind::Play));
  ASSERT_EQ(told.count(), 1);
  EXPECT_EQ(told[0][0].toString(), "Unable to initialize DirectSound.");
}

// The whole screen

TEST_F(HraWindowDesktopTest, FillsTheScreenWithF11AndGoesBack) {
  Open(Corridor());
  QTest::keyClick(window.get(), Qt::Key_F11);
  EXPECT_TRUE(FillsTheScreen());
  EXPECT_TRUE(TicksPass(2));
  QTest::keyClick(window.get(), Qt::Key_F11);
  EXPECT_FALSE(FillsTheScreen());
  EXPECT_TRUE(TicksPass(2));
}

TEST_F(HraWindowDesktopTest, IsMaximisedAgainAlsoAfterItWasHiddenWhileItFilledTheScreen) {
  Open(Corridor());
  window->setWindowState(Qt::WindowMaximized);
  QTest::keyClick(window.get(), Qt::Key_F11);
  window->hide();
  window->setWindowState(Qt::WindowFullScreen);  // what a desktop leaves of it
  window->show();
  EXPECT_TRUE(window->Maximised());
  QTest::keyClick(window.get(), Qt::Key_F11);
  EXPECT_EQ(window->windowState(), Qt::WindowMaximized);
  EXPECT_TRUE(window->Maximised());
}

TEST_F(HraWindowDesktopTest, HasTheSizeOfBeforeWhenItWasNotMaximised) {
  Open(Corridor());
  ASSERT_EQ(window->windowState(), Qt::WindowNoState);
  QTest::keyClick(window.get(), Qt::Key_F11);
  EXPECT_FALSE(window->Maximised());
  QTest::keyClick(window.get(), Qt::Key_F11);
  EXPECT_EQ(window->windowState(), Qt::WindowNoState);
}

TEST_F(HraWindowDesktopTest, FillsTheScreenNoMoreAfterEscAndHandsOnTheNextEsc) {
  Open(Corridor());
  QSignalSpy others(window.get(), &HraWindow::OtherKey);
  QTest::keyClick(window.get(), Qt::Key_F11);
  QTest::keyClick(window.get(), Qt::Key_Escape);
  EXPECT_FALSE(FillsTheScreen());
  EXPECT_EQ(others.count(), 0);
  QTest::keyClick(window.get(), Qt::Key_Escape);
  ASSERT_EQ(others.count(), 1);
  EXPECT_EQ(others[0][0].toInt(), Qt::Key_Escape);
}

TEST_F(HraWindowDesktopTest, FillsTheScreenOnAfterAnyOtherKey) {
  Open(Corridor());
  QSignalSpy others(window.get(), &HraWindow::OtherKey);
  QTest::keyClick(window.get(), Qt::Key_F11);
  for (const Qt::Key key : {Qt::Key_Backspace, Qt::Key_F3, Qt::Key_Q}) {
    QTest::keyClick(window.get(), key);
    EXPECT_TRUE(FillsTheScreen()) << key;
  }
  EXPECT_EQ(others.count(), 3) << "they are handed on";
}

TEST_F(HraWindowDesktopTest, HasAButtonThatLeavesTheCaveWhileItFillsTheScreen) {
  Open(Corridor());
  EXPECT_FALSE(Shows("leave"));
  QTest::keyClick(window.get(), Qt::Key_F11);
  ASSERT_TRUE(Wait([&] { return Shows("leave"); }));
  QSignalSpy leaving(window.get(), &HraWindow::EndRequested);
  Click("leave");
  EXPECT_EQ(leaving.count(), 1);
  QTest::keyClick(window.get(), Qt::Key_F11);
  EXPECT_TRUE(Wait([&] { return !Shows("leave"); }));
}

// The pad

TEST_F(HraWindowDesktopTest, IsSteeredByThePadWhileItHasTheFocus) {
  VirtualPad pad;
  OpenWithPad();
  pad.Axes(32767, 0);
  EXPECT_TRUE(Wait([&] { return Dog() == Cell(10, 1); }));
}

TEST_F(HraWindowDesktopTest, IsNotSteeredByThePadWhileAnotherWindowHasTheFocus) {
  VirtualPad pad;
  OpenWithPad();
  QWidget other;
  other.show();
  other.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
  pad.Axes(32767, 0);
  ASSERT_TRUE(TicksPass(5));
  EXPECT_EQ(Dog(), Cell(1, 1));
  pad.Axes(0, 0);
  window->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
  ASSERT_TRUE(TicksPass(5));
  EXPECT_EQ(Dog(), Cell(1, 1)) << "what was pushed for the other window is forgotten";
}

TEST_F(HraWindowDesktopTest, StandsStillForAStickThatWasPushedWhenTheCaveOpenedAndIsLetGo) {
  VirtualPad pad;
  pad.Axes(-32768, 0);
  OpenWithPad();
  pad.Axes(0, 0);
  ASSERT_TRUE(TicksPass(6));
  EXPECT_EQ(Dog(), Cell(1, 1));
  QTest::keyPress(window.get(), Qt::Key_Right);
  EXPECT_TRUE(Wait([&] { return Dog() == Cell(10, 1); }));
}

TEST_F(HraWindowDesktopTest, ReadsThePadsCentreWhenTheSettingIsSwitchedOn) {
  VirtualPad pad;
  pad.Axes(8000, 0);
  Open(Corridor());
  window->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
  EditSettings([](QWidget& dialog) {
    QTest::mouseClick(dialog.findChild<QWidget*>("check3"), Qt::LeftButton);
    QTest::keyClick(&dialog, Qt::Key_Return);
  });
  ASSERT_TRUE(settings.Joystick);
  ExpectCentreOf8000(pad);
}

TEST_F(HraWindowDesktopTest, IsSteeredByThePadNoMoreWhenTheSettingIsSwitchedOff) {
  VirtualPad pad;
  OpenWithPad();
  EditSettings([](QWidget& dialog) {
    QTest::mouseClick(dialog.findChild<QWidget*>("check3"), Qt::LeftButton);
    QTest::keyClick(&dialog, Qt::Key_Return);
  });
  ASSERT_FALSE(settings.Joystick);
  window->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
  pad.Axes(32767, 0);
  ASSERT_TRUE(TicksPass(5));
  EXPECT_EQ(Dog(), Cell(1, 1));
}

TEST_F(HraWindowDesktopTest, StandsStillForWhatThePadDidBehindADialog) {
  VirtualPad pad;
  OpenWithPad();
  ASSERT_TRUE(TicksPass(2));
  window->WithDialog([&pad] {
    pad.Axes(32767, 0);
    QTest::qWait(20);
    pad.Axes(0, 0);
    QTest::qWait(20);
  });
  ASSERT_TRUE(TicksPass(5));
  EXPECT_EQ(Dog(), Cell(1, 1));
}

TEST_F(HraWindowDesktopTest, ReadsThePadsCentreWhenTheCaveOpensAndNotInItsFirstTick) {
  VirtualPad pad;
  pad.Axes(8000, 0);
  settings.Joystick = true;
  Open(Corridor());
  ExpectCentreOf8000(pad);
}

}  // namespace
}  // namespace zorik
