// Undo and redo in the window: one key brings back each kind of change as a whole, another one repeats it.
#include <QComboBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <ostream>

#include "editors/CaveSteps.h"
#include "editors/EditorScreen.h"
#include "editors/MenuLines.h"

namespace zorik {
namespace {

using test::InDialogNamed;
using test::Picture;

// Twelve cells of dirt, so that all kinds of random replacement are to be had.
const Picture kRoom = {"AAWWWWWW", "W1;;;;;W", "W;;;;;;W", "W..;..AW", "W..R..DW", "WWWWWWWW"};

class Editor : public test::EditorScreen {
 public:
  void Choose(const char* action) const {
    EXPECT_TRUE(Action(action).isEnabled()) << action;
    Action(action).trigger();
  }

  void Drag(int palette) const {
    Pick(palette);
    Press(1, 3);
    Move(6, 3, Qt::LeftButton);
    Move(6, 4, Qt::LeftButton);
    Release(6, 4);
  }

  // By the dialog of properties.
  void Set(const std::function<void(QWidget& dialog)>& change) const {
    InDialogNamed dialog("frmFormality", [&change](QWidget& it) {
      ASSERT_TRUE(QTest::qWaitForWindowActive(&it));
      change(it);
      QTest::mouseClick(it.findChild<QPushButton*>("Command1"), Qt::LeftButton);
    });
    QTest::mouseClick(&Child<QToolButton>("Label3"), Qt::LeftButton);
    EXPECT_TRUE(dialog.opened);
  }
  void Set(const char* box, const char* value) const {
    Set([box, value](QWidget& it) { it.findChild<QLineEdit*>(box)->setText(value); });
  }

  void Undo() const { Key(Qt::Key_Z); }
  void Redo() const { Key(Qt::Key_Y); }

  // All that can be seen of the cave.
  struct Seen {
    CaveRecord cave;
    QString amoebas;
    QSize size;
    QImage picture;

    bool operator==(const Seen&) const = default;
  };
  Seen See() const {
    Move(0, 5, Qt::NoButton);
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(&Area(), &leave);
    return {window->Model().Cave(), Amoebas(), Area().size(), Area().grab().toImage()};
  }

