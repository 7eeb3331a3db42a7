#include <gtest/gtest.h>

#include "solve/Impossible.h"
#include "support/Scene.h"

namespace zorik::test {
namespace {

std::string Why(const Picture& picture, int needed) {
  return WhyImpossible(Play(picture, {.needed = needed})).value_or("");
}

TEST(Impossible, IsACaveWithoutADogOrAFinish) {
  EXPECT_EQ(Why({"WWWWW", "W;;DT", "WWWWW"}, 1), "there is no dog");
  EXPECT_EQ(Why({"WWWWW", "W1;DW", "WWWWW"}, 1), "there is no finish");
}

TEST(Impossible, IsAFinishBehindSteelButNotBehindAnythingElse) {
  EXPECT_EQ(Why({"WWWWWW", "W1DW;T", "WWWWWW"}, 1), "steel stands between the dogs and the finish");
  for (const char wall : std::string("XMKEVS%^&RIFUALC")) {
    std::string row = "W1D?;T";
    row[3] = wall;
    EXPECT_EQ(Why({"WWWWWW", row, "WWWWWW"}, 1), "") << wall;
  }
}

TEST(Impossible, IsNotAFinishThatTheTeleportReaches) {
  const Picture apart{"WWWWWWWWW", "W1D;W;W;T", "W;S;WWS;W", "W;W;W;;;W", "WWWWWWWWW"};
  ASSERT_TRUE(Play(apart, {.needed = 1}).TeleportActive);
  EXPECT_EQ(Why(apart, 1), "");
}

TEST(Impossible, AreMoreGemsThanThereAreWhereNothingMakesAny) {
  EXPECT_EQ(Why({"WWWWWW", "W1DD;T", "WWWWWW"}, 3),
            "3 gems are needed, the dogs can come to 2, and nothing makes more");
  EXPECT_EQ(Why({"WWWWWW", "W1DD;T", "WWWWWW"}, 2), "");
}

TEST(Impossible, GemsBehindSteelDoNotCount) {
  EXPECT_EQ(Why({"WWWWWWWW", "W1D;TWDW", "WWWWWWWW"}, 2),
            "2 gems are needed, the dogs can come to 1, and nothing makes more");
}

TEST(Impossible, IsNotWhatAMakerOfGemsMayStillBring) {
  for (const char maker : std::string("UYZBAME")) {
    std::string row = "W1D?;T";
    row[3] = maker;
    EXPECT_EQ(Why({"WWWWWW", row, "WWWWWW"}, 9), "") << maker;
  }
}

TEST(Impossible, AMakerBehindSteelBringsNothing) {
  EXPECT_NE(Why({"WWWWWWWW", "W1D;TWUW", "WWWWWWWW"}, 9), "");
}

}  // namespace
}  // namespace zorik::test
