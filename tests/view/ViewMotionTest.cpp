#include <gtest/gtest.h>

#include "support/Pictured.h"
#include "view/ViewMotion.h"

namespace zorik {
namespace {

using test::Of;
using test::Pictured;

// A table in which dirt is earth, steel covers its cell, and all else is bare.
FrameTable TableWithEdges() {
  FrameTable::Numbers numbers{};
  numbers.fill(1);
  std::vector<Ground> grounds(kTileSetCount, Ground::Bare);
  grounds[kSetDirt] = Ground::Earth;
  grounds[kSteel] = Ground::Covered;
  return {numbers, numbers, grounds};
}

const ViewArea kView{100, 200, 800, 400};

// A tick in which the stage tells of these moves, after what they did was done to the cave.
void Tick(ViewMotion& motion, Pictured& cave, const std::vector<std::pair<Cell, Cell>>& moves,
          const FrameTable& frames = FrameTable()) {
  for (const auto& [from, to] : moves) motion.Add(cave.hra, from, to);
  motion.Settle(cave.hra, cave.pictures, frames);
}

TEST(ViewMotion, LeadsTheViewFromWhereItWas) {
  Pictured cave({"1.."});
  ViewMotion motion;
  EXPECT_EQ(motion.ViewAt({180, 280, 800, 400}, 0.25), (ViewArea{180, 280, 800, 400})) << "none has begun";
  motion.Begin(cave.pictures, kView);
  EXPECT_FALSE(motion.Moves(kView));
  EXPECT_TRUE(motion.Moves({101, 200, 800, 400}));
  EXPECT_EQ(motion.ViewAt({180, 280, 800, 400}, 0.25), (ViewArea{120, 220, 800, 400}));
  EXPECT_EQ(motion.ViewAt({20, 120, 800, 400}, 0.5), (ViewArea{60, 160, 800, 400}));
  EXPECT_EQ(motion.ViewAt({103, 201, 800, 400}, 0.5), (ViewArea{102, 201, 800, 400})) << "to whole pixels";
}

TEST(ViewMotion, LeadsToNoViewOfAnotherSize) {
  Pictured cave({"1.."});
  ViewMotion motion;
  motion.Begin(cave.pictures, kView);
  EXPECT_EQ(motion.ViewAt({180, 280, 801, 400}, 0.25), (ViewArea{180, 280, 801, 400}));
  EXPECT_EQ(motion.ViewAt({180, 280, 800, 401}, 0.25), (ViewArea{180, 280, 800, 401}));
}

TEST(ViewMotion, TellsWhatHasComeWithThePictureThatItHasThere) {
  Pictured cave({"1R.F.", "....."}, {}, 1);
  ViewMotion motion;
  motion.Begin(cave.pictures, kView);
  cave.hra.SetObject({1, 0}, kSpace, kFlat);
  cave.hra.SetObject({1, 1}, kBoulder, kFalling);
  for (const int y : {0, 1}) cave.Again(1, y);
  Tick(motion, cave, {{{1, 0}, {1, 1}}});
  ASSERT_EQ(motion.Movers().size(), 1U);
  const ViewMotion::Mover& boulder = motion.Movers().front();
  EXPECT_EQ(boulder.from, Cell(1, 0));
  EXPECT_EQ(boulder.to, Cell(1, 1));
  EXPECT_EQ(boulder.picture, cave.At(1, 1));
  EXPECT_FALSE(boulder.under) << "it goes over space";
  EXPECT_TRUE(motion.Cells().bare.Has({1, 1}));
  EXPECT_FALSE(motion.Cells().bare.Has({1, 0}));
  for (const int y : {0, 1}) EXPECT_TRUE(motion.Cells().touched.Has({1, y})) << y;
  EXPECT_FALSE(motion.Cells().touched.Has({2, 0}) || motion.Cells().touched.Has({0, 1}));
}

TEST(ViewMotion, TouchesAllCellsOnTheWay) {
  Pictured cave({"1....", ".....", ".....", "..R.."}, {}, 1);
  ViewMotion motion;
  motion.Begin(cave.pictures, kView);
  Tick(motion, cave, {{{4, 1}, {2, 3}}});
  for (int y = 0; y < 4; ++y) {
    for (int x = 0; x < 5; ++x)
      EXPECT_EQ(motion.Cells().touched.Has({x, y}), x >= 2 && x <= 4 && y >= 1) << x << ' ' << y;
  }
}

TEST(ViewMotion, ForgetsWhatHasNotComeAfterAll) {
  Pictured cave({"1R.F.", "....."}, {}, 1);
  ViewMotion motion;
  motion.Begin(cave.pictures, kView);
  motion.Add(cave.hra, {1, 1}, {1, 0});
  motion.Add(cave.hra, {2, 0}, {3, 0});
  cave.hra.SetObject({3, 0}, kExplosion, 0);
  motion.Settle(cave.hra, cave.pictures, FrameTable());
  ASSERT_EQ(motion.Movers().size(), 1U) << "the firefly has blown up where it arrived";
  EXPECT_EQ(motion.Movers().front().to, Cell(1, 0));
}

TEST(ViewMotion, TellsNothingThatHasComeBack) {
  Pictured cave({"1R.F."}, {}, 1);
  ViewMotion motion;
  motion.Begin(cave.pictures, kView);
  motion.Add(cave.hra, {3, 0}, {4, 0});
  motion.Add(cave.hra, {4, 0}, {3, 0});
  motion.Settle(cave.hra, cave.pictures, FrameTable());
  for (const ViewMotion::Mover& mover : motion.Movers()) EXPECT_NE(mover.from, mover.to);
}

TEST(ViewMotion, TellsNothingWhereNoneHasBegun) {
  Pictured cave({"1R.F."}, {}, 1);
  ViewMotion motion;
  Tick(motion, cave, {{{2, 0}, {3, 0}}});
  EXPECT_TRUE(motion.Movers().empty());
  motion.Begin(cave.pictures, kView);
  Tick(motion, cave, {{{2, 0}, {3, 0}}});
  ASSERT_EQ(motion.Movers().size(), 1U);
  motion.Forget();
  EXPECT_TRUE(motion.Movers().empty());
  EXPECT_FALSE(motion.Cells().touched.Has({3, 0}) || motion.Cells().bare.Has({3, 0}));
  EXPECT_FALSE(motion.Moves({0, 0, 800, 400})) << "nor is the view on its way";
}

// What is dug away is seen, with its edges, until the digger is there.
TEST(ViewMotion, ShowsWhatWasThereBeforeUnderWhatGoesOverIt) {
  Pictured cave({"..;", "1;;", ".;W"}, {}, 1);
  ViewMotion motion;
  motion.Begin(cave.pictures, kView);
  const FrameTable frames = TableWithEdges();
  const auto before = [&frames, pictures = cave.pictures](int x, int y) {
    return pictures.Inside(x, y) ? frames.GroundOf(pictures.At(x, y)) : Ground::Covered;
  };
  cave.hra.SetObject({0, 1}, kSpace, kFlat);
  cave.hra.SetObject({1, 1}, kDog, 0);
  cave.Again(0, 1);
  cave.Again(1, 1);
  Tick(motion, cave, {{{0, 1}, {1, 1}}}, frames);
  ASSERT_EQ(motion.Movers().size(), 1U);
  ASSERT_TRUE(motion.Movers().front().under);
  EXPECT_EQ(motion.Movers().front().under->picture, Of(kSetDirt));
  EXPECT_EQ(motion.Movers().front().under->edges, EdgesAround(1, 1, before));
  EXPECT_NE(motion.Movers().front().under->edges, 0) << "the earth is round at its upper left";
}

TEST(ViewMotion, TakesWhatIsOutsideForCoveredUnderWhatGoesThere) {
  Pictured cave({"1;"}, {}, 1);
  ViewMotion motion;
  motion.Begin(cave.pictures, kView);
  const FrameTable frames = TableWithEdges();
  const auto before = [&frames, pictures = cave.pictures](int x, int y) {
    return pictures.Inside(x, y) ? frames.GroundOf(pictures.At(x, y)) : Ground::Covered;
  };
  const EdgeMask edges = EdgesAround(1, 0, before);
  cave.hra.SetObject({0, 0}, kSpace, kFlat);
  cave.hra.SetObject({1, 0}, kDog, 0);
  Tick(motion, cave, {{{0, 0}, {1, 0}}}, frames);
  ASSERT_EQ(motion.Movers().size(), 1U);
  ASSERT_TRUE(motion.Movers().front().under);
  EXPECT_EQ(motion.Movers().front().under->edges, edges);
  ViewMotion plain;
  plain.Begin(cave.pictures, kView);
  Tick(plain, cave, {{{0, 0}, {1, 0}}});
  ASSERT_TRUE(plain.Movers().front().under);
  EXPECT_EQ(plain.Movers().front().under->edges, 0) << "without a picture of edges there are none";
}

}  // namespace
}  // namespace zorik
