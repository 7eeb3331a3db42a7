#include "screens/HideAway.h"

#include <QApplication>
#include <QCloseEvent>
#include <QIcon>
#include <QKeyEvent>
#include <QPainter>
#include <QPixmap>
#include <algorithm>

#include "core/Keys.h"

namespace zorik {
namespace {

constexpr std::array<int, 5> kSequence{'Z', 'O', 'R', 'I', 'K'};
constexpr std::array<int, 4> kNeutral{kKeyLeft, kKeyUp, kKeyRight, kKeyDown};

constexpr QColor kHeadColour(0xE4, 0xE4, 0xE4);
constexpr QColor kLineColour(0xC4, 0xC4, 0xC4);

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

// A grey table that nobody looks at twice, as large as title bars and task lists ask for.
QIcon DullIcon() {
  QIcon icon;
  for (const int size : {16, 24, 32, 48, 64, 128}) {
    QPixmap sheet(size, size);
    sheet.fill(Qt::white);
    QPainter painter(&sheet);
    painter.fillRect(0, 0, size, size / 4, kHeadColour);
    painter.fillRect(0, 0, size / 4, size, kHeadColour);
    painter.setPen(kLineColour.darker());
    for (int i = 0; i < 4; ++i) {
      painter.drawLine(0, i * size / 4, size, i * size / 4);
      painter.drawLine(i * size / 4, 0, i * size / 4, size);
    }
    painter.drawRect(0, 0, size - 1, size - 1);
    icon.addPixmap(sheet);
  }
  return icon;
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
  setWindowIcon(DullIcon());
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
  painter.fillRect(0, 0, width(), kRow, kHeadColour);
  painter.fillRect(0, 0, kHead, height(), kHeadColour);
  painter.setPen(kLineColour);
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
