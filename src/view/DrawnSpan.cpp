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

// All cells scroll by the same way, but for the first one: where it is cut, rounding goes the other way. So
// what the first cell was before, or is now, may be a pixel beside where it should have gone.
KeptSpans KeptIn(const std::vector<DrawnSpan>& spans, const std::vector<DrawnSpan>& before) {
  KeptSpans kept;
  for (std::size_t i = spans.size(); i-- > 0;) {
    const std::size_t place = PlaceBefore(spans, before, i);
    if (place >= before.size()) continue;
    const DrawnSpan &now = spans[i], &old = before[place];
    const int way = (now.start - now.cut) - (old.start - old.cut);
    const int from = std::max(now.start, old.start + way);
    const int to = std::min(now.start + now.length, old.start + old.length + way);
    if (from >= to) continue;
    if (kept.Empty()) kept = {i + 1, i + 1, to, to, way};
    if (way != kept.way || to != kept.from) break;
    kept.first = i;
    kept.from = from;
  }
  return kept;
}

}  // namespace zorik
