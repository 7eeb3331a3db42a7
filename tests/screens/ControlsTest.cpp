// The pace of what stands between the game window's timer and its machine, and the places of its bars.
#include <QSignalSpy>
#include <algorithm>
#include <set>
#include <vector>

#include "core/Speed.h"
#include "screens/FloatingBar.h"
#include "screens/PracticeScreen.h"
#include "screens/StartWords.h"

namespace zorik {
namespace {

using test::LongWay;
using test::Picture;
using test::Wait;

const Picture kBoulders{"WWWWWWWW", "W1DRRRTW", "WWWWWWWW"};
const Picture kCorridor{"WWWWWWWWW", "W1;D;;;TW", "WWWWWWWWW"};

class ControlsTest : public test::PracticeScreen {
 protected:
  ControlsTest() { settings.Speed = 5; }

  int Usual() const { return window->Paced(TimerInterval(5)); }
  void Hold(Qt::Key key) { QTest::keyPress(window.get(), key); }
  void LetGo(Qt::Key key) { QTest::keyRelease(window.get(), key); }

  // The buttons of a bar from left to right.
  static std::vector<const BarButton*> Row(const QWidget& bar) {
    std::vector<const BarButton*> row;
    for (const BarButton* const button : bar.findChildren<BarButton*>()) {
      if (!button->isHidden()) row.push_back(button);
    }
    std::sort(row.begin(), row.end(),
              [](const auto* one, const auto* other) { return one->x() < other->x(); });
    return row;
  }
};

TEST_F(ControlsTest, GoBackThirtyTimesASecondAndOnAsBefore) {
  Practise();
  EXPECT_EQ(window->Interval(), Usual());
  Hold(Qt::Key_Backspace);
  EXPECT_EQ(window->Interval(), window->Paced(33));
  LetGo(Qt::Key_Backspace);
  EXPECT_EQ(window->Interval(), Usual());
  Hold(Qt::Key_Backspace);
  window->WithDialog([] {});  // all keys are let go
  EXPECT_EQ(window->Interval(), Usual());
}

// Tick by tick at first, and after 45 of them two at a time.
TEST_F(ControlsTest, GoBackFasterTheLongerTheKeyIsHeld) {
  Practise();
  window->WithDialog([&] {
    for (int tick = 0; tick < 200; ++tick) Training().Pass({});
    int before = Tick();
    ASSERT_GE(before, 200);
    std::vector<int> steps;
    Hold(Qt::Key_Backspace);
    while (Tick() > 0 && steps.size() < 200) {
      steps.push_back(before - Tick());
      before = Tick();
      Training().Pass({});
    }
    ASSERT_GT(steps.size(), 95U);
    EXPECT_EQ(std::vector<int>(steps.begin(), steps.begin() + 45), std::vector<int>(45, 1));
    EXPECT_EQ(std::vector<int>(steps.begin() + 45, steps.begin() + 90), std::vector<int>(45, 2));
    EXPECT_EQ(steps[90], 3);
    LetGo(Qt::Key_Backspace);
    Hold(Qt::Key_Backspace);
    LetGo(Qt::Key_Backspace);
  });
}

TEST_F(ControlsTest, BeginSlowlyEachTimeTheyGoBack) {
  Practise();
  window->WithDialog([&] {
    for (int tick = 0; tick < 150; ++tick) Training().Pass({});
    Hold(Qt::Key_Backspace);
    for (int step = 0; step < 60; ++step) Training().Pass({});
    LetGo(Qt::Key_Backspace);
    const int tick = Tick();
    Hold(Qt::Key_Backspace);
    EXPECT_EQ(Tick(), tick - 1) << "it goes back at once";
    Training().Pass({});
    EXPECT_EQ(Tick(), tick - 2);
    LetGo(Qt::Key_Backspace);
    Training().Pass({});
    EXPECT_EQ(Tick(), tick - 1) << "and on from there";
  });
}

TEST_F(ControlsTest, SayThatTheySeekAWayAndWaitForIt) {
  Practise(kBoulders, {.needed = 1});
  Press(Qt::Key_H);
  EXPECT_EQ(Message(), kSeekingWayWords.In(skin));
  EXPECT_TRUE(window->Message().isVisible());
  EXPECT_TRUE(Training().Waits());
  EXPECT_EQ(window->Interval(), window->Paced(40)) << "it only looks for keys";
  const int tick = Tick();
  window->WithDialog([&] {
    for (int look = 0; look < 5; ++look) Training().Pass({});
  });
  EXPECT_EQ(Tick(), tick);
  Press(Qt::Key_Left);
  EXPECT_FALSE(Training().Waits());
  EXPECT_EQ(window->Interval(), Usual());
  EXPECT_FALSE(window->Message().isVisible());
}

TEST_F(ControlsTest, WaitNoMoreForWhoGoesBackInTimeOrToTheMark) {
  Practise();
  GoTo(4);
  Press(Qt::Key_F5);
  Press(Qt::Key_H);
  ASSERT_TRUE(Training().Waits());
  Press(Qt::Key_F8);
  EXPECT_FALSE(Training().Waits());
  EXPECT_EQ(window->Interval(), Usual());
  Press(Qt::Key_H);
  ASSERT_TRUE(Training().Waits());
  Hold(Qt::Key_Backspace);
  EXPECT_FALSE(Training().Waits());
  EXPECT_EQ(window->Interval(), window->Paced(33));
  LetGo(Qt::Key_Backspace);
  EXPECT_FALSE(Training().Hint().Shown());
}

TEST_F(ControlsTest, KeepTheirSlownessOverARestartAndLoseItWithTheRun) {
  Practise();
  const QString plain = Badge().Text();
  Press(Qt::Key_F6);
  EXPECT_EQ(window->Interval(), 2 * TimerInterval(5));
  Click("picRestart");
  EXPECT_EQ(window->Interval(), 2 * TimerInterval(5));
  EXPECT_EQ(Badge().Text(), plain + "   ½×");
  ASSERT_TRUE(window->Start(test::CaveTextOf(LongWay()), RunKind::Practice));
  EXPECT_EQ(window->Interval(), Usual());
  EXPECT_EQ(Badge().Text(), plain);
}

TEST_F(ControlsTest, StandAtAWinAndGoOnWhereItIsTurnedBack) {
  settings.Speed = 2;
  Practise({"WWWWW", "W1T.W", "WWWWW"}, {.needed = 0});
  Press(Qt::Key_Right);
  ASSERT_TRUE(Wait([&] { return window->Machine().Win.has_value(); }));
  EXPECT_TRUE(Wait([&] { return window->Interval() == window->Paced(40); }));
  EXPECT_TRUE(Wait([&] { return Training().Bar().isVisible(); }));
  Hold(Qt::Key_Backspace);
  ASSERT_TRUE(Wait([&] { return !window->Machine().Win; }));
  LetGo(Qt::Key_Backspace);
  EXPECT_EQ(window->Interval(), window->Paced(TimerInterval(2)));
}

TEST_F(ControlsTest, TakeWithThemAllTheyShowWhenTheRunIsLeft) {
  Practise(kCorridor, {.needed = 1});
  Press(Qt::Key_H);
  ASSERT_TRUE(Wait([&] { return Training().Hint().Shown(); }));
  EXPECT_TRUE(Badge().isVisible());
  EXPECT_TRUE(Training().Bar().isVisible());
  window->Stop();
  EXPECT_FALSE(Badge().isVisible());
  EXPECT_FALSE(Training().Bar().isVisible());
  EXPECT_FALSE(Training().Hint().Shown());
  EXPECT_FALSE(Training().Waits());
}

TEST_F(ControlsTest, HaveTheirBadgeAboveTheBarAndInTheCornerWithoutIt) {
  Practise();
  const QWidget& bar = Training().Bar();
  ASSERT_TRUE(bar.isVisible());
  EXPECT_EQ(bar.y() - 1 - Badge().geometry().bottom(), 6);
  EXPECT_EQ(Badge().x() - window->PlayArea().x(), 6);
  EXPECT_LE(std::abs(bar.geometry().center().x() - window->rect().center().x()), 1);
}

TEST_F(ControlsTest, ShareTheRoomOfTheBarAmongItsButtons) {
  Practise();
  for (const QSize size : {QSize(600, 400), QSize(1300, 700)}) {
    window->resize(size);
    ASSERT_TRUE(Wait([&] { return window->size() == size; }));
    const QWidget& bar = Training().Bar();
    const auto row = Row(bar);
    ASSERT_EQ(row.size(), 6U);
    const int margin = row[0]->x();
    const int gap = row[1]->x() - row[0]->x() - row[0]->width();
    EXPECT_GT(gap, 0);
    for (std::size_t i = 0; i < row.size(); ++i) {
      EXPECT_EQ(row[i]->y(), margin) << "as far from the top as from the side";
      EXPECT_EQ(row[i]->height(), bar.height() - 2 * margin);
      if (i > 0) {
        EXPECT_EQ(row[i]->x() - row[i - 1]->x() - row[i - 1]->width(), gap);
      }
    }
    const int rest = bar.width() - row.back()->x() - row.back()->width();
    EXPECT_GE(rest, margin);
    EXPECT_LE(rest, margin + 6) << "all the room is used";
  }
}

// The record

TEST_F(ControlsTest, StandAndGoOnAtThePaceOfRecords) {
  settings.SpeedR = 4;
  PlayRecord(test::RecordOfKeys(LongWay(), std::string(120, 'R')));
  EXPECT_EQ(window->Interval(), window->Paced(TimerInterval(4)));
  Press(Qt::Key_Space);
  EXPECT_EQ(window->Interval(), window->Paced(40));
  EXPECT_TRUE(Theatre().Stands());
  Press(Qt::Key_Space);
  EXPECT_EQ(window->Interval(), window->Paced(TimerInterval(4)));
  Press(Qt::Key_Up);
  const int faster = window->Interval();
  EXPECT_NE(faster, window->Paced(TimerInterval(4)));
  Press(Qt::Key_Space);
  Press(Qt::Key_Space);
  EXPECT_EQ(window->Interval(), faster) << "the speed is kept";
}

TEST_F(ControlsTest, HaveTheButtonsOfARecordInOneRowBelowItsLine) {
  PlayRecord(test::RecordOfKeys(LongWay(), std::string(120, 'R')));
  for (const QSize size : {QSize(500, 400), QSize(1300, 700)}) {
    window->resize(size);
    ASSERT_TRUE(Wait([&] { return window->size() == size; }));
    const auto row = Row(Bar());
    QStringList names;
    int right = 0;
    std::set<QString> hints;
    for (const BarButton* const button : row) {
      names << button->objectName();
      EXPECT_GT(button->x(), right);
      EXPECT_EQ(button->y(), row[0]->y());
      EXPECT_EQ(button->height(), row[0]->height());
      EXPECT_GE(button->y(), Bar().Line().geometry().bottom()) << "below the line";
      EXPECT_LT(button->geometry().bottom(), Bar().height());
      if (button != row.back()) {
        EXPECT_EQ(button->width(), button->height()) << "a sign is square";
      }
      right = button->geometry().right();
      hints.insert(button->toolTip());
    }
    EXPECT_EQ(names, QStringList({"back", "play", "forward", "slower", "faster", "page", "takeover"}));
    EXPECT_EQ(hints.size(), row.size());
    EXPECT_FALSE(hints.contains(""));
    EXPECT_EQ(Bar().width() - 1 - right, row[0]->x()) << "the same margin at both ends";
    const int gap = row[1]->x() - row[0]->geometry().right();
    EXPECT_EQ(row[2]->x() - row[1]->geometry().right(), gap);
    EXPECT_EQ(row[5]->x() - row[4]->geometry().right(), gap);
    EXPECT_EQ(Bar().Line().x(), 0);
    EXPECT_EQ(Bar().Line().width(), Bar().width());
    EXPECT_FALSE(Bar().Line().toolTip().isEmpty());
  }
}

TEST_F(ControlsTest, OfferARecordAgainAtItsEndInsteadOfWhatCanBeTakenOver) {
  PlayRecord(test::RecordOfKeys(LongWay(), std::string(120, 'R')));
  EXPECT_FALSE(Shows("again"));
  EXPECT_TRUE(Shows("takeover"));
  Press(Qt::Key_End);
  EXPECT_TRUE(Shows("again"));
  EXPECT_FALSE(Shows("takeover"));
  EXPECT_TRUE(Button("again")->Pulses());
  EXPECT_EQ(Button("again")->geometry().right(), Button("takeover")->geometry().right());
  Press(Qt::Key_Home);
  EXPECT_FALSE(Shows("again"));
  EXPECT_FALSE(Button("again")->Pulses());
}

TEST_F(ControlsTest, ShowOnTheButtonOfPlayWhatItDoes) {
  PlayRecord(test::RecordOfKeys(LongWay(), std::string(120, 'R')));
  const auto face = [&] { return Button("play")->grab().toImage(); };
  const QImage plays = face();
  Press(Qt::Key_Space);
  const QImage stands = face();
  EXPECT_NE(stands, plays);
  Press(Qt::Key_Space);
  EXPECT_EQ(face(), plays);
  for (const char* other : {"back", "forward", "slower", "faster", "page"}) {
    EXPECT_NE(Button(other)->grab().toImage(), plays) << other;
    EXPECT_NE(Button(other)->grab().toImage(), stands) << other;
  }
}

TEST_F(ControlsTest, GiveTheWordsOnTheirPlatesRoomOnBothSides) {
  PlayRecord(test::RecordOfKeys(LongWay(), std::string(120, 'R')));
  window->resize(1300, 700);
  ASSERT_TRUE(Wait([&] { return window->width() == 1300; }));
  for (const char* name : {"takeover", "again"}) {
    const BarButton& button = *Button(name);
    EXPECT_EQ(button.width(), button.CaptionWidth(button.height()) + 20) << name;
  }
}

TEST_F(ControlsTest, ShowNoWayAnyMoreWhenNothingHelps) {
  Practise(kCorridor, {.time = 1, .needed = 1});
  Press(Qt::Key_H);
  ASSERT_TRUE(Wait([&] { return Training().Hint().Shown(); }));
  Press(Qt::Key_Up);
  window->WithDialog([&] {
    for (int tick = 0; tick < 30; ++tick) Training().Pass({});
  });
  EXPECT_FALSE(Training().Hint().Shown());
  EXPECT_EQ(Badge().Light(), Prospect::Impossible);
}

TEST_F(ControlsTest, GoOnFromTheMarkAtTheirPaceAlsoAfterAWin) {
  Practise({"WWWWW", "W1T.W", "WWWWW"}, {.needed = 0});
  Press(Qt::Key_F5);
  Hold(Qt::Key_Right);
  ASSERT_TRUE(Wait([&] { return window->Machine().Win.has_value(); }));
  LetGo(Qt::Key_Right);
  EXPECT_EQ(window->Interval(), window->Paced(40));
  Press(Qt::Key_F8);
  EXPECT_FALSE(window->Machine().Win);
  EXPECT_EQ(window->Interval(), Usual());
}

}  // namespace
}  // namespace zorik
