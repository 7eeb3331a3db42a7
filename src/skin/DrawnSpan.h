#pragma once

namespace zorik {

// A cell along one axis of the drawn view, in pixels of the screen.
struct DrawnSpan {
  int cell = 0;    // its coordinate in the cave
  int start = 0;   // where it starts in the view
  int length = 0;  // how much of it is drawn
  int cut = 0;     // how much of its frame's beginning is not

  bool operator==(const DrawnSpan&) const = default;
};

}  // namespace zorik
