#include "screens/SkinScale.h"

#include <QPainter>
#include <QStyle>
#include <QStyleOptionSlider>

namespace zorik {
namespace {

constexpr QSize kSize(220, 30);
constexpr double kGroove = 4;  // its height
constexpr double kNotch = 1.8;
constexpr double kKnob = 8;  // radius

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

void SkinScale::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);

  // The knob is where the style takes the pointer's press for it.
  QStyleOptionSlider option;
  initStyleOption(&option);
  const int handle = style()->pixelMetric(QStyle::PM_SliderLength, &option, this);
  const int way = width() - handle;
  const double middle = height() / 2.0;
  const auto at = [&](int value) {
    return handle / 2.0 + QStyle::sliderPositionFromValue(minimum(), maximum(), value, way);
  };

  const QColor groove = palette().color(QPalette::Mid);
  const QRectF line(at(minimum()), middle - kGroove / 2, at(maximum()) - at(minimum()), kGroove);
  painter.setPen(Qt::NoPen);
  painter.setBrush(groove);
  painter.drawRoundedRect(line, kGroove / 2, kGroove / 2);
  for (int value = minimum(); value <= maximum(); ++value) {
    painter.drawEllipse(QPointF(at(value), middle + kKnob + 4), kNotch, kNotch);
  }

  const QColor knob = palette().color(QPalette::Highlight);
  const bool lit = isSliderDown() || underMouse();
  painter.setBrush(knob);
  painter.drawRoundedRect(QRectF(line.topLeft(), QPointF(at(sliderPosition()), line.bottom())), kGroove / 2,
                          kGroove / 2);
  painter.setPen(QPen(hasFocus() ? palette().color(QPalette::WindowText) : knob.darker(170), 2));
  painter.setBrush(lit ? knob.lighter(115) : knob);
  painter.drawEllipse(QPointF(at(sliderPosition()), middle), kKnob, kKnob);
}

}  // namespace zorik
