#include <gtest/gtest.h>

#include "support/Scene.h"

namespace zorik::test {
namespace {

template <class Action>
void ForEachPlace(Action action) {
  for (int y = -2; y <= 61; ++y) {
    for (int x = -2; x <= 101; ++x) action(Cell(x, y));
  }
}

TEST(Cells, AreLegalTwoStepsOffTheLargestCaveAndNoFurther) {
  EXPECT_TRUE(CellAt(-2, -2));
  EXPECT_TRUE(CellAt(101, 61));
  for (const auto& [x, y] : {std::pair{-3, 0},
                             {102, 0},
                             {0, -3},
                             {0, 62},
                             {240, 240},
                             {250, 250},
                             {-32768, 0},
                             {0, 32767},
                             {126, 5}}) {
    EXPECT_FALSE(CellAt(x, y)) << x << ' ' << y;
  }
}

TEST(Cells, KnowTheirCoordinatesAndTheirNeighbours) {
  ForEachPlace([](Cell c) {
    EXPECT_EQ(Cell(c.x(), c.y()), c);
    EXPECT_EQ(CellAt(c.x(), c.y()), c);
    EXPECT_EQ(Cell::AtPlace(c.place()), c);
    if (c.x() > -2) {
      EXPECT_EQ(c + kLeft, Cell(c.x() - 1, c.y()));
    }
    if (c.x() < 101) {
      EXPECT_EQ(c + kRight, Cell(c.x() + 1, c.y()));
    }
    if (c.y() > -2) {
      EXPECT_EQ(c + kUp, Cell(c.x(), c.y() - 1));
    }
    if (c.y() < 61) {
      EXPECT_EQ(c - kUp, Cell(c.x(), c.y() + 1));
    }
  });
}

TEST(TheGrids, HoldAValueOfItsOwnForEachPlace) {
  Grids grids;
  const auto number = [](Cell c) { return (c.y() + 2) * 104 + c.x() + 2; };
  ForEachPlace([&](Cell c) {
    grids.SetField(c, static_cast<std::uint16_t>(number(c)));
    grids.SetFieldState(c, static_cast<std::uint8_t>(number(c) % 251));
    grids.SetFieldMark(c, static_cast<std::uint8_t>(number(c) % 241));
    grids.SetFieldMoved(c, number(c) % 3 == 0);
  });
  ForEachPlace([&](Cell c) {
    EXPECT_EQ(grids.Field(c), number(c));
    EXPECT_EQ(grids.FieldState(c), number(c) % 251);
    EXPECT_EQ(grids.FieldMark(c), number(c) % 241);
    EXPECT_EQ(grids.FieldMoved(c), number(c) % 3 == 0);
  });
}

TEST(TheGrids, AreEmptyAtFirst) {
  const Grids grids;
  ForEachPlace([&](Cell c) {
    EXPECT_EQ(grids.Field(c), 0);
    EXPECT_EQ(grids.FieldState(c), 0);
    EXPECT_EQ(grids.FieldMark(c), 0);
    EXPECT_FALSE(grids.FieldMoved(c));
  });
}

TEST(TheGrids, ReadAVacatedCellBackAs65535AndNotAsMinusOne) {
  Grids grids;
  grids.SetField({3, 3}, kVacated);
  EXPECT_EQ(int{grids.Field({3, 3})}, 65535);
  grids.SetField({3, 3}, kFleaInTransit);
  EXPECT_EQ(int{grids.Field({3, 3})}, 65534);
}

TEST(TheGrids, ChangeOneValueAtATime) {
  Grids grids;
  const Cell c(5, 6);
  grids.SetObject(c, kGem, 3);
  grids.SetFieldMark(c, 7);
  grids.SetFieldMoved(c, true);
  grids.SetField(c, kBox);
  EXPECT_EQ(grids.FieldState(c), 3);
  EXPECT_EQ(grids.FieldMark(c), 7);
  EXPECT_TRUE(grids.FieldMoved(c));
  grids.SetFieldState(c, 1);
  EXPECT_EQ(grids.Field(c), kBox);
  EXPECT_EQ(grids.FieldMark(c), 7);
  grids.SetObject(c, kKeyRed, 2);
  EXPECT_EQ(grids.FieldMark(c), 7);
  grids.SetFieldMark(c, 30);
  EXPECT_EQ(grids.Field(c), kKeyRed);
  EXPECT_EQ(grids.FieldState(c), 2);
  EXPECT_EQ(grids.FieldMark(c), 30);
  EXPECT_TRUE(grids.FieldMoved(c));
}

// The same cell written value by value, as the scans must see it however it came to be.
void ExpectDueAs(const Grids& grids, Cell c, std::uint16_t code, int state, int mark) {
  Grids plain;
  plain.SetField(c, code);
  plain.SetFieldState(c, static_cast<std::uint8_t>(state));
  plain.SetFieldMark(c, static_cast<std::uint8_t>(mark));
  EXPECT_EQ(grids.Field(c), code);
  EXPECT_EQ(grids.FieldState(c), state);
  EXPECT_EQ(grids.FieldMark(c), mark);
  for (const auto kept :
       {&Grids::Taken, &Grids::Falling, &Grids::Resting, &Grids::Acting, &Grids::Stepped, &Grids::Settling,
        &Grids::Burning, &Grids::Amoeba, &Grids::Deadly, &Grids::Finishes}) {
    EXPECT_EQ((grids.*kept)().Has(c), (plain.*kept)().Has(c));
  }
  EXPECT_TRUE(grids.KeptRight(c));
}

TEST(TheGrids, LetAMonsterStepAndKeepTheStatesOfBothCells) {
  const Cell from(5, 6);
  const Cell to(5, 7);
  for (const std::uint16_t code : {kFireFly, kButterFly, kFly}) {
    for (int stateOfFrom = 0; stateOfFrom <= 3; ++stateOfFrom) {
      for (int stateOfTo = 0; stateOfTo <= 3; ++stateOfTo) {
        Grids grids;
        grids.SetObject(from, code, static_cast<std::uint8_t>(stateOfFrom));
        grids.SetFieldMark(from, 4);
        grids.SetFieldState(to, static_cast<std::uint8_t>(stateOfTo));
        grids.SetFieldMark(to, 9);  // of something else that was there
        grids.Vacate(from);
        ExpectDueAs(grids, from, kVacated, stateOfFrom, 0);
        grids.Enter(to, code, 40);
        ExpectDueAs(grids, to, code, stateOfTo, 40);
        grids.EndStep(to);
        ExpectDueAs(grids, to, code, stateOfTo, 4);
        grids.EndStep(from);
        ExpectDueAs(grids, from, kSpace, stateOfFrom, 0);
      }
    }
  }
}

TEST(TheGrids, LetAMonsterTurnInItsOwnCell) {
  const Cell c(8, 8);
  Grids grids;
  grids.SetObject(c, kFireFly, 0);
  grids.SetFieldMark(c, 1);
  grids.Vacate(c);
  grids.Enter(c, kFireFly, 20);
  ExpectDueAs(grids, c, kFireFly, 0, 20);
}

// Headings of 46 and more come from damaged records: they take more than one tick to end.
TEST(TheGrids, EndAllStepsOfARowAsTheyEndEachOfThem) {
  Grids each;
  for (int x = 0; x < 60; ++x) {
    const Cell c(x, 7);
    each.SetObject(c, kFly, static_cast<std::uint8_t>(x % 4));
    each.SetFieldMark(c, static_cast<std::uint8_t>(x < 40 ? x : 5 * x - 50));
    if (x % 3 == 0) each.Vacate(c);
  }
  Grids together = each;
  const Cell first = Cell::AtPlace(Cell(0, 7).place() / CellSet::kTogether * CellSet::kTogether);
  const std::uint64_t some = 0x7FFF'FFFF'FFFF'F0FF;
  together.EndSteps(first.place(), some);
  for (int x = 0; x < 60; ++x) {
    const Cell c(x, 7);
    SCOPED_TRACE(x);
    const bool asked = (some >> (c.place() - first.place()) & 1) != 0;
    const bool left = asked && together.Stepped().Has(c);
    if (each.Stepped().Has(c) && asked && !left) each.EndStep(c);
    EXPECT_EQ(left, each.Stepped().Has(c) && asked && Grids::EndedMark(each.FieldMark(c)) > 4);
    ExpectDueAs(together, c, each.Field(c), each.FieldState(c), each.FieldMark(c));
  }
}

TEST(TheGrids, LetAnythingFallAndKeepTheMarksOfBothCells) {
  const Cell from(5, 6);
  const Cell to(5, 7);
  for (std::uint16_t code = 0; code < kObjectCount; ++code) {
    for (const std::uint8_t state : {kFlat, kResting, kFalling}) {
      for (const std::uint8_t mark : std::initializer_list<std::uint8_t>{0, 3, 30}) {
        SCOPED_TRACE(code);
        Grids grids;
        grids.SetObject(from, code, state);
        grids.SetFieldMark(from, mark);
        grids.SetFieldState(to, state);
        grids.SetFieldMark(to, static_cast<std::uint8_t>(30 - mark));
        const int count = grids.Count(code);
        grids.LetFall(from, to);
        EXPECT_EQ(grids.Count(code), count);
        ExpectDueAs(grids, from, kSpace, kFlat, mark);
        ExpectDueAs(grids, to, code, kFalling, 30 - mark);
      }
    }
  }
}

// A tenth, ties to the even number.
TEST(AMarkAboveFour, EndsAsTheWholeNumberNextToItsTenth) {
  for (const auto& [mark, ended] : {std::pair{0, 0},
                                    {4, 4},
                                    {5, 0},
                                    {6, 1},
                                    {10, 1},
                                    {15, 2},
                                    {20, 2},
                                    {25, 2},
                                    {26, 3},
                                    {40, 4},
                                    {45, 4},
                                    {46, 5},
                                    {55, 6},
                                    {250, 25},
                                    {255, 26}}) {
    EXPECT_EQ(Grids::EndedMark(static_cast<std::uint8_t>(mark)), ended) << mark;
  }
}

TEST(TheGrids, CountWhatTheTickAsksFor) {
  Grids grids;
  EXPECT_EQ(grids.Count(kGem), 0);
  grids.SetField({1, 1}, kGem);
  grids.SetObject({2, 1}, kGem, 2);
  grids.SetField({2, 1}, kGem);
  EXPECT_EQ(grids.Count(kGem), 2);
  grids.SetField({1, 1}, kAmoeba);
  EXPECT_EQ(grids.Count(kGem), 1);
  EXPECT_EQ(grids.Count(kAmoeba), 1);
  grids.SetField({1, 1}, kVacated);
  EXPECT_EQ(grids.Count(kAmoeba), 0);
}

TEST(ClearField, EmptiesCodeAndStateAndRepaintsAndKeepsMarkAndMoved) {
  Diary diary;
  Hra hra = Play({"1D"}, {}, &diary);
  hra.SetFieldMark({1, 0}, 9);
  hra.SetFieldMoved({1, 0}, true);
  diary.Clear();
  ClearField(hra, {1, 0});
  EXPECT_EQ(hra.Field({1, 0}), 0);
  EXPECT_EQ(hra.FieldState({1, 0}), 0);
  EXPECT_EQ(hra.FieldMark({1, 0}), 9);
  EXPECT_TRUE(hra.FieldMoved({1, 0}));
  EXPECT_EQ(diary.entries, std::vector<std::string>{"cell 1,0"});
}

TEST(ValRVal, CopiesCodeStateAndMarkOfACellAndRepaintsNothing) {
  Diary diary;
  Hra hra = Play({"1FR"}, {}, &diary);
  hra.SetFieldMark({1, 0}, 3);
  hra.SetFieldState({1, 0}, 2);
  hra.SetFieldMoved({1, 0}, true);
  diary.Clear();
  ValRVal(hra, {2, 0}, {1, 0});
  for (const Cell c : {Cell(1, 0), Cell(2, 0)}) {
    EXPECT_EQ(hra.Field(c), kFireFly);
    EXPECT_EQ(hra.FieldState(c), 2);
    EXPECT_EQ(hra.FieldMark(c), 3);
  }
  EXPECT_FALSE(hra.FieldMoved({2, 0}));
  EXPECT_EQ(diary.entries, std::vector<std::string>{});
}

}  // namespace
}  // namespace zorik::test
