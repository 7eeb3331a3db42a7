#pragma once

#include <cstddef>
#include <vector>

#include "core/Grids.h"
#include "view/CellPictures.h"
#include "view/DrawnSpan.h"
#include "view/Edges.h"
#include "view/FrameTable.h"
#include "view/ZornePole.h"

namespace zorik {

// A size on the screen, in pixels.
struct PixelSize {
  int width = 0;
  int height = 0;

  bool operator==(const PixelSize&) const = default;
};

// The size of a drawn cell, whole pixels, for a view that is to fill the frame as far as it can.
PixelSize DrawnCell(const ViewArea& view, int frameWidth, int frameHeight);

// The size of the drawn view: not more than the frame's.
PixelSize DrawnSize(const ViewArea& view, int cellWidth, int cellHeight);

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
  struct Place {
    std::size_t column = 0;
    std::size_t row = 0;
  };

  ViewArea view;
  PixelSize cell;
  PixelSize size;                        // of the whole view
  std::vector<DrawnSpan> columns, rows;  // none covers a part of the next
  std::vector<Shown> cells;              // row by row; empty: nothing that can be relied upon
  CellSet touched;                       // by what was on its way

  bool fresh = true;           // the last look found it another view: all of it has changed
  std::vector<Place> changed;  // otherwise those of the cells, row by row

  const Shown& At(std::size_t column, std::size_t row) const { return cells[row * columns.size() + column]; }
};

// Looks at the view anew, and tells in it where it looks different from the last time. A view of no size has
// no cells.
void LookAt(const ViewArea& view, PixelSize cell, const CellPictures& pictures, const FrameTable& frames,
            DrawnView& drawn, const MovingCells& moving);

}  // namespace zorik
