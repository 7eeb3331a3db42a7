#pragma once

#include <QImage>
#include <QRegion>
#include <QSize>
#include <vector>

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

// A drawn view, and what it shows, by which the next picture knows what has changed since.
struct DrawnView {
  struct Shown {
    CellPicture picture;
    EdgeMask edges = 0;

    bool operator==(const Shown&) const = default;
  };

  QImage image;
  ViewArea view;
  std::vector<Shown> cells;  // row by row; empty: nothing that can be relied upon
};

// Composes the view over the one that was drawn last, from the same tile sets, and answers what has changed.
QRegion DrawChanges(const ViewArea& view, QSize cell, const CellPictures& pictures, TileSets& tiles,
                    DrawnView& drawn);

// Composes the view. The image gets the size that DrawnSize tells; one that has it is drawn over, and costs
// no memory anew. A view of no size gives an empty image.
void DrawView(const ViewArea& view, QSize cell, const CellPictures& pictures, TileSets& tiles, QImage& drawn);

}  // namespace zorik
