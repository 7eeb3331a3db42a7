#include "view/Edges.h"

#include <array>

namespace zorik {
namespace {

constexpr EdgeMask Bit(int place) {
  return static_cast<EdgeMask>(1U << static_cast<unsigned>(place));
}

// The neighbours of each quarter, as places around the cell.
struct Corner {
  int beside;
  int over;
  int diagonal;
};
constexpr std::array<Corner, kQuarters> kCorners{{{6, 0, 7}, {2, 0, 1}, {6, 4, 5}, {2, 4, 3}}};

constexpr Edge OnBare(EdgeMask earth, const Corner& corner) {
  const bool beside = (earth & Bit(corner.beside)) != 0;
  const bool over = (earth & Bit(corner.over)) != 0;
  const bool on = (earth & Bit(corner.diagonal)) != 0;
  if (beside && over) return Edge::Corner;
  if (beside) return on ? Edge::BesideOn : Edge::BesideEnds;
  if (over) return on ? Edge::OverOn : Edge::OverEnds;
  return Edge::None;
}

constexpr Edge InEarth(EdgeMask bare, const Corner& corner) {
  const int all = Bit(corner.beside) | Bit(corner.over) | Bit(corner.diagonal);
  return (bare & all) == all ? Edge::Cut : Edge::None;
}

// A corner's neighbour matters where exactly one of the two beside it is earth.
constexpr EdgeMask Needed(EdgeMask earth) {
  int needed = earth & (Bit(0) | Bit(2) | Bit(4) | Bit(6));
  for (const Corner& corner : kCorners) {
    const Edge edge = OnBare(earth, corner);
    if (edge == Edge::BesideOn || edge == Edge::OverOn) needed |= Bit(corner.diagonal);
  }
  return static_cast<EdgeMask>(needed);
}

constexpr EdgeMask NeededInEarth(EdgeMask bare) {
  int needed = 0;
  for (const Corner& corner : kCorners) {
    if (InEarth(bare, corner) != Edge::Cut) continue;
    needed |= Bit(corner.beside) | Bit(corner.over) | Bit(corner.diagonal);
  }
  return static_cast<EdgeMask>(needed);
}

template <class Function>
constexpr std::array<EdgeMask, kEdgeMasks> TableOf(Function function) {
  std::array<EdgeMask, kEdgeMasks> table{};
  for (std::size_t i = 0; i < kEdgeMasks; ++i) table[i] = function(static_cast<EdgeMask>(i));
  return table;
}
constexpr std::array<EdgeMask, kEdgeMasks> kNeeded = TableOf(Needed);
constexpr std::array<EdgeMask, kEdgeMasks> kNeededInEarth = TableOf(NeededInEarth);

}  // namespace

// Where two cells of earth touch by a corner only, both stay whole: the earth around the holes between them
// joins there. And earth that ends at a wall goes on up to it.
EdgeMask EdgeMaskOf(Ground middle, const std::array<Ground, 8>& around) {
  if (middle == Ground::Covered) return 0;
  const bool bare = middle == Ground::Bare;
  const Ground wanted = bare ? Ground::Earth : Ground::Bare;
  unsigned mask = 0;
  for (unsigned i = 0; i < 8; i += 2) {
    const Ground side = around[i], corner = around[i + 1], next = around[(i + 2) % 8];
    const bool wall = corner == Ground::Covered && (side == Ground::Covered || next == Ground::Covered);
    const bool counts = bare ? corner == Ground::Earth || wall : corner != Ground::Earth;
    mask |= static_cast<unsigned>(side == wanted) << i | static_cast<unsigned>(counts) << (i + 1);
  }
  return bare ? kNeeded[mask] : kNeededInEarth[mask];
}

Edge EdgeIn(Ground middle, EdgeMask mask, int quarter) {
  const Corner& corner = kCorners[static_cast<std::size_t>(quarter)];
  if (middle == Ground::Covered) return Edge::None;
  return middle == Ground::Bare ? OnBare(mask, corner) : InEarth(mask, corner);
}

EdgeMap::EdgeMap(const std::vector<DrawnSpan>& columns, const std::vector<DrawnSpan>& rows,
                 const CellPictures& pictures, const FrameTable& frames) {
  if (!frames.HasEdges() || columns.empty() || rows.empty()) return;
  stride_ = columns.size() + 2;
  grounds_.reserve(stride_ * (rows.size() + 2));
  for (int y = rows.front().cell - 1; y <= rows.back().cell + 1; ++y) {
    for (int x = columns.front().cell - 1; x <= columns.back().cell + 1; ++x) {
      grounds_.push_back(pictures.Inside(x, y) ? frames.GroundOf(pictures.At(x, y)) : Ground::Covered);
    }
  }
}

EdgeMask EdgeMap::At(std::size_t column, std::size_t row) const {
  if (grounds_.empty()) return 0;
  return EdgesAround(static_cast<int>(column) + 1, static_cast<int>(row) + 1, [this](int x, int y) {
    return grounds_[static_cast<std::size_t>(y) * stride_ + static_cast<std::size_t>(x)];
  });
}

}  // namespace zorik
