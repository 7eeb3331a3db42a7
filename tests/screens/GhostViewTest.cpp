// The ghost in the picture, between one tick and the next.

#include <gtest/gtest.h>

#include "data/RecordFile.h"
#include "platform/Settings.h"
#include "screens/Folder.h"
#include "screens/GhostView.h"
#include "skin/CavePainter.h"
#include "support/Scene.h"

namespace zorik {
namespace {

class GhostViewTest : public testing::Test {
 protected:
  static std::string CaveText() {
    test::Numbers numbers;
    numbers.needed = 0;
    return test::CaveTextOf({"WWWWWWW", "W1...TW", "W.....W", "WWWWWWW"}, numbers);
  }

  // The record of a run that waits a tick and goes straight to the finish.
  static std::string Record() {
    Hra run(1);
    EXPECT_TRUE(PaintCave(run, CaveText(), RunKind::Play));
    test::Pass(run, 1);
    EXPECT_EQ(test::Pass(run, 4, "R"), TickEnd::Won);
    return SaveRecord(run, run.Win->Score);
  }

  void SetUp() override {
    settings_.Ghost = settings_.SmoothMotion = true;
    ASSERT_TRUE(PaintCave(run_, CaveText(), RunKind::Play));
    painter_.CaveOpens(run_);
    view_.SetRecord(Record());
  }

  bool Moves() { return view_.Moves(run_, painter_); }

  // Where the ghost is seen, so far on the way to the end of the tick.
  std::vector<QPointF> Places(double way) {
    std::vector<QPointF> places;
    for (const Overlay::Sprite& sprite : view_.Beside(run_, painter_, way).sprites)
      places.push_back(sprite.cell);
    return places;
  }

  test::Folder folder_;
  CavePainter painter_{SkinPlaces{folder_.Root()}};
  Hra run_{2};
  Settings settings_;
  GhostView view_{settings_};
};

using Seen = std::vector<QPointF>;

TEST_F(GhostViewTest, IsOnItsWayBetweenTwoTicks) {
  EXPECT_EQ(Places(1), Seen()) << "both stand in one cell";
  test::Pass(run_, 2);
  EXPECT_FALSE(Moves()) << "it was late to look, and is where it is";
  EXPECT_EQ(Places(0), Seen{QPointF(2, 1)});
  test::Pass(run_);
  EXPECT_TRUE(Moves());
  EXPECT_EQ(Places(0), Seen{QPointF(2, 1)});
  EXPECT_EQ(Places(0.25), Seen{QPointF(2.25, 1)});
  EXPECT_EQ(Places(1), Seen{QPointF(3, 1)});
  EXPECT_TRUE(Moves()) << "as long as the tick is the same";
}

TEST_F(GhostViewTest, StandsStillWhereItWaitsAndWhereItHasWon) {
  test::Pass(run_, 1, "D");
  EXPECT_FALSE(Moves());
  EXPECT_EQ(Places(0.5), Seen{QPointF(1, 1)});
  test::Pass(run_, 4);
  Places(1);
  test::Pass(run_);
  EXPECT_FALSE(Moves()) << "it has won a tick ago";
  EXPECT_EQ(Places(0.5), Places(1));
}

TEST_F(GhostViewTest, JumpsBackToTheStartWithTheRun) {
  for (int i = 0; i < 3; ++i) {
    test::Pass(run_);
    Moves();
  }
  ASSERT_EQ(Places(1), Seen{QPointF(3, 1)});
  RestartCave(run_);
  test::Pass(run_, 1, "D");
  EXPECT_FALSE(Moves());
  EXPECT_EQ(Places(0.5), Seen{QPointF(1, 1)});
}

TEST_F(GhostViewTest, ComesOutOfTheCellThatItWasInTogetherWithTheDog) {
  Places(1);
  test::Pass(run_);
  Places(1);
  test::Pass(run_);
  EXPECT_TRUE(Moves());
  EXPECT_EQ(Places(0.5), Seen{QPointF(1.5, 1)});
}

TEST_F(GhostViewTest, StandsStillInTheTickAfterAStep) {
  Hra ghost(1);
  ASSERT_TRUE(PaintCave(ghost, CaveText(), RunKind::Play));
  test::Pass(ghost, 1, "R");
  test::Pass(ghost, 1);
  ASSERT_EQ(test::Pass(ghost, 3, "R"), TickEnd::Won);
  view_.SetRecord(SaveRecord(ghost, ghost.Win->Score));
  Places(1);
  test::Pass(run_, 1, "D");
  EXPECT_TRUE(Moves());
  test::Pass(run_);
  EXPECT_FALSE(Moves());
  EXPECT_EQ(Places(0.5), Seen{QPointF(2, 1)});
  test::Pass(run_);
  EXPECT_TRUE(Moves());
}

TEST_F(GhostViewTest, IsThatOfTheLastRecordFromThenOn) {
  test::Pass(run_, 2, "D");
  ASSERT_EQ(Places(1), Seen{QPointF(2, 1)});
  Hra faster(1);
  ASSERT_TRUE(PaintCave(faster, CaveText(), RunKind::Play));
  ASSERT_EQ(test::Pass(faster, 4, "R"), TickEnd::Won);
  view_.SetRecord(SaveRecord(faster, faster.Win->Score));
  EXPECT_EQ(Places(1), Seen{QPointF(3, 1)}) << "in the same tick";
  view_.SetRecord({});
  EXPECT_EQ(Places(1), Seen()) << "there is none any more";
  view_.SetRecord(Record());
  EXPECT_EQ(Places(1), Seen{QPointF(2, 1)});
}

}  // namespace
}  // namespace zorik
