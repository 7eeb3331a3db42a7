// The list of steps and the memory that they may take.
#include <set>

#include "data/Result.h"
#include "editors/Letters.h"

namespace zorik {
namespace {

using test::Full;
using test::kFive;
using test::LettersOf;
using test::Opened;
using test::Picture;

using Steps = std::vector<EditStep>;

TEST(CaveModelSteps, NamesEachKindOfChange) {
  struct Row {
    EditStep step;
    void (*act)(CaveModel& model);
  };
  const Row kRows[] = {
      {EditStep::Stroke, [](CaveModel& model) { model.Draw(2, 1, 'R'); }},
      {EditStep::Line,
       [](CaveModel& model) {
         model.DrawShape({{2, 1}}, 'R', EditStep::Line);
       }},
      {EditStep::Clear,
       [](CaveModel& model) {
         model.Clear({0, 0, 2, 2});
       }},
      {EditStep::Cut,
       [](CaveModel& model) {
         model.Cut({0, 0, 2, 2});
       }},
      {EditStep::Paste,
       [](CaveModel& model) {
         model.Paste({1, 1, "D"}, {0, 0});
       }},
      {EditStep::Move,
       [](CaveModel& model) {
         model.Move({0, 0, 2, 2}, {2, 2});
       }},
      {EditStep::MirrorAside,
       [](CaveModel& model) {
         model.Turn({0, 0, 2, 2}, CaveTurn::MirrorAside);
       }},
      {EditStep::MirrorUpright,
       [](CaveModel& model) {
         model.Turn({0, 0, 2, 2}, CaveTurn::MirrorUpright);
       }},
      {EditStep::TurnRight,
       [](CaveModel& model) {
         model.Turn({0, 0, 2, 2}, CaveTurn::Right);
       }},
      {EditStep::TurnLeft,
       [](CaveModel& model) {
         model.Turn({0, 0, 2, 2}, CaveTurn::Left);
       }},
      {EditStep::InsertRow, [](CaveModel& model) { model.InsertRow(1); }},
      {EditStep::InsertColumn, [](CaveModel& model) { model.InsertColumn(1); }},
      {EditStep::Resize,
       [](CaveModel& model) {
         model.Resize({1, 0, 0, 0});
       }},
      {EditStep::DeleteRow, [](CaveModel& model) { model.DeleteRow(1); }},
      {EditStep::DeleteColumn, [](CaveModel& model) { model.DeleteColumn(1); }},
      {EditStep::ReplaceEvery, [](CaveModel& model) { model.ReplaceO('W', 'D', 1); }},
      {EditStep::ReplaceRandom,
       [](CaveModel& model) {
         Chance rnd;
         model.ReplaceRandom('D', 'W', 1, rnd);
       }},
      {EditStep::Frame, [](CaveModel& model) { model.MakeFrame('X'); }},
      {EditStep::Properties,
       [](CaveModel& model) {
         Formality formality = FormalityOf(model.Cave());
         formality.Name = "Jinak";
         model.SetProperties(formality);
       }},
      {EditStep::Script, [](CaveModel& model) { model.SaveScript("*A/Z"); }},
      {EditStep::Restore, [](CaveModel& model) { model.Restore(); }},
  };
  std::set<EditStep> named;
  for (const Row& row : kRows) {
    CaveModel model = Opened({"RDWWWW", "XS;..W", "W.D..W", "W..A.W", "W1...W", "WWWWWW"});
    model.Draw(4, 4, 'T');
    row.act(model);
    EXPECT_EQ(model.UndoSteps(), (Steps{EditStep::Stroke, row.step}));
    named.insert(row.step);
  }
  // The shapes are named by who draws them.
  for (const EditStep step : {EditStep::Rectangle, EditStep::FilledRectangle, EditStep::Fill}) {
    EXPECT_TRUE(named.insert(step).second);
  }
  EXPECT_EQ(named.size(), static_cast<std::size_t>(EditStep::End));
}

TEST(CaveModelSteps, ListsWhatCanBeUndoneAndDoneAgainInOrder) {
  CaveModel model = Opened(kFive);
  EXPECT_TRUE(model.UndoSteps().empty());
  model.Draw(1, 2, 'R');
  model.InsertRow(1);
  model.MakeFrame('X');
  model.Undo();
  model.Undo();
  EXPECT_EQ(model.UndoSteps(), Steps{EditStep::Stroke});
  EXPECT_EQ(model.RedoSteps(), (Steps{EditStep::InsertRow, EditStep::Frame}));
  model.Redo();
  EXPECT_EQ(model.UndoSteps(), (Steps{EditStep::Stroke, EditStep::InsertRow}));
  EXPECT_EQ(model.RedoSteps(), Steps{EditStep::Frame});
  model.Draw(1, 2, 'D');
  EXPECT_TRUE(model.RedoSteps().empty());
}

TEST(CaveModelSteps, GoesToAnyStep) {
  CaveModel model = Opened(Full(10, 5, ';'));
  std::vector<Picture> pictures{LettersOf(model)};
  for (int x = 0; x < 10; ++x) {
    model.Draw(x, 0, 'R');
    pictures.push_back(LettersOf(model));
  }
  for (const std::size_t steps : {3U, 7U, 0U, 10U, 10U, 1U}) {
    model.UndoTo(steps);
    EXPECT_EQ(LettersOf(model), pictures[steps]);
    EXPECT_EQ(model.UndoSteps().size(), steps);
    EXPECT_EQ(model.RedoSteps().size(), 10 - steps);
  }
  model.UndoTo(99);
  EXPECT_EQ(LettersOf(model), pictures[10]);
}

TEST(CaveModelSteps, CountsTheStrokeThatIsUnderWayWhenItGoesToAStep) {
  CaveModel model = Opened(kFive);
  model.BeginStroke();
  model.Draw(1, 2, 'R');
  model.UndoTo(0);
  EXPECT_EQ(LettersOf(model), kFive);
  EXPECT_EQ(model.RedoSteps(), Steps{EditStep::Stroke});
}

TEST(CaveModelSteps, TakeBoundedMemoryHoweverLongTheTexts) {
  CaveModel model = Opened(kFive);
  for (int i = 0; i < 600; ++i) model.SaveScript(std::string(100000, static_cast<char>('a' + i % 26)));
  EXPECT_LE(model.UndoBytes(), CaveModel::kMostUndoBytes);
  EXPECT_GE(model.UndoBytes(), CaveModel::kMostUndoBytes - 120000) << "no more is forgotten than must be";
  model.UndoTo(0);
  EXPECT_LE(model.UndoBytes(), CaveModel::kMostUndoBytes + 120000);
  EXPECT_EQ(model.Cave().Script.size(), 100000U);
}

TEST(CaveModelSteps, KeepTheLastOneWhateverItTakes) {
  CaveModel model = Opened(kFive);
  model.Draw(1, 2, 'R');
  model.SaveScript(std::string(CaveModel::kMostUndoBytes, 'a'));
  EXPECT_EQ(model.UndoSteps(), (Steps{EditStep::Stroke, EditStep::Script}))
      << "the long text is in no step yet";
  model.SaveScript("b");
  EXPECT_EQ(model.UndoSteps(), Steps{EditStep::Script});
  model.Undo();
  EXPECT_EQ(model.Cave().Script.size(), CaveModel::kMostUndoBytes);
}

TEST(CaveModelSteps, TakeLessThanTheirBoundWhenThereAreAThousandOfTheLargestCave) {
  CaveModel model = Opened(Full(80, 50, ';'));
  for (int i = 0; i < 2000; ++i) model.Draw(i % 80, i / 80, 'R');
  EXPECT_EQ(model.UndoSteps().size(), CaveModel::kMostSteps);
  EXPECT_GE(model.UndoBytes(), CaveModel::kMostSteps * sizeof(CaveRecord));
  EXPECT_LE(model.UndoBytes(), CaveModel::kMostUndoBytes);
}

}  // namespace
}  // namespace zorik
