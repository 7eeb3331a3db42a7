#include "screens/GhostView.h"

#include <utility>

#include "skin/CavePainter.h"

namespace zorik {
namespace {

constexpr double kOpacity = 0.55;

}  // namespace

void GhostView::SetRecord(std::string bytes) {
  record_ = std::move(bytes);
  ghost_.reset();
}

Ghost* GhostView::Wanted(const Hra& run) {
  if (!record_.empty()) ghost_ = Ghost::Of(std::exchange(record_, {}), run.CaveText);
  return ghost_ ? &*ghost_ : nullptr;
}

Overlay GhostView::Beside(const Hra& run, bool wanted, CavePainter& painter) {
  Overlay overlay;
  if (!wanted || run.Kind != RunKind::Play) return overlay;
  Ghost* const ghost = Wanted(run);
  if (ghost == nullptr) return overlay;
  ghost->Follow(run);
  const double opacity = kOpacity * ghost->Strength();
  for (const Ghost::Place& place : ghost->Beside(run)) {
    overlay.sprites.push_back(
        {QPoint(place.cell.x(), place.cell.y()), painter.PictureOf(ghost->Run(), place.cell), opacity});
  }
  return overlay;
}

}  // namespace zorik
