#include <gtest/gtest.h>

#include "solve/Traces.h"
#include "support/Scene.h"

namespace zorik::test {
namespace {

TEST(Traces, AreLeftByWhatStaysAndNotByWhatComesAndGoes) {
  EXPECT_TRUE(LeavesTrace(kDirt, kSpace));
  EXPECT_TRUE(LeavesTrace(kSpace, kBoulder));
  EXPECT_TRUE(LeavesTrace(kGem, kDog));
  EXPECT_FALSE(LeavesTrace(kSpace, kFireFly));
  EXPECT_FALSE(LeavesTrace(kFireFly, kExplosion));
  EXPECT_FALSE(LeavesTrace(kDog, kSpace));
  EXPECT_FALSE(LeavesTrace(kBrick, kBrick));
}

// What lies beside the slime has not come through it.
TEST(Traces, LeadThroughSlimeOnlyWhereSomethingLayUponIt) {
  const auto passed = [](const std::string& upon) {
    return PassedBy(Play({"XXXXX", upon, "XXSXX", "X...X", "X1;;X"}), {2, 3});
  };
  EXPECT_EQ(passed("X.R.X"), std::vector<Cell>{Cell(2, 2)});
  EXPECT_EQ(passed("X.D.X"), std::vector<Cell>{Cell(2, 2)});
  EXPECT_TRUE(passed("XR..X").empty());
  EXPECT_TRUE(passed("X.F.X").empty());
}

}  // namespace
}  // namespace zorik::test
