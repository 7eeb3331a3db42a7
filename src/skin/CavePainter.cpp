#include "skin/CavePainter.h"

#include "core/Hra.h"

namespace zorik {

void CavePainter::CaveOpens(const Hra& hra) {
  tiles_.Load(cache_, places_, hra.Scheme);
  around_ = LoadDecoration(cache_, places_, hra.Scheme);
  drawn_.cells.clear();
  spare_.cells.clear();
  pictures_.SetFrames(tiles_.Frames());
  pictures_.Open(hra);
}

void CavePainter::MoveView(const Hra& hra, bool jump) {
  const Unit& unit = hra.Dog[static_cast<std::size_t>(hra.ActiveDog)];
  if (jump) pictures_.Placed(hra);
  view_.Follow(unit.x, unit.y, hra.CaveWidth, hra.CaveHeight, jump);
}

const QImage& CavePainter::Compose(const Hra& hra, QSize frame) {
  const ViewArea area = scrollView_ ? view_.Scrolled() : ZornePole::Whole(hra.CaveWidth, hra.CaveHeight);
  const bool held = !drawn_.image.isDetached();
  if (held) std::swap(drawn_, spare_);
  changed_ = DrawChanges(area, DrawnCell(area, frame), pictures_, tiles_, drawn_);
  if (held) changed_ = drawn_.image.rect();
  return drawn_.image;
}

}  // namespace zorik
