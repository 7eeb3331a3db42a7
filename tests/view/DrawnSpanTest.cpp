#include <gtest/gtest.h>

#include <ostream>

#include "view/DrawnSpan.h"
#include "view/ZornePole.h"

namespace zorik {

void PrintTo(const DrawnSpan& span, std::ostream* out) {
  *out << "cell " << span.cell << " at " << span.start << " long " << span.length << " cut " << span.cut;
}

namespace {

using Spans = std::vector<DrawnSpan>;

TEST(DrawnSpan, IsAWholeCellWhereTheViewBeginsAndEndsWithOne) {
  EXPECT_EQ(SpansOf(3 * kTileSize, 2 * kTileSize, 10), (Spans{{3, 0, 10, 0}, {4, 10, 10, 0}}));
}

TEST(DrawnSpan, IsCutAtBothEndsOfTheView) {
  EXPECT_EQ(SpansOf(kTileSize / 4, 2 * kTileSize, 40),
            (Spans{{0, 0, 30, 10}, {1, 30, 40, 0}, {2, 70, 10, 0}}));
}

TEST(DrawnSpan, IsPartOfACellInAViewThatHasNoRoomForAWholeOne) {
  EXPECT_EQ(SpansOf(0, kTileSize / 2, 10), (Spans{{0, 0, 5, 0}}));
}

TEST(DrawnSpan, IsNoneOfNoSize) {
  EXPECT_EQ(SpansOf(0, kTileSize + 1, 4), (Spans{{0, 0, 4, 0}})) << "a pixel of so many is none of four";
  EXPECT_EQ(SpansOf(0, 0, 4), Spans());
}

// A place of less than a pixel before the view leaves the first cell as long as it is, and the next one
// begins a pixel earlier.
TEST(DrawnSpan, GivesWayToTheNextWhereTheyOverlap) {
  const Spans spans = SpansOf(1, 3 * kTileSize, 10);
  ASSERT_EQ(spans.size(), 3U) << "what is seen of the fourth is less than a pixel";
  EXPECT_EQ(spans[0], (DrawnSpan{0, 0, 10, 0}));
  EXPECT_EQ(spans[1], (DrawnSpan{1, 9, 10, 0}));
  const Spans apart = WithoutOverlaps(spans);
  EXPECT_EQ(apart, (Spans{{0, 0, 9, 0}, {1, 9, 10, 0}, {2, 19, 10, 0}}));
}

TEST(DrawnSpan, IsFollowedByTheNextWithoutAGap) {
  for (int from = 0; from < 2 * kTileSize; from += 7) {
    for (const int cell : {1, 3, 16, 33, 80, 97}) {
      const Spans spans = WithoutOverlaps(SpansOf(from, 5 * kTileSize, cell));
      ASSERT_FALSE(spans.empty());
      EXPECT_EQ(spans.front().start, 0);
      for (std::size_t i = 0; i + 1 < spans.size(); ++i) {
        EXPECT_EQ(spans[i].cell + 1, spans[i + 1].cell);
        EXPECT_EQ(spans[i].start + spans[i].length, spans[i + 1].start) << from << ' ' << cell << ' ' << i;
      }
      EXPECT_LE(spans.back().start + spans.back().length, 5 * cell) << from << ' ' << cell;
    }
  }
}

TEST(DrawnSpan, OfNoCellsStaysNone) {
  EXPECT_EQ(WithoutOverlaps({}), Spans());
}

}  // namespace
}  // namespace zorik
