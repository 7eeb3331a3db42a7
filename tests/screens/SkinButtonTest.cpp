#include <gtest/gtest.h>

#include <QPainter>
#include <QSignalSpy>
#include <QTest>
#include <cmath>
#include <cstdlib>

#include "screens/SkinButton.h"
#include "screens/TestSkin.h"

namespace zorik {
namespace {

using test::kLooks;
using test::Strips;

TEST(SkinButtonWithAPlate, WritesItsWordsOnItAndIsAsWideAsTheyAre) {
  SkinButton button(nullptr);
  button.SetPlate(Strips(kLooks, {30, 24}));
  button.SetWords("Uložit někam docela jinam");
  EXPECT_EQ(button.height(), 24);
  EXPECT_GT(button.width(), button.fontMetrics().horizontalAdvance(button.text()));
  const QImage image = button.grab().toImage();
  int ink = 0;
  for (int x = 0; x < image.width(); ++x) {
    EXPECT_EQ(image.pixelColor(x, 1), kLooks[0]) << x;
    for (int y = 0; y < image.height(); ++y)
      ink += image.pixelColor(x, y) == QColor(0xFF, 0xF6, 0xE4) ? 1 : 0;
  }
  EXPECT_GT(ink, 0) << "the words";
  button.SetWords("i");
  EXPECT_LT(button.width(), image.width());
  EXPECT_GE(button.width(), 30);
}

// A look of so few pixels that its ends are all it has, each column in a colour of its own.
TEST(SkinButtonWithAPlate, KeepsTheEndsOfANarrowPlateAsTheyAre) {
  constexpr int kWide = 17;
  const auto ofColumn = [](int x) { return QColor(10 * x, 255 - 10 * x, 90); };
  QImage plate(3 * kWide, 24, QImage::Format_RGB32);
  for (int x = 0; x < plate.width(); ++x) {
    for (int y = 0; y < plate.height(); ++y) plate.setPixelColor(x, y, ofColumn(x % kWide));
  }
  SkinButton button(nullptr);
  button.SetPlate(plate);
  button.SetWords("Uložit někam docela jinam");
  const QImage image = button.grab().toImage();
  ASSERT_GT(image.width(), 3 * kWide);
  for (int x = 0; x < kWide / 2; ++x) {
    EXPECT_EQ(image.pixelColor(x, 1), ofColumn(x)) << "left " << x;
    EXPECT_EQ(image.pixelColor(image.width() - 1 - x, 1), ofColumn(kWide - 1 - x)) << "right " << x;
  }
}

TEST(SkinButtonWithAPlate, IsAPlainButtonWithoutThePicture) {
  SkinButton plate(nullptr);
  plate.SetPlate(QImage());
  plate.SetWords("Později");
  SkinButton plain(nullptr);
  plain.SetWords("Později");
  EXPECT_EQ(plate.size(), plain.size());
  EXPECT_EQ(plate.grab().toImage(), plain.grab().toImage());
}

TEST(SkinButtonWithAPlate, LosesItForAPictureOfItsOwn) {
  SkinButton button(nullptr);
  button.SetPlate(Strips(kLooks, {30, 24}));
  button.SetWords("Uložit někam docela jinam");
  ASSERT_GT(button.width(), 30);
  button.SetPicture(Strips({Qt::cyan, Qt::green, Qt::blue}, {40, 20}));
  EXPECT_EQ(button.size(), QSize(40, 20));
  const QImage image = button.grab().toImage();
  for (int x = 0; x < 40; ++x)
    EXPECT_EQ(image.pixelColor(x, 10), QColor(Qt::cyan)) << "nothing is written on it";
}

const std::vector<QColor> kCheckLooks = {Qt::red, Qt::green, Qt::blue, Qt::cyan, Qt::magenta, Qt::yellow};

// Places in the window below.
constexpr QPoint kInside{60, 45};  // on the button
constexpr QPoint kOutside{10, 10};

// A window with one button, and room beside it for the pointer.
template <class Button>
class OneButton {
 public:
  OneButton() : button(new Button(&window_)) {
    window_.resize(200, 100);
    button->move(50, 30);
  }

