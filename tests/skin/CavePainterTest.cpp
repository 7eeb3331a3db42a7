#include <gtest/gtest.h>

#include <QPainter>

#include "PaintedRun.h"

namespace zorik {
namespace {

using CavePainterTest = test::PaintedRun;

// The colour in the middle of a drawn cell.
QRgb CellColour(const QImage& image, int cell, int x, int y) {
  return image.pixel(x * cell + cell / 2, y * cell + cell / 2);
}

TEST_F(CavePainterTest, DrawsEachCellInItsPlace) {
  Start({"1;..;", ".;;.."});
  const QImage image = painter_->Compose(hra_, {200, 80});
  ASSERT_EQ(image.size(), QSize(200, 80));
  const std::vector<std::vector<QRgb>> expected{
      {kDogColour, kDirtColour, kSpaceColour, kSpaceColour, kDirtColour},
      {kSpaceColour, kDirtColour, kDirtColour, kSpaceColour, kSpaceColour}};
  for (int y = 0; y < 2; ++y) {
    for (int x = 0; x < 5; ++x) {
      EXPECT_EQ(CellColour(image, 40, x, y),
                expected[static_cast<std::size_t>(y)][static_cast<std::size_t>(x)])
          << x << "," << y;
    }
  }
}

TEST_F(CavePainterTest, FollowsTheDogsSteps) {
  Start({"1;...", "WWWWW"});
  test::Pass(hra_, 1, "R");
  const QImage image = painter_->Compose(hra_, {200, 80});
  EXPECT_EQ(CellColour(image, 40, 0, 0), kSpaceColour);
  EXPECT_EQ(CellColour(image, 40, 1, 0), kDogColour);
}

// Another painter of the same run, which draws each picture from nothing, as it has drawn one of another size
// just before.
class FromNothing : public Stage {
 public:
  FromNothing(Stage& first, const SkinPlaces& places, const Hra& hra)
      : first_(first), painter_(places), hra_(hra) {}

  QImage Compose(QSize frame) {
    painter_.Compose(hra_, frame / 2);
    return painter_.Compose(hra_, frame);
  }
  void SetScrollView(bool on) { painter_.SetScrollView(on); }

 private:
  void CaveOpens() override {
    first_.CaveOpens();
    painter_.CaveOpens(hra_);
  }
  void CellChanged(int x, int y) override {
    first_.CellChanged(x, y);
    painter_.CellChanged(hra_, x, y);
  }
  void MoveView(bool jump) override {
    first_.MoveView(jump);
    painter_.MoveView(hra_, jump);
  }

