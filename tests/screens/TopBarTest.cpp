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
#include "screens/PaintedParts.h"
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
  test::PaintedParts painted;
  painted.Watch(bar);
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

// What of the bar is drawn otherwise once something has been done with it.
QRect Changed(TopBar& bar, const std::function<void()>& act) {
  const QImage before = bar.grab().toImage();
  act();
  const QImage after = bar.grab().toImage();
  QRect changed;
  for (int y = 0; y < before.height(); ++y) {
    for (int x = 0; x < before.width(); ++x) {
      if (before.pixel(x, y) != after.pixel(x, y)) changed |= QRect(x, y, 1, 1);
    }
  }
  return changed;
}

// Whether something in a panel has exactly this colour.
bool Has(TopBar& bar, const QRect& panel, QRgb colour) {
  const QImage drawn = bar.grab(panel).toImage();
  for (int y = 0; y < drawn.height(); ++y) {
    for (int x = 0; x < drawn.width(); ++x) {
      if (drawn.pixel(x, y) == colour) return true;
    }
  }
  return false;
}

// The first row in which something is drawn.
int FirstRow(const QImage& image) {
  int row = 0;
  const auto bare = [&image](int y) {
    for (int x = 0; x < image.width(); ++x) {
      if (image.pixel(x, y) != image.pixel(0, 0)) return false;
    }
    return true;
  };
  while (row < image.height() && bare(row)) ++row;
  return row;
}

class Paints : public QObject {
 public:
  int count = 0;

 protected:
  bool eventFilter(QObject* /*object*/, QEvent* event) override {
    if (event->type() == QEvent::Paint) ++count;
    return false;
  }
};

TEST(TopBar, DrawsEachFigureInItsPanel) {
  TopBar bar(nullptr);
  bar.resize(1000, kTopBar);
  const TopBarLayout& places = bar.Places();
  const auto in = [](const QRect& panel, const QRect& changed) {
    return !changed.isEmpty() && panel.contains(changed);
  };
  EXPECT_TRUE(in(places.clock, Changed(bar, [&] { bar.SetClock(345); })));
  EXPECT_TRUE(in(places.value, Changed(bar, [&] { bar.SetValue(17); })));
  bar.SetNeeded(555);
  const QRect gems = Changed(bar, [&] { bar.SetGems(444); });
  const QRect needed = Changed(bar, [&] { bar.SetNeeded(888); });
  EXPECT_TRUE(in(places.gems, gems));
  EXPECT_TRUE(in(places.gems, needed));
  EXPECT_LT(gems.right(), needed.left());
}

TEST(TopBar, DrawsTheLastTenSecondsInAnotherColour) {
  constexpr QRgb kPlain = qRgb(0xF4, 0xEA, 0xD4), kLate = qRgb(0xFF, 0x7A, 0x5A);
  TopBar bar(nullptr);
  bar.resize(1000, kTopBar);
  bar.show();
  const QRect panel = bar.Places().clock;
  bar.SetClock(11);
  EXPECT_TRUE(Has(bar, panel, kPlain) && !Has(bar, panel, kLate));
  bar.SetClock(10);
  EXPECT_TRUE(Has(bar, panel, kLate) && !Has(bar, panel, kPlain));
}

TEST(TopBar, DrawsTheGemsInGreenAsSoonAsThereAreEnough) {
  constexpr QRgb kPlain = qRgb(0xF4, 0xEA, 0xD4), kEnough = qRgb(0x8C, 0xF0, 0x8C);
  TopBar bar(nullptr);
  bar.resize(1000, kTopBar);
  bar.show();
  const QRect panel = bar.Places().gems;
  bar.SetNeeded(8);
  bar.SetGems(7);
  EXPECT_TRUE(Has(bar, panel, kPlain) && !Has(bar, panel, kEnough));
  bar.SetGems(8);
  EXPECT_TRUE(Has(bar, panel, kEnough) && !Has(bar, panel, kPlain));
}

