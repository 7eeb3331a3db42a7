#include <gtest/gtest.h>

#include "support/Scene.h"

namespace zorik::test {
namespace {

constexpr Cell kMiddle(3, 3);

// A dragonfly in the open that hunts a dog at a place.
Hra Hunt(int preyX, int preyY, Stage* stage = nullptr) {
  Hra hra = Play({".......", ".......", ".......", "...:...", ".......", ".......", "......."}, {}, stage);
  hra.DogCount = 1;
  hra.Dog[1] = {preyX, preyY, true};
  return hra;
}

Cell PlaceOf(const Hra& hra) {
  Cell place(-1, -1);
  ForEachCell(hra, [&](Cell c) {
    if (hra.Field(c) == kDragonFly) place = c;
  });
  return place;
}

Cell After(Hra& hra, std::initializer_list<int> outcomes = {}) {
  Foretell(hra, outcomes);
  Potvory(hra, kMiddle);
  EXPECT_TRUE(Drained(hra));
  return PlaceOf(hra);
}

TEST(DragonFly, ClosesTheShorterDistanceFirst) {
  struct Row {
    int preyX, preyY;
    Step way;
  };
  for (const auto& [x, y, way] : {Row{2, 0, kLeft},
                                  {4, 0, kRight},
                                  {2, 6, kLeft},
                                  {4, 6, kRight},  //
                                  {0, 2, kUp},
                                  {0, 4, kDown},
                                  {6, 2, kUp},
                                  {6, 4, kDown}}) {
    Hra hra = Hunt(x, y);
    EXPECT_EQ(After(hra), kMiddle + way) << x << "," << y;
  }
}

TEST(DragonFly, TakesTheLongerWayWhenTheShorterIsBlocked) {
  Hra across = Hunt(2, 0);
  Put(across, 2, 3, ';');
  EXPECT_EQ(After(across), kMiddle + kUp);
  Hra along = Hunt(0, 4);
  Put(along, 3, 4, ';');
  EXPECT_EQ(After(along), kMiddle + kLeft);
}

TEST(DragonFly, StaysWhenBothWaysAreBlocked) {
  Hra hra = Hunt(2, 0);
  Put(hra, 2, 3, 'W');
  Put(hra, 3, 2, 'W');
  EXPECT_EQ(After(hra), kMiddle);
}

TEST(DragonFly, DrawsWhichWayComesFirstWhenBothDistancesAreEqual) {
  Hra across = Hunt(1, 5);
  EXPECT_EQ(After(across, {1}), kMiddle + kLeft);
  Hra along = Hunt(1, 5);
  EXPECT_EQ(After(along, {2}), kMiddle + kDown);
  Hra blocked = Hunt(1, 5);
  Put(blocked, 2, 3, ';');
  EXPECT_EQ(After(blocked, {1}), kMiddle + kDown);
  Hra other = Hunt(1, 5);
  Put(other, 3, 4, ';');
  EXPECT_EQ(After(other, {2}), kMiddle + kLeft);
}

TEST(DragonFly, DrawsFromOneToTwoForEqualDistances) {
  Hra hra = Hunt(3, 3);
  hra.RecordText.clear();
  for (int i = 0; i < 100; ++i) Potvory(hra, kMiddle);
  EXPECT_EQ(PlaceOf(hra), kMiddle);
  EXPECT_EQ(hra.RecordText.find_first_not_of("BC"), std::string::npos);
  EXPECT_NE(hra.RecordText.find('B'), std::string::npos);
  EXPECT_NE(hra.RecordText.find('C'), std::string::npos);
}

TEST(DragonFly, StaysWhenTheRecordHasRunDry) {
  Hra equal = Hunt(1, 5);
  Foretell(equal, {});
  Potvory(equal, kMiddle);
  EXPECT_EQ(PlaceOf(equal), kMiddle);
  Hra wandering = Hunt(1, 5);
  wandering.ActiveDog = 0;
  Foretell(wandering, {});
  Potvory(wandering, kMiddle);
  EXPECT_EQ(PlaceOf(wandering), kMiddle);
}

TEST(DragonFly, InTheRowOfTheDogWithAWallBetweenStays) {
  Hra hra = Hunt(0, 3);
  Put(hra, 2, 3, 'W');
  EXPECT_EQ(After(hra), kMiddle);
}

TEST(DragonFly, InTheRowOrColumnOfTheDogGoesStraightAtIt) {
  Hra row = Hunt(0, 3);
  EXPECT_EQ(After(row), kMiddle + kLeft);
  Hra column = Hunt(3, 6);
  EXPECT_EQ(After(column), kMiddle + kDown);
}

TEST(DragonFly, TakesSpaceOnlyForFree) {
  for (const Object code : {kDirt, kVacated, kGem, kDog}) {
    Hra hra = Hunt(0, 3);
    hra.SetField({2, 3}, code);
    EXPECT_EQ(After(hra), kMiddle);
  }
}

TEST(DragonFly, WandersWhileTheSwarmIsDriven) {
  struct Row {
    int drawn;
    Step way;
  };
  for (const auto& [drawn, way] : {Row{1, kRight}, {2, kLeft}, {3, kDown}, {4, kUp}}) {
    Hra free = Hunt(0, 0);
    free.ActiveDog = 0;
    EXPECT_EQ(After(free, {drawn}), kMiddle + way);
    Hra blocked = Hunt(0, 0);
    blocked.ActiveDog = 0;
    const Cell target = kMiddle + way;
    Put(blocked, target.x(), target.y(), ';');
    EXPECT_EQ(After(blocked, {drawn}), kMiddle);
  }
}

TEST(DragonFly, DrawsFromOneToFourWhenItWanders) {
  Hra hra = Hunt(0, 0);
  hra.ActiveDog = 0;
  for (const Cell c : {Cell(2, 3), Cell(4, 3), Cell(3, 2), Cell(3, 4)}) Put(hra, c.x(), c.y(), 'W');
  hra.RecordText.clear();
  for (int i = 0; i < 200; ++i) Potvory(hra, kMiddle);
  EXPECT_EQ(hra.RecordText.size(), 200U);
  EXPECT_EQ(hra.RecordText.find_first_not_of("BCDE"), std::string::npos);
  for (const char letter : {'B', 'C', 'D', 'E'}) EXPECT_NE(hra.RecordText.find(letter), std::string::npos);
}

TEST(DragonFly, ThatMovesLeavesPlainSpaceAndCountsAsMoved) {
  Diary diary;
  Hra hra = Hunt(0, 3, &diary);
  hra.SetFieldMark(kMiddle, 3);
  hra.SetFieldMark({2, 3}, 2);
  hra.SetFieldState({2, 3}, kResting);
  diary.Clear();
  Potvory(hra, kMiddle);
  EXPECT_EQ(hra.Field(kMiddle), kSpace);
  EXPECT_EQ(hra.FieldMark(kMiddle), 0);
  EXPECT_EQ(hra.Field({2, 3}), kDragonFly);
  EXPECT_EQ(hra.FieldMark({2, 3}), 2);
  EXPECT_EQ(hra.FieldState({2, 3}), kResting);
  EXPECT_TRUE(hra.FieldMoved({2, 3}));
  EXPECT_FALSE(hra.FieldMoved(kMiddle));
  EXPECT_EQ(diary.entries, (std::vector<std::string>{"cell 3,3", "cell 2,3"}));
}

TEST(DragonFly, ThatStaysIsRepaintedAndCountsAsMovedToo) {
  Diary diary;
  Hra hra = Hunt(0, 3, &diary);
  Put(hra, 2, 3, 'W');
  hra.SetFieldMark(kMiddle, 3);
  diary.Clear();
  Potvory(hra, kMiddle);
  EXPECT_TRUE(hra.FieldMoved(kMiddle));
  EXPECT_EQ(hra.FieldMark(kMiddle), 3);
  EXPECT_EQ(diary.entries, (std::vector<std::string>{"cell 3,3"}));
}

TEST(DragonFly, GoesOneCellInATickAlsoInTheDirectionOfTheScan) {
  Hra hra = Play({":......1", "WWWWWWWW"});
  Pass(hra);
  EXPECT_EQ(Drawn(hra)[0], ".:.....1");
  Pass(hra);
  EXPECT_EQ(Drawn(hra)[0], "..:....1");
}

TEST(DragonFly, LetsAnotherMonsterIntoTheCellThatItHasJustLeft) {
  Hra hra = Play({"1...:FWW", "WWWWWWWW"});
  Pass(hra);
  EXPECT_EQ(Drawn(hra)[0], "1..:F.WW");
}

TEST(DragonFly, ChasesTheDogThatIsDrivenAndTurnsWhenThePlayerChangesDogs) {
  Hra hra = PlayBack({"1...:...2", "WWWWWWWWW"},
                     {{.before = {2}, .unit = 1}, {.before = {2}, .unit = 2}, {.before = {2}, .unit = 2}});
  Pass(hra);
  EXPECT_EQ(Drawn(hra)[0], "1..:....2");
  Pass(hra);  // the change comes after the dragonfly's step
  EXPECT_EQ(Drawn(hra)[0], "1.:.....2");
  Pass(hra);
  EXPECT_EQ(Drawn(hra)[0], "1..:....2");
}

}  // namespace
}  // namespace zorik::test
