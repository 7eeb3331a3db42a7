#include <gtest/gtest.h>

#include "data/Result.h"
#include "solve/Rating.h"
#include "support/Scene.h"

namespace zorik::test {
namespace {

CaveRecord SmallCave() {
  return *ParseCaveText(CaveTextOf({"WWWWW", "W1D;T", "WWWWW"}, {.time = 60, .needed = 1}));
}

// A win that touched no cell.
Review Win() {
  Review review;
  review.ticks = 1;
  review.touched.resize(Cell::kPlaces);
  return review;
}

struct Worth {
  int decisions = 0;
  int closeCalls = 0;
  int ticks = 1;
  std::uint64_t used = 0;
  int survived = 10;  // of 10
};
int Paws(const Worth& worth) {
  Review win = Win();
  win.decisions = worth.decisions;
  win.closeCalls = worth.closeCalls;
  win.ticks = worth.ticks;
  win.used = worth.used;
  return RateCave(SmallCave(), {win}, 10, worth.survived).paws;
}

// Each 1.25 points make a paw beside the first. Five decisions give a point, three points at the most; three
// narrow escapes, twenty seconds and three kinds of things beside the first one each, two at the most; bad
// odds one.
TEST(Paws, CountDecisionsUpToThreePoints) {
  EXPECT_EQ(Paws({.decisions = 0}), 1);
  EXPECT_EQ(Paws({.decisions = 6}), 1);
  EXPECT_EQ(Paws({.decisions = 7}), 2);
  EXPECT_EQ(Paws({.decisions = 12}), 2);
  EXPECT_EQ(Paws({.decisions = 13}), 3);
  EXPECT_EQ(Paws({.decisions = 1000}), 3);
}

TEST(Paws, CountNarrowEscapesUpToTwoPoints) {
  EXPECT_EQ(Paws({.closeCalls = 3}), 1);
  EXPECT_EQ(Paws({.closeCalls = 4}), 2);
  EXPECT_EQ(Paws({.closeCalls = 1000}), 2);
  // Two points, and half a one.
  EXPECT_EQ(Paws({.decisions = 2, .closeCalls = 1000}), 2);
  EXPECT_EQ(Paws({.decisions = 3, .closeCalls = 1000}), 3);
}

TEST(Paws, CountTimesOfTwentySecondsUpToTwoPoints) {
  EXPECT_EQ(Paws({.ticks = 249}), 1);
  EXPECT_EQ(Paws({.ticks = 250}), 2);
  EXPECT_EQ(Paws({.decisions = 2, .ticks = 100'000}), 2);
  EXPECT_EQ(Paws({.decisions = 3, .ticks = 100'000}), 3);
}

TEST(Paws, CountKindsOfThingsUpToTwoPoints) {
  EXPECT_EQ(Paws({.used = 0}), 1);
  EXPECT_EQ(Paws({.used = 0b1111}), 1);
  EXPECT_EQ(Paws({.used = 0b11'1100}), 1);
  EXPECT_EQ(Paws({.used = 0b1'1111}), 2);
  EXPECT_EQ(Paws({.decisions = 2, .used = 0xFF'FFFF}), 2);
  EXPECT_EQ(Paws({.decisions = 3, .used = 0xFF'FFFF}), 3);
}

TEST(Paws, CountBadLuckAsAPoint) {
  EXPECT_EQ(Paws({.decisions = 5, .survived = 9}), 1);
  EXPECT_EQ(Paws({.decisions = 5, .survived = 8}), 2);
}

TEST(Paws, AreFiveAtTheMost) {
  EXPECT_EQ(Paws({.decisions = 15, .closeCalls = 6, .used = 0}), 5);
  EXPECT_EQ(Paws({.decisions = 15, .closeCalls = 5, .used = 0}), 4);
  EXPECT_EQ(Paws({.decisions = 99, .closeCalls = 99, .ticks = 9999, .used = 0xFF'FFFF, .survived = 0}), 5);
}

TEST(Rating, IsOfAllWinsThatWereLookedAt) {
  Review first = Win(), second = Win();
  first.ticks = 40;
  second.ticks = 50;
  first.touched[Cell(1, 1).place()] = true;
  second.touched[Cell(2, 1).place()] = true;
  const Rating rating = RateCave(SmallCave(), {first, second}, 7, 6);
  EXPECT_EQ(rating.wins, 2);
  EXPECT_EQ(rating.tries, 7);
  EXPECT_EQ(rating.survived, 6);
  EXPECT_EQ(rating.review.ticks, 40);
  EXPECT_DOUBLE_EQ(rating.limitRatio, 15);
  // The rows above and below that in the middle are the same.
  EXPECT_DOUBLE_EQ(rating.mirror, 1);
  EXPECT_EQ(UntouchedRows(SmallCave(), rating), (Picture{"WWWWW", "W  ;T", "WWWWW"}));
}

TEST(Rating, ShowsSteelAlsoWhereItWasTouched) {
  Review win = Win();
  win.touched.assign(Cell::kPlaces, true);
  EXPECT_EQ(UntouchedRows(SmallCave(), RateCave(SmallCave(), {win}, 0, 0)),
            (Picture{"WWWWW", "W    ", "WWWWW"}));
}

TEST(Rating, SaysWhatLiesOutsideTheBounds) {
  Rating rating;
  rating.limitRatio = 4.5;
  rating.review.idleStretch = 155;
  rating.review.idleFrom = 6;
  rating.tries = 20;
  rating.survived = 17;
  const std::vector<Doubt> doubts = DoubtsAboutProof(rating);
  ASSERT_EQ(doubts.size(), 3U);
  EXPECT_EQ(doubts[0].sentence, "the time is 4.5 times that of the proof");
  EXPECT_EQ(doubts[0].key, "time");
  EXPECT_EQ(doubts[1].sentence, "the proof does nothing for 15.5 s from tick 7 on");
  EXPECT_EQ(doubts[2].sentence, "the proof's plan wins with 17 of 20 other seeds");
}

TEST(Rating, OfAPlanThatWasNotTriedHasNoOdds) {
  EXPECT_TRUE(DoubtsAboutProof(RateCave(SmallCave(), {[] {
                                          Review win = Win();
                                          win.ticks = 500;
                                          return win;
                                        }()},
                                        0, 0))
                  .empty());
}

}  // namespace
}  // namespace zorik::test
