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
}

TEST_F(WrapTextTest, PutsAtLeastOneCharacterIntoALine) {
  EXPECT_EQ(Lines("abc", 1), (QStringList{"a", "b", "c"}));
}

TEST_F(WrapTextTest, HasOneEmptyLineForAnEmptyText) {
  EXPECT_EQ(Lines("", 100), QStringList{""});
}

}  // namespace
}  // namespace zorik
