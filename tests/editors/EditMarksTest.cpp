// What editing lays over the picture of a cave, pixel by pixel.
#include <QPainter>

#include "editors/EditMarks.h"
#include "editors/EditTiles.h"
#include "editors/EditorScreen.h"

namespace zorik {
namespace {

constexpr int kSize = 20;
constexpr QRect kCells(0, 0, 12, 12);
const QColor kGround(100, 120, 140);
const QColor kWhite(Qt::white);
const QColor kBlack(Qt::black);

QRect PixelsOf(const QRect& cells) {
  return {cells.topLeft() * kSize, cells.size() * kSize};
}

class EditMarksTest : public testing::Test {
 protected:
  EditMarksTest() { tiles.Load(SkinPlaces{ZORIK_SKINS, "Default"}, "Classic"); }

  QImage Painted(const EditMarks& marks, const QRect& cells = kCells) {
    QImage image(PixelsOf(kCells).size(), QImage::Format_RGB32);
    image.fill(kGround);
    QPainter painter(&image);
    PaintMarks(painter, marks, tiles, cells, kSize);
    painter.end();
    return image;
  }

  // The pixels that something was painted on.
  static QRect Touched(const QImage& image) {
    QRect touched;
    for (int y = 0; y < image.height(); ++y) {
      for (int x = 0; x < image.width(); ++x) {
        if (image.pixelColor(x, y) != kGround) touched |= QRect(x, y, 1, 1);
      }
    }
    return touched;
  }

  // The pixels of the frame that is so many pixels inside of a rectangle's edge, once around from its top
  // left.
  static std::vector<QColor> Ring(const QImage& image, const QRect& area, int inside) {
    const QRect ring = area.adjusted(inside, inside, -inside, -inside);
    std::vector<QColor> pixels;
    for (int x = ring.left(); x < ring.right(); ++x) pixels.push_back(image.pixelColor(x, ring.top()));
    for (int y = ring.top(); y < ring.bottom(); ++y) pixels.push_back(image.pixelColor(ring.right(), y));
    for (int x = ring.right(); x > ring.left(); --x) pixels.push_back(image.pixelColor(x, ring.bottom()));
    for (int y = ring.bottom(); y > ring.top(); --y) pixels.push_back(image.pixelColor(ring.left(), y));
    return pixels;
  }
  static void ExpectRing(const QImage& image, const QRect& area, int inside, const QColor& colour) {
    for (const QColor& pixel : Ring(image, area, inside)) EXPECT_EQ(pixel, colour) << inside;
  }

  // Dashes that go around there: light and dark alone, in the two outermost frames.
  static void ExpectDashes(const QImage& image, const QRect& area) {
    for (const int inside : {0, 1}) {
      int light = 0;
      int dark = 0;
      for (const QColor& pixel : Ring(image, area, inside)) {
        light += pixel == kWhite ? 1 : 0;
        dark += pixel == kBlack ? 1 : 0;
      }
      const int length = 2 * (area.width() + area.height()) - 4 - 8 * inside;
      EXPECT_EQ(light + dark, length) << "nothing else is in between";
      EXPECT_GT(light, length / 4) << "seen on dark tiles";
      EXPECT_GT(dark, length / 4) << "seen on light ones";
    }
  }

  // Whether the cell shows a tile so that the ground is seen through it a little, or not at all.
  void ExpectTile(const QImage& image, QPoint cell, char letter, bool through) {
    const QImage& tile = tiles.Tile(ToolOfLetter(letter), ValueOf(letter), kSize);
    for (int y = 0; y < kSize; ++y) {
      for (int x = 0; x < kSize; ++x) {
        const int now = image.pixelColor(cell * kSize + QPoint(x, y)).green();
        const int whole = tile.pixelColor(x, y).green();
        if (!through) {
          ASSERT_EQ(now, whole) << letter << x << ' ' << y;
          continue;
        }
        const int far = std::abs(whole - kGround.green());
        ASSERT_LE(std::abs(now - whole), far / 2) << letter << x << ' ' << y;
        if (far > 20) {
          ASSERT_NE(now, whole) << letter << x << ' ' << y;
        }
      }
    }
  }

