// The pictures of the tools: each is of one piece with itself, whatever the screen magnifies by.
#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>
#include <QPixmap>
#include <QTransform>
#include <algorithm>
#include <array>
#include <cmath>

#include "editors/DrawTool.h"
#include "editors/ToolIcons.h"

namespace zorik {
namespace {

constexpr int kSide = 22;
constexpr std::array kAllTools{DrawTool::Pencil, DrawTool::Line, DrawTool::Frame,
                               DrawTool::Box,    DrawTool::Fill, DrawTool::Select};
const QColor kLine(0, 0, 0);
const QColor kFill(200, 40, 40);

// As it looks on white, three times as large.
QImage Large(const QIcon& icon) {
  QPixmap picture = icon.pixmap(QSize(kSide, kSide), 3.0);
  picture.setDevicePixelRatio(1);
  QImage image(kSide * 3, kSide * 3, QImage::Format_RGB32);
  image.fill(Qt::white);
  QPainter(&image).drawPixmap(0, 0, picture);
  return image;
}
QImage Large(DrawTool tool) {
  return Large(IconOf(tool, kLine, kFill));
}

// How far two pictures are from each other at the place where they differ most; smooth edges may be a little
// off.
constexpr int kSmooth = 130;
int Difference(const QImage& one, const QImage& other) {
  if (one.size() != other.size()) return 255;
  int most = 0;
  for (int y = 0; y < one.height(); ++y) {
    for (int x = 0; x < one.width(); ++x) {
      const QColor a = one.pixelColor(x, y);
      const QColor b = other.pixelColor(x, y);
      most = std::max({most, std::abs(a.red() - b.red()), std::abs(a.green() - b.green()),
                       std::abs(a.blue() - b.blue())});
    }
  }
  return most;
}

QImage Aside(const QImage& image) {
  return image.mirrored(true, false);
}
QImage Upright(const QImage& image) {
  return image.mirrored(false, true);
}
QImage Turned(const QImage& image) {
  return image.transformed(QTransform().rotate(90));
}
// Left becomes top.
QImage Exchanged(const QImage& image) {
  return Aside(Turned(image));
}

// The pixels that are not white.
QRect Inked(const QImage& image) {
  QRect inked;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      if (image.pixelColor(x, y).lightness() < 250) inked |= QRect(x, y, 1, 1);
    }
  }
  return inked;
}

bool IsInk(const QImage& image, int x, int y) {
  return image.pixelColor(x, y).lightness() < 128;
}

TEST(ToolIcons, AreSharpOnScreensThatMagnify) {
  for (const QIcon& icon : {IconOf(DrawTool::Box, kLine, kFill), GridIcon(kLine), WholeIcon(kLine)}) {
    QList<int> widths;
    for (const QSize& size : icon.availableSizes()) {
      EXPECT_EQ(size.width(), size.height());
      widths << size.width();
    }
    EXPECT_EQ(widths, (QList<int>{kSide, 2 * kSide, 3 * kSide}));
    for (const int ratio : {1, 2, 3}) {
      const QPixmap picture = icon.pixmap(QSize(kSide, kSide), ratio);
      EXPECT_EQ(picture.size(), QSize(kSide, kSide) * ratio);
      EXPECT_EQ(picture.deviceIndependentSize(), QSizeF(kSide, kSide));
    }
  }
}

TEST(ToolIcons, StandClearOfTheirEdges) {
  std::vector<QImage> pictures{Large(GridIcon(kLine)), Large(WholeIcon(kLine))};
  for (const DrawTool tool : kAllTools) pictures.push_back(Large(tool));
  for (std::size_t i = 0; i < pictures.size(); ++i) {
    const QRect inked = Inked(pictures[i]);
    EXPECT_FALSE(inked.isEmpty()) << i;
    EXPECT_TRUE(pictures[i].rect().adjusted(1, 1, -1, -1).contains(inked)) << i;
    EXPECT_GT(inked.width(), kSide) << i;
    for (std::size_t other = i + 1; other < pictures.size(); ++other) EXPECT_NE(pictures[i], pictures[other]);
  }
}

TEST(ToolIcons, AreTheSameFromAllSidesWhereWhatTheyShowIs) {
  const QImage grid = Large(GridIcon(kLine));
  for (const QImage& other : {Aside(grid), Upright(grid), Turned(grid)}) {
    EXPECT_LT(Difference(grid, other), kSmooth);
  }
  for (const DrawTool tool : {DrawTool::Frame, DrawTool::Box}) {
    const QImage box = Large(tool);
    EXPECT_LT(Difference(box, Aside(box)), kSmooth);
    EXPECT_LT(Difference(box, Upright(box)), kSmooth);
  }
  const QImage line = Large(DrawTool::Line);
  EXPECT_LT(Difference(line, Aside(Upright(line))), kSmooth);
  EXPECT_GT(Difference(line, Aside(line)), 200) << "it is aslant";
  const QImage pencil = Large(DrawTool::Pencil);
  EXPECT_LT(Difference(pencil, Aside(Upright(Exchanged(pencil)))), kSmooth) << "it is aslant itself";
}

