#include <QLabel>
#include <QSignalSpy>

#include "core/Speed.h"
#include "screens/StartWords.h"
#include "screens/TheatreScreen.h"
#include "support/StopWatch.h"

namespace zorik {
namespace {

using test::Picture;
using test::RecordOfKeys;
using test::Wait;

// Twenty cells to go.
Picture LongWay() {
  return {"WWWWWWWWWWWWWWWWWWWWWWW", "W1....................W", "WWWWWWWWWWWWWWWWWWWWWWW"};
}

std::string LongRecord() {
  return RecordOfKeys(LongWay(), std::string(20, 'R') + std::string(200, '.'));
}

std::string WonRecord() {
  return RecordOfKeys({"WWWWWW", "W1...T", "WWWWWW"}, "....RRRR", {.needed = 0});
}

class TheatreTest : public test::TheatreScreen {
 protected:
  void SetUp() override { settings.SpeedR = 3; }

  // Moves the pointer over the cave.
  void MovePointer() {
    auto* const ram = window->findChild<Ram*>();
    QTest::mouseMove(ram, QPoint(20, 30 + moves_));
    QTest::mouseMove(ram, QPoint(40, 30 + ++moves_));
  }

  void Drag(int tick) {
    QTest::mousePress(&Bar().Line(), Qt::LeftButton, {}, PlaceOf(tick));
    QTest::mouseRelease(&Bar().Line(), Qt::LeftButton, {}, PlaceOf(tick));
  }

  // Where a tick lies on the bar's line.
  QPoint PlaceOf(int tick) const { return {Bar().Line().PlaceOf(tick), Bar().Line().Rail().center().y()}; }

  int PlayInterval() const { return window->Paced(TimerInterval(settings.Speed)); }

