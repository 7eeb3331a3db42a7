#include "view/DrawnView.h"

#include <utility>

namespace zorik {

PixelSize DrawnCell(const ViewArea& view, int frameWidth, int frameHeight) {
  if (view.width <= 0 || view.height <= 0) return {};
  return {frameWidth * kTileSize / view.width, frameHeight * kTileSize / view.height};
}

PixelSize DrawnSize(const ViewArea& view, int cellWidth, int cellHeight) {
  return {view.width * cellWidth / kTileSize, view.height * cellHeight / kTileSize};
}

namespace {

// Turns it to a view. Its cells that were in the one before stay with it.
void Turn(DrawnView& drawn, const ViewArea& view, PixelSize cell, PixelSize size) {
  const DrawnView before = std::exchange(drawn, {});
  drawn.view = view;
  drawn.cell = cell;
  drawn.size = size;
  drawn.touched = before.touched;
  drawn.columns = WithoutOverlaps(SpansOf(view.left, view.width, cell.width));
  drawn.rows = WithoutOverlaps(SpansOf(view.top, view.height, cell.height));
  drawn.cells.resize(drawn.columns.size() * drawn.rows.size());
  if (before.size != size || before.cell != cell || before.cells.empty()) return;
  drawn.across = KeptIn(drawn.columns, before.columns);
  drawn.down = KeptIn(drawn.rows, before.rows);
  for (std::size_t row = drawn.down.first; row < drawn.down.end; ++row) {
    for (std::size_t i = drawn.across.first; i < drawn.across.end; ++i) {
      drawn.cells[row * drawn.columns.size() + i] =
          before.At(PlaceBefore(drawn.columns, before.columns, i), PlaceBefore(drawn.rows, before.rows, row));
    }
  }
}

}  // namespace

void LookAt(const ViewArea& view, PixelSize cell, const CellPictures& pictures, const FrameTable& frames,
            DrawnView& drawn, const MovingCells& moving) {
  const PixelSize size = DrawnSize(view, cell.width, cell.height);
  drawn.fresh = drawn.view != view || drawn.size != size || drawn.cell != cell || drawn.cells.empty();
  drawn.changed.clear();
  if (drawn.fresh) Turn(drawn, view, cell, size);
  if (drawn.cells.empty()) {
    drawn = {};
    return;
  }
  const EdgeMap edges(drawn.columns, drawn.rows, pictures, frames);
  auto shown = drawn.cells.begin();
  for (std::size_t row = 0; row < drawn.rows.size(); ++row) {
    for (std::size_t i = 0; i < drawn.columns.size(); ++i, ++shown) {
      const Cell c(drawn.columns[i].cell, drawn.rows[row].cell);
      const bool bare = moving.bare.Has(c);
      const DrawnView::Shown now{bare ? pictures.GroundAt(c) : pictures.At(c.x(), c.y()), edges.At(i, row)};
      const bool kept = !drawn.fresh || (drawn.across.Has(i) && drawn.down.Has(row));
      if (kept && *shown == now && !moving.touched.Has(c) && !drawn.touched.Has(c)) continue;
      *shown = now;
      if (kept) drawn.changed.push_back({i, row});
    }
  }
  drawn.touched = moving.touched;
}

}  // namespace zorik
