#include <gtest/gtest.h>

#include "support/Scene.h"

namespace zorik::test {
namespace {

// The entrance is (1, 1), above steel; the exit is (3, 1), under steel.
const Picture kStation{
    "...W.",
    ".S.S.",
    ".W...",
};
constexpr Cell kIn(1, 1);
constexpr Cell kOut(3, 1);
constexpr int kCallsOfARide = 4;

void Ride(Hra& hra, int calls) {
  for (int i = 0; i < calls; ++i) Teleport(hra);
}

TEST(Teleport, WithAnEmptyEntranceRests) {
  Diary diary;
  Hra hra = Play(kStation, {}, &diary);
  ASSERT_TRUE(hra.TeleportActive);
  ASSERT_EQ(hra.TeleportIn, kIn);
  ASSERT_EQ(hra.TeleportOut, kOut);
  diary.Clear();
  Ride(hra, 3);
  EXPECT_EQ(hra.TeleportStage, 0);
  EXPECT_TRUE(diary.entries.empty());
}

TEST(Teleport, WithTheExitTakenKeepsWhateverStandsOnTheEntranceWaiting) {
  for (const std::uint16_t taken : {kDirt, kDog, kVacated}) {
    SCOPED_TRACE(taken);
    Hra hra = Play(kStation);
    Put(hra, 1, 1, 'R');
    hra.SetField(kOut, taken);
    Ride(hra, 3);
    EXPECT_EQ(hra.TeleportStage, 0);
    EXPECT_EQ(hra.Field(kIn), kBoulder);
    hra.SetField(kOut, kSpace);
    Ride(hra, kCallsOfARide);
    EXPECT_EQ(hra.Field(kOut), kBoulder);
  }
}

TEST(Teleport, TakesFourTicksInWhichBothPadsAreSteel) {
  Hra hra = Play(kStation);
  Put(hra, 1, 1, ';');
  for (int stage = 2; stage <= 4; ++stage) {
    Teleport(hra);
    EXPECT_EQ(hra.TeleportStage, stage);
    EXPECT_EQ(hra.Field(kIn), kSteel);
    EXPECT_EQ(hra.Field(kOut), kSteel);
  }
  Teleport(hra);
  EXPECT_EQ(hra.TeleportStage, 0);
  EXPECT_EQ(Drawn(hra), (Picture{
                            "...W.",
                            "...;.",
                            ".W...",
                        }));
}

TEST(Teleport, RepaintsBothPadsInEachOfItsTicks) {
  Diary diary;
  Hra hra = Play(kStation, {}, &diary);
  Put(hra, 1, 1, ';');
  diary.Clear();
  for (int call = 1; call < kCallsOfARide; ++call) {
    Teleport(hra);
    EXPECT_EQ(diary.Count("cell 1,1"), call);
    EXPECT_EQ(diary.Count("cell 3,1"), call);
  }
  Teleport(hra);
  EXPECT_EQ(diary.Count("cell 1,1"), kCallsOfARide + 1);  // also as the pads that they are then
  EXPECT_EQ(diary.Count("cell 3,1"), kCallsOfARide + 1);
}

TEST(Teleport, CarriesAnyObjectWithItsStateAndMark) {
  for (const ObjectLetter& object : kObjectLetters) {
    if (object.code == kSpace) continue;
    SCOPED_TRACE(object.letter);
    Hra hra = Play(kStation);
    hra.SetField(kIn, object.code);
    hra.SetFieldState(kIn, object.state);
    hra.SetFieldMark(kIn, 3);
    hra.SetFieldState(kOut, kResting);  // nothing of what the exit was is left
    hra.SetFieldMark(kOut, 9);
    Ride(hra, kCallsOfARide);
    EXPECT_EQ(hra.Field(kOut), object.code);
    EXPECT_EQ(hra.FieldState(kOut), object.state);
    EXPECT_EQ(hra.FieldMark(kOut), 3);
    EXPECT_EQ(hra.Field(kIn), kSpace);
    EXPECT_EQ(hra.FieldState(kIn), kFlat);
    EXPECT_EQ(hra.FieldMark(kIn), 0);
  }
}

TEST(Teleport, TheEntranceThatAFallingGemHasEnteredLandsWithAThudAsSteel) {
  Diary diary;
  Hra hra = Play(kStation, {}, &diary);
  Put(hra, 1, 1, 'D');
  hra.SetFieldState(kIn, kFalling);
  Teleport(hra);
  diary.Clear();
  AmoebaList room;
  ObjectScan(hra, room);
  EXPECT_EQ(SoundsOf(diary), std::vector<SoundId>{SoundId::Boulder});
  EXPECT_EQ(hra.Field(kIn), kSteel);
  EXPECT_EQ(hra.FieldState(kIn), kResting);
}

TEST(Teleport, AFallingBoulderArrivesFalling) {
  Hra hra = Play(kStation);
  Put(hra, 1, 1, 'R');
  hra.SetFieldState(kIn, kFalling);
  Ride(hra, kCallsOfARide);
  EXPECT_EQ(hra.FieldState(kOut), kFalling);
}

TEST(Teleport, TheEntranceKeepsTheStateOfThePassengerWhileItIsSteelAndLosesItsMarkAtOnce) {
  Hra hra = Play(kStation);
  Put(hra, 1, 1, 'B');
  hra.SetFieldState(kIn, kResting);
  Teleport(hra);
  EXPECT_EQ(hra.Field(kIn), kSteel);
  EXPECT_EQ(hra.FieldState(kIn), kResting);
  EXPECT_EQ(hra.FieldMark(kIn), 0);
  EXPECT_EQ(hra.TeleportMark, 4);
}

TEST(Teleport, AnExplosionDuringTheRideReplacesNeitherPadAndSparesThePassenger) {
  Hra hra = Play({
      "...W.",
      "1S.S.",
      ".W...",
  });
  Put(hra, 1, 1, 'J');
  hra.CatPresent = true;
  hra.CatX = 1;
  hra.CatY = 1;
  Ride(hra, 2);
  Exploze(hra, {2, 1});
  EXPECT_EQ(Drawn(hra), (Picture{
                            ".xxW.",
                            "1WxW.",
                            ".Wxx.",
                        }));
  EXPECT_TRUE(hra.CatPresent);
  Ride(hra, 2);
  EXPECT_EQ(hra.Field(kOut), kCat);
}

TEST(Teleport, APassengerCannotBeHitSinceItIsInNoCell) {
  // The boulder over the entrance is on steel as long as the dog rides.
  Hra hra = Play({
      ".R.W.",
      ".S.S.",
      ".W...",
  });
  Put(hra, 1, 1, 'N');
  Pass(hra);
  hra.SetFieldState({1, 0}, kFalling);
  Pass(hra);
  EXPECT_EQ(hra.Field({1, 0}), kBoulder);
  EXPECT_EQ(hra.Field(kIn), kSteel);
  EXPECT_EQ(hra.Count(kExplosion), 0);
}

TEST(Teleport, TheCatRidesRestsOnTheWayAndStandsAtTheExit) {
  Hra hra = Play(
      {
          ".....",
          "JS.W.",
          ".W.S.",
      },
      {.script = "*A/F/Z"});  // to the right for good
  for (int tick = 1; tick <= 3; ++tick) {
    Pass(hra);
    EXPECT_TRUE(hra.CatInTransit);
    EXPECT_EQ(hra.CatX, 1);
    EXPECT_EQ(hra.CatY, 1);
    EXPECT_EQ(Drawn(hra), (Picture{
                              ".....",
                              ".W.W.",
                              ".W.W.",
                          }));
  }
  Pass(hra);
  EXPECT_FALSE(hra.CatInTransit);
  EXPECT_EQ(hra.CatX, 3);
  EXPECT_EQ(hra.CatY, 2);
  EXPECT_EQ(Drawn(hra)[2], ".W.J.");
  Pass(hra);
  EXPECT_EQ(Drawn(hra), (Picture{
                            ".....",
                            "...W.",
                            ".W..J",
                        }));
}

TEST(Teleport, AnotherCatThatRidesTakesThePlaceOfTheDeadOneWithIt) {
  Hra hra = Play(
      {
          "....J",
          ".S.WW",
          ".W.S.",
      },
      {.script = "*A-M/Z"});
  Exploze(hra, {4, 0});
  ASSERT_FALSE(hra.CatPresent);
  Put(hra, 1, 1, 'J');
  Ride(hra, 4);
  EXPECT_EQ(hra.Field({3, 2}), kCat);
  EXPECT_EQ(Cell(hra.CatX, hra.CatY), Cell(3, 2));
  EXPECT_FALSE(hra.CatPresent);
}

TEST(Teleport, AnEmptiedEntranceHasNoMarkWhateverItGotMeanwhile) {
  Hra hra = Play(kStation);
  Put(hra, 1, 1, 'B');
  Ride(hra, 2);
  hra.SetFieldMark(kIn, 7);
  Ride(hra, 2);
  EXPECT_EQ(hra.FieldMark(kIn), 0);
  EXPECT_EQ(hra.FieldMark(kOut), 4);
}

TEST(Teleport, RunsBeforeTheObjectsOfTheTickMove) {
  Hra hra = Play(kStation);
  Put(hra, 1, 1, 'R');
  Pass(hra, 3);
  EXPECT_EQ(Drawn(hra)[1], ".W.W.");
  Pass(hra);  // it arrives and falls
  EXPECT_EQ(Drawn(hra), (Picture{
                            "...W.",
                            ".....",
                            ".W.r.",
                        }));
}

TEST(Teleport, ADogRidesWithItsInputFrozenAndIsNotDeclaredDead) {
  Hra hra = Play({
      "...W.",
      "1S.S.",
      ".W...",
  });
  Pass(hra, 1, "R");
  ASSERT_EQ(Drawn(hra)[1], ".1...");
  for (int tick = 2; tick <= 4; ++tick) {
    const std::size_t before = hra.RecordText.size();
    Pass(hra, 1, "D");
    EXPECT_TRUE(hra.TeleportDogBusy);
    EXPECT_EQ(Drawn(hra)[1], ".W.W.");
    EXPECT_TRUE(hra.Dog[1].Alive);
    EXPECT_EQ(hra.RecordText.size() - before, 1U + 2U);  // the amoeba's draw and the line end
  }
  Pass(hra, 1, "D");
  EXPECT_FALSE(hra.TeleportDogBusy);
  EXPECT_EQ(Drawn(hra), (Picture{
                            "...W.",
                            ".....",
                            ".W.1.",
                        }));
  EXPECT_TRUE(hra.Dog[1].Alive);
}

TEST(Teleport, APassengerThatIsNoDogLeavesTheInputAlone) {
  Hra hra = Play({
      "1..W.",
      ".S.S.",
      ".W...",
  });
  Put(hra, 1, 1, ';');
  Teleport(hra);
  EXPECT_FALSE(hra.TeleportDogBusy);
  EXPECT_FALSE(hra.CatInTransit);
  Ride(hra, kCallsOfARide - 1);
  EXPECT_EQ(hra.Dog[1].x, 0);
  EXPECT_EQ(hra.Dog[1].y, 0);
}

TEST(Teleport, ARideThatHasBegunDoesNotBeginAgain) {
  Hra hra = Play(kStation);
  Put(hra, 1, 1, ';');
  Teleport(hra);
  hra.SetField(kOut, kSpace);
  Teleport(hra);
  EXPECT_EQ(hra.TeleportStage, 3);
  EXPECT_EQ(hra.TeleportField, kDirt);
}

TEST(Teleport, ASlimeUnderTheFrameOfTheCaveIsAnExit) {
  Hra hra = Play({".S", "S.", "W."});
  ASSERT_TRUE(hra.TeleportActive);
  EXPECT_EQ(hra.TeleportIn, Cell(0, 1));
  EXPECT_EQ(hra.TeleportOut, Cell(1, 0));
}

// The steered unit

// Dog 2 walks to the entrance and boards.
Hra BoardDogTwo() {
  Hra hra = Play({
      "1..W.",
      "2S.S.",
      ".W..3",
  });
  Pass(hra, 1, "2");
  Pass(hra, 1, "R");
  EXPECT_EQ(hra.ActiveDog, 2);
  return hra;
}

TEST(Teleport, TheUnitNumberedOneBelowThePassengerTakesOverAndItsEntryArrives) {
  Hra hra = BoardDogTwo();
  Pass(hra);
  EXPECT_EQ(hra.ActiveDog, 1);
  Pass(hra, 2);
  EXPECT_TRUE(hra.Dog[2].Alive);  // nobody looks while a dog rides
  Pass(hra);
  EXPECT_EQ(hra.Dog[1].x, 3);
  EXPECT_EQ(hra.Dog[1].y, 1);
  EXPECT_TRUE(hra.Dog[1].Alive);
  EXPECT_EQ(hra.Dog[2].x, 1);
  EXPECT_FALSE(hra.Dog[2].Alive);  // its entry still names the entrance
  EXPECT_EQ(Drawn(hra), (Picture{
                            "H..W.",
                            "...1.",
                            ".W..3",
                        }));
}

TEST(Teleport, ThePassengerStaysTheSteeredUnitWhenTheOneBelowDoesNotLive) {
  Hra hra = BoardDogTwo();
  hra.Dog[1].Alive = false;
  Pass(hra, kCallsOfARide);
  EXPECT_EQ(hra.ActiveDog, 2);
  EXPECT_EQ(hra.Dog[2].x, 3);
  EXPECT_EQ(hra.Dog[2].y, 1);
  EXPECT_TRUE(hra.Dog[2].Alive);
}

TEST(Teleport, BelowDogOneComesTheSwarm) {
  Hra hra = Play({
      "N..W.",
      "1S.S.",
      ".W...",
  });
  Pass(hra, 1, "R");
  Pass(hra);
  EXPECT_EQ(hra.ActiveDog, 0);
  Pass(hra, 3);
  EXPECT_EQ(hra.Dog[0].x, 3);
  EXPECT_EQ(hra.Dog[0].y, 1);
  EXPECT_FALSE(hra.Dog[1].Alive);
}

TEST(Teleport, AnArrivalBringsTheSteeredUnitToLife) {
  Hra hra = BoardDogTwo();
  Pass(hra);
  hra.Dog[1].Alive = false;
  Pass(hra, 3);
  EXPECT_TRUE(hra.Dog[1].Alive);
}

TEST(Teleport, OfTwoDogsEnteredOnTheEntranceTheHigherNumberIsThePassenger) {
  Hra hra = BoardDogTwo();
  hra.Dog[3] = hra.Dog[2];
  hra.ActiveDog = 1;
  Teleport(hra);
  EXPECT_EQ(hra.ActiveDog, 2);
}

TEST(Teleport, WithOneDogNothingChanges) {
  Diary diary;
  Hra hra = Play(
      {
          "...W.",
          "1S.S.",
          ".W...",
      },
      {}, &diary);
  Pass(hra, 1, "R");
  diary.Clear();
  Pass(hra, kCallsOfARide);
  EXPECT_EQ(hra.ActiveDog, 1);
  EXPECT_EQ(hra.Dog[1].x, 3);
  EXPECT_EQ(SoundsOf(diary), std::vector<SoundId>{});
}

}  // namespace
}  // namespace zorik::test
