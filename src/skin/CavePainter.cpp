#include "skin/CavePainter.h"

#include "core/Hra.h"
#include "skin/MoverPaint.h"

namespace zorik {

void CavePainter::CaveOpens(const Hra& hra) {
  tiles_.Load(cache_, places_, hra.Scheme);
  around_ = LoadDecoration(cache_, places_, hra.Scheme);
  view_.CaveOpens(hra, tiles_.Table());
}

// Many small parts cost more than all of it.
const QRegion& CavePainter::Look(const Hra& hra, QSize frame, double way) {
  constexpr int kMostParts = 100;
  const DrawnView& drawn = view_.Look(hra, tiles_.Table(), ToPixels(frame), way);
  changed_ = ChangedIn(drawn);
  if (!drawn.cells.empty()) tiles_.Prepare(ToQSize(drawn.cell));
  if (OnTheWay() && changed_.rectCount() > kMostParts) changed_ = QRect(QPoint(), Size());
  return changed_;
}

void CavePainter::PaintPart(const QRegion& part, QImage& target, QPoint corner) {
  const DrawnView& drawn = view_.Drawn();
  zorik::PaintPart(drawn, tiles_, part, target, corner);
  if (!OnTheWay()) return;
  const QRect room = QRect(QPoint(), Size()) & target.rect().translated(-corner);
  const Pixels pixels = PixelsOf(target, corner);
  for (const QRect& rect : part)
    PaintMovers(view_.OnTheWay(), drawn, tiles_, view_.Way(), rect & room, pixels);
}

QImage CavePainter::Compose(const Hra& hra, QSize frame) {
  Look(hra, frame);
  QImage image(Size(), QImage::Format_RGB32);
  PaintPart(image.rect(), image, {});
  return image;
}

}  // namespace zorik
