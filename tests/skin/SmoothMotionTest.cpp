#include <gtest/gtest.h>

#include "PaintedRun.h"
#include "support/RandomCave.h"

namespace zorik {
namespace {

constexpr QSize kFrame(200, 80);  // five by two cells of 40 pixels

// A run whose picture moves smoothly, in a skin of plain colours.
class SmoothMotionTest : public test::PaintedRun {
 protected:
  static constexpr QRgb kBoulderColour = 0xFF808080, kBoxColour = 0xFFB08040;

  SmoothMotionTest() : PaintedRun(1) {
    Paint("Default/Game/Boulder.bmp", kBoulderColour);
    Paint("Default/Game/Box.bmp", kBoxColour);
  }

  void Pass(std::string_view keys = "", bool smooth = true) {
    painter_->TickBegins(smooth);
    test::Pass(hra_, 1, keys);
    painter_->TickEnds(hra_);
  }

  // The picture so far on the way, painted from nothing.
  QImage At(double way, QSize frame = kFrame) {
    painter_->Look(hra_, frame, way);
    return Whole();
  }
  QImage Whole() {
    QImage image(painter_->Size(), QImage::Format_RGB32);
    painter_->PaintPart(image.rect(), image, {});
    return image;
  }

  void Moved(Cell from, Cell to) override { painter_->Moved(hra_, from, to); }
};

// The colours along a line of pixels, each with how many there are of it.
using Colours = std::vector<std::pair<QRgb, int>>;
Colours Along(const QImage& image, int y) {
  Colours colours;
  for (int x = 0; x < image.width(); ++x) {
    if (colours.empty() || colours.back().first != image.pixel(x, y))
      colours.emplace_back(image.pixel(x, y), 0);
    ++colours.back().second;
  }
  return colours;
}

// The first pixel that differs; none where the images are alike.
std::string FirstDifference(const QImage& one, const QImage& other) {
  for (int y = 0; y < one.height(); ++y) {
    for (int x = 0; x < one.width(); ++x) {
      if (one.pixel(x, y) != other.pixel(x, y)) return std::to_string(x) + "," + std::to_string(y);
    }
  }
  return {};
}

TEST_F(SmoothMotionTest, DrawsTheDogBetweenTwoCellsAndWhatItHasNotDugYet) {
  Start({"1;...", "WWWWW"});
  Pass("R");
  EXPECT_EQ(Along(At(0), 20), (Colours{{kDogColour, 40}, {kDirtColour, 40}, {kSpaceColour, 120}}));
  EXPECT_EQ(Along(At(0.25), 20),
            (Colours{{kSpaceColour, 10}, {kDogColour, 40}, {kDirtColour, 30}, {kSpaceColour, 120}}));
  EXPECT_EQ(Along(At(0.75), 20),
            (Colours{{kSpaceColour, 30}, {kDogColour, 40}, {kDirtColour, 10}, {kSpaceColour, 120}}));
  EXPECT_EQ(Along(At(1), 20), (Colours{{kSpaceColour, 40}, {kDogColour, 40}, {kSpaceColour, 120}}));
}

TEST_F(SmoothMotionTest, DrawsWhatFallsBetweenTwoCells) {
  Start({"R.W.1", "..WWW"});
  Pass();
  const QImage half = At(0.5);
  EXPECT_EQ(half.pixel(20, 19), kSpaceColour);
  EXPECT_EQ(half.pixel(20, 20), kBoulderColour);
  EXPECT_EQ(half.pixel(20, 59), kBoulderColour);
  EXPECT_EQ(half.pixel(20, 60), kSpaceColour);
}

TEST_F(SmoothMotionTest, DrawsWhatIsPushedBeforeWhoPushes) {
  Start({"1K...", "WWWWW"});
  Pass("R");
  EXPECT_EQ(Along(At(0.5), 20),
            (Colours{{kSpaceColour, 20}, {kDogColour, 40}, {kBoxColour, 40}, {kSpaceColour, 100}}));
}

TEST_F(SmoothMotionTest, DrawsTheViewBetweenTwoPlaces) {
  test::Picture picture(23, std::string(39, ';'));
  picture[0][0] = '1';
  for (std::size_t i = 4; i < 23 * 39; i += 3) picture[i / 39][i % 39] = 'W';
  Start(picture);
  const QSize frame(390, 230);
  const QImage before = At(1, frame);
  Pass();
  ASSERT_FALSE(painter_->Moves(hra_)) << "the dog is where it was";
  painter_->TickBegins(true);
  hra_.Dog[1] = {38, 22, true};
  painter_->MoveView(hra_, false);
  painter_->TickEnds(hra_);
  EXPECT_TRUE(painter_->Moves(hra_));
  const QImage after = At(1, frame);
  EXPECT_EQ(At(0, frame), before);
  EXPECT_NE(At(0.5, frame), before);
  EXPECT_NE(At(0.5, frame), after);
  EXPECT_EQ(At(1, frame), after);
}

// What has changed is all that is to be painted, on the way and when it is over.
TEST_F(SmoothMotionTest, PaintsOverTheLastPictureWhatItWouldPaintFromNothing) {
  for (const bool scrolls : {true, false}) {
    Start(test::Bustle());
    painter_->SetScrollView(scrolls);
    const QSize frame(413, 251);
    QImage shown = At(1, frame);
    int moved = 0, partly = 0;
    for (int tick = 0; tick < 40; ++tick) {
      Pass(tick < 20 ? "R" : tick < 30 ? "D" : ".");
      if (painter_->Moves(hra_)) ++moved;
      for (const double way : {0.1, 0.6, 0.97, 1.0}) {
        painter_->Look(hra_, frame, way);
        painter_->PaintPart(painter_->Changed(), shown, {});
        ASSERT_EQ(FirstDifference(shown, Whole()), "")
            << "tick " << tick << ", way " << way << ", scrolls: " << scrolls;
        if (painter_->Changed() != QRegion(shown.rect())) ++partly;
      }
    }
    EXPECT_GE(moved, 20);
    EXPECT_GE(partly, scrolls ? 15 : 100) << "the view stands still at times";
  }
}

// A painter that knows of no motion.
class Plain : public Stage {
 public:
  Plain(Stage& first, SkinPlaces places, const Hra& hra)
      : first_(first), painter_(std::move(places)), hra_(hra) {}

