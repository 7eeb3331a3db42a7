#include "skin/MoverPaint.h"

#include <QRegion>
#include <algorithm>
#include <cstring>

#include "skin/DrawView.h"
#include "skin/LooseFrame.h"

namespace zorik {
namespace {

QPoint ToQPoint(PixelPlace place) {
  return {place.x, place.y};
}

void CopyFrame(const QImage& frame, QPoint at, const QRect& clip, const Pixels& pixels) {
  const QRect seen = frame.rect() & clip.translated(-at);
  for (int y = seen.top(); y <= seen.bottom(); ++y) {
    const auto* const line = reinterpret_cast<const QRgb*>(frame.constScanLine(y));
    std::memcpy(pixels.At(at.x() + seen.left(), at.y() + y), line + seen.left(),
                static_cast<std::size_t>(std::max(0, seen.width())) * Pixels::kSize);
  }
}

}  // namespace

void PaintMovers(const ViewMotion& motion, const DrawnView& drawn, TileSets& tiles, double way,
                 const QRect& rect, const Pixels& pixels) {
  const QSize size = ToQSize(drawn.cell);
  for (const ViewMotion::Mover& mover : motion.Movers()) {
    const QRect box(ToQPoint(mover.PlaceOn(drawn, way)), size);
    if (mover.under) {
      const QRect cell(ToQPoint(PlaceIn(drawn, mover.to.x(), mover.to.y())), size);
      const QImage& under = tiles.Frame(mover.under->picture, size, mover.under->edges);
      for (const QRect& part : QRegion(cell & rect) - box) CopyFrame(under, cell.topLeft(), part, pixels);
    }
    if (box.intersects(rect)) tiles.Loose(mover.picture, size).LayOver(pixels, box.topLeft(), rect);
  }
}

}  // namespace zorik
