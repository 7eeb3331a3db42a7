#include <gtest/gtest.h>

#include "skin/HslColor.h"

namespace zorik {
namespace {

constexpr int kNoGrey = 256;  // saturation
constexpr int kPlain = 127;   // lightness

std::uint32_t Packed(unsigned red, unsigned green, unsigned blue) {
  return red | green << 8U | blue << 16U;
}

TEST(HslColor, HasASectorForEachSixtyDegrees) {
  EXPECT_EQ(HslColor(0, kNoGrey, kPlain), Packed(255, 0, 0));
  EXPECT_EQ(HslColor(20, kNoGrey, kPlain), Packed(255, 85, 0));
  EXPECT_EQ(HslColor(60, kNoGrey, kPlain), Packed(255, 255, 0));
  EXPECT_EQ(HslColor(100, kNoGrey, kPlain), Packed(85, 255, 0));
  EXPECT_EQ(HslColor(120, kNoGrey, kPlain), Packed(0, 255, 0));
  EXPECT_EQ(HslColor(160, kNoGrey, kPlain), Packed(0, 255, 170));
  EXPECT_EQ(HslColor(180, kNoGrey, kPlain), Packed(0, 255, 255));
  EXPECT_EQ(HslColor(220, kNoGrey, kPlain), Packed(0, 85, 255));
  EXPECT_EQ(HslColor(240, kNoGrey, kPlain), Packed(0, 0, 255));
  EXPECT_EQ(HslColor(280, kNoGrey, kPlain), Packed(170, 0, 255));
  EXPECT_EQ(HslColor(300, kNoGrey, kPlain), Packed(255, 0, 255));
  EXPECT_EQ(HslColor(340, kNoGrey, kPlain), Packed(255, 0, 85));
}

TEST(HslColor, TakesHuesRoundTheCircle) {
  EXPECT_EQ(HslColor(360, kNoGrey, kPlain), HslColor(0, kNoGrey, kPlain));
  EXPECT_EQ(HslColor(740, kNoGrey, kPlain), HslColor(20, kNoGrey, kPlain));
  EXPECT_EQ(HslColor(-60, kNoGrey, kPlain), HslColor(300, kNoGrey, kPlain));
}

TEST(HslColor, AddsTwiceTheLightnessAbove127ToEachChannel) {
  EXPECT_EQ(HslColor(0, kNoGrey, 137), Packed(255, 20, 20)) << "red is limited";
  EXPECT_EQ(HslColor(0, kNoGrey, 117), Packed(235, 0, 0)) << "green and blue are";
  EXPECT_EQ(HslColor(0, kNoGrey, 255), Packed(255, 255, 255));
  EXPECT_EQ(HslColor(0, kNoGrey, 0), Packed(1, 0, 0));
}

TEST(HslColor, IsGreyWithoutSaturation) {
  EXPECT_EQ(HslColor(0, 0, kPlain), Packed(85, 85, 85)) << "a third of 255";
  EXPECT_EQ(HslColor(60, 0, kPlain), Packed(170, 170, 170));
}

TEST(HslColor, MixesTowardTheAverageBeforeItLimits) {
  // Half way from 255, 0, 0 to 85, 85, 85.
  EXPECT_EQ(HslColor(0, 128, kPlain), Packed(170, 43, 43));
  // 383, 128, 128 are 213 on average; half way there red is 298.
  EXPECT_EQ(HslColor(0, 128, 191), Packed(255, 171, 171));
}

TEST(HslColor, GivesTheDogStripItsColours) {
  // Saturation 255 leaves 255/256 of the distance to the average: 85 becomes 84.668.
  EXPECT_EQ(HslColor(300, 255, 31), Packed(63, 0, 63));
  EXPECT_EQ(HslColor(300, 255, 0), Packed(1, 0, 1));
  EXPECT_EQ(HslColor(120, 255, 127), Packed(0, 254, 0)) << "85 and 170 x 255 / 256";
}

}  // namespace
}  // namespace zorik