// Corners that are as far from each other as the grid's outer lines are long, around a cave.
TEST(ToolIcons, HaveFourEqualCornersAroundTheWholeCave) {
  const QImage whole = Large(WholeIcon(kLine));
  EXPECT_LT(Difference(whole, Aside(whole)), kSmooth);
  EXPECT_LT(Difference(whole, Upright(whole)), kSmooth);
  QImage corners = whole;
  const QRect cave(15, 18, 36, 30);
  QPainter(&corners).fillRect(cave, Qt::white);
  EXPECT_LT(Difference(corners, Exchanged(corners)), kSmooth);
  EXPECT_EQ(Inked(corners).center(), corners.rect().center());
  EXPECT_TRUE(Inked(whole.copy(cave)).isValid());
  EXPECT_FALSE(IsInk(whole, 33, 9)) << "the corners do not meet";
  EXPECT_FALSE(IsInk(whole, 33, 33)) << "nothing is drawn in the cave";
}

TEST(ToolIcons, DrawTheGridInNineFieldsOfWhichTheInnerAreEqual) {
  const QImage grid = Large(GridIcon(kLine));
  std::vector<int> lines;  // that a row between two lines crosses
  const int row = 3 * kSide / 3 + 2;
  for (int x = 1; x < grid.width(); ++x) {
    if (IsInk(grid, x, row) && !IsInk(grid, x - 1, row)) lines.push_back(x);
  }
  ASSERT_EQ(lines.size(), 3U);
  EXPECT_EQ(lines[1] - lines[0], lines[2] - lines[1]);
}

// The rectangle, the filled one and the selection are of one size; only the filled one is filled, and only
// the selection has gaps.
TEST(ToolIcons, TellTheThreeRectanglesApart) {
  const QImage frame = Large(DrawTool::Frame);
  const QImage box = Large(DrawTool::Box);
  const QImage selection = Large(DrawTool::Select);
  EXPECT_EQ(Inked(frame), Inked(box));
  const QRect outer = Inked(frame);
  const QRect dashes = Inked(selection);
  EXPECT_LE((outer.topLeft() - dashes.topLeft()).manhattanLength(), 4);
  EXPECT_LE((outer.bottomRight() - dashes.bottomRight()).manhattanLength(), 4);
  EXPECT_EQ(frame.pixelColor(outer.center()), QColor(Qt::white));
  EXPECT_EQ(box.pixelColor(outer.center()), kFill);
  EXPECT_EQ(selection.pixelColor(outer.center()), QColor(Qt::white));
  int inked = 0;
  const int middle = outer.top() + 2;
  for (int x = outer.left() + 3; x < outer.right() - 3; ++x) {
    EXPECT_TRUE(IsInk(frame, x, middle)) << x;
    inked += IsInk(selection, x, middle) ? 1 : 0;
  }
  const int length = outer.width() - 6;
  EXPECT_NEAR(inked, length / 2, length / 6) << "as long as the gaps";
}

// Its point is at the lower left, its other end is blunt, and it is filled in between.
TEST(ToolIcons, HoldThePencilLikeAHandThatWrites) {
  const QImage pencil = Large(DrawTool::Pencil);
  const QRect inked = Inked(pencil);
  EXPECT_EQ(inked.left() + inked.bottom(), pencil.width() - 1) << "as far from the left as from below";
  EXPECT_EQ(inked.right() + inked.top(), pencil.width() - 1);
  EXPECT_EQ(pencil.pixelColor(33, 33), kFill);
  EXPECT_TRUE(IsInk(pencil, 3 * 4 + 1, 3 * 18 - 2)) << "the point";
}

TEST(ToolIcons, PourADropOutOfTheCan) {
  const QImage can = Large(DrawTool::Fill);
  // The drop is the same on both sides of its middle, and has the colour that fills.
  const int middle = 3 * 37 / 2;
  const QRect drop(middle - 5, 3 * 13, 11, 3 * 5);
  const QImage right = can.copy(drop);
  EXPECT_LT(Difference(right, Aside(right)), kSmooth);
  const QColor inside = can.pixelColor(middle, 3 * 16);
  EXPECT_GT(inside.red(), inside.green() + 100);
  EXPECT_LT(Inked(can).height(), can.height() - 6);
  // What is in the can stands level and under its upper half.
  EXPECT_EQ(can.pixelColor(3 * 10, 3 * 14), kFill);
  EXPECT_EQ(can.pixelColor(3 * 10, 3 * 9), QColor(Qt::white));
  // The can's outline: each of its four sides is as far from the can's middle as the one over against it.
  for (const QPointF corner : {QPointF(3.5, 11), QPointF(10.5, 4), QPointF(17, 10.5), QPointF(10, 17.5)}) {
    EXPECT_TRUE(IsInk(can, qRound(corner.x() * 3), qRound(corner.y() * 3))) << corner.x();
  }
}

}  // namespace
}  // namespace zorik
