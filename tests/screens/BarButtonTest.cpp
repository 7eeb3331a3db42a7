// The plates of the game window's bars and what stands on them.
#include <gtest/gtest.h>

#include <QFontMetrics>
#include <QSignalSpy>
#include <QTest>
#include <algorithm>

#include "screens/BarButton.h"
#include "screens/PaintedParts.h"
#include "screens/Tones.h"
#include "skin/GameFont.h"

namespace zorik {
namespace {

constexpr QColor kCaption(0xFF, 0xF8, 0xE8);
constexpr double kReadsWell = 4.5;

// The worst that words of the caption's colour read on the middle row of the plate.
double WorstContrast(BarButton& button) {
  const QImage face = button.grab().toImage();
  double worst = 21;
  for (int x = 8; x < face.width() - 8; ++x) {
    worst = std::min(worst, Contrast(face.pixelColor(x, face.height() / 2), kCaption));
  }
  return worst;
}

TEST(BarButton, IsAPlateOnWhichItsCaptionReadsWellFromEndToEnd) {
  BarButton button(nullptr);
  button.resize(150, 38);
  EXPECT_GE(WorstContrast(button), kReadsWell);
}

TEST(BarButton, GlowsRoundItsCaptionWhichReadsWellAllTheWhile) {
  BarButton button(nullptr);
  button.resize(150, 38);
  button.SetCaption(" ");
  button.move(300, 300);  // not under the pointer
  button.show();
  const QImage still = button.grab().toImage();
  const auto rim = [](const QImage& face) { return face.pixelColor(face.width() / 2, 2).green(); };
  button.SetPulse(true);
  double worst = 21;
  EXPECT_TRUE(QTest::qWaitFor([&] {
    worst = std::min(worst, WorstContrast(button));
    return rim(button.grab().toImage()) > rim(still) + 150;
  })) << "it glows so that it is seen";
  EXPECT_TRUE(QTest::qWaitFor([&] { return button.grab().toImage() == still; })) << "it fades in turn";
  EXPECT_GE(worst, kReadsWell);
}

// Where words stand on a button: what differs from the same button without them.
QRect WordsOn(BarButton& button) {
  const QImage face = button.grab().toImage();
  const QString caption = button.Caption();
  const QString key = button.Key();
  button.SetCaption({});
  if (!key.isEmpty()) button.SetKey(" ");
  const QImage bare = button.grab().toImage();
  button.SetCaption(caption);
  button.SetKey(key);
  QRegion words;
  for (int y = 0; y < face.height(); ++y) {
    for (int x = 0; x < face.width(); ++x) {
      if (face.pixel(x, y) != bare.pixel(x, y)) words += QRect(x, y, 1, 1);
    }
  }
  return words.boundingRect();
}

// A button on a window, away from the pointer.
class AShownBarButton : public testing::Test {
 protected:
  AShownBarButton() {
    window.resize(300, 200);
    window.move(300, 300);
    button.setGeometry(40, 40, 150, 40);
    window.show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&window));
    QCoreApplication::processEvents();
    painted.Watch(button);
  }

  // Without the window behind it.
  QImage Face() {
    QImage face(button.size(), QImage::Format_ARGB32);
    face.fill(Qt::transparent);
    button.render(&face, {}, {}, QWidget::RenderFlags());
    return face;
  }
  QPoint Inside() const { return button.rect().center(); }

  QWidget window;
  BarButton button{&window};
  test::PaintedParts painted;
};

TEST_F(AShownBarButton, HasTheHandAndLeavesTheFocusToTheDog) {
  EXPECT_EQ(button.cursor().shape(), Qt::PointingHandCursor);
  EXPECT_EQ(button.focusPolicy(), Qt::NoFocus);
  EXPECT_TRUE(button.testAttribute(Qt::WA_Hover)) << "it is painted anew when the pointer comes";
}

