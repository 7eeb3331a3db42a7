#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QSignalSpy>

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

// Who leaves the game does not wait for five seconds.
TEST(WayFinder, EndsAtOnceWithItsQuestion) {
  const auto run = Practise(kBoulders);
  auto finder = std::make_unique<WayFinder>(nullptr, 1'000'000);
  finder->Ask(*run);
  QElapsedTimer clock;
  clock.start();
  finder.reset();
  EXPECT_LT(clock.elapsed(), kPatience);
}

}  // namespace
}  // namespace zorik::test
