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
  for (const int size : {20, 26, 33}) {
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

}  // namespace
}  // namespace zorik
