#include <gtest/gtest.h>

#include <set>

#include "support/Pictured.h"
#include "view/SeenCave.h"

namespace zorik {
namespace {

using test::Picture;

// A table of so many rows a set, in which dirt is earth, walls cover their cells, and all else is bare.
FrameTable Table(int rows, bool edges) {
  FrameTable::Numbers one{}, many{};
  one.fill(1);
  many.fill(rows);
  const FrameTable plain(one, many);
  if (!edges) return plain;
  std::vector<Ground> grounds(plain.Count(), Ground::Bare);
  for (int row = 0; row < rows; ++row) {
    grounds[plain.PlaceOf(test::Of(kSetDirt, 0, row))] = Ground::Earth;
    grounds[plain.PlaceOf(test::Of(kSteel, 0, row))] = Ground::Covered;
  }
  return {one, many, grounds};
}

const Picture kHoles{";;.;;;..;;W;", ";.;;.;;.;;;.", "..;1;;.W;.;;",
                     ";;;.;;;;..;;", ".;.;;W;;;.;.", ";;;..;.;;;;;"};

// A run of which a part is seen, so many columns and rows.
class Part : public Stage {
 public:
  Part(double columns, double rows, const FrameTable& frames) : frames_(frames) {
    hra.SetStage(*this);
    EXPECT_TRUE(PaintCave(hra, test::CaveTextOf(kHoles), RunKind::Play));
    view.SetReach(hra, columns, rows);
  }

  void CaveOpens() override { view.CaveOpens(hra, frames_); }
  void CellChanged(int x, int y) override { view.CellChanged(hra, x, y); }
  void Moved(Cell from, Cell to) override { view.Moved(hra, from, to); }
  void MoveView(bool jump) override { view.MoveView(hra, jump); }

  const DrawnView& Look(PixelSize frame = {240, 160}, double way = 1) {
    return view.Look(hra, frames_, frame, way);
  }

  Hra hra{1};
  SeenCave view;

 private:
  FrameTable frames_;
};

TEST(DrawnView, HasTheEdgesOfEachOfItsCellsAlsoAtItsOwnEnds) {
  const FrameTable frames = Table(1, true);
  for (const auto& [columns, rows] : {std::pair(5, 4), {3, 6}, {12, 2}, {40, 40}}) {
    Part part(columns, rows, frames);
    const DrawnView& drawn = part.Look();
    const auto ground = [&](int x, int y) {
      const bool inside = x >= 0 && x < 12 && y >= 0 && y < 6;
      return inside ? frames.GroundOf(part.view.PictureAt(x, y)) : Ground::Covered;
    };
    int edges = 0;
    for (std::size_t row = 0; row < drawn.rows.size(); ++row) {
      for (std::size_t i = 0; i < drawn.columns.size(); ++i) {
        const int x = drawn.columns[i].cell, y = drawn.rows[row].cell;
        EXPECT_EQ(drawn.At(i, row).edges, EdgesAround(x, y, ground)) << x << ' ' << y;
        EXPECT_EQ(drawn.At(i, row).picture, part.view.PictureAt(x, y)) << x << ' ' << y;
        edges += drawn.At(i, row).edges != 0 ? 1 : 0;
      }
    }
    EXPECT_GT(edges, 5);
  }
}

TEST(DrawnView, HasNoEdgesWithoutAPictureOfThem) {
  Part part(5, 4, Table(1, false));
  for (const DrawnView::Shown& shown : part.Look().cells) EXPECT_EQ(shown.edges, 0);
}

// The dog stands in the fourth column and the third row of a cave of twelve and six.
TEST(DrawnView, IsAnotherOneWhereItHasMoved) {
  Part part(3, 2, Table(1, false));
  part.Look();
  EXPECT_FALSE(part.Look().fresh);
  const int before = part.view.Drawn().view.left;
  EXPECT_EQ(before, kTileSize * 2);
  part.view.TickBegins(true);
  part.hra.Dog[1].x = 8;
  part.view.MoveView(part.hra, false);
  part.view.TickEnds(part.hra, Table(1, false));
  EXPECT_TRUE(part.view.Moves(part.hra));
  // A fifth of the five cells.
  EXPECT_EQ(part.Look({240, 160}, 0.25).view.left, before + kTileSize / 4);
  EXPECT_TRUE(part.view.Drawn().fresh);
  EXPECT_EQ(part.Look().view.left, before + kTileSize);
  EXPECT_TRUE(part.view.Drawn().fresh) << "as large as before, but elsewhere";
  part.view.ShowMoment(part.hra, true);
  EXPECT_EQ(part.Look().view.left, kTileSize * 7);
}

TEST(DrawnView, HasNothingInAFrameWithoutAWidthOrAHeight) {
  Part part(3, 2, Table(1, false));
  for (const PixelSize frame : {PixelSize{240, 0}, PixelSize{0, 160}, PixelSize{0, 0}}) {
    EXPECT_FALSE(part.Look().cells.empty());
    const DrawnView& drawn = part.Look(frame);
    EXPECT_TRUE(drawn.cells.empty() && drawn.columns.empty() && drawn.rows.empty());
    EXPECT_EQ(drawn.size, PixelSize());
    EXPECT_TRUE(drawn.fresh);
  }
}

TEST(DrawnView, KnowsAsManyRowsAsTheTable) {
  Part part(40, 40, Table(4, false));
  part.Look();
  EXPECT_EQ(part.view.PictureAt(2, 0), test::Of(kSetSpace, 0, 2));
  EXPECT_EQ(part.view.PictureAt(7, 1), test::Of(kSetSpace, 0, 0)) << "seven and one";
  std::set<int> rows;
  for (int i = 0; i < 100; ++i) {
    part.view.CellChanged(part.hra, 0, 0);
    rows.insert(part.view.PictureAt(0, 0).Row);
  }
  EXPECT_EQ(rows, (std::set<int>{0, 1, 2, 3})) << "dirt is drawn by lot";
}

}  // namespace
}  // namespace zorik
