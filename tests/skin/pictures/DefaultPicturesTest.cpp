#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>
#include <algorithm>
#include <array>
#include <cmath>
#include <filesystem>
#include <iterator>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

#include "core/Objects.h"
#include "skin/Pictures.h"
#include "view/Edges.h"
#include "view/ZornePole.h"

namespace zorik {
namespace {

namespace fs = std::filesystem;

// What a tile covers.
enum class Cover {
  Object,  // stands on the ground, which shows around it
  Cell,    // fills its cell
  Blast,   // burns on in the cells beside it
};

struct Tile {
  const char* name;
  int columns;
  int rows;
  Cover cover;
  bool animated = false;  // rows are steps of a loop
  bool schemes = false;   // has a picture of its own in each scheme
};

std::ostream& operator<<(std::ostream& out, const Tile& tile) {
  return out << tile.name;
}

constexpr Tile kTiles[] = {
    {"Space", 1, 2, Cover::Cell, false, true},
    {"Dirt", 1, 4, Cover::Cell, false, true},
    {"Boulder", 1, 1, Cover::Object},
    {"Gem", 1, 8, Cover::Object, true, true},
    {"Dog", 9, 1, Cover::Object},
    {"Brick", 1, 3, Cover::Cell, false, true},
    {"FireFly", 1, 4, Cover::Object, true},
    {"ButterFly", 1, 4, Cover::Object, true},
    {"Steel", 1, 1, Cover::Cell, false, true},
    {"Finish", 1, 4, Cover::Object, true},
    {"Amoeba", 1, 8, Cover::Cell, true},
    {"Box", 1, 1, Cover::Object},
    {"MagicWall", 1, 4, Cover::Cell, true, true},
    {"1to2", 4, 1, Cover::Cell, false, true},
    {"Slime", 1, 8, Cover::Cell, true},
    {"Fly", 1, 4, Cover::Object, true},
    {"Explosion", 4, 4, Cover::Blast, true},
    {"Keys", 3, 4, Cover::Object, true},
    {"Locks", 3, 1, Cover::Cell},
    {"Teleport", 1, 7, Cover::Cell, true},
    {"DragonFly", 1, 4, Cover::Object, true},
    {"Cat", 4, 1, Cover::Object},
    {"Bomb", 1, 2, Cover::Object},
    {"Biomasa", 1, 4, Cover::Cell, true},
    {"Flea", 1, 4, Cover::Object, true},
    {"Sensor", 1, 3, Cover::Object},
    {"CatKey", 1, 4, Cover::Object, true},
    {"NoSurprise", 1, 4, Cover::Cell, false, true},
};

const std::string kGame = ZORIK_SKINS "/Default/Game/";
constexpr std::array<const char*, 4> kOtherSchemes{"Cold", "Hot", "Natural", "Mystery"};

QImage Read(const std::string& path) {
  return QImage(QString::fromStdString(path));
}

// The pictures of a tile in all schemes; Classic is the one that lies beside the folders of the others.
std::vector<std::string> PathsOf(const Tile& tile) {
  std::vector<std::string> paths{kGame + tile.name + ".bmp"};
  for (const char* scheme : kOtherSchemes) {
    if (tile.schemes) paths.push_back(kGame + scheme + "/" + tile.name + ".bmp");
  }
  return paths;
}

QImage Frame(const QImage& sheet, int column, int row) {
  return sheet.copy(column * kTileSize, row * kTileSize, kTileSize, kTileSize);
}

template <typename Predicate>
int CountPixels(const QImage& image, Predicate predicate) {
  int count = 0;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) count += predicate(image.pixel(x, y)) ? 1 : 0;
  }
  return count;
}

bool IsOpaque(QRgb colour) {
  return qAlpha(colour) == 255;
}
bool IsClear(QRgb colour) {
  return qAlpha(colour) == 0;
}
bool IsTooDark(QRgb colour) {
  return IsOpaque(colour) && std::max({qRed(colour), qGreen(colour), qBlue(colour)}) < 10;
}

struct Mean {
  double red = 0, green = 0, blue = 0;
};

