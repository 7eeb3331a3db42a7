#include <gtest/gtest.h>

#include <QFontMetrics>
#include <QTest>
#include <QWidget>

#include "screens/MessageStrip.h"
#include "support/StopWatch.h"

namespace zorik {
namespace {

constexpr int kShownFor = 3000;  // milliseconds
constexpr int kMargin = 400;

class MessageStripTest : public testing::Test {
 protected:
  MessageStripTest() { parent_.resize(900, 500); }

  // Tells, from now on, whether the strip goes in time.
  test::StopWatch Goes() {
    return {[this] { return strip_.isHidden(); }, kShownFor + kMargin};
  }

  // Whether all lines are seen as a whole.
  void ExpectUnclipped() {
    EXPECT_TRUE(parent_.rect().contains(strip_.geometry())) << strip_.x() << ", " << strip_.width();
    const QFontMetrics metrics(strip_.font());
    EXPECT_GE(strip_.height(), strip_.Lines().lines.size() * metrics.lineSpacing());
    for (const QString& line : strip_.Lines().lines) {
      EXPECT_LE(metrics.horizontalAdvance(line), strip_.width()) << line.toStdString();
    }
  }

  QWidget parent_;
  MessageStrip strip_{&parent_};
};

TEST_F(MessageStripTest, IsHiddenUntilThereIsAMessage) {
  EXPECT_TRUE(strip_.isHidden());
  strip_.ShowMessage("Haf!", Qt::white);
  EXPECT_FALSE(strip_.isHidden());
  EXPECT_EQ(strip_.Text(), "Haf!");
}

TEST_F(MessageStripTest, StaysInTheWindowHoweverManyLinesATextHas) {
  strip_.ShowMessage(QString("a\n").repeated(10000), Qt::white);
  ExpectUnclipped();
  strip_.ShowMessage("<b>a</b>\tb", Qt::white);
  EXPECT_EQ(strip_.Text(), "<b>a</b> b");
}

TEST_F(MessageStripTest, LiesInTheMiddleAsFarFromTheTopAsIsAsked) {
  strip_.SetTop(18);
  strip_.ShowMessage("Haf!", Qt::white);
  EXPECT_EQ(strip_.y(), 18);
  EXPECT_EQ(strip_.x(), (900 - strip_.width()) / 2);
  EXPECT_GT(strip_.width(), QFontMetrics(strip_.font()).horizontalAdvance("Haf!"));
  parent_.resize(700, 500);
  strip_.Centre();
  EXPECT_EQ(strip_.x(), (700 - strip_.width()) / 2);
}

TEST_F(MessageStripTest, StaysWithANoticeUntilTheNextMessage) {
  strip_.ShowMessage("Haf!", Qt::white);
  strip_.ShowNotice("Konec.", Qt::white);
  QTest::qWait(kShownFor + 100);
  EXPECT_FALSE(strip_.isHidden());
  EXPECT_EQ(strip_.Text(), "Konec.");
  const test::StopWatch goes = Goes();
  strip_.ShowMessage("Haf!", Qt::white);
  goes.ExpectNotBefore(kShownFor / 2);  // it has its own time
}

TEST_F(MessageStripTest, WritesInTheGivenColour) {
  parent_.show();
  strip_.ShowMessage("Haf!", QColor(255, 255, 191));
  const QImage drawn = strip_.grab().toImage();
  bool seen = false;
  for (int y = 0; y < drawn.height(); ++y) {
    for (int x = 0; x < drawn.width(); ++x) seen = seen || drawn.pixel(x, y) == qRgb(255, 255, 191);
  }
  EXPECT_TRUE(seen);
}

TEST_F(MessageStripTest, StandsForThreeSeconds) {
  const test::StopWatch goes = Goes();
  strip_.ShowMessage("Haf!", Qt::white);
  goes.ExpectNotBefore(kShownFor - kMargin);
}

TEST_F(MessageStripTest, GivesASecondMessageWhatIsLeftOfTheThreeSeconds) {
  const test::StopWatch goes = Goes();
  strip_.ShowMessage("Haf!", Qt::white);
  QTest::qWait(1000);
  strip_.ShowMessage("Mňau!", Qt::green);
  EXPECT_EQ(strip_.Text(), "Mňau!");
  goes.ExpectNotBefore(kShownFor - kMargin);
}

TEST_F(MessageStripTest, GivesTheFirstMessageOfACaveItsThreeSeconds) {
  strip_.ShowMessage("Haf!", Qt::white);
  QTest::qWait(1000);
  strip_.Clear();
  EXPECT_TRUE(strip_.isHidden());
  const test::StopWatch goes = Goes();
  strip_.ShowMessage("Mňau!", Qt::white);
  goes.ExpectNotBefore(kShownFor - kMargin);
}

TEST_F(MessageStripTest, HasSeveralLinesForAMessageThatIsTooLongForOne) {
  strip_.ShowMessage(QString("hrabat ").repeated(40), Qt::white);
  EXPECT_GT(strip_.Lines().lines.size(), 1);
  ExpectUnclipped();
  parent_.resize(480, 320);
  strip_.Centre();
  ExpectUnclipped();
}

TEST_F(MessageStripTest, BreaksALineOnlyWhereTheStripWouldLeaveTheWindow) {
  const QFontMetrics metrics(strip_.font());
  int widest = 0;
  for (int letters = 1; letters < 2000; ++letters) {
    strip_.ShowMessage(QString(letters, 'i'), Qt::white);
    if (strip_.Lines().lines.size() > 1) break;
    widest = strip_.width();
  }
  EXPECT_LE(widest, parent_.width());
  EXPECT_GT(widest + metrics.horizontalAdvance('i') + 1, parent_.width());
}

TEST_F(MessageStripTest, BreaksAMessageWhereItsTextDoes) {
  strip_.ShowMessage("Haf!\r\nMňau!", Qt::white);
  EXPECT_EQ(strip_.Lines().lines, (QStringList{"Haf!", "Mňau!"}));
  ExpectUnclipped();
}

TEST_F(MessageStripTest, ShortensARemarkThatHasNoEnd) {
  parent_.resize(480, 320);
  strip_.ShowMessage(QString(1 << 20, 'W'), Qt::cyan);
  EXPECT_TRUE(strip_.Text().endsWith(QChar(0x2026)));
  EXPECT_LT(strip_.Text().size(), 1000);
  EXPECT_LE(strip_.width(), 480);
}

TEST_F(MessageStripTest, IsARoundPlateWithARimThatIsTheSameOnAllItsSides) {
  strip_.ShowMessage("Haf!", Qt::white);
  strip_.ShowMessage(" ", Qt::white);
  QImage seen(strip_.size(), QImage::Format_ARGB32);
  seen.fill(Qt::transparent);
  strip_.render(&seen, {}, {}, QWidget::RenderFlags());
  const int right = seen.width() - 1, bottom = seen.height() - 1;
  for (int y = 0; y <= bottom; ++y) {
    for (int x = 0; x <= right; ++x) {
      EXPECT_NEAR(qAlpha(seen.pixel(x, y)), qAlpha(seen.pixel(right - x, y)), 12) << x << ' ' << y;
      EXPECT_NEAR(qAlpha(seen.pixel(x, y)), qAlpha(seen.pixel(x, bottom - y)), 12) << x << ' ' << y;
    }
  }
  const int middle = seen.width() / 2;
  EXPECT_EQ(qAlpha(seen.pixel(0, 0)), 0);
  EXPECT_EQ(seen.pixel(middle, 0), seen.pixel(middle, 1)) << "a rim of two pixels";
  EXPECT_NE(seen.pixel(middle, 1), seen.pixel(middle, 2));
  EXPECT_EQ(qAlpha(seen.pixel(middle, 0)), 255);
  EXPECT_LT(seen.pixelColor(middle, 20).lightness(), 60) << "a dark ground";
  EXPECT_GT(qAlpha(seen.pixel(middle, 20)), 200);
}

TEST_F(MessageStripTest, IsNothingForMouseAndKeysAndLiesOverWhatCameLater) {
  EXPECT_TRUE(strip_.testAttribute(Qt::WA_TransparentForMouseEvents));
  EXPECT_EQ(strip_.focusPolicy(), Qt::NoFocus);
  QWidget later(&parent_);
  strip_.ShowMessage("Haf!", Qt::white);
  EXPECT_EQ(parent_.children().last(), &strip_);
}

TEST_F(MessageStripTest, IsHigherByALineForEachLineMore) {
  const int line = QFontMetrics(strip_.font()).lineSpacing();
  strip_.ShowMessage("Haf!", Qt::white);
  EXPECT_EQ(strip_.height(), 40);
  EXPECT_EQ(strip_.width(), strip_.Lines().width + 60) << "with thirty at both sides";
  strip_.ShowMessage("Haf!\nMňau!\nHaf!", Qt::white);
  EXPECT_EQ(strip_.height(), 40 + 2 * line);
}

TEST_F(MessageStripTest, TakesAnEmptyNoticeForNone) {
  strip_.ShowNotice("Konec.", Qt::white);
  strip_.ShowNotice("", Qt::white);
  EXPECT_TRUE(strip_.isHidden());
}

}  // namespace
}  // namespace zorik
