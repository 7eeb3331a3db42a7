#pragma once

namespace zorik {

// Edge of a tile's frame, and of a cell in the view, in logical pixels.
inline constexpr int kTileSize = 80;

// A view shows no more cells than these, unless it is told another reach.
inline constexpr double kViewColumns = 19.5;
inline constexpr double kViewRows = 11.5;

// The part of a cave that is in view, in logical pixels of 80 a cell.
struct ViewArea {
  int left = 0;
  int top = 0;
  int width = 0;
  int height = 0;

  bool operator==(const ViewArea&) const = default;
};

// The view that follows the steered unit. It closes a fifth of the distance in each tick.
class ZornePole {
 public:
  // The most cells that the view shows from the next step on, 1 at least: a narrow screen has room for fewer.
  void SetReach(double columns, double rows);

  // The unit is in the cell (x, y) of a cave of this size, in cells. With jump the view is there at once.
  void Follow(int x, int y, int caveWidth, int caveHeight, bool jump);

  // The scrolling view, as it is after the last step.
  ViewArea Scrolled() const;

  // The whole cave.
  static ViewArea Whole(int caveWidth, int caveHeight);

  // Offset of the cave in the view, in cells; 0 or less.
  float ViewX() const { return across_.offset; }
  float ViewY() const { return down_.offset; }

 private:
  struct Axis {
    float extent = 0;  // of the view, in cells
    float offset = 0;

    void Follow(int place, int cave, double most, bool jump);
    int Start() const;
    int Length() const;
  };

  double columns_ = kViewColumns;
  double rows_ = kViewRows;
  Axis across_;
  Axis down_;
};

}  // namespace zorik
