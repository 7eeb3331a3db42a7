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
constexpr int kPulseStep = 40;     // milliseconds
constexpr int kPulseSteps = 24;    // from one glow to the next
constexpr double kGlow = 2.0 / 3;  // how much of the light covers a picture
constexpr QColor kRim(0x22, 0x14, 0x3C);
constexpr QColor kLight(0xFF, 0xF4, 0x96);

QFont CaptionFont(int height) {
  QFont font = GameFont(std::max(1, height * 3 / 5));
  font.setBold(true);
  return font;
}

// With a key below it there is less room for the caption.
QFont UpperFont(int height) {
  QFont font = GameFont(std::max(1, height * 2 / 5));
  font.setBold(true);
  return font;
}

QFont KeyFont(int height) {
  return GameFont(std::max(1, height * 3 / 10));
}

QColor Between(const QColor& one, const QColor& other, double part) {
  const auto mix = [part](int from, int to) {
    return static_cast<int>(std::lround(from + (to - from) * part));
  };
  return QColor(mix(one.red(), other.red()), mix(one.green(), other.green()), mix(one.blue(), other.blue()));
}

// A plate for words, in the manner of the pictures, so dark that they read well on all of it.
void PaintPlate(QPainter& painter, const QRect& place, const QColor& rim) {
  QLinearGradient face(place.topLeft(), place.bottomRight());
  face.setColorAt(0, QColor(0x7E, 0x5E, 0xB4));
  face.setColorAt(1, QColor(0x50, 0x36, 0x82));
  painter.setPen(QPen(rim, 3));
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
  if (key_.isEmpty()) return QFontMetrics(CaptionFont(height)).horizontalAdvance(caption_);
  return std::max(QFontMetrics(UpperFont(height)).horizontalAdvance(caption_),
                  QFontMetrics(KeyFont(height)).horizontalAdvance(key_));
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

void BarButton::SetKey(const QString& key) {
  key_ = key;
  update();
}

void BarButton::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  held_ = pressed_ = true;
  update();
  emit Pressed();
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
  End();
  if (inside) emit Clicked();
}

// Nobody can let go of what is not there any more.
void BarButton::hideEvent(QHideEvent* event) {
  pressed_ = false;
  End();
  QWidget::hideEvent(event);
}

void BarButton::End() {
  if (std::exchange(held_, false)) emit LetGo();
}

void BarButton::DrawCaption(QPainter& painter) const {
  painter.setPen(QColor(0xFF, 0xF8, 0xE8));
  if (key_.isEmpty()) {
    painter.setFont(CaptionFont(height()));
    painter.drawText(rect(), Qt::AlignCenter, caption_);
    return;
  }
  const int middle = height() * 11 / 20;
  painter.setFont(UpperFont(height()));
  painter.drawText(QRect(0, 0, width(), middle), Qt::AlignHCenter | Qt::AlignBottom, caption_);
  painter.setFont(KeyFont(height()));
  painter.setPen(QColor(0xFF, 0xF8, 0xE8, 230));
  painter.drawText(QRect(0, middle, width(), height() - middle), Qt::AlignHCenter | Qt::AlignTop, key_);
}

double BarButton::Glow() const {
  if (!Pulses()) return 0;
  return (1 - std::cos(2 * std::numbers::pi * pulseStep_ / kPulseSteps)) / 2;
}

// Words glow at their rim alone, for on a plate that grows light they could not be read.
QImage BarButton::Face() const {
  const qreal ratio = devicePixelRatioF();
  QImage face(size() * ratio, QImage::Format_ARGB32_Premultiplied);
  face.setDevicePixelRatio(ratio);
  face.fill(Qt::transparent);
  const bool words = picture_.isNull() && !caption_.isEmpty();
  QPainter painter(&face);
  painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
  if (!picture_.isNull()) {
    painter.drawImage(rect(), picture_);
  } else {
    PaintPlate(painter, rect(), Between(kRim, kLight, words ? Glow() : 0));
    DrawCaption(painter);
  }
  painter.setCompositionMode(QPainter::CompositionMode_SourceAtop);
  if (!words) {
    QColor light = kLight;
    light.setAlphaF(static_cast<float>(kGlow * Glow()));
    painter.fillRect(rect(), light);
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
