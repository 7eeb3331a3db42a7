#include <gtest/gtest.h>

#include <QFont>

#include "screens/ShowText.h"

namespace zorik {
namespace {

class WrapTextTest : public testing::Test {
 protected:
  int Width(const QString& text) const { return metrics_.horizontalAdvance(text); }
  QStringList Lines(const QString& text, int maxWidth) const {
    return WrapText(text, metrics_, maxWidth).lines;
  }

  QFontMetrics metrics_{QFont()};
};

TEST_F(WrapTextTest, LeavesAShortTextInOneLine) {
  EXPECT_EQ(Lines("jedna dvě tři", 1000), QStringList{"jedna dvě tři"});
}

TEST_F(WrapTextTest, BreaksAtTheLastBlankThatFits) {
  EXPECT_EQ(Lines("jedna dvě tři", Width("jedna dvě")), (QStringList{"jedna dvě", "tři"}));
  EXPECT_EQ(Lines("jedna dvě tři", Width("jedna dvě") - 1), (QStringList{"jedna", "dvě tři"}));
}

TEST_F(WrapTextTest, BreaksAtEveryKindOfLineEnd) {
  EXPECT_EQ(Lines("a\rb\nc\r\nd", 1000), (QStringList{"a", "b", "c", "d"}));
}

TEST_F(WrapTextTest, KeepsEmptyLines) {
  EXPECT_EQ(Lines("a\r\n\r\nb", 1000), (QStringList{"a", "", "b"}));
}

TEST_F(WrapTextTest, EndsALineAtAReturnThoughMoreWouldFit) {
  EXPECT_EQ(Lines("a\rb c", 1000), (QStringList{"a", "b c"}));
}

TEST_F(WrapTextTest, NotesTheWidestLine) {
  const WrappedText wrapped = WrapText("i\rwwwwww\rii", metrics_, 1000);
  EXPECT_EQ(wrapped.width, Width("wwwwww"));
}

TEST_F(WrapTextTest, BreaksAWordThatNoLineHolds) {
  const int width = Width("wwww");
  const WrappedText wrapped = WrapText("wwwwwwwwww a", metrics_, width);
  EXPECT_EQ(wrapped.lines, (QStringList{"wwww", "wwww", "ww a"}));
  EXPECT_LE(wrapped.width, width);
  EXPECT_EQ(Lines(" wwwwww", width), (QStringList{"", "wwww", "ww"}))
      << "its first letter may be the last blank";
}

TEST_F(WrapTextTest, BreaksAPathBehindItsSeparators) {
  EXPECT_EQ(Lines("/home/eva/vzhledy/skindata.txt", Width("/home/eva/vzhledy/skindata.t")),
            (QStringList{"/home/eva/vzhledy/", "skindata.txt"}));
  EXPECT_EQ(Lines("C:\\hry\\vzhledy\\palm.bmp", Width("C:\\hry\\vzhledy\\palm")),
            (QStringList{"C:\\hry\\vzhledy\\", "palm.bmp"}));
}

TEST_F(WrapTextTest, BreaksANameThatNoLineHolds) {
  EXPECT_EQ(Lines("/home/wwwwwwwwwwwwwwwwww", Width("wwwwwwwwww")),
            (QStringList{"/home/", "wwwwwwwwww", "wwwwwwww"}));
}

TEST_F(WrapTextTest, KeepsTheNamesOfAPathWholeThoughTheyHaveBlanks) {
  EXPECT_EQ(Lines("/home/Moje hry/Velká sada.zk", Width("/home/Moje hry/Velká sada")),
            (QStringList{"/home/Moje hry/", "Velká sada.zk"}));
  EXPECT_EQ(Lines("/Velká sada komnat", Width("/Velká sada kom")), (QStringList{"/Velká sada", "komnat"}))
      << "a name longer than the line breaks at its blanks";
}

TEST_F(WrapTextTest, StartsAPathWithinASentenceOnALineOfItsOwn) {
  EXPECT_EQ(Lines("Chybí '/home/eva/palm'", Width("'/home/eva/palm'")),
            (QStringList{"Chybí", "'/home/eva/palm'"}));
}

TEST_F(WrapTextTest, PutsAtLeastOneCharacterIntoALine) {
  EXPECT_EQ(Lines("abc", 1), (QStringList{"a", "b", "c"}));
}

TEST_F(WrapTextTest, HasOneEmptyLineForAnEmptyText) {
  EXPECT_EQ(Lines("", 100), QStringList{""});
}

TEST_F(WrapTextTest, DrawsNoMoreLinesThanThereIsRoomFor) {
  const WrappedText cut = WrapText("a\nb\nc", metrics_, 1000, 2);
  EXPECT_EQ(cut.lines, (QStringList{"a", "b"}));
  EXPECT_FALSE(cut.whole);
  EXPECT_TRUE(WrapText("a\nb", metrics_, 1000, 2).whole);
}

TEST_F(WrapTextTest, KeepsALetterAndItsAccentTogether) {
  const QString letter = "e" + QString(QChar(0x030C));
  const QStringList lines = Lines(letter.repeated(40), Width(letter.repeated(7)));
  ASSERT_GT(lines.size(), 1);
  for (const QString& line : lines) EXPECT_EQ(line.size() % 2, 0);
  EXPECT_EQ(lines.join(""), letter.repeated(40));
}

// Counts the letters that are measured; each is 10 wide.
class WrapWork : public testing::TestWithParam<QString> {
 protected:
  static qsizetype Of(const QString& text, qsizetype mostLines = kAllLines) {
    qsizetype letters = 0;
    const auto measure = [&letters](const QString& piece) {
      letters += piece.size();
      return static_cast<int>(piece.size()) * 10;
    };
    WrapText(text, measure, 500, mostLines);
    return letters;
  }
};

TEST_P(WrapWork, GrowsAsTheTextDoes) {
  const QString text = GetParam().repeated(20000 / GetParam().size());
  const qsizetype work = Of(text);
  const qsizetype twice = Of(text + text);
  EXPECT_GT(work, 0);
  EXPECT_LT(twice, work * 5 / 2);
}

TEST_P(WrapWork, StopsWhereTheRoomEnds) {
  const QString text = GetParam().repeated(20000 / GetParam().size());
  EXPECT_EQ(Of(text, 3), Of(text + text, 3));
  EXPECT_LT(Of(text, 3), 3 * 2000);
}

INSTANTIATE_TEST_SUITE_P(Texts, WrapWork,
                         testing::Values("x", "slovo ", "x\r\n", QString(300, 'x') + ' ', " ",
                                         QString(40, 'x') + "\n", "/slovo", "/x y", "/"));

}  // namespace
}  // namespace zorik
