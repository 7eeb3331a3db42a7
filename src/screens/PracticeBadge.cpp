#include "screens/PracticeBadge.h"

#include <QFontMetrics>
#include <QPainter>
#include <algorithm>

#include "screens/ShowText.h"
#include "skin/GameFont.h"

namespace zorik {
namespace {

constexpr int kKeysStay = 10'000;  // milliseconds
constexpr int kLetters = 17;
constexpr int kKeyLetters = 14;
constexpr int kPadding = 10;
constexpr int kAside = 6;
constexpr int kMostLines = 4;

constexpr int kRoomy = 440;  // a lower place has smaller letters
constexpr int kSmallestLetters = 9;

int Letters(int letters, const QRect& frame) {
  return std::clamp(letters * frame.height() / kRoomy, kSmallestLetters, letters);
}

QFont TextFont(const QRect& frame) {
  QFont font = GameFont(Letters(kLetters, frame));
  font.setBold(true);
  return font;
}

QFont KeysFont(const QRect& frame) {
  return GameFont(Letters(kKeyLetters, frame));
}

}  // namespace

PracticeBadge::PracticeBadge(QWidget* parent) : QWidget(parent) {
  setObjectName("practice");
  setFocusPolicy(Qt::NoFocus);
  setAttribute(Qt::WA_TransparentForMouseEvents);
  keysLeave_.setSingleShot(true);
  keysLeave_.setInterval(kKeysStay);
  keysLeave_.callOnTimeout([this] { Place(); });
  hide();
}

void PracticeBadge::Open(const QString& text, const QString& keys) {
  keys_ = keys;
  keysLeave_.start();
  SetText(text);
  raise();
  show();
}

void PracticeBadge::SetText(const QString& text) {
  text_ = text;
  Place();
}

void PracticeBadge::PlaceIn(const QRect& frame) {
  frame_ = frame;
  Place();
}

void PracticeBadge::Place() {
  const QFontMetrics letters(TextFont(frame_));
  const QFontMetrics small(KeysFont(frame_));
  const int room = std::max(1, frame_.width() - 2 * (kPadding + kAside));
  int width = letters.horizontalAdvance(text_);
  int height = letters.lineSpacing();
  if (KeysShown()) {
    const WrappedText lines = WrapText(keys_, small, room, kMostLines);
    width = std::max(width, lines.width);
    height += small.lineSpacing() * static_cast<int>(lines.lines.size());
  }
  const QSize size(std::min(width, room) + 2 * kPadding, height + kPadding);
  setGeometry(QRect(QPoint(frame_.left() + kAside, frame_.bottom() + 1 - kAside - size.height()), size));
  update();
}

void PracticeBadge::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(QColor(0x70, 0xD8, 0xF0), 2));
  painter.setBrush(QColor(0x10, 0x30, 0x44, 225));
  painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), 8, 8);
  const QRect inside = rect().adjusted(kPadding, kPadding / 2, -kPadding, -kPadding / 2);
  painter.setPen(QColor(0xE0, 0xF8, 0xFF));
  painter.setFont(TextFont(frame_));
  painter.drawText(inside, Qt::AlignLeft | Qt::AlignTop, text_);
  if (!KeysShown()) return;
  painter.setFont(KeysFont(frame_));
  const WrappedText lines = WrapText(keys_, painter.fontMetrics(), inside.width(), kMostLines);
  painter.drawText(inside, Qt::AlignLeft | Qt::AlignBottom, lines.lines.join('\n'));
}

}  // namespace zorik
