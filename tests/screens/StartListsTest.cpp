#include <gtest/gtest.h>

#include <QHelpEvent>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>
#include <QTextDocumentFragment>
#include <QToolTip>
#include <QWheelEvent>

#include "screens/ScrollButton.h"
#include "screens/StartLists.h"

namespace zorik {
namespace {

// Twenty rows in a frame of 2 that holds five.
class Rows : public testing::Test {
 protected:
  Rows() {
    ListLook look;
    look.borderSize = 2;
    list_.SetLook(look);
    list_.resize(120, 5 * kRowHeight + 4);
    QStringList labels;
    for (int i = 0; i < 20; ++i) labels.push_back("řádek " + QString::number(i));
    list_.SetLabels(labels);
    list_.show();
  }

  int FirstSeen() const {
    for (int place = 0; place < list_.Count(); ++place) {
      if (list_.PlaceOf(place).top() >= 2) return place;
    }
    return -1;
  }

  void Wheel(int turn) {
    const QPointF centre = QRectF(list_.rect()).center();
    QWheelEvent event(centre, list_.mapToGlobal(centre), QPoint(), QPoint(0, turn), Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(list_.viewport(), &event);
  }

  LabelList list_{Qt::Vertical, nullptr};
};

TEST_F(Rows, StandFourteenApartInsideTheFrame) {
  EXPECT_EQ(list_.PlaceOf(0), QRect(2, 2, 116, 14));
  EXPECT_EQ(list_.PlaceOf(3), QRect(2, 2 + 3 * 14, 116, 14));
}

TEST_F(Rows, TellANameThatIsTooLongAsItIsWritten) {
  const QString name = "<img src=\"/dev/null\"> jméno, které se do řádku nevejde";
  list_.SetLabels({"Eva"});
  const QPoint place = list_.PlaceOf(0).center();
  QHelpEvent event(QEvent::ToolTip, place, list_.mapToGlobal(place));
  QApplication::sendEvent(list_.viewport(), &event);
  EXPECT_EQ(QToolTip::text(), "") << "it is seen as a whole";
  list_.SetLabels({name});
  QApplication::sendEvent(list_.viewport(), &event);
  EXPECT_FALSE(QToolTip::text().contains("<img"));
  EXPECT_EQ(QTextDocumentFragment::fromHtml(QToolTip::text()).toPlainText(), name);
  QToolTip::hideText();
}

TEST_F(Rows, OfManyLettersAreDrawnAsOneLine) {
  list_.SetLabels({"a\nb", QString(1000000, 'x')});
  EXPECT_EQ(list_.Labels()[0], "a\nb");
  EXPECT_EQ(list_.PlaceOf(1).top() - list_.PlaceOf(0).top(), kRowHeight);
}

TEST_F(Rows, NoneIsSelectedAtFirst) {
  EXPECT_EQ(list_.Selected(), -1);
  list_.Select(0);
  list_.SetLabels({"jiný"});
  EXPECT_EQ(list_.Selected(), -1);
}

TEST_F(Rows, ASelectedRowIsScrolledIntoSight) {
  list_.Select(12);
  EXPECT_EQ(FirstSeen(), 8);
  list_.Select(9);
  EXPECT_EQ(FirstSeen(), 8) << "what is seen stays";
  list_.Select(3);
  EXPECT_EQ(FirstSeen(), 3);
}

TEST_F(Rows, SelectingStopsAtTheEnds) {
  list_.Select(99);
  EXPECT_EQ(list_.Selected(), 19);
  list_.Select(-5);
  EXPECT_EQ(list_.Selected(), 0);
}

TEST_F(Rows, AnEmptyListSelectsNothing) {
  list_.SetLabels({});
  const QSignalSpy chosen(&list_, &LabelList::Chosen);
  list_.Select(0);
  QTest::mouseClick(list_.viewport(), Qt::LeftButton);
  EXPECT_EQ(list_.Selected(), -1);
  EXPECT_EQ(chosen.count(), 0);
  EXPECT_FALSE(list_.Overflows());
}

TEST_F(Rows, ScrollingStopsAtTheEnds) {
  list_.Scroll(-3);
  EXPECT_EQ(FirstSeen(), 0);
  list_.Scroll(100);
  EXPECT_EQ(FirstSeen(), 15);
  list_.Scroll(-1);
  EXPECT_EQ(FirstSeen(), 14);
}

TEST_F(Rows, TheWheelScrollsThreeRowsANotch) {
  Wheel(-120);
  EXPECT_EQ(FirstSeen(), 3);
  Wheel(120);
  EXPECT_EQ(FirstSeen(), 0);
}

TEST_F(Rows, FineTurnsOfTheWheelAddUp) {
  for (int i = 0; i < 6; ++i) Wheel(-20);
  EXPECT_EQ(FirstSeen(), 3);
}

TEST_F(Rows, APressSelectsWhatIsUnderThePointer) {
  list_.Scroll(4);
  const QSignalSpy chosen(&list_, &LabelList::Chosen);
  QTest::mouseClick(list_.viewport(), Qt::LeftButton, {}, list_.PlaceOf(6).center());
  EXPECT_EQ(list_.Selected(), 6);
  EXPECT_EQ(chosen.count(), 1);
  QTest::mouseClick(list_.viewport(), Qt::RightButton, {}, list_.PlaceOf(7).center());
  QTest::mouseClick(list_.viewport(), Qt::LeftButton, {}, QPoint(1, 0));
  EXPECT_EQ(list_.Selected(), 6) << "neither another button nor the frame selects";
}

TEST_F(Rows, ADoubleClickOpens) {
  const QSignalSpy opened(&list_, &LabelList::Opened);
  QTest::mouseClick(list_.viewport(), Qt::LeftButton, {}, list_.PlaceOf(2).center());
  EXPECT_EQ(opened.count(), 0);
  QTest::mouseDClick(list_.viewport(), Qt::LeftButton, {}, list_.PlaceOf(2).center());
  ASSERT_EQ(opened.count(), 1);
  EXPECT_EQ(opened.at(0), QVariantList{2});
}

// The second press can come when the rows have been scrolled.
TEST_F(Rows, ADoubleClickOnAnotherRowThanItsFirstPressDoesNotOpen) {
  QSignalSpy opened(&list_, &LabelList::Opened);
  list_.Select(1);
  const auto second = [this](int place) {
    const QPointF where = list_.PlaceOf(place).center();
    QMouseEvent event(QEvent::MouseButtonDblClick, where, list_.mapToGlobal(where), Qt::LeftButton,
                      Qt::LeftButton, {});
    QApplication::sendEvent(list_.viewport(), &event);
  };
  second(3);
  EXPECT_EQ(opened.count(), 0);
  second(1);
  EXPECT_EQ(opened.count(), 1);
}

TEST_F(Rows, ADoubleClickBelowTheLastRowDoesNothing) {
  list_.SetLabels({"jediný"});
  list_.Select(0);
  const QSignalSpy opened(&list_, &LabelList::Opened);
  QTest::mouseDClick(list_.viewport(), Qt::LeftButton, {}, QPoint(50, 60));
  EXPECT_EQ(opened.count(), 0);
}

TEST_F(Rows, FitExactlyWithoutOverflow) {
  QStringList five = list_.Labels().mid(0, 5);
  list_.SetLabels(five);
  EXPECT_FALSE(list_.Overflows());
  list_.SetLabels(five << "šestý");
  EXPECT_TRUE(list_.Overflows());
}

TEST_F(Rows, ASmallerListIsScrolledBackIntoItsFrame) {
  list_.Scroll(15);
  list_.resize(120, 12 * kRowHeight + 4);
  EXPECT_EQ(FirstSeen(), 8);
}

// Where the mark is seen at the right edge, in the colour of the letters: its first and its last row of
// pixels.
class RowsMark : public Rows {
 protected:
  std::pair<int, int> Seen() {
    const QImage image = list_.grab().toImage();
    const int x = list_.width() - 3;
    int first = -1;
    int last = -1;
    for (int y = 2; y < list_.height() - 2; ++y) {
      if (image.pixelColor(x, y) != QColor(Qt::white)) continue;
      if (first < 0) first = y;
      last = y;
    }
    return {first, last};
  }
};

TEST_F(RowsMark, TellsWhereInALongListOneIs) {
  const auto [first, last] = Seen();
  EXPECT_EQ(first, 2);
  EXPECT_NEAR(last - first + 1, 70 * 70 / 280, 1) << "as much of the edge as is seen of the list";
  list_.Scroll(99);
  EXPECT_EQ(Seen().second, list_.height() - 3);
  list_.Scroll(-7);
  EXPECT_NEAR((Seen().first + Seen().second) / 2, list_.height() / 2, 5);
}

TEST_F(RowsMark, IsNotThereWhenAllIsSeen) {
  list_.SetLabels(list_.Labels().mid(0, 5));
  EXPECT_EQ(Seen(), std::pair(-1, -1));
  EXPECT_TRUE(list_.PositionMark().isEmpty());
  list_.SetLabels(list_.Labels() << "šestý");
  EXPECT_NE(Seen(), std::pair(-1, -1));
}

TEST_F(RowsMark, StandsApartFromASelectedRowAsBrightAsItself) {
  list_.Select(0);
  const QImage image = list_.grab().toImage();
  EXPECT_EQ(image.pixelColor(list_.width() - 3, 8), QColor(Qt::white));
  EXPECT_EQ(image.pixelColor(list_.width() - 6, 8), QColor(Qt::black));
  EXPECT_EQ(image.pixelColor(list_.width() - 7, 8), QColor(Qt::white));
}

TEST_F(RowsMark, StaysInAListLowerThanItself) {
  list_.resize(120, 8);
  EXPECT_FALSE(list_.PositionMark().isEmpty());
  EXPECT_TRUE(list_.rect().contains(list_.PositionMark()));
}

// Types letters one after another, as quickly as a test does.
class RowsTyping : public Rows {
 protected:
  RowsTyping() { list_.SetLabels({"Alej", "Ámos", "čáp", "Cesta", "Cihla", "5 psů", "<b>x", "Žába"}); }

