// How the list of caves is drawn, and what its parts answer to.
#include <gtest/gtest.h>

#include <QSignalSpy>

#include "editors/SadaList.h"
#include "editors/SadaScreen.h"

namespace zorik {
namespace {

using test::Names;

class SadaListLooksTest : public test::SadaWindowTest {
 protected:
  QImage Image(const QRect& part) const { return List().viewport()->grab(part).toImage(); }
  QColor Ground() const { return List().palette().color(QPalette::Base); }
  // What is drawn in a part of a row that is not selected, in the list's own places; empty if nothing is.
  QRect InkOf(const QRect& part) const {
    const QImage image = Image(part);
    QRect ink;
    for (int y = 0; y < image.height(); ++y) {
      for (int x = 0; x < image.width(); ++x)
        if (image.pixelColor(x, y) != Ground()) ink |= QRect(x, y, 1, 1);
    }
    return ink.isEmpty() ? ink : ink.translated(part.topLeft());
  }
  int Darkest(const QRect& part) const {
    const QImage image = Image(part);
    int least = 255;
    for (int y = 0; y < image.height(); ++y)
      for (int x = 0; x < image.width(); ++x) least = std::min(least, qGray(image.pixel(x, y)));
    return least;
  }
  // What is left of the name, where the number stands.
  QRect NumberPart(int number) const {
    const QRect row = List().RowOf(number);
    return {row.left(), row.top(), List().lblCave(number).left() - row.left(), row.height()};
  }
  void PointAt(QPoint place) const { QTest::mouseMove(List().viewport(), place); }
  void Press(Qt::MouseButton button, QPoint place) const {
    QTest::mouseClick(List().viewport(), button, {}, place);
  }
};

TEST_F(SadaListLooksTest, HasRowsOfNumberNameAndMarkSideBySide) {
  OpenMany(5);
  EXPECT_EQ(List().RowOf(1).topLeft(), QPoint(0, 0));
  for (int number = 1; number <= 5; ++number) {
    const QRect row = List().RowOf(number), name = List().lblCave(number), mark = List().lblPoc(number);
    EXPECT_EQ(row.width(), List().viewport()->width());
    EXPECT_EQ(List().RowOf(number + 1).top(), row.bottom() + 1);
    EXPECT_EQ(mark.right(), row.right());
    EXPECT_EQ(mark.width(), 2 * row.height());
    EXPECT_EQ(name.right() + 1, mark.left());
    EXPECT_EQ(name.height(), row.height());
    EXPECT_EQ(mark.height(), row.height());
    const QRect doubt = List().Doubt(number);
    EXPECT_EQ(doubt.width(), doubt.height()) << "a square";
    EXPECT_EQ(doubt.right(), name.right());
    EXPECT_EQ(doubt.height(), row.height());
  }
}

TEST_F(SadaListLooksTest, WritesNumbersFaintlyBeforeTheNames) {
  OpenMany(5);
  const int pad = List().RowOf(1).height() / 4;
  for (int number = 2; number <= 5; ++number) {
    const QRect digits = InkOf(NumberPart(number)), name = InkOf(List().lblCave(number));
    const int edge = List().lblCave(number).left();
    EXPECT_NEAR(digits.right(), edge - pad, 3) << number;
    EXPECT_LT(digits.right(), edge - pad) << number;
    EXPECT_NEAR(name.left(), edge + pad, 3) << number;
    EXPECT_GE(name.left(), edge + pad - 1) << number;
    EXPECT_GT(Darkest(NumberPart(number)), Darkest(List().lblCave(number)) + 40) << number;
    const int middle = List().RowOf(number).center().y();
    EXPECT_NEAR(digits.center().y(), middle, 3) << number;
    EXPECT_NEAR(name.center().y(), middle, 3) << number;
  }
}

TEST_F(SadaListLooksTest, HasLettersThatGrowWithItsRows) {
  OpenCaves({"A", "HHH"});
  const auto part = [this] {
    return static_cast<double>(InkOf(List().lblCave(2)).height()) / List().RowOf(2).height();
  };
  window->resize(740, 420);
  QCoreApplication::processEvents();
  const double low = part();
  const int before = List().RowOf(2).height();
  window->resize(740, 780);
  QCoreApplication::processEvents();
  ASSERT_GT(List().RowOf(2).height(), before * 3 / 2);
  EXPECT_NEAR(part(), low, 0.15);
  EXPECT_GT(part(), 0.4);
}

TEST_F(SadaListLooksTest, DrawsAFrameAroundTheWholeSelectedRow) {
  OpenCaves({"A", "B", "C"});
  ClickCave(2);
  const QRect row = List().RowOf(2);
  const QImage image = Image(List().viewport()->rect());
  const QColor frame = List().palette().color(QPalette::Highlight);
  for (const QPoint corner : {row.topLeft(), row.topRight(), row.bottomLeft(), row.bottomRight()})
    EXPECT_EQ(image.pixelColor(corner), frame) << corner.x() << ' ' << corner.y();
  for (const QPoint inside : {row.topLeft() + QPoint(1, 1), row.bottomRight() - QPoint(1, 1)})
    EXPECT_NE(image.pixelColor(inside), frame);
  EXPECT_EQ(image.pixelColor(row.topLeft() - QPoint(0, 1)), Ground());
  EXPECT_EQ(image.pixelColor(row.bottomLeft() + QPoint(0, 1)), Ground());
}

TEST_F(SadaListLooksTest, FillsTheSelectedRowTwiceAsStronglyWhenItHasTheKeys) {
  OpenCaves({"A", "B", "C"});
  ClickCave(2);
  const auto fill = [this] {
    const QColor filled = Image(List().RowOf(2)).pixelColor(1, 1);
    return Ground().red() - filled.red() + Ground().green() - filled.green() + Ground().blue() -
           filled.blue();
  };
  Activate();
  List().setFocus();
  const int strong = fill();
  Box("Text3").setFocus();
  EXPECT_GT(fill(), 20);
  EXPECT_NEAR(strong, 2 * fill(), 6);
}

TEST_F(SadaListLooksTest, EndsNamesThatAreTooLongInDotsBeforeTheColumnOfMarks) {
  const std::string name(150, 'H');
  OpenCaves({"A", name, name});
  for (const int number : {2, 3}) {
    QRect room = List().lblCave(number);
    if (number == 3) room.setRight(List().Doubt(3).left() - 1);  // the same name once more
    const int pad = room.height() / 4;
    const QRect ink = InkOf(room);
    EXPECT_LE(ink.right(), room.right() - pad) << number;
    EXPECT_GT(ink.right(), room.right() - pad - 2 * room.height()) << number;
    const QRect end = InkOf(QRect(QPoint(ink.right() - 2, room.top()), ink.bottomRight()));
    EXPECT_GT(end.top(), room.center().y()) << number << ": the last are dots";
  }
}

// Marks of doubtful names

TEST_F(SadaListLooksTest, DrawsADarkSignOnAYellowDiscBesideADoubtfulName) {
  OpenCaves({"A", "B", "A"});
  EXPECT_TRUE(InkOf(List().Doubt(2)).isEmpty());
  const QRect place = List().Doubt(3);
  const QRect ink = InkOf(place);
  EXPECT_EQ(ink, place.adjusted(1, 1, -1, -1)) << "with a gap around it";
  const QImage image = Image(place);
  const QColor yellow(0xFF, 0xD0, 0x40);
  EXPECT_EQ(image.pixelColor(place.width() / 4, place.height() / 2), yellow);
  EXPECT_EQ(image.pixelColor(place.width() * 3 / 4, place.height() / 2), yellow);
  EXPECT_EQ(image.pixelColor(1, 1), Ground()) << "its corners are round";
  int dark = 0;
  for (int y = 0; y < image.height(); ++y)
    dark +=
        qGray(image.pixel(place.width() / 2, y)) < 160 || qGray(image.pixel(place.width() / 2 - 1, y)) < 160;
  EXPECT_GT(dark, place.height() / 4);
}

TEST_F(SadaListLooksTest, DrawsTheFrameOfAMarkAlikeInEachRow) {
  OpenCaves({"A", "B", "A"});
  const auto frame = [this](int number) {
    PointAt(List().lblPoc(number).center());
    return Image(List().lblPoc(number));
  };
  const QImage plain = frame(2);
  EXPECT_EQ(frame(3), plain) << "behind a doubtful name";
  const int right = plain.width() - 1, bottom = plain.height() - 1;
  for (const QPoint edge : {QPoint(0, 0), QPoint(right, 0), QPoint(0, bottom), QPoint(right, bottom)})
    EXPECT_NE(plain.pixelColor(edge), Ground()) << edge.x() << ' ' << edge.y();
  for (const QPoint inside : {QPoint(1, 1), QPoint(right - 1, bottom - 1), QPoint(right / 2, bottom / 2)})
    EXPECT_EQ(plain.pixelColor(inside), Ground()) << inside.x() << ' ' << inside.y();
  EXPECT_GT(qGray(plain.pixel(0, 0)), 100) << "faintly";
}

TEST_F(SadaListLooksTest, DrawsMarksInTheMiddleOfTheirColumn) {
  OpenCaves({"A", "*B"});
  const QRect ink = InkOf(List().lblPoc(2));
  EXPECT_NEAR(ink.center().x(), List().lblPoc(2).center().x(), 2);
  EXPECT_NEAR(ink.center().y(), List().lblPoc(2).center().y(), 3);
}

// Hints

TEST_F(SadaListLooksTest, ExplainsTheWholeColumnOfMarksAndNothingElse) {
  OpenCaves({"A", "B"});
  const QRect mark = List().lblPoc(2);
  const QString words = HintAt(mark.center());
  EXPECT_NE(words, "");
  EXPECT_EQ(HintAt(mark.topLeft()), words);
  EXPECT_EQ(HintAt(mark.topLeft() - QPoint(1, 0)), "");
  EXPECT_EQ(HintAt(List().lblPoc(9).center()), words) << "below the caves, too";
  EXPECT_EQ(HintAt(List().lblCave(9).center()), "");
}

TEST_F(SadaListLooksTest, TellsTheWholeOfADoubtfulNameThatIsCutAndWhatIsWrong) {
  const std::string name(150, 'x');
  OpenCaves({"A", name, name, "A"});
  const QStringList both = HintAt(List().lblCave(3).center()).split('\n');
  EXPECT_TRUE(both.join("").startsWith(QString::fromStdString(name))) << both.join('|').toStdString();
  const QString doubt = HintAt(List().lblCave(4).center()).remove('\n');
  EXPECT_TRUE(doubt.startsWith("Jmenuje se")) << doubt.toStdString();
  EXPECT_GT(both.join("").size(), 150 + 20);
}

// A name whose last letter makes no difference to the picture is not to be seen whole.
TEST_F(SadaListLooksTest, TellsTheWholeOfEachNameOfWhichTheLastLetterIsNotSeen) {
  OpenCaves({"A", std::string(20, 'i')});
  const auto fitting =
      static_cast<std::size_t>(20 * List().lblCave(2).width() / InkOf(List().lblCave(2)).width());
  Names names{"A"};
  for (std::size_t letters = fitting - 24; letters < fitting + 24; ++letters) {
    names.push_back(std::string(letters, 'i') + 'i');
    names.push_back(std::string(letters, 'i') + 'j');
  }
  OpenCaves(names);
  int cut = 0;
  for (int number = 2; number < static_cast<int>(names.size()) && cut < 4; number += 2) {
    List().scrollTo(List().model()->index(number, 0));
    if (Image(List().lblCave(number)) != Image(List().lblCave(number + 1))) continue;
    ++cut;
    EXPECT_NE(HintAt(List().lblCave(number).center()), "") << names[static_cast<std::size_t>(number) - 1];
  }
  EXPECT_EQ(cut, 4);
}

// The mouse

TEST_F(SadaListLooksTest, ChangesAMarkByTheLeftButtonOnly) {
  OpenCaves({"A", "B", "C"});
  ClickCave(2);
  for (const Qt::MouseButton button : {Qt::RightButton, Qt::MiddleButton}) {
    Press(button, List().lblPoc(3).center());
    EXPECT_EQ(Rows(), (Names{"*A", "B", "C"})) << button;
  }
  EXPECT_EQ(Sada().ListSelected(), 3) << "a menu is that of the cave below the pointer";
  Press(Qt::LeftButton, List().lblPoc(1).center());
  EXPECT_EQ(Sada().ListSelected(), 3) << "the first mark selects nothing";
  Press(Qt::RightButton, List().lblPoc(1).center());
  EXPECT_EQ(Sada().ListSelected(), 1);
  Press(Qt::RightButton, List().lblCave(9).center());
  EXPECT_EQ(Sada().ListSelected(), 1);
}

TEST_F(SadaListLooksTest, CountsADoubleClickOnAMarkForTwo) {
  OpenCaves({"A", "B"});
  const QSignalSpy clicks(&List(), &SadaList::MarkClicked);
  Press(Qt::LeftButton, List().lblPoc(2).center());
  QTest::mouseDClick(List().viewport(), Qt::LeftButton, {}, List().lblPoc(2).center());
  ASSERT_EQ(clicks.size(), 2);
  EXPECT_EQ(clicks[1][0].toInt(), 2);
  EXPECT_EQ(Rows(), (Names{"*A", "B"}));
}

// The size

TEST_F(SadaListLooksTest, WantsRoomForSeventeenRowsAndItsFrame) {
  EXPECT_GT(List().frameWidth(), 0);
  EXPECT_EQ(List().frameShadow(), QFrame::Sunken);
  const int frame = 2 * List().frameWidth();
  EXPECT_EQ(List().minimumSizeHint().height(), 17 * 14 + frame);
  EXPECT_EQ(List().sizeHint().height(), 17 * 18 + frame);
  EXPECT_GT(List().sizeHint().width(), List().minimumSizeHint().width());
  EXPECT_EQ(List().focusPolicy(), Qt::StrongFocus);
}

}  // namespace
}  // namespace zorik
