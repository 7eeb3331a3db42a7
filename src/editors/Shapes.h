// What is drawn at once: the cells of lines, rectangles and regions. Only those inside the cave are named.
#pragma once

#include <cstdint>
#include <vector>

#include "data/CaveO.h"

namespace zorik {

// A cell by its column and row, from 0. It may lie outside of the cave.
struct CavePlace {
  int x = 0;
  int y = 0;

  bool operator==(const CavePlace&) const = default;
};
using CavePlaces = std::vector<CavePlace>;

// A rectangle of cells; empty when a side is 0 or less.
struct CaveArea {
  int left = 0;
  int top = 0;
  int width = 0;
  int height = 0;

  bool IsEmpty() const { return width <= 0 || height <= 0; }
  bool Holds(CavePlace place) const {
    return place.x >= left && place.y >= top && std::int64_t{place.x} - left < width &&
           std::int64_t{place.y} - top < height;
  }
  bool operator==(const CaveArea&) const = default;
};

// The rectangle with these two corners, which belong to it.
CaveArea AreaOf(CavePlace corner, CavePlace opposite);

// All cells of a cave.
CaveArea AreaOf(const CaveRecord& cave);

// What two rectangles share; four zeros when that is nothing.
CaveArea SharedArea(const CaveArea& one, const CaveArea& other);

// The straight line between two cells, in the order from the first to the second. Each cell touches the one
// before by a side or a corner.
CavePlaces LineOf(CavePlace from, CavePlace to, const CaveArea& cave);

// The same, but each cell shares a side with the one before: the way of a stroke, which cuts no corner.
CavePlaces StrokeOf(CavePlace from, CavePlace to, const CaveArea& cave);

// The border of the rectangle with these two corners, and the whole rectangle. The second corner comes last.
CavePlaces FrameOf(CavePlace corner, CavePlace opposite, const CaveArea& cave);
CavePlaces BoxOf(CavePlace corner, CavePlace opposite, const CaveArea& cave);

// The cells that can be reached from one, side by side, over cells of the same letter. That cell comes last.
CavePlaces RegionOf(const CaveRecord& cave, CavePlace from);

}  // namespace zorik