// Of the opaque pixels only.
Mean MeanOf(const QImage& image) {
  Mean mean;
  const double part = 1.0 / CountPixels(image, IsOpaque);
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      const QRgb colour = image.pixel(x, y);
      if (!IsOpaque(colour)) continue;
      mean.red += part * qRed(colour);
      mean.green += part * qGreen(colour);
      mean.blue += part * qBlue(colour);
    }
  }
  return mean;
}

double Distance(const Mean& a, const Mean& b) {
  return std::hypot(a.red - b.red, a.green - b.green, a.blue - b.blue);
}

std::string NameOf(const testing::TestParamInfo<Tile>& info) {
  return std::string("Tile_") + info.param.name;
}

class TilePictures : public testing::TestWithParam<Tile> {};
class LoopPictures : public testing::TestWithParam<Tile> {};    // those that are animated
class ObjectPictures : public testing::TestWithParam<Tile> {};  // those that stand on the ground

template <typename Predicate>
std::vector<Tile> TilesThat(Predicate predicate) {
  std::vector<Tile> tiles;
  std::copy_if(std::begin(kTiles), std::end(kTiles), std::back_inserter(tiles), predicate);
  return tiles;
}

TEST_P(TilePictures, HaveExactlyTheFramesThatTheGameShows) {
  const Tile& tile = GetParam();
  for (const std::string& path : PathsOf(tile)) {
    const QImage sheet = Read(path);
    ASSERT_FALSE(sheet.isNull()) << path;
    EXPECT_EQ(sheet.width(), tile.columns * kTileSize) << path;
    EXPECT_EQ(sheet.height(), tile.rows * kTileSize) << path;
  }
}

TEST_P(TilePictures, CarryAnAlphaChannel) {
  for (const std::string& path : PathsOf(GetParam())) {
    const QImage sheet = Read(path);
    EXPECT_EQ(sheet.depth(), 32) << path;
    EXPECT_TRUE(sheet.hasAlphaChannel()) << path;
  }
}

TEST_P(TilePictures, HaveNoEmptyFrame) {
  const Tile& tile = GetParam();
  constexpr int kLeast = kTileSize * kTileSize / 6;
  for (const std::string& path : PathsOf(tile)) {
    const QImage sheet = Read(path);
    for (int row = 0; row < tile.rows; ++row) {
      for (int column = 0; column < tile.columns; ++column) {
        EXPECT_GT(CountPixels(Frame(sheet, column, row), [](QRgb colour) { return qAlpha(colour) > 127; }),
                  kLeast)
            << path << ", column " << column << ", row " << row;
      }
    }
  }
}

TEST_P(TilePictures, LeaveTheGroundInViewOrFillTheirCell) {
  const Tile& tile = GetParam();
  for (const std::string& path : PathsOf(tile)) {
    const QImage sheet = Read(path);
    for (int row = 0; row < tile.rows; ++row) {
      for (int column = 0; column < tile.columns; ++column) {
        const QImage frame = Frame(sheet, column, row);
        if (tile.cover == Cover::Cell) {
          EXPECT_EQ(CountPixels(frame, IsOpaque), kTileSize * kTileSize) << path << ", row " << row;
        } else if (tile.cover == Cover::Object) {
          EXPECT_GT(CountPixels(frame, IsClear), kTileSize * kTileSize / 10) << path << ", row " << row;
        }
      }
    }
  }
}

TEST_P(TilePictures, HaveNoOpaqueColourThatIsNearlyBlack) {
  for (const std::string& path : PathsOf(GetParam())) {
    EXPECT_EQ(CountPixels(Read(path), IsTooDark), 0) << path;
  }
}

TEST_P(LoopPictures, ShowSomethingNewInEachStep) {
  const Tile& tile = GetParam();
  for (const std::string& path : PathsOf(tile)) {
    const QImage sheet = Read(path);
    for (int column = 0; column < tile.columns; ++column) {
      for (int row = 0; row < tile.rows; ++row) {
        EXPECT_NE(Frame(sheet, column, row), Frame(sheet, column, (row + 1) % tile.rows))
            << path << ", column " << column << ", row " << row;
      }
    }
  }
}

