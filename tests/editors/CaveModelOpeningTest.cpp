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

// Opening

TEST(CaveModelOpening, OpensACaveAndHandsItBack) {
  const CaveModel model = Opened(kFive);
  EXPECT_EQ(LettersOf(model), kFive);
  EXPECT_EQ(*model.Text(), CaveTextOf(kFive));
  EXPECT_EQ(model.Amoebas(), 1);
  EXPECT_FALSE(model.CanUndo());
}

TEST(CaveModelOpening, KeepsWhatItHasWhenATextIsDamaged) {
  CaveModel model = Opened(kFive);
  EXPECT_FALSE(model.OpenCave("x"));
  EXPECT_EQ(LettersOf(model), kFive);
}

TEST(CaveModelOpening, CutsACaveTo80By50AndTellsBothSizesFirst) {
  Picture picture = Full(100, 60, 'D');
  picture[0][0] = '1';
  test::Numbers numbers;
  numbers.time = 3;
  CaveModel model;
  const auto report = model.OpenCave(CaveTextOf(picture, numbers));
  ASSERT_TRUE(report);
  EXPECT_EQ(*report, (std::vector<Correction>{{.label = TextId::CaveWidth, .limit = 80, .was = "100"},
                                              {.label = TextId::CaveHeight, .limit = 50, .was = "60"},
                                              {.label = TextId::TotalTime, .limit = 5, .was = "3"}}));
  EXPECT_EQ(model.Width(), 80);
  EXPECT_EQ(model.Height(), 50);
  EXPECT_EQ(model.SpoctiDrh(), 80 * 50 - 1);
  const auto kept = ParseCaveText(*model.Text());
  ASSERT_TRUE(kept);
  EXPECT_EQ(LettersOf(*kept), LettersOf(model));
}

TEST(CaveModelOpening, EnlargesASmallCaveTo5By5WithEmptySpace) {
  CaveModel model;
  const auto report = model.OpenCave(CaveTextOf({"1;", ";;", ";;"}));
  ASSERT_TRUE(report);
  EXPECT_EQ(*report, (std::vector<Correction>{{.label = TextId::CaveWidth, .limit = 5, .was = "2"},
                                              {.label = TextId::CaveHeight, .limit = 5, .was = "3"}}));
  const Picture enlarged = {"1;...", ";;...", ";;...", ".....", "....."};
  EXPECT_EQ(LettersOf(model), enlarged);
  EXPECT_EQ(*model.Text(), CaveTextOf(enlarged));
}

TEST(CaveModelOpening, OpensAnEmptyTextAsAnEmptyCave) {
  CaveModel model;
  const auto report = model.OpenCave("");
  ASSERT_TRUE(report);
  EXPECT_EQ(LettersOf(model), Full(5, 5, '.'));
  EXPECT_EQ(model.Cave().Time, 5);
}

TEST(CaveModelOpening, PutsPropertiesRightAtOpeningAndTells) {
  test::Numbers numbers;
  numbers.permeability = 9;
  numbers.time = 3;
  numbers.name = "zorik";
  CaveModel model;
  const auto report = model.OpenCave(CaveTextOf(kFive, numbers));
  ASSERT_TRUE(report);
  EXPECT_EQ(*report, (std::vector<Correction>{{.label = TextId::TotalTime, .limit = 5, .was = "3"},
                                              {.label = TextId::SlimePermeability, .limit = 8, .was = "9"},
                                              {.label = TextId::Name, .was = "zorik", .text = "Zor\xEDk"}}));
  EXPECT_EQ(model.Cave().SlimePermeability, 8);
  EXPECT_EQ(model.Cave().Name, "Zor\xEDk");
  EXPECT_FALSE(model.CanUndo());
}

