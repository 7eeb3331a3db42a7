#include "editors/EditKom.h"

#include <QCoreApplication>
#include <QCursor>
#include <QKeyEvent>
#include <QPaintEvent>
#include <QPainter>
#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <utility>

#include "editors/CellPlaces.h"
#include "editors/Shapes.h"
#include "editors/ToolButtons.h"

namespace zorik {
namespace {

constexpr double kPixelsAtOnce = 64 * 1024;

int FloorDiv(double value, int divisor) {
  return static_cast<int>(std::floor(value / divisor));
}

// Whether the toolkit may leave out reports of the mouse that have queued up, as it does where desktops send
// many. Within a stroke it must not, or the stroke would cut the corners of the pointer's way.
void LeaveOutReports(bool may) {
  QCoreApplication::setAttribute(Qt::AA_CompressHighFrequencyEvents, may);
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
  if (marks_.mark && !cave_.Inside(marks_.mark->x(), marks_.mark->y())) Mark(std::nullopt);
  if (marks_.selection) marks_.selection = *marks_.selection & CellsOf(cave_);
  if (marks_.selection && marks_.selection->isEmpty()) marks_.selection.reset();
  update();
}

// With its surroundings: where the desktop magnifies by a fraction, the mark's lines end in them.
void EditKom::PaintCell(QPoint cell) {
  update(RectOf(cell).adjusted(-1, -1, 1, 1));
}

void EditKom::SetLayer(const PictureLayer* layer) {
  layer_ = layer;
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
  if (layer_) layer_->Paint(painter, cells, cell_);
  PaintMarks(painter, marks_, tiles_, cells, cell_);
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
  if (cell == marks_.mark) return;
  for (const auto& place : {marks_.mark, cell}) {
    if (place) PaintCell(*place);
  }
  marks_.mark = cell;
  if (cell) cursor_ = cell;
  emit MarkMoved();
}

// What is seen

QRect EditKom::Seen() const {
  return parentWidget() == nullptr ? rect() : QRect(-pos(), parentWidget()->size()) & rect();
}

QRect EditKom::SeenCells() const {
  const QRect seen = Seen();
  if (seen.isEmpty()) return {};
  return QRect(CellAt(seen.topLeft()), CellAt(seen.bottomRight())) & CellsOf(cave_);
}

QPoint EditKom::Cursor() const {
  if (marks_.mark) return *marks_.mark;
  const QRect seen = SeenCells();
  return cursor_ && seen.contains(*cursor_) ? *cursor_ : seen.topLeft();
}

// Where the picture goes on behind the view's edge the pointer comes no further than that. The end of the
// cave does not hold it.
QPoint EditKom::SeenCell(QPointF position) const {
  const QRect seen = Seen();
  const auto hold = [](double at, int first, int last, int end) {
    if (first > 0) at = std::max<double>(at, first);
    return last < end ? std::min<double>(at, last) : at;
  };
  return CellAt({hold(position.x(), seen.left(), seen.right(), rect().right()),
                 hold(position.y(), seen.top(), seen.bottom(), rect().bottom())});
}

// The mouse

void EditKom::mousePressEvent(QMouseEvent* event) {
  if (keys_.Strokes()) return;
  byKeys_ = false;
  const auto button = ToolOfButtons(event->buttons());
  if (!button) {
    last_.reset();
    return;
  }
  pointer_ = event->position() + pos();
  const QPoint cell = CellAt(event->position());
  Mark(cell);
  if (event->modifiers() & Qt::AltModifier) {
    emit Picked(cell, *button);
    return;
  }
  if (*button == ToolButton::Left && (event->modifiers() & Qt::ControlModifier)) {
    emit LayerChosen(cell);
    return;
  }
  LeaveOutReports(false);
  BeginStroke(cell, *button);
}

void EditKom::mouseMoveEvent(QMouseEvent* event) {
  byKeys_ = false;
  pointer_ = event->position() + pos();
  const QPoint cell = SeenCell(event->position());
  Mark(cell);
  const auto button = ToolOfButtons(event->buttons());
  if (!button || !IsDragged()) return;
  button_ = button;
  LeadStroke(cell);
}

void EditKom::LeadAgain() {
  if (!IsDragged()) return;
  const QPoint cell = SeenCell(pointer_ - pos());
  Mark(cell);
  LeadStroke(cell);
}

void EditKom::mouseReleaseEvent(QMouseEvent* event) {
  if (keys_.Strokes()) return;
  last_.reset();
  if (event->buttons() == Qt::NoButton) FinishStroke();
}

void EditKom::leaveEvent(QEvent* event) {
  QWidget::leaveEvent(event);
  if (!byKeys_) Mark(std::nullopt);
}

// The picture has been scrolled under the pointer.
void EditKom::moveEvent(QMoveEvent* event) {
  QWidget::moveEvent(event);
  if (Marked() && !byKeys_ && underMouse()) Mark(CellAt(mapFromGlobal(QCursor::pos())));
}

// Strokes

void EditKom::BeginStroke(QPoint cell, ToolButton button) {
  button_ = button;
  emit StrokeBegins(cell, button);
  if (!InStroke()) return;
  last_ = cell;
  emit Drawn(cell, button);
}

void EditKom::LeadStroke(QPoint cell) {
  if (!InStroke()) return;
  const ToolButton button = *button_;
  DrawPath(last_.value_or(cell), cell, button);
  last_ = cell;
  emit Led(cell, button);
}

// Side by side, as the pointer went: a way that is dug so can be walked. The cell that the path starts in has
// been drawn.
void EditKom::DrawPath(QPoint from, QPoint to, ToolButton button) {
  const QRect seen = SeenCells();
  for (const auto [x, y] : StrokeOf(ToPlace(from), ToPlace(to), AreaOf(cave_.Cave()))) {
    const QPoint cell(x, y);
    if (cell == from && from != to) continue;
    if (seen.contains(cell) || keys_.Strokes()) emit Drawn(cell, button);
  }
}

void EditKom::FinishStroke() {
  const auto button = std::exchange(button_, std::nullopt);
  if (!button) return;
  last_.reset();
  LeaveOutReports(true);
  emit StrokeEnds(*button);
}

void EditKom::EndStroke() {
  keys_.Forget();
  if (!std::exchange(button_, std::nullopt)) return;
  last_.reset();
  LeaveOutReports(true);
  emit StrokeBroken();
}

bool EditKom::HasToGiveUp() const {
  return InStroke() || marks_.selection || !marks_.block.IsEmpty();
}

bool EditKom::GiveUp() {
  if (!HasToGiveUp()) return false;
  keys_.Forget();
  button_.reset();
  last_.reset();
  LeaveOutReports(true);
  emit GivenUp();
  return true;
}

// Keys

// Esc would close the window.
bool EditKom::event(QEvent* event) {
  if (event->type() == QEvent::ShortcutOverride && HasToGiveUp() &&
      static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape) {
    event->accept();
    return true;
  }
  return QWidget::event(event);
}

void EditKom::keyPressEvent(QKeyEvent* event) {
  if (!keys_.Press(*event)) QWidget::keyPressEvent(event);
}

void EditKom::keyReleaseEvent(QKeyEvent* event) {
  if (!keys_.Release(*event)) QWidget::keyReleaseEvent(event);
}

void EditKom::LeadMark(QPoint cell) {
  byKeys_ = true;
  Mark(cell);
  emit LedByKeys(cell);
}

bool EditKom::TakeSpace() {
  if (!keys_.SpaceWaits()) return false;
  keys_.Forget();
  return true;
}

void EditKom::focusOutEvent(QFocusEvent* event) {
  QWidget::focusOutEvent(event);
  EndStroke();
}

}  // namespace zorik
