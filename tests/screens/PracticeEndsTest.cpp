// What practice says and shows where a run comes to its end, and how it goes on from there.
#include "screens/PracticeScreen.h"
#include "screens/StartWords.h"

namespace zorik {
namespace {

using test::Picture;
using test::Wait;

const Picture kCorridor{"WWWWWWWWW", "W1;D;;;TW", "WWWWWWWWW"};
const Picture kWalled{"WWWWW", "W1D;W", "WWWWW"};
// Nobody finds a way through three boulders, and nothing proves that there is none.
const Picture kBoulders{"WWWWWWWW", "W1DRRRTW", "WWWWWWWW"};
constexpr int kLongerThanAMessage = 3200;  // milliseconds

class PracticeEnds : public test::PracticeScreen {
 protected:
  bool Says(const StartWords& words) const {
    return Wait([&] { return Message() == words.In(skin); });
  }
  bool TimeIsUp() const {
    return Wait([&] { return Message().startsWith("Čas vypršel"); });
  }
};

TEST_F(PracticeEnds, TakeAwayTheWayThatWasShown) {
  Practise(kCorridor, {.time = 2, .needed = 1});
  Press(Qt::Key_H);
  ASSERT_TRUE(Wait([&] { return Training().Hint().Shown(); }));
  Press(Qt::Key_Up);  // against the wall: time goes on, and the way is still open
  ASSERT_TRUE(TicksPass(2));
  EXPECT_TRUE(Training().Hint().Shown());
  ASSERT_TRUE(TimeIsUp());
  EXPECT_FALSE(Training().Hint().Shown());
}

TEST_F(PracticeEnds, LeaveTheMarkAtThePaceOfPlay) {
  Practise({"WWWWWW", "W1...T", "WWWWWW"}, {.needed = 0});
  const int pace = window->Interval();
  Press(Qt::Key_F5);
  QTest::keyPress(window.get(), Qt::Key_Right);
  ASSERT_TRUE(Wait([&] { return window->Machine().Win.has_value(); }));
  QTest::keyRelease(window.get(), Qt::Key_Right);
  ASSERT_NE(window->Interval(), pace) << "a run that is won stands still";
  Press(Qt::Key_F8);
  EXPECT_FALSE(window->Machine().Win);
  EXPECT_EQ(window->Interval(), pace);
  EXPECT_TRUE(TicksPass(2));
}

TEST_F(PracticeEnds, AreNotAwaitedBySomebodyWhoAsksForAWay) {
  Practise(kBoulders, {.needed = 1});
  ASSERT_TRUE(TicksPass(1));
  Press(Qt::Key_H);
  EXPECT_EQ(Message(), kSeekingWayWords.In(skin)) << "what the game does while time stands";
  EXPECT_TRUE(window->Message().isVisible());
  EXPECT_TRUE(Training().Waits());
  Press(Qt::Key_Up);
  EXPECT_FALSE(Training().Waits());
  EXPECT_FALSE(window->Message().isVisible()) << "time goes on, and nothing is promised any more";
}

TEST_F(PracticeEnds, SayAsLongAsThePlayerReadsThatThereNeverWasAWay) {
  Practise(kWalled, {.time = 1, .needed = 1});
  ASSERT_TRUE(Says(kNeverAWayWords));
  Press(Qt::Key_H);
  EXPECT_EQ(Message(), kNeverAWayWords.In(skin));
  QTest::qWait(kLongerThanAMessage);
  EXPECT_TRUE(window->Message().isVisible());
}

TEST_F(PracticeEnds, SayThatTheLastWayIsLookedForUntilItIsFound) {
  Practise(kBoulders, {.time = 1, .needed = 1});
  ASSERT_TRUE(TimeIsUp());
  EXPECT_TRUE(Training().Bar().isVisible());
  Press(Qt::Key_H);
  EXPECT_EQ(Message(), kSeekingLossWords.In(skin));
  QTest::qWait(kLongerThanAMessage);
  EXPECT_TRUE(window->Message().isVisible());
  QTest::keyPress(window.get(), Qt::Key_Backspace);
  EXPECT_FALSE(window->Message().isVisible());
  QTest::keyRelease(window.get(), Qt::Key_Backspace);
}

// The bar of a run that has just begun stays for ten seconds, and later for three; and as long as it is of
// use.
TEST_F(PracticeEnds, KeepTheBarThatHelpsThere) {
  constexpr int kAtFirst = 10'500;
  constexpr int kLater = 3'400;
  settings.Speed = 1;  // nobody is asked meanwhile whether he sleeps
  Practise({"WWWWWWW", "W1...TW", "WWWWWWW"}, {.time = 2, .needed = 0});
  auto* const bar = window->findChild<PracticeBar*>();
  ASSERT_TRUE(TimeIsUp());
  QTest::qWait(kAtFirst);
  EXPECT_TRUE(bar->isVisible()) << "there is nothing to be done but with its buttons";
  QTest::keyPress(window.get(), Qt::Key_Backspace);
  EXPECT_TRUE(Wait([&] { return !bar->isVisible(); })) << "time is left again";
  QTest::mouseMove(window.get(), QPoint(50, 200));
  QTest::mouseMove(window.get(), QPoint(60, 210));
  ASSERT_TRUE(Wait([&] { return bar->isVisible(); }));
  bar->setAttribute(Qt::WA_UnderMouse);
  QTest::qWait(kLater);
  EXPECT_TRUE(bar->isVisible()) << "the pointer is on it";
  bar->setAttribute(Qt::WA_UnderMouse, false);
  EXPECT_TRUE(Wait([&] { return !bar->isVisible(); }));
  QTest::keyPress(window.get(), Qt::Key_Right);
  QTest::keyRelease(window.get(), Qt::Key_Backspace);
  ASSERT_TRUE(Wait([&] { return window->Machine().Win.has_value(); }));
  QTest::keyRelease(window.get(), Qt::Key_Right);
  EXPECT_TRUE(bar->isVisible());
  QTest::qWait(kLater);
  EXPECT_TRUE(bar->isVisible()) << "it offers the cave in earnest";
}

}  // namespace
}  // namespace zorik
