#include <gtest/gtest.h>

#include <QPainter>
#include <QTest>

#include "screens/PaintedParts.h"
#include "screens/SkinButton.h"
#include "screens/SkinWindow.h"
#include "screens/TestSkin.h"
#include "screens/Tones.h"

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
  window_.Surface().SetPicture(test::Strips({Qt::red, Qt::black, Qt::black, Qt::black}, {25, 40}));
  EXPECT_FALSE(window_.mask().contains(QPoint(20, 20))) << "of the same size, too";
  EXPECT_TRUE(window_.mask().contains(QPoint(30, 20)));
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

// The border is one and a half pixels wide, in a colour that goes with the ground.
TEST_F(SkinWindowTest, HasAThinBorderRoundAPlainBox) {
  window_.Surface().SetColour(Qt::darkGreen);
  window_.resize(80, 60);
  window_.show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&window_));
  const QImage seen = Grabbed();
  const QColor line = TonesOf(Qt::darkGreen).line;
  for (int x = 12; x < 68; ++x) {
    for (const int y : {0, 59}) EXPECT_EQ(seen.pixelColor(x, y), line) << x << ' ' << y;
    for (const int y : {2, 57}) EXPECT_EQ(seen.pixelColor(x, y), QColor(Qt::darkGreen)) << x << ' ' << y;
  }
  for (int y = 12; y < 48; ++y) {
    for (const int x : {0, 79}) EXPECT_EQ(seen.pixelColor(x, y), line) << x << ' ' << y;
    for (const int x : {2, 77}) EXPECT_EQ(seen.pixelColor(x, y), QColor(Qt::darkGreen)) << x << ' ' << y;
  }
  for (int x = 0; x < 12; ++x) {
    for (int y = 0; y < 12; ++y) {
      const int alpha = seen.pixelColor(x, y).alpha();
      EXPECT_NEAR(alpha, seen.pixelColor(y, x).alpha(), 8) << x << ' ' << y;
      EXPECT_NEAR(alpha, seen.pixelColor(79 - x, y).alpha(), 8) << x << ' ' << y;
      EXPECT_NEAR(alpha, seen.pixelColor(x, 59 - y).alpha(), 8) << x << ' ' << y;
      EXPECT_EQ(window_.mask().contains(QPoint(x, y)), alpha >= 64)
          << "edges that are nearly clear are left out";
    }
  }
}

TEST_F(SkinWindowTest, ShowsEachNewLookAtOnce) {
  Show(Disc());
  test::PaintedParts painted;
  painted.Watch(window_);
  const std::vector<std::function<void()>> looks{
      [this] {
        window_.Surface().SetPicture(test::Strips({Qt::black, Qt::red}, {60, 100}));
      },
      [this] {
        window_.Surface().LayOver(test::Strips({Qt::blue}, {200, 30}));
      },
      [this] { window_.Surface().SetColour(Qt::green); }, [this] { window_.Surface().SetColour(Qt::blue); }};
  for (const auto& look : looks) {
    QCoreApplication::processEvents();
    painted.Take();
    look();
    EXPECT_TRUE(QTest::qWaitFor([&painted] { return !painted.Take().isEmpty(); }));
  }
  EXPECT_EQ(Grabbed().pixelColor(60, 50), QColor(Qt::blue));
  EXPECT_TRUE(window_.mask().contains(QPoint(20, 50))) << "it has no hole any more";
  window_.Surface().LayOver(Disc());
  EXPECT_EQ(Grabbed().pixelColor(30, 50), QColor(Qt::blue)) << "there is no picture to lay another over";
}

