#include <gtest/gtest.h>

#include "data/Cp1250.h"
#include "editors/Formality.h"

namespace zorik {
namespace {

// Properties in which nothing has to be put right.
Formality Good() {
  Formality formality;
  formality.Name = "Test";
  formality.Description = "Popis";
  formality.Numbers = {30, 20, 120, 7, 10, 20, 15, 60, 3};
  return formality;
}

Formality With(CaveNumber number, int value) {
  Formality formality = Good();
  formality.Numbers[static_cast<std::size_t>(number)] = value;
  return formality;
}

TEST(Formality, LeavesGoodValuesAlone) {
  Formality formality = Good();
  EXPECT_TRUE(Correct(formality).empty());
  EXPECT_EQ(formality, Good());
}

TEST(Formality, PutsEachNumberWithinItsLimits) {
  struct Row {
    CaveNumber number;
    int value;
    int limit;
    TextId label;
  };
  constexpr Row kRows[] = {
      {CaveNumber::Width, 4, 5, TextId::CaveWidth},
      {CaveNumber::Width, 101, 100, TextId::CaveWidth},
      {CaveNumber::Height, 0, 5, TextId::CaveHeight},
      {CaveNumber::Height, 61, 60, TextId::CaveHeight},
      {CaveNumber::Time, 4, 5, TextId::TotalTime},
      {CaveNumber::MagicWallTime, 0, 1, TextId::MagicWallTime},
      {CaveNumber::MagicWallTime, 151, 150, TextId::MagicWallTime},
      {CaveNumber::AmoebaTime, 0, 1, TextId::AmoebaTime},
      {CaveNumber::AmoebaTime, 151, 150, TextId::AmoebaTime},
      {CaveNumber::SlimePermeability, 9, 8, TextId::SlimePermeability},
  };
  for (const Row& row : kRows) {
    Formality formality = With(row.number, row.value);
    const auto report = Correct(formality);
    EXPECT_EQ(formality.Number(row.number), row.limit);
    ASSERT_EQ(report.size(), 1U) << static_cast<int>(row.label);
    EXPECT_EQ(report[0], (Correction{.label = row.label, .limit = row.limit}));
  }
}

TEST(Formality, LetsTheLimitsThemselvesPass) {
  struct Row {
    CaveNumber number;
    int value;
  };
  constexpr Row kRows[] = {
      {CaveNumber::Width, 5},
      {CaveNumber::Width, 100},
      {CaveNumber::Height, 5},
      {CaveNumber::Height, 60},
      {CaveNumber::Time, 5},
      {CaveNumber::Time, 1909},
      {CaveNumber::GemsNeeded, 0},
      {CaveNumber::GemsNeeded, 1909},
      {CaveNumber::PointsBefore, 0},
      {CaveNumber::PointsBefore, 190},
      {CaveNumber::PointsAfter, 0},
      {CaveNumber::PointsAfter, 190},
      {CaveNumber::MagicWallTime, 1},
      {CaveNumber::MagicWallTime, 150},
      {CaveNumber::AmoebaTime, 1},
      {CaveNumber::AmoebaTime, 150},
      {CaveNumber::SlimePermeability, 0},
      {CaveNumber::SlimePermeability, 8},
  };
  for (const Row& row : kRows) {
    Formality formality = With(row.number, row.value);
    EXPECT_TRUE(Correct(formality).empty()) << static_cast<int>(row.number) << " " << row.value;
  }
}

TEST(Formality, ReportsNumbersInTheirOrderAndThenTheTexts) {
  Formality formality = Good();
  formality.Name = "zorik";
  formality.Description += ' ';
  formality.Numbers.fill(0);
  formality.Numbers[static_cast<std::size_t>(CaveNumber::SlimePermeability)] = 9;
  std::vector<TextId> labels;
  for (const Correction& line : Correct(formality)) labels.push_back(line.label);
  EXPECT_EQ(labels,
            (std::vector{TextId::CaveWidth, TextId::CaveHeight, TextId::TotalTime, TextId::MagicWallTime,
                         TextId::AmoebaTime, TextId::SlimePermeability, TextId::Name, TextId::Description}));
}

TEST(Formality, ReportsATextOfWhichOnlyTheFirstLetterChanged) {
  Formality formality = Good();
  formality.Description = "popis";
  EXPECT_EQ(Correct(formality), (std::vector<Correction>{{.label = TextId::Description}}));
  EXPECT_EQ(formality.Description, "Popis");
}

TEST(Formality, ShowsColouringsByTheirGroups) {
  for (int number = 0; number < 10; ++number) EXPECT_EQ(EntryOfColouring(number), 0U) << number;
  EXPECT_EQ(EntryOfColouring(10), 1U);
  EXPECT_EQ(EntryOfColouring(11), 2U);
  EXPECT_EQ(EntryOfColouring(12), 3U);
  EXPECT_EQ(EntryOfColouring(13), 4U);
  EXPECT_EQ(EntryOfColouring(14), 4U);
  EXPECT_EQ(EntryOfColouring(15), 0U);
  EXPECT_EQ(EntryOfColouring(190), 0U);
}

TEST(Formality, WritesTheNumberOfTheChosenColouring) {
  constexpr int kNumbers[] = {4, 10, 11, 12, 13};
  for (std::size_t entry = 0; entry < 5; ++entry) {
    Formality formality = Good();
    formality.Colouring = entry;
    CaveRecord cave;
    TakeFormality(formality, cave);
    EXPECT_EQ(cave.Colouring, kNumbers[entry]);
  }
}

TEST(Formality, GoesIntoACaveAndOutAgain) {
  Formality formality = Good();
  formality.Colouring = 3;
  CaveRecord cave;
  TakeFormality(formality, cave);
  EXPECT_EQ(cave.Name, "Test");
  EXPECT_EQ(cave.Description, "Popis");
  EXPECT_EQ(cave.Width, 30);
  EXPECT_EQ(cave.Height, 20);
  EXPECT_EQ(cave.Time, 120);
  EXPECT_EQ(cave.GemsNeeded, 7);
  EXPECT_EQ(cave.PointsBefore, 10);
  EXPECT_EQ(cave.PointsAfter, 20);
  EXPECT_EQ(cave.MagicWallTime, 15);
  EXPECT_EQ(cave.AmoebaTime, 60);
  EXPECT_EQ(cave.SlimePermeability, 3);
  EXPECT_EQ(FormalityOf(cave), formality);
}

TEST(Formality, NamesThePropertyThatAFileHasNoRoomFor) {
  CaveRecord cave;
  EXPECT_EQ(LabelWithoutRoom(cave), std::nullopt);
  cave.Name = std::string(190, 'x');
  cave.Description = std::string(190, 'x');
  cave.Time = 1909;
  cave.GemsNeeded = 1909;
  EXPECT_EQ(LabelWithoutRoom(cave), std::nullopt);
  cave.GemsNeeded = 1910;
  EXPECT_EQ(LabelWithoutRoom(cave), TextId::GemsNeeded);
  cave.Time = 1910;
  EXPECT_EQ(LabelWithoutRoom(cave), TextId::TotalTime);
  cave.Description += 'x';
  EXPECT_EQ(LabelWithoutRoom(cave), TextId::Description);
  cave.Name += 'x';
  EXPECT_EQ(LabelWithoutRoom(cave), TextId::Name);
}

// 30 x 20 x 5 / 22 is 136.4: 137 cells. In 60 s the amoeba gains 18 cells, the other 118 take 0.4 s each.
TEST(Petrifying, AddsTheFastTimeToTheSlowOne) {
  const Petrifying answer = ComputePetrifying(30, 20, 1, 60);
  EXPECT_EQ(answer.cells, 136);
  EXPECT_EQ(answer.time, 107);
}

// 5 x 5 x 5 / 22 is 5.7: 6 cells. 5 cells at 3.2 s take 16 s.
TEST(Petrifying, StaysSlowWhenTheAmoebaTimeIsLong) {
  const Petrifying answer = ComputePetrifying(5, 5, 1, 150);
  EXPECT_EQ(answer.cells, 5);
  EXPECT_EQ(answer.time, 16);
}

// 22 x 10 x 5 / 22 is 50. 16 s are 5 slow cells; as many as are wanted are not more than are wanted.
TEST(Petrifying, TakesTheWholeSlowTimeWhenThatJustSuffices) {
  const Petrifying answer = ComputePetrifying(22, 10, 45, 16);
  EXPECT_EQ(answer.cells, 5);
  EXPECT_EQ(answer.time, 16);
}

// 30 s are 9 slow cells and a bit; the bit counts where the ninth is the last.
TEST(Petrifying, TakesTheWholeSlowTimeWhereItsLastCellIsTheLastOfAll) {
  const Petrifying answer = ComputePetrifying(22, 10, 41, 30);
  EXPECT_EQ(answer.cells, 9);
  EXPECT_EQ(answer.time, 30);
}

// 3.2 x -3 is -9.6, which rounds down.
TEST(Petrifying, RoundsDownBelowZeroToo) {
  const Petrifying answer = ComputePetrifying(22, 10, 53, 16);
  EXPECT_EQ(answer.cells, -3);
  EXPECT_EQ(answer.time, -10);
}

TEST(SlimeOdds, HalveWithEachStep) {
  EXPECT_EQ(SlimeOdds(1), 127);
  EXPECT_EQ(SlimeOdds(3), 31);
  EXPECT_EQ(SlimeOdds(7), 1);
}

}  // namespace
}  // namespace zorik
