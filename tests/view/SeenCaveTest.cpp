#include <gtest/gtest.h>

#include "data/Result.h"
#include "support/Scene.h"
#include "view/SeenCave.h"

namespace zorik {
namespace {

// A run that is looked at, a pixel for each of eight of a cell.
class Seen : public Stage {
 public:
  Seen() {
    FrameTable::Numbers numbers{};
    numbers.fill(1);
    frames_ = FrameTable(numbers, numbers);
    hra.SetStage(*this);
    Open();
  }

  void Open() {
    EXPECT_TRUE(PaintCave(hra, test::CaveTextOf({"WWWWWW", "W1;..W", "W....W", "WWWWWW"}), RunKind::Play));
  }

  void CaveOpens() override { view.CaveOpens(hra, frames_); }
  void CellChanged(int x, int y) override { view.CellChanged(hra, x, y); }
  void Moved(Cell from, Cell to) override { view.Moved(hra, from, to); }
  void MoveView(bool jump) override { view.MoveView(hra, jump); }

  void Pass(int key) {
    KeySnapshot keys;
    if (key != 0) keys.down.set(static_cast<std::size_t>(key));
    view.TickBegins(true);
    EXPECT_EQ(Tick(hra, keys), TickEnd::Running);
    view.TickEnds(hra, frames_);
  }

  const DrawnView& Look(double way = 1) { return view.Look(hra, frames_, {60, 40}, way); }

  Hra hra{1};
  SeenCave view;

