#include <gtest/gtest.h>

#include "support/Scene.h"

namespace zorik::test {
namespace {

using Entries = std::vector<std::string>;

// A run with a diary that starts empty.
struct Crew {
  explicit Crew(const Picture& picture) : hra(Play(picture, {}, &diary)) { diary.Clear(); }

  Diary diary;
  Hra hra;
};

void Kill(Hra& hra, int n) {
  hra.Dog[static_cast<std::size_t>(n)].Alive = false;
}

TEST(ZmenitPsa, DoesNothingAtAllWhereThereIsOneUnit) {
  Crew crew({"1.."});
  crew.hra.DogIdleTicks = 50;
  for (const int selector : {1, -1, 0, 20, 30}) ZmenitPsa(crew.hra, selector);
  EXPECT_EQ(crew.diary.entries, Entries{});
  EXPECT_EQ(crew.hra.ActiveDog, 1);
  EXPECT_EQ(crew.hra.DogIdleTicks, 50);
}

TEST(ZmenitPsa, ShowsTheOldUnitWaitingRepaintsBothShowsTheNewOneSteeredAndBarks) {
  Crew crew({"1.2"});
  ZmenitPsa(crew.hra, 30);
  EXPECT_EQ(crew.diary.entries, (Entries{"dog 1 1", "cell 0,0", "cell 2,0", "dog 2 0", "sound 7"}));
  EXPECT_EQ(crew.hra.ActiveDog, 2);
}

TEST(ZmenitPsa, DoesNotShowADeadUnitAsWaiting) {
  Crew crew({"1.2"});
  Kill(crew.hra, 1);
  ZmenitPsa(crew.hra, 30);
  EXPECT_EQ(crew.diary.entries, (Entries{"cell 0,0", "cell 2,0", "dog 2 0", "sound 7"}));
}

TEST(ZmenitPsa, StartsPoseAndIdleTicksAfresh) {
  Crew crew({"1.2"});
  crew.hra.DogIdleTicks = 50;
  crew.hra.DogPose = 39;
  ZmenitPsa(crew.hra, 30);
  EXPECT_EQ(crew.hra.DogPose, 0);
  EXPECT_EQ(crew.hra.DogIdleTicks, 0);
}

TEST(ZmenitPsa, ForAnAbsentOrDeadUnitLeavesTheUnitButRepaintsAndResetsIdleTicksWithoutABark) {
  for (const int selector : {100, 40, 10}) {
    Crew crew({"123"});
    Kill(crew.hra, 3);
    crew.hra.DogIdleTicks = 50;
    ZmenitPsa(crew.hra, selector);
    EXPECT_EQ(crew.hra.ActiveDog, 1) << selector;
    EXPECT_EQ(crew.hra.DogIdleTicks, 0);
    EXPECT_EQ(crew.diary.entries, (Entries{"dog 1 1", "cell 0,0", "cell 0,0", "dog 1 0"}));
  }
}

TEST(ZmenitPsa, WithANumberAboveNineChangesNoUnit) {
  Crew crew({"123"});
  for (const int selector : {110, 120, 1910, 32760}) ZmenitPsa(crew.hra, selector);
  EXPECT_EQ(crew.hra.ActiveDog, 1);
}

TEST(ZmenitPsa, ReadsASelectorBelowTenTimesTheFirstUnitAsNoUnit) {
  Crew crew({"12N"});
  ZmenitPsa(crew.hra, 9);
  EXPECT_EQ(crew.hra.ActiveDog, 1);
  ZmenitPsa(crew.hra, 10);
  EXPECT_EQ(crew.hra.ActiveDog, 0);
  ZmenitPsa(crew.hra, 39);
  EXPECT_EQ(crew.hra.ActiveDog, 2);
}

TEST(SteppingForward, GoesFromTheLastDogToTheFirstAndPassesTheSwarmBy) {
  Crew crew({"123N"});
  for (const int expected : {2, 3, 1, 2}) {
    ZmenitPsa(crew.hra, 1);
    EXPECT_EQ(crew.hra.ActiveDog, expected);
  }
}

TEST(SteppingBack, ReachesTheSwarmBeforeTheLastDog) {
  Crew crew({"123N"});
  for (const int expected : {0, 3, 2, 1, 0}) {
    ZmenitPsa(crew.hra, -1);
    EXPECT_EQ(crew.hra.ActiveDog, expected);
  }
}

TEST(Stepping, PassesDeadAndAbsentDogsBy) {
  Crew crew({"12.4.6"});
  Kill(crew.hra, 4);
  ZmenitPsa(crew.hra, 1);
  EXPECT_EQ(crew.hra.ActiveDog, 2);
  ZmenitPsa(crew.hra, 1);
  EXPECT_EQ(crew.hra.ActiveDog, 6);
  ZmenitPsa(crew.hra, -1);
  EXPECT_EQ(crew.hra.ActiveDog, 2);
}

TEST(Stepping, ComesBackToTheOnlyOneThatLivesWithoutABark) {
  for (const int way : {1, -1}) {
    Crew crew({"123"});
    Kill(crew.hra, 1);
    Kill(crew.hra, 3);
    crew.hra.ActiveDog = 2;
    ZmenitPsa(crew.hra, way);
    EXPECT_EQ(crew.hra.ActiveDog, 2);
    EXPECT_TRUE(crew.hra.MultiDog);
    EXPECT_FALSE(crew.diary.Has("sound 7"));
    EXPECT_TRUE(crew.diary.Has("dog 2 0"));
  }
}

TEST(Stepping, WithNobodyAliveKeepsTheUnitRepaintsNothingAndEndsTheChoosing) {
  for (const int way : {1, 0, -1}) {
    Crew crew({"123"});
    for (const int n : {1, 2, 3}) Kill(crew.hra, n);
    crew.hra.ActiveDog = 2;
    crew.hra.DogIdleTicks = 50;
    ZmenitPsa(crew.hra, way);
    EXPECT_EQ(crew.hra.ActiveDog, 2);
    EXPECT_FALSE(crew.hra.MultiDog);
    EXPECT_EQ(crew.diary.entries, Entries{});
    EXPECT_EQ(crew.hra.DogIdleTicks, 50);
  }
}

TEST(SteppingForward, FindsNobodyWhenOnlyTheSwarmLivesButLetsItBeChosenStill) {
  Crew crew({"1N2"});
  Kill(crew.hra, 1);
  Kill(crew.hra, 2);
  ZmenitPsa(crew.hra, 1);
  EXPECT_EQ(crew.hra.ActiveDog, 1);
  EXPECT_TRUE(crew.hra.MultiDog);
  EXPECT_EQ(crew.diary.Count("cell *"), 0);
  ZmenitPsa(crew.hra, 10);
  EXPECT_EQ(crew.hra.ActiveDog, 0);
}

TEST(SteppingByNought, StaysWithTheUnitAndShowsItSteered) {
  Crew crew({"1.2"});
  ZmenitPsa(crew.hra, 0);
  EXPECT_EQ(crew.hra.ActiveDog, 1);
  EXPECT_EQ(crew.diary.entries, (Entries{"dog 1 1", "cell 0,0", "cell 0,0", "dog 1 0"}));
}

TEST(ZmenitPsa, SetsOffTheSensorsBesideBothUnitsWhileATickRuns) {
  Crew crew({"1G.", "WWW", "2G."});
  ZmenitPsa(crew.hra, 30);
  EXPECT_EQ(crew.hra.FieldMark({1, 0}), 0);
  crew.hra.SensorsListen = true;
  ZmenitPsa(crew.hra, 20);
  EXPECT_EQ(crew.hra.FieldMark({1, 0}), 1);
  EXPECT_EQ(crew.hra.FieldMark({1, 2}), 1);
}

TEST(TheSwarm, CountsAsAliveWhenAllItsFleasAreGone) {
  Crew crew({"1.N"});
  crew.hra.SetField({2, 0}, kSpace);
  Pass(crew.hra, 3);
  EXPECT_TRUE(crew.hra.Dog[0].Alive);
  ZmenitPsa(crew.hra, 10);
  EXPECT_EQ(crew.hra.ActiveDog, 0);
}

TEST(Keys, ThatChooseUnitsDoNothingWithOneUnitNotEvenARepaint) {
  Diary diary;
  Hra hra = Play({"1.."}, {}, &diary);
  hra.DogIdleTicks = 50;
  diary.Clear();
  Klavesy(hra, Keys(">012"));
  EXPECT_EQ(diary.entries, Entries{});
  EXPECT_EQ(hra.DogIdleTicks, 50);
}

}  // namespace
}  // namespace zorik::test
