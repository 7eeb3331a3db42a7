#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <vector>

#include "PictureFolder.h"
#include "WholeView.h"
#include "support/Pictured.h"
#include "view/Edges.h"

namespace zorik {
namespace {

using Lines = std::vector<std::string>;

// A letter for each kind of ground, three lines of three.
EdgeMask MaskIn(const Lines& lines) {
  return EdgesAround(1, 1, [&](int x, int y) {
    const char letter = lines[static_cast<std::size_t>(y)][static_cast<std::size_t>(x)];
    return letter == ';' ? Ground::Earth : letter == 'W' ? Ground::Covered : Ground::Bare;
  });
}

Lines EdgesIn(const Lines& lines) {
  const Ground middle = lines[1][1] == ';' ? Ground::Earth : Ground::Bare;
  const std::string letters = "bBoO+x.";  // beside, over, both, cut, none; large letters where earth ends
  std::string found;
  for (int quarter = 0; quarter < kQuarters; ++quarter) {
    found += letters[static_cast<std::size_t>(EdgeIn(middle, MaskIn(lines), quarter))];
  }
  return {found.substr(0, 2), found.substr(2)};
}

TEST(Edges, AreNoneWhereThereIsOneGroundOnly) {
  EXPECT_EQ(MaskIn({"...", "...", "..."}), 0);
  EXPECT_EQ(MaskIn({";;;", ";;;", ";;;"}), 0);
  EXPECT_EQ(MaskIn({"WWW", "W.W", "WWW"}), 0);
  EXPECT_EQ(MaskIn({"WWW", "W;W", "WWW"}), 0) << "earth and walls meet in straight lines";
  EXPECT_EQ(MaskIn({";;;", ";W;", ";;;"}), 0) << "a wall fills its cell";
}

TEST(Edges, RoundAHoleInTheEarth) {
  EXPECT_EQ(EdgesIn({";;;", ";.;", ";;;"}), (Lines{"++", "++"}));
  EXPECT_EQ(EdgesIn({".;.", ";.;", ".;."}), (Lines{"++", "++"})) << "whatever is in the corners";
}

TEST(Edges, RunAlongATunnel) {
  EXPECT_EQ(EdgesIn({";;;", "...", ";;;"}), (Lines{"oo", "oo"}));
  EXPECT_EQ(EdgesIn({";.;", ";.;", ";.;"}), (Lines{"bb", "bb"}));
}

TEST(Edges, CloseTheEndOfATunnel) {
  EXPECT_EQ(EdgesIn({";;;", ";..", ";;;"}), (Lines{"+o", "+o"}));
}

TEST(Edges, EndWhereTheEarthDoes) {
  EXPECT_EQ(EdgesIn({"...", ";..", "..."}), (Lines{"B.", "B."}));
  EXPECT_EQ(EdgesIn({"...", "...", ".;."}), (Lines{"..", "OO"}));
  EXPECT_EQ(EdgesIn({"...", "...", ";;."}), (Lines{"..", "oO"}));
}

TEST(Edges, GoOnUpToAWall) {
  EXPECT_EQ(EdgesIn({"WWW", ";..", ";.."}), (Lines{"b.", "b."}));
  EXPECT_EQ(EdgesIn({"W..", ";..", ";.."}), (Lines{"B.", "b."})) << "the wall ends too";
  EXPECT_EQ(EdgesIn({".W.", ";..", ";.."}), (Lines{"B.", "b."}));
}

TEST(Edges, AreNoneForEarthInTheCornerAlone) {
  EXPECT_EQ(MaskIn({";.;", "...", ";.;"}), 0);
}

TEST(Edges, CutTheCornersOffTheEarth) {
  EXPECT_EQ(EdgesIn({"...", ".;.", "..."}), (Lines{"xx", "xx"}));
  EXPECT_EQ(EdgesIn({"...", ";;;", ";;;"}), (Lines{"..", ".."})) << "a floor has no corners";
  EXPECT_EQ(EdgesIn({"...", ";;.", ";;;"}), (Lines{".x", ".."}));
  EXPECT_EQ(EdgesIn({"..W", ";;.", ";;;"}), (Lines{".x", ".."}));
}

TEST(Edges, LeaveACornerWholeThatAnotherOneTouches) {
  EXPECT_EQ(EdgesIn({"..;", ";;.", ";;;"}), (Lines{"..", ".."}));
}

constexpr QRgb kBare = 0xFF101010, kEarth = 0xFF805020, kWall = 0xFFA0A0B0, kBall = 0xFFF0F0F0;
constexpr std::array<QRgb, kEdgeColumns> kMarks{0xFF200000, 0xFF400000, 0xFF002000,
                                                0xFF004000, 0xFF000020, 0xFF000040};

// A skin of plain colours, in which the edges are marks in the outer corners of their quarters.
class EdgePictures : public test::PictureFolder {
 protected:
  EdgePictures() {
    Paint("Default/Game/Space.bmp", kBare);
    Paint("Default/Game/Dirt.bmp", kEarth);
    Paint("Default/Game/Steel.bmp", kWall);
    QImage ball = test::Plain(0xFF000000);
    for (int y = 20; y < 60; ++y) {
      for (int x = 0; x < 60; ++x) ball.setPixel(x, y, kBall);
    }
    Save("Default/Game/Boulder.bmp", ball);
  }

