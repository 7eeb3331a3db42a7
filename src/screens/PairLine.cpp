#include "screens/PairLine.h"

#include <QMouseEvent>
#include <QPainter>
#include <algorithm>

namespace zorik {
namespace {

constexpr int kHeight = 84;
constexpr int kMargin = 14;    // at both ends, so that the knob stays whole
constexpr int kLineRoom = 22;  // of the line, below the curves
constexpr int kKnob = 7;
constexpr QColor kGround(0x1E, 0x18, 0x26);
constexpr QColor kTrack(0x6A, 0x60, 0x78);
constexpr QColor kKnobColour(0xF4, 0xEA, 0xD4);
constexpr QColor kDifference(0xE8, 0x4A, 0x4A);

}  // namespace

PairLine::PairLine(QWidget* parent) : QWidget(parent) {
  setFocusPolicy(Qt::NoFocus);
  setMinimumHeight(kHeight);
}

void PairLine::SetRuns(int length, std::optional<int> difference, std::array<std::vector<int>, 2> gems) {
  length_ = length;
  difference_ = difference;
  gems_ = std::move(gems);
  tick_ = 0;
  update();
}

void PairLine::ShowTick(int tick) {
  tick_ = std::clamp(tick, 0, length_);
  update();
}

QSize PairLine::sizeHint() const {
  return {400, kHeight};
}

QRect PairLine::Line() const {
  return {kMargin, height() - kLineRoom, std::max(1, width() - 2 * kMargin), kLineRoom};
}

int PairLine::PlaceOf(int tick) const {
  const QRect line = Line();
  return line.left() + static_cast<int>(std::int64_t{tick} * line.width() / std::max(1, length_));
}

int PairLine::TickAt(int x) const {
  const QRect line = Line();
  const std::int64_t tick = (std::int64_t{x - line.left()} * length_ + line.width() / 2) / line.width();
  return static_cast<int>(std::clamp<std::int64_t>(tick, 0, length_));
}

// Steps, of which each is one gem.
void PairLine::DrawCurve(QPainter& painter, std::size_t run) const {
  const std::size_t most = std::max({std::size_t{1}, gems_[0].size(), gems_[1].size()});
  const int bottom = Line().top() - 4;
  const auto heightOf = [&](std::size_t gems) {
    return bottom - static_cast<int>(gems * static_cast<std::size_t>(bottom - 6) / most);
  };
  QPolygon steps{QPoint(PlaceOf(0), bottom)};
  for (std::size_t i = 0; i < gems_[run].size(); ++i) {
    const int x = PlaceOf(gems_[run][i]);
    steps << QPoint(x, heightOf(i)) << QPoint(x, heightOf(i + 1));
  }
  steps << QPoint(PlaceOf(length_), heightOf(gems_[run].size()));
  painter.setPen(QPen(kPairColours[run], 2));
  painter.drawPolyline(steps);
}

void PairLine::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.fillRect(rect(), kGround);
  DrawCurve(painter, 0);
  DrawCurve(painter, 1);
  const int middle = Line().center().y();
  painter.setPen(QPen(kTrack, 3));
  painter.drawLine(PlaceOf(0), middle, PlaceOf(length_), middle);
  if (difference_) {
    painter.setPen(QPen(kDifference, 2));
    painter.drawLine(PlaceOf(*difference_), 4, PlaceOf(*difference_), height() - 3);
  }
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(kKnobColour);
  painter.drawEllipse(QPoint(PlaceOf(tick_), middle), kKnob, kKnob);
}

void PairLine::mousePressEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) emit Sought(TickAt(event->pos().x()));
}

void PairLine::mouseMoveEvent(QMouseEvent* event) {
  if ((event->buttons() & Qt::LeftButton) != 0) emit Sought(TickAt(event->pos().x()));
}

}  // namespace zorik
