// The bar of practice, and the player's own keys there.
#include <QSignalSpy>

#include "screens/PracticeScreen.h"

namespace zorik {
namespace {

using test::OneStepCave;
using test::Picture;
using test::RecordOfKeys;
using test::Wait;

class PracticeBarTest : public test::PracticeScreen {
 protected:
  const PracticeBar& Its() const { return Training().Bar(); }
  BarButton* Of(const char* name) const { return Its().findChild<BarButton*>(name); }
  void ClickOn(const char* name) const { QTest::mouseClick(Of(name), Qt::LeftButton); }

  // The captions of the buttons that show, with their keys.
  QStringList Buttons() const {
    QStringList all;
    for (const BarButton* const button : Its().findChildren<BarButton*>()) {
      if (!button->isHidden()) all += button->Caption() + ": " + button->Key();
    }
    return all;
  }

  void Choose(KeyUse use, int key) { settings.Keys.Choose(use, {key, false, false, 0}); }
};

TEST_F(PracticeBarTest, NamesAtFirstWhatPracticeOffersWithItsKeys) {
  Practise();
  EXPECT_TRUE(Its().isVisible());
  EXPECT_EQ(Buttons(), (QStringList{"Zpět v čase: Backspace", "Značka: F5", "Ke značce: F8", "Pomaleji: F6",
                                    "Co mě zabilo: F7", "Kudy dál?: H"}));
  for (const BarButton* const button : Its().findChildren<BarButton*>())
    EXPECT_FALSE(button->toolTip().isEmpty()) << button->objectName().toStdString();
}

TEST_F(PracticeBarTest, HasRoomForItsButtonsInEverySizeOfTheWindow) {
  Practise();
  for (const QSize size : {QSize(480, 320), QSize(936, 616), QSize(1300, 700)}) {
    window->resize(size);
    ASSERT_TRUE(Wait([&] { return window->size() == size; }));
    EXPECT_TRUE(window->rect().contains(Its().geometry())) << size.width();
    EXPECT_FALSE(Its().geometry().intersects(Training().Badge().geometry())) << size.width();
    int right = 0;
    for (const BarButton* const button : Its().findChildren<BarButton*>()) {
      if (button->isHidden()) continue;
      EXPECT_GT(button->x(), right) << button->objectName().toStdString();
      EXPECT_GE(button->width(), button->CaptionWidth(button->height())) << size.width();
      right = button->geometry().right();
    }
    EXPECT_LT(right, Its().width()) << size.width();
  }
}

TEST_F(PracticeBarTest, LeavesAndComesAgainWhenTheMouseMoves) {
  settings.Speed = 10;  // nobody is asked meanwhile whether he sleeps
  Practise();
  ASSERT_TRUE(Wait([&] { return !Its().isVisible(); }));
  EXPECT_TRUE(Training().Badge().isVisible());
  QTest::mouseMove(window.get(), QPoint(50, 200));
  QTest::mouseMove(window.get(), QPoint(60, 210));
  EXPECT_TRUE(Wait([&] { return Its().isVisible(); }));
  window->Stop();
  EXPECT_FALSE(Its().isVisible());
}

TEST_F(PracticeBarTest, TurnsBackTimeAsLongAsItsButtonIsHeld) {
  Practise();
  GoTo(20);
  const int before = Tick();
  QTest::mousePress(Of("rewind"), Qt::LeftButton);
  ASSERT_TRUE(Wait([&] { return Tick() <= before - 10; }));
  QTest::mouseRelease(Of("rewind"), Qt::LeftButton);
  const int at = Tick();
  EXPECT_TRUE(Wait([&] { return Tick() >= at + 3; }));
}

TEST_F(PracticeBarTest, LetsGoOfTimeWhenItIsHiddenUnderTheMouse) {
  Practise();
  GoTo(20);
  QTest::mousePress(Of("rewind"), Qt::LeftButton);
  ASSERT_TRUE(Wait([&] { return Tick() <= 10; }));
  Of("rewind")->hide();
  EXPECT_TRUE(TicksPass(3));
}

TEST_F(PracticeBarTest, SetsTheMarkAndComesBackToItAndSlowsDownByItsButtons) {
  settings.Speed = 3;
  Practise();
  ClickOn("tomark");
  EXPECT_EQ(Message(), "Značka ještě není. Klávesa F5 ji udělá.");
  GoTo(8);
  ClickOn("mark");
  const int mark = Tick();
  EXPECT_EQ(Message(), "Značka je tady. Klávesa F8 se k ní vrátí.");
  ASSERT_TRUE(TicksPass(5));
  ClickOn("tomark");
  EXPECT_EQ(Tick(), mark);
  const int interval = window->Interval();
  ClickOn("slow");
  EXPECT_EQ(window->Interval(), 2 * interval);
  ClickOn("killed");
  EXPECT_EQ(Message(), "Ještě je koho vést.");
}

TEST_F(PracticeBarTest, ShowsTheWayByItsButton) {
  Open({"WWWWWWWWW", "W1;D;;;TW", "WWWWWWWWW"}, {.needed = 1}, RunKind::Practice);
  QTest::mousePress(Of("way"), Qt::LeftButton);
  ASSERT_TRUE(Wait([&] { return Training().Hint().Whole(); }));
  QTest::mouseRelease(Of("way"), Qt::LeftButton);
  EXPECT_TRUE(Training().Hint().Shown());
  EXPECT_FALSE(Training().Hint().Whole());
}

TEST_F(PracticeBarTest, OffersTheCaveInEarnestOnceItIsWon) {
  QSignalSpy earnest(&Training(), &Practice::EarnestWanted);
  Show();
  ASSERT_TRUE(window->Start(OneStepCave("Jedna"), RunKind::Practice));
  QTest::keyClick(window.get(), Qt::Key_Right);
  ASSERT_TRUE(Wait([&] { return Of("earnest")->isVisible(); }));
  EXPECT_EQ(Buttons(), (QStringList{"Zpět v čase: Backspace", "Ke značce: F8", "Doopravdy: Enter"}));
  EXPECT_TRUE(Of("earnest")->Pulses());
  ClickOn("earnest");
  EXPECT_EQ(earnest.count(), 1);
}

// The player's own keys

TEST_F(PracticeBarTest, NamesThePlayersKeysOnItsButtonsAndInItsMessages) {
  Choose(KeyUse::Rewind, Qt::Key_Insert);
  Choose(KeyUse::SetMark, Qt::Key_M);
  Choose(KeyUse::BackToMark, Qt::Key_N);
  Choose(KeyUse::SlowMotion, Qt::Key_B);
  Choose(KeyUse::Restart, Qt::Key_O);
  Practise({"WWWWWWW", "W....RW", "W1....W", "WWWWWWW"});
  EXPECT_EQ(Buttons(), (QStringList{"Zpět v čase: Insert", "Značka: M", "Ke značce: N", "Pomaleji: B",
                                    "Co mě zabilo: F7", "Kudy dál?: H"}));
  EXPECT_EQ(window->findChild<BarButton*>("picRestart")->toolTip(), "Znovu od začátku (O)");
  Press(Qt::Key_N);
  EXPECT_EQ(Message(), "Značka ještě není. Klávesa M ji udělá.");
  Press(Qt::Key_M);
  EXPECT_EQ(Message(), "Značka je tady. Klávesa N se k ní vrátí.");
  window->Machine().SetField(Dog(), kSpace);
  EXPECT_TRUE(Wait(
      [&] { return Message() == "Podrž Insert a vrať se v čase, nebo ať F7 najde, kdy to ještě šlo."; }));
}

TEST_F(PracticeBarTest, GivesAKeyThatThePlayerHasChosenToWhatItWasChosenFor) {
  Choose(KeyUse::Right, Qt::Key_H);
  Choose(KeyUse::Left, Qt::Key_F7);
  Practise();
  EXPECT_EQ(Of("way")->Key(), QString(QChar(0x2013)));
  EXPECT_EQ(Of("killed")->Key(), QString(QChar(0x2013)));
  QTest::keyPress(window.get(), Qt::Key_H);
  ASSERT_TRUE(Wait([&] { return Dog().x() >= 5; }));
  QTest::keyRelease(window.get(), Qt::Key_H);
  EXPECT_FALSE(Training().Waits());
  QTest::keyPress(window.get(), Qt::Key_F7);
  EXPECT_TRUE(Wait([&] { return Dog().x() <= 2; }));
  QTest::keyRelease(window.get(), Qt::Key_F7);
}

}  // namespace
}  // namespace zorik
