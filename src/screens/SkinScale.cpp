#include "screens/SkinScale.h"

#include <QMouseEvent>
#include <QPainter>
#include <QStyle>
#include <cmath>

namespace zorik {
namespace {

constexpr QSize kSize(220, 30);
constexpr double kGroove = 4;  // its height
constexpr double kNotch = 1.8;
constexpr double kKnob = 8;  // radius
constexpr int kEnd = 10;     // from the middle of the knob to the end of the widget

}  // namespace

SkinScale::SkinScale(int least, int most, QWidget* parent) : QSlider(Qt::Horizontal, parent) {
  setRange(least, most);
  setSingleStep(1);
  setPageStep(1);
  setAttribute(Qt::WA_Hover);
}

QSize SkinScale::sizeHint() const {
  return kSize;
}

int SkinScale::Way() const {
  return width() - 2 * kEnd;
}

int SkinScale::PlaceOf(int value) const {
  return kEnd + QStyle::sliderPositionFromValue(minimum(), maximum(), value, Way());
}

void SkinScale::Follow(const QMouseEvent& event) {
  const int place = static_cast<int>(std::lround(event.position().x())) - kEnd;
  setSliderPosition(QStyle::sliderValueFromPosition(minimum(), maximum(), place, Way()));
}

void SkinScale::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  setSliderDown(true);
  Follow(*event);
}

void SkinScale::mouseMoveEvent(QMouseEvent* event) {
  if (isSliderDown()) Follow(*event);
}

void SkinScale::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) setSliderDown(false);
}

void SkinScale::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const double middle = height() / 2.0;
  const int left = PlaceOf(minimum());
  const int knob = PlaceOf(sliderPosition());

  const auto groove = [&](int right) {
    painter.drawRoundedRect(QRectF(left, middle - kGroove / 2, right - left, kGroove), kGroove / 2,
                            kGroove / 2);
  };
  painter.setPen(Qt::NoPen);
  painter.setBrush(palette().color(QPalette::Mid));
  groove(PlaceOf(maximum()));
  for (int value = minimum(); value <= maximum(); ++value) {
    painter.drawEllipse(QPointF(PlaceOf(value), middle + kKnob + 4), kNotch, kNotch);
  }

  const QColor colour = palette().color(QPalette::Highlight);
  painter.setBrush(colour);
  groove(knob);
  const bool lit = isSliderDown() || underMouse();
  painter.setPen(QPen(hasFocus() ? palette().color(QPalette::WindowText) : colour.darker(170), 2));
  painter.setBrush(lit ? colour.lighter(115) : colour);
  painter.drawEllipse(QPointF(knob, middle), kKnob, kKnob);
}

}  // namespace zorik
