// A view that has scrolled keeps the pixels that stay in it: they are moved, and the rest is painted.
#include <gtest/gtest.h>

#include "PaintedRun.h"

namespace zorik {
namespace {

// A tile in which no two pixels are alike, so that none can stand in for another.
QImage Motley(Chance& chance, int columns, int rows) {
  QImage image(columns * kTileSize, rows * kTileSize, QImage::Format_RGB32);
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) image.setPixel(x, y, 0xFF000001 | chance.Below(1U << 24U));
  }
  return image;
}

class ScrolledView : public test::PaintedRun {
 protected:
  ScrolledView() {
    for (const char* const set : {"Space", "Dirt", "Boulder", "Gem", "Wall", "Dog", "Box"})
      Save(std::string("Default/Game/") + set + ".bmp", Motley(chance_, 1, 2));
    Save("Default/Game/Edges.bmp", Motley(chance_, kEdgeColumns, 1));
  }

  void Moved(Cell from, Cell to) override { painter_->Moved(hra_, from, to); }

  int Any(int below) { return static_cast<int>(chance_.Below(static_cast<std::uint32_t>(below))); }

  // A cave of this size, full of all that has a picture.
  void StartAny(int width, int height) {
    test::Picture picture(static_cast<std::size_t>(height),
                          std::string(static_cast<std::size_t>(width), '.'));
    for (std::string& row : picture) {
      for (char& letter : row) letter = std::string_view(".;;;RDWK")[chance_.Below(8)];
    }
    picture[0][0] = '1';
    Start(picture);
  }

  // The view goes anywhere, and some cells look different.
  void Change() {
    const bool smooth = Any(3) == 0;
    painter_->TickBegins(smooth);
    if (Any(2) == 0) {
      test::Pass(hra_, 1, std::string(1, "LURD"[Any(4)]));
    } else {
      for (int i = Any(6); i > 0; --i) painter_->CellChanged(hra_, Any(hra_.CaveWidth), Any(hra_.CaveHeight));
    }
    const Unit dog = hra_.Dog[1];
    hra_.Dog[1] = {Any(hra_.CaveWidth), Any(hra_.CaveHeight), true};
    if (Any(4) != 0) painter_->MoveView(hra_, Any(20) == 0);
    hra_.Dog[1] = dog;
    painter_->TickEnds(hra_);
    way_ = smooth ? Any(11) / 10.0 : 1;
  }

  QImage FromNothing() {
    QImage image(painter_->Size(), QImage::Format_RGB32);
    painter_->PaintPart(image.rect(), image, {});
    return image;
  }

  // So many pictures one after another in a frame of this size.
  void Watch(QSize frame, int pictures) {
    painter_->Look(hra_, frame);
    QImage shown = FromNothing();
    for (int i = 0; i < pictures; ++i) {
      Change();
      painter_->Look(hra_, frame, way_);
      const PictureChange& change = painter_->Change();
      if (!change.way.isNull()) {
        ASSERT_TRUE((QRegion(shown.rect()) - change.painted - change.moved).isEmpty())
            << "nothing is as it was";
        ++scrolled_;
      }
      test::Bring(*painter_, shown);
      const QRect part(Any(shown.width()), Any(shown.height()), 1 + Any(60), 1 + Any(60));
      painter_->PaintPart(part, shown, {});  // as when a window has lain there
      ASSERT_EQ(shown, FromNothing()) << "picture " << i << " in a frame " << frame.width() << " wide";
    }
  }

  Chance chance_{7};
  double way_ = 1;
  int scrolled_ = 0;
};

TEST_F(ScrolledView, IsTheOneThatIsPaintedAnewInFramesOfAllSizes) {
  StartAny(50, 30);
  for (const QSize frame : {QSize(390, 230), QSize(391, 237), QSize(413, 251), QSize(60, 35), QSize(200, 90),
                            QSize(637, 401), QSize(956, 564)})
    Watch(frame, 60);
  EXPECT_GE(scrolled_, 150);
}

TEST_F(ScrolledView, IsTheOneThatIsPaintedAnewInCavesOfAllSizes) {
  for (const QSize cave : {QSize(20, 12), QSize(100, 12), QSize(5, 60), QSize(20, 60), QSize(100, 60)}) {
    StartAny(cave.width(), cave.height());
    Watch({420, 260}, 50);
  }
  EXPECT_GE(scrolled_, 80);
}

// What is painted while the view goes on at a cell a tick: the cells that come, those that are cut, no more.
TEST_F(ScrolledView, IsPaintedForASmallPart) {
  Start(test::Picture(30, '1' + std::string(99, ';')));
  const QSize frame(390, 230);
  hra_.Dog[1] = {30, 0, true};
  painter_->MoveView(hra_, true);
  painter_->Look(hra_, frame);
  for (int x = 31; x < 70; ++x) {
    hra_.Dog[1].x = x;
    painter_->MoveView(hra_, false);
    const PictureChange& change = painter_->Look(hra_, frame);
    EXPECT_EQ(change.way.y(), 0);
    EXPECT_LT(change.way.x(), 0);
    EXPECT_GE(change.way.x(), -20);
    EXPECT_GE(change.moved.width(), 390 - 3 * 20) << "what comes, and a cell that is cut at the other side";
    EXPECT_EQ(change.moved.height(), 230);
    EXPECT_TRUE(change.painted.xored(QRegion(0, 0, 390, 230) - change.moved).isEmpty());
  }
}

TEST_F(ScrolledView, IsPaintedAsAWholeWhereNothingStaysInIt) {
  Start(test::Picture(30, '1' + std::string(99, ';')));
  const QSize frame(390, 230);
  painter_->Look(hra_, frame);
  hra_.Dog[1] = {90, 0, true};
  painter_->MoveView(hra_, true);
  const PictureChange& change = painter_->Look(hra_, frame);
  EXPECT_TRUE(change.way.isNull());
  EXPECT_EQ(change.painted, QRegion(0, 0, 390, 230));
}

}  // namespace
}  // namespace zorik
