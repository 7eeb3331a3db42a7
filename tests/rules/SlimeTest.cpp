#include <gtest/gtest.h>

#include "support/Scene.h"

namespace zorik::test {
namespace {

TEST(Slime, AtPermeabilityEightLetsARestingGemOutBelowInTheNextObjectScanFalling) {
  Hra hra = Play({"WWWWW",  //
                  "W1.DW", "WWWSW", "W...W", "WWWWW"},
                 {.permeability = 8});
  Pass(hra);
  EXPECT_EQ(Drawn(hra), (Picture{"WWWWW",  //
                                 "W1..W", "WWWSW", "W..dW", "WWWWW"}));
}

TEST(Slime, AtPermeabilityNoughtHoldsEverythingAndDrawsNothing) {
  Hra hra = Play({"1D", "WS", "W."}, {.permeability = 0});
  const std::size_t before = hra.RecordText.size();
  Pass(hra, 1);
  EXPECT_EQ(hra.Field({1, 0}), kGem);
  // The amoeba's draw, three of input and the line end.
  EXPECT_EQ(hra.RecordText.size() - before, 1U + 3U + 2U);
}

}  // namespace
}  // namespace zorik::test
