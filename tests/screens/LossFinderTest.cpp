#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QSignalSpy>

#include "screens/LossFinder.h"
#include "support/Patience.h"
#include "support/Scene.h"

namespace zorik::test {
namespace {

constexpr int kLongest = 20000;  // milliseconds

const Picture kCorridor{"WWWWWWWWW", "W1;D;;;TW", "WWWWWWWWW"};
const Picture kBoulders{"WWWWWWWW", "W1DRRRTW", "WWWWWWWW"};

// A run in practice of so many ticks in which nobody does anything.
Timeline Idle(const Picture& picture, const Numbers& numbers, int ticks) {
  auto run = std::make_unique<Hra>(Play(picture, numbers));
  run->Kind = RunKind::Practice;
  Timeline timeline(*run);
  for (int tick = 0; tick < ticks; ++tick) {
    Tick(*run, {});
    timeline.Add(*run, {});
  }
  return timeline;
}

bool Answers(LossFinder& finder) {
  return WaitFor([&] { return !finder.Asking(); }, kLongest);
}

// Two seconds for six steps.
TEST(LossFinder, FindsTheTickFromWhichTheTimeIsTooShort) {
  LossFinder finder;
  QSignalSpy answered(&finder, &LossFinder::Answered);
  finder.Ask(Idle(kCorridor, {.time = 2, .needed = 1}, 20));
  EXPECT_TRUE(finder.Asking());
  ASSERT_TRUE(Answers(finder));
  EXPECT_EQ(answered.count(), 1);
  ASSERT_TRUE(finder.Found());
  EXPECT_EQ(finder.Found()->knownUntil, 14);
  EXPECT_EQ(finder.Found()->lostFrom, 15);
  EXPECT_EQ(finder.Found()->way.size(), 6U);
}

TEST(LossFinder, TellsThatThereWasNeverAWayOnlyFromWhereItHasLooked) {
  LossFinder finder(100, kLongest);
  finder.Ask(Idle(kBoulders, {.time = 1, .needed = 1}, 15));
  ASSERT_TRUE(Answers(finder));
  ASSERT_TRUE(finder.Found());
  EXPECT_EQ(finder.Found()->knownUntil, -1);
  EXPECT_EQ(finder.Found()->lostFrom, 0);
}

TEST(LossFinder, KeepsToItsTimeInAll) {
  LossFinder finder(1'000'000, 100);
  QElapsedTimer clock;
  clock.start();
  finder.Ask(Idle(kBoulders, {.time = 900, .needed = 1}, 400));
  ASSERT_TRUE(Answers(finder));
  EXPECT_LT(clock.elapsed(), kLongest);
  ASSERT_TRUE(finder.Found());
  EXPECT_GT(finder.Found()->lostFrom, finder.Found()->knownUntil + 1) << "it has not come to its end";
}

TEST(LossFinder, ForgetsItsQuestionAndItsAnswer) {
  LossFinder finder;
  QSignalSpy answered(&finder, &LossFinder::Answered);
  finder.Ask(Idle(kBoulders, {.time = 900, .needed = 1}, 100));
  finder.Forget();
  EXPECT_FALSE(finder.Asking());
  finder.Ask(Idle(kCorridor, {.time = 2, .needed = 1}, 20));
  ASSERT_TRUE(Answers(finder));
  EXPECT_EQ(answered.count(), 1);
  finder.Forget();
  EXPECT_FALSE(finder.Found());
}

}  // namespace
}  // namespace zorik::test