// A press far enough away drags it, and from there on it follows wherever the pointer is.
TEST_F(SkinWindowTest, FollowsThePointerUntilItIsLetGo) {
  Show(Disc());
  const auto send = [this](QEvent::Type type, QPoint pointer, Qt::MouseButton button, Qt::MouseButtons held) {
    QMouseEvent event(type, pointer - window_.pos(), pointer, button, held, {});
    QApplication::sendEvent(&window_, &event);
  };
  const auto move = [&](QPoint pointer) { send(QEvent::MouseMove, pointer, Qt::NoButton, Qt::LeftButton); };
  const int least = QApplication::startDragDistance();
  move({150, 150});
  EXPECT_EQ(window_.pos(), QPoint(100, 100)) << "nobody holds it";
  send(QEvent::MouseButtonPress, {130, 150}, Qt::LeftButton, Qt::LeftButton);
  move({130 + least - 1, 150});
  EXPECT_EQ(window_.pos(), QPoint(100, 100));
  send(QEvent::MouseMove, {300, 300}, Qt::NoButton, Qt::NoButton);
  EXPECT_EQ(window_.pos(), QPoint(100, 100)) << "it was let go elsewhere";
  move({130 + least, 150});
  EXPECT_EQ(window_.pos(), QPoint(100 + least, 100));
  move({131, 152});
  EXPECT_EQ(window_.pos(), QPoint(101, 102)) << "also back";
  send(QEvent::MouseButtonRelease, {131, 152}, Qt::LeftButton, Qt::NoButton);
  move({200, 200});
  EXPECT_EQ(window_.pos(), QPoint(101, 102));
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

// Wherever its parent is, a dialog opens within the screen; of one too large its beginning is seen.
TEST(SkinDialogPlace, IsWithinTheScreen) {
  const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
  QWidget parent;
  for (const QPoint place : {screen.topLeft() - QPoint(80, 80), screen.bottomRight() - QPoint(20, 20),
                             QPoint(screen.left() - 80, screen.bottom() - 20)}) {
    parent.setGeometry(QRect(place, QSize(100, 100)));
    parent.show();
    Dialog dialog(&parent);
    dialog.resize(200, 160);
    dialog.show();
    EXPECT_TRUE(screen.contains(dialog.geometry())) << place.x() << ' ' << place.y();
    const QRect wanted(parent.geometry().center() - QPoint(99, 79), QSize(200, 160));
    if (screen.left() > wanted.left()) {
      EXPECT_EQ(dialog.x(), screen.left());
    }
    if (screen.right() < wanted.right()) {
      EXPECT_EQ(dialog.geometry().right(), screen.right());
    }
    if (screen.bottom() < wanted.bottom()) {
      EXPECT_EQ(dialog.geometry().bottom(), screen.bottom());
    }
  }
  Dialog large(&parent);
  large.resize(screen.size() + QSize(100, 100));
  large.show();
  EXPECT_EQ(large.pos(), screen.topLeft());
}

TEST(SkinDialogPlace, IsTheMiddleOfTheScreenWithoutAParentThatIsSeen) {
  const QPoint middle = QGuiApplication::primaryScreen()->availableGeometry().center();
  QWidget parent;
  parent.setGeometry(10, 10, 100, 100);
  for (QWidget* const above : {static_cast<QWidget*>(nullptr), &parent}) {
    Dialog dialog(above);
    dialog.resize(101, 61);
    dialog.show();
    EXPECT_LE((dialog.geometry().center() - middle).manhattanLength(), 2);
  }
}

TEST_F(SkinDialogTest, ComesBackToTheMiddleWhenItOpensAgain) {
  dialog_.move(10, 20);
  dialog_.hide();
  parent_.setGeometry(140, 160, 300, 200);
  EXPECT_EQ(dialog_.pos(), QPoint(10, 20)) << "nobody sees it";
  dialog_.show();
  EXPECT_EQ(dialog_.geometry().center(), parent_.geometry().center());
  dialog_.setVisible(true);
  dialog_.move(10, 20);
  dialog_.setVisible(true);
  EXPECT_EQ(dialog_.pos(), QPoint(10, 20)) << "it is there already";
}

TEST_F(SkinDialogTest, LeavesKeysThatItHasNoUseForToOthers) {
  for (const Qt::Key key : {Qt::Key_A, Qt::Key_F1, Qt::Key_Space}) {
    QKeyEvent event(QEvent::KeyPress, key, {});
    event.accept();
    QApplication::sendEvent(&dialog_, &event);
    EXPECT_FALSE(event.isAccepted()) << key;
  }
  EXPECT_EQ(dialog_.enters + dialog_.escapes, 0);
  dialog_.reject();
  EXPECT_EQ(dialog_.escapes, 1) << "to close it is to leave it";
}

}  // namespace
}  // namespace zorik
