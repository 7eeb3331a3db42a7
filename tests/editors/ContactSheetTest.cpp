#include <gtest/gtest.h>

#include <QFontMetrics>
#include <QPainter>
#include <set>

#include "editors/ContactSheet.h"
#include "skin/GameFont.h"
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

// The smallest part of it that holds all that is drawn on the ground.
QRect Drawn(const QImage& picture, const QRect& part) {
  QRect drawn;
  for (int y = part.top(); y <= part.bottom(); ++y) {
    for (int x = part.left(); x <= part.right(); ++x) {
      if (picture.pixel(x, y) != picture.pixel(0, 0)) drawn |= QRect(x, y, 1, 1);
    }
  }
  return drawn;
}

// The part of the bright pixels of one picture that are dark in the other.
double Difference(const QImage& one, const QImage& other) {
  int bright = 0, different = 0;
  for (int y = 0; y < one.height(); ++y) {
    for (int x = 0; x < one.width(); ++x) {
      const bool here = qGray(one.pixel(x, y)) > 0x80;
      bright += here ? 1 : 0;
      different += here != (qGray(other.pixel(x, y)) > 0x80) ? 1 : 0;
    }
  }
  return bright == 0 ? 1 : static_cast<double>(different) / bright;
}

// A cave of so many cells.
std::string CaveOf(std::size_t width, std::size_t height) {
  Picture picture(height, std::string(width, ';'));
  picture[1][1] = '1';
  return CaveTextOf(picture);
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

TEST(ContactSheetTest, WritesTheTitleWithAllThatHangsBelowItsLine) {
  const QString title = "Moje \u00c1j";
  const QImage sheet = ContactSheet(kPlaces, title, Caves(4));
  const QRect above(0, 0, sheet.width(), PlaceOnSheet(0, 4).top());
  EXPECT_GE(Drawn(sheet, above).height(), QFontMetrics(GameFont(26)).tightBoundingRect(title).height() - 1);
}

TEST(ContactSheetTest, CallsEachCaveByItsNumberAndItsName) {
  const Picture picture{"WWWWW", "W1;DW", "W;;;W", "W.;;W", "WWWWW"};
  const QStringList names{"Jama", "Kost", "Sklep"};
  std::vector<std::string> caves;
  for (const QString& name : names) caves.push_back(CaveTextOf(picture, {.name = name.toStdString()}));
  const QImage sheet = ContactSheet(kPlaces, "Sada", caves);
  for (int i = 0; i < names.size(); ++i) {
    const QRect place = PlaceOnSheet(static_cast<std::size_t>(i), caves.size());
    const QRect line(place.left(), place.bottom() + 1, place.width(), 24);
    QImage expected(line.size(), QImage::Format_RGB32);
    expected.fill(Qt::black);
    QPainter painter(&expected);
    painter.setPen(Qt::white);
    painter.setFont(GameFont(16));
    painter.drawText(expected.rect(), Qt::AlignCenter, QString("%1. %2").arg(i + 1).arg(names[i]));
    painter.end();
    EXPECT_LT(Difference(expected, sheet.copy(line)), 0.05) << i;
  }
}

TEST(ContactSheetTest, ShowsACaveAsLargeAsItsPlaceAllowsAndInItsMiddle) {
  struct Row {
    std::size_t width, height;
    QSize size;
  };
  // A cell's side that fits is 320 / width or 200 / height, whichever is less.
  for (const Row& row : {Row{10, 5, {320, 160}}, Row{5, 5, {200, 200}}, Row{60, 10, {320, 53}}}) {
    const QImage sheet = ContactSheet(kPlaces, "Sada", {CaveOf(row.width, row.height)});
    const QRect place = PlaceOnSheet(0, 1);
    const QRect drawn = Drawn(sheet, place);
    EXPECT_NEAR(drawn.width(), row.size.width(), 2) << row.width;
    EXPECT_NEAR(drawn.height(), row.size.height(), 2) << row.width;
    EXPECT_NEAR(drawn.left() - place.left(), place.right() - drawn.right(), 2) << row.width;
    EXPECT_NEAR(drawn.top() - place.top(), place.bottom() - drawn.bottom(), 2) << row.width;
  }
}

TEST(ContactSheetTest, LetsNoCaveReachBeyondItsPlace) {
  const std::vector<std::string> caves(4, CaveOf(79, 49));
  const QImage sheet = ContactSheet(kPlaces, "Sada", caves);
  const QRect one = PlaceOnSheet(0, 4), two = PlaceOnSheet(1, 4);
  const QRect between(one.right() + 1, one.top(), two.left() - one.right() - 1, one.height());
  EXPECT_EQ(Drawn(sheet, between), QRect());
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

TEST(ContactSheetTest, HasTheSameGapOnEachSideAndBetween) {
  constexpr int kLine = 24;  // for a name, below each cave
  for (const auto& [count, columns] : {std::pair(1U, 1), std::pair(2U, 2), std::pair(5U, 3)}) {
    const QImage sheet = ContactSheet(kPlaces, "Sada", Caves(count));
    const QRect first = PlaceOnSheet(0, count), last = PlaceOnSheet(count - 1, count);
    const int gap = first.left();
    EXPECT_GT(gap, 0);
    EXPECT_EQ(sheet.width(), gap + columns * (first.width() + gap)) << count;
    EXPECT_EQ(sheet.height(), last.bottom() + 1 + kLine + gap) << count;
    if (count == 1) continue;
    EXPECT_EQ(PlaceOnSheet(1, count).left(), first.right() + 1 + gap);
    EXPECT_EQ(PlaceOnSheet(1, count).top(), first.top());
    if (count == 2) continue;
    EXPECT_EQ(last.top(), first.bottom() + 1 + kLine + gap);
  }
}

TEST(ContactSheetTest, WritesTheTitleInTheMiddleAndNotToTheEdge) {
  for (const QString& title : {QString("Moje sada"), QString(500, 'x')}) {
    const QImage sheet = ContactSheet(kPlaces, title, Caves(4));
    const int gap = PlaceOnSheet(0, 4).left();
    const QRect drawn = Drawn(sheet, {0, 0, sheet.width(), PlaceOnSheet(0, 4).top()});
    EXPECT_NEAR(drawn.center().x(), sheet.rect().center().x(), 12);
    EXPECT_GE(drawn.left(), gap);
    EXPECT_LT(drawn.right(), sheet.width() - gap);
    EXPECT_GE(drawn.top(), gap) << "the title's line is below the gap, too";
    EXPECT_EQ(drawn.width() > sheet.width() / 2, title.size() == 500);
  }
}

TEST(ContactSheetTest, FillsItsRowsFromTheLeft) {
  for (std::size_t i = 0; i < 9; ++i) {
    const QRect place = PlaceOnSheet(i, 9), first = PlaceOnSheet(0, 9);
    EXPECT_EQ(place.top() == first.top(), i < 3) << i;
    EXPECT_EQ(place.left() == first.left(), i % 3 == 0) << i;
  }
}

}  // namespace
}  // namespace zorik::test
