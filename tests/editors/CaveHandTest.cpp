// The view under the author's hand: the picture is moved, scrolls under a stroke, has a grid and fits in.
#include <QSignalSpy>

#include "editors/CaveView.h"
#include "editors/EditorScreen.h"

namespace zorik {
namespace {

using test::Full;
using test::Picture;

class CaveHandTest : public testing::Test, public test::EditorScreen {
 protected:
  CaveHandTest() {
    Picture picture = Full(80, 50, ';');
    picture[1][1] = '1';
    Open(picture);
    // Exactly 19 x 11 cells are seen.
    window->resize(window->size() - (Ram().size() - QSize(19 * 26, 11 * 26)));
    EXPECT_TRUE(QTest::qWaitFor([this] { return Ram().size() == QSize(19 * 26, 11 * 26); }));
    Area().setFocus();
  }

  QWidget& Ram() const { return Child<QWidget>("Ram"); }
  QScrollBar& Across() const { return Child<QScrollBar>("HScroll1"); }
  QScrollBar& Down() const { return Child<QScrollBar>("VScroll1"); }
  void Send(QEvent::Type type, QPoint place, Qt::MouseButton button, Qt::MouseButtons buttons,
            Qt::KeyboardModifiers modifiers = {}) const {
    QMouseEvent event(type, place - Area().pos(), Ram().mapToGlobal(place), button, buttons, modifiers);
    QApplication::sendEvent(&Area(), &event);
  }
  // A drag between two places of the view.
  void Haul(QPoint from, QPoint to, Qt::MouseButton button, Qt::KeyboardModifiers modifiers = {}) const {
    Send(QEvent::MouseButtonPress, from, button, button, modifiers);
    Send(QEvent::MouseMove, to, Qt::NoButton, button, modifiers);
    Send(QEvent::MouseButtonRelease, to, button, Qt::NoButton, modifiers);
  }
  int Drawn(char letter) const { return window->Model().NuOfOb(letter); }
};

TEST_F(CaveHandTest, MovesThePictureWithSpaceHeld) {
  Move(5, 5, Qt::NoButton);
  QTest::keyPress(&Area(), Qt::Key_Space);
  Haul({400, 200}, {270, 148}, Qt::LeftButton);
  QTest::keyRelease(&Area(), Qt::Key_Space);
  EXPECT_EQ(Area().pos(), QPoint(-130, -52));
  EXPECT_EQ(Drawn('R'), 0) << "neither the mouse nor Space has drawn";
  Haul({100, 100}, {100, 100}, Qt::LeftButton);
  EXPECT_EQ(Drawn('R'), 1) << "without Space it draws";
}

TEST_F(CaveHandTest, MovesThePictureWithShiftAndTheWheelButtonWhichOtherwiseDraws) {
  Haul({400, 200}, {348, 174}, Qt::MiddleButton, Qt::ShiftModifier);
  EXPECT_EQ(Area().pos(), QPoint(-52, -26));
  EXPECT_EQ(Drawn('D'), 0);
  Haul({100, 100}, {152, 100}, Qt::MiddleButton);
  EXPECT_EQ(Area().pos(), QPoint(-52, -26));
  EXPECT_EQ(Drawn('D'), 3);
}

TEST_F(CaveHandTest, DrawsNothingThatIsNotSeen) {
  const QPoint inside(17 * 26 + 5, 3 * 26 + 5);
  Send(QEvent::MouseButtonPress, inside, Qt::LeftButton, Qt::LeftButton);
  Send(QEvent::MouseMove, {30 * 26, 3 * 26 + 5}, Qt::NoButton, Qt::LeftButton);
  EXPECT_EQ(Drawn('R'), 2) << "up to the edge of the view";
  Send(QEvent::MouseMove, inside, Qt::NoButton, Qt::LeftButton);
  Send(QEvent::MouseButtonRelease, inside, Qt::LeftButton, Qt::NoButton);
  EXPECT_EQ(Drawn('R'), 2);
}

TEST_F(CaveHandTest, ScrollsUnderAStrokeBeyondTheEdgeAndDrawsWhatComesIntoView) {
  Send(QEvent::MouseButtonPress, {17 * 26 + 5, 3 * 26 + 5}, Qt::LeftButton, Qt::LeftButton);
  Send(QEvent::MouseMove, {19 * 26 + 30, 3 * 26 + 5}, Qt::NoButton, Qt::LeftButton);
  ASSERT_TRUE(QTest::qWaitFor([this] { return Across().value() >= 10; }));
  Send(QEvent::MouseButtonRelease, {19 * 26 + 30, 3 * 26 + 5}, Qt::LeftButton, Qt::NoButton);
  const int last = Area().SeenCells().right();
  EXPECT_GE(last, 22);
  for (int x = 17; x <= last; ++x) EXPECT_EQ(window->Model().At(x, 3), 'R') << x;
  EXPECT_EQ(Drawn('R'), last - 16);
  const int stays = Across().value();
  QTest::qWait(120);
  EXPECT_EQ(Across().value(), stays) << "the stroke is over";
}

TEST_F(CaveHandTest, DoesNotDrawAlongTheEndOfTheCave) {
  Across().setValue(Across().maximum());
  Send(QEvent::MouseButtonPress, {17 * 26, 3 * 26}, Qt::LeftButton, Qt::LeftButton);
  Send(QEvent::MouseMove, {22 * 26, 3 * 26}, Qt::NoButton, Qt::LeftButton);
  Send(QEvent::MouseMove, {22 * 26, 8 * 26}, Qt::NoButton, Qt::LeftButton);
  Send(QEvent::MouseButtonRelease, {22 * 26, 8 * 26}, Qt::LeftButton, Qt::NoButton);
  EXPECT_EQ(Drawn('R'), 2);
}

TEST_F(CaveHandTest, TakesAllReportsOfTheMouseWithinAStroke) {
  QCoreApplication::setAttribute(Qt::AA_CompressHighFrequencyEvents);  // as on a desktop
  Press(2, 2);
  EXPECT_FALSE(QCoreApplication::testAttribute(Qt::AA_CompressHighFrequencyEvents));
  Release(2, 2);
  EXPECT_TRUE(QCoreApplication::testAttribute(Qt::AA_CompressHighFrequencyEvents));
}

TEST_F(CaveHandTest, ShowsAGridAndRemembersIt) {
  const auto shown = [this] { return Area().grab(QRect(0, 0, 200, 100)).toImage(); };
  const QImage bare = shown();
  QTest::keyClick(window.get(), Qt::Key_G);
  const QImage grid = shown();
  EXPECT_NE(grid, bare);
  EXPECT_TRUE(Child<QToolButton>("btnGrid").isChecked());
  MakeWindow();
  Open(Full(9, 9, ';'));
  EXPECT_TRUE(Action("mnuGrid").isChecked());
  Action("mnuGrid").trigger();
  MakeWindow();
  EXPECT_FALSE(Action("mnuGrid").isChecked());
}

TEST_F(CaveHandTest, ShowsTheWholeCave) {
  QTest::keyClick(window.get(), Qt::Key_W);
  EXPECT_EQ(Across().maximum(), 0);
  EXPECT_EQ(Down().maximum(), 0);
  EXPECT_EQ(Area().CellSize(), 4);
  EXPECT_EQ(Area().SeenCells(), QRect(0, 0, 80, 50));
  Action("mnuSmaller").trigger();
  EXPECT_EQ(Area().CellSize(), 4) << "it gets no larger by that";
  Action("mnuLarger").trigger();
  EXPECT_EQ(Area().CellSize(), 14);
}

TEST_F(CaveHandTest, EnlargesASmallCaveToTheWholeView) {
  Open(Full(5, 5, ';'));
  Action("mnuWhole").trigger();
  EXPECT_EQ(Area().CellSize(), 11 * 26 / 5 / 2 * 2);
  MakeWindow();
  Open(Full(5, 5, ';'));
  EXPECT_EQ(Area().CellSize(), 26) << "it is not remembered";
}

TEST_F(CaveHandTest, KeepsTheMarkOfTheKeysWhenThePictureScrollsUnderThePointer) {
  Move(17, 5, Qt::NoButton);
  for (int i = 0; i < 8; ++i) QTest::keyClick(&Area(), Qt::Key_Right);
  EXPECT_EQ(Area().Marked(), QPoint(25, 5));
  QEvent leave(QEvent::Leave);
  QApplication::sendEvent(&Area(), &leave);
  EXPECT_EQ(Area().Marked(), QPoint(25, 5));
  EXPECT_TRUE(Area().SeenCells().contains(QPoint(25, 5)));
}

TEST_F(CaveHandTest, StaysWhereItIsWhenARowComesOrGoes) {
  Across().setValue(20);
  Down().setValue(12);
  Move(15, 8, Qt::NoButton);
  Action("mnuDeleteRow").trigger();
  EXPECT_EQ(window->Model().Height(), 49);
  EXPECT_EQ(Across().value(), 20);
  EXPECT_EQ(Down().value(), 12);
}

TEST_F(CaveHandTest, ShowsTheWholeCaveByItsButtonToo) {
  auto* const button = window->findChild<QToolButton*>("btnWhole");
  ASSERT_NE(button, nullptr);
  QTest::mouseClick(button, Qt::LeftButton);
  EXPECT_EQ(Area().SeenCells(), QRect(0, 0, 80, 50));
}

TEST_F(CaveHandTest, LeavesTheOuterEdgeOfTheCaveWithoutALineOfTheGrid) {
  const auto shown = [this](int x) { return Area().grab(QRect(x, 27, 1, 20)).toImage(); };
  const QImage edge = shown(0), between = shown(26);
  QTest::keyClick(window.get(), Qt::Key_G);
  EXPECT_EQ(shown(0), edge);
  EXPECT_NE(shown(26), between);
}

TEST_F(CaveHandTest, ScrollsAsSoonAsAStrokeIsOverTheEdge) {
  Send(QEvent::MouseButtonPress, {17 * 26 + 5, 3 * 26 + 5}, Qt::LeftButton, Qt::LeftButton);
  Send(QEvent::MouseMove, {Ram().width() + 3, 3 * 26 + 5}, Qt::NoButton, Qt::LeftButton);
  EXPECT_TRUE(QTest::qWaitFor([this] { return Across().value() >= 4; }, 2000));
  Send(QEvent::MouseButtonRelease, {Ram().width() + 3, 3 * 26 + 5}, Qt::LeftButton, Qt::NoButton);
}

TEST_F(CaveHandTest, TakesNoHoldOfThePictureWithinAStroke) {
  const auto both = Qt::LeftButton | Qt::MiddleButton;
  Send(QEvent::MouseButtonPress, {300, 200}, Qt::LeftButton, Qt::LeftButton);
  Send(QEvent::MouseButtonPress, {300, 200}, Qt::MiddleButton, both, Qt::ShiftModifier);
  Send(QEvent::MouseMove, {200, 100}, Qt::NoButton, both, Qt::ShiftModifier);
  EXPECT_EQ(Area().pos(), QPoint(0, 0));
  Send(QEvent::MouseButtonRelease, {200, 100}, Qt::MiddleButton, Qt::LeftButton);
  Send(QEvent::MouseButtonRelease, {200, 100}, Qt::LeftButton, Qt::NoButton);
}

// Beyond an edge behind which the cave goes on, the pointer marks and draws what is seen beside it.
TEST_F(CaveHandTest, MarksNoCellBehindTheEdgesOfTheView) {
  const QSize view = Ram().size();
  const QPoint middle(view.width() / 2, view.height() / 2);
  for (const QPoint beyond : {QPoint(-200, middle.y()), QPoint(view.width() + 200, middle.y()),
                              QPoint(middle.x(), -200), QPoint(middle.x(), view.height() + 200)}) {
    Across().setValue(40);
    Down().setValue(30);
    Send(QEvent::MouseButtonPress, middle, Qt::LeftButton, Qt::LeftButton);
    Send(QEvent::MouseMove, beyond, Qt::NoButton, Qt::LeftButton);
    const QRect seen = Area().SeenCells();
    ASSERT_TRUE(Area().Marked().has_value());
    EXPECT_TRUE(seen.contains(*Area().Marked())) << beyond.x() << ' ' << beyond.y();
    EXPECT_FALSE(seen.adjusted(1, 1, -1, -1).contains(*Area().Marked())) << "it stands at the edge";
    Send(QEvent::MouseButtonRelease, beyond, Qt::LeftButton, Qt::NoButton);
  }
}

// One step of the bar at the edge, one more for each cell beyond it, and four at most.
TEST_F(CaveHandTest, ScrollsTheFasterTheFartherThePointerIsBeyondTheEdge) {
  const QSize view = Ram().size();
  const QPoint middle(view.width() / 2, view.height() / 2);
  constexpr std::pair<int, int> kSteps[] = {{1, 1}, {25, 1}, {26, 2}, {52, 3}, {78, 4}, {300, 4}};
  for (const auto& [beyond, steps] : kSteps) {
    for (const bool back : {true, false}) {
      for (QScrollBar* const bar : {&Across(), &Down()}) {
        bar->setValue(bar->maximum() / 2);
        const bool across = bar == &Across();
        const int end = across ? view.width() : view.height();
        const int place = back ? -beyond : end - 1 + beyond;
        const QPoint at = across ? QPoint(place, middle.y()) : QPoint(middle.x(), place);
        Send(QEvent::MouseButtonPress, middle, Qt::LeftButton, Qt::LeftButton);
        const int before = bar->value();
        const QSignalSpy moves(bar, &QScrollBar::valueChanged);
        Send(QEvent::MouseMove, at, Qt::NoButton, Qt::LeftButton);
        ASSERT_TRUE(QTest::qWaitFor([&] { return !moves.isEmpty(); })) << beyond;
        EXPECT_EQ(moves.front().front().toInt() - before, back ? -steps : steps) << beyond << back << across;
        Send(QEvent::MouseButtonRelease, at, Qt::LeftButton, Qt::NoButton);
      }
    }
  }
}

TEST_F(CaveHandTest, DoesNotScrollUpToTheEdge) {
  Across().setValue(40);
  const QSize view = Ram().size();
  for (const QPoint at : {QPoint(0, 100), QPoint(view.width() - 1, 100)}) {
    Send(QEvent::MouseButtonPress, {200, 100}, Qt::LeftButton, Qt::LeftButton);
    Send(QEvent::MouseMove, at, Qt::NoButton, Qt::LeftButton);
    const QSignalSpy moves(&Across(), &QScrollBar::valueChanged);
    EXPECT_FALSE(QTest::qWaitFor([&] { return !moves.isEmpty(); }, 150)) << at.x();
    Send(QEvent::MouseButtonRelease, at, Qt::LeftButton, Qt::NoButton);
  }
}

// Keys begin where the mark was last, unless that is out of sight by now.
TEST_F(CaveHandTest, BeginsWithKeysOnlyAtACellThatIsSeen) {
  Move(5, 6, Qt::NoButton);
  QEvent leave(QEvent::Leave);
  QApplication::sendEvent(&Area(), &leave);
  EXPECT_EQ(Area().Cursor(), QPoint(5, 6));
  Across().setValue(60);
  Down().setValue(40);
  EXPECT_EQ(Area().Cursor(), QPoint(30, 20)) << "two steps of a bar are a cell";
  QTest::keyClick(&Area(), Qt::Key_Right);
  EXPECT_EQ(Area().Marked(), QPoint(30, 20)) << "the first key only shows where it is";
  QTest::keyClick(&Area(), Qt::Key_Right);
  EXPECT_EQ(Area().Marked(), QPoint(31, 20));
}

// Keys draw all of their way, also where it is longer than what is seen.
TEST_F(CaveHandTest, DrawsByKeysFromOneEndOfTheCaveToTheOther) {
  Area().LeadMark({2, 3});
  QTest::keyPress(&Area(), Qt::Key_Space);
  QTest::keyPress(&Area(), Qt::Key_End);
  QTest::keyRelease(&Area(), Qt::Key_Space);
  EXPECT_EQ(Area().Marked(), QPoint(79, 3));
  EXPECT_TRUE(Area().SeenCells().contains(QPoint(79, 3)));
  for (int x = 2; x < 80; ++x) EXPECT_EQ(window->Model().At(x, 3), 'R') << x;
  EXPECT_EQ(Drawn('R'), 78);
}

// The bars are as long as there is something to scroll, in steps of half a cell at each size.
TEST_F(CaveHandTest, ScrollsThroughTheWholeCaveAtEachSize) {
  for (int size = 0; size < 8; ++size) {
    const int step = Area().CellSize() / 2;
    const QSize beyond = Area().size() - Ram().size();
    EXPECT_EQ(Area().size(), QSize(80, 50) * Area().CellSize());
    EXPECT_EQ(Across().maximum(), (std::max(0, beyond.width()) + step - 1) / step) << step;
    EXPECT_EQ(Down().maximum(), (std::max(0, beyond.height()) + step - 1) / step) << step;
    EXPECT_EQ(Across().pageStep(), Ram().width() / step) << step;
    EXPECT_EQ(Down().pageStep(), Ram().height() / step) << step;
    Across().setValue(Across().maximum());
    Down().setValue(Down().maximum());
    EXPECT_EQ(Area().pos(), QPoint(-std::max(0, beyond.width()), -std::max(0, beyond.height()))) << step;
    Across().setValue(0);
    Down().setValue(0);
    EXPECT_EQ(Area().pos(), QPoint(0, 0));
    Action(size < 3 ? "mnuSmaller" : "mnuLarger").trigger();
  }
}

}  // namespace
}  // namespace zorik
