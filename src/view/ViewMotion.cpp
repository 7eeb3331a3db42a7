#include "view/ViewMotion.h"

#include <algorithm>
#include <cmath>

#include "core/Hra.h"

namespace zorik {
namespace {

double Between(int from, int to, double way) {
  return from + (to - from) * way;
}

// Where a place of the cave, in cells, stands in a view, in pixels.
int PixelOf(double place, int viewStart, int cellSize) {
  return static_cast<int>(std::floor((place * kTileSize - viewStart) * cellSize / kTileSize));
}

}  // namespace

PixelPlace PlaceIn(const DrawnView& drawn, double x, double y) {
  return {PixelOf(x, drawn.view.left, drawn.cell.width), PixelOf(y, drawn.view.top, drawn.cell.height)};
}

PixelPlace ViewMotion::Mover::PlaceOn(const DrawnView& drawn, double way) const {
  return PlaceIn(drawn, Between(from.x(), to.x(), way), Between(from.y(), to.y(), way));
}

void ViewMotion::Begin(const CellPictures& pictures, const ViewArea& view) {
  Forget();
  before_ = pictures;
  from_ = view;
}

// A flea that has stepped passes for another object until all have.
void ViewMotion::Add(const Hra& hra, Cell from, Cell to) {
  const std::uint16_t code = hra.Field(to);
  if (from_) motion_.Add(from, to, code == kFleaInTransit ? +kFlea : code);
}

void ViewMotion::Forget() {
  if (!from_) return;
  motion_.Clear();
  from_.reset();
  movers_.clear();
  cells_ = {};
}

// What has blown up where it arrived, or was overgrown there, has not come.
void ViewMotion::Settle(const Hra& hra, const CellPictures& pictures, const FrameTable& frames) {
  for (const Motion::Move& move : motion_.Moves()) {
    if (move.from == move.to || hra.Field(move.to) != move.code) continue;
    movers_.push_back({move.from, move.to, pictures.At(move.to.x(), move.to.y()), Under(move.to, frames)});
    cells_.bare.Add(move.to);
    Touch(movers_.back());
  }
  motion_.Clear();
}

void ViewMotion::Touch(const Mover& mover) {
  const auto [left, right] = std::minmax({mover.from.x(), mover.to.x()});
  const auto [top, bottom] = std::minmax({mover.from.y(), mover.to.y()});
  for (int y = top; y <= bottom; ++y) {
    for (int x = left; x <= right; ++x) cells_.touched.Add({x, y});
  }
}

// Where something has left there is nothing but the ground.
std::optional<DrawnView::Shown> ViewMotion::Under(Cell c, const FrameTable& frames) const {
  const CellPicture picture = before_.At(c.x(), c.y());
  if (motion_.HasLeft(c) || picture.Pic == kSetSpace) return std::nullopt;
  const auto ground = [this, &frames](int x, int y) {
    return before_.Inside(x, y) ? frames.GroundOf(before_.At(x, y)) : Ground::Covered;
  };
  const EdgeMask edges = frames.HasEdges() ? EdgesAround(c.x(), c.y(), ground) : EdgeMask{0};
  return DrawnView::Shown{picture, edges};
}

ViewArea ViewMotion::ViewAt(const ViewArea& view, double way) const {
  if (!from_ || from_->width != view.width || from_->height != view.height) return view;
  ViewArea area = view;
  area.left = static_cast<int>(std::lround(Between(from_->left, view.left, way)));
  area.top = static_cast<int>(std::lround(Between(from_->top, view.top, way)));
  return area;
}

}  // namespace zorik
