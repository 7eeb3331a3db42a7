#include <gtest/gtest.h>

#include <QPainter>
#include <QTest>

#include "screens/SkinButton.h"
#include "screens/SkinWindow.h"
#include "screens/TestSkin.h"

namespace zorik {
namespace {

constexpr QColor kOutside(255, 0, 255);

// A red disc with a hole.
QImage Disc() {
  QImage image(120, 100, QImage::Format_RGB32);
  image.fill(kOutside);
  QPainter painter(&image);
  painter.setPen(Qt::NoPen);
  painter.setBrush(Qt::red);
  painter.drawEllipse(10, 10, 100, 80);
  painter.fillRect(55, 45, 10, 10, kOutside);
  return image;
}

class Window : public SkinWindow {
 public:
  using SkinWindow::Surface;
};

class SkinWindowTest : public testing::Test {
 protected:
  void Show(const QImage& picture) {
    window_.Surface().SetPicture(picture);
    window_.move(100, 100);
    window_.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window_));
  }

  // The window as a desktop shows it that magnifies by the factor.
  QImage Grabbed(double factor = 1) {
    QImage image((QSizeF(window_.size()) * factor).toSize(), QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.scale(factor, factor);
    window_.render(&painter, QPoint(), window_.rect(), QWidget::DrawChildren | QWidget::IgnoreMask);
    painter.end();
    return image;
  }

  // Pulls the window by a place.
  void Pull(QPoint place, QPoint way, Qt::MouseButton button) {
    QTest::mousePress(window_.windowHandle(), button, {}, place);
    QTest::mouseMove(window_.windowHandle(), place + way);
    QTest::mouseRelease(window_.windowHandle(), button, {}, place);
  }

  Window window_;
};

TEST_F(SkinWindowTest, HasNoFrameAndTheSizeOfItsPicture) {
  Show(Disc());
  EXPECT_TRUE(window_.windowFlags().testFlag(Qt::FramelessWindowHint));
  EXPECT_TRUE(window_.isWindow());
  EXPECT_EQ(window_.size(), Disc().size());
}

TEST_F(SkinWindowTest, IsShapedByTheColourOfItsFirstPixel) {
  Show(Disc());
  const QImage disc = Disc();
  const QImage grabbed = Grabbed();
  for (int x = 0; x < disc.width(); ++x) {
    for (int y = 0; y < disc.height(); ++y) {
      const bool inside = disc.pixelColor(x, y) != kOutside;
      ASSERT_EQ(window_.mask().contains(QPoint(x, y)), inside) << x << ' ' << y;
      ASSERT_EQ(grabbed.pixelColor(x, y).alpha(), inside ? 255 : 0) << x << ' ' << y;
    }
  }
}

TEST_F(SkinWindowTest, TakesTheShapeOfItsNextPicture) {
  Show(Disc());
  window_.Surface().SetPicture(test::Strips({Qt::black, Qt::red}, {50, 40}));
  EXPECT_EQ(window_.size(), QSize(100, 40));
  EXPECT_FALSE(window_.mask().contains(QPoint(49, 20)));
  EXPECT_TRUE(window_.mask().contains(QPoint(50, 20)));
}

TEST_F(SkinWindowTest, ShowsAPictureThatIsLaidOverItsOwnWithinItsShape) {
  Show(Disc());
  const QRegion shape = window_.mask();
  window_.Surface().LayOver(test::Strips({Qt::blue}, {200, 30}));
  EXPECT_EQ(window_.size(), Disc().size());
  EXPECT_EQ(window_.mask(), shape);
  const QImage grabbed = Grabbed();
  EXPECT_EQ(grabbed.pixelColor(60, 20), QColor(Qt::blue));
  EXPECT_EQ(grabbed.pixelColor(60, 70), QColor(Qt::red));
  EXPECT_EQ(grabbed.pixelColor(2, 2).alpha(), 0);
}

TEST_F(SkinWindowTest, IsAPlainBoxWithoutAPicture) {
  window_.resize(80, 60);
  Show(QImage());
  EXPECT_TRUE(window_.mask().contains(QPoint(40, 30)));
  EXPECT_FALSE(window_.mask().contains(QPoint(0, 0))) << "its corners are round";
  EXPECT_EQ(Grabbed().pixelColor(40, 30), kPlainGround);
}

TEST_F(SkinWindowTest, KeepsItsShapeWhenItGrows) {
  window_.Surface().SetColour(Qt::darkGreen);
  window_.resize(80, 60);
  window_.show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&window_));
  window_.resize(160, 60);
  EXPECT_TRUE(window_.mask().contains(QPoint(150, 30)));
  EXPECT_FALSE(window_.mask().contains(QPoint(159, 0)));
}

