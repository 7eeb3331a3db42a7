#include <gtest/gtest.h>

#include <array>

#include "screens/GameLayout.h"
#include "view/DrawnView.h"

namespace zorik {
namespace {

constexpr std::array<QSize, 6> kScreens{QSize{1024, 768},  QSize{1280, 1024}, QSize{1366, 768},
                                        QSize{1920, 1080}, QSize{2560, 1440}, QSize{3440, 1440}};
constexpr std::array<qreal, 3> kScales{1, 1.5, 2};

// The window that fills a screen of so many pixels, in the desktop's units.
QSize Filling(QSize screen, qreal scale) {
  return {static_cast<int>(screen.width() / scale), static_cast<int>(screen.height() / scale)};
}

// Whether a view in cells of this size and the bars fit into a screen, counted in half pixels.
bool Fits(int cell, QSize screen, qreal scale) {
  const double bars = (44 + 1 + 20) * scale;
  return 19.5 * cell <= screen.width() && 11.5 * cell + bars <= screen.height();
}

TEST(GameLayout, HasTheCellsOfTheWidthOnAnOldScreenAndOfTheHeightOnABroadOne) {
  // Width / 19.5, or what is left of the height below the bars / 11.5.
  EXPECT_EQ(LayOut({1024, 768}, 1).cellSize, 52);
  EXPECT_EQ(LayOut({1280, 1024}, 1).cellSize, 65);
  EXPECT_EQ(LayOut({1366, 768}, 1).cellSize, 61);
  EXPECT_EQ(LayOut({1920, 1080}, 1).cellSize, 88);
  EXPECT_EQ(LayOut({2560, 1440}, 1).cellSize, 119);
  EXPECT_EQ(LayOut({3440, 1440}, 1).cellSize, 119);
}

TEST(GameLayout, CountsCellsInPixelsOfADenseScreen) {
  // (1080 - 97.5) / 11.5 and (1080 - 130) / 11.5
  EXPECT_EQ(LayOut({1280, 720}, 1.5).cellSize, 85);
  EXPECT_EQ(LayOut({960, 540}, 2).cellSize, 82);
}

TEST(GameLayout, HasTheLargestCellsThatFitOnEveryScreen) {
  for (const QSize screen : kScreens) {
    for (const qreal scale : kScales) {
      const int cell = LayOut(Filling(screen, scale), scale).cellSize;
      EXPECT_TRUE(Fits(cell, screen, scale)) << screen.width() << " at " << scale;
      // One and a half pixels are the most that rounding to whole ones takes.
      EXPECT_FALSE(Fits(cell + 1, screen - QSize(0, 2), scale)) << screen.width() << " at " << scale;
    }
  }
}

TEST(GameLayout, StacksTheBarsAndThePictureInTheMiddleOfTheWindow) {
  for (const QSize screen : kScreens) {
    for (const qreal scale : kScales) {
      const QSize window = Filling(screen, scale);
      const GameLayout layout = LayOut(window, scale);
      const QRect all = layout.imOk1 | layout.ram | layout.imOk2;
      EXPECT_TRUE(QRect(QPoint(), window).contains(all)) << screen.width() << " at " << scale;
      EXPECT_LE(std::abs(all.left() - (window.width() - 1 - all.right())), 1);
      EXPECT_LE(std::abs(all.top() - (window.height() - 1 - all.bottom())), 1);
      EXPECT_EQ(layout.imOk1.height(), 44);
      EXPECT_EQ(layout.ram.top(), layout.imOk1.bottom() + 1);
      EXPECT_EQ(layout.imOk2.top(), layout.ram.bottom() + 2);
      EXPECT_EQ(layout.imOk2.height(), 20);
    }
  }
}

TEST(GameLayout, GivesAFullViewExactlyItsCells) {
  for (const QSize screen : kScreens) {
    for (const qreal scale : kScales) {
      const GameLayout layout = LayOut(Filling(screen, scale), scale);
      const auto pixels = [scale](int length) { return static_cast<int>(length * scale); };
      EXPECT_EQ(DrawnCell({0, 0, 1560, 920}, pixels(layout.ram.width()), pixels(layout.ram.height())),
                (PixelSize{layout.cellSize, layout.cellSize}))
          << screen.width() << " at " << scale;
    }
  }
}

TEST(GameLayout, BearsAWindowOfNoSize) {
  EXPECT_EQ(LayOut({0, 0}, 1).cellSize, 0);
  EXPECT_EQ(LayOut({30, 30}, 2).cellSize, 0);
}

TEST(TopBarLayout, HasTheRestartAtTheRightAndTheOthersFourApart) {
  const TopBarLayout layout = LayOutTopBar(1000, true, 100);
  EXPECT_EQ(layout.picRestart, QRect(956, 0, 44, 44)) << "as high as the bar, at its end";
  EXPECT_EQ(layout.Command4.right() + 1 + 4, layout.picRestart.left());
  EXPECT_EQ(layout.Label1.right() + 1 + 4, layout.Command4.left());
  EXPECT_EQ(layout.psi.right() + 1 + 4, layout.Label1.left());
  EXPECT_EQ(layout.psi.size(), QSize(100, 29));
}

TEST(TopBarLayout, PutsTheStripBesideCommand4InPlay) {
  const TopBarLayout layout = LayOutTopBar(1000, false, 100);
  EXPECT_TRUE(layout.Label1.isEmpty());
  EXPECT_EQ(layout.psi.right() + 1 + 4, layout.Command4.left());
}

TEST(TopBarLayout, HasTheWayOutAtTheRightOfAllWhereItShows) {
  const TopBarLayout layout = LayOutTopBar(1000, false, 100, true);
  EXPECT_EQ(layout.leave, QRect(960, 2, 40, 40)) << "in the middle of a bar that is 44 high";
  EXPECT_EQ(layout.picRestart.right() + 1 + 4, layout.leave.left());
  EXPECT_TRUE(LayOutTopBar(1000, false, 100).leave.isEmpty());
}

TEST(TopBarLayout, HasNoStripWithoutUnits) {
  EXPECT_TRUE(LayOutTopBar(1000, false, 0).psi.isEmpty());
}

TEST(TopBarLayout, IsSmallerAsAWholeWhereThereIsNoRoom) {
  // 420 for the panels, 2 x 44 and 48 for the buttons, 244 for the strip: 800
  const TopBarLayout layout = LayOutTopBar(600, true, 244);
  EXPECT_EQ(layout.scale, 0.75);
  EXPECT_EQ(layout.psi.size(), QSize(183, 21));  // of 244 x 29
  EXPECT_EQ(layout.picRestart.size(), QSize(33, 33));
  EXPECT_EQ(layout.Command4.size(), QSize(30, 30));
  EXPECT_EQ(layout.panelsEnd, 315);
  EXPECT_EQ(LayOutTopBar(800, true, 244).scale, 1);
}

// Everything that may lie in a bar of this width, the strip of all units too, has its own place.
void ExpectAllInPlace(int width) {
  const TopBarLayout layout = LayOutTopBar(width, true, 330, true);
  const std::array<QRect, 8> places{layout.clock,  layout.gems,     layout.value,      layout.psi,
                                    layout.Label1, layout.Command4, layout.picRestart, layout.leave};
  for (std::size_t i = 0; i < places.size(); ++i) {
    EXPECT_FALSE(places[i].isEmpty()) << width << ": " << i;
    EXPECT_TRUE(QRect(0, 0, width, 44).contains(places[i])) << width << ": " << i;
    for (std::size_t j = 0; j < i; ++j) {
      EXPECT_FALSE(places[i].intersects(places[j])) << width << ": " << i << ", " << j;
    }
  }
}

TEST(TopBarLayout, LaysNothingOverAnythingElse) {
  for (const QSize screen : kScreens) {
    for (const qreal scale : kScales) ExpectAllInPlace(LayOut(Filling(screen, scale), scale).imOk1.width());
  }
  for (const int width : {430, 546, 1014, 1716}) ExpectAllInPlace(width);
}

}  // namespace
}  // namespace zorik
