#include "screens/HideAway.h"

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QPainter>
#include <algorithm>

#include "core/Keys.h"
#include "screens/PlainText.h"

namespace zorik {
namespace {

constexpr std::array<int, 5> kSequence{'Z', 'O', 'R', 'I', 'K'};
constexpr std::array<int, 4> kNeutral{kKeyLeft, kKeyUp, kKeyRight, kKeyDown};

constexpr QSize kSize(420, 260);
constexpr int kRow = 20;
constexpr int kColumn = 84;
constexpr int kHead = 28;  // width of the column at the left

int CodeOf(const QKeyEvent& event) {
  switch (event.key()) {
    case Qt::Key_Left:
      return kKeyLeft;
    case Qt::Key_Up:
      return kKeyUp;
    case Qt::Key_Right:
      return kKeyRight;
    case Qt::Key_Down:
      return kKeyDown;
    default:
      return event.key();
  }
}

}  // namespace

bool HideAwaySequence::Press(int key) {
  if (std::find(kNeutral.begin(), kNeutral.end(), key) != kNeutral.end()) return false;
  next_ = key == kSequence[next_] ? next_ + 1 : 0;
  if (next_ < kSequence.size()) return false;
  next_ = 0;
  return true;
}

HideAway::HideAway() {
  setObjectName("hideAway");
  setAttribute(Qt::WA_OpaquePaintEvent);
  SetTitle(*this, QString(QChar(0x2014)));
  resize(kSize);
}

void HideAway::keyPressEvent(QKeyEvent* event) {
  if (!event->isAutoRepeat() && sequence_.Press(CodeOf(*event))) emit Found();
}

void HideAway::closeEvent(QCloseEvent* event) {
  if (qApp->isSavingSession()) return;
  event->ignore();
  emit Found();
}

void HideAway::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.fillRect(rect(), Qt::white);
  painter.fillRect(0, 0, width(), kRow, QColor(0xE4, 0xE4, 0xE4));
  painter.fillRect(0, 0, kHead, height(), QColor(0xE4, 0xE4, 0xE4));
  painter.setPen(QColor(0xC4, 0xC4, 0xC4));
  for (int y = kRow; y < height(); y += kRow) painter.drawLine(0, y, width(), y);
  for (int x = kHead; x < width(); x += kColumn) painter.drawLine(x, 0, x, height());
  painter.setPen(QColor(0x50, 0x50, 0x50));
  for (int i = 0; kHead + i * kColumn < width() && i < 26; ++i) {
    painter.drawText(QRect(kHead + i * kColumn, 0, kColumn, kRow), Qt::AlignCenter, QString(QChar('A' + i)));
  }
  for (int i = 1; i * kRow < height(); ++i) {
    painter.drawText(QRect(0, i * kRow, kHead, kRow), Qt::AlignCenter, QString::number(i));
  }
}

}  // namespace zorik
