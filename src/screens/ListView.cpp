#include "screens/ListView.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <QWheelEvent>
#include <algorithm>

#include "screens/PlainText.h"

namespace zorik {
namespace {

constexpr int kStripStep = 40;
constexpr int kWheelTurn = 120;  // what a notch of the wheel counts
constexpr int kMarkWidth = 3;
constexpr int kStripMark = 2;       // the same of a strip, whose letters reach down to its frame
constexpr int kLeastMark = 10;      // its length
constexpr int kTypingPause = 1000;  // milliseconds after which a letter begins a word anew

// Letters as they are compared: of one case, without accents.
QString Bare(const QString& text) {
  QString bare = text.normalized(QString::NormalizationForm_KD).toCaseFolded();
  bare.removeIf([](QChar letter) { return letter.category() == QChar::Mark_NonSpacing; });
  return bare;
}

bool IsOneLetter(const QString& word) {
  return std::all_of(word.begin(), word.end(), [&word](QChar letter) { return letter == word.front(); });
}

}  // namespace

ListView::ListView(Qt::Orientation orientation, QWidget* parent)
    : QAbstractItemView(parent), orientation_(orientation) {
  setFrameShape(NoFrame);
  setFocusPolicy(Qt::NoFocus);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setEditTriggers(NoEditTriggers);
  setSelectionMode(SingleSelection);
  setAutoScroll(false);
}

void ListView::SetLook(const ListLook& look) {
  QPalette colours = palette();
  colours.setColor(QPalette::Base, look.ground);
  colours.setColor(QPalette::Text, look.text);
  colours.setColor(QPalette::Highlight, look.selectionGround);
  colours.setColor(QPalette::HighlightedText, look.selectionText);
  colours.setColor(QPalette::Mid, look.border);
  setPalette(colours);
  frame_ = look.borderSize;
  updateGeometries();
  viewport()->update();
}

// Geometry

QScrollBar& ListView::Bar() const {
  return IsRows() ? *verticalScrollBar() : *horizontalScrollBar();
}

int ListView::Offset() const {
  return Bar().value() * BarUnit();
}

int ListView::RowHeight() const {
  return rowsInView_ > 0 ? std::max(1, viewport()->height() / rowsInView_) : kRowHeight;
}

int ListView::StepLength() const {
  return IsRows() ? RowHeight() : kStripStep;
}

// A list that has not been shown yet has its size, but its viewport has not.
QRect ListView::Inside() const {
  if (rowsInView_ > 0) return {0, 0, viewport()->width(), rowsInView_ * RowHeight()};
  return rect().adjusted(frame_, frame_, -frame_, -frame_);
}

int ListView::Room() const {
  return std::max(0, IsRows() ? Inside().height() : Inside().width());
}

int ListView::Range() const {
  return std::max(0, Total() - Room());
}

int ListView::PageLength() const {
  return std::max(1, Room() / RowHeight());
}

void ListView::Measure() {
  ends_.clear();
  QStyleOptionViewItem option;
  initViewItemOption(&option);
  const int count = model() == nullptr ? 0 : model()->rowCount();
  int end = 0;
  for (int place = 0; place < count; ++place) {
    end += IsRows() ? RowHeight() : itemDelegate()->sizeHint(option, model()->index(place, 0)).width();
    ends_.push_back(end);
  }
}

void ListView::updateGeometries() {
  Measure();
  QScrollBar& bar = Bar();
  bar.setRange(-spare_, Range() / BarUnit() + spare_);
  bar.setSingleStep(StepLength() / BarUnit());
  bar.setPageStep(Room() / BarUnit());
  QAbstractItemView::updateGeometries();
}

// What is asked of the list next should be told of the new entries.
void ListView::reset() {
  QAbstractItemView::reset();
  updateGeometries();
}

QRect ListView::PlaceOf(int place) const {
  const int start = StartOf(place) - Offset();
  const int length = ends_[static_cast<std::size_t>(place)] - StartOf(place);
  const QRect inside = Inside();
  if (IsRows()) return {inside.left(), inside.top() + start, inside.width(), length};
  return {inside.left() + start, inside.top(), length, inside.height()};
}

int ListView::At(QPoint point) const {
  const QRect inside = Inside();
  if (!inside.contains(point)) return -1;
  const QPoint within = point - inside.topLeft();
  const int along = (IsRows() ? within.y() : within.x()) + Offset();
  const auto end = std::upper_bound(ends_.begin(), ends_.end(), along);
  return along < 0 || end == ends_.end() ? -1 : static_cast<int>(end - ends_.begin());
}

QRect ListView::visualRect(const QModelIndex& index) const {
  return index.row() >= 0 && index.row() < Count() ? PlaceOf(index.row()) : QRect();
}

QModelIndex ListView::indexAt(const QPoint& point) const {
  const int place = At(point);
  return place < 0 ? QModelIndex() : model()->index(place, 0);
}

// Scrolling

void ListView::Scroll(int steps) {
  const int value = Bar().value() + steps * StepLength() / BarUnit();
  Bar().setValue(std::clamp(value, 0, Range() / BarUnit()));
}

void ListView::scrollTo(const QModelIndex& index, ScrollHint /*hint*/) {
  if (!visualRect(index).isValid()) return;
  const int start = StartOf(index.row());
  const int end = ends_[static_cast<std::size_t>(index.row())];
  if (end - Offset() > Room()) Bar().setValue((end - Room()) / BarUnit() + spare_);
  if (start < Offset()) Bar().setValue(start / BarUnit() - spare_);
}

void ListView::wheelEvent(QWheelEvent* event) {
  event->accept();
  const QPoint turn = event->angleDelta();
  wheel_ += (IsRows() || turn.x() == 0 ? turn.y() : turn.x()) * QApplication::wheelScrollLines();
  const int steps = wheel_ / kWheelTurn;
  wheel_ -= steps * kWheelTurn;
  if (steps != 0) Scroll(-steps);
}

// Choosing

void ListView::MakeCurrent(int place) {
  setCurrentIndex(model()->index(place, 0));
  scrollTo(currentIndex());
  viewport()->update();
}

int ListView::StepOf(int key) const {
  switch (key) {
    case Qt::Key_Up:
      return -1;
    case Qt::Key_Down:
      return 1;
    case Qt::Key_PageUp:
      return -PageLength();
    case Qt::Key_PageDown:
      return PageLength();
    case Qt::Key_Home:
      return -Count();
    case Qt::Key_End:
      return Count();
    default:
      return 0;
  }
}

bool ListView::Step(int key) {
  const int step = StepOf(key);
  if (step == 0) return false;
  typed_.clear();
  if (Count() > 0) Choose(std::clamp(Current() + step, 0, Count() - 1));
  return true;
}

bool ListView::TypeAhead(const QKeyEvent& event) {
  const bool chord = (event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) != 0;
  const QString letters = event.text();
  if (chord || letters.isEmpty() || !letters.front().isLetterOrNumber()) return false;
  keyboardSearch(letters);
  return true;
}

// A letter that is typed again and again goes through all entries that begin with it.
void ListView::keyboardSearch(const QString& letters) {
  if (!typing_.isValid() || typing_.hasExpired(kTypingPause)) typed_.clear();
  typing_.start();
  const bool begins = typed_.isEmpty();
  typed_ += Bare(letters);
  if (typed_.isEmpty()) return;
  int found = Find(typed_, Current() + (begins ? 1 : 0));
  if (found < 0 && IsOneLetter(typed_)) found = Find(typed_.first(1), Current() + 1);
  if (found >= 0) Choose(found);
}

// The first entry, from a place on and round to it again, that begins so; -1 for none.
int ListView::Find(const QString& letters, int from) const {
  for (int i = 0; i < Count(); ++i) {
    const int place = (from + i) % Count();
    const QString words = OneLine(model()->index(place, 0).data().toString()).trimmed();
    if (Bare(words).startsWith(letters)) return place;
  }
  return -1;
}

void ListView::keyPressEvent(QKeyEvent* event) {
  if (!Step(event->key()) && !TypeAhead(*event)) event->ignore();
}

// The list is not what its window is dragged by, so it keeps all that the mouse does to itself.
void ListView::mousePressEvent(QMouseEvent* event) {
  event->accept();
  const int place = At(event->position().toPoint());
  if (event->button() != Qt::LeftButton || place < 0) return;
  typed_.clear();
  Choose(place);
}

void ListView::mouseMoveEvent(QMouseEvent* event) {
  event->accept();
}

void ListView::mouseReleaseEvent(QMouseEvent* event) {
  event->accept();
}

void ListView::mouseDoubleClickEvent(QMouseEvent* event) {
  event->accept();
  const int place = At(event->position().toPoint());
  if (event->button() == Qt::LeftButton && place >= 0) Open(place);
}

// Keys and mouse choose by Choose; what the toolkit would do by itself changes nothing.

QModelIndex ListView::moveCursor(CursorAction /*action*/, Qt::KeyboardModifiers /*modifiers*/) {
  return currentIndex();
}

void ListView::setSelection(const QRect& /*rect*/, QItemSelectionModel::SelectionFlags /*command*/) {}

bool ListView::isIndexHidden(const QModelIndex& /*index*/) const {
  return false;
}

QRegion ListView::visualRegionForSelection(const QItemSelection& /*selection*/) const {
  return viewport()->rect();
}

// Drawing

void ListView::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(viewport());
  painter.setFont(font());
  if (frame_ > 0) painter.fillRect(viewport()->rect(), palette().color(QPalette::Mid));
  painter.fillRect(Inside(), palette().color(QPalette::Base));
  painter.setClipRect(Inside());
  DrawEntries(painter);
  DrawPositionMark(painter);
}

