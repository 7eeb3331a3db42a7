#include "screens/StartLists.h"

#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>
#include <algorithm>

#include "screens/Hint.h"
#include "screens/PlainText.h"
#include "skin/GameFont.h"

namespace zorik {
namespace {

constexpr int kRowPadding = 4;  // left and right of a row's text
constexpr int kStripStep = 40;
constexpr int kWheelTurn = 120;  // what a notch of the wheel counts
constexpr int kStepsOfNotch = 3;

}  // namespace

LabelList::LabelList(Qt::Orientation orientation, QWidget* parent)
    : QWidget(parent), orientation_(orientation) {
  setFont(GameFont(kRowLetters));
}

void LabelList::SetLook(const ListLook& look) {
  look_ = look;
  ScrollTo(offset_);
}

void LabelList::SetLabels(const QStringList& labels) {
  labels_ = labels;
  shown_.clear();
  for (const QString& label : labels_) shown_.push_back(OneLine(label));
  ends_.clear();
  const QFontMetrics metrics(font());
  int end = 0;
  for (const QString& label : shown_) {
    end += Rows() ? kRowHeight : metrics.horizontalAdvance(label);
    ends_.push_back(end);
  }
  selected_ = -1;
  ScrollTo(0);
}

void LabelList::Select(int place) {
  if (labels_.isEmpty()) return;
  selected_ = std::clamp(place, 0, Count() - 1);
  Show(selected_);
  emit Chosen(selected_);
}

void LabelList::Show(int place) {
  const int start = StartOf(place);
  const int end = ends_[static_cast<std::size_t>(place)];
  if (end - offset_ > Room()) ScrollTo(end - Room());
  if (start < offset_) ScrollTo(start);
  update();
}

int LabelList::StepOf(int key) const {
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

void LabelList::Scroll(int steps) {
  ScrollTo(offset_ + steps * (Rows() ? kRowHeight : kStripStep));
}

void LabelList::ScrollTo(int offset) {
  offset_ = std::clamp(offset, 0, std::max(0, Total() - Room()));
  update();
}

QRect LabelList::Inside() const {
  const int frame = look_.borderSize;
  return rect().adjusted(frame, frame, -frame, -frame);
}

int LabelList::Room() const {
  return std::max(0, Rows() ? Inside().height() : Inside().width());
}

QRect LabelList::PlaceOf(int place) const {
  const int start = StartOf(place) - offset_;
  const int length = ends_[static_cast<std::size_t>(place)] - StartOf(place);
  const QRect inside = Inside();
  if (Rows()) return {inside.left(), inside.top() + start, inside.width(), length};
  return {inside.left() + start, inside.top(), length, inside.height()};
}

int LabelList::At(QPoint point) const {
  if (!Inside().contains(point)) return -1;
  for (int place = 0; place < Count(); ++place) {
    if (PlaceOf(place).contains(point)) return place;
  }
  return -1;
}

void LabelList::DrawLabel(QPainter& painter, int place) const {
  const QRect box = PlaceOf(place);
  if (!box.intersects(Inside())) return;
  const bool selected = place == selected_;
  if (selected) painter.fillRect(box, look_.selectionGround);
  painter.setPen(selected ? look_.selectionText : look_.text);
  const QString& label = shown_[place];
  if (!Rows()) {
    painter.drawText(box, Qt::AlignCenter | Qt::TextSingleLine, label);
    return;
  }
  const QRect words = box.adjusted(kRowPadding, 0, -kRowPadding, 0);
  painter.drawText(words, Qt::AlignVCenter | Qt::AlignLeft | Qt::TextSingleLine,
                   painter.fontMetrics().elidedText(label, Qt::ElideRight, words.width()));
}

void LabelList::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.fillRect(rect(), look_.border);
  painter.fillRect(Inside(), look_.ground);
  painter.setClipRect(Inside());
  for (int place = 0; place < Count(); ++place) DrawLabel(painter, place);
}

// The list is not what the window is dragged by, so it keeps every press to itself.
void LabelList::mousePressEvent(QMouseEvent* event) {
  event->accept();
  const int place = At(event->position().toPoint());
  if (event->button() == Qt::LeftButton && place >= 0) Select(place);
}

void LabelList::mouseReleaseEvent(QMouseEvent* event) {
  event->accept();
}

void LabelList::mouseDoubleClickEvent(QMouseEvent* event) {
  event->accept();
  const int place = At(event->position().toPoint());
  if (event->button() == Qt::LeftButton && place >= 0 && place == selected_) emit Opened(place);
}

void LabelList::wheelEvent(QWheelEvent* event) {
  event->accept();
  const QPoint turn = event->angleDelta();
  wheel_ += Rows() || turn.x() == 0 ? turn.y() : turn.x();
  const int steps = wheel_ * kStepsOfNotch / kWheelTurn;
  wheel_ -= steps * kWheelTurn / kStepsOfNotch;
  Scroll(-steps);
}

void LabelList::resizeEvent(QResizeEvent* /*event*/) {
  ScrollTo(offset_);
}

// A name too long for its row is told in full.
bool LabelList::event(QEvent* event) {
  if (event->type() != QEvent::ToolTip) return QWidget::event(event);
  const auto& help = static_cast<const QHelpEvent&>(*event);
  const int place = At(help.pos());
  const int room = Inside().width() - 2 * kRowPadding;
  const bool cut = Rows() && place >= 0 && fontMetrics().horizontalAdvance(shown_[place]) > room;
  ShowHint(help.globalPos(), cut ? labels_[place] : QString(), *this, cut ? PlaceOf(place) : QRect());
  return true;
}

}  // namespace zorik
