#include "editors/SadaList.h"

#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <algorithm>

#include "editors/BoxText.h"
#include "screens/Hint.h"
#include "screens/PlainText.h"

namespace zorik {
namespace {

const QString kMark = "P";
constexpr int kLetters = 11;  // of a row of the least height
constexpr int kUsualRow = 18;
constexpr int kUsualWidth = 360;
constexpr int kLeastWidth = 200;
constexpr int kFaint = 90;
constexpr int kSelectedFill = 48;

QColor Faded(QColor colour, int alpha) {
  colour.setAlpha(alpha);
  return colour;
}

}  // namespace

SadaList::SadaList(const SadaModel& sada, QWidget* parent) : QAbstractScrollArea(parent), sada_(sada) {
  setFocusPolicy(Qt::StrongFocus);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  verticalScrollBar()->setObjectName("VScroll1");
  verticalScrollBar()->setSingleStep(1);
  verticalScrollBar()->setPageStep(kRows);
  viewport()->setMouseTracking(true);
  viewport()->setBackgroundRole(QPalette::Base);
}

QSize SadaList::sizeHint() const {
  return {kUsualWidth, kRows * kUsualRow + 2 * frameWidth()};
}

QSize SadaList::minimumSizeHint() const {
  return {kLeastWidth, kRows * kRowHeight + 2 * frameWidth()};
}

void SadaList::GetNames() {
  QScrollBar& bar = *verticalScrollBar();
  bar.setRange(0, std::max(0, sada_.ListCount() - kRows));
  const int row = sada_.ListSelected() - 1;
  if (row < bar.value()) bar.setValue(row);
  if (row >= bar.value() + kRows) bar.setValue(row - kRows + 1);
  const QString name = ToBox(sada_.Name(row + 1));
  setAccessibleDescription(QString::number(row + 1) + ' ' + name +
                           (sada_.IsOpen(row + 1) ? ' ' + kMark : ""));
  viewport()->update();
}

int SadaList::RowHeight() const {
  return std::max(1, viewport()->height() / kRows);
}

QFont SadaList::RowFont() const {
  QFont letters = font();
  letters.setPixelSize(std::max(1, RowHeight() * kLetters / kRowHeight));
  return letters;
}

QRect SadaList::RowOf(int number) const {
  const int height = RowHeight();
  return {0, (number - 1 - verticalScrollBar()->value()) * height, viewport()->width(), height};
}

QRect SadaList::lblCave(int number) const {
  const QFontMetrics letters(RowFont());
  const int left = letters.horizontalAdvance("000");
  return RowOf(number).adjusted(left, 0, -lblPoc(number).width(), 0);
}

QRect SadaList::lblPoc(int number) const {
  QRect mark = RowOf(number);
  mark.setLeft(mark.right() + 1 - 2 * mark.height());
  return mark;
}

int SadaList::CaveAt(QPoint place) const {
  const int number = place.y() / RowHeight() + verticalScrollBar()->value() + 1;
  const bool row = viewport()->rect().contains(place) && RowOf(number).bottom() < kRows * RowHeight();
  return row && number <= sada_.ListCount() ? number : 0;
}

void SadaList::Hover(int mark) {
  if (mark == hovered_) return;
  hovered_ = mark;
  viewport()->update();
}

bool SadaList::viewportEvent(QEvent* event) {
  if (event->type() == QEvent::Leave) Hover(0);
  if (event->type() == QEvent::ToolTip) return ShowHint(*static_cast<QHelpEvent*>(event));
  return QAbstractScrollArea::viewportEvent(event);
}

// The marks are explained; a name shows only when the row is too short for it.
bool SadaList::ShowHint(const QHelpEvent& event) {
  const int number = CaveAt(event.pos());
  QString hint;
  if (lblPoc(1).left() <= event.pos().x()) {
    hint = markHint_;
  } else if (number > 0) {
    const QString name = ToBox(sada_.Name(number));
    if (QFontMetrics(RowFont()).horizontalAdvance(OneLine(name)) > lblCave(number).width()) hint = name;
  }
  zorik::ShowHint(event.globalPos(), hint, *viewport());
  return true;
}

void SadaList::mousePressEvent(QMouseEvent* event) {
  const int number = CaveAt(event->pos());
  if (event->button() != Qt::LeftButton && event->button() != Qt::RightButton) return;
  if (number == 0) return;
  const bool mark = event->button() == Qt::LeftButton && lblPoc(number).contains(event->pos());
  if (!mark) {
    emit CaveClicked(number);
  } else if (number > 1) {
    emit MarkClicked(number);
  }
}

void SadaList::mouseMoveEvent(QMouseEvent* event) {
  const int number = CaveAt(event->pos());
  Hover(number > 1 && lblPoc(number).contains(event->pos()) ? number : 0);
}

void SadaList::mouseDoubleClickEvent(QMouseEvent* event) {
  const int number = CaveAt(event->pos());
  mousePressEvent(event);
  const bool name = number > 0 && !lblPoc(number).contains(event->pos());
  if (name && event->button() == Qt::LeftButton) emit Activated();
}

void SadaList::keyPressEvent(QKeyEvent* event) {
  const int selected = sada_.ListSelected();
  const int count = sada_.ListCount();
  const auto go = [&](int number) { emit CaveClicked(std::clamp(number, 1, count)); };
  switch (event->key()) {
    case Qt::Key_Up:
      return go(selected - 1);
    case Qt::Key_Down:
      return go(selected + 1);
    case Qt::Key_PageUp:
      return go(selected - kRows);
    case Qt::Key_PageDown:
      return go(selected + kRows);
    case Qt::Key_Home:
      return go(1);
    case Qt::Key_End:
      return go(count);
    case Qt::Key_Space:
      if (selected > 1) emit MarkClicked(selected);
      return;
    case Qt::Key_Return:
    case Qt::Key_Enter:
      emit Activated();
      return;
    default:
      QAbstractScrollArea::keyPressEvent(event);
  }
}

// The selected row shows whether keys go to the list.
void SadaList::focusInEvent(QFocusEvent* event) {
  QAbstractScrollArea::focusInEvent(event);
  viewport()->update();
}

void SadaList::focusOutEvent(QFocusEvent* event) {
  QAbstractScrollArea::focusOutEvent(event);
  viewport()->update();
}

void SadaList::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(viewport());
  painter.setFont(RowFont());
  const int first = verticalScrollBar()->value() + 1;
  const int last = std::min(first + kRows - 1, sada_.ListCount());
  for (int number = first; number <= last; ++number) DrawRow(painter, number);
}

