#include "screens/GhostView.h"

#include <algorithm>
#include <utility>

#include "platform/Settings.h"
#include "skin/CavePainter.h"

namespace zorik {
namespace {

constexpr double kOpacity = 0.55;

QPointF Between(Cell from, Cell to, double way) {
  const QPointF start(from.x(), from.y());
  return start + (QPointF(to.x(), to.y()) - start) * way;
}

}  // namespace

// Where what has come to a cell in this tick was before.
Cell GhostView::Steps::Start(Cell end) const {
  for (const Motion::Move& move : motion_.Moves()) {
    if (move.to == end && move.from != end) return move.from;
  }
  return end;
}

void GhostView::SetRecord(std::string bytes) {
  record_ = std::move(bytes);
  ghost_.reset();
  at_ = kNever;
}

Ghost* GhostView::Wanted(const Hra& run) {
  if (!settings_.Ghost || run.Kind != RunKind::Play) return nullptr;
  if (!record_.empty()) ghost_ = Ghost::Of(std::exchange(record_, {}), run.CaveText);
  return ghost_ ? &*ghost_ : nullptr;
}

// Only what one tick has moved is on its way. Its picture stays while it is: some are drawn by lot.
const Ghost* GhostView::Brought(const Hra& run, CavePainter& painter) {
  Ghost* const ghost = Wanted(run);
  if (ghost == nullptr || at_ == run.Ticks) return ghost;
  steps_.Clear();
  ghost->Watch(steps_);
  ghost->Follow(run);
  if (std::exchange(at_, run.Ticks) + 1 != run.Ticks) steps_.Clear();
  seen_.clear();
  for (const Ghost::Place& place : ghost->Beside(run)) {
    const CellPicture picture = painter.PictureOf(ghost->Run(), place.cell);
    seen_.push_back({steps_.Start(place.cell), place.cell, picture});
  }
  return ghost;
}

bool GhostView::Moves(const Hra& run, CavePainter& painter) {
  if (!settings_.SmoothMotion || Brought(run, painter) == nullptr) return false;
  return std::any_of(seen_.begin(), seen_.end(), [](const Seen& seen) { return seen.from != seen.to; });
}

Overlay GhostView::Beside(const Hra& run, CavePainter& painter, double way) {
  Overlay overlay;
  const Ghost* const ghost = Brought(run, painter);
  if (ghost == nullptr) return overlay;
  const double opacity = kOpacity * ghost->Strength();
  for (const Seen& seen : seen_)
    overlay.sprites.push_back({Between(seen.from, seen.to, way), seen.picture, opacity});
  return overlay;
}

}  // namespace zorik
