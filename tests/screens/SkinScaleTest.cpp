#include <gtest/gtest.h>

#include <QTest>
#include <algorithm>

#include "screens/PaintedParts.h"
#include "screens/SkinScale.h"

namespace zorik {
namespace {

// How many marks stand side by side in one row of a picture.
int MarksIn(const QImage& image, int row) {
  const QRgb ground = image.pixel(0, 0);
  int marks = 0;
  for (int x = 1; x < image.width(); ++x) {
    if (image.pixel(x, row) != ground && image.pixel(x - 1, row) == ground) ++marks;
  }
  return marks;
}

TEST(SkinScale, HasANotchForEachOfItsValues) {
  for (const int most : {5, 9, 10}) {
    for (const int value : {1, most}) {
      SkinScale scale(1, most, nullptr);
      scale.resize(scale.sizeHint());
      scale.setValue(value);
      const QImage image = scale.grab().toImage();
      int notches = 0;
      for (int y = image.height() / 2; y < image.height(); ++y)
        notches = std::max(notches, MarksIn(image, y));
      EXPECT_EQ(notches, most) << "at " << value;
    }
  }
}

const QColor kGround(Qt::black), kGroove(0, 200, 0), kKnob(100, 60, 40), kInk(Qt::yellow);

// From none to ten in 220 x 30: a value is 20 further than the one before, from 10 on.
class AScale : public testing::Test {
 protected:
  AScale() {
    QPalette colours;
    colours.setColor(QPalette::Window, kGround);
    colours.setColor(QPalette::Mid, kGroove);
    colours.setColor(QPalette::Highlight, kKnob);
    colours.setColor(QPalette::WindowText, kInk);
    scale.setPalette(colours);
    scale.resize(scale.sizeHint());
    scale.setValue(5);
  }

  QColor At(int x, int y) { return scale.grab().toImage().pixelColor(x, y); }

  SkinScale scale{0, 10, nullptr};
};

TEST_F(AScale, HasAGrooveThatIsFilledUpToTheKnob) {
  EXPECT_EQ(scale.size(), QSize(220, 30));
  const QImage seen = scale.grab().toImage();
  for (int y = 13; y < 17; ++y) {
    for (int x = 14; x < 100; ++x) EXPECT_EQ(seen.pixelColor(x, y), kKnob) << x << ' ' << y;
    for (int x = 120; x < 206; ++x) EXPECT_EQ(seen.pixelColor(x, y), kGroove) << x << ' ' << y;
    for (const int end : {9, 210})
      EXPECT_EQ(seen.pixelColor(end, y), kGround) << "the knob hangs over by half";
  }
  for (const int x : {30, 90, 130, 200}) {
    for (const int y : {12, 17}) EXPECT_EQ(seen.pixelColor(x, y), kGround) << x << ' ' << y;
  }
  for (const int y : {13, 16}) {
    EXPECT_LT(seen.pixelColor(10, y).red(), kKnob.red()) << "its ends are round";
    EXPECT_LT(seen.pixelColor(209, y).green(), kGroove.green());
  }
}

TEST_F(AScale, HasItsKnobAtItsValueAndARimRoundIt) {
  for (const int value : {0, 5, 10}) {
    scale.setValue(value);
    const QImage seen = scale.grab().toImage();
    const int middle = 10 + 20 * value;
    for (int x = middle - 5; x < middle + 5; ++x) EXPECT_EQ(seen.pixelColor(x, 14), kKnob);
    const QColor rim = seen.pixelColor(middle, 15 - 9);
    EXPECT_NE(rim, kGround);
    EXPECT_LT(rim.lightness(), kKnob.lightness()) << "it is darker";
    EXPECT_NEAR(seen.pixelColor(middle, 15 + 8).red(), rim.red(), 5);
    EXPECT_NEAR(seen.pixelColor(middle, 15 - 8).red(), rim.red(), 5) << "two pixels";
    EXPECT_EQ(seen.pixelColor(middle, 15 - 10), kGround);
    EXPECT_GT(seen.pixelColor(middle, 15 - 6).red(), rim.red() + 20);
  }
}

TEST_F(AScale, HasItsNotchesBelowItsValues) {
  const QImage seen = scale.grab().toImage();
  for (int x = 0; x < 220; ++x) {
    const bool at = (x + 10) % 20 == 0 || (x + 11) % 20 == 0;
    const bool between = (x + 10) % 20 > 2 && (x + 10) % 20 < 17;
    if (at) {
      EXPECT_GT(seen.pixelColor(x, 27).green(), 150) << x;
      EXPECT_GT(seen.pixelColor(x, 26).green(), 150) << x;
      EXPECT_LT(seen.pixelColor(x, 24).green(), 60) << x;
    }
    if (between) {
      EXPECT_EQ(seen.pixelColor(x, 26), kGround) << x;
    }
  }
}

TEST_F(AScale, LightsUpUnderThePointerAndWhileItIsHeld) {
  EXPECT_EQ(At(110, 14), kKnob);
  scale.setAttribute(Qt::WA_UnderMouse);
  const QColor lit = At(110, 14);
  EXPECT_GT(lit.lightness(), kKnob.lightness());
  scale.setAttribute(Qt::WA_UnderMouse, false);
  EXPECT_EQ(At(110, 14), kKnob);
  scale.setSliderDown(true);
  EXPECT_EQ(At(110, 14), lit);
  EXPECT_TRUE(scale.testAttribute(Qt::WA_Hover));
}

TEST_F(AScale, HasARingInTheColourOfTheWordsWhileKeysMoveIt) {
  EXPECT_LT(At(110, 15 - 9).red(), 100);
  scale.show();
  scale.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&scale));
  scale.setFocus();
  ASSERT_TRUE(scale.hasFocus());
  EXPECT_NEAR(At(110, 15 - 9).red(), kInk.red(), 20);
  EXPECT_NEAR(At(110, 15 - 9).green(), kInk.green(), 20);
}

TEST_F(AScale, GoesBySingleStepsAndStopsAtItsEnds) {
  const std::vector<std::pair<Qt::Key, int>> ways{
      {Qt::Key_Right, 6},    {Qt::Key_Up, 7},   {Qt::Key_Left, 6}, {Qt::Key_Down, 5}, {Qt::Key_PageUp, 6},
      {Qt::Key_PageDown, 5}, {Qt::Key_Home, 0}, {Qt::Key_Left, 0}, {Qt::Key_End, 10}, {Qt::Key_Right, 10}};
  for (const auto& [key, value] : ways) {
    QTest::keyClick(&scale, key);
    EXPECT_EQ(scale.value(), value) << key;
  }
}

TEST_F(AScale, FollowsThePointerWhileTheLeftButtonIsHeld) {
  QTest::mousePress(&scale, Qt::RightButton, {}, QPoint(30, 5));
  EXPECT_EQ(scale.value(), 5);
  for (int value = 0; value <= 10; ++value) {
    for (const int away : {-9, 0, 9}) {
      QTest::mousePress(&scale, Qt::LeftButton, {}, QPoint(10 + 20 * value + away, 5));
      EXPECT_EQ(scale.value(), value) << away;
      EXPECT_TRUE(scale.isSliderDown());
      QTest::mouseRelease(&scale, Qt::RightButton, {}, QPoint(110, 5));
      EXPECT_TRUE(scale.isSliderDown());
      QTest::mouseRelease(&scale, Qt::LeftButton, {}, QPoint(110, 5));
      EXPECT_FALSE(scale.isSliderDown());
    }
  }
}

}  // namespace
}  // namespace zorik
