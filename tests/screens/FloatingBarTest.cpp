// The place and the ground of the bars over the cave.
#include <gtest/gtest.h>

#include <QPainter>

#include "screens/BarButton.h"
#include "screens/FloatingBar.h"

namespace zorik {
namespace {

constexpr QColor kRim(200, 100, 50);

// 40 high, at most 300 wide, and of a smaller size below 200.
class Bar : public FloatingBar {
 public:
  explicit Bar(QWidget* parent) : FloatingBar(parent, 40, 300) {}

  using FloatingBar::NewButton;
  using FloatingBar::PlaceAgain;
  using FloatingBar::Scale;
  using FloatingBar::Scaled;

  int needed = 200;
  QList<QSize> arranged;

 protected:
  int NeededWidth() const override { return needed; }
  void Arrange() override { arranged << size(); }
  void paintEvent(QPaintEvent* /*event*/) override {
    QPainter painter(this);
    PaintGround(painter, kRim);
  }
};

class FloatingBarTest : public testing::Test {
 protected:
  FloatingBarTest() { window.resize(800, 600); }

  QWidget window;
  Bar bar{&window};
};

TEST_F(FloatingBarTest, LiesInTheMiddleJustAboveTheLowerEdgeOfItsFrame) {
  bar.PlaceIn({10, 20, 500, 400});
  EXPECT_EQ(bar.geometry(), QRect(110, 20 + 400 - 4 - 40, 300, 40));
  EXPECT_EQ(bar.Scale(), 1);
  EXPECT_EQ(bar.Scaled(17), 17);
  EXPECT_EQ(bar.arranged, QList<QSize>{QSize(300, 40)}) << "its parts are laid out in the size that it has";
}

TEST_F(FloatingBarTest, KeepsFourFromTheSidesOfANarrowFrame) {
  bar.PlaceIn({10, 20, 258, 400});
  EXPECT_EQ(bar.geometry(), QRect(14, 376, 250, 40));
  EXPECT_EQ(bar.Scale(), 1) << "there is still room for all";
}

TEST_F(FloatingBarTest, IsSmallerAsAWholeWhereThereIsNoRoom) {
  bar.PlaceIn({10, 20, 108, 400});
  EXPECT_EQ(bar.Scale(), 0.5);
  EXPECT_EQ(bar.geometry(), QRect(14, 20 + 400 - 4 - 20, 100, 20));
  bar.needed = 400;
  bar.PlaceAgain();
  EXPECT_EQ(bar.Scale(), 0.25) << "it needs more now, at the same place";
  EXPECT_EQ(bar.geometry(), QRect(14, 406, 100, 10));
  EXPECT_EQ(bar.arranged, (QList<QSize>{QSize(100, 20), QSize(100, 10)}));
}

TEST_F(FloatingBarTest, WaitsUnseenAndLeavesTheKeysToTheDog) {
  EXPECT_TRUE(bar.isHidden());
  EXPECT_EQ(bar.focusPolicy(), Qt::NoFocus);
  EXPECT_TRUE(bar.hasMouseTracking());
  const BarButton* const button = bar.NewButton("pause");
  EXPECT_EQ(button->parentWidget(), &bar);
  EXPECT_EQ(bar.findChild<BarButton*>("pause"), button);
}

TEST_F(FloatingBarTest, HasARimOfTwoPixelsRoundADarkGround) {
  bar.PlaceIn({0, 0, 400, 300});
  QImage seen(bar.size(), QImage::Format_ARGB32);
  seen.fill(Qt::transparent);
  bar.render(&seen, {}, {}, QWidget::RenderFlags());
  const QRect all = bar.rect();
  const QColor ground = seen.pixelColor(all.center());
  EXPECT_LT(ground.lightness(), 60);
  EXPECT_GT(ground.alpha(), 200);
  EXPECT_LT(ground.alpha(), 255) << "the cave shows through";
  for (const int edge : {0, 1}) {
    for (const QPoint point : {QPoint(150, edge), QPoint(150, all.bottom() - edge), QPoint(edge, 20),
                               QPoint(all.right() - edge, 20)}) {
      EXPECT_EQ(seen.pixelColor(point), kRim) << point.x() << ' ' << point.y();
    }
  }
  for (const QPoint point :
       {QPoint(150, 2), QPoint(150, all.bottom() - 2), QPoint(2, 20), QPoint(all.right() - 2, 20)}) {
    EXPECT_EQ(seen.pixelColor(point), ground) << point.x() << ' ' << point.y();
  }
  for (const QPoint corner : {all.topLeft(), all.topRight(), all.bottomLeft(), all.bottomRight()})
    EXPECT_EQ(seen.pixelColor(corner).alpha(), 0);
}

}  // namespace
}  // namespace zorik
