// What all framed lists of the game have in common.
#include <gtest/gtest.h>

#include <QPainter>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>
#include <utility>
#include <vector>

#include "screens/PaintedParts.h"
#include "screens/StartLists.h"

namespace zorik {
namespace {

constexpr QColor kGround(10, 10, 10);
constexpr QColor kText(250, 250, 250);
constexpr QColor kMarked(0, 0, 200);
constexpr QColor kMarkedText(255, 255, 0);
constexpr QColor kBorder(200, 0, 0);

ListLook Look(int border) {
  ListLook look;
  look.ground = kGround;
  look.text = kText;
  look.selectionGround = kMarked;
  look.selectionText = kMarkedText;
  look.border = kBorder;
  look.borderSize = border;
  return look;
}

// Five rows of fourteen fit into it.
class AList : public testing::Test {
 protected:
  AList() {
    list.SetLook(Look(2));
    list.resize(120, 5 * 14 + 4);
  }

  void Fill(int count) {
    QStringList labels;
    for (int i = 0; i < count; ++i) labels << QString(QChar('A' + i % 26));
    list.SetLabels(labels);
    list.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&list));
  }

  QImage Seen() { return list.grab().toImage(); }
  int Offset() const { return 2 - list.PlaceOf(0).top(); }

  LabelList list{Qt::Vertical, nullptr};
};

