#include "skin/CavePainter.h"

namespace zorik {

void CavePainter::CaveOpens(const Hra& hra) {
  tiles_.Load(places_, hra.Scheme);
  pictures_.SetFrames(tiles_.Frames());
  pictures_.Open();
}

void CavePainter::View(const Hra& hra, bool jump) {
  const Unit& unit = hra.Dog[static_cast<std::size_t>(hra.ActiveDog)];
  if (jump) pictures_.Placed();
  view_.Follow(unit.x, unit.y, hra.CaveWidth, hra.CaveHeight, jump);
}

QImage CavePainter::Compose(const Hra& hra, QSize frame) {
  const ViewArea area = scrollView_ ? view_.Scrolled() : ZornePole::Whole(hra.CaveWidth, hra.CaveHeight);
  return DrawView(area, DrawnCell(area, frame), pictures_, tiles_);
}

}  // namespace zorik
