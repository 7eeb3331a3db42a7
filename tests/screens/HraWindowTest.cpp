#include <QSignalSpy>
#include <QWindow>
#include <map>

#include "core/Speed.h"
#include "data/Result.h"
#include "screens/HraScreen.h"
#include "screens/SkinScale.h"

namespace zorik {
namespace {

using test::CaveTextOf;
using test::Corridor;
using test::OneStepCave;
using test::Wait;

class HraWindowTest : public test::HraScreen {};

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

TEST_F(HraWindowTest, LeavesControlCharactersOutOfItsCaption) {
  window->SetCollection(
      std::string("A\nl\0f\x1B"
                  "a\x7F",
                  8));
  window->SetPlayer(
      "A\x81"
      "da");
  Open(Corridor());
  EXPECT_EQ(window->windowTitle(), "Zorík - Alfa - Test   ...hraje Ada");
}

TEST_F(HraWindowTest, NamesNoCollectionInTheCaptionOfATestRun) {
  Open(Corridor(), {}, RunKind::Test);
  EXPECT_EQ(window->windowTitle(), "Zorík - Test   ...zkouší Ada");
}

TEST_F(HraWindowTest, TellsInTheCaptionWhoseRecordItPlays) {
  Show();
  ASSERT_TRUE(window->StartRecord(test::RecordOf(Corridor(), {{}, {}, {}})));
  EXPECT_TRUE(window->windowTitle().endsWith(" - Test   ...záznam pro hráče Ada"))
      << window->windowTitle().toStdString();
}

TEST_F(HraWindowTest, TellsInTheCaptionThatARecordIsPlayedForNobody) {
  window->SetPlayer("/");
  Show();
  ASSERT_TRUE(window->StartRecord(test::RecordOf(Corridor(), {{}, {}, {}})));
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
  ASSERT_TRUE(window->Start(CaveTextOf(Corridor()), RunKind::Test));
  EXPECT_TRUE(Shows("Label1"));
  ASSERT_TRUE(window->StartRecord(test::RecordOf(Corridor(), {{}, {}, {}})));
  EXPECT_TRUE(Shows("Label1"));
}

TEST_F(HraWindowTest, StartsATestWithTheWholeCaveAndAReplayWithAScrollingView) {
  Open(Corridor(), {}, RunKind::Test);
  EXPECT_FALSE(window->Painter().ScrollView());
  Click("Label1");
  EXPECT_TRUE(window->Painter().ScrollView());
  ASSERT_TRUE(window->StartRecord(test::RecordOf(Corridor(), std::vector<test::RecordTick>(50))));
  EXPECT_TRUE(window->Painter().ScrollView());
}

TEST_F(HraWindowTest, SwitchesTheViewWithCInAReplay) {
  Show();
  ASSERT_TRUE(window->StartRecord(test::RecordOf(Corridor(), std::vector<test::RecordTick>(200))));
  QTest::keyClick(window.get(), Qt::Key_C);
  EXPECT_TRUE(Wait([&] { return !window->Painter().ScrollView(); }));
}

TEST_F(HraWindowTest, StartsARecordThatIsRestartedWithAScrollingView) {
  Show();
  ASSERT_TRUE(window->StartRecord(test::RecordOf(Corridor(), std::vector<test::RecordTick>(200))));
  Click("Label1");
  ASSERT_FALSE(window->Painter().ScrollView());
  Click("picRestart");
  EXPECT_TRUE(window->Painter().ScrollView());
  EXPECT_EQ(window->findChild<BarButton*>("Label1")->Caption(), "±");
}

TEST_F(HraWindowTest, StartsATestThatIsRestartedWithTheWholeCave) {
  Open(Corridor(), {}, RunKind::Test);
  Click("Label1");
  QTest::keyPress(window.get(), Qt::Key_Control);
  QTest::keyPress(window.get(), Qt::Key_R, Qt::ControlModifier);
  EXPECT_TRUE(Wait([&] { return !window->Painter().ScrollView(); }));
}

TEST_F(HraWindowTest, KeepsTheViewWhenACaveOrARecordCannotBePlayed) {
  Open(Corridor(), {}, RunKind::Test);
  EXPECT_FALSE(window->StartRecord("rubbish"));
  EXPECT_FALSE(window->Painter().ScrollView());
  EXPECT_FALSE(window->Start("rubbish", RunKind::Play));
  EXPECT_FALSE(window->Painter().ScrollView());
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

TEST_F(HraWindowTest, TellsOfManyDogsInOtherWords) {
  Open({"WWWWWWWW", "W1.2345W", "WWWWWWWW"});
  EXPECT_EQ(window->Message().Text(),
            QString::fromStdString(WithNumber(skin.Words().At(TextId::ManyDogs), " 5-9", 5)));
  EXPECT_TRUE(window->Message().Text().contains(" 5"));
}

TEST_F(HraWindowTest, ChangesTheDogWithTabAndTheKeypad) {
  Open({"WWWWWWWW", "W1.2.3.W", "WWWWWWWW"});
  QTest::keyClick(window.get(), Qt::Key_Tab);
  EXPECT_TRUE(Wait([&] { return window->Machine().ActiveDog == 2; }));
  QTest::keyClick(window.get(), Qt::Key_1, Qt::KeypadModifier);
  EXPECT_TRUE(Wait([&] { return window->Machine().ActiveDog == 1; }));
  QTest::keyPress(window.get(), Qt::Key_Shift);
  QTest::keyClick(window.get(), Qt::Key_Backtab, Qt::ShiftModifier);
  EXPECT_TRUE(Wait([&] { return window->Machine().ActiveDog == 3; }));
}

TEST_F(HraWindowTest, HasNoStripOfUnitsForOneDog) {
  Open({"WWWWW", "W1.2W", "WWWWW"});
  ASSERT_TRUE(window->Start(CaveTextOf(Corridor()), RunKind::Play));
  EXPECT_FALSE(window->Bar().UnitsShown());
  ASSERT_TRUE(TicksPass(2));
  EXPECT_FALSE(window->Bar().UnitsShown());
  EXPECT_EQ(window->Message().Text(), "Doveď Zoríka do cíle!");
}

// Ends

TEST_F(HraWindowTest, TellsOfAWonRunAndStandsStill) {
  Show();
  ASSERT_TRUE(window->Start(OneStepCave("Jedna"), RunKind::Play));
  QSignalSpy won(window.get(), &HraWindow::RunWon);
  QTest::keyClick(window.get(), Qt::Key_Right);
  ASSERT_TRUE(Wait([&] { return won.count() == 1; }));
  EXPECT_FALSE(window->Ticking());
  ASSERT_TRUE(window->Machine().Win);
}

TEST_F(HraWindowTest, TellsOfARecordThatIsOver) {
  Show();
  QSignalSpy over(window.get(), &HraWindow::RecordOver);
  ASSERT_TRUE(window->StartRecord(test::RecordOf(Corridor(), {{}, {}, {}})));
  EXPECT_TRUE(Wait([&] { return over.count() == 1; }));
}

TEST_F(HraWindowTest, SaysThatARecordEndsShortOfTheFinishUntilItIsPlayedAgain) {
  Show();
  ASSERT_TRUE(window->StartRecord(test::RecordOf(Corridor(), {{}, {}, {}})));
  ASSERT_TRUE(Wait([&] { return !window->Ticking(); }));
  EXPECT_TRUE(window->Bar().RestartPulses());
  QTest::qWait(3100);  // longer than a message stands
  EXPECT_TRUE(window->Message().isVisible());
  EXPECT_EQ(window->Message().Text(), "Záznam tu končí a do cíle nedošel.");
  Click("picRestart");
  EXPECT_NE(window->Message().Text(), "Záznam tu končí a do cíle nedošel.");
  EXPECT_TRUE(window->Ticking());
  EXPECT_FALSE(window->Bar().RestartPulses());
}

TEST_F(HraWindowTest, PulsesItsRestartButtonWhenNoUnitLivesAndWritesNothingOfIt) {
  Open({"WWWWW", "WR..W", "W1..W", "WWWWW"});
  ASSERT_TRUE(TicksPass(2));
  EXPECT_FALSE(window->Bar().RestartPulses());
  window->Machine().SetField(Dog(), kSpace);
  ASSERT_TRUE(Wait([&] { return window->Bar().RestartPulses(); }));
  const std::string record = window->Machine().RecordText;
  ASSERT_TRUE(TicksPass(5));
  EXPECT_TRUE(window->Bar().RestartPulses());
  EXPECT_TRUE(window->Machine().RecordText.starts_with(record));
  Click("picRestart");
  EXPECT_FALSE(window->Bar().RestartPulses());
  ASSERT_TRUE(TicksPass(2));
  EXPECT_FALSE(window->Bar().RestartPulses());
}

TEST_F(HraWindowTest, PulsesItsRestartButtonWhenTheTimeIsUp) {
  Open(Corridor());
  ASSERT_TRUE(TicksPass(1));
  window->Machine().Elapsed = window->Machine().TimeLimit * kTicksPerSecond - 3;
  EXPECT_FALSE(window->Bar().RestartPulses());
  EXPECT_TRUE(Wait([&] { return window->Bar().RestartPulses(); }));
  EXPECT_GE(window->Machine().Elapsed, window->Machine().TimeLimit * kTicksPerSecond);
}

TEST_F(HraWindowTest, ShowsItsMessagesBelowTheBarInEverySize) {
  Open(Corridor());
  for (const QSize size : {QSize(480, 320), QSize(640, 400), QSize(936, 616), QSize(1300, 500)}) {
    window->resize(size);
    ASSERT_TRUE(Wait([&] { return window->size() == size; }));
    EXPECT_GT(window->Message().y(), window->Bar().geometry().bottom()) << size.width();
    EXPECT_LT(window->Message().y(), window->Bar().geometry().bottom() + 20) << size.width();
  }
}

TEST_F(HraWindowTest, SaysWhyACaveCannotBePlayedAndKeepsTheRun) {
  Open(Corridor());
  EXPECT_FALSE(window->Start("", RunKind::Play));
  EXPECT_FALSE(window->Start("rubbish", RunKind::Play));
  EXPECT_TRUE(TicksPass(2));
}

TEST_F(HraWindowTest, PlaysARecordToTheSameEndAtAnySpeed) {
  // Won with 7 needed ticks in a cave in which chance is drawn all the time.
  Show();
  std::vector<int> elapsed;
  std::vector<int> scores;
  Hra run(5);
  const std::string cave = CaveTextOf({"WWWWWWWWW", "W1....TLW", "WWWWWWWWW"}, {.needed = 0});
  ASSERT_TRUE(PaintCave(run, cave, RunKind::Play));
  TickEnd end = TickEnd::Running;
  while (end == TickEnd::Running) end = test::Pass(run, 1, "R");
  ASSERT_EQ(end, TickEnd::Won);
  const std::string record = SaveRecord(run, run.Win->Score);
  for (const int speed : {1, 5}) {
    settings.SpeedR = speed;
    QSignalSpy won(window.get(), &HraWindow::RunWon);
    ASSERT_TRUE(window->StartRecord(record));
    ASSERT_TRUE(Wait([&] { return won.count() == 1; }));
    elapsed.push_back(window->Machine().Elapsed);
    scores.push_back(window->Machine().Win->Score);
  }
  EXPECT_EQ(elapsed, (std::vector<int>{run.Elapsed, run.Elapsed}));
  EXPECT_EQ(scores, (std::vector<int>{run.Win->Score, run.Win->Score}));
}

// The settings

TEST_F(HraWindowTest, StandsStillWhileTheSettingsAreOpenAndGoesOnBehindThem) {
  Open(Corridor());
  QSet<int> seen;
  EditSettings([&](QWidget& dialog) {
    for (int look = 0; look < 20; ++look) {
      seen.insert(window->Machine().Ticks);
      QTest::qWait(5);
    }
    QTest::keyClick(&dialog, Qt::Key_Escape);
  });
  EXPECT_EQ(seen.size(), 1);
  EXPECT_TRUE(TicksPass(2));
}

TEST_F(HraWindowTest, OpensTheSettingsByKeyToo) {
  Open(Corridor());
  bool opened = false;
  const auto look = [&opened](QWidget& dialog) {
    opened = dialog.inherits("zorik::FrmSettings");
    QTest::keyClick(&dialog, Qt::Key_Escape);
  };
  EditSettings(look, true);
  EXPECT_TRUE(opened);
}

TEST_F(HraWindowTest, HasButtonsWithTheirWordsAsTooltips) {
  Open(Corridor());
  const auto tip = [this](const char* button) { return window->findChild<BarButton*>(button)->toolTip(); };
  EXPECT_EQ(tip("picRestart"), "Znovu od začátku (Ctrl+R)");
  EXPECT_EQ(tip("Command4"), "Nastavení");
  EXPECT_EQ(tip("Label1"), "Celá komnata, nebo jen okolí");
  EXPECT_EQ(tip("leave"), "Opustit komnatu");
}

TEST_F(HraWindowTest, DoesNotStartWhatStoodStillBeforeTheSettings) {
  Open(Corridor());
  window->Stop();
  EditSettings([](QWidget& dialog) { QTest::keyClick(&dialog, Qt::Key_Return); });
  EXPECT_FALSE(window->Ticking());
}

TEST_F(HraWindowTest, TakesTheSpeedOfTheSettingsAtOnce) {
  Open(Corridor());
  EditSettings([](QWidget& dialog) {
    dialog.findChildren<SkinScale*>().at(0)->setValue(1);
    QTest::keyClick(&dialog, Qt::Key_Return);
  });
  EXPECT_EQ(settings.Speed, 10);
  EXPECT_EQ(window->Interval(), 181);
}

// Hidden things

TEST_F(HraWindowTest, ShowsHiddenThingsFromTheNextCaveOn) {
  Open({"WWWWW", "W1M.W", "WWWWW"});
  const QImage hidden = window->PlayArea().Picture().copy();
  settings.NoSurprise = true;
  ASSERT_TRUE(window->Start(CaveTextOf({"WWWWW", "W1M.W", "WWWWW"}), RunKind::Play));
  EXPECT_NE(window->Painter().PictureAt(2, 1), CellPicture{});
  EXPECT_EQ(window->Painter().PictureAt(2, 1).Pic, kSetNoSurprise);
  EXPECT_FALSE(hidden.isNull());
}

TEST_F(HraWindowTest, ShowsHiddenThingsAtOnceWhenThatIsChosen) {
  Open({"WWWWWWWWW", "W1M;E;V;W", "W.T;;;;;W", "WWWWWWWWW"}, {.needed = 5});
  ASSERT_NE(window->Painter().PictureAt(2, 1).Pic, kSetNoSurprise);
  EditSettings([](QWidget& dialog) {
    dialog.findChildren<SkinCheck*>().at(0)->click();
    QTest::keyClick(&dialog, Qt::Key_Return);
  });
  EXPECT_TRUE(settings.NoSurprise);
  EXPECT_EQ(window->Painter().PictureAt(2, 1), (CellPicture{kSetNoSurprise, 0, 0}));
  EXPECT_EQ(window->Painter().PictureAt(4, 1), (CellPicture{kSetNoSurprise, 0, 1}));
  EXPECT_EQ(window->Painter().PictureAt(6, 1), (CellPicture{kSetNoSurprise, 0, 2}));
  EXPECT_EQ(window->Painter().PictureAt(2, 2), (CellPicture{kSetNoSurprise, 0, 3}));
  EXPECT_NE(window->Painter().PictureAt(7, 1).Pic, kSetNoSurprise);
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

TEST_F(HraWindowTest, FitsIntoTheSmallestScreenAtTheLargestScale) {
  // 1024 x 768 with two pixels to a unit, below a caption
  EXPECT_LE(window->minimumWidth(), 512);
  EXPECT_LE(window->minimumHeight(), 384 - 40);
}

TEST_F(HraWindowTest, KeepsPaceWithTheScreenThatItIsMovedTo) {
  Open(Corridor());
  ASSERT_EQ(window->Interval(), TimerInterval(2));
  settings.Speed = 4;
  emit window->windowHandle()->screenChanged(window->screen());
  EXPECT_EQ(window->Interval(), TimerInterval(4));
}

// What the play picture showed, picture by picture: the tick and the column of the dog.
class Pictures : public QObject {
 public:
  explicit Pictures(HraWindow& window) : window_(window), ram_(window.findChild<Ram*>()) {
    ram_->installEventFilter(this);
  }

  std::map<int, int> shown;

 protected:
  bool eventFilter(QObject* /*object*/, QEvent* event) override {
    if (event->type() == QEvent::Paint) shown[window_.Machine().Ticks] = window_.Machine().Dog[1].x;
    return false;
  }

 private:
  HraWindow& window_;
  Ram* ram_;
};

TEST_F(HraWindowTest, ShowsEveryTickOfTheLargestCaveAtTheFastestSpeedAndSeesAKeyByTheNext) {
  settings.Speed = 1;
  test::Picture cave(60, "W" + std::string(98, ';') + "W");
  cave.front() = cave.back() = std::string(100, 'W');
  cave[1] = "W1" + std::string(97, '.') + "W";
  // Two of them go round a hall, so that in each tick something looks different, also when the dog stands.
  for (std::size_t row = 4; row < 8; ++row) cave[row].replace(3, 12, "............");
  cave[4].replace(5, 5, "F...F");
  Show();
  window->resize(1920, 1080);
  ASSERT_TRUE(window->Start(CaveTextOf(cave), RunKind::Play));
  Pictures pictures(*window);
  ASSERT_TRUE(TicksPass(1));
  const int first = window->Machine().Ticks;
  for (int step = 1; step <= 20; ++step) {
    const int tick = window->Machine().Ticks;
    QTest::keyClick(window.get(), Qt::Key_Right);
    ASSERT_TRUE(TicksPass(1));
    EXPECT_EQ(pictures.shown[tick + 1], 1 + step) << "after tick " << tick;
    ASSERT_TRUE(TicksPass(2));
  }
  for (int tick = first; tick <= window->Machine().Ticks; ++tick) {
    EXPECT_TRUE(pictures.shown.contains(tick)) << "tick " << tick << " after " << first;
  }
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
