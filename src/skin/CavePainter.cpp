#include "skin/CavePainter.h"

#include "core/Hra.h"

namespace zorik {

void CavePainter::CaveOpens(const Hra& hra) {
  tiles_.Load(cache_, places_, hra.Scheme);
  around_ = LoadDecoration(cache_, places_, hra.Scheme);
  drawn_.cells.clear();
  pictures_.SetFrames(tiles_.Frames());
  pictures_.Open(hra);
}

void CavePainter::MoveView(const Hra& hra, bool jump) {
  const Unit& unit = hra.Dog[static_cast<std::size_t>(hra.ActiveDog)];
  if (jump) pictures_.Placed(hra);
  view_.Follow(unit.x, unit.y, hra.CaveWidth, hra.CaveHeight, jump);
}

void CavePainter::ShowMoment(const Hra& hra, bool jump) {
  pictures_.ShowMoment(hra);
  MoveView(hra, jump);
}

const QRegion& CavePainter::Look(const Hra& hra, QSize frame) {
  const ViewArea area = scrollView_ ? view_.Scrolled() : ZornePole::Whole(hra.CaveWidth, hra.CaveHeight);
  changed_ = LookAt(area, DrawnCell(area, frame), pictures_, tiles_, drawn_);
  return changed_;
}

void CavePainter::PaintPart(const QRegion& part, QImage& target, QPoint corner) {
  zorik::PaintPart(drawn_, tiles_, part, target, corner);
}

QImage CavePainter::Compose(const Hra& hra, QSize frame) {
  Look(hra, frame);
  QImage image(drawn_.size, QImage::Format_RGB32);
  PaintPart(image.rect(), image, {});
  return image;
}

}  // namespace zorik