// A frame is drawn beside other frames, so nothing of it may hang over into the next.
TEST_P(ObjectPictures, EndBeforeTheEdgeOfTheirFrame) {
  const Tile& tile = GetParam();
  const QImage sheet = Read(kGame + tile.name + ".bmp");
  for (int row = 0; row < tile.rows; ++row) {
    for (int column = 0; column < tile.columns; ++column) {
      const QImage frame = Frame(sheet, column, row);
      for (int i = 0; i < kTileSize; ++i) {
        for (const QRgb edge : {frame.pixel(i, 0), frame.pixel(i, kTileSize - 1), frame.pixel(0, i),
                                frame.pixel(kTileSize - 1, i)}) {
          ASSERT_LT(qAlpha(edge), 128) << tile.name << ", column " << column << ", row " << row << ", " << i;
        }
      }
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Default, TilePictures, testing::ValuesIn(kTiles), NameOf);
INSTANTIATE_TEST_SUITE_P(Default, LoopPictures,
                         testing::ValuesIn(TilesThat([](const Tile& tile) { return tile.animated; })),
                         NameOf);
INSTANTIATE_TEST_SUITE_P(Default, ObjectPictures, testing::ValuesIn(TilesThat([](const Tile& tile) {
                           return tile.cover == Cover::Object;
                         })),
                         NameOf);

TEST(DefaultPictures, HoldEveryTileSetOfTheGame) {
  ASSERT_EQ(std::size(kTiles), kTileSets.size());
  for (std::size_t i = 0; i < kTileSets.size(); ++i) EXPECT_EQ(kTiles[i].name, kTileSets[i]);
}

TEST(DefaultPictures, HoldNothingInASchemeButWhatDiffers) {
  for (const char* scheme : kOtherSchemes) {
    std::vector<std::string> found, expected{"Border1.bmp"};
    for (const auto& entry : fs::directory_iterator(kGame + scheme)) {
      found.push_back(entry.path().filename().string());
    }
    for (const Tile& tile : kTiles) {
      if (tile.schemes) expected.push_back(std::string(tile.name) + ".bmp");
    }
    expected.push_back("Edges.bmp");
    std::sort(found.begin(), found.end());
    std::sort(expected.begin(), expected.end());
    EXPECT_EQ(found, expected) << scheme;
  }
}

TEST(DefaultPictures, GiveEachSchemeAGroundAnEarthAndAGemOfItsOwn) {
  // How far two colours are apart, as a line in the cube of colours 255 long; the ground is dark, so its
  // colours lie closer together.
  constexpr struct {
    const char* name;
    double least;
  } kParted[] = {{"Space", 8}, {"Dirt", 30}, {"Brick", 30}, {"Gem", 30}};
  for (const auto& [name, least] : kParted) {
    std::vector<Mean> means{MeanOf(Read(kGame + name + ".bmp"))};
    for (const char* scheme : kOtherSchemes) {
      means.push_back(MeanOf(Read(kGame + scheme + "/" + name + ".bmp")));
    }
    for (std::size_t a = 0; a < means.size(); ++a) {
      for (std::size_t b = a + 1; b < means.size(); ++b) {
        EXPECT_GT(Distance(means[a], means[b]), least) << name << " of the schemes " << a << " and " << b;
      }
    }
  }
}

TEST(DefaultPictures, HaveRowsOfEarthAndGroundThatFitBesideEachOther) {
  for (const char* name : {"Dirt", "Space"}) {
    const QImage sheet = Read(kGame + name + ".bmp");
    const QImage first = Frame(sheet, 0, 0);
    for (int row = 1; row < sheet.height() / kTileSize; ++row) {
      const QImage other = Frame(sheet, 0, row);
      int apart = 0;
      for (int i = 0; i < kTileSize; ++i) {
        const auto differ = [&](int x, int y) {
          return std::abs(qGray(first.pixel(x, y)) - qGray(other.pixel(x, y))) > 4 ? 1 : 0;
        };
        apart += differ(0, i) + differ(kTileSize - 1, i) + differ(i, 0) + differ(i, kTileSize - 1);
      }
      EXPECT_LE(apart, 4) << name << ", row " << row;
    }
  }
}

// Nine cells of one phase burn as one: what leaves a cell at one side comes in at the other, and in the first
// phases most of each side is fire.
TEST(DefaultPictures, JoinTheCellsOfABlast) {
  const QImage sheet = Read(kGame + "Explosion.bmp");
  constexpr int kLast = kTileSize - 1;
  const auto burns = [](QRgb colour) { return qAlpha(colour) > 127 ? 1 : 0; };
  for (int kind = 0; kind < 4; ++kind) {
    for (int phase = 0; phase < 4; ++phase) {
      const QImage frame = Frame(sheet, kind, phase);
      int apart = 0, across = 0, down = 0;
      for (int i = 0; i < kTileSize; ++i) {
        across += burns(frame.pixel(0, i));
        down += burns(frame.pixel(i, 0));
        apart += std::abs(burns(frame.pixel(0, i)) - burns(frame.pixel(kLast, i)));
        apart += std::abs(burns(frame.pixel(i, 0)) - burns(frame.pixel(i, kLast)));
      }
      EXPECT_LE(apart, 10) << "kind " << kind << ", phase " << phase;
      const int least = phase < 2 ? kTileSize / 2 : kTileSize / 4;
      EXPECT_GE(across, least) << "kind " << kind << ", phase " << phase;
      EXPECT_GE(down, least) << "kind " << kind << ", phase " << phase;
      EXPECT_EQ(burns(frame.pixel(0, 0)), 0) << "a cell alone has round corners";
    }
  }
}

// In grey at 24 pixels two pictures differ in at least a tenth of their pixels by a quarter of all greys.
TEST(DefaultPictures, TellKeysAndLocksApartWithoutColour) {
  constexpr int kSize = 24;
  for (const char* name : {"Keys", "Locks"}) {
    const QImage sheet = Read(kGame + name + ".bmp");
    const QImage ground = Frame(Read(kGame + "Space.bmp"), 0, 0).convertToFormat(QImage::Format_RGB32);
    std::vector<QImage> small;
    for (int colour = 0; colour < 3; ++colour) {
      QImage tile = ground;
      QPainter(&tile).drawImage(0, 0, Frame(sheet, colour, 0));
      small.push_back(tile.scaled(kSize, kSize, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
    }
    for (const auto& [one, other] : {std::pair(0U, 1U), std::pair(0U, 2U), std::pair(1U, 2U)}) {
      int differ = 0;
      for (int y = 0; y < kSize; ++y) {
        for (int x = 0; x < kSize; ++x) {
          differ += std::abs(qGray(small[one].pixel(x, y)) - qGray(small[other].pixel(x, y))) > 64 ? 1 : 0;
        }
      }
      EXPECT_GE(differ, kSize * kSize / 10) << name << " " << one << " and " << other;
    }
  }
}

// The one stands below the entrance, the other above the exit.
TEST(DefaultPictures, TellTheEntranceOfTheTeleportFromItsExitAtRest) {
  const QImage sheet = Read(kGame + "Teleport.bmp");
  const Mean entrance = MeanOf(Frame(sheet, 0, 0)), exit = MeanOf(Frame(sheet, 0, 1));
  EXPECT_GT(entrance.blue, entrance.red + 20);
  EXPECT_GT(exit.red, exit.blue + 40);
}

// Where the quarters of two frames meet, be it in the middle of a cell or at its edge, earth goes over into
// earth.
TEST(DefaultPictures, HaveEdgesOfTheEarthThatFitTogether) {
  for (const char* scheme : {"", "Cold/", "Hot/", "Natural/", "Mystery/"}) {
    const QImage sheet = Read(kGame + scheme + "Edges.bmp");
    ASSERT_EQ(sheet.size(), QSize(kEdgeColumns * kTileSize, kTileSize)) << scheme;
    const auto earth = [&](Edge edge, int x, int y) {
      return IsOpaque(sheet.pixel(static_cast<int>(edge) * kTileSize + x, y)) ? 1 : 0;
    };
    constexpr int kMiddle = kTileSize / 2, kLast = kTileSize - 1;
    int apart = 0;
    for (int i = 0; i < kTileSize; ++i) {
      for (const Edge other : {Edge::BesideEnds, Edge::Corner}) {
        apart += std::abs(earth(Edge::BesideOn, i, kMiddle - 1) - earth(other, i, kMiddle));
        apart += std::abs(earth(Edge::BesideOn, i, kMiddle) - earth(other, i, kMiddle - 1));
      }
      for (const Edge other : {Edge::OverEnds, Edge::Corner}) {
        apart += std::abs(earth(Edge::OverOn, kMiddle - 1, i) - earth(other, kMiddle, i));
        apart += std::abs(earth(Edge::OverOn, kMiddle, i) - earth(other, kMiddle - 1, i));
      }
      apart += std::abs(earth(Edge::BesideOn, i, 0) - earth(Edge::BesideOn, i, kLast));
      apart += std::abs(earth(Edge::OverOn, 0, i) - earth(Edge::OverOn, kLast, i));
    }
    EXPECT_LE(apart, 20) << scheme << ": ten lines, two edges each, one pixel of play";
    EXPECT_GT(earth(Edge::BesideOn, 0, kMiddle) + earth(Edge::OverOn, kMiddle, 0), 1) << scheme;
  }
}

TEST(DefaultPictures, ShowAGemOfTheSchemesColourInTheBar) {
  // The middle facet of both gems; the rest of the bar is the same in all schemes.
  constexpr QPoint kInBar(146, 23), kInTile(47, 40);
  constexpr QRect kGemInBar(130, 6, 32, 32);
  const auto withoutGem = [&kGemInBar](QImage bar) {
    QPainter(&bar).fillRect(kGemInBar, Qt::black);
    return bar;
  };
  const QImage classic = Read(kGame + "Border1.bmp");
  EXPECT_EQ(classic.pixelColor(kInBar), QColor(0x4C, 0xC0, 0xEE));
  for (const char* scheme : kOtherSchemes) {
    const QImage bar = Read(kGame + scheme + "/Border1.bmp");
    const QImage gem = Read(kGame + scheme + "/Gem.bmp");
    EXPECT_EQ(bar.pixelColor(kInBar), gem.pixelColor(kInTile)) << scheme;
    EXPECT_EQ(withoutGem(bar), withoutGem(classic)) << scheme;
  }
}

TEST(DefaultPictures, DecorateTheWindow) {
  EXPECT_EQ(Read(kGame + "Border1.bmp").size(), QSize(1600, 44));
  EXPECT_EQ(Read(kGame + "Border2.bmp").size(), QSize(1600, 20));
  EXPECT_EQ(Read(kGame + "Bar.bmp").size(), QSize(1600, 1000));
  EXPECT_EQ(Read(kGame + "Restart.bmp").size(), QSize(40, 40));
  EXPECT_EQ(Read(kGame + "Leave.bmp").size(), QSize(40, 40));
  for (const char* name : {"Border1", "Border2", "Bar"}) {
    const QImage image = Read(kGame + name + ".bmp");
    EXPECT_EQ(CountPixels(image, IsOpaque), image.width() * image.height()) << name;
    EXPECT_EQ(CountPixels(image, IsTooDark), 0) << name;
  }
}

TEST(DefaultPictures, StandInForAMissingOneWithChequersAndAWhiteQuestionMark) {
  const QImage error = Read(ZORIK_SKINS "/error.bmp");
  ASSERT_EQ(error.size(), QSize(80, 80));
  EXPECT_EQ(CountPixels(error, IsOpaque), 80 * 80);
  EXPECT_EQ(CountPixels(error, IsTooDark), 0);
  EXPECT_EQ(error.pixel(2, 2), qRgb(255, 0, 255));
  EXPECT_EQ(error.pixel(78, 2), error.pixel(2, 78));
  EXPECT_NE(error.pixel(2, 2), error.pixel(22, 2));
  EXPECT_EQ(error.pixel(22, 2), error.pixel(2, 22));
  EXPECT_GT(CountPixels(error, [](QRgb colour) { return colour == qRgb(255, 255, 255); }), 200);
}

// The game reads them by itself, as the toolkit takes its time.
TEST(BuiltPictures, AreReadAsTheToolkitReadsThem) {
  int pictures = 0;
  for (const auto& entry : fs::recursive_directory_iterator(ZORIK_SKINS)) {
    if (entry.path().extension() != ".bmp") continue;
    ++pictures;
    const QImage image(QString::fromStdString(entry.path().string()), "bmp");
    ASSERT_FALSE(image.isNull()) << entry.path();
    EXPECT_EQ(ReadImage(entry.path().string()), image.convertToFormat(QImage::Format_ARGB32)) << entry.path();
  }
  EXPECT_GT(pictures, 100);
}

}  // namespace
}  // namespace zorik
