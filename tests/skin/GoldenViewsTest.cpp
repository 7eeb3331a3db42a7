#include <gtest/gtest.h>

#include <cstdlib>

#include "PictureFolder.h"
#include "WholeView.h"
#include "support/Pictured.h"

namespace zorik {
namespace {

using Art = std::vector<std::string>;  // a letter for each pixel, or for each block of a tile

constexpr int kBlock = 20;  // a tile has 4 x 4 blocks of so many pixels

struct Paint {
  char letter;
  QRgb colour;
};
constexpr Paint kPaints[] = {{'.', 0xFF101010}, {',', 0xFF303050}, {'d', 0xFF805020}, {'D', 0xFFC08040},
                             {'o', 0xFFF0F0F0}, {'^', 0xFFE02020}, {'w', 0xFFA0A0B0}, {'x', 0xFF20C020},
                             {'y', 0xFF2020E0}, {'k', 0xFF000000}};

QRgb ColourOf(char letter) {
  for (const Paint& paint : kPaints) {
    if (paint.letter == letter) return paint.colour;
  }
  ADD_FAILURE() << "no paint " << letter;
  return 0;
}

bool Near(QRgb one, QRgb other) {
  const auto close = [](int a, int b) { return std::abs(a - b) <= 2; };
  return close(qRed(one), qRed(other)) && close(qGreen(one), qGreen(other)) &&
         close(qBlue(one), qBlue(other));
}

char LetterOf(QRgb colour) {
  for (const Paint& paint : kPaints) {
    if (Near(paint.colour, colour)) return paint.letter;
  }
  return '?';
}

Art ArtOf(const QImage& image) {
  Art art;
  for (int y = 0; y < image.height(); ++y) {
    std::string line;
    for (int x = 0; x < image.width(); ++x) line += LetterOf(image.pixel(x, y));
    art.push_back(line);
  }
  return art;
}

// Views of small caves in a skin of blocks. With four pixels to a cell, a block is one pixel, so what is to
// be seen can be written down by hand.
class GoldenViews : public test::PictureFolder {
 protected:
  GoldenViews() {
    Draw("Space", {"....", ".,..", "....", "....",  //
                   "....", "..,.", "....", "...."});
    Draw("Dirt", {"dddd", "dDdd", "dddd", "dddD"});
    Draw("Steel", {"wwww", "wwww", "wwww", "wwww"});
    // It looks at us from the second column.
    Draw("Dog", {"wwwwkookwwww", "wwwwokoowwww", "wwwwkkoowwww", "wwww^kkowwww"});
    Draw("Gem", {"xkkx", "kxxk", "kxxk", "xkkx",  //
                 "kyyk", "ykky", "ykky", "kyyk"});
  }

  void Draw(const std::string& name, const Art& art) {
    QImage image(static_cast<int>(art[0].size()) * kBlock, static_cast<int>(art.size()) * kBlock,
                 QImage::Format_RGB32);
    for (int y = 0; y < image.height(); ++y) {
      for (int x = 0; x < image.width(); ++x) {
        const std::string& line = art[static_cast<std::size_t>(y / kBlock)];
        image.setPixel(x, y, ColourOf(line[static_cast<std::size_t>(x / kBlock)]));
      }
    }
    Save("Default/Game/" + name + ".bmp", image);
  }

  // Pictures all cells anew, now that the sets are there.
  void Load(test::Pictured& cave) {
    PictureCache pictures;
    tiles_.Load(pictures, places_, cave.hra.Scheme);
    cave.pictures.SetFrames(tiles_.Frames());
    for (int y = 0; y < cave.hra.CaveHeight; ++y) {
      for (int x = 0; x < cave.hra.CaveWidth; ++x) cave.Again(x, y);
    }
  }

  Art View(test::Pictured& cave, const ViewArea& area, QSize cell) {
    Load(cave);
    test::DrawView(area, cell, cave.pictures, tiles_, drawn_);
    return ArtOf(drawn_);
  }

