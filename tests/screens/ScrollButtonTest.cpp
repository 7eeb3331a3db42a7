#include <gtest/gtest.h>

#include <QSignalSpy>
#include <QTest>

#include "screens/ScrollButton.h"
#include "screens/TestSkin.h"

namespace zorik {
namespace {

class ScrollButtonTest : public testing::TestWithParam<Qt::Orientation> {
 protected:
  ScrollButtonTest() {
    button_.SetPicture(test::Strips(test::kLooks, QSize(30, 30)));
    button_.show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&button_));
  }

  // A place so far from the end at which the button scrolls back.
  QPoint At(int along) const { return GetParam() == Qt::Vertical ? QPoint(20, along) : QPoint(along, 20); }

  QList<int> Steps() const {
    QList<int> steps;
    for (const auto& arguments : stepped_) steps.push_back(arguments.front().toInt());
    return steps;
  }

  ScrollButton button_{GetParam(), nullptr};
  QSignalSpy stepped_{&button_, &ScrollButton::Stepped};
};

TEST_P(ScrollButtonTest, ScrollsBackByItsFirstHalfAndOnByTheOther) {
  for (const int along : {0, 14, 15, 29}) QTest::mouseClick(&button_, Qt::LeftButton, {}, At(along));
  EXPECT_EQ(Steps(), QList<int>({-1, -1, 1, 1}));
}

TEST_P(ScrollButtonTest, GoesOnWhileItIsHeld) {
  QTest::mousePress(&button_, Qt::LeftButton, {}, At(2));
  EXPECT_TRUE(QTest::qWaitFor([this] { return stepped_.size() >= 4; }, 5000));
  QTest::mouseRelease(&button_, Qt::LeftButton, {}, At(2));
  EXPECT_FALSE(Steps().contains(1));
  const auto count = stepped_.size();
  QTest::qWait(150);
  EXPECT_EQ(stepped_.size(), count);
}

TEST_P(ScrollButtonTest, DoesNothingWhenThePointerSlidOff) {
  QTest::mousePress(&button_, Qt::LeftButton, {}, At(2));
  QTest::mouseMove(&button_, QPoint(200, 200));
  QTest::mouseRelease(&button_, Qt::LeftButton, {}, QPoint(200, 200));
  EXPECT_EQ(stepped_.size(), 0);
}

INSTANTIATE_TEST_SUITE_P(BothWays, ScrollButtonTest, testing::Values(Qt::Vertical, Qt::Horizontal),
                         [](const auto& name) {
                           return name.param == Qt::Vertical ? "Vertical" : "Horizontal";
                         });

}  // namespace
}  // namespace zorik
