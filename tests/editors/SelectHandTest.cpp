// A part of the cave that is marked, moved, turned and taken through the clipboard.
#include <QClipboard>
#include <QGuiApplication>
#include <QStatusBar>

#include "editors/EditorScreen.h"

namespace zorik {
namespace {

using test::Full;
using test::Picture;

const Picture kRoom = {"WWWWWWW", "W1R...W", "W.D...W", "W.....W", "W.....W", "WWWWWWW"};

class SelectHandTest : public testing::Test, public test::EditorScreen {
 protected:
  SelectHandTest() {
    QGuiApplication::clipboard()->clear();
    Open(kRoom);
    Area().setFocus();
  }

  void Drag(QPoint from, QPoint to) const {
    Press(from.x(), from.y());
    Move(to.x(), to.y(), Qt::LeftButton);
    Release(to.x(), to.y());
  }
  void Type(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) const {
    QTest::keyClick(&Area(), key, modifiers);
  }
  void Select(QPoint from, QPoint to) const {
    Type(Qt::Key_S);
    Drag(from, to);
  }
  std::optional<QRect> Selected() const { return Area().Marks().selection; }
  QString Told() const { return window->statusBar()->currentMessage(); }
};

TEST_F(SelectHandTest, SelectsWhatIsDraggedOver) {
  EXPECT_FALSE(Action("mnuCopy").isEnabled());
  Select({3, 3}, {1, 1});
  EXPECT_EQ(Selected(), QRect(1, 1, 3, 3));
  EXPECT_TRUE(Action("mnuCopy").isEnabled());
  EXPECT_TRUE(Child<QLabel>("lblTool").text().startsWith("3 × 3"));
  EXPECT_EQ(Letters(), kRoom);
  Type(Qt::Key_Escape);
  EXPECT_EQ(Selected(), std::nullopt);
  EXPECT_TRUE(window->isVisible());
}

TEST_F(SelectHandTest, FollowsThePointerWhereverItIsLed) {
  Type(Qt::Key_S);
  Press(3, 2);
  for (const QPoint to : {QPoint(4, 3), QPoint(5, 4), QPoint(1, 1)}) {
    Move(to.x(), to.y(), Qt::LeftButton);
    EXPECT_EQ(Selected(), QRect(QPoint(std::min(3, to.x()), std::min(2, to.y())),
                                QPoint(std::max(3, to.x()), std::max(2, to.y()))));
  }
  Release(1, 1);
  EXPECT_EQ(Selected(), QRect(1, 1, 3, 2));
}

TEST_F(SelectHandTest, SelectsAllAndByKeys) {
  Type(Qt::Key_A, Qt::ControlModifier);
  EXPECT_EQ(Selected(), QRect(0, 0, 7, 6));
  Type(Qt::Key_Escape);
  Move(2, 2, Qt::NoButton);
  Type(Qt::Key_Right, Qt::ShiftModifier);
  Type(Qt::Key_Down, Qt::ShiftModifier);
  EXPECT_EQ(Selected(), QRect(2, 2, 2, 2));
  Type(Qt::Key_End, Qt::ShiftModifier);
  EXPECT_EQ(Selected(), QRect(2, 2, 5, 2));
}

TEST_F(SelectHandTest, EmptiesWithDelete) {
  Select({1, 1}, {2, 2});
  Type(Qt::Key_Delete);
  EXPECT_EQ(Letters(), (Picture{"WWWWWWW", "W.....W", "W.....W", "W.....W", "W.....W", "WWWWWWW"}));
}

TEST_F(SelectHandTest, MovesWhatIsDraggedInside) {
  Select({1, 1}, {2, 2});
  Press(2, 1);
  Move(5, 3, Qt::LeftButton);
  EXPECT_EQ(Letters(), kRoom) << "not before the release";
  Release(5, 3);
  EXPECT_EQ(Letters(), (Picture{"WWWWWWW", "W.....W", "W.....W", "W...1RW", "W....DW", "WWWWWWW"}));
  EXPECT_EQ(Selected(), QRect(4, 3, 2, 2));
  QTest::keyClick(window.get(), Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Letters(), kRoom) << "in one step";
}

TEST_F(SelectHandTest, GivesAMoveUp) {
  Select({1, 1}, {2, 2});
  Press(2, 1);
  Move(5, 3, Qt::LeftButton);
  Type(Qt::Key_Escape);
  Release(5, 3);
  EXPECT_EQ(Letters(), kRoom);
  EXPECT_EQ(Selected(), QRect(1, 1, 2, 2)) << "still there";
}

TEST_F(SelectHandTest, MovesWithCtrlAndArrowsAndLosesNothingAtTheEdge) {
  Select({1, 1}, {2, 2});
  Type(Qt::Key_Right, Qt::ControlModifier);
  Type(Qt::Key_Down, Qt::ControlModifier);
  EXPECT_EQ(Letters(), (Picture{"WWWWWWW", "W.....W", "W.1R..W", "W..D..W", "W.....W", "WWWWWWW"}));
  for (int i = 0; i < 9; ++i) Type(Qt::Key_Right, Qt::ControlModifier);
  EXPECT_EQ(Selected(), QRect(5, 2, 2, 2));
  EXPECT_EQ(Letters()[2], "W....1R");
}

TEST_F(SelectHandTest, MirrorsAndTurns) {
  Select({1, 1}, {3, 2});
  Type(Qt::Key_M);
  EXPECT_EQ(Letters(), (Picture{"WWWWWWW", "W.R1..W", "W.D...W", "W.....W", "W.....W", "WWWWWWW"}));
  Type(Qt::Key_M, Qt::ShiftModifier);
  EXPECT_EQ(Letters(), (Picture{"WWWWWWW", "W.D...W", "W.R1..W", "W.....W", "W.....W", "WWWWWWW"}));
  Type(Qt::Key_T);
  EXPECT_EQ(Letters(), (Picture{"WWWWWWW", "W.....W", "WRD...W", "W1....W", "W.....W", "WWWWWWW"}));
  EXPECT_EQ(Selected(), QRect(1, 1, 2, 3));
  Type(Qt::Key_T, Qt::ShiftModifier);
  EXPECT_EQ(Letters(), (Picture{"WWWWWWW", "W.D...W", "W.R1..W", "W.....W", "W.....W", "WWWWWWW"}));
}

TEST_F(SelectHandTest, TurnsNothingThatWouldNotFit) {
  Select({0, 1}, {6, 1});
  Type(Qt::Key_T);
  EXPECT_EQ(Letters(), kRoom);
  EXPECT_NE(Told(), "");
}

TEST_F(SelectHandTest, CopiesAsTextThatCanBeRead) {
  Select({1, 1}, {2, 2});
  Type(Qt::Key_C, Qt::ControlModifier);
  const auto block = ReadBlock(QGuiApplication::clipboard()->text().toStdString());
  ASSERT_TRUE(block);
  EXPECT_EQ(*block, (CaveBlock{2, 2, "1R.D"}));
  EXPECT_EQ(Letters(), kRoom);
}

TEST_F(SelectHandTest, HangsWhatIsPastedAtThePointerUntilAClick) {
  Select({2, 1}, {2, 2});
  Type(Qt::Key_X, Qt::ControlModifier);
  EXPECT_EQ(Letters()[1], "W1....W");
  Type(Qt::Key_P);
  Type(Qt::Key_V, Qt::ControlModifier);
  Move(4, 3, Qt::NoButton);
  EXPECT_EQ(Letters()[3], "W.....W");
  EXPECT_EQ(Area().Marks().blockPlace, QPoint(4, 3));
  Click(4, 3);
  EXPECT_EQ(Letters(), (Picture{"WWWWWWW", "W1....W", "W.....W", "W...R.W", "W...D.W", "WWWWWWW"}));
  EXPECT_EQ(Selected(), QRect(4, 3, 1, 2));
  Click(5, 1);
  EXPECT_EQ(Letters()[1], "W1...RW") << "the pencil draws again";
}

TEST_F(SelectHandTest, PutsDownByEnterAndMirrorsInTheHand) {
  Select({1, 1}, {2, 1});
  Type(Qt::Key_C, Qt::ControlModifier);
  Type(Qt::Key_V, Qt::ControlModifier);
  Type(Qt::Key_M);
  Type(Qt::Key_End, Qt::ControlModifier);
  Type(Qt::Key_Return);
  EXPECT_EQ(Letters(), (Picture{"WWWWWWW", "W.R...W", "W.D...W", "W.....W", "W.....W", "WWWWWR1"}))
      << "inside of the cave, and the dog has come along";
}

TEST_F(SelectHandTest, GivesUpWhatHangsAndKeepsTheCave) {
  Select({1, 1}, {2, 1});
  Type(Qt::Key_C, Qt::ControlModifier);
  Type(Qt::Key_V, Qt::ControlModifier);
  Type(Qt::Key_Escape);
  EXPECT_TRUE(Area().Marks().block.IsEmpty());
  Type(Qt::Key_Return);
  EXPECT_EQ(Letters(), kRoom);
}

TEST_F(SelectHandTest, PastesReadableRowsIntoAnotherCave) {
  QGuiApplication::clipboard()->setText("WDW\nR.R\n");
  Open(Full(9, 7, ';'));
  Move(2, 2, Qt::NoButton);
  Type(Qt::Key_V, Qt::ControlModifier);
  Type(Qt::Key_Return);
  EXPECT_EQ(Letters()[2], ";;WDW;;;;");
  EXPECT_EQ(Letters()[3], ";;R.R;;;;");
}

TEST_F(SelectHandTest, TellsThatTheClipboardHoldsNoPartOfACave) {
  QGuiApplication::clipboard()->setText("Milá babičko, mám se dobře.");
  Type(Qt::Key_V, Qt::ControlModifier);
  EXPECT_TRUE(Area().Marks().block.IsEmpty());
  EXPECT_NE(Told(), "");
  EXPECT_EQ(Letters(), kRoom);
}

TEST_F(SelectHandTest, ForgetsTheSelectionWithTheCave) {
  Select({1, 1}, {6, 5});
  Open(Full(5, 5, ';'));
  EXPECT_EQ(Selected(), std::nullopt);
}

TEST_F(SelectHandTest, InsertsAndDeletesRowsAndColumnsAtTheMark) {
  Move(2, 2, Qt::NoButton);
  Type(Qt::Key_Down, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(Letters(),
            (Picture{"WWWWWWW", "W1R...W", ".......", "W.D...W", "W.....W", "W.....W", "WWWWWWW"}));
  Type(Qt::Key_Right, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(Letters()[1], "W1.R...W");
  Type(Qt::Key_Left, Qt::ControlModifier | Qt::ShiftModifier);
  Type(Qt::Key_Up, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(Letters(), kRoom);
}

TEST_F(SelectHandTest, TellsThatNoRowCanGo) {
  Open({"WWWWW", "W1..W", "W...W", "W...W", "WWWWW"});
  Move(2, 2, Qt::NoButton);
  Type(Qt::Key_Up, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(window->Model().Height(), 5);
  EXPECT_NE(Told(), "");
}

TEST_F(SelectHandTest, BeginsAnewByShiftWhereAnotherPartIsSelectedByNow) {
  Move(1, 1, Qt::NoButton);
  Type(Qt::Key_Right, Qt::ShiftModifier);
  ASSERT_EQ(Selected(), QRect(1, 1, 2, 1));
  Select({4, 3}, {5, 3});
  Type(Qt::Key_Down, Qt::ShiftModifier);
  EXPECT_EQ(Selected(), QRect(5, 3, 1, 2));
}

TEST_F(SelectHandTest, KeepsWhatIsLeftOfASelectionWhenTheCaveShrinks) {
  Select({1, 1}, {5, 4});
  Action("mnuDeleteColumn").trigger();
  Action("mnuDeleteColumn").trigger();
  EXPECT_EQ(Selected(), QRect(1, 1, 4, 4));
  Action("mnuMirrorAside").trigger();
  EXPECT_EQ(Letters(), (Picture{"WWWWW", "WW...", "WW...", "WW...", "WW...", "WWWWW"}));
}

TEST_F(SelectHandTest, TurnsInTheHandAndHangsAtThePointerAgain) {
  Select({1, 1}, {3, 1});
  Type(Qt::Key_C, Qt::ControlModifier);
  Type(Qt::Key_V, Qt::ControlModifier);
  Move(6, 2, Qt::NoButton);
  ASSERT_EQ(Area().Marks().blockPlace, QPoint(4, 2)) << "three cells wide";
  Type(Qt::Key_T);
  EXPECT_EQ(Area().Marks().blockPlace, QPoint(6, 2)) << "one cell wide";
}

TEST_F(SelectHandTest, TellsHowWhatHangsIsPutDown) {
  Select({2, 1}, {2, 2});
  const auto use = [this] { return Child<QWidget>("lblTool").parentWidget()->toolTip(); };
  const QString before = use();
  Type(Qt::Key_C, Qt::ControlModifier);
  Type(Qt::Key_V, Qt::ControlModifier);
  EXPECT_NE(use(), before);
  EXPECT_TRUE(use().contains("Enter")) << use().toStdString();
  Type(Qt::Key_Escape);
  EXPECT_EQ(use(), before);
}

TEST_F(SelectHandTest, TakesTheKeysForWhatHangs) {
  Select({2, 1}, {2, 2});
  Type(Qt::Key_C, Qt::ControlModifier);
  Tiles().setFocus();
  Action("mnuPaste").trigger();
  EXPECT_EQ(window->focusWidget(), &Area());
}

TEST_F(SelectHandTest, MovesNothingByAClickIntoTheSelection) {
  Select({1, 1}, {2, 1});
  Drag({1, 1}, {3, 2});
  const Picture moved = Letters();
  Drag({1, 1}, {2, 1});
  ASSERT_EQ(Selected(), QRect(1, 1, 2, 1));
  const std::size_t steps = window->Model().UndoSteps().size();
  Click(2, 1);
  EXPECT_EQ(Letters(), moved);
  EXPECT_EQ(Selected(), QRect(1, 1, 2, 1));
  EXPECT_EQ(window->Model().UndoSteps().size(), steps);
  EXPECT_TRUE(Area().Marks().block.IsEmpty());
  EXPECT_EQ(Area().Marks().left, std::nullopt);
}

// While it is dragged, the part is seen at its new place and its old one is empty; the cave changes at the
// end.
TEST_F(SelectHandTest, ShowsWhatIsDraggedWhereItWillBe) {
  Select({1, 1}, {2, 1});
  const Picture before = Letters();
  Press(2, 1);
  EXPECT_TRUE(Area().Marks().block.IsEmpty()) << "nothing is held yet";
  Move(4, 2, Qt::LeftButton);
  EXPECT_EQ(Area().Marks().block, window->Model().Copy({1, 1, 2, 1}));
  EXPECT_EQ(Area().Marks().blockPlace, QPoint(3, 2)) << "by the cell that it was taken at";
  EXPECT_EQ(Area().Marks().left, QRect(1, 1, 2, 1));
  EXPECT_EQ(Letters(), before);
  Release(4, 2);
  EXPECT_TRUE(Area().Marks().block.IsEmpty());
  EXPECT_EQ(Area().Marks().left, std::nullopt);
  EXPECT_EQ(Selected(), QRect(3, 2, 2, 1));
  EXPECT_NE(Letters(), before);
}

}  // namespace
}  // namespace zorik
