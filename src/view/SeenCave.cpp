#include "view/SeenCave.h"

#include "core/Hra.h"

namespace zorik {

void SeenCave::CaveOpens(const Hra& hra, const FrameTable& frames) {
  drawn_.cells.clear();
  motion_.Forget();
  pictures_.SetFrames(frames.Rows());
  pictures_.Open(hra);
}

void SeenCave::MoveView(const Hra& hra, bool jump) {
  const Unit& unit = hra.Dog[static_cast<std::size_t>(hra.ActiveDog)];
  if (jump) {
    pictures_.Placed(hra);
    motion_.Forget();
  }
  view_.Follow(unit.x, unit.y, hra.CaveWidth, hra.CaveHeight, jump);
}

void SeenCave::SetReach(const Hra& hra, double columns, double rows) {
  const Unit& unit = hra.Dog[static_cast<std::size_t>(hra.ActiveDog)];
  motion_.Forget();
  view_.SetReach(columns, rows);
  view_.Follow(unit.x, unit.y, hra.CaveWidth, hra.CaveHeight, true);
}

void SeenCave::ShowMoment(const Hra& hra, bool jump) {
  motion_.Forget();
  pictures_.ShowMoment(hra);
  MoveView(hra, jump);
}

ViewArea SeenCave::Area(const Hra& hra) const {
  return scrollView_ ? view_.Scrolled() : ZornePole::Whole(hra.CaveWidth, hra.CaveHeight);
}

void SeenCave::TickBegins(bool smooth) {
  if (smooth) {
    motion_.Begin(pictures_, view_.Scrolled());
  } else {
    motion_.Forget();
  }
}

const DrawnView& SeenCave::Look(const Hra& hra, const FrameTable& frames, PixelSize frame, double way) {
  static const MovingCells kNothingMoves;
  const ViewArea area = Area(hra);
  const PixelSize cell = DrawnCell(area, frame.width, frame.height);
  way_ = way;
  const bool arrived = way_ >= 1;
  const ViewArea shown = scrollView_ && !arrived ? motion_.ViewAt(area, way) : area;
  LookAt(shown, cell, pictures_, frames, drawn_, arrived ? kNothingMoves : motion_.Cells());
  return drawn_;
}

}  // namespace zorik
