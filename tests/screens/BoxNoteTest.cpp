// The line that tells below a box what becomes of its text.
#include <gtest/gtest.h>

#include <QApplication>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QSignalSpy>

#include "screens/BoxNote.h"
#include "screens/TestSkin.h"
#include "screens/Tones.h"

namespace zorik {
namespace {

const QString kStrange = "Z těchto znaků budou v souboru otazníky: 猫";

class BoxNoteTest : public testing::Test {
 protected:
  BoxNoteTest() {
    skin.Apply();
    box->setObjectName("Text3");
  }

  static QColor Ink(const BoxNote& note) { return note.palette().color(QPalette::WindowText); }
  static QColor Plain() { return QApplication::palette().color(QPalette::WindowText); }

  test::TestSkin skin;
  QWidget window;
  QLineEdit* box = new QLineEdit(&window);
};

TEST_F(BoxNoteTest, TellsTheLengthFromThreeQuartersOfTheMostOn) {
  BoxNote& note = *new BoxNote(*box, 8);
  EXPECT_EQ(note.objectName(), "lblNote.Text3");
  EXPECT_EQ(note.parentWidget(), &window);
  QSignalSpy changed(&note, &BoxNote::Changed);
  for (const auto& [text, said] : std::initializer_list<std::pair<const char*, const char*>>{
           {"12345", ""}, {"123456", "6 / 8"}, {"12345678", "8 / 8"}, {"řřřřřř", "6 / 8"}}) {
    box->setText(text);
    EXPECT_EQ(note.text(), said);
    EXPECT_EQ(note.isHidden(), note.text().isEmpty()) << text;
    EXPECT_EQ(Ink(note), Plain()) << text;
    EXPECT_EQ(changed.size(), 1);
    changed.clear();
  }
}

TEST_F(BoxNoteTest, TurnsRedForATextThatIsTooLong) {
  BoxNote& note = *new BoxNote(*box, 8);
  box->setText("123456789");
  EXPECT_EQ(note.text(), "9 / 8");
  EXPECT_GT(Ink(note).red(), 2 * std::max(Ink(note).green(), Ink(note).blue()));
  box->setText("12345678");
  EXPECT_EQ(Ink(note), Plain());
}

TEST_F(BoxNoteTest, NamesTheLettersThatNoFileCanHoldBehindTheLength) {
  BoxNote& note = *new BoxNote(*box, 8);
  note.SetWords(skin.Skin());
  box->setText("猫");
  EXPECT_EQ(note.text(), kStrange);
  EXPECT_FALSE(note.isHidden());
  EXPECT_NE(Ink(note), Plain());
  box->setText("12345猫");
  EXPECT_EQ(note.text(), "6 / 8   " + kStrange);
  box->clear();
  EXPECT_TRUE(note.isHidden());
}

TEST_F(BoxNoteTest, TellsNoLengthWithoutALimit) {
  BoxNote& note = *new BoxNote(*box, std::nullopt);
  note.SetWords(skin.Skin());
  box->setText(QString(5000, 'x'));
  EXPECT_TRUE(note.isHidden());
  EXPECT_EQ(note.text(), "");
  box->setText("猫");
  EXPECT_EQ(note.text(), kStrange);
  EXPECT_NE(Ink(note), Plain());
}

TEST_F(BoxNoteTest, AlwaysTellsTheLengthBelowABoxOfSeveralLines) {
  QPlainTextEdit text(&window);
  text.setObjectName("Text5");
  const BoxNote& note = *new BoxNote(text, 10);
  EXPECT_EQ(note.objectName(), "lblNote.Text5");
  EXPECT_EQ(note.text(), "0 / 10");
  EXPECT_FALSE(note.isHidden());
  text.setPlainText("ab\ncd");
  EXPECT_EQ(note.text(), "6 / 10") << "a file breaks a line by two characters";
  EXPECT_EQ(note.textFormat(), Qt::PlainText);
  EXPECT_TRUE(note.wordWrap());
}

TEST_F(BoxNoteTest, ReadsWellInRedOnLightAndOnDark) {
  const QPalette before = QApplication::palette();
  for (const QColor ground : {QColor(0xF0, 0xF0, 0xF0), QColor(0x20, 0x20, 0x24)}) {
    QPalette colours = before;
    colours.setColor(QPalette::Window, ground);
    colours.setColor(QPalette::WindowText, TonesOf(ground).text);
    QApplication::setPalette(colours);
    QWidget dressed;
    QLineEdit line(&dressed);
    BoxNote& note = *new BoxNote(line, 4);
    line.setText("123");
    EXPECT_EQ(Ink(note), TonesOf(ground).text);
    line.setText("12345");
    EXPECT_GE(Contrast(Ink(note), ground), 4.5) << ground.name().toStdString();
    EXPECT_GT(Ink(note).red(), Ink(note).green() + 100);
    EXPECT_GT(Ink(note).red(), Ink(note).blue() + 100);
  }
  QApplication::setPalette(before);
}

}  // namespace
}  // namespace zorik
