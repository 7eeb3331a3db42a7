#include <gtest/gtest.h>

#include "support/Scene.h"

namespace zorik::test {
namespace {

TEST(GrowingWall, LeftAndRightGrowsByOneCellATickOnEachSide) {
  Hra hra = Play({"1WWWWWWWW", "W...E...W", "WWWWWWWWW"});
  Pass(hra);
  EXPECT_EQ(Drawn(hra)[1], "W..EEE..W");
  Pass(hra);
  EXPECT_EQ(Drawn(hra)[1], "W.EEEEE.W");
  Pass(hra);
  EXPECT_EQ(Drawn(hra)[1], "WEEEEEEEW");
}

TEST(GrowingWall, UpAndDownGrowsByOneCellATickOnEachSide) {
  Hra hra = Play({"1W.W", ".W.W", ".WVW", ".W.W", ".W.W"});
  Pass(hra);
  EXPECT_EQ(Drawn(hra), (Picture{"1W.W", ".WVW", ".WVW", ".WVW", ".W.W"}));
  Pass(hra);
  EXPECT_EQ(Drawn(hra), (Picture{"1WVW", ".WVW", ".WVW", ".WVW", ".WVW"}));
}

TEST(GrowingWall, GrowsOnOneSideWhenTheOtherIsBlocked) {
  Hra hra = Play({"1WWWW.W", ".E;;E.;", "WWWWWWV"});
  Pass(hra);
  EXPECT_EQ(Drawn(hra), (Picture{"1WWWW.W", "EE;;EE;", "WWWWWWV"}));
}

TEST(GrowingWall, LeftAndRightDoesNotGrowUpOrDownAndTheOtherNotSideways) {
  Hra hra = Play({"1W.W.W.", ";;E;.V.", ";;.;.;."});
  Hra before = hra;
  GrowWallH(hra, {2, 1});
  EXPECT_EQ(Drawn(hra), Drawn(before));
  GrowWallV(hra, {5, 1});
  EXPECT_EQ(Drawn(hra), Drawn(before));
}

TEST(GrowingWall, GrowsIntoNothingButSpace) {
  const Picture start{"1WWWWWW", ";E-WVWW", "WWWW;WW"};
  Hra hra = Live(start);
  GrowWallH(hra, {1, 1});
  GrowWallV(hra, {4, 1});
  EXPECT_EQ(Drawn(hra), start);
}

TEST(GrowingWall, MarksAndRepaintsItsNewPartsTheLeftBeforeTheRight) {
  Diary diary;
  Hra hra = Play({"1WWWW", "W.E.W", "WWWWW"}, {}, &diary);
  diary.Clear();
  GrowWallH(hra, {2, 1});
  EXPECT_EQ(diary.entries, (std::vector<std::string>{"cell 1,1", "cell 3,1"}));
  EXPECT_TRUE(hra.FieldMoved({1, 1}));
  EXPECT_TRUE(hra.FieldMoved({3, 1}));
  EXPECT_EQ(hra.FieldState({1, 1}), kFlat);
}

TEST(GrowingWall, MarksAndRepaintsItsNewPartsTheUpperBeforeTheLower) {
  Diary diary;
  Hra hra = Play({"1.W", "WVW", "W.W"}, {}, &diary);
  diary.Clear();
  GrowWallV(hra, {1, 1});
  EXPECT_EQ(diary.entries, (std::vector<std::string>{"cell 1,0", "cell 1,2"}));
  EXPECT_TRUE(hra.FieldMoved({1, 0}));
  EXPECT_TRUE(hra.FieldMoved({1, 2}));
  EXPECT_EQ(hra.Field({1, 2}), kWallV);
}

TEST(GrowingWall, ThatHasMovedInThisTickDoesNotGrow) {
  Hra hra = Play({"1WWWW", "W.E.W"});
  hra.SetFieldMoved({2, 1}, true);
  AmoebaList room;
  ObjectScan(hra, room);
  EXPECT_EQ(Drawn(hra), (Picture{"1WWWW", "W.E.W"}));
}

TEST(GrowingWall, BetweenTwoSteelsHasNoRoom) {
  Hra hra = Play({"1.....", "..WEW.", "......"});
  Pass(hra, 5);
  EXPECT_EQ(Drawn(hra), (Picture{"1.....", "..WEW.", "......"}));
}

TEST(GrowingWall, FallsFromACellThatAMagicWallHasEmptied) {
  // The gem is swallowed; its cell is space that still counts as a resting thing.
  Hra hra = Live({"1WWWW", "WWdEW", "WWMWW", "WW.WW", "WW.WW", "WWWWW"});
  Pass(hra);
  EXPECT_EQ(Drawn(hra), (Picture{"1WWWW", "WWEEW", "WWMWW", "WWrWW", "WW.WW", "WWWWW"}));
  EXPECT_EQ(hra.FieldState({2, 1}), kResting);
  Put(hra, 2, 2, '.');
  Put(hra, 2, 3, '.');
  Pass(hra);
  EXPECT_EQ(hra.Field({2, 2}), kWallH);
  EXPECT_EQ(hra.FieldState({2, 2}), kFalling);
}

}  // namespace
}  // namespace zorik::test
