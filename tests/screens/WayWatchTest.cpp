#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QSignalSpy>

#include "screens/TwoWays.h"
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

// Nobody finds a way through three boulders, and nothing proves that there is none.
const Picture kBoulders{"WWWWWWWW", "W1DRRRTW", "WWWWWWWW"};
const Plan kSteps(6, static_cast<Move>(kStepBase + 2));

// Has answered, that a way is known from this tick.
void KnowFrom(WayWatch& watch, int tick) {
  watch.WentOn(*Practised(kCorridor, tick));
  ASSERT_TRUE(Answers(watch));
  ASSERT_EQ(watch.At(tick), Prospect::Known);
}

TEST(WayWatch, AsksAgainHalfASecondOfTheGameAfterItKnewAWay) {
  WayWatch watch;
  QSignalSpy answered(&watch, &WayWatch::Answered);
  KnowFrom(watch, 5);
  EXPECT_EQ(answered.count(), 1);
  for (const int tick : {6, 7, 8, 9}) {
    watch.WentOn(*Practised(kCorridor, tick));
    EXPECT_FALSE(watch.Asking()) << tick;
  }
  watch.WentOn(*Practised(kCorridor, 10));
  EXPECT_TRUE(watch.Asking());
  ASSERT_TRUE(Answers(watch));
  EXPECT_EQ(watch.At(10), Prospect::Known);
  EXPECT_NE(watch.WayFrom(10), nullptr);
  EXPECT_EQ(answered.count(), 2);
}

TEST(WayWatch, AsksNotAnewInTheTickAfterTheFirst) {
  WayWatch watch;
  const auto run = Practised(kCorridor, 0);
  watch.Ask(*run, Timeline(*run));
  ASSERT_TRUE(Answers(watch));
  watch.WentOn(*Practised(kCorridor, 1));
  EXPECT_FALSE(watch.Asking());
}

TEST(WayWatch, RestsForTwoSecondsAfterItHasFoundNone) {
  WayWatch watch(0);  // it finds nothing in no time
  QElapsedTimer clock;
  QObject::connect(&watch, &WayWatch::Answered, &watch, [&clock] { clock.start(); });
  watch.WentOn(*Practised(kBoulders, 5));
  ASSERT_TRUE(Answers(watch));
  ASSERT_TRUE(WaitFor(
      [&] {
        watch.WentOn(*Practised(kBoulders, 12));
        return watch.Asking();
      },
      kPatience));
  EXPECT_GE(clock.elapsed(), 1990);
}

TEST(WayWatch, AsksNothingMoreAboutALostRun) {
  WayWatch watch;
  watch.WentOn(*Practised(kWalled, 5));
  ASSERT_TRUE(Answers(watch));
  for (const int tick : {6, 7, 20}) {
    const auto run = Practised(kWalled, tick);
    watch.WentOn(*run);
    EXPECT_FALSE(watch.Asking()) << tick;
    watch.Ask(*run, Timeline(*run));
    EXPECT_FALSE(watch.Asking()) << tick;
    EXPECT_EQ(watch.At(tick), Prospect::Impossible);
  }
  QTest::qWait(2100);  // longer than it rests where it has found none
  watch.WentOn(*Practised(kWalled, 21));
  EXPECT_FALSE(watch.Asking());
  const auto same = Practised(kWalled, 5);
  watch.Ask(*same, Timeline(*same));
  EXPECT_FALSE(watch.Asking());
  const auto earlier = Practised(kWalled, 4);
  watch.Ask(*earlier, Timeline(*earlier));
  ASSERT_TRUE(watch.Asking());
  ASSERT_TRUE(Answers(watch));
  EXPECT_EQ(watch.At(4), Prospect::Impossible);
  watch.Forget();
  EXPECT_EQ(watch.At(4), Prospect::NoneYet);
}

TEST(WayWatch, DropsAQuestionAboutAMomentThatWasUndone) {
  WayWatch watch;
  const auto later = Practised(kWalled, 9);
  watch.Ask(*later, Timeline(*later));
  watch.WentOn(*Practised(kCorridor, 5));
  ASSERT_TRUE(Answers(watch));
  EXPECT_EQ(watch.At(5), Prospect::Known);
  EXPECT_NE(watch.WayFrom(5), nullptr);
}

TEST(WayWatch, WaitsForTheAnswerAboutTheMomentBefore) {
  WayWatch watch(3000);
  const auto before = Practised(kCorridor, 4);
  watch.Ask(*before, Timeline(*before));
  watch.WentOn(*Practised(kBoulders, 5));
  ASSERT_TRUE(Answers(watch));
  EXPECT_NE(watch.WayFrom(4), nullptr);
}

