#include <climits>

#include "editors/CaveSides.h"
#include "editors/Letters.h"

namespace zorik {
namespace {

using test::Full;
using test::LettersOf;
using test::Opened;
using test::Picture;

const Picture kCave = {"12345R", "DDDDDD", "AWAWAW", ";;;;;;", "RXRXRX", "6789.."};

// The expected picture after one step that can be undone and done again.
void ExpectStep(CaveModel& model, const Picture& before, EditStep step, const Picture& after) {
  EXPECT_EQ(LettersOf(model), after);
  ASSERT_FALSE(model.UndoSteps().empty());
  EXPECT_EQ(model.UndoSteps().back(), step);
  EXPECT_EQ(model.Amoebas(), model.NuOfOb('A'));
  const CaveRecord changed = model.Cave();
  model.Undo();
  EXPECT_EQ(LettersOf(model), before);
  EXPECT_EQ(model.Amoebas(), model.NuOfOb('A'));
  model.Redo();
  EXPECT_EQ(model.Cave(), changed);
}

TEST(CaveSides, InsertsAnEmptyRow) {
  struct Row {
    int y;
    Picture after;
  };
  const Row kRows[] = {
      {0, {"......", "12345R", "DDDDDD", "AWAWAW", ";;;;;;", "RXRXRX", "6789.."}},
      {3, {"12345R", "DDDDDD", "AWAWAW", "......", ";;;;;;", "RXRXRX", "6789.."}},
      {6, {"12345R", "DDDDDD", "AWAWAW", ";;;;;;", "RXRXRX", "6789..", "......"}},
  };
  for (const Row& row : kRows) {
    CaveModel model = Opened(kCave);
    EXPECT_TRUE(model.InsertRow(row.y));
    ExpectStep(model, kCave, EditStep::InsertRow, row.after);
  }
}

TEST(CaveSides, InsertsAnEmptyColumn) {
  struct Row {
    int x;
    Picture after;
  };
  const Row kRows[] = {
      {0, {".12345R", ".DDDDDD", ".AWAWAW", ".;;;;;;", ".RXRXRX", ".6789.."}},
      {4, {"1234.5R", "DDDD.DD", "AWAW.AW", ";;;;.;;", "RXRX.RX", "6789..."}},
      {6, {"12345R.", "DDDDDD.", "AWAWAW.", ";;;;;;.", "RXRXRX.", "6789..."}},
  };
  for (const Row& row : kRows) {
    CaveModel model = Opened(kCave);
    EXPECT_TRUE(model.InsertColumn(row.x));
    ExpectStep(model, kCave, EditStep::InsertColumn, row.after);
  }
}

TEST(CaveSides, DeletesARowOrAColumn) {
  CaveModel model = Opened(kCave);
  EXPECT_TRUE(model.DeleteRow(2));
  const Picture rowLess{"12345R", "DDDDDD", ";;;;;;", "RXRXRX", "6789.."};
  ExpectStep(model, kCave, EditStep::DeleteRow, rowLess);
  EXPECT_TRUE(model.DeleteColumn(5));
  ExpectStep(model, rowLess, EditStep::DeleteColumn, {"12345", "DDDDD", ";;;;;", "RXRXR", "6789."});
}

TEST(CaveSides, InsertsAndDeletesWithinTheLimitsOnly) {
  CaveModel small = Opened(Full(5, 5, ';'));
  EXPECT_FALSE(small.DeleteRow(0));
  EXPECT_FALSE(small.DeleteColumn(4));
  CaveModel large = Opened(Full(80, 50, ';'));
  EXPECT_FALSE(large.InsertRow(0));
  EXPECT_FALSE(large.InsertColumn(80));
  CaveModel model = Opened(kCave);
  for (const int place : {-1, 7, INT_MIN, INT_MAX}) {
    EXPECT_FALSE(model.InsertRow(place));
    EXPECT_FALSE(model.InsertColumn(place));
  }
  for (const int place : {-1, 6, INT_MIN, INT_MAX}) {
    EXPECT_FALSE(model.DeleteRow(place));
    EXPECT_FALSE(model.DeleteColumn(place));
  }
  for (const CaveModel* it : {&small, &large, &model}) EXPECT_FALSE(it->CanUndo());
}

TEST(CaveSides, InsertsUpToTheLimitsAndDeletesDownToThem) {
  CaveModel model = Opened(Full(5, 5, ';'));
  while (model.InsertRow(2)) {
  }
  while (model.InsertColumn(2)) {
  }
  EXPECT_EQ(model.Width(), CaveModel::kMostWidth);
  EXPECT_EQ(model.Height(), CaveModel::kMostHeight);
  while (model.DeleteRow(2)) {
  }
  while (model.DeleteColumn(2)) {
  }
  EXPECT_EQ(model.Width(), CaveModel::kLeastSide);
  EXPECT_EQ(model.Height(), CaveModel::kLeastSide);
}

TEST(CaveSides, MovesEachSideAndKeepsTheRestTogether) {
  struct Row {
    CaveSides sides;
    Picture after;
  };
  const Row kRows[] = {
      {{1, 0, 0, 0}, {".12345R", ".DDDDDD", ".AWAWAW", ".;;;;;;", ".RXRXRX", ".6789.."}},
      {{0, 1, 0, 0}, {"......", "12345R", "DDDDDD", "AWAWAW", ";;;;;;", "RXRXRX", "6789.."}},
      {{0, 0, 1, 0}, {"12345R.", "DDDDDD.", "AWAWAW.", ";;;;;;.", "RXRXRX.", "6789..."}},
      {{0, 0, 0, 1}, {"12345R", "DDDDDD", "AWAWAW", ";;;;;;", "RXRXRX", "6789..", "......"}},
      {{-1, 0, 0, 0}, {"2345R", "DDDDD", "WAWAW", ";;;;;", "XRXRX", "789.."}},
      {{0, -1, 0, 0}, {"DDDDDD", "AWAWAW", ";;;;;;", "RXRXRX", "6789.."}},
      {{0, 0, -1, 0}, {"12345", "DDDDD", "AWAWA", ";;;;;", "RXRXR", "6789."}},
      {{0, 0, 0, -1}, {"12345R", "DDDDDD", "AWAWAW", ";;;;;;", "RXRXRX"}},
      {{-2, 1, 1, -2}, {".....", "345R.", "DDDD.", "AWAW.", ";;;;."}},
  };
  for (const Row& row : kRows) {
    CaveModel model = Opened(kCave);
    EXPECT_TRUE(CanResize(model.Cave(), row.sides));
    const CaveRecord preview = Resized(model.Cave(), row.sides);
    EXPECT_EQ(LettersOf(preview), row.after);
    EXPECT_EQ(LettersOf(model), kCave) << "looking ahead changes nothing";
    EXPECT_TRUE(model.Resize(row.sides));
    EXPECT_EQ(model.Cave(), preview);
    ExpectStep(model, kCave, EditStep::Resize, row.after);
  }
}

TEST(CaveSides, BringsBackWhatWasCutOffOnTheRightAndBelowOnly) {
  CaveModel model = Opened(Full(8, 8, 'R'));
  model.Resize({0, 0, -3, -2});
  model.Resize({0, 0, 3, 2});
  EXPECT_EQ(LettersOf(model), Full(8, 8, 'R'));
  model.Resize({-1, -1, 0, 0});
  model.Resize({1, 1, 0, 0});
  Picture wanted = Full(8, 8, 'R');
  for (std::string& row : wanted) row[0] = '.';
  wanted[0] = "........";
  EXPECT_EQ(LettersOf(model), wanted);
}

TEST(CaveSides, MovesWhatWasCutOffAlongWithTheRest) {
  CaveModel model = Opened({"......R", "......D", "......X", "......W", "......S", "1234567"});
  model.Resize({0, 0, -1, -1});
  ASSERT_TRUE(model.InsertColumn(0) && model.InsertRow(0) && model.DeleteRow(2));
  ASSERT_EQ(model.Width(), 7);
  ASSERT_TRUE(model.Resize({2, 0, 0, 0}));
  model.Resize({0, 0, 1, 1});
  EXPECT_EQ(LettersOf(model),
            (Picture{"..........", ".........R", ".........X", ".........W", ".........S", "...1234567"}));
}

TEST(CaveSides, RefusesASizeThatTheEditorCannotHold) {
  CaveModel model = Opened(kCave);
  const CaveRecord before = model.Cave();
  for (const CaveSides& sides : {CaveSides{-2, 0, 0, 0},
                                 {0, 0, -2, 0},
                                 {0, -2, 0, 0},
                                 {0, 0, 0, -2},
                                 {75, 0, 0, 0},
                                 {40, 0, 35, 0},
                                 {0, 45, 0, 0},
                                 {0, 0, 0, 45},
                                 {INT_MAX, 0, INT_MIN, 0},
                                 {0, INT_MIN, 0, INT_MAX},
                                 {INT_MAX, 0, INT_MAX, 0}}) {
    EXPECT_FALSE(CanResize(before, sides));
    EXPECT_EQ(Resized(before, sides), before);
    EXPECT_FALSE(model.Resize(sides));
  }
  EXPECT_EQ(model.Cave(), before);
  EXPECT_FALSE(model.CanUndo());
  EXPECT_TRUE(model.Resize({74, 44, 0, 0}));
  EXPECT_EQ(model.Width(), 80);
  EXPECT_EQ(model.Height(), 50);
}

TEST(CaveSides, TakesAwayAllCellsWhenBothSidesPassEachOther) {
  CaveModel model = Opened(kCave);
  EXPECT_TRUE(model.Resize({-6, 0, 6, 0}));
  EXPECT_EQ(LettersOf(model), Full(6, 6, '.'));
  model.Undo();
  EXPECT_EQ(LettersOf(model), kCave);
}

TEST(CaveSides, FillsOnlyCellsThatNeverHadALetter) {
  CaveRecord cave;
  cave.Width = 2;
  cave.Height = 2;
  cave.Cells[0][0] = 'R';
  cave.Cells[2][1] = 'D';
  FillUnset(cave);
  EXPECT_EQ(LettersOf(cave), (Picture{"R.", ".."}));
  EXPECT_EQ(cave.Cells[2][0], '\0');
  EXPECT_EQ(cave.Cells[2][1], 'D');
}

}  // namespace
}  // namespace zorik
