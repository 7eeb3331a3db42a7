// The drawing tools, as the mouse and the keys use them.
#include "editors/DrawHand.h"
#include "editors/EditorScreen.h"
#include "editors/ToolStrip.h"

namespace zorik {
namespace {

using test::Full;
using test::Picture;

const Picture kRoom = {"WWWWWWW", "W1....W", "W.....W", "W.....W", "W....AW", "WWWWWWW"};

class DrawHandTest : public testing::Test, public test::EditorScreen {
 protected:
  DrawHandTest() {
    Open(kRoom);
    Area().setFocus();
  }

  void Drag(QPoint from, QPoint to, Qt::MouseButton button = Qt::LeftButton) const {
    Press(from.x(), from.y(), button);
    Move(to.x(), to.y(), button);
    Release(to.x(), to.y(), button);
  }
  void Type(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) const {
    QTest::keyClick(&Area(), key, modifiers);
  }
  // Leads the mark there by arrows.
  void LeadTo(int x, int y) const {
    Move(x, y, Qt::NoButton);
    Type(Qt::Key_Right);
    Type(Qt::Key_Left);
  }
  void UndoOnce() const { QTest::keyClick(window.get(), Qt::Key_Z, Qt::ControlModifier); }
  QString On() const {
    for (const char* name : {"mnuPencil", "mnuLine", "mnuRectangle", "mnuBox", "mnuFill", "mnuSelect"}) {
      if (Action(name).isChecked()) return name;
    }
    return {};
  }
  QString Words() const { return Child<QLabel>("lblTool").text(); }
};

TEST_F(DrawHandTest, BeginsWithThePencil) {
  EXPECT_EQ(On(), "mnuPencil");
  EXPECT_TRUE(Child<QToolButton>("btnPencil").isChecked());
}

// As the window is at first.
TEST_F(DrawHandTest, TellsTheUseOfEachToolWithoutCuttingItOff) {
  for (const Qt::Key key : {Qt::Key_P, Qt::Key_L, Qt::Key_R, Qt::Key_B, Qt::Key_F, Qt::Key_S}) {
    Type(key);
    EXPECT_FALSE(Words().isEmpty());
    EXPECT_FALSE(Words().contains("…")) << qPrintable(Words());
    EXPECT_FALSE(Words().contains('|')) << qPrintable(Words());
  }
}

TEST_F(DrawHandTest, PutsTheToolsIntoTwoColumnsInALowWindow) {
  QToolButton& pencil = Child<QToolButton>("btnPencil");
  QToolButton& line = Child<QToolButton>("btnLine");
  window->resize(window->width(), 700);
  EXPECT_TRUE(QTest::qWaitFor([&] { return line.x() == pencil.x() && line.y() > pencil.y(); }));
  window->resize(window->width(), window->minimumSizeHint().height());
  EXPECT_TRUE(QTest::qWaitFor([&] { return line.y() == pencil.y() && line.x() > pencil.x(); }));
  const QWidget& strip = *pencil.parentWidget();
  for (const QToolButton* const button : strip.findChildren<QToolButton*>())
    EXPECT_TRUE(strip.rect().contains(button->geometry())) << qPrintable(button->objectName());
}

TEST_F(DrawHandTest, TakesEachToolByItsKeyAndByItsButton) {
  const std::pair<Qt::Key, const char*> keys[] = {{Qt::Key_L, "Line"},   {Qt::Key_R, "Rectangle"},
                                                  {Qt::Key_B, "Box"},    {Qt::Key_F, "Fill"},
                                                  {Qt::Key_S, "Select"}, {Qt::Key_P, "Pencil"}};
  for (const auto& [key, name] : keys) {
    Type(key);
    EXPECT_EQ(On(), QString("mnu") + name);
  }
  for (const auto& [key, name] : keys) {
    QToolButton& button = Child<QToolButton>(qPrintable(QString("btn") + name));
    QTest::mouseClick(&button, Qt::LeftButton);
    EXPECT_EQ(On(), QString("mnu") + name);
    EXPECT_TRUE(button.isChecked());
    EXPECT_TRUE(button.toolTip().contains(QKeySequence(key).toString())) << qPrintable(button.toolTip());
  }
}

TEST_F(DrawHandTest, DrawsALineAtItsReleaseInOneStep) {
  Type(Qt::Key_L);
  Press(2, 1);
  Move(2, 4, Qt::LeftButton);
  EXPECT_EQ(Letters(), kRoom) << "not before the release";
  Release(2, 4);
  EXPECT_EQ(Letters(), (Picture{"WWWWWWW", "W1R...W", "W.R...W", "W.R...W", "W.R..AW", "WWWWWWW"}));
  UndoOnce();
  EXPECT_EQ(Letters(), kRoom);
}

TEST_F(DrawHandTest, DrawsRectanglesWithEachButton) {
  Type(Qt::Key_R);
  Drag({1, 2}, {4, 4}, Qt::RightButton);
  EXPECT_EQ(Letters(), (Picture{"WWWWWWW", "W1....W", "W;;;;.W", "W;..;.W", "W;;;;AW", "WWWWWWW"}));
  Type(Qt::Key_B);
  Drag({3, 3}, {2, 2}, Qt::MiddleButton);
  EXPECT_EQ(Letters(), (Picture{"WWWWWWW", "W1....W", "W;DD;.W", "W;DD;.W", "W;;;;AW", "WWWWWWW"}));
}

TEST_F(DrawHandTest, ShowsAShapeWhileItIsDragged) {
  Type(Qt::Key_B);
  const auto cell = [this] { return Area().grab(QRect(3 * 26, 3 * 26, 26, 26)).toImage(); };
  const QImage before = cell();
  Press(2, 2);
  Move(4, 4, Qt::LeftButton);
  EXPECT_NE(cell(), before);
  EXPECT_TRUE(Words().startsWith("3 × 3")) << qPrintable(Words());
  Type(Qt::Key_Escape);
  EXPECT_EQ(cell(), before);
  Release(4, 4);
  EXPECT_EQ(Letters(), kRoom) << "it was given up";
  EXPECT_TRUE(window->isVisible()) << "Esc was not for the window";
}

TEST_F(DrawHandTest, GivesAStrokeOfThePencilUp) {
  Press(2, 2);
  Move(4, 2, Qt::LeftButton);
  Type(Qt::Key_Escape);
  Move(4, 4, Qt::LeftButton);
  Release(4, 4);
  EXPECT_EQ(Letters(), kRoom);
  EXPECT_TRUE(window->isVisible());
}

TEST_F(DrawHandTest, GivesAStrokeUpWhenNoMoreStepsCanBeHeld) {
  for (std::size_t i = 0; i < CaveModel::kMostSteps; ++i) {
    Click(3, 3, i % 2 == 0 ? Qt::LeftButton : Qt::RightButton);
  }
  const Picture before = Letters();
  ASSERT_EQ(window->Model().UndoSteps().size(), CaveModel::kMostSteps);
  Press(2, 2);
  Move(4, 2, Qt::LeftButton);
  Type(Qt::Key_Escape);
  EXPECT_EQ(Letters(), before);
  EXPECT_EQ(window->Model().UndoSteps().size(), CaveModel::kMostSteps);
  Release(4, 2);
}

TEST_F(DrawHandTest, KeepsWhatCanBeRedoneWhenAStrokeIsGivenUp) {
  Click(3, 3);
  const Picture drawn = Letters();
  UndoOnce();
  Press(2, 2);
  Move(4, 2, Qt::LeftButton);
  Type(Qt::Key_Escape);
  Release(4, 2);
  EXPECT_EQ(Letters(), kRoom);
  ASSERT_TRUE(Action("mnuRedo").isEnabled());
  Action("mnuRedo").trigger();
  EXPECT_EQ(Letters(), drawn);
}

TEST_F(DrawHandTest, ClosesWithEscWhenThereIsNothingToGiveUp) {
  Type(Qt::Key_Escape);
  EXPECT_FALSE(window->isVisible());
}

TEST_F(DrawHandTest, HoldsAShapeInsideTheCave) {
  Type(Qt::Key_R);
  Press(4, 4);
  Move(12, 9, Qt::LeftButton);
  Release(12, 9);
  EXPECT_EQ(Letters(), (Picture{"WWWWWWW", "W1....W", "W.....W", "W.....W", "W...RRR", "WWWWRRR"}));
}

TEST_F(DrawHandTest, FillsAnAreaOfOneObject) {
  Open({"WWWWW", "W1.;W", "W.W;W", "W;;.W", "WWWWW"});
  Type(Qt::Key_F);
  Click(3, 1);
  EXPECT_EQ(Letters(), (Picture{"WWWWW", "W1.RW", "W.WRW", "W;;.W", "WWWWW"}));
  UndoOnce();
  EXPECT_EQ(Letters(), (Picture{"WWWWW", "W1.;W", "W.W;W", "W;;.W", "WWWWW"}));
}

TEST_F(DrawHandTest, PutsADogOfAShapeAtItsEnd) {
  Pick(kDogTool);
  Type(Qt::Key_L);
  Drag({1, 2}, {5, 2});
  EXPECT_EQ(Letters(), (Picture{"WWWWWWW", "W.....W", "W....1W", "W.....W", "W....AW", "WWWWWWW"}));
}

TEST_F(DrawHandTest, CountsAmoebasOfShapes) {
  Type(Qt::Key_B);
  Drag({4, 3}, {5, 4});
  EXPECT_EQ(Amoebas(), "0");
  Pick(10);
  Drag({1, 2}, {3, 3});
  EXPECT_EQ(Amoebas(), "6");
}

TEST_F(DrawHandTest, PicksTheObjectUnderThePointerWithAlt) {
  QTest::mouseClick(&Area(), Qt::LeftButton, Qt::AltModifier, Place(5, 4));
  EXPECT_EQ(Tool(ToolButton::Left), 10);
  QTest::mouseClick(&Area(), Qt::RightButton, Qt::AltModifier, Place(0, 0));
  EXPECT_EQ(Tool(ToolButton::Right), 8);
  EXPECT_EQ(Letters(), kRoom);
  EXPECT_EQ(Tool(ToolButton::Middle), 3);
}

TEST_F(DrawHandTest, PicksTheDogWithItsNumber) {
  Open({"WWWWW", "W12.W", "W...W", "W...W", "WWWWW"});
  QTest::mouseClick(&Area(), Qt::MiddleButton, Qt::AltModifier, Place(2, 1));
  EXPECT_EQ(Tool(ToolButton::Middle), kDogTool);
  EXPECT_EQ(Tiles().CurrentDog(), 2);
}

TEST_F(DrawHandTest, PicksByKeys) {
  LeadTo(5, 4);
  Type(Qt::Key_K);
  EXPECT_EQ(Tool(ToolButton::Left), 10);
  Type(Qt::Key_K, Qt::ShiftModifier);
  EXPECT_EQ(Tool(ToolButton::Right), 10);
}

TEST_F(DrawHandTest, DrawsShapesByTwoTapsOfSpace) {
  Type(Qt::Key_R);
  LeadTo(2, 2);
  Type(Qt::Key_Space);
  Type(Qt::Key_Right, Qt::ControlModifier);
  Type(Qt::Key_Down);
  EXPECT_EQ(Letters(), kRoom);
  Type(Qt::Key_Space);
  EXPECT_EQ(Letters(), (Picture{"WWWWWWW", "W1....W", "W.RRRRR", "W.RRRRR", "W....AW", "WWWWWWW"}));
}

TEST_F(DrawHandTest, DrawsShapesWithSpaceHeldAndEndsThemWithEnter) {
  Type(Qt::Key_L);
  LeadTo(1, 2);
  QTest::keyPress(&Area(), Qt::Key_Space);
  Type(Qt::Key_End);
  QTest::keyRelease(&Area(), Qt::Key_Space);
  EXPECT_EQ(Letters()[2], "WRRRRRR");
  LeadTo(1, 3);
  Type(Qt::Key_Space, Qt::ShiftModifier);
  Type(Qt::Key_Right, Qt::ControlModifier);
  Type(Qt::Key_Left);
  Type(Qt::Key_Return);
  EXPECT_EQ(Letters()[3], "W;;;;;W");
}

TEST_F(DrawHandTest, GivesUpWhatATapHasBegun) {
  Type(Qt::Key_B);
  LeadTo(2, 2);
  Type(Qt::Key_Space);
  Type(Qt::Key_Right);
  Type(Qt::Key_Escape);
  EXPECT_TRUE(window->isVisible());
  Type(Qt::Key_Right);
  Type(Qt::Key_Return);
  EXPECT_EQ(Letters(), kRoom);
}

TEST_F(DrawHandTest, DrawsAlongWithSpaceHeldInOneStep) {
  LeadTo(1, 2);
  QTest::keyPress(&Area(), Qt::Key_Space);
  for (int i = 0; i < 3; ++i) Type(Qt::Key_Right);
  Type(Qt::Key_Down);
  QTest::keyRelease(&Area(), Qt::Key_Space);
  EXPECT_EQ(Letters(), (Picture{"WWWWWWW", "W1....W", "WRRRR.W", "W...R.W", "W....AW", "WWWWWWW"}));
  Type(Qt::Key_Right);
  EXPECT_EQ(Letters()[3], "W...R.W") << "Space is up";
  UndoOnce();
  EXPECT_EQ(Letters(), kRoom);
}

// With Ctrl an arrow would go farther; held for the middle tool it does not.
TEST_F(DrawHandTest, DrawsAlongCellByCellWithTheOtherTools) {
  LeadTo(1, 2);
  QTest::keyPress(&Area(), Qt::Key_Space, Qt::ControlModifier);
  Type(Qt::Key_Right, Qt::ControlModifier);
  Type(Qt::Key_Right, Qt::ControlModifier);
  QTest::keyRelease(&Area(), Qt::Key_Space, Qt::ControlModifier);
  EXPECT_EQ(Letters()[2], "WDDD..W");
  EXPECT_EQ(Area().Marked(), QPoint(3, 2));
}

TEST_F(DrawHandTest, FillsAWayOfLargeStepsWithoutHoles) {
  LeadTo(1, 2);
  QTest::keyPress(&Area(), Qt::Key_Space);
  Type(Qt::Key_End);
  QTest::keyRelease(&Area(), Qt::Key_Space);
  EXPECT_EQ(Letters()[2], "WRRRRRR");
}

TEST_F(DrawHandTest, LeadsTheMarkInLargeSteps) {
  Open(Full(40, 30, ';'));
  Area().setFocus();
  LeadTo(10, 3);
  const std::tuple<Qt::Key, Qt::KeyboardModifiers, QPoint> steps[] = {
      {Qt::Key_Right, Qt::ControlModifier, {15, 3}},
      {Qt::Key_Down, Qt::ControlModifier, {15, 8}},
      {Qt::Key_End, {}, {39, 8}},
      {Qt::Key_Home, {}, {0, 8}},
      {Qt::Key_End, Qt::ControlModifier, {39, 29}},
      {Qt::Key_Home, Qt::ControlModifier, {0, 0}},
      {Qt::Key_Left, Qt::ControlModifier, {0, 0}},
  };
  for (const auto& [key, modifiers, cell] : steps) {
    Type(key, modifiers);
    EXPECT_EQ(Area().Marked(), cell) << key;
  }
  const QSize page = Area().SeenCells().size();
  Type(Qt::Key_PageDown);
  EXPECT_EQ(Area().Marked(), QPoint(0, std::min(page.height(), 29)));
  Type(Qt::Key_PageUp);
  Type(Qt::Key_PageDown, Qt::ControlModifier);
  EXPECT_EQ(Area().Marked(), QPoint(std::min(page.width(), 39), 0));
}

TEST_F(DrawHandTest, TellsTheUseOfEachToolInBothLanguages) {
  window->resize(1600, 700);
  for (const char* language : {"Default", "English"}) {
    Wear(language);
    window->SetLW();
    for (const Qt::Key key : {Qt::Key_L, Qt::Key_S, Qt::Key_P}) {
      Type(key);
      EXPECT_GT(Words().size(), 15) << language;
    }
    EXPECT_TRUE(Words().startsWith(language == QString("English") ? "Pencil:" : "Tužka:"))
        << qPrintable(Words());
  }
}

TEST_F(DrawHandTest, ShowsOnItsButtonsWhichToolsFill) {
  const auto middle = [this](const char* name) {
    return Action(name).icon().pixmap(QSize(22, 22), 1.0).toImage().pixelColor(11, 11);
  };
  EXPECT_EQ(middle("mnuBox"), window->palette().color(QPalette::Highlight));
  EXPECT_EQ(middle("mnuRectangle").alpha(), 0);
}

TEST_F(DrawHandTest, EndsAStrokeWithAnotherTool) {
  const Picture before = Letters();
  Press(2, 2);
  Type(Qt::Key_L);
  Move(4, 2, Qt::LeftButton);
  Release(4, 2);
  Picture drawn = before;
  drawn[2][2] = 'R';
  EXPECT_EQ(Letters(), drawn);
  Action("mnuUndo").trigger();
  EXPECT_EQ(Letters(), before);
}

// Nothing of a shape stays to be seen, however its stroke ends.
TEST_F(DrawHandTest, HidesTheShapeWithItsStroke) {
  for (const char* const tool : {"mnuLine", "mnuRectangle", "mnuBox"}) {
    Action(tool).trigger();
    const std::function<void()> ends[] = {
        [this] { QTest::keyClick(&Area(), Qt::Key_Escape); },
        [this] { Tiles().setFocus(); },
        [this] { Action("mnuPencil").trigger(); },
        [this] { Release(3, 2); },
    };
    for (const auto& end : ends) {
      Action(tool).trigger();
      Area().setFocus();
      Press(1, 1);
      Move(3, 2, Qt::LeftButton);
      EXPECT_FALSE(Area().Marks().shape.empty()) << tool;
      const std::size_t steps = window->Model().UndoSteps().size();
      end();
      EXPECT_TRUE(Area().Marks().shape.empty()) << tool << (&end - ends);
      EXPECT_EQ(window->Model().UndoSteps().size(), steps + (&end == &ends[3] ? 1 : 0)) << tool;
      if (&end != &ends[3]) Release(3, 2);
      EXPECT_EQ(window->Model().UndoSteps().size(), steps + (&end == &ends[3] ? 1 : 0)) << tool;
      while (window->Model().CanUndo()) Action("mnuUndo").trigger();
    }
  }
}

}  // namespace
}  // namespace zorik
