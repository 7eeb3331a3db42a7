#include <algorithm>
#include <climits>
#include <cstdlib>
#include <iterator>
#include <set>

#include "data/Chance.h"
#include "editors/Letters.h"
#include "editors/Shapes.h"

namespace zorik {
namespace {

using test::Full;
using test::LettersOf;
using test::Opened;
using test::Picture;

constexpr CaveArea kCave{0, 0, 7, 5};
constexpr CaveArea kEverywhere{-500, -500, 1000, 1000};

// The cells in the order in which they come: a, b, c and so on.
Picture Numbered(const CavePlaces& cells) {
  Picture rows = Full(kCave.width, kCave.height, '.');
  char next = 'a';
  for (const auto [x, y] : cells)
    rows.at(static_cast<std::size_t>(y)).at(static_cast<std::size_t>(x)) = next++;
  return rows;
}

CavePlaces Inside(const CavePlaces& cells, const CaveArea& area) {
  CavePlaces inside;
  std::copy_if(cells.begin(), cells.end(), std::back_inserter(inside),
               [&](CavePlace place) { return area.Holds(place); });
  return inside;
}

CavePlace Anywhere(Chance& rnd, int range) {
  const auto draw = [&] {
    return static_cast<int>(rnd.Below(static_cast<std::uint32_t>(2 * range + 1))) - range;
  };
  const int x = draw();
  return {x, draw()};
}

// The farther side of the two that part two cells, and both together.
int Apart(CavePlace one, CavePlace other) {
  return std::max(std::abs(one.x - other.x), std::abs(one.y - other.y));
}
int WalkBetween(CavePlace one, CavePlace other) {
  return std::abs(one.x - other.x) + std::abs(one.y - other.y);
}

TEST(Shapes, DrawsALineFromItsFirstCellToItsLast) {
  EXPECT_EQ(Numbered(LineOf({1, 1}, {5, 1}, kCave)),
            (Picture{".......", ".abcde.", ".......", ".......", "......."}));
  EXPECT_EQ(Numbered(LineOf({4, 4}, {0, 0}, kCave)),
            (Picture{"e......", ".d.....", "..c....", "...b...", "....a.."}));
  EXPECT_EQ(Numbered(LineOf({0, 1}, {6, 3}, kCave)),
            (Picture{".......", "ab.....", "..cde..", ".....fg", "......."}));
  EXPECT_EQ(Numbered(LineOf({2, 4}, {1, 0}, kCave)),
            (Picture{".e.....", ".d.....", ".c.....", "..b....", "..a...."}));
}

TEST(Shapes, DrawsAStrokeOverTheCellsBetweenThoseOfALine) {
  EXPECT_EQ(Numbered(StrokeOf({1, 1}, {3, 3}, kCave)),
            (Picture{".......", ".ab....", "..cd...", "...e...", "......."}));
  EXPECT_EQ(Numbered(StrokeOf({2, 2}, {2, 2}, kCave)),
            (Picture{".......", ".......", "..a....", ".......", "......."}));
}

TEST(Shapes, DrawsALineOfAnyDirectionWithoutAHole) {
  Chance rnd(1);
  for (int i = 0; i < 2000; ++i) {
    const CavePlace from = Anywhere(rnd, 40);
    const CavePlace to = Anywhere(rnd, 40);
    const CavePlaces line = LineOf(from, to, kEverywhere);
    ASSERT_EQ(line.size(), static_cast<std::size_t>(Apart(from, to)) + 1);
    EXPECT_EQ(line.front(), from);
    EXPECT_EQ(line.back(), to);
    for (std::size_t k = 1; k < line.size(); ++k) EXPECT_EQ(Apart(line[k - 1], line[k]), 1);
    for (const auto [x, y] : line) {
      const int off = (x - from.x) * (to.y - from.y) - (y - from.y) * (to.x - from.x);
      EXPECT_LE(std::abs(off), Apart(from, to) / 2.0) << "half a cell from the way";
    }
  }
}

TEST(Shapes, CutsNoCornerInAStroke) {
  Chance rnd(2);
  for (int i = 0; i < 2000; ++i) {
    const CavePlace from = Anywhere(rnd, 40);
    const CavePlace to = Anywhere(rnd, 40);
    const CavePlaces stroke = StrokeOf(from, to, kEverywhere);
    ASSERT_EQ(stroke.size(), static_cast<std::size_t>(WalkBetween(from, to)) + 1) << "no way is shorter";
    EXPECT_EQ(stroke.front(), from);
    EXPECT_EQ(stroke.back(), to);
    for (std::size_t k = 1; k < stroke.size(); ++k) EXPECT_EQ(WalkBetween(stroke[k - 1], stroke[k]), 1);
    for (const CavePlace place : LineOf(from, to, kEverywhere)) {
      EXPECT_NE(std::find(stroke.begin(), stroke.end(), place), stroke.end());
    }
  }
}

TEST(Shapes, LeavesOutWhatLiesOutsideOfTheCaveAndKeepsAllElse) {
  Chance rnd(3);
  for (int i = 0; i < 4000; ++i) {
    const CavePlace from = Anywhere(rnd, 12);
    const CavePlace to = Anywhere(rnd, 12);
    EXPECT_EQ(LineOf(from, to, kCave), Inside(LineOf(from, to, kEverywhere), kCave));
    EXPECT_EQ(StrokeOf(from, to, kCave), Inside(StrokeOf(from, to, kEverywhere), kCave));
    EXPECT_EQ(FrameOf(from, to, kCave), Inside(FrameOf(from, to, kEverywhere), kCave));
    EXPECT_EQ(BoxOf(from, to, kCave), Inside(BoxOf(from, to, kEverywhere), kCave));
  }
}

TEST(Shapes, BearsCellsFarBeyondTheCave) {
  constexpr CavePlace kLeast{INT_MIN, INT_MIN};
  constexpr CavePlace kMost{INT_MAX, INT_MAX};
  EXPECT_EQ(LineOf(kLeast, kMost, kCave), LineOf({0, 0}, {4, 4}, kCave));
  EXPECT_EQ(StrokeOf({INT_MIN, 2}, {INT_MAX, 2}, kCave), LineOf({0, 2}, {6, 2}, kCave));
  EXPECT_EQ(BoxOf(kLeast, kMost, kCave).size(), 35U);
  EXPECT_TRUE(FrameOf(kLeast, kMost, kCave).empty());
  EXPECT_TRUE(LineOf({INT_MAX, 0}, {INT_MAX, 4}, kCave).empty());
  EXPECT_EQ(SharedArea(AreaOf(kLeast, kMost), kCave), kCave);
}

TEST(Shapes, DrawsARectangleAndItsFrameUpToTheSecondCorner) {
  EXPECT_EQ(Numbered(BoxOf({1, 1}, {3, 2}, kCave)),
            (Picture{".......", ".abc...", ".def...", ".......", "......."}));
  EXPECT_EQ(Numbered(BoxOf({3, 2}, {1, 1}, kCave)),
            (Picture{".......", ".fed...", ".cba...", ".......", "......."}));
  EXPECT_EQ(Numbered(FrameOf({1, 3}, {4, 1}, kCave)),
            (Picture{".......", ".ghij..", ".e..f..", ".abcd..", "......."}));
  EXPECT_EQ(Numbered(FrameOf({2, 2}, {2, 2}, kCave)),
            (Picture{".......", ".......", "..a....", ".......", "......."}));
}

TEST(Shapes, KnowsTheAreaBetweenTwoCorners) {
  EXPECT_EQ(AreaOf({3, 5}, {1, 9}), (CaveArea{1, 5, 3, 5}));
  EXPECT_EQ(AreaOf({2, 2}, {2, 2}), (CaveArea{2, 2, 1, 1}));
  EXPECT_EQ(SharedArea({-2, -1, 5, 3}, kCave), (CaveArea{0, 0, 3, 2}));
  EXPECT_EQ(SharedArea({7, 0, 3, 3}, kCave), CaveArea{});
  // Areas side by side share nothing, not even a width.
  EXPECT_EQ(SharedArea({0, 0, 3, 2}, {0, 2, 3, 2}), CaveArea{});
  EXPECT_EQ(SharedArea({0, 0, 3, 2}, {3, 0, 3, 2}), CaveArea{});
  EXPECT_EQ(SharedArea({2, 2, 0, 4}, kCave), CaveArea{});
}

TEST(Shapes, FillsARegionSideBySideOnly) {
  const CaveModel model = Opened({"WWWWWWW", "W..W..W", "W.WW..W", "WW..WWW", "W....1W"});
  const CavePlaces upper = RegionOf(model.Cave(), {1, 1});
  EXPECT_EQ(upper.size(), 3U);
  EXPECT_EQ(upper.back(), (CavePlace{1, 1}));
  EXPECT_EQ(RegionOf(model.Cave(), {4, 2}).size(), 4U);
  EXPECT_EQ(RegionOf(model.Cave(), {3, 3}).size(), 6U);
  EXPECT_EQ(RegionOf(model.Cave(), {5, 4}), (CavePlaces{{5, 4}}));
  EXPECT_TRUE(RegionOf(model.Cave(), {7, 4}).empty());
  EXPECT_TRUE(RegionOf(model.Cave(), {0, -1}).empty());
}

// The same by another way: cells join the region until none is left that touches it.
std::set<std::pair<int, int>> GrownRegion(const CaveModel& model, CavePlace from) {
  std::set<std::pair<int, int>> region{{from.x, from.y}};
  for (bool grows = true; grows;) {
    grows = false;
    for (int x = 0; x < model.Width(); ++x) {
      for (int y = 0; y < model.Height(); ++y) {
        if (model.At(x, y) != model.At(from.x, from.y) || region.contains({x, y})) continue;
        if (!region.contains({x - 1, y}) && !region.contains({x + 1, y}) && !region.contains({x, y - 1}) &&
            !region.contains({x, y + 1})) {
          continue;
        }
        region.insert({x, y});
        grows = true;
      }
    }
  }
  return region;
}

TEST(Shapes, FillsAllThatIsConnectedAndEachCellOnce) {
  Chance rnd(4);
  for (int i = 0; i < 40; ++i) {
    Picture picture = Full(20, 12, ';');
    for (std::string& row : picture) {
      for (char& letter : row) letter = rnd.Below(2) == 0 ? ';' : 'R';
    }
    const CaveModel model = Opened(picture);
    const CavePlace from{static_cast<int>(rnd.Below(20)), static_cast<int>(rnd.Below(12))};
    const CavePlaces region = RegionOf(model.Cave(), from);
    std::set<std::pair<int, int>> cells;
    for (const auto [x, y] : region) cells.insert({x, y});
    EXPECT_EQ(cells.size(), region.size());
    EXPECT_EQ(cells, GrownRegion(model, from));
    EXPECT_EQ(region.back(), from);
  }
}

}  // namespace
}  // namespace zorik
