#include <gtest/gtest.h>

#include "rules/CatScene.h"

// The cat that flies like a fly: "/D" of its program.
namespace zorik::test {
namespace {

constexpr std::array<int, 4> kHeadings{4, 2, 1, 3};

TEST(AWanderingCat, FliesLikeAFlyAndNeverTurnsBackWhereItHasAChoice) {
  constexpr std::array<std::size_t, 4> kBack{1, 0, 3, 2};
  for (std::size_t last = 0; last < 4; ++last) {
    for (std::size_t way = 0; way < 4; ++way) {
      if (way == kBack[last]) continue;
      SCOPED_TRACE(std::to_string(last) + " " + std::to_string(way));
      Hra hra = CatIn(kOpen, "*A/D/Z");
      hra.CatLastDir = static_cast<int>(last);
      LetAct(hra, {kHeadings[kBack[last]], kHeadings[way], 2});
      EXPECT_EQ(CatCell(hra), kMiddle + kWays[way]);
      EXPECT_EQ(hra.CatLastDir, static_cast<int>(way));
      EXPECT_EQ(hra.CatPC, 1);
      EXPECT_FALSE(hra.CatLastAdvanced);
    }
  }
}

// No direction is heading 0, so the way that leads back is heading 2.
TEST(AWanderingCat, WithoutALastDirectionDoesNotSetOutToTheRightWhereItHasAChoice) {
  for (const std::size_t way : {0U, 2U, 3U}) {
    Hra hra = CatIn(kOpen, "*A/D/Z");
    LetAct(hra, {2, kHeadings[way], 2});
    EXPECT_EQ(CatCell(hra), kMiddle + kWays[way]);
  }
}

TEST(AWanderingCat, TakesTheOnlyFreeWayWithoutChoosingAndDoesNotSeeDirtAsFree) {
  Hra hra = CatIn({";;;", ";J.", ";;;"}, "*A/D");
  hra.CatLastDir = 0;
  LetAct(hra, {2});
  EXPECT_EQ(Drawn(hra), (Picture{";;;", ";.J", ";;;"}));
}

TEST(AWanderingCat, WithNoFreeWayKeepsItsDirection) {
  Hra walled = CatIn(kWalled, "*A/D");
  walled.CatLastDir = 3;
  LetAct(walled, {2});
  EXPECT_EQ(Drawn(walled), kWalled);
  EXPECT_EQ(walled.CatLastDir, 3);
  Hra buried = CatIn({";;;", ";J;", ";;;"}, "*A/D");
  buried.CatLastDir = 2;
  LetAct(buried, {2});
  EXPECT_EQ(Drawn(buried), (Picture{";J;", ";.;", ";;;"}));
}

}  // namespace
}  // namespace zorik::test
