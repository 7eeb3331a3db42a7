#include "screens/Ram.h"

#include <QPaintEngine>
#include <QPaintEvent>
#include <QPainter>
#include <cmath>
#include <cstring>

#include "screens/BarColours.h"

namespace zorik {
namespace {

// The image that a painter paints on, if it has pixels like those of the picture.
QImage* PixelsBehind(const QPainter& painter) {
  QPaintDevice* const device = painter.paintEngine()->paintDevice();
  if (device == nullptr || device->devType() != QInternal::Image) return nullptr;
  auto* const image = static_cast<QImage*>(device);
  const bool alike =
      image->format() == QImage::Format_RGB32 || image->format() == QImage::Format_ARGB32_Premultiplied;
  const bool plain =
      image->devicePixelRatio() == 1 && painter.deviceTransform().type() <= QTransform::TxTranslate;
  return alike && plain && image->isDetached() ? image : nullptr;
}

// Copies parts of a picture into an image in which its upper left corner stands there. Many small parts are
// what a painter is slow at: it hands out the lines of each to several threads.
void CopyParts(const QImage& picture, const QRegion& parts, QImage& target, QPoint corner) {
  for (const QRect& wanted : parts) {
    const QRect part = wanted & picture.rect() & target.rect().translated(-corner);
    const auto length = static_cast<std::size_t>(part.width()) * sizeof(QRgb);
    for (int y = part.top(); y <= part.bottom(); ++y) {
      const uchar* const from = picture.constScanLine(y) + static_cast<qsizetype>(part.left()) * 4;
      std::memcpy(target.scanLine(corner.y() + y) + static_cast<qsizetype>(corner.x() + part.left()) * 4,
                  from, length);
    }
  }
}

}  // namespace

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
  shown_ = picture.size();
  repaint();
}

void Ram::ShowChanges(const QImage& picture, const QRegion& changed) {
  if (&picture != picture_ || picture.size() != shown_) return Show(picture);
  repaint(OnWidget(changed.translated(Place().topLeft())));
}

QRect Ram::Place() const {
  const QSize rest = PixelSize() - picture_->size();
  return {QPoint(rest.width() / 2, rest.height() / 2), picture_->size()};
}

// In the units of the desktop, which may be several pixels: whole ones.
QRegion Ram::OnWidget(const QRegion& pixels) const {
  const qreal ratio = devicePixelRatioF();
  if (ratio == 1) return pixels;
  QRegion region;
  for (const QRect& part : pixels) {
    region += QRectF(QPointF(part.topLeft()) / ratio, QSizeF(part.size()) / ratio).toAlignedRect();
  }
  return region;
}

// Around the picture are the margins, which it leaves when its cells do not divide the frame.
void Ram::paintEvent(QPaintEvent* event) {
  QPainter painter(this);
  const qreal ratio = devicePixelRatioF();
  if (QImage* const target = PixelsBehind(painter); target != nullptr && ratio == 1) {
    for (const QRect& margin : event->region() - Place()) painter.fillRect(margin, kBarColour);
    const QPoint corner = painter.deviceTransform().map(QPoint());
    const QRegion seen = event->region() & Place();
    CopyParts(*picture_, seen.translated(-Place().topLeft()), *target, corner + Place().topLeft());
    return;
  }
  painter.fillRect(rect(), kBarColour);
  if (picture_->isNull()) return;
  painter.scale(1 / ratio, 1 / ratio);
  painter.drawImage(Place().topLeft(), *picture_);
}

}  // namespace zorik
