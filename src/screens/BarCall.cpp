#include "screens/BarCall.h"

#include <QMouseEvent>
#include <QWidget>
#include <algorithm>
#include <utility>

namespace zorik {

BarCall::BarCall(QWidget& window, std::function<bool()> inUse) : inUse_(std::move(inUse)) {
  leave_.setSingleShot(true);
  leave_.callOnTimeout([this] {
    if (inUse_()) return Stay();
    emit Leaves();
  });
  QList<QWidget*> all = window.findChildren<QWidget*>();
  all.push_back(&window);
  for (QWidget* const widget : std::as_const(all)) {
    widget->setMouseTracking(true);
    widget->installEventFilter(this);
  }
}

void BarCall::Stay(int milliseconds) {
  leave_.start(std::max(milliseconds, leave_.remainingTime()));
}

bool BarCall::eventFilter(QObject* object, QEvent* event) {
  if (event->type() == QEvent::MouseMove) {
    const QPoint pointer = static_cast<QMouseEvent*>(event)->globalPosition().toPoint();
    if (std::exchange(pointer_, pointer) != pointer) emit MouseMoved();
  }
  return QObject::eventFilter(object, event);
}

}  // namespace zorik
