// Practice looks for ways to win, and shows them.
#include <QElapsedTimer>
#include <QSignalSpy>

#include "screens/PracticeScreen.h"
#include "support/VirtualPad.h"

namespace zorik {
namespace {

using test::CaveTextOf;
using test::Numbers;
using test::Picture;
using test::Wait;

const Picture kCorridor{"WWWWWWWWW", "W1;D;;;TW", "WWWWWWWWW"};
const Picture kWalled{"WWWWW", "W1D;W", "WWWWW"};
// Nobody finds a way through three boulders, and nothing proves that there is none.
const Picture kBoulders{"WWWWWWWW", "W1DRRRTW", "WWWWWWWW"};
// Fourteen steps to the finish.
const Picture kLongWay{"WWWWWWWWWWWWWWWWW", "W1D;;;;;;;;;;;;TW", "WWWWWWWWWWWWWWWWW"};

class PracticeWays : public test::PracticeScreen {
 protected:
  void Practise(const Picture& picture, const Numbers& numbers = {.needed = 1}) {
    PracticeScreen::Practise(picture, numbers);
  }

  const WayHint& Hint() const { return Training().Hint(); }

  bool LightIs(Prospect light) const {
    return Wait([&] { return Badge().Light() == light; });
  }
  bool WayShows() const {
    return Wait([&] { return Hint().Shown() && Training().Waits(); });
  }

