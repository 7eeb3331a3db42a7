#include "screens/MessageStrip.h"

#include <QFontMetrics>
#include <QPainter>
#include <algorithm>

#include "screens/PlainText.h"
#include "skin/GameFont.h"

namespace zorik {
namespace {

constexpr int kShownFor = 3000;  // milliseconds
constexpr int kPadding = 30;     // at both sides
constexpr int kHeight = 40;
constexpr int kLetters = 20;
constexpr int kMostCharacters = 400;  // a remark in a record may be of any length

}  // namespace

MessageStrip::MessageStrip(QWidget* parent) : QWidget(parent) {
  setFont(GameFont(kLetters));
  setFocusPolicy(Qt::NoFocus);
  setAttribute(Qt::WA_TransparentForMouseEvents);
  tmrMsg_.setSingleShot(true);
  tmrMsg_.setInterval(kShownFor);
  connect(&tmrMsg_, &QTimer::timeout, this, &QWidget::hide);
  hide();
}

void MessageStrip::ShowMessage(const QString& text, QColor colour) {
  text_ = InLines(text, kMostCharacters);
  colour_ = colour;
  Centre();
  raise();
  show();
  update();
  if (!tmrMsg_.isActive()) tmrMsg_.start();
}

void MessageStrip::ShowNotice(const QString& text, QColor colour) {
  if (text.isEmpty()) return Clear();
  ShowMessage(text, colour);
  tmrMsg_.stop();
}

void MessageStrip::SetTop(int top) {
  top_ = top;
  Centre();
}

void MessageStrip::Clear() {
  tmrMsg_.stop();
  hide();
}

void MessageStrip::Centre() {
  const QFontMetrics metrics(font());
  const int room = parentWidget()->width() - 2 * kPadding;
  const int most = (parentWidget()->height() - top_ - kHeight) / metrics.lineSpacing();
  lines_ = WrapText(text_, metrics, std::max(1, room), std::max(1, most));
  const int width = lines_.width + 2 * kPadding;
  const int more = static_cast<int>(lines_.lines.size()) - 1;
  setGeometry((parentWidget()->width() - width) / 2, top_, width, kHeight + more * metrics.lineSpacing());
}

void MessageStrip::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(QColor(0xC9, 0xA2, 0x5C), 2));
  painter.setBrush(QColor(0x20, 0x18, 0x2A, 235));
  painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), 12, 12);
  painter.setPen(colour_);
  painter.drawText(rect(), Qt::AlignCenter, lines_.lines.join('\n'));
}

}  // namespace zorik