 private:
  int moves_ = 0;
};

// The bar

TEST_F(TheatreTest, ShowsItselfWithTheSpeedForTheFirstThreeSecondsOfEveryRecord) {
  settings.Speed = 5;
  settings.SpeedR = 3;
  const test::StopWatch leaves([&] { return !Bar().isVisible(); }, 4500);
  PlayRecord(LongRecord());
  EXPECT_TRUE(Bar().isVisible());
  EXPECT_EQ(Bar().SpeedText(), "2×");  // 41 milliseconds where play has 81
  leaves.ExpectNotBefore(2700);
  Click("picRestart");
  EXPECT_TRUE(Bar().isVisible());
}

TEST_F(TheatreTest, CountsItsThreeSecondsFromWhenTheRecordIsSeenToGoOn) {
  PlayRecord(LongRecord());
  window->WithDialog([] { QTest::qWait(3500); });
  const test::StopWatch leaves([&] { return !Bar().isVisible(); }, 4500);
  EXPECT_TRUE(Bar().isVisible());
  leaves.ExpectNotBefore(2500);
}

TEST_F(TheatreTest, ComesWhenTheMouseMovesOrOneOfItsKeysIsPressedAndLeavesByItself) {
  PlayRecord(LongRecord());
  ASSERT_TRUE(Wait([&] { return !Bar().isVisible(); }));
  Press(Qt::Key_C);
  EXPECT_FALSE(Bar().isVisible());
  Press(Qt::Key_Left);
  EXPECT_TRUE(Bar().isVisible());
  ASSERT_TRUE(Wait([&] { return !Bar().isVisible(); }));
  MovePointer();
  EXPECT_TRUE(Bar().isVisible());
}

TEST_F(TheatreTest, IsNoPartOfAPlayedRunNorOfATest) {
  for (const RunKind kind : {RunKind::Play, RunKind::Test}) {
    Open(LongWay(), {}, kind);
    QSignalSpy other(window.get(), &HraWindow::OtherKey);
    MovePointer();
    Press(Qt::Key_Period);
    Press(Qt::Key_Return);
    EXPECT_FALSE(Bar().isVisible());
    EXPECT_EQ(other.count(), 2);
    Press(Qt::Key_Right);
    EXPECT_TRUE(Wait([&] { return Dog() == Cell(2, 1); })) << "an arrow leads the dog";
  }
}

TEST_F(TheatreTest, TellsTheTickAndTheClockOfTheRun) {
  StandAt(LongRecord(), 17);
  EXPECT_EQ(Bar().MomentText(), "0:01 / 0:22   17 / 220");
}

TEST_F(TheatreTest, OffersTheRecordAsAPageByAKeyAndByAButton) {
  StandAt(LongRecord(), 3);
  for (const bool byKey : {true, false}) {
    bool asked = false;
    QTimer::singleShot(50, window.get(), [&] {
      QWidget* const box = QApplication::activeModalWidget();
      if (box == nullptr) return;
      // Where to, or, if this build has made no page, that there is none; boxes break their lines.
      const auto* const said = box->findChild<QLabel*>("lblText");
      asked = box->windowTitle() == kAsPageWords.In(skin) ||
              (said != nullptr && said->text().simplified() == kNoPageWords.In(skin));
      box->close();
    });
    if (byKey) {
      Press(Qt::Key_W);
    } else {
      QTest::mouseClick(Button("page"), Qt::LeftButton);
    }
    EXPECT_TRUE(asked) << byKey;
  }
}

// The last line of a run that is won has no end.
TEST_F(TheatreTest, HasTheBytesOfTheRecordForThePage) {
  const std::string record = WonRecord();
  StandAt(record, 3);
  EXPECT_EQ(Theatre().RecordBytes(), record);
  PlayRecord(record + "\r\n");
  EXPECT_EQ(Theatre().RecordBytes(), record);
  PlayRecord(LongRecord() + "\r\n");
  EXPECT_EQ(Theatre().RecordBytes(), LongRecord() + "\r\n") << "its last line is empty: it begins again";
}

TEST_F(TheatreTest, FindsRoomInEverySizeOfTheWindow) {
  StandAt(LongRecord(), 3);
  for (const QSize size : {QSize(480, 320), QSize(640, 400), QSize(936, 616), QSize(1300, 700)}) {
    window->resize(size);
    ASSERT_TRUE(Wait([&] { return window->size() == size; }));
    EXPECT_TRUE(window->rect().contains(Bar().geometry())) << size.width();
    int right = 0;
    for (const char* name : {"back", "play", "forward", "slower", "faster", "page", "takeover"}) {
      EXPECT_TRUE(Bar().rect().contains(Button(name)->geometry())) << name << size.width();
      EXPECT_GT(Button(name)->x(), right) << name << size.width();
      right = Button(name)->geometry().right();
    }
    EXPECT_GT(Button("again")->x(), Button("page")->geometry().right()) << size.width();
  }
}

// Moments

TEST_F(TheatreTest, StandsStillAndGoesOnBySpaceAndByItsButton) {
  PlayRecord(LongRecord());
  Press(Qt::Key_Space);
  const int stood = Tick();
  QTest::qWait(200);
  EXPECT_EQ(Tick(), stood);
  Press(Qt::Key_Space);
  EXPECT_TRUE(TicksPass(3));
  QTest::mouseClick(Button("play"), Qt::LeftButton);
  EXPECT_TRUE(Theatre().Stands());
  QTest::mouseClick(Button("play"), Qt::LeftButton);
  EXPECT_TRUE(TicksPass(3));
}

TEST_F(TheatreTest, GoesSingleStepsOnAndBackAndStandsThere) {
  StandAt(LongRecord(), 7);
  EXPECT_EQ(Dog(), Cell(8, 1));
  Press(Qt::Key_Comma);
  EXPECT_EQ(Tick(), 6);
  EXPECT_EQ(Dog(), Cell(7, 1));
  QTest::mouseClick(Button("forward"), Qt::LeftButton);
  EXPECT_EQ(Tick(), 7);
  QTest::mouseClick(Button("back"), Qt::LeftButton);
  EXPECT_EQ(Tick(), 6);
  QTest::qWait(150);
  EXPECT_EQ(Tick(), 6);
  Press(Qt::Key_Home);
  Press(Qt::Key_Comma);
  EXPECT_EQ(Tick(), 0) << "there is nothing before the start";
}

TEST_F(TheatreTest, GoesFiveSecondsByTheArrowsAndToBothEnds) {
  StandAt(LongRecord(), 3);
  Press(Qt::Key_Right);
  EXPECT_EQ(Tick(), 53);
  Press(Qt::Key_Right);
  EXPECT_EQ(Tick(), 103);
  Press(Qt::Key_Left);
  EXPECT_EQ(Tick(), 53);
  Press(Qt::Key_Left);
  Press(Qt::Key_Left);
  EXPECT_EQ(Tick(), 0);
  Press(Qt::Key_End);
  EXPECT_EQ(Tick(), 220);
  Press(Qt::Key_Home);
  EXPECT_EQ(Tick(), 0);
  EXPECT_EQ(Dog(), Cell(1, 1));
}

TEST_F(TheatreTest, GoesOnFromWhereAnArrowLeadsWhileItPlays) {
  PlayRecord(LongRecord());
  Press(Qt::Key_Right);
  EXPECT_GE(Tick(), 50);
  EXPECT_FALSE(Theatre().Stands());
  EXPECT_TRUE(TicksPass(3));
}

TEST_F(TheatreTest, SeeksWhereTheLineIsPressedOrDragged) {
  StandAt(LongRecord(), 3);
  Drag(110);
  EXPECT_EQ(Tick(), 110);
  Drag(0);
  EXPECT_EQ(Tick(), 0);
  Drag(220);
  EXPECT_EQ(Tick(), 220);
  QTest::mousePress(&Bar().Line(), Qt::LeftButton, {}, PlaceOf(50));
  QTest::mouseMove(&Bar().Line(), PlaceOf(20));
  EXPECT_EQ(Tick(), 20);
  QTest::mouseRelease(&Bar().Line(), Qt::LeftButton, {}, PlaceOf(20));
  EXPECT_EQ(Tick(), 20);
}

TEST_F(TheatreTest, WaitsWhileTheKnobIsHeldAndGoesOnWhereItIsDropped) {
  PlayRecord(LongRecord());
  QTest::mousePress(&Bar().Line(), Qt::LeftButton, {}, PlaceOf(100));
  QTest::qWait(200);
  EXPECT_EQ(Tick(), 100);
  QTest::mouseRelease(&Bar().Line(), Qt::LeftButton, {}, PlaceOf(100));
  EXPECT_TRUE(Wait([&] { return Tick() >= 103; }));
}

// What is seen

TEST_F(TheatreTest, ShowsFiguresAndUnitsOfTheMoment) {
  const std::string record = RecordOfKeys({"WWWWWWW", "W1DD..W", "W2;;..W", "WWWWWWW"}, "RR.>..",
                                          {.time = 90, .needed = 1, .before = 7, .after = 11});
  const DogStrip& units = window->Bar().Units();
  StandAt(record, 6);
  EXPECT_EQ(window->Bar().GemsText(), "002 / 001");
  EXPECT_EQ(window->Bar().ValueText(), "11");
  EXPECT_EQ(window->Bar().ClockText(), "089");
  EXPECT_EQ(units.State(1), 1) << "waits";
  EXPECT_EQ(units.State(2), 0) << "is steered";
  Press(Qt::Key_Home);
  EXPECT_EQ(window->Bar().GemsText(), "000 / 001");
  EXPECT_EQ(window->Bar().ValueText(), "07");
  EXPECT_EQ(window->Bar().ClockText(), "090");
  EXPECT_EQ(units.State(1), 0);
  EXPECT_EQ(units.State(2), 1);
  EXPECT_EQ(units.State(0), std::nullopt) << "there are no fleas";
}

TEST_F(TheatreTest, ShowsADeadDogAliveAgainBeforeItDied) {
  StandAt(RecordOfKeys({"WWWWWWW", "W2WF..W", "WWW.1.W", "WWWWWWW"}, std::string(30, '.')), 30);
  const DogStrip& units = window->Bar().Units();
  EXPECT_EQ(units.State(1), 2) << "a firefly came by";
  Press(Qt::Key_Home);
  EXPECT_EQ(units.State(1), 0);
  EXPECT_EQ(units.State(2), 1);
}

TEST_F(TheatreTest, ShowsTheCaveOfTheMomentAndPutsTheViewOnItsTargetAtOnce) {
  Picture wide{std::string(60, 'W'), "W1" + std::string(57, ';') + "W", std::string(60, 'W')};
  StandAt(RecordOfKeys(wide, std::string(50, 'R')), 50);
  const CellPicture dug = window->Painter().PictureAt(20, 1);
  EXPECT_EQ(dug.Pic, kSetSpace);
  Press(Qt::Key_Home);
  EXPECT_EQ(window->Painter().PictureAt(20, 1).Pic, kSetDirt);
  const QImage start = window->PlayArea().Picture();
  QTest::qWait(300);
  EXPECT_EQ(window->PlayArea().Picture(), start) << "the view stands";
  Press(Qt::Key_End);
  EXPECT_EQ(window->Painter().PictureAt(20, 1), dug);
}

TEST_F(TheatreTest, TakesAwayTheMessagesOfAnotherMoment) {
  PlayRecord(LongRecord());
  ASSERT_TRUE(window->Message().isVisible());
  Press(Qt::Key_Right);
  EXPECT_FALSE(window->Message().isVisible());
}

TEST_F(TheatreTest, ShowsEveryMomentAsItWasWhenItWasPlayed) {
  const Picture picture{"WWWWWWWWWW", "W1;R;;D;;W", "W;;;F.;;;W", "W;;;..;D;W", "WWWWWWWWWW"};
  const std::string keys = "DDRR..RRUU.LL";
  const std::string record = RecordOfKeys(picture, keys);
  StandAt(record, 0);
  Hra run;
  ASSERT_TRUE(Replay(run, record));
  for (int tick = 1; tick <= static_cast<int>(keys.size()); ++tick) {
    zorik::Tick(run, {});
    Press(Qt::Key_Period);
    ForEachCell(run, [&](Cell c) {
      EXPECT_EQ(window->Machine().Field(c), run.Field(c)) << tick;
      EXPECT_EQ(window->Machine().FieldState(c), run.FieldState(c)) << tick;
    });
  }
  for (int tick = static_cast<int>(keys.size()) - 1; tick >= 0; --tick) {
    Press(Qt::Key_Comma);
    EXPECT_EQ(Tick(), tick);
  }
}

// Speed

TEST_F(TheatreTest, GoesFromAQuarterOfTheSpeedOfPlayToTheDisplaysLimit) {
  settings.Speed = 8;
  settings.SpeedR = 1;
  const int stored = FindSett().SpeedR;
  PlayRecord(LongRecord());
  for (int times = 0; times < 9; ++times) Press(Qt::Key_Down);
  EXPECT_EQ(Bar().SpeedText(), "¼×");
  EXPECT_EQ(window->Interval(), 4 * 141);
  Press(Qt::Key_Up);
  EXPECT_EQ(Bar().SpeedText(), "½×");
  EXPECT_EQ(window->Interval(), 2 * 141);
  QTest::mouseClick(Button("faster"), Qt::LeftButton);
  EXPECT_EQ(Bar().SpeedText(), "1×");
  EXPECT_EQ(window->Interval(), 141);
  QTest::mouseClick(Button("slower"), Qt::LeftButton);
  EXPECT_EQ(Bar().SpeedText(), "½×");
  for (int times = 0; times < 9; ++times) Press(Qt::Key_Up);
  EXPECT_EQ(window->Interval(), window->Paced(0));
  EXPECT_EQ(settings.SpeedR, 1) << "the speed of records stays what it is";
  EXPECT_EQ(FindSett().SpeedR, stored);
}

TEST_F(TheatreTest, LeavesAnotherRecordItsStoredSpeed) {
  PlayRecord(LongRecord());
  Press(Qt::Key_Down);
  ASSERT_NE(window->Interval(), TimerInterval(3));
  Click("picRestart");
  EXPECT_NE(window->Interval(), TimerInterval(3)) << "the same record keeps its own";
  ASSERT_TRUE(window->StartRecord(LongRecord()));
  EXPECT_EQ(window->Interval(), TimerInterval(3));
}

// The keys that all records have

TEST_F(TheatreTest, LeavesPlusAndMinusTheStoredSpeedAlsoWhileItStands) {
  StandAt(LongRecord(), 3);
  Press(Qt::Key_Down);
  Press(Qt::Key_Minus, Qt::KeypadModifier);
  ASSERT_TRUE(Wait([&] { return settings.SpeedR == 4; }));
  Press(Qt::Key_Plus, Qt::KeypadModifier);
  ASSERT_TRUE(Wait([&] { return settings.SpeedR == 3; }));
  Press(Qt::Key_Space);
  EXPECT_EQ(window->Interval(), TimerInterval(3));
}

TEST_F(TheatreTest, BeginsAnewByCtrlRAlsoWhileItStands) {
  StandAt(LongRecord(), 30);
  QTest::keyPress(window.get(), Qt::Key_Control);
  QTest::keyClick(window.get(), Qt::Key_R, Qt::ControlModifier);
  QTest::keyRelease(window.get(), Qt::Key_Control);
  ASSERT_TRUE(Wait([&] { return Tick() < 30 && Tick() > 0; }));
  EXPECT_FALSE(Theatre().Stands());
}

TEST_F(TheatreTest, SwitchesTheViewByCAlsoWhileItStands) {
  StandAt(LongRecord(), 3);
  Press(Qt::Key_C);
  EXPECT_TRUE(Wait([&] { return !window->Painter().ScrollView(); }));
  EXPECT_EQ(Tick(), 3);
}

TEST_F(TheatreTest, PausesByPAlsoWhileItStands) {
  StandAt(LongRecord(), 3);
  test::Answers ok(0);
  Press(Qt::Key_P);
  EXPECT_TRUE(Wait([&] { return ok.said.size() == 1; }));
}

TEST_F(TheatreTest, HidesByF12AlsoWhileItStands) {
  StandAt(LongRecord(), 3);
  Press(Qt::Key_F12);
  EXPECT_TRUE(Wait([&] { return window->Hidden().isVisible(); }));
}

TEST_F(TheatreTest, LeavesEscToWhoLeavesTheRecord) {
  StandAt(LongRecord(), 3);
  QSignalSpy other(window.get(), &HraWindow::OtherKey);
  Press(Qt::Key_Escape);
  ASSERT_EQ(other.count(), 1);
  EXPECT_EQ(other.front().front().toInt(), Qt::Key_Escape);
}

// The end

TEST_F(TheatreTest, EndsAWonRecordAsEver) {
  QSignalSpy won(window.get(), &HraWindow::RunWon);
  PlayRecord(WonRecord());
  ASSERT_TRUE(Wait([&] { return won.count() == 1; }));
  EXPECT_FALSE(window->Ticking());
  EXPECT_FALSE(Bar().isVisible());
}

TEST_F(TheatreTest, ShowsTheEndOfAWonRecordToWhoGoesThereAndOffersItAgain) {
  QSignalSpy won(window.get(), &HraWindow::RunWon);
  PlayRecord(WonRecord());
  Press(Qt::Key_End);
  QTest::qWait(200);
  EXPECT_EQ(won.count(), 0);
  ASSERT_TRUE(window->Machine().Win);
  EXPECT_TRUE(Button("again")->isVisible());
  EXPECT_EQ(Button("again")->Caption(), "Znovu, rychlostí hry");
  Press(Qt::Key_Space);
  EXPECT_TRUE(Wait([&] { return won.count() == 1; })) << "played from the start";
}

TEST_F(TheatreTest, OffersARecordThatEndedShortOfTheFinishAgainAtTheSpeedOfPlay) {
  settings.Speed = 6;
  PlayRecord(RecordOfKeys(LongWay(), "RRRRRR"));
  EXPECT_FALSE(Button("again")->isVisible());
  ASSERT_TRUE(Wait([&] { return !window->Ticking(); }));
  EXPECT_TRUE(Bar().isVisible());
  EXPECT_EQ(Bar().Line().Tick(), 6);
  ASSERT_TRUE(Button("again")->isVisible());
  QTest::mouseClick(Button("again"), Qt::LeftButton);
  EXPECT_EQ(window->Interval(), TimerInterval(6));
  EXPECT_EQ(Bar().SpeedText(), "1×");
  EXPECT_FALSE(Button("again")->isVisible());
  EXPECT_EQ(settings.SpeedR, 3);
  EXPECT_TRUE(TicksPass(3));
}

TEST_F(TheatreTest, GoesBackFromTheEndAndPlaysOnFromThere) {
  PlayRecord(RecordOfKeys(LongWay(), std::string(60, '.')));
  ASSERT_TRUE(Wait([&] { return !window->Ticking(); }));
  Press(Qt::Key_Left);
  EXPECT_TRUE(window->Ticking());
  EXPECT_FALSE(window->Message().isVisible());
  EXPECT_EQ(Dog(), Cell(1, 1));
  EXPECT_TRUE(Wait([&] { return Tick() > 12; }));
  EXPECT_TRUE(Wait([&] { return !window->Ticking(); }));
}

}  // namespace
}  // namespace zorik
