#include "screens/StartLists.h"

#include <QHelpEvent>
#include <QPainter>
#include <QStyledItemDelegate>
#include <algorithm>

#include "screens/Hint.h"
#include "screens/PlainText.h"
#include "skin/GameFont.h"

namespace zorik {
namespace {

constexpr int kRowPadding = 4;  // left and right of a row's text

class LabelDelegate : public QStyledItemDelegate {
 public:
  LabelDelegate(Qt::Orientation orientation, QObject* parent)
      : QStyledItemDelegate(parent), rows_(orientation == Qt::Vertical) {}

  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    const bool selected = option.state.testFlag(QStyle::State_Selected);
    if (selected) painter->fillRect(option.rect, option.palette.color(QPalette::Highlight));
    painter->setPen(option.palette.color(selected ? QPalette::HighlightedText : QPalette::Text));
    const QString label = OneLine(index.data().toString());
    if (!rows_) {
      painter->drawText(option.rect, Qt::AlignCenter | Qt::TextSingleLine, label);
      return;
    }
    const QRect words = option.rect.adjusted(kRowPadding, 0, -kRowPadding, 0);
    painter->drawText(words, Qt::AlignVCenter | Qt::AlignLeft | Qt::TextSingleLine,
                      option.fontMetrics.elidedText(label, Qt::ElideRight, words.width()));
  }

  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    return {option.fontMetrics.horizontalAdvance(OneLine(index.data().toString())), kRowHeight};
  }

  // A name too long for its row is told in full.
  bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                 const QModelIndex& index) override {
    const QString label = index.data().toString();
    const int room = option.rect.width() - 2 * kRowPadding;
    const bool cut = rows_ && option.fontMetrics.horizontalAdvance(OneLine(label)) > room;
    ShowHint(event->globalPos(), cut ? label : QString(), *view->viewport(), cut ? option.rect : QRect());
    return true;
  }

 private:
  bool rows_;
};

}  // namespace

LabelList::LabelList(Qt::Orientation orientation, QWidget* parent) : ListView(orientation, parent) {
  setFont(GameFont(kRowLetters));
  setItemDelegate(new LabelDelegate(orientation, this));
  setModel(&labels_);
  SetLook({});
}

void LabelList::SetLabels(const QStringList& labels) {
  labels_.setStringList(labels);
  scrollTo(labels_.index(0));
}

void LabelList::Select(int place) {
  if (Count() == 0) return;
  MakeCurrent(std::clamp(place, 0, Count() - 1));
  emit Chosen(Current());
}

// Both clicks should have met the same label.
void LabelList::Open(int place) {
  if (place == Current()) emit Opened(place);
}

}  // namespace zorik
