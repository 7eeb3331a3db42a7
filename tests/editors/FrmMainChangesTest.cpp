// How the window of the cave editor goes along with every change of the cave, and with its own size.
#include <QClipboard>
#include <QGuiApplication>
#include <QMenu>

#include "editors/CaveView.h"
#include "editors/EditorScreen.h"
#include "editors/ToolStrip.h"

namespace zorik {
namespace {

using test::Picture;

const Picture kRoom = {"AAAAAAAA", "A1.;;.;A", "A.;A..;A", "A;;;;;;A", "A;.D.;;A", "AAAAAAAA"};

class FrmMainChangesTest : public testing::Test, public test::EditorScreen {
 protected:
  FrmMainChangesTest() {
    Open(kRoom);
    Area().setFocus();
  }

  QString Size() const { return Child<QLabel>("lblSize").text(); }

  // What the window tells of the cave is what the cave is.
  void ExpectToldOf(const std::string& change) {
    const CaveModel& cave = window->Model();
    EXPECT_EQ(Amoebas(), QString::number(cave.Amoebas())) << change;
    EXPECT_EQ(Size(), QString("%1 × %2   100 %").arg(cave.Width()).arg(cave.Height())) << change;
    EXPECT_EQ(Area().size(), QSize(cave.Width(), cave.Height()) * 26) << change;
    EXPECT_EQ(Action("mnuUndo").isEnabled(), cave.CanUndo()) << change;
    EXPECT_EQ(Action("mnuRedo").isEnabled(), cave.CanRedo()) << change;
    EXPECT_EQ(Action("mnuSteps").isEnabled(), cave.CanUndo() || cave.CanRedo()) << change;
    EXPECT_EQ(Action("mnuRestore").isEnabled(), !cave.IsAsOpened()) << change;
  }
};

// Counts what is painted of the cave.
class Painting : public QObject {
 public:
  explicit Painting(QWidget& widget) {
    QApplication::processEvents();
    widget.installEventFilter(this);
  }
  bool Comes() const {
    return QTest::qWaitFor([this] { return painted_; });
  }
  bool eventFilter(QObject* /*object*/, QEvent* event) override {
    painted_ = painted_ || event->type() == QEvent::Paint;
    return false;
  }

