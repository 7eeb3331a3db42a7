#include <gtest/gtest.h>

#include "core/Machine.h"
#include "solve/Worth.h"
#include "support/Scene.h"

namespace zorik::test {
namespace {

// How much higher the level of the one cave is, after which the other one has come.
int Gain(const Picture& before, const Picture& after, const Numbers& numbers = {.needed = 0}) {
  const Hra begin = Play(before, numbers);
  const Worth worth(begin);
  return worth.Level(Play(after, numbers)) - worth.Level(begin);
}

int Level(const Picture& picture, const Numbers& numbers = {.needed = 0}) {
  const Hra run = Play(picture, numbers);
  return Worth(run).Level(run);
}

// A row of so many of a letter, and one without.
Picture Row(char letter, std::size_t count) {
  return {"1" + std::string(count, letter) + std::string(20 - count, '.')};
}

TEST(WorthLevel, RisesByFourForAKeyOfAnyKind) {
  for (const char key : {'!', '@', '#', '$'}) EXPECT_EQ(Gain(Row(key, 1), Row('.', 0)), 4) << key;
  EXPECT_EQ(Gain({"1!@#$."}, {"1....."}), 16);
}

TEST(WorthLevel, RisesByOneForEachWallThatIsGoneUpToTwelve) {
  for (const char wall : {'X', 'C'}) {
    EXPECT_EQ(Gain(Row(wall, 1), Row('.', 0)), 1) << wall;
    EXPECT_EQ(Gain(Row(wall, 15), Row(wall, 4)), 11) << wall;
    EXPECT_EQ(Gain(Row(wall, 15), Row(wall, 3)), 12) << wall;
    EXPECT_EQ(Gain(Row(wall, 15), Row('.', 0)), 12) << wall;
    EXPECT_EQ(Gain(Row('.', 0), Row(wall, 3)), 0) << "walls that grow are no loss";
  }
  EXPECT_EQ(Gain(Row('W', 5), Row(';', 5)), 0);
}

TEST(WorthLevel, RisesByOneForEachGemThatComesToBe) {
  EXPECT_EQ(Gain(Row('D', 1), Row('D', 4)), 3);
  EXPECT_EQ(Gain(Row('D', 4), Row('D', 1)), 0) << "a gem that is lost was not needed";
  const Hra begin = Play(Row('D', 2), {.needed = 0});
  Hra run = Play(Row('D', 2), {.needed = 0});
  run.GemsCollected = 1;
  EXPECT_EQ(Worth(begin).Level(run) - Worth(begin).Level(begin), 1) << "one was taken, and two are there";
}

TEST(WorthLevel, CountsNoMoreGemsThanAreNeeded) {
  const Hra begin = Play(Row('D', 5), {.needed = 3});
  EXPECT_EQ(Worth(begin).Level(begin), 9) << "three to walk to";
  Hra run = Play(Row('D', 3), {.needed = 3});
  run.GemsCollected = 2;
  EXPECT_EQ(Worth(begin).Level(run), 2 * 4 + 3);
  run = Play(Row('D', 0), {.needed = 3});
  run.GemsCollected = 5;
  EXPECT_EQ(Worth(begin).Level(run), 3 * 4);
}

TEST(WorthLevel, FallsBySixForEachDogThatIsGone) {
  const Hra begin = Play({"1.2.3."}, {.needed = 0});
  Hra run = begin;
  run.Dog[3].Alive = false;
  EXPECT_EQ(Worth(begin).Level(run) - Worth(begin).Level(begin), -6);
  run.Dog[1].Alive = false;
  EXPECT_EQ(Worth(begin).Level(run) - Worth(begin).Level(begin), -12);
}

// A gem that a dead dog could have walked to is out of reach.
TEST(WorthLevel, CountsTheWaysOfTheDogsThatLive) {
  const Hra begin = Play({"WWWWWWW", "1;;WD;2", "WWWWWWW", "3DDWWWW"}, {.needed = 9});
  EXPECT_EQ(Worth(begin).Level(begin), 9);
  Hra run = begin;
  run.Dog[2].Alive = false;
  EXPECT_EQ(Worth(begin).Level(run), 6 - 6);
  run.Dog[3].Alive = false;
  EXPECT_EQ(Worth(begin).Level(run), -12);
}

TEST(WorthLevel, CountsGemsBehindWhatCanBePushedAway) {
  const auto reached = [](const std::string& row) {
    return Level({std::string(row.size(), 'W'), row, std::string(row.size(), 'W')}, {.needed = 1}) == 3;
  };
  EXPECT_TRUE(reached("W1K.DW"));
  EXPECT_TRUE(reached("W1R.DW"));
  EXPECT_FALSE(reached("W1X.DW"));
  EXPECT_FALSE(reached("W1KWDW"));
  EXPECT_FALSE(reached("W1RXDW"));
  EXPECT_FALSE(reached("W1RRDW"));
  EXPECT_FALSE(reached("W1K;DW"));
  EXPECT_TRUE(reached("WDK.1W") == reached("W1.KDW")) << "on either side alike";
}

TEST(WorthLevel, CountsEachGemOnceHoweverManyWaysLeadToIt) {
  EXPECT_EQ(Level({"1..D..2", ".......", "..D...."}, {.needed = 9}), 6);
  EXPECT_EQ(Level({"1DDD", ";DDD", ";DDD"}, {.needed = 99}), 27) << "also through one another";
}

TEST(WorthLevel, CountsGemsThatLieAndCannotBeWalkedThroughOnlyForThemselves) {
  EXPECT_EQ(Level({"WWWWWW", "W1DXDW", "WWWWWW"}, {.needed = 9}), 3);
}

// It cannot be walked through while it falls.
TEST(WorthLevel, CountsAGemThatFallsOnceFromAllSides) {
  const Hra run = Live({"1;d;", ";;;;", ";;;;"}, {.needed = 9});
  EXPECT_EQ(Worth(run).Level(run), 3);
}

// A field of nine by nine, with letters at these offsets from its middle.
Picture Field(const std::vector<std::pair<Step, char>>& things) {
  Picture picture(9, std::string(9, '.'));
  picture[8][8] = '1';
  for (const auto& [step, letter] : things)
    picture[static_cast<std::size_t>(4 + step.dy)][static_cast<std::size_t>(4 + step.dx)] = letter;
  return picture;
}

TEST(WorthLevel, CountsAsOneFuseTheBombsThatTouchAlsoByTheirCorners) {
  for (int y = -2; y <= 2; ++y) {
    for (int x = -2; x <= 2; ++x) {
      if (x == 0 && y == 0) continue;
      const bool touch = std::abs(x) <= 1 && std::abs(y) <= 1;
      EXPECT_EQ(Level(Field({{{0, 0}, 'I'}, {{x, y}, 'I'}})), touch ? 4 : 2) << x << ' ' << y;
    }
  }
}

// Five bombs in a row, the finish beside the first of them: three are taken off.
TEST(WorthLevel, TakesThreeOffForABombThatBurnsAFinish) {
  for (int y = -2; y <= 2; ++y) {
    for (int x = -2; x <= 0; ++x) {
      if (x == 0 && y == 0) continue;
      const bool burns = (x == -1 && std::abs(y) <= 1);
      const Picture picture =
          Field({{{x, y}, 'T'}, {{0, 0}, 'I'}, {{1, 0}, 'I'}, {{2, 0}, 'I'}, {{3, 0}, 'I'}, {{4, 0}, 'I'}});
      const int two = x == 0 && std::abs(y) == 1 ? 2 : 0;  // the one beside it burns it, too
      EXPECT_EQ(Level(picture), 2 * std::max(0, 5 - 3 * (two + (burns ? 1 : 0)))) << x << ' ' << y;
    }
  }
  for (const Step side : {Step{1, -1}, Step{1, 0}, Step{1, 1}}) {
    const Picture picture =
        Field({{side, 'T'}, {{0, 0}, 'I'}, {{-1, 0}, 'I'}, {{-2, 0}, 'I'}, {{-3, 0}, 'I'}, {{-4, 0}, 'I'}});
    EXPECT_EQ(Level(picture), 4) << side.dy;
  }
}

TEST(WorthLevel, CountsOfSeveralFusesTheLongest) {
  EXPECT_EQ(Level({"1.I..III.II", "..........."}), 6);
  EXPECT_EQ(Level({"1.III..I.II", "..........."}), 6);
  EXPECT_EQ(Level({"1.KKK......", "..........."}), 0) << "boxes are no bombs";
}

}  // namespace
}  // namespace zorik::test
