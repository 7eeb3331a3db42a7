#include <QSignalSpy>

#include "core/Speed.h"
#include "screens/PracticeScreen.h"

namespace zorik {
namespace {

using test::CaveTextOf;
using test::LongWay;
using test::OneStepCave;
using test::Picture;
using test::RecordOfKeys;
using test::Wait;

class PracticeTest : public test::PracticeScreen {
 protected:
  void GoBackTo(int tick) {
    QTest::keyPress(window.get(), Qt::Key_Backspace);
    ASSERT_TRUE(Wait([&] { return Tick() <= tick; }));
    QTest::keyRelease(window.get(), Qt::Key_Backspace);
  }

  void PractiseToWin() {
    Show();
    ASSERT_TRUE(window->Start(OneStepCave("Jedna"), RunKind::Practice));
    QTest::keyClick(window.get(), Qt::Key_Right);
    ASSERT_TRUE(Wait([&] { return window->Machine().Win.has_value(); }));
  }

  QString Tip() const { return window->findChild<BarButton*>("picRestart")->toolTip(); }
};

TEST_F(PracticeTest, SaysAsLongAsItLastsThatNothingIsRecorded) {
  Practise();
  EXPECT_TRUE(Badge().isVisible());
  EXPECT_EQ(Badge().Text(), "Trénink: nic se nezapisuje");
  EXPECT_TRUE(window->windowTitle().endsWith("...trénuje Ada")) << window->windowTitle().toStdString();
  ASSERT_TRUE(TicksPass(20));
  EXPECT_TRUE(Badge().isVisible());
  EXPECT_EQ(window->Machine().RecordText, "");
  EXPECT_EQ(SaveRecord(window->Machine(), 10), "");
  window->Stop();
  EXPECT_FALSE(Badge().isVisible());
}

TEST_F(PracticeTest, LeavesItsBadgeOutOfEverythingElse) {
  for (const RunKind kind : {RunKind::Play, RunKind::Test}) {
    Practise();
    ASSERT_TRUE(window->Start(CaveTextOf(LongWay()), kind));
    EXPECT_FALSE(Badge().isVisible());
  }
  Practise();
  ASSERT_TRUE(window->StartRecord(RecordOfKeys(LongWay(), "RRRRRRRRRRRRRRRRRRRRRRRRR")));
  EXPECT_FALSE(Badge().isVisible());
}

TEST_F(PracticeTest, FindsRoomForItsBadgeInEverySizeOfTheWindow) {
  Practise();
  for (const QSize size : {QSize(480, 320), QSize(936, 616), QSize(1300, 700)}) {
    window->resize(size);
    ASSERT_TRUE(Wait([&] { return window->size() == size; }));
    EXPECT_TRUE(window->PlayArea().geometry().contains(Badge().geometry())) << size.width();
  }
}

// Back in time

TEST_F(PracticeTest, GoesBackWhileBackspaceIsHeldAndOnWhenItIsLetGo) {
  Practise();
  GoTo(20);
  const int before = Tick();
  QTest::keyPress(window.get(), Qt::Key_Backspace);
  ASSERT_TRUE(Wait([&] { return Tick() <= before - 10; }));
  EXPECT_LT(Dog().x(), 20);
  QTest::keyRelease(window.get(), Qt::Key_Backspace);
  const int at = Tick();
  const int x = Dog().x();
  EXPECT_TRUE(Wait([&] { return Tick() >= at + 3; }));
  EXPECT_EQ(Dog().x(), x) << "no key is held";
  EXPECT_TRUE(window->Machine().Practising());
}

TEST_F(PracticeTest, GoesBackToTheBeginningAndNoFurther) {
  Practise();
  GoTo(8);
  QTest::keyPress(window.get(), Qt::Key_Backspace);
  ASSERT_TRUE(Wait([&] { return Tick() == 0; }));
  QTest::qWait(200);
  EXPECT_EQ(Tick(), 0);
  EXPECT_EQ(Dog(), Cell(1, 1));
  EXPECT_EQ(window->Bar().ClockText(), "100");
  QTest::keyRelease(window.get(), Qt::Key_Backspace);
  EXPECT_TRUE(TicksPass(3));
}

TEST_F(PracticeTest, GoesOnAnotherWayFromWhereItWentBackTo) {
  Practise({"WWWWWWWWWWWWWW", "W1...........W", "W............W", "WWWWWWWWWWWWWW"});
  GoTo(9);
  GoBackTo(4);
  QTest::keyPress(window.get(), Qt::Key_Down);
  ASSERT_TRUE(Wait([&] { return Dog().y() == 2; }));
  QTest::keyRelease(window.get(), Qt::Key_Down);
  const int down = Tick();
  ASSERT_TRUE(TicksPass(4));
  GoBackTo(down - 2);
  EXPECT_EQ(Dog().y(), 1);
}

TEST_F(PracticeTest, DoesNotGoBackAnyMoreWhenTheWindowLosesTheFocus) {
  Practise();
  GoTo(30);
  QTest::keyPress(window.get(), Qt::Key_Backspace);
  QFocusEvent lost(QEvent::FocusOut);
  QApplication::sendEvent(window.get(), &lost);
  const int at = Tick();
  EXPECT_TRUE(Wait([&] { return Tick() > at + 2; }));
}

TEST_F(PracticeTest, BringsALostDogBack) {
  Practise({"WWWWWWW", "W....RW", "W1....W", "WWWWWWW"});
  GoTo(2);
  window->Machine().SetField(Dog(), kSpace);
  ASSERT_TRUE(Wait([&] { return window->Bar().RestartPulses(); }));
  EXPECT_EQ(Message(), "Podrž Backspace a vrať se v čase, nebo ať F7 najde, kdy to ještě šlo.");
  GoBackTo(1);
  EXPECT_FALSE(window->Bar().RestartPulses());
  EXPECT_TRUE(window->Machine().Dog[1].Alive);
}

// What killed me

TEST_F(PracticeTest, ShowsTheLastMomentAtWhichAnotherKeyWouldHaveSavedTheDog) {
  Practise({"WWWWWW", "WWRWWW", "WW;WWW", "WW;;;W", "WW1WWW", "WWWWWW"});
  for (const Qt::Key key : {Qt::Key_Up, Qt::Key_Up, Qt::Key_Down}) {
    const int ticks = Tick();
    Press(key);
    ASSERT_TRUE(Wait([&] { return Tick() > ticks; }));
  }
  ASSERT_TRUE(Wait([&] { return LiveDogs(window->Machine()) == 0; }));
  const int death = Tick();
  Press(Qt::Key_F7);
  ASSERT_TRUE(Wait([&] { return Message() == "Tady se to ještě dalo zachránit. Zkus jinou klávesu."; }));
  EXPECT_LT(Tick(), death);
  EXPECT_EQ(LiveDogs(window->Machine()), 1);
  const int saved = Tick();
  QTest::qWait(200);
  EXPECT_EQ(Tick(), saved) << "it waits for a key";
  QTest::keyPress(window.get(), Qt::Key_Right);
  EXPECT_TRUE(Wait([&] { return Tick() > saved + 2; }));
}

TEST_F(PracticeTest, SaysThatItHasNotFoundWhatWouldHaveHelped) {
  Practise({"WWWWW", "W1F.W", "WWWWW"});
  ASSERT_TRUE(Wait([&] { return LiveDogs(window->Machine()) == 0; }));
  Press(Qt::Key_F7);
  EXPECT_TRUE(Wait([&] { return Message() == "Nenalezeno: co by pomohlo, hra neví."; }));
}

TEST_F(PracticeTest, LooksForNothingWhileADogLives) {
  Practise();
  Press(Qt::Key_F7);
  EXPECT_EQ(Message(), "Ještě je koho vést.");
}

TEST_F(PracticeTest, ShowsTheMomentInARecordToo) {
  const Picture picture{"WWWWWW", "WWRWWW", "WW;WWW", "WW;;;W", "WW1WWW", "WWWWWW"};
  PlayRecord(RecordOfKeys(picture, "UUDD............"));
  ASSERT_TRUE(Wait([&] { return !window->Ticking(); }));
  ASSERT_EQ(LiveDogs(window->Machine()), 0);
  Press(Qt::Key_F7);
  ASSERT_TRUE(Wait([&] { return Theatre().Stands() && LiveDogs(window->Machine()) == 1; }));
  EXPECT_LE(Tick(), 4);
  EXPECT_TRUE(Bar().isVisible());
}

// The mark

TEST_F(PracticeTest, ComesBackToItsMarkAlsoWhenThatWayWasUndone) {
  Practise();
  GoTo(10);
  Press(Qt::Key_F5);
  const int mark = Tick();
  const int x = Dog().x();
  GoTo(20);
  Press(Qt::Key_F8);
  EXPECT_EQ(Tick(), mark);
  EXPECT_EQ(Dog().x(), x);
  GoBackTo(3);
  ASSERT_TRUE(TicksPass(4)) << "what lay ahead is gone";
  Press(Qt::Key_F8);
  EXPECT_EQ(Tick(), mark);
  EXPECT_EQ(Dog().x(), x);
  GoBackTo(5);
  EXPECT_LT(Dog().x(), x);
}

TEST_F(PracticeTest, SaysThatThereIsNoMarkYet) {
  Practise();
  Press(Qt::Key_F8);
  EXPECT_EQ(Message(), "Značka ještě není. Klávesa F5 ji udělá.");
}

TEST_F(PracticeTest, ForgetsTheMarkOfAnotherRunAndKeepsItOverARestart) {
  Practise();
  GoTo(10);
  Press(Qt::Key_F5);
  const int mark = Tick();
  Click("picRestart");
  ASSERT_LT(Tick(), mark);
  Press(Qt::Key_F8);
  EXPECT_EQ(Tick(), mark);
  ASSERT_TRUE(window->Start(CaveTextOf({"WWWWW", "W1..W", "WWWWW"}), RunKind::Practice));
  Press(Qt::Key_F8);
  EXPECT_LT(Tick(), mark);
  EXPECT_EQ(window->Machine().CaveWidth, 5);
}

// Speed

TEST_F(PracticeTest, GoesAtHalfTheSpeedAtAQuarterAndAtAllOfItAgain) {
  settings.Speed = 5;
  Practise();
  EXPECT_EQ(window->Interval(), TimerInterval(5));
  Press(Qt::Key_F6);
  EXPECT_EQ(window->Interval(), 2 * TimerInterval(5));
  EXPECT_TRUE(Badge().Text().endsWith("½×"));
  Press(Qt::Key_F6);
  EXPECT_EQ(window->Interval(), 4 * TimerInterval(5));
  EXPECT_TRUE(Badge().Text().endsWith("¼×"));
  Press(Qt::Key_F6);
  EXPECT_EQ(window->Interval(), TimerInterval(5));
  EXPECT_EQ(settings.Speed, 5);
}

// Ends

TEST_F(PracticeTest, OffersTheCaveInEarnestWhenItIsWonAndCountsNothing) {
  QSignalSpy won(window.get(), &HraWindow::RunWon);
  QSignalSpy earnest(&Training(), &Practice::EarnestWanted);
  Press(Qt::Key_Return);
  PractiseToWin();
  ASSERT_TRUE(Wait([&] { return Message().contains("doopravdy"); }));
  EXPECT_EQ(Message(), "Vyhráno nanečisto. A teď doopravdy? (Enter)");
  EXPECT_EQ(earnest.count(), 0);
  Press(Qt::Key_Return);
  EXPECT_EQ(earnest.count(), 1);
  EXPECT_EQ(won.count(), 0);
}

TEST_F(PracticeTest, OffersNothingInEarnestWhereThereIsNobodyToPlay) {
  window->SetPlayer("/");
  Practise();
  EXPECT_TRUE(window->windowTitle().endsWith("...Trénink: nic se nezapisuje"));
  QSignalSpy earnest(&Training(), &Practice::EarnestWanted);
  PractiseToWin();
  ASSERT_TRUE(Wait([&] { return Message() == "Vyhráno, i když jen nanečisto."; }));
  Press(Qt::Key_Return);
  EXPECT_EQ(earnest.count(), 0);
}

TEST_F(PracticeTest, CanBeTurnedBackFromItsWin) {
  PractiseToWin();
  GoBackTo(0);
  EXPECT_FALSE(window->Machine().Win);
  EXPECT_TRUE(TicksPass(3));
}

TEST_F(PracticeTest, BeginsPracticeAnewByCtrlR) {
  Practise();
  GoTo(15);
  QTest::keyPress(window.get(), Qt::Key_Control);
  QTest::keyClick(window.get(), Qt::Key_R, Qt::ControlModifier);
  QTest::keyRelease(window.get(), Qt::Key_Control);
  ASSERT_TRUE(Wait([&] { return Dog() == Cell(1, 1); }));
  EXPECT_TRUE(window->Machine().Practising());
  EXPECT_TRUE(Badge().isVisible());
  ASSERT_TRUE(TicksPass(5));
  GoBackTo(0);
  EXPECT_EQ(Dog(), Cell(1, 1));
}

TEST_F(PracticeTest, GoesOnAtItsOwnPaceWhenItBeginsAnewAfterAWin) {
  settings.Speed = 5;
  PractiseToWin();
  QTest::keyPress(window.get(), Qt::Key_Control);
  QTest::keyClick(window.get(), Qt::Key_R, Qt::ControlModifier);
  QTest::keyRelease(window.get(), Qt::Key_Control);
  ASSERT_TRUE(Wait([&] { return !window->Machine().Win; }));
  EXPECT_EQ(window->Interval(), TimerInterval(5));
}

// Taking over

TEST_F(PracticeTest, TakesOverARecordAtTheMomentThatIsSeen) {
  settings.Speed = 4;
  StandAt(RecordOfKeys(LongWay(), std::string(40, 'R')), 12);
  ASSERT_EQ(Dog(), Cell(13, 1));
  Press(Qt::Key_Return);
  EXPECT_TRUE(window->Machine().Practising());
  EXPECT_EQ(Tick(), 12);
  EXPECT_EQ(Dog(), Cell(13, 1));
  EXPECT_TRUE(Badge().isVisible());
  EXPECT_FALSE(Bar().isVisible());
  EXPECT_FALSE(Shows("Label1"));
  EXPECT_EQ(window->Interval(), TimerInterval(4));
  EXPECT_TRUE(window->windowTitle().contains("trénuje"));
  QTest::keyPress(window.get(), Qt::Key_Left);
  ASSERT_TRUE(Wait([&] { return Dog().x() <= 10; }));
  QTest::keyRelease(window.get(), Qt::Key_Left);
  EXPECT_GT(Tick(), 12);
}

TEST_F(PracticeTest, GoesBackBeyondWhereARecordWasTakenOverAndPlaysOnFromThere) {
  StandAt(RecordOfKeys(LongWay(), std::string(40, 'R')), 30);
  QTest::mouseClick(Button("takeover"), Qt::LeftButton);
  ASSERT_TRUE(window->Machine().Practising());
  ASSERT_TRUE(TicksPass(5));
  GoBackTo(10);
  EXPECT_TRUE(window->Machine().Practising());
  const int x = Dog().x();
  EXPECT_LE(x, 11);
  EXPECT_TRUE(TicksPass(3));
  EXPECT_EQ(Dog().x(), x) << "the record leads the dog no more";
  GoBackTo(0);
  EXPECT_EQ(Dog(), Cell(1, 1));
}

TEST_F(PracticeTest, TakesOverARecordThatHasEnded) {
  PlayRecord(RecordOfKeys(LongWay(), "RRRRRR"));
  ASSERT_TRUE(Wait([&] { return !window->Ticking(); }));
  Press(Qt::Key_Return);
  ASSERT_TRUE(window->Machine().Practising());
  EXPECT_TRUE(Wait([&] { return Tick() >= 9; }));
  GoBackTo(2);
  EXPECT_LE(Dog().x(), 3);
}

TEST_F(PracticeTest, TakesOverAWonRecordBeforeItIsWon) {
  PlayRecord(RecordOfKeys({"WWWWWW", "W1...T", "WWWWWW"}, "....RRRR", {.needed = 0}));
  Press(Qt::Key_End);
  ASSERT_TRUE(window->Machine().Win);
  Press(Qt::Key_Return);
  EXPECT_TRUE(window->Machine().Practising());
  EXPECT_FALSE(window->Machine().Win);
  EXPECT_TRUE(TicksPass(3));
}

// A normal run

TEST_F(PracticeTest, IsNamedByTheRestartButtonOfARunInWhichADogWasLost) {
  const QString plain = "Znovu od začátku (Ctrl+R)";
  Open({"WWWWW", "WR..W", "W1.2W", "WWWWW"});
  ASSERT_TRUE(TicksPass(2));
  EXPECT_EQ(Tip(), plain);
  window->Machine().SetField(Dog(), kSpace);
  ASSERT_TRUE(Wait([&] { return Tip() != plain; }));
  EXPECT_EQ(Tip(), plain + "\nBeze ztrát to zkusíš v tréninku: klávesa T ve výběru komnaty.");
  EXPECT_FALSE(Badge().isVisible());
  Click("picRestart");
  EXPECT_EQ(Tip(), plain);
}

TEST_F(PracticeTest, HasItsKeysToItself) {
  Open(LongWay());
  GoTo(5);
  const int x = Dog().x();
  QSignalSpy other(window.get(), &HraWindow::OtherKey);
  for (const int key : {Qt::Key_Backspace, Qt::Key_F5, Qt::Key_F6, Qt::Key_F8, Qt::Key_Return}) Press(key);
  EXPECT_EQ(other.count(), 5);
  ASSERT_TRUE(TicksPass(5));
  EXPECT_EQ(Dog().x(), x);
  EXPECT_EQ(window->Interval(), TimerInterval(settings.Speed));
}

// No seed comes from the clock.
class SteadyRun : public test::AnyRun {
 public:
  using AnyRun::AnyRun;