TEST(WayWatch, DoubtsLaterWhereItKnewOnlyEarlier) {
  WayWatch watch;
  KnowFrom(watch, 5);
  EXPECT_EQ(watch.At(5 + 10), Prospect::Known);
  EXPECT_EQ(watch.At(5 + 11), Prospect::NoneYet);
  watch.WentOn(*Practised(kCorridor, 3));
  EXPECT_FALSE(watch.Asking());
  EXPECT_EQ(watch.At(2 + 10), Prospect::Known) << "the way leads there over tick 2";
  EXPECT_EQ(watch.At(2 + 11), Prospect::NoneYet);
  EXPECT_EQ(watch.WayFrom(5), nullptr) << "the run goes on in another way";
  watch.WentOn(*Practised(kCorridor, 6));
  EXPECT_FALSE(watch.Asking());
  watch.WentOn(*Practised(kCorridor, 2 + 5));
  EXPECT_TRUE(watch.Asking());
}

TEST(WayWatch, DoubtsFromTheTickOnFromWhichNoneWasFound) {
  WayWatch watch(0);
  watch.WentOn(*Practised(kBoulders, 5));
  ASSERT_TRUE(Answers(watch));
  EXPECT_EQ(watch.At(6), Prospect::NoneYet) << "but it is not lost";
  watch.Know(3, kSteps);
  EXPECT_EQ(watch.At(3), Prospect::Known);
  EXPECT_EQ(watch.At(4), Prospect::Known);
  EXPECT_EQ(watch.At(5), Prospect::NoneYet);
  EXPECT_EQ(watch.At(6), Prospect::NoneYet);
  watch.Know(5, kSteps);
  EXPECT_EQ(watch.At(6), Prospect::Known);
  watch.Know(2, kSteps);
  EXPECT_EQ(watch.At(5), Prospect::Known) << "whoever could win later could do so before";
}

// It mostly knows a way again soon: the light does not flicker meanwhile.
TEST(WayWatch, StaysSureForASecondWhileItAsks) {
  WayWatch watch(1'000'000);
  QElapsedTimer clock;
  QObject::connect(&watch, &WayWatch::Answered, &watch, [&clock] { clock.start(); });
  KnowFrom(watch, 5);
  EXPECT_EQ(watch.At(30), Prospect::NoneYet) << "nothing is asked";
  const auto later = Practised(kBoulders, 30);
  watch.Ask(*later, Timeline(*later));
  const Prospect soon = watch.At(30);
  if (clock.elapsed() < 900) {
    EXPECT_EQ(soon, Prospect::Known);
  }
  ASSERT_TRUE(WaitFor([&] { return watch.At(30) == Prospect::NoneYet; }, kPatience));
  EXPECT_GE(clock.elapsed(), 990);
  EXPECT_TRUE(watch.Asking());
}

TEST(WayWatch, IsNotSureWhileItAsksForTheFirstTime) {
  for (const bool another : {false, true}) {
    WayWatch watch(1'000'000);
    if (another) {
      KnowFrom(watch, 5);
      watch.Forget();
    }
    watch.Know(3, kSteps);
    const auto later = Practised(kBoulders, 30);
    watch.Ask(*later, Timeline(*later));
    EXPECT_EQ(watch.At(30), Prospect::NoneYet) << another;
  }
}

TEST(WayWatch, KnowsAndAsksNothingOfAnotherRun) {
  WayWatch watch;
  KnowFrom(watch, 5);
  watch.WentOn(*Practised(kCorridor, 10));
  ASSERT_TRUE(watch.Asking());
  watch.Forget();
  EXPECT_FALSE(watch.Asking());
  for (const int tick : {0, 5, 10}) {
    EXPECT_EQ(watch.At(tick), Prospect::NoneYet) << tick;
    EXPECT_EQ(watch.WayFrom(tick), nullptr) << tick;
  }
  watch.WentOn(*Practised(kCorridor, 1));
  EXPECT_TRUE(watch.Asking()) << "at once";
}

// What was done until the way begins belongs to the way that leads over it.
TEST(WayWatch, LeadsFromAnEarlierMomentOverWhatWasDoneThen) {
  for (const bool beyond : {false, true}) {
    const TwoWays ways;
    const Plan other = ways.Other();
    const auto run = ways.Begin(0);
    Timeline past(*run);
    const auto go = [&](Move move) {
      Tick(*run, KeysOf(move));
      past.Add(*run, KeysOf(move));
    };
    for (int wait = 0; wait < TwoWays::kWaited; ++wait) go(kWait);
    for (std::size_t done = 0; done < 2; ++done) go(other[done]);
    WayWatch watch;
    watch.Know(run->Ticks, Plan(other.begin() + 2, other.end()));
    if (beyond) go(other[2]);
    watch.Ask(*ways.Begin(), past);
    ASSERT_TRUE(Answers(watch));
    ASSERT_NE(watch.WayFrom(ways.Begin()->Ticks), nullptr);
    EXPECT_EQ(*watch.WayFrom(ways.Begin()->Ticks), other) << beyond;
  }
}

}  // namespace
}  // namespace zorik::test
