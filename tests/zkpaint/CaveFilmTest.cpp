#include <gtest/gtest.h>

#include "data/Result.h"
#include "skin/PictureFolder.h"
#include "support/Scene.h"
#include "zkpaint/CaveFilm.h"

namespace zorik::test {
namespace {

constexpr QRgb kSpace = 0xFF101010, kDirt = 0xFF20C020, kDog = 0xFFF0F0F0, kHotDirt = 0xFFC02020;

// A skin of plain colours.
class CaveFilmTest : public PictureFolder {
 protected:
  CaveFilmTest() {
    Paint("error.bmp", 0xFFFF00FF);
    Paint("Default/Game/Space.bmp", kSpace);
    Paint("Default/Game/Dirt.bmp", kDirt);
    Paint("Default/Game/Dog.bmp", kDog);
    Paint("Default/Game/Hot/Dirt.bmp", kHotDirt);
  }

  CaveFilm Film(const PictureTerms& terms) const { return {places_, terms}; }
};

// The colours of the cells of a picture, each looked at in all its corners.
std::vector<std::vector<QRgb>> CellsOf(const QImage& picture, int cell) {
  std::vector<std::vector<QRgb>> cells;
  for (int y = 0; y < picture.height(); y += cell) {
    std::vector<QRgb>& row = cells.emplace_back();
    for (int x = 0; x < picture.width(); x += cell) {
      const QRgb colour = picture.pixel(x, y);
      const int last = cell - 1;
      for (const QPoint corner : {QPoint(last, 0), QPoint(0, last), QPoint(last, last)})
        EXPECT_EQ(picture.pixel(QPoint(x, y) + corner), colour) << x << "," << y;
      row.push_back(colour);
    }
  }
  return cells;
}

TEST_F(CaveFilmTest, ShowsTheLettersOfACaveAtTick0) {
  for (const int cell : {1, 7, 32, 80}) {
    CaveFilm film = Film({.cell = cell, .scheme = {}});
    ASSERT_TRUE(film.OpenCave(CaveTextOf({"1;.;", ".;;."})));
    const QImage picture = film.Picture();
    EXPECT_EQ(picture.size(), QSize(4 * cell, 2 * cell));
    EXPECT_EQ(CellsOf(picture, cell),
              (std::vector<std::vector<QRgb>>{{kDog, kDirt, kSpace, kDirt}, {kSpace, kDirt, kDirt, kSpace}}));
  }
}

TEST_F(CaveFilmTest, ShowsEachTickOfARecord) {
  const RecordTick right{.before = {1}, .direction = kKeyRight, .after = {2}};
  CaveFilm film = Film({.cell = 4, .scheme = {}});
  ASSERT_TRUE(film.OpenRecord(RecordOf({"1;;;"}, {right, right})));
  EXPECT_EQ(CellsOf(film.Picture(), 4).front(), (std::vector<QRgb>{kDog, kDirt, kDirt, kDirt}));
  ASSERT_TRUE(film.Next());
  EXPECT_EQ(CellsOf(film.Picture(), 4).front(), (std::vector<QRgb>{kSpace, kDog, kDirt, kDirt}));
  ASSERT_TRUE(film.Next());
  const QImage last = film.Picture();
  EXPECT_EQ(CellsOf(last, 4).front(), (std::vector<QRgb>{kSpace, kSpace, kDog, kDirt}));
  EXPECT_FALSE(film.Next());
  EXPECT_FALSE(film.Next());
  EXPECT_EQ(film.Picture(), last);
}

TEST_F(CaveFilmTest, TakesTheColoursOfAnotherScheme) {
  CaveFilm film = Film({.cell = 4, .scheme = "Hot"});
  ASSERT_TRUE(film.OpenCave(CaveTextOf({"1;.;"})));
  EXPECT_EQ(CellsOf(film.Picture(), 4).front(), (std::vector<QRgb>{kDog, kHotDirt, kSpace, kHotDirt}));
}

// The view holds 19.5 x 11.5 cells. It cannot go beyond the cave's left edge, near which the dog is.
TEST_F(CaveFilmTest, FollowsTheDogInTheViewOfPlay) {
  Picture wide(30, std::string(40, '.'));
  wide[0] = "1" + std::string(39, ';');
  CaveFilm film = Film({.cell = 10, .scheme = {}, .follow = true});
  ASSERT_TRUE(film.OpenCave(CaveTextOf(wide)));
  const QImage picture = film.Picture();
  EXPECT_EQ(picture.size(), QSize(195, 115));
  EXPECT_EQ(picture.pixel(5, 5), kDog);
  EXPECT_EQ(picture.pixel(15, 5), kDirt);

  wide[0] = std::string(39, ';') + "1";
  CaveFilm other = Film({.cell = 10, .scheme = {}, .follow = true});
  ASSERT_TRUE(other.OpenCave(CaveTextOf(wide)));
  EXPECT_EQ(other.Picture().pixel(190, 5), kDog);
}

TEST_F(CaveFilmTest, ShowsASmallCaveNoLargerThanAsked) {
  CaveFilm film = Film({.cell = 10, .scheme = {}, .follow = true});
  ASSERT_TRUE(film.OpenCave(CaveTextOf({"1;.;", ".;;."})));
  EXPECT_EQ(film.Picture().size(), QSize(40, 20));
}

TEST_F(CaveFilmTest, DoesNotBeginWithWhatIsNoCave) {
  CaveFilm film = Film({.cell = 10, .scheme = {}});
  EXPECT_FALSE(film.OpenCave(""));
  EXPECT_FALSE(film.OpenCave(CaveTextOf({std::string(101, '.')})));
  EXPECT_FALSE(film.OpenRecord("rubbish"));
}

}  // namespace
}  // namespace zorik::test
