#include "screens/KeyBox.h"

#include <QKeyEvent>
#include <QPainter>

#include "screens/PlainText.h"

namespace zorik {
namespace {

constexpr int kHeight = 24;
constexpr int kPadding = 6;
constexpr double kRound = 5;

bool IsModifier(int key) {
  return key == Qt::Key_Shift || key == Qt::Key_Control;
}

}  // namespace

KeyBox::KeyBox(QWidget* parent, int width) : QAbstractButton(parent), width_(width) {
  setFocusPolicy(Qt::StrongFocus);
  setAttribute(Qt::WA_Hover);
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
  connect(this, &KeyBox::clicked, this, &KeyBox::Ask);
}

QSize KeyBox::sizeHint() const {
  return {width_, kHeight};
}

void KeyBox::Ask() {
  asks_ = true;
  held_ = 0;
  update();
  emit Asked();
}

void KeyBox::StopAsking() {
  asks_ = false;
  update();
}

void KeyBox::Catch(const KeyChoice& key) {
  StopAsking();
  emit Caught(key);
}

// Before anything else hears of the key: it is no shortcut, does not lead to the next box and closes nothing.
bool KeyBox::event(QEvent* event) {
  if (!asks_) return QAbstractButton::event(event);
  switch (event->type()) {
    case QEvent::ShortcutOverride:
      event->accept();
      return true;
    case QEvent::KeyPress:
      Press(static_cast<const QKeyEvent&>(*event));
      return true;
    case QEvent::KeyRelease:
      Release(static_cast<const QKeyEvent&>(*event));
      return true;
    default:
      return QAbstractButton::event(event);
  }
}

void KeyBox::Press(const QKeyEvent& event) {
  if (event.isAutoRepeat()) return;
  if (event.key() == Qt::Key_Escape) return Catch({});
  if (IsModifier(event.key())) {
    held_ = event.key();
    return;
  }
  KeyChoice key = KeyOf(event);
  key.ctrl = event.modifiers().testFlag(Qt::ControlModifier);
  Catch(key);
}

void KeyBox::Release(const QKeyEvent& event) {
  if (held_ != 0 && event.key() == held_) Catch(KeyOf(event));
}

void KeyBox::focusOutEvent(QFocusEvent* event) {
  if (asks_) Catch({});
  QAbstractButton::focusOutEvent(event);
}

void KeyBox::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const QColor ground = palette().color(QPalette::Button);
  const bool lit = hasFocus() || asks_;
  painter.setPen(QPen(palette().color(lit ? QPalette::Highlight : QPalette::Mid), 1.5));
  painter.setBrush(asks_ ? ground.darker(200) : underMouse() ? ground.lighter(125) : ground);
  painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), kRound, kRound);
  painter.setPen(palette().color(asks_ ? QPalette::Highlight : QPalette::ButtonText));
  const QString words = OneLine(asks_ ? asking_ : text(), kMostInCaption);
  const QRect room = rect().adjusted(kPadding, 0, -kPadding, 0);
  painter.drawText(room, Qt::AlignCenter | Qt::TextSingleLine,
                   fontMetrics().elidedText(words, Qt::ElideRight, room.width()));
}

}  // namespace zorik
