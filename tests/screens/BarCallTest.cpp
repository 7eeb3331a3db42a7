// When a bar over the cave comes and leaves.
#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QMouseEvent>
#include <QSignalSpy>
#include <QTest>
#include <QWidget>

#include "screens/BarCall.h"

namespace zorik {
namespace {

class BarCallTest : public testing::Test {
 protected:
  static void Point(QWidget& widget, QPoint at) {
    QMouseEvent move(QEvent::MouseMove, at, widget.mapToGlobal(at), Qt::NoButton, Qt::NoButton, {});
    QApplication::sendEvent(&widget, &move);
  }

  QWidget window;
  QWidget* part = new QWidget(&window);
  QWidget* inner = new QWidget(part);
  bool used = false;
  BarCall call{window, [this] { return used; }};
  QSignalSpy moved{&call, &BarCall::MouseMoved};
  QSignalSpy leaves{&call, &BarCall::Leaves};
};

TEST_F(BarCallTest, HearsOfEachMoveOverAnyPartOfTheWindow) {
  int moves = 0;
  for (QWidget* const widget : {&window, part, inner}) {
    EXPECT_TRUE(widget->hasMouseTracking()) << "also while no button is held";
    Point(*widget, {10 + moves, 20});
    EXPECT_EQ(moved.size(), ++moves);
    Point(*widget, {10 + moves - 1, 20});
    EXPECT_EQ(moved.size(), moves) << "it has not moved";
  }
  QTest::mouseClick(&window, Qt::LeftButton, {}, QPoint(70, 70));
  QTest::keyClick(&window, Qt::Key_A);
  EXPECT_EQ(moved.size(), moves);
  EXPECT_EQ(leaves.size(), 0);
}

TEST_F(BarCallTest, LeavesOnceWhenItsTimeIsOver) {
  QElapsedTimer clock;
  clock.start();
  call.Stay(200);
  ASSERT_TRUE(QTest::qWaitFor([this] { return !leaves.isEmpty(); }));
  EXPECT_GE(clock.elapsed(), 190);
  QTest::qWait(500);  // twice that and more
  EXPECT_EQ(leaves.size(), 1);
}

TEST_F(BarCallTest, StaysAsLongAsTheLongestWish) {
  QElapsedTimer clock;
  clock.start();
  call.Stay(600);
  call.Stay(1);
  ASSERT_TRUE(QTest::qWaitFor([this] { return !leaves.isEmpty(); }));
  EXPECT_GE(clock.elapsed(), 500);
}

TEST_F(BarCallTest, StaysWhileItIsInUse) {
  used = true;
  call.Stay(1);
  EXPECT_FALSE(QTest::qWaitFor([this] { return !leaves.isEmpty(); }, 300));
  used = false;
  EXPECT_TRUE(QTest::qWaitFor([this] { return !leaves.isEmpty(); }, 3 * BarCall::kStays))
      << "and leaves later";
}

TEST_F(BarCallTest, DoesNotLeaveOnceItIsStopped) {
  call.Stay(1);
  call.Stop();
  EXPECT_FALSE(QTest::qWaitFor([this] { return !leaves.isEmpty(); }, 200));
}

}  // namespace
}  // namespace zorik