 private:
  FrameTable frames_;
};

TEST(SeenCave, SeesAllOfItAtTheFirstLook) {
  Seen seen;
  const DrawnView& drawn = seen.Look();
  EXPECT_TRUE(drawn.fresh);
  EXPECT_EQ(drawn.cell, (PixelSize{10, 10}));
  EXPECT_EQ(drawn.size, (PixelSize{60, 40}));
  EXPECT_EQ(drawn.columns.size(), 6U);
  EXPECT_EQ(drawn.At(1, 1).picture.Pic, kSetDog);
}

TEST(SeenCave, TellsOfTheCellsThatChangedSinceTheLastLook) {
  Seen seen;
  seen.Look();
  EXPECT_FALSE(seen.Look().fresh);
  EXPECT_TRUE(seen.Look().changed.empty());
  seen.Pass(kKeyRight);
  const DrawnView& drawn = seen.Look();
  EXPECT_FALSE(drawn.fresh);
  ASSERT_EQ(drawn.changed.size(), 2U);
  EXPECT_EQ(drawn.changed[0].column, 1U);
  EXPECT_EQ(drawn.changed[1].column, 2U);
  EXPECT_EQ(drawn.changed[1].row, 1U);
}

TEST(SeenCave, KnowsWhereWhatMovesIsOnItsWay) {
  Seen seen;
  seen.Look();
  seen.Pass(kKeyRight);
  EXPECT_TRUE(seen.view.Moves(seen.hra));
  const DrawnView& drawn = seen.Look(0.5);
  ASSERT_EQ(seen.view.OnTheWay().Movers().size(), 1U);
  const ViewMotion::Mover& dog = seen.view.OnTheWay().Movers().front();
  EXPECT_EQ(dog.PlaceOn(drawn, 0.5).x, 15);
  EXPECT_EQ(dog.PlaceOn(drawn, 0.5).y, 10);
  EXPECT_EQ(dog.under ? dog.under->picture.Pic : -1, int{kSetDirt}) << "it has not dug that yet";
  EXPECT_EQ(drawn.At(2, 1).picture.Pic, kSetSpace);
}

TEST(SeenCave, SeesAllAnewWhenTheCaveOpensAgain) {
  Seen seen;
  seen.Look();
  seen.Open();
  const DrawnView& drawn = seen.Look();
  EXPECT_TRUE(drawn.fresh) << "its colours may be others";
  EXPECT_TRUE(drawn.changed.empty());
}

TEST(SeenCave, HasNothingOnItsWayWhereTheViewHasJumped) {
  Seen seen;
  seen.Look();
  seen.Pass(kKeyRight);
  ASSERT_TRUE(seen.view.Moves(seen.hra));
  seen.view.MoveView(seen.hra, true);
  EXPECT_FALSE(seen.view.Moves(seen.hra));
}

TEST(SeenCave, HasNoSizeOfCellsInAViewOfNoSize) {
  EXPECT_EQ(DrawnCell({.left = 0, .top = 0, .width = 0, .height = 2 * kTileSize}, 60, 40), PixelSize());
  EXPECT_EQ(DrawnCell({.left = 0, .top = 0, .width = 2 * kTileSize, .height = 0}, 60, 40), PixelSize());
  EXPECT_EQ(DrawnCell({.left = 0, .top = 0, .width = 2 * kTileSize, .height = kTileSize}, 60, 40),
            (PixelSize{30, 40}));
}

TEST(SeenCave, HasNoCellsInAFrameOfNoSize) {
  Seen seen;
  const DrawnView& drawn = seen.view.Look(seen.hra, FrameTable(), {0, 0});
  EXPECT_TRUE(drawn.cells.empty());
  EXPECT_TRUE(drawn.fresh);
}

TEST(SeenCave, HasNothingOnItsWayWhenACaveOpens) {
  Seen seen;
  seen.Look();
  seen.Pass(kKeyRight);
  ASSERT_TRUE(seen.view.Moves(seen.hra));
  seen.CaveOpens();
  EXPECT_FALSE(seen.view.Moves(seen.hra));
}

TEST(SeenCave, HasNothingUnderWhatGoesIntoSpace) {
  Seen seen;
  seen.Look();
  seen.Pass(kKeyRight);
  seen.Look();
  seen.Pass(kKeyRight);
  seen.Look(0.5);
  ASSERT_EQ(seen.view.OnTheWay().Movers().size(), 1U);
  EXPECT_FALSE(seen.view.OnTheWay().Movers().front().under);
}

TEST(SeenCave, ReachesAsFarAsTheScreenHasRoomAndFollowsAtOnce) {
  Seen seen;
  seen.Look();
  seen.Pass(kKeyRight);
  ASSERT_TRUE(seen.view.Moves(seen.hra));
  seen.view.SetReach(seen.hra, 2, 1);
  EXPECT_FALSE(seen.view.Moves(seen.hra));
  const DrawnView& drawn = seen.Look();
  EXPECT_TRUE(drawn.fresh);
  // The dog's middle is 2.5 cells from the left and 1.5 from the top, half of the view 1 and a half.
  EXPECT_EQ(drawn.view.left, kTileSize * 3 / 2);
  EXPECT_EQ(drawn.view.top, kTileSize);
  EXPECT_EQ(drawn.view.width, 2 * kTileSize);
  EXPECT_EQ(drawn.view.height, kTileSize);
}

TEST(SeenCave, HoldsTheWholeCaveWhereItDoesNotFollow) {
  Seen seen;
  seen.view.SetReach(seen.hra, 2, 1);
  seen.view.SetScrollView(false);
  EXPECT_EQ(seen.Look().columns.size(), 6U);
  EXPECT_EQ(seen.Look().rows.size(), 4U);
  seen.view.SetScrollView(true);
  EXPECT_EQ(seen.Look().rows.size(), 1U);
}

TEST(SeenCave, IsAnotherViewInAFrameOfAnotherSize) {
  Seen seen;
  seen.Look();
  EXPECT_TRUE(seen.view.Look(seen.hra, FrameTable(), {120, 80}).fresh);
  EXPECT_EQ(seen.view.Drawn().cell, (PixelSize{20, 20}));
  EXPECT_EQ(seen.view.Drawn().size, (PixelSize{120, 80}));
  EXPECT_FALSE(seen.view.Look(seen.hra, FrameTable(), {120, 80}).fresh);
}

// While something is on its way its cells are drawn anew in each picture, and once more when it is there.
TEST(SeenCave, TellsOfCellsThatAreTouchedUntilAllIsThere) {
  Seen seen;
  seen.Look();
  seen.Pass(kKeyRight);
  for (const double way : {0.2, 0.6}) {
    EXPECT_EQ(seen.Look(way).changed.size(), 2U) << way;
    EXPECT_EQ(seen.view.Way(), way);
    EXPECT_EQ(seen.view.Drawn().At(2, 1).picture.Pic, kSetSpace);
  }
  EXPECT_EQ(seen.Look().changed.size(), 2U);
  EXPECT_EQ(seen.view.Drawn().At(2, 1).picture.Pic, kSetDog);
  EXPECT_TRUE(seen.Look().changed.empty());
}

TEST(SeenCave, HasNothingOnItsWayWithoutSmoothMotionOrInAnotherMoment) {
  Seen seen;
  seen.Look();
  seen.Pass(kKeyRight);
  ASSERT_TRUE(seen.view.Moves(seen.hra));
  seen.view.TickBegins(false);
  EXPECT_FALSE(seen.view.Moves(seen.hra));
  seen.Pass(kKeyRight);
  ASSERT_TRUE(seen.view.Moves(seen.hra));
  seen.hra.SetObject({4, 2}, kBoulder, kResting);
  seen.view.ShowMoment(seen.hra, false);
  EXPECT_FALSE(seen.view.Moves(seen.hra));
  EXPECT_EQ(seen.Look().At(4, 2).picture.Pic, kSetBoulder);
}

}  // namespace
}  // namespace zorik
