#include <gtest/gtest.h>

#include <QImage>
#include <QSignalSpy>
#include <QTest>

#include "screens/PaintedParts.h"
#include "screens/SeekLine.h"

namespace zorik {
namespace {

constexpr QRgb kRed = 0xFFFF0000;
constexpr QRgb kBlue = 0xFF0000FF;

// A line of 200 ticks, two pixels each, without curves.
class ASeekLine : public testing::Test {
 protected:
  ASeekLine() {
    line.resize(421, SeekLine::kHeight);
    line.SetRun(200, {});
  }

  QImage Seen() {
    QImage seen(line.size(), QImage::Format_ARGB32);
    seen.fill(Qt::transparent);
    line.render(&seen, {}, {}, QWidget::RenderFlags());
    return seen;
  }

  // Where something of this colour is.
  QRect PlaceOf(QRgb colour) {
    const QImage seen = Seen();
    QRegion place;
    for (int y = 0; y < seen.height(); ++y) {
      for (int x = 0; x < seen.width(); ++x) {
        if (seen.pixel(x, y) == colour) place += QRect(x, y, 1, 1);
      }
    }
    return place.boundingRect();
  }

  void Send(QEvent::Type type, int x, Qt::MouseButton button, Qt::MouseButtons held) {
    const QPoint at(x, 14);
    QMouseEvent event(type, at, line.mapToGlobal(at), button, held, {});
    QApplication::sendEvent(&line, &event);
  }

