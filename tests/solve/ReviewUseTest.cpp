#include <gtest/gtest.h>

#include "core/Machine.h"
#include "solve/Walks.h"

namespace zorik::test {
namespace {

// What is used in a cave whose upper row the dog walks along, with these rows below.
Review WalkAbove(const Picture& below, const std::string& keys = "RRRRR", Numbers numbers = {.needed = 1}) {
  Picture picture{"WWWWWWW", "W1D;;;T", "WWWWWWW"};
  picture.insert(picture.end(), below.begin(), below.end());
  picture.emplace_back("WWWWWWW");
  return ReviewOf({picture, numbers, keys});
}

TEST(Use, OfWallsThatGrowIsToldByTheWayTheyGrow) {
  const Review aside = WalkAbove({"WE.VWWW"});
  EXPECT_TRUE(Uses(aside, "wall that grows aside"));
  EXPECT_FALSE(Uses(aside, "wall that grows upright"));
  const Review upright = WalkAbove({"WVWXEXW", "W.WWWWW"});
  EXPECT_TRUE(Uses(upright, "wall that grows upright"));
  EXPECT_FALSE(Uses(upright, "wall that grows aside"));
}

TEST(Use, OfTheMagicWallIsThatItWakes) {
  const Review wakes = WalkAbove({"WWWRWWW", "WWW.WWW", "WWWMWWW", "WWW.WWW"});
  EXPECT_TRUE(Uses(wakes, "magic wall"));
  const Review sleeps = WalkAbove({"WWWRWWW", "WWWWWWW", "WWWMWWW", "WWW.WWW"});
  EXPECT_FALSE(Uses(sleeps, "magic wall"));
}

// It stays as it is in a room of three cells whose walls it cannot eat, as long as it does not grow.
TEST(Use, OfTheAmoebaIsThatItGrows) {
  const auto amoebaOf = [](std::uint64_t seed) {
    const Picture picture{"WWWWWWW", "W1D;;;T", "WWWWWWW", "WWA.WWW", "WWWWWWW"};
    const RunTerms terms{CaveTextOf(picture, {.needed = 1}), "sada", seed};
    const auto run = BeginRun(terms);
    for (const Move move : PlanOf("RRRRR")) Tick(**run, KeysOf(move));
    const Result<Review> review = ReviewRecord(RecordOfPlan(terms, PlanOf("RRRRR")));
    return std::pair((*run)->Field({2, 3}) == kAmoeba && (*run)->Field({3, 3}) == kSpace,
                     review && !Uses(*review, "amoeba"));
  };
  int quiet = 0;
  for (std::uint64_t seed = 0; seed < 20; ++seed) {
    const auto [same, unused] = amoebaOf(seed);
    EXPECT_EQ(same, unused) << seed;
    quiet += same ? 1 : 0;
  }
  EXPECT_GT(quiet, 0);
}

TEST(Use, OfTheCatIsThatItWalks) {
  const auto uses = [](const std::string& script) {
    const Review review =
        WalkAbove({"WW...WW", "WW.J.WW", "WW...WW"}, "RRRRR", {.needed = 1, .script = script});
    return Uses(review, "cat");
  };
  for (const char* const walks : {"*A-A-M/Z", "*A-B-M/Z", "*A-C-M/Z", "*A-D-M/Z"})
    EXPECT_TRUE(uses(walks)) << walks;
  EXPECT_FALSE(uses("*A-M/Z"));
}

// A boulder falls on each of them, and what is hit blows up.
TEST(Use, OfCatAndFleasIsAlsoThatTheyBlowUp) {
  const auto hit = [](char letter) {
    return WalkAbove({"WWWRWWW", "WWW.WWW", "WWW.WWW", std::string("WWW") + letter + "WWW"}, "..RRRRR",
                     {.needed = 1, .script = letter == 'J' ? "*A-M/Z" : ""});
  };
  EXPECT_TRUE(Uses(hit('F'), "firefly"));
  EXPECT_FALSE(Uses(hit('F'), "fleas"));
  EXPECT_FALSE(Uses(hit('F'), "cat"));
  EXPECT_TRUE(Uses(hit('N'), "fleas"));
  EXPECT_TRUE(Uses(hit('J'), "cat"));
  EXPECT_FALSE(Uses(hit('J'), "fleas"));
}

TEST(Use, OfCatAndFleasIsNotThatSomethingElseBlowsUp) {
  const Review review =
      WalkAbove({"WWWRWWW", "WWW.WWW", "WNW.WJW", "WWWFWWW"}, "..RRRRR", {.needed = 1, .script = "*A-M/Z"});
  EXPECT_TRUE(Uses(review, "firefly"));
  EXPECT_FALSE(Uses(review, "fleas"));
  EXPECT_FALSE(Uses(review, "cat"));
}

TEST(Use, OfTheFleasIsNotThatADogIsChosen) {
  const Review review =
      ReviewOf({{"WWWWWWW", "W1D;;;T", "W2;;;;W", "WWWWWWW", "WNWWWWW"}, {.needed = 1}, "2R1RRRRR"});
  EXPECT_TRUE(Uses(review, "dogs"));
  EXPECT_FALSE(Uses(review, "fleas"));
}

TEST(Use, OfTheTeleportIsThatSomebodyRides) {
  const Picture aside{"WWWWWWWWW", "W1;D;;;;T", "W;;;;;W;W", "W;;S;;S;W", "W;;W;;;;W", "WWWWWWWWW"};
  ASSERT_TRUE(Play(aside).TeleportActive);
  EXPECT_FALSE(Uses(ReviewOf({aside, {.needed = 1}, "RRRRRRR"}), "teleport"));
  const Picture picture{"WWWWWWWWW", "W1;;WWWWW", "WWS;WWS;T", "WWW;W;;DW", "WWWWWWWWW"};
  const Review rides = ReviewOf({picture, {.needed = 1}, "RD......DRURR"});
  EXPECT_TRUE(rides.touched[Cell(2, 2).place()]);
  EXPECT_TRUE(rides.touched[Cell(6, 2).place()]);
}

TEST(Use, OfASensorIsNotThatSomethingElseStirs) {
  EXPECT_FALSE(Uses(WalkAbove({"GWWWWQW", "WWWWWWW", "WWWWWWW"}), "sensor"));
}

// It has flown on along its ring when the dog comes to where it was.
TEST(Use, OfAMonsterIsNotThatTheDogComesToWhereItWas) {
  for (const char letter : {'F', 'O', 'P', 'Q', 'U', 'Y', 'Z', 'B'}) {
    Picture picture(12, "WWWWWWWWWWWWWWWWW");
    picture[3] = picture[10] = "WW.............WW";
    for (std::size_t y = 3; y < 11; ++y) picture[y][2] = picture[y][14] = '.';
    picture[0][8] = '1';
    picture[1][8] = 'D';
    picture[2][8] = ';';
    picture[3][8] = letter;
    picture[4][8] = 'T';
    const Review review = ReviewOf({picture, {.needed = 1}, "......DDDD"});
    EXPECT_TRUE(review.touched[Cell(8, 3).place()]) << letter;
    EXPECT_FALSE(Uses(review, "firefly") || Uses(review, "butterfly")) << letter;
  }
}

TEST(Use, OfABoulderOrABoxIsAlsoATryInVain) {
  const auto review = [](const char* row) {
    return ReviewOf({{"WWWWWWWWW", row, "WWWWWWWWW"}, {.needed = 1}, "LRRRR"});
  };
  const Review boulder = review("WWR1;D;TW"), box = review("WWK1;D;TW");
  EXPECT_TRUE(Uses(boulder, "boulder"));
  EXPECT_FALSE(Uses(boulder, "box"));
  EXPECT_TRUE(boulder.touched[Cell(2, 1).place()]);
  EXPECT_TRUE(Uses(box, "box"));
  EXPECT_FALSE(Uses(box, "boulder"));
  EXPECT_TRUE(box.touched[Cell(2, 1).place()]);
  EXPECT_EQ(boulder.idleTicks, 0);
  EXPECT_EQ(box.idleTicks, 0);
}

TEST(Use, OfADogIsThatAnotherOneIsChosen) {
  const Review one = ReviewOf({{"WWWWWWW", "W1D;;;T", "W2;;;;W", "WWWWWWW"}, {.needed = 1}, "RRRRR"});
  EXPECT_FALSE(Uses(one, "dogs"));
}

// The firefly beside the first dog blows up in the first tick, whatever he does.
TEST(Review, TakesAStepAtAMonsterThatBlowsUpForIdleness) {
  const Review review =
      ReviewOf({{"1FWWWWW", "WWWWWWW", "WWWWWWW", "W2D;;;T", "WWWWWWW"}, {.needed = 1}, "R2RRRRR"});
  EXPECT_EQ(review.idleTicks, 1);
  EXPECT_EQ(review.idleStretch, 1);
  EXPECT_EQ(review.idleFrom, 0);
}

const Picture kLong{"WWWWWWWWWWW", "W1;D;;;;;;T", "WWWWWWWWWWW"};

TEST(Review, KnowsTheLongestRestTheFirstOfSeveral) {
  const auto review = [](const std::string& keys) { return ReviewOf({kLong, {.needed = 1}, keys}); };
  const Review first = review("R...R.RRRRRRR");
  EXPECT_EQ(first.idleTicks, 4);
  EXPECT_EQ(first.idleStretch, 3);
  EXPECT_EQ(first.idleFrom, 1);
  const Review equal = review("RR..R..RRRRRR");
  EXPECT_EQ(equal.idleStretch, 2);
  EXPECT_EQ(equal.idleFrom, 2);
  const Review later = review("R.R..RRRRRRR");
  EXPECT_EQ(later.idleStretch, 2);
  EXPECT_EQ(later.idleFrom, 3);
  const Review none = review("RRRRRRRRR");
  EXPECT_EQ(none.idleStretch, 0);
  EXPECT_EQ(none.deeds.size(), 9U);
}

TEST(Review, TakesARestBeforeTheFirstDeedForADecisionToo) {
  const auto decisions = [](std::size_t waits) {
    return ReviewOf({kLong, {.needed = 1}, std::string(waits, '.') + "RRRRRRRRR"}).decisions;
  };
  EXPECT_EQ(decisions(10), 2);
  EXPECT_EQ(decisions(11), 3);
}

// Steps through space and dirt are on the way to something.
TEST(Review, TakesNoStepForADecisionThatIsOnlyOnTheWay) {
  for (const char* const row : {"W1D.D;D..;T", "W1DDD....;T", "W1.D;D;D..T"})
    EXPECT_EQ(ReviewOf({{"WWWWWWWWWWW", row, "WWWWWWWWWWW"}, {.needed = 3}, "RRRRRRRRR"}).decisions, 2)
        << row;
}

TEST(Deeds, AreStepsToAllSidesThatMoveTheDog) {
  const Review review =
      ReviewOf({{"WWWWWW", "W....W", "W.1.DT", "W;;;;W", "WWWWWW"}, {.needed = 1}, "LURRDRR"});
  const std::vector<int> directions{0, 1, 2, 2, 3, 2, 2};
  Cell at(2, 2);
  ASSERT_EQ(review.deeds.size(), 7U);
  for (std::size_t i = 0; i < review.deeds.size(); ++i) {
    EXPECT_TRUE(review.deeds[i].moved) << i;
    EXPECT_EQ(review.deeds[i].direction, directions[i]) << i;
    EXPECT_EQ(review.deeds[i].from, at) << i;
    at = review.deeds[i].target;
  }
  EXPECT_EQ(at, Cell(5, 2));
}

}  // namespace
}  // namespace zorik::test
