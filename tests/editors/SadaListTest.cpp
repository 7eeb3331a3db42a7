// The list of caves, by mouse and keys.
#include <gtest/gtest.h>

#include "editors/SadaList.h"
#include "editors/SadaScreen.h"

namespace zorik {
namespace {

using test::Names;

// Counts how often a widget is painted.
class PaintCount : public QObject {
 public:
  explicit PaintCount(QWidget& widget) { widget.installEventFilter(this); }

  int paints = 0;

 protected:
  bool eventFilter(QObject* /*object*/, QEvent* event) override {
    if (event->type() == QEvent::Paint) ++paints;
    return false;
  }
};

class SadaListTest : public test::SadaWindowTest {};

// Selecting

TEST_F(SadaListTest, SelectsTheCaveThatIsClicked) {
  OpenCaves({"A", "B", "C"});
  for (const int number : {3, 1, 2}) {
    ClickCave(number);
    EXPECT_EQ(Sada().ListSelected(), number);
  }
  EXPECT_FALSE(window->isWindowModified());
}

TEST_F(SadaListTest, ShowsARowForEachCaveAndNoneBelow) {
  OpenCaves({"A", "B", "*C"});
  const auto rows = [this] {
    std::string seen;
    for (int number = 1; number <= 4; ++number) {
      const QRect name = List().lblCave(number);
      const QRect row = List().RowOf(number);
      seen += Seen(QRect(row.topLeft(), QPoint(name.left() - 1, row.bottom()))) ? '#' : ' ';
      seen += Seen(name) ? 'A' : ' ';
      seen += MarkSeen(number) ? 'P' : ' ';
      seen += '|';
    }
    return seen;
  };
  EXPECT_EQ(rows(), "#AP|#A |#AP|   |");
  ClickCave(3);
  dialogs.Press("yes");
  Key(Qt::Key_F8);
  EXPECT_EQ(rows(), "#AP|#A |   |   |");
  Key(Qt::Key_F3);
  Key(Qt::Key_F3);
  EXPECT_EQ(rows(), "#AP|#A |#A |#A |");
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
  window->CaveDone(edited.front());
  List().setFocus();
  Key(Qt::Key_Return);
  EXPECT_EQ(edited.size(), 2U);
}

// Two clicks on a mark are two changes, and no wish to edit.
TEST_F(SadaListTest, EditsNothingByADoubleClickOnAMark) {
  OpenCaves({"A", "B"});
  QTest::mouseDClick(List().viewport(), Qt::LeftButton, {}, List().lblPoc(2).center());
  EXPECT_TRUE(edited.empty());
}

TEST_F(SadaListTest, SelectsTheCaveWhoseMenuIsAskedFor) {
  OpenCaves({"A", "B", "C"});
  QTest::mousePress(List().viewport(), Qt::RightButton, {}, List().lblCave(3).center());
  EXPECT_EQ(Sada().ListSelected(), 3);
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

TEST_F(SadaListTest, HintsThatAMarkCanBeClickedWithoutShowingOne) {
  OpenCaves({"A", "B", "C"});
  const auto frame = [this](int number) {
    const QRect mark = List().lblPoc(number);
    const QImage row = List().viewport()->grab(mark).toImage();
    return row.pixel(0, row.height() / 2) != row.pixel(1, row.height() / 2);
  };
  for (const int number : {2, 3}) {
    QTest::mouseMove(List().viewport(), List().lblPoc(number).center());
    EXPECT_TRUE(frame(number) && !frame(5 - number) && !frame(1)) << number;
    EXPECT_FALSE(MarkSeen(number));
  }
  QTest::mouseMove(List().viewport(), List().lblPoc(1).center());
  EXPECT_FALSE(frame(1) || frame(3)) << "the first mark is no button";
}

TEST_F(SadaListTest, TakesTheHintAwayWhenThePointerLeaves) {
  OpenCaves({"A", "B"});
  const auto mark = [this] { return List().viewport()->grab(List().lblPoc(2)).toImage(); };
  const QImage bare = mark();
  QTest::mouseMove(List().viewport(), List().lblPoc(2).center());
  EXPECT_NE(mark(), bare);
  QEvent leave(QEvent::Leave);
  QApplication::sendEvent(List().viewport(), &leave);
  EXPECT_EQ(mark(), bare);
}

// It cannot be changed.
TEST_F(SadaListTest, ShowsTheFirstMarkFaintly) {
  OpenCaves({"A", "*B", "*C"});
  ClickCave(3);
  const auto darkest = [this](int number) {
    const QImage mark = List().viewport()->grab(List().lblPoc(number)).toImage();
    int least = 255;
    for (int x = 0; x < mark.width(); ++x) {
      for (int y = 0; y < mark.height(); ++y) least = std::min(least, qGray(mark.pixel(x, y)));
    }
    return least;
  };
  EXPECT_GT(darkest(1), darkest(2) + 40);
}

TEST_F(SadaListTest, NumbersItsRowsFromOne) {
  OpenMany(12);
  // The numbers end at the names: those of two digits begin farther to the left.
  const auto begin = [this](int number) {
    const QRect row = List().RowOf(number);
    const QImage shown =
        List()
            .viewport()
            ->grab(QRect(row.left(), row.top() + 1, List().lblCave(number).left(), row.height() - 2))
            .toImage();
    for (int x = 1; x < shown.width(); ++x) {
      for (int y = 0; y < shown.height(); ++y) {
        if (shown.pixel(x, y) != shown.pixel(0, 0)) return x;
      }
    }
    return shown.width();
  };
  for (int number = 2; number <= 9; ++number) EXPECT_GT(begin(number), begin(10)) << number;
  EXPECT_LT(std::abs(begin(10) - begin(12)), 3);
}

TEST_F(SadaListTest, TellsTheSelectedCaveToThoseWhoListen) {
  OpenCaves({"A", "B"});
  EXPECT_EQ(List().accessibleDescription(), "1 A P");
  ClickCave(2);
  EXPECT_EQ(List().accessibleDescription(), "2 B");
}

TEST_F(SadaListTest, DoesNotLetTheFirstMarkBeClicked) {
  OpenCaves({"A", "B"});
  const QSignalSpy clicks(&List(), &SadaList::MarkClicked);
  ClickMark(1);
  List().setFocus();
  Key(Qt::Key_Space);
  EXPECT_EQ(clicks.count(), 0);
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
  EXPECT_EQ(HintAt(List().lblPoc(2).center()).remove('\n'),
            "P = komnata otevřená od začátku, změníte kliknutím");
  EXPECT_EQ(HintAt(List().lblCave(2).center()).remove('\n'), "");
}

TEST_F(SadaListTest, TellsANameThatIsTooLongForItsRow) {
  const std::string name(150, 'x');
  OpenCaves({"A", name});
  EXPECT_EQ(HintAt(List().lblCave(2).center()).remove('\n').toStdString(), name);
}

TEST_F(SadaListTest, SelectsByTheFirstLettersOfAName) {
  OpenCaves({"Bouda", FromUtf8Lossy("Žába"), "Pes", FromUtf8Lossy("Řeka")});
  List().setFocus();
  QTest::keyClicks(&List(), "r");
  EXPECT_EQ(Sada().ListSelected(), 4);
  EXPECT_FALSE(window->isWindowModified());
}

// Scrolling

TEST_F(SadaListTest, HasItsScrollBarForAMark) {
  OpenMany(40);
  EXPECT_TRUE(VScroll1().isVisible());
  EXPECT_TRUE(List().PositionMark().isEmpty());
}

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

TEST_F(SadaListTest, ShowsWhetherKeysGoToIt) {
  OpenCaves({"A", "B"});
  const auto paints = [this](auto act) {
    QCoreApplication::processEvents();
    const PaintCount count(*List().viewport());
    act();
    return QTest::qWaitFor([&count] { return count.paints > 0; });
  };
  const auto selected = [this] { return List().viewport()->grab(List().RowOf(1)).toImage(); };
  List().setFocus();
  const QImage focused = selected();
  EXPECT_TRUE(paints([this] { Box("Text3").setFocus(); }));
  EXPECT_NE(selected(), focused);
  EXPECT_TRUE(paints([this] { List().setFocus(); }));
  EXPECT_EQ(selected(), focused);
}

TEST_F(SadaListTest, HasRowsOfFourteenAtLeast) {
  OpenMany(20);
  window->resize(window->minimumSizeHint());
  QCoreApplication::processEvents();
  EXPECT_GE(List().RowOf(1).height(), 14);
  EXPECT_TRUE(List().viewport()->rect().contains(List().RowOf(17)));
}

}  // namespace
}  // namespace zorik