 private:
  // With Ctrl.
  void Key(Qt::Key key) const {
    ASSERT_TRUE(QTest::qWaitFor([this] {
      window->activateWindow();
      return QApplication::activeWindow() == window.get();
    }));
    QTest::keyClick(window.get(), key, Qt::ControlModifier);
  }
};

struct Change {
  const char* name;
  void (*act)(Editor& editor);
};
void PrintTo(const Change& change, std::ostream* out) {
  *out << change.name;
}

const Change kChanges[] = {
    {"TheLeftButton", [](Editor& it) { it.Click(2, 3, Qt::LeftButton); }},
    {"TheRightButton", [](Editor& it) { it.Click(2, 3, Qt::RightButton); }},
    {"TheMiddleButton", [](Editor& it) { it.Click(2, 3, Qt::MiddleButton); }},
    {"ADrag", [](Editor& it) { it.Drag(9); }},
    {"ADragOfAmoeba", [](Editor& it) { it.Drag(10); }},
    {"ADragOfADog", [](Editor& it) { it.Drag(kDogTool); }},
    {"ANewDog",
     [](Editor& it) {
       it.Choose("Dog(2)");
       it.Pick(kDogTool);
       it.Click(2, 3);
     }},
    {"AKey",
     [](Editor& it) {
       it.Move(2, 3, Qt::NoButton);
       QTest::keyClick(&it.Area(), Qt::Key_Space);
     }},
    {"ReplacingEach", [](Editor& it) { it.Choose("mnuReplEvery(1)"); }},
    {"ReplacingEverySecond", [](Editor& it) { it.Choose("mnuReplEvery(2)"); }},
    {"ReplacingHalf", [](Editor& it) { it.Choose("mnuReplRan(0)"); }},
    {"ReplacingOne", [](Editor& it) { it.Choose("mnuReplRan(1)"); }},
    {"ReplacingFive", [](Editor& it) { it.Choose("mnuReplRan(5)"); }},
    {"ReplacingTen", [](Editor& it) { it.Choose("mnuReplRan(10)"); }},
    {"AFrame", [](Editor& it) { it.Choose("mnuOkraj"); }},
    {"TheName", [](Editor& it) { it.Set("Text3", "Jinak"); }},
    {"TheDescription",
     [](Editor& it) {
       it.Set([](QWidget& dialog) { dialog.findChild<QPlainTextEdit*>("Text4")->setPlainText("Jinak"); });
     }},
    {"TheWidth", [](Editor& it) { it.Set("Text1", "33"); }},
    {"TheHeight", [](Editor& it) { it.Set("Text2", "5"); }},
    {"TheTime", [](Editor& it) { it.Set("Text5", "77"); }},
    {"TheGemsNeeded", [](Editor& it) { it.Set("Text6", "77"); }},
    {"ThePointsBefore", [](Editor& it) { it.Set("Text9", "77"); }},
    {"ThePointsAfter", [](Editor& it) { it.Set("Text10", "77"); }},
    {"TheMagicWallTime", [](Editor& it) { it.Set("Text7", "77"); }},
    {"TheAmoebaTime", [](Editor& it) { it.Set("Text8", "77"); }},
    {"ThePermeability", [](Editor& it) { it.Set("Text11", "7"); }},
    {"TheColouring",
     [](Editor& it) {
       it.Set([](QWidget& dialog) { dialog.findChild<QComboBox*>("Combo1")->setCurrentIndex(2); });
     }},
    {"TheCatsProgram",
     [](Editor& it) {
       it.newScript = "*A-A/Z";
       QTest::mouseClick(&it.Child<QToolButton>("Command1"), Qt::LeftButton);
     }},
    {"ARestore", [](Editor& it) { it.Choose("mnuRestore"); }},
};

class FrmMainUndoOf : public testing::TestWithParam<Change>, public Editor {};

TEST_P(FrmMainUndoOf, BringsItBackInOneStep) {
  Open(kRoom);
  const Seen opened = See();
  Click(5, 3);  // an earlier change, which stays
  const Seen before = See();
  GetParam().act(*this);
  const Seen after = See();
  ASSERT_FALSE(after.cave == before.cave);
  Undo();
  EXPECT_TRUE(See() == before);
  Redo();
  EXPECT_TRUE(See() == after);
  EXPECT_FALSE(Action("mnuRedo").isEnabled());
  Undo();
  Undo();
  EXPECT_TRUE(See() == opened);
  EXPECT_FALSE(Action("mnuUndo").isEnabled());
}

INSTANTIATE_TEST_SUITE_P(Changes, FrmMainUndoOf, testing::ValuesIn(kChanges),
                         [](const auto& change) { return change.param.name; });

class FrmMainUndoTest : public testing::Test, public Editor {};

TEST_F(FrmMainUndoTest, GoesBackThroughMoreThanTwoHundredSteps) {
  Open(kRoom);
  const Seen opened = See();
  for (int i = 0; i < 250; ++i) Click(2, 3, i % 2 == 0 ? Qt::LeftButton : Qt::RightButton);
  const Seen drawn = See();
  for (int i = 0; i < 249; ++i) Undo();
  EXPECT_EQ(window->Model().At(2, 3), 'R') << "after the first click";
  Undo();
  EXPECT_TRUE(See() == opened);
  EXPECT_FALSE(Action("mnuUndo").isEnabled());
  for (int i = 0; i < 250; ++i) Redo();
  EXPECT_TRUE(See() == drawn);
}

TEST_F(FrmMainUndoTest, EndsTheDragThatIsUnderWay) {
  Open(kRoom);
  Click(5, 2);
  const Picture before = Letters();
  Press(1, 3);
  Move(2, 3, Qt::LeftButton);
  Undo();
  EXPECT_EQ(Letters(), before);
  Move(5, 3, Qt::LeftButton);
  EXPECT_EQ(Letters(), before) << "until the next press";
  Release(5, 3);
  Undo();
  EXPECT_EQ(Letters(), kRoom);
  Click(5, 2);
  EXPECT_EQ(Letters(), before);
}

// The list of steps

QStringList StepsOf(const Editor& editor) {
  return test::StepLines(editor.Child<QMenu>("mnuSteps"));
}

TEST_F(FrmMainUndoTest, GoesBackAndForthByTheListOfSteps) {
  Open(kRoom);
  EXPECT_FALSE(Action("mnuSteps").isEnabled());
  EXPECT_EQ(StepsOf(*this), QStringList("> Začátek"));
  const auto rows = [this] { return Child<QMenu>("mnuSteps").actions(); };
  EXPECT_EQ(rows().size(), 1);
  const Seen opened = See();
  Click(5, 3);
  const Seen drawn = See();
  Choose("mnuOkraj");
  Set("Text5", "77");
  Choose("mnuReplEvery(1)");
  const Seen last = See();
  EXPECT_EQ(StepsOf(*this), (QStringList{"> Nahradit", "Vlastnosti", "Udělat okraj", "Tužka", "Začátek"}));
  ASSERT_EQ(rows().size(), 6);
  EXPECT_TRUE(rows()[4]->isSeparator()) << "the beginning is no step";
  Action("mnuStep(1)").trigger();
  EXPECT_TRUE(See() == drawn);
  EXPECT_EQ(StepsOf(*this), (QStringList{"Nahradit", "Vlastnosti", "Udělat okraj", "> Tužka", "Začátek"}));
  Action("mnuStep(4)").trigger();
  EXPECT_TRUE(See() == last);
  StepsOf(*this);
  Action("mnuStep(0)").trigger();
  EXPECT_TRUE(See() == opened);
  EXPECT_TRUE(Action("mnuSteps").isEnabled()) << "it leads forth as well";
}

TEST_F(FrmMainUndoTest, CallsEachKindOfStepByAnotherName) {
  for (const char* const language : {"Default", "English"}) {
    Wear(language);
    QSet<QString> names;
    for (int step = 0; step < static_cast<int>(EditStep::End); ++step) {
      const QString words = WordsOfStep(skin, static_cast<EditStep>(step));
      EXPECT_FALSE(words.isEmpty() || words.startsWith("main.")) << language << ' ' << step;
      names.insert(words);
    }
    EXPECT_EQ(names.size(), static_cast<int>(EditStep::End)) << language;
  }
}

TEST_F(FrmMainUndoTest, CallsAStepOfADrawingToolAsThatToolIsCalled) {
  const std::pair<EditStep, const char*> tools[] = {{EditStep::Stroke, "mnuPencil"},
                                                    {EditStep::Line, "mnuLine"},
                                                    {EditStep::Rectangle, "mnuRectangle"},
                                                    {EditStep::FilledRectangle, "mnuBox"},
                                                    {EditStep::Fill, "mnuFill"},
                                                    {EditStep::Clear, "mnuClear"},
                                                    {EditStep::Cut, "mnuCut"},
                                                    {EditStep::Paste, "mnuPaste"},
                                                    {EditStep::MirrorAside, "mnuMirrorAside"},
                                                    {EditStep::MirrorUpright, "mnuMirrorUpright"},
                                                    {EditStep::TurnRight, "mnuTurnRight"},
                                                    {EditStep::TurnLeft, "mnuTurnLeft"},
                                                    {EditStep::InsertRow, "mnuInsertRow"},
                                                    {EditStep::InsertColumn, "mnuInsertColumn"},
                                                    {EditStep::DeleteRow, "mnuDeleteRow"},
                                                    {EditStep::DeleteColumn, "mnuDeleteColumn"},
                                                    {EditStep::Resize, "mnuResize"},
                                                    {EditStep::Properties, "mnuProps"},
                                                    {EditStep::Script, "mnuCat"},
                                                    {EditStep::Restore, "mnuRestore"}};
  for (const auto& [step, action] : tools) {
    EXPECT_EQ(WordsOfStep(skin, step), WithoutMnemonic(Action(action).text())) << action;
  }
}

}  // namespace
}  // namespace zorik