  void Show() {
    window_.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window_));
    Point(kOutside);
  }

  // Sends the pointer there, in the window.
  void Point(QPoint place) {
    QTest::mouseMove(window_.windowHandle(), place);
    QTest::qWait(1);
  }
  void Press(QPoint place) { QTest::mousePress(window_.windowHandle(), Qt::LeftButton, {}, place); }
  void Release(QPoint place) {
    QTest::mouseRelease(window_.windowHandle(), Qt::LeftButton, {}, place);
    QTest::qWait(1);
  }

  QColor Look() { return button->grab().toImage().pixelColor(5, button->height() / 2); }

 private:
  QWidget window_;

 public:
  Button* button;
};

class SkinButtonTest : public testing::Test {
 protected:
  SkinButtonTest() {
    stage_.button->SetPicture(Strips(kLooks, {40, 30}));
    stage_.Show();
  }

  OneButton<SkinButton> stage_;
  QSignalSpy clicks_{stage_.button, &SkinButton::clicked};
};

TEST_F(SkinButtonTest, IsAsLargeAsOneLook) {
  EXPECT_EQ(stage_.button->size(), QSize(40, 30));
  const QImage seen = stage_.button->grab().toImage();
  for (const QPoint corner : {QPoint(0, 0), QPoint(39, 0), QPoint(0, 29), QPoint(39, 29)})
    EXPECT_EQ(seen.pixelColor(corner), kLooks[0]) << "from edge to edge";
  stage_.button->SetPicture(Strips(kLooks, {1, 30}));
  EXPECT_EQ(stage_.button->size(), QSize(1, 30)) << "however narrow that is";
}

TEST_F(SkinButtonTest, ChangesItsLookUnderThePointer) {
  EXPECT_EQ(stage_.Look(), kLooks[0]);
  stage_.Point(kInside);
  EXPECT_EQ(stage_.Look(), kLooks[1]);
  stage_.Point(kOutside);
  EXPECT_EQ(stage_.Look(), kLooks[0]);
}

TEST_F(SkinButtonTest, LooksAsAlwaysUnderThePointerWhileItCanDoNothing) {
  stage_.button->setEnabled(false);
  stage_.Point(kInside);
  ASSERT_TRUE(stage_.button->underMouse());
  EXPECT_EQ(stage_.Look(), kLooks[0]);
}

TEST_F(SkinButtonTest, ActsWhenItIsLetGoWithThePointerInside) {
  stage_.Point(kInside);
  stage_.Press(kInside);
  EXPECT_EQ(stage_.Look(), kLooks[2]);
  EXPECT_EQ(clicks_.count(), 0);
  stage_.Release(kInside);
  EXPECT_EQ(clicks_.count(), 1);
  EXPECT_EQ(stage_.Look(), kLooks[1]);
}

TEST_F(SkinButtonTest, DoesNothingWhenThePointerSlidOff) {
  stage_.Point(kInside);
  stage_.Press(kInside);
  stage_.Point(kOutside);
  EXPECT_EQ(stage_.Look(), kLooks[2]) << "it stays pressed while it is held";
  stage_.Release(kOutside);
  EXPECT_EQ(stage_.Look(), kLooks[0]);
  EXPECT_EQ(clicks_.count(), 0);
}

TEST_F(SkinButtonTest, ActsWhenThePointerSlidOffAndCameBack) {
  stage_.Press(kInside);
  stage_.Point(kOutside);
  stage_.Point(kInside);
  stage_.Release(kInside);
  EXPECT_EQ(clicks_.count(), 1);
}

TEST_F(SkinButtonTest, LeavesTheFocusWhereItIs) {
  stage_.Press(kInside);
  stage_.Release(kInside);
  EXPECT_FALSE(stage_.button->hasFocus());
  EXPECT_EQ(stage_.button->focusPolicy(), Qt::NoFocus);
}

