#include <gtest/gtest.h>

#include <QPainter>
#include <QSignalSpy>
#include <QTest>
#include <QWheelEvent>

#include "screens/CaveList.h"
#include "screens/TestSkin.h"

namespace zorik {
namespace {

constexpr const char* kData =
    "select.caves:\r\nleft=10\r\ntop=20\r\nwidth=200\r\nheight=72\r\ncolor=101010\r\nborder.size=1\r\n"
    "border.color=ff0000\r\ntextcolor=ffffff\r\ncantcolor=808080\r\nsolvcolor=00ff00\r\nelsecolor=ffff00\r\n"
    "selection.bgcolor=0000ff\r\nselection.textcolor=00ffff\r\nselection.cantcolor=404040\r\n"
    "selection.solvcolor=004000\r\nselection.elsecolor=404000\r\n";

// A view of 70: five rows of 14.
class CaveListTest : public testing::Test {
 protected:
  void Show(int rows) {
    skin_.Data(kData);
    skin_.Apply();
    list_.SkinIt(skin_.Skin());
    std::vector<CaveList::Row> content;
    for (int i = 1; i <= rows; ++i) content.push_back({"c" + QString::number(i), i, CaveState::Open});
    list_.SetRows(content);
    list_.Select(1);
    list_.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&list_));
  }

