#include "data/Result.h"
#include "editors/Letters.h"

namespace zorik {
namespace {

using test::CaveTextOf;
using test::Full;
using test::LettersOf;
using test::Opened;
using test::Picture;

const Picture kCave = {"AAWWWW", "W1.R.W", "WR.D.W", "W.R2AW", "WWWWWW"};

struct Change {
  const char* name;
  void (*act)(CaveModel& model);
};

void Properties(CaveModel& model, void (*change)(Formality&)) {
  Formality formality = FormalityOf(model.Cave());
  change(formality);
  model.SetProperties(formality);
}

const Change kChanges[] = {
    {"draw", [](CaveModel& model) { model.Draw(2, 2, 'R'); }},
    {"draw over an amoeba", [](CaveModel& model) { model.Draw(4, 3, 'R'); }},
    {"move a dog", [](CaveModel& model) { model.Draw(4, 1, '2'); }},
    {"stroke",
     [](CaveModel& model) {
       model.BeginStroke();
       for (int x = 1; x < 5; ++x) model.Draw(x, 2, 'A');
       model.EndStroke();
     }},
    {"replace every", [](CaveModel& model) { model.ReplaceO('R', 'A', 1); }},
    {"replace every second", [](CaveModel& model) { model.ReplaceO('R', 'D', 2); }},
    {"replace half",
     [](CaveModel& model) {
       Chance rnd(1);
       model.ReplaceRandom('W', 'X', 0, rnd);
     }},
    {"replace one",
     [](CaveModel& model) {
       Chance rnd(1);
       model.ReplaceRandom('W', 'A', 1, rnd);
     }},
    {"frame", [](CaveModel& model) { model.MakeFrame('S'); }},
    {"size", [](CaveModel& model) { Properties(model, [](Formality& it) { it.Numbers[0] = 40; }); }},
    {"name", [](CaveModel& model) { Properties(model, [](Formality& it) { it.Name = "Jinak"; }); }},
    {"colouring", [](CaveModel& model) { Properties(model, [](Formality& it) { it.Colouring = 2; }); }},
    {"time", [](CaveModel& model) { Properties(model, [](Formality& it) { it.Numbers[2] = 9; }); }},
    {"script", [](CaveModel& model) { model.SaveScript("*A/Z"); }},
};

TEST(CaveModelUndo, BringsBackEveryKindOfChangeAndTheAmoebaCounter) {
  for (const Change& change : kChanges) {
    CaveModel model = Opened(kCave);
    const CaveRecord before = model.Cave();
    const int amoebas = model.Amoebas();
    change.act(model);
    const CaveRecord after = model.Cave();
    const int changed = model.Amoebas();
    EXPECT_NE(before, after) << change.name;
    ASSERT_TRUE(model.CanUndo()) << change.name;
    model.Undo();
    EXPECT_EQ(model.Cave(), before) << change.name;
    EXPECT_EQ(model.Amoebas(), amoebas) << change.name;
    EXPECT_FALSE(model.CanUndo()) << change.name << " is one step";
    model.Redo();
    EXPECT_EQ(model.Cave(), after) << change.name;
    EXPECT_EQ(model.Amoebas(), changed) << change.name;
    EXPECT_FALSE(model.CanRedo()) << change.name;
  }
}

TEST(CaveModelUndo, BringsBackTheChangesThatARestoreDropped) {
  CaveModel model = Opened(kCave);
  for (const Change& change : kChanges) change.act(model);
  const CaveRecord after = model.Cave();
  EXPECT_TRUE(model.Restore().empty());
  EXPECT_EQ(LettersOf(model), kCave);
  EXPECT_EQ(*model.Text(), CaveTextOf(kCave));
  EXPECT_EQ(model.Amoebas(), 3);
  model.Undo();
  EXPECT_EQ(model.Cave(), after);
}

TEST(CaveModelUndo, LetsARestorePutThingsRightOnceMore) {
  test::Numbers numbers;
  numbers.permeability = 9;
  CaveModel model;
  ASSERT_TRUE(model.OpenCave(CaveTextOf(kCave, numbers)));
  EXPECT_EQ(model.Restore(),
            (std::vector<Correction>{{.label = TextId::SlimePermeability, .limit = 8, .was = "9"}}));
  EXPECT_EQ(model.Cave().SlimePermeability, 8);
  EXPECT_FALSE(model.CanUndo()) << "nothing had been changed";
}

TEST(CaveModelUndo, HoldsAThousandSteps) {
  CaveModel model = Opened(Full(10, 10, '.'));
  for (int i = 0; i < 1200; ++i) model.Draw(i % 10, i / 10 % 10, i / 100 % 2 == 0 ? 'R' : 'D');
  int steps = 0;
  for (; model.CanUndo(); ++steps) model.Undo();
  EXPECT_EQ(steps, 1000);
  // 200 changes are beyond recall: a round of boulders and one of gems.
  EXPECT_EQ(LettersOf(model), Full(10, 10, 'D'));
  for (; model.CanRedo(); --steps) model.Redo();
  EXPECT_EQ(steps, 0);
}

TEST(CaveModelUndo, ForgetsWhatWasUndoneWithTheNextChange) {
  CaveModel model = Opened(kCave);
  model.Draw(2, 2, 'R');
  model.Undo();
  ASSERT_TRUE(model.CanRedo());
  model.Draw(2, 2, 'D');
  EXPECT_FALSE(model.CanRedo());
  model.Redo();
  EXPECT_EQ(model.At(2, 2), 'D');
}

TEST(CaveModelUndo, DoesNothingAtItsEnds) {
  CaveModel model = Opened(kCave);
  model.Undo();
  model.Redo();
  EXPECT_EQ(LettersOf(model), kCave);
}

TEST(CaveModelUndo, CountsNoStepForAStrokeThatLeavesThingsAsTheyWere) {
  CaveModel model = Opened(kCave);
  model.BeginStroke();
  model.Draw(2, 2, 'R');
  model.Draw(2, 2, '.');
  model.EndStroke();
  EXPECT_FALSE(model.CanUndo());
}

TEST(CaveModelUndo, EndsAStrokeBeforeItUndoes) {
  CaveModel model = Opened(kCave);
  model.BeginStroke();
  model.Draw(2, 2, 'R');
  model.Undo();
  EXPECT_EQ(LettersOf(model), kCave);
  EXPECT_TRUE(model.CanRedo());
}

TEST(CaveModelUndo, ForgetsWhatBelongedToTheCaveBefore) {
  CaveModel model;
  ASSERT_TRUE(model.OpenCave(CaveTextOf(Full(6, 6, ';'))));
  model.Draw(1, 1, 'R');
  model.Draw(2, 1, 'R');
  model.Undo();
  ASSERT_TRUE(model.CanUndo() && model.CanRedo());
  model.BeginStroke();
  ASSERT_TRUE(model.OpenCave(CaveTextOf(Full(6, 6, '.'))));
  EXPECT_FALSE(model.CanUndo());
  EXPECT_FALSE(model.CanRedo());
  model.EndStroke();
  EXPECT_FALSE(model.CanUndo());
  model.Draw(1, 1, 'R');
  EXPECT_TRUE(model.CanUndo());
}

// Whatever is done to the whole cave ends the stroke that is under way: both are steps of their own.
TEST(CaveModelUndo, EndsAStrokeBeforeAnyOtherChange) {
  const auto change = [](int which, CaveModel& model) {
    Chance chance(1);
    Formality formality = FormalityOf(model.Cave());
    formality.Name = "X";
    if (which == 0) model.ReplaceO(';', 'D', 1);
    if (which == 1) model.ReplaceRandom(';', 'D', 3, chance);
    if (which == 2) model.MakeFrame('X');
    if (which == 3) model.SetProperties(formality);
    if (which == 4) model.SaveScript("*A/Z");
    if (which == 5) model.Restore();
  };
  for (int which = 0; which < 6; ++which) {
    CaveModel model;
    ASSERT_TRUE(model.OpenCave(CaveTextOf(Full(6, 6, ';'))));
    model.BeginStroke();
    model.Draw(1, 1, 'R');
    change(which, model);
    model.Undo();
    EXPECT_EQ(model.At(1, 1), 'R') << which;
    model.Undo();
    EXPECT_EQ(model.At(1, 1), ';') << which;
    EXPECT_FALSE(model.CanUndo()) << which;
  }
}

TEST(CaveModelUndo, KeepsTheLookOfALetterWithoutATile) {
  CaveModel model = Opened({"WWWWW", "W1R.W", "W.$.W", "W...W", "WWWWW"});
  ASSERT_EQ(model.LookAt(2, 2), 'R');
  model.Draw(2, 1, 'D');
  model.Draw(2, 2, 'S');
  EXPECT_EQ(model.LookAt(2, 2), 'S');
  model.Undo();
  EXPECT_EQ(model.At(2, 2), '$');
  EXPECT_EQ(model.LookAt(2, 2), 'R') << "as it was painted when the cave was opened";
}

}  // namespace
}  // namespace zorik
