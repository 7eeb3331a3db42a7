#include "editors/HandPan.h"

#include <QMouseEvent>
#include <QScrollBar>

#include "editors/EditKom.h"

namespace zorik {

bool HandPan::Press(const QMouseEvent& event) {
  if (grip_) return true;
  if (picture_.InStroke()) return false;
  const bool wheel = event.button() == Qt::MiddleButton && (event.modifiers() & Qt::ShiftModifier);
  if (!wheel && (event.button() != Qt::LeftButton || !picture_.TakeSpace())) return false;
  grip_ = {event.globalPosition().toPoint(), {across_.value(), down_.value()}};
  picture_.setCursor(Qt::ClosedHandCursor);
  return true;
}

bool HandPan::Move(const QMouseEvent& event) {
  if (!grip_) return false;
  const QPoint way = event.globalPosition().toPoint() - grip_->pointer;
  const double step = picture_.CellSize() / 2.0;
  across_.setValue(grip_->bars.x() - qRound(way.x() / step));
  down_.setValue(grip_->bars.y() - qRound(way.y() / step));
  return true;
}

bool HandPan::Release(const QMouseEvent& event) {
  if (!grip_) return false;
  if (event.buttons() == Qt::NoButton) {
    grip_.reset();
    picture_.setCursor(Qt::CrossCursor);
  }
  return true;
}

}  // namespace zorik
