#include <gtest/gtest.h>

#include "solve/Odds.h"
#include "solve/Solver.h"
#include "solve/Walks.h"

namespace zorik::test {
namespace {

bool Never() {
  return false;
}

// Under how many of so many other seeds what was done wins.
int WonOf(std::uint64_t seeds, const std::string& caveText, const Review& review) {
  int won = 0;
  for (std::uint64_t seed = 100; seed < 100 + seeds; ++seed)
    won += FollowPlan(caveText, review.deeds, seed, Never) ? 1 : 0;
  return won;
}

int Survived(const Walk& walk) {
  return WonOf(10, CaveTextOf(walk.picture, walk.numbers), ReviewOf(walk));
}

// In each of these caves not a tick can be spared: the dog's last step is the last one that the time allows.
Walk Tight(Picture picture, int needed, const std::string& keys) {
  Walk walk{std::move(picture), {.time = 5, .needed = needed}, keys};
  EXPECT_EQ(walk.keys.size(), 50U);
  return walk;
}

TEST(Odds, OfAWayWithoutChanceAreCertainToTheLastTick) {
  EXPECT_EQ(Survived(Tight({"1" + std::string(40, ';') + "D" + std::string(8, ';') + "T"}, 1,
                           std::string(50, 'R'))),
            10);
}

TEST(Odds, ReachOutWhereTheWinnerDid) {
  EXPECT_EQ(Survived(Tight({"W" + std::string(20, 'W') + "D" + std::string(40, 'W'),
                            "1" + std::string(48, ';') + "T" + std::string(12, 'W'), std::string(62, 'W')},
                           1, std::string(21, 'R') + "u" + std::string(28, 'R'))),
            10);
}

TEST(Odds, ChooseTheDogsThatTheWinnerChose) {
  EXPECT_EQ(Survived(Tight({"1;D" + std::string(60, 'W'), "W" + std::string(62, 'W'),
                            "2" + std::string(45, ';') + "T" + std::string(16, 'W')},
                           1, "RR2" + std::string(46, 'R') + ".")),
            10);
}

TEST(Odds, LeadTheSwarmAsTheWinnerDid) {
  const Picture picture{"WWWWWWWWWWWW", "W1;;D;N;;;TW", "WWWWWW.WWWWW", "WWWWWW.WWWWW", "WWWWWWWWWWWW"};
  EXPECT_EQ(Survived({picture, {.time = 5, .needed = 1}, "0DD1RRRRRRRRR"}), 10);
}

// Nobody knows what to do, and yet the cave can be won.
TEST(Odds, FindAWayThatWasLost) {
  const std::string text = CaveTextOf({"WWWWWWWW", "W1;D;D;T", "W;;;;;;W", "WWWWWWWW"}, {.needed = 2});
  for (std::uint64_t seed = 1; seed < 4; ++seed) EXPECT_TRUE(FollowPlan(text, {}, seed, Never)) << seed;
}

TEST(Odds, AreNoneOfACaveThatCannotBeWonOrPlayed) {
  EXPECT_FALSE(
      FollowPlan(CaveTextOf({"WWWWWW", "W1;DWT", "WWWWWW"}, {.time = 5, .needed = 1}), {}, 1, Never));
  EXPECT_FALSE(FollowPlan("rubbish", {}, 1, Never));
}

// The second dog rides, and the first one gets off in his place: the second is gone then, which is no death.
TEST(Odds, FollowADogThatGetsOffInPlaceOfAnother) {
  const Walk walk{
      {"WWWWWWWWWWWW", "W1WWWWWWWWWW", "WWW.WWWWWWWW", "W2;SWWS;D;TW", "WWWWWW.WWWWW", "WWWWWWWWWWWW"},
      {.time = 20, .needed = 1},
      "2RR....RRRR"};
  const Review review = ReviewOf(walk);
  ASSERT_GE(review.deeds.size(), 3U);
  EXPECT_EQ(review.deeds[1].unit, 2);
  EXPECT_EQ(review.deeds[2].unit, 1);
  EXPECT_EQ(Survived(walk), 10);
}

// The review of the way that the solver finds.
Result<Review> ReviewOfSolved(const RunTerms& terms, std::uint64_t mostTicks) {
  const auto begin = BeginRun(terms);
  if (!begin) return Failure{begin.Message()};
  Solver solver(**begin, 1);
  if (!solver.Go(mostTicks)) return Failure{"no way is found"};
  return ReviewRecord(RecordOfPlan(terms, *solver.Found()));
}

// A butterfly circles below, and the boulder makes gems of it only if it falls on it. The dog's first boulder
// moves at one try of four, so that each time he comes to the second one at another moment; he waits for the
// same.
TEST(Odds, WaitForTheMonsterThatTheWinnerHit) {
  const Picture picture{"WWWWWWWWWWWWWWW", "WWWWWWWWRWWWWWW", "W1R.;;;;;;;;;;T", "WWW.WWWW.WWWWWW",
                        "WWWWWWWW.WWWWWW", "WWWWWWWW.WWWWWW", "WWWWWWWW...WWWW", "WWWWWWWW.W.WWWW",
                        "WWWWWWWWU..WWWW", "WWWWWWWWWWWWWWW"};
  const RunTerms terms{CaveTextOf(picture, {.needed = 1}), "sada"};
  const Result<Review> review = ReviewOfSolved(terms, 4'000'000);
  ASSERT_TRUE(review) << review.Message();
  ASSERT_TRUE(std::any_of(review->deeds.begin(), review->deeds.end(),
                          [](const Deed& deed) { return deed.prey.has_value(); }));
  EXPECT_GE(WonOf(20, terms.caveText, *review), 18);
}

// A firefly flies up and down a shaft that the way crosses. When the dog comes there depends on the boulder,
// which moves at one try of four; he waits until he can pass.
TEST(Odds, PutOffWhatWouldKill) {
  const Picture picture{"WWWWWWWWWWWWW", "WWWWWWWW.WWWW", "WWWWWWWW.WWWW", "WWWWWWWW.WWWW", "W1R.;;;;.;D;T",
                        "WWW.WWWW.WWWW", "WWWWWWWW.WWWW", "WWWWWWWWFWWWW", "WWWWWWWWWWWWW"};
  const RunTerms terms{CaveTextOf(picture, {.needed = 1}), "sada"};
  const Result<Review> review = ReviewOfSolved(terms, 1'000'000);
  ASSERT_TRUE(review) << review.Message();
  EXPECT_GE(WonOf(20, terms.caveText, *review), 18);
}

// The first dog's step onto what lies right of a cell.
Deed StepRight(Cell from, std::uint16_t found) {
  Deed deed;
  deed.direction = 2;
  deed.moved = deed.changed = true;
  deed.from = from;
  deed.target = from + kRight;
  deed.found = found;
  return deed;
}

// Nothing was done on the way to the gem, so the dog finds it by himself; a firefly flies up and down a shaft
// that it crosses.
TEST(Odds, CrossTheWayOfAMonsterWhereNothingWasDone) {
  const Deed gem = StepRight({9, 4}, kGem), finish = StepRight({11, 4}, kFinish);
  for (const std::size_t row : {1U, 2U, 3U, 5U, 6U, 7U}) {
    Picture picture(9, "WWWWWWWW.WWWW");
    picture[0] = picture[8] = "WWWWWWWWWWWWW";
    picture[4] = "W1;;;;;;.;D;T";
    picture[row][8] = 'F';
    EXPECT_TRUE(FollowPlan(CaveTextOf(picture, {.needed = 1}), {gem, finish}, 1, Never)) << row;
  }
}

TEST(Odds, EndWithTheTimeThoughTheSwarmShouldStillDoSomething) {
  const Picture picture{"WWWWWWW", "W1;DWTW", "WWWWWWW", "WN...WW", "WWWWWWW"};
  Deed late;
  late.unit = 0;
  late.tick = 1000;
  late.direction = 2;
  EXPECT_FALSE(FollowPlan(CaveTextOf(picture, {.time = 5, .needed = 1}), {late}, 1, Never));
}

// Behind the wall is a gem that nobody comes to. Six searches in a row bring nothing new: each is longer by
// as much as the first was long, sixteen pieces, and after each a second is waited.
TEST(Odds, AreGivenUpWhenSearchesBringNothingNew) {
  const std::string text = CaveTextOf({"WWWWWWWW", "W1;;;WDW", "W;;;;WWT", "WWWWWWWW"}, {.needed = 1});
  int asked = 0;
  const auto count = [&asked] {
    ++asked;
    return false;
  };
  EXPECT_FALSE(FollowPlan(text, {}, 1, count));
  EXPECT_GT(asked, 16 * (2 + 3 + 4 + 5 + 6 + 7) - 20);
  EXPECT_LT(asked, 16 * (2 + 3 + 4 + 5 + 6 + 7) + 6 * 30);
}

}  // namespace
}  // namespace zorik::test
