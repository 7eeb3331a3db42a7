#include <gtest/gtest.h>

#include <array>

#include "PictureFolder.h"
#include "skin/LooseFrame.h"
#include "skin/TileSets.h"

namespace zorik {
namespace {

constexpr QSize kSize(80, 80);
constexpr QRgb kRed = 0xFFFF0000, kGreen = 0xFF00FF00, kBlue = 0xFF0000FF, kGrey = 0xFF808080;

// Sets that are loaded several times: whether a frame was made anew tells whether its set was.
class TileCacheTest : public test::PictureFolder {
 protected:
  TileCacheTest() {
    Paint("Default/Game/Space.bmp", kGrey);
    Paint("Default/Game/Gem.bmp", kGreen);
    Paint("Default/Game/Hot/Gem.bmp", kRed);
  }

  void Load(const char* scheme = "Cold") { tiles_.Load(pictures_, places_, scheme); }
  QRgb Gem() { return tiles_.Frame({kGem, 0, 0}, kSize).pixel(40, 40); }
  qint64 FrameKey() { return tiles_.Frame({kGem, 0, 0}, kSize).cacheKey(); }

  PictureCache pictures_;
  TileSets tiles_;
};

TEST_F(TileCacheTest, LoadingTheSameSchemeAgainMakesNothingAnew) {
  Load();
  const qint64 key = FrameKey();
  Load();
  EXPECT_EQ(FrameKey(), key);
}

TEST_F(TileCacheTest, AChangedFileIsReadAgain) {
  Load();
  EXPECT_EQ(Gem(), kGreen);
  Paint("Default/Game/Gem.bmp", kBlue);
  Age("Default/Game/Gem.bmp", 60);
  Load();
  EXPECT_EQ(Gem(), kBlue);
}

TEST_F(TileCacheTest, AFileThatComesLaterIsFound) {
  Load();
  Paint("Default/Game/Cold/Gem.bmp", kBlue);
  Load();
  EXPECT_EQ(Gem(), kBlue);
}

TEST_F(TileCacheTest, AFileThatGoesGivesWayToTheNextOne) {
  Load("Hot");
  EXPECT_EQ(Gem(), kRed);
  std::filesystem::remove(At("Default/Game/Hot/Gem.bmp"));
  Load("Hot");
  EXPECT_EQ(Gem(), kGreen);
}

TEST_F(TileCacheTest, ANewGroundLiesBelowAllSets) {
  Paint("Default/Game/Gem.bmp", 0xFF000000);
  Load();
  EXPECT_EQ(Gem(), kGrey);
  Paint("Default/Game/Space.bmp", kBlue);
  Age("Default/Game/Space.bmp", 60);
  Load();
  EXPECT_EQ(Gem(), kBlue);
}

TEST_F(TileCacheTest, EachSchemeHasItsOwnPictures) {
  Load("Cold");
  EXPECT_EQ(Gem(), kGreen);
  Load("Hot");
  EXPECT_EQ(Gem(), kRed);
  Load("Cold");
  EXPECT_EQ(Gem(), kGreen);
}

TEST_F(TileCacheTest, AnotherSkinHasItsOwnPictures) {
  Load();
  Paint("Mine/Game/Gem.bmp", kBlue);
  places_.Skin = "Mine";
  Load();
  EXPECT_EQ(Gem(), kBlue);
  places_.Skin = "Default";
  Load();
  EXPECT_EQ(Gem(), kGreen);
}

TEST_F(TileCacheTest, FramesOfTheLastTwoSizesAreKept) {
  const QSize small(24, 22), other(49, 49);
  Load();
  const qint64 large = FrameKey();
  const qint64 little = tiles_.Frame({kGem, 0, 0}, small).cacheKey();
  EXPECT_EQ(FrameKey(), large);
  EXPECT_EQ(tiles_.Frame({kGem, 0, 0}, small).cacheKey(), little);
  tiles_.Frame({kGem, 0, 0}, other);
  tiles_.Frame({kGem, 0, 0}, small);
  EXPECT_NE(FrameKey(), large) << "the third size took its place";
}

TEST_F(TileCacheTest, FramesOfMuchMemoryAreNotKeptBesideOthers) {
  static constexpr QSize kHuge(4200, 4200);  // 67 megabytes, where those of both sizes may take 64
  Load();
  const auto keyAfter = [this](auto frame) {
    frame();
    return FrameKey();
  };
  const qint64 first = FrameKey();
  EXPECT_EQ(keyAfter([this] { tiles_.Frame({kGem, 0, 0}, kHuge / 2); }), first) << "a quarter is well";
  const qint64 second = keyAfter([this] { tiles_.Frame({kGem, 0, 0}, kHuge); });
  EXPECT_NE(second, first);
  EXPECT_NE(keyAfter([this] { tiles_.Loose({kGem, 0, 0}, kHuge); }), second) << "nor a loose one";
}

TEST(TileSets, AreBlackBeforeAnyIsLoaded) {
  TileSets tiles;
  QImage black(kSize, QImage::Format_RGB32);
  black.fill(Qt::black);
  for (const std::uint8_t set : std::array<std::uint8_t, 3>{0, 1, 5})
    EXPECT_EQ(tiles.Frame({set, 0, 0}, kSize), black);
}

}  // namespace
}  // namespace zorik