  QImage Compose(QSize frame) { return painter_.Compose(hra_, frame); }

 private:
  void CaveOpens() override {
    first_.CaveOpens();
    painter_.CaveOpens(hra_);
  }
  void CellChanged(int x, int y) override {
    first_.CellChanged(x, y);
    painter_.CellChanged(hra_, x, y);
  }
  void Moved(Cell from, Cell to) override { first_.Moved(from, to); }
  void MoveView(bool jump) override {
    first_.MoveView(jump);
    painter_.MoveView(hra_, jump);
  }

  Stage& first_;
  CavePainter painter_;
  const Hra& hra_;
};

TEST_F(SmoothMotionTest, EndsEachTickWithThePictureThatThereIsWithoutIt) {
  Plain plain(*this, places_, hra_);
  hra_.SetStage(plain);
  ASSERT_TRUE(PaintCave(hra_, test::CaveTextOf(test::Bustle()), RunKind::Play));
  const QSize frame(390, 230);
  for (int tick = 0; tick < 40; ++tick) {
    Pass(tick < 20 ? "R" : "D");
    At(0.4, frame);
    ASSERT_EQ(At(1, frame), plain.Compose(frame)) << "tick " << tick;
  }
}

TEST_F(SmoothMotionTest, LetsNothingArriveThatHasBlownUp) {
  Start({"..F.1", "WWW.W"});
  hra_.SetFieldMark({2, 0}, 3);
  Pass();
  ASSERT_EQ(hra_.Field({3, 0}), kExplosion);
  EXPECT_EQ(At(0.5), At(1));
}

TEST_F(SmoothMotionTest, DrawsNothingOnItsWayUnlessThatIsWanted) {
  Start({"1;...", "WWWWW"});
  Pass("R", false);
  EXPECT_FALSE(painter_->Moves(hra_));
  EXPECT_EQ(At(0.5), At(1));
  Pass("R", true);
  EXPECT_TRUE(painter_->Moves(hra_));
  Pass("R", false);
  EXPECT_FALSE(painter_->Moves(hra_)) << "it was switched off";
}

TEST_F(SmoothMotionTest, BeginsAnewWithTheCave) {
  Start({"1;...", "WWWWW"});
  painter_->TickBegins(true);
  test::Pass(hra_, 1, "R");
  RestartCave(hra_);
  painter_->TickEnds(hra_);
  EXPECT_FALSE(painter_->Moves(hra_));
  EXPECT_EQ(At(0.5), At(1));
}

// A run of its own beside one that nobody watches: smooth motion looks at it and changes nothing.
TEST_F(SmoothMotionTest, LeavesTheRecordAsItIs) {
  for (int number = 0; number < test::HowMany(20); ++number) {
    const test::RandomRun run = test::MakeRun(static_cast<std::uint64_t>(number));
    Hra silent(run.seed);
    hra_ = Hra(run.seed);
    hra_.SetStage(*this);
    ASSERT_TRUE(PaintCave(silent, run.caveText, RunKind::Play));
    ASSERT_TRUE(PaintCave(hra_, run.caveText, RunKind::Play));
    int pictures = 0;
    for (const KeySnapshot& keys : run.keys) {
      painter_->TickBegins(true);
      const TickEnd end = Tick(hra_, keys);
      painter_->TickEnds(hra_);
      ASSERT_EQ(Tick(silent, keys), end);
      ASSERT_EQ(hra_.RecordText, silent.RecordText) << "run " << number;
      if (painter_->Moves(hra_) && ++pictures < 20) At(0.5);
    }
  }
}

}  // namespace
}  // namespace zorik
