// A proof on the picture of the cave.
#include <QPainter>
#include <set>

#include "editors/Letters.h"
#include "editors/ProofOverlay.h"

namespace zorik {
namespace {

constexpr int kCell = 26;
const test::Picture kCave{"WWWWWWW", "W1....W", "W.....W", "W.....W", "WWWWWWW"};

// What the proof shows on a cave all of whose cells are white.
QImage Painted(const ProofVerdict& verdict, bool way, bool untouched, int tick = 99) {
  const CaveModel cave = test::Opened(kCave);
  ProofOverlay overlay(cave);
  overlay.SetVerdict(&verdict);
  overlay.ShowWay(way);
  overlay.ShowUntouched(untouched);
  overlay.SetTick(tick);
  QImage picture(7 * kCell, 5 * kCell, QImage::Format_RGB32);
  picture.fill(Qt::white);
  QPainter painter(&picture);
  overlay.Paint(painter, QRect(0, 0, 7, 5), kCell);
  return picture;
}
QImage Cell26(const QImage& picture, int x, int y) {
  return picture.copy(x * kCell, y * kCell, kCell, kCell);
}
bool White(const QImage& part) {
  QImage white(part.size(), part.format());
  white.fill(Qt::white);
  return part == white;
}

// How many pixels of a row between the middles of two cells are white.
int Gaps(const QImage& picture, int from, int to, int row) {
  int gaps = 0;
  for (int x = from * kCell + kCell / 2; x < to * kCell + kCell / 2; ++x)
    gaps += picture.pixelColor(x, row * kCell + kCell / 2) == Qt::white ? 1 : 0;
  return gaps;
}

TEST(ProofOverlayTest, DrawsTheWayAsALineAndARideDotted) {
  ProofVerdict verdict;
  verdict.way = {{{1, 1}, 1, 0}, {{2, 1}, 1, 1}, {{5, 1}, 1, 2}};
  const QImage picture = Painted(verdict, true, false);
  EXPECT_EQ(Gaps(picture, 1, 2, 1), 0);
  EXPECT_GT(Gaps(picture, 2, 4, 1), 4);
}

TEST(ProofOverlayTest, RingsEachDogWhereItLastStood) {
  ProofVerdict verdict;
  verdict.way = {{{1, 1}, 1, 0}, {{1, 3}, 2, 0}, {{2, 1}, 1, 4}, {{2, 3}, 2, 6}};
  const auto ringed = [&verdict](int tick, int x, int y) {
    // Above the way, which lies level.
    return !White(Cell26(Painted(verdict, true, false, tick), x, y).copy(0, 0, kCell, 8));
  };
  EXPECT_TRUE(ringed(3, 1, 1));
  EXPECT_TRUE(ringed(3, 1, 3));
  EXPECT_TRUE(ringed(4, 2, 1));
  EXPECT_FALSE(ringed(4, 1, 1));
  EXPECT_TRUE(ringed(5, 1, 3));
  EXPECT_TRUE(ringed(6, 2, 3));
}

TEST(ProofOverlayTest, VeilsWhatNobodyTouchedButNoSteel) {
  ProofVerdict verdict;
  verdict.touched.assign(Cell::kPlaces, false);
  verdict.touched[Cell(2, 2).place()] = true;
  const QImage picture = Painted(verdict, false, true);
  EXPECT_TRUE(White(Cell26(picture, 0, 0))) << "steel";
  EXPECT_TRUE(White(Cell26(picture, 2, 2)));
  EXPECT_FALSE(White(Cell26(picture, 3, 2)));
}

TEST(ProofOverlayTest, FramesWhereTheProofBreaksAndNothingOfACaveThatCannotBePlayed) {
  ProofVerdict verdict;
  verdict.flaw = ProofFlaw{.why = ProofBreak::NoEffect, .tick = 7, .cell = {3, 2}};
  const QImage broken = Painted(verdict, false, false);
  EXPECT_EQ(broken.pixelColor(3 * kCell, 2 * kCell + kCell / 2), QColor(255, 48, 48));
  EXPECT_FALSE(White(Cell26(broken, 3, 1))) << "the tick stands above";
  verdict.flaw->why = ProofBreak::NoCave;
  EXPECT_TRUE(White(Painted(verdict, false, false)));
}

// In what is painted of a cave of dirt alone, whose cells are white, where nothing is to be seen.
struct Canvas {
  Canvas(int cellSize, const QRect& shown) : cell(cellSize), cells(shown) {}

