#include <gtest/gtest.h>

#include "screens/WayHint.h"
#include "skin/CavePainter.h"
#include "support/Practised.h"

namespace zorik::test {
namespace {

constexpr Move kRight = kStepBase + 2;
constexpr Move kDown = kStepBase + 3;
constexpr int kGhostStands = 25;  // ticks, at the end of its way

// Fourteen steps to the finish.
const Picture kLongWay{"WWWWWWWWWWWWWWWWW", "W1D;;;;;;;;;;;;TW", "WWWWWWWWWWWWWWWWW"};
const Plan kAllOfIt(14, kRight);

class AWayHint : public testing::Test {
 protected:
  // The run has waited for five ticks, so that its clock is not that of the way.
  void ShowLongWay(const Plan& way = kAllOfIt) { hint.Show(*run, way); }

  void GoOn(int ticks, const char* keys = "") {
    for (int i = 0; i < ticks; ++i) {
      Pass(*run, 1, keys);
      hint.WentOn(*run);
    }
  }

  void GhostGoesOn(int ticks) {
    for (int i = 0; i < ticks; ++i) hint.GhostGoesOn();
  }

  Cell GhostCell() const { return *UnitCell(*hint.GhostRun(), hint.GhostRun()->ActiveDog); }

  Overlay Laid() {
    Overlay overlay;
    hint.LayOver(overlay, painter);
    return overlay;
  }

