#include "screens/PictureBar.h"

#include <QPainter>

#include "screens/BarColours.h"

namespace zorik {

void PaintStretched(QWidget& widget, const QImage& picture) {
  QPainter painter(&widget);
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  painter.fillRect(widget.rect(), kBarColour);
  if (!picture.isNull()) painter.drawImage(widget.rect(), picture);
}

PictureBar::PictureBar(QWidget* parent) : QWidget(parent) {
  setFocusPolicy(Qt::NoFocus);
  setAttribute(Qt::WA_OpaquePaintEvent);
}

void PictureBar::SetPicture(const QImage& picture) {
  picture_ = picture;
  update();
}

void PictureBar::paintEvent(QPaintEvent* /*event*/) {
  PaintStretched(*this, picture_);
}

}  // namespace zorik
