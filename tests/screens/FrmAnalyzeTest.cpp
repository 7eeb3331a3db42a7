#include <gtest/gtest.h>

#include <QFontMetrics>
#include <QLabel>
#include <QSignalSpy>

#include "screens/FrmAnalyze.h"
#include "screens/PostScreen.h"
#include "screens/Tones.h"

namespace zorik {
namespace {

constexpr const char* kLine = "010 · 05 + 003 · 07 + 042 · 2 = 00155";

class FrmAnalyzeTest : public testing::Test, public test::PostHome {
 protected:
  void Open(int seconds, bool bonus = false) {
    window_.SetScore(kLine, 155, bonus);
    if (seconds > 0) {
      window_.NastavCas(seconds);
    } else {
      window_.ClearCountdown();
    }
    window_.Open();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window_));
  }

  QLabel& Label(const char* name) const { return *window_.findChild<QLabel*>(name); }
  QTimer& Timer() { return *window_.findChild<QTimer*>("Timer1"); }

  // A second of the window's clock.
  void Second() { QMetaObject::invokeMethod(&Timer(), "timeout"); }

  FrmAnalyze window_{skin};
  QSignalSpy closed_{&window_, &FrmAnalyze::Closed};
};

TEST_F(FrmAnalyzeTest, ShowsTheBreakdownAndTheTotal) {
  Open(0);
  EXPECT_EQ(Label("Label2").text(), kLine);
  EXPECT_EQ(Label("Label3").text(), "00155");
}

TEST_F(FrmAnalyzeTest, ShowsTheBonusSignOnlyForABonus) {
  Open(0, true);
  EXPECT_TRUE(window_.findChild<QWidget*>("Image1")->isVisible());
  EXPECT_EQ(Label("Label3").text(), "00155") << "without the bonus";
  Open(0, false);
  EXPECT_FALSE(window_.findChild<QWidget*>("Image1")->isVisible());
}

TEST_F(FrmAnalyzeTest, CountsDownAndClosesByItself) {
  Open(3);
  EXPECT_EQ(Label("Label4").text(), "3");
  EXPECT_TRUE(Timer().isActive());
  EXPECT_EQ(Timer().interval(), 1000);
  Second();
  EXPECT_EQ(Label("Label4").text(), "2");
  Second();
  EXPECT_EQ(Label("Label4").text(), "1");
  EXPECT_EQ(closed_.size(), 0);
  Second();
  EXPECT_EQ(closed_.size(), 1);
  EXPECT_FALSE(window_.isVisible());
  EXPECT_FALSE(Timer().isActive());
}

TEST_F(FrmAnalyzeTest, StaysWhenItsSecondsAreClicked) {
  Open(3);
  Second();
  QTest::mouseClick(&Label("Label4"), Qt::LeftButton);
  EXPECT_FALSE(Timer().isActive());
  EXPECT_EQ(Label("Label4").text(), "2");
  EXPECT_TRUE(window_.isVisible());
  QTest::keyClick(&window_, Qt::Key_Return);
  EXPECT_EQ(closed_.size(), 1);
}

TEST_F(FrmAnalyzeTest, HasTheHandOverItsSecondsWhileThereAreAny) {
  Open(3);
  EXPECT_EQ(Label("Label4").cursor().shape(), Qt::PointingHandCursor);
  window_.ClearCountdown();
  EXPECT_EQ(Label("Label4").cursor().shape(), Qt::ArrowCursor) << "there is nothing to be stopped";
  Open(3);
  EXPECT_EQ(Label("Label4").cursor().shape(), Qt::PointingHandCursor);
}

TEST_F(FrmAnalyzeTest, GoesOnCountingWhenAnythingElseIsClicked) {
  Open(3);
  for (const char* name : {"Label2", "Label3"}) QTest::mouseClick(&Label(name), Qt::LeftButton);
  QTest::mouseClick(&window_, Qt::LeftButton, {}, QPoint(20, 20));
  QTest::keyClick(&window_, Qt::Key_A);
  EXPECT_TRUE(Timer().isActive());
  EXPECT_TRUE(window_.isVisible());
}

// The keys by which he has played are still held when a player wins.
TEST_F(FrmAnalyzeTest, DoesNotCloseByAKeyThatIsHeldSinceBefore) {
  Open(0);
  for (const int key : {Qt::Key_Space, Qt::Key_Return}) {
    QKeyEvent held(QEvent::KeyPress, key, {}, QString(), true);
    QApplication::sendEvent(&window_, &held);
  }
  EXPECT_TRUE(window_.isVisible());
  EXPECT_EQ(closed_.size(), 0);
}

TEST_F(FrmAnalyzeTest, CountsNoFurtherOnceTheCaveIsPlayedAgain) {
  window_.OfferAgain(true);
  for (const Qt::Key key : {Qt::Key_R, Qt::Key_Z}) {
    Open(3);
    QSignalSpy again(&window_, &FrmAnalyze::AgainWanted);
    QTest::keyClick(&window_, key);
    EXPECT_EQ(again.size(), 1);
    EXPECT_FALSE(window_.isVisible());
    EXPECT_FALSE(Timer().isActive());
    QTest::keyClick(&window_, key);
    EXPECT_EQ(again.size(), 1) << "it is gone";
  }
  EXPECT_EQ(closed_.size(), 0);
  window_.OfferAgain(false);
  Open(3);
  QTest::keyClick(&window_, Qt::Key_R);
  EXPECT_TRUE(window_.isVisible());
}