  EditTiles tiles;
};

TEST_F(EditMarksTest, PaintsNothingWhereNothingIsMarked) {
  EXPECT_TRUE(Touched(Painted({})).isNull());
}

TEST_F(EditMarksTest, MarksACellWithALightFrameAroundADarkOne) {
  EditMarks marks;
  marks.mark = QPoint(3, 5);
  const QImage image = Painted(marks);
  const QRect cell = PixelsOf({3, 5, 1, 1});
  EXPECT_EQ(Touched(image), cell);
  ExpectRing(image, cell, 0, kWhite);
  ExpectRing(image, cell, 1, kBlack);
  for (int inside = 2; inside < kSize / 2; ++inside) ExpectRing(image, cell, inside, kGround);
}

TEST_F(EditMarksTest, GoesAroundTheSelectionInLightAndDark) {
  EditMarks marks;
  marks.selection = QRect(2, 3, 4, 3);
  const QImage image = Painted(marks);
  const QRect area = PixelsOf(*marks.selection);
  EXPECT_EQ(Touched(image), area);
  ExpectDashes(image, area);
  for (int inside = 2; inside < area.height() / 2; ++inside) ExpectRing(image, area, inside, kGround);
  // All dashes and all gaps are equally long along a side.
  std::vector<int> runs;
  QColor before;
  for (int x = area.left(); x <= area.right(); ++x) {
    const QColor pixel = image.pixelColor(x, area.top());
    if (x == area.left() || pixel != before) runs.push_back(0);
    ++runs.back();
    before = pixel;
  }
  ASSERT_GT(runs.size(), 6U);
  for (std::size_t i = 3; i + 2 < runs.size(); ++i) EXPECT_EQ(runs[i], runs[i - 2]) << i;
}

TEST_F(EditMarksTest, PartsTheCellsWithLightLinesOfWhichEveryTenthIsStronger) {
  EditMarks marks;
  marks.grid = true;
  const QImage image = Painted(marks);
  const int between = kSize / 2;
  const QColor weak = image.pixelColor(kSize, between);
  const QColor strong = image.pixelColor(10 * kSize, between);
  EXPECT_GT(weak.lightness(), kGround.lightness());
  EXPECT_GT(strong.lightness(), weak.lightness());
  EXPECT_LT(strong.lightness(), 255) << "what is below is still seen";
  for (int pixel = 0; pixel < image.width(); ++pixel) {
    const int cell = pixel / kSize;
    const bool line = cell > 0 && pixel % kSize == 0;
    const QColor colour = !line ? kGround : cell % 10 == 0 ? strong : weak;
    for (const int along : {between, 11 * kSize + between}) {
      EXPECT_EQ(image.pixelColor(pixel, along), colour) << pixel;
      EXPECT_EQ(image.pixelColor(along, pixel), colour) << pixel;
    }
  }
}

// The picture is painted in pieces: what is painted of a piece is what the whole has there.
TEST_F(EditMarksTest, PaintsTheGridOfSomeCellsAsThatOfAll) {
  EditMarks marks;
  marks.grid = true;
  const QImage whole = Painted(marks);
  const QRect some(3, 4, 5, 6);
  const QImage piece = Painted(marks, some);
  EXPECT_EQ(piece.copy(PixelsOf(some)), whole.copy(PixelsOf(some)));
  EXPECT_EQ(Touched(piece), PixelsOf(some));
}

TEST_F(EditMarksTest, ShowsAShapeThroughWhichTheCaveIsStillSeen) {
  EditMarks marks;
  marks.shape = {{1, 1}, {2, 1}, {2, 4}};
  marks.letter = 'R';
  marks.mark = QPoint(8, 8);
  const QImage image = Painted(marks);
  for (const CavePlace place : marks.shape) ExpectTile(image, {place.x, place.y}, 'R', true);
  EXPECT_EQ(image.pixelColor(PixelsOf({1, 4, 1, 1}).center()), kGround);
  EXPECT_EQ(image.pixelColor(PixelsOf({3, 1, 1, 1}).center()), kGround);
  ExpectRing(image, PixelsOf({8, 8, 1, 1}), 0, kWhite);
}

TEST_F(EditMarksTest, PaintsNoTileOfCellsThatAreNotPainted) {
  EditMarks marks;
  marks.shape = {{1, 1}, {2, 1}, {5, 5}};
  marks.letter = 'R';
  EXPECT_EQ(Touched(Painted(marks, {2, 1, 4, 4})), PixelsOf({2, 1, 1, 1}));
}

TEST_F(EditMarksTest, ShowsTheBlockInTheHandInsteadOfTheSelection) {
  EditMarks marks;
  marks.block = CaveBlock{3, 2, "RD;W3A"};
  marks.blockPlace = QPoint(4, 2);
  marks.selection = QRect(0, 0, 2, 2);
  marks.left = QRect(8, 8, 2, 3);
  const QImage image = Painted(marks);
  const QRect block = PixelsOf({4, 2, 3, 2});
  ExpectDashes(image, block);
  EXPECT_EQ(Touched(image.copy(PixelsOf({0, 0, 4, 12}))), QRect()) << "the selection waits";
  // Where the block came from, it is empty, and nothing is seen through there.
  for (int y = 8; y < 11; ++y) {
    for (int x = 8; x < 10; ++x) ExpectTile(image, {x, y}, '.', false);
  }
  EXPECT_EQ(Touched(image), block | PixelsOf(*marks.left));
  // Each letter of the block stands in its place, inside of the dashes.
  EditMarks single;
  for (int y = 0; y < 2; ++y) {
    for (int x = 0; x < 3; ++x) {
      single.shape = {{4 + x, 2 + y}};
      single.letter = marks.block.At(x, y);
      const QRect inner = PixelsOf({4 + x, 2 + y, 1, 1}).adjusted(2, 2, -2, -2);
      EXPECT_EQ(image.copy(inner), Painted(single).copy(inner)) << x << ' ' << y;
    }
  }
}

}  // namespace
}  // namespace zorik
