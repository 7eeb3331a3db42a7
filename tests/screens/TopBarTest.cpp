#include <gtest/gtest.h>

#include <QPaintEvent>
#include <QScreen>
#include <QSignalSpy>
#include <QTest>
#include <algorithm>
#include <cmath>
#include <functional>
#include <utility>

#include "screens/BarButton.h"
#include "screens/TopBar.h"
#include "skin/HslColor.h"

namespace zorik {
namespace {

BarButton* Button(TopBar& bar, const char* name) {
  return bar.findChild<BarButton*>(name);
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

// The parts of a bar that are painted from now on.
class PaintedParts : public QObject {
 public:
  explicit PaintedParts(QWidget& widget) { widget.installEventFilter(this); }
  QRegion Take() { return std::exchange(parts_, QRegion()); }

 protected:
  bool eventFilter(QObject* /*object*/, QEvent* event) override {
    if (event->type() == QEvent::Paint) parts_ += static_cast<QPaintEvent*>(event)->region();
    return false;
  }

 private:
  QRegion parts_;
};

QImage Stripes(QSize size) {
  QImage image(size, QImage::Format_ARGB32);
  for (int x = 0; x < image.width(); ++x) {
    for (int y = 0; y < image.height(); ++y)
      image.setPixel(x, y, qRgba(x * 5 % 256, y * 9 % 256, 90, 200 + x % 56));
  }
  return image;
}

void ShowFigures(TopBar& bar, int clock, int gems, int needed, int value) {
  bar.SetClock(clock);
  bar.SetGems(gems);
  bar.SetNeeded(needed);
  bar.SetValue(value);
}

TEST(TopBar, IsPaintedOnlyWhereAFigureHasChanged) {
  TopBar bar(nullptr);
  bar.resize(1000, kTopBar);
  bar.ShowUnits(3, 120);
  bar.show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&bar));
  PaintedParts painted(bar);
  const auto change = [&](const std::function<void()>& act) {
    QTest::qWait(1);
    painted.Take();
    act();
    QTest::qWait(20);
    return painted.Take().boundingRect();
  };
  const auto around = [](const QRect& place) { return place.adjusted(-3, -3, 3, 3); };
  EXPECT_EQ(change([&] { bar.SetClock(90); }), around(bar.Places().clock));
  EXPECT_EQ(change([&] { bar.SetGems(3); }), around(bar.Places().gems));
  EXPECT_EQ(change([&] { bar.SetValue(7); }), around(bar.Places().value));
  EXPECT_EQ(change([&] { bar.DrawDogN(2, 1); }), bar.Places().psi);
  EXPECT_TRUE(change([&] { bar.DrawDogN(2, 1); }).isEmpty()) << "it shows already";
  EXPECT_TRUE(change([&] { bar.SetClock(90); }).isEmpty());
}

TEST(TopBar, LooksTheSameWhateverItHasShownBefore) {
  TopBar changed(nullptr), fresh(nullptr);
  for (TopBar* const bar : {&changed, &fresh}) {
    bar->resize(1000, kTopBar);
    bar->SetPictures(Stripes({600, 40}), Stripes({40, 40}), Stripes({40, 40}), {});
    bar->ShowUnits(3, 120);
  }
  ShowFigures(changed, 888, 888, 888, 88);
  changed.DrawDogN(1, 0);
  changed.show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&changed));
  for (TopBar* const bar : {&changed, &fresh}) {
    ShowFigures(*bar, 7, 12, 11, 5);
    bar->DrawDogN(1, 2);
  }
  QTest::qWait(20);
  fresh.show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&fresh));
  EXPECT_EQ(changed.screen()->grabWindow(changed.winId()).toImage(),
            fresh.screen()->grabWindow(fresh.winId()).toImage());
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
  BarButton* const button = Button(bar, "picRestart");
  QTest::mousePress(button, Qt::LeftButton);
  QTest::mouseRelease(button, Qt::LeftButton, {}, QPoint(-5, 20));
  EXPECT_EQ(restart.count(), 0);
}

TEST(TopBar, HasButtonsThatNeverTakeTheFocus) {
  TopBar bar(nullptr);
  for (const char* name : {"picRestart", "Command4", "Label1", "leave"}) {
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

// How well two colours read on each other: 1 not at all, 21 at best.
double Contrast(const QColor& one, const QColor& other) {
  const auto light = [](const QColor& colour) {
    const auto linear = [](double c) {
      return c <= 0.03928 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
           0.0722 * linear(colour.blueF());
  };
  const double a = light(one) + 0.05;
  const double b = light(other) + 0.05;
  return std::max(a, b) / std::min(a, b);
}

TEST(TopBar, PutsTheNumbersOfTheUnitsOnAGroundOnWhichTheyReadWellInEveryScheme) {
  // Hues of the schemes; how light the outer line of a number is that is steered, waits, is dead.
  for (const int hue : {300, 120, 340, 230, 60}) {
    TopBar bar(nullptr);
    bar.resize(1000, kTopBar);
    bar.ShowUnits(3, hue);
    const QRect psi = bar.Places().psi;
    const QImage ground = bar.grab(psi).toImage();
    for (const int lightness : {31, 0, 0}) {
      const std::uint32_t colour = HslColor(hue, 255, lightness);
      const QColor outline(static_cast<int>(colour & 255U), static_cast<int>(colour >> 8U & 255U),
                           static_cast<int>(colour >> 16U & 255U));
      for (const int x : {6, ground.width() / 2, ground.width() - 7}) {
        EXPECT_GE(Contrast(outline, ground.pixelColor(x, ground.height() / 2)), 4.5) << hue << ' ' << x;
      }
    }
  }
}

TEST(TopBar, HasARestartThatGlowsAndFadesWhileItPulses) {
  TopBar bar(nullptr);
  bar.resize(1000, kTopBar);
  bar.show();
  BarButton* const button = Button(bar, "picRestart");
  const QImage still = button->grab().toImage();
  bar.PulseRestart(true);
  EXPECT_TRUE(QTest::qWaitFor([&] { return button->grab().toImage() != still; }));
  EXPECT_TRUE(QTest::qWaitFor([&] { return button->grab().toImage() == still; })) << "it fades in turn";
  bar.PulseRestart(false);
  QTest::qWait(100);
  EXPECT_EQ(button->grab().toImage(), still);
}

}  // namespace
}  // namespace zorik