TEST(TopBar, IsDrawnAnewForEachFigureThatHasChangedAndForNoOther) {
  TopBar bar(nullptr);
  bar.resize(1000, kTopBar);
  bar.show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&bar));
  QTest::qWait(20);
  Paints paints;
  bar.installEventFilter(&paints);
  int painted = 0;
  for (void (TopBar::*const set)(int) :
       {&TopBar::SetClock, &TopBar::SetGems, &TopBar::SetNeeded, &TopBar::SetValue}) {
    (bar.*set)(77);
    QTest::qWait(20);
    EXPECT_EQ(paints.count, ++painted);
    (bar.*set)(77);
    QTest::qWait(20);
    EXPECT_EQ(paints.count, painted);
  }
}

TEST(TopBar, HasButtonsThatLookOtherwiseUnderThePointerAndWhilePressed) {
  TopBar bar(nullptr);
  bar.resize(1000, kTopBar);
  bar.show();
  BarButton* const button = Button(bar, "Command4");
  const auto face = [button] { return button->grab().toImage(); };
  const QImage still = face();
  button->setAttribute(Qt::WA_UnderMouse, true);
  const QImage hovered = face();
  EXPECT_GT(hovered.pixelColor(hovered.rect().center()).lightness(),
            still.pixelColor(still.rect().center()).lightness());
  button->setAttribute(Qt::WA_UnderMouse, false);
  QTest::mousePress(button, Qt::LeftButton);
  const QImage pressed = face();
  QTest::mouseRelease(button, Qt::LeftButton);
  EXPECT_LT(pressed.pixelColor(pressed.rect().center()).lightness(),
            still.pixelColor(still.rect().center()).lightness());
  EXPECT_EQ(FirstRow(pressed), FirstRow(still) + 1) << "it goes down";
  EXPECT_EQ(face(), still);
}

TEST(TopBar, HasButtonsThatHeedTheLeftMouseButtonOnly) {
  TopBar bar(nullptr);
  bar.resize(1000, kTopBar);
  bar.show();
  QSignalSpy settings(&bar, &TopBar::SettingsClicked);
  QTest::mouseClick(Button(bar, "Command4"), Qt::RightButton);
  QTest::mousePress(Button(bar, "Command4"), Qt::RightButton);
  QTest::mouseRelease(Button(bar, "Command4"), Qt::LeftButton);
  EXPECT_EQ(settings.count(), 0);
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
  const auto green = [](const QImage& face) { return face.pixelColor(face.rect().center()).green(); };
  EXPECT_TRUE(QTest::qWaitFor([&] { return green(button->grab().toImage()) > green(still) + 60; }))
      << "it glows so that it is seen";
  bar.PulseRestart(false);
  QTest::qWait(100);
  EXPECT_EQ(button->grab().toImage(), still);
}

TEST(TopBar, ShowsEachButtonItsOwnPicture) {
  TopBar bar(nullptr);
  bar.resize(1000, kTopBar);
  bar.ShowLeave(true);
  const std::vector<std::pair<const char*, QColor>> pictures{
      {"picRestart", Qt::red}, {"Command4", Qt::green}, {"leave", Qt::blue}};
  const auto filled = [](QColor colour) {
    QImage picture(40, 40, QImage::Format_ARGB32_Premultiplied);
    picture.fill(colour);
    return picture;
  };
  bar.SetPictures({}, filled(Qt::red), filled(Qt::green), filled(Qt::blue));
  for (const auto& [name, colour] : pictures) {
    const QImage face = Button(bar, name)->grab().toImage();
    EXPECT_EQ(face.pixelColor(face.rect().center()).hue(), colour.hue()) << name;
  }
}

TEST(TopBar, DrawsNothingBeforeThreeFigures) {
  TopBar bar(nullptr);
  bar.resize(1000, kTopBar);
  const auto first = [&](void (TopBar::*set)(int), int before, int after) {
    (bar.*set)(before);
    return Changed(bar, [&] { (bar.*set)(after); }).left();
  };
  EXPECT_EQ(first(&TopBar::SetNeeded, 111, 811), first(&TopBar::SetNeeded, 1111, 8111));
  bar.SetNeeded(9999);  // more than there are
  EXPECT_EQ(first(&TopBar::SetGems, 111, 811), first(&TopBar::SetGems, 1111, 8111));
}

}  // namespace
}  // namespace zorik