void ListView::DrawEntries(QPainter& painter) const {
  QStyleOptionViewItem option;
  initViewItemOption(&option);
  const QRect inside = Inside();
  for (int place = 0; place < Count(); ++place) {
    option.rect = PlaceOf(place);
    if (!option.rect.intersects(inside)) continue;
    option.state.setFlag(QStyle::State_Selected, place == Current());
    itemDelegate()->paint(&painter, option, model()->index(place, 0));
  }
}

QRect ListView::PositionMark() const {
  if (!Overflows() || rowsInView_ > 0) return {};
  const QRect inside = Inside();
  const int length = std::clamp(Room() * Room() / Total(), std::min(kLeastMark, Room()), Room());
  const int start = (Room() - length) * std::clamp(Offset(), 0, Range()) / Range();
  if (IsRows()) return {inside.right() + 1 - kMarkWidth, inside.top() + start, kMarkWidth, length};
  return {inside.left() + start, height() - kStripMark, length, kStripMark};
}

// A rim of the ground keeps it apart from the current row, which may be as bright.
void ListView::DrawPositionMark(QPainter& painter) const {
  const QRect mark = PositionMark();
  if (mark.isEmpty()) return;
  if (IsRows()) painter.fillRect(mark.adjusted(-1, -1, 1, 1), palette().color(QPalette::Base));
  painter.setClipping(false);
  painter.fillRect(mark, palette().color(QPalette::Text));
}

}  // namespace zorik
