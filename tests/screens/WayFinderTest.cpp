#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QSignalSpy>

#include "screens/TwoWays.h"
#include "screens/WayFinder.h"
#include "support/Patience.h"
#include "support/Practised.h"

namespace zorik::test {
namespace {

constexpr int kPatience = 20000;  // milliseconds

const Picture kCorridor{"WWWWWWWWW", "W1;D;;;TW", "WWWWWWWWW"};
// Nobody finds a way through three boulders, and nothing proves that there is none.
const Picture kBoulders{"WWWWWWWW", "W1DRRRTW", "WWWWWWWW"};

bool Answers(WayFinder& finder) {
  return WaitFor([&] { return !finder.Asking(); }, kPatience);
}

TEST(WayFinder, FindsAWayThatWinsFromTheMomentItWasAskedAbout) {
  WayFinder finder;
  QSignalSpy answered(&finder, &WayFinder::Answered);
  const auto run = Practise(kCorridor);
  Pass(*run, 2, "R");
  finder.Ask(*run);
  EXPECT_TRUE(finder.Asking());
  ASSERT_TRUE(Answers(finder));
  EXPECT_EQ(answered.count(), 1);
  EXPECT_EQ(finder.Answer(), Prospect::Known);
  EXPECT_EQ(finder.WayFrom(), 2);
  for (const Move move : finder.Way()) Tick(*run, KeysOf(move));
  EXPECT_TRUE(run->Win);
}

TEST(WayFinder, GivesUpWhenItsTimeIsOver) {
  WayFinder finder(nullptr, 100);
  const auto run = Practise(kBoulders);
  finder.Ask(*run);
  ASSERT_TRUE(Answers(finder));
  EXPECT_EQ(finder.Answer(), Prospect::NoneYet);
}

TEST(WayFinder, SaysImpossibleWhereThatIsSure) {
  WayFinder finder;
  const auto run = Practise({"WWWWW", "W1D;W", "WWWWW"});
  finder.Ask(*run);
  ASSERT_TRUE(Answers(finder));
  EXPECT_EQ(finder.Answer(), Prospect::Impossible);
}

TEST(WayFinder, DropsAQuestionForTheNextOne) {
  WayFinder finder;
  QSignalSpy answered(&finder, &WayFinder::Answered);
  const auto run = Practise(kBoulders);
  finder.Ask(*run);
  const auto other = Practise(kCorridor);
  finder.Ask(*other);
  ASSERT_TRUE(Answers(finder));
  EXPECT_EQ(finder.Answer(), Prospect::Known);
  EXPECT_EQ(answered.count(), 1);
}

TEST(WayFinder, KnowsNothingOfAnotherRun) {
  WayFinder finder;
  const auto run = Practise(kCorridor);
  finder.Ask(*run);
  ASSERT_TRUE(Answers(finder));
  finder.Forget();
  EXPECT_EQ(finder.Answer(), Prospect::NoneYet);
  EXPECT_TRUE(finder.Way().empty());
}

TEST(WayFinder, DropsItsQuestionForAnotherRun) {
  for (const bool forgets : {true, false}) {
    WayFinder finder;
    const auto run = Practise(kCorridor);
    finder.Ask(*run);
    if (forgets) {
      finder.Forget();
    } else {
      finder.Drop();
    }
    EXPECT_FALSE(finder.Asking());
    QSignalSpy answered(&finder, &WayFinder::Answered);
    WayFinder other;
    other.Ask(*run);
    ASSERT_TRUE(Answers(other));
    EXPECT_EQ(answered.count(), 0);
    EXPECT_EQ(finder.Answer(), Prospect::NoneYet);
  }
}

// Two ways are as good as each other: whoever goes one of them is not sent to the other.
TEST(WayFinder, KeepsToTheWayThatIsUnderWay) {
  const TwoWays ways;
  const Plan other = ways.Other();
  const auto run = ways.Begin();
  WayFinder finder;
  finder.Ask(*run, other);
  ASSERT_TRUE(Answers(finder));
  EXPECT_EQ(finder.Way(), other);
  EXPECT_EQ(finder.WayFrom(), run->Ticks);
  finder.Ask(*run);
  ASSERT_TRUE(Answers(finder));
  EXPECT_EQ(finder.Way(), other) << "nothing of it is done";
  for (std::size_t move = 0; move < 2; ++move) Tick(*run, KeysOf(other[move]));
  finder.Ask(*run);
  ASSERT_TRUE(Answers(finder));
  EXPECT_EQ(finder.Way(), Plan(other.begin() + 2, other.end()));
  EXPECT_EQ(finder.WayFrom(), run->Ticks);
  finder.Forget();
  finder.Ask(*ways.Begin());
  ASSERT_TRUE(Answers(finder));
  EXPECT_NE(finder.Way(), other) << "of another run nothing is known";
}

// Who leaves the game does not wait for five seconds.
TEST(WayFinder, EndsAtOnceWithItsQuestion) {
  const auto run = Practise(kBoulders);
  auto finder = std::make_unique<WayFinder>(nullptr, 1'000'000);
  finder->Ask(*run);
  QTest::qWait(100);  // it is at it by now
  QElapsedTimer clock;
  clock.start();
  finder.reset();
  EXPECT_LT(clock.elapsed(), kPatience);
}

}  // namespace
}  // namespace zorik::test
