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

// The size of the drawn view: not more than the frame's.
inline QSize DrawnSize(const ViewArea& view, QSize cell) {
  return ToQSize(DrawnSize(view, cell.width(), cell.height()));
}

// Where a view looks different from the time before its last look.
QRegion ChangedIn(const DrawnView& drawn);

// Paints a part of the view: what a PartPainter does.
void PaintPart(const DrawnView& drawn, TileSets& tiles, const QRegion& part, QImage& target, QPoint corner);

}  // namespace zorik
