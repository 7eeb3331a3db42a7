// The list of caves and the boxes for the texts, by mouse and keys.
#include <gtest/gtest.h>

#include <QHelpEvent>
#include <QLabel>
#include <QToolTip>

#include "editors/SadaList.h"
#include "editors/SadaScreen.h"

namespace zorik {
namespace {

using test::Names;
using test::SadaScreen;

class SadaListTest : public testing::Test, protected SadaScreen {
 protected:
  void TearDown() override { EXPECT_TRUE(dialogs.Done()) << dialogs.said.join(" | ").toStdString(); }

  QString HintAt(QPoint place) const {
    QToolTip::hideText();
    EXPECT_TRUE(QTest::qWaitFor([] { return !QToolTip::isVisible(); }));
    QHelpEvent event(QEvent::ToolTip, place, List().viewport()->mapToGlobal(place));
    QApplication::sendEvent(List().viewport(), &event);
    return QToolTip::isVisible() ? QToolTip::text() : QString();
  }
};

// Selecting

TEST_F(SadaListTest, SelectsTheCaveThatIsClicked) {
  OpenCaves({"A", "B", "C"});
  for (const int number : {3, 1, 2}) {
    ClickCave(number);
    EXPECT_EQ(Sada().ListSelected(), number);
  }
  EXPECT_FALSE(window->isWindowModified());
}

TEST_F(SadaListTest, DrawsTheBorderAroundTheSelectedRowOnly) {
  OpenCaves({"A", "A"});
  ClickCave(2);
  const QImage list = List().viewport()->grab().toImage();
  const QPoint one = List().RowOf(1).topLeft();
  const QPoint two = List().RowOf(2).topLeft();
  EXPECT_EQ(list.pixelColor(two), List().palette().color(QPalette::Highlight));
  EXPECT_EQ(list.pixelColor(one), List().palette().color(QPalette::Base));
}

TEST_F(SadaListTest, IgnoresClicksBelowTheLastCave) {
  OpenCaves({"A", "B"});
  QTest::mouseClick(List().viewport(), Qt::LeftButton, {}, List().lblCave(3).center());
  QTest::mouseClick(List().viewport(), Qt::LeftButton, {}, List().lblPoc(3).center());
  EXPECT_EQ(Sada().ListSelected(), 1);
  EXPECT_FALSE(window->isWindowModified());
}

TEST_F(SadaListTest, IsWalkedThroughByKeys) {
  OpenMany(40);
  List().setFocus();
  const std::vector<std::pair<Qt::Key, int>> steps = {
      {Qt::Key_Up, 1},        {Qt::Key_Down, 2}, {Qt::Key_PageDown, 19}, {Qt::Key_PageUp, 2},
      {Qt::Key_PageUp, 1},    {Qt::Key_End, 40}, {Qt::Key_Down, 40},     {Qt::Key_Up, 39},
      {Qt::Key_PageDown, 40}, {Qt::Key_Home, 1},
  };
  for (const auto& [key, number] : steps) {
    Key(key);
    EXPECT_EQ(Sada().ListSelected(), number);
  }
}

TEST_F(SadaListTest, EditsACaveByDoubleClickAndByEnter) {
  OpenCaves({"A", "B"});
  QTest::mouseDClick(List().viewport(), Qt::LeftButton, {}, List().lblCave(2).center());
  EXPECT_EQ(edited, Names{test::OneStepCave("B")});
  window->CaveDone(QByteArray::fromStdString(edited.front()));
  List().setFocus();
  Key(Qt::Key_Return);
  EXPECT_EQ(edited.size(), 2U);
}

// Marks

TEST_F(SadaListTest, ShowsAndRemovesTheMarkThatIsClicked) {
  OpenCaves({"A", "B", "*C"});
  EXPECT_TRUE(MarkSeen(1) && !MarkSeen(2) && MarkSeen(3));
  ClickMark(2);
  EXPECT_EQ(Rows(), (Names{"*A", "*B", "*C"}));
  EXPECT_TRUE(MarkSeen(2));
  EXPECT_TRUE(window->isWindowModified());
  ClickMark(3);
  EXPECT_EQ(Rows(), (Names{"*A", "*B", "C"}));
  EXPECT_FALSE(MarkSeen(3));
  EXPECT_EQ(Sada().ListSelected(), 1) << "the selection stays";
}

TEST_F(SadaListTest, DoesNotLetTheFirstMarkBeClicked) {
  OpenCaves({"A", "B"});
  ClickMark(1);
  List().setFocus();
  Key(Qt::Key_Space);
  EXPECT_EQ(Rows(), (Names{"*A", "B"}));
  EXPECT_FALSE(window->isWindowModified());
}

TEST_F(SadaListTest, TogglesTheMarkOfTheSelectedCaveBySpaceAndByTheMenu) {
  OpenCaves({"A", "B"});
  EXPECT_FALSE(Action("mnuMark").isEnabled());
  ClickCave(2);
  List().setFocus();
  Key(Qt::Key_Space);
  EXPECT_EQ(Rows(), (Names{"*A", "*B"}));
  EXPECT_TRUE(Action("mnuMark").isChecked());
  Action("mnuMark").trigger();
  EXPECT_EQ(Rows(), (Names{"*A", "B"}));
}

TEST_F(SadaListTest, ExplainsTheMarks) {
  OpenCaves({"A", "B"});
  EXPECT_EQ(HintAt(List().lblPoc(2).center()), "P = komnata otevřená od začátku, změníte kliknutím");
  EXPECT_EQ(HintAt(List().lblCave(2).center()), "");
}

TEST_F(SadaListTest, TellsANameThatIsTooLongForItsRow) {
  const std::string name(150, 'x');
  OpenCaves({"A", name});
  EXPECT_EQ(HintAt(List().lblCave(2).center()).toStdString(), name);
}

// Scrolling

TEST_F(SadaListTest, HasSeventeenRowsAndScrollsThroughTheRest) {
  for (const auto& [count, most] : {std::pair(1, 0), std::pair(17, 0), std::pair(18, 1), std::pair(99, 82)}) {
    OpenMany(count);
    EXPECT_EQ(VScroll1().minimum(), 0);
    EXPECT_EQ(VScroll1().maximum(), most);
    EXPECT_EQ(VScroll1().pageStep(), 17);
    EXPECT_EQ(VScroll1().singleStep(), 1);
  }
}

TEST_F(SadaListTest, MovesByARowPerStep) {
  OpenMany(30);
  const QRect third = List().RowOf(3);
  VScroll1().setValue(2);
  EXPECT_EQ(List().RowOf(3), List().RowOf(1).translated(0, 2 * third.height()));
  EXPECT_EQ(List().RowOf(3).top(), 0);
  ClickCave(3);
  EXPECT_EQ(Sada().ListSelected(), 3);
}

TEST_F(SadaListTest, BringsTheSelectedCaveIntoSight) {
  OpenMany(40);
  List().setFocus();
  Key(Qt::Key_End);
  EXPECT_EQ(VScroll1().value(), 23);
  EXPECT_TRUE(List().viewport()->rect().contains(List().RowOf(40)));
  Key(Qt::Key_Home);
  EXPECT_EQ(VScroll1().value(), 0);
}

TEST_F(SadaListTest, HasRowsOfFourteenAtLeast) {
  OpenMany(20);
  window->resize(window->minimumSizeHint());
  QCoreApplication::processEvents();
  EXPECT_GE(List().RowOf(1).height(), 14);
  EXPECT_TRUE(List().viewport()->rect().contains(List().RowOf(17)));
}

// Texts

class SadaBoxesTest : public SadaListTest {};

TEST_F(SadaBoxesTest, SaysWhatEachBoxIsFor) {
  Open();
  const std::vector<std::pair<const char*, QString>> labels = {{"Text3", "Název sady"},
                                                               {"Text1", "Autor"},
                                                               {"Text2", "E-mail"},
                                                               {"Text4", "Popis sady"},
                                                               {"txtBody", "Body na začátek"}};
  for (const auto& [box, words] : labels) {
    QString found;
    for (const QLabel* const label : window->findChildren<QLabel*>()) {
      if (label->buddy() == &Child<QWidget>(box)) found = label->text();
    }
    EXPECT_EQ(found, words);
  }
}

TEST_F(SadaBoxesTest, CountsAsChangedAfterALetterInAnyBox) {
  for (const char* box : {"Text3", "Text1", "Text2", "Text4"}) {
    OpenCaves({"A"});
    EXPECT_FALSE(window->isWindowModified());
    QTest::keyClick(&Child<QWidget>(box), Qt::Key_X);
    EXPECT_TRUE(window->isWindowModified()) << box;
  }
}

TEST_F(SadaBoxesTest, StoresWhatIsTyped) {
  OpenCaves({"A"});
  for (const char* box : {"Text3", "Text1", "Text2", "Text4"}) {
    Child<QWidget>(box).setFocus();
    Key(Qt::Key_A, Qt::ControlModifier);
    Type(Child<QWidget>(box), QString("%1 žluťoučký").arg(box));
  }
  EXPECT_EQ(ToUtf8(Sada().Text(SadaText::Name)), "Text3 žluťoučký");
  EXPECT_EQ(ToUtf8(Sada().Text(SadaText::Author)), "Text1 žluťoučký");
  EXPECT_EQ(ToUtf8(Sada().Text(SadaText::Mail)), "Text2 žluťoučký");
  EXPECT_EQ(ToUtf8(Sada().Text(SadaText::Description)), "Text4 žluťoučký");
}

TEST_F(SadaBoxesTest, KeepsLineBreaksOfTheDescription) {
  OpenCaves({"A"});
  Text4().selectAll();
  QTest::keyClicks(&Text4(), "a");
  QTest::keyClick(&Text4(), Qt::Key_Return);
  QTest::keyClicks(&Text4(), "b");
  EXPECT_EQ(Sada().Text(SadaText::Description), "a\r\nb");
}

TEST_F(SadaBoxesTest, ShowsWhatTheFileCannotHoldAsQuestionMarks) {
  OpenCaves({"A"});
  Box("Text1").selectAll();
  Box("Text1").insert("日本 š");
  QTest::keyClick(&Box("Text1"), Qt::Key_X);
  EXPECT_EQ(Box("Text1").text(), "?? šx");
  Text4().selectAll();
  Text4().insertPlainText("猫 č");
  EXPECT_EQ(Text4().toPlainText(), "? č");
  EXPECT_EQ(Sada().Text(SadaText::Description), "? \xE8");
}

TEST_F(SadaBoxesTest, TakesTwoHundredAndEightyCharactersOfDescription) {
  OpenCaves({"A"});
  Text4().selectAll();
  Text4().insertPlainText(QString(500, 'x'));
  EXPECT_EQ(Text4().toPlainText(), QString(280, 'x'));
  QTest::keyClick(&Text4(), Qt::Key_Y);
  EXPECT_EQ(Sada().Text(SadaText::Description), std::string(280, 'x'));
}

TEST_F(SadaBoxesTest, CutsWhatWasPutInAndNotWhatWasThere) {
  OpenCaves({"A"});
  Text4().setPlainText(QString());
  Text4().insertPlainText(QString(270, 'x') + "konec");
  Text4().moveCursor(QTextCursor::Start);
  Text4().insertPlainText("0123456789");
  EXPECT_EQ(Text4().toPlainText(), "01234" + QString(270, 'x') + "konec");
}

TEST_F(SadaBoxesTest, CountsALineBreakForTwo) {
  OpenCaves({"A"});
  Text4().selectAll();
  Text4().insertPlainText("x" + QString(200, QChar('\n')));
  EXPECT_EQ(Sada().Text(SadaText::Description).size(), 279U) << "a break does not fit in by half";
}

TEST_F(SadaBoxesTest, KeepsALongerDescriptionOfAFile) {
  Chance chance;
  const std::string text(400, 'x');
  folder.File(
      "Caves/l.zk",
      ScrambleLines({"ESadaA", "A" + text, "a@b.cz0", test::OneStepCave("A") + "---01", "H"}, chance));
  Open(Path("l.zk"));
  EXPECT_EQ(Text4().toPlainText().size(), 400);
  QTest::keyClick(&Text4(), Qt::Key_Y);
  EXPECT_EQ(Sada().Text(SadaText::Description), text);
}

TEST_F(SadaBoxesTest, LeavesUntouchedTextsAsTheyAreInTheFile) {
  Chance chance;
  const std::vector<std::string> lines = {"F\x81\nab\rA",
                                          "Cx\ny"
                                          "a\nb\rc\r\n",
                                          "\x83@0", test::OneStepCave("A") + "---01", "H\nu\r"};
  folder.File("Caves/o.zk", ScrambleLines(lines, chance));
  Open(Path("o.zk"));
  Key(Qt::Key_S, Qt::ControlModifier);
  EXPECT_EQ(Lines("o.zk"), lines);
}

TEST_F(SadaBoxesTest, ShowsPointsAtTheStartWithFiveDigits) {
  Open();
  QLineEdit& body = Box("txtBody");
  EXPECT_EQ(body.text(), "00000");
  const std::vector<std::pair<const char*, const char*>> rows = {
      {"7", "00007"},     {"-5", "00000"},   {"", "00000"},      {"-", "00000"},
      {"12345", "12345"}, {"x1y2", "00012"}, {"123456", "12345"}};
  for (const auto& [typed, shown] : rows) {
    body.setFocus();
    QCoreApplication::processEvents();
    EXPECT_EQ(body.selectedText(), body.text()) << "all of it is selected on entry";
    QTest::keyClick(&body, Qt::Key_Delete);
    QTest::keyClicks(&body, typed);
    Box("Text3").setFocus();
    EXPECT_EQ(body.text(), shown) << typed;
  }
  EXPECT_FALSE(window->isWindowModified());
}

TEST_F(SadaBoxesTest, SelectsThePointsWhenTheyAreClicked) {
  Open();
  QTest::mouseClick(&Box("txtBody"), Qt::LeftButton);
  QCoreApplication::processEvents();
  EXPECT_EQ(Box("txtBody").selectedText(), "00000");
}

TEST_F(SadaBoxesTest, IsWalkedThroughWithTheTabKey) {
  Open();
  Box("Text3").setFocus();
  for (const char* next : {"Text1", "Text2", "Text4", "txtBody", "CaveList"}) {
    QTest::keyClick(window->windowHandle(), Qt::Key_Tab);
    EXPECT_EQ(window->focusWidget(), &Child<QWidget>(next)) << next;
  }
}

TEST_F(SadaBoxesTest, RemembersTheSizeOfTheWindow) {
  Open();
  window->resize(901, 602);
  window->close();
  MakeWindow();
  Open();
  EXPECT_EQ(window->size(), QSize(901, 602));
}

}  // namespace
}  // namespace zorik
