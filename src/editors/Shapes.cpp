#include "editors/Shapes.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdlib>

namespace zorik {
namespace {

// Farther out than any cell that is seen; what lies beyond makes no difference.
constexpr int kFar = 1 << 28;

CavePlace Near(CavePlace place) {
  return {std::clamp(place.x, -kFar, kFar), std::clamp(place.y, -kFar, kFar)};
}

// To the nearest number; a half goes away from 0.
int Rounded(std::int64_t part, std::int64_t whole) {
  if (whole == 0) return 0;
  const std::int64_t half = part < 0 ? -whole : whole;
  return static_cast<int>((2 * part + half) / (2 * whole));
}

// A straight way, step by step along its longer side.
class Way {
 public:
  Way(CavePlace from, CavePlace to) : from_(from), x_(to.x - from.x), y_(to.y - from.y) {}

  int Steps() const { return std::max(std::abs(x_), std::abs(y_)); }

  CavePlace At(int step) const {
    return {from_.x + Rounded(std::int64_t{x_} * step, Steps()),
            from_.y + Rounded(std::int64_t{y_} * step, Steps())};
  }

  // The first and the last step that may lie in a rectangle or right beside it.
  std::array<int, 2> StepsNear(const CaveArea& area) const {
    const bool aside = std::abs(x_) >= std::abs(y_);
    const int begin = aside ? area.left - from_.x : area.top - from_.y;
    const int size = aside ? area.width : area.height;
    const bool back = (aside ? x_ : y_) < 0;
    const int first = back ? -(begin + size) : begin - 1;
    return {std::max(first, 0), std::min(first + size + 1, Steps())};
  }

 private:
  CavePlace from_;
  int x_;
  int y_;
};

template <class Visit>
void WalkLine(CavePlace from, CavePlace to, const CaveArea& cave, Visit visit) {
  const Way way(Near(from), Near(to));
  const auto [first, last] = way.StepsNear(cave);
  for (int step = first; step <= last; ++step) visit(way.At(step));
}

// The numbers from one to another that are among so many from the least on.
std::vector<int> Walk(int from, int to, int least, int count) {
  std::vector<int> walk;
  for (int number = least; number < least + count; ++number) {
    if (number >= std::min(from, to) && number <= std::max(from, to)) walk.push_back(number);
  }
  if (to < from) std::reverse(walk.begin(), walk.end());
  return walk;
}

template <class Wanted>
CavePlaces InBox(CavePlace corner, CavePlace opposite, const CaveArea& cave, Wanted wanted) {
  CavePlaces cells;
  const std::vector<int> columns = Walk(corner.x, opposite.x, cave.left, cave.width);
  for (const int y : Walk(corner.y, opposite.y, cave.top, cave.height)) {
    for (const int x : columns) {
      if (wanted(CavePlace{x, y})) cells.push_back({x, y});
    }
  }
  return cells;
}

char& At(std::vector<char>& cells, const CaveArea& cave, CavePlace place) {
  return cells[static_cast<std::size_t>(place.y) * static_cast<std::size_t>(cave.width) +
               static_cast<std::size_t>(place.x)];
}

}  // namespace

CaveArea AreaOf(CavePlace corner, CavePlace opposite) {
  const CavePlace one = Near(corner);
  const CavePlace other = Near(opposite);
  return {std::min(one.x, other.x), std::min(one.y, other.y), std::abs(one.x - other.x) + 1,
          std::abs(one.y - other.y) + 1};
}

CaveArea AreaOf(const CaveRecord& cave) {
  return {0, 0, cave.Width, cave.Height};
}

CaveArea SharedArea(const CaveArea& one, const CaveArea& other) {
  const auto left = std::max<std::int64_t>(one.left, other.left);
  const auto top = std::max<std::int64_t>(one.top, other.top);
  const auto right = std::min(std::int64_t{one.left} + one.width, std::int64_t{other.left} + other.width);
  const auto bottom = std::min(std::int64_t{one.top} + one.height, std::int64_t{other.top} + other.height);
  if (right <= left || bottom <= top) return {};
  return {static_cast<int>(left), static_cast<int>(top), static_cast<int>(right - left),
          static_cast<int>(bottom - top)};
}

CavePlaces LineOf(CavePlace from, CavePlace to, const CaveArea& cave) {
  CavePlaces cells;
  WalkLine(from, to, cave, [&](CavePlace place) {
    if (cave.Holds(place)) cells.push_back(place);
  });
  return cells;
}

CavePlaces StrokeOf(CavePlace from, CavePlace to, const CaveArea& cave) {
  CavePlaces cells;
  const auto add = [&](CavePlace place) {
    if (cave.Holds(place)) cells.push_back(place);
  };
  bool first = true;
  CavePlace before;
  WalkLine(from, to, cave, [&](CavePlace place) {
    if (!first && place.x != before.x && place.y != before.y) add({place.x, before.y});
    add(place);
    before = place;
    first = false;
  });
  return cells;
}

CavePlaces FrameOf(CavePlace corner, CavePlace opposite, const CaveArea& cave) {
  return InBox(corner, opposite, cave, [=](CavePlace place) {
    return place.x == corner.x || place.x == opposite.x || place.y == corner.y || place.y == opposite.y;
  });
}

CavePlaces BoxOf(CavePlace corner, CavePlace opposite, const CaveArea& cave) {
  return InBox(corner, opposite, cave, [](CavePlace) { return true; });
}

CavePlaces RegionOf(const CaveRecord& cave, CavePlace from) {
  const CaveArea area = AreaOf(cave);
  if (!area.Holds(from)) return {};
  const auto letterAt = [&](CavePlace place) {
    return cave.Cells[static_cast<std::size_t>(place.x)][static_cast<std::size_t>(place.y)];
  };
  const char letter = letterAt(from);
  std::vector<char> seen(static_cast<std::size_t>(area.width * area.height));
  CavePlaces region{from};
  At(seen, area, from) = 1;
  for (std::size_t next = 0; next < region.size(); ++next) {
    const auto [x, y] = region[next];
    for (const CavePlace beside : {CavePlace{x - 1, y}, {x, y - 1}, {x + 1, y}, {x, y + 1}}) {
      if (!area.Holds(beside) || letterAt(beside) != letter || At(seen, area, beside) != 0) continue;
      At(seen, area, beside) = 1;
      region.push_back(beside);
    }
  }
  std::reverse(region.begin(), region.end());
  return region;
}

}  // namespace zorik
