#include <gtest/gtest.h>

#include "solve/Archive.h"
#include "solve/Walks.h"

namespace zorik::test {
namespace {

Archive::Node NodeOf(std::int32_t parent, const std::string& moves, int level, int length) {
  Archive::Node node;
  node.parent = parent;
  node.moves = PlanOf(moves);
  node.level = level;
  node.length = length;
  return node;
}

TEST(Archive, WantsWhatIsNewOrComesEarlier) {
  Archive archive({}, 100);
  archive.Add(7, 0, NodeOf(-1, "", 1, 5));
  EXPECT_TRUE(archive.Wants(8, 50));
  EXPECT_TRUE(archive.Wants(7, 4));
  EXPECT_FALSE(archive.Wants(7, 5));
  EXPECT_FALSE(archive.Wants(7, 6));
}

TEST(Archive, TellsTheWayToAMoment) {
  Archive archive({}, 100);
  const auto start = archive.Add(1, 0, NodeOf(-1, "", 0, 0));
  const auto right = archive.Add(2, 0, NodeOf(start, "RR", 1, 2));
  const auto down = archive.Add(3, 0, NodeOf(right, "D.", 2, 4));
  EXPECT_EQ(archive.PlanTo(start), Plan{});
  EXPECT_EQ(archive.PlanTo(down), PlanOf("RRD."));
}

// What came later stays as an ancestor of others.
TEST(Archive, ReturnsToTheEarlierOfTwoThatAreAlike) {
  Archive archive({}, 100);
  const auto late = archive.Add(1, 0, NodeOf(-1, "RRR", 0, 3));
  const auto child = archive.Add(2, 0, NodeOf(late, "D", -9, 4));
  const auto early = archive.Add(1, 0, NodeOf(-1, "R", 0, 1));
  EXPECT_EQ(archive.PlanTo(child), PlanOf("RRRD"));
  Chance chance(1);
  int returned = 0;
  for (int i = 0; i < 200; ++i) {
    const auto picked = archive.Pick(chance);
    EXPECT_NE(picked, late);
    returned += picked == early ? 1 : 0;
  }
  EXPECT_GT(returned, 20);
}

TEST(Archive, GivesBackTheMemoryOfWhatItNoLongerNeeds) {
  const auto large = [] {
    Archive::Node node = NodeOf(-1, "", 0, 3);
    node.snapshot.words.resize(10'000);
    return node;
  };
  Archive archive({}, 100);
  archive.Add(1, 0, large());
  EXPECT_GT(archive.Bytes(), 80'000U);
  Archive::Node small = NodeOf(-1, "", 0, 1);
  archive.Add(1, 0, small);
  EXPECT_LT(archive.Bytes(), 40'000U);
}

TEST(Archive, KnowsTheEarliestOfTheHighestLevel) {
  Archive archive({}, 100);
  archive.Add(1, 0, NodeOf(-1, "", 4, 1));
  archive.Add(2, 0, NodeOf(-1, "", 6, 9));
  const auto best = archive.Add(3, 0, NodeOf(-1, "", 6, 5));
  archive.Add(4, 0, NodeOf(-1, "", 6, 7));
  EXPECT_EQ(archive.Best(), best);
}

TEST(Archive, ReturnsEvenlyToAllSituations) {
  Archive archive({.grain = Grain::Things, .lean = 3}, 100);
  for (std::uint64_t i = 0; i < 4; ++i) archive.Add(i, i, NodeOf(-1, "", 0, 1));
  const auto high = archive.Add(9, 9, NodeOf(-1, "", 2, 1));
  Chance chance(1);
  std::map<std::int32_t, int> visits;
  for (int i = 0; i < 6; ++i) ++visits[archive.Pick(chance)];
  // Two levels are worth six visits.
  EXPECT_EQ(visits[high], 6);
  for (int i = 0; i < 50; ++i) ++visits[archive.Pick(chance)];
  for (std::int32_t i = 0; i < 4; ++i) EXPECT_EQ(visits[i], 10);
  EXPECT_EQ(visits[high], 16);
}

TEST(Archive, ReturnsMoreOftenToASituationThatHasRisen) {
  Archive archive({.grain = Grain::Things, .lean = 3}, 100);
  archive.Add(1, 1, NodeOf(-1, "", 0, 1));
  archive.Add(2, 2, NodeOf(-1, "", 0, 1));
  Chance chance(1);
  for (int i = 0; i < 10; ++i) archive.Pick(chance);
  archive.Add(3, 2, NodeOf(-1, "", 1, 1));
  std::map<std::int32_t, int> visits;
  for (int i = 0; i < 3; ++i) ++visits[archive.Pick(chance)];
  EXPECT_EQ(visits[0], 0);
}

TEST(Archive, ReturnsInHasteToTheShorterOfTwoWays) {
  Archive archive({.haste = 40}, 100);
  const auto early = archive.Add(1, 0, NodeOf(-1, "", 0, 1));
  archive.Add(2, 0, NodeOf(-1, "", 0, 90));
  Chance chance(1);
  int returned = 0;
  for (int i = 0; i < 100; ++i) returned += archive.Pick(chance) == early ? 1 : 0;
  EXPECT_GT(returned, 70);
}

}  // namespace
}  // namespace zorik::test
