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

// A size below the window's least one would be put right when it is shown, and its place would then count
// without the frame: the title would stand above the screen.
void ResizeWithinScreen(QWidget& window, QSize size) {
  const QSize most = window.screen()->availableSize() - kDesktopFrame;
  window.resize(size.boundedTo(most).expandedTo(window.minimumSizeHint()));
}

void PutInMiddle(QWidget& window) {
  const QRect screen = window.screen()->availableGeometry();
  ResizeWithinScreen(window, window.size());
  const QPoint middle = screen.center() - window.rect().center();
  const QSize framed = window.size() + kDesktopFrame;
  const QPoint last = screen.bottomRight() + QPoint(1, 1) - QPoint(framed.width(), framed.height());
  window.move(std::max(std::min(middle.x(), last.x()), screen.left()),
              std::max(std::min(middle.y(), last.y()), screen.top()));
}

}  // namespace zorik
