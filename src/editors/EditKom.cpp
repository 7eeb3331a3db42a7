#include "editors/EditKom.h"

#include <QCursor>
#include <QKeyEvent>
#include <QPaintEvent>
#include <QPainter>
#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <utility>

#include "editors/ToolButtons.h"

namespace zorik {
namespace {

struct Arrow {
  int key;
  QPoint step;
};
constexpr std::array<Arrow, 4> kArrows{{
    {Qt::Key_Left, {-1, 0}},
    {Qt::Key_Up, {0, -1}},
    {Qt::Key_Right, {1, 0}},
    {Qt::Key_Down, {0, 1}},
}};

constexpr double kPixelsAtOnce = 64 * 1024;

int FloorDiv(double value, int divisor) {
  return static_cast<int>(std::floor(value / divisor));
}

}  // namespace

EditKom::EditKom(const CaveModel& cave, EditTiles& tiles, QWidget* parent)
    : QWidget(parent), cave_(cave), tiles_(tiles) {
  setObjectName("EditKom");
  setMouseTracking(true);
  setFocusPolicy(Qt::StrongFocus);
  setAttribute(Qt::WA_OpaquePaintEvent);
  setCursor(Qt::CrossCursor);
}

void EditKom::SetCellSize(int cell) {
  cell_ = cell;
  SetRozm();
}

void EditKom::SetRozm() {
  resize(cave_.Width() * cell_, cave_.Height() * cell_);
  if (marked_ && !cave_.Inside(marked_->x(), marked_->y())) Mark(std::nullopt);
  update();
}

// With its surroundings: where the desktop magnifies by a fraction, the mark's lines end in them.
void EditKom::PaintCell(QPoint cell) {
  update(RectOf(cell).adjusted(-1, -1, 1, 1));
}

void EditKom::SetOverlay(const CaveOverlay* overlay) {
  overlay_ = overlay;
  update();
}

QPoint EditKom::CellAt(QPointF position) const {
  return {FloorDiv(position.x(), cell_), FloorDiv(position.y(), cell_)};
}

// Painting

void EditKom::paintEvent(QPaintEvent* event) {
  const QRect dirty = event->rect() & rect();
  if (dirty.isEmpty() || cave_.Width() == 0) return;
  const QRect cells = QRect(CellAt(dirty.topLeft()), CellAt(dirty.bottomRight())) &
                      QRect(0, 0, cave_.Width(), cave_.Height());
  QPainter painter(this);
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  PaintCells(painter, cells);
  if (overlay_) overlay_->Paint(painter, cells, cell_);
  if (!marked_) return;
  const QRect mark = RectOf(*marked_);
  painter.setPen(Qt::black);
  painter.drawRect(mark.adjusted(1, 1, -2, -2));
  painter.setPen(Qt::white);
  painter.drawRect(mark.adjusted(0, 0, -1, -1));
}

// A few rows at a time, so that what is drawn is still at hand for the processor when it goes to the screen.
// Where the desktop magnifies by a fraction rows would part, and all goes at once.
void EditKom::PaintCells(QPainter& painter, const QRect& cells) {
  const double size = cell_ * devicePixelRatioF();
  const double row = size * size * cells.width();
  const int few = std::max(1, static_cast<int>(kPixelsAtOnce / row));
  const int rows = size == std::round(size) ? few : cells.height();
  for (int top = cells.top(); top <= cells.bottom(); top += rows) {
    const QRect band = QRect(cells.left(), top, cells.width(), rows) & cells;
    DrawCells(cave_, tiles_, band, qRound(size), picture_);
    picture_.setDevicePixelRatio(devicePixelRatioF());
    painter.drawImage(QRect(band.topLeft() * cell_, band.size() * cell_), picture_);
  }
}

void EditKom::Mark(std::optional<QPoint> cell) {
  if (cell && !cave_.Inside(cell->x(), cell->y())) cell.reset();
  if (cell == marked_) return;
  for (const auto& place : {marked_, cell}) {
    if (place) PaintCell(*place);
  }
  marked_ = cell;
  emit MarkMoved();
}

// The mouse

void EditKom::mousePressEvent(QMouseEvent* event) {
  if (!ToolOfButtons(event->buttons())) {
    last_.reset();
    return;
  }
  stroke_ = true;
  emit StrokeBegins();
  Lead(*event);
}

void EditKom::mouseMoveEvent(QMouseEvent* event) {
  Lead(*event);
}

void EditKom::mouseReleaseEvent(QMouseEvent* event) {
  last_.reset();
  if (event->buttons() == Qt::NoButton) EndStroke();
}

void EditKom::Lead(QMouseEvent& event) {
  const QPoint cell = CellAt(event.position());
  Mark(cell);
  const auto tool = ToolOfButtons(event.buttons());
  if (!tool || !stroke_) return;
  DrawPath(last_.value_or(cell), cell, *tool);
  last_ = cell;
}

// The cell that the path starts in was drawn before, which makes no difference.
void EditKom::DrawPath(QPoint from, QPoint to, ToolButton button) {
  const QPoint way = to - from;
  const int steps = std::max({std::abs(way.x()), std::abs(way.y()), 1});
  for (int step = from == to ? steps : 1; step <= steps; ++step) {
    const double part = static_cast<double>(step) / steps;
    emit Drawn({from.x() + qRound(way.x() * part), from.y() + qRound(way.y() * part)}, button);
  }
}

void EditKom::EndStroke() {
  if (!std::exchange(stroke_, false)) return;
  last_.reset();
  emit StrokeEnds();
}

void EditKom::leaveEvent(QEvent* event) {
  QWidget::leaveEvent(event);
  Mark(std::nullopt);
}

// The picture has been scrolled under the pointer.
void EditKom::moveEvent(QMoveEvent* event) {
  QWidget::moveEvent(event);
  if (marked_ && underMouse()) Mark(CellAt(mapFromGlobal(QCursor::pos())));
}

// Keys

void EditKom::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Space) {
    DrawByKey(event->modifiers());
    return;
  }
  const auto* const arrow = std::find_if(kArrows.begin(), kArrows.end(),
                                         [event](const Arrow& row) { return row.key == event->key(); });
  if (arrow == kArrows.end()) {
    QWidget::keyPressEvent(event);
    return;
  }
  const QPoint from = marked_.value_or(QPoint(0, 0));
  const QPoint to = marked_ ? from + arrow->step : from;
  if (!cave_.Inside(to.x(), to.y())) return;
  Mark(to);
  emit LedByKeys(to);
}

void EditKom::DrawByKey(Qt::KeyboardModifiers modifiers) {
  if (!marked_ || stroke_) return;
  emit StrokeBegins();
  emit Drawn(*marked_, ToolOfModifiers(modifiers));
  emit StrokeEnds();
}

void EditKom::focusOutEvent(QFocusEvent* event) {
  QWidget::focusOutEvent(event);
  EndStroke();
}

}  // namespace zorik