TEST_F(AShownBarButton, ActsWhenItIsLetGoWithThePointerInside) {
  QSignalSpy pressed(&button, &BarButton::Pressed);
  QSignalSpy letGo(&button, &BarButton::LetGo);
  QSignalSpy clicked(&button, &BarButton::Clicked);
  QTest::mousePress(&button, Qt::LeftButton, {}, Inside());
  EXPECT_EQ(pressed.count(), 1);
  EXPECT_EQ(letGo.count() + clicked.count(), 0);
  QTest::mouseRelease(&button, Qt::LeftButton, {}, Inside());
  EXPECT_EQ(letGo.count(), 1);
  EXPECT_EQ(clicked.count(), 1);
  QTest::mousePress(&button, Qt::LeftButton, {}, Inside());
  QTest::mouseRelease(&button, Qt::LeftButton, {}, QPoint(-5, 10));
  EXPECT_EQ(letGo.count(), 2) << "what was done while it was held ends";
  EXPECT_EQ(clicked.count(), 1) << "but it was not meant";
  for (const Qt::MouseButton other : {Qt::RightButton, Qt::MiddleButton})
    QTest::mouseClick(&button, other, {}, Inside());
  EXPECT_EQ(pressed.count(), 2);
  EXPECT_EQ(letGo.count(), 2);
  EXPECT_EQ(clicked.count(), 1);
}

TEST_F(AShownBarButton, IsNotLetGoByAnotherButtonOfTheMouse) {
  QSignalSpy letGo(&button, &BarButton::LetGo);
  QTest::mousePress(&button, Qt::LeftButton, {}, Inside());
  QTest::mouseRelease(&button, Qt::RightButton, {}, Inside());
  EXPECT_EQ(letGo.count(), 0);
  QTest::mouseRelease(&button, Qt::LeftButton, {}, Inside());
  EXPECT_EQ(letGo.count(), 1);
}

TEST_F(AShownBarButton, IsLetGoWhenItIsTakenAway) {
  QSignalSpy letGo(&button, &BarButton::LetGo);
  QSignalSpy clicked(&button, &BarButton::Clicked);
  button.hide();
  EXPECT_EQ(letGo.count(), 0);
  button.show();
  const QImage free = Face();
  QTest::mousePress(&button, Qt::LeftButton, {}, Inside());
  button.hide();
  EXPECT_EQ(letGo.count(), 1);
  button.show();
  EXPECT_EQ(Face(), free) << "it has come up again";
  QTest::mouseRelease(&button, Qt::LeftButton, {}, Inside());
  EXPECT_EQ(letGo.count() + clicked.count(), 1);
}

TEST_F(AShownBarButton, SinksAndDarkensWhileItIsHeldWithThePointerInside) {
  button.SetCaption("M");
  const QImage free = Face();
  const auto drag = [&](QPoint to, Qt::MouseButtons held) {
    QMouseEvent move(QEvent::MouseMove, to, button.mapToGlobal(to), Qt::NoButton, held, {});
    QApplication::sendEvent(&button, &move);
  };
  drag(Inside(), Qt::NoButton);
  EXPECT_EQ(Face(), free) << "the pointer alone does not press it";
  painted.Settle();
  QTest::mousePress(&button, Qt::LeftButton, {}, Inside());
  EXPECT_TRUE(painted.Come());
  const QImage held = Face();
  EXPECT_EQ(held.pixelColor(75, 0).alpha(), 0) << "it goes down by one pixel";
  EXPECT_EQ(held.pixelColor(75, 1).alpha(), free.pixelColor(75, 0).alpha());
  EXPECT_EQ(held.pixelColor(75, 2).alpha(), free.pixelColor(75, 1).alpha());
  for (int x = 10; x < 140; ++x)
    EXPECT_LT(held.pixelColor(x, 21).lightness(), free.pixelColor(x, 20).lightness() - 20) << x;
  drag(QPoint(-5, 10), Qt::LeftButton);
  EXPECT_TRUE(painted.Come());
  EXPECT_EQ(Face(), free);
  drag(Inside(), Qt::LeftButton);
  EXPECT_EQ(Face(), held);
  painted.Settle();
  QTest::mouseRelease(&button, Qt::LeftButton, {}, Inside());
  EXPECT_TRUE(painted.Come());
  EXPECT_EQ(Face(), free);
}

