#include <gtest/gtest.h>

#include "run/RunFate.h"
#include "support/Scene.h"

namespace zorik::test {
namespace {

// A dog is dead when it is found missing.
void KillTheDog(Hra& run, int x, int y) {
  Put(run, x, y, '.');
  Pass(run);
}

TEST(NothingHelps, OnceTheLastDogIsDead) {
  Hra run = Play({"WWWWWW", "W1..2W", "WWWWWW"});
  EXPECT_FALSE(NothingHelps(run));
  KillTheDog(run, 1, 1);
  EXPECT_TRUE(UnitIsLost(run));
  EXPECT_FALSE(NothingHelps(run));
  KillTheDog(run, 4, 1);
  EXPECT_TRUE(NothingHelps(run));
}

// They can still be steered, but never come into the finish.
TEST(NothingHelps, WhereOnlyFleasAreLeft) {
  Hra run = Play({"WWWWWW", "W1..NW", "W...TW", "WWWWWW"});
  EXPECT_FALSE(NothingHelps(run));
  KillTheDog(run, 1, 1);
  EXPECT_TRUE(run.Dog[0].Alive);
  EXPECT_TRUE(NothingHelps(run));
}

TEST(NothingHelps, WhenTheTimeIsUp) {
  Hra run = Play({"WWWWWW", "W1..TW", "WWWWWW"}, {.time = 2});
  Pass(run, 2 * kTicksPerSecond - 1);
  EXPECT_FALSE(NothingHelps(run));
  Pass(run);
  EXPECT_TRUE(NothingHelps(run));
}

// Who rides in the teleport is in no cell, but comes out of it alive.
TEST(NothingHelps, NotWhileADogIsInTheTeleport) {
  Hra run = Play({"WWWWWW", "W1..TW", "WWWWWW"}, {.time = 2});
  KillTheDog(run, 1, 1);
  ASSERT_TRUE(NothingHelps(run));
  run.TeleportDogBusy = true;
  EXPECT_FALSE(NothingHelps(run));
  Pass(run, 2 * kTicksPerSecond);
  run.TeleportDogBusy = true;
  EXPECT_TRUE(NothingHelps(run)) << "the time is up";
}

TEST(AUnit, IsLostThatWasThereAndIsDead) {
  Hra run = Play({"WWWWWW", "W1..3W", "WWWWWW"});
  EXPECT_FALSE(UnitIsLost(run)) << "there is no second dog";
  KillTheDog(run, 4, 1);
  EXPECT_TRUE(UnitIsLost(run)) << "the last of them";
}

}  // namespace
}  // namespace zorik::test
