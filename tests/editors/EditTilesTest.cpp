// The pictures of the cave editor by themselves.
#include "editors/EditTiles.h"
#include "editors/EditorScreen.h"

namespace zorik {
namespace {

class EditTilesTest : public testing::Test {
 protected:
  EditTilesTest() { Load("Classic"); }

  void Load(const char* scheme) { tiles.Load(SkinPlaces{ZORIK_SKINS, "Default"}, scheme); }

  EditTiles tiles;
};

TEST_F(EditTilesTest, HaveAPictureOfItsOwnForEachDog) {
  for (int one = 1; one <= kDogs; ++one) {
    for (int other = one + 1; other <= kDogs; ++other)
      EXPECT_NE(tiles.Tile(kDogTool, one, 26), tiles.Tile(kDogTool, other, 26)) << one << other;
  }
  EXPECT_EQ(tiles.Tile(2, 1, 26), tiles.Tile(2, 9, 26));
}

TEST_F(EditTilesTest, ShowEmptySpaceForNumbersWithoutATile) {
  for (const int none : {-1, kPaletteEnd, kPaletteEnd + 5})
    EXPECT_EQ(tiles.Tile(none, 1, 26), tiles.Tile(0, 1, 26));
  EXPECT_NE(tiles.Tile(1, 1, 26), tiles.Tile(0, 1, 26));
}

TEST_F(EditTilesTest, AreThoseOfTheSchemeThatWasTakenLast) {
  const QImage classic = tiles.Tile(1, 1, 26);
  Load("Cold");
  const QImage cold = tiles.Tile(1, 1, 26);
  EXPECT_NE(cold, classic);
  Load("Classic");
  EXPECT_EQ(tiles.Tile(1, 1, 26), classic);
}

TEST_F(EditTilesTest, HaveTheSizeThatIsAskedFor) {
  for (int size = 10; size < 40; ++size) {
    EXPECT_EQ(tiles.Tile(3, 1, size).size(), QSize(size, size));
  }
  EXPECT_EQ(tiles.Tile(3, 1, 26), tiles.Tile(3, 1, 26));
}

// What hides in the game is told apart here: the walls from steel, the finish, the magic wall from brick.
TEST_F(EditTilesTest, TellApartWhatTheGameHides) {
  for (const char letter : std::string("EVTM")) {
    EXPECT_NE(tiles.Tile(ToolOfLetter(letter), 1, 26), tiles.Tile(ToolOfLetter('W'), 1, 26)) << letter;
    EXPECT_NE(tiles.Tile(ToolOfLetter(letter), 1, 26), tiles.Tile(ToolOfLetter('X'), 1, 26)) << letter;
  }
}

TEST_F(EditTilesTest, MakeThePictureOfACaveCellByCell) {
  CaveModel cave;
  ASSERT_TRUE(cave.OpenCave(test::CaveTextOf({"WWWWWW", "W1239W", "WRD;AW", "WFOPQW", "WWWWWW"})));
  for (const int size : {3, 4, 5, 14, 20, 26, 32, 33}) {
    QImage picture;
    DrawCells(cave, tiles, QRect(1, 1, 5, 3), size, picture);
    ASSERT_EQ(picture.size(), QSize(5 * size, 3 * size));
    for (int x = 0; x < 5; ++x) {
      for (int y = 0; y < 3; ++y) {
        const char letter = cave.At(x + 1, y + 1);
        const QImage tile =
            tiles.Tile(ToolOfLetter(letter), ValueOf(letter), size).convertToFormat(picture.format());
        EXPECT_EQ(picture.copy(x * size, y * size, size, size), tile) << letter << size;
      }
    }
  }
}

// Where two tiles are not alike, as black on white.
QImage Unlike(const QImage& one, const QImage& other) {
  QImage unlike(one.size(), QImage::Format_RGB32);
  unlike.fill(Qt::white);
  for (int y = 0; y < one.height(); ++y) {
    for (int x = 0; x < one.width(); ++x) {
      const QRgb a = one.pixel(x, y);
      const QRgb b = other.pixel(x, y);
      const int far =
          std::abs(qRed(a) - qRed(b)) + std::abs(qGreen(a) - qGreen(b)) + std::abs(qBlue(a) - qBlue(b));
      if (far > 100) unlike.setPixel(x, y, qRgb(0, 0, 0));
    }
  }
  return unlike;
}
int Differing(const QImage& one, const QImage& other) {
  int count = 0;
  for (int y = 0; y < one.height(); ++y) {
    for (int x = 0; x < one.width(); ++x) count += one.pixel(x, y) != other.pixel(x, y) ? 1 : 0;
  }
  return count;
}

// The same arrow for all four, turned about the middle of the tile. Where it is as bright as the monster
// below it, a few pixels are lost.
TEST_F(EditTilesTest, TurnOneArrowAboutTheMiddleOfTheTile) {
  constexpr int kLarge = 104;
  constexpr int kLost = 150;
  std::array<QImage, 4> tile;  // left, up, right, down
  for (const ObjectLetter& object : kObjectLetters) {
    if (object.code != kFireFly || object.mark == 0) continue;
    tile[static_cast<std::size_t>(object.mark - 1)] = tiles.Tile(object.palette, 1, kLarge);
  }
  const QImage aside = Unlike(tile[0], tile[2]);
  const QImage upright = Unlike(tile[1], tile[3]);
  EXPECT_GT(Differing(aside, upright), 10 * kLost);
  for (const QImage& arrows : {aside, upright}) {
    EXPECT_LT(Differing(arrows, arrows.mirrored(true, false)), kLost);
    EXPECT_LT(Differing(arrows, arrows.mirrored(false, true)), kLost);
  }
  EXPECT_LT(Differing(aside.transformed(QTransform().rotate(90)), upright), kLost);
}

// In the lower right corner, as far from below as from the right, whichever number it is.
TEST_F(EditTilesTest, PutTheNumberOfADogIntoItsCorner) {
  constexpr int kLarge = 104;
  const QColor colour(0xFF, 0xE6, 0x5A);
  for (int dog = 1; dog <= kDogs; ++dog) {
    const QImage& tile = tiles.Tile(kDogTool, dog, kLarge);
    QRect number;
    for (int y = 0; y < kLarge; ++y) {
      for (int x = 0; x < kLarge; ++x) {
        if (tile.pixelColor(x, y) == colour) number |= QRect(x, y, 1, 1);
      }
    }
    ASSERT_FALSE(number.isEmpty()) << dog;
    const int right = kLarge - 1 - number.right();
    const int below = kLarge - 1 - number.bottom();
    EXPECT_NEAR(right, below, 2) << dog;
    EXPECT_LE(right, kLarge / 13) << dog;
    EXPECT_GE(number.left(), kLarge / 3) << dog << ": most of the dog is seen";
    // A dark line around it tells it from the dog.
    EXPECT_LT(qGray(tile.pixel(number.center().x(), number.bottom() + 3)), 60) << dog;
  }
}

}  // namespace
}  // namespace zorik
