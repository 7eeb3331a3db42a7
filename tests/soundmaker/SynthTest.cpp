#include <gtest/gtest.h>

#include "data/Result.h"
#include "soundmaker/Ear.h"
#include "soundmaker/Synth.h"

namespace zorik::sound::test {
namespace {

Stereo Played(const std::string& text, const Order& order = {}) {
  const Result<Recipe> recipe = ParseRecipe(text);
  EXPECT_TRUE(recipe) << recipe.Message();
  return recipe ? Play(*recipe, order) : Stereo{Samples(1), Samples(1)};
}

// The largest way from one sample to the next, round the end too, over the largest inside.
double SeamOf(const Samples& loop) {
  double inside = 0;
  for (std::size_t i = 1; i < loop.size(); ++i) inside = std::max(inside, std::abs(loop[i] - loop[i - 1]));
  return std::abs(loop.front() - loop.back()) / inside;
}

TEST(Synth, PlaysAToneAtItsPitch) {
  const Stereo tone = Played("tone 500\n");
  EXPECT_NEAR(Strength(tone.left, 500), 1, 0.02);
  EXPECT_LT(Strength(tone.left, 700), 0.01);
  EXPECT_EQ(tone.left, tone.right);
}

TEST(Synth, ShiftsTonesAndFilters) {
  EXPECT_NEAR(Strength(Played("tone 500\n", {.shift = 1.1}).left, 550), 1, 0.02);
  const Stereo band = Played("noise\n band 1000 q 20\n", {.shift = 2});
  EXPECT_GT(Strength(band.left, 2000), 3 * Strength(band.left, 1000));
}

TEST(Synth, PlaysPartialsWithFadesOfTheirOwn) {
  const Samples left = Played("tone 300\n partials 1:1 3:0.5:0.1\n attack 0\n").left;
  const Samples early(left.begin(), left.begin() + 1470), late(left.begin() + 11025, left.begin() + 22050);
  // The mean of 0.5 x 1000 ^ (-t / 0.1 s) over the fifteenth of a second that `early` is long.
  EXPECT_NEAR(Strength(early, 900), 0.1075, 0.003);
  EXPECT_LT(Strength(late, 900), 0.001);
  EXPECT_NEAR(Strength(late, 300), 1, 0.02);
}

TEST(Synth, BendsThePitch) {
  const Samples left = Played("tone 400\n pitch 0:1 0.5:2\n").left;
  EXPECT_GT(Strength(Samples(left.begin() + 11025, left.begin() + 20000), 800), 0.9);
}

TEST(Synth, LeavesOutWhatTheSampleRateCannotCarry) {
  EXPECT_EQ(Level(Played("tone 5000\n partials 3:1\n").left), 0);
}

TEST(Synth, KeepsALayerInItsTime) {
  const Samples left = Played("tone 500\n at 0.4\n for 0.2\n").left;
  EXPECT_EQ(Level(left, 0, 8820), 0);
  EXPECT_GT(Level(left, 9000, 13000), 0.5);
  EXPECT_EQ(Level(left, 13231, left.size()), 0);
}

TEST(Synth, BeginsAndEndsALayerSoftly) {
  const Samples left = Played("tone 4000\n for 0.5\n attack 0.1\n release 0.2\n").left;
  EXPECT_LT(Level(left, 0, 110), 0.01);
  EXPECT_LT(Level(left, 10915, 11025), 0.01);
  EXPECT_NEAR(Level(left, 1102 - 60, 1102 + 60), 0.5 * 0.7071, 0.05);
}

TEST(Synth, FadesBySixtyDecibelsInTheTimeGiven) {
  const Samples left = Played("tone 1000\n fade 0.5\n").left;
  EXPECT_NEAR(Level(left, 12025, 12125) / Level(left, 1000, 1100), 0.001, 0.0001);
}

TEST(Synth, PansFromEarToEar) {
  const Stereo left = Played("tone 500\n pan -1\n");
  EXPECT_GT(Level(left.left), 0.5);
  EXPECT_EQ(Level(left.right), 0);
}

TEST(Synth, PlaysTheSameOrderTheSame) {
  const std::string text = "noise\n low 800\n for 0.02\n scatter 9 pitch 40 gain 9 pan 0.5\n";
  const Stereo one = Played(text, {.seed = 5}), same = Played(text, {.seed = 5}),
               other = Played(text, {.seed = 6});
  EXPECT_EQ(one.left, same.left);
  EXPECT_EQ(one.right, same.right);
  EXPECT_NE(one.left, other.left);
  EXPECT_NE(one.left, Played("seed 1\n" + text, {.seed = 5}).left);
}

TEST(Synth, ScattersOverTheWholeTimeGiven) {
  const Samples left = Played("tone 1000\n for 0.01\n at 0.2\n scatter 50 over 0.5\n").left;
  EXPECT_EQ(Level(left, 0, 4410), 0);
  for (std::size_t tenth = 2; tenth < 7; ++tenth)
    EXPECT_GT(Level(left, tenth * 2205, tenth * 2205 + 2205), 0.1);
  EXPECT_EQ(Level(left, 15700, left.size()), 0);
}

TEST(Synth, SwellsAndDriftsByTheTimeOfWhatIsScattered) {
  const std::string text = "tone 500\n for 0.05\n scatter 40\n";
  const Samples swelling = Played(text + "swell 0:0 1:1\n").left;
  EXPECT_LT(Level(swelling, 0, 2205), 0.1 * Level(swelling, 18000, 22050));
  const Samples drifting = Played(text + "drift 0:1 0.2:2\n").left;
  const Samples late(drifting.begin() + 11025, drifting.end());
  EXPECT_LT(Strength(late, 500), 0.05 * Strength(late, 1000));
}

TEST(Synth, TakesNothingButTheNotes) {
  const Samples left = Played("tone 500\n for 0.1\n scatter 40\n notes 2 3\n").left;
  const double between = Strength(left, 1250) + Strength(left, 500);
  EXPECT_GT(Strength(left, 1000), 2 * between);
  EXPECT_GT(Strength(left, 1500), 2 * between);
}

TEST(Synth, MakesLoopsWithoutASeam) {
  for (const char* text :
       {"tone 441.3\n", "tone 333.3\n vibrato 3.3 4\n tremolo 2.7 50\n",
        "tone 200\n partials 1:1 1.013:1 2.7:1\n", "noise\n low 500\n low 500\n",
        "tone 700\n for 0.3\n scatter 20 pitch 30\n", "room 0.03 0.6 0\ntone 441.3\n at 0.9\n for 0.2\n"}) {
    const Stereo loop = Played(text, {.loop = true});
    EXPECT_LE(SeamOf(loop.left), 1) << text;
    EXPECT_LE(SeamOf(loop.right), 1) << text;
  }
}

TEST(Synth, TakesUpAtALoopsBeginningWhatLastsBeyondItsEnd) {
  const std::string text = "tone 500\n at 0.9\n for 0.2\n";
  EXPECT_GT(Level(Played(text, {.loop = true}).left, 0, 2000), 0.5);
  EXPECT_EQ(Level(Played(text).left, 0, 2000), 0);
}

}  // namespace
}  // namespace zorik::sound::test
