// What the game window shows: its skin, its messages, its pace.
#include <QPainter>
#include <QScreen>
#include <algorithm>
#include <array>
#include <map>

#include "core/Speed.h"
#include "data/Chance.h"
#include "data/Scramble.h"
#include "screens/GameLayout.h"
#include "screens/HraScreen.h"
#include "screens/PaintedParts.h"
#include "screens/SkinScale.h"

namespace zorik {
namespace {

using test::CaveTextOf;
using test::Corridor;
using test::Wait;

constexpr QSize kSize(1300, 500);  // with room left at both sides of the play picture

class HraWindowShownTest : public test::HraScreen {
 protected:
  HraWindowShownTest() { settings.Speed = settings.SpeedR = 2; }

  // A skin whose pictures have plain colours, one after another from this one on.
  void Paint(const std::string& name, int first) const {
    int colour = first;
    for (const char* const picture : {"Dirt", "Border1", "Border2", "Bar"}) {
      QImage image(80, 80, QImage::Format_RGB32);
      image.fill(qRgb(colour, 40, 60));
      colour += 10;
      const std::string file = folder.Root() + "/Skins/" + name + "/Game/" + picture + ".bmp";
      std::filesystem::create_directories(std::filesystem::path(file).parent_path());
      ASSERT_TRUE(image.save(QString::fromStdString(file)));
    }
  }

  // The red of the earth in the middle, the bars above and below it, and what lies beside.
  std::array<int, 4> Seen() const {
    const GameLayout places = LayOut(kSize, 1);
    const QImage shown = window->grab().toImage();
    const auto red = [&shown](QPoint place) { return qRed(shown.pixel(place)); };
    return {red(places.ram.center()), red(places.imOk1.topLeft() + QPoint(140, 2)),
            red(places.imOk2.center()), red(QPoint(3, kSize.height() / 2))};
  }

  // So long that the message would be gone by then, had nothing else come.
  bool StandsOverThreeSeconds(const std::function<void()>& next) const {
    QTest::qWait(1800);
    next();
    QTest::qWait(1800);
    return window->Message().isVisible();
  }
};

// The skin

TEST_F(HraWindowShownTest, ShowsTheNextCaveInASkinThatIsWornMeanwhile) {
  Paint("Default", 100);
  Paint("Mine", 200);
  ASSERT_TRUE(skin.Apply(SkinPlaces{folder.Root() + "/Skins"}));
  Open({"WWWWW", "W1;;W", "WWWWW"});
  window->resize(kSize);
  ASSERT_TRUE(Wait([&] { return window->size() == kSize; }));
  EXPECT_EQ(Seen(), (std::array<int, 4>{100, 110, 120, 130}));
  ASSERT_TRUE(skin.Apply(SkinPlaces{folder.Root() + "/Skins", "Mine"}));
  ASSERT_TRUE(window->Start(CaveTextOf({"WWWWW", "W1;;W", "WWWWW"}), RunKind::Play));
  EXPECT_EQ(Seen(), (std::array<int, 4>{200, 210, 220, 230}));
}

// Messages

TEST_F(HraWindowShownTest, GivesTheFirstMessageOfACaveItsWholeTime) {
  Open(Corridor());
  ASSERT_TRUE(window->Message().isVisible());
  EXPECT_TRUE(
      StandsOverThreeSeconds([this] { ASSERT_TRUE(window->Start(CaveTextOf(Corridor()), RunKind::Play)); }));
}

TEST_F(HraWindowShownTest, ShowsARemarkInARecordInItsColour) {
  Show();
  Chance chance(1);
  const std::string remark = ScrambleText("Pozor!", chance);
  ASSERT_TRUE(window->StartRecord(test::RecordOfLines({"1.."}, {"JAAB", "JAAB" + remark, "JAAB", "JAAB"})));
  ASSERT_TRUE(Wait([&] { return window->Message().Text() == "Pozor!"; }));
  const QImage drawn = const_cast<MessageStrip&>(window->Message()).grab().toImage();
  bool cyan = false;
  for (int y = 0; y < drawn.height(); ++y) {
    for (int x = 0; x < drawn.width(); ++x) cyan = cyan || drawn.pixel(x, y) == qRgb(0, 255, 255);
  }
  EXPECT_TRUE(cyan);
}

TEST_F(HraWindowShownTest, TakesTheTableAwayWhenTheHiddenRunEnds) {
  Open(Corridor());
  QTest::keyClick(window.get(), Qt::Key_F12);
  ASSERT_TRUE(Wait([&] { return window->Hidden().isVisible(); }));
  window->Stop();
  EXPECT_FALSE(window->Hidden().isVisible());
}

TEST_F(HraWindowShownTest, GivesTheKeysToTheTableThatItHidesBehind) {
  Open(Corridor());
  QTest::keyClick(window.get(), Qt::Key_F12);
  EXPECT_TRUE(Wait([&] { return window->Hidden().isActiveWindow(); }));
}

TEST_F(HraWindowShownTest, FlashesOverAllThatItShows) {
  Open({"WWWWWW", "W1.D.W", "WWWWWW"}, {.needed = 1});
  auto* const flash = window->findChild<QWidget*>("pctBlesk");
  QTest::keyPress(window.get(), Qt::Key_Right);
  ASSERT_TRUE(Wait([&] { return flash->isVisible(); }));
  EXPECT_EQ(flash->geometry(), window->rect());
  EXPECT_EQ(window->childAt(window->Bar().geometry().center()), flash);
  EXPECT_EQ(window->childAt(window->PlayArea().geometry().center()), flash);
}

TEST_F(HraWindowShownTest, DoesNotFlashWhenThatIsNotWanted) {
  settings.LessFlashing = true;
  Open({"WWWWWW", "W1.D.W", "WWWWWW"}, {.needed = 1});
  test::PaintedParts painted;
  painted.Watch(*window->findChild<QWidget*>("pctBlesk"));
  QTest::keyPress(window.get(), Qt::Key_Right);
  ASSERT_TRUE(Wait([&] { return window->Machine().ExitOpen; }));
  ASSERT_TRUE(TicksPass(2));
  EXPECT_TRUE(painted.Take().isEmpty());
}

// Smooth motion

// How often something is painted in each tick.
class PaintedTicks : public QObject {
 public:
  PaintedTicks(QObject& painted, const Hra& run) : run_(run) { painted.installEventFilter(this); }

