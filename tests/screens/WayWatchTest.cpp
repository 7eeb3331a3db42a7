#include <gtest/gtest.h>

#include "screens/WayWatch.h"
#include "support/Patience.h"
#include "support/Practised.h"

namespace zorik::test {
namespace {

constexpr int kPatience = 20000;  // milliseconds

const Picture kCorridor{"WWWWWWWWW", "W1;D;;;TW", "WWWWWWWWW"};
const Picture kWalled{"WWWWWWWWW", "W1;D;;WTW", "WWWWWWWWW"};

// A run in practice after so many ticks.
std::unique_ptr<Hra> Practised(const Picture& picture, int ticks) {
  return Practise(picture, {.needed = 1}, ticks);
}

bool Answers(WayWatch& watch) {
  return WaitFor([&] { return !watch.Asking(); }, kPatience);
}

TEST(WayWatch, KnowsOfEarlierMomentsWhatItKnowsOfALaterOne) {
  WayWatch watch;
  EXPECT_EQ(watch.At(5), Prospect::NoneYet);
  watch.WentOn(*Practised(kCorridor, 5));
  ASSERT_TRUE(Answers(watch));
  EXPECT_EQ(watch.At(5), Prospect::Known);
  EXPECT_EQ(watch.At(0), Prospect::Known);
  ASSERT_NE(watch.WayFrom(5), nullptr);
  EXPECT_EQ(watch.WayFrom(4), nullptr);
}

TEST(WayWatch, TakesALostRunForLostFromThereOn) {
  WayWatch watch;
  watch.WentOn(*Practised(kWalled, 5));
  ASSERT_TRUE(Answers(watch));
  EXPECT_EQ(watch.At(5), Prospect::Impossible);
  EXPECT_EQ(watch.At(9), Prospect::Impossible);
  EXPECT_EQ(watch.At(4), Prospect::NoneYet);
}

// Who has gone back and goes on in another way leaves behind what was known of the first one.
TEST(WayWatch, AsksAnewWhereTheRunGoesOnInAnotherWay) {
  WayWatch watch;
  watch.WentOn(*Practised(kWalled, 5));
  ASSERT_TRUE(Answers(watch));
  watch.WentOn(*Practised(kCorridor, 5));
  ASSERT_TRUE(Answers(watch));
  EXPECT_EQ(watch.At(5), Prospect::Known);
}

TEST(WayWatch, FindsItsWayAgainFromAnEarlierMoment) {
  const auto run = Practised(kCorridor, 0);
  Timeline past(*run);
  for (const char* const held : {"R", "", "R"}) {
    Tick(*run, Keys(held));
    past.Add(*run, Keys(held));
  }
  WayWatch watch(1);  // no time to look for another
  watch.Know(3, Plan(4, static_cast<Move>(kStepBase + 2)));
  watch.Ask(*past.At(1), past);
  ASSERT_TRUE(Answers(watch));
  EXPECT_EQ(watch.At(1), Prospect::Known);
  EXPECT_EQ(watch.At(3), Prospect::Known);
}

TEST(WayWatch, ForgetsThatItFoundNoneOnAWayThatIsUndone) {
  WayWatch watch(300);
  watch.WentOn(*Practised({"WWWWWWWW", "W1DRRRTW", "WWWWWWWW"}, 5));
  ASSERT_TRUE(Answers(watch));
  ASSERT_EQ(watch.At(5), Prospect::NoneYet);
  watch.WentOn(*Practised(kCorridor, 3));
  ASSERT_TRUE(Answers(watch));
  watch.Know(3, Plan(6, static_cast<Move>(kStepBase + 2)));
  EXPECT_EQ(watch.At(3), Prospect::Known);
  EXPECT_EQ(watch.At(5), Prospect::Known) << "still, a moment later";
}

TEST(WayWatch, StaysSureForASecondOfTheGame) {
  for (const int tick : {0, 7}) {
    WayWatch watch;
    watch.Know(tick, Plan(6, static_cast<Move>(kStepBase + 2)));
    EXPECT_EQ(watch.At(tick), Prospect::Known);
    EXPECT_EQ(watch.At(tick + 10), Prospect::Known);
    EXPECT_EQ(watch.At(tick + 11), Prospect::NoneYet);
    ASSERT_NE(watch.WayFrom(tick), nullptr);
    EXPECT_EQ(watch.WayFrom(tick)->size(), 6U);
    EXPECT_EQ(watch.WayFrom(tick + 1), nullptr);
    watch.Forget();
    EXPECT_EQ(watch.At(tick), Prospect::NoneYet);
    EXPECT_EQ(watch.WayFrom(tick), nullptr);
  }
}

}  // namespace
}  // namespace zorik::test
