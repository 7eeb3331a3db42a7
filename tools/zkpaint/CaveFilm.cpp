#include "zkpaint/CaveFilm.h"

#include <algorithm>
#include <cmath>

#include "data/Result.h"

namespace zorik {

CaveFilm::CaveFilm(SkinPlaces places, const PictureTerms& terms)
    : terms_(terms), painter_(std::move(places)) {
  painter_.SetScrollView(terms.follow);
}

Result<Done> CaveFilm::OpenCave(const std::string& text) {
  const Result<Done> started = PaintCave(*hra_, text, RunKind::Practice);
  if (started) Begin();
  return started;
}

Result<Done> CaveFilm::OpenRecord(const std::string& bytes) {
  const Result<Done> started = Replay(*hra_, bytes);
  if (started) Begin();
  return started;
}

void CaveFilm::Begin() {
  if (!terms_.scheme.empty()) hra_->Scheme = terms_.scheme;
  painter_.CaveOpens(*hra_);
  painter_.ShowMoment(*hra_, true);
  hra_->SetStage(*this);
}

bool CaveFilm::Next() {
  if (over_) return false;
  const TickEnd end = Tick(*hra_, {});
  over_ = end != TickEnd::Running;
  return end == TickEnd::Running || end == TickEnd::Won;
}

QImage CaveFilm::Picture() {
  const auto pixels = [this](int cells, double most) {
    const double shown = terms_.follow ? std::min(most, static_cast<double>(cells)) : cells;
    return static_cast<int>(std::ceil(shown * terms_.cell));
  };
  return painter_.Compose(*hra_,
                          QSize(pixels(hra_->CaveWidth, kViewColumns), pixels(hra_->CaveHeight, kViewRows)));
}

}  // namespace zorik