  // The cells of the steps that show.
  std::vector<Cell> Cells() const {
    std::vector<Cell> cells;
    for (const Footstep& step : Hint().Steps()) cells.push_back(step.cell);
    return cells;
  }
};

// The light

TEST_F(PracticeWays, TellThatAWayIsKnown) {
  Practise(kCorridor);
  ASSERT_TRUE(LightIs(Prospect::Known));
  EXPECT_EQ(Badge().LightText(), "Cesta k výhře je známá");
  ASSERT_TRUE(TicksPass(30));
  EXPECT_EQ(Badge().Light(), Prospect::Known) << "the way is still open to who waits";
}

TEST_F(PracticeWays, TellThatNoneIsKnownWithoutSayingThatThereIsNone) {
  Practise(kBoulders);
  for (int look = 0; look < 5; ++look) {
    ASSERT_TRUE(TicksPass(5));
    EXPECT_EQ(Badge().Light(), Prospect::NoneYet);
  }
  EXPECT_EQ(Badge().LightText(), "Cesta k výhře zatím nenalezena");
}

TEST_F(PracticeWays, TellThatItIsLostWhereThatIsCertain) {
  Practise(kWalled);
  ASSERT_TRUE(LightIs(Prospect::Impossible));
  EXPECT_EQ(Badge().LightText(), "Vyhrát už nejde");
}

TEST_F(PracticeWays, TellNothingOfARunThatIsWon) {
  Practise({"WWWWW", "W1T.W", "WWWWW"}, {.needed = 0});
  ASSERT_TRUE(LightIs(Prospect::Known));
  Press(Qt::Key_Right);
  ASSERT_TRUE(Wait([&] { return window->Machine().Win.has_value(); }));
  EXPECT_TRUE(Wait([&] { return !Badge().Light(); }));
  EXPECT_EQ(Badge().LightText(), "");
}

TEST_F(PracticeWays, AreKnownAgainWhenTheMistakeIsUndone) {
  Practise(kCorridor, {.time = 3, .needed = 1});
  ASSERT_TRUE(LightIs(Prospect::Known));
  ASSERT_TRUE(LightIs(Prospect::Impossible));
  QTest::keyPress(window.get(), Qt::Key_Backspace);
  ASSERT_TRUE(Wait([&] { return Tick() <= 3; }));
  QTest::keyRelease(window.get(), Qt::Key_Backspace);
  EXPECT_TRUE(LightIs(Prospect::Known));
}

// The hint

TEST_F(PracticeWays, ShowTheirNextTenStepsWhileTimeStandsStill) {
  Practise(kLongWay);
  Press(Qt::Key_H);
  ASSERT_TRUE(WayShows());
  std::vector<Cell> wanted;
  for (int x = 2; x <= 11; ++x) wanted.emplace_back(x, 1);
  EXPECT_EQ(Cells(), wanted);
  EXPECT_EQ(Message(), "Tudy k výhře. Čas stojí, dokud něco neuděláš.");
  const int tick = Tick();
  QTest::qWait(300);
  EXPECT_EQ(Tick(), tick);
}

TEST_F(PracticeWays, LieOverThePictureOfTheCave) {
  Practise(kLongWay);
  Press(Qt::Key_H);
  ASSERT_TRUE(WayShows());
  Overlay overlay;
  CavePainter painter{SkinPlaces{}};
  Training().LayOver(overlay, painter);
  EXPECT_EQ(overlay.marks.size(), 10U);
  ASSERT_EQ(overlay.trails.size(), 1U);
  EXPECT_EQ(overlay.trails[0].cells.front(), QPoint(1, 1)) << "it begins at the dog";
  EXPECT_EQ(overlay.trails[0].cells.back(), QPoint(11, 1));
  EXPECT_TRUE(overlay.sprites.empty());
  QTest::keyPress(window.get(), Qt::Key_Right);
  QTest::keyRelease(window.get(), Qt::Key_Right);
  ASSERT_TRUE(Wait([&] { return Dog().x() >= 2; }));
  Overlay later;
  Training().LayOver(later, painter);
  EXPECT_EQ(later.marks.size(), 9U) << "a step that is done does not show";
}

TEST_F(PracticeWays, LeadToTheWin) {
  Practise(kLongWay);
  Press(Qt::Key_H);
  ASSERT_TRUE(WayShows());
  QTest::keyPress(window.get(), Qt::Key_Right);
  ASSERT_TRUE(Wait([&] { return window->Machine().Win.has_value(); }));
  QTest::keyRelease(window.get(), Qt::Key_Right);
  EXPECT_FALSE(Hint().Shown());
}

TEST_F(PracticeWays, AreWalkedByAGhostAsLongAsTheKeyIsHeld) {
  Practise(kLongWay);
  QTest::keyPress(window.get(), Qt::Key_H);
  ASSERT_TRUE(WayShows());
  ASSERT_TRUE(Wait([&] { return Hint().Whole(); }));
  EXPECT_EQ(Cells().size(), 14U);
  ASSERT_TRUE(Wait([&] { return Hint().GhostRun()->Win.has_value(); }));
  EXPECT_TRUE(Wait([&] { return !Hint().GhostRun()->Win; })) << "it goes again";
  EXPECT_EQ(Dog(), Cell(1, 1));
  EXPECT_FALSE(window->Machine().Win);
  QTest::keyRelease(window.get(), Qt::Key_H);
  EXPECT_FALSE(Hint().Whole());
  EXPECT_EQ(Cells().size(), 10U);
  EXPECT_TRUE(Training().Waits());
}

// Some desktops repeat a key as if it had been let go and pressed anew in the same moment.
TEST_F(PracticeWays, AreWalkedOnWhileTheKeyRepeats) {
  Practise(kLongWay);
  QTest::keyPress(window.get(), Qt::Key_H);
  ASSERT_TRUE(Wait([&] { return Hint().Whole(); }));
  for (const int moment : {1000, 1030, 1060}) {
    QKeyEvent release(QEvent::KeyRelease, Qt::Key_H, {});
    release.setTimestamp(static_cast<quint64>(moment));
    QApplication::sendEvent(window.get(), &release);
    QKeyEvent press(QEvent::KeyPress, Qt::Key_H, {});
    press.setTimestamp(static_cast<quint64>(moment));
    QApplication::sendEvent(window.get(), &press);
    EXPECT_TRUE(Hint().Whole()) << moment;
    QTest::qWait(30);
    EXPECT_TRUE(Hint().Whole()) << moment;
  }
  QKeyEvent release(QEvent::KeyRelease, Qt::Key_H, {});
  release.setTimestamp(1090);
  QApplication::sendEvent(window.get(), &release);
  EXPECT_TRUE(Wait([&] { return !Hint().Whole(); }));
}

TEST_F(PracticeWays, AreNotPromisedWhereNoneIsFound) {
  Practise(kWalled);
  Press(Qt::Key_H);
  EXPECT_TRUE(Wait([&] { return Message() == "Vyhrát už nejde"; }));
  EXPECT_FALSE(Hint().Shown());
}

TEST_F(PracticeWays, WaitForNoRepeatedKey) {
  Practise(kLongWay);
  Press(Qt::Key_H);
  ASSERT_TRUE(WayShows());
  QKeyEvent repeat(QEvent::KeyPress, Qt::Key_Right, {}, {}, true);
  QApplication::sendEvent(window.get(), &repeat);
  EXPECT_TRUE(Training().Waits());
  EXPECT_TRUE(window->Message().isVisible());
  Press(Qt::Key_Left);
  EXPECT_FALSE(Training().Waits());
  EXPECT_FALSE(window->Message().isVisible()) << "time does not stand still any more";
}

// A stick that has been pushed since before is no answer.
TEST_F(PracticeWays, WaitForAStickToBePushedAnew) {
  test::VirtualPad pad;
  settings.Joystick = true;
  Practise(kLongWay);
  window->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
  pad.Axes(0, 32767);
  ASSERT_TRUE(TicksPass(3));
  Press(Qt::Key_H);
  ASSERT_TRUE(WayShows());
  QTest::qWait(200);
  EXPECT_TRUE(Training().Waits());
  pad.Axes(0, 0);
  QTest::qWait(200);
  EXPECT_TRUE(Training().Waits());
  pad.Axes(32767, 0);
  EXPECT_TRUE(Wait([&] { return !Training().Waits(); }));
}

TEST_F(PracticeWays, AreKnownOfAMomentThatIsGoneBackTo) {
  Practise(kLongWay);
  QTest::keyPress(window.get(), Qt::Key_Right);
  ASSERT_TRUE(Wait([&] { return Dog().x() >= 6; }));
  QTest::keyRelease(window.get(), Qt::Key_Right);
  QTest::keyPress(window.get(), Qt::Key_Backspace);
  ASSERT_TRUE(Wait([&] { return Dog().x() <= 3; }));
  QTest::keyRelease(window.get(), Qt::Key_Backspace);
  Press(Qt::Key_H);
  ASSERT_TRUE(WayShows());
  EXPECT_EQ(Cells().front(), Cell(Dog().x() + 1, 1));
}

// The end

// Two seconds for six steps: who waits for 14 ticks can still go, who waits for another cannot. Half a second
// is left by then, of which the clock shows none.
TEST_F(PracticeWays, EndWithTheTickFromWhichNoneWasFound) {
  Practise(kCorridor, {.time = 2, .needed = 1});
  ASSERT_TRUE(Wait([&] { return Tick() >= 21; }));
  ASSERT_TRUE(Wait([&] {
    return Message() == "Od tiku 15 (hodiny: 0) se už cesta k výhře nenašla. H ukáže poslední známou.";
  })) << Message().toStdString();
  EXPECT_EQ(Badge().Light(), Prospect::Impossible);
  QTest::qWait(3200);  // longer than any message that goes by itself
  EXPECT_TRUE(window->Message().isVisible());
  Press(Qt::Key_H);
  EXPECT_EQ(Tick(), 14);
  EXPECT_TRUE(Training().Waits());
  EXPECT_EQ(Cells().size(), 6U);
  QTest::keyPress(window.get(), Qt::Key_Right);
  EXPECT_TRUE(Wait([&] { return window->Machine().Win.has_value(); }));
  QTest::keyRelease(window.get(), Qt::Key_Right);
}

TEST_F(PracticeWays, EndWithTheNewsThatThereNeverWasOne) {
  Practise(kWalled, {.time = 1, .needed = 1});
  EXPECT_TRUE(Wait([&] { return Message() == "Cesta k výhře se nenašla ani ze začátku."; }));
  QTest::qWait(3200);  // longer than any message that goes by itself
  EXPECT_TRUE(window->Message().isVisible()) << "it stays until the player goes back";
  QTest::keyPress(window.get(), Qt::Key_Backspace);
  EXPECT_FALSE(window->Message().isVisible());
  QTest::keyRelease(window.get(), Qt::Key_Backspace);
}

TEST_F(PracticeWays, SayWhatHelpsWhenTheTimeIsUp) {
  Practise(kBoulders, {.time = 1, .needed = 1});
  ASSERT_TRUE(Wait([&] { return Tick() >= 10; }));
  EXPECT_TRUE(
      Wait([&] { return Message() == "Čas vypršel. Podrž Backspace a vrať se, kdy ho ještě bylo dost."; }));
}

// Whoever closes the window does not wait for a search.
TEST_F(PracticeWays, LetTheWindowCloseWhileTheyAreLookedFor) {
  Practise(kBoulders);
  ASSERT_TRUE(TicksPass(2));
  QElapsedTimer clock;
  clock.start();
  window->Stop();
  EXPECT_FALSE(Badge().isVisible());
  window.reset();
  EXPECT_LT(clock.elapsed(), 2500) << "of five seconds that are left to the search";
}

// A normal run

TEST_F(PracticeWays, AreNoMatterOfANormalRun) {
  Practise(kLongWay);
  Press(Qt::Key_H);
  ASSERT_TRUE(WayShows());
  ASSERT_TRUE(window->Start(CaveTextOf(kLongWay, {.needed = 1}), RunKind::Play));
  QSignalSpy other(window.get(), &HraWindow::OtherKey);
  Press(Qt::Key_H);
  EXPECT_EQ(other.count(), 1);
  ASSERT_TRUE(TicksPass(3));
  EXPECT_FALSE(Hint().Shown());
  EXPECT_FALSE(Badge().isVisible());
  EXPECT_FALSE(Training().Bar().isVisible());
  QTest::mouseMove(window.get(), QPoint(50, 200));
  QTest::mouseMove(window.get(), QPoint(60, 210));
  EXPECT_FALSE(Training().Bar().isVisible());
  Overlay overlay;
  CavePainter painter{SkinPlaces{}};
  window->Controls().Now().LayOver(overlay, painter);
  EXPECT_TRUE(overlay.marks.empty() && overlay.trails.empty());
}

}  // namespace
}  // namespace zorik