TEST_F(SkinButtonTest, SaysInWordsWhatItDoes) {
  stage_.button->SetWords("Přehrát");
  EXPECT_EQ(stage_.button->toolTip(), "Přehrát");
  EXPECT_EQ(stage_.button->accessibleName(), "Přehrát");
  EXPECT_EQ(stage_.button->size(), QSize(40, 30)) << "the picture counts";
}

TEST_F(SkinButtonTest, NeverShowsABitOfTheNextLookWhenMagnified) {
  for (const double factor : {1.25, 1.5, 2.0}) {
    stage_.button->SetPicture(Strips(kLooks, {41, 31}));
    QImage magnified((QSizeF(stage_.button->size()) * factor).toSize(), QImage::Format_RGB32);
    magnified.fill(Qt::white);
    QPainter painter(&magnified);
    painter.scale(factor, factor);
    stage_.button->render(&painter);
    painter.end();
    for (int x = 0; x < std::floor(41 * factor); ++x) {
      ASSERT_EQ(magnified.pixelColor(x, 20), QColor(Qt::red)) << factor << " at " << x;
    }
  }
}

class PlainButtonTest : public testing::TestWithParam<QSize> {};

TEST_P(PlainButtonTest, IsAPlainButtonWithItsText) {
  OneButton<SkinButton> stage;
  stage.button->SetPicture(QImage(GetParam(), QImage::Format_RGB32));
  stage.button->SetWords("Tlačítko bez obrázku");
  stage.Show();
  QSignalSpy clicks(stage.button, &SkinButton::clicked);
  EXPECT_GT(stage.button->width(), stage.button->fontMetrics().horizontalAdvance("Tlačítko bez obrázku"));
  EXPECT_GT(stage.button->height(), stage.button->fontMetrics().height());
  const QColor normal = stage.Look();
  stage.Point(kInside);
  EXPECT_NE(stage.Look(), normal);
  stage.Press(kInside);
  EXPECT_NE(stage.Look(), normal);
  stage.Release(kInside);
  EXPECT_EQ(clicks.count(), 1);
}

INSTANTIATE_TEST_SUITE_P(WithoutAPictureOrWithOneTooNarrow, PlainButtonTest,
                         testing::Values(QSize(0, 0), QSize(2, 30)));

class SkinCheckTest : public testing::Test {
 protected:
  SkinCheckTest() {
    stage_.button->setText("Zvuky");
    stage_.button->SetPicture(Strips(kCheckLooks, {20, 20}));
    stage_.button->resize(stage_.button->sizeHint());
    stage_.Show();
  }

  OneButton<SkinCheck> stage_;
};

TEST_F(SkinCheckTest, HasThreeLooksOffAndThreeOn) {
  for (const std::size_t first : {0U, 3U}) {
    stage_.Point(kOutside);
    EXPECT_EQ(stage_.Look(), kCheckLooks[first]);
    stage_.Point(kInside);
    EXPECT_EQ(stage_.Look(), kCheckLooks[first + 1]);
    stage_.Press(kInside);
    EXPECT_EQ(stage_.Look(), kCheckLooks[first + 2]);
    stage_.Release(kInside);
    EXPECT_EQ(stage_.button->isChecked(), first == 0);
  }
}

TEST_F(SkinCheckTest, StaysAsItIsWhenThePointerSlidOff) {
  stage_.Press(kInside);
  stage_.Point(kOutside);
  stage_.Release(kOutside);
  EXPECT_FALSE(stage_.button->isChecked());
  EXPECT_EQ(stage_.Look(), kCheckLooks[0]);
}

TEST_F(SkinCheckTest, TurnsByItsCaptionToo) {
  const QPoint caption = stage_.button->geometry().center() + QPoint(stage_.button->width() / 3, 0);
  stage_.Press(caption);
  stage_.Release(caption);
  EXPECT_TRUE(stage_.button->isChecked());
}