TEST_F(AList, IsAFrameAroundItsGroundWithNothingOfTheDesktop) {
  Fill(2);
  const QImage seen = Seen();
  for (const int x : {0, 1, 60, 118, 119}) {
    for (const int y : {0, 1, 72, 73}) EXPECT_EQ(seen.pixelColor(x, y), kBorder) << x << ' ' << y;
  }
  for (const int y : {2, 40, 71}) {
    EXPECT_EQ(seen.pixelColor(1, y), kBorder);
    EXPECT_EQ(seen.pixelColor(2, y), kGround);
    EXPECT_EQ(seen.pixelColor(117, y), kGround);
    EXPECT_EQ(seen.pixelColor(118, y), kBorder);
  }
  EXPECT_EQ(list.frameShape(), QFrame::NoFrame);
  EXPECT_EQ(list.focusPolicy(), Qt::NoFocus) << "the keys are its window's";
  EXPECT_EQ(list.verticalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
  EXPECT_EQ(list.horizontalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
  EXPECT_EQ(list.editTriggers(), QAbstractItemView::NoEditTriggers);
  EXPECT_EQ(list.selectionMode(), QAbstractItemView::SingleSelection);
  EXPECT_FALSE(list.hasAutoScroll());
  list.SetLook(Look(0));
  EXPECT_EQ(Seen().pixelColor(0, 40), kGround) << "and none where it has no width";
}

TEST_F(AList, ShowsANewLookAtOnce) {
  Fill(9);
  test::PaintedParts painted;
  painted.Watch(*list.viewport());
  QCoreApplication::processEvents();
  painted.Take();
  list.SetLook(Look(3));
  EXPECT_TRUE(QTest::qWaitFor([&] { return !painted.Take().isEmpty(); }));
  EXPECT_EQ(list.PlaceOf(0), QRect(3, 3, 114, 14));
  EXPECT_EQ(list.Range(), 9 * 14 - (74 - 6));
  QCoreApplication::processEvents();
  painted.Take();
  list.MakeCurrent(1);
  EXPECT_TRUE(QTest::qWaitFor([&] { return !painted.Take().isEmpty(); }));
}

TEST_F(AList, MarksItsCurrentEntryAndNoOther) {
  Fill(4);
  list.MakeCurrent(2);
  const QImage seen = Seen();
  // Letters are smooth: what is more red than not belongs to them.
  const auto has = [&](int row, auto&& wanted) {
    for (int y = 2 + 14 * row; y < 2 + 14 * (row + 1); ++y) {
      for (int x = 2; x < 118; ++x) {
        if (wanted(seen.pixelColor(x, y))) return true;
      }
    }
    return false;
  };
  for (int row = 0; row < 4; ++row) {
    EXPECT_EQ(has(row, [](QColor here) { return here == kMarked; }), row == 2) << row;
    EXPECT_EQ(has(row, [](QColor here) { return here.red() > 100 && here.blue() < here.red() - 20; }),
              row == 2)
        << row;
    EXPECT_EQ(has(row, [](QColor here) { return here.red() > 100 && here.blue() == here.red(); }), row != 2)
        << row;
  }
}

TEST_F(AList, KnowsWhatIsUnderAPoint) {
  Fill(8);
  const auto at = [&](int x, int y) { return list.indexAt(QPoint(x, y)).row(); };
  EXPECT_EQ(at(2, 2), 0);
  EXPECT_EQ(at(117, 15), 0);
  EXPECT_EQ(at(50, 16), 1);
  EXPECT_EQ(at(50, 71), 4);
  for (const QPoint beside : {QPoint(1, 20), QPoint(118, 20), QPoint(50, 1), QPoint(50, 72)})
    EXPECT_EQ(at(beside.x(), beside.y()), -1) << "the frame is no entry";
  list.Scroll(2);
  EXPECT_EQ(at(50, 2), 2);
  Fill(2);
  EXPECT_EQ(at(50, 40), -1) << "below the last one";
  for (int row = 0; row < 2; ++row)
    EXPECT_EQ(list.visualRect(list.model()->index(row, 0)), QRect(2, 2 + 14 * row, 116, 14));
  EXPECT_FALSE(list.visualRect(QModelIndex()).isValid());
}

TEST_F(AList, ScrollsNoFurtherThanItHasTo) {
  Fill(8);
  EXPECT_EQ(list.Range(), 3 * 14);
  EXPECT_TRUE(list.Overflows());
  list.MakeCurrent(4);
  EXPECT_EQ(Offset(), 0) << "it is seen whole";
  list.MakeCurrent(5);
  EXPECT_EQ(Offset(), 14);
  list.MakeCurrent(1);
  EXPECT_EQ(Offset(), 14);
  list.MakeCurrent(0);
  EXPECT_EQ(Offset(), 0);
  list.Scroll(2);
  EXPECT_EQ(Offset(), 28);
  list.Scroll(99);
  EXPECT_EQ(Offset(), 42);
  list.Scroll(-1);
  EXPECT_EQ(Offset(), 28);
  list.Scroll(-99);
  EXPECT_EQ(Offset(), 0);
  const QScrollBar& bar = *list.verticalScrollBar();
  EXPECT_EQ(bar.minimum(), 0);
  EXPECT_EQ(bar.maximum(), 42);
  EXPECT_EQ(bar.singleStep(), 14);
  EXPECT_EQ(bar.pageStep(), 70);
}

TEST_F(AList, IsWalkedByTheKeysOfAList) {
  Fill(12);
  EXPECT_EQ(list.PageLength(), 5);
  list.MakeCurrent(0);
  const std::vector<std::pair<Qt::Key, int>> ways{
      {Qt::Key_Down, 1}, {Qt::Key_PageDown, 6}, {Qt::Key_PageDown, 11}, {Qt::Key_Down, 11},
      {Qt::Key_Up, 10},  {Qt::Key_PageUp, 5},   {Qt::Key_Home, 0},      {Qt::Key_Up, 0},
      {Qt::Key_End, 11}, {Qt::Key_PageUp, 6}};
  for (const auto& [key, place] : ways) {
    EXPECT_TRUE(list.Step(key));
    EXPECT_EQ(list.Current(), place) << key;
  }
  EXPECT_FALSE(list.Step(Qt::Key_Left));
  EXPECT_EQ(list.Current(), 6);
  list.SetLabels({});
  EXPECT_TRUE(list.Step(Qt::Key_Down)) << "also where there is nothing to go to";
  EXPECT_EQ(list.Current(), -1);
}

TEST_F(AList, TakesKeysThatItIsGivenAndHandsOnTheOthers) {
  Fill(12);
  list.MakeCurrent(0);
  const auto taken = [&](int key, const QString& text, Qt::KeyboardModifiers with = {}) {
    QKeyEvent event(QEvent::KeyPress, key, with, text);
    QApplication::sendEvent(&list, &event);
    return event.isAccepted();
  };
  EXPECT_TRUE(taken(Qt::Key_Down, {}));
  EXPECT_EQ(list.Current(), 1);
  EXPECT_TRUE(taken(Qt::Key_F, "f"));
  EXPECT_EQ(list.Current(), 5);
  EXPECT_FALSE(taken(Qt::Key_F2, {}));
  for (const auto with : {Qt::ControlModifier, Qt::AltModifier, Qt::MetaModifier})
    EXPECT_FALSE(taken(Qt::Key_A, "a", with));
  EXPECT_FALSE(taken(Qt::Key_Minus, "-")) << "no name begins so";
  EXPECT_EQ(list.Current(), 5);
}

TEST_F(AList, KeepsTheMouseToItself) {
  Fill(12);
  const auto sent = [&](QEvent::Type type, QPoint at, Qt::MouseButton button) {
    QMouseEvent event(type, at, list.viewport()->mapToGlobal(at), button, button, {});
    event.ignore();
    QApplication::sendEvent(list.viewport(), &event);
    return event.isAccepted();
  };
  for (const QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseMove, QEvent::MouseButtonRelease,
                                  QEvent::MouseButtonDblClick}) {
    for (const QPoint at : {QPoint(50, 20), QPoint(0, 0)}) {
      for (const Qt::MouseButton button : {Qt::LeftButton, Qt::RightButton})
        EXPECT_TRUE(sent(type, at, button)) << type;
    }
  }
  list.MakeCurrent(0);
  sent(QEvent::MouseButtonPress, QPoint(50, 20), Qt::RightButton);
  EXPECT_EQ(list.Current(), 0);
  sent(QEvent::MouseButtonPress, QPoint(50, 20), Qt::LeftButton);
  EXPECT_EQ(list.Current(), 1);
  sent(QEvent::MouseMove, QPoint(50, 40), Qt::LeftButton);
  EXPECT_EQ(list.Current(), 1) << "it is not dragged over";
}

TEST_F(AList, IsTurnedByTheWheelThreeRowsANotch) {
  Fill(40);
  const auto turn = [&](QPoint angle) {
    QWheelEvent event(QPointF(5, 5), QPointF(5, 5), QPoint(), angle, Qt::NoButton, {}, Qt::NoScrollPhase,
                      false);
    event.ignore();
    QApplication::sendEvent(list.viewport(), &event);
    EXPECT_TRUE(event.isAccepted());
  };
  turn({0, -120});
  EXPECT_EQ(Offset(), 3 * 14);
  turn({0, -20});
  EXPECT_EQ(Offset(), 3 * 14) << "half a row";
  turn({0, -20});
  EXPECT_EQ(Offset(), 4 * 14);
  turn({120, 0});
  EXPECT_EQ(Offset(), 4 * 14) << "rows are not turned sideways";
  turn({0, 120});
  EXPECT_EQ(Offset(), 14);
}

TEST(AStrip, IsTurnedByEitherWay) {
  LabelList strip(Qt::Horizontal, nullptr);
  strip.SetLook(Look(1));
  strip.resize(150, 20);
  QStringList labels;
  for (int i = 0; i < 30; ++i) labels << "MMMMM";
  strip.SetLabels(labels);
  strip.show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&strip));
  const auto turn = [&](QPoint angle) {
    QWheelEvent event(QPointF(5, 5), QPointF(5, 5), QPoint(), angle, Qt::NoButton, {}, Qt::NoScrollPhase,
                      false);
    QApplication::sendEvent(strip.viewport(), &event);
  };
  turn({0, -120});
  EXPECT_EQ(1 - strip.PlaceOf(0).left(), 3 * 40);
  turn({-120, 0});
  EXPECT_EQ(1 - strip.PlaceOf(0).left(), 6 * 40);
  turn({120, 0});
  turn({0, 120});
  EXPECT_EQ(strip.PlaceOf(0).left(), 1);
  EXPECT_EQ(strip.PlaceOf(0).top(), 1);
  EXPECT_EQ(strip.PlaceOf(0).height(), 18);
  for (int place = 1; place < 30; ++place)
    EXPECT_EQ(strip.PlaceOf(place).left(), strip.PlaceOf(place - 1).right() + 1);
  EXPECT_EQ(strip.indexAt(QPoint(1, 5)).row(), 0);
  EXPECT_EQ(strip.indexAt(QPoint(strip.PlaceOf(1).left(), 5)).row(), 1);
  EXPECT_EQ(strip.indexAt(QPoint(strip.PlaceOf(1).left() - 1, 5)).row(), 0);
  EXPECT_EQ(strip.horizontalScrollBar()->singleStep(), 40);
  EXPECT_EQ(strip.horizontalScrollBar()->pageStep(), 148);
}

// The mark tells by its length how much of the list is seen, and by its place which part.
TEST_F(AList, HasAMarkAtItsEdgeInProportion) {
  Fill(10);
  const QRect first = list.PositionMark();
  EXPECT_EQ(first, QRect(118 - 3, 2, 3, 35)) << "half of the list is seen";
  list.Scroll(5);
  EXPECT_EQ(list.PositionMark(), QRect(115, 2 + 35, 3, 35));
  const QImage seen = Seen();
  for (int y = 38; y < 71; ++y) {
    for (int x = 115; x < 118; ++x) EXPECT_EQ(seen.pixelColor(x, y), kText);
    EXPECT_EQ(seen.pixelColor(114, y), kGround) << "with a rim of the ground";
  }
  EXPECT_EQ(seen.pixelColor(116, 36), kGround);
  EXPECT_EQ(seen.pixelColor(118, 50), kBorder) << "within the frame";
  Fill(5);
  EXPECT_TRUE(list.PositionMark().isEmpty());
  Fill(200);
  EXPECT_EQ(list.PositionMark().height(), 10) << "it is never too short to be seen";
}

}  // namespace
}  // namespace zorik