  void Paint(const ProofVerdict& verdict, bool way, bool untouched, int tick = 0) {
    const CaveModel cave = test::Opened(test::Full(7, 5, ';'));
    ProofOverlay overlay(cave);
    overlay.SetVerdict(&verdict);
    overlay.ShowWay(way);
    overlay.ShowUntouched(untouched);
    overlay.SetTick(tick);
    picture = QImage(7 * cell, 5 * cell, QImage::Format_RGB32);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    overlay.Paint(painter, cells, cell);
  }
  QImage Of(int x, int y) const { return picture.copy(x * cell, y * cell, cell, cell); }
  // The smallest rectangle around all of this colour within a part of the picture.
  QRect Around(const QColor& colour, const QRect& part) const {
    QRect around;
    for (int y = part.top(); y <= part.bottom(); ++y) {
      for (int x = part.left(); x <= part.right(); ++x) {
        if (picture.rect().contains(x, y) && picture.pixelColor(x, y) == colour) around |= QRect(x, y, 1, 1);
      }
    }
    return around;
  }

  int cell;
  QRect cells;
  QImage picture;
};

const QRect kAll(0, 0, 7, 5);
const QColor kRed(255, 48, 48);
const QColor kOrange(255, 154, 32);

TEST(ProofOverlayTest, VeilsExactlyTheCellsThatAreToBePainted) {
  ProofVerdict verdict;
  verdict.touched.assign(Cell::kPlaces, false);
  for (const QRect& cells : {kAll, QRect(1, 1, 3, 2), QRect(4, 2, 9, 9), QRect(-2, -2, 4, 4)}) {
    Canvas canvas(kCell, cells);
    canvas.Paint(verdict, false, true);
    for (int x = 0; x < 7; ++x) {
      for (int y = 0; y < 5; ++y) {
        const QImage cell = canvas.Of(x, y);
        EXPECT_EQ(White(cell), !cells.contains(x, y)) << x << ", " << y;
        EXPECT_NE(cell.pixelColor(3, 3), QColor(Qt::black)) << "the cell is still seen";
        EXPECT_EQ(cell.pixelColor(0, 0), cell.pixelColor(kCell - 1, kCell - 1));
      }
    }
  }
}

TEST(ProofOverlayTest, VeilsAllOfACaveOfWhoseCellsNothingIsKnown) {
  ProofVerdict verdict;
  Canvas canvas(kCell, kAll);
  canvas.Paint(verdict, false, true);
  EXPECT_FALSE(White(canvas.Of(3, 3)));
}

TEST(ProofOverlayTest, VeilsNothingOutsideOfTheCave) {
  const CaveModel cave = test::Opened(test::Full(7, 5, ';'));
  ProofVerdict verdict;
  verdict.touched.assign(Cell::kPlaces, false);
  ProofOverlay overlay(cave);
  overlay.SetVerdict(&verdict);
  overlay.ShowUntouched(true);
  QImage picture(9 * kCell, 7 * kCell, QImage::Format_RGB32);
  picture.fill(Qt::white);
  QPainter painter(&picture);
  overlay.Paint(painter, QRect(0, 0, 9, 7), kCell);
  EXPECT_FALSE(White(Cell26(picture, 6, 4)));
  EXPECT_TRUE(White(picture.copy(7 * kCell, 0, 2 * kCell, 7 * kCell)));
  EXPECT_TRUE(White(picture.copy(0, 5 * kCell, 9 * kCell, 2 * kCell)));
}

TEST(ProofOverlayTest, DrawsNothingOfAWayThatIsFarFromWhatIsPainted) {
  ProofVerdict verdict;
  verdict.way = {{{1, 1}, 1, 0}, {{2, 1}, 1, 1}};
  const auto drawn = [&verdict](const QRect& cells) {
    Canvas canvas(kCell, cells);
    canvas.Paint(verdict, true, false, -1);
    return !White(canvas.picture.copy(kCell * 3 / 2 + 10, kCell, 6, kCell));
  };
  EXPECT_TRUE(drawn(kAll));
  EXPECT_TRUE(drawn(QRect(1, 1, 1, 1)));
  EXPECT_TRUE(drawn(QRect(2, 1, 1, 1)));
  EXPECT_TRUE(drawn(QRect(3, 2, 1, 1))) << "what is drawn reaches into the cells around";
  EXPECT_TRUE(drawn(QRect(0, 0, 1, 1)));
  EXPECT_FALSE(drawn(QRect(5, 3, 1, 1)));
  EXPECT_FALSE(drawn(QRect(5, 1, 1, 1)));
  EXPECT_FALSE(drawn(QRect(1, 4, 1, 1)));
}

TEST(ProofOverlayTest, DrawsAWayOnceHoweverOftenItIsTaken) {
  ProofVerdict once, often;
  once.way = {{{1, 1}, 1, 0}, {{2, 1}, 1, 1}, {{1, 1}, 1, 2}};
  often.way = once.way;
  for (int tick = 3; tick < 20; ++tick) often.way.push_back({{1 + tick % 2, 1}, 1, tick});
  once.way.push_back(often.way.back());
  EXPECT_EQ(Painted(once, true, false), Painted(often, true, false)) << "nor does it grow darker";
}

TEST(ProofOverlayTest, DrawsAStepAcrossACornerAsARide) {
  ProofVerdict down, across;
  down.way = {{{1, 1}, 1, 0}, {{1, 2}, 1, 1}, {{1, 3}, 1, 2}};
  across.way = {{{1, 1}, 1, 0}, {{2, 2}, 1, 1}, {{3, 3}, 1, 2}};
  const auto gap = [](const QImage& picture, int dx) {
    int gaps = 0;
    for (int i = kCell; i < 2 * kCell; ++i) {
      const QPoint at(kCell * 3 / 2 + dx * (i - kCell / 2), kCell + i);
      gaps += picture.pixelColor(at) == Qt::white ? 1 : 0;
    }
    return gaps;
  };
  EXPECT_EQ(gap(Painted(down, true, false, -1), 0), 0);
  EXPECT_GT(gap(Painted(across, true, false, -1), 1), 3);
}

TEST(ProofOverlayTest, GivesEachDogAColourOfItsOwnForWayAndRing) {
  std::set<QRgb> rings, ways;
  for (int dog = 1; dog <= 9; ++dog) {
    ProofVerdict verdict;
    verdict.way = {{{1, 1}, dog, 0}, {{2, 1}, dog, 1}, {{4, 1}, dog, 2}};
    const QImage picture = Painted(verdict, true, false);
    const QColor ring = picture.pixelColor(4 * kCell + kCell / 2, kCell + 3);
    const QColor way = picture.pixelColor(2 * kCell, kCell + kCell / 2);
    EXPECT_NE(ring, Qt::white) << dog;
    EXPECT_NEAR(way.hue(), ring.hue(), 6) << dog;
    EXPECT_GT(way.lightness(), ring.lightness()) << "the cave is seen through it";
    rings.insert(ring.rgb());
    ways.insert(way.rgb());
  }
  EXPECT_EQ(rings.size(), 9U);
  EXPECT_EQ(ways.size(), 9U);
}

TEST(ProofOverlayTest, RingsADogAroundTheMiddleOfItsCell) {
  ProofVerdict verdict;
  verdict.way = {{{3, 2}, 1, 0}};
  for (const int size : {12, 26, 80}) {
    Canvas canvas(size, kAll);
    canvas.Paint(verdict, true, false);
    const QImage cell = canvas.Of(3, 2);
    EXPECT_FALSE(White(cell)) << size;
    EXPECT_EQ(cell.pixelColor(size / 2, size / 2), Qt::white) << "the dog is seen";
    EXPECT_EQ(cell.pixelColor(0, 0), Qt::white);
    for (int i = 0; i < size; ++i)
      EXPECT_EQ(cell.pixelColor(i, size / 2) == Qt::white,
                cell.pixelColor(size - 1 - i, size / 2) == Qt::white)
          << size << ", " << i;
    for (int x = 0; x < 7; ++x) {
      for (int y = 0; y < 5; ++y) EXPECT_EQ(White(canvas.Of(x, y)), x != 3 || y != 2) << x << ", " << y;
    }
  }
}

TEST(ProofOverlayTest, FramesAllSidesOfTheCell) {
  for (const int size : {12, 26, 80}) {
    ProofVerdict verdict;
    verdict.flaw = ProofFlaw{.why = ProofBreak::NoEffect, .tick = 7, .cell = {3, 2}};
    Canvas canvas(size, kAll);
    canvas.Paint(verdict, false, false);
    const QRect cell(3 * size, 2 * size, size, size);
    const QImage& picture = canvas.picture;
    EXPECT_EQ(picture.pixelColor(cell.left(), cell.center().y()), kRed) << size;
    EXPECT_EQ(picture.pixelColor(cell.right() + 1, cell.center().y()), kRed) << size;
    EXPECT_EQ(picture.pixelColor(cell.center().x(), cell.top()), kRed) << size;
    EXPECT_EQ(picture.pixelColor(cell.center().x(), cell.bottom() + 1), kRed) << size;
    EXPECT_EQ(picture.pixelColor(cell.center()), Qt::white) << "the cell is seen";
    int darkest = 255;
    for (int x = cell.left() - 8; x < cell.left(); ++x)
      darkest = std::min(darkest, picture.pixelColor(x, cell.center().y()).lightness());
    EXPECT_LT(darkest, kRed.lightness() - 30) << "on red ground it is seen, too";
  }
}

TEST(ProofOverlayTest, ShowsTheTickOnAPlateAboveTheCellOrBelowItInTheFirstRow) {
  const auto plate = [](Cell cell, int tick, int size) {
    ProofVerdict verdict;
    verdict.flaw = ProofFlaw{.why = ProofBreak::NoEffect, .tick = tick, .cell = cell};
    Canvas canvas(size, kAll);
    canvas.Paint(verdict, false, false);
    const int edge = std::max(3, size / 5);
    const QRect above(0, 0, 7 * size, cell.y() * size - edge);
    const QRect below(0, (cell.y() + 1) * size + edge, 7 * size, 5 * size);
    const QRect up = canvas.Around(kRed, above), down = canvas.Around(kRed, below);
    EXPECT_NE(up.isEmpty(), down.isEmpty()) << "on one side";
    EXPECT_EQ(down.isEmpty(), cell.y() > 0);
    const QRect found = up | down;
    EXPECT_FALSE(canvas.Around(Qt::white, found.adjusted(3, 3, -3, -3)).isEmpty()) << "the number, in white";
    return found;
  };
  const QRect usual = plate({3, 2}, 7, kCell);
  EXPECT_NEAR(usual.center().x(), 3 * kCell + kCell / 2, 2);
  EXPECT_NEAR(usual.bottom(), 2 * kCell, 7) << "close to the cell";
  EXPECT_GT(plate({3, 2}, 1777, kCell).width(), usual.width() + 10) << "there is room for the digits";
  EXPECT_NEAR(plate({3, 2}, 1777, kCell).height(), usual.height(), 1);
  EXPECT_NEAR(plate({3, 0}, 7, kCell).top(), kCell, 7);
  EXPECT_NEAR(plate({3, 1}, 7, kCell).bottom(), kCell, 7);
  EXPECT_EQ(plate({0, 2}, 12345, kCell).left(), 0) << "not cut off at the left";
  EXPECT_NEAR(plate({6, 2}, 12345, kCell).right(), 7 * kCell - 1, 1) << "nor at the right";
  EXPECT_GT(plate({3, 2}, 7, 80).height(), 40) << "as large as half a cell";
  EXPECT_GE(plate({3, 3}, 7, 12).height(), 10) << "legible on small cells";
}

TEST(ProofOverlayTest, FramesWhatIsMissingInAnotherColour) {
  ProofVerdict verdict;
  verdict.missing = ProofFlaw{.why = ProofBreak::NoEffect, .tick = 3, .cell = {1, 2}};
  verdict.flaw = ProofFlaw{.why = ProofBreak::NoEffect, .tick = 7, .cell = {4, 2}};
  Canvas canvas(kCell, kAll);
  canvas.Paint(verdict, false, false);
  EXPECT_EQ(canvas.picture.pixelColor(1 * kCell, 2 * kCell + kCell / 2), kOrange);
  EXPECT_EQ(canvas.picture.pixelColor(4 * kCell, 2 * kCell + kCell / 2), kRed);
  verdict.missing->cell = {4, 2};
  canvas.Paint(verdict, false, false);
  EXPECT_EQ(canvas.picture.pixelColor(4 * kCell, 2 * kCell + kCell / 2), kRed) << "the break is above all";
}

TEST(ProofOverlayTest, LeavesThePainterAsItWas) {
  ProofVerdict verdict;
  verdict.way = {{{1, 1}, 1, 0}, {{2, 1}, 1, 1}};
  verdict.flaw = ProofFlaw{.why = ProofBreak::NoEffect, .tick = 7, .cell = {3, 2}};
  const CaveModel cave = test::Opened(kCave);
  ProofOverlay overlay(cave);
  overlay.SetVerdict(&verdict);
  QImage picture(7 * kCell, 5 * kCell, QImage::Format_RGB32);
  QPainter painter(&picture);
  const QPen pen = painter.pen();
  const QFont font = painter.font();
  overlay.Paint(painter, kAll, kCell);
  EXPECT_EQ(painter.pen(), pen);
  EXPECT_EQ(painter.font(), font);
  EXPECT_FALSE(painter.testRenderHint(QPainter::Antialiasing));
}

TEST(ProofOverlayTest, TellsTheTicksOfTheWayThatIsShownOneAfterAnother) {
  ProofVerdict verdict;
  verdict.ticks = 9;
  verdict.way = {{{1, 1}, 1, 0}, {{2, 1}, 1, 3}, {{1, 1}, 1, 5}, {{3, 3}, 2, 9}};
  const CaveModel cave = test::Opened(kCave);
  ProofOverlay overlay(cave);
  EXPECT_EQ(overlay.TickAt({1, 1}), std::nullopt) << "there is no proof";
  EXPECT_FALSE(overlay.Shows());
  overlay.SetVerdict(&verdict);
  EXPECT_EQ(overlay.TickAt({2, 1}), 3);
  EXPECT_EQ(overlay.TickAt({1, 1}), 5) << "the next one";
  overlay.SetTick(3);
  EXPECT_EQ(overlay.TickAt({1, 1}), 5);
  EXPECT_EQ(overlay.TickAt({2, 1}), 3) << "there is no later one";
  overlay.SetTick(5);
  EXPECT_EQ(overlay.TickAt({1, 1}), 0) << "from the beginning";
  EXPECT_EQ(overlay.TickAt({3, 3}), 8) << "nobody can go on behind the last tick";
  EXPECT_EQ(overlay.TickAt({4, 4}), std::nullopt);
  overlay.ShowWay(false);
  EXPECT_EQ(overlay.TickAt({2, 1}), std::nullopt);
  overlay.ShowWay(true);
  overlay.SetVerdict(nullptr);
  EXPECT_EQ(overlay.TickAt({2, 1}), std::nullopt);
}

}  // namespace
}  // namespace zorik