  bool Type(const QString& letters, Qt::KeyboardModifiers modifiers = {}) {
    bool taken = true;
    for (const QChar letter : letters) {
      taken = list_.TypeAhead(QKeyEvent(QEvent::KeyPress, 0, modifiers, QString(letter))) && taken;
    }
    return taken;
  }
  void Pause() { QTest::qWait(1100); }
};

TEST_F(RowsTyping, SelectsTheNextThatBeginsWithALetter) {
  list_.Select(0);
  for (const int place : {2, 3, 4, 2}) {
    EXPECT_TRUE(Type("c"));
    EXPECT_EQ(list_.Selected(), place);
    Pause();
  }
}

TEST_F(RowsTyping, MindsNeitherCaseNorAccents) {
  list_.Select(0);
  Type("A");
  EXPECT_EQ(list_.Selected(), 1);
  Pause();
  Type("z");
  EXPECT_EQ(list_.Selected(), 7);
  Pause();
  Type("Č");
  EXPECT_EQ(list_.Selected(), 2);
  Pause();
  Type("cap");
  EXPECT_EQ(list_.Selected(), 2) << "by way of the next one with a c, nor do those within a word count";
}

TEST_F(RowsTyping, MakesAWordOfLetters) {
  list_.Select(2);
  Type("ci");
  EXPECT_EQ(list_.Selected(), 4);
  Pause();
  Type("ce");
  EXPECT_EQ(list_.Selected(), 3);
}

TEST_F(RowsTyping, GoesOnWithTheSameLetter) {
  list_.Select(0);
  Type("ccc");
  EXPECT_EQ(list_.Selected(), 4);
}

TEST_F(RowsTyping, SelectsNothingByLettersThatBeginNoNameAndForgetsThem) {
  list_.Select(3);
  EXPECT_TRUE(Type("q"));
  EXPECT_EQ(list_.Selected(), 3);
  list_.Step(Qt::Key_Home);
  Type("z");
  EXPECT_EQ(list_.Selected(), 7) << "another key begins a new word";
}

TEST_F(RowsTyping, BeginsANewWordAfterAPress) {
  list_.Select(0);
  Type("c");
  QTest::mouseClick(list_.viewport(), Qt::LeftButton, {}, list_.PlaceOf(1).center());
  Type("z");
  EXPECT_EQ(list_.Selected(), 7);
}

TEST_F(RowsTyping, TakesNoOtherKeys) {
  list_.Select(0);
  EXPECT_FALSE(Type(" "));
  EXPECT_FALSE(Type("<"));
  EXPECT_FALSE(Type("\r"));
  EXPECT_FALSE(Type("c", Qt::ControlModifier));
  EXPECT_FALSE(Type("c", Qt::AltModifier));
  EXPECT_FALSE(list_.TypeAhead(QKeyEvent(QEvent::KeyPress, Qt::Key_F5, Qt::NoModifier)));
  EXPECT_EQ(list_.Selected(), 0);
  EXPECT_TRUE(Type("5"));
  EXPECT_EQ(list_.Selected(), 5);
}

TEST_F(RowsTyping, SelectsNothingByAnAccentThatHasNoLetterYet) {
  list_.Select(2);
  list_.keyboardSearch(QString(QChar(0x0301)));
  EXPECT_EQ(list_.Selected(), 2);
}

TEST_F(RowsTyping, SelectsNothingInAnEmptyList) {
  list_.SetLabels({});
  EXPECT_TRUE(Type("c"));
  EXPECT_TRUE(list_.Step(Qt::Key_Down));
  EXPECT_EQ(list_.Selected(), -1);
}

TEST(Strip, EachLabelBeginsWhereTheOneBeforeEnds) {
  LabelList strip(Qt::Horizontal, nullptr);
  strip.resize(100, 20);
  strip.SetLabels({" « Adam » ", " « Bartoloměj » ", " « Cyril » "});
  int end = strip.PlaceOf(0).left();
  for (int place = 0; place < 3; ++place) {
    EXPECT_EQ(strip.PlaceOf(place).left(), end);
    EXPECT_EQ(strip.PlaceOf(place).width(), strip.fontMetrics().horizontalAdvance(strip.Labels().at(place)));
    end += strip.PlaceOf(place).width();
  }
  EXPECT_TRUE(strip.Overflows());
}

TEST(Strip, HasItsMarkAtTheLowerEdgeBelowItsLetters) {
  ListLook look;
  look.borderSize = 2;
  LabelList strip(Qt::Horizontal, nullptr);
  strip.SetLook(look);
  strip.resize(100, 20);
  strip.SetLabels({" « Adam » ", " « Bartoloměj » ", " « Cyril » "});
  const QRect mark = strip.PositionMark();
  EXPECT_EQ(mark.topLeft(), QPoint(2, 18));
  EXPECT_EQ(mark.bottom(), 19);
  EXPECT_LT(mark.width(), 96);
  const QImage image = strip.grab().toImage();
  EXPECT_EQ(image.pixelColor(3, 19), QColor(Qt::white));
  EXPECT_EQ(image.pixelColor(97, 19), QColor(Qt::gray)) << "the frame";
  strip.Select(2);
  EXPECT_EQ(strip.PositionMark().right(), 97);
}

TEST(Strip, ASelectedLabelIsScrolledIntoSight) {
  LabelList strip(Qt::Horizontal, nullptr);
  strip.resize(100, 20);
  strip.SetLabels({" « Adam » ", " « Bára » ", " « Cyril » ", " « David » "});
  for (int place : {3, 0, 2, 1}) {
    strip.Select(place);
    EXPECT_TRUE(strip.rect().contains(strip.PlaceOf(place))) << place;
  }
}

TEST(Strip, ALabelThatLacksOnePixelIsScrolledIntoSightToo) {
  LabelList strip(Qt::Horizontal, nullptr);
  strip.resize(100, 20);
  strip.SetLabels({" « Adam » ", " « Bára » ", " « Cyril » ", " « David » "});
  const int left = strip.PlaceOf(0).left();
  QScrollBar& bar = *strip.horizontalScrollBar();
  for (int value = 0; value <= bar.maximum() && strip.PlaceOf(1).left() >= left; ++value) bar.setValue(value);
  ASSERT_EQ(strip.PlaceOf(1).left(), left - 1);
  strip.Select(1);
  EXPECT_EQ(strip.PlaceOf(1).left(), left);
}

TEST(Strip, ANameWiderThanTheFrameShowsItsBeginning) {
  LabelList strip(Qt::Horizontal, nullptr);
  strip.resize(60, 20);
  strip.SetLabels({" « A » ", " « " + QString(60, 'm') + " » ", " « B » "});
  strip.Select(1);
  EXPECT_EQ(strip.PlaceOf(1).left(), 1);
}

class ScrollButtons : public testing::Test {
 protected:
  static QList<int> Steps(Qt::Orientation orientation, QPoint place, QSize size) {
    ScrollButton button(orientation, nullptr);
    button.setFixedSize(size);
    button.show();
    const QSignalSpy stepped(&button, &ScrollButton::Stepped);
    QTest::mouseClick(&button, Qt::LeftButton, {}, place);
    QList<int> steps;
    for (const QVariantList& step : stepped) steps.push_back(step.at(0).toInt());
    return steps;
  }
};

TEST_F(ScrollButtons, ServeTwoDirectionsByTheirHalves) {
  EXPECT_EQ(Steps(Qt::Vertical, {10, 5}, {20, 48}), QList<int>{-1});
  EXPECT_EQ(Steps(Qt::Vertical, {10, 40}, {20, 48}), QList<int>{1});
  EXPECT_EQ(Steps(Qt::Horizontal, {5, 10}, {48, 20}), QList<int>{-1});
  EXPECT_EQ(Steps(Qt::Horizontal, {40, 10}, {48, 20}), QList<int>{1});
}

TEST_F(ScrollButtons, GoOnWhileTheyAreHeld) {
  ScrollButton button(Qt::Vertical, nullptr);
  button.setFixedSize(20, 48);
  button.show();
  const QSignalSpy stepped(&button, &ScrollButton::Stepped);
  QTest::mousePress(&button, Qt::LeftButton, {}, {10, 40});
  EXPECT_TRUE(QTest::qWaitFor([&] { return stepped.count() >= 3; }));
  QTest::mouseRelease(&button, Qt::LeftButton, {}, {10, 40});
  const auto count = stepped.count();
  QTest::qWait(150);
  EXPECT_EQ(stepped.count(), count);
}

TEST_F(ScrollButtons, DoNothingWhenLetGoOutside) {
  ScrollButton button(Qt::Vertical, nullptr);
  button.setFixedSize(20, 48);
  button.show();
  const QSignalSpy stepped(&button, &ScrollButton::Stepped);
  QTest::mousePress(&button, Qt::LeftButton, {}, {10, 40});
  QTest::mouseRelease(&button, Qt::LeftButton, {}, {10, 90});
  EXPECT_EQ(stepped.count(), 0);
}

}  // namespace
}  // namespace zorik
