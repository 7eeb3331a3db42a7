#include <gtest/gtest.h>

#include "core/Patterns.h"
#include "support/Scene.h"

namespace zorik::test {
namespace {

// The cells of the first row for which a question is answered with yes, as a row of marks.
template <class Question>
std::string Yes(const Hra& hra, Question question) {
  std::string row;
  for (int x = 0; x < hra.CaveWidth; ++x) row += question(hra, Cell(x, 0)) ? '#' : '.';
  return row;
}

const auto kMagicWalls = [](const Hra& hra, Cell c) { return IsMagicWall(hra, c); };
const auto kBombs = [](const Hra& hra, Cell c) { return IsBomb(hra, c); };
const auto kStruckBombs = [](const Hra& hra, Cell c) { return IsStruckBomb(hra, c); };
const auto kMouths = [](const Hra& hra, Cell c) { return IsSplitterMouth(hra, c); };
const auto kBlocked = [](const Hra& hra, Cell c) { return BlocksDog(hra, c); };

TEST(AMagicWall, IsABrickThatIsFlat) {
  EXPECT_EQ(Yes(Play({"1MXKIRWMV"}), kMagicWalls), ".#.....#.");
}

TEST(ABomb, IsABoxThatIsFlat) {
  EXPECT_EQ(Yes(Play({"1MXKIRWI;"}), kBombs), "....#..#.");
}

TEST(AStruckBomb, IsABoulderThatIsFlat) {
  EXPECT_EQ(Yes(Live({"1*RrIKD*"}), kStruckBombs), ".#.....#");
}

TEST(AMouthOfASplitter, IsAWallThatGrowsAsideBetweenTwoSteels) {
  EXPECT_EQ(Yes(Play({"1WEWEWVWE;EW"}), kMouths), "..#.#.......");
}

TEST(AMouthOfASplitter, TakesTheSteelAroundTheCaveToo) {
  EXPECT_EQ(Yes(Play({"EW.1"}), kMouths), "#...");
  EXPECT_EQ(Yes(Play({"1.WE"}), kMouths), "...#");
}

TEST(AFinish, IsClosedUntilTheExitOpens) {
  Hra hra = Play({"1TX"});
  EXPECT_TRUE(IsClosedFinish(hra, {1, 0}));
  EXPECT_FALSE(IsOpenFinish(hra, {1, 0}));
  hra.ExitOpen = true;
  EXPECT_FALSE(IsClosedFinish(hra, {1, 0}));
  EXPECT_TRUE(IsOpenFinish(hra, {1, 0}));
  EXPECT_FALSE(IsOpenFinish(hra, {2, 0}));
}

TEST(ATeleportPad, IsSlimeOverSteelOrUnderIt) {
  Hra hra = Play({"1.....", "WWWWWW"});
  hra.SetField({2, 0}, kSlime);
  hra.SetField({3, 0}, kSlime);
  hra.SetField({3, 1}, kDirt);
  EXPECT_TRUE(IsEntranceSlime(hra, {2, 0}));
  EXPECT_FALSE(IsEntranceSlime(hra, {3, 0}));
  EXPECT_FALSE(IsEntranceSlime(hra, {4, 0})) << "no slime";
  EXPECT_TRUE(IsExitSlime(hra, {3, 0})) << "under the steel around the cave";
  EXPECT_FALSE(IsExitSlime(hra, {4, 0}));
  hra.SetField({3, 1}, kSlime);
  EXPECT_FALSE(IsExitSlime(hra, {3, 1})) << "slime is above it";
}

TEST(ATeleportPad, IsKnownByItsPlaceOnceTheCaveStands) {
  const Hra hra = Play({"1...", ".S.W", ".W.S", "...."});
  ASSERT_TRUE(hra.TeleportActive);
  EXPECT_TRUE(IsEntrance(hra, {1, 1}));
  EXPECT_FALSE(IsExit(hra, {1, 1}));
  EXPECT_TRUE(IsExit(hra, {3, 2}));
  EXPECT_FALSE(IsEntrance(hra, {3, 2}));
}

TEST(ACell, BlocksADogByItsObject) {
  Hra hra = Play({".;D!@#$RXMWTKIEVLFUHGNJ:C%^&A;"});
  hra.SetField({29, 0}, kSlime);  // in the first row set-up would make an exit of it
  EXPECT_EQ(Yes(hra, kBlocked), ".......#######################");
}

TEST(ACell, BlocksADogByAStateThatFallsOrIsRounded) {
  Hra hra = Play({"1DD.."});
  hra.SetFieldState({1, 0}, kFalling);
  hra.SetFieldState({3, 0}, kRounded);
  hra.SetFieldState({4, 0}, kResting);
  EXPECT_EQ(Yes(hra, kBlocked), "##.#.");
}

TEST(ACell, ThatAMonsterHasLeftDoesNotBlockADog) {
  EXPECT_EQ(Yes(Live({"1-."}), kBlocked), "#..");
}

TEST(Secrets, AreMagicWallsThatSleepWallsThatGrowAndTheClosedFinish) {
  Hra hra = Play({"1MXEVTWB"});
  const auto secrets = [&hra] {
    std::vector<int> row;
    for (int x = 0; x < hra.CaveWidth; ++x) row.push_back(SecretIn(hra, {x, 0}));
    return row;
  };
  EXPECT_EQ(secrets(), (std::vector<int>{-1, 0, -1, 1, 2, 3, -1, -1}));
  hra.ExitOpen = true;
  for (const int state : {kMagicRunning, kMagicSpent}) {
    hra.MagicState = state;
    EXPECT_EQ(secrets(), (std::vector<int>{-1, -1, -1, 1, 2, -1, -1, -1}));
  }
}

}  // namespace
}  // namespace zorik::test