TEST(CaveModelOpening, MakesAColouringTheNumberOfItsEntryAndTellsWhenTheColoursChange) {
  struct Row {
    int before;
    int after;
    std::optional<TextId> old;  // caption of the colours that are lost
  };
  constexpr Row kRows[] = {{0, 4, TextId::Hot},     {1, 4, TextId::Mystery}, {2, 4, TextId::Cold},
                           {3, 4, std::nullopt},    {4, 4, std::nullopt},    {5, 4, TextId::Cold},
                           {6, 4, TextId::Natural}, {7, 4, TextId::Natural}, {8, 4, TextId::Hot},
                           {9, 4, std::nullopt},    {10, 10, std::nullopt},  {11, 11, std::nullopt},
                           {12, 12, std::nullopt},  {13, 13, std::nullopt},  {14, 13, std::nullopt}};
  for (const Row& row : kRows) {
    test::Numbers numbers;
    numbers.colouring = row.before;
    CaveModel model;
    const auto report = model.OpenCave(CaveTextOf(kFive, numbers));
    ASSERT_TRUE(report);
    EXPECT_EQ(model.Cave().Colouring, row.after);
    const std::vector<Correction> told{
        {.label = TextId::Colouring, .entry = TextId::Classic, .wasEntry = row.old}};
    EXPECT_EQ(*report, row.old ? told : std::vector<Correction>{}) << row.before;
  }
}

TEST(CaveModelOpening, KeepsLettersThatItDoesNotKnow) {
  const Picture picture = {"WWWWW", "W1$.W", "WxC\xFFW", "W0.AW", "WWWWW"};
  const CaveModel model = Opened(picture);
  EXPECT_EQ(*model.Text(), CaveTextOf(picture));
}

TEST(CaveModelOpening, MakesACellThatWasNeverSetEmptySpace) {
  Picture picture = kFive;
  picture[2][2] = '\0';
  picture[4][4] = '\0';
  const CaveModel model = Opened(picture);
  EXPECT_EQ(LettersOf(model), (Picture{"WWWWW", "W1..W", "W...W", "W..AW", "WWWW."}));
}

TEST(CaveModelOpening, ReadsADogWithoutANumberAsTheFirst) {
  const CaveModel model = Opened({"WWWWW", "WH..W", "W...W", "W...W", "WWWWW"});
  EXPECT_EQ(model.At(1, 1), '1');
  EXPECT_EQ(model.MissingDog(), std::nullopt);
}

TEST(CaveModelOpening, LeavesTheLastOfSeveralFirstDogsWhenOneHasNoNumberAndTells) {
  struct Row {
    Picture before;
    Picture after;
    const char* count;
  };
  const Row kRows[] = {
      {{"WWWWW", "WH..W", "W.1.W", "W...W", "WWWWW"}, {"WWWWW", "W...W", "W.1.W", "W...W", "WWWWW"}, "2"},
      {{"WWWWW", "W1..W", "WH.2W", "W...W", "WWWWW"}, {"WWWWW", "W...W", "W1.2W", "W...W", "WWWWW"}, "2"},
      {{"WWWWW", "WHH.W", "WH..W", "W...W", "WWWWW"}, {"WWWWW", "W...W", "W1..W", "W...W", "WWWWW"}, "3"},
  };
  for (const Row& row : kRows) {
    CaveModel model;
    const auto report = model.OpenCave(CaveTextOf(row.before));
    ASSERT_TRUE(report);
    EXPECT_EQ(*report, (std::vector<Correction>{{.label = TextId::Dog, .limit = 1, .was = row.count}}));
    EXPECT_EQ(LettersOf(model), row.after);
    EXPECT_EQ(*model.Text(), CaveTextOf(row.after));
  }
}

TEST(CaveModelOpening, LeavesAFirstDogThatIsNotCutOff) {
  Picture picture = Full(82, 6, ';');
  picture[1][1] = 'H';
  picture[5][81] = '1';
  CaveModel model;
  ASSERT_TRUE(model.OpenCave(CaveTextOf(picture)));
  EXPECT_EQ(model.At(1, 1), '1');
  EXPECT_EQ(model.MissingDog(), std::nullopt);
}

TEST(CaveModelOpening, PaintsALetterWithoutATileLikeTheCellBeforeItInItsColumn) {
  const CaveModel model = Opened({"$WWWC", "W1$.W", "WxC\xFFW", "W0.AW", "RWWWW"});
  EXPECT_EQ(model.LookAt(0, 0), '.') << "nothing has been painted before";
  EXPECT_EQ(model.LookAt(1, 2), '1') << "below the dog";
  EXPECT_EQ(model.LookAt(1, 3), '1') << "below that";
  EXPECT_EQ(model.LookAt(2, 1), 'W') << "below steel";
  EXPECT_EQ(model.LookAt(3, 2), '.') << "below empty space";
  EXPECT_EQ(model.LookAt(4, 0), 'W') << "after the end of the column before";
}