  std::map<int, int> times;

 protected:
  bool eventFilter(QObject* /*object*/, QEvent* event) override {
    if (event->type() == QEvent::Paint) ++times[run_.Ticks];
    return false;
  }

 private:
  const Hra& run_;
};

int Most(const std::map<int, int>& times) {
  int most = 0;
  for (const auto& [tick, count] : times) most = std::max(most, count);
  return most;
}

TEST_F(HraWindowShownTest, DrawsWhatMovesAlsoBetweenTwoTicks) {
  settings.Speed = 10;
  for (const bool smooth : {false, true}) {
    settings.SmoothMotion = smooth;
    Open(Corridor());
    PaintedTicks painted(*window->findChild<Ram*>(), window->Machine());
    QTest::keyPress(window.get(), Qt::Key_Right);
    ASSERT_TRUE(Wait([&] { return Dog().x() >= 6; }));
    QTest::keyRelease(window.get(), Qt::Key_Right);
    if (smooth) {
      EXPECT_GE(Most(painted.times), 2) << "there is time for ten";
    } else {
      EXPECT_LE(Most(painted.times), 1);
    }
    window->Stop();
  }
}

TEST_F(HraWindowShownTest, DrawsNothingBetweenTicksInWhichNothingMoves) {
  settings.Speed = 10;
  settings.SmoothMotion = true;
  Open(Corridor());
  ASSERT_TRUE(TicksPass(2));
  PaintedTicks painted(*window->findChild<Ram*>(), window->Machine());
  ASSERT_TRUE(TicksPass(4));
  EXPECT_LE(Most(painted.times), 1);
}

TEST_F(HraWindowShownTest, LetsAllArriveWhenTheGameStandsStill) {
  settings.Speed = 10;
  settings.SmoothMotion = true;
  Open(Corridor());
  QTest::keyPress(window.get(), Qt::Key_Right);
  ASSERT_TRUE(Wait([&] { return window->Painter().OnTheWay(); }));
  window->WithDialog([&] { EXPECT_FALSE(window->Painter().OnTheWay()); });
}

// The pace

TEST_F(HraWindowShownTest, PlaysARecordAtTheSpeedForRecordsAndACaveAtThatForCaves) {
  settings.Speed = 3;
  settings.SpeedR = 5;
  Open(Corridor());
  EXPECT_EQ(window->Interval(), TimerInterval(3));
  const std::string record = test::RecordOf(Corridor(), std::vector<test::RecordTick>(50));
  ASSERT_TRUE(window->StartRecord(record));
  EXPECT_EQ(window->Interval(), TimerInterval(5));
  ASSERT_TRUE(window->Start(CaveTextOf(Corridor()), RunKind::Play));
  EXPECT_EQ(window->Interval(), TimerInterval(3));
}

TEST_F(HraWindowShownTest, HasNoMoreTicksInASecondThanTheScreenHasPictures) {
  settings.Speed = 1;
  Open(Corridor());
  EXPECT_GE(window->Interval() * window->screen()->refreshRate(), 1000);
  EXPECT_LT((window->Interval() - 1) * window->screen()->refreshRate(), 1000);
}

TEST_F(HraWindowShownTest, PlaysOnAtASpeedThatIsChosenInTheSettings) {
  Open(Corridor());
  EditSettings([](QWidget& dialog) {
    dialog.findChild<SkinScale*>("Speed")->setValue(7);
    QTest::keyClick(&dialog, Qt::Key_Return);
  });
  EXPECT_NE(settings.Speed, 2);
  EXPECT_EQ(window->Interval(), TimerInterval(settings.Speed));
}

// Standing still

TEST_F(HraWindowShownTest, StandsStillBehindADialogThatEndsWhileItIsMinimised) {
  Open(Corridor());
  window->WithDialog([this] { window->setWindowState(Qt::WindowMinimized); });
  EXPECT_FALSE(window->Ticking());
  window->WithDialog([this] {
    window->setWindowState(Qt::WindowNoState);
    EXPECT_FALSE(window->Ticking()) << "the dialog is still open";
  });
  EXPECT_TRUE(window->Ticking());
}

TEST_F(HraWindowShownTest, StaysHiddenWhenItsStateChanges) {
  Open(Corridor());
  QTest::keyClick(window.get(), Qt::Key_F12);
  ASSERT_TRUE(Wait([&] { return window->Hidden().isVisible(); }));
  window->setWindowState(Qt::WindowMaximized);
  EXPECT_FALSE(window->Ticking());
}

TEST_F(HraWindowShownTest, HandsOnAHeldKeyOnce) {
  Open(Corridor());
  int keys = 0;
  QObject::connect(window.get(), &HraWindow::OtherKey, [&keys] { ++keys; });
  QTest::keyPress(window.get(), Qt::Key_F5);
  QKeyEvent held(QEvent::KeyPress, Qt::Key_F5, {}, {}, true);
  QApplication::sendEvent(window.get(), &held);
  EXPECT_EQ(keys, 1);
}

}  // namespace
}  // namespace zorik
