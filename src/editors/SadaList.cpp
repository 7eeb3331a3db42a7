#include "editors/SadaList.h"

#include <QAbstractListModel>
#include <QAction>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <QStyledItemDelegate>
#include <algorithm>
#include <utility>

#include "editors/BoxText.h"
#include "screens/Hint.h"
#include "screens/PlainText.h"

namespace zorik {
namespace {

const QString kMark = "P";
const QString kDoubtMark = "!";
constexpr int kDoubtRole = Qt::UserRole;
constexpr QColor kDoubtGround(0xFF, 0xD0, 0x40);
constexpr QColor kDoubtLetters(0x30, 0x20, 0x00);
constexpr int kUsualRow = 18;
constexpr int kUsualWidth = 360;
constexpr int kLeastWidth = 200;
constexpr int kFaint = 90;
constexpr int kSelectedFill = 48;

QColor Faded(QColor colour, int alpha) {
  colour.setAlpha(alpha);
  return colour;
}

// Rows have letters as high as those of the least height.
QFont FontOf(QFont letters, const QRect& row) {
  letters.setPixelSize(std::max(1, row.height() * kRowLetters / kRowHeight));
  return letters;
}

QRect MarkIn(const QRect& row) {
  QRect mark = row;
  mark.setLeft(mark.right() + 1 - 2 * mark.height());
  return mark;
}

QRect NameIn(const QRect& row, const QFont& letters) {
  const int left = QFontMetrics(FontOf(letters, row)).horizontalAdvance("000");
  return row.adjusted(left, 0, -MarkIn(row).width(), 0);
}

// At the end of the name, a square.
QRect DoubtIn(const QRect& row, const QFont& letters) {
  QRect mark = NameIn(row, letters);
  mark.setLeft(mark.right() + 1 - mark.height());
  return mark;
}

}  // namespace

class SadaRows : public QAbstractListModel {
 public:
  SadaRows(const SadaModel& sada, QObject* parent) : QAbstractListModel(parent), sada_(sada) {}

  void GetNames() {
    beginResetModel();
    names_.clear();
    for (int number = 1; number <= sada_.ListCount(); ++number) names_.push_back(ToBox(sada_.Name(number)));
    endResetModel();
  }

  void SetDoubts(std::map<int, QString> doubts) { doubts_ = std::move(doubts); }
  QString DoubtAbout(int number) const {
    const auto doubt = doubts_.find(number);
    return doubt != doubts_.end() ? doubt->second : QString();
  }

  int rowCount(const QModelIndex& parent = {}) const override {
    return parent.isValid() ? 0 : static_cast<int>(names_.size());
  }
  QVariant data(const QModelIndex& index, int role) const override {
    if (role == Qt::DisplayRole) return names_[index.row()];
    if (role == kDoubtRole) return DoubtAbout(index.row() + 1);
    return role == Qt::CheckStateRole ? QVariant(sada_.IsOpen(index.row() + 1)) : QVariant();
  }

 private:
  const SadaModel& sada_;
  QStringList names_;
  std::map<int, QString> doubts_;
};

class SadaDelegate : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  void SetMarkHint(const QString& hint) { markHint_ = hint; }

