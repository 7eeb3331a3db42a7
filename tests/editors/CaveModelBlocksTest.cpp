#include <climits>

#include "data/Result.h"
#include "editors/Letters.h"

namespace zorik {
namespace {

using test::Full;
using test::LettersOf;
using test::Opened;
using test::Picture;

const Picture kCave = {"WWWWWWW", "W12.R.W", "W.AD..W", "W..A..W", "WWWWWWW"};
constexpr CaveArea kMiddle{2, 1, 2, 3};  // 2. AD .A

CaveBlock BlockOf(const Picture& rows) {
  CaveBlock block{static_cast<int>(rows.at(0).size()), static_cast<int>(rows.size()), {}};
  for (const std::string& row : rows) block.letters += row;
  return block;
}

// One step, after which the counter shows what there is, and which can be undone and done again.
void ExpectOneStep(CaveModel& model, const Picture& before, EditStep step) {
  const Picture after = LettersOf(model);
  EXPECT_EQ(model.UndoSteps(), std::vector<EditStep>{step});
  EXPECT_EQ(model.Amoebas(), model.NuOfOb('A'));
  model.Undo();
  EXPECT_EQ(LettersOf(model), before);
  EXPECT_EQ(model.Amoebas(), model.NuOfOb('A'));
  EXPECT_FALSE(model.CanUndo());
  model.Redo();
  EXPECT_EQ(LettersOf(model), after);
}

void CutTo(CaveModel& model, int width, int height) {
  Formality formality = FormalityOf(model.Cave());
  formality.Numbers[0] = width;
  formality.Numbers[1] = height;
  model.SetProperties(formality);
}

// Shapes

TEST(CaveModelBlocks, DrawsAShapeInOneStep) {
  CaveModel model = Opened(kCave);
  EXPECT_TRUE(model.DrawShape(LineOf({1, 2}, {5, 2}, AreaOf(model.Cave())), 'R', EditStep::Line));
  EXPECT_EQ(LettersOf(model), (Picture{"WWWWWWW", "W12.R.W", "WRRRRRW", "W..A..W", "WWWWWWW"}));
  ExpectOneStep(model, kCave, EditStep::Line);
}

TEST(CaveModelBlocks, CountsTheAmoebasOfAShape) {
  CaveModel model = Opened(kCave);
  model.DrawShape(RegionOf(model.Cave(), {5, 3}), 'A', EditStep::Fill);
  EXPECT_EQ(LettersOf(model), (Picture{"WWWWWWW", "W12.RAW", "W.ADAAW", "W..AAAW", "WWWWWWW"}));
  EXPECT_EQ(model.Amoebas(), 7);
  ExpectOneStep(model, kCave, EditStep::Fill);
}

TEST(CaveModelBlocks, PutsADogOnlyIntoTheLastCellOfAShape) {
  CaveModel model = Opened(kCave);
  EXPECT_TRUE(model.DrawShape({{1, 3}, {2, 3}, {3, 3}, {9, 3}}, '2', EditStep::Line));
  EXPECT_EQ(LettersOf(model), (Picture{"WWWWWWW", "W1..R.W", "W.AD..W", "W..2..W", "WWWWWWW"}));
  EXPECT_EQ(model.Amoebas(), 1);
  ExpectOneStep(model, kCave, EditStep::Line);
}

TEST(CaveModelBlocks, DrawsNoShapeOutsideOfTheCave) {
  for (const char letter : {'2', 'A'}) {
    CaveModel model = Opened(kCave);
    EXPECT_FALSE(model.DrawShape({{-1, 2}, {7, 1}, {3, 5}}, letter, EditStep::Line));
    EXPECT_FALSE(model.DrawShape({}, letter, EditStep::Line));
    EXPECT_EQ(LettersOf(model), kCave);
    EXPECT_FALSE(model.CanUndo());
  }
}

TEST(CaveModelBlocks, TakesShapesIntoAStroke) {
  CaveModel model = Opened(kCave);
  model.BeginStroke();
  model.DrawShape({{1, 2}}, 'R', EditStep::Line);
  model.DrawShape({{4, 2}, {5, 2}}, 'R', EditStep::Line);
  model.EndStroke();
  ExpectOneStep(model, kCave, EditStep::Stroke);
}

// Copying, cutting, pasting

TEST(CaveModelBlocks, CopiesWhatIsInsideTheCave) {
  const CaveModel model = Opened(kCave);
  EXPECT_EQ(model.Copy(kMiddle), BlockOf({"2.", "AD", ".A"}));
  EXPECT_EQ(model.Copy({-3, 3, 5, 9}), BlockOf({"W.", "WW"}));
  EXPECT_TRUE(model.Copy({7, 0, 2, 2}).IsEmpty());
  EXPECT_FALSE(model.CanUndo());
}

TEST(CaveModelBlocks, CutsAndClearsASelection) {
  CaveModel model = Opened(kCave);
  EXPECT_EQ(model.Cut(kMiddle), BlockOf({"2.", "AD", ".A"}));
  const Picture emptied{"WWWWWWW", "W1..R.W", "W.....W", "W.....W", "WWWWWWW"};
  EXPECT_EQ(LettersOf(model), emptied);
  EXPECT_FALSE(model.Clear(kMiddle));
  ExpectOneStep(model, kCave, EditStep::Cut);
  model.Undo();
  EXPECT_TRUE(model.Clear(kMiddle));
  EXPECT_EQ(LettersOf(model), emptied);
  ExpectOneStep(model, kCave, EditStep::Clear);
}

TEST(CaveModelBlocks, PastesABlock) {
  CaveModel model = Opened(kCave);
  EXPECT_EQ(model.Paste(BlockOf({"AR", "R;"}), {3, 2}), (CaveArea{3, 2, 2, 2}));
  EXPECT_EQ(LettersOf(model), (Picture{"WWWWWWW", "W12.R.W", "W.AAR.W", "W..R;.W", "WWWWWWW"}));
  ExpectOneStep(model, kCave, EditStep::Paste);
}

TEST(CaveModelBlocks, CutsAPastedBlockOffAtEachBorder) {
  const CaveBlock block = BlockOf({"RD", "XS"});
  struct Row {
    CavePlace at;
    CaveArea covered;
    const char* first;  // and last letter of what arrived
  };
  const Row kRows[] = {{{-1, -1}, {0, 0, 1, 1}, "SS"},
                       {{6, 4}, {6, 4, 1, 1}, "RR"},
                       {{6, -1}, {6, 0, 1, 1}, "XX"},
                       {{-1, 3}, {0, 3, 1, 2}, "DS"}};
  for (const Row& row : kRows) {
    CaveModel model = Opened(kCave);
    EXPECT_EQ(model.Paste(block, row.at), row.covered);
    const CaveBlock arrived = model.Copy(row.covered);
    EXPECT_EQ(arrived.letters.front(), row.first[0]);
    EXPECT_EQ(arrived.letters.back(), row.first[1]);
    ExpectOneStep(model, kCave, EditStep::Paste);
  }
  CaveModel model = Opened(kCave);
  for (const CavePlace at : {CavePlace{-2, 0}, {7, 0}, {0, -2}, {0, 5}, {INT_MAX, INT_MIN}}) {
    EXPECT_TRUE(model.Paste(block, at).IsEmpty());
  }
  EXPECT_FALSE(model.CanUndo());
}

TEST(CaveModelBlocks, TakesADogThatIsPastedAwayFromItsOldPlace) {
  CaveModel model = Opened(kCave);
  model.Paste(BlockOf({"2A", "1;"}), {4, 2});
  EXPECT_EQ(LettersOf(model), (Picture{"WWWWWWW", "W...R.W", "W.AD2AW", "W..A1;W", "WWWWWWW"}));
  ExpectOneStep(model, kCave, EditStep::Paste);
}

TEST(CaveModelBlocks, TakesAPastedDogAwayFromWhatWasCutOff) {
  CaveModel model = Opened({"......", "......", "......", "......", ".1....", ".....2"});
  CutTo(model, 5, 5);
  model.Paste(BlockOf({"2"}), {0, 0});
  CutTo(model, 6, 6);
  EXPECT_EQ(LettersOf(model), (Picture{"2.....", "......", "......", "......", ".1....", "......"}));
}

TEST(CaveModelBlocks, LeavesADogWhereItIsWhenItsCopyDoesNotArrive) {
  CaveModel model = Opened(kCave);
  model.Paste(BlockOf({";2"}), {6, 2});
  EXPECT_EQ(LettersOf(model), (Picture{"WWWWWWW", "W12.R.W", "W.AD..;", "W..A..W", "WWWWWWW"}));
}

TEST(CaveModelBlocks, LeavesTheLastOfADogThatIsTwiceInABlock) {
  CaveModel model = Opened(kCave);
  model.Paste(BlockOf({"2;2", "2;;"}), {1, 2});
  EXPECT_EQ(LettersOf(model), (Picture{"WWWWWWW", "W1..R.W", "W.;...W", "W2;;..W", "WWWWWWW"}));
}

TEST(CaveModelBlocks, PastesADogWithoutANumberAsTheFirst) {
  CaveModel model = Opened(kCave);
  model.Paste(BlockOf({"H"}), {3, 2});
  EXPECT_EQ(LettersOf(model), (Picture{"WWWWWWW", "W.2.R.W", "W.A1..W", "W..A..W", "WWWWWWW"}));
}

TEST(CaveModelBlocks, PastesCellsThatNeverHadALetterAsEmptyOnes) {
  CaveModel model = Opened(kCave);
  model.Paste({2, 1, std::string(2, '\0')}, {2, 2});
  EXPECT_EQ(LettersOf(model)[2], "W.....W");
}

TEST(CaveModelBlocks, CarriesABlockIntoAnotherCave) {
  const CaveBlock block = Opened(kCave).Copy(kMiddle);
  CaveModel other = Opened(Full(6, 6, ';'));
  other.Paste(*ReadBlock(WriteBlock(block)), {4, 3});
  EXPECT_EQ(LettersOf(other), (Picture{";;;;;;", ";;;;;;", ";;;;;;", ";;;;2.", ";;;;AD", ";;;;.A"}));
}

// Moving

TEST(CaveModelBlocks, MovesASelectionOntoItselfAndElsewhere) {
  struct Row {
    CavePlace to;
    Picture moved;
  };
  const Row kRows[] = {
      {{3, 1}, {"WWWWWWW", "W1.2..W", "W..AD.W", "W...A.W", "WWWWWWW"}},
      {{2, 0}, {"WW2.WWW", "W1ADR.W", "W..A..W", "W.....W", "WWWWWWW"}},
      {{4, 1}, {"WWWWWWW", "W1..2.W", "W...ADW", "W....AW", "WWWWWWW"}},
  };
  for (const Row& row : kRows) {
    CaveModel model = Opened(kCave);
    EXPECT_EQ(model.Move(kMiddle, row.to), (CaveArea{row.to.x, row.to.y, 2, 3}));
    EXPECT_EQ(LettersOf(model), row.moved);
    ExpectOneStep(model, kCave, EditStep::Move);
  }
}

TEST(CaveModelBlocks, CutsOffWhatIsMovedOutOfTheCave) {
  CaveModel model = Opened(kCave);
  EXPECT_EQ(model.Move(kMiddle, {6, 3}), (CaveArea{6, 3, 1, 2}));
  EXPECT_EQ(LettersOf(model), (Picture{"WWWWWWW", "W1..R.W", "W.....W", "W.....2", "WWWWWWA"}));
  ExpectOneStep(model, kCave, EditStep::Move);
  EXPECT_TRUE(Opened(kCave).Move(kMiddle, {-2, 0}).IsEmpty());
}

TEST(CaveModelBlocks, KeepsTheDistanceOfWhatWasSelectedBeyondTheBorder) {
  CaveModel model = Opened(kCave);
  EXPECT_EQ(model.Move({-1, 1, 3, 1}, {1, 3}), (CaveArea{2, 3, 2, 1}));
  EXPECT_EQ(LettersOf(model), (Picture{"WWWWWWW", "..2.R.W", "W.AD..W", "W.W1..W", "WWWWWWW"}));
}

TEST(CaveModelBlocks, MakesNoStepOfAMoveToWhereItWas) {
  CaveModel model = Opened(kCave);
  EXPECT_EQ(model.Move(kMiddle, {2, 1}), kMiddle);
  EXPECT_FALSE(model.CanUndo());
}

// Turning

struct TurnCase {
  CaveTurn turn;
  EditStep step;
  CaveArea covered;
  Picture turned;
};

TEST(CaveModelBlocks, TurnsASelectionAboutItsTopLeftCorner) {
  const Picture cave = {";;;;;;", ";;;;;;", ";1AF;;", ";2EO;;", ";;;;;;", ";;;;;;"};
  const TurnCase kCases[] = {
      {CaveTurn::MirrorAside,
       EditStep::MirrorAside,
       {1, 2, 3, 2},
       {";;;;;;", ";;;;;;", ";PA1;;", ";OE2;;", ";;;;;;", ";;;;;;"}},
      {CaveTurn::MirrorUpright,
       EditStep::MirrorUpright,
       {1, 2, 3, 2},
       {";;;;;;", ";;;;;;", ";2EQ;;", ";1AF;;", ";;;;;;", ";;;;;;"}},
      {CaveTurn::Right,
       EditStep::TurnRight,
       {1, 2, 2, 3},
       {";;;;;;", ";;;;;;", ";21.;;", ";VA.;;", ";PO;;;", ";;;;;;"}},
      {CaveTurn::Left,
       EditStep::TurnLeft,
       {1, 2, 2, 3},
       {";;;;;;", ";;;;;;", ";QF.;;", ";AV.;;", ";12;;;", ";;;;;;"}},
  };
  for (const TurnCase& row : kCases) {
    CaveModel model = Opened(cave);
    EXPECT_EQ(model.Turn({1, 2, 3, 2}, row.turn), row.covered);
    EXPECT_EQ(LettersOf(model), row.turned);
    ExpectOneStep(model, cave, row.step);
  }
}

TEST(CaveModelBlocks, CutsOffWhatIsTurnedOutOfTheCave) {
  CaveModel model = Opened({";;;;;", ";;;;;", ";;;;;", "RDXWS", ";;;;;"});
  EXPECT_EQ(model.Turn({0, 3, 5, 1}, CaveTurn::Right), (CaveArea{0, 3, 1, 2}));
  EXPECT_EQ(LettersOf(model), (Picture{";;;;;", ";;;;;", ";;;;;", "R....", "D;;;;"}));
  model.Undo();
  EXPECT_EQ(model.Turn({-2, 3, 5, 9}, CaveTurn::MirrorAside), (CaveArea{0, 3, 3, 2}));
  EXPECT_EQ(LettersOf(model)[3], "XDRWS") << "only what is inside the cave is mirrored";
}

TEST(CaveModelBlocks, IsTheSameAfterTwoMirrorsAndAfterFourTurnsOverEmptyCells) {
  const Picture cave = {"1FOPQ..", "UYZBE..", "VRDA2..", ".......", "......."};
  CaveModel model = Opened(cave);
  const std::string text = *model.Text();
  for (const CaveTurn mirror : {CaveTurn::MirrorAside, CaveTurn::MirrorUpright}) {
    model.Turn(AreaOf(model.Cave()), mirror);
    EXPECT_NE(*model.Text(), text);
    model.Turn(AreaOf(model.Cave()), mirror);
    EXPECT_EQ(*model.Text(), text);
  }
  for (const CaveTurn turn : {CaveTurn::Right, CaveTurn::Left}) {
    CaveArea area{0, 0, 5, 3};
    for (int i = 0; i < 4; ++i) area = model.Turn(area, turn);
    EXPECT_EQ(area, (CaveArea{0, 0, 5, 3}));
    EXPECT_EQ(*model.Text(), text);
    EXPECT_EQ(model.Amoebas(), 1);
  }
}

TEST(CaveModelBlocks, EndsAStrokeBeforeItChangesASelection) {
  CaveModel model = Opened(kCave);
  model.BeginStroke();
  model.Draw(5, 1, 'D');
  model.Clear(kMiddle);
  EXPECT_EQ(model.UndoSteps(), (std::vector<EditStep>{EditStep::Stroke, EditStep::Clear}));
}

}  // namespace
}  // namespace zorik
