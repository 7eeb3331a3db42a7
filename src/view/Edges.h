#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

#include "view/CellPictures.h"
#include "view/DrawnSpan.h"
#include "view/FrameTable.h"

namespace zorik {

// The columns of the picture Edges. Of each frame a quarter of a cell takes the same quarter. "Beside" is the
// neighbour left or right of the quarter, "over" the one above or below it.
enum class Edge : std::uint8_t {
  BesideOn,    // earth beside, and it goes on in the corner
  BesideEnds,  // earth beside, which ends here
  OverOn,
  OverEnds,
  Corner,  // earth on both sides
  Cut,     // lies over earth itself: both sides are bare
  None,    // nothing is drawn
};
inline constexpr int kEdgeColumns = static_cast<int>(Edge::None);

// The four quarters of a cell, in reading order.
inline constexpr int kQuarters = 4;

// Which of the eight neighbours count, a bit each, clockwise from the one above. What makes no difference is
// left out; 0: there is no edge.
using EdgeMask = std::uint8_t;
inline constexpr std::size_t kEdgeMasks = 256;

// The mask of a cell from what is around it, clockwise from above.
EdgeMask EdgeMaskOf(Ground middle, const std::array<Ground, 8>& around);

// The same from what ground(x, y) says of a cell and its neighbours.
template <class GroundAt>
EdgeMask EdgesAround(int x, int y, GroundAt ground) {
  const Ground middle = ground(x, y);
  if (middle == Ground::Covered) return 0;
  return EdgeMaskOf(middle, {ground(x, y - 1), ground(x + 1, y - 1), ground(x + 1, y), ground(x + 1, y + 1),
                             ground(x, y + 1), ground(x - 1, y + 1), ground(x - 1, y), ground(x - 1, y - 1)});
}

// What a quarter of such a cell shows.
Edge EdgeIn(Ground middle, EdgeMask mask, int quarter);

// The edges of all cells in a view. They depend on nothing but the pictures of the cells.
class EdgeMap {
 public:
  // Without a picture of edges there are none.
  EdgeMap(const std::vector<DrawnSpan>& columns, const std::vector<DrawnSpan>& rows,
          const CellPictures& pictures, const FrameTable& frames);

  // Of a cell by its place in the spans.
  EdgeMask At(std::size_t column, std::size_t row) const;

 private:
  std::size_t stride_ = 0;
  std::vector<Ground> grounds_;  // with a margin of one cell; empty: no edges
};

}  // namespace zorik
