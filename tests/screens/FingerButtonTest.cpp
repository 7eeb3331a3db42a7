#include <gtest/gtest.h>

#include <QPainter>
#include <QSignalSpy>
#include <QTest>

#include "screens/FingerButton.h"

namespace zorik {
namespace {

constexpr QRect kDrawn(20, 10, 30, 40);
constexpr QPoint kBeside(90, 70);

// A finger over a white window.
class AFinger : public testing::Test {
 protected:
  AFinger() {
    QImage overlay(100, 80, QImage::Format_ARGB32);
    overlay.fill(Qt::transparent);
    QPainter(&overlay).fillRect(kDrawn, Qt::red);
    finger.SetOverlay(overlay);
    window.setPalette(QPalette(Qt::white, Qt::white));
    window.resize(overlay.size());
    window.show();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    QTest::mouseMove(&window, kBeside);
  }

  QColor Seen() { return window.grab().toImage().pixelColor(kDrawn.center()); }
  QPoint Middle() const { return finger.rect().center(); }

  QWidget window;
  FingerButton finger{&window};
};

TEST_F(AFinger, ReachesAsFarAsItIsDrawn) {
  EXPECT_EQ(finger.geometry(), kDrawn);
  finger.SetOverlay(QImage());
  EXPECT_FALSE(finger.isVisible());
}

TEST_F(AFinger, IsDarkAndLightsUpInPartUnderThePointerAndWhollyWhenItIsPressed) {
  EXPECT_EQ(Seen(), QColor(Qt::white));
  QTest::mouseMove(&finger, Middle());
  const QColor hovered = Seen();
  EXPECT_EQ(hovered.red(), 255);
  EXPECT_GT(hovered.green(), 60);
  EXPECT_LT(hovered.green(), 195);
  QTest::mousePress(&finger, Qt::LeftButton, {}, Middle());
  EXPECT_EQ(Seen(), QColor(Qt::red));
  QTest::mouseRelease(&finger, Qt::LeftButton, {}, Middle());
  QTest::mouseMove(&window, kBeside);
  EXPECT_EQ(Seen(), QColor(Qt::red)) << "it is chosen";
}

TEST_F(AFinger, IsNotLitTwiceWhileTheWindowsOwnPictureShowsItLit) {
  finger.SetLitBelow(true);
  finger.setChecked(true);
  EXPECT_EQ(Seen(), QColor(Qt::white));
  finger.SetLitBelow(false);
  EXPECT_EQ(Seen(), QColor(Qt::red));
}

TEST_F(AFinger, OpensByADoubleClickOfTheLeftButton) {
  const QSignalSpy opened(&finger, &FingerButton::Opened);
  QTest::mouseDClick(&finger, Qt::LeftButton, {}, Middle());
  EXPECT_EQ(opened.count(), 1);
}

}  // namespace
}  // namespace zorik
