#include <gtest/gtest.h>

#include "data/Result.h"
#include "soundmaker/Recipe.h"

namespace zorik::sound {
namespace {

TEST(Recipe, BecomesLayersOneAfterTheOther) {
  const Result<Recipe> recipe = ParseRecipe(
      "# a remark\n"
      "room 0.02 0.5 -12\n"
      "\n"
      "tone 440   # another\n"
      "  at 0.25\n"
      "  partials 1:1:0.3 2.5:0.5\r\n"
      "  pan -0.5\n"
      "noise\n"
      "\tband 0:400 0.5:900 q 3\n"
      "  scatter 12 over 0.4 pitch 20 pan 0.3\n"
      "  notes 1 1.5");
  ASSERT_TRUE(recipe) << recipe.Message();
  EXPECT_EQ(recipe->room->fade, 0.5);
  ASSERT_EQ(recipe->layers.size(), 2U);
  const Layer& tone = recipe->layers[0];
  EXPECT_EQ(tone.hertz, 440);
  EXPECT_EQ(tone.at, 0.25);
  ASSERT_EQ(tone.partials.size(), 2U);
  EXPECT_EQ(tone.partials[0].fade, 0.3);
  EXPECT_EQ(tone.partials[1].level, 0.5);
  EXPECT_FALSE(tone.partials[1].fade);
  EXPECT_EQ(tone.pan, -0.5);
  EXPECT_FALSE(tone.scatter);
  const Layer& noise = recipe->layers[1];
  EXPECT_FALSE(noise.hertz);
  ASSERT_EQ(noise.filters.size(), 1U);
  EXPECT_EQ(noise.filters[0].kind, Filter::Kind::kBand);
  EXPECT_EQ(noise.filters[0].q, 3);
  EXPECT_EQ(noise.filters[0].hertz.At(9), 900);
  ASSERT_TRUE(noise.scatter);
  EXPECT_EQ(noise.scatter->count, 12);
  EXPECT_EQ(noise.scatter->over, 0.4);
  EXPECT_EQ(noise.scatter->pitch, 0.2);
  EXPECT_EQ(noise.scatter->notes, (std::vector<double>{1, 1.5}));
}

TEST(Recipe, NamesTheFirstLineThatMakesNoSense) {
  for (const char* line : {"tone",
                           "tone low",
                           "tone 440 441",
                           "tone 20000",
                           "tone -5",
                           "noise 3",
                           "gong",
                           "at",
                           "at -1",
                           "at 1 2",
                           "low",
                           "low q 2",
                           "low 0:400 0:500",
                           "low 0.5:400 0.2:500",
                           "low 0:400 0.2",
                           "low 0:4:5",
                           "low x:400",
                           "partials",
                           "partials 1",
                           "partials 0:1",
                           "partials 1:2:3:4",
                           "partials 1:1 2",
                           "scatter 0",
                           "scatter 5 wide 3",
                           "swell 1",
                           "notes 1",
                           "vibrato 5",
                           "pan 2",
                           "fade 0",
                           "level nan",
                           "level inf",
                           "seed 1",
                           "room 0.02 0.5 -12"}) {
    const Result<Recipe> recipe = ParseRecipe("noise\n\n" + std::string(line) + "\nnoise\n");
    ASSERT_FALSE(recipe) << line;
    EXPECT_EQ(recipe.Message(), "line 3 makes no sense: " + std::string(line));
  }
}

TEST(Recipe, WithoutALayerIsNone) {
  EXPECT_FALSE(ParseRecipe(""));
  EXPECT_FALSE(ParseRecipe("# nothing\nseed 4\n"));
  EXPECT_FALSE(ParseRecipe("at 0.1\nnoise\n"));
}

TEST(Curve, StandsStillOutsideAndMovesGentlyInside) {
  const Curve curve{{{1, 10}, {2, 20}, {4, 0}}};
  EXPECT_EQ(curve.At(0), 10);
  EXPECT_EQ(curve.At(1), 10);
  EXPECT_EQ(curve.At(1.5), 15);
  EXPECT_LT(curve.At(1.1), 10.5);
  EXPECT_EQ(curve.At(2), 20);
  EXPECT_EQ(curve.At(3), 10);
  EXPECT_EQ(curve.At(5), 0);
}

}  // namespace
}  // namespace zorik::sound
