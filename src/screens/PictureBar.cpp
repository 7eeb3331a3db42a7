#include "screens/PictureBar.h"

#include <QPainter>

#include "screens/BarColours.h"

namespace zorik {

PictureBar::PictureBar(QWidget* parent) : QWidget(parent) {
  setFocusPolicy(Qt::NoFocus);
  setAttribute(Qt::WA_OpaquePaintEvent);
}

void PictureBar::SetPicture(const QImage& picture) {
  picture_ = picture;
  update();
}

void PictureBar::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  painter.fillRect(rect(), kBarColour);
  if (!picture_.isNull()) painter.drawImage(rect(), picture_);
}

}  // namespace zorik