  // The cave whose mark is under the pointer; whether it is another one than before.
  bool Hover(int number) { return std::exchange(hovered_, number) != number; }

  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    painter->setFont(FontOf(option.font, option.rect));
    if (option.state.testFlag(QStyle::State_Selected)) DrawSelection(*painter, option);
    DrawName(*painter, option, index);
    DrawDoubt(*painter, option, index);
    DrawMark(*painter, option, index);
  }

  // The marks are explained; a name shows only when the row is too short for it.
  bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                 const QModelIndex& index) override {
    const auto& list = static_cast<const SadaList&>(*view);
    QString hint;
    if (list.lblPoc(1).left() <= event->pos().x()) {
      hint = markHint_;
    } else if (index.isValid()) {
      const QString name = index.data().toString();
      const QFontMetrics letters(FontOf(option.font, option.rect));
      hint = index.data(kDoubtRole).toString();
      const bool cut = letters.horizontalAdvance(WordsOf(index)) > WordsIn(option, index).width();
      if (cut) hint = hint.isEmpty() ? name : name + '\n' + hint;
    }
    ShowHint(event->globalPos(), hint, *view->viewport());
    return true;
  }

 private:
  // What the mark of a doubtful name leaves to it.
  static QRect RoomOf(const QRect& row, const QFont& letters, const QModelIndex& index) {
    QRect room = NameIn(row, letters);
    if (!index.data(kDoubtRole).toString().isEmpty()) room.setRight(DoubtIn(row, letters).left() - 1);
    return room;
  }

  // The name as it is written there, and where.
  static QString WordsOf(const QModelIndex& index) { return OneLine(index.data().toString()).simplified(); }
  static QRect WordsIn(const QStyleOptionViewItem& option, const QModelIndex& index) {
    const int pad = option.rect.height() / 4;
    return RoomOf(option.rect, option.font, index).adjusted(pad, 0, -pad, 0);
  }

  static void DrawDoubt(QPainter& painter, const QStyleOptionViewItem& option, const QModelIndex& index) {
    if (index.data(kDoubtRole).toString().isEmpty()) return;
    const QRect mark = DoubtIn(option.rect, option.font).adjusted(1, 1, -1, -1);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(kDoubtGround);
    painter.drawEllipse(mark);
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setPen(kDoubtLetters);
    painter.drawText(mark, Qt::AlignCenter, kDoubtMark);
    painter.setBrush(Qt::NoBrush);
  }

  // It shows whether keys go to the list.
  static void DrawSelection(QPainter& painter, const QStyleOptionViewItem& option) {
    const QColor border = option.palette.color(QPalette::Highlight);
    painter.fillRect(option.rect,
                     Faded(border, option.widget->hasFocus() ? kSelectedFill * 2 : kSelectedFill));
    painter.setPen(border);
    painter.drawRect(option.rect.adjusted(0, 0, -1, -1));
  }

  static void DrawName(QPainter& painter, const QStyleOptionViewItem& option, const QModelIndex& index) {
    const QRect& row = option.rect;
    const int pad = row.height() / 4;
    const QColor text = option.palette.color(QPalette::Text);
    const QRect name = RoomOf(row, option.font, index);
    painter.setPen(Faded(text, kFaint));
    painter.drawText(QRect(row.left(), row.top(), name.left() - row.left() - pad, row.height()),
                     Qt::AlignRight | Qt::AlignVCenter, QString::number(index.row() + 1));
    painter.setPen(text);
    const QRect room = WordsIn(option, index);
    const QString words = painter.fontMetrics().elidedText(WordsOf(index), Qt::ElideRight, room.width());
    painter.drawText(room, Qt::AlignLeft | Qt::AlignVCenter, words);
  }

  void DrawMark(QPainter& painter, const QStyleOptionViewItem& option, const QModelIndex& index) const {
    const int number = index.row() + 1;
    const QColor text = option.palette.color(QPalette::Text);
    const QRect mark = MarkIn(option.rect);
    if (hovered_ == number) {
      painter.setPen(Faded(text, kFaint));
      painter.drawRect(mark.adjusted(0, 0, -1, -1));
    }
    if (!index.data(Qt::CheckStateRole).toBool()) return;
    painter.setPen(number > 1 ? text : Faded(text, kFaint));
    painter.drawText(mark, Qt::AlignCenter, kMark);
  }

  QString markHint_;
  int hovered_ = 0;
};

