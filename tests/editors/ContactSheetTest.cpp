#include <gtest/gtest.h>

#include <set>

#include "editors/ContactSheet.h"
#include "support/Scene.h"

namespace zorik::test {
namespace {

const SkinPlaces kPlaces{ZORIK_SKINS, "Default"};

// How many colours are there in a part of a picture.
std::size_t Colours(const QImage& picture, const QRect& part) {
  std::set<QRgb> colours;
  for (int y = part.top(); y <= part.bottom(); ++y) {
    for (int x = part.left(); x <= part.right(); ++x) colours.insert(picture.pixel(x, y));
  }
  return colours.size();
}

std::vector<std::string> Caves(std::size_t count) {
  const Picture picture{"WWWWWW", "W1;D;W", "W;;;TW", "W.;;;W", "WWWWWW"};
  std::vector<std::string> caves;
  for (std::size_t i = 0; i < count; ++i)
    caves.push_back(CaveTextOf(picture, {.colouring = i % 2 == 0 ? 4 : 11}));
  return caves;
}

TEST(ContactSheetTest, ShowsEveryCaveInAPlaceOfItsOwnWithALineBelow) {
  for (const std::size_t count : {1U, 2U, 5U, 17U}) {
    const QImage sheet = ContactSheet(kPlaces, "Sada", Caves(count));
    for (std::size_t i = 0; i < count; ++i) {
      const QRect place = PlaceOnSheet(i, count);
      EXPECT_TRUE(sheet.rect().contains(place)) << i;
      EXPECT_GT(Colours(sheet, place), 50U) << i;
      const QRect below(place.left(), place.bottom() + 2, place.width(), 20);
      ASSERT_TRUE(sheet.rect().contains(below)) << i;
      EXPECT_GT(Colours(sheet, below), 2U) << i;
      for (std::size_t j = 0; j < i; ++j) EXPECT_FALSE(place.intersects(PlaceOnSheet(j, count)));
    }
  }
}

TEST(ContactSheetTest, ShowsCavesInTheirOwnColours) {
  const QImage sheet = ContactSheet(kPlaces, "Sada", Caves(2));
  EXPECT_NE(sheet.copy(PlaceOnSheet(0, 2)), sheet.copy(PlaceOnSheet(1, 2)));
}

TEST(ContactSheetTest, LeavesThePlaceEmptyOfACaveThatCannotBeRead) {
  std::vector<std::string> caves = Caves(2);
  caves[1] = "?";
  const QImage sheet = ContactSheet(kPlaces, "Sada", caves);
  EXPECT_EQ(Colours(sheet, PlaceOnSheet(1, 2)), 1U);
}

TEST(ContactSheetTest, HoldsACollectionAsLargeAsThereIs) {
  Picture large(50, std::string(80, ';'));
  large[1][1] = '1';
  const std::vector<std::string> caves(99, CaveTextOf(large));
  const QImage sheet = ContactSheet(kPlaces, QString(500, 'x'), caves);
  EXPECT_GT(Colours(sheet, PlaceOnSheet(98, 99)), 5U);
  EXPECT_LT(sheet.width(), 4000);
}

TEST(ContactSheetTest, FillsItsRowsFromTheLeft) {
  for (std::size_t i = 0; i < 9; ++i) {
    const QRect place = PlaceOnSheet(i, 9), first = PlaceOnSheet(0, 9);
    EXPECT_EQ(place.top() == first.top(), i < 3) << i;
    EXPECT_EQ(place.left() == first.left(), i % 3 == 0) << i;
  }
}

TEST(ContactSheetTest, ShowsACaveInTheMiddleOfItsPlace) {
  const QImage sheet = ContactSheet(kPlaces, "Sada", Caves(1));
  const QRect place = PlaceOnSheet(0, 1);
  // Six cells by five, as high as the place.
  const int aside = (place.width() - place.height() * 6 / 5) / 2;
  const QSize strip(aside - 2, place.height());
  EXPECT_EQ(Colours(sheet, QRect(place.topLeft(), strip)), 1U);
  EXPECT_EQ(Colours(sheet, QRect(place.topRight() - QPoint(aside - 3, 0), strip)), 1U);
  EXPECT_GT(Colours(sheet, QRect(place.left() + aside, place.center().y(), 20, 5)), 1U);
}

}  // namespace
}  // namespace zorik::test
