#pragma once

#include <cstddef>
#include <vector>

namespace zorik {

// A cell along one axis of the drawn view, in pixels of the screen.
struct DrawnSpan {
  int cell = 0;    // its coordinate in the cave
  int start = 0;   // where it starts in the view
  int length = 0;  // how much of it is drawn
  int cut = 0;     // how much of its frame's beginning is not

  bool operator==(const DrawnSpan&) const = default;
};

// The cells of a view that starts at the logical pixel from and is extent long, drawn with this many pixels a
// cell. Cells at both ends may be drawn in part; none of no size is told.
std::vector<DrawnSpan> SpansOf(int from, int extent, int cellSize);

// Where cells overlap by a pixel the later one is seen, so that the earlier one is drawn without it.
std::vector<DrawnSpan> WithoutOverlaps(std::vector<DrawnSpan> spans);

// What a view that has scrolled still has of the one before, all of it by the same way further on: these
// pixels, of the spans from first to before end.
struct KeptSpans {
  std::size_t first = 0;
  std::size_t end = 0;
  int from = 0;
  int to = 0;
  int way = 0;

  bool Empty() const { return first == end; }
  bool Has(std::size_t i) const { return i >= first && i < end; }
};

// What a view keeps of the spans that it had before, with cells of the same size.
KeptSpans KeptIn(const std::vector<DrawnSpan>& spans, const std::vector<DrawnSpan>& before);

// The place that one of the spans, which was kept, had before.
inline std::size_t PlaceBefore(const std::vector<DrawnSpan>& spans, const std::vector<DrawnSpan>& before,
                               std::size_t i) {
  return static_cast<std::size_t>(spans[i].cell - before.front().cell);
}

}  // namespace zorik
