#include <gtest/gtest.h>

#include <ostream>

#include "skin/DrawView.h"

namespace zorik {

void PrintTo(const DrawnSpan& span, std::ostream* out) {
  *out << "cell " << span.cell << " at " << span.start << " long " << span.length << " cut " << span.cut;
}

namespace {

TEST(DrawView, DrawsWholeCellsFromACellsEdge) {
  const auto spans = SpansOf(160, 240, 49);
  ASSERT_EQ(spans.size(), 3U);
  EXPECT_EQ(spans[0], (DrawnSpan{2, 0, 49, 0}));
  EXPECT_EQ(spans[1], (DrawnSpan{3, 49, 49, 0}));
  EXPECT_EQ(spans[2], (DrawnSpan{4, 98, 49, 0}));
}

TEST(DrawView, DrawsAHalfCellAtTheEndOfAView) {
  const auto spans = SpansOf(0, 1560, 49);
  ASSERT_EQ(spans.size(), 20U);
  EXPECT_EQ(spans[18], (DrawnSpan{18, 882, 49, 0}));
  EXPECT_EQ(spans[19], (DrawnSpan{19, 931, 24, 0}));
}

TEST(DrawView, CutsTheFirstCellByThePartThatIsOutOfView) {
  const auto spans = SpansOf(100, 200, 40);
  ASSERT_EQ(spans.size(), 3U);
  EXPECT_EQ(spans[0], (DrawnSpan{1, 0, 30, 10}));
  EXPECT_EQ(spans[1], (DrawnSpan{2, 30, 40, 0}));
  EXPECT_EQ(spans[2], (DrawnSpan{3, 70, 30, 0}));
}

TEST(DrawView, CutsCellsAtBothEndsOfAScrolledView) {
  // A view of 19.5 cells of 98 pixels from 3 cells and 37 logical pixels on.
  const auto spans = SpansOf(277, 1560, 98);
  ASSERT_EQ(spans.size(), 20U);
  EXPECT_EQ(spans[0], (DrawnSpan{3, 0, 53, 45}));      // 45.325 are cut
  EXPECT_EQ(spans[1], (DrawnSpan{4, 52, 98, 0}));      // 43 logical pixels are 52.675
  EXPECT_EQ(spans[2], (DrawnSpan{5, 150, 98, 0}));     // 150.675
  EXPECT_EQ(spans[18], (DrawnSpan{21, 1718, 98, 0}));  // 1403 are 1718.675
  EXPECT_EQ(spans[19], (DrawnSpan{22, 1816, 94, 0}));  // 1483 are 1816.675, the rest of 77 is 94.325
}

TEST(DrawView, CutsALastCellThatLacksOneLogicalPixel) {
  const auto spans = SpansOf(1, 158, 80);
  ASSERT_EQ(spans.size(), 2U);
  EXPECT_EQ(spans[0], (DrawnSpan{0, 0, 79, 1}));
  EXPECT_EQ(spans[1], (DrawnSpan{1, 79, 79, 0}));
}

TEST(DrawView, LeavesNoGapWhereCellsDoNotDivide) {
  for (const int cell : {11, 49, 65, 98}) {
    for (int from = 0; from < 80; ++from) {
      const auto spans = SpansOf(from, 1560, cell);
      for (std::size_t i = 1; i < spans.size(); ++i) {
        ASSERT_LE(spans[i].start, spans[i - 1].start + spans[i - 1].length) << cell << " from " << from;
        ASSERT_EQ(spans[i].cell, spans[i - 1].cell + 1);
      }
      ASSERT_GE(spans.back().start + spans.back().length, 1560 * cell / 80 - 1) << cell << " from " << from;
    }
  }
}

TEST(DrawView, DrawsNothingOfNoSize) {
  EXPECT_EQ(SpansOf(0, 120, 1).size(), 1U) << "half of a cell of one pixel is no pixel";
  EXPECT_TRUE(SpansOf(0, 0, 49).empty());
  EXPECT_TRUE(ToQSize(DrawnCell({}, 100, 100)).isNull());
}

TEST(DrawView, HasCellsOfWholePixels) {
  EXPECT_EQ(DrawnCell({0, 0, 1560, 920}, 956, 564), (PixelSize{49, 49}));
  EXPECT_EQ(DrawnCell({0, 0, 800, 400}, 956, 564), (PixelSize{95, 112}));
  EXPECT_EQ(DrawnCell({0, 0, 8000, 4800}, 956, 564), (PixelSize{9, 9}));
}

TEST(DrawView, IsNoLargerThanItsFrame) {
  EXPECT_EQ(DrawnSize({0, 0, 1560, 920}, {49, 49}), QSize(955, 563));
}

}  // namespace
}  // namespace zorik