TEST(CaveModelOpening, PaintsALetterWithoutATileBelowADogLikeThatDog) {
  const CaveModel model = Opened({"12345", ".$.CC", ".....", ".....", "....."});
  EXPECT_EQ(model.LookAt(1, 1), '2');
  EXPECT_EQ(model.LookAt(3, 1), '4');
  EXPECT_EQ(model.LookAt(4, 1), '5');
}

TEST(CaveModelOpening, PaintsEachLetterOfThePaletteAsItself) {
  for (const ObjectLetter& object : kObjectLetters) {
    if (object.palette < 0 || object.letter == 'H') continue;
    CaveModel model = Opened(Full(5, 5, 'W'));
    model.Draw(2, 2, object.letter);
    EXPECT_EQ(model.LookAt(2, 2), object.letter);
  }
}

TEST(CaveModelOpening, OpensTheLargestCaveOfTheEditor) {
  const Picture picture = Full(80, 50, 'A');
  const CaveModel model = Opened(picture);
  EXPECT_EQ(model.Amoebas(), 4000);
  EXPECT_EQ(*model.Text(), CaveTextOf(picture));
}

// What an author only looked at

TEST(CaveModelOpening, HandsBackByteForByteWhatWasNotEdited) {
  Picture odd = {"WWWWW", "WH$.W", "WxC\xFFW", "W0.AW", "WWWWW"};
  odd[3][2] = '\0';
  test::Numbers numbers;
  numbers.colouring = 9;
  const std::string whole = CaveTextOf(odd, numbers);
  for (const std::string& text : {whole, whole + "-Q", whole.substr(0, whole.size() - 7)}) {
    CaveModel model = [&text] {
      CaveModel opened;
      const auto report = opened.OpenCave(text);
      EXPECT_TRUE(report && report->empty());
      return opened;
    }();
    EXPECT_EQ(*model.Text(), text);
    model.Draw(2, 2, 'R');
    EXPECT_NE(*model.Text(), text);
    model.Undo();
    EXPECT_EQ(*model.Text(), text);
    model.Redo();
    model.Restore();
    EXPECT_EQ(*model.Text(), text);
  }
}

TEST(CaveModelOpening, HandsBackByteForByteWhatTheListOfChangesDoesNotName) {
  Picture odd = {"WWWWW", "WH$.W", "WxC\xFFW", "W..AW", "WWWWW"};
  odd[3][2] = '\0';
  test::Numbers numbers;
  numbers.colouring = 14;
  numbers.time = 4;
  CaveModel model;
  ASSERT_EQ(model.OpenCave(CaveTextOf(odd, numbers))->size(), 1U);
  numbers.time = 5;
  EXPECT_EQ(*model.Text(), CaveTextOf(odd, numbers));
}

TEST(CaveModelOpening, ForgetsWhatWasOpenedBefore) {
  CaveModel model = Opened(kFive);
  const Picture other = Full(7, 6, ';');
  ASSERT_TRUE(model.OpenCave(CaveTextOf(other)));
  EXPECT_EQ(*model.Text(), CaveTextOf(other));
}

TEST(CaveModelOpening, CanBeLeftWhenItsCleanTextsWouldNotFit) {
  // With each of 22 words a letter longer, 186 characters become 208.
  std::string description = "A";
  for (int i = 0; i < 22; ++i) description += " diamant";
  description += std::string(186 - description.size(), 'x');
  CaveRecord cave = *ParseCaveText(CaveTextOf(kFive));
  cave.Name = "Diamant" + std::string(183, 'x');
  cave.Description = description;
  const std::string text = *BuildCaveText(cave);
  CaveModel model;
  const auto report = model.OpenCave(text);
  ASSERT_TRUE(report);
  EXPECT_TRUE(report->empty());
  ASSERT_TRUE(model.Text()) << "nobody could leave it";
  EXPECT_EQ(*model.Text(), text);
  model.Draw(2, 2, 'R');
  ASSERT_TRUE(model.Text());
  EXPECT_EQ(ParseCaveText(*model.Text())->Description, description);
}

}  // namespace
}  // namespace zorik
