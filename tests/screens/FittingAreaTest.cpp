// A part of a window that is scrolled where there is no room for all of it.
#include <gtest/gtest.h>

#include <QLabel>
#include <QScrollBar>
#include <QTest>
#include <QVBoxLayout>

#include "screens/FittingArea.h"

namespace zorik {
namespace {

// A window as large as what it holds: 10 around an area of 200 x 300 with a row of 40 below it.
class FittingAreaTest : public testing::Test {
 protected:
  FittingAreaTest() {
    auto* const inside = new QVBoxLayout(content);
    inside->setContentsMargins(0, 0, 0, 0);
    part->setFixedSize(200, 300);
    inside->addWidget(part);
    area = new FittingArea(&window, content);
    auto* const rows = new QVBoxLayout(&window);
    rows->setContentsMargins(10, 10, 10, 10);
    rows->setSpacing(0);
    rows->setSizeConstraint(QLayout::SetFixedSize);
    rows->addWidget(area);
    row->setFixedHeight(40);
    rows->addWidget(row);
  }

  QSize Fitted(QSize room) {
    area->Fit(room);
    window.adjustSize();
    return window.size();
  }
  int BarWidth() const { return area->verticalScrollBar()->sizeHint().width(); }

  QWidget window;
  QWidget* content = new QWidget;
  QLabel* part = new QLabel;
  QLabel* row = new QLabel(&window);
  FittingArea* area;
};

TEST_F(FittingAreaTest, IsAsLargeAsWhatItHoldsWhereThereIsRoom) {
  EXPECT_EQ(area->sizeHint(), QSize(200, 300));
  EXPECT_FALSE(area->IsCut());
  for (const QSize room : {QSize(1000, 1000), QSize(220, 360)}) {
    EXPECT_EQ(Fitted(room), QSize(220, 360));
    EXPECT_FALSE(area->IsCut());
  }
}

TEST_F(FittingAreaTest, IsLowerWithABarBesideItWhereThereIsLessRoom) {
  for (const int height : {359, 200}) {
    EXPECT_EQ(Fitted({1000, height}), QSize(220 + BarWidth(), height));
    EXPECT_FALSE(area->IsCut());
  }
  window.show();
  EXPECT_TRUE(QTest::qWaitForWindowExposed(&window));
  EXPECT_TRUE(area->verticalScrollBar()->isVisible());
  EXPECT_FALSE(area->horizontalScrollBar()->isVisible());
}

TEST_F(FittingAreaTest, TellsWhenItIsCutAtItsSides) {
  EXPECT_EQ(Fitted({219, 1000}), QSize(219, 360));
  EXPECT_TRUE(area->IsCut());
  Fitted({220, 1000});
  EXPECT_FALSE(area->IsCut());
  Fitted({220 + BarWidth() - 1, 200});
  EXPECT_TRUE(area->IsCut()) << "the bar takes room, too";
  Fitted({220 + BarWidth(), 200});
  EXPECT_FALSE(area->IsCut());
}

TEST_F(FittingAreaTest, TakesWhatItHoldsForWhatItIsNow) {
  Fitted({1000, 200});
  part->setFixedSize(150, 100);
  EXPECT_EQ(Fitted({1000, 1000}), QSize(170, 160));
}

TEST_F(FittingAreaTest, ShowsNothingOfItself) {
  EXPECT_EQ(area->frameShape(), QFrame::NoFrame);
  EXPECT_EQ(area->focusPolicy(), Qt::NoFocus);
  EXPECT_FALSE(content->autoFillBackground());
  EXPECT_FALSE(area->viewport()->autoFillBackground());
  window.setFixedSize(500, 500);
  window.show();
  EXPECT_TRUE(QTest::qWaitForWindowExposed(&window));
  EXPECT_EQ(content->width(), area->viewport()->width()) << "what it holds gets all the room that there is";
}

}  // namespace
}  // namespace zorik