  std::unique_ptr<Hra> run = Practise(kLongWay, {.needed = 1}, 5);
  WayHint hint;
  CavePainter painter{SkinPlaces{}};
};

TEST_F(AWayHint, ShowsNothingBeforeThereIsAWay) {
  hint.ShowWhole(true);
  hint.GhostGoesOn();
  hint.WentOn(*run);
  EXPECT_FALSE(hint.Shown());
  EXPECT_FALSE(hint.Whole());
  const Overlay laid = Laid();
  EXPECT_TRUE(laid.marks.empty() && laid.trails.empty() && laid.sprites.empty());
}

TEST_F(AWayHint, LosesOneStepAfterTheOtherAsTheyAreDone) {
  ShowLongWay();
  for (int done = 0; done <= WayHint::kSteps; ++done) {
    ASSERT_EQ(hint.Steps().size(), static_cast<std::size_t>(WayHint::kSteps - done));
    EXPECT_EQ(Laid().marks.size(), hint.Steps().size());
    if (hint.Shown()) {
      EXPECT_EQ(hint.Steps().front().cell, Cell(2 + done, 1));
    }
    GoOn(1, "R");
  }
  EXPECT_FALSE(hint.Shown());
}

TEST_F(AWayHint, IsLeftBehindBySomebodyWhoDoesNotTakeItForFortyTicks) {
  ShowLongWay();
  GoOn(1 + 40);  // its first step is one of the first tick
  EXPECT_TRUE(hint.Shown());
  EXPECT_EQ(hint.Steps().size(), 10U) << "none of it has been done";
  GoOn(1);
  EXPECT_FALSE(hint.Shown());
  hint.ShowWhole(true);
  EXPECT_FALSE(hint.Whole()) << "there is no way any more";
}

TEST_F(AWayHint, TakesNoStepForDoneThatAnotherUnitHasDone) {
  run = Practise({"WWWWWW", "W1;;;W", "W2...W", "WWWWWW"}, {}, 2);
  hint.Show(*run, {kRight, static_cast<Move>(kChooseBase + 2), kRight});
  ASSERT_EQ(hint.Steps().size(), 2U);
  EXPECT_EQ(hint.Steps()[0].unit, 1);
  EXPECT_EQ(hint.Steps()[1].unit, 2);
  run->ActiveDog = 2;
  run->Dog[2] = {2, 1, true};  // where the first is to go
  hint.WentOn(*run);
  EXPECT_EQ(hint.Steps().size(), 2U);
  run->Dog[2] = {2, 2, true};
  hint.WentOn(*run);
  EXPECT_FALSE(hint.Shown()) << "who has done a later step has no use for an earlier one";
}

TEST_F(AWayHint, TakesNothingForDoneThatIsToBeDoneBesideTheWay) {
  run = Practise({"WWWWW", "W1;;W", "WWWWW"});
  hint.Show(*run, {static_cast<Move>(kActBase + 2), kRight, kRight});
  ASSERT_EQ(hint.Steps().size(), 3U);
  ASSERT_TRUE(hint.Steps()[0].beside);
  const Overlay laid = Laid();
  ASSERT_EQ(laid.marks.size(), 3U);
  EXPECT_NE(laid.marks[0].colour, laid.marks[1].colour) << "it is marked in a colour of its own";
  EXPECT_EQ(laid.marks[1].colour, laid.marks[2].colour);
  ASSERT_EQ(laid.trails.size(), 1U);
  EXPECT_EQ(laid.trails[0].cells, (std::vector<QPoint>{{1, 1}, {2, 1}, {3, 1}}))
      << "nobody goes there for it";
  EXPECT_EQ(laid.marks[1].colour.rgb(), laid.trails[0].colour.rgb())
      << "steps have the colour of their trail";
  GoOn(1, "");
  EXPECT_EQ(hint.Steps().size(), 3U);
  GoOn(1, "R");
  ASSERT_EQ(hint.Steps().size(), 1U) << "who is there has no use for what was to be done there";
  EXPECT_EQ(hint.Steps()[0].cell, Cell(3, 1));
}

// All of it

TEST_F(AWayHint, ShowsTheStepsThatAreNextAgainAfterAllOfThem) {
  ShowLongWay();
  EXPECT_FALSE(hint.Whole());
  hint.ShowWhole(true);
  EXPECT_TRUE(hint.Whole());
  EXPECT_EQ(hint.Steps().size(), 14U);
  EXPECT_EQ(Laid().marks.size(), 14U);
  hint.ShowWhole(false);
  EXPECT_FALSE(hint.Whole());
  EXPECT_EQ(hint.Steps().size(), 10U);
  EXPECT_TRUE(Laid().sprites.empty());
  hint.ShowWhole(true);
  GoOn(1);
  EXPECT_FALSE(hint.Whole()) << "the run goes on";
  hint.ShowWhole(true);
  hint.Clear();
  EXPECT_FALSE(hint.Whole() || hint.Shown());
  hint.ShowWhole(true);
  EXPECT_FALSE(hint.Whole() || hint.Shown());
}

TEST_F(AWayHint, IsGoneByItsGhostAgainAndAgain) {
  ShowLongWay();
  hint.ShowWhole(true);
  for (int round = 0; round < 3; ++round) {
    for (int step = 0; step <= 14; ++step) {
      EXPECT_EQ(GhostCell(), Cell(1 + step, 1)) << round;
      if (step < 14) {
        ASSERT_EQ(Laid().sprites.size(), 1U);
        EXPECT_EQ(Laid().sprites[0].cell, QPointF(1 + step, 1));
        GhostGoesOn(1);
      }
    }
    EXPECT_TRUE(hint.GhostRun()->Win.has_value());
    GhostGoesOn(kGhostStands);
    EXPECT_TRUE(hint.GhostRun()->Win.has_value()) << "it stands there for a while: " << round;
    GhostGoesOn(1);
    EXPECT_FALSE(hint.GhostRun()->Win.has_value());
    EXPECT_EQ(hint.GhostRun()->Ticks, 5);
  }
  EXPECT_EQ(run->Ticks, 5) << "the run itself waits";
}

TEST_F(AWayHint, LetsItsGhostGoOnWhereItWasAskedForTwice) {
  ShowLongWay();
  hint.ShowWhole(true);
  GhostGoesOn(3);
  hint.ShowWhole(true);
  EXPECT_EQ(GhostCell(), Cell(4, 1));
  ShowLongWay();
  EXPECT_FALSE(hint.Whole()) << "it is another way";
}

TEST_F(AWayHint, HasAGhostThatStandsWhereItsWayEnds) {
  ShowLongWay({kRight, kRight, kWait});
  hint.ShowWhole(true);
  GhostGoesOn(3);
  for (int rest = 0; rest < kGhostStands; ++rest) {
    GhostGoesOn(1);
    EXPECT_EQ(GhostCell(), Cell(3, 1)) << rest;
    EXPECT_EQ(hint.GhostRun()->Ticks, 8) << rest;
  }
  GhostGoesOn(1);
  EXPECT_EQ(GhostCell(), Cell(1, 1));
}

TEST_F(AWayHint, HasAGhostThatGoesNoFurtherThanTheWin) {
  Plan longer = kAllOfIt;
  longer.insert(longer.end(), 5, kWait);
  ShowLongWay(longer);
  hint.ShowWhole(true);
  GhostGoesOn(14 + kGhostStands);
  EXPECT_TRUE(hint.GhostRun()->Win.has_value());
  EXPECT_EQ(hint.GhostRun()->Ticks, 5 + 14);
  GhostGoesOn(1);
  EXPECT_EQ(hint.GhostRun()->Ticks, 5);
}

TEST_F(AWayHint, HasAGhostAlsoOfAWayOnWhichNobodyTakesAStep) {
  ShowLongWay(Plan(4, kWait));
  EXPECT_FALSE(hint.Shown());
  hint.ShowWhole(true);
  const Overlay laid = Laid();
  EXPECT_TRUE(laid.marks.empty() && laid.trails.empty());
  ASSERT_EQ(laid.sprites.size(), 1U);
  EXPECT_EQ(laid.sprites[0].cell, QPointF(1, 1));
  EXPECT_GT(laid.sprites[0].opacity, 0);
  EXPECT_LT(laid.sprites[0].opacity, 1) << "the cave shows through it";
}

// A record leads its units itself: a ghost in it goes its own way.
TEST_F(AWayHint, HasAGhostThatHeedsNoRecord) {
  const Hra record = PlayBack(kLongWay, {{}, {}, {}, {}}, {.needed = 1});
  hint.Show(record, kAllOfIt);
  hint.ShowWhole(true);
  GhostGoesOn(2);
  EXPECT_EQ(GhostCell(), Cell(3, 1));
}

// The trail

TEST_F(AWayHint, LaysATrailForEachUnitFromWhereItStands) {
  run = Practise({"WWWWWW", "W1;;;W", "W2...W", "WWWWWW"});
  hint.Show(*run, {kRight, kRight, static_cast<Move>(kChooseBase + 2), kRight, kRight, kRight});
  const Overlay laid = Laid();
  ASSERT_EQ(laid.trails.size(), 2U);
  EXPECT_EQ(laid.trails[0].cells, (std::vector<QPoint>{{1, 1}, {2, 1}, {3, 1}}));
  EXPECT_EQ(laid.trails[1].cells, (std::vector<QPoint>{{1, 2}, {2, 2}, {3, 2}, {4, 2}}));
  EXPECT_EQ(laid.trails[0].colour, laid.trails[1].colour);
  std::vector<QPoint> marked;
  for (const Overlay::Mark& mark : laid.marks) marked.push_back(mark.cell);
  EXPECT_EQ(marked, (std::vector<QPoint>{{2, 1}, {3, 1}, {2, 2}, {3, 2}, {4, 2}}));
}

TEST_F(AWayHint, LaysNoTrailAcrossTheCaveWhereATeleportLeads) {
  run = Practise({"1...", ".S.W", ".W.S", "...."});
  ASSERT_TRUE(run->TeleportActive);
  Plan way{kDown, kRight};
  way.insert(way.end(), 6, kWait);
  way.push_back(kDown);
  hint.Show(*run, way);
  const Overlay laid = Laid();
  ASSERT_EQ(laid.trails.size(), 2U);
  EXPECT_EQ(laid.trails[0].cells.front(), QPoint(0, 0));
  EXPECT_EQ(laid.trails[1].cells, (std::vector<QPoint>{{3, 2}, {3, 3}}));
  for (const Overlay::Trail& trail : laid.trails) {
    for (std::size_t i = 1; i < trail.cells.size(); ++i)
      EXPECT_EQ((trail.cells[i] - trail.cells[i - 1]).manhattanLength(), 1) << i;
  }
}

// Whose first step is that out of a teleport comes from nowhere.
TEST_F(AWayHint, BeginsATrailWhereItsUnitArrives) {
  run = Practise({"1...", ".S.W", ".W.S", "...."});
  Pass(*run, 1, "D");
  Pass(*run, 1, "R");
  Plan way(6, kWait);
  way.push_back(kDown);
  hint.Show(*run, way);
  const Overlay laid = Laid();
  ASSERT_FALSE(laid.trails.empty());
  for (const Overlay::Trail& trail : laid.trails) {
    for (const QPoint cell : trail.cells) EXPECT_EQ(cell.x(), 3);
  }
  EXPECT_EQ(laid.trails.back().cells.back(), QPoint(3, 3));
}

}  // namespace
}  // namespace zorik::test
