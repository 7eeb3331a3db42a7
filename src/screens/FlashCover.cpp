#include "screens/FlashCover.h"

#include <QPalette>
#include <QScreen>
#include <QTimer>
#include <algorithm>

namespace zorik {
namespace {

constexpr int kAtLeast = 5;  // milliseconds

}  // namespace

FlashCover::FlashCover(QWidget* window) : QWidget(window) {
  setObjectName("pctBlesk");
  setAutoFillBackground(true);
  setPalette(QPalette(Qt::white));
  hide();
}

void FlashCover::ShowOnce() {
  setGeometry(parentWidget()->rect());
  raise();
  show();
  repaint();
  const qreal rate = std::max(1.0, screen()->refreshRate());
  QTimer::singleShot(std::max(kAtLeast, static_cast<int>(1000 / rate)), this, &QWidget::hide);
}

void FlashCover::Fit() {
  if (isVisible()) setGeometry(parentWidget()->rect());
}

}  // namespace zorik