 private:
  std::optional<std::uint64_t> Reseed() override { return std::nullopt; }
};

class SteadyTest : public PracticeTest {
 protected:
  SteadyTest() {
    window = std::make_unique<SteadyRun>(skin, sound, settings);
    window->SetPlayer("Ada");
    window->SetCollection("Alfa");
  }

  // The record of a run that is won by the right arrow, with chance from the same seeds.
  std::string WinByKeys() {
    window->Machine().Luck.Seed(3);
    window->Machine().Decoration.Seed(4);
    window->SetCollection("Alfa");
    EXPECT_TRUE(
        window->Start(CaveTextOf({"WWWWWWWWWW", "W1D.AS...T", "WWWWWWWWWW"}, {.needed = 1}), RunKind::Play));
    QTest::keyPress(window.get(), Qt::Key_Right);
    EXPECT_TRUE(TicksPass(30));
    QTest::keyRelease(window.get(), Qt::Key_Right);
    const std::string lines = window->Machine().RecordText;
    return lines.substr(0, FirstLines(lines, 30));
  }

  static std::size_t FirstLines(const std::string& text, int lines) {
    std::size_t end = 0;
    for (int line = 0; line < lines; ++line) end = text.find("\r\n", end) + 2;
    return end;
  }
};

TEST_F(SteadyTest, LeavesTheRecordOfANormalRunTheSameByteForByte) {
  Show();
  const std::string before = WinByKeys();
  ASSERT_GT(before.size(), 200U);
  ASSERT_TRUE(window->StartRecord(RecordOfKeys(LongWay(), std::string(40, 'R'))));
  for (const int key :
       {Qt::Key_Space, Qt::Key_Right, Qt::Key_Comma, Qt::Key_Home, Qt::Key_Period, Qt::Key_Up})
    Press(key);
  Press(Qt::Key_Return);
  ASSERT_TRUE(window->Machine().Practising());
  Press(Qt::Key_F5);
  ASSERT_TRUE(TicksPass(5));
  GoBackTo(1);
  Press(Qt::Key_F8);
  Press(Qt::Key_H);
  QTest::qWait(100);
  EXPECT_EQ(WinByKeys(), before);
  ASSERT_TRUE(window->Start(CaveTextOf({"WWWWWW", "W1D..T", "WWWWWW"}, {.needed = 1}), RunKind::Practice));
  QTest::keyPress(window.get(), Qt::Key_H);
  ASSERT_TRUE(Wait([&] { return Training().Hint().Whole(); }));
  EXPECT_EQ(WinByKeys(), before);
}

}  // namespace
}  // namespace zorik