  SeekLine line{nullptr};
  QSignalSpy sought{&line, &SeekLine::Sought};
  QSignalSpy dropped{&line, &SeekLine::Dropped};
};

TEST_F(ASeekLine, HasAllItsTicksBetweenTwoEqualMargins) {
  EXPECT_EQ(line.PlaceOf(0), 10);
  EXPECT_EQ(line.PlaceOf(200), 421 - 1 - 10);
  for (int tick = 0; tick <= 200; ++tick) EXPECT_EQ(line.PlaceOf(tick), 10 + 2 * tick);
  EXPECT_EQ(line.PlaceOf(-5), 10) << "nothing lies beside it";
  EXPECT_EQ(line.PlaceOf(300), 410);
  line.SetRun(0, {});
  EXPECT_EQ(line.PlaceOf(0), 10) << "a run of no tick stands at its start";
}

TEST_F(ASeekLine, SeeksTheTickNearestToThePointer) {
  for (const int tick : {0, 1, 99, 200}) {
    QTest::mouseClick(&line, Qt::LeftButton, {}, QPoint(line.PlaceOf(tick), 14));
    EXPECT_EQ(sought.takeLast().at(0).toInt(), tick);
  }
  line.SetRun(40, {});  // ten pixels each
  for (const int off : {-4, 4}) {
    QTest::mouseClick(&line, Qt::LeftButton, {}, QPoint(line.PlaceOf(7) + off, 14));
    EXPECT_EQ(sought.takeLast().at(0).toInt(), 7) << off;
  }
  QTest::mouseClick(&line, Qt::LeftButton, {}, QPoint(0, 14));
  EXPECT_EQ(sought.takeLast().at(0).toInt(), 0);
  QTest::mouseClick(&line, Qt::LeftButton, {}, QPoint(420, 14));
  EXPECT_EQ(sought.takeLast().at(0).toInt(), 40);
}

TEST_F(ASeekLine, IsDraggedByTheLeftButtonUntilThatIsLetGo) {
  Send(QEvent::MouseMove, 50, Qt::NoButton, {});
  EXPECT_EQ(sought.count(), 0) << "the pointer alone drags nothing";
  Send(QEvent::MouseButtonPress, 50, Qt::RightButton, Qt::RightButton);
  Send(QEvent::MouseButtonRelease, 50, Qt::RightButton, {});
  EXPECT_EQ(sought.count() + dropped.count(), 0);
  Send(QEvent::MouseButtonPress, 50, Qt::LeftButton, Qt::LeftButton);
  EXPECT_TRUE(line.Dragging());
  EXPECT_EQ(sought.takeLast().at(0).toInt(), 20);
  Send(QEvent::MouseMove, 70, Qt::NoButton, Qt::LeftButton);
  EXPECT_EQ(sought.takeLast().at(0).toInt(), 30);
  Send(QEvent::MouseMove, -70, Qt::NoButton, Qt::LeftButton);
  EXPECT_EQ(sought.takeLast().at(0).toInt(), 0) << "also beside it";
  Send(QEvent::MouseButtonRelease, 70, Qt::RightButton, Qt::LeftButton);
  EXPECT_TRUE(line.Dragging());
  Send(QEvent::MouseButtonRelease, 70, Qt::LeftButton, {});
  EXPECT_FALSE(line.Dragging());
  EXPECT_EQ(dropped.count(), 1);
  Send(QEvent::MouseMove, 90, Qt::NoButton, {});
  Send(QEvent::MouseButtonRelease, 90, Qt::LeftButton, {});
  EXPECT_EQ(sought.count(), 0);
  EXPECT_EQ(dropped.count(), 1);
}

TEST_F(ASeekLine, DropsTheKnobWithoutAWordWhereAnotherRunBegins) {
  line.ShowTick(70);
  Send(QEvent::MouseButtonPress, 50, Qt::LeftButton, Qt::LeftButton);
  line.SetRun(100, {});
  EXPECT_FALSE(line.Dragging());
  EXPECT_EQ(dropped.count(), 0);
  EXPECT_EQ(line.Tick(), 0);
  EXPECT_EQ(line.Length(), 100);
}

TEST_F(ASeekLine, ShowsNoTickBeforeTheStartOrBehindTheEnd) {
  line.ShowTick(201);
  EXPECT_EQ(line.Tick(), 200);
  line.ShowTick(-1);
  EXPECT_EQ(line.Tick(), 0);
}

TEST_F(ASeekLine, TakesNoFocusAndHearsOfThePointer) {
  EXPECT_EQ(line.focusPolicy(), Qt::NoFocus);
  EXPECT_TRUE(line.hasMouseTracking());
}

// The rail from end to end, the part that is over in a lighter colour, and the knob on the tick.
TEST_F(ASeekLine, DrawsWhatIsOverBrighterThanWhatIsToCome) {
  line.ShowTick(100);
  const QImage seen = Seen();
  const int middle = line.Rail().center().y();
  const QRgb past = seen.pixel(20, middle);
  const QRgb ahead = seen.pixel(400, middle);
  EXPECT_GT(QColor(past).lightness(), QColor(ahead).lightness() + 60);
  for (int x = 10; x < 200; ++x) EXPECT_EQ(seen.pixel(x, middle), past) << x;
  for (int x = 221; x <= 410; ++x) EXPECT_EQ(seen.pixel(x, middle), ahead) << x;
  EXPECT_EQ(qAlpha(seen.pixel(9, middle)), 0);
  EXPECT_EQ(qAlpha(seen.pixel(411, middle)), 0);
  int thick = 0;
  for (int y = 0; y < seen.height(); ++y) thick += seen.pixel(30, y) == past ? 1 : 0;
  EXPECT_EQ(thick, 4);
  for (const int y : {middle - 2, middle + 1}) EXPECT_EQ(seen.pixel(30, y), past);
}

TEST_F(ASeekLine, HasARoundKnobInTheMiddleOfItsTick) {
  for (const int tick : {0, 100, 200}) {
    line.ShowTick(tick);
    const QImage seen = Seen();
    const int x = line.PlaceOf(tick);
    const int y = line.Rail().center().y();
    const auto at = [&](int right, int down) { return seen.pixelColor(x + right, y + down); };
    EXPECT_GT(at(0, 0).lightness(), 200);
    for (int away = 1; away <= 9; ++away) {
      EXPECT_NEAR(at(0, away).alpha(), at(0, -away).alpha(), 12) << away;
      EXPECT_NEAR(at(0, away).lightness(), at(0, -away).lightness(), 12) << away;
    }
    EXPECT_GT(at(0, 6).lightness(), 200) << "as large as a knob that can be caught";
    EXPECT_LT(at(0, 8).lightness(), 120) << "with a dark rim";
    EXPECT_EQ(at(0, 10).alpha(), 0);
    EXPECT_EQ(at(7, 7).alpha(), 0) << "and round";
  }
}

TEST_F(ASeekLine, DrawsMarksAsHighAsTheyAreInTheMiddleOfTheLineAndLaterOnesOverEarlierOnes) {
  line.SetRun(200, {{50, kRed, 12}, {120, kRed, SeekLine::Mark::kThrough}, {120, kBlue, 18}});
  const QRect blue = PlaceOf(kBlue);
  EXPECT_EQ(blue.width(), 2);
  EXPECT_EQ(blue.height(), 18);
  EXPECT_EQ(blue.left(), line.PlaceOf(120) - 1);
  EXPECT_EQ(blue.top(), line.Rail().center().y() - 9);
  const QImage seen = Seen();
  EXPECT_EQ(seen.pixel(line.PlaceOf(120), 0), kRed);
  EXPECT_EQ(seen.pixel(line.PlaceOf(120), seen.height() - 1), kRed) << "from top to bottom";
  line.SetRun(200, {{50, kRed, 12}});
  EXPECT_EQ(PlaceOf(kRed), QRect(line.PlaceOf(50) - 1, line.Rail().center().y() - 6, 2, 12));
  line.SetRun(200, {{50, kRed, 1}});
  EXPECT_EQ(PlaceOf(kRed).height(), 2) << "none is so low that it is not seen";
}

TEST_F(ASeekLine, IsDrawnSmallerOnASmallScale) {
  line.SetScale(0.5);
  EXPECT_EQ(line.PlaceOf(0), 5);
  EXPECT_EQ(line.Rail().height(), 14);
  EXPECT_EQ(line.Rail().bottom(), line.height() - 1) << "it lies at the lower edge";
  line.SetRun(200, {{150, kRed, 12}});
  EXPECT_EQ(PlaceOf(kRed).height(), 6);
  const QImage seen = Seen();
  EXPECT_GT(QColor(seen.pixel(5, line.Rail().center().y() + 2)).lightness(), 200);
  EXPECT_EQ(qAlpha(seen.pixel(5, line.Rail().center().y() + 7)), 0) << "with a smaller knob";
}

// Each of a curve's ticks is a step up of the same height; the highest curve is as high as the room.
TEST_F(ASeekLine, DrawsACurveThatGoesUpByAStepInEachOfItsTicks) {
  line.resize(421, 28 + 46);
  line.SetRun(200, {}, {{QColor::fromRgb(kRed), {40, 80, 120, 160}}, {QColor::fromRgb(kBlue), {60, 100}}});
  const int floor = line.Rail().top();
  EXPECT_EQ(floor, 46);
  const QImage seen = Seen();
  const auto heightAt = [&](int tick, QRgb colour) {
    for (int y = 0; y < seen.height(); ++y) {
      if (seen.pixel(line.PlaceOf(tick), y) == colour) return floor - (y + 1);
    }
    return -1;
  };
  EXPECT_EQ(heightAt(50, kRed), 10);
  EXPECT_EQ(heightAt(95, kRed), 20);
  EXPECT_EQ(heightAt(140, kRed), 30);
  EXPECT_EQ(heightAt(180, kRed), 40) << "six pixels below the top";
  EXPECT_EQ(heightAt(199, kRed), 40) << "up to the end of the run";
  EXPECT_EQ(heightAt(30, kBlue), 0);
  EXPECT_EQ(heightAt(70, kBlue), 10) << "both are measured by one rule";
  EXPECT_EQ(heightAt(180, kBlue), 20);
}

TEST_F(ASeekLine, ShowsWhatIsNewAtOnce) {
  line.show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&line));
  test::PaintedParts painted;
  painted.Watch(line);
  const auto isPainted = [&] { return QTest::qWaitFor([&] { return !painted.Take().isEmpty(); }); };
  const auto settle = [&] {
    QCoreApplication::processEvents();
    painted.Take();
  };
  settle();
  line.ShowTick(5);
  EXPECT_TRUE(isPainted());
  settle();
  line.SetScale(0.75);
  EXPECT_TRUE(isPainted());
  settle();
  line.SetRun(100, {});
  EXPECT_TRUE(isPainted());
}

}  // namespace
}  // namespace zorik
