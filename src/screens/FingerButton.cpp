#include "screens/FingerButton.h"

#include <QMouseEvent>
#include <QPainter>

#include "screens/Hint.h"
#include "screens/OpaqueRegion.h"
#include "screens/PlainText.h"

namespace zorik {
namespace {

constexpr int kNotQuiteClear = 1;
constexpr double kHovered = 0.55;  // how strongly a finger that is not chosen lights up under the pointer

}  // namespace

FingerButton::FingerButton(QWidget* parent) : QAbstractButton(parent) {
  setAttribute(Qt::WA_Hover);
  setCheckable(true);
  setAutoExclusive(true);
  setFocusPolicy(Qt::NoFocus);
}

void FingerButton::SetOverlay(const QImage& overlay) {
  const QImage image = overlay.convertToFormat(QImage::Format_ARGB32);
  const QRegion drawn = OpaqueRegion(image, kNotQuiteClear);
  const QRect box = drawn.boundingRect();
  finger_ = image.copy(box);
  setGeometry(box);
  setMask(drawn.translated(-box.topLeft()));
  setVisible(!box.isEmpty());
  update();
}

void FingerButton::SetWords(const QString& words) {
  setText(InMenu(words));
  SetHint(*this, words);
  setAccessibleName(OneLine(words));
}

void FingerButton::SetLitBelow(bool lit) {
  litBelow_ = lit;
  update();
}

void FingerButton::paintEvent(QPaintEvent* /*event*/) {
  if (isChecked() ? litBelow_ : !underMouse() && !isDown()) return;
  QPainter painter(this);
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  if (!isChecked() && !isDown()) painter.setOpacity(kHovered);
  painter.drawImage(0, 0, finger_);
}

void FingerButton::mouseDoubleClickEvent(QMouseEvent* event) {
  event->accept();
  if (event->button() == Qt::LeftButton) emit Opened();
}

// A press that slides off stays the button's.
void FingerButton::mouseMoveEvent(QMouseEvent* event) {
  QAbstractButton::mouseMoveEvent(event);
  event->accept();
}

}  // namespace zorik
