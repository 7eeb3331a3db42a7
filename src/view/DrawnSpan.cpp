#include "view/DrawnSpan.h"

#include <algorithm>
#include <cstddef>

#include "view/ZornePole.h"

namespace zorik {

// Places are counted from the view's start; the first cell starts before it by the part that is cut.
std::vector<DrawnSpan> SpansOf(int from, int extent, int cellSize) {
  const int offset = from % kTileSize;
  std::vector<DrawnSpan> spans;
  int cell = from / kTileSize;
  for (int place = -offset; place < extent; place += kTileSize, ++cell) {
    DrawnSpan span{cell, place * cellSize / kTileSize, cellSize, 0};
    if (place < 0) {
      span.start = 0;
      span.cut = offset * cellSize / kTileSize;
      span.length = cellSize - span.cut;
    } else if (place > extent - kTileSize) {
      span.length = (extent - place) * cellSize / kTileSize;
    }
    if (span.length > 0) spans.push_back(span);
  }
  return spans;
}

std::vector<DrawnSpan> WithoutOverlaps(std::vector<DrawnSpan> spans) {
  for (std::size_t i = 0; i + 1 < spans.size(); ++i)
    spans[i].length = std::min(spans[i].length, spans[i + 1].start - spans[i].start);
  return spans;
}

}  // namespace zorik
