#include <gtest/gtest.h>

#include <array>
#include <functional>

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

TEST(Archive, KnowsTheBeginningAsTheBestWhereNothingIsBetter) {
  Archive archive({}, 100);
  const auto start = archive.Add(1, 0, NodeOf(-1, "", 0, 0));
  EXPECT_EQ(archive.Best(), start);
  archive.Add(2, 0, NodeOf(start, "R", -1, 1));
  EXPECT_EQ(archive.Best(), start);
  archive.Add(3, 0, NodeOf(start, "R", 0, 1));
  EXPECT_EQ(archive.Best(), start) << "the earlier of two that are as good";
}

// How often of 400 times it returns to the second of two moments that are alike but for this.
int ReturnsOf400(Temper temper,
                 const std::function<void(Archive::Node& first, Archive::Node& second)>& differ) {
  Archive archive(temper, 100);
  const auto first = archive.Add(1, 0, NodeOf(-1, "", 0, 10));
  const auto second = archive.Add(2, 0, NodeOf(-1, "", 0, 10));
  differ(archive[first], archive[second]);
  Chance chance(3);
  int returned = 0;
  for (int i = 0; i < 400; ++i) returned += archive.Pick(chance) == second ? 1 : 0;
  return returned;
}

// It takes the best of three by lot: the better one of two in seven of eight times.
TEST(Archive, ReturnsToWhatPromisesMoreAndWasVisitedLess) {
  for (const Temper temper : {Temper{0, 3}, Temper{0, 3, Grain::Things, 2}}) {
    const int promise = ReturnsOf400(temper, [](auto& /*first*/, auto& second) { ++second.promise; });
    const int visits = ReturnsOf400(temper, [](auto& first, auto& /*second*/) { ++first.visits; });
    const int length = ReturnsOf400({100, 3}, [](auto& first, auto& /*second*/) { ++first.length; });
    for (const int often : {promise, visits, length}) {
      EXPECT_GT(often, 325);
      EXPECT_LT(often, 375);
    }
  }
}

// One time of five any level by lot; otherwise it stays with the best with a chance of one in three.
TEST(Archive, ReturnsMostlyToTheLevelsThatAreHigh) {
  Archive archive({0, 3}, 100);
  for (int level = 0; level < 3; ++level)
    archive.Add(static_cast<std::uint64_t>(level), 0, NodeOf(-1, "", level, 1));
  Chance chance(5);
  std::array<int, 3> returned{};
  for (int i = 0; i < 9000; ++i) ++returned[static_cast<std::size_t>(archive.Pick(chance))];
  EXPECT_NEAR(returned[2], 9000 * (1.0 / 15 + 4.0 / 15), 200);
  EXPECT_NEAR(returned[1], 9000 * (1.0 / 15 + 4.0 / 5 * 2 / 9), 200);
  EXPECT_NEAR(returned[0], 9000 * (1.0 / 15 + 4.0 / 5 * 4 / 9), 200);
}

}  // namespace
}  // namespace zorik::test
