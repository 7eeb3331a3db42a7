#pragma once

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

}  // namespace zorik
