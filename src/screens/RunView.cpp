#include "screens/RunView.h"

#include <QResizeEvent>
#include <algorithm>

#include "core/Machine.h"
#include "screens/Ram.h"

namespace zorik {
namespace {

// What has another picture in every tick.
bool Stirs(const Hra& run, Cell c) {
  constexpr int kStirs = trait::kGlitters | trait::kMonster | trait::kDeadly;
  return (Grids::Traits(run.Field(c)) & kStirs) != 0 || run.Field(c) == kFinish;
}

bool SameContent(const Hra& a, const Hra& b, Cell c) {
  return a.Field(c) == b.Field(c) && a.FieldState(c) == b.FieldState(c) && a.FieldMark(c) == b.FieldMark(c);
}

}  // namespace

RunView::RunView(SkinPlaces places, QWidget* parent)
    : QWidget(parent), painter_(std::move(places)), ram_(new Ram(this)) {
  painter_.SetScrollView(false);
}

void RunView::SetRun(Timeline timeline) {
  timeline_ = std::move(timeline);
  run_ = timeline_->At(0);
  tick_ = 0;
  painter_.CaveOpens(*run_);
  for (int x = -1; x <= run_->CaveWidth; ++x) {
    for (int y = -1; y <= run_->CaveHeight; ++y) painter_.CellChanged(*run_, x, y);
  }
  painter_.MoveView(*run_, true);
  Fit();
  Compose();
}

void RunView::ShowTick(int tick) {
  if (!timeline_) return;
  const auto before = std::exchange(run_, timeline_->At(tick));
  tick_ = std::clamp(tick, 0, timeline_->Length());
  RepaintCells(*before);
  Compose();
}

// Earth and stones look a little different each time that they are painted: they shall not flicker.
void RunView::RepaintCells(const Hra& before) {
  ForEachCell(*run_, [&](Cell c) {
    if (Stirs(*run_, c) || !SameContent(before, *run_, c)) painter_.CellChanged(*run_, c.x(), c.y());
  });
}

void RunView::Compose() {
  if (!run_ || ram_->PixelSize().isEmpty()) return;
  ram_->ShowChanges(painter_, painter_.Look(*run_, ram_->PixelSize()));
}

// Its cells are as wide as high.
void RunView::Fit() {
  if (!run_) return;
  QRect place(QPoint(), QSize(run_->CaveWidth, run_->CaveHeight).scaled(size(), Qt::KeepAspectRatio));
  place.moveCenter(rect().center());
  ram_->setGeometry(place);
}

void RunView::resizeEvent(QResizeEvent* event) {
  Fit();
  Compose();
  QWidget::resizeEvent(event);
}

}  // namespace zorik
