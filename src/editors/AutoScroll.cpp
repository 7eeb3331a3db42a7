#include "editors/AutoScroll.h"

#include <QScrollBar>
#include <algorithm>

#include "editors/EditKom.h"

namespace zorik {
namespace {

constexpr int kPause = 40;     // milliseconds
constexpr int kMostSteps = 4;  // of a scroll bar at once

int BeyondOf(int place, int length) {
  if (place < 0) return place;
  return std::max(0, place - length + 1);
}

// One step at the edge, one more for every cell farther away.
int StepsOf(int beyond, int cell) {
  if (beyond == 0) return 0;
  const int steps = std::min(kMostSteps, 1 + std::abs(beyond) / cell);
  return beyond < 0 ? -steps : steps;
}

}  // namespace

AutoScroll::AutoScroll(EditKom& picture, QScrollBar& across, QScrollBar& down, QObject* parent)
    : QObject(parent), picture_(picture), across_(across), down_(down) {}

QPoint AutoScroll::Beyond() const {
  const QSize view = picture_.parentWidget()->size();
  return {BeyondOf(pointer_.x(), view.width()), BeyondOf(pointer_.y(), view.height())};
}

void AutoScroll::Follow(QPoint position) {
  pointer_ = position + picture_.pos();
  if (!picture_.IsDragged() || Beyond().isNull()) {
    Stop();
  } else if (!timer_.isActive()) {
    timer_.start(kPause, this);
  }
}

void AutoScroll::timerEvent(QTimerEvent* /*event*/) {
  if (!picture_.IsDragged()) {
    Stop();
    return;
  }
  const QPoint before = picture_.pos();
  across_.setValue(across_.value() + StepsOf(Beyond().x(), picture_.CellSize()));
  down_.setValue(down_.value() + StepsOf(Beyond().y(), picture_.CellSize()));
  if (picture_.pos() != before) picture_.LeadAgain();
}

}  // namespace zorik
