// Where the editors' windows stand at first.
#include <gtest/gtest.h>

#include <QScreen>
#include <QVBoxLayout>
#include <QWidget>

#include "editors/WindowPlace.h"

namespace zorik {
namespace {

QRect Screen(const QWidget& window) {
  return window.screen()->availableGeometry();
}

TEST(WindowPlace, IsTheMiddleOfTheScreen) {
  QWidget window;
  window.resize(301, 201);
  PutInMiddle(window);
  EXPECT_EQ(window.size(), QSize(301, 201));
  EXPECT_EQ(window.geometry().center(), Screen(window).center());
}

TEST(WindowPlace, LeavesNothingOutsideOfTheScreenNorItsFrame) {
  QWidget window;
  window.resize(9000, 9000);
  PutInMiddle(window);
  EXPECT_EQ(window.geometry(), QRect(Screen(window).topLeft(), Screen(window).size() - kDesktopFrame));
}

TEST(WindowPlace, LetsAWindowBeAsLargeAsItsPartsWant) {
  QWidget window;
  auto* const part = new QWidget(&window);
  part->setMinimumSize(300, 200);
  (new QVBoxLayout(&window))->addWidget(part);
  ResizeWithinScreen(window, QSize(9000, 100));
  EXPECT_EQ(window.width(), Screen(window).width() - kDesktopFrame.width());
  EXPECT_EQ(window.height(), window.minimumSizeHint().height());
}

TEST(WindowPlace, ShowsTheUpperLeftCornerOfAWindowThatCannotBeSmaller) {
  QWidget window;
  window.setMinimumSize(9000, 9000);
  PutInMiddle(window);
  EXPECT_EQ(window.size(), QSize(9000, 9000));
  EXPECT_EQ(window.pos(), Screen(window).topLeft());
}

}  // namespace
}  // namespace zorik
