#include "screens/BarButton.h"

#include <QFontMetrics>
#include <QMouseEvent>
#include <QPainter>
#include <algorithm>
#include <cmath>
#include <numbers>
#include <utility>

#include "skin/GameFont.h"

namespace zorik {
namespace {

constexpr qreal kRound = 10;
constexpr int kPulseStep = 40;   // milliseconds
constexpr int kPulseSteps = 24;  // from one glow to the next
constexpr int kGlow = 170;       // alpha

QFont CaptionFont(int height) {
  QFont font = GameFont(std::max(1, height * 3 / 5));
  font.setBold(true);
  return font;
}

// A plate for a letter, in the manner of the pictures.
void PaintPlate(QPainter& painter, const QRect& place) {
  QLinearGradient face(place.topLeft(), place.bottomRight());
  face.setColorAt(0, QColor(0xB8, 0x9A, 0xE0));
  face.setColorAt(1, QColor(0x5E, 0x42, 0x92));
  painter.setPen(QPen(QColor(0x22, 0x14, 0x3C), 3));
  painter.setBrush(face);
  painter.drawRoundedRect(QRectF(place).adjusted(2, 2, -2, -2), kRound, kRound);
}

}  // namespace

BarButton::BarButton(QWidget* parent) : QWidget(parent) {
  setFocusPolicy(Qt::NoFocus);
  setAttribute(Qt::WA_Hover);
  setCursor(Qt::PointingHandCursor);
  pulse_.setInterval(kPulseStep);
  pulse_.callOnTimeout([this] {
    pulseStep_ = (pulseStep_ + 1) % kPulseSteps;
    update();
  });
}

int BarButton::CaptionWidth(int height) const {
  return QFontMetrics(CaptionFont(height)).horizontalAdvance(caption_);
}

void BarButton::SetPulse(bool pulses) {
  if (pulses == Pulses()) return;
  pulseStep_ = 0;
  if (pulses) {
    pulse_.start();
  } else {
    pulse_.stop();
  }
  update();
}

void BarButton::SetPicture(const QImage& picture) {
  picture_ = picture;
  update();
}

void BarButton::SetCaption(const QString& caption) {
  caption_ = caption;
  update();
}

void BarButton::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  pressed_ = true;
  update();
}

void BarButton::mouseMoveEvent(QMouseEvent* event) {
  if (!event->buttons().testFlag(Qt::LeftButton)) return;
  pressed_ = rect().contains(event->position().toPoint());
  update();
}

void BarButton::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  const bool inside = std::exchange(pressed_, false) && rect().contains(event->position().toPoint());
  update();
  if (inside) emit Clicked();
}

QImage BarButton::Face() const {
  const qreal ratio = devicePixelRatioF();
  QImage face(size() * ratio, QImage::Format_ARGB32_Premultiplied);
  face.setDevicePixelRatio(ratio);
  face.fill(Qt::transparent);
  QPainter painter(&face);
  painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
  if (!picture_.isNull()) {
    painter.drawImage(rect(), picture_);
  } else {
    PaintPlate(painter, rect());
    painter.setFont(CaptionFont(height()));
    painter.setPen(QColor(0xFF, 0xF8, 0xE8));
    painter.drawText(rect(), Qt::AlignCenter, caption_);
  }
  painter.setCompositionMode(QPainter::CompositionMode_SourceAtop);
  if (Pulses()) {
    const double wave = (1 - std::cos(2 * std::numbers::pi * pulseStep_ / kPulseSteps)) / 2;
    painter.fillRect(rect(), QColor(255, 244, 150, static_cast<int>(kGlow * wave)));
  }
  if (pressed_) {
    painter.fillRect(rect(), QColor(0, 0, 0, 70));
  } else if (underMouse()) {
    painter.fillRect(rect(), QColor(255, 255, 255, 50));
  }
  return face;
}

void BarButton::paintEvent(QPaintEvent* /*event*/) {
  QPainter(this).drawImage(0, pressed_ ? 1 : 0, Face());
}

}  // namespace zorik
