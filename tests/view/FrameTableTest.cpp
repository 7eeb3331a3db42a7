#include <gtest/gtest.h>

#include "view/FrameTable.h"

namespace zorik {
namespace {

FrameTable::Numbers OneEach() {
  FrameTable::Numbers numbers{};
  numbers.fill(1);
  return numbers;
}

TEST(FrameTable, HasOneFrameASetAtFirst) {
  const FrameTable frames;
  EXPECT_EQ(frames.Count(), kTileSetCount);
  EXPECT_FALSE(frames.HasEdges());
  EXPECT_EQ(frames.PlaceOf({kSetGem, 0, 0}), std::size_t{kSetGem});
}

TEST(FrameTable, CountsFramesSetBySetAndRowByRow) {
  FrameTable::Numbers columns = OneEach(), rows = OneEach();
  columns[kSetDirt] = 3;
  rows[kSetDirt] = 2;
  const FrameTable frames(columns, rows);
  EXPECT_EQ(frames.Count(), kTileSetCount + 5);
  EXPECT_EQ(frames.PlaceOf({kSetSpace, 0, 0}), 0U);
  EXPECT_EQ(frames.PlaceOf({kSetDirt, 2, 0}), 3U);
  EXPECT_EQ(frames.PlaceOf({kSetDirt, 0, 1}), 4U);
  EXPECT_EQ(frames.PlaceOf({kSetBoulder, 0, 0}), 7U);
}

TEST(FrameTable, DrawsTheLastOfWhatLiesBeyondIt) {
  FrameTable::Numbers columns = OneEach(), rows = OneEach();
  columns[kSetKeys] = 3;
  rows[kSetKeys] = 2;
  const FrameTable frames(columns, rows);
  EXPECT_EQ(frames.Drawn({kSetKeys, 7, 9}), (CellPicture{kSetKeys, 2, 1}));
  EXPECT_EQ(frames.Drawn({kSetKeys, 1, 0}), (CellPicture{kSetKeys, 1, 0}));
  EXPECT_EQ(frames.Drawn({200, 1, 1}), (CellPicture{kTileSetCount - 1, 0, 0}));
}

TEST(FrameTable, KnowsWhatEachFrameCovers) {
  std::vector<Ground> grounds(kTileSetCount, Ground::Covered);
  grounds[kSetSpace] = Ground::Bare;
  grounds[kSetDirt] = Ground::Earth;
  const FrameTable frames(OneEach(), OneEach(), grounds);
  EXPECT_TRUE(frames.HasEdges());
  EXPECT_EQ(frames.GroundOf({kSetSpace, 4, 4}), Ground::Bare);
  EXPECT_EQ(frames.GroundOf({kSetDirt, 0, 0}), Ground::Earth);
  EXPECT_EQ(frames.GroundOf({kSetNoSurprise, 0, 3}), Ground::Covered);
}

}  // namespace
}  // namespace zorik