  void SaveEdges(const std::string& path) const {
    QImage edges = test::Plain(0xFF000000, {kEdgeColumns * kTileSize, kTileSize});
    for (int x = 0; x < edges.width(); ++x) {
      for (int y = 0; y < kTileSize; ++y) {
        const int across = x % kTileSize;
        if ((across < 30 || across >= 50) && (y < 30 || y >= 50)) {
          edges.setPixel(x, y, kMarks[static_cast<std::size_t>(x / kTileSize)]);
        }
      }
    }
    Save(path, edges);
  }

  QImage Draw(test::Pictured& cave, int cell) {
    PictureCache pictures;
    tiles_.Load(pictures, places_, cave.hra.Scheme);
    const ViewArea area = ZornePole::Whole(cave.hra.CaveWidth, cave.hra.CaveHeight);
    test::DrawView(area, {cell, cell}, cave.pictures, tiles_, drawn_);
    return drawn_.copy();
  }

  TileSets tiles_;
  QImage drawn_;
};

// The colour an eighth of a cell into the given quarter.
QRgb CornerOf(const QImage& image, int cell, int x, int y, int quarter) {
  const int near = cell / 8, far = cell - 1 - cell / 8;
  return image.pixel(x * cell + (quarter % 2 == 0 ? near : far), y * cell + (quarter / 2 == 0 ? near : far));
}

TEST_F(EdgePictures, LieBelowWhatStandsOnTheGround) {
  SaveEdges("Default/Game/Edges.bmp");
  test::Pictured cave({";;;", ";R;", ";;1"}, {}, 1);
  for (const int cell : {20, 24, 49, 98}) {
    const QImage image = Draw(cave, cell);
    for (int quarter = 0; quarter < kQuarters; ++quarter) {
      EXPECT_EQ(CornerOf(image, cell, 1, 1, quarter), kMarks[4]) << cell << ", quarter " << quarter;
    }
    EXPECT_EQ(image.pixel(cell + cell / 2, cell + cell / 2), kBall) << cell;
    EXPECT_EQ(CornerOf(image, cell, 0, 0, 0), kEarth) << "the cave's own border is no hole";
  }
}

TEST_F(EdgePictures, CutTheCornerOfTheEarth) {
  SaveEdges("Default/Game/Edges.bmp");
  test::Pictured cave({"1..", ".;;", ".;;"}, {}, 1);
  const QImage image = Draw(cave, 24);
  EXPECT_EQ(CornerOf(image, 24, 1, 1, 0), kMarks[5]);
  EXPECT_EQ(CornerOf(image, 24, 1, 1, 3), kEarth);
}

TEST_F(EdgePictures, AreDrawnAnewAroundACellThatWasDug) {
  SaveEdges("Default/Game/Edges.bmp");
  test::Pictured cave({"1;;;", ";;;;", "..;;"}, {}, 1);
  const QImage before = Draw(cave, 24);
  EXPECT_EQ(CornerOf(before, 24, 1, 2, 1), kMarks[4]);
  cave.hra.SetObject({2, 1}, kSpace, kFlat);
  cave.Again(2, 1);
  EXPECT_EQ(CornerOf(Draw(cave, 24), 24, 1, 2, 1), kMarks[4])
      << "the neighbours on both sides are earth still";
  cave.hra.SetObject({2, 2}, kSpace, kFlat);
  cave.Again(2, 2);
  const QImage after = Draw(cave, 24);
  EXPECT_EQ(CornerOf(after, 24, 1, 2, 1), kMarks[3]) << "the earth above ends here";
  EXPECT_EQ(CornerOf(after, 24, 1, 1, 3), kMarks[5]) << "nobody has told of this cell";
}

TEST_F(EdgePictures, AreTheSameInAViewThatBeginsWithinTheCave) {
  SaveEdges("Default/Game/Edges.bmp");
  test::Pictured cave({";;;;;", ";R;.;", ";;..1", ";;;;;"}, {}, 1);
  const QImage whole = Draw(cave, 40);
  test::DrawView({80, 80, 240, 160}, {40, 40}, cave.pictures, tiles_, drawn_);
  EXPECT_EQ(drawn_, whole.copy(40, 40, 120, 80));
}

TEST_F(EdgePictures, AreNoneInASkinWithoutThem) {
  test::Pictured cave({";;;", ";R;", ";;1"}, {}, 1);
  const QImage image = Draw(cave, 24);
  EXPECT_FALSE(tiles_.HasEdges());
  EXPECT_EQ(CornerOf(image, 24, 1, 1, 0), kBare);
}

TEST_F(EdgePictures, OfTheDefaultSkinAreNotLaidOverAnothersEarth) {
  SaveEdges("Default/Game/Edges.bmp");
  test::Pictured cave({";;;", ";R;", ";;1"}, {}, 1);
  places_.Skin = "Mine";
  Touch("Mine/Menu/skindata.txt");
  EXPECT_EQ(CornerOf(Draw(cave, 24), 24, 1, 1, 0), kMarks[4]) << "it has no earth of its own";
  Paint("Mine/Game/Dirt.bmp", kWall);
  EXPECT_EQ(CornerOf(Draw(cave, 24), 24, 1, 1, 0), kBare);
  SaveEdges("Mine/Game/Edges.bmp");
  EXPECT_EQ(CornerOf(Draw(cave, 24), 24, 1, 1, 0), kMarks[4]);
}

TEST_F(EdgePictures, OfASchemeGoBeforeTheOthers) {
  SaveEdges("Default/Game/Edges.bmp");
  Paint("Default/Game/Classic/Edges.bmp", kWall, {kEdgeColumns * kTileSize, kTileSize});
  test::Pictured cave({";;;", ";R;", ";;1"}, {}, 1);
  cave.hra.Scheme = "Classic";
  EXPECT_EQ(CornerOf(Draw(cave, 24), 24, 1, 1, 0), kWall);
  cave.hra.Scheme = "Cold";
  EXPECT_EQ(CornerOf(Draw(cave, 24), 24, 1, 1, 0), kMarks[4]);
}

TEST_F(EdgePictures, ThatLackFramesDrawNothingThere) {
  Paint("Default/Game/Edges.bmp", kMarks[0]);
  test::Pictured cave({";;;", ";R;", ";;1"}, {}, 1);
  EXPECT_EQ(CornerOf(Draw(cave, 24), 24, 1, 1, 0), kBare);
}

}  // namespace
}  // namespace zorik
