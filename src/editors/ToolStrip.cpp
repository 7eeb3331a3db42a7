#include "editors/ToolStrip.h"

#include <QAction>
#include <QPaintEvent>
#include <QPainter>
#include <QToolButton>

namespace zorik {
namespace {

constexpr int kIcon = 22;
constexpr int kSpace = 2;
constexpr int kGap = 8;
constexpr int kMostColumns = 2;

class StripButton : public QToolButton {
 public:
  using QToolButton::QToolButton;

 protected:
  void paintEvent(QPaintEvent* event) override {
    QToolButton::paintEvent(event);
    if (!isChecked()) return;
    QPainter painter(this);
    painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
    painter.drawRect(rect().adjusted(1, 1, -1, -1));
  }
};

}  // namespace

ToolStrip::ToolStrip(QWidget* parent) : QWidget(parent) {
  setObjectName("ToolStrip");
}

void ToolStrip::Add(QAction& action) {
  auto* const button = new StripButton(this);
  button->setObjectName("btn" + action.objectName().mid(3));
  button->setAutoRaise(true);
  button->setFocusPolicy(Qt::NoFocus);
  button->setIconSize(QSize(kIcon, kIcon));
  button->setDefaultAction(&action);
  button->setToolButtonStyle(Qt::ToolButtonIconOnly);
  groups_.back().push_back(button);
  Arrange();
}

void ToolStrip::AddGap() {
  groups_.emplace_back();
}

QSize ToolStrip::Arrange(int columns, bool move) const {
  QSize whole;
  int top = 0;
  for (const std::vector<QWidget*>& group : groups_) {
    for (std::size_t i = 0; i < group.size(); ++i) {
      const int column = static_cast<int>(i) % columns;
      const QSize size = group[i]->sizeHint();
      const QRect place(QPoint(column * (size.width() + kSpace), top), size);
      if (move) group[i]->setGeometry(place);
      whole = whole.expandedTo(QSize(place.right() + 1, place.bottom() + 1));
      if (column == columns - 1 || i + 1 == group.size()) top += size.height() + kSpace;
    }
    top += kGap;
  }
  return whole;
}

void ToolStrip::Arrange() {
  const int columns = height() < Arrange(1, false).height() ? kMostColumns : 1;
  setFixedWidth(Arrange(columns, true).width());
}

QSize ToolStrip::sizeHint() const {
  return Arrange(1, false);
}

QSize ToolStrip::minimumSizeHint() const {
  return {width(), Arrange(kMostColumns, false).height()};
}

void ToolStrip::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  Arrange();
}

void ToolStrip::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::StyleChange || event->type() == QEvent::FontChange) Arrange();
}

}  // namespace zorik
