// A proof on the picture of the cave.
#include <QPainter>

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

}  // namespace
}  // namespace zorik