void SadaList::DrawRow(QPainter& painter, int number) const {
  const QPalette& colours = palette();
  const QRect row = RowOf(number);
  const int pad = row.height() / 4;
  if (number == sada_.ListSelected()) {
    const QColor border = colours.color(QPalette::Highlight);
    painter.fillRect(row, Faded(border, hasFocus() ? kSelectedFill * 2 : kSelectedFill));
    painter.setPen(border);
    painter.drawRect(row.adjusted(0, 0, -1, -1));
  }
  const QColor text = colours.color(QPalette::Text);
  const QColor faint = Faded(text, kFaint);
  painter.setPen(faint);
  const QRect name = lblCave(number);
  painter.drawText(QRect(row.left(), row.top(), name.left() - row.left() - pad, row.height()),
                   Qt::AlignRight | Qt::AlignVCenter, QString::number(number));
  painter.setPen(text);
  const QString words = painter.fontMetrics().elidedText(OneLine(ToBox(sada_.Name(number))).simplified(),
                                                         Qt::ElideRight, name.width() - 2 * pad);
  painter.drawText(name.adjusted(pad, 0, -pad, 0), Qt::AlignLeft | Qt::AlignVCenter, words);
  const QRect mark = lblPoc(number);
  if (hovered_ == number) {
    painter.setPen(faint);
    painter.drawRect(mark.adjusted(0, 0, -1, -1));
  }
  if (!sada_.IsOpen(number)) return;
  painter.setPen(number > 1 ? text : faint);
  painter.drawText(mark, Qt::AlignCenter, kMark);
}

void SadaList::resizeEvent(QResizeEvent* /*event*/) {
  viewport()->update();
}

void SadaList::scrollContentsBy(int /*dx*/, int /*dy*/) {
  viewport()->update();
}

void SadaList::changeEvent(QEvent* event) {
  QAbstractScrollArea::changeEvent(event);
  viewport()->update();
}

}  // namespace zorik
