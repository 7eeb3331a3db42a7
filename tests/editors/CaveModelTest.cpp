#include <set>

#include "data/Result.h"
#include "editors/CaveModel.h"
#include "editors/Letters.h"

namespace zorik {
namespace {

using test::CaveTextOf;
using test::Full;
using test::kFive;
using test::LettersOf;
using test::Opened;
using test::Picture;

// Drawing

TEST(CaveModel, DrawsALetter) {
  CaveModel model = Opened(kFive);
  EXPECT_TRUE(model.Draw(1, 3, 'R'));
  EXPECT_EQ(LettersOf(model), (Picture{"WWWWW", "W1..W", "W.D.W", "WR.AW", "WWWWW"}));
}

TEST(CaveModel, DrawsEachObjectOfThePaletteSoThatItIsSaved) {
  CaveModel model = Opened(Full(10, 5, ';'));
  const std::string letters = ".RDX!@WTAMK#%SLFOPQUYZBEV&^INGJ:123456789";
  for (std::size_t i = 0; i < letters.size(); ++i) {
    EXPECT_TRUE(model.Draw(static_cast<int>(i % 10), static_cast<int>(i / 10), letters[i]));
  }
  CaveModel again;
  ASSERT_TRUE(again.OpenCave(*model.Text()));
  for (std::size_t i = 0; i < letters.size(); ++i) {
    EXPECT_EQ(again.At(static_cast<int>(i % 10), static_cast<int>(i / 10)), letters[i]);
  }
}

TEST(CaveModel, DrawsEachObjectSoThatItCanBeTested) {
  for (const ObjectLetter& object : kObjectLetters) {
    if (object.palette < 0 || object.letter == 'H') continue;
    CaveModel model = Opened({"WWWWW", "W1..W", "W...W", "W...W", "WWWWW"});
    model.Draw(2, 2, object.letter);
    if (DogNumber(object.letter) > 2) continue;  // the dogs before it are missing
    ASSERT_EQ(model.MissingDog(), std::nullopt) << object.letter;
    Hra hra;
    ASSERT_TRUE(PaintCave(hra, *model.Text(), RunKind::Test)) << object.letter;
    EXPECT_EQ(hra.Field(Cell(2, 2)), object.code) << object.letter;
    EXPECT_EQ(hra.FieldState(Cell(2, 2)), object.state) << object.letter;
    EXPECT_EQ(hra.FieldMark(Cell(2, 2)), object.mark) << object.letter;
  }
}

TEST(CaveModel, DrawsNothingOutsideOfTheCave) {
  CaveModel model = Opened(kFive);
  for (const auto& [x, y] : {std::pair{-1, 0}, {0, -1}, {5, 0}, {0, 5}}) EXPECT_FALSE(model.Draw(x, y, 'R'));
  EXPECT_EQ(LettersOf(model), kFive);
  EXPECT_FALSE(model.CanUndo());
}

TEST(CaveModel, ChangesNothingWhereTheLetterIsThereAlready) {
  CaveModel model = Opened(kFive);
  EXPECT_FALSE(model.Draw(2, 2, 'D'));
  EXPECT_FALSE(model.Draw(1, 1, '1'));
  EXPECT_FALSE(model.CanUndo());
}

TEST(CaveModel, MovesADogThatIsDrawnElsewhere) {
  CaveModel model = Opened({"WWWWW", "W13.W", "W...W", "W...W", "WWWWW"});
  EXPECT_TRUE(model.Draw(3, 3, '3'));
  EXPECT_EQ(LettersOf(model), (Picture{"WWWWW", "W1..W", "W...W", "W..3W", "WWWWW"}));
}

TEST(CaveModel, TakesADogAwayFromTheColumnAndTheRowThatWereJustCutOff) {
  CaveModel model = Opened({"1....2", "......", "......", "......", "......", "...3.4"});
  Formality formality = FormalityOf(model.Cave());
  formality.Numbers[0] = 5;
  formality.Numbers[1] = 5;
  model.SetProperties(formality);
  for (const char dog : {'2', '3', '4'}) EXPECT_TRUE(model.Draw(dog - '1', 2, dog));
  formality.Numbers[0] = 6;
  formality.Numbers[1] = 6;
  model.SetProperties(formality);
  EXPECT_EQ(LettersOf(model), (Picture{"1.....", "......", ".234..", "......", "......", "......"}));
}

TEST(CaveModel, TakesADogAwayFromWhereverItWasCutOff) {
  Picture picture = Full(12, 12, ';');
  picture[11][11] = '2';
  CaveModel model = Opened(picture);
  const auto resize = [&model](int side) {
    Formality formality = FormalityOf(model.Cave());
    formality.Numbers[0] = formality.Numbers[1] = side;
    model.SetProperties(formality);
  };
  resize(9);
  EXPECT_TRUE(model.Draw(1, 1, '2'));
  resize(12);
  EXPECT_EQ(model.NuOfOb('2'), 1);
  EXPECT_EQ(model.At(1, 1), '2');
  EXPECT_EQ(model.At(11, 11), '.');
}

TEST(CaveModel, LeavesOneDogOfANumberEvenWhereItStandsAlready) {
  CaveModel model = Opened({"WWWWW", "W11.W", "W.1.W", "W...W", "WWWWW"});
  EXPECT_TRUE(model.Draw(1, 1, '1'));
  EXPECT_EQ(LettersOf(model), (Picture{"WWWWW", "W1..W", "W...W", "W...W", "WWWWW"}));
}

TEST(CaveModel, CountsAmoebasThatComeAndGo) {
  CaveModel model = Opened(kFive);
  model.Draw(1, 2, 'A');
  EXPECT_EQ(model.Amoebas(), 2);
  model.Draw(1, 2, 'A');
  EXPECT_EQ(model.Amoebas(), 2);
  model.Draw(3, 3, '2');
  EXPECT_EQ(model.Amoebas(), 1);
}

// Replacing

TEST(CaveModel, ReplacesEveryCell) {
  CaveModel model = Opened({".R.R.", "R.R.R", ".....", ".....", "1...R"});
  model.ReplaceO('R', 'D', 1);
  EXPECT_EQ(LettersOf(model), (Picture{".D.D.", "D.D.D", ".....", ".....", "1...D"}));
}

TEST(CaveModel, ReplacesEverySecondCellRowByRow) {
  CaveModel model = Opened({".R.R.", "R.R.R", ".....", ".....", "1...R"});
  model.ReplaceO('R', 'D', 2);
  EXPECT_EQ(LettersOf(model), (Picture{".R.D.", "R.D.R", ".....", ".....", "1...D"}));
}

TEST(CaveModel, CountsAmoebasWhenReplacing) {
  CaveModel model = Opened({"AAAAA", ".....", ".....", ".....", "1...."});
  model.ReplaceO('A', 'R', 2);
  EXPECT_EQ(model.Amoebas(), 3);
  model.ReplaceO('R', 'A', 1);
  EXPECT_EQ(model.Amoebas(), 5);
  model.ReplaceO('A', 'A', 1);
  EXPECT_EQ(model.Amoebas(), 5);
}

TEST(CaveModel, ReplacesByChanceAsManyAsAreWanted) {
  struct Row {
    int wanted;
    int replaced;
  };
  constexpr Row kRows[] = {{0, 12}, {1, 1}, {5, 5}, {10, 10}, {40, 25}};
  for (const Row& row : kRows) {
    CaveModel model = Opened(Full(5, 5, 'R'));
    Chance rnd(7);
    model.ReplaceRandom('R', 'D', row.wanted, rnd);
    EXPECT_EQ(model.NuOfOb('D'), row.replaced) << row.wanted;
    EXPECT_EQ(model.NuOfOb('R'), 25 - row.replaced) << row.wanted;
  }
}

TEST(CaveModel, CountsAmoebasWhenReplacingByChance) {
  CaveModel model = Opened(Full(5, 5, 'A'));
  Chance rnd(7);
  model.ReplaceRandom('A', 'R', 10, rnd);
  EXPECT_EQ(model.Amoebas(), 15);
  model.ReplaceRandom('R', 'A', 0, rnd);
  EXPECT_EQ(model.Amoebas(), 20);
  model.ReplaceRandom('A', 'A', 5, rnd);
  EXPECT_EQ(model.Amoebas(), 20);
}

TEST(CaveModel, ReplacesByChanceNothingWhereNothingIs) {
  CaveModel model = Opened(kFive);
  Chance rnd(7);
  for (const int wanted : {0, 1, 10}) model.ReplaceRandom('Q', 'D', wanted, rnd);
  EXPECT_EQ(LettersOf(model), kFive);
}

TEST(CaveModel, ReplacesOtherCellsWithOtherChance) {
  std::set<std::vector<std::string>> outcomes;
  for (std::uint64_t seed = 0; seed < 8; ++seed) {
    CaveModel model = Opened(Full(20, 20, 'R'));
    Chance rnd(seed);
    model.ReplaceRandom('R', 'D', 5, rnd);
    outcomes.insert(LettersOf(model));
  }
  EXPECT_EQ(outcomes.size(), 8U);
}

TEST(CaveModel, MakesAFrame) {
  CaveModel model = Opened(Full(6, 5, ';'));
  model.MakeFrame('W');
  EXPECT_EQ(LettersOf(model), (Picture{"WWWWWW", "W;;;;W", "W;;;;W", "W;;;;W", "WWWWWW"}));
}

TEST(CaveModel, LeavesTheAmoebaCounterAloneWhenMakingAFrame) {
  CaveModel model = Opened({"AA...", ".....", "..A..", ".....", "1...."});
  model.MakeFrame('W');
  EXPECT_EQ(model.NuOfOb('A'), 1);
  EXPECT_EQ(model.Amoebas(), 3);
  model.MakeFrame('A');
  EXPECT_EQ(model.NuOfOb('A'), 17);
  EXPECT_EQ(model.Amoebas(), 3);
}

// Size

TEST(CaveModel, BringsBackWhatWasCutOff) {
  CaveModel model = Opened(Full(8, 7, 'R'));
  Formality formality = FormalityOf(model.Cave());
  formality.Numbers[0] = 5;
  formality.Numbers[1] = 6;
  model.SetProperties(formality);
  EXPECT_EQ(LettersOf(model), Full(5, 6, 'R'));
  formality.Numbers[0] = 9;
  formality.Numbers[1] = 8;
  model.SetProperties(formality);
  Picture larger = Full(9, 8, 'R');
  for (std::string& row : larger) row.back() = '.';
  larger.back() = ".........";
  EXPECT_EQ(LettersOf(model), larger);
}

TEST(CaveModel, CutsASizeThatTheDialogLetsThrough) {
  CaveModel model = Opened(Full(8, 7, 'R'));
  Formality formality = FormalityOf(model.Cave());
  formality.Numbers[0] = 100;
  formality.Numbers[1] = 60;
  model.SetProperties(formality);
  EXPECT_EQ(model.Width(), 80);
  EXPECT_EQ(model.Height(), 50);
}

TEST(CaveModel, KeepsCountOfAmoebasWhenTheSizeChanges) {
  CaveModel model = Opened(Full(8, 7, 'A'));
  Formality formality = FormalityOf(model.Cave());
  formality.Numbers[0] = 5;
  model.SetProperties(formality);
  EXPECT_EQ(model.Amoebas(), 35);
}

// Counting

TEST(CaveModel, CountsGemsAndLetters) {
  const CaveModel model = Opened({"WWWWW", "W1D9W", "WDD3W", "W0..W", "WWWWD"});
  EXPECT_EQ(model.SpoctiDrh(), 4);
  EXPECT_EQ(model.NuOfOb('W'), 15);
}

TEST(CaveModel, CountsNoGemsInWhatWasCutOff) {
  CaveModel model = Opened({"....DD", "......", "......", "......", "1...2D"});
  Formality formality = FormalityOf(model.Cave());
  formality.Numbers[0] = 5;
  model.SetProperties(formality);
  EXPECT_EQ(model.SpoctiDrh(), 1);
}

TEST(CaveModel, TellsWhichDogIsMissing) {
  struct Row {
    const char* dogs;
    std::optional<int> missing;
  };
  const Row kRows[] = {{".....", 0}, {"1....", {}}, {"12345", {}}, {"1.3..", 2},
                       {"2....", 1}, {"9....", 1},  {"3.2.5", 1},  {"12.4.", 3}};
  for (const Row& row : kRows) {
    const CaveModel model = Opened({row.dogs, ".....", ".....", ".....", "....."});
    EXPECT_EQ(model.MissingDog(), row.missing) << row.dogs;
  }
}

TEST(CaveModel, NeedsAllNineDogsWhenThereIsANinth) {
  EXPECT_EQ(Opened({"12345", "6789.", ".....", ".....", "....."}).MissingDog(), std::nullopt);
  EXPECT_EQ(Opened({"12345", "67.9.", ".....", ".....", "....."}).MissingDog(), 8);
}

// Text

TEST(CaveModel, HasNoTextWhenTheDescriptionIsTooLong) {
  CaveModel model = Opened(kFive);
  Formality formality = FormalityOf(model.Cave());
  formality.Description = std::string(191, 'X');
  model.SetProperties(formality);
  EXPECT_FALSE(model.Text());
  EXPECT_EQ(LabelWithoutRoom(model.Cave()), TextId::Description);
}

TEST(CaveModel, KeepsTheScript) {
  CaveModel model = Opened(kFive);
  model.SaveScript("*A-1/Z");
  CaveModel again;
  ASSERT_TRUE(again.OpenCave(*model.Text()));
  EXPECT_EQ(again.Cave().Script, "*A-1/Z");
}

}  // namespace
}  // namespace zorik
