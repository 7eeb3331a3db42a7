#include <gtest/gtest.h>

#include "core/Machine.h"
#include "solve/Worth.h"
#include "support/Scene.h"

namespace zorik::test {
namespace {

// How much higher the level is after these keys than at the start.
int Gain(const Picture& picture, const std::string& keys, const Numbers& numbers = {.needed = 3}) {
  const Hra begin = Play(picture, numbers);
  const Worth worth(begin);
  Hra run = begin;
  for (const char key : keys) Pass(run, 1, std::string(1, key));
  return worth.Level(run) - worth.Level(begin);
}

// A gem that is taken counts four; it could be walked to, which has counted three.
TEST(Worth, RisesWithTheGems) {
  EXPECT_EQ(Gain({"WWWWWWW", "W1D;D;W", "WWWWWWW"}, "R"), 1);
  EXPECT_EQ(Gain({"WWWWWWW", "W1D;D;W", "WWWWWWW"}, "RRR"), 2);
}

TEST(Worth, RisesWithTheFinishThatOpens) {
  // No gem is needed after the first, so the second adds nothing.
  // It opens in the tick behind that in which the last gem is taken.
  EXPECT_EQ(Gain({"WWWWWWW", "W1D;D;T", "WWWWWWW"}, "R", {.needed = 1}), 1);
  EXPECT_EQ(Gain({"WWWWWWW", "W1D;D;T", "WWWWWWW"}, "RR", {.needed = 1}), 1 + 8);
  EXPECT_EQ(Gain({"WWWWWWW", "W1D;D;T", "WWWWWWW"}, "RRR", {.needed = 1}), 1 + 8);
}

TEST(Worth, RisesWithGemsThatCanBeWalkedTo) {
  const Hra open = Play({"WWWWWWW", "W1;;D;W", "WWWWWWW"}, {.needed = 3});
  const Hra shut = Play({"WWWWWWW", "W1;WD;W", "WWWWWWW"}, {.needed = 3});
  const Hra behind = Play({"WWWWWWW", "W1DDD;W", "WWWWWWW"}, {.needed = 3});
  EXPECT_EQ(Worth(open).Level(open), 3);
  EXPECT_EQ(Worth(shut).Level(shut), 0);
  EXPECT_EQ(Worth(behind).Level(behind), 9);
}

TEST(Worth, RisesWithKeysThatAreTaken) {
  EXPECT_EQ(Gain({"WWWWWWW", "W1@;;&W", "WWWWWWW"}, "R"), 4);
}

TEST(Worth, FallsWithADogThatDies) {
  const Hra begin = Play({"WWWWWW", "W.R.2W", "W1...W", "W....W", "WWWWWW"});
  const Worth worth(begin);
  Hra run = begin;
  run.Dog[2].Alive = false;
  EXPECT_EQ(worth.Level(run), worth.Level(begin) - 6);
}

TEST(Worth, RisesWithTheFuseButNotBesideAFinish) {
  const auto level = [](const Picture& picture) {
    const Hra run = Play(picture);
    return Worth(run).Level(run);
  };
  EXPECT_EQ(level({"WWWWWWWW", "W1..I..W", "W......W", "WWWWWWWW"}), 2);
  EXPECT_EQ(level({"WWWWWWWW", "W1..I.IW", "W......W", "WWWWWWWW"}), 2);
  EXPECT_EQ(level({"WWWWWWWW", "W1..I.IW", "W....I.W", "WWWWWWWW"}), 6);
  EXPECT_EQ(level({"WWWWWWWW", "W1..I..W", "W....I.T", "WWWWWWWW"}), 4);
  EXPECT_EQ(level({"WWWWWWWW", "W1..III.", "W......T", "WWWWWWWW"}), 0);
}

class WorthOfTwo : public testing::Test {
 protected:
  // Whether two caves, which are as large, are alike to a grain.
  static bool Alike(const Picture& a, const Picture& b, Grain grain) {
    const Hra one = Play(a), other = Play(b);
    const Worth worth(one);
    return worth.Situation(one, grain) == worth.Situation(other, grain);
  }
  static bool SameKey(const Picture& a, const Picture& b) {
    const Hra one = Play(a), other = Play(b);
    const Worth worth(one);
    return worth.Key(one, 5) == worth.Key(other, 5);
  }
};

TEST_F(WorthOfTwo, BombsAreToldApartByEveryGrainAndBoxesByTheFinestOnly) {
  const Picture bomb{"WWWWWW", "W1I..W", "WWWWWW"}, pushed{"WWWWWW", "W1.I.W", "WWWWWW"};
  const Picture box{"WWWWWW", "W1K..W", "WWWWWW"}, away{"WWWWWW", "W1.K.W", "WWWWWW"};
  EXPECT_FALSE(Alike(bomb, pushed, Grain::Bombs));
  EXPECT_FALSE(Alike(bomb, pushed, Grain::Things));
  EXPECT_TRUE(Alike(box, away, Grain::Bombs));
  EXPECT_FALSE(Alike(box, away, Grain::Things));
}

TEST_F(WorthOfTwo, DogsDirtAndGemsMakeNoOtherSituation) {
  for (const Grain grain : {Grain::Bombs, Grain::Heaps, Grain::Things}) {
    EXPECT_TRUE(Alike({"WWWWWW", "W1;DRW", "WWWWWW"}, {"WWWWWW", "W.1.RW", "WWWWWW"}, grain));
    EXPECT_FALSE(Alike({"WWWWWW", "W1;DXW", "WWWWWW"}, {"WWWWWW", "W1;D.W", "WWWWWW"}, grain));
  }
}

// Of the steered dog the very cell counts, of the others where they are about.
TEST_F(WorthOfTwo, KeysAreOfTheVeryCellOfTheSteeredDogOnly) {
  EXPECT_TRUE(SameKey({"......", "1...2."}, {"......", "1....2"}));
  EXPECT_FALSE(SameKey({"......", "1...2."}, {"......", "1.2..."}));
  EXPECT_FALSE(SameKey({"......", "..1..2"}, {"......", "...1.2"}));
  EXPECT_FALSE(SameKey({"K.....", "1....."}, {".K....", "1....."}));
}

TEST(Worth, TakesNoGemForReachedBehindABoulderThatNobodyPushesUp) {
  const auto level = [](char above) {
    const Hra run = Play({"WWW", "WDW", "W.W", std::string("W") + above + "W", "W1W", "WWW"}, {.needed = 1});
    return Worth(run).Level(run);
  };
  EXPECT_EQ(level('R'), level('W'));
  EXPECT_GT(level('K'), level('W'));
  EXPECT_GT(level(';'), level('W'));
}

}  // namespace
}  // namespace zorik::test
