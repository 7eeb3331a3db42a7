#include "screens/Ram.h"

#include <QPainter>
#include <algorithm>
#include <cmath>
#include <utility>

#include "screens/Wording.h"

namespace zorik {

// Counted in half cells: 39 of them across, 23 down. Half a cell is rounded up, so that what is drawn into
// the frame afterwards has cells of this size.
PlayLayout LayOut(QSize window) {
  PlayLayout layout;
  layout.cellSize = std::max(0, std::min(window.width() * 2 / 39, window.height() * 2 / 23));
  const QSize size((layout.cellSize * 39 + 1) / 2, (layout.cellSize * 23 + 1) / 2);
  layout.ram =
      QRect(QPoint((window.width() - size.width()) / 2, (window.height() - size.height()) / 2), size);
  return layout;
}

Ram::Ram(QWidget* parent) : QWidget(parent) {
  setFocusPolicy(Qt::NoFocus);
  setAttribute(Qt::WA_OpaquePaintEvent);
}

QSize Ram::PixelSize() const {
  const qreal ratio = devicePixelRatioF();
  return {static_cast<int>(std::floor(width() * ratio)), static_cast<int>(std::floor(height() * ratio))};
}

void Ram::Show(QImage picture) {
  picture_ = std::move(picture);
  picture_.setDevicePixelRatio(devicePixelRatioF());
  repaint();
}

void Ram::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.fillRect(rect(), kBarColour);
  if (picture_.isNull()) return;
  const QSizeF size = picture_.deviceIndependentSize();
  painter.drawImage(
      QPointF(std::floor((width() - size.width()) / 2), std::floor((height() - size.height()) / 2)),
      picture_);
}

}  // namespace zorik
