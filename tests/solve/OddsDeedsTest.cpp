#include <gtest/gtest.h>

#include "solve/Odds.h"
#include "solve/Walks.h"

namespace zorik::test {
namespace {

constexpr int kSeeds = 4;

// A flea sits in the way to the finish and has to be led along winding ways, farther than the finish: who has
// lost the winner's deeds will hardly find that by himself.
const std::string kWinding = "RRRDDDLLDDDRRRRUUURRRDDDLLDDRRRRUURR";

// A cave whose first rows begin with these; the dog comes to its right end in the third of them.
struct Gate {
  Picture picture;
  std::string keys;  // that lead the swarm away, and then the dog to the finish
};
Gate GateBehind(const Picture& beginning) {
  Gate gate{beginning, "0" + kWinding + "1"};
  const std::size_t width = beginning.front().size();
  for (std::string& row : gate.picture) row += std::string(22, 'W');
  while (gate.picture.size() < 14) gate.picture.push_back(std::string(width + 22, 'W'));
  std::size_t x = width, y = 2;
  gate.picture[y][x] = 'N';
  for (std::size_t i = 0; i < kWinding.size(); ++i) {
    x += kWinding[i] == 'R' ? 1U : 0U;
    x -= kWinding[i] == 'L' ? 1U : 0U;
    y += kWinding[i] == 'D' ? 1U : 0U;
    y -= kWinding[i] == 'U' ? 1U : 0U;
    gate.picture[y][x] = '.';
    if (i + 3 == kWinding.size()) gate.picture[y - 1][x] = 'T';
  }
  gate.keys += "R" + kWinding.substr(0, kWinding.size() - 2) + "U";
  return gate;
}

// Under how many of four other seeds what was done wins: at the beginning with these keys, which end beside
// the gate. spare: ticks that the time leaves.
int Follow(const Picture& beginning, const std::string& keys, Numbers numbers = {.needed = 1},
           int spare = 0) {
  const Gate gate = GateBehind(beginning);
  numbers.time = (static_cast<int>(keys.size() + gate.keys.size()) + spare) / 10 + 1;
  const std::string text = CaveTextOf(gate.picture, numbers);
  std::string record;
  for (std::uint64_t seed = 0; record.empty() && seed < 50; ++seed)
    record = RecordOfPlan({text, "sada", seed}, PlanOf(keys + gate.keys));
  const Result<Review> review = ReviewRecord(record);
  if (!review) ADD_FAILURE() << review.Message();
  if (!review) return -1;
  int won = 0;
  for (std::uint64_t seed = 100; seed < kSeeds + 100; ++seed)
    won += FollowPlan(text, review->deeds, seed, [] { return false; }) ? 1 : 0;
  return won;
}

TEST(OddsOfDeeds, AreCertainWhereNothingDependsOnChance) {
  EXPECT_EQ(Follow({"WWWWWW", "WWWWWW", "W1;D;;", "WWWWWW"}, "RRRR"), kSeeds);
}

TEST(OddsOfDeeds, PassOverWhatWasTriedInVain) {
  EXPECT_EQ(Follow({"WWWWWWWW", "WWWWWWWW", "WRR1;D;;", "WWWWWWWW"}, "LLLLRRRR"), kSeeds);
  EXPECT_EQ(Follow({"WWWWWWWW", "WWWWWWWW", "WIW1;D;;", "WWWKWWWW"}, "LDRRRR"), kSeeds);
}

TEST(OddsOfDeeds, PushBoxesToAllSides) {
  EXPECT_EQ(Follow({"WWWWWWWWW", "WW;;;WWWW", "W.K1D;;;;", "WWWWWWWWW"}, "LRRRRRR"), kSeeds);
  EXPECT_EQ(Follow({"WWW.WWWWW", "WWWKWWWWW", "WWW1D;;;;", "WWWWWWWWW"}, "UDRRRRR"), kSeeds);
  EXPECT_EQ(Follow({"WWWWWWWWW", "WWWWWWWWW", "WWW1D;;;;", "WWWKWWWWW", "WWW.WWWWW"}, "DURRRRR"), kSeeds);
  EXPECT_EQ(Follow({"WWWWWWWWW", "WWWW;;;;W", "W1DK..W;;", "WWWWWWWWW"}, "RRRURRRDR"), kSeeds);
}

TEST(OddsOfDeeds, PushABoulderUntilItGivesWay) {
  const Picture beginning{"WWWWWWWWWW", "WWWWWWWWWW", "W1R..;;D;;", "WWW.WWWWWW"};
  EXPECT_EQ(Follow(beginning, std::string(12, 'R'), {.needed = 1}, 60), kSeeds);
}

TEST(OddsOfDeeds, TakeKeysAndGoThroughTheLock) {
  EXPECT_EQ(Follow({"WWWWWWWWWWWW", "WWWWWWWWWWWW", "W1!@#;D;&;;;"}, "RRRRRRRRRR"), kSeeds);
  EXPECT_EQ(Follow({"WWWWWWWWWWWW", "WW!D@W#WWWWW", "W1;;;;;;;&;;"}, "RuRuRuRRuRRRRR"), kSeeds);
}

TEST(OddsOfDeeds, TakeAtArmsLengthToAllSides) {
  EXPECT_EQ(Follow({"WWWWWWWW", "WWDWWWWW", "WD1D;;;;", "WWDWWWWW"}, "ludrRRRRR", {.needed = 4}), kSeeds);
}

TEST(OddsOfDeeds, ChangeTheDogs) {
  EXPECT_EQ(
      Follow({"2;;DWWWW", "WWWWWWWW", "W1;;;;;;", "WWWWWWWW", "3;;D;WWW"}, "2RRR3RRR1RRRRRR", {.needed = 2}),
      kSeeds);
}

// The gem comes through the slime when chance wants it.
TEST(OddsOfDeeds, WaitForAGemThatSlimeLetsThrough) {
  EXPECT_EQ(Follow({"WWWWDWWW", "WWWWSWWW", "W1;;.;;;", "WWWWWWWW"}, "RR" + std::string(30, '.') + "RRRR",
                   {.needed = 1, .permeability = 6}),
            kSeeds);
}

TEST(OddsOfDeeds, PushOneBoulderAfterAnother) {
  EXPECT_EQ(Follow({"WWWWWWWWWWWW", "WWWWWWWWWWWW", "W1R..R..;D;;", "WWW.WW.WWWWW"}, std::string(24, 'R'),
                   {.needed = 1}, 120),
            kSeeds);
}

// Nobody has led the swarm.
TEST(OddsOfDeeds, AreBadWithoutThem) {
  const Gate gate = GateBehind({"WWWWWW", "WWWWWW", "W1;D;;", "WWWWWW"});
  int asked = 0;
  const auto enough = [&asked] { return ++asked > 20; };
  EXPECT_FALSE(FollowPlan(CaveTextOf(gate.picture, {.time = 8, .needed = 1}), {}, 100, enough));
}

}  // namespace
}  // namespace zorik::test
