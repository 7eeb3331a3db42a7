#include <gtest/gtest.h>

#include <algorithm>
#include <memory>

#include "data/Result.h"
#include "run/Outlook.h"
#include "solve/Impossible.h"
#include "support/Practised.h"
#include "support/RandomCave.h"
#include "support/Scene.h"

namespace zorik::test {
namespace {

constexpr std::uint64_t kEnough = 200'000;  // ticks

const Picture kCorridor{"WWWWWWWWW", "W1;D;;;TW", "WWWWWWWWW"};

TEST(Outlook, KnowsAWayThatWinsFromThatMoment) {
  const auto run = Practise(kCorridor, {.needed = 1});
  Pass(*run, 3, "R");
  Outlook outlook(*run);
  ASSERT_EQ(outlook.Go(kEnough), Prospect::Known);
  for (const Move move : outlook.Way()) Tick(*run, KeysOf(move));
  EXPECT_TRUE(run->Win);
}

// From the start six steps; the finish opens on the way.
TEST(Outlook, LeadsNobodyAbout) {
  const auto run = Practise(kCorridor, {.needed = 1});
  Outlook outlook(*run);
  ASSERT_EQ(outlook.Go(kEnough), Prospect::Known);
  EXPECT_EQ(outlook.Way().size(), 6U);
}

TEST(Outlook, LeavesTheRunAsItIs) {
  Diary diary;
  const auto run = std::make_unique<Hra>(Play(kCorridor, {.needed = 1}, &diary));
  diary.Clear();
  Outlook outlook(*run);
  outlook.Go(kEnough);
  EXPECT_TRUE(diary.entries.empty());
  EXPECT_EQ(run->Ticks, 0);
  EXPECT_EQ(run->Kind, RunKind::Play);
}

// Three boulders in a row cannot be pushed, but that is no proof.
TEST(Outlook, SaysNoMoreThanThatNoneWasFound) {
  const auto run = Practise({"WWWWWWWW", "W1DRRRTW", "WWWWWWWW"}, {.needed = 1});
  Outlook outlook(*run);
  EXPECT_EQ(outlook.Go(20'000), Prospect::NoneYet);
  EXPECT_EQ(outlook.Answer(), Prospect::NoneYet);
}

TEST(Outlook, SaysImpossibleOfADeadDogAndOfTimeThatIsUp) {
  const auto dead = std::make_unique<Hra>(Live({"WrWWW", "W.W;W", "W1WTW", "WWWWW"}));
  Pass(*dead, 5);
  EXPECT_EQ(Outlook(*dead).Answer(), Prospect::Impossible);
  const auto late = Practise(kCorridor, {.time = 1, .needed = 1});
  Pass(*late, 4);
  EXPECT_EQ(Outlook(*late).Answer(), Prospect::NoneYet);
  Pass(*late, 1);
  EXPECT_EQ(Outlook(*late).Answer(), Prospect::Impossible);
}

TEST(Outlook, SaysImpossibleWhereSteelIsInTheWay) {
  const auto run = Practise({"WWWWWW", "W1;D;W", "WWWW;W", "WTDW;W", "WWWWWW"}, {.needed = 1});
  EXPECT_EQ(Outlook(*run).Answer(), Prospect::Impossible);
}

TEST(Outlook, OfAWonRunIsThatItIsWon) {
  const auto run = Practise({"1DT"}, {.needed = 1});
  Pass(*run, 2, "R");
  ASSERT_TRUE(run->Win);
  EXPECT_EQ(Outlook(*run).Answer(), Prospect::Known);
}

// The way of the start still leads there from its fourth move on, if that is where the run is.
TEST(Outlook, TriesAnOldWayFirst) {
  const auto run = Practise(kCorridor, {.needed = 1});
  const Plan old(6, static_cast<Move>(kStepBase + 2));
  Pass(*run, 3, "R");
  Outlook outlook(*run, old);
  EXPECT_EQ(outlook.Go(1), Prospect::Known);
  EXPECT_EQ(outlook.Way().size(), 3U);
}

TEST(Outlook, OfAReplayIsThatOfTheRunThatTakesItOver) {
  const auto played = std::make_unique<Hra>(Play(kCorridor, {.needed = 1}));
  Pass(*played, 4, "R");
  const auto replay = std::make_unique<Hra>(7);
  ASSERT_TRUE(Replay(*replay, SaveRecord(*played, 0)));
  Pass(*replay, 2);
  Outlook outlook(*replay);
  ASSERT_EQ(outlook.Go(kEnough), Prospect::Known);
  TakeOver(*replay);
  for (const Move move : outlook.Way()) Tick(*replay, KeysOf(move));
  EXPECT_TRUE(replay->Win);
}

// A run that wins was never lost before.
TEST(ARunThatIsLost, IsNeverWon) {
  int wins = 0, lost = 0;
  const int many = std::max(400, HowMany(400));  // few of them are lost, and fewer are won
  for (int i = 0; i < many; ++i) {
    SCOPED_TRACE("random run " + std::to_string(i));
    const RandomRun random = MakeRun(static_cast<std::uint64_t>(i));
    const auto run = std::make_unique<Hra>(random.seed);
    ASSERT_TRUE(PaintCave(*run, random.caveText, RunKind::Practice));
    bool wasLost = false;
    for (std::size_t t = 0; t < random.keys.size() && !run->Win; ++t) {
      if (t % 8 == 0) wasLost |= IsLost(*run);
      Tick(*run, random.keys[t]);
    }
    wins += run->Win ? 1 : 0;
    lost += wasLost ? 1 : 0;
    EXPECT_FALSE(run->Win && wasLost);
  }
  EXPECT_GT(wins, 5);
  EXPECT_GT(lost, 5);
}

TEST(Footsteps, AreTheCellsThatTheWayLeadsTo) {
  const auto run = Practise({"WWWWW", "W1;DW", "WWWTW", "WWWWW"}, {.needed = 1});
  Plan way(2, static_cast<Move>(kStepBase + 2));
  way.push_back(kWait);
  way.push_back(static_cast<Move>(kStepBase + 3));
  const auto cells = [&](int most) {
    std::vector<std::string> told;
    for (const Footstep& step : Footsteps(*run, way, most))
      told.push_back(std::to_string(step.tick) + ": " + std::to_string(step.cell.x()) + "," +
                     std::to_string(step.cell.y()));
    return told;
  };
  EXPECT_EQ(cells(10), (std::vector<std::string>{"1: 2,1", "2: 3,1", "4: 3,2"}));
  EXPECT_EQ(cells(2), (std::vector<std::string>{"1: 2,1", "2: 3,1"}));
  EXPECT_EQ(run->Ticks, 0);
}

// The gem is taken from where the dog stands, and then it goes down.
TEST(Footsteps, HoldWhatIsDoneBesideTheWay) {
  const auto run = Practise({"WWWW", "W1DW", "WTWW", "WWWW"}, {.needed = 1});
  const Plan way{static_cast<Move>(kActBase + 2), kWait, static_cast<Move>(kActBase + 0),
                 static_cast<Move>(kStepBase + 3)};
  const std::vector<Footstep> steps = Footsteps(*run, way, 10);
  ASSERT_EQ(steps.size(), 2U) << "steel beside the dog stays as it is";
  EXPECT_TRUE(steps[0].beside);
  EXPECT_EQ(steps[0].cell, Cell(2, 1));
  EXPECT_EQ(steps[0].tick, 1);
  EXPECT_FALSE(steps[1].beside);
  EXPECT_EQ(steps[1].cell, Cell(1, 2));
}

TEST(Outlook, ShortensNoLongerThanItsOwnerLikes) {
  const auto run = Practise(kCorridor, {.needed = 1});
  Plan idle(20, kWait);
  idle.insert(idle.end(), 6, static_cast<Move>(kStepBase + 2));
  Outlook outlook(*run, idle);
  outlook.Heed([] { return true; });
  ASSERT_EQ(outlook.Go(1), Prospect::Known);
  EXPECT_EQ(outlook.Way().size(), 26U);
}

Timeline TimelineOf(Hra run, const std::vector<std::string>& keys) {
  Timeline timeline(run);
  for (const std::string& held : keys) {
    Tick(run, Keys(held));
    timeline.Add(run, Keys(held));
  }
  return timeline;
}

int KnownUntil(const Timeline& timeline) {
  Hindsight hindsight(timeline, 20'000);
  while (!hindsight.Go(10'000)) continue;
  return hindsight.KnownUntil();
}

// Two seconds for six steps: who waits for 14 ticks can still go, who waits for another cannot.
TEST(Hindsight, FindsTheTickFromWhichTheTimeIsTooShort) {
  const auto run = Practise(kCorridor, {.time = 2, .needed = 1});
  EXPECT_EQ(KnownUntil(TimelineOf(*run, std::vector<std::string>(20))), 14);
}

TEST(Hindsight, FindsThatNothingIsLostYet) {
  const auto run = Practise(kCorridor, {.needed = 1});
  EXPECT_EQ(KnownUntil(TimelineOf(*run, {"R", "", "L"})), 3);
  EXPECT_EQ(KnownUntil(TimelineOf(*run, {"R", "R", "R", "R", "R", "R"})), 6);
}

TEST(Hindsight, FindsThatThereWasNeverAWay) {
  const auto run = Practise({"WWWWW", "W1D;W", "WWWWW"}, {.needed = 1});
  EXPECT_EQ(KnownUntil(TimelineOf(*run, {"R", "R"})), -1);
}

TEST(Hindsight, GivesUpAQuestionThatItsOwnerIsTiredOf) {
  const auto run = Practise({"WWWWWWWW", "W1DRRRTW", "WWWWWWWW"}, {.needed = 1});
  Hindsight hindsight(TimelineOf(*run, {"", "", ""}));
  EXPECT_EQ(hindsight.NoneFrom(), 4);
  EXPECT_EQ(hindsight.Asked(), 3);
  ASSERT_FALSE(hindsight.Go(1));
  hindsight.GiveUp();
  EXPECT_EQ(hindsight.NoneFrom(), 3);
  EXPECT_EQ(hindsight.Asked(), 1);
}

// The boulder is pushed into the shaft in which the gem lies. Until then the dog could go round above it.
TEST(Hindsight, FindsTheMistake) {
  const Picture picture{"WWWWWWW", "W.....W", "W1R..TW", "WWW.WWW", "WWWDWWW", "WWWWWWW"};
  const auto run = Practise(picture, {.needed = 1});
  const Timeline timeline = TimelineOf(*run, std::vector<std::string>(40, "R"));
  int pushed = 0;
  while (pushed < timeline.Length() && timeline.At(pushed)->Field({2, 2}) == kBoulder) ++pushed;
  ASSERT_LT(pushed, timeline.Length());
  ASSERT_EQ(timeline.At(timeline.Length())->Field({3, 3}), kBoulder);
  EXPECT_EQ(KnownUntil(timeline), pushed - 1);
}

TEST(Footsteps, HoldWhatIsDoneInEachDirection) {
  const auto run = Practise({"WWWWW", "WW;WW", "W;1;W", "WW;WW", "WWWWW"});
  Plan way;
  for (int direction = 0; direction < 4; ++direction) way.push_back(static_cast<Move>(kActBase + direction));
  const std::vector<Footstep> steps = Footsteps(*run, way, 10);
  ASSERT_EQ(steps.size(), 4U);
  const std::vector<Cell> around{Cell(1, 2), Cell(2, 1), Cell(3, 2), Cell(2, 3)};
  for (std::size_t i = 0; i < around.size(); ++i) {
    EXPECT_TRUE(steps[i].beside) << i;
    EXPECT_EQ(steps[i].cell, around[i]) << i;
    EXPECT_EQ(steps[i].tick, static_cast<int>(i) + 1);
  }
}

TEST(Outlook, OfAWonRunHasNoWayToGoAnyMore) {
  const auto run = Practise({"1DT"}, {.needed = 1});
  Pass(*run, 2, "R");
  ASSERT_TRUE(run->Win);
  Outlook outlook(*run, Plan(3, static_cast<Move>(kStepBase + 2)));
  EXPECT_EQ(outlook.Go(kEnough), Prospect::Known);
  EXPECT_TRUE(outlook.Way().empty());
}

TEST(Hindsight, SpendsNoMoreOnAQuestionThanItMay) {
  const auto run = Practise({"WWWWWWWW", "W1DRRRTW", "WWWWWWWW"}, {.needed = 1});
  Hindsight hindsight(TimelineOf(*run, {}), 4'000);
  EXPECT_FALSE(hindsight.Go(2'000));
  EXPECT_TRUE(hindsight.Go(2'000));
  EXPECT_EQ(hindsight.KnownUntil(), -1);
}

// Only who has waited for no more than four of the twenty ticks comes to the finish within a second.
TEST(Outlook, TriesOneBeginningOfAnOldWayAfterTheOtherAndNoMoreThanItWasAskedFor) {
  const auto run = Practise(kCorridor, {.time = 1, .needed = 1});
  Plan old(20, kWait);
  old.insert(old.end(), 6, static_cast<Move>(kStepBase + 2));
  Outlook outlook(*run, old);
  for (int late = 0; late < 16; ++late) {
    EXPECT_EQ(outlook.Go(1), Prospect::NoneYet) << late;
    EXPECT_TRUE(outlook.Way().empty()) << late;
  }
  EXPECT_EQ(outlook.Go(1), Prospect::Known);
  EXPECT_EQ(outlook.Way(), Plan(6, static_cast<Move>(kStepBase + 2)));
}

// There is one tick left, and one step to go.
TEST(Outlook, TriesOfAnOldWayItsLastMoveToo) {
  const auto run = Practise({"WWWW", "W1TW", "WWWW"}, {.time = 1, .needed = 0});
  Pass(*run, 9);
  Plan old(6, kWait);
  old.push_back(static_cast<Move>(kStepBase + 2));
  Outlook outlook(*run, old);
  for (int late = 0; late < 6; ++late) EXPECT_EQ(outlook.Go(1), Prospect::NoneYet) << late;
  EXPECT_EQ(outlook.Go(1), Prospect::Known);
  EXPECT_EQ(outlook.Way(), Plan(1, static_cast<Move>(kStepBase + 2)));
}

TEST(Hindsight, SpendsAsMuchOnEachOfItsQuestions) {
  const auto run = Practise({"WWWWWWWW", "W1DRRRTW", "WWWWWWWW"}, {.needed = 1});
  Hindsight hindsight(TimelineOf(*run, {"", "", ""}), 4'000);
  for (const int tick : {3, 1, 0}) {
    EXPECT_EQ(hindsight.Asked(), tick);
    EXPECT_FALSE(hindsight.Go(2'000));
    EXPECT_EQ(hindsight.Asked(), tick) << "half of the time is left";
    EXPECT_EQ(hindsight.Go(2'000), tick == 0);
    EXPECT_EQ(hindsight.NoneFrom(), tick);
  }
}

TEST(Hindsight, AsksInEachOfItsQuestionsWhetherTheWayIsShortEnough) {
  const auto run = Practise(kCorridor, {.time = 2, .needed = 1});
  for (const std::size_t idle : {std::size_t{0}, std::size_t{20}}) {
    Hindsight hindsight(TimelineOf(*run, std::vector<std::string>(idle)), 20'000);
    int asked = 0;
    hindsight.Heed([&asked] { return ++asked > 0; });
    while (!hindsight.Go(10'000)) continue;
    EXPECT_GT(asked, 0) << idle;
    EXPECT_GE(hindsight.KnownUntil(), 0) << idle;
  }
}

TEST(Footsteps, TellWhoTakesThem) {
  const auto run = Practise({"WWWWWWWW", "W1;W2;;W", "WWWWWWWW"});
  const auto step = [](int direction) { return static_cast<Move>(kStepBase + direction); };
  const Plan way{step(2), static_cast<Move>(kChooseBase + 2), step(2), kWait, step(2),
                 step(2), static_cast<Move>(kChooseBase + 1), step(0)};
  const std::vector<Footstep> steps = Footsteps(*run, way, 10);
  ASSERT_EQ(steps.size(), 4U) << "to choose is no step, nor is to bump into a wall";
  const std::vector<Footstep> expected{
      {Cell(2, 1), 1, 1}, {Cell(5, 1), 2, 3}, {Cell(6, 1), 2, 5}, {Cell(1, 1), 1, 8}};
  for (std::size_t i = 0; i < expected.size(); ++i) {
    EXPECT_EQ(steps[i].cell, expected[i].cell) << i;
    EXPECT_EQ(steps[i].unit, expected[i].unit) << i;
    EXPECT_EQ(steps[i].tick, expected[i].tick) << i;
    EXPECT_FALSE(steps[i].beside) << i;
  }
}

}  // namespace
}  // namespace zorik::test
