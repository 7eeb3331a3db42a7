#pragma once

#include <cassert>
#include <cstddef>
#include <optional>

namespace zorik {

// A way from a cell to one of its neighbours, in cells.
struct Step {
  int dx = 0;
  int dy = 0;

  constexpr Step operator-() const { return {-dx, -dy}; }
  bool operator==(const Step&) const = default;
};

inline constexpr Step kLeft{-1, 0};
inline constexpr Step kRight{1, 0};
inline constexpr Step kUp{0, -1};
inline constexpr Step kDown{0, 1};

// A place in the grids. They are flat and one power of two wide, so a neighbour is one addition away; the
// slack around them makes a step or two off the cave legal.
class Cell {
 public:
  static constexpr int kMinX = -2, kMaxX = 101;
  static constexpr int kMinY = -2, kMaxY = 61;
  static constexpr int kStride = 128;
  static constexpr int kPlaces = kStride * (kMaxY - kMinY + 1 + 4);

  constexpr Cell() = default;

  // x in kMinX..kMaxX, y in kMinY..kMaxY: for places that are known to be legal.
  constexpr Cell(int x, int y)
      : place_(static_cast<std::size_t>((y - kMinY + 2) * kStride + (x - kMinX + 2))) {
    assert(x >= kMinX && x <= kMaxX && y >= kMinY && y <= kMaxY);
  }

  // place in 0..kPlaces - 1, as place() gives it.
  static constexpr Cell AtPlace(std::size_t place) {
    Cell cell;
    cell.place_ = place;
    return cell;
  }

  constexpr int x() const { return static_cast<int>(place_ % kStride) + kMinX - 2; }
  constexpr int y() const { return static_cast<int>(place_ / kStride) + kMinY - 2; }
  constexpr std::size_t place() const { return place_; }

  constexpr Cell operator+(Step step) const {
    return AtPlace(place_ + static_cast<std::size_t>(step.dy * kStride + step.dx));
  }
  constexpr Cell operator-(Step step) const { return *this + -step; }
  bool operator==(const Cell&) const = default;

 private:
  std::size_t place_ = 0;
};

// The place with coordinates that come from data: none outside of the grids. A condition on such a cell is
// not met, a write to it does nothing.
inline std::optional<Cell> CellAt(int x, int y) {
  if (x < Cell::kMinX || x > Cell::kMaxX || y < Cell::kMinY || y > Cell::kMaxY) return std::nullopt;
  return Cell(x, y);
}

}  // namespace zorik
