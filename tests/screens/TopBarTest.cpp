#include <gtest/gtest.h>

#include <QSignalSpy>
#include <QTest>

#include "screens/StripButton.h"
#include "screens/TopBar.h"

namespace zorik {
namespace {

StripButton* Button(TopBar& bar, const char* name) {
  return bar.findChild<StripButton*>(name);
}

TEST(TopBar, WritesItsFiguresWithLeadingZeros) {
  TopBar bar(nullptr);
  bar.SetClock(90);
  bar.SetGems(7);
  bar.SetNeeded(42);
  bar.SetValue(5);
  EXPECT_EQ(bar.ClockText(), "090");
  EXPECT_EQ(bar.GemsText(), "007 / 042");
  EXPECT_EQ(bar.ValueText(), "05");
}

TEST(TopBar, TellsOfItsButtons) {
  TopBar bar(nullptr);
  bar.resize(1000, kTopBar);
  bar.ShowLabel1(true);
  bar.show();
  QSignalSpy restart(&bar, &TopBar::RestartClicked);
  QSignalSpy settings(&bar, &TopBar::SettingsClicked);
  QSignalSpy view(&bar, &TopBar::ViewClicked);
  QTest::mouseClick(Button(bar, "picRestart"), Qt::LeftButton);
  EXPECT_EQ(restart.count(), 1);
  QTest::mouseClick(Button(bar, "Command4"), Qt::LeftButton);
  EXPECT_EQ(settings.count(), 1);
  QTest::mouseClick(Button(bar, "Label1"), Qt::LeftButton);
  EXPECT_EQ(view.count(), 1);
  EXPECT_EQ(restart.count(), 1);
}

TEST(TopBar, HasButtonsThatDoNothingWhenThePointerHasSlidOff) {
  TopBar bar(nullptr);
  bar.resize(1000, kTopBar);
  bar.show();
  QSignalSpy restart(&bar, &TopBar::RestartClicked);
  StripButton* const button = Button(bar, "picRestart");
  QTest::mousePress(button, Qt::LeftButton);
  QTest::mouseRelease(button, Qt::LeftButton, {}, QPoint(-5, 20));
  EXPECT_EQ(restart.count(), 0);
}

TEST(TopBar, HasButtonsThatNeverTakeTheFocus) {
  TopBar bar(nullptr);
  for (const char* name : {"picRestart", "Command4", "Label1"}) {
    EXPECT_EQ(Button(bar, name)->focusPolicy(), Qt::NoFocus) << name;
  }
}

TEST(TopBar, ShowsTheStateOfTheViewOnLabel1) {
  TopBar bar(nullptr);
  bar.SetScrollView(true);
  EXPECT_EQ(Button(bar, "Label1")->Caption(), "±");
  bar.SetScrollView(false);
  EXPECT_EQ(Button(bar, "Label1")->Caption(), "¨");
}

TEST(TopBar, ShowsAllUnitsWhereThereIsLittleRoom) {
  TopBar bar(nullptr);
  bar.resize(507, kTopBar);
  bar.ShowLabel1(true);
  bar.ShowUnits(9, 300);
  const QRect psi = bar.Places().psi;
  const QImage empty = bar.grab(psi).toImage();
  bar.DrawDogN(9, 0);
  const QImage drawn = bar.grab(psi).toImage();
  ASSERT_EQ(drawn.size(), empty.size());
  const QRect lastSlot(drawn.width() * 9 / 10, 0, drawn.width() / 10, drawn.height());
  EXPECT_NE(drawn.copy(lastSlot), empty.copy(lastSlot));
  const QRect others(0, 0, drawn.width() * 9 / 10 - 1, drawn.height());
  EXPECT_EQ(drawn.copy(others), empty.copy(others));
}

TEST(TopBar, HasAStripOfUnitsWhenTheyAreShown) {
  TopBar bar(nullptr);
  bar.resize(1000, kTopBar);
  EXPECT_TRUE(bar.Places().psi.isEmpty());
  bar.ShowUnits(3, 300);
  EXPECT_FALSE(bar.Places().psi.isEmpty());
  const QImage empty = bar.grab(bar.Places().psi).toImage();
  bar.DrawDogN(2, 0);
  EXPECT_NE(bar.grab(bar.Places().psi).toImage(), empty);
  bar.HideUnits();
  EXPECT_TRUE(bar.Places().psi.isEmpty());
}

}  // namespace
}  // namespace zorik
