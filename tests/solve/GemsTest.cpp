#include <gtest/gtest.h>

#include "data/Result.h"
#include "solve/Gems.h"
#include "support/Scene.h"

namespace zorik::test {
namespace {

GemCount Gems(const Picture& picture, int needed) {
  return GemsOf(*ParseCaveText(CaveTextOf(picture, {.needed = needed})));
}

TEST(Gems, AreThoseThereThoseToBeHadAndThoseNeeded) {
  EXPECT_EQ(Gems({"WWWWWWWW", "W1D;DWDT", "WWWWWWWW"}, 2), (GemCount{3, 2, 2}));
  EXPECT_EQ(Gems({"WWWWWWWW", "W1D;U;;T", "WWWWWWWW"}, 7), (GemCount{1, 10, 7}));
  EXPECT_EQ(Gems({"WWWWWWWW", "W1D;A;;T", "WWWWWWWW"}, 1), (GemCount{1, std::nullopt, 1}));
}

}  // namespace
}  // namespace zorik::test
