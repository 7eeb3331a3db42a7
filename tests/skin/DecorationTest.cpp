#include <gtest/gtest.h>

#include "PictureFolder.h"
#include "skin/Decoration.h"

namespace zorik {
namespace {

constexpr QRgb kGreen = 0xFF00FF00, kBlue = 0xFF0000FF, kError = 0xFFFFFF00, kBlack = 0xFF000000;

class DecorationTest : public test::PictureFolder {
 protected:
  DecorationTest() { Paint("error.bmp", kError); }

  Decoration Load(const char* scheme = "Cold") { return LoadDecoration(pictures_, places_, scheme); }

  PictureCache pictures_;
};

TEST_F(DecorationTest, IsFoundLikeTheTilesOfTheScheme) {
  Paint("Default/Game/Border1.bmp", kGreen, {1600, 44});
  Paint("Default/Game/Hot/Border1.bmp", kBlue, {800, 44});
  EXPECT_EQ(Load("Cold").Border1.size(), QSize(1600, 44));
  EXPECT_EQ(Load("Cold").Border1.pixel(0, 0), kGreen);
  EXPECT_EQ(Load("Hot").Border1.pixel(0, 0), kBlue);
  EXPECT_EQ(Load("Hot").Border1.size(), QSize(800, 44));
}

TEST_F(DecorationTest, HasAPictureForEachPlace) {
  Paint("Default/Game/Border1.bmp", 0xFF010101);
  Paint("Default/Game/Border2.bmp", 0xFF020202);
  Paint("Default/Game/Bar.bmp", 0xFF030303);
  Paint("Default/Game/Restart.bmp", 0xFF040404);
  Paint("Default/Game/Settings.bmp", 0xFF050505);
  const Decoration around = Load();
  EXPECT_EQ(around.Border1.pixel(0, 0), 0xFF010101);
  EXPECT_EQ(around.Border2.pixel(0, 0), 0xFF020202);
  EXPECT_EQ(around.Bar.pixel(0, 0), 0xFF030303);
  EXPECT_EQ(around.Restart.pixel(0, 0), 0xFF040404);
  EXPECT_EQ(around.Settings.pixel(0, 0), 0xFF050505);
}

TEST_F(DecorationTest, ThatIsMissingIsTheErrorPicture) {
  EXPECT_EQ(Load().Bar.pixel(0, 0), kError);
}

TEST_F(DecorationTest, HasAPictureOfTheWayOutOnlyWhereASkinHasOne) {
  EXPECT_TRUE(Load().Leave.isNull());
  Paint("Default/Game/Leave.bmp", kGreen);
  EXPECT_EQ(Load().Leave.pixel(0, 0), kGreen);
}

TEST_F(DecorationTest, KeepsItsBlackExceptOnButtons) {
  Paint("Default/Game/Bar.bmp", kBlack);
  Paint("Default/Game/Restart.bmp", kBlack);
  EXPECT_EQ(Load().Bar.pixel(0, 0), kBlack);
  EXPECT_EQ(qAlpha(Load().Restart.pixel(0, 0)), 0);
}

TEST_F(DecorationTest, IsReadOnceWhileItsFilesStayAsTheyAre) {
  Paint("Default/Game/Bar.bmp", kGreen, {1600, 1000});
  const qint64 key = Load().Bar.cacheKey();
  EXPECT_EQ(Load().Bar.cacheKey(), key);
}

}  // namespace
}  // namespace zorik
