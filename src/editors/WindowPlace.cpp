#include "editors/WindowPlace.h"

#include <QScreen>
#include <QWidget>
#include <algorithm>

#include "platform/UserStore.h"

namespace zorik {
namespace {

QString KeyOf(const QWidget& window) {
  return "Editors/" + window.objectName();
}

}  // namespace

void StoreSize(const QWidget& window) {
  ZorikStore().setValue(KeyOf(window), window.saveGeometry());
}

bool RestoreSize(QWidget& window) {
  return window.restoreGeometry(ZorikStore().value(KeyOf(window)).toByteArray());
}

void PutInMiddle(QWidget& window) {
  const QRect screen = window.screen()->availableGeometry();
  window.resize(window.size().boundedTo(screen.size() - kDesktopFrame));
  const QPoint middle = screen.center() - window.rect().center();
  const QSize framed = window.size() + kDesktopFrame;
  const QPoint last = screen.bottomRight() + QPoint(1, 1) - QPoint(framed.width(), framed.height());
  window.move(std::max(std::min(middle.x(), last.x()), screen.left()),
              std::max(std::min(middle.y(), last.y()), screen.top()));
}

}  // namespace zorik
