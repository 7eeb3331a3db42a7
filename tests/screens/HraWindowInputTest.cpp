#include <QSignalSpy>

#include "data/Result.h"
#include "screens/DialogScript.h"
#include "screens/HraScreen.h"

namespace zorik {
namespace {

using test::Answers;
using test::CaveTextOf;
using test::Corridor;
using test::Wait;

class HraWindowInputTest : public test::HraScreen {};

// Keys

TEST_F(HraWindowInputTest, MovesTheDogOneCellForATap) {
  Open(Corridor());
  QTest::keyClick(window.get(), Qt::Key_Right);
  ASSERT_TRUE(Wait([&] { return Dog() == Cell(2, 1); }));
  ASSERT_TRUE(TicksPass(5));
  EXPECT_EQ(Dog(), Cell(2, 1));
}

TEST_F(HraWindowInputTest, MovesTheDogForAsLongAsAKeyIsHeld) {
  Open(Corridor());
  QTest::keyPress(window.get(), Qt::Key_Right);
  EXPECT_TRUE(Wait([&] { return Dog() == Cell(10, 1); }));
}

TEST_F(HraWindowInputTest, RollsOverToTheKeyThatWasPressedLastAndBack) {
  Open({"WWWWWWWW", "W1.....W", "W......W", "W......W", "WWWWWWWW"});
  QTest::keyPress(window.get(), Qt::Key_Right);
  ASSERT_TRUE(Wait([&] { return Dog().x() >= 2; }));
  QTest::keyPress(window.get(), Qt::Key_Down);
  ASSERT_TRUE(Wait([&] { return Dog().y() == 3; }));
  const int column = Dog().x();
  QTest::keyRelease(window.get(), Qt::Key_Down);
  EXPECT_TRUE(Wait([&] { return Dog().x() > column; }));
}

TEST_F(HraWindowInputTest, LetsTheDogStandWhenItLosesTheFocus) {
  Open(Corridor());
  QTest::keyPress(window.get(), Qt::Key_Right);
  ASSERT_TRUE(Wait([&] { return Dog() == Cell(3, 1); }));
  QFocusEvent lost(QEvent::FocusOut);
  QApplication::sendEvent(window.get(), &lost);
  const Cell place = Dog();
  ASSERT_TRUE(TicksPass(5));
  EXPECT_EQ(Dog(), place);
}

TEST_F(HraWindowInputTest, RestartsTheCaveWithCtrlAndR) {
  Open(Corridor());
  QTest::keyPress(window.get(), Qt::Key_Right);
  ASSERT_TRUE(Wait([&] { return Dog() == Cell(10, 1); }));
  QTest::keyRelease(window.get(), Qt::Key_Right);
  QTest::keyPress(window.get(), Qt::Key_Control);
  QTest::keyPress(window.get(), Qt::Key_R, Qt::ControlModifier);
  EXPECT_TRUE(Wait([&] { return Dog() == Cell(1, 1); }));
}

TEST_F(HraWindowInputTest, ChangesTheSpeedWithTheKeypadAndKeepsIt) {
  Open(Corridor());
  QTest::keyClick(window.get(), Qt::Key_Minus, Qt::KeypadModifier);
  EXPECT_TRUE(Wait([&] { return settings.Speed == 3; }));
  EXPECT_EQ(FindSett().Speed, 3);
  QTest::keyClick(window.get(), Qt::Key_Plus, Qt::KeypadModifier);
  EXPECT_TRUE(Wait([&] { return settings.Speed == 2; }));
  EXPECT_EQ(FindSett().Speed, 2);
}

TEST_F(HraWindowInputTest, ChangesTheSpeedOfReplaysApart) {
  Show();
  settings.SpeedR = 5;
  ASSERT_TRUE(window->StartRecord(test::RecordOf(Corridor(), std::vector<test::RecordTick>(50))));
  QTest::keyClick(window.get(), Qt::Key_Plus, Qt::KeypadModifier);
  EXPECT_TRUE(Wait([&] { return settings.SpeedR == 4; }));
  EXPECT_EQ(settings.Speed, 2);
}

TEST_F(HraWindowInputTest, HandsOnKeysThatTheGameHasNoUseFor) {
  Open(Corridor());
  QSignalSpy others(window.get(), &HraWindow::OtherKey);
  QTest::keyClick(window.get(), Qt::Key_F5);
  QTest::keyClick(window.get(), Qt::Key_Right);
  ASSERT_EQ(others.count(), 1);
  EXPECT_EQ(others[0][0].toInt(), Qt::Key_F5);
}

// Pause, question

TEST_F(HraWindowInputTest, StandsStillWhileThePauseIsOpen) {
  Open(Corridor());
  Answers answers(0);
  answers.Linger(20, [&] { return window->Machine().Ticks; });
  QTest::keyClick(window.get(), Qt::Key_P);
  ASSERT_TRUE(Wait([&] { return !answers.said.isEmpty(); }));
  EXPECT_EQ(answers.said, QStringList{"Pauza. Pokračuj stiskem OK."});
  EXPECT_EQ(answers.seen, QSet<int>{*answers.seen.begin()});
  EXPECT_TRUE(TicksPass(2));
}

TEST_F(HraWindowInputTest, HoldsNoKeyAfterThePause) {
  Open(Corridor());
  Answers answers(0);
  QTest::keyPress(window.get(), Qt::Key_Right);
  ASSERT_TRUE(Wait([&] { return Dog().x() >= 2; }));
  QTest::keyClick(window.get(), Qt::Key_P);
  ASSERT_TRUE(Wait([&] { return !answers.said.isEmpty(); }));
  const Cell place = Dog();
  ASSERT_TRUE(TicksPass(3));
  EXPECT_EQ(Dog(), place);
}

TEST_F(HraWindowInputTest, EndsThePauseThatPBeganWithP) {
  Open(Corridor());
  bool ended = false;
  const test::DialogScript script = {[&ended](QWidget& box) {
    QTest::keyClick(&box, Qt::Key_P);
    ended = !box.isVisible();
    if (!ended) box.close();
  }};
  QTest::keyClick(window.get(), Qt::Key_P);
  EXPECT_TRUE(TicksPass(2));
  EXPECT_TRUE(ended);
}

TEST_F(HraWindowInputTest, AsksAnIdlePlayerWhetherHeIsThere) {
  settings.Speed = 1;
  Open(Corridor());
  const Answers answers(1);
  ASSERT_TRUE(QTest::qWaitFor([&] { return !answers.said.isEmpty(); }, 20000));
  EXPECT_EQ(answers.said[0], "Haf! Jsi tam ještě?");
  EXPECT_EQ(answers.titles[0], "Zorík se nudí");
  EXPECT_TRUE(TicksPass(2));
}

// Hiding

TEST_F(HraWindowInputTest, HidesBehindATableWithF12AndComesBackWithTheDogsName) {
  Open(Corridor());
  QTest::keyClick(window.get(), Qt::Key_F12);
  ASSERT_TRUE(Wait([&] { return !window->isVisible(); }));
  EXPECT_TRUE(window->Hidden().isVisible());
  EXPECT_FALSE(window->Ticking());
  EXPECT_EQ(window->Hidden().windowTitle(), "Tabulka");
  auto* const table = const_cast<HideAway*>(&window->Hidden());
  for (const Qt::Key key : {Qt::Key_Z, Qt::Key_O, Qt::Key_R, Qt::Key_I, Qt::Key_K}) {
    QTest::keyClick(table, key);
  }
  EXPECT_TRUE(window->isVisible());
  EXPECT_FALSE(window->Hidden().isVisible());
  EXPECT_TRUE(TicksPass(2));
}

TEST_F(HraWindowInputTest, ComesBackWhenTheTableIsClosed) {
  Open(Corridor());
  QTest::keyClick(window.get(), Qt::Key_F12);
  ASSERT_TRUE(Wait([&] { return !window->isVisible(); }));
  const_cast<HideAway*>(&window->Hidden())->close();
  EXPECT_TRUE(window->isVisible());
  EXPECT_FALSE(window->Hidden().isVisible());
  EXPECT_TRUE(TicksPass(2));
}

TEST_F(HraWindowInputTest, StandsStillWhileItIsMinimised) {
  Open(Corridor());
  ASSERT_TRUE(TicksPass(1));
  window->setWindowState(Qt::WindowMinimized);
  ASSERT_TRUE(Wait([&] { return !window->Ticking(); }));
  const int ticks = window->Machine().Ticks;
  QTest::qWait(150);
  EXPECT_EQ(window->Machine().Ticks, ticks);
  window->setWindowState(Qt::WindowNoState);
  EXPECT_TRUE(TicksPass(2));
}

TEST_F(HraWindowInputTest, DoesNotStartWhatIsOverWhenItComesBackFromBeingMinimised) {
  Open(Corridor());
  window->Stop();
  window->setWindowState(Qt::WindowMinimized);
  window->setWindowState(Qt::WindowNoState);
  EXPECT_FALSE(window->Ticking());
}

TEST_F(HraWindowInputTest, TurnsItsClosingIntoAWishToLeave) {
  Open(Corridor());
  QSignalSpy leaving(window.get(), &HraWindow::EndRequested);
  EXPECT_FALSE(window->close());
  EXPECT_EQ(leaving.count(), 1);
}

}  // namespace
}  // namespace zorik
