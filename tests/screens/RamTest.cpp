#include <gtest/gtest.h>

#include <QPaintEvent>
#include <QTest>

#include "screens/BarColours.h"
#include "screens/PaintedParts.h"
#include "screens/Ram.h"

namespace zorik {
namespace {

// A frame of 100 x 80 units with a picture of 90 x 70 in its middle.
class ShownPicture : public testing::Test {
 protected:
  ShownPicture() {
    ram_.resize(100, 80);
    picture_.fill(Qt::green);
    painted_.Watch(ram_);
    ram_.show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&ram_));
    ram_.Show(picture_);
    painted_.Take();
  }

  QRgb Pixel(int x, int y) { return ram_.grab().toImage().pixel(x, y); }

  Ram ram_{nullptr};
  QImage picture_{90, 70, QImage::Format_RGB32};
  test::PaintedParts painted_;
};

TEST_F(ShownPicture, StandsInTheMiddleOfItsMargins) {
  const QRgb green = QColor(Qt::green).rgb(), margin = kBarColour.rgb();
  EXPECT_EQ(Pixel(5, 5), green);
  EXPECT_EQ(Pixel(94, 74), green);
  EXPECT_EQ(Pixel(4, 40), margin);
  EXPECT_EQ(Pixel(95, 40), margin);
  EXPECT_EQ(Pixel(50, 4), margin);
  EXPECT_EQ(Pixel(50, 75), margin);
}

TEST_F(ShownPicture, IsPaintedAsAWholeWhenItIsShownAnew) {
  ram_.Show(picture_);
  EXPECT_EQ(painted_.Take(), QRegion(0, 0, 100, 80));
}

TEST_F(ShownPicture, IsPaintedWhereItHasChanged) {
  const QRegion changed = QRegion(0, 0, 10, 10) + QRect(30, 20, 20, 10);
  ram_.ShowChanges(picture_, changed);
  EXPECT_EQ(painted_.Take(), changed.translated(5, 5));
}

TEST_F(ShownPicture, IsNotPaintedWhenNothingHasChanged) {
  ram_.ShowChanges(picture_, {});
  EXPECT_TRUE(painted_.Take().isEmpty());
}

TEST_F(ShownPicture, ShowsItsChanges) {
  picture_.setPixelColor(10, 10, Qt::red);
  ram_.ShowChanges(picture_, QRect(10, 10, 1, 1));
  EXPECT_EQ(Pixel(15, 15), QColor(Qt::red).rgb());
  EXPECT_EQ(Pixel(16, 15), QColor(Qt::green).rgb());
}

TEST_F(ShownPicture, IsPaintedAsAWholeWhenItIsAnotherOne) {
  const QImage other = picture_.copy();
  ram_.ShowChanges(other, QRect(0, 0, 1, 1));
  EXPECT_EQ(painted_.Take(), QRegion(0, 0, 100, 80));
  picture_ = QImage(80, 70, QImage::Format_RGB32);
  ram_.Show(other);
  ram_.Show(picture_);
  painted_.Take();
  picture_ = QImage(60, 60, QImage::Format_RGB32);
  ram_.ShowChanges(picture_, QRect(0, 0, 1, 1));
  EXPECT_EQ(painted_.Take(), QRegion(0, 0, 100, 80)) << "it has another size";
}

}  // namespace
}  // namespace zorik
