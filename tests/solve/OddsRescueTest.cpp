#include <gtest/gtest.h>

#include "solve/Followed.h"

namespace zorik::test {
namespace {

constexpr int kUnit = 16;  // times that a search of the first length asks
constexpr int kFew = 40;   // ticks of a short way, and times that a short search asks

// Nothing was done. One search finds the whole way, and nothing on it needs another one.
void ExpectFoundAtOnce(const Picture& picture, const Numbers& numbers = {.needed = 0}) {
  for (std::uint64_t seed = 1; seed < 7; ++seed) {
    const Followed followed = Follow(picture, {}, numbers, 1, seed);
    EXPECT_TRUE(followed.won) << picture[1] << " " << seed;
    EXPECT_LE(followed.asked, 2 * kUnit + kFew);
    EXPECT_FALSE(Follow(picture, {}, numbers, 0, seed).won) << picture[1];
  }
}

TEST(OddsRescue, FindsAWayAtOnce) {
  ExpectFoundAtOnce({"WWWWWWWW", "W1;D;D;T", "W;;;;;;W", "WWWWWWWW"}, {.needed = 2});
}

// What lies behind a dog, a box and a boulder.
TEST(OddsRescue, ChoosesDogsAndPushes) {
  ExpectFoundAtOnce({"WWWWWWWW", "W1DW2;DT", "WWWWWWWW"}, {.needed = 2});
  ExpectFoundAtOnce({"WWWWWWWW", "W1DW2;TW", "WWWWWWWW"}, {.needed = 1});
  ExpectFoundAtOnce({"WWWWWWWW", "W1K...WW", "WWWWTWWW", "WWWWWWWW"});
  ExpectFoundAtOnce({"WWWWWWWW", "W1R...TW", "WWW.WWWW", "WWWWWWWW"});
  ExpectFoundAtOnce({"WWWWWWWWWWW", "W1R..R...TW", "WWW.WW.WWWW", "WWWWWWWWWWW"});
}

TEST(OddsRescue, LeadsTheSwarmAndRides) {
  ExpectFoundAtOnce({"WWWWWW", "W1N.TW", "WWW.WW", "WWW.WW", "WWWWWW"});
  ExpectFoundAtOnce({"WWW.WWWWWW", "W1.SWWWWWW", "WWWWWWWWWW", "WWWWWS..TW", "WWWWW.WWWW", "WWWWWWWWWW"});
}

// To step aside to each gem and back would take too long.
TEST(OddsRescue, TakesAtArmsLength) {
  ExpectFoundAtOnce({"WWDWWDWWW", "W1;;;;;TW", "WWWDWWWWW"}, {.time = 1, .needed = 3});
}

// The way has just as many steps as the time has ticks.
TEST(OddsRescue, WastesNoTick) {
  const Picture picture{"WWWWWWWWWWWW", "W1;;;;D;;;;T", "WWWWWWWWWWWW"};
  EXPECT_TRUE(Follow(picture, {}, {.time = 1, .needed = 1}, 1).won);
}

// A second is waited where nothing better is found; a dog that is killed then needs no more searches.
TEST(OddsRescue, EndsWithTheLastDog) {
  Picture picture(10, "WW.WWWW");
  picture[1][2] = 'R';
  picture.insert(picture.end(), {"WW1WWWW", "WWWWWTW", "WWWWWWW"});
  const Followed followed = Follow(picture, {}, {.needed = 0}, 60);
  EXPECT_FALSE(followed.won);
  EXPECT_LE(followed.asked, 2 * kUnit + kFew);
}

// Six in a row may be in vain: after what the first one brings there are six more, each longer than the last.
TEST(OddsRescue, IsCountedAnewWhenItBringsSomething) {
  const Followed followed = Follow({"WWWWWWWW", "W1D;WWDW", "W;;;WWWT", "WWWWWWWW"}, {}, {.needed = 2}, 60);
  EXPECT_FALSE(followed.won);
  EXPECT_GE(followed.asked, kUnit * (2 + 2 + 3 + 4 + 5 + 6 + 7));
  EXPECT_LE(followed.asked, kUnit * (2 + 2 + 3 + 4 + 5 + 6 + 7) + 6 * 30);
}

// No more than is allowed.
TEST(OddsRescue, IsDoneAsOftenAsItMayBe) {
  const Picture picture{"WWWWWWWW", "W1;;;WDW", "W;;;;WWT", "WWWWWWWW"};
  for (const int rescues : {0, 1, 2, 3}) {
    const int units = (rescues > 0 ? 2 : 0) + (rescues > 1 ? 3 : 0) + (rescues > 2 ? 4 : 0);
    const Followed followed = Follow(picture, {}, {.needed = 1}, rescues);
    EXPECT_GE(followed.asked, kUnit * units) << rescues;
    EXPECT_LE(followed.asked, kUnit * units + 12 * rescues + 3) << rescues;
  }
}

// How often somebody asks who may look for a lost way once, in a cave that nobody can win.
int AskedAfter(const std::vector<Deed>& deeds) {
  const Followed followed = Follow({"WWWWWWWW", "W1...WDW", "W...;WWT", "WWWWWWWW"}, deeds, {.needed = 1}, 1);
  EXPECT_FALSE(followed.won);
  return followed.asked;
}

// After a deed that cannot be done the first is done that has a goal which is still there: no mere step,
// nothing that is gone, nothing that cannot be entered. Where that is a late one, it is waited for.
TEST(OddsRescue, ResumesWithTheNextGoalThatIsStillThere) {
  constexpr int kLate = 300, kSoon = 2 * kUnit + kFew;
  // Nobody comes to where these were done; the last one led to where a monster had just been.
  const Deed lost = Did('U', {6, 1}, kGem), step = Did('U', {2, 3}, kSpace), dirt = Did('U', {4, 3}, kDirt);
  const Deed gem = Did('U', {3, 3}, kGem), wall = Did('L', {5, 3}, kBrick);
  const Deed goal = Did('R', {1, 2}, kFireFly, kLate);
  EXPECT_LE(AskedAfter({lost}), kSoon);
  EXPECT_GE(AskedAfter({lost, goal}), kLate);
  EXPECT_GE(AskedAfter({lost, step, goal}), kLate);
  EXPECT_GE(AskedAfter({lost, dirt, goal}), kLate);
  EXPECT_GE(AskedAfter({lost, gem, goal}), kLate);
  EXPECT_GE(AskedAfter({lost, step, dirt, gem, wall, goal}), kLate);
  EXPECT_LE(AskedAfter({lost, Did('U', {2, 3}, kFireFly), goal}), kSoon);
  EXPECT_LE(AskedAfter({lost, step, dirt, gem, wall}), kSoon);
}

}  // namespace
}  // namespace zorik::test
