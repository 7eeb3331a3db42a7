#include "skin/CavePainter.h"

#include "core/Hra.h"

namespace zorik {

void CavePainter::CaveOpens(const Hra& hra) {
  tiles_.Load(cache_, places_, hra.Scheme);
  around_ = LoadDecoration(cache_, places_, hra.Scheme);
  drawn_.cells.clear();
  motion_.Forget();
  pictures_.SetFrames(tiles_.Frames());
  pictures_.Open(hra);
}

void CavePainter::MoveView(const Hra& hra, bool jump) {
  const Unit& unit = hra.Dog[static_cast<std::size_t>(hra.ActiveDog)];
  if (jump) {
    pictures_.Placed(hra);
    motion_.Forget();
  }
  view_.Follow(unit.x, unit.y, hra.CaveWidth, hra.CaveHeight, jump);
}

void CavePainter::ShowMoment(const Hra& hra, bool jump) {
  motion_.Forget();
  pictures_.ShowMoment(hra);
  MoveView(hra, jump);
}

ViewArea CavePainter::Area(const Hra& hra) const {
  return scrollView_ ? view_.Scrolled() : ZornePole::Whole(hra.CaveWidth, hra.CaveHeight);
}

void CavePainter::TickBegins(bool smooth) {
  if (smooth) {
    motion_.Begin(pictures_, view_.Scrolled());
  } else {
    motion_.Forget();
  }
}

// Many small parts cost more than all of it.
const QRegion& CavePainter::Look(const Hra& hra, QSize frame, double way) {
  constexpr int kMostParts = 100;
  const ViewArea area = Area(hra);
  const QSize cell = DrawnCell(area, frame);
  way_ = way;
  if (way_ >= 1) {
    changed_ = LookAt(area, cell, pictures_, tiles_, drawn_);
  } else {
    const ViewArea shown = scrollView_ ? motion_.ViewAt(area, way) : area;
    changed_ = LookAt(shown, cell, pictures_, tiles_, drawn_, motion_.Cells());
    if (changed_.rectCount() > kMostParts) changed_ = QRect(QPoint(), drawn_.size);
  }
  return changed_;
}

void CavePainter::PaintPart(const QRegion& part, QImage& target, QPoint corner) {
  zorik::PaintPart(drawn_, tiles_, part, target, corner);
  if (way_ >= 1) return;
  const QRect room = QRect(QPoint(), drawn_.size) & target.rect().translated(-corner);
  const Pixels pixels = PixelsOf(target, corner);
  for (const QRect& rect : part) motion_.Paint(drawn_, tiles_, way_, rect & room, pixels);
}

QImage CavePainter::Compose(const Hra& hra, QSize frame) {
  Look(hra, frame);
  QImage image(drawn_.size, QImage::Format_RGB32);
  PaintPart(image.rect(), image, {});
  return image;
}

}  // namespace zorik
