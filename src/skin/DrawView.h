#pragma once

#include <QImage>
#include <QRegion>
#include <QSize>
#include <vector>

#include "core/Grids.h"
#include "skin/CellPictures.h"
#include "skin/DrawnSpan.h"
#include "skin/TileSets.h"
#include "skin/ZornePole.h"

namespace zorik {

// The cells of a view that starts at the logical pixel from and is extent long, drawn with this many pixels a
// cell. Cells at both ends may be drawn in part; none of no size is told.
std::vector<DrawnSpan> SpansOf(int from, int extent, int cellSize);

// The size of a drawn cell, whole pixels, for a view that is to fill the frame as far as it can.
QSize DrawnCell(const ViewArea& view, QSize frame);

// The size of the drawn view: not more than the frame's.
QSize DrawnSize(const ViewArea& view, QSize cell);

// The cells of a view in which something is on its way.
struct MovingCells {
  CellSet bare;     // show the ground: what is to stand in them is still on its way
  CellSet touched;  // look different in each picture
};

// A view as it is drawn: the cells that it shows and where. The next look at it tells by them what has
// changed.
struct DrawnView {
  struct Shown {
    CellPicture picture;
    EdgeMask edges = 0;

    bool operator==(const Shown&) const = default;
  };

  ViewArea view;
  QSize cell;                            // in pixels
  QSize size;                            // of the whole view, in pixels
  std::vector<DrawnSpan> columns, rows;  // none covers a part of the next
  std::vector<Shown> cells;              // row by row; empty: nothing that can be relied upon
  CellSet touched;                       // by what was on its way

  const Shown& At(std::size_t column, std::size_t row) const { return cells[row * columns.size() + column]; }
};

// Looks at the view anew and answers where it looks different from the last time. A view of no size has no
// cells.
QRegion LookAt(const ViewArea& view, QSize cell, const CellPictures& pictures, TileSets& tiles,
               DrawnView& drawn, const MovingCells& moving = {});

// Paints a part of the view: what a PartPainter does.
void PaintPart(const DrawnView& drawn, TileSets& tiles, const QRegion& part, QImage& target, QPoint corner);

// Composes the view. The image gets the size that DrawnSize tells; one that has it is drawn over, and costs
// no memory anew. A view of no size gives an empty image.
void DrawView(const ViewArea& view, QSize cell, const CellPictures& pictures, TileSets& tiles, QImage& drawn);

}  // namespace zorik
