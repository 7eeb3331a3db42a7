#include <QPainter>
#include <QSignalSpy>
#include <algorithm>
#include <cstdlib>

#include "editors/EditKom.h"
#include "editors/EditTiles.h"
#include "editors/EditorScreen.h"

namespace zorik {
namespace {

using test::Full;
using test::Picture;

const Picture kRoom = {"WWWWWW", "W1...W", "W....W", "W...AW", "WWWWWW"};

// How often the picture has been painted.
class Paints : public QObject {
 public:
  explicit Paints(QWidget& picture) : picture_(picture) {
    QApplication::processEvents();
    picture_.installEventFilter(this);
  }

  int Count() const {
    QApplication::processEvents();
    return count_;
  }

  bool eventFilter(QObject* /*object*/, QEvent* event) override {
    if (event->type() == QEvent::Paint) ++count_;
    return false;
  }

 private:
  QWidget& picture_;
  int count_ = 0;
};

class EditKomTest : public testing::Test, public test::EditorScreen {
 protected:
  EditKomTest() { Open(kRoom); }

  QImage Shown() const { return Area().grab().toImage(); }
  QImage Shown(int x, int y) const { return Shown().copy(QRect(QPoint(x, y) * 26, QSize(26, 26))); }

  // Draws by two places of the mouse only. Whoever goes side by side gets from the one to the other on what
  // was drawn, no way is shorter, and no cell is farther off the straight one than the next.
  void ExpectWay(QSize cave, QPoint from, QPoint to) {
    Open(Full(cave.width(), cave.height(), '.'));
    Press(from.x(), from.y());
    Move(to.x(), to.y(), Qt::LeftButton);
    Release(to.x(), to.y());
    const QPoint way = to - from;
    int drawn = 0;
    for (int x = 0; x < cave.width(); ++x) {
      for (int y = 0; y < cave.height(); ++y) {
        if (window->Model().At(x, y) != 'R') continue;
        ++drawn;
        const QPoint off(x - from.x(), y - from.y());
        EXPECT_LE(std::abs(off.x() * way.y() - off.y() * way.x()),
                  std::max(std::abs(way.x()), std::abs(way.y())))
            << x << ' ' << y;
      }
    }
    EXPECT_EQ(drawn, way.manhattanLength() + 1);
    EXPECT_EQ(RegionOf(window->Model().Cave(), {from.x(), from.y()}).size(), static_cast<std::size_t>(drawn));
    EXPECT_EQ(window->Model().At(to.x(), to.y()), 'R');
  }
};

TEST_F(EditKomTest, Has26PixelsForACell) {
  EXPECT_EQ(Area().size(), QSize(6 * 26, 5 * 26));
}

TEST_F(EditKomTest, DrawsWithEachButton) {
  Click(2, 1, Qt::LeftButton);
  Click(2, 2, Qt::RightButton);
  Click(2, 3, Qt::MiddleButton);
  EXPECT_EQ(Letters(), (Picture{"WWWWWW", "W1R..W", "W.;..W", "W.D.AW", "WWWWWW"}));
}

TEST_F(EditKomTest, DrawsEachToolOfThePalette) {
  constexpr int kWidth = 8;
  Open(Full(kWidth, static_cast<int>(kToolCount) / kWidth + 1, 'x'));
  int place = 0;
  for (const int palette : kTools) {
    const int x = place % kWidth, y = place / kWidth;
    Pick(palette);
    Click(x, y);
    EXPECT_EQ(window->Model().At(x, y), LetterOfTool(palette, 1));
    ++place;
  }
}

TEST_F(EditKomTest, DrawsOnTheEdgesOfACell) {
  QTest::mouseClick(&Area(), Qt::LeftButton, {}, QPoint(2 * 26, 2 * 26));
  QTest::mouseClick(&Area(), Qt::LeftButton, {}, QPoint(5 * 26 - 1, 2 * 26 - 1));
  EXPECT_EQ(Letters(), (Picture{"WWWWWW", "W1..RW", "W.R..W", "W...AW", "WWWWWW"}));
}

TEST_F(EditKomTest, DrawsAlongTheWayOfADrag) {
  for (const auto button : {Qt::LeftButton, Qt::RightButton, Qt::MiddleButton}) {
    Open(kRoom);
    Press(1, 1, button);
    Move(2, 1, button);
    Move(3, 1, button);
    Move(3, 2, button);
    Release(3, 2, button);
    const char letter = button == Qt::LeftButton ? 'R' : button == Qt::RightButton ? ';' : 'D';
    Picture drawn = kRoom;
    drawn[1].replace(1, 3, 3, letter);
    drawn[2][3] = letter;
    EXPECT_EQ(Letters(), drawn);
  }
}

TEST_F(EditKomTest, LeavesNoGapWhenTheMouseIsQuick) {
  ExpectWay({12, 6}, {0, 0}, {11, 5});
}

TEST_F(EditKomTest, LeavesNoGapInASteepStrokeEither) {
  ExpectWay({6, 12}, {0, 11}, {5, 0});
}

TEST_F(EditKomTest, DigsAWayThatADogCanWalkFromCornerToCorner) {
  ExpectWay({6, 6}, {5, 5}, {0, 0});
}

TEST_F(EditKomTest, EndsAStrokeThatLosesTheFocus) {
  Press(1, 1);
  QFocusEvent lost(QEvent::FocusOut);
  QApplication::sendEvent(&Area(), &lost);
  Move(4, 1, Qt::LeftButton);
  EXPECT_EQ(Letters(), (Picture{"WWWWWW", "WR...W", "W....W", "W...AW", "WWWWWW"}));
  QTest::keyClick(window.get(), Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Letters(), kRoom);
}

TEST_F(EditKomTest, BeginsTheStrokeOfASecondButtonWhereThatOneIsAlone) {
  Press(1, 1, Qt::LeftButton);
  QMouseEvent second(QEvent::MouseButtonPress, Place(1, 1), Area().mapToGlobal(Place(1, 1)), Qt::RightButton,
                     Qt::LeftButton | Qt::RightButton, Qt::NoModifier);
  QApplication::sendEvent(&Area(), &second);
  Move(4, 1, Qt::LeftButton);
  Release(4, 1);
  EXPECT_EQ(Letters(), (Picture{"WWWWWW", "WR..RW", "W....W", "W...AW", "WWWWWW"}));
  QTest::keyClick(window.get(), Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Letters(), kRoom) << "all in one step";
}

// Where the picture was painted since it was watched.
class Painted : public QObject {
 public:
  explicit Painted(QWidget& picture) {
    QApplication::processEvents();
    picture.installEventFilter(this);
  }

