#include <gtest/gtest.h>

#include <QFontMetrics>
#include <QImage>
#include <cmath>
#include <optional>
#include <set>

#include "skin/DogStrip.h"
#include "skin/DrText.h"
#include "skin/GameFont.h"
#include "skin/HslColor.h"

namespace zorik {
namespace {

constexpr int kHue = 120;
constexpr int kDogs = 3;
constexpr QRgb kNothing = 0;

QRgb ColourOf(int lightness) {
  const std::uint32_t colour = HslColor(kHue, 255, lightness);
  return qRgb(static_cast<int>(colour & 255U), static_cast<int>(colour >> 8U & 255U),
              static_cast<int>(colour >> 16U & 255U));
}

class DogStripTest : public testing::Test {
 protected:
  DogStripTest() { strip_.Open(kDogs, kHue); }

  int Slot() const { return strip_.Width() / (kDogs + 1); }

  QImage Painted(int ratio = 1) const {
    QImage image(strip_.Width() * ratio, kStripHeight * ratio, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(ratio);
    image.fill(kNothing);
    QPainter painter(&image);
    strip_.Paint(painter, {0, 0});
    painter.end();
    return image.convertToFormat(QImage::Format_ARGB32);
  }

  static QRect Drawn(const QImage& image) {
    QRect drawn;
    for (int y = 0; y < image.height(); ++y) {
      for (int x = 0; x < image.width(); ++x) {
        if (image.pixel(x, y) != kNothing) drawn |= QRect(x, y, 1, 1);
      }
    }
    return drawn;
  }

  static std::set<QRgb> Colours(const QImage& image) {
    std::set<QRgb> colours;
    for (int y = 0; y < image.height(); ++y) {
      for (int x = 0; x < image.width(); ++x) colours.insert(image.pixel(x, y));
    }
    return colours;
  }

  DogStrip strip_;
};

TEST_F(DogStripTest, HasASlotForEachNumberFromZeroOn) {
  const int width = strip_.Width();
  strip_.Open(9, kHue);
  EXPECT_EQ(strip_.Width() * 4, width * 10);
  strip_.Open(1, kHue);
  EXPECT_EQ(strip_.Width() * 2, width);
}

TEST_F(DogStripTest, HasSlotsAsWideAsFourteenInTheLargestFontThatFits) {
  QFont font = GameFont(60);
  font.setBold(true);
  int size = 60;
  while (QFontMetrics(font).height() > 29) font.setPixelSize(--size);
  EXPECT_EQ(Slot(), QFontMetrics(font).horizontalAdvance("14"));
}

TEST_F(DogStripTest, IsEmptyBeforeAnyNumberIsDrawn) {
  EXPECT_TRUE(Drawn(Painted()).isNull());
}

TEST_F(DogStripTest, DrawsANumberInItsSlotAndLeavesTheOthersEmpty) {
  strip_.DrawDogN(2, 0);
  const QRect drawn = Drawn(Painted());
  ASSERT_FALSE(drawn.isNull());
  EXPECT_GE(drawn.left(), 2 * Slot() - 1);
  EXPECT_LE(drawn.right(), 3 * Slot());
}

// Which figure is most like what stands in a slot.
int FigureIn(const QImage& slot, const QFont& font, QRgb colour) {
  const auto unlike = [&](int figure) {
    QImage image(slot.size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(kNothing);
    QPainter painter(&image);
    painter.setFont(font);
    DrText(painter, image.rect(), QString::number(figure), 0);
    painter.end();
    int pixels = 0;
    for (int y = 0; y < slot.height(); ++y) {
      for (int x = 0; x < slot.width(); ++x)
        pixels += (qAlpha(image.pixel(x, y)) > 127) != (slot.pixel(x, y) == colour) ? 1 : 0;
    }
    return pixels;
  };
  int best = 0;
  for (int figure = 1; figure <= 9; ++figure) best = unlike(figure) < unlike(best) ? figure : best;
  return best;
}

TEST_F(DogStripTest, DrawsEachNumberInTheSlotOfThatNumber) {
  strip_.Open(9, kHue);
  for (int n = 0; n <= 9; ++n) strip_.DrawDogN(n, 0);
  QFont font = GameFont(60);
  font.setBold(true);
  int size = 60;
  while (QFontMetrics(font).height() > kStripHeight) font.setPixelSize(--size);
  const QImage strip = Painted();
  const int slot = strip_.Width() / 10;
  for (int n = 0; n <= 9; ++n)
    EXPECT_EQ(FigureIn(strip.copy(n * slot, 0, slot, kStripHeight), font, ColourOf(191)), n);
}

TEST_F(DogStripTest, DrawsTheSwarmAsZero) {
  strip_.DrawDogN(0, 1);
  EXPECT_LT(Drawn(Painted()).right(), Slot());
}

TEST_F(DogStripTest, ShowsTheSteeredBrightTheWaitingPlainAndTheDeadDim) {
  constexpr int kLightness[3][3] = {{31, 127, 191}, {0, 63, 127}, {0, 31, 63}};
  for (int state = 0; state < 3; ++state) {
    strip_.DrawDogN(1, state);
    const std::set<QRgb> colours = Colours(Painted(4));
    for (const int lightness : kLightness[state]) {
      EXPECT_TRUE(colours.contains(ColourOf(lightness))) << "state " << state << " lightness " << lightness;
    }
  }
}

TEST_F(DogStripTest, DrawsANumberAnewOverItsOldState) {
  strip_.DrawDogN(1, 0);
  strip_.DrawDogN(1, 2);
  const std::set<QRgb> colours = Colours(Painted(4));
  EXPECT_TRUE(colours.contains(ColourOf(63)));
  EXPECT_FALSE(colours.contains(ColourOf(191)));
}

TEST_F(DogStripTest, PassesOverNumbersAndStatesThatDoNotExist) {
  strip_.DrawDogN(-1, 0);
  strip_.DrawDogN(4, 0);
  strip_.DrawDogN(1, 3);
  strip_.DrawDogN(1, -1);
  EXPECT_TRUE(Drawn(Painted()).isNull());
}

TEST_F(DogStripTest, IsEmptyAgainWhenACaveOpens) {
  strip_.DrawDogN(1, 0);
  strip_.Open(kDogs, kHue);
  EXPECT_TRUE(Drawn(Painted()).isNull());
}

TEST_F(DogStripTest, IsFinerOnADenseScreen) {
  strip_.DrawDogN(3, 0);
  const QRect plain = Drawn(Painted()), dense = Drawn(Painted(2));
  EXPECT_NEAR(dense.left(), plain.left() * 2, 2);
  EXPECT_NEAR(dense.width(), plain.width() * 2, 4);
  EXPECT_NEAR(dense.height(), plain.height() * 2, 4);
}

TEST_F(DogStripTest, KeepsItsNumbersWithinItsHeight) {
  for (int n = 0; n <= kDogs; ++n) strip_.DrawDogN(n, 0);
  const QRect drawn = Drawn(Painted());
  EXPECT_GT(drawn.top(), 0);
  EXPECT_LT(drawn.bottom(), kStripHeight - 1);
}

TEST(DrText, WithoutAnOutlineHasOnePlace) {
  EXPECT_EQ(DrTextPlaces({10, 20, 30, 40}, 0), (std::vector<QRectF>{{10, 20, 30, 40}}));
}

TEST(DrText, WithAnOutlineHasFourPlacesOfWhichOnlyLeftAndTopMove) {
  const auto edges = [](qreal left, qreal top) { return QRectF(QPointF(left, top), QPointF(40, 60)); };
  EXPECT_EQ(DrTextPlaces({10, 20, 30, 40}, 2),
            (std::vector<QRectF>{edges(8, 18), edges(12, 18), edges(12, 22), edges(8, 22)}));
  EXPECT_EQ(DrTextPlaces({10, 20, 30, 40}, 1),
            (std::vector<QRectF>{edges(9, 19), edges(11, 19), edges(11, 21), edges(9, 21)}));
}

// The middle of what is drawn of a text, counted in pixels of a fine image.
QPointF MiddleOf(const QRectF& place, int outline) {
  constexpr int kFine = 8;
  QImage image(100 * kFine, 60 * kFine, QImage::Format_ARGB32_Premultiplied);
  image.setDevicePixelRatio(kFine);
  image.fill(Qt::transparent);
  QPainter painter(&image);
  painter.setFont(GameFont(20));
  painter.setPen(Qt::black);
  DrText(painter, place, "0", outline);
  painter.end();
  QRect drawn;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      if (qAlpha(image.pixel(x, y)) > 127) drawn |= QRect(x, y, 1, 1);
    }
  }
  return QPointF(drawn.x() + drawn.width() / 2.0, drawn.y() + drawn.height() / 2.0) / kFine;
}

TEST(DrText, IsInTheMiddleOfItsPlace) {
  const QPointF middle = MiddleOf({10, 10, 60, 40}, 0);
  EXPECT_NEAR(middle.x(), 40, 0.5);
  EXPECT_NEAR(middle.y(), 30, 2.5) << "a figure has no part below the line";
}

TEST(DrText, MovesByHalfOfAMovedEdge) {
  const QPointF still = MiddleOf({10, 10, 60, 40}, 0), moved = MiddleOf({12, 14, 58, 36}, 0);
  EXPECT_NEAR(moved.x() - still.x(), 1, 0.2);
  EXPECT_NEAR(moved.y() - still.y(), 2, 0.2);
}

TEST(DrText, HasItsOutlineOnAllSides) {
  const QPointF still = MiddleOf({10, 10, 60, 40}, 0), outlined = MiddleOf({10, 10, 60, 40}, 2);
  EXPECT_NEAR(outlined.x(), still.x(), 0.2);
  EXPECT_NEAR(outlined.y(), still.y(), 0.2);
}

TEST_F(DogStripTest, HasNoSlotBeyondItsLastDog) {
  EXPECT_FALSE(strip_.DrawDogN(kDogs + 1, 1));
  EXPECT_FALSE(strip_.DrawDogN(-1, 1));
  EXPECT_TRUE(strip_.DrawDogN(kDogs, 1));
  EXPECT_FALSE(strip_.DrawDogN(kDogs, 1)) << "nothing new";
}

TEST_F(DogStripTest, KnowsNoOtherUnitsAndNoOtherStates) {
  ASSERT_TRUE(strip_.DrawDogN(1, 0));
  for (const int state : {-1, 3, 100}) {
    EXPECT_FALSE(strip_.DrawDogN(1, state)) << state;
    EXPECT_EQ(strip_.State(1), 0) << state;
  }
  for (const int unit : {-1, kDogs + 1}) {
    EXPECT_FALSE(strip_.DrawDogN(unit, 0)) << unit;
    EXPECT_EQ(strip_.State(unit), std::nullopt) << unit;
  }
}

}  // namespace
}  // namespace zorik
