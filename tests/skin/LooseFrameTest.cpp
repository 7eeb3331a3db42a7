#include <gtest/gtest.h>

#include <QColor>
#include <array>

#include "skin/LooseFrame.h"

namespace zorik {
namespace {

// What of a byte is left below a colour of this opacity, rounded to the nearest.
int LeftOf(int byte, int opacity) {
  return (byte * (255 - opacity) * 2 + 255) / (2 * 255);
}

QRgb Over(QRgb over, QRgb under) {
  const int a = qAlpha(over);
  return qRgba(qRed(over) + LeftOf(qRed(under), a), qGreen(over) + LeftOf(qGreen(under), a),
               qBlue(over) + LeftOf(qBlue(under), a), a + LeftOf(qAlpha(under), a));
}

QImage Ground(QSize size) {
  QImage ground(size, QImage::Format_ARGB32_Premultiplied);
  for (int y = 0; y < size.height(); ++y) {
    for (int x = 0; x < size.width(); ++x)
      ground.setPixel(x, y, qRgba(x * 7 % 256, 255 - x * 3 % 256, (x + y * 31) % 256, 255));
  }
  return ground;
}

// A frame whose columns are of every opacity there is, each as bright as it can be.
QImage Veil() {
  QImage veil(256, 4, QImage::Format_ARGB32_Premultiplied);
  for (int x = 0; x < 256; ++x) {
    const std::array<QRgb, 4> rows{qRgba(x, x, x, x), qRgba(0, 0, 0, x), qRgba(x, x / 2, 0, x),
                                   qRgba(0, x, x / 3, x)};
    for (int y = 0; y < 4; ++y) veil.setPixel(x, y, rows[static_cast<std::size_t>(y)]);
  }
  return veil;
}

TEST(LooseFrame, LetsAsMuchShineThroughAsItIsClear) {
  const QImage veil = Veil(), ground = Ground({256, 4});
  QImage target = ground;
  LooseFrame(veil).LayOver(PixelsOf(target, {}), {}, target.rect());
  for (int y = 0; y < 4; ++y) {
    for (int x = 0; x < 256; ++x)
      ASSERT_EQ(target.pixel(x, y), Over(veil.pixel(x, y), ground.pixel(x, y))) << x << " " << y;
  }
}

TEST(LooseFrame, IsLaidAtItsPlaceAndOnlyInsideTheClip) {
  QImage frame(6, 4, QImage::Format_ARGB32_Premultiplied);
  frame.fill(Qt::transparent);
  // Two solid runs and one half clear in each line, with clear pixels between.
  for (int y = 0; y < 4; ++y) {
    frame.setPixel(0, y, 0xFF102030);
    frame.setPixel(2, y, 0xFF405060);
    frame.setPixel(3, y, 0x80203040);
    frame.setPixel(5, y, 0xFF708090);
  }
  const QImage ground = Ground({20, 12});
  const QPoint at(7, 5);
  for (const QRect& clip :
       {QRect(0, 0, 20, 12), QRect(9, 6, 2, 2), QRect(7, 5, 1, 1), QRect(12, 8, 8, 4), QRect(0, 0, 7, 12)}) {
    QImage target = ground;
    LooseFrame(frame).LayOver(PixelsOf(target, {}), at, clip);
    for (int y = 0; y < 12; ++y) {
      for (int x = 0; x < 20; ++x) {
        const bool over = frame.rect().contains(x - 7, y - 5) && clip.contains(x, y);
        const QRgb due = over ? Over(frame.pixel(x - 7, y - 5), ground.pixel(x, y)) : ground.pixel(x, y);
        ASSERT_EQ(target.pixel(x, y), due) << x << " " << y;
      }
    }
  }
}

TEST(LooseFrame, CountsItsMemory) {
  EXPECT_TRUE(LooseFrame().IsNull());
  const LooseFrame frame(Veil());
  EXPECT_FALSE(frame.IsNull());
  EXPECT_EQ(frame.Bytes(), 256 * 4 * 4);
}

}  // namespace
}  // namespace zorik
