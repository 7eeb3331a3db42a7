#include <gtest/gtest.h>

#include <ostream>

#include "view/ZornePole.h"

namespace zorik {

void PrintTo(const ViewArea& area, std::ostream* out) {
  *out << area.width << "x" << area.height << "+" << area.left << "+" << area.top;
}

namespace {

TEST(ZornePole, HoldsASmallCaveAsAWhole) {
  ZornePole view;
  view.Follow(9, 4, 10, 5, true);
  EXPECT_EQ(view.ViewX(), 0);
  EXPECT_EQ(view.ViewY(), 0);
  EXPECT_EQ(view.Scrolled(), (ViewArea{0, 0, 800, 400}));
}

TEST(ZornePole, HoldsASmallCaveAsAWholeOnOneAxisOnly) {
  ZornePole view;
  view.Follow(9, 29, 10, 30, true);
  EXPECT_EQ(view.Scrolled(), (ViewArea{0, 1480, 800, 920}));
  view.Follow(39, 4, 40, 5, true);
  EXPECT_EQ(view.Scrolled(), (ViewArea{1640, 0, 1560, 400}));
}

TEST(ZornePole, StaysAtTheEdgeUntilTheUnitIsPastTheMiddle) {
  ZornePole view;
  view.Follow(9, 5, 40, 30, true);  // its middle is 9.5 cells from the left, half of the view 9.75
  EXPECT_EQ(view.Scrolled(), (ViewArea{0, 0, 1560, 920}));
  view.Follow(10, 6, 40, 30, true);
  EXPECT_EQ(view.Scrolled(), (ViewArea{60, 60, 1560, 920}));
}

TEST(ZornePole, StopsAtTheCavesEdges) {
  ZornePole view;
  view.Follow(0, 0, 40, 30, true);
  EXPECT_EQ(view.ViewX(), 0);
  EXPECT_EQ(view.ViewY(), 0);
  view.Follow(39, 29, 40, 30, true);
  EXPECT_FLOAT_EQ(view.ViewX(), 19.5F - 40);
  EXPECT_FLOAT_EQ(view.ViewY(), 11.5F - 30);
  EXPECT_EQ(view.Scrolled(), (ViewArea{1640, 1480, 1560, 920}));
}

TEST(ZornePole, HasTheUnitInItsMiddle) {
  ZornePole view;
  view.Follow(20, 15, 40, 30, true);
  // The middle of the unit's cell is 20.5 cells from the left, half of the view 9.75.
  EXPECT_EQ(view.Scrolled(), (ViewArea{860, 780, 1560, 920}));
}

TEST(ZornePole, ReachesAsFarAsItIsTold) {
  ZornePole view;
  view.SetReach(10, 14.5);
  view.Follow(20, 15, 40, 30, true);
  // The middle of the unit's cell is 20.5 cells from the left and 15.5 from the top, half of the view 5
  // and 7.25.
  EXPECT_EQ(view.Scrolled(), (ViewArea{1240, 660, 800, 1160}));
}

TEST(ZornePole, ClosesAFifthOfTheDistanceInATick) {
  ZornePole view;
  view.Follow(20, 15, 40, 30, true);
  view.Follow(25, 15, 40, 30, false);
  EXPECT_EQ(view.Scrolled().left, 860 + 80);  // of 400
  view.Follow(25, 15, 40, 30, false);
  EXPECT_EQ(view.Scrolled().left, 860 + 80 + 64);  // of 320
}

TEST(ZornePole, RoundsToTheNearestLogicalPixel) {
  ZornePole view;
  view.Follow(20, 15, 40, 30, true);
  view.Follow(21, 15, 40, 30, false);
  EXPECT_EQ(view.Scrolled().left, 860 + 16);  // of 80
  view.Follow(21, 15, 40, 30, false);
  EXPECT_EQ(view.Scrolled().left, 860 + 29);  // 16 + 12.8
  view.Follow(21, 15, 40, 30, false);
  EXPECT_EQ(view.Scrolled().left, 860 + 39);  // 28.8 + 10.24
}

TEST(ZornePole, TurnsRoundOnItsWay) {
  ZornePole view;
  view.Follow(20, 15, 40, 30, true);
  view.Follow(25, 15, 40, 30, false);
  view.Follow(20, 15, 40, 30, false);
  EXPECT_EQ(view.Scrolled().left, 860 + 64);  // 80 less a fifth of it
}

TEST(ZornePole, JumpsAtOnce) {
  ZornePole view;
  view.Follow(0, 0, 40, 30, true);
  view.Follow(20, 15, 40, 30, true);
  EXPECT_EQ(view.Scrolled(), (ViewArea{860, 780, 1560, 920}));
}

TEST(ZornePole, ReachesItsTargetInTheEnd) {
  ZornePole view;
  view.Follow(0, 0, 100, 60, true);
  for (int tick = 0; tick < 60; ++tick) view.Follow(99, 59, 100, 60, false);
  EXPECT_EQ(view.Scrolled(), (ViewArea{8000 - 1560, 4800 - 920, 1560, 920}));
}

TEST(ZornePole, BearsAUnitThatIsNotThere) {
  ZornePole view;
  view.Follow(250, 250, 40, 30, true);
  EXPECT_EQ(view.Scrolled(), (ViewArea{1640, 1480, 1560, 920}));
}

TEST(ZornePole, CanHoldTheWholeCave) {
  EXPECT_EQ(ZornePole::Whole(100, 60), (ViewArea{0, 0, 8000, 4800}));
}

}  // namespace
}  // namespace zorik