  QRegion region;

 protected:
  bool eventFilter(QObject* /*object*/, QEvent* event) override {
    if (event->type() == QEvent::Paint) region += static_cast<QPaintEvent*>(event)->region();
    return false;
  }
};

TEST_F(EditKomTest, PaintsTheOldPlaceOfADogAnew) {
  Pick(kDogTool);
  Area().setFocus();  // which paints all of it
  Move(4, 3, Qt::NoButton);
  const Painted painted(Area());
  Press(4, 3);
  QApplication::processEvents();
  EXPECT_TRUE(painted.region.contains(Place(1, 1))) << "already within the stroke";
  Release(4, 3);
}

// An arrow lies at the side where the monster goes first.
TEST_F(EditKomTest, PointsEachArrowWhereTheMonsterStarts) {
  constexpr int kSize = 26;
  const std::array<QRect, 4> sides{QRect(0, 4, 10, 18), QRect(4, 0, 18, 10), QRect(16, 4, 10, 18),
                                   QRect(4, 16, 18, 10)};
  const auto white = [](const QImage& tile, const QRect& side) {
    int count = 0;
    for (int y = side.top(); y <= side.bottom(); ++y) {
      for (int x = side.left(); x <= side.right(); ++x) count += tile.pixel(x, y) == qRgb(255, 255, 255);
    }
    return count;
  };
  EditTiles tiles;
  tiles.Load(skin.Places(), "Earth");
  int monsters = 0;
  for (const ObjectLetter& object : kObjectLetters) {
    if (object.mark == 0 || object.palette < 0) continue;
    ++monsters;
    const QImage tile = tiles.Tile(object.palette, 1, kSize);
    const std::size_t start = static_cast<std::size_t>(object.mark - 1);
    for (std::size_t side = 0; side < sides.size(); ++side) {
      if (side == start) continue;
      EXPECT_GT(white(tile, sides[start]), white(tile, sides[side]) + 10) << object.letter << " " << side;
    }
  }
  EXPECT_EQ(monsters % 4, 0);
  EXPECT_GT(monsters, 4);
}

TEST_F(EditKomTest, DrawsNothingWithoutAButton) {
  Move(2, 1, Qt::NoButton);
  Move(3, 1, Qt::NoButton);
  EXPECT_EQ(Letters(), kRoom);
}

TEST_F(EditKomTest, DrawsNothingWithTwoButtons) {
  Press(2, 2, Qt::LeftButton);
  QMouseEvent second(QEvent::MouseButtonPress, Place(3, 2), Area().mapToGlobal(Place(3, 2)), Qt::RightButton,
                     Qt::LeftButton | Qt::RightButton, Qt::NoModifier);
  QApplication::sendEvent(&Area(), &second);
  Move(4, 2, Qt::LeftButton | Qt::RightButton);
  EXPECT_EQ(Letters(), (Picture{"WWWWWW", "W1...W", "W.R..W", "W...AW", "WWWWWW"}));
}

TEST_F(EditKomTest, DrawsOnWhenOneOfTwoButtonsIsReleased) {
  Press(1, 2, Qt::LeftButton);
  Move(4, 2, Qt::LeftButton | Qt::RightButton);
  QMouseEvent release(QEvent::MouseButtonRelease, Place(4, 2), Area().mapToGlobal(Place(4, 2)),
                      Qt::RightButton, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(&Area(), &release);
  Move(4, 1, Qt::LeftButton);
  Release(4, 1);
  EXPECT_EQ(Letters(), (Picture{"WWWWWW", "W1..RW", "WR...W", "W...AW", "WWWWWW"}));
}

TEST_F(EditKomTest, IgnoresWhatIsOutsideOfTheCave) {
  Press(5, 2);
  Move(9, 2, Qt::LeftButton);
  Move(-3, -2, Qt::LeftButton);
  Release(-3, -2);
  EXPECT_EQ(Letters().size(), 5U);
  EXPECT_EQ(window->Model().At(5, 2), 'R');
}

TEST_F(EditKomTest, UndoesADragInOneStep) {
  Press(1, 2);
  Move(4, 2, Qt::LeftButton);
  Move(4, 3, Qt::LeftButton);
  Release(4, 3);
  EXPECT_EQ(Amoebas(), "0");
  QTest::keyClick(window.get(), Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Letters(), kRoom);
  EXPECT_EQ(Amoebas(), "1");
  QTest::keyClick(window.get(), Qt::Key_Y, Qt::ControlModifier);
  EXPECT_EQ(Letters(), (Picture{"WWWWWW", "W1...W", "WRRRRW", "W...RW", "WWWWWW"}));
  EXPECT_EQ(Amoebas(), "0");
}

TEST_F(EditKomTest, MovesTheDogThatIsDrawn) {
  Open({"WWWWWW", "W12.3W", "W....W", "W....W", "WWWWWW"});
  Action("Dog(3)").trigger();
  Pick(kDogTool);
  Click(1, 3);
  EXPECT_EQ(Letters(), (Picture{"WWWWWW", "W12..W", "W....W", "W3...W", "WWWWWW"}));
}

TEST_F(EditKomTest, LeadsADogAlongADragAndLeavesItAtTheEnd) {
  Pick(kDogTool);
  Press(1, 2);
  Move(4, 2, Qt::LeftButton);
  Move(4, 3, Qt::LeftButton);
  Release(4, 3);
  EXPECT_EQ(Letters(), (Picture{"WWWWWW", "W....W", "W....W", "W...1W", "WWWWWW"}));
  EXPECT_EQ(Amoebas(), "0");
}

TEST_F(EditKomTest, IsNotPaintedAgainWhereTheLetterIsThereAlready) {
  Click(2, 2);
  const Paints paints(Area());
  Press(2, 2);
  Move(2, 2, Qt::LeftButton);
  Release(2, 2);
  EXPECT_EQ(paints.Count(), 0);
  Click(2, 2, Qt::RightButton);
  EXPECT_GT(paints.Count(), 0);
}

TEST_F(EditKomTest, ShowsWhatIsDrawnAtOnce) {
  Move(5, 4, Qt::NoButton);
  const QImage before = Shown(2, 2);
  Click(2, 2);
  Move(5, 4, Qt::NoButton);
  const QImage boulder = Shown(2, 2);
  EXPECT_NE(boulder, before);
  Open({"WWWWWW", "W1...W", "W.R..W", "W...AW", "WWWWWW"});
  Move(5, 4, Qt::NoButton);
  EXPECT_EQ(Shown(2, 2), boulder);
}

TEST_F(EditKomTest, PaintsALetterWithoutATileLikeItsNeighbour) {
  Open({"WWWWW", "WR.1W", "W$..W", "W...W", "WWWWW"});
  EXPECT_EQ(Shown(1, 2), Shown(1, 1));
  EXPECT_EQ(window->Model().At(1, 2), '$');
}

TEST_F(EditKomTest, PaintsALetterWithoutATileAsTheDogBeforeItInItsColumn) {
  Open({"WC..W", "W132W", "W.$.W", "W...W", "4...W"});
  EXPECT_EQ(Shown(2, 2), Shown(2, 1));
  EXPECT_NE(Shown(2, 2), Shown(1, 1));
  Open({"W$..1", "W...2", "W...3", "W...W", "4...W"});
  EXPECT_EQ(Shown(1, 0), Shown(0, 4)) << "after the end of the column before";
  EXPECT_NE(Shown(1, 0), Shown(4, 0));
}

TEST_F(EditKomTest, TellsMonstersDirectionsAndHiddenWallsApart) {
  Open({"FOPQ.", "UYZB.", "XEVM.", "....1", "....."});
  const QImage shown = Shown();
  std::vector<QImage> cells;
  for (int y = 0; y < 3; ++y) {
    for (int x = 0; x < 4; ++x) cells.push_back(shown.copy(QRect(QPoint(x, y) * 26, QSize(26, 26))));
  }
  for (std::size_t i = 0; i < cells.size(); ++i) {
    for (std::size_t j = i + 1; j < cells.size(); ++j) EXPECT_NE(cells[i], cells[j]) << i << " " << j;
  }
}

TEST_F(EditKomTest, MarksTheCellUnderThePointerAndTellsOfIt) {
  const QImage bare = Shown(4, 3);
  Move(4, 3, Qt::NoButton);
  EXPECT_NE(Shown(4, 3), bare);
  EXPECT_EQ(Status(), "5, 4   Améba");
  Move(1, 1, Qt::NoButton);
  EXPECT_EQ(Shown(4, 3), bare);
  EXPECT_EQ(Status(), "2, 2   Zorík č. 1");
  QEvent leave(QEvent::Leave);
  QApplication::sendEvent(&Area(), &leave);
  EXPECT_EQ(Status(), "");
}

// Fills one cell, and keeps which ones it was asked for.
class OneCell : public PictureLayer {
 public:
  void Paint(QPainter& painter, const QRect& cells, int cellSize) const override {
    painter.fillRect(QRect(QPoint(2, 2) * cellSize, QSize(cellSize, cellSize)), Qt::red);
    asked |= cells;
  }

  mutable QRect asked;
};

TEST_F(EditKomTest, ShowsWhatIsLaidOverItsCellsUntilThatIsTakenAway) {
  const QImage bare = Shown();
  const OneCell over;
  Area().SetLayer(&over);
  const QImage covered = Shown();
  EXPECT_EQ(covered.pixelColor(2 * 26 + 3, 2 * 26 + 3), QColor(Qt::red));
  EXPECT_EQ(covered.copy(0, 0, 6 * 26, 2 * 26), bare.copy(0, 0, 6 * 26, 2 * 26));
  EXPECT_EQ(over.asked, QRect(0, 0, 6, 5));
  Area().SetLayer(nullptr);
  EXPECT_EQ(Shown(), bare);
}

TEST_F(EditKomTest, TellsALetterThatItDoesNotKnowByItself) {
  Open({"WWWWW", "WR.1W", "W$..W", "W...W", "WWWWW"});
  Move(1, 2, Qt::NoButton);
  EXPECT_EQ(Status(), "2, 3   \"$\"");
}

TEST_F(EditKomTest, TellsWhatIsInTheCellAsSoonAsItIsDrawn) {
  Click(2, 2);
  EXPECT_EQ(Status(), "3, 3   Balvan");
}

TEST_F(EditKomTest, IsDrawnInByKeys) {
  Area().setFocus();
  QTest::keyClick(&Area(), Qt::Key_Right);
  EXPECT_EQ(Area().Marked(), QPoint(0, 0)) << "the first key shows the mark";
  QTest::keyClick(&Area(), Qt::Key_Up);
  EXPECT_EQ(Area().Marked(), QPoint(0, 0)) << "the cave ends there";
  QTest::keyClick(&Area(), Qt::Key_Right);
  QTest::keyClick(&Area(), Qt::Key_Down);
  QTest::keyClick(&Area(), Qt::Key_Down);
  QTest::keyClick(&Area(), Qt::Key_Space);
  QTest::keyClick(&Area(), Qt::Key_Right);
  QTest::keyClick(&Area(), Qt::Key_Space, Qt::ShiftModifier);
  QTest::keyClick(&Area(), Qt::Key_Right);
  QTest::keyClick(&Area(), Qt::Key_Space, Qt::ControlModifier);
  EXPECT_EQ(Letters(), (Picture{"WWWWWW", "W1...W", "WR;D.W", "W...AW", "WWWWWW"}));
  QTest::keyClick(window.get(), Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Letters(), (Picture{"WWWWWW", "W1...W", "WR;..W", "W...AW", "WWWWWW"}));
}

TEST_F(EditKomTest, CountsAmoebasWithEveryChange) {
  EXPECT_EQ(Amoebas(), "1");
  Pick(10);
  Press(1, 2);
  Move(4, 2, Qt::LeftButton);
  EXPECT_EQ(Amoebas(), "5");
  Release(4, 2);
  Click(1, 2, Qt::RightButton);
  EXPECT_EQ(Amoebas(), "4");
}

}  // namespace
}  // namespace zorik