TEST_F(SkinCheckTest, TurnsWithTheSpaceKey) {
  stage_.button->setFocus();
  QTest::keyClick(stage_.button, Qt::Key_Space);
  EXPECT_TRUE(stage_.button->isChecked());
  QTest::keyClick(stage_.button, Qt::Key_Space);
  EXPECT_FALSE(stage_.button->isChecked());
}

TEST_F(SkinCheckTest, HasRoomForItsCaption) {
  EXPECT_GE(stage_.button->width(), 20 + stage_.button->fontMetrics().horizontalAdvance("Zvuky"));
}

TEST(PlainCheck, ShowsWhetherItIsOn) {
  OneButton<SkinCheck> stage;
  stage.button->setText("Zvuky");
  stage.button->resize(stage.button->sizeHint());
  stage.Show();
  const QImage off = stage.button->grab().toImage();
  stage.button->setChecked(true);
  EXPECT_NE(stage.button->grab().toImage(), off);
}

TEST(PlainCheck, HasARingAroundItsCaptionWhileKeysTurnIt) {
  OneButton<SkinCheck> stage;
  const QColor ring(Qt::magenta);
  QPalette colours = stage.button->palette();
  colours.setColor(QPalette::Highlight, ring);
  stage.button->setPalette(colours);
  stage.button->setText("Zvuky");
  stage.button->resize(stage.button->sizeHint());
  stage.Show();
  const auto edge = [&] {
    return stage.button->grab().toImage().pixelColor(stage.button->width() - 1, stage.button->height() / 2);
  };
  stage.button->window()->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(stage.button->window()));
  stage.button->clearFocus();
  const QColor without = edge();
  EXPECT_LT(without.green(), without.red() + 30) << "no ring";
  EXPECT_NE(without, ring);
  stage.button->setFocus();
  ASSERT_TRUE(stage.button->hasFocus());
  EXPECT_EQ(edge(), ring);
  stage.button->clearFocus();
  EXPECT_EQ(edge(), without);
}

// Colours that are told apart even where letters are smoothed.
const QColor kGround(0x20, 0x40, 0x60), kInk(0xFF, 0x00, 0xFF), kCaption(0xFF, 0xFF, 0x00);

QPalette PlainColours() {
  QPalette colours;
  colours.setColor(QPalette::Window, Qt::black);
  colours.setColor(QPalette::Button, kGround);
  colours.setColor(QPalette::ButtonText, kInk);
  colours.setColor(QPalette::Mid, Qt::green);
  colours.setColor(QPalette::WindowText, kCaption);
  return colours;
}

// Where a colour, or nearly that, is to be seen.
QRect Where(QWidget& part, QColor colour) {
  const QImage image = part.grab().toImage();
  QRect seen;
  for (int x = 0; x < image.width(); ++x) {
    for (int y = 0; y < image.height(); ++y) {
      const QColor pixel = image.pixelColor(x, y);
      const int away = std::abs(pixel.red() - colour.red()) + std::abs(pixel.green() - colour.green()) +
                       std::abs(pixel.blue() - colour.blue());
      if (away < 150) seen |= QRect(x, y, 1, 1);
    }
  }
  return seen;
}

TEST(PlainButton, HasItsWordsInTheMiddleOfAPlateInTheColoursOfTheWindow) {
  SkinButton button(nullptr);
  button.setPalette(PlainColours());
  button.SetWords(" ");
  EXPECT_EQ(Where(button, kInk), QRect()) << "nothing is written";
  EXPECT_TRUE(Where(button, Qt::green).contains(button.rect().adjusted(3, 3, -3, -3))) << "the rim";
  EXPECT_EQ(button.grab().toImage().pixelColor(button.rect().center()), kGround);
  button.SetWords("Nahrát");
  const QRect words = Where(button, kInk);
  EXPECT_GT(words.width(), button.fontMetrics().horizontalAdvance("Nahrát") / 2);
  EXPECT_LE((words.center() - button.rect().center()).manhattanLength(), 6);
}