  TileSets tiles_;
  QImage drawn_;
};

const test::Picture kCave{"1;;W", ".D.;"};

// Black shows the first frame of Space; empty cells have the one of their place.
const Art kWholeCave{".oo.ddddddddwwww",  //
                     "o,oodDdddDddwwww",  //
                     "..ooddddddddwwww",  //
                     "^..odddDdddDwwww",  //
                     "....x..x....dddd",  //
                     "..,..xx...,.dDdd",  //
                     ".....xx.....dddd",  //
                     "....x..x....dddD"};

TEST_F(GoldenViews, ShowAWholeCave) {
  test::Pictured cave(kCave);
  EXPECT_EQ(View(cave, ZornePole::Whole(4, 2), {4, 4}), kWholeCave);
}

TEST_F(GoldenViews, ShowTheSecondFrameOneTickLater) {
  test::Pictured cave(kCave);
  cave.hra.Elapsed = 1;
  Art expected = kWholeCave;
  expected[4] = ".....yy.....dddd";
  expected[5] = "..,.y,.y..,.dDdd";
  expected[6] = "....y..y....dddd";
  expected[7] = ".....yy.....dddD";
  EXPECT_EQ(View(cave, ZornePole::Whole(4, 2), {4, 4}), expected);
}

// From the second pixel and the third line on, two and a quarter cells by one and a half.
TEST_F(GoldenViews, ScrollByPartsOfACell) {
  test::Pictured cave(kCave);
  const Art expected{".oodddddd",  //
                     "..odddDdd",  //
                     "...x..x..",  //
                     ".,..xx...",  //
                     "....xx...",  //
                     "...x..x.."};
  EXPECT_EQ(View(cave, {20, 40, 180, 120}, {4, 4}), expected);
}

TEST_F(GoldenViews, EndInThePartOfACellThatIsLeft) {
  test::Pictured cave(kCave);
  const Art expected{"ddwwww", "ddwwww", "dDwwww", "..dddd"};
  EXPECT_EQ(View(cave, {200, 20, 120, 80}, {4, 4}), expected);
}

TEST_F(GoldenViews, StretchCellsToTheFrame) {
  test::Pictured cave(kCave);
  Art expected;
  for (const std::string& line : kWholeCave) {
    std::string wide;
    for (const char letter : line) wide.append(2, letter);
    expected.push_back(wide);
  }
  EXPECT_EQ(View(cave, ZornePole::Whole(4, 2), {8, 4}), expected);
}

// At the tiles' own size each pixel of the view is a pixel of a tile, whatever the offset.
TEST_F(GoldenViews, TakeEachPixelFromItsPlaceAtEveryOffset) {
  QImage tile(80, 80, QImage::Format_RGB32);
  for (int y = 0; y < 80; ++y) {
    for (int x = 0; x < 80; ++x) tile.setPixel(x, y, qRgb(50 + x, 50 + y, 90));
  }
  Save("Default/Game/Dirt.bmp", tile);
  test::Pictured cave({";;;1", ";;;;", ";;;;"});
  Load(cave);
  for (int offset = 0; offset < 80; ++offset) {
    const int left = offset, top = 79 - offset;
    test::DrawView({left, top, 160, 130}, {80, 80}, cave.pictures, tiles_, drawn_);
    ASSERT_EQ(drawn_.size(), QSize(160, 130));
    for (int y = 0; y < 130; ++y) {
      for (int x = 0; x < 160; ++x) {
        ASSERT_EQ(drawn_.pixel(x, y), tile.pixel((left + x) % 80, (top + y) % 80))
            << x << "," << y << " offset " << offset;
      }
    }
  }
}

TEST_F(GoldenViews, LeaveNoPixelOfAnOlderOne) {
  constexpr QRgb kOld = 0xFFFF00FF;
  test::Pictured cave({";;;1", ";;;;", ";;;;"});
  Load(cave);
  for (const int cell : {7, 49, 65}) {
    for (int offset = 0; offset < 80; ++offset) {
      const ViewArea area{offset, offset, 200, 120};
      drawn_ = test::Plain(kOld, DrawnSize(area, {cell, cell}));
      test::DrawView(area, {cell, cell}, cave.pictures, tiles_, drawn_);
      for (int y = 0; y < drawn_.height(); ++y) {
        for (int x = 0; x < drawn_.width(); ++x) ASSERT_NE(drawn_.pixel(x, y), kOld) << x << "," << y;
      }
    }
  }
}

TEST_F(GoldenViews, OfNoSizeAreEmpty) {
  test::Pictured cave(kCave);
  EXPECT_EQ(View(cave, {}, {40, 40}), Art{});
  EXPECT_EQ(View(cave, {0, 0, 160, 80}, {0, 40}), Art{});
}

}  // namespace
}  // namespace zorik
