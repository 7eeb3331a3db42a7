#include <gtest/gtest.h>

#include "solve/Impossible.h"
#include "support/Scene.h"

namespace zorik::test {
namespace {

std::string Why(const Picture& picture, int needed) {
  return WhyImpossible(Play(picture, {.needed = needed})).value_or("");
}

TEST(Impossible, IsACaveWithoutADogOrAFinish) {
  EXPECT_EQ(Why({"WWWWW", "W;;DT", "WWWWW"}, 1), "there is no dog");
  EXPECT_EQ(Why({"WWWWW", "W1;DW", "WWWWW"}, 1), "there is no finish");
}

TEST(Impossible, IsAFinishBehindWhatNeverGivesWay) {
  for (const char wall : std::string("WXMCEV%^&")) {
    std::string row = "W1D?;T";
    row[3] = wall;
    EXPECT_EQ(Why({"WWWWWW", row, "WWWWWW"}, 1), "no dog can ever come to the finish") << wall;
  }
}

// Between steels it would be the pad of a teleport.
TEST(Impossible, IsAFinishBehindSlime) {
  EXPECT_EQ(Why({"XXXXXX", "X1DS;T", "XXXXXX"}, 1), "no dog can ever come to the finish");
}

TEST(Impossible, IsNotAFinishBehindWhatMayGiveWay) {
  for (const char wall : std::string("KRIFUALG;")) {
    std::string row = "W1D?;T";
    row[3] = wall;
    EXPECT_EQ(Why({"WWWWWW", row, "WWWWWW"}, 1), "") << wall;
  }
}

// Steel alone stands for ever where something can blow up: a monster, a bomb, fleas, a cat or a second dog
// under a boulder.
TEST(Impossible, IsNoWallButSteelWhereSomethingMayBlowUp) {
  for (const char* const blast : {"F", "L", ":", "I", "N", "J;R", "2;R"}) {
    for (const char wall : std::string("XMCEVS%^&")) {
      std::string row = std::string("W1D?;T;") + blast;
      row[3] = wall;
      EXPECT_EQ(Why({std::string(row.size(), 'X'), row}, 1), "") << blast << wall;
    }
  }
  EXPECT_NE(Why({"XXXXXXXX", "W1;X;T;J"}, 0), "");
}

TEST(Impossible, IsALockWhoseKeyLiesBehindIt) {
  EXPECT_EQ(Why({"WWWWWWW", "W1D#&;T", "WWWWWWW"}, 1), "");
  EXPECT_NE(Why({"WWWWWWW", "W1D&#;T", "WWWWWWW"}, 1), "");
  EXPECT_EQ(Why({"WWWWWWWWW", "W1D@^#&;T", "WWWWWWWWW"}, 1), "");
  EXPECT_NE(Why({"WWWWWWWWW", "W1D@&#^;T", "WWWWWWWWW"}, 1), "");
}

TEST(Impossible, IsATimeBelowTheShortestWay) {
  const Picture picture{"1D" + std::string(50, ';') + "T"};
  EXPECT_EQ(WhyImpossible(Play(picture, {.time = 5, .needed = 1})).value_or(""),
            "no way is shorter than 52 ticks, and the time is up after 50");
  EXPECT_EQ(WhyImpossible(Play(picture, {.time = 6, .needed = 1})), std::nullopt);
}

TEST(Impossible, IsNotATimeThatSufficesForTheNearestFinish) {
  for (const std::string& row : {"1DT" + std::string(60, ';') + "T", "T" + std::string(60, ';') + "1DT"})
    EXPECT_EQ(WhyImpossible(Play({row}, {.time = 5, .needed = 1})), std::nullopt) << row;
}

TEST(Impossible, IsATimeInWhichTheGemsCannotBeTaken) {
  const Picture picture{"1T" + std::string(60, 'D')};
  EXPECT_EQ(WhyImpossible(Play(picture, {.time = 6, .needed = 60})).value_or(""),
            "no way is shorter than 61 ticks, and the time is up after 60");
  EXPECT_EQ(WhyImpossible(Play(picture, {.time = 6, .needed = 59})), std::nullopt);
}

TEST(Impossible, IsNotAFinishThatTheTeleportReaches) {
  const Picture apart{"WWWWWWWWW", "W1D;W;W;T", "W;S;WWS;W", "W;W;W;;;W", "WWWWWWWWW"};
  ASSERT_TRUE(Play(apart, {.needed = 1}).TeleportActive);
  EXPECT_EQ(Why(apart, 1), "");
}

TEST(Impossible, AreMoreGemsThanThereAreWhereNothingMakesAny) {
  EXPECT_EQ(Why({"WWWWWW", "W1DD;T", "WWWWWW"}, 3),
            "3 gems are needed, the dogs can come to 2, and nothing makes more");
  EXPECT_EQ(Why({"WWWWWW", "W1DD;T", "WWWWWW"}, 2), "");
}

TEST(Impossible, GemsBehindSteelDoNotCount) {
  EXPECT_EQ(Why({"WWWWWWWW", "W1D;TWDW", "WWWWWWWW"}, 2),
            "2 gems are needed, the dogs can come to 1, and nothing makes more");
}

TEST(Impossible, IsNotWhatAMakerOfGemsMayStillBring) {
  for (const char maker : std::string("UYZBA")) {
    std::string row = "W1D?;T";
    row[3] = maker;
    EXPECT_EQ(Why({"WWWWWW", row, "WWWWWW"}, 9), "") << maker;
  }
  EXPECT_EQ(Why({"WWWWWW", "W1DM;T", "WRRRRR"}, 6), "");
  EXPECT_EQ(Why({"WWWWWW", "W1D;;T", "W;WEW;"}, 9), "");
}

TEST(Impossible, AreMoreGemsThanTheMakersCanMake) {
  EXPECT_EQ(Why({"WWWWWW", "W1DU;T", "WWWWWW"}, 11),
            "11 gems are needed, the dogs can come to 1, and no more than 10 can come to be");
  EXPECT_EQ(Why({"WWWWWW", "W1DM;T", "WRRRRR"}, 7),
            "7 gems are needed, the dogs can come to 1, and no more than 6 can come to be");
}

// They fall where no dog can go.
TEST(Impossible, IsNotWhatASplitterBringsThroughSteel) {
  const Picture picture{"WW.D.WW", "WW...WW", "WWWEWWW", "W;.W.;W", "W1;;;;T", "WWWWWWW"};
  EXPECT_EQ(Why(picture, 2), "");
}

TEST(Impossible, AMakerBehindSteelBringsNothing) {
  EXPECT_NE(Why({"WWWWWWWW", "W1D;TWUW", "WWWWWWWW"}, 9), "");
}

TEST(ARun, IsNotLostByTheGemsThatItHasTaken) {
  Hra run = Play({"WWWWWW", "W1DD;T", "WWWWWW"}, {.needed = 2});
  Pass(run, 1, "R");
  ASSERT_EQ(run.GemsCollected, 1);
  EXPECT_FALSE(IsLost(run));
  EXPECT_TRUE(IsLost(Play({"WWWWWW", "W1DD;T", "WWWWWW"}, {.needed = 3})));
}

// Three steps are left and three ticks, then two.
TEST(ARun, IsLostWhenTheTimeIsShorterThanTheWay) {
  Hra run = Play({"WWWWWW", "W1D;T;", "WWWWWW"}, {.time = 1, .needed = 1});
  Pass(run, 7);
  EXPECT_FALSE(IsLost(run));
  Pass(run, 1);
  EXPECT_TRUE(IsLost(run));
}

// Nothing is said of a cave in which something falls, since what it may strike is not foreseen.
TEST(ARun, IsNotCalledLostWhileAnythingFalls) {
  const Picture picture{"WWWWWWW", "W1X;TrW", "WWWWW.W", "WWWWW.W", "WWWWWWW"};
  Hra run = Live(picture, {.needed = 0});
  EXPECT_FALSE(IsLost(run));
  Pass(run, 4);
  EXPECT_TRUE(IsLost(run));
}

// The boulder falls on for a while, but nobody goes any further.
TEST(ARun, IsLostWhenTheTimeIsUpWhateverStillFalls) {
  Picture picture(20, "WWWWW.W");
  picture[0] = picture[19] = "WWWWWWW";
  picture[1] = "W1;;TrW";
  Hra run = Live(picture, {.time = 1, .needed = 0});
  Pass(run, 9);
  EXPECT_FALSE(IsLost(run));
  Pass(run, 1);
  ASSERT_FALSE(IsAtRest(run));
  EXPECT_TRUE(IsLost(run));
}

TEST(ARun, ThatIsWonIsNotLost) {
  Hra run = Play({"WWWWW", "W1DTW", "WWWWW"}, {.needed = 1});
  Pass(run, 2, "R");
  ASSERT_TRUE(run.Win);
  EXPECT_FALSE(IsLost(run));
}

TEST(ARun, IsNotAtRestWhileAnythingBurns) {
  EXPECT_TRUE(IsAtRest(Live({"WWWWW", "W1..W", "WWWWW"})));
  EXPECT_FALSE(IsAtRest(Live({"WWWWW", "W1.xW", "WWWWW"})));
}

TEST(ARun, IsNotAtRestWhileABombThatWasStruckIsDueToBurst) {
  Hra run = Live({"WWWWW", "W1..W", "WWWWW"});
  run.SetObject({3, 1}, kBoulder, kFlat);
  EXPECT_FALSE(IsAtRest(run));
}

// What stands has the state of things that lie only where it has grown into a cell over a magic wall, and
// falls then.
TEST(ARun, IsNotAtRestWhileAWallMayFall) {
  for (const auto code :
       {kSteel, kBrick, kBiomass, kWallH, kWallV, kSlime, kFinish, kLockRed, kLockGreen, kLockBlue}) {
    Hra run = Live({"WWWWW", "W1..W", "WWWWW"});
    run.SetObject({3, 1}, code, kResting);
    EXPECT_FALSE(IsAtRest(run)) << code;
    run.SetObject({3, 1}, code, kFlat);
    EXPECT_TRUE(IsAtRest(run)) << code;
  }
  for (const auto code : {kBoulder, kGem, kBox}) {
    Hra run = Live({"WWWWW", "W1..W", "WWWWW"});
    run.SetObject({3, 1}, code, kResting);
    EXPECT_TRUE(IsAtRest(run)) << code;
  }
}

TEST(ARun, IsLostWithTheOnlyDogThatCouldComeToTheFinish) {
  Hra run = Play({"WWWWWWW", "W1;WWWW", "WWWW2;T", "WWWWWWW"}, {.needed = 0});
  EXPECT_FALSE(IsLost(run));
  run.Dog[2].Alive = false;
  run.SetObject({4, 2}, kSpace, kFlat);
  EXPECT_TRUE(IsLost(run));
}

}  // namespace
}  // namespace zorik::test
