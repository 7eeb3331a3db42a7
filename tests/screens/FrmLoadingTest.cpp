#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QKeyEvent>
#include <QPushButton>
#include <QTest>

#include "screens/FrmLoading.h"
#include "screens/MsgBox.h"
#include "screens/TestSkin.h"

namespace zorik {
namespace {

class FrmLoadingTest : public testing::Test {
 protected:
  void SetUp() override {
    skin_.Picture("working", test::Strips({Qt::yellow}, {200, 38}));
    skin_.Apply();
  }

  test::TestSkin skin_;
};

TEST_F(FrmLoadingTest, IsARoundedPlateInTheMiddleOfTheScreen) {
  FrmLoading notice(skin_.Skin());
  const BusyNotice busy(notice);
  EXPECT_TRUE(notice.isVisible());
  EXPECT_EQ(notice.size(), QSize(200, 38));
  const QPoint off = notice.geometry().center() - notice.screen()->availableGeometry().center();
  EXPECT_LE(off.manhattanLength(), 2);
  for (const QPoint corner : {QPoint(0, 0), QPoint(199, 0), QPoint(0, 37), QPoint(199, 37)}) {
    EXPECT_FALSE(notice.mask().contains(corner));
  }
  for (const QPoint inside : {QPoint(100, 0), QPoint(0, 19), QPoint(199, 19), QPoint(100, 37)}) {
    EXPECT_TRUE(notice.mask().contains(inside));
  }
}

TEST_F(FrmLoadingTest, TakesNoFocusAndStaysOnTop) {
  const FrmLoading notice(skin_.Skin());
  EXPECT_TRUE(notice.windowFlags().testFlag(Qt::WindowDoesNotAcceptFocus));
  EXPECT_TRUE(notice.windowFlags().testFlag(Qt::WindowStaysOnTopHint));
  EXPECT_TRUE(notice.windowFlags().testFlag(Qt::FramelessWindowHint));
}

TEST_F(FrmLoadingTest, HasThePictureAndTheWordsOfTheSkin) {
  FrmLoading notice(skin_.Skin());
  notice.Appear();
  const QImage czech = notice.grab().toImage();
  EXPECT_EQ(czech.pixelColor(30, 19), QColor(Qt::yellow));
  notice.Disappear();
  skin_.Data("caption.loading=Working...\n");
  skin_.Apply();
  notice.Appear();
  EXPECT_NE(notice.grab().toImage(), czech);
  notice.Disappear();
}

TEST_F(FrmLoadingTest, GoesWhateverWayTheWorkEnds) {
  FrmLoading notice(skin_.Skin());
  const auto work = [&](bool fails) {
    const BusyNotice busy(notice);
    if (fails) return false;
    return notice.isVisible();
  };
  EXPECT_FALSE(work(true));
  EXPECT_FALSE(notice.isVisible());
  EXPECT_TRUE(work(false));
  EXPECT_FALSE(notice.isVisible());
}

TEST_F(FrmLoadingTest, SwallowsWhatThePlayerDoesMeanwhile) {
  QPushButton button;
  int clicks = 0;
  QObject::connect(&button, &QPushButton::clicked, [&] { ++clicks; });
  button.show();
  FrmLoading notice(skin_.Skin());
  {
    const BusyNotice busy(notice);
    QTest::mouseClick(&button, Qt::LeftButton);
    QTest::keyClick(&button, Qt::Key_Space);
    // One more that waits until somebody handles events.
    QCoreApplication::postEvent(&button, new QKeyEvent(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier));
    QCoreApplication::postEvent(&button, new QKeyEvent(QEvent::KeyRelease, Qt::Key_Space, Qt::NoModifier));
  }
  QTest::qWait(10);
  EXPECT_EQ(clicks, 0);
  QTest::mouseClick(&button, Qt::LeftButton);
  EXPECT_EQ(clicks, 1);
}

TEST_F(FrmLoadingTest, LetsAQuestionBeAnswered) {
  FrmLoading notice(skin_.Skin());
  const BusyNotice busy(notice);
  const test::InDialog inside([&notice](QWidget& dialog) {
    EXPECT_FALSE(notice.isVisible()) << "it would stand above the question";
    QTest::keyClick(&dialog, Qt::Key_Y);
  });
  EXPECT_TRUE(Ask(skin_.Skin(), nullptr, "", "Try again?"));
  EXPECT_TRUE(inside.Opened());
}

TEST_F(FrmLoadingTest, AppearsAgainAtOnce) {
  QPushButton button;
  int clicks = 0;
  QObject::connect(&button, &QPushButton::clicked, [&] { ++clicks; });
  button.show();
  FrmLoading notice(skin_.Skin());
  { const BusyNotice first(notice); }
  const BusyNotice second(notice);
  QTest::qWait(10);
  QTest::mouseClick(&button, Qt::LeftButton);
  EXPECT_EQ(clicks, 0);
}

// A piece of the work may have a notice of its own.
TEST_F(FrmLoadingTest, StaysAsItIsWhileItShows) {
  FrmLoading notice(skin_.Skin());
  notice.Appear();
  const QImage first = notice.grab().toImage();
  notice.move(3, 4);
  skin_.Picture("working", test::Strips({Qt::blue}, {200, 38}));
  skin_.Data("caption.loading=Working...\n");
  skin_.Apply();
  notice.Appear();
  EXPECT_EQ(notice.grab().toImage(), first);
  EXPECT_EQ(notice.pos(), QPoint(3, 4));
  notice.Disappear();
}

}  // namespace
}  // namespace zorik
