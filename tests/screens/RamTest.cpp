#include <gtest/gtest.h>

#include <QPaintEvent>
#include <QTest>

#include "screens/BarColours.h"
#include "screens/PaintedParts.h"
#include "screens/Ram.h"

namespace zorik {
namespace {

// An image, as a picture that is painted in parts.
class Painted : public PartPainter {
 public:
  Painted() { image.fill(Qt::green); }

  QSize Size() const override { return image.size(); }
  void PaintPart(const QRegion& part, QImage& target, QPoint corner) override {
    for (const QRect& wanted : part) {
      const QRect seen = wanted & image.rect() & target.rect().translated(-corner);
      for (int y = seen.top(); y <= seen.bottom(); ++y) {
        for (int x = seen.left(); x <= seen.right(); ++x)
          target.setPixel(corner + QPoint(x, y), image.pixel(x, y));  // the frame's painter is at work there
      }
    }
  }

  QImage image{90, 70, QImage::Format_RGB32};
};

// A frame of 100 x 80 units with a picture of 90 x 70 in its middle.
class ShownPicture : public testing::Test {
 protected:
  ShownPicture() {
    ram_.resize(100, 80);
    painted_.Watch(ram_);
    ram_.show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&ram_));
    ram_.Show(picture_);
    painted_.Take();
  }

  QRgb Pixel(int x, int y) { return ram_.grab().toImage().pixel(x, y); }

  Ram ram_{nullptr};
  Painted picture_;
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
  picture_.image.setPixelColor(10, 10, Qt::red);
  ram_.ShowChanges(picture_, QRect(10, 10, 1, 1));
  EXPECT_EQ(Pixel(15, 15), QColor(Qt::red).rgb());
  EXPECT_EQ(Pixel(16, 15), QColor(Qt::green).rgb());
}

TEST_F(ShownPicture, IsPaintedAsAWholeWhenItIsAnotherOne) {
  Painted other;
  ram_.ShowChanges(other, QRect(0, 0, 1, 1));
  EXPECT_EQ(painted_.Take(), QRegion(0, 0, 100, 80));
  picture_.image = QImage(80, 70, QImage::Format_RGB32);
  ram_.Show(other);
  ram_.Show(picture_);
  painted_.Take();
  picture_.image = QImage(60, 60, QImage::Format_RGB32);
  ram_.ShowChanges(picture_, QRect(0, 0, 1, 1));
  EXPECT_EQ(painted_.Take(), QRegion(0, 0, 100, 80)) << "it has another size";
}

TEST_F(ShownPicture, CanBeCopied) {
  picture_.image.setPixelColor(10, 10, Qt::red);
  EXPECT_EQ(ram_.Picture(), picture_.image);
  EXPECT_TRUE(Ram(nullptr).Picture().isNull()) << "there is none";
}

TEST_F(ShownPicture, ShowsItsChangesWhereItCannotBePaintedInPlace) {
  const auto onAnother = [this] {
    QImage drawn(100, 80, QImage::Format_RGB888);  // pixels of another kind
    ram_.render(&drawn);
    return drawn;
  };
  EXPECT_EQ(onAnother().pixel(15, 15), QColor(Qt::green).rgb());
  picture_.image.setPixelColor(10, 10, Qt::red);
  picture_.image.setPixelColor(50, 10, Qt::red);
  ram_.ShowChanges(picture_, QRect(10, 10, 1, 1));
  EXPECT_EQ(onAnother().pixel(15, 15), QColor(Qt::red).rgb());
  EXPECT_EQ(onAnother().pixel(55, 15), QColor(Qt::green).rgb()) << "nobody said that this has changed";
  ram_.Show(picture_);
  EXPECT_EQ(onAnother().pixel(55, 15), QColor(Qt::red).rgb());
}

// Over the same frame, things of a skin without pictures: a dot in the cell of 10 pixels at (3, 2).
class OverlaidPicture : public ShownPicture {
 protected:
  LaidOverlay Dot(int x, int y) {
    Overlay overlay;
    overlay.marks.push_back({{x, y}, Qt::red});
    return {overlay, {0, 0, 9 * kTileSize, 7 * kTileSize}, {10, 10}, tiles_};
  }

  TileSets tiles_;
};

TEST_F(OverlaidPicture, ShowsWhatLiesOverItWithItsNextChanges) {
  ram_.SetOverlay(Dot(3, 2));
  EXPECT_TRUE(painted_.Take().isEmpty());
  ram_.ShowChanges(picture_, QRect(0, 0, 4, 4));
  EXPECT_EQ(painted_.Take(), QRegion(5, 5, 4, 4) + QRect(35, 25, 10, 10));
  EXPECT_EQ(Pixel(40, 30), QColor(Qt::red).rgb());
  EXPECT_EQ(Pixel(36, 26), QColor(Qt::green).rgb());
  EXPECT_EQ(ram_.Picture(), picture_.image) << "the picture itself is as it was";
}

TEST_F(OverlaidPicture, IsPaintedWhereSomethingLayAndWhereItLiesNow) {
  ram_.SetOverlay(Dot(3, 2));
  ram_.ShowChanges(picture_, {});
  painted_.Take();
  ram_.SetOverlay(Dot(5, 6));
  ram_.ShowChanges(picture_, {});
  EXPECT_EQ(painted_.Take(), QRegion(35, 25, 10, 10) + QRect(55, 65, 10, 10));
  EXPECT_EQ(Pixel(40, 30), QColor(Qt::green).rgb()) << "it is gone from there";
  EXPECT_EQ(Pixel(60, 70), QColor(Qt::red).rgb());
  painted_.Take();  // a look at a pixel paints all of it
  ram_.SetOverlay({});
  ram_.ShowChanges(picture_, {});
  EXPECT_EQ(painted_.Take(), QRegion(55, 65, 10, 10));
  EXPECT_EQ(Pixel(60, 70), QColor(Qt::green).rgb());
  painted_.Take();
  ram_.SetOverlay({});
  ram_.ShowChanges(picture_, {});
  EXPECT_TRUE(painted_.Take().isEmpty()) << "nothing lies there any more";
}

TEST_F(OverlaidPicture, ShowsWhatLiesOverItWhereItCannotBePaintedInPlace) {
  ram_.SetOverlay(Dot(3, 2));
  ram_.ShowChanges(picture_, {});
  QImage drawn(100, 80, QImage::Format_RGB888);  // pixels of another kind
  ram_.render(&drawn);
  EXPECT_EQ(drawn.pixel(40, 30), QColor(Qt::red).rgb());
  EXPECT_EQ(drawn.pixel(50, 30), QColor(Qt::green).rgb());
}

}  // namespace
}  // namespace zorik
