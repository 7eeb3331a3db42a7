#include "screens/Ram.h"

#include <QPaintEngine>
#include <QPaintEvent>
#include <QPainter>
#include <cmath>
#include <utility>

#include "screens/BarColours.h"

namespace zorik {
namespace {

// The image that a painter of a screen of this ratio paints on, if its pixels can be written as they are.
QImage* PixelsBehind(const QPainter& painter, int ratio) {
  QPaintDevice* const device = painter.paintEngine()->paintDevice();
  if (device == nullptr || device->devType() != QInternal::Image) return nullptr;
  auto* const image = static_cast<QImage*>(device);
  const bool alike =
      image->format() == QImage::Format_RGB32 || image->format() == QImage::Format_ARGB32_Premultiplied;
  const QTransform& transform = painter.deviceTransform();
  const bool plain = transform.type() <= QTransform::TxScale && transform.m11() == ratio &&
                     transform.m22() == ratio && image->devicePixelRatio() == ratio;
  return alike && plain && image->isDetached() ? image : nullptr;
}

QRegion Scaled(const QRegion& region, int ratio) {
  if (ratio == 1) return region;
  QRegion scaled;
  for (const QRect& part : region) scaled += QRect(part.topLeft() * ratio, part.size() * ratio);
  return scaled;
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

void Ram::Show(PartPainter& picture) {
  picture_ = &picture;
  shown_ = picture.Size();
  copy_ = {};
  repaint();
}

void Ram::ShowChanges(PartPainter& picture, const QRegion& changed) {
  if (&picture != picture_ || picture.Size() != shown_) return Show(picture);
  if (!copy_.isNull()) due_ += changed;
  const QRegion all = changed + std::exchange(overlaid_, {});
  repaint(OnWidget(all.translated(Place().topLeft())));
}

void Ram::SetOverlay(LaidOverlay overlay) {
  overlaid_ += overlay_.Touched();
  overlay_ = std::move(overlay);
  overlaid_ += overlay_.Touched();
}

QImage Ram::Picture() const {
  if (picture_ == nullptr || picture_->Size().isEmpty()) return {};
  QImage image(picture_->Size(), QImage::Format_RGB32);
  picture_->PaintPart(image.rect(), image, {});
  return image;
}

const QImage& Ram::Copy() {
  if (copy_.isNull()) {
    copy_ = Picture();
  } else if (!due_.isEmpty()) {
    picture_->PaintPart(due_, copy_, {});
  }
  due_ = {};
  return copy_;
}

QRect Ram::Place() const {
  const QSize rest = PixelSize() - shown_;
  return {QPoint(rest.width() / 2, rest.height() / 2), shown_};
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

// Around the picture are the margins, which it leaves when its cells do not divide the frame. Where a unit
// of the desktop is a whole number of pixels the picture is painted right where it is seen.
void Ram::paintEvent(QPaintEvent* event) {
  QPainter painter(this);
  const qreal ratio = devicePixelRatioF();
  const int whole = static_cast<int>(ratio);
  if (QImage* const target = PixelsBehind(painter, whole); target != nullptr && ratio == whole) {
    const QRegion wanted = Scaled(event->region(), whole);
    painter.save();
    painter.scale(1 / ratio, 1 / ratio);
    for (const QRect& margin : wanted - Place()) painter.fillRect(margin, kBarColour);
    painter.restore();
    if (picture_ == nullptr) return;
    const QPoint corner = painter.deviceTransform().map(QPoint()) + Place().topLeft();
    picture_->PaintPart((wanted & Place()).translated(-Place().topLeft()), *target, corner);
    painter.scale(1 / ratio, 1 / ratio);
    painter.translate(Place().topLeft());
    overlay_.Paint(painter);
    return;
  }
  painter.fillRect(rect(), kBarColour);
  if (shown_.isEmpty()) return;
  painter.scale(1 / ratio, 1 / ratio);
  painter.translate(Place().topLeft());
  painter.drawImage(0, 0, Copy());
  overlay_.Paint(painter);
}

}  // namespace zorik
