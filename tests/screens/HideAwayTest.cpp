#include <gtest/gtest.h>

#include <QApplication>
#include <QIcon>
#include <QKeyEvent>
#include <QTest>

#include "core/Keys.h"
#include "screens/HideAway.h"

namespace zorik {
namespace {

// How often the sequence came to its end.
int Ends(HideAwaySequence sequence, const std::string& keys) {
  int ends = 0;
  for (const char key : keys) ends += sequence.Press(key) ? 1 : 0;
  return ends;
}

TEST(HideAwaySequence, IsTheDogsName) {
  EXPECT_EQ(Ends({}, "ZORIK"), 1);
  EXPECT_EQ(Ends({}, "ZORI"), 0);
}

TEST(HideAwaySequence, StartsAnewAfterAnyOtherKey) {
  EXPECT_EQ(Ends({}, "ZOXRIK"), 0);
  EXPECT_EQ(Ends({}, "ZOXZORIK"), 1);
}

TEST(HideAwaySequence, CountsForNothingWhileItsLastKeyIsTheFirstOne) {
  // The second Z is no O, and is not taken for a new beginning.
  EXPECT_EQ(Ends({}, "ZZORIK"), 0);
}

TEST(HideAwaySequence, PassesOverTheArrowKeys) {
  HideAwaySequence sequence;
  for (const int key : {'Z', 'O', 'R', 'I'}) {
    EXPECT_FALSE(sequence.Press(key));
    for (const int arrow : {kKeyLeft, kKeyUp, kKeyRight, kKeyDown}) EXPECT_FALSE(sequence.Press(arrow));
  }
  EXPECT_TRUE(sequence.Press('K'));
}

TEST(HideAwaySequence, CanBeEnteredAgain) {
  EXPECT_EQ(Ends({}, "ZORIKZORIK"), 2);
}

TEST(HideAway, TellsOfTheNameThatIsTypedIntoIt) {
  HideAway window;
  int found = 0;
  QObject::connect(&window, &HideAway::Found, [&found] { ++found; });
  window.show();
  for (const Qt::Key key : {Qt::Key_Z, Qt::Key_O, Qt::Key_R, Qt::Key_I}) QTest::keyClick(&window, key);
  EXPECT_EQ(found, 0);
  QTest::keyClick(&window, Qt::Key_K);
  EXPECT_EQ(found, 1);
}

TEST(HideAway, PassesOverItsArrowKeysAndCountsAHeldKeyOnce) {
  HideAway window;
  int found = 0;
  QObject::connect(&window, &HideAway::Found, [&found] { ++found; });
  window.show();
  for (const Qt::Key key :
       {Qt::Key_Z, Qt::Key_Left, Qt::Key_O, Qt::Key_Up, Qt::Key_R, Qt::Key_Right, Qt::Key_I, Qt::Key_Down}) {
    QTest::keyClick(&window, key);
    QKeyEvent held(QEvent::KeyPress, key, {}, {}, true);
    QApplication::sendEvent(&window, &held);
  }
  QTest::keyClick(&window, Qt::Key_K);
  EXPECT_EQ(found, 1);
}

TEST(HideAway, HasADullIconOfItsOwn) {
  QPixmap dog(32, 32);
  dog.fill(Qt::red);
  QApplication::setWindowIcon(dog);
  const HideAway window;
  const QImage icon = window.windowIcon().pixmap(32, 32).toImage();
  QApplication::setWindowIcon(QIcon());
  ASSERT_EQ(icon.size(), QSize(32, 32));
  for (int y = 0; y < 32; ++y) {
    for (int x = 0; x < 32; ++x) {
      EXPECT_EQ(icon.pixelColor(x, y).saturation(), 0) << "grey, at " << x << ", " << y;
    }
  }
}

TEST(HideAway, TellsOfItsClosingAndStays) {
  HideAway window;
  int found = 0;
  QObject::connect(&window, &HideAway::Found, [&found] { ++found; });
  window.show();
  EXPECT_FALSE(window.close());
  EXPECT_EQ(found, 1);
}

// A table has a grey head above and at the left, lines between its cells, letters above and numbers beside.
TEST(HideAway, IsATableWithHeadsAndLinesOfOneWidth) {
  HideAway window;
  EXPECT_EQ(window.size(), QSize(420, 260));
  EXPECT_TRUE(window.testAttribute(Qt::WA_OpaquePaintEvent));
  const QImage seen = window.grab().toImage();
  const QColor head = seen.pixelColor(2, 2);
  const QColor line = seen.pixelColor(60, 40);
  EXPECT_EQ(head.saturation(), 0);
  EXPECT_LT(line.lightness(), head.lightness());
  for (int y = 20; y < 260; ++y) {
    for (int x = 28; x < 420; ++x) {
      const bool between = y % 20 == 0 || (x - 28) % 84 == 0;
      EXPECT_EQ(seen.pixelColor(x, y), between ? line : QColor(Qt::white)) << x << ' ' << y;
    }
  }
  for (const int edge : {0, 1}) {
    for (int y = 1; y < 260; ++y) EXPECT_EQ(seen.pixelColor(edge, y), y % 20 == 0 ? line : head) << y;
    for (int x = 0; x < 420; ++x)
      EXPECT_EQ(seen.pixelColor(x, edge), x >= 28 && (x - 28) % 84 == 0 ? line : head) << x;
  }
}

TEST(HideAway, HasALetterOverEachColumnAndANumberBesideEachRow) {
  HideAway window;
  const QImage seen = window.grab().toImage();
  const auto written = [&](QRect place) {
    QRegion dark;
    for (int y = place.top(); y <= place.bottom(); ++y) {
      for (int x = place.left(); x <= place.right(); ++x) {
        if (seen.pixelColor(x, y).lightness() < 0xA0) dark += QRect(x, y, 1, 1);
      }
    }
    return dark.boundingRect();
  };
  for (int column = 0; column < 4; ++column) {
    const QRect place(28 + 84 * column, 0, 84, 20);
    const QRect letter = written(place);
    EXPECT_NEAR(letter.center().x(), place.center().x(), 2) << column;
    EXPECT_NEAR(letter.center().y(), place.center().y(), 3) << column;
    EXPECT_GE(letter.height(), 6) << column;
  }
  for (int row = 1; row < 13; ++row) {
    const QRect place(0, 20 * row, 28, 20);
    const QRect number = written(place);
    EXPECT_NEAR(number.center().x(), place.center().x(), 2) << row;
    EXPECT_NEAR(number.center().y(), place.center().y(), 3) << row;
    EXPECT_EQ(number.width() > 9, row >= 10) << "two figures from the tenth on: " << row;
  }
  EXPECT_TRUE(written({0, 0, 28, 20}).isEmpty()) << "nothing in the corner";
  HideAway wide;
  wide.resize(28 + 84 * 30, 100);
  const QImage more = wide.grab().toImage();
  const auto above = [&](int column) {
    for (int y = 2; y < 18; ++y) {
      for (int x = 28 + 84 * column + 20; x < 28 + 84 * column + 64; ++x) {
        if (more.pixelColor(x, y).lightness() < 0xA0) return true;
      }
    }
    return false;
  };
  EXPECT_TRUE(above(25));
  EXPECT_FALSE(above(26)) << "there are no more letters";
}

TEST(HideAway, HasTheSameTableOnItsIconInEverySize) {
  const HideAway window;
  for (const int size : {16, 24, 32, 48, 64, 128}) {
    const QImage icon = window.windowIcon().pixmap(size, size).toImage();
    ASSERT_EQ(icon.size(), QSize(size, size));
    const QColor line = icon.pixelColor(0, 0);
    EXPECT_LT(line.lightness(), 160);
    for (int y = 0; y < size; ++y) {
      for (int x = 0; x < size; ++x) {
        EXPECT_EQ(icon.pixelColor(x, y), icon.pixelColor(y, x)) << size;
        const bool rim = x == 0 || y == 0 || x == size - 1 || y == size - 1;
        const bool between = x % (size / 4) == 0 || y % (size / 4) == 0;
        const bool head = x < size / 4 || y < size / 4;
        if (rim || between) {
          EXPECT_EQ(icon.pixelColor(x, y), line) << size << ": " << x << ' ' << y;
        } else {
          EXPECT_EQ(icon.pixelColor(x, y) == QColor(Qt::white), !head) << size << ": " << x << ' ' << y;
          EXPECT_GT(icon.pixelColor(x, y).lightness(), line.lightness());
        }
      }
    }
  }
}

}  // namespace
}  // namespace zorik
