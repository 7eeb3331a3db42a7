#include "screens/SeekLine.h"

#include <QMouseEvent>
#include <QPainter>
#include <algorithm>
#include <utility>

namespace zorik {
namespace {

// In the desktop's units.
constexpr int kMargin = 10;  // at both ends, so that the knob stays whole
constexpr int kThick = 4;
constexpr int kKnob = 8;
constexpr int kCurvesTop = 6;

constexpr QColor kPlain(0xF4, 0xEA, 0xD4);
constexpr QColor kRim(0x2A, 0x1A, 0x10);
constexpr QColor kRail(0x4A, 0x40, 0x58);
constexpr QColor kPast(0xB8, 0x9A, 0xE0);

}  // namespace

SeekLine::SeekLine(QWidget* parent) : QWidget(parent) {
  setFocusPolicy(Qt::NoFocus);
  setMouseTracking(true);
}

void SeekLine::SetRun(int length, std::vector<Mark> marks, std::vector<Curve> curves) {
  length_ = length;
  tick_ = 0;
  marks_ = std::move(marks);
  curves_ = std::move(curves);
  dragging_ = false;
  update();
}

void SeekLine::ShowTick(int tick) {
  tick_ = std::clamp(tick, 0, length_);
  update();
}

void SeekLine::SetScale(qreal scale) {
  scale_ = scale;
  update();
}

// Places

int SeekLine::Scaled(int units) const {
  return static_cast<int>(units * scale_);
}

QRect SeekLine::Rail() const {
  const int margin = Scaled(kMargin);
  const int room = std::min(height(), Scaled(kHeight));
  return {margin, height() - room, std::max(1, width() - 2 * margin), room};
}

int SeekLine::PlaceOf(int tick) const {
  const QRect rail = Rail();
  if (length_ == 0) return rail.left();
  const auto along = static_cast<std::int64_t>(rail.width() - 1) * std::clamp(tick, 0, length_);
  return rail.left() + static_cast<int>(along / length_);
}

int SeekLine::TickAt(int x) const {
  const QRect rail = Rail();
  const int most = std::max(1, rail.width() - 1);
  const auto ticks = static_cast<std::int64_t>(length_) * std::clamp(x - rail.left(), 0, rail.width() - 1);
  return static_cast<int>((ticks + most / 2) / most);
}

// The mouse

void SeekLine::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  dragging_ = true;
  emit Sought(TickAt(static_cast<int>(event->position().x())));
}

void SeekLine::mouseMoveEvent(QMouseEvent* event) {
  if (dragging_) emit Sought(TickAt(static_cast<int>(event->position().x())));
}

void SeekLine::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton && std::exchange(dragging_, false)) emit Dropped();
}

// The picture

void SeekLine::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  for (const Curve& curve : curves_) DrawCurve(painter, curve);
  DrawRail(painter);
  DrawMarks(painter);
  DrawKnob(painter);
}

void SeekLine::DrawRail(QPainter& painter) const {
  const QRect rail = Rail();
  const int thick = std::max(2, Scaled(kThick));
  const int top = rail.center().y() - thick / 2;
  painter.fillRect(QRect(rail.left(), top, rail.width(), thick), kRail);
  painter.fillRect(QRect(rail.left(), top, PlaceOf(tick_) - rail.left(), thick), kPast);
}

void SeekLine::DrawMarks(QPainter& painter) const {
  const int middle = Rail().center().y();
  QRect last;
  for (const Mark& mark : marks_) {
    const int high = std::max(2, Scaled(mark.height));
    const bool through = mark.height == Mark::kThrough;
    const QRect place(PlaceOf(mark.tick) - 1, through ? 0 : middle - high / 2, 2, through ? height() : high);
    if (place == std::exchange(last, place)) continue;
    painter.fillRect(place, QColor::fromRgba(mark.colour));
  }
}

// The highest of all curves is as high as the room above the line.
void SeekLine::DrawCurve(QPainter& painter, const Curve& curve) const {
  std::size_t most = 1;
  for (const Curve& other : curves_) most = std::max(most, other.ticks.size());
  const int bottom = Rail().top();
  const int room = std::max(0, bottom - Scaled(kCurvesTop));
  const auto heightOf = [&](std::size_t count) {
    return bottom - static_cast<int>(count * static_cast<std::size_t>(room) / most);
  };
  QPolygon steps{QPoint(PlaceOf(0), bottom)};
  for (std::size_t i = 0; i < curve.ticks.size(); ++i) {
    const int x = PlaceOf(curve.ticks[i]);
    steps << QPoint(x, heightOf(i)) << QPoint(x, heightOf(i + 1));
  }
  steps << QPoint(PlaceOf(length_), heightOf(curve.ticks.size()));
  painter.setPen(QPen(curve.colour, 2));
  painter.drawPolyline(steps);
}

void SeekLine::DrawKnob(QPainter& painter) const {
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(kRim, 1.5));
  painter.setBrush(kPlain);
  const qreal knob = kKnob * scale_;
  painter.drawEllipse(QPointF(PlaceOf(tick_) + 0.5, Rail().center().y() + 0.5), knob, knob);
}

}  // namespace zorik
