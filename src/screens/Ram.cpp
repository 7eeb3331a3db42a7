#include "screens/Ram.h"

#include <QPainter>
#include <cmath>

#include "screens/BarColours.h"

namespace zorik {

Ram::Ram(QWidget* parent) : QWidget(parent) {
  setFocusPolicy(Qt::NoFocus);
  setAttribute(Qt::WA_OpaquePaintEvent);
}

QSize Ram::PixelSize() const {
  const qreal ratio = devicePixelRatioF();
  return {static_cast<int>(std::floor(width() * ratio)), static_cast<int>(std::floor(height() * ratio))};
}

void Ram::Show(const QImage& picture) {
  picture_ = &picture;
  repaint();
}

void Ram::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.fillRect(rect(), kBarColour);
  if (picture_->isNull()) return;
  const qreal ratio = devicePixelRatioF();
  const QSize rest = PixelSize() - picture_->size();
  painter.scale(1 / ratio, 1 / ratio);
  painter.drawImage(rest.width() / 2, rest.height() / 2, *picture_);
}

}  // namespace zorik
