#include <gtest/gtest.h>

#include <QLabel>

#include "screens/PlainText.h"

namespace zorik {
namespace {

constexpr QChar kDots(0x2026);

TEST(OneLineTest, LeavesAPlainTextAsItIs) {
  EXPECT_EQ(OneLine(" « Příliš žluťoučký <b>kůň</b> & %1 » "), " « Příliš žluťoučký <b>kůň</b> & %1 » ");
}

TEST(OneLineTest, MakesBlanksOfLineEndsTabsAndOtherControls) {
  EXPECT_EQ(OneLine("a\r\nb\nc\rd\te"), "a b c d e");
  EXPECT_EQ(OneLine("a" + QString(QChar(0)) + "b" + QChar(1) + "c" + QChar(0x7F)), "a b c ");
  EXPECT_EQ(OneLine("a" + QString(QChar(0x2028)) + "b" + QChar(0x2029) + "c" + QChar(0x85)), "a b c ");
}

TEST(OneLineTest, MakesBlanksOfMarksThatTurnTheWayOfWriting) {
  for (const int mark :
       {0x061C, 0x200E, 0x200F, 0x202A, 0x202B, 0x202C, 0x202D, 0x202E, 0x2066, 0x2067, 0x2068, 0x2069}) {
    EXPECT_EQ(OneLine("a" + QString(QChar(mark)) + "b"), "a b") << mark;
  }
}

TEST(OneLineTest, EndsATextThatIsTooLongInDots) {
  EXPECT_EQ(OneLine("12345", 5), "12345");
  EXPECT_EQ(OneLine("123456", 5), "12345" + QString(kDots));
  EXPECT_EQ(OneLine(QString(10000, 'x')), QString(kMostInLine, 'x') + kDots);
}

TEST(OneLineTest, CutsNoCharacterInTwo) {
  const QString dog = QString::fromUtf8("\xF0\x9F\x90\x95");
  ASSERT_EQ(dog.size(), 2);
  EXPECT_EQ(OneLine("ab" + dog + "cd", 3), "ab" + QString(kDots));
}

TEST(InLinesTest, KeepsTheLines) {
  EXPECT_EQ(InLines("a\r\nb\nc\rd" + QString(QChar(0x2028)) + "e\tf"), "a\nb\nc\nd\ne f");
  EXPECT_EQ(InLines("a" + QString(QChar(0x85)) + "b" + QChar(0x2029) + "c"), "a\nb\nc");
}

TEST(InLinesTest, EndsATextThatIsTooLongInDots) {
  EXPECT_EQ(InLines(QString(1000000, '\n')), QString(kMostInLines, '\n') + kDots);
}

TEST(InMenuTest, DoublesTheAmpersandAndHasNoTab) {
  EXPECT_EQ(InMenu("R&D\tCtrl+X"), "R&&D Ctrl+X");
}

TEST(InMenuTest, CountsTheLettersThatAreSeen) {
  EXPECT_EQ(InMenu(QString(200, '&')), QString(2 * kMostInCaption, '&') + kDots);
}

TEST(NewLabelTest, ShowsMarkupAsItIsWritten) {
  QWidget window;
  QLabel& label = *NewLabel(&window);
  label.setText("a");
  const int line = label.sizeHint().height();
  label.setText("<h1>a</h1>");
  EXPECT_EQ(label.sizeHint().height(), line);
}

TEST(KeepLabelsPlainTest, ReachesTheLabelsOfAnotherMaker) {
  QWidget window;
  auto* const label = new QLabel("<b>a</b>", &window);
  KeepLabelsPlain(window);
  EXPECT_EQ(label->textFormat(), Qt::PlainText);
}

// The title as the desktop gets it, where the toolkit has put its mark.
class SetTitleTest : public testing::Test {
 protected:
  QString OnDesktop() {
    window_.show();
    QString title = window_.windowTitle();
    // Two marks are one that is meant; a single one is the place of the star.
    title.replace("[*][*]", QString(QChar(1)));
    title.replace("[*]", window_.isWindowModified() ? "*" : "");
    return title.replace(QChar(1), "[*]");
  }

  QWidget window_;
};

TEST_F(SetTitleTest, IsOneLineOfSensibleLength) {
  SetTitle(window_, "a\nb\tc" + QString(10000, 'x'));
  EXPECT_TRUE(window_.windowTitle().startsWith("a b cx"));
  EXPECT_EQ(window_.windowTitle().size(), kMostInLine + 1);
}

TEST_F(SetTitleTest, KeepsTheLettersThatTheToolkitTakesForItsMark) {
  SetTitle(window_, "Cave [*]", ChangeMark::Without);
  EXPECT_EQ(OnDesktop(), "Cave [*]");
}

TEST_F(SetTitleTest, ShowsTheMarkOfAChangeWhereItIsWanted) {
  SetTitle(window_, "Editor", ChangeMark::With);
  EXPECT_EQ(OnDesktop(), "Editor");
  window_.setWindowModified(true);
  EXPECT_EQ(OnDesktop(), "Editor*");
}

}  // namespace
}  // namespace zorik
