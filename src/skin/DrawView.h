#pragma once

#include <QImage>
#include <QRegion>
#include <QSize>

#include "skin/TileSets.h"
#include "view/CellPictures.h"
#include "view/DrawnView.h"
#include "view/ZornePole.h"

namespace zorik {

// Sizes and rectangles as the toolkit has them.
inline QSize ToQSize(PixelSize size) {
  return {size.width, size.height};
}
inline PixelSize ToPixels(QSize size) {
  return {size.width(), size.height()};
}

// The size of a drawn cell, whole pixels, for a view that is to fill the frame as far as it can.
inline QSize DrawnCell(const ViewArea& view, QSize frame) {
  return ToQSize(DrawnCell(view, frame.width(), frame.height()));
}

// The size of the drawn view: not more than the frame's.
inline QSize DrawnSize(const ViewArea& view, QSize cell) {
  return ToQSize(DrawnSize(view, cell.width(), cell.height()));
}

// Where a view looks different from the time before its last look.
QRegion ChangedIn(const DrawnView& drawn);

// Paints a part of the view: what a PartPainter does.
void PaintPart(const DrawnView& drawn, TileSets& tiles, const QRegion& part, QImage& target, QPoint corner);

// Composes the view. The image gets the size that DrawnSize tells; one that has it is drawn over, and costs
// no memory anew. A view of no size gives an empty image.
void DrawView(const ViewArea& view, QSize cell, const CellPictures& pictures, TileSets& tiles, QImage& drawn);

}  // namespace zorik
