#include <gtest/gtest.h>

#include "support/Pictured.h"

namespace zorik {
namespace {

using test::Of;
using test::Pictured;

TEST(CellPictures, ShowAClosedFinishAsSteel) {
  Pictured cave({"1T"}, {}, 1);
  EXPECT_EQ(cave.At(1, 0), Of(kSteel));
}

TEST(CellPictures, ShowTheClosedFinishWhenNothingShallSurprise) {
  Pictured cave({"1T"}, {}, 1);
  cave.pictures.SetNoSurprise(true);
  EXPECT_EQ(cave.Again(1, 0), Of(kSetNoSurprise, 0, 3));
}

TEST(CellPictures, LetAnOpenFinishFollowTheClock) {
  Pictured cave({"1T"}, {}, 4);
  cave.pictures.SetNoSurprise(true);
  cave.hra.ExitOpen = true;
  cave.hra.Elapsed = 7;
  EXPECT_EQ(cave.Again(1, 0), Of(kFinish, 0, 3));
}

TEST(CellPictures, ShowAnotherMomentWithoutDrawingAnewWhatStaysThere) {
  Pictured cave({";;;;;;;;;;;;", "XXXXXXXXXXXX", "RRRRRRRRRRRR", "1D......;..;"});
  std::vector<CellPicture> before;
  for (int y = 0; y < 4; ++y) {
    for (int x = 0; x < 12; ++x) before.push_back(cave.At(x, y));
  }
  cave.hra.SetObject(Cell(0, 0), kSpace, kFlat);
  cave.hra.SetObject(Cell(1, 2), kSpace, kFlat);
  cave.hra.Elapsed = 3;
  cave.pictures.ShowMoment(cave.hra);
  int kept = 0;
  for (int y = 0; y < 3; ++y) {
    for (int x = 0; x < 12; ++x)
      kept += cave.At(x, y) == before[static_cast<std::size_t>(y * 12 + x)] ? 1 : 0;
  }
  EXPECT_EQ(kept, 36 - 2) << "all but the two cells that are empty now";
  EXPECT_EQ(cave.At(0, 0).Pic, kSetSpace);
  EXPECT_EQ(cave.At(1, 2).Pic, kSetSpace);
  EXPECT_EQ(cave.At(1, 3), Of(kSetGem, 0, 3)) << "a gem glitters with the clock";
}

TEST(CellPictures, ShowGrowingWallsAsBrick) {
  Pictured cave({"1.E.V"}, {}, 1);
  EXPECT_EQ(cave.At(2, 0), Of(kBrick));
  EXPECT_EQ(cave.At(4, 0), Of(kBrick));
}

TEST(CellPictures, TellWhichWayWallsGrowWhenNothingShallSurprise) {
  Pictured cave({"1.E.V"}, {}, 1);
  cave.pictures.SetNoSurprise(true);
  EXPECT_EQ(cave.Again(2, 0), Of(kSetNoSurprise, 0, 1));
  EXPECT_EQ(cave.Again(4, 0), Of(kSetNoSurprise, 0, 2));
}

TEST(CellPictures, ShowAMagicWallOnlyWhileItRuns) {
  Pictured cave({"1MX"}, {}, 4);
  EXPECT_EQ(cave.At(1, 0).Pic, kBrick);
  cave.hra.MagicState = kMagicRunning;
  cave.hra.Elapsed = 6;
  EXPECT_EQ(cave.Again(1, 0), Of(kSetMagicWall, 0, 2));
  EXPECT_EQ(cave.Again(2, 0).Pic, kBrick) << "other bricks are no magic wall";
  cave.hra.MagicState = kMagicSpent;
  EXPECT_EQ(cave.Again(1, 0).Pic, kBrick);
}

TEST(CellPictures, ShowAHiddenMagicWallUntilItRuns) {
  Pictured cave({"1M"}, {}, 1);
  cave.pictures.SetNoSurprise(true);
  EXPECT_EQ(cave.Again(1, 0), Of(kSetNoSurprise, 0, 0));
  cave.hra.MagicState = kMagicRunning;
  EXPECT_EQ(cave.Again(1, 0), Of(kSetMagicWall));
  cave.hra.MagicState = kMagicSpent;
  EXPECT_EQ(cave.Again(1, 0), Of(kBrick));
}

TEST(CellPictures, GiveEachKeyAndLockTheColumnOfItsColour) {
  Pictured cave({"1!@#%^&"}, {}, 1);
  EXPECT_EQ(cave.At(1, 0), Of(kSetKeys, 0));
  EXPECT_EQ(cave.At(2, 0), Of(kSetKeys, 1));
  EXPECT_EQ(cave.At(3, 0), Of(kSetKeys, 2));
  EXPECT_EQ(cave.At(4, 0), Of(kSetLocks, 0));
  EXPECT_EQ(cave.At(5, 0), Of(kSetLocks, 1));
  EXPECT_EQ(cave.At(6, 0), Of(kSetLocks, 2));
}

TEST(CellPictures, LetKeysFollowTheClockAndLocksNot) {
  Pictured cave({"1@"}, {}, 4);
  cave.hra.Elapsed = 5;
  EXPECT_EQ(cave.Again(1, 0), Of(kSetKeys, 1, 1));
}

TEST(CellPictures, TellBoxesBoulderBombsAndStruckBombsApart) {
  Pictured cave({"1KIR"}, {}, 1);
  EXPECT_EQ(cave.At(1, 0), Of(kBox));
  EXPECT_EQ(cave.At(2, 0), Of(kSetBomb, 0, 0));
  EXPECT_EQ(cave.At(3, 0), Of(kBoulder));
  cave.hra.SetFieldState({3, 0}, kFlat);
  EXPECT_EQ(cave.Again(3, 0), Of(kSetBomb, 0, 1));
}

TEST(CellPictures, HaveAFixedPatternOfSpaceByPosition) {
  Pictured cave({"1....", "....."}, {}, 3);
  EXPECT_EQ(cave.At(1, 0), Of(kSpace, 0, 1));
  EXPECT_EQ(cave.At(2, 0), Of(kSpace, 0, 2));
  EXPECT_EQ(cave.At(3, 0), Of(kSpace, 0, 0));
  EXPECT_EQ(cave.At(2, 1), Of(kSpace, 0, 0));
  for (int i = 0; i < 20; ++i) EXPECT_EQ(cave.Again(1, 0), Of(kSpace, 0, 1));
}

TEST(CellPictures, DrawTheRowOfDirtByLotAtEachRepaint) {
  Pictured cave({"1;"}, {}, 4);
  std::array<int, 4> seen{};
  for (int i = 0; i < 4000; ++i) ++seen[cave.Again(1, 0).Row];
  for (const int count : seen) EXPECT_NEAR(count, 1000, 150);
}

TEST(CellPictures, DrawTheRowsOfAllStillThingsByLot) {
  Pictured cave({";;;;;;;", "1;RXWK%", ";;;;;;;"}, {}, 4);
  const std::array<int, 6> sets{kDirt, kBoulder, kBrick, kSteel, kBox, kSetLocks};
  for (int i = 0; i < 6; ++i) {
    std::array<int, 4> seen{};
    for (int repaint = 0; repaint < 400; ++repaint) {
      const CellPicture picture = cave.Again(i + 1, 1);
      ASSERT_EQ(picture.Pic, sets[static_cast<std::size_t>(i)]);
      ++seen[picture.Row];
    }
    for (const int count : seen) EXPECT_GT(count, 0) << "cell " << i + 1;
  }
}

TEST(CellPictures, DrawNoOtherRowThanThereIs) {
  Pictured cave({"1;"}, {}, 3);
  for (int i = 0; i < 1000; ++i) ASSERT_LT(cave.Again(1, 0).Row, 3);
}

TEST(CellPictures, ShowTheClosedFinishOnlyWhileItIsClosed) {
  Pictured cave({"1T"}, {}, 2);
  cave.hra.Elapsed = 3;
  EXPECT_EQ(cave.Again(1, 0).Pic, kSteel);
  cave.hra.ExitOpen = true;
  EXPECT_EQ(cave.Again(1, 0), Of(kFinish, 0, 1));
}

TEST(CellPictures, FavourTheFirstRowOfBricks) {
  Pictured cave({"1X"}, {}, 3);
  int first = 0;
  constexpr int kRepaints = 30000;
  for (int i = 0; i < kRepaints; ++i) first += cave.Again(1, 0).Row == 0 ? 1 : 0;
  // Four of five are put to the first row, and a third of the others is in it by lot.
  EXPECT_NEAR(first, kRepaints * 13 / 15, kRepaints / 100);
}

TEST(CellPictures, KnowOneRowOfBricksWhenThereIsOne) {
  Pictured cave({"1X"}, {}, 1);
  for (int i = 0; i < 100; ++i) EXPECT_EQ(cave.Again(1, 0), Of(kBrick));
}

TEST(CellPictures, LeaveTheGamesChanceAlone) {
  Pictured cave({"1;X"});
  const Chance before = cave.hra.Luck;
  for (int i = 0; i < 10; ++i) cave.Again(2, 0);
  Chance left = before;
  EXPECT_EQ(left.Below(1000000), cave.hra.Luck.Below(1000000));
}

TEST(CellPictures, AnimateLiveThingsInStepWithTheClock) {
  // Slime that touched the frame would be a lost pad of a teleport.
  Pictured cave({";;;;;;;;;;;", "1DFUALSNC:$", ";;;;;;;;;;;"}, {}, 4);
  cave.hra.Elapsed = 6;
  const std::array<int, 10> sets{kGem,   kFireFly, kButterFly, kAmoeba,       kFly,
                                 kSlime, kFlea,    kBiomass,   kSetDragonFly, kSetCatKey};
  for (int i = 0; i < 10; ++i) {
    EXPECT_EQ(cave.Again(i + 1, 1), Of(sets[static_cast<std::size_t>(i)], 0, 2)) << "cell " << i + 1;
  }
}

TEST(CellPictures, LightTheLampOfAnArmedSensorInOneTickOfFour) {
  Pictured cave({"1G"});
  EXPECT_EQ(cave.At(1, 0), Of(kSensor, 0, 0));
  cave.hra.SetFieldMark({1, 0}, 3);
  const std::array<int, 8> rows{1, 1, 2, 1, 1, 1, 2, 1};
  for (int tick = 0; tick < 8; ++tick) {
    cave.hra.Elapsed = tick;
    EXPECT_EQ(cave.Again(1, 0), Of(kSensor, 0, rows[static_cast<std::size_t>(tick)])) << "tick " << tick;
  }
}

TEST(CellPictures, ShowTheKindOfAnExplosionByColumnAndItsPhaseByRow) {
  Pictured cave({"1."});
  cave.hra.SetField({1, 0}, kExplosion);
  for (int mark = 0; mark < 16; ++mark) {
    cave.hra.SetFieldMark({1, 0}, static_cast<std::uint8_t>(mark));
    EXPECT_EQ(cave.Again(1, 0), Of(kExplosion, mark / 4, mark % 4)) << "mark " << mark;
  }
}

TEST(CellPictures, ShowASplitterInThreeParts) {
  Pictured cave({"1WEW."}, {}, 1);
  EXPECT_EQ(cave.At(1, 0), Of(kSetSplitter, 0));
  EXPECT_EQ(cave.At(2, 0), Of(kSetSplitter, 1));
  EXPECT_EQ(cave.At(3, 0), Of(kSetSplitter, 2));
}

TEST(CellPictures, ShowASteelThatTwoSplittersShareInItsOwnWay) {
  Pictured cave({"1WEWEW"}, {}, 1);
  EXPECT_EQ(cave.At(1, 0), Of(kSetSplitter, 0));
  EXPECT_EQ(cave.At(2, 0), Of(kSetSplitter, 1));
  EXPECT_EQ(cave.At(3, 0), Of(kSetSplitter, 3));
  EXPECT_EQ(cave.At(4, 0), Of(kSetSplitter, 1));
  EXPECT_EQ(cave.At(5, 0), Of(kSetSplitter, 2));
}

TEST(CellPictures, ShowALoneGrowingWallOrAPairOfSteelsAsWhatTheyAre) {
  Pictured cave({"1WE.", ".W.W"}, {}, 1);
  EXPECT_EQ(cave.At(1, 0), Of(kSteel));
  EXPECT_EQ(cave.At(2, 0), Of(kBrick));
  EXPECT_EQ(cave.At(1, 1), Of(kSteel));
  EXPECT_EQ(cave.At(3, 1), Of(kSteel));
}

TEST(CellPictures, ShowASplitterWhoseEndIsTheFrame) {
  Pictured cave({"1..", "EW."}, {}, 1);
  EXPECT_EQ(cave.At(0, 1), Of(kSetSplitter, 1));
  EXPECT_EQ(cave.At(1, 1), Of(kSetSplitter, 2));
}

TEST(CellPictures, ShowTheLeftEndOfASplitterAsSharedWhenAWallStandsBeforeIt) {
  Pictured cave({"1EWEW"}, {}, 1);
  EXPECT_EQ(cave.At(2, 0), Of(kSetSplitter, 3));
}

TEST(CellPictures, ShowASplitterAlsoWhenNothingShallSurprise) {
  Pictured cave({"1WEW"}, {}, 1);
  cave.pictures.SetNoSurprise(true);
  EXPECT_EQ(cave.Again(2, 0), Of(kSetSplitter, 1));
}

TEST(CellPictures, ShowTheCatByItsPose) {
  Pictured cave({"1J"});
  for (int pose = 0; pose < 4; ++pose) {
    cave.hra.CatPose = pose;
    EXPECT_EQ(cave.Again(1, 0), Of(kSetCat, pose));
  }
  cave.hra.SetFieldMark({1, 0}, 3);
  EXPECT_EQ(cave.Again(1, 0), Of(kSetCat, 3)) << "a mark lights no lamp of a cat";
}

TEST(CellPictures, ShowTheSteeredDogByItsPose) {
  Pictured cave({"1."}, {}, 1);
  const std::array<std::array<int, 2>, 9> poses{
      {{0, 1}, {1, 4}, {2, 5}, {3, 6}, {4, 7}, {37, 0}, {38, 3}, {39, 2}, {40, 1}}};
  for (const auto& [pose, column] : poses) {
    cave.hra.DogPose = pose;
    EXPECT_EQ(cave.Again(0, 0), Of(kDog, column)) << "pose " << pose;
  }
}

TEST(CellPictures, ShowAllOtherDogsAtRest) {
  Pictured cave({"1.2"}, {}, 1);
  EXPECT_EQ(cave.At(0, 0), Of(kDog, 1));
  EXPECT_EQ(cave.At(2, 0), Of(kDog, 8));
  cave.hra.ActiveDog = 2;
  EXPECT_EQ(cave.Again(0, 0), Of(kDog, 8));
  EXPECT_EQ(cave.Again(2, 0), Of(kDog, 1));
}

TEST(CellPictures, KeepAnIdleDogsPoseBetweenTwoOfItsTimes) {
  Pictured cave({"1.", "WW"}, {}, 1);
  test::Pass(cave.hra, 139);
  ASSERT_EQ(cave.hra.DogIdleTicks, 139);
  EXPECT_EQ(cave.At(0, 0), Of(kDog, 5)) << "sitting";
  test::Pass(cave.hra, 11);
  EXPECT_EQ(cave.At(0, 0), Of(kDog, 5));
}

TEST(CellPictures, ShowTheTeleportByTheStageOfItsTransport) {
  // The entrance is the slime over a steel, the exit the slime under one.
  Pictured cave({"1....", ".S.W.", ".W.S."}, {}, 1);
  ASSERT_TRUE(cave.hra.TeleportActive);
  cave.hra.SetField({1, 1}, kSteel);
  cave.hra.SetField({3, 2}, kSteel);
  cave.hra.TeleportStage = 3;
  EXPECT_EQ(cave.Again(1, 1), Of(kSetTeleport, 0, 3));
  EXPECT_EQ(cave.Again(3, 2), Of(kSetTeleport, 0, 3));
  cave.hra.TeleportStage = 2;
  EXPECT_EQ(cave.Again(1, 1), Of(kSetTeleport, 0, 2));
  EXPECT_EQ(cave.Again(3, 2), Of(kSetTeleport, 0, 4));
}

TEST(CellPictures, ShowOnlyThePadsThemselvesAsPadsAndOnlyWhileNothingElseIsThere) {
  Pictured cave({"1...W", ".S.W.", ".W.S."}, {}, 1);
  ASSERT_TRUE(cave.hra.TeleportActive);
  EXPECT_EQ(cave.Again(4, 0), Of(kSteel));
  for (const Cell pad : {Cell(1, 1), Cell(3, 2)}) {
    cave.hra.SetField(pad, kDirt);
    EXPECT_EQ(cave.Again(pad.x(), pad.y()), Of(kDirt));
  }
}

TEST(CellPictures, ShowThePlatesBesideThePadsFromTheStart) {
  Pictured cave({"1....", ".S.W.", ".W.S."}, {}, 1);
  EXPECT_EQ(cave.At(1, 2), Of(kSetTeleport, 0, 0)) << "under the entrance";
  EXPECT_EQ(cave.At(3, 1), Of(kSetTeleport, 0, 1)) << "over the exit";
  EXPECT_EQ(cave.At(1, 1), Of(kSpace)) << "the entrance at rest";
}

TEST(CellPictures, ShowNoPlateBesideALostPad) {
  Pictured entrance({"1..", ".S.", ".W."}, {}, 1);
  ASSERT_FALSE(entrance.hra.TeleportActive);
  EXPECT_EQ(entrance.At(1, 2), Of(kSteel));
  EXPECT_EQ(entrance.At(1, 1), Of(kSpace));
  Pictured exit({"1..", ".W.", ".S."}, {}, 1);
  ASSERT_FALSE(exit.hra.TeleportActive);
  EXPECT_EQ(exit.At(1, 1), Of(kSteel));
  EXPECT_EQ(exit.At(1, 2), Of(kSpace));
}

TEST(CellPictures, ForgetALostPadAtTheNextRepaint) {
  Pictured cave({"1..", ".S.", ".W."}, {}, 1);
  ASSERT_FALSE(cave.hra.TeleportActive);
  EXPECT_EQ(cave.Again(1, 2), Of(kSteel));
}

TEST(CellPictures, LeaveAVacatedCellAsItWas) {
  Pictured cave({"1F"}, {}, 1);
  cave.hra.SetField({1, 0}, kVacated);
  EXPECT_EQ(cave.Again(1, 0), Of(kFireFly));
  cave.hra.SetField({1, 0}, kFleaInTransit);
  EXPECT_EQ(cave.Again(1, 0), Of(kFireFly));
}

TEST(CellPictures, AreEmptySpaceWhereThereIsNoCell) {
  Pictured cave({"1F"}, {}, 1);
  cave.pictures.Change(cave.hra, -2, 0);
  cave.pictures.Change(cave.hra, 101, 61);
  EXPECT_EQ(cave.At(-2, 0), CellPicture{});
  EXPECT_EQ(cave.At(101, 61), CellPicture{});
}

TEST(CellPictures, KnowTheFrameAllAroundTheLargestCave) {
  Pictured cave(test::Picture(60, std::string(100, '.')), {}, 1);
  ASSERT_EQ(cave.hra.CaveWidth, 100);
  ASSERT_EQ(cave.hra.CaveHeight, 60);
  for (const Cell corner : {Cell(-1, -1), Cell(100, -1), Cell(-1, 60), Cell(100, 60)}) {
    cave.hra.SetField(corner, kFireFly);
    EXPECT_EQ(cave.Again(corner.x(), corner.y()), Of(kFireFly)) << corner.x() << ' ' << corner.y();
  }
}

TEST(CellPictures, AreEmptySpaceWhenANewCaveOpens) {
  Pictured cave({"1FFF"}, {}, 1);
  cave.pictures.Open(cave.hra);
  EXPECT_EQ(cave.At(2, 0), CellPicture{});
}

// With less flashing

TEST(CellPictures, LetNothingGlitterOrGlowWhenTheyAreStill) {
  Pictured cave({"1D!@#$T"}, {}, 8);
  cave.hra.ExitOpen = true;
  for (const bool still : {false, true}) {
    cave.pictures.SetStill(still);
    cave.hra.Elapsed = 3;
    for (int x = 1; x < 7; ++x) EXPECT_EQ(cave.Again(x, 0).Row, still ? 0 : 3) << x << " still: " << still;
  }
}

TEST(CellPictures, KeepTheLookThatTheyHaveWhenTheyAreStill) {
  Pictured cave({"1;RX"}, {}, 8);
  cave.pictures.SetStill(true);
  for (int x = 1; x < 4; ++x) {
    const CellPicture first = cave.At(x, 0);
    for (int i = 0; i < 30; ++i) ASSERT_EQ(cave.Again(x, 0), first) << x;
  }
}

TEST(CellPictures, ShowWhatHappensWhenTheyAreStill) {
  Pictured cave({"1;FM"}, {}, 8);
  cave.pictures.SetStill(true);
  cave.hra.Elapsed = 3;
  cave.hra.MagicState = kMagicRunning;
  EXPECT_EQ(cave.Again(2, 0), Of(kSetFireFly, 0, 3)) << "monsters beat their wings";
  EXPECT_EQ(cave.Again(3, 0), Of(kSetMagicWall, 0, 3));
  cave.hra.SetObject({1, 0}, kGem, kResting);
  EXPECT_EQ(cave.Again(1, 0), Of(kSetGem));
}

TEST(CellPictures, ShowTheFrameTooInAnotherMoment) {
  Pictured cave({"1;;", ";;;"}, {}, 1);
  for (int y = -1; y <= 2; ++y) {
    for (int x = -1; x <= 3; ++x) {
      if (x >= 0 && x < 3 && y >= 0 && y < 2) continue;
      cave.hra.SetField(Cell(x, y), kFireFly);
      cave.pictures.ShowMoment(cave.hra);
      EXPECT_EQ(cave.At(x, y), Of(kFireFly)) << x << ' ' << y;
    }
  }
}

TEST(CellPictures, LeaveAVacatedCellAsItWasInAnotherMoment) {
  Pictured cave({"1F;"}, {}, 1);
  cave.hra.SetField({1, 0}, kVacated);
  cave.hra.SetField({2, 0}, kFleaInTransit);
  cave.pictures.ShowMoment(cave.hra);
  EXPECT_EQ(cave.At(1, 0), Of(kFireFly));
  EXPECT_EQ(cave.At(2, 0), Of(kSetDirt));
}

// Whatever was there before.
TEST(CellPictures, ShowWhatIsThereInAnotherMoment) {
  Pictured cave({"1;"}, {}, 4);
  const auto show = [&cave](std::uint16_t code) {
    cave.hra.SetObject({1, 0}, code, kFlat);
    cave.pictures.ShowMoment(cave.hra);
    return cave.At(1, 0);
  };
  for (std::uint16_t before = 0; before < kObjects.size(); ++before) {
    for (std::uint16_t now = 0; now < kObjects.size(); ++now) {
      if (!IsObject(before) || !IsObject(now) || before == kDog || now == kDog) continue;
      show(before);
      const CellPicture shown = show(now), wanted = cave.Again(1, 0);
      EXPECT_EQ(shown.Pic, wanted.Pic) << before << ' ' << now;
      EXPECT_EQ(shown.Col, wanted.Col) << before << ' ' << now;
    }
  }
}

}  // namespace
}  // namespace zorik
