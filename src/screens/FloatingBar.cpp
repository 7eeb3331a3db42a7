#include "screens/FloatingBar.h"

#include <QPainter>
#include <algorithm>

#include "screens/BarButton.h"

namespace zorik {
namespace {

constexpr int kBelow = 4;  // between the bar and the edge
constexpr qreal kRound = 10;
constexpr QColor kGround(0x20, 0x18, 0x2A, 240);

}  // namespace

FloatingBar::FloatingBar(QWidget* parent, int height, int widest)
    : QWidget(parent), height_(height), widest_(widest) {
  setFocusPolicy(Qt::NoFocus);
  setMouseTracking(true);
  hide();
}

BarButton* FloatingBar::NewButton(const char* name) {
  auto* const button = new BarButton(this);
  button->setObjectName(name);
  return button;
}

void FloatingBar::PlaceIn(const QRect& frame) {
  frame_ = frame;
  const int width = std::min(frame.width() - 2 * kBelow, widest_);
  scale_ = std::min(1.0, static_cast<qreal>(width) / NeededWidth());
  const int height = Scaled(height_);
  setGeometry(frame.left() + (frame.width() - width) / 2, frame.bottom() + 1 - height - kBelow, width,
              height);
  Arrange();
}

void FloatingBar::PaintGround(QPainter& painter, QColor rim) const {
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(rim, 2));
  painter.setBrush(kGround);
  painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), kRound, kRound);
}

}  // namespace zorik