  Stage& first_;
  CavePainter painter_;
  const Hra& hra_;
};

TEST_F(CavePainterTest, PaintsOverTheLastPictureWhatItWouldPaintFromNothing) {
  for (const bool scrolls : {true, false}) {
    for (const QSize frame : {QSize(390, 230), QSize(413, 251)}) {
      FromNothing other(*this, places_, hra_);
      hra_.SetStage(other);
      Start(test::Bustle());
      painter_->SetScrollView(scrolls);
      other.SetScrollView(scrolls);
      QImage shown = painter_->Compose(hra_, frame);
      int partly = 0;
      for (int tick = 0; tick < 90; ++tick) {
        test::Pass(hra_, 1, tick < 20 ? "R" : tick < 30 ? "D" : ".");
        painter_->Look(hra_, frame);
        painter_->PaintPart(painter_->Changed(), shown, {});
        ASSERT_EQ(shown, other.Compose(frame)) << "tick " << tick << ", scrolls: " << scrolls;
        if (painter_->Changed() != QRegion(shown.rect())) ++partly;
      }
      EXPECT_GE(partly, 30) << "the view stands still in the end";
      hra_.SetStage(*this);
    }
  }
}

TEST_F(CavePainterTest, ChangesNothingWhereNothingHappens) {
  Start({"1;..;", ".;;.."});
  EXPECT_EQ(painter_->Compose(hra_, {200, 80}).size(), QSize(200, 80));
  EXPECT_EQ(painter_->Changed(), QRegion(0, 0, 200, 80)) << "it was drawn from nothing";
  painter_->Compose(hra_, {200, 80});
  EXPECT_TRUE(painter_->Changed().isEmpty());
  test::Pass(hra_, 1, "R");
  painter_->Compose(hra_, {200, 80});
  EXPECT_EQ(painter_->Changed(), QRegion(0, 0, 80, 40)) << "the dog has gone from one cell to the next";
}

// Any part of any picture: cells in part, the pixels left at the far edges, an image that is smaller.
TEST_F(CavePainterTest, PaintsAPartOfWhatItPaintsAsAWhole) {
  Start(test::Bustle());
  for (const QSize frame : {QSize(390, 230), QSize(413, 251), QSize(200, 120)}) {
    test::Pass(hra_, 3, "R");
    const QImage whole = painter_->Compose(hra_, frame);
    ASSERT_FALSE(whole.isNull());
    for (int i = 0; i < 60; ++i) {
      const QRect part(i * 37 % whole.width(), i * 23 % whole.height(), 1 + i * 11 % 90, 1 + i * 7 % 50);
      const QPoint corner(i % 9 - 4, i % 7 - 3);
      QImage target(whole.size(), QImage::Format_RGB32);
      target.fill(kOther);
      painter_->PaintPart(part, target, corner);
      QImage expected(whole.size(), QImage::Format_RGB32);
      expected.fill(kOther);
      QPainter copy(&expected);
      const QRect seen = part & whole.rect();
      copy.drawImage(corner + seen.topLeft(), whole, seen);
      copy.end();
      ASSERT_EQ(target, expected) << "part " << i << " of a picture " << whole.width() << " wide";
    }
  }
}

TEST_F(CavePainterTest, ReadsNothingAnewOnARestart) {
  Paint("Default/Game/Bar.bmp", kOther);
  Start({"1;..;", ".;;.."});
  const qint64 bar = painter_->Around().Bar.cacheKey();
  RestartCave(hra_);
  EXPECT_EQ(painter_->Around().Bar.cacheKey(), bar);
  EXPECT_EQ(CellColour(painter_->Compose(hra_, {200, 80}), 40, 1, 0), kDirtColour);
}

TEST_F(CavePainterTest, FollowsTheSwarmWhenThatIsSteered) {
  test::Picture picture(23, std::string(39, ';'));
  picture[0][0] = '1';
  picture[22][38] = 'N';
  Start(picture);
  hra_.ActiveDog = 0;
  painter_->MoveView(hra_, true);
  const QImage image = painter_->Compose(hra_, {1560, 920});
  EXPECT_EQ(image.pixel(image.width() - 100, image.height() - 40), kDirtColour);
  EXPECT_EQ(image.pixel(image.width() - 40, image.height() - 40), kOther) << "a flea has no picture here";
}

TEST_F(CavePainterTest, ShowsAnotherSkinFromTheNextCaveOn) {
  Paint("Mine/Game/Dirt.bmp", kOther);
  Start({"1;..;", ".;;.."});
  SkinPlaces mine = places_;
  mine.Skin = "Mine";
  painter_->SetPlaces(mine);
  EXPECT_EQ(CellColour(painter_->Compose(hra_, {200, 80}), 40, 1, 0), kDirtColour);
  RestartCave(hra_);
  EXPECT_EQ(CellColour(painter_->Compose(hra_, {200, 80}), 40, 1, 0), kOther);
}

TEST_F(CavePainterTest, ShowsTheFramesOfAPictureOneAfterAnother) {
  QImage frames(80, 160, QImage::Format_RGB32);
  frames.fill(kOther);
  for (int y = 80; y < 160; ++y) {
    for (int x = 0; x < 80; ++x) frames.setPixel(x, y, kDirtColour);
  }
  ASSERT_TRUE(frames.save(QString::fromStdString(places_.SkinsPath + "/Default/Game/Keys.bmp")));
  Start({"1.!..", "WWWWW"});
  for (int tick = 0; tick < 4; ++tick) {
    test::Pass(hra_);
    EXPECT_EQ(CellColour(painter_->Compose(hra_, {200, 80}), 40, 2, 0),
              hra_.Elapsed % 2 == 0 ? kOther : kDirtColour);
  }
}

// As long as the cave is placed nobody knows whether the other end of the teleport comes, too.
TEST_F(CavePainterTest, ShowsTheOnlyEndOfATeleportAsPlainSteelOnceTheCaveIsPlaced) {
  constexpr QRgb kSteelColour = 0xFF808080, kTeleportColour = 0xFF0000FF;
  Paint("Default/Game/Steel.bmp", kSteelColour);
  Paint("Default/Game/Teleport.bmp", kTeleportColour);
  Start({"1....", "..S..", "..W..", "....."});
  const QImage image = painter_->Compose(hra_, {200, 160});
  EXPECT_EQ(CellColour(image, 40, 2, 2), kSteelColour);
  EXPECT_EQ(CellColour(image, 40, 2, 1), kSpaceColour);
  Start({"1....", "..S.W", "..W.S", "....."});
  EXPECT_EQ(CellColour(painter_->Compose(hra_, {200, 160}), 40, 2, 2), kTeleportColour);
}

TEST_F(CavePainterTest, ShowsThePartAroundTheDogOrTheWholeCave) {
  test::Picture picture(23, std::string(39, ';'));
  picture[22][38] = '1';
  Start(picture);
  const QSize frame(39 * 10, 23 * 10);
  QImage image = painter_->Compose(hra_, frame);
  EXPECT_EQ(image.pixel(image.width() - 3, image.height() - 3), kDogColour);
  EXPECT_EQ(image.pixel(image.width() - 18, image.height() - 18), kDogColour) << "a cell has 20 pixels";
  EXPECT_EQ(image.pixel(image.width() - 22, image.height() - 3), kDirtColour);
  painter_->SetScrollView(false);
  image = painter_->Compose(hra_, frame);
  EXPECT_EQ(CellColour(image, 10, 38, 22), kDogColour);
  EXPECT_EQ(image.pixel(image.width() - 12, image.height() - 3), kDirtColour);
}

// Lengths are rounded down, and a column of pixels can be left at the right.
TEST_F(CavePainterTest, FillsWhatIsLeftAtTheRightWithWhatLiesBesideIt) {
  test::Picture cave(20, std::string(18, ';') + std::string(42, '.'));
  cave[10][20] = '1';
  cave[10].replace(0, 18, std::string(18, '.'));
  Start(cave);
  bool scrolled = false;
  for (int tick = 0; tick < 30; ++tick) {
    Tick(hra_, test::Keys("R"));
    const QImage& image = painter_->Compose(hra_, {390, 230});
    for (int y = 0; y < 60; ++y) {
      ASSERT_EQ(image.pixel(image.width() - 1, y), kSpaceColour) << "tick " << tick << " at " << y;
      scrolled = scrolled || image.pixel(0, y) == kDirtColour;
    }
  }
  EXPECT_TRUE(scrolled) << "at the left lies earth";
}

}  // namespace
}  // namespace zorik
