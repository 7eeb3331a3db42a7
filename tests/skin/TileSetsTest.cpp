#include <gtest/gtest.h>

#include <QColor>

#include "PictureFolder.h"
#include "skin/TileSets.h"

namespace zorik {
namespace {

constexpr QRgb kGround = 0xFF102030;

class TileSetsTest : public test::PictureFolder {
 protected:
  std::string Find(const std::string& scheme, const std::string& name) const {
    return Within(GetSchPicPath(places_, scheme, name));
  }

  TileSets Loaded() const {
    PictureCache pictures;
    TileSets tiles;
    tiles.Load(pictures, places_, "Cold");
    return tiles;
  }

  static QRgb PixelOf(TileSets& tiles, const CellPicture& picture, QSize size = {80, 80}) {
    return tiles.Frame(picture, size).pixel(size.width() / 2, size.height() / 2);
  }
};

TEST_F(TileSetsTest, APictureOfTheSchemeGoesBeforeTheOneForAll) {
  Touch("Default/Game/Classic/Gem.gif");
  Touch("Default/Game/Gem.jpg");
  EXPECT_EQ(Find("Classic", "Gem"), "Default/Game/Classic/Gem.gif");
  EXPECT_EQ(Find("Cold", "Gem"), "Default/Game/Gem.jpg");
}

TEST_F(TileSetsTest, ASkinsOwnPictureGoesBeforeTheDefaultSkinsScheme) {
  places_.Skin = "Mine";
  Touch("Default/Game/Classic/Gem.gif");
  Touch("Mine/Game/Gem.bmp");
  EXPECT_EQ(Find("Classic", "Gem"), "Mine/Game/Gem.bmp");
  EXPECT_EQ(Find("Hot", "Gem"), "Mine/Game/Gem.bmp");
}

TEST_F(TileSetsTest, ASkinWithoutThePictureLeavesItToTheDefaultSkin) {
  places_.Skin = "Mine";
  Touch("Default/Game/Gem.bmp");
  Touch("Default/Game/Hot/Gem.bmp");
  EXPECT_EQ(Find("Hot", "Gem"), "Default/Game/Hot/Gem.bmp");
  EXPECT_EQ(Find("Cold", "Gem"), "Default/Game/Gem.bmp");
}

TEST_F(TileSetsTest, JpgGoesBeforeBmpBeforeGif) {
  Touch("Default/Game/Gem.gif");
  EXPECT_EQ(Find("Cold", "Gem"), "Default/Game/Gem.gif");
  Touch("Default/Game/Gem.bmp");
  EXPECT_EQ(Find("Cold", "Gem"), "Default/Game/Gem.bmp");
  Touch("Default/Game/Gem.jpg");
  EXPECT_EQ(Find("Cold", "Gem"), "Default/Game/Gem.jpg");
}

TEST_F(TileSetsTest, LetterCaseOfFileNamesPlaysNoPart) {
  Touch("default/GAME/cold/gEM.BMP");
  EXPECT_EQ(Find("Cold", "Gem"), "default/GAME/cold/gEM.BMP");
}

TEST_F(TileSetsTest, AFolderWithThePicturesNameIsNone) {
  std::filesystem::create_directories(At("Default/Game/Cold/Gem.jpg"));
  Touch("Default/Game/Gem.gif");
  EXPECT_EQ(Find("Cold", "Gem"), "Default/Game/Gem.gif");
}

TEST_F(TileSetsTest, APictureOfTheSkinsSchemeGoesBeforeItsPictureForAll) {
  places_.Skin = "Mine";
  Touch("Mine/Game/Gem.jpg");
  Touch("Mine/Game/Cold/Gem.gif");
  EXPECT_EQ(Find("Cold", "Gem"), "Mine/Game/Cold/Gem.gif");
  EXPECT_EQ(Find("Hot", "Gem"), "Mine/Game/Gem.jpg");
}

TEST_F(TileSetsTest, AMissingPictureIsTheErrorPicture) {
  Paint("error.bmp", 0xFFFF00FF);
  EXPECT_EQ(Find("Cold", "Gem"), "error.bmp");
  TileSets tiles = Loaded();
  EXPECT_EQ(PixelOf(tiles, {kGem, 0, 0}), 0xFFFF00FF);
}

TEST_F(TileSetsTest, ABrokenPictureIsTheErrorPicture) {
  Paint("error.bmp", 0xFFFFFF00);
  Touch("Default/Game/Gem.bmp", "BM and no more");
  TileSets tiles = Loaded();
  EXPECT_EQ(PixelOf(tiles, {kGem, 0, 0}), 0xFFFFFF00);
}

TEST_F(TileSetsTest, ASkinWithoutAnyPictureIsStillDrawn) {
  TileSets tiles = Loaded();
  EXPECT_EQ(PixelOf(tiles, {kGem, 0, 0}), QColor(Qt::magenta).rgb());
}

TEST_F(TileSetsTest, BlackIsClearAndShowsTheFirstFrameOfSpace) {
  QImage space(80, 160, QImage::Format_RGB32);
  space.fill(0xFF405060);
  for (int y = 0; y < 80; ++y) {
    for (int x = 0; x < 80; ++x) space.setPixel(x, y, kGround);
  }
  Save("Default/Game/Space.bmp", space);
  QImage gem(160, 160, QImage::Format_RGB32);
  gem.fill(0xFF000000);
  gem.setPixel(120, 120, 0xFF00FF00);
  gem.setPixel(121, 120, 0xFF010000);
  Save("Default/Game/Gem.bmp", gem);
  TileSets tiles = Loaded();
  const QImage& frame = tiles.Frame({kGem, 1, 1}, {80, 80});
  EXPECT_EQ(frame.pixel(0, 0), kGround);
  EXPECT_EQ(frame.pixel(40, 40), 0xFF00FF00);
  EXPECT_EQ(frame.pixel(41, 40), 0xFF010000) << "nearly black is not clear";
  EXPECT_EQ(PixelOf(tiles, {kSpace, 0, 1}), 0xFF405060);
}

TEST_F(TileSetsTest, AGifsTransparentPixelsAreClear) {
  Paint("Default/Game/Space.bmp", kGround);
  const QByteArray dot = QByteArray::fromBase64("R0lGODlhAQABAIAAAAAAAP///yH5BAEAAAAALAAAAAABAAEAAAIBRAA7");
  Touch("Default/Game/Gem.gif", dot.toStdString());
  TileSets tiles = Loaded();
  EXPECT_EQ(tiles.Frame({kGem, 0, 0}, {80, 80}).pixel(0, 0), kGround);
}

TEST_F(TileSetsTest, SpaceKeepsItsBlack) {
  Paint("Default/Game/Space.bmp", 0xFF000000);
  Paint("Default/Game/Gem.bmp", 0xFF000000);
  TileSets tiles = Loaded();
  EXPECT_EQ(PixelOf(tiles, {kSpace, 0, 0}), 0xFF000000);
  EXPECT_EQ(PixelOf(tiles, {kGem, 0, 0}), 0xFF000000);
}

TEST_F(TileSetsTest, APictureThatIsTooSmallShowsTheGroundAroundIt) {
  Paint("Default/Game/Space.bmp", kGround);
  Paint("Default/Game/Gem.bmp", 0xFF00FF00, {40, 30});
  TileSets tiles = Loaded();
  const QImage& frame = tiles.Frame({kGem, 0, 0}, {80, 80});
  EXPECT_EQ(frame.pixel(39, 29), 0xFF00FF00);
  EXPECT_EQ(frame.pixel(40, 29), kGround);
  EXPECT_EQ(frame.pixel(39, 30), kGround);
  EXPECT_EQ(frame.pixel(79, 79), kGround);
}

TEST_F(TileSetsTest, WhatAPictureHasBeyondWholeFramesIsCutOff) {
  Paint("Default/Game/Keys.bmp", 0xFF00FF00, {239, 159});
  TileSets tiles = Loaded();
  EXPECT_EQ(tiles.Frames()[kSetKeys], 1);
  EXPECT_EQ(PixelOf(tiles, {kSetKeys, 2, 0}), 0xFF00FF00) << "its second column";
}

TEST_F(TileSetsTest, APictureOfMoreThan128FramesIsTheErrorPicture) {
  Paint("error.bmp", 0xFFFFFF00);
  Paint("Default/Game/Gem.bmp", 0xFF00FF00, {80, 80 * 128});
  Paint("Default/Game/Fly.bmp", 0xFF00FF00, {80, 80 * 128 + 1});
  TileSets tiles = Loaded();
  EXPECT_EQ(tiles.Frames()[kGem], 128);
  EXPECT_EQ(PixelOf(tiles, {kGem, 0, 127}), 0xFF00FF00);
  EXPECT_EQ(PixelOf(tiles, {kFly, 0, 0}), 0xFFFFFF00);
}

TEST_F(TileSetsTest, ANumberBeyondTheSetsIsTheLastSet) {
  Paint("Default/Game/" + std::string(kTileSets.back()) + ".bmp", 0xFF00FF00);
  TileSets tiles = Loaded();
  EXPECT_EQ(PixelOf(tiles, {200, 0, 0}), 0xFF00FF00);
}

TEST_F(TileSetsTest, RowsAreCountedByTheTilesHeight) {
  Paint("Default/Game/Gem.bmp", 0xFF00FF00, {80, 8 * 80});
  Paint("Default/Game/Dirt.bmp", 0xFF00FF00, {80, 79});
  Paint("Default/Game/Fly.bmp", 0xFF00FF00, {80, 239});
  TileSets tiles = Loaded();
  EXPECT_EQ(tiles.Frames()[kGem], 8);
  EXPECT_EQ(tiles.Frames()[kDirt], 1);
  EXPECT_EQ(tiles.Frames()[kFly], 2);
}

TEST_F(TileSetsTest, AFrameBeyondThePictureIsItsLast) {
  QImage keys(160, 160, QImage::Format_RGB32);
  keys.fill(0xFF808080);
  for (int y = 80; y < 160; ++y) {
    for (int x = 80; x < 160; ++x) keys.setPixel(x, y, 0xFF00FF00);
  }
  Save("Default/Game/Keys.bmp", keys);
  TileSets tiles = Loaded();
  EXPECT_EQ(PixelOf(tiles, {kSetKeys, 2, 7}), 0xFF00FF00);
  EXPECT_EQ(PixelOf(tiles, {kSetKeys, 0, 0}), 0xFF808080);
}

TEST_F(TileSetsTest, AScaledFrameTakesNothingFromItsNeighbour) {
  QImage gems(80, 160, QImage::Format_RGB32);
  gems.fill(0xFFFFFFFF);
  for (int y = 80; y < 160; ++y) {
    for (int x = 0; x < 80; ++x) gems.setPixel(x, y, 0xFF0A0A0A);
  }
  Save("Default/Game/Gem.bmp", gems);
  TileSets tiles = Loaded();
  for (const int size : {11, 49, 98}) {
    const QImage& white = tiles.Frame({kGem, 0, 0}, {size, size});
    ASSERT_EQ(white.size(), QSize(size, size));
    for (int x = 0; x < size; ++x) {
      ASSERT_EQ(white.pixel(x, size - 1), 0xFFFFFFFF);
      ASSERT_EQ(tiles.Frame({kGem, 0, 1}, {size, size}).pixel(x, 0), 0xFF0A0A0A);
    }
  }
}

}  // namespace
}  // namespace zorik
