#include <gtest/gtest.h>

#include "core/Machine.h"
#include "solve/Walks.h"

namespace zorik::test {
namespace {

// The cave in which the dog takes away at arm's length what a boulder lies upon, over a shaft of this depth
// with a monster at its bottom.
Picture Shaft(std::size_t depth, char monster) {
  Picture picture{"WWWWWWWWWWWWWWWWW", "WWWWWWWWWWWWWWWWW", "WWWWRWWWWWWWWWWWW", "W;;1;;D;;;;;;;;;T"};
  for (std::size_t y = 1; y < depth; ++y) picture.emplace_back("WWWW.WWWWWWWWWWWW");
  picture.emplace_back("WWWW?WWWWWWWWWWWW");
  picture.back()[4] = monster;
  picture.emplace_back("WWWWWWWWWWWWWWWWW");
  return picture;
}
const Cell kTarget(4, 3);

std::string Keys(std::size_t waits) {
  return "rLL" + std::string(waits, '.') + std::string(15, 'R');
}

// The first deed of all that were done: what lets the boulder fall.
Deed Drop(const Picture& picture, const std::string& keys) {
  const Review review = ReviewOf({picture, {.needed = 1}, keys});
  EXPECT_FALSE(review.deeds.empty());
  return review.deeds.empty() ? Deed() : review.deeds.front();
}

TEST(Prey, IsLookedForUpToTwelveCellsFar) {
  for (std::size_t depth = 3; depth < 16; ++depth) {
    const Deed drop = Drop(Shaft(depth, 'F'), Keys(25));
    EXPECT_EQ(drop.target, kTarget);
    EXPECT_EQ(drop.prey.has_value(), depth <= 12) << depth;
    if (!drop.prey) continue;
    EXPECT_EQ(*drop.prey, Cell(4, 3 + static_cast<int>(depth))) << depth;
    EXPECT_EQ(drop.preyKind, kFireFly);
  }
}

TEST(Prey, IsWhatCirclesAndKeepsItsHeading) {
  for (const auto& [letter, kind] : {std::pair('F', kFireFly),
                                     {'O', kFireFly},
                                     {'P', kFireFly},
                                     {'Q', kFireFly},
                                     {'U', kButterFly},
                                     {'Y', kButterFly},
                                     {'Z', kButterFly},
                                     {'B', kButterFly}}) {
    const Picture picture = Shaft(4, letter);
    const Deed drop = Drop(picture, Keys(20));
    ASSERT_TRUE(drop.prey.has_value()) << letter;
    EXPECT_EQ(drop.preyKind, kind) << letter;
    EXPECT_EQ(drop.preyMark, Play(picture).FieldMark({4, 7})) << letter;
  }
  for (const char letter : {'L', ':'})
    EXPECT_EQ(Drop(Shaft(4, letter), Keys(20)).prey, std::nullopt) << letter << " goes its way by chance";
}

// The nearer one is shut in, and lives on.
TEST(Prey, IsNoneWhereTheNearestMonsterLivesOn) {
  Picture picture = Shaft(5, 'U');
  EXPECT_EQ(Drop(picture, Keys(20)).prey, std::optional(Cell(4, 8)));
  picture[5][6] = 'F';
  EXPECT_EQ(Drop(picture, Keys(20)).prey, std::nullopt) << "it was nearer, by a cell";
  picture[5][6] = 'W';
  picture[8][6] = 'F';
  EXPECT_EQ(Drop(picture, Keys(20)).prey, std::optional(Cell(4, 8))) << "farther off";
  picture[8][6] = 'W';
  picture[5][8] = 'F';
  EXPECT_EQ(Drop(picture, Keys(20)).prey, std::optional(Cell(4, 8))) << "farther aside";
}

TEST(Prey, IsNeverAboveWhatFalls) {
  Picture picture = Shaft(5, 'U');
  picture[1][7] = 'F';
  EXPECT_EQ(Drop(picture, Keys(20)).prey, std::optional(Cell(4, 8)));
  picture[1][7] = 'W';
  picture[1][1] = 'F';
  EXPECT_EQ(Drop(picture, Keys(20)).prey, std::optional(Cell(4, 8)));
}

TEST(Prey, IsNoneOfADeedThatLetsNothingFall) {
  Picture picture = Shaft(5, 'F');
  picture[2][4] = picture[4][4] = 'W';
  EXPECT_EQ(Drop(picture, Keys(0)).prey, std::nullopt);
}

// Two boulders over two shafts: one of the monsters is shut in beside its shaft and lives on.
const Picture kTwo{"WWWWWWWWWWWWWWWWW", "WWWWRWWWWWRWWWWWW", "W;;1;;;;;;;;;D;;T", "WWWW.WWWWW.WWWWWW",
                   "WWWW.WWWWW.WWWWWW", "WWWW.WWWWW.WWWWWW", "WWWWWWWWWWWWWWWWW"};

// The tick in which the first explosion has begun, from 0.
int BurntTick(const Walk& walk) {
  const auto run = BeginRun({CaveTextOf(walk.picture, walk.numbers), "sada"});
  int tick = 0;
  for (const Move move : PlanOf(walk.keys)) {
    Tick(**run, KeysOf(move));
    if ((*run)->Count(kExplosion) > 0) return tick;
    ++tick;
  }
  return -1;
}

// It was meant if one of its kind has blown up within the twelve cells of the fall and a second.
TEST(Prey, IsForgottenIfItsKindBlowsUpMuchLaterOnly) {
  Picture picture = kTwo;
  picture[4][6] = 'F';
  picture[5][10] = 'F';
  int kept = 0, forgotten = 0;
  for (std::size_t waits = 0; waits < 16; ++waits) {
    const Walk walk{
        picture,
        {.needed = 1},
        "r" + std::string(waits, '.') + "RRRRRRrLLL" + std::string(14, '.') + std::string(11, 'R')};
    const int burnt = BurntTick(walk);
    ASSERT_GT(burnt, 0) << waits;
    const Deed drop = Drop(picture, walk.keys);
    EXPECT_EQ(drop.prey.has_value(), burnt <= 22) << waits;
    ++(drop.prey ? kept : forgotten);
  }
  EXPECT_GT(kept, 0);
  EXPECT_GT(forgotten, 0);
}

TEST(Prey, IsForgottenIfItsKindBlewUpBefore) {
  Picture picture = kTwo;
  picture[5][4] = 'F';
  picture[4][12] = 'F';
  const std::string keys =
      "rLL" + std::string(12, '.') + "RRRRRRRRr" + std::string(12, '.') + std::string(7, 'R');
  const Review review = ReviewOf({picture, {.needed = 1}, keys});
  int drops = 0;
  for (const Deed& deed : review.deeds) {
    if (!deed.action) continue;
    ++drops;
    EXPECT_EQ(deed.prey.has_value(), deed.target.x() == 4) << deed.target.x();
  }
  EXPECT_EQ(drops, 2);
}

}  // namespace
}  // namespace zorik::test
