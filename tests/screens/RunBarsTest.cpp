// How the bars of practice and of a record look, and where their buttons lie.
#include <cmath>

#include "core/Speed.h"
#include "screens/PracticeScreen.h"

namespace zorik {
namespace {

using test::LongWay;
using test::RecordOfKeys;
using test::Wait;

class RunBars : public test::PracticeScreen {
 protected:
  // A window in which a bar has all the room that it wants.
  void MakeWide() {
    const QSize wide(1300, 700);
    window->resize(wide);
    ASSERT_TRUE(Wait([&] { return window->size() == wide; }));
  }

  void PlayInWideWindow() {
    StandAt(RecordOfKeys(LongWay(), std::string(30, 'R')), 3);
    MakeWide();
  }

  // A bar without its buttons, on red.
  static QImage OnRed(const QWidget& bar) {
    QImage image(bar.size(), QImage::Format_RGB32);
    image.fill(Qt::red);
    const_cast<QWidget&>(bar).render(&image, QPoint(), QRegion(), QWidget::RenderFlags());
    return image;
  }

  static int Differs(QColor a, QColor b) {
    return std::max(
        {std::abs(a.red() - b.red()), std::abs(a.green() - b.green()), std::abs(a.blue() - b.blue())});
  }

  // A dark ground with a bright rim all around, and round corners.
  static void HasGround(const QWidget& bar, QColor rim) {
    const QImage image = OnRed(bar);
    const QPoint last(bar.width() - 1, bar.height() - 1);
    EXPECT_EQ(image.pixelColor(0, 0), QColor(Qt::red));
    EXPECT_EQ(image.pixelColor(last), QColor(Qt::red));
    const QPoint middle = last / 2;
    for (const QPoint place : {QPoint(middle.x(), 1), QPoint(middle.x(), last.y() - 1), QPoint(1, middle.y()),
                               QPoint(last.x() - 1, middle.y())}) {
      EXPECT_LT(Differs(image.pixelColor(place), rim), 40) << place.x() << ", " << place.y();
    }
    EXPECT_LT(image.pixelColor(4, middle.y()).lightness(), 60);
    EXPECT_LT(image.pixelColor(last.x() - 4, middle.y()).lightness(), 60);
  }
};

TEST_F(RunBars, HaveADarkGroundWithARimInTheirColour) {
  Practise();
  HasGround(Training().Bar(), QColor(0x70, 0xD8, 0xF0));
  PlayInWideWindow();
  HasGround(Bar(), QColor(0xC9, 0xA2, 0x5C));
}

TEST_F(RunBars, LieInTheMiddleAboveTheLowerEdgeOfTheCave) {
  Practise();
  MakeWide();
  const QRect practice = Training().Bar().geometry();
  PlayInWideWindow();
  for (const QRect& bar : {practice, Bar().geometry()}) {
    const int right = window->width() - 1 - bar.right();
    EXPECT_LE(std::abs(bar.left() - right), 1);
    EXPECT_GT(bar.top(), window->height() / 2);
    EXPECT_LT(bar.bottom(), window->height());
    EXPECT_LT(bar.width(), window->width() - 8);
  }
}

TEST_F(RunBars, ShareTheWidthOfPracticeAmongItsButtons) {
  Practise();
  MakeWide();
  const PracticeBar& bar = Training().Bar();
  std::vector<QRect> places;
  for (const BarButton* const button : bar.findChildren<BarButton*>()) {
    if (!button->isHidden()) places.push_back(button->geometry());
  }
  ASSERT_EQ(places.size(), 6U);
  const int gap = places[1].left() - places[0].right() - 1;
  EXPECT_GT(gap, 0);
  for (std::size_t i = 1; i < places.size(); ++i) {
    EXPECT_EQ(places[i].left() - places[i - 1].right() - 1, gap) << i;
    EXPECT_EQ(places[i].top(), places[0].top()) << i;
    EXPECT_EQ(places[i].height(), places[0].height()) << i;
  }
  const int margin = places.front().left();
  const int left = bar.width() - 1 - places.back().right() - margin;
  EXPECT_GE(left, 0) << "the right margin is no narrower than the left";
  EXPECT_LT(left, 6) << "and only wider by what six buttons cannot share";
  EXPECT_EQ(places[0].top(), bar.height() - 1 - places[0].bottom());
  EXPECT_EQ(places[0].top(), margin);
}

TEST_F(RunBars, HaveTheButtonsOfARecordInOneRowUnderItsLine) {
  PlayInWideWindow();
  EXPECT_EQ(Bar().Line().width(), Bar().width());
  const int top = Button("back")->y();
  EXPECT_GE(top, Bar().Line().geometry().bottom());
  QStringList hints;
  for (const char* name : {"back", "play", "forward", "slower", "faster", "page"}) {
    EXPECT_EQ(Button(name)->size(), QSize(28, 28)) << name;
    EXPECT_EQ(Button(name)->y(), top) << name;
    EXPECT_NE(Button(name)->toolTip(), "") << name;
    hints << Button(name)->toolTip();
  }
  EXPECT_EQ(hints.removeDuplicates(), 0);
  EXPECT_NE(Bar().Line().toolTip(), "");
  EXPECT_EQ(Button("play")->x() - Button("back")->geometry().right(),
            Button("forward")->x() - Button("play")->geometry().right());
  for (const char* name : {"takeover", "again"}) {
    const QRect place = Button(name)->geometry();
    const int margin = Button("back")->x();
    EXPECT_EQ(place.width(), Button(name)->CaptionWidth(28) + 2 * margin) << name;
    EXPECT_EQ(Bar().width() - 1 - place.right(), margin) << name;
    EXPECT_EQ(place.top(), top) << name;
    EXPECT_EQ(place.height(), 28) << name;
  }
}

TEST_F(RunBars, OfferTheRecordAgainOnlyAtItsEnd) {
  PlayInWideWindow();
  const auto offers = [&] {
    return std::pair(!Button("again")->isHidden(), !Button("takeover")->isHidden());
  };
  EXPECT_EQ(offers(), std::pair(false, true));
  Press(Qt::Key_End);
  EXPECT_EQ(offers(), std::pair(true, false));
  Press(Qt::Key_Comma);
  EXPECT_EQ(offers(), std::pair(false, true));
}

TEST_F(RunBars, TellTheMinutesOfALongRecord) {
  StandAt(RecordOfKeys(LongWay(), std::string(650, '.')), 0);  // ten ticks a second
  EXPECT_EQ(Bar().MomentText(), "0:00 / 1:05   0 / 650");
  Press(Qt::Key_End);
  EXPECT_EQ(Bar().MomentText(), "1:05 / 1:05   650 / 650");
  for (int back = 0; back < 2; ++back) Press(Qt::Key_Left);
  EXPECT_EQ(Bar().MomentText(), "0:55 / 1:05   550 / 650");
}

TEST_F(RunBars, TellASpeedBetweenTwoWholeOnesWithOneDigit) {
  settings.Speed = 4;
  settings.SpeedR = 3;
  PlayRecord(RecordOfKeys(LongWay(), std::string(30, 'R')));
  const double speed = static_cast<double>(TimerInterval(4)) / TimerInterval(3);
  ASSERT_GT(std::abs(speed - std::round(speed)), 0.05);
  QString shown = Bar().SpeedText();
  shown.replace(',', '.');  // as the language writes it
  EXPECT_EQ(shown, QString::number(speed, 'f', 1) + QChar(0xD7));
}

TEST_F(RunBars, HandOverTheLastMomentOfARecordThatIsNotWon) {
  StandAt(RecordOfKeys(LongWay(), std::string(30, 'R')), 3);
  Press(Qt::Key_End);
  ASSERT_EQ(Tick(), 30);
  Press(Qt::Key_Return);
  EXPECT_EQ(Tick(), 30);
}

// A message lies over the cave, but not over what is to be clicked and what always has to be seen.
TEST_F(RunBars, LieOverTheMessagesOfTheRun) {
  const auto above = [&](const QWidget& part) {
    return window->children().indexOf(&part) > window->children().indexOf(&window->Message());
  };
  Practise();
  EXPECT_TRUE(above(Training().Bar()));
  EXPECT_TRUE(above(Badge()));
  window->Say("Haf!", false);
  QTest::mouseMove(window.get(), QPoint(50, 200));
  QTest::mouseMove(window.get(), QPoint(60, 210));
  EXPECT_TRUE(Wait([&] { return above(Training().Bar()); }));
  Click("picRestart");
  EXPECT_TRUE(above(Badge()));
  PlayRecord(RecordOfKeys(LongWay(), std::string(30, 'R')));
  EXPECT_TRUE(above(Bar()));
  window->Say("Haf!", false);
  Press(Qt::Key_Left);
  EXPECT_TRUE(above(Bar()));
}

TEST_F(RunBars, KnowWhatPracticeSeesAlsoWhileNoTimePasses) {
  Practise({"WWWWWWWWW", "W1;D;;;TW", "WWWWWWWWW"}, {.needed = 1});
  ASSERT_EQ(Badge().Light(), Prospect::NoneYet);
  window->WithDialog([&] {
    Press(Qt::Key_H);
    EXPECT_TRUE(Wait([&] { return Training().Hint().Shown(); }));
    EXPECT_EQ(Badge().Light(), Prospect::Known);
  });
}

// Six buttons with six pixels between them, eight around them, and nine at both sides of their words; the
// bar is four pixels from the edges.
TEST_F(RunBars, BecomeSmallerWhereTheirButtonsWouldNotFindRoom) {
  Practise();
  auto* const bar = window->findChild<PracticeBar*>();
  int needed = 2 * 8 + 5 * 6;
  for (const BarButton* const button : bar->findChildren<BarButton*>()) {
    if (button->objectName() != "earnest") needed += button->CaptionWidth(54 - 2 * 8) + 2 * 9;
  }
  ASSERT_LE(needed, 860) << "the bar is no wider";
  bar->PlaceIn({0, 0, needed + 2 * 4, 300});
  EXPECT_EQ(bar->width(), needed);
  EXPECT_EQ(bar->height(), 54);
  bar->PlaceIn({0, 0, needed + 2 * 4 - 1, 300});
  EXPECT_LT(bar->height(), 54);
}

}  // namespace
}  // namespace zorik
