#pragma once

#include <QImage>
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

// Composes the view. The image gets the size that DrawnSize tells; one that has it is drawn over, and costs
// no memory anew. A view of no size gives an empty image.
void DrawView(const ViewArea& view, QSize cell, const CellPictures& pictures, TileSets& tiles, QImage& drawn);

}  // namespace zorik