TEST_F(FrmAnalyzeTest, ClosesOnceOnly) {
  Open(1);
  QTest::keyClick(&window_, Qt::Key_Return);
  Second();
  QTest::keyClick(&window_, Qt::Key_Space);
  EXPECT_EQ(closed_.size(), 1);
}

TEST_F(FrmAnalyzeTest, WaitsForThePlayerWithoutSeconds) {
  Open(3);
  Second();
  window_.ClearCountdown();
  EXPECT_EQ(Label("Label4").text(), "");
  EXPECT_FALSE(Timer().isActive());
  EXPECT_TRUE(window_.isVisible());
}

TEST_F(FrmAnalyzeTest, ClosesByKeysButtonAndTheWindowsClosing) {
  const std::vector<std::function<void()>> ways = {
      [&] { QTest::keyClick(&window_, Qt::Key_Return); },
      [&] { QTest::keyClick(&window_, Qt::Key_Enter); },
      [&] { QTest::keyClick(&window_, Qt::Key_Space); },
      [&] { QTest::keyClick(&window_, Qt::Key_Escape); },
      [&] { QTest::mouseClick(window_.findChild<SkinButton*>("ok"), Qt::LeftButton); },
      [&] { window_.close(); },
  };
  for (std::size_t i = 0; i < ways.size(); ++i) {
    Open(3);
    ways[i]();
    EXPECT_EQ(closed_.size(), static_cast<int>(i) + 1);
    EXPECT_FALSE(window_.isVisible());
    EXPECT_FALSE(Timer().isActive());
  }
}

TEST_F(FrmAnalyzeTest, HoldsTheLongestLineWithinItsBox) {
  const QString line = "1909 · 190 + 1909 · 190 + 1909 · 9 = 742601";
  window_.SetScore(line, 742601, false);
  const QLabel& label = Label("Label2");
  EXPECT_LE(QFontMetrics(label.font()).horizontalAdvance(line), label.width());
  EXPECT_GE(label.font().pixelSize(), 14);
}

TEST_F(FrmAnalyzeTest, HasFiguresOfOneWidth) {
  window_.SetScore(kLine, 155, false);
  const QFontMetrics metrics(Label("Label2").font());
  for (const char* figure : {"1", "·", "+", " "}) {
    EXPECT_EQ(metrics.horizontalAdvance(figure), metrics.horizontalAdvance("0")) << figure;
  }
}

TEST(FrmAnalyzeSkin, GivesTheWindowItsSizeAndTheButtonItsPlace) {
  test::TestSkin skin;
  skin.Data("score:\r\nimage=score\r\nok.image=ok\r\nok.left=17\r\nok.top=29\r\n");
  skin.Picture("score", test::Strips({Qt::darkCyan}, QSize(530, 231)));
  skin.Picture("ok", test::Strips(test::kLooks, QSize(40, 20)));
  skin.Apply();
  FrmAnalyze window(skin.Skin());
  window.Open();
  EXPECT_EQ(window.size(), QSize(530, 231));
  EXPECT_EQ(window.findChild<SkinButton*>("ok")->geometry(), QRect(17, 29, 40, 20));
}

// Dark words on a light picture and light ones on a dark one.
TEST(FrmAnalyzeSkin, WritesSoThatItReadsWellOnItsPicture) {
  for (const QColor ground : {QColor(0xF0, 0xE8, 0xD0), QColor(0x18, 0x10, 0x20)}) {
    test::TestSkin skin;
    skin.Data("score:\r\nimage=score\r\n");
    skin.Picture("score", test::Strips({ground}, QSize(530, 231)));
    skin.Apply();
    FrmAnalyze window(skin.Skin());
    window.Open();
    for (const char* name : {"Label2", "Label3", "Label4"}) {
      const QColor ink = window.findChild<QLabel*>(name)->palette().color(QPalette::WindowText);
      EXPECT_GE(Contrast(ink, ground), 4.5) << name << " on " << ground.name().toStdString();
    }
  }
}

TEST(FrmAnalyzeSkin, HasItsPartsWhereOldSkinsNameNoPlace) {
  test::TestSkin skin;
  skin.Apply();
  FrmAnalyze window(skin.Skin());
  window.OfferAgain(true);
  window.Open();
  EXPECT_TRUE(window.isModal());
  EXPECT_EQ(window.windowTitle(), "Zorík");
  const auto letters = [&](const char* name) { return window.findChild<QLabel*>(name)->font().pixelSize(); };
  EXPECT_GT(letters("Label3"), letters("Label2")) << "the total is the largest";
  EXPECT_GT(letters("Label3"), letters("Label4"));
  std::vector<QRect> places;
  for (const char* name : {"Label2", "Label3", "Label4", "again"}) {
    const QRect place = window.findChild<QWidget*>(name)->geometry();
    EXPECT_TRUE(window.rect().contains(place)) << name;
    for (const QRect& other : places) {
      if (std::string(name) != "again") {
        EXPECT_FALSE(place.intersects(other)) << name;
      }
    }
    places.push_back(place);
  }
  EXPECT_EQ(places[0].center().x(), places[1].center().x()) << "the sum below its line";
  EXPECT_NEAR(places[0].center().x(), window.rect().center().x(), 1);
  window.OfferAgain(false);
  EXPECT_TRUE(window.findChild<QWidget*>("again")->isHidden());
}

}  // namespace
}  // namespace zorik
