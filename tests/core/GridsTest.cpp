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
  EXPECT_EQ(grids.Acting().Has(c), plain.Acting().Has(c));
  EXPECT_EQ(grids.Settling().Has(c), plain.Settling().Has(c));
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
        grids.SetFieldMark(to, 9);
        grids.Vacate(from);
        ExpectDueAs(grids, from, kVacated, stateOfFrom, 0);
        grids.Enter(to, code, 40);
        ExpectDueAs(grids, to, code, stateOfTo, 40);
        grids.EndStep(to, code, 4);
        ExpectDueAs(grids, to, code, stateOfTo, 4);
        grids.EndStep(from, kSpace, 0);
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
