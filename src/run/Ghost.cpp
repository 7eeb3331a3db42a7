#include "run/Ghost.h"

#include <algorithm>
#include <utility>

#include "core/Machine.h"
#include "data/CaveO.h"
#include "data/Result.h"
#include "run/PlayOut.h"

namespace zorik {
namespace {

constexpr int kFading = 20;  // ticks

bool IsThere(const RunState& run, int number, Cell cell) {
  const Unit& unit = run.Dog[static_cast<std::size_t>(number)];
  return unit.Alive && unit.x == cell.x() && unit.y == cell.y();
}

}  // namespace

std::optional<Ghost> Ghost::Of(const std::string& bytes, std::string_view caveText) {
  auto run = std::make_unique<Hra>();
  if (!Replay(*run, bytes)) return std::nullopt;
  if (WithoutMarker(run->CaveText) != WithoutMarker(caveText) || !PlayOut(*Unwatched(*run)).Wins())
    return std::nullopt;
  return Ghost(std::move(run));
}

void Ghost::Follow(const RunFacts& run) {
  if (run.Ticks < followed_) RestartCave(*run_);
  followed_ = run.Ticks;
  while (run_->Ticks < followed_ && !run_->Win) Tick(*run_, {});
}

std::vector<Ghost::Place> Ghost::Beside(const RunState& run) const {
  std::vector<Place> places;
  for (int n = 1; n <= run_->DogCount; ++n) {
    const auto cell = UnitCell(*run_, n);
    if (!cell || run_->Field(*cell) != kDog || !IsThere(*run_, n, *cell)) continue;
    if (!IsThere(run, n, *cell)) places.push_back({*cell, n});
  }
  if (!run_->Dog[0].Alive) return places;
  ForEachCell(*run_, [&](Cell cell) {
    if (run_->Field(cell) == kFlea && run.Field(cell) != kFlea) places.push_back({cell, 0});
  });
  return places;
}

double Ghost::Strength() const {
  if (!run_->Win) return 1;
  return std::max(0.0, 1.0 - static_cast<double>(followed_ - run_->Ticks) / kFading);
}

}  // namespace zorik