SadaList::SadaList(const SadaModel& sada, QWidget* parent)
    : ListView(Qt::Vertical, parent),
      sada_(sada),
      rows_(new SadaRows(sada, this)),
      delegate_(new SadaDelegate(this)) {
  setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
  setFocusPolicy(Qt::StrongFocus);
  setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
  verticalScrollBar()->setObjectName("VScroll1");
  viewport()->setMouseTracking(true);
  FillWithRows(kRows);
  setItemDelegate(delegate_);
  setModel(rows_);
  connect(this, &ListView::Chosen, this, [this](int place) { emit CaveClicked(place + 1); });
}

void SadaList::SetMarkHint(const QString& hint) {
  delegate_->SetMarkHint(hint);
}

void SadaList::SetDoubts(std::map<int, QString> doubts) {
  rows_->SetDoubts(std::move(doubts));
  Describe();
  viewport()->update();
}

QSize SadaList::sizeHint() const {
  return {kUsualWidth, kRows * kUsualRow + 2 * frameWidth()};
}

QSize SadaList::minimumSizeHint() const {
  return {kLeastWidth, kRows * kRowHeight + 2 * frameWidth()};
}

void SadaList::GetNames() {
  rows_->GetNames();
  MakeCurrent(sada_.ListSelected() - 1);
  Describe();
}

void SadaList::Describe() {
  const int selected = sada_.ListSelected();
  const QString doubt = rows_->DoubtAbout(selected);
  setAccessibleDescription(QString::number(selected) + ' ' + currentIndex().data().toString() +
                           (sada_.IsOpen(selected) ? ' ' + kMark : "") +
                           (doubt.isEmpty() ? doubt : ". " + doubt));
}

QRect SadaList::RowOf(int number) const {
  return {0, (number - 1) * RowHeight() - Offset(), viewport()->width(), RowHeight()};
}

QRect SadaList::lblCave(int number) const {
  return NameIn(RowOf(number), font());
}

QRect SadaList::lblPoc(int number) const {
  return MarkIn(RowOf(number));
}

QRect SadaList::Doubt(int number) const {
  return DoubtIn(RowOf(number), font());
}

int SadaList::MarkAt(QPoint place) const {
  const int number = CaveAt(place);
  return number > 0 && lblPoc(number).contains(place) ? number : 0;
}

void SadaList::Hover(int mark) {
  if (delegate_->Hover(mark)) viewport()->update();
}

bool SadaList::viewportEvent(QEvent* event) {
  if (event->type() == QEvent::Leave) Hover(0);
  return ListView::viewportEvent(event);
}

// The right button selects, too: its menu is that of the cave.
void SadaList::mousePressEvent(QMouseEvent* event) {
  const int mark = MarkAt(event->pos());
  if (mark > 1 && event->button() == Qt::LeftButton) emit MarkClicked(mark);
  if (mark > 0 && event->button() == Qt::LeftButton) return;
  const int number = CaveAt(event->pos());
  if (number > 0 && event->button() == Qt::RightButton) Choose(number - 1);
  ListView::mousePressEvent(event);
}

void SadaList::mouseMoveEvent(QMouseEvent* event) {
  const int mark = MarkAt(event->pos());
  Hover(mark > 1 ? mark : 0);
}

// On a mark a double click is two clicks.
void SadaList::mouseDoubleClickEvent(QMouseEvent* event) {
  mousePressEvent(event);
  if (MarkAt(event->pos()) == 0) ListView::mouseDoubleClickEvent(event);
}

void SadaList::Open(int /*place*/) {
  emit Activated();
}

bool SadaList::DoAction(QKeyEvent* event) const {
  for (const auto& [key, action] : keys_) {
    if (!event->matches(key)) continue;
    action->trigger();
    return true;
  }
  return false;
}

void SadaList::keyPressEvent(QKeyEvent* event) {
  if (DoAction(event)) return;
  switch (event->key()) {
    case Qt::Key_Space:
      if (Current() > 0) emit MarkClicked(Current() + 1);
      return;
    case Qt::Key_Return:
    case Qt::Key_Enter:
      emit Activated();
      return;
    default:
      ListView::keyPressEvent(event);
  }
}

}  // namespace zorik
