#include <gtest/gtest.h>

#include <QPainter>

#include "PaintedRun.h"
#include "skin/Overlay.h"

namespace zorik {
namespace {

// A skin in which the left half of the dog is one colour and the rest of it clear, and a painter that has
// drawn a corridor of 5 x 2 cells with it, 40 pixels each.
class LaidOver : public test::PaintedRun {
 protected:
  static constexpr QRgb kSpaceColour = 0xFF000040, kDogColour = 0xFFF0F000;

  LaidOver() {
    Paint("Default/Game/Space.bmp", kSpaceColour);
    QImage dog = test::Plain(qRgb(0, 0, 0));
    QPainter(&dog).fillRect(0, 0, 40, 80, QColor(kDogColour));
    Save("Default/Game/Dog.bmp", dog);
    Start({"1....", "....."});
    plain_ = painter_->Compose(hra_, {200, 80});
  }

  // The picture with the overlay.
  QImage Over(const Overlay& overlay) {
    QImage image = plain_;
    QPainter painter(&image);
    const LaidOverlay laid = painter_->Lay(overlay);
    touched_ = laid.Touched();
    laid.Paint(painter);
    return image;
  }

  // Whether the image differs from the plain one only there.
  bool DiffersWithin(const QImage& image, const QRegion& part) const {
    for (int y = 0; y < image.height(); ++y) {
      for (int x = 0; x < image.width(); ++x) {
        if (image.pixel(x, y) != plain_.pixel(x, y) && !part.contains(QPoint(x, y))) return false;
      }
    }
    return true;
  }

  QImage plain_;
  QRegion touched_;
};

TEST_F(LaidOver, APictureCoversItsCellButForItsGround) {
  Overlay overlay;
  overlay.sprites.push_back({{2, 1}, {kSetDog, 0, 0}, 1});
  const QImage image = Over(overlay);
  EXPECT_EQ(touched_, QRegion(80, 40, 40, 40));
  EXPECT_EQ(image.pixel(85, 60), kDogColour);
  EXPECT_EQ(image.pixel(110, 60), kSpaceColour) << "the ground is clear";
  EXPECT_TRUE(DiffersWithin(image, touched_));
}

TEST_F(LaidOver, APictureIsMixedWithWhatIsBelowAsItsOpacityTells) {
  Overlay overlay;
  overlay.sprites.push_back({{2, 1}, {kSetDog, 0, 0}, 0.5});
  const QColor mixed = Over(overlay).pixelColor(85, 60);
  EXPECT_NEAR(mixed.red(), 0xF0 / 2, 2);
  EXPECT_NEAR(mixed.blue(), 0x40 / 2, 2);
  overlay.sprites[0].opacity = 0;
  EXPECT_EQ(Over(overlay), plain_);
  EXPECT_TRUE(touched_.isEmpty());
}

TEST_F(LaidOver, AMarkIsADotInItsCell) {
  Overlay overlay;
  overlay.marks.push_back({{4, 0}, Qt::red});
  const QImage image = Over(overlay);
  EXPECT_EQ(touched_, QRegion(160, 0, 40, 40));
  EXPECT_EQ(image.pixel(180, 20), QColor(Qt::red).rgb());
  EXPECT_EQ(image.pixel(165, 5), kSpaceColour);
}

TEST_F(LaidOver, ATrailGoesFromCellToCell) {
  Overlay overlay;
  overlay.trails.push_back({{{1, 0}, {2, 0}, {2, 1}}, Qt::green});
  const QImage image = Over(overlay);
  const QRgb green = QColor(Qt::green).rgb();
  EXPECT_EQ(image.pixel(80, 20), green) << "between the first two";
  EXPECT_EQ(image.pixel(100, 40), green) << "between the last two";
  EXPECT_EQ(image.pixel(60, 60), kSpaceColour);
  EXPECT_TRUE(DiffersWithin(image, touched_));
  EXPECT_EQ(touched_, QRegion(40, 0, 80, 40) + QRect(80, 0, 40, 80));
}

TEST_F(LaidOver, NothingIsPaintedOutsideOfThePicture) {
  Overlay overlay;
  overlay.sprites.push_back({{-1, 0}, {kSetDog, 0, 0}, 1});
  overlay.sprites.push_back({{5, 1}, {kSetDog, 0, 0}, 1});
  overlay.marks.push_back({{2, 9}, Qt::red});
  EXPECT_EQ(Over(overlay), plain_);
  EXPECT_TRUE(touched_.isEmpty());
}

TEST_F(LaidOver, NothingIsTheSameAsNoOverlay) {
  EXPECT_EQ(Over({}), plain_);
  EXPECT_TRUE(LaidOverlay().Touched().isEmpty());
}

// The view of a large cave begins anywhere in a cell.
TEST_F(LaidOver, APictureStandsWhereTheViewHasItsCell) {
  test::Picture large(30, std::string(40, '.'));
  large[14][20] = '1';
  ASSERT_TRUE(PaintCave(hra_, test::CaveTextOf(large), RunKind::Play));
  for (int i = 0; i < 9; ++i) {
    test::Pass(hra_, 1, i < 5 ? "R" : "D");
    plain_ = painter_->Compose(hra_, {507, 299});
    Overlay overlay;
    overlay.sprites.push_back({QPoint(hra_.Dog[1].x, hra_.Dog[1].y), {kSetDog, 0, 0}, 1});
    EXPECT_EQ(Over(overlay), plain_) << "a dog laid over the very same dog is not seen, step " << i;
    EXPECT_FALSE(touched_.isEmpty());
    overlay.sprites[0].cell += QPoint(1, 0);
    EXPECT_NE(Over(overlay), plain_);
  }
}

}  // namespace
}  // namespace zorik
