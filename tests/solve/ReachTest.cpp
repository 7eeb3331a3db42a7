#include <gtest/gtest.h>

#include "solve/Reach.h"
#include "support/Scene.h"

namespace zorik::test {
namespace {

TEST(Reach, CountsATickForEachCellOfTheShortestWay) {
  const Hra run = Play({"WWWWWWW", "W1;;W.W", "W;W;W.W", "W;;;;;W", "WWWWWWW"});
  const Reach reach(run);
  EXPECT_EQ(reach.Ticks({1, 1}), 0);
  EXPECT_EQ(reach.Ticks({3, 1}), 2);
  EXPECT_EQ(reach.Ticks({3, 3}), 4);
  EXPECT_EQ(reach.Ticks({5, 3}), 6);
  EXPECT_EQ(reach.Ticks({5, 1}), 8);
  EXPECT_FALSE(reach.Dogs({2, 2}));
}

TEST(Reach, IsThatOfTheNearestDog) {
  const Hra run = Play({"WWWWWWWWW", "W1;;;;2WW", "WWWWWWW3W", "WWWWWWWWW"});
  const Reach reach(run);
  EXPECT_EQ(reach.Ticks({2, 1}), 1);
  EXPECT_EQ(reach.Ticks({5, 1}), 1);
  EXPECT_EQ(reach.Ticks({7, 2}), 0);
}

TEST(Reach, RidesATeleportInNoTime) {
  const Hra run = Play({"WWWWWWWWW", "W1D;W;W;T", "W;S;WWS;W", "W;W;W;;;W", "WWWWWWWWW"});
  ASSERT_TRUE(run.TeleportActive);
  const Reach reach(run);
  EXPECT_EQ(reach.Ticks({2, 2}), 2);
  EXPECT_EQ(reach.Ticks({6, 2}), 2);
  EXPECT_EQ(reach.Ticks({8, 1}), 5);
  EXPECT_FALSE(reach.Dogs({5, 1}));
}

// What stands beside a dog, and whether it can give way; what else there is decides what may blow up.
bool Opens(char wall, const std::string& besides = ";;") {
  const Hra run = Play({"XXXXXX", std::string("X1") + wall + besides + "X", "XXXXXX"});
  return Reach(run).Opens({2, 1});
}

TEST(Reach, KnowsWhatGivesWayWithoutABlast) {
  for (const char wall : std::string(";.DKRT#$G")) EXPECT_TRUE(Opens(wall)) << wall;
  for (const char wall : std::string("WXMCEVS%^&")) EXPECT_FALSE(Opens(wall)) << wall;
}

TEST(Reach, KnowsThatABlastOpensAllButSteel) {
  for (const char blast : std::string("FULN:I")) {
    for (const char wall : std::string("XMCEVS%^&"))
      EXPECT_TRUE(Opens(wall, std::string(";") + blast)) << wall << blast;
    EXPECT_FALSE(Opens('W', std::string(";") + blast)) << blast;
  }
}

// Somebody has to be left who goes on: a single dog under a boulder opens nothing.
TEST(Reach, TakesADogUnderABoulderForABlastWhereAnotherIsLeft) {
  EXPECT_FALSE(Opens('X', ";R"));
  EXPECT_FALSE(Opens('X', ";2"));
  EXPECT_TRUE(Opens('X', "2R"));
  EXPECT_TRUE(Opens('X', "2D"));
  EXPECT_FALSE(Opens('X', ";J"));
  EXPECT_TRUE(Opens('X', "JR"));
}

TEST(Reach, OpensALockByAKeyOfItsColour) {
  for (const char lock : std::string("%^&")) {
    for (const char key : std::string("!@#")) {
      std::string row = "W!1%;W";
      row[1] = key;
      row[3] = lock;
      const bool fits = std::string("%^&").find(lock) == std::string("!@#").find(key);
      const Hra run = Play({"WWWWWW", row, "WWWWWW"});
      EXPECT_EQ(Reach(run).Dogs({4, 1}), fits) << row;
    }
  }
}

TEST(Reach, OpensOneLockByTheKeyBehindAnother) {
  const Hra run = Play({"WWWWWWWWW", "W!1%@^#&;", "WWWWWWWWW"});
  const Reach reach(run);
  EXPECT_TRUE(reach.Dogs({8, 1}));
  EXPECT_EQ(reach.Ticks({8, 1}), 6);
}

TEST(Reach, TellsWhatComesToDogsFromWhatComesToTheCat) {
  const Hra run = Play({"WWWWWWW", "W1;WJ#W", "WWWWWWW"});
  const Reach reach(run);
  EXPECT_TRUE(reach.FeedsAnybody({5, 1}));
  EXPECT_FALSE(reach.FeedsDogs({5, 1}));
  EXPECT_TRUE(reach.FeedsDogs({2, 1}));
  EXPECT_FALSE(reach.Dogs({5, 1}));
}

// A gem over what lets things fall and stands all the same.
TEST(Reach, FeedsDogsThroughSlimeAndMagicWalls) {
  const auto feeds = [](char floor) {
    std::string row = "XX;XX";
    row[2] = floor;
    const Hra run = Play({"XXXXX", "XXDXX", row, "X1.;X", "XXXXX"});
    return Reach(run).FeedsDogs({2, 1});
  };
  EXPECT_TRUE(feeds('S'));
  EXPECT_TRUE(feeds('M'));
  EXPECT_FALSE(feeds('W'));
  EXPECT_FALSE(feeds('C'));
}

TEST(Reach, FeedsDogsOutOfATeleport) {
  const Picture picture{"WWWWWWWWW", "W1;;W;D;W", "W;WWWWSWW", "W;S;WWWWW", "W;;;WWWWW", "WWWWWWWWW"};
  const Hra run = Play(picture);
  ASSERT_TRUE(run.TeleportActive);
  const Reach reach(run);
  EXPECT_FALSE(reach.Dogs({6, 1}));
  EXPECT_TRUE(reach.FeedsDogs({6, 1}));
}

TEST(Reach, TakesForASplitterWhatAGrowingWallMayEnterBetweenSteels) {
  const auto splits = [](char wall) {
    const Hra run = Play({"WWWWWWW", std::string("W1;;;") + wall + "W", "WW.W;;W", "WWWWWWW"});
    const Reach reach(run);
    EXPECT_FALSE(reach.MaybeSplits({1, 1}));
    EXPECT_FALSE(reach.MaybeSplits({4, 2}));
    EXPECT_FALSE(reach.MaybeSplits({5, 2}));
    return reach.MaybeSplits({2, 2});
  };
  EXPECT_TRUE(splits('E'));
  EXPECT_FALSE(splits('V'));
  EXPECT_FALSE(splits(';'));
}

TEST(Reach, TakesBothPadsOfATeleportForSteel) {
  // The exit lies at 6,2 under steel, the entrance at 2,2 over steel.
  const Hra run = Play({"WWWWWWWWW", "W1;;WWWEW", "W.S.W.S.W", "W.W.....W", "WWWWWWWWW"});
  ASSERT_TRUE(run.TeleportActive);
  ASSERT_EQ(run.TeleportOut, Cell(6, 2));
  const Reach reach(run);
  EXPECT_TRUE(reach.MaybeSplits({5, 2}));
  EXPECT_TRUE(reach.MaybeSplits({7, 2}));
  EXPECT_TRUE(reach.MaybeSplits({1, 2}));
  EXPECT_TRUE(reach.MaybeSplits({3, 2}));
  EXPECT_FALSE(reach.MaybeSplits({4, 3}));
}

std::optional<int> Most(const Picture& picture) {
  const Hra run = Play(picture);
  return MostGems(run, Reach(run));
}

TEST(MostGems, CountsThoseThatDogsCanComeTo) {
  EXPECT_EQ(Most({"WWWWWWW", "W1DD;WW", "WWWDWDW", "WWWWWWW"}), 3);
  EXPECT_EQ(Most({"WWWWW", "W1;;W", "WWWWW"}), 0);
}

// Nine cells of gems are left where it blows up.
TEST(MostGems, CountsNineOfEachButterfly) {
  EXPECT_EQ(Most({"1DU", ";;;"}), 10);
  EXPECT_EQ(Most({"1DUU", ";;;;"}), 19);
  EXPECT_EQ(Most({"1DFL", ";;;;"}), 1);
}

// Each thing that falls through a magic wall may come out as a gem, a gem of the cave only once; so may a
// monster that steps into the cell above it.
TEST(MostGems, CountsWhatAMagicWallMayMake) {
  EXPECT_EQ(Most({"1DM;", ";;;;"}), 1);
  EXPECT_EQ(Most({"1DM;", "RR;;"}), 3);
  EXPECT_EQ(Most({"1;M;", "L;;;"}), 9);
  EXPECT_EQ(Most({"1;M;", "U;;;"}), 9);
  EXPECT_EQ(Most({"1;M;", "FR;:"}), 3);
}

// What falls into it then is lost.
TEST(MostGems, CountsNothingOfAMagicWallThatIsSpent) {
  Hra run = Play({"1DM;", "RR;;"});
  run.MagicState = kMagicRunning;
  EXPECT_EQ(MostGems(run, Reach(run)), 3);
  run.MagicState = kMagicSpent;
  EXPECT_EQ(MostGems(run, Reach(run)), 1);
}

TEST(MostGems, CannotBeToldWhereGemsMayBeMadeForEver) {
  EXPECT_EQ(Most({"1;DA", ";;;;"}), std::nullopt);
  EXPECT_EQ(Most({"1;MR", ";;V;"}), std::nullopt);
  EXPECT_EQ(Most({"1;MR", ";;E;"}), std::nullopt);
  EXPECT_EQ(Most({"1;M;", "A;;;"}), std::nullopt);
}

// An amoeba that no dog can come to turns nothing into gems for them.
TEST(MostGems, AreNotThoseOfAnAmoebaShutAway) {
  EXPECT_EQ(Most({"WWWWWWW", "W1D;WAW", "WWWWWWW"}), 1);
}

// A splitter makes two gems of one, which may go round; without a gem there is nothing to split.
TEST(MostGems, AreThoseOfASplitterOnlyWhereThereIsAGem) {
  EXPECT_EQ(Most({"WW.D.WW", "WW...WW", "WWWEWWW", "W;.W.;W", "W1;;;;W", "WWWWWWW"}), std::nullopt);
  EXPECT_EQ(Most({"WW.R.WW", "WW...WW", "WWWEWWW", "W;.W.;W", "W1;;;;W", "WWWWWWW"}), 0);
}

}  // namespace
}  // namespace zorik::test
