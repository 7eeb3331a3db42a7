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

}  // namespace
}  // namespace zorik
