#include "screens/WayHint.h"

#include <algorithm>
#include <limits>
#include <optional>

#include "core/Machine.h"
#include "run/PlayOut.h"
#include "skin/CavePainter.h"

namespace zorik {
namespace {

constexpr double kGhost = 0.6;
constexpr int kGhostRests = 25;  // ticks
constexpr int kLeftBehind = 40;  // ticks after which a step that was not taken is none any more

constexpr QColor kTrail(0xFF, 0xF4, 0x96, 120);
constexpr QColor kFootstep(0xFF, 0xF4, 0x96, 190);
constexpr QColor kBeside(0xFF, 0x9A, 0x50, 220);

QPoint Place(Cell cell) {
  return {cell.x(), cell.y()};
}

bool Adjacent(QPoint a, QPoint b) {
  return (a - b).manhattanLength() <= 1;
}

}  // namespace

void WayHint::Show(const Hra& run, const Plan& way) {
  Clear();
  begin_ = Unwatched(run);
  way_ = way;
  steps_ = Footsteps(*begin_, way_, kSteps);
}

void WayHint::Clear() {
  begin_.reset();
  ghost_.reset();
  steps_.clear();
  way_.clear();
}

void WayHint::WentOn(const Hra& run) {
  if (!Shown()) return;
  ghost_.reset();
  const auto cell = UnitCell(run, run.ActiveDog);
  const auto done = std::find_if(steps_.begin(), steps_.end(), [&](const Footstep& step) {
    return !step.beside && step.unit == run.ActiveDog && cell == step.cell;
  });
  if (done != steps_.end()) steps_.erase(steps_.begin(), done + 1);
  const int late = run.Ticks - begin_->Ticks - kLeftBehind;
  if (Shown() && steps_.front().tick < late) Clear();
}

void WayHint::ShowWhole(bool whole) {
  if (!begin_ || whole == Whole()) return;
  steps_ = Footsteps(*begin_, way_, whole ? std::numeric_limits<int>::max() : kSteps);
  ghost_.reset();
  if (whole) BeginGhost();
}

void WayHint::BeginGhost() {
  ghost_ = std::make_unique<Hra>(*begin_);
  TakeOver(*ghost_);
  rest_ = 0;
}

void WayHint::GhostGoesOn() {
  if (!ghost_) return;
  const auto gone = static_cast<std::size_t>(ghost_->Ticks - begin_->Ticks);
  if (gone < way_.size() && !ghost_->Win) {
    Tick(*ghost_, KeysOf(way_[gone]));
  } else if (++rest_ > kGhostRests) {
    BeginGhost();
  }
}

// A line for each unit, and one from where a teleport has led it.
void WayHint::LayTrail(Overlay& overlay) const {
  std::optional<QPoint> at;
  int unit = -1;
  for (const Footstep& step : steps_) {
    const QPoint place = Place(step.cell);
    overlay.marks.push_back({place, step.beside ? kBeside : kFootstep});
    if (step.beside) continue;
    if (step.unit != unit) {
      const auto from = UnitCell(*begin_, step.unit);
      at = from && Adjacent(Place(*from), place) ? std::optional(Place(*from)) : std::nullopt;
      unit = step.unit;
      overlay.trails.push_back({{at.value_or(place)}, kTrail});
    } else if (!Adjacent(*at, place)) {
      overlay.trails.push_back({{}, kTrail});
    }
    overlay.trails.back().cells.push_back(place);
    at = place;
  }
}

void WayHint::LayOver(Overlay& overlay, CavePainter& painter) const {
  if (!Shown() && !ghost_) return;
  LayTrail(overlay);
  if (!ghost_) return;
  if (const auto cell = UnitCell(*ghost_, ghost_->ActiveDog))
    overlay.sprites.push_back({Place(*cell), painter.PictureOf(*ghost_, *cell), kGhost});
}

}  // namespace zorik
