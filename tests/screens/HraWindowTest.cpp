#include <QMainWindow>
#include <QSignalSpy>

#include "core/Machine.h"
#include "screens/GameScreen.h"
#include "screens/HraWindow.h"
#include "screens/StripButton.h"
#include "support/Scene.h"

namespace zorik {
namespace {

using test::Answers;
using test::CaveTextOf;
using test::OneStepCave;
using test::Wait;

class HraWindowTest : public testing::Test, public test::GameScreen {
 protected:
  void Open(const test::Picture& picture, test::Numbers numbers = {}, RunKind kind = RunKind::Play) {
    Show();
    ASSERT_FALSE(window->Start(CaveTextOf(picture, numbers), kind));
  }

  void Click(const char* button) {
    QTest::mouseClick(window->findChild<StripButton*>(button), Qt::LeftButton);
  }

  bool Shows(const char* button) const { return window->findChild<StripButton*>(button)->isVisible(); }
};

test::Picture Corridor() {
  return {"WWWWWWWWWWWW", "W1.........W", "WWWWWWWWWWWW"};
}

// Caption

TEST_F(HraWindowTest, NamesCollectionCaveAndPlayerInItsCaption) {
  Open(Corridor());
  EXPECT_EQ(window->windowTitle(), "Zorík - Alfa - Test   ...hraje Ada");
}

TEST_F(HraWindowTest, NamesNoPlayerWhenThereIsNone) {
  window->SetPlayer("/");
  Open(Corridor());
  EXPECT_TRUE(window->windowTitle().startsWith("Zorík - Alfa - Test   ...hraje"));
  EXPECT_FALSE(window->windowTitle().contains("/"));
}

TEST_F(HraWindowTest, LeavesTheCollectionOutOfTheCaptionWhenItHasNoName) {
  window->SetCollection("");
  Open(Corridor());
  EXPECT_EQ(window->windowTitle(), "Zorík - Test   ...hraje Ada");
}

TEST_F(HraWindowTest, NamesNoCollectionInTheCaptionOfATestRun) {
  Open(Corridor(), {}, RunKind::Test);
  EXPECT_EQ(window->windowTitle(), "Zorík - Test   ...zkouší Ada");
}

TEST_F(HraWindowTest, TellsInTheCaptionWhoseRecordItPlays) {
  Show();
  ASSERT_FALSE(window->StartRecord(test::RecordOf(Corridor(), {{}, {}, {}})));
  EXPECT_TRUE(window->windowTitle().endsWith(" - Test   ...záznam pro hráče Ada"))
      << window->windowTitle().toStdString();
}

TEST_F(HraWindowTest, TellsInTheCaptionThatARecordIsPlayedForNobody) {
  window->SetPlayer("/");
  Show();
  ASSERT_FALSE(window->StartRecord(test::RecordOf(Corridor(), {{}, {}, {}})));
  EXPECT_TRUE(window->windowTitle().endsWith(" - Test   ...přehrávání záznamu"));
}

// Figures

TEST_F(HraWindowTest, ShowsTimeGemsAndTheirValueInTheBar) {
  test::Numbers numbers;
  numbers.needed = 3;
  numbers.time = 90;
  numbers.before = 7;
  Open({"WWWWW", "W1D.W", "WWWWW"}, numbers);
  EXPECT_EQ(window->Bar().ClockText(), "090");
  EXPECT_EQ(window->Bar().GemsText(), "000 / 003");
  EXPECT_EQ(window->Bar().ValueText(), "07");
  QTest::keyClick(window.get(), Qt::Key_Right);
  EXPECT_TRUE(Wait([&] { return window->Bar().GemsText() == "001 / 003"; }));
  EXPECT_TRUE(Wait([&] { return window->Bar().ClockText() == "088"; }));
}

// Keys

TEST_F(HraWindowTest, MovesTheDogOneCellForATap) {
  Open(Corridor());
  QTest::keyClick(window.get(), Qt::Key_Right);
  ASSERT_TRUE(Wait([&] { return Dog() == Cell(2, 1); }));
  ASSERT_TRUE(TicksPass(5));
  EXPECT_EQ(Dog(), Cell(2, 1));
}

TEST_F(HraWindowTest, MovesTheDogForAsLongAsAKeyIsHeld) {
  Open(Corridor());
  QTest::keyPress(window.get(), Qt::Key_Right);
  EXPECT_TRUE(Wait([&] { return Dog() == Cell(10, 1); }));
}

TEST_F(HraWindowTest, RollsOverToTheKeyThatWasPressedLastAndBack) {
  Open({"WWWWWWWW", "W1.....W", "W......W", "W......W", "WWWWWWWW"});
  QTest::keyPress(window.get(), Qt::Key_Right);
  ASSERT_TRUE(Wait([&] { return Dog().x() >= 2; }));
  QTest::keyPress(window.get(), Qt::Key_Down);
  ASSERT_TRUE(Wait([&] { return Dog().y() == 3; }));
  const int column = Dog().x();
  QTest::keyRelease(window.get(), Qt::Key_Down);
  EXPECT_TRUE(Wait([&] { return Dog().x() > column; }));
}

TEST_F(HraWindowTest, LetsTheDogStandWhenItLosesTheFocus) {
  Open(Corridor());
  QTest::keyPress(window.get(), Qt::Key_Right);
  ASSERT_TRUE(Wait([&] { return Dog() == Cell(3, 1); }));
  QFocusEvent lost(QEvent::FocusOut);
  QApplication::sendEvent(window.get(), &lost);
  const Cell place = Dog();
  ASSERT_TRUE(TicksPass(5));
  EXPECT_EQ(Dog(), place);
}

TEST_F(HraWindowTest, RestartsTheCaveWithCtrlAndR) {
  Open(Corridor());
  QTest::keyPress(window.get(), Qt::Key_Right);
  ASSERT_TRUE(Wait([&] { return Dog() == Cell(10, 1); }));
  QTest::keyRelease(window.get(), Qt::Key_Right);
  QTest::keyPress(window.get(), Qt::Key_Control);
  QTest::keyPress(window.get(), Qt::Key_R, Qt::ControlModifier);
  EXPECT_TRUE(Wait([&] { return Dog() == Cell(1, 1); }));
}

TEST_F(HraWindowTest, ChangesTheSpeedWithTheKeypadAndKeepsIt) {
  Open(Corridor());
  QTest::keyClick(window.get(), Qt::Key_Minus, Qt::KeypadModifier);
  EXPECT_TRUE(Wait([&] { return settings.Speed == 3; }));
  EXPECT_EQ(FindSett().Speed, 3);
  QTest::keyClick(window.get(), Qt::Key_Plus, Qt::KeypadModifier);
  EXPECT_TRUE(Wait([&] { return settings.Speed == 2; }));
  EXPECT_EQ(FindSett().Speed, 2);
}

TEST_F(HraWindowTest, ChangesTheSpeedOfReplaysApart) {
  Show();
  settings.SpeedR = 5;
  ASSERT_FALSE(window->StartRecord(test::RecordOf(Corridor(), std::vector<test::RecordTick>(50))));
  QTest::keyClick(window.get(), Qt::Key_Plus, Qt::KeypadModifier);
  EXPECT_TRUE(Wait([&] { return settings.SpeedR == 4; }));
  EXPECT_EQ(settings.Speed, 2);
}

TEST_F(HraWindowTest, HandsOnKeysThatTheGameHasNoUseFor) {
  Open(Corridor());
  QSignalSpy others(window.get(), &HraWindow::OtherKey);
  QTest::keyClick(window.get(), Qt::Key_F5);
  QTest::keyClick(window.get(), Qt::Key_Right);
  ASSERT_EQ(others.count(), 1);
  EXPECT_EQ(others[0][0].toInt(), Qt::Key_F5);
}

// Pause, question

TEST_F(HraWindowTest, StandsStillWhileThePauseIsOpen) {
  Open(Corridor());
  Answers answers(0);
  answers.Linger(20, [&] { return window->Machine().Ticks; });
  QTest::keyClick(window.get(), Qt::Key_P);
  ASSERT_TRUE(Wait([&] { return !answers.said.isEmpty(); }));
  EXPECT_EQ(answers.said, QStringList{"Pauza. Pokračuj stiskem OK."});
  EXPECT_EQ(answers.seen, QSet<int>{*answers.seen.begin()});
  EXPECT_TRUE(TicksPass(2));
}

TEST_F(HraWindowTest, AsksAnIdlePlayerWhetherHeIsThere) {
  settings.Speed = 1;
  Open(Corridor());
  const Answers answers(1);
  ASSERT_TRUE(QTest::qWaitFor([&] { return !answers.said.isEmpty(); }, 20000));
  EXPECT_EQ(answers.said[0], "Haf! Jsi tam ještě?");
  EXPECT_EQ(answers.titles[0], "Zorík se nudí");
  EXPECT_TRUE(TicksPass(2));
}

// Hiding

TEST_F(HraWindowTest, HidesBehindATableWithF12AndComesBackWithTheDogsName) {
  Open(Corridor());
  QTest::keyClick(window.get(), Qt::Key_F12);
  ASSERT_TRUE(Wait([&] { return !window->isVisible(); }));
  EXPECT_TRUE(window->Hidden().isVisible());
  EXPECT_FALSE(window->Ticking());
  auto* const table = const_cast<HideAway*>(&window->Hidden());
  for (const Qt::Key key : {Qt::Key_Z, Qt::Key_O, Qt::Key_R, Qt::Key_I, Qt::Key_K}) {
    QTest::keyClick(table, key);
  }
  EXPECT_TRUE(window->isVisible());
  EXPECT_FALSE(window->Hidden().isVisible());
  EXPECT_TRUE(TicksPass(2));
}

TEST_F(HraWindowTest, StandsStillWhileItIsMinimised) {
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

TEST_F(HraWindowTest, DoesNotStartWhatIsOverWhenItComesBackFromBeingMinimised) {
  Open(Corridor());
  window->Stop();
  window->setWindowState(Qt::WindowMinimized);
  window->setWindowState(Qt::WindowNoState);
  EXPECT_FALSE(window->Ticking());
}

TEST_F(HraWindowTest, TurnsItsClosingIntoAWishToLeave) {
  Open(Corridor());
  QSignalSpy leaving(window.get(), &HraWindow::EndRequested);
  EXPECT_FALSE(window->close());
  EXPECT_EQ(leaving.count(), 1);
}

// The bar

TEST_F(HraWindowTest, RestartsTheCaveByItsButton) {
  Open(Corridor());
  QTest::keyPress(window.get(), Qt::Key_Right);
  ASSERT_TRUE(Wait([&] { return Dog() == Cell(10, 1); }));
  QTest::keyRelease(window.get(), Qt::Key_Right);
  Click("picRestart");
  EXPECT_EQ(Dog(), Cell(1, 1));
  EXPECT_TRUE(TicksPass(2));
}

TEST_F(HraWindowTest, ShowsTheSwitchOfTheViewInATestAndAReplayOnly) {
  Open(Corridor());
  EXPECT_FALSE(Shows("Label1"));
  ASSERT_FALSE(window->Start(CaveTextOf(Corridor()), RunKind::Test));
  EXPECT_TRUE(Shows("Label1"));
  ASSERT_FALSE(window->StartRecord(test::RecordOf(Corridor(), {{}, {}, {}})));
  EXPECT_TRUE(Shows("Label1"));
}

TEST_F(HraWindowTest, StartsATestWithTheWholeCaveAndAReplayWithAScrollingView) {
  Open(Corridor(), {}, RunKind::Test);
  EXPECT_FALSE(window->Painter().ScrollView());
  Click("Label1");
  EXPECT_TRUE(window->Painter().ScrollView());
  ASSERT_FALSE(window->StartRecord(test::RecordOf(Corridor(), std::vector<test::RecordTick>(50))));
  EXPECT_TRUE(window->Painter().ScrollView());
}

TEST_F(HraWindowTest, SwitchesTheViewWithCInAReplay) {
  Show();
  ASSERT_FALSE(window->StartRecord(test::RecordOf(Corridor(), std::vector<test::RecordTick>(200))));
  QTest::keyClick(window.get(), Qt::Key_C);
  EXPECT_TRUE(Wait([&] { return !window->Painter().ScrollView(); }));
}

TEST_F(HraWindowTest, ScrollsInPlayWhateverIsPressed) {
  Open(Corridor());
  QTest::keyClick(window.get(), Qt::Key_C);
  ASSERT_TRUE(TicksPass(3));
  EXPECT_TRUE(window->Painter().ScrollView());
}

TEST_F(HraWindowTest, HasAStripOfUnitsForSeveralDogs) {
  Open({"WWWWW", "W1.2W", "WWWWW"});
  EXPECT_TRUE(window->Bar().UnitsShown());
  EXPECT_FALSE(window->Bar().Places().psi.isEmpty());
  EXPECT_EQ(window->Message().Text(), "Zoríci v komnatě: 2. Přepínáš klávesou Tab.");
}

TEST_F(HraWindowTest, HasNoStripOfUnitsForOneDog) {
  Open({"WWWWW", "W1.2W", "WWWWW"});
  ASSERT_FALSE(window->Start(CaveTextOf(Corridor()), RunKind::Play));
  EXPECT_FALSE(window->Bar().UnitsShown());
  ASSERT_TRUE(TicksPass(2));
  EXPECT_FALSE(window->Bar().UnitsShown());
  EXPECT_EQ(window->Message().Text(), "Doveď Zoríka do cíle!");
}

// Ends

TEST_F(HraWindowTest, TellsOfAWonRunAndStandsStill) {
  Show();
  ASSERT_FALSE(window->Start(OneStepCave("Jedna"), RunKind::Play));
  QSignalSpy won(window.get(), &HraWindow::RunWon);
  QTest::keyClick(window.get(), Qt::Key_Right);
  ASSERT_TRUE(Wait([&] { return won.count() == 1; }));
  EXPECT_FALSE(window->Ticking());
  ASSERT_TRUE(window->Machine().Win);
}

TEST_F(HraWindowTest, TellsOfARecordThatIsOver) {
  Show();
  QSignalSpy over(window.get(), &HraWindow::RecordOver);
  ASSERT_FALSE(window->StartRecord(test::RecordOf(Corridor(), {{}, {}, {}})));
  EXPECT_TRUE(Wait([&] { return over.count() == 1; }));
}

TEST_F(HraWindowTest, SaysWhyACaveCannotBePlayedAndKeepsTheRun) {
  Open(Corridor());
  EXPECT_TRUE(window->Start("", RunKind::Play));
  EXPECT_TRUE(window->Start("rubbish", RunKind::Play));
  EXPECT_TRUE(TicksPass(2));
}

TEST_F(HraWindowTest, PlaysARecordToTheSameEndAtAnySpeed) {
  // Won with 7 needed ticks in a cave in which chance is drawn all the time.
  Show();
  std::vector<int> elapsed;
  std::vector<int> scores;
  Hra run(5);
  const std::string cave = CaveTextOf({"WWWWWWWWW", "W1....TLW", "WWWWWWWWW"}, {.needed = 0});
  ASSERT_FALSE(PaintCave(run, cave, RunKind::Play));
  TickEnd end = TickEnd::Running;
  while (end == TickEnd::Running) end = test::Pass(run, 1, "R");
  ASSERT_EQ(end, TickEnd::Won);
  const std::string record = SaveRecord(run, run.Win->Score);
  for (const int speed : {1, 5}) {
    settings.SpeedR = speed;
    QSignalSpy won(window.get(), &HraWindow::RunWon);
    ASSERT_FALSE(window->StartRecord(record));
    ASSERT_TRUE(Wait([&] { return won.count() == 1; }));
    elapsed.push_back(window->Machine().Elapsed);
    scores.push_back(window->Machine().Win->Score);
  }
  EXPECT_EQ(elapsed, (std::vector<int>{run.Elapsed, run.Elapsed}));
  EXPECT_EQ(scores, (std::vector<int>{run.Win->Score, run.Win->Score}));
}

// Hidden things

TEST_F(HraWindowTest, ShowsHiddenThingsFromTheNextCaveOn) {
  Open({"WWWWW", "W1M.W", "WWWWW"});
  const QImage hidden = window->PlayArea().Picture().copy();
  settings.NoSurprise = true;
  ASSERT_FALSE(window->Start(CaveTextOf({"WWWWW", "W1M.W", "WWWWW"}), RunKind::Play));
  EXPECT_NE(window->Painter().PictureAt(2, 1), CellPicture{});
  EXPECT_EQ(window->Painter().PictureAt(2, 1).Pic, kSetNoSurprise);
  EXPECT_FALSE(hidden.isNull());
}

// The picture

TEST_F(HraWindowTest, LaysItselfOutAnewWhenItsSizeChanges) {
  Open(Corridor());
  window->resize(1000, 700);
  ASSERT_TRUE(Wait([&] { return window->width() == 1000; }));
  EXPECT_EQ(window->PlayArea().geometry(), LayOut({1000, 700}, 1).ram);
  EXPECT_EQ(window->Bar().geometry(), LayOut({1000, 700}, 1).imOk1);
  EXPECT_FALSE(window->PlayArea().Picture().isNull());
}

TEST_F(HraWindowTest, FlashesWhenTheFinishOpens) {
  Open({"WWWWWW", "W1.D.W", "WWWWWW"}, {.needed = 1});
  auto* const flash = window->findChild<QWidget*>("pctBlesk");
  bool seen = false;
  QTest::keyPress(window.get(), Qt::Key_Right);
  EXPECT_TRUE(Wait([&] { return seen = seen || flash->isVisible(); }));
  EXPECT_TRUE(Wait([&] { return !flash->isVisible(); }));
  EXPECT_EQ(window->Message().Text(), "Cíl je otevřen!");
  EXPECT_EQ(window->Bar().ValueText(), "20");
}

}  // namespace
}  // namespace zorik
