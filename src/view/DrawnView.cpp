#include "view/DrawnView.h"

namespace zorik {

PixelSize DrawnCell(const ViewArea& view, int frameWidth, int frameHeight) {
  if (view.width <= 0 || view.height <= 0) return {};
  return {frameWidth * kTileSize / view.width, frameHeight * kTileSize / view.height};
}

PixelSize DrawnSize(const ViewArea& view, int cellWidth, int cellHeight) {
  return {view.width * cellWidth / kTileSize, view.height * cellHeight / kTileSize};
}

void LookAt(const ViewArea& view, PixelSize cell, const CellPictures& pictures, const FrameTable& frames,
            DrawnView& drawn, const MovingCells& moving) {
  const PixelSize size = DrawnSize(view, cell.width, cell.height);
  drawn.fresh = drawn.view != view || drawn.size != size || drawn.cell != cell || drawn.cells.empty();
  drawn.changed.clear();
  if (drawn.fresh) {
    drawn.columns = WithoutOverlaps(SpansOf(view.left, view.width, cell.width));
    drawn.rows = WithoutOverlaps(SpansOf(view.top, view.height, cell.height));
  }
  if (drawn.columns.empty() || drawn.rows.empty()) {
    drawn = {};
    return;
  }
  drawn.view = view;
  drawn.cell = cell;
  drawn.size = size;
  drawn.cells.resize(drawn.columns.size() * drawn.rows.size());
  const EdgeMap edges(drawn.columns, drawn.rows, pictures, frames);
  auto shown = drawn.cells.begin();
  for (std::size_t row = 0; row < drawn.rows.size(); ++row) {
    for (std::size_t i = 0; i < drawn.columns.size(); ++i, ++shown) {
      const Cell c(drawn.columns[i].cell, drawn.rows[row].cell);
      const bool bare = moving.bare.Has(c);
      const DrawnView::Shown now{bare ? pictures.GroundAt(c) : pictures.At(c.x(), c.y()), edges.At(i, row)};
      if (*shown == now && !moving.touched.Has(c) && !drawn.touched.Has(c)) continue;
      *shown = now;
      if (!drawn.fresh) drawn.changed.push_back({i, row});
    }
  }
  drawn.touched = moving.touched;
}

}  // namespace zorik
