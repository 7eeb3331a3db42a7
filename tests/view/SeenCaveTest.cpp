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

}  // namespace
}  // namespace zorik
