// The flash with which the finish opens.
#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QScreen>
#include <QTest>

#include "screens/FlashCover.h"
#include "screens/PaintedParts.h"

namespace zorik {
namespace {

class FlashCoverTest : public testing::Test {
 protected:
  FlashCoverTest() {
    window.resize(300, 200);
    flash = new FlashCover(&window);
    part = new QWidget(&window);
    part->setGeometry(window.rect());
    part->raise();
    window.show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&window));
  }

  QWidget window;
  FlashCover* flash;
  QWidget* part;
};

TEST_F(FlashCoverTest, CoversAllOfTheWindowInWhiteForOnePictureOfTheScreen) {
  EXPECT_FALSE(flash->isVisible());
  test::PaintedParts painted;
  painted.Watch(*flash);
  QElapsedTimer clock;
  clock.start();
  flash->ShowOnce();
  EXPECT_TRUE(flash->isVisible());
  EXPECT_TRUE(painted.Take().contains(window.rect().center())) << "it is seen at once";
  EXPECT_EQ(flash->geometry(), window.rect());
  EXPECT_EQ(window.childAt(150, 100), flash) << "above all else";
  const QImage seen = flash->grab().toImage();
  for (const QPoint point :
       {QPoint(0, 0), QPoint(299, 0), QPoint(0, 199), QPoint(299, 199), QPoint(150, 100)})
    EXPECT_EQ(seen.pixelColor(point), QColor(Qt::white));
  ASSERT_TRUE(QTest::qWaitFor([this] { return !flash->isVisible(); }));
  EXPECT_GE(clock.elapsed(), static_cast<qint64>(1000 / window.screen()->refreshRate()) - 1);
  flash->ShowOnce();
  EXPECT_TRUE(flash->isVisible()) << "each time anew";
}

TEST_F(FlashCoverTest, FollowsTheSizeOfTheWindowWhileItShows) {
  flash->ShowOnce();
  window.resize(400, 250);
  flash->Fit();
  EXPECT_EQ(flash->geometry(), window.rect());
  ASSERT_TRUE(QTest::qWaitFor([this] { return !flash->isVisible(); }));
  const QRect before = flash->geometry();
  window.resize(500, 350);
  flash->Fit();
  EXPECT_FALSE(flash->isVisible());
  EXPECT_EQ(flash->geometry(), before);
  flash->ShowOnce();
  EXPECT_EQ(flash->geometry(), window.rect());
}

}  // namespace
}  // namespace zorik
