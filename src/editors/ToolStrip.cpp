#include "editors/ToolStrip.h"

#include <QAction>
#include <QPaintEvent>
#include <QPainter>
#include <QToolButton>
#include <QVBoxLayout>

namespace zorik {
namespace {

constexpr int kIcon = 22;
constexpr int kGap = 8;

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
  auto* const rows = new QVBoxLayout(this);
  rows->setContentsMargins(0, 0, 0, 0);
  rows->setSpacing(2);
  rows->addStretch();
}

void ToolStrip::Add(QAction& action) {
  auto* const button = new StripButton(this);
  button->setObjectName("btn" + action.objectName().mid(3));
  button->setAutoRaise(true);
  button->setFocusPolicy(Qt::NoFocus);
  button->setIconSize(QSize(kIcon, kIcon));
  button->setDefaultAction(&action);
  button->setToolButtonStyle(Qt::ToolButtonIconOnly);
  auto* const rows = static_cast<QVBoxLayout*>(layout());
  rows->insertWidget(rows->count() - 1, button);
}

void ToolStrip::AddGap() {
  auto* const rows = static_cast<QVBoxLayout*>(layout());
  rows->insertSpacing(rows->count() - 1, kGap);
}

}  // namespace zorik