TEST(PlainCheck, HasItsMarkInABoxBeforeItsCaption) {
  OneButton<SkinCheck> stage;
  SkinCheck& check = *stage.button;
  check.setPalette(PlainColours());
  check.setText("Zvuky");
  check.resize(check.sizeHint());
  stage.Show();
  check.clearFocus();
  EXPECT_EQ(Where(check, kInk), QRect()) << "it is off";
  const QRect box = Where(check, Qt::green);
  const QRect caption = Where(check, kCaption);
  EXPECT_EQ(check.grab().toImage().pixelColor(box.center()), kGround);
  EXPECT_NEAR(box.center().y(), check.rect().center().y(), 1);
  EXPECT_GT(caption.left(), box.right());
  EXPECT_LT(caption.right(), check.width());
  check.setChecked(true);
  const QRect mark = Where(check, kInk);
  EXPECT_FALSE(mark.isEmpty());
  EXPECT_TRUE(box.contains(mark));
  EXPECT_EQ(Where(check, kCaption), caption);
}

// Round corners are as wide as they are high, and all four are the same.
TEST(PlainButton, HasRoundCornersAllAlike) {
  SkinButton button(nullptr);
  button.setPalette(PlainColours());
  button.SetWords(" ");
  const QImage seen = button.grab().toImage();
  for (int x = 0; x < 12; ++x) {
    for (int y = 0; y < 12; ++y) {
      const QColor here = seen.pixelColor(x, y);
      for (const QPoint other :
           {QPoint(y, x), QPoint(seen.width() - 1 - x, y), QPoint(x, seen.height() - 1 - y)}) {
        EXPECT_NEAR(here.green(), seen.pixelColor(other).green(), 10) << x << ' ' << y;
        EXPECT_NEAR(here.blue(), seen.pixelColor(other).blue(), 10) << x << ' ' << y;
      }
    }
  }
  EXPECT_LT(seen.pixelColor(0, 0).green(), 30);
}

TEST(PlainCheck, KeepsItsCaptionWithinTheRing) {
  OneButton<SkinCheck> stage;
  SkinCheck& check = *stage.button;
  QPalette colours = PlainColours();
  colours.setColor(QPalette::Highlight, Qt::red);
  check.setPalette(colours);
  check.setText("Zvuky");
  check.resize(check.sizeHint());
  stage.Show();
  check.window()->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(check.window()));
  check.clearFocus();
  const QRect caption = Where(check, kCaption);
  ASSERT_FALSE(caption.isEmpty());
  EXPECT_EQ(Where(check, Qt::red), QRect());
  check.setFocus();
  EXPECT_EQ(Where(check, kCaption), caption);
  const QRect ring = Where(check, Qt::red);
  EXPECT_TRUE(ring.contains(caption, true));
  EXPECT_EQ(ring.right(), check.width() - 1);
  EXPECT_EQ(ring.top(), 0);
  EXPECT_EQ(ring.bottom(), check.height() - 1);
  EXPECT_GT(ring.left(), Where(check, Qt::green).right());
}

// A look is narrower than the words, which stand on all of the plate.
TEST(SkinButtonWithAPlate, WritesItsWordsFromItsOneEndToTheOther) {
  SkinButton button(nullptr);
  button.SetPlate(Strips({Qt::red, Qt::green, Qt::blue}, {60, 30}));
  button.SetWords("HHHHHHHHHHHHHHHH");
  ASSERT_GT(button.width(), 150);
  const QImage seen = button.grab().toImage();
  const auto letters = [&seen](int from, int to) {
    int found = 0;
    for (int x = from; x < to; ++x) {
      for (int y = 0; y < seen.height(); ++y) found += seen.pixelColor(x, y).green() > 0xC0 ? 1 : 0;
    }
    return found;
  };
  EXPECT_GT(letters(14, 60), 20);
  EXPECT_GT(letters(60, button.width() - 60), 20);
  EXPECT_GT(letters(button.width() - 60, button.width() - 14), 20);
}

}  // namespace
}  // namespace zorik