TEST_F(SkinWindowTest, IsDraggedByItsPicture) {
  Show(Disc());
  Pull({30, 50}, {40, 25}, Qt::LeftButton);
  EXPECT_EQ(window_.pos(), QPoint(140, 125));
}

TEST_F(SkinWindowTest, StaysForAPressThatHardlyMoves) {
  Show(Disc());
  Pull({30, 50}, {2, 1}, Qt::LeftButton);
  EXPECT_EQ(window_.pos(), QPoint(100, 100));
}

TEST_F(SkinWindowTest, StaysForTheOtherMouseButtons) {
  Show(Disc());
  Pull({30, 50}, {40, 25}, Qt::RightButton);
  EXPECT_EQ(window_.pos(), QPoint(100, 100));
}

TEST_F(SkinWindowTest, IsNotDraggedByAButton) {
  auto* const button = new SkinButton(&window_);
  button->SetPicture(test::Strips(test::kLooks, {20, 20}));
  button->move(20, 40);
  Show(Disc());
  Pull({30, 50}, {40, 25}, Qt::LeftButton);
  EXPECT_EQ(window_.pos(), QPoint(100, 100));
}

TEST_F(SkinWindowTest, DrawsItsPictureLargerWhereTheDesktopMagnifies) {
  Show(test::Strips({Qt::green, Qt::red, Qt::blue}, {40, 40}));
  const QImage magnified = Grabbed(1.5);
  ASSERT_EQ(magnified.size(), QSize(180, 60));
  EXPECT_EQ(magnified.pixelColor(90, 30), QColor(Qt::red));
  EXPECT_EQ(magnified.pixelColor(150, 30), QColor(Qt::blue));
  EXPECT_EQ(magnified.pixelColor(30, 30).alpha(), 0);
}

class Dialog : public SkinDialog {
 public:
  using SkinDialog::SkinDialog;

  int enters = 0;
  int escapes = 0;

 protected:
  void OnEnter() override { ++enters; }
  void OnEsc() override { ++escapes; }
};

class SkinDialogTest : public testing::Test {
 protected:
  void SetUp() override {
    parent_.setGeometry(100, 100, 300, 200);
    parent_.show();
    dialog_.resize(100, 60);
    dialog_.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&dialog_));
  }

  QWidget parent_;
  Dialog dialog_{&parent_};
};

TEST_F(SkinDialogTest, OpensInTheMiddleOfItsParent) {
  EXPECT_EQ(dialog_.geometry().center(), parent_.geometry().center());
}

TEST_F(SkinDialogTest, StaysInTheMiddleOfAParentThatGetsItsSizeLater) {
  parent_.setGeometry(40, 60, 600, 440);
  EXPECT_EQ(dialog_.geometry().center(), parent_.geometry().center());
}

TEST_F(SkinDialogTest, StaysWhereItWasDragged) {
  dialog_.move(10, 20);
  parent_.setGeometry(40, 60, 600, 440);
  EXPECT_EQ(dialog_.pos(), QPoint(10, 20));
}

TEST_F(SkinDialogTest, IsAnsweredOnceByAKeyThatStaysDown) {
  const auto press = [this](Qt::Key key, bool repeat) {
    QKeyEvent event(QEvent::KeyPress, key, {}, {}, repeat);
    QApplication::sendEvent(&dialog_, &event);
  };
  for (const Qt::Key key : {Qt::Key_Escape, Qt::Key_Return, Qt::Key_Enter}) {
    for (const bool repeat : {false, true, true}) press(key, repeat);
  }
  EXPECT_EQ(dialog_.escapes, 1);
  EXPECT_EQ(dialog_.enters, 2) << "of either key";
}

}  // namespace
}  // namespace zorik
