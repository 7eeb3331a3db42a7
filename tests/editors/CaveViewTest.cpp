#include <QLineEdit>
#include <QWheelEvent>

#include "editors/CaveView.h"
#include "editors/EditorScreen.h"

namespace zorik {
namespace {

using test::Full;

class CaveViewTest : public testing::Test, public test::EditorScreen {
 protected:
  void OpenLargest() {
    test::Picture picture = Full(80, 50, ';');
    picture[1][1] = '1';
    Open(picture);
    // Exactly 19 x 11 cells are seen.
    window->resize(window->size() - (Child<QWidget>("Ram").size() - QSize(19 * 26, 11 * 26)));
    ASSERT_TRUE(QTest::qWaitFor([this] { return Child<QWidget>("Ram").size() == QSize(19 * 26, 11 * 26); }));
  }
  QScrollBar& Across() const { return Child<QScrollBar>("HScroll1"); }
  QScrollBar& Down() const { return Child<QScrollBar>("VScroll1"); }

  void Wheel(QPoint place, int steps, Qt::KeyboardModifiers modifiers) const {
    QWheelEvent event(place, Area().mapToGlobal(QPointF(place)), QPoint(), QPoint(0, steps * 120),
                      Qt::NoButton, modifiers, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&Area(), &event);
  }
};

TEST_F(CaveViewTest, WantsToShowASmallCaveWithRoomAroundIt) {
  Open(Full(30, 20, ';'));
  const QWidget& view = *Child<QWidget>("Ram").parentWidget();
  EXPECT_GE(view.sizeHint().width(), 20 * 26);
  EXPECT_GE(view.sizeHint().height(), 12 * 26);
}

// A screen of 1366 by 768 at twice the size has room for no more.
TEST_F(CaveViewTest, FitsASmallScreen) {
  Open(Full(30, 20, ';'));
  EXPECT_LE(window->minimumSizeHint().width(), 679);
  EXPECT_LE(window->minimumSizeHint().height(), 348);
}

TEST_F(CaveViewTest, ScrollsTheLargestCaveInStepsOfHalfACell) {
  OpenLargest();
  EXPECT_EQ(Across().maximum(), 122);
  EXPECT_EQ(Down().maximum(), 78);
  EXPECT_EQ(Across().singleStep(), 1);
  Across().setValue(1);
  EXPECT_EQ(Area().pos(), QPoint(-13, 0));
  Down().setValue(3);
  EXPECT_EQ(Area().pos(), QPoint(-13, -39));
}

TEST_F(CaveViewTest, ReachesEveryCornerOfTheLargestCave) {
  OpenLargest();
  for (const bool right : {false, true}) {
    for (const bool bottom : {false, true}) {
      Across().setValue(right ? Across().maximum() : 0);
      Down().setValue(bottom ? Down().maximum() : 0);
      const QPoint corner(right ? 79 : 0, bottom ? 49 : 0);
      Click(corner.x(), corner.y());
      EXPECT_EQ(window->Model().At(corner.x(), corner.y()), 'R');
      const QRect cell(Area().pos() + corner * 26, QSize(26, 26));
      EXPECT_TRUE(Child<QWidget>("Ram").rect().contains(cell));
    }
  }
}

TEST_F(CaveViewTest, DoesNotScrollACaveThatFits) {
  Open(Full(5, 5, ';'));
  EXPECT_EQ(Across().maximum(), 0);
  EXPECT_EQ(Down().maximum(), 0);
  EXPECT_EQ(Area().pos(), QPoint(0, 0));
}

TEST_F(CaveViewTest, ScrollsBackToTheBeginningForAnotherCave) {
  OpenLargest();
  Across().setValue(50);
  Down().setValue(50);
  Open(Full(60, 40, ';'));
  EXPECT_EQ(Across().value(), 0);
  EXPECT_EQ(Down().value(), 0);
  EXPECT_EQ(Area().pos(), QPoint(0, 0));
}

TEST_F(CaveViewTest, ScrollsBackToTheBeginningWhenTheSizeChangesAndOnlyThen) {
  OpenLargest();
  const auto change = [this](const char* box, const char* value) {
    test::InDialogNamed dialog("frmFormality", [&](QWidget& it) {
      it.findChild<QLineEdit*>(box)->setText(value);
      QTest::keyClick(it.findChild<QLineEdit*>(box), Qt::Key_Return);
    });
    QTest::mouseClick(&Child<QToolButton>("Label3"), Qt::LeftButton);
    EXPECT_TRUE(dialog.opened);
  };
  Across().setValue(9);
  Down().setValue(7);
  change("Text5", "55");
  EXPECT_EQ(Across().value(), 9);
  EXPECT_EQ(Down().value(), 7);
  change("Text1", "60");
  EXPECT_EQ(Across().maximum(), 82);
  EXPECT_EQ(Across().value(), 0);
  EXPECT_EQ(Down().value(), 0);
}

TEST_F(CaveViewTest, StaysWhereItIsWhenRowsComeAndGoAndComeBack) {
  OpenLargest();
  Action("mnuDeleteColumn").trigger();
  Action("mnuDeleteRow").trigger();
  Across().setValue(60);
  Down().setValue(40);
  Action("mnuUndo").trigger();
  Action("mnuUndo").trigger();
  ASSERT_EQ(window->Model().Width(), 80);
  EXPECT_EQ(Across().value(), 60);
  EXPECT_EQ(Down().value(), 40);
  EXPECT_EQ(Area().pos(), QPoint(-60 * 13, -40 * 13));
  Action("mnuRedo").trigger();
  EXPECT_EQ(Area().pos(), QPoint(-60 * 13, -40 * 13));
}

TEST_F(CaveViewTest, GoesBackNoFurtherThanTheCaveStillReaches) {
  OpenLargest();
  Action("mnuDeleteColumn").trigger();
  Action("mnuUndo").trigger();
  Across().setValue(Across().maximum());
  Down().setValue(40);
  Action("mnuRedo").trigger();
  EXPECT_EQ(Across().maximum(), 120);
  EXPECT_EQ(Across().value(), 120);
  EXPECT_EQ(Down().value(), 40);
  EXPECT_EQ(Area().pos(), QPoint(-120 * 13, -40 * 13));
}

TEST_F(CaveViewTest, ScrollsWithTheWheel) {
  OpenLargest();
  Wheel(QPoint(50, 50), -1, Qt::NoModifier);
  EXPECT_GT(Down().value(), 0);
  EXPECT_EQ(Across().value(), 0);
  Wheel(QPoint(50, 50), -1, Qt::ShiftModifier);
  EXPECT_GT(Across().value(), 0);
}

TEST_F(CaveViewTest, ScrollsAcrossWithAWheelThatTurnsAcross) {
  OpenLargest();
  const QPoint place(50, 50);
  QWheelEvent event(place, Area().mapToGlobal(QPointF(place)), QPoint(), QPoint(-120, 0), Qt::NoButton,
                    Qt::NoModifier, Qt::NoScrollPhase, false);
  QApplication::sendEvent(&Area(), &event);
  EXPECT_GT(Across().value(), 0);
  EXPECT_EQ(Down().value(), 0);
}

TEST_F(CaveViewTest, ScrollsByWhatIsSeenPerPage) {
  OpenLargest();
  // In half cells.
  EXPECT_EQ(Across().pageStep(), 38);
  EXPECT_EQ(Down().pageStep(), 22);
}

// A wheel that turns in small pieces zooms when they make a step.
TEST_F(CaveViewTest, AddsUpThePiecesOfAWheel) {
  OpenLargest();
  std::vector<int> sizes;
  for (int i = 0; i < 6; ++i) {
    const QPoint place(50, 50);
    QWheelEvent event(place, Area().mapToGlobal(QPointF(place)), QPoint(), QPoint(0, 80), Qt::NoButton,
                      Qt::ControlModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&Area(), &event);
    sizes.push_back(Area().CellSize());
  }
  EXPECT_EQ(sizes, (std::vector<int>{26, 32, 40, 40, 52, 78}));
}

TEST_F(CaveViewTest, ZoomsAroundThePointerWithCtrlAndTheWheel) {
  OpenLargest();
  Across().setValue(40);
  Down().setValue(40);
  const QPoint place(40 * 26 + 13, 25 * 26 + 13);  // the middle of a cell that is seen
  const QPoint seen = place + Area().pos();
  Wheel(place, 3, Qt::ControlModifier);
  EXPECT_EQ(Area().CellSize(), 52);
  EXPECT_EQ(Area().size(), QSize(80 * 52, 50 * 52));
  const QPoint now = QPoint(40 * 52 + 26, 25 * 52 + 26) + Area().pos();
  EXPECT_LE((now - seen).manhattanLength(), 26) << "half a step in each direction";
  Wheel(place, -3, Qt::ControlModifier);
  EXPECT_EQ(Area().CellSize(), 26);
}

TEST_F(CaveViewTest, StopsZoomingAtItsEnds) {
  OpenLargest();
  Wheel(QPoint(50, 50), 40, Qt::ControlModifier);
  EXPECT_EQ(Area().CellSize(), 104);
  Wheel(QPoint(50, 50), -40, Qt::ControlModifier);
  EXPECT_EQ(Area().CellSize(), 14);
}

TEST_F(CaveViewTest, DrawsInTheCellUnderThePointerWhenZoomed) {
  OpenLargest();
  Wheel(QPoint(0, 0), 2, Qt::ControlModifier);
  Click(3, 4);
  EXPECT_EQ(window->Model().At(3, 4), 'R');
}

TEST_F(CaveViewTest, ZoomsByKeysAndBack) {
  OpenLargest();
  QTest::keyClick(window.get(), Qt::Key_Plus, Qt::ControlModifier);
  EXPECT_EQ(Area().CellSize(), 32);
  QTest::keyClick(window.get(), Qt::Key_Minus, Qt::ControlModifier);
  QTest::keyClick(window.get(), Qt::Key_Minus, Qt::ControlModifier);
  EXPECT_EQ(Area().CellSize(), 20);
  EXPECT_EQ(Child<QLabel>("lblSize").text(), "80 × 50   76 %");
  QTest::keyClick(window.get(), Qt::Key_0, Qt::ControlModifier);
  EXPECT_EQ(Area().CellSize(), 26);
}

TEST_F(CaveViewTest, RemembersTheZoom) {
  OpenLargest();
  Wheel(QPoint(0, 0), 1, Qt::ControlModifier);
  MakeWindow();
  Open(Full(5, 5, ';'));
  EXPECT_EQ(Area().CellSize(), 32);
}

TEST_F(CaveViewTest, FollowsTheCellThatKeysLeadTo) {
  OpenLargest();
  Area().setFocus();
  for (int i = 0; i <= 30; ++i) QTest::keyClick(&Area(), Qt::Key_Right);
  for (int i = 0; i < 20; ++i) QTest::keyClick(&Area(), Qt::Key_Down);
  ASSERT_EQ(Area().Marked(), QPoint(30, 20));
  const QRect cell(Area().pos() + QPoint(30, 20) * 26, QSize(26, 26));
  EXPECT_TRUE(Child<QWidget>("Ram").rect().contains(cell));
  for (int i = 0; i < 30; ++i) QTest::keyClick(&Area(), Qt::Key_Left);
  EXPECT_EQ(Area().pos().x(), 0);
}

TEST_F(CaveViewTest, ShowsNoEmptinessBehindTheCaveWhenTheWindowGrows) {
  OpenLargest();
  Across().setValue(Across().maximum());
  // The pages beside the cave take up to their usual width of it.
  window->resize(window->width() + 200, window->height());
  ASSERT_TRUE(QTest::qWaitFor([this] { return Child<QWidget>("Ram").width() > 19 * 26 + 90; }));
  EXPECT_EQ(Area().pos().x() + Area().width(), Child<QWidget>("Ram").width());
}

}  // namespace
}  // namespace zorik
