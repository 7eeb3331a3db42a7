#include "screens/ScrollButton.h"

#include <QMouseEvent>

namespace zorik {
namespace {

// Milliseconds until a held button goes on, and between the steps that follow.
constexpr int kFirstDelay = 300;
constexpr int kDelay = 60;

}  // namespace

ScrollButton::ScrollButton(Qt::Orientation orientation, QWidget* parent)
    : SkinButton(parent), orientation_(orientation) {
  setAutoRepeat(true);
  setAutoRepeatDelay(kFirstDelay);
  setAutoRepeatInterval(kDelay);
  connect(this, &SkinButton::clicked, this, [this] { emit Stepped(direction_); });
}

void ScrollButton::mousePressEvent(QMouseEvent* event) {
  const QPoint place = event->position().toPoint();
  const bool back = orientation_ == Qt::Vertical ? place.y() < height() / 2 : place.x() < width() / 2;
  direction_ = back ? -1 : 1;
  SkinButton::mousePressEvent(event);
}

}  // namespace zorik