TEST_F(AShownBarButton, ShowsWhatItIsGivenAtOnce) {
  painted.Settle();
  button.SetCaption("M");
  EXPECT_TRUE(painted.Come());
  button.SetKey("F2");
  EXPECT_TRUE(painted.Come());
  QImage picture(15, 4, QImage::Format_RGB32);
  picture.fill(Qt::green);
  button.SetPicture(picture);
  EXPECT_TRUE(painted.Come());
  for (const QPoint corner : {QPoint(0, 0), QPoint(149, 0), QPoint(0, 39), QPoint(149, 39)})
    EXPECT_EQ(Face().pixelColor(corner), QColor(Qt::green)) << "a picture covers all of it";
  EXPECT_EQ(Face().pixelColor(Inside()), QColor(Qt::green)) << "and its words";
}

TEST_F(AShownBarButton, HasItsWordsInItsMiddleAsWideAsItSays) {
  button.SetCaption("HOH");
  const QRect words = WordsOn(button);
  EXPECT_NEAR(words.center().x(), button.rect().center().x(), 2);
  EXPECT_NEAR(words.center().y(), button.rect().center().y(), 3);
  EXPECT_LE(words.width(), button.CaptionWidth(40));
  EXPECT_GE(words.width(), button.CaptionWidth(40) - 6);
  EXPECT_EQ(Face().pixelColor(words.left() + 1, words.center().y()), kCaption) << "bold strokes";
  EXPECT_GT(button.CaptionWidth(40), button.CaptionWidth(20)) << "a lower button has smaller letters";
  EXPECT_GT(button.CaptionWidth(0), 0);
}

TEST_F(AShownBarButton, HasItsKeyInSmallerPalerLettersBelowItsCaption) {
  button.SetCaption("HOH");
  const QRect alone = WordsOn(button);
  button.SetKey(" ");
  const QRect caption = WordsOn(button);
  QFont letters = GameFont(16);
  letters.setBold(true);
  EXPECT_EQ(button.CaptionWidth(40), QFontMetrics(letters).horizontalAdvance("HOH"))
      << "bold as without a key";
  EXPECT_LT(caption.height(), alone.height()) << "there is less room";
  EXPECT_LT(caption.bottom(), button.height() * 11 / 20);
  EXPECT_NEAR(caption.center().x(), button.rect().center().x(), 2);
  EXPECT_NEAR(caption.width(), button.CaptionWidth(40), 4);
  button.SetCaption({});
  const QImage bare = Face();
  button.SetKey("HHHHHH");
  const QRect key = WordsOn(button);
  EXPECT_GT(key.top(), caption.bottom()) << "they keep apart";
  EXPECT_LT(key.height(), caption.height());
  EXPECT_NEAR(key.center().x(), button.rect().center().x(), 2);
  EXPECT_NEAR(key.width(), button.CaptionWidth(40), 4);
  EXPECT_LT(key.bottom(), button.height() - 3);
  int brightest = 0;
  for (int x = key.left(); x <= key.right(); ++x)
    brightest = std::max(brightest, Face().pixelColor(x, key.center().y()).green());
  EXPECT_LT(brightest, kCaption.green() - 5);
  EXPECT_GT(Contrast(QColor(brightest, brightest, brightest), bare.pixelColor(key.center())), kReadsWell);
}

