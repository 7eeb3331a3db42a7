#include "screens/RunView.h"

#include <QResizeEvent>
#include <algorithm>

#include "screens/Ram.h"

namespace zorik {

RunView::RunView(SkinPlaces places, QWidget* parent)
    : QWidget(parent), painter_(std::move(places)), ram_(new Ram(this)) {
  painter_.SetScrollView(false);
}

void RunView::SetRun(Timeline timeline) {
  timeline_ = std::move(timeline);
  run_ = timeline_->At(0);
  tick_ = 0;
  painter_.CaveOpens(*run_);
  painter_.ShowMoment(*run_, true);
  Fit();
  Compose();
}

void RunView::ShowTick(int tick) {
  if (!timeline_) return;
  run_ = timeline_->At(tick);
  tick_ = std::clamp(tick, 0, timeline_->Length());
  painter_.ShowMoment(*run_, true);
  Compose();
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
