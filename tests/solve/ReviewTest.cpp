#include <gtest/gtest.h>

#include "solve/Odds.h"
#include "solve/Rating.h"
#include "solve/Walks.h"

namespace zorik::test {
namespace {

const Walk kPlain{{"WWWWWWWWW", "W1;D;;;;T", "WWWWWWWWW"}, {.needed = 1}, "RRRRRRR"};

TEST(Review, CountsTicksAndThoseInWhichThePlayerDoesNothing) {
  EXPECT_EQ(ReviewOf(kPlain).ticks, 7);
  EXPECT_EQ(ReviewOf(kPlain).idleTicks, 0);
  Walk lazy = kPlain;
  lazy.keys = "R..RRL...RRRRR";
  const Review review = ReviewOf(lazy);
  EXPECT_EQ(review.ticks, 14);
  EXPECT_EQ(review.idleTicks, 5);
  EXPECT_EQ(review.idleStretch, 3);
  EXPECT_EQ(review.idleFrom, 6);
}

TEST(Review, TakesAStepAgainstAWallForIdlenessAndATryAtPushingNot) {
  Walk wall = kPlain;
  wall.keys = "UURRRRRRR";
  EXPECT_EQ(ReviewOf(wall).idleTicks, 2);
  // Boulders behind each other do not move.
  EXPECT_EQ(ReviewOf({{"WWWWWWWWW", "WRR1;D;;T", "WWWWWWWWW"}, {.needed = 1}, "LLLRRRRR"}).idleTicks, 0);
}

TEST(Review, RefusesARecordThatDoesNotWin) {
  EXPECT_FALSE(ReviewRecord("rubbish"));
  const std::string record = RecordOf(kPlain);
  EXPECT_FALSE(ReviewRecord(record.substr(0, record.rfind("\r\n"))));
}

TEST(Review, KnowsTheCellsThatTheWinTouched) {
  const Review review = ReviewOf({{"WWWWWWW", "W1;D;;T", "W;R;;;W", "WWWWWWW"}, {.needed = 1}, "RRRRR"});
  for (int x = 1; x < 7; ++x) EXPECT_TRUE(review.touched[Cell(x, 1).place()]) << x;
  for (int x = 1; x < 6; ++x) EXPECT_FALSE(review.touched[Cell(x, 2).place()]) << x;
}

TEST(Review, TouchesWhatFallsAndWhatIsTakenAtArmsLength) {
  const Review falls = ReviewOf({{"WWWWWWW", "W;R;;;W", "W1;D;;T", "WWWWWWW"}, {.needed = 1}, "RRRRR."});
  EXPECT_TRUE(falls.touched[Cell(2, 1).place()]);
  EXPECT_FALSE(falls.touched[Cell(3, 1).place()]);
  const Review arm = ReviewOf({{"WWWWWWW", "WD;;;;W", "W1;;;;T", "WWWWWWW"}, {.needed = 1}, "uRRRRR"});
  EXPECT_TRUE(arm.touched[Cell(1, 1).place()]);
}

TEST(Review, NamesTheThingsThatWereUsed) {
  const Review review =
      ReviewOf({{"WWWWWWWWW", "W1#D;;&;T", "W;R;KIC;W", "WWWWWWWWW"}, {.needed = 1}, "RRRRRRR"});
  EXPECT_TRUE(Uses(review, "key"));
  EXPECT_TRUE(Uses(review, "lock"));
  EXPECT_TRUE(Uses(review, "gem"));
  for (const char* unused : {"boulder", "box", "bomb", "biomass", "teleport"})
    EXPECT_FALSE(Uses(review, unused)) << unused;
}

TEST(Review, TakesARideForTheUseOfTheTeleport) {
  const Picture picture{"WWWWWWWWW", "W1;;WWWWW", "WWS;WWS;T", "WWW;W;;DW", "WWWWWWWWW"};
  const Walk run{picture, {.needed = 1}, "RD......DRURR"};
  EXPECT_TRUE(Uses(ReviewOf(run), "teleport"));
}

TEST(Review, SeesHowNearDeathItWent) {
  EXPECT_EQ(ReviewOf(kPlain).closeCalls, 0);
  EXPECT_EQ(ReviewOf(kPlain).margin, Review::kNoDanger);
  // Back from under the boulder, and aside while it falls.
  const Review review =
      ReviewOf({{"WWWWWWW", "W;R;;;W", "W;;;;;W", "W;1;D;T", "WWWWWWW"}, {.needed = 1}, "UDRRRR"});
  EXPECT_EQ(review.closeCalls, 1);
  EXPECT_EQ(review.margin, 2);
}

TEST(Review, CountsDecisions) {
  // The gem, and the finish.
  EXPECT_EQ(ReviewOf(kPlain).decisions, 2);
  Walk rest = kPlain;
  rest.keys = "R...........RRRRRR";
  EXPECT_EQ(ReviewOf(rest).decisions, 3);
}

TEST(Rating, TellsLimitMirrorAndTheCellsThatNoWinTouches) {
  const Walk run{{"WWWWWWW", "W1;D;;T", "W;R;;;W", "WWWWWWW"}, {.time = 5, .needed = 1}, "RRRRR"};
  Walk other = run;
  other.keys = "DURRRRR";
  const CaveRecord cave = *ParseCaveText(CaveTextOf(run.picture, run.numbers));
  const Rating rating = RateCave(cave, {ReviewOf(run), ReviewOf(other)}, 10, 9);
  EXPECT_DOUBLE_EQ(rating.limitRatio, 10);
  EXPECT_EQ(UntouchedRows(cave, rating), (Picture{"WWWWWWW", "W      ", "W R;;;W", "WWWWWWW"}));
  EXPECT_EQ(rating.paws, 1);
}

std::vector<std::string> WordsOfProof(const Rating& rating) {
  std::vector<std::string> words;
  for (const Doubt& doubt : DoubtsAboutProof(rating)) words.emplace_back(RowOf(doubt.kind).word);
  return words;
}

TEST(Rating, HintsAtWhatLiesOutsideTheBounds) {
  Rating rating;
  rating.limitRatio = 4;
  rating.review.idleStretch = 150;
  rating.tries = 20;
  rating.survived = 18;
  EXPECT_EQ(WordsOfProof(rating), std::vector<std::string>{});
  rating.limitRatio = 4.1;
  rating.review.idleStretch = 151;
  rating.survived = 17;
  EXPECT_EQ(WordsOfProof(rating), (std::vector<std::string>{"loose-limit", "idle-stretch", "low-odds"}));
}

bool Survives(const Walk& run, std::uint64_t seed) {
  const std::string text = CaveTextOf(run.picture, run.numbers);
  return FollowPlan(text, ReviewOf(run).deeds, seed, [] { return false; });
}

TEST(Odds, AreCertainWherePushesAloneDependOnLuck) {
  // The boulder moves at one try of four.
  Walk run{{"WWWWWWWWW", "W1R.;;D;T", "WWW.WWWWW", "WWWWWWWWW"}, {.needed = 1}, {}};
  run.keys = std::string(60, 'R');
  for (std::uint64_t seed = 100; seed < 110; ++seed) EXPECT_TRUE(Survives(run, seed)) << seed;
}

TEST(Odds, WaitForWhatSlimeLetsThroughInItsOwnTime) {
  Walk run{{"WWWWWWW", "WWWDWWW", "WWWSWWW", "WWW.WWW", "W1;.;;T", "WWWWWWW"},
           {.needed = 1, .permeability = 6},
           {}};
  run.keys = "R" + std::string(40, '.') + "RRRR";
  for (std::uint64_t seed = 100; seed < 110; ++seed) EXPECT_TRUE(Survives(run, seed)) << seed;
}

TEST(Odds, AreBadWhereLuckAloneDecides) {
  // The gem comes through in time, or it does not.
  const std::string text = CaveTextOf({"WWWWWWW", "WWWDWWW", "WWWSWWW", "WWW.WWW", "W1;.;;T", "WWWWWWW"},
                                      {.time = 5, .needed = 1, .permeability = 2});
  const Plan plan = PlanOf("R" + std::string(43, '.') + "RRRR");
  std::string record;
  for (std::uint64_t seed = 0; record.empty() && seed < 100; ++seed)
    record = RecordOfPlan({text, "sada", seed, "x"}, plan);
  const Result<Review> review = ReviewRecord(record);
  ASSERT_TRUE(review) << review.Message();
  int won = 0;
  for (std::uint64_t seed = 100; seed < 120; ++seed)
    won += FollowPlan(text, review->deeds, seed, [] { return false; }) ? 1 : 0;
  EXPECT_GT(won, 0);
  EXPECT_LT(won, 18);
}

TEST(Odds, EndWhenItIsEnough) {
  EXPECT_FALSE(
      FollowPlan(CaveTextOf(kPlain.picture, kPlain.numbers), ReviewOf(kPlain).deeds, 1, [] { return true; }));
}

// The amoeba asks for chance in every tick, the last one too.
TEST(Review, RefusesARecordThatHoldsTooLittleChance) {
  const std::string record =
      RecordOf(Walk{{"WWWWWWW", "W1;DT;W", "WWWWWWW", "W.A...W", "WWWWWWW"}, {.needed = 1}, "RRR"});
  ASSERT_TRUE(ReviewRecord(record));
  const Result<Review> review = ReviewRecord(record.substr(0, record.size() - 1));
  ASSERT_FALSE(review);
  EXPECT_EQ(review.Message(), "the record is damaged");
}

TEST(Review, TakesAPushAtFleasThatCannotMoveForIdleness) {
  const Picture picture{"WWWWWWW", "W1;DT;W", "WWWWWWW", "WWWNWWW", "WWWWWWW"};
  EXPECT_EQ(ReviewOf({picture, {.needed = 1}, "0UD1RRR"}).idleTicks, 2);
}

TEST(Review, TakesAnAmoebaThatIsShutInAndTurnsForUsed) {
  const Picture picture{"WWWWWWW", "W1;DT;W", "WWWWWWW", "WWWAWWW", "WWWWWWW"};
  EXPECT_TRUE(Uses(ReviewOf({picture, {.needed = 1}, "RRR"}), "amoeba"));
}

}  // namespace
}  // namespace zorik::test