TEST_F(AShownBarButton, IsARoundPlateThatIsTheSameOnAllSides) {
  button.SetCaption(" ");
  const QImage face = Face();
  const QRect all = button.rect();
  for (int y = 0; y < all.height(); ++y) {
    for (int x = 0; x < all.width(); ++x) {
      const int alpha = qAlpha(face.pixel(x, y));
      EXPECT_NEAR(alpha, qAlpha(face.pixel(all.right() - x, y)), 12) << x << ' ' << y;
      EXPECT_NEAR(alpha, qAlpha(face.pixel(x, all.bottom() - y)), 12) << x << ' ' << y;
    }
  }
  EXPECT_EQ(qAlpha(face.pixel(0, 0)), 0) << "its corners are round";
  EXPECT_EQ(qAlpha(face.pixel(75, 20)), 255);
  EXPECT_EQ(QColor(face.pixel(75, 2)), QColor(0x22, 0x14, 0x3C)) << "and it has a dark rim";
  EXPECT_NEAR(qAlpha(face.pixel(75, 0)), 128, 4) << "three pixels about a line two from its end";
  for (int x = 12; x < 138; ++x) {
    EXPECT_GE(face.pixelColor(x, 20).lightness(), face.pixelColor(x + 1, 20).lightness()) << x;
    EXPECT_EQ(face.pixel(x, 2), face.pixel(75, 2)) << x;
  }
  EXPECT_GT(face.pixelColor(12, 8).lightness(), face.pixelColor(137, 31).lightness() + 30);
}

TEST_F(AShownBarButton, GlowsOverItsPictureFromNothingUpToTwoThirds) {
  QImage picture(150, 40, QImage::Format_RGB32);
  picture.fill(Qt::black);
  button.SetPicture(picture);
  EXPECT_EQ(Face().pixelColor(Inside()), QColor(Qt::black));
  button.SetPulse(true);
  EXPECT_TRUE(button.Pulses());
  EXPECT_EQ(Face().pixelColor(Inside()), QColor(Qt::black)) << "it begins dark";
  int brightest = 0;
  const auto red = [&] { return Face().pixelColor(Inside()).red(); };
  EXPECT_TRUE(QTest::qWaitFor([&] { return (brightest = std::max(brightest, red())) > 160; }));
  EXPECT_TRUE(QTest::qWaitFor([&] {
    brightest = std::max(brightest, red());
    return red() < 20;
  }));
  EXPECT_NEAR(brightest, 170, 9) << "two thirds of full light";
  EXPECT_TRUE(QTest::qWaitFor([&] { return red() > 60; })) << "and it glows again";
  painted.Settle();
  EXPECT_TRUE(painted.Come()) << "by itself";
  button.SetPulse(true);
  EXPECT_GT(red(), 20) << "it does not begin anew for being told twice";
  painted.Settle();
  button.SetPulse(false);
  EXPECT_TRUE(painted.Come());
  EXPECT_FALSE(button.Pulses());
  EXPECT_EQ(Face().pixelColor(Inside()), QColor(Qt::black));
  button.SetPulse(true);
  EXPECT_EQ(Face().pixelColor(Inside()), QColor(Qt::black)) << "each time it begins dark";
}

TEST_F(AShownBarButton, IsBrighterUnderThePointer) {
  QImage picture(150, 40, QImage::Format_RGB32);
  picture.fill(QColor(100, 100, 100));
  button.SetPicture(picture);
  EXPECT_EQ(Face().pixelColor(Inside()), QColor(100, 100, 100));
  QTest::mouseMove(&window, button.geometry().center());
  ASSERT_TRUE(QTest::qWaitFor([&] { return button.underMouse(); }));
  const QColor lit = Face().pixelColor(Inside());
  EXPECT_NEAR(lit.red(), 100 + 155 / 5, 3) << "by a fifth of what is missing to white";
  EXPECT_EQ(lit.red(), lit.green());
  EXPECT_EQ(lit.red(), lit.blue());
}

// Twenty-four steps from one glow to the next, half of them up and half of them down: that is thirteen
// lights.
TEST_F(AShownBarButton, GlowsInSmallSteps) {
  QImage picture(150, 40, QImage::Format_RGB32);
  picture.fill(Qt::black);
  button.SetPicture(picture);
  button.SetPulse(true);
  QSet<int> lights;
  EXPECT_TRUE(QTest::qWaitFor(
      [&] {
        lights.insert(Face().pixelColor(Inside()).red());
        return lights.size() >= 11;
      },
      20000));
}

}  // namespace
}  // namespace zorik