 private:
  bool painted_ = false;
};

TEST_F(FrmMainChangesTest, TellsOfEachChangeAtOnceAndUndoesItToTheSameCave) {
  const char* const kChanges[] = {"mnuReplEvery(1)", "mnuReplEvery(2)", "mnuReplRan(0)",   "mnuReplRan(1)",
                                  "mnuReplRan(5)",   "mnuReplRan(10)",  "mnuOkraj",        "mnuInsertRow",
                                  "mnuDeleteRow",    "mnuInsertColumn", "mnuDeleteColumn", "mnuClear",
                                  "mnuMirrorAside",  "mnuMirrorUpright"};
  for (const char* const change : kChanges) {
    Open(kRoom);
    Action("mnuSelectAll").trigger();
    const std::string before = *window->Model().Text();
    const int undone = static_cast<int>(window->Model().UndoSteps().size());
    Painting painting(Area());
    Action(change).trigger();
    EXPECT_TRUE(painting.Comes()) << change;
    EXPECT_NE(Letters(), kRoom) << change;
    EXPECT_EQ(static_cast<int>(window->Model().UndoSteps().size()), undone + 1) << change;
    ExpectToldOf(change);
    Painting back(Area());
    Action("mnuUndo").trigger();
    EXPECT_TRUE(back.Comes()) << change;
    EXPECT_EQ(*window->Model().Text(), before) << change;
    ExpectToldOf(std::string(change) + " undone");
    Action("mnuRedo").trigger();
    EXPECT_NE(Letters(), kRoom) << change;
    ExpectToldOf(std::string(change) + " redone");
    Action("mnuRestore").trigger();
    EXPECT_EQ(Letters(), kRoom) << change;
    ExpectToldOf(std::string(change) + " restored");
  }
}

TEST_F(FrmMainChangesTest, TellsOfWhatIsCutPastedAndTurned) {
  Action("mnuSelect").trigger();
  Press(1, 1);
  Move(3, 2, Qt::LeftButton);
  Release(3, 2);
  Action("mnuCut").trigger();
  EXPECT_EQ(Letters(), (Picture{"AAAAAAAA", "A...;.;A", "A.....;A", "A;;;;;;A", "A;.D.;;A", "AAAAAAAA"}));
  ExpectToldOf("cut");
  Move(4, 3, Qt::NoButton);
  Action("mnuPaste").trigger();
  EXPECT_EQ(Area().Marks().blockPlace, QPoint(4, 3));
  ExpectToldOf("in the hand");
  EXPECT_EQ(window->Model().At(4, 3), ';') << "not yet in the cave";
  Painting painting(Area());
  Click(4, 3);
  EXPECT_TRUE(painting.Comes());
  EXPECT_TRUE(Area().Marks().block.IsEmpty());
  EXPECT_EQ(Letters(), (Picture{"AAAAAAAA", "A...;.;A", "A.....;A", "A;;;1.;A", "A;.D.;AA", "AAAAAAAA"}));
  EXPECT_EQ(Area().Marks().selection, QRect(4, 3, 3, 2));
  ExpectToldOf("put down");
  Action("mnuTurnRight").trigger();
  EXPECT_EQ(Area().Marks().selection, QRect(4, 3, 2, 3)) << "its sides change places";
  EXPECT_EQ(Letters(), (Picture{"AAAAAAAA", "A...;.;A", "A.....;A", "A;;;.1.A", "A;.D;..A", "AAAAA;AA"}));
  ExpectToldOf("turned");
  Action("mnuTurnLeft").trigger();
  EXPECT_EQ(Area().Marks().selection, QRect(4, 3, 3, 2));
  EXPECT_EQ(Letters(), (Picture{"AAAAAAAA", "A...;.;A", "A.....;A", "A;;;1.;A", "A;.D.;AA", "AAAA..AA"}));
  ExpectToldOf("turned back");
}

TEST_F(FrmMainChangesTest, IsPaintedAnewWithWhatIsMarkedAndHeld) {
  const std::pair<const char*, std::function<void()>> kActs[] = {
      {"a selection", [this] { Action("mnuSelectAll").trigger(); }},
      {"the grid", [this] { Action("mnuGrid").trigger(); }},
      {"no grid", [this] { Action("mnuGrid").trigger(); }},
      {"a part in the hand",
       [this] {
         Action("mnuCopy").trigger();
         Action("mnuPaste").trigger();
       }},
      {"a part turned", [this] { Action("mnuTurnRight").trigger(); }},
      {"a part given up", [this] { QTest::keyClick(&Area(), Qt::Key_Escape); }},
      {"no selection", [this] { QTest::keyClick(&Area(), Qt::Key_Escape); }},
      {"a mark",
       [this] {
         Area().LeadMark({2, 2});
       }},
      {"another mark",
       [this] {
         Area().LeadMark({5, 3});
       }},
  };
  for (const auto& [what, act] : kActs) {
    Painting painting(Area());
    act();
    EXPECT_TRUE(painting.Comes()) << what;
  }
  Action("mnuBox").trigger();
  Press(1, 1);
  Painting shape(Area());
  Move(4, 4, Qt::LeftButton);
  EXPECT_TRUE(shape.Comes());
  EXPECT_EQ(Area().Marks().shape.size(), 16U);
  Painting none(Area());
  QTest::keyClick(&Area(), Qt::Key_Escape);
  EXPECT_TRUE(none.Comes());
  EXPECT_TRUE(Area().Marks().shape.empty());
  Release(4, 4);
  EXPECT_EQ(Letters(), kRoom);
}

// What is gained in height and width goes to the cave alone.
TEST_F(FrmMainChangesTest, GivesAllRoomToTheCave) {
  auto& view = Child<QWidget>("Ram");
  const auto top = [this](const QWidget& widget) { return widget.mapTo(window.get(), QPoint()).y(); };
  window->resize(window->minimumSizeHint().expandedTo(QSize(700, 500)));
  QApplication::processEvents();
  const QSize before = view.size();
  const int strip = top(Child<ToolStrip>("ToolStrip"));
  const int tiles = top(Tiles());
  const int left = Tiles().mapTo(window.get(), QPoint()).x();
  window->resize(window->size() + QSize(90, 120));
  ASSERT_TRUE(QTest::qWaitFor([&] { return view.size() != before; }));
  QApplication::processEvents();
  EXPECT_EQ(view.height(), before.height() + 120);
  EXPECT_EQ(view.width(), before.width() + 90);
  EXPECT_EQ(top(Tiles()), tiles);
  EXPECT_EQ(top(Child<ToolStrip>("ToolStrip")), strip);
  EXPECT_EQ(Tiles().mapTo(window.get(), QPoint()).x(), left);
  EXPECT_EQ(Tiles().size(), Tiles().sizeHint());
}

// The tool that Space was last used with has no say in later ways of the mark.
TEST_F(FrmMainChangesTest, LeadsTheMarkByFiveCellsWithCtrlWhicheverToolWasUsed) {
  Area().LeadMark({1, 1});
  for (const auto modifier : {Qt::NoModifier, Qt::ShiftModifier, Qt::ControlModifier}) {
    QTest::keyClick(&Area(), Qt::Key_Space, modifier);
    Area().LeadMark({1, 1});
    QTest::keyClick(&Area(), Qt::Key_Right, Qt::ControlModifier);
    EXPECT_EQ(Area().Marked(), QPoint(6, 1)) << modifier;
    Area().LeadMark({1, 1});
    QTest::keyClick(&Area(), Qt::Key_Right);
    EXPECT_EQ(Area().Marked(), QPoint(2, 1)) << modifier;
    QTest::keyClick(&Area(), Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_EQ(Area().Marks().selection, QRect(2, 1, 1, 2)) << modifier;
    QTest::keyClick(&Area(), Qt::Key_Escape);
  }
}

// A mark that keys have led stays when the pointer leaves the cave; that of the pointer goes with it.
TEST_F(FrmMainChangesTest, LosesTheMarkOfThePointerAlone) {
  const auto leave = [this] {
    QEvent event(QEvent::Leave);
    QApplication::sendEvent(&Area(), &event);
  };
  Area().LeadMark({3, 3});
  leave();
  EXPECT_EQ(Area().Marked(), QPoint(3, 3));
  Press(2, 2, Qt::RightButton);
  Release(2, 2, Qt::RightButton);
  EXPECT_EQ(Area().Marked(), QPoint(2, 2));
  leave();
  EXPECT_EQ(Area().Marked(), std::nullopt) << "a press of the mouse takes it over";
  Area().LeadMark({3, 3});
  Move(4, 4, Qt::NoButton);
  leave();
  EXPECT_EQ(Area().Marked(), std::nullopt) << "and so does its way";
  EXPECT_EQ(Area().Cursor(), QPoint(4, 4)) << "keys go on from there";
}

TEST_F(FrmMainChangesTest, HoldsEachStepOfTheListApartFromTheBeginning) {
  QMenu& steps = Child<QMenu>("mnuSteps");
  const auto separators = [&steps] {
    int count = 0;
    for (const QAction* const action : steps.actions()) count += action->isSeparator() ? 1 : 0;
    return count;
  };
  const auto open = [&steps] {
    steps.popup({});
    steps.close();
  };
  open();
  EXPECT_EQ(separators(), 0) << "there is only the beginning";
  EXPECT_EQ(steps.actions().size(), 1);
  for (int i = 0; i < 30; ++i) {
    Pick(i % 2 == 0 ? 2 : 3);
    Click(2, 2);
  }
  open();
  EXPECT_EQ(separators(), 1);
  EXPECT_TRUE(steps.actions().at(steps.actions().size() - 2)->isSeparator());
  EXPECT_EQ(steps.actions().size(), 16 + 2) << "sixteen back";
  for (int i = 0; i < 12; ++i) Action("mnuUndo").trigger();
  open();
  EXPECT_EQ(steps.actions().size(), 8 + 16 + 2) << "eight forth";
  EXPECT_EQ(steps.actions().first()->objectName(), "mnuStep(26)");
  EXPECT_TRUE(Action("mnuStep(18)").isChecked());
  EXPECT_EQ(steps.actions().at(8)->objectName(), "mnuStep(18)");
  Action("mnuStep(3)").trigger();
  EXPECT_EQ(window->Model().UndoSteps().size(), 3U);
  ExpectToldOf("three steps on");
}

// The mark stays on its cell as long as there is one, whatever becomes of the picture around it.
TEST_F(FrmMainChangesTest, KeepsTheMarkWhenThePictureOrTheCaveGetsAnotherSize) {
  Area().LeadMark({7, 5});
  for (const char* const change : {"mnuLarger", "mnuSmaller", "mnuSmaller", "mnuWhole", "mnuUsual"}) {
    Action(change).trigger();
    EXPECT_EQ(Area().Marked(), QPoint(7, 5)) << change;
  }
  Action("mnuInsertColumn").trigger();
  EXPECT_EQ(Area().Marked(), QPoint(7, 5));
  Action("mnuUndo").trigger();
  EXPECT_EQ(Area().Marked(), QPoint(7, 5)) << "it is still inside";
  Action("mnuDeleteColumn").trigger();
  EXPECT_EQ(Area().Marked(), std::nullopt) << "its cell is gone";
  EXPECT_EQ(Child<QLabel>("lblCell").text(), "");
}

}  // namespace
}  // namespace zorik
