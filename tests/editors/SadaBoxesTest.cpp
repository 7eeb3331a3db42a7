// The boxes for the texts of a collection, by mouse and keys.
#include <gtest/gtest.h>

#include <QClipboard>
#include <QLabel>

#include "editors/SadaBoxes.h"
#include "editors/SadaScreen.h"

namespace zorik {
namespace {

class SadaBoxesTest : public test::SadaWindowTest {
 protected:
  // What is told below a box; nothing if nothing is.
  QString Note(const char* box) const {
    const QLabel& note = NoteLabel(box);
    return note.isVisible() ? note.text() : QString();
  }
  bool IsRed(const char* box) const {
    const QColor colour = NoteLabel(box).palette().color(QPalette::WindowText);
    return colour.red() > 2 * colour.green();
  }

 private:
  const QLabel& NoteLabel(const char* box) const {
    return Child<QLabel>(("lblNote." + std::string(box)).c_str());
  }
};

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

TEST_F(SadaBoxesTest, KeepsWhatTheFileCannotHoldAsQuestionMarks) {
  OpenCaves({"A"});
  Box("Text1").selectAll();
  Box("Text1").insert("日本 š");
  QTest::keyClick(&Box("Text1"), Qt::Key_X);
  EXPECT_EQ(Box("Text1").text(), "日本 šx");
  EXPECT_EQ(Sada().Text(SadaText::Author), "?? \x9Ax");
  Text4().selectAll();
  Text4().insertPlainText("猫 č");
  EXPECT_EQ(Text4().toPlainText(), "猫 č");
  EXPECT_EQ(Sada().Text(SadaText::Description), "? \xE8");
  Key(Qt::Key_S, Qt::ControlModifier);
  Open(Path("a.zk"));
  EXPECT_EQ(Box("Text1").text(), "?? šx");
  EXPECT_EQ(Text4().toPlainText(), "? č");
}

TEST_F(SadaBoxesTest, NamesTheLettersThatBecomeQuestionMarksAsTheyAreTyped) {
  OpenCaves({"A"});
  for (const char* box : {"Text3", "Text1", "Text2", "Text4"}) {
    TypeInto(box, "a猫č日");
    EXPECT_TRUE(Note(box).endsWith("Z těchto znaků budou v souboru otazníky: 猫 日"))
        << Note(box).toStdString();
    Key(Qt::Key_Backspace);
    EXPECT_TRUE(Note(box).endsWith("otazníky: 猫")) << box;
    TypeInto(box, "ač");
    EXPECT_FALSE(Note(box).contains("otazníky")) << box;
  }
}

TEST_F(SadaBoxesTest, TellsTheLengthOfTheDescriptionAndStopsAtItsLimit) {
  OpenCaves({"A"});
  EXPECT_EQ(Note("Text4"), "5 / 280");
  Text4().selectAll();
  Text4().insertPlainText("a\nb");
  EXPECT_EQ(Note("Text4"), "4 / 280") << "a break counts for two";
  Text4().selectAll();
  Text4().insertPlainText(QString(500, 'x'));
  EXPECT_EQ(Note("Text4"), "280 / 280");
  EXPECT_FALSE(IsRed("Text4"));
}

TEST_F(SadaBoxesTest, TellsInRedThatANameIsTooLong) {
  OpenCaves({"A"});
  for (const char* box : {"Text3", "Text1"}) {
    TypeInto(box, QString(141, 'x'));
    EXPECT_EQ(Note(box), "") << "there is room enough";
    TypeInto(box, QString(189, 'x') + "č");
    EXPECT_EQ(Note(box), "190 / 190");
    EXPECT_FALSE(IsRed(box));
    QTest::keyClicks(&Child<QWidget>(box), "y");
    EXPECT_EQ(Note(box), "191 / 190");
    EXPECT_TRUE(IsRed(box));
  }
  TypeInto("Text2", QString(300, 'x'));
  EXPECT_EQ(Note("Text2"), "") << "an address may have any length";
}

TEST_F(SadaBoxesTest, TellsOfADescriptionThatIsTooLongAlready) {
  Chance chance;
  folder.File("Caves/l.zk", ScrambleLines({"ESadaA", "A" + std::string(400, 'x'), "a@b.cz0",
                                           test::OneStepCave("A") + "---01", "H"},
                                          chance));
  Open(Path("l.zk"));
  EXPECT_EQ(Note("Text4"), "400 / 280");
  EXPECT_TRUE(IsRed("Text4"));
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

TEST_F(SadaBoxesTest, KeepADescriptionThatNoBoxCanHold) {
  Chance chance;
  const std::string text(1000000, 'x');
  folder.File(
      "Caves/l.zk",
      ScrambleLines({"ESadaA", "A" + text, "a@b.cz0", test::OneStepCave("A") + "---01", "H"}, chance));
  Open(Path("l.zk"));
  EXPECT_EQ(Text4().toPlainText().size(), 20001);
  QTest::keyClick(&Text4(), Qt::Key_Y);
  EXPECT_EQ(Sada().Text(SadaText::Description), text);
  EXPECT_FALSE(window->isWindowModified());
  OpenCaves({"A"});
  QTest::keyClick(&Text4(), Qt::Key_Y);
  EXPECT_TRUE(window->isWindowModified()) << "the next one can be edited";
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

TEST_F(SadaBoxesTest, KeepsBlanksThatDoNotBreakWhileOtherLettersChange) {
  Chance chance;
  const std::vector<std::string> lines = {"Ek\xA0-mA", "En\xA0-op\xA0-r", "s\xA0-t0",
                                          test::OneStepCave("A") + "---01", "H"};
  folder.File("Caves/n.zk", ScrambleLines(lines, chance));
  Open(Path("n.zk"));
  for (const char* box : {"Text3", "Text1", "Text2", "Text4"}) {
    Child<QWidget>(box).setFocus();
    Key(Qt::Key_End);
    QTest::keyClicks(&Child<QWidget>(box), "x");
  }
  EXPECT_EQ(Sada().Text(SadaText::Name), "k\xA0-mx");
  EXPECT_EQ(Sada().Text(SadaText::Author), "n\xA0-ox");
  EXPECT_EQ(Sada().Text(SadaText::Mail), "s\xA0-tx");
  EXPECT_EQ(Sada().Text(SadaText::Description), "p\xA0-rx");
}

TEST_F(SadaBoxesTest, TakesBackWhatWasPutIntoTheDescription) {
  OpenCaves({"A"});
  for (const QString& put : {QString(500, 'x'), QString("猫 a")}) {
    Text4().setFocus();
    Key(Qt::Key_A, Qt::ControlModifier);
    Text4().insertPlainText(put);
    Key(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(Text4().toPlainText().toStdString(), "Popis");
    EXPECT_EQ(Sada().Text(SadaText::Description), "Popis");
  }
}

TEST_F(SadaBoxesTest, BreaksLinesByShiftEnterToo) {
  OpenCaves({"A"});
  TypeInto("Text4", "a");
  Key(Qt::Key_Return, Qt::ShiftModifier);
  QTest::keyClicks(&Text4(), "b");
  EXPECT_EQ(Sada().Text(SadaText::Description), "a\r\nb");
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

TEST_F(SadaBoxesTest, StandsInTheMiddleOfTheScreenAtFirst) {
  const QPoint middle = window->screen()->availableGeometry().center();
  EXPECT_LE((window->geometry().center() - middle).manhattanLength(), 2);
}

TEST_F(SadaBoxesTest, ShowsTheBeginningOfALongName) {
  const QString name = QString(120, 'D') + "konec";
  OpenCaves({"A"});
  TypeName(name);
  Action("mnuSave").trigger();
  Open(Path("a.zk"));
  EXPECT_EQ(Box("Text3").selectedText(), name);
  EXPECT_EQ(Box("Text3").cursorPosition(), 0);
}

TEST_F(SadaBoxesTest, RemembersTheSizeOfTheWindow) {
  Open();
  window->resize(901, 602);
  window->close();
  MakeWindow();
  Open();
  EXPECT_EQ(window->size(), QSize(901, 602));
}

TEST_F(SadaBoxesTest, LeavesTheCaretBehindWhatWasPutInWithALineBreak) {
  OpenCaves({"A"});
  TypeName("Konec");
  Box("Text3").setCursorPosition(0);
  QGuiApplication::clipboard()->setText("Dva\u2028radky ");
  Box("Text3").paste();
  EXPECT_EQ(Box("Text3").text(), "Dva radky Konec");
  EXPECT_EQ(Box("Text3").cursorPosition(), 10);
}

TEST_F(SadaBoxesTest, ShowsTheBeginningOfALongAuthorAndMail) {
  OpenCaves({"A"});
  for (const char* const box : {"Text1", "Text2"}) TypeInto(box, QString(150, 'D'));
  Action("mnuSave").trigger();
  Open(Path("a.zk"));
  for (const char* const box : {"Text1", "Text2"}) EXPECT_EQ(Box(box).cursorPosition(), 0) << box;
}

}  // namespace
}  // namespace zorik