  void Turn(int angle) {
    QWheelEvent event(QPointF(5, 5), QPointF(5, 5), QPoint(), QPoint(0, angle), Qt::NoButton, {},
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(list_.viewport(), &event);
  }

  test::TestSkin skin_;
  CaveList list_{nullptr};
};

TEST_F(CaveListTest, TakesItsPlaceFromTheSkin) {
  Show(3);
  EXPECT_EQ(list_.size(), QSize(200, 72));
}

TEST_F(CaveListTest, IsAsHighAsItsLinesAndFrameWithoutAHeight) {
  skin_.Data("select.caves:\r\nwidth=200\r\nlines=6\r\nborder.size=2\r\n");
  skin_.Apply();
  list_.SkinIt(skin_.Skin());
  EXPECT_EQ(list_.height(), 6 * 14 + 2 * 2);
}

TEST_F(CaveListTest, DrawsFrameGroundAndSelection) {
  Show(3);
  const QImage image = list_.grab().toImage();
  EXPECT_EQ(image.pixelColor(0, 0), QColor(255, 0, 0));
  EXPECT_EQ(image.pixelColor(199, 71), QColor(255, 0, 0));
  EXPECT_EQ(image.pixelColor(100, 60), QColor(16, 16, 16));
  EXPECT_EQ(image.pixelColor(100, 5), QColor(0, 0, 255));
  EXPECT_EQ(image.pixelColor(100, 1), QColor(0, 255, 255)) << "the border of the selected row";
  EXPECT_EQ(image.pixelColor(100, 14), QColor(0, 255, 255));
  EXPECT_EQ(image.pixelColor(100, 16), QColor(16, 16, 16));
}

// What a row shows is drawn once more beside it, by the letters of the list.
TEST_F(CaveListTest, WritesTwoDigitsOfTheNumberTheNameAndFiveOfTheScore) {
  Show(3);
  list_.SetRows({{"", 0, CaveState::Open}, {"Jg", 7, CaveState::Open}, {"Jg", 54321, CaveState::Open}});
  const QImage image = list_.grab().toImage().convertToFormat(QImage::Format_RGB32);
  const std::vector<std::pair<QString, QString>> expected = {{"02", "00007"}, {"03", "54321"}};
  int number = 2;
  for (const auto& [digits, score] : expected) {
    const QRect row(1, 1 + 14 * (number++ - 1), 198, 14);
    QImage drawn(list_.size(), QImage::Format_RGB32);
    drawn.fill(QColor(16, 16, 16));
    QPainter painter(&drawn);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setFont(list_.font());
    painter.setPen(Qt::white);
    painter.drawText(row.adjusted(6, 0, -6, 0), Qt::AlignLeft | Qt::AlignVCenter, digits);
    painter.drawText(row.adjusted(6, 0, -6, 0), Qt::AlignRight | Qt::AlignVCenter, score);
    painter.drawText(row.adjusted(6 + 24, 0, -6 - 42, 0), Qt::AlignLeft | Qt::AlignVCenter, "Jg");
    painter.end();
    EXPECT_EQ(image.copy(row), drawn.copy(row)) << score.toStdString();
  }
}

TEST_F(CaveListTest, TellsWhichRowIsOpenedByADoubleClickOfTheLeftButton) {
  Show(10);
  QSignalSpy opened(&list_, &CaveList::CaveDoubleClicked);
  QTest::mouseDClick(list_.viewport(), Qt::RightButton, {}, QPoint(50, 1 + 14 + 3));
  QTest::mouseDClick(list_.viewport(), Qt::LeftButton, {}, QPoint(50, 0));
  EXPECT_EQ(opened.size(), 0);
  QTest::mouseDClick(list_.viewport(), Qt::LeftButton, {}, QPoint(50, 1 + 14 + 3));
  ASSERT_EQ(opened.size(), 1);
  EXPECT_EQ(opened.front().front().toInt(), 2);
}

TEST_F(CaveListTest, ScrollsBackToWhatThereIsWhenItGetsFewerRows) {
  Show(40);
  list_.Select(40);
  list_.SetRows({{"c1", 1, CaveState::Open}});
  EXPECT_EQ(list_.Top(), 0);
}

TEST_F(CaveListTest, ScrollsNowhereWhileAllFits) {
  Show(5);
  EXPECT_EQ(list_.Range(), 0);
  list_.Scroll(3);
  EXPECT_EQ(list_.Top(), 0);
}

TEST_F(CaveListTest, ScrollsASelectedRowUpWithAUnitToSpare) {
  Show(10);
  list_.Select(5);
  EXPECT_EQ(list_.Top(), 0);
  list_.Select(6);
  EXPECT_EQ(list_.Top(), 70 - 70 - 14 - 1);
  list_.Select(10);
  EXPECT_EQ(list_.Top(), 70 - 126 - 14 - 1);
}

TEST_F(CaveListTest, ScrollsASelectedRowDownWithAUnitToSpare) {
  Show(10);
  list_.Select(10);
  list_.Select(5);
  EXPECT_EQ(list_.Top(), 1 - 56);
  list_.Select(1);
  EXPECT_EQ(list_.Top(), 1);
}

TEST_F(CaveListTest, ScrollsByRowsUpToItsEnds) {
  Show(10);
  EXPECT_EQ(list_.Range(), 70);
  list_.Scroll(2);
  EXPECT_EQ(list_.Top(), -28);
  list_.Scroll(99);
  EXPECT_EQ(list_.Top(), -70);
  list_.Scroll(-99);
  EXPECT_EQ(list_.Top(), 0);
}

TEST_F(CaveListTest, ScrollsByTheWheel) {
  Show(20);
  Turn(-120);
  EXPECT_EQ(list_.Top(), -3 * 14);
  Turn(-40);
  EXPECT_EQ(list_.Top(), -4 * 14);
  Turn(120);
  EXPECT_EQ(list_.Top(), -14);
}

TEST_F(CaveListTest, TellsWhichRowIsClicked) {
  Show(10);
  QSignalSpy clicked(&list_, &CaveList::CaveClicked);
  list_.Scroll(2);
  QTest::mouseClick(list_.viewport(), Qt::LeftButton, {}, QPoint(50, 1 + 14 + 3));
  ASSERT_EQ(clicked.size(), 1);
  EXPECT_EQ(clicked.front().front().toInt(), 4);
}

TEST_F(CaveListTest, TakesNoClickBesideItsRows) {
  Show(3);
  QSignalSpy clicked(&list_, &CaveList::CaveClicked);
  QTest::mouseClick(list_.viewport(), Qt::LeftButton, {}, QPoint(50, 60));
  QTest::mouseClick(list_.viewport(), Qt::LeftButton, {}, QPoint(50, 0));
  QTest::mouseClick(list_.viewport(), Qt::RightButton, {}, QPoint(50, 8));
  EXPECT_EQ(clicked.size(), 0);
}

// The mark stands before the score, where the name ends, which keeps the colour of its row.
TEST_F(CaveListTest, MarksAnUnstoredRowAndWritesItsNameAsInAnyOther) {
  Show(3);
  const QString name(40, 'M');
  list_.SetRows(
      {{"a", 0, CaveState::Open}, {name, 7, CaveState::Solved, false}, {name, 7, CaveState::Solved}});
  const QImage image = list_.grab().toImage();
  const auto count = [&image](int row, int from, int to, auto&& wanted) {
    int found = 0;
    for (int y = 1 + 14 * row; y < 1 + 14 * (row + 1); ++y) {
      for (int x = from; x < to; ++x) found += wanted(image.pixelColor(x, y)) ? 1 : 0;
    }
    return found;
  };
  const auto green = [](QColor here) { return here.green() > 150 && here.red() < 100; };
  const auto red = [](QColor here) { return here.red() > 100 && here.green() < 60; };
  const auto white = [](QColor here) { return here.red() > 150 && here.green() > 150 && here.blue() > 150; };
  // The frame, the padding, and the number, the mark and the score beside the name.
  const int nameLeft = 1 + 6 + 24, nameRight = 199 - 6 - 42 - 14, scoreLeft = 199 - 6 - 42;
  EXPECT_GT(count(1, nameLeft, nameRight, green), 50);
  EXPECT_EQ(count(1, nameLeft, nameRight - 1, white), 0) << "its name is in its own colour";
  EXPECT_EQ(count(1, nameLeft, nameRight - 1, red), 0);
  EXPECT_GT(count(1, nameRight, scoreLeft, red), 50);
  EXPECT_GT(count(1, nameRight, scoreLeft, white), 0) << "the sign on the plate";
  EXPECT_GT(count(1, scoreLeft, 193, green), 20);
  EXPECT_EQ(count(2, 1, 199, red), 0);
  EXPECT_GT(count(2, nameRight, scoreLeft, green), 0) << "there is more room for the name";
}

}  // namespace
}  // namespace zorik
