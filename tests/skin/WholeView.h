#pragma once

#include "skin/DrawView.h"

namespace zorik::test {

// Paints the whole of a view over what the image shows, if that has its size. A view of no size gives an
// empty image.
inline void DrawView(const ViewArea& view, QSize cell, const CellPictures& pictures, TileSets& tiles,
                     QImage& drawn) {
  DrawnView fresh;
  LookAt(view, ToPixels(cell), pictures, tiles.Table(), fresh, {});
  const QSize size = ToQSize(fresh.size);
  if (drawn.size() != size) drawn = QImage(size, QImage::Format_RGB32);
  if (!drawn.isNull()) PaintPart(fresh, tiles, drawn.rect(), drawn, {});
}

}  // namespace zorik::test
