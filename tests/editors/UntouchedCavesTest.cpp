// Collections that are opened, looked at cave by cave, and saved.
#include <algorithm>

#include "data/Collection.h"
#include "data/CollectionFaults.h"
#include "data/Result.h"
#include "editors/Letters.h"
#include "support/RandomCave.h"

namespace zorik {
namespace {

// Any cave that a file may hold: sizes, numbers, texts and letters of all kinds.
CaveRecord AnyCave(Chance& chance) {
  const auto below = [&chance](int limit) {
    return static_cast<int>(chance.Below(static_cast<std::uint32_t>(limit)));
  };
  const auto bytes = [&](int most) {
    std::string text(static_cast<std::size_t>(below(most + 1)), '\0');
    for (char& byte : text) byte = static_cast<char>(below(256));
    return text;
  };
  CaveRecord cave;
  cave.Name = bytes(190);
  cave.Description = bytes(190);
  cave.Width = static_cast<std::uint8_t>(below(103));
  cave.Height = static_cast<std::uint8_t>(below(63));
  cave.Time = static_cast<std::int16_t>(below(1910));
  cave.GemsNeeded = static_cast<std::int16_t>(below(1910));
  for (std::uint8_t* const number : {&cave.PointsBefore, &cave.PointsAfter, &cave.MagicWallTime,
                                     &cave.AmoebaTime, &cave.SlimePermeability}) {
    *number = static_cast<std::uint8_t>(below(below(2) == 0 ? 9 : 191));
  }
  cave.Colouring = static_cast<std::uint8_t>(below(16));
  constexpr std::string_view kLetters(".;RD1239XW!TAMK#%SLFH$C\0?", 25);
  for (auto& column : cave.Cells) {
    for (char& cell : column) cell = kLetters[static_cast<std::size_t>(below(25))];
  }
  if (below(2) == 0) cave.Script = bytes(300);
  return cave;
}

bool IsTold(const std::vector<Correction>& report, TextId label) {
  return std::any_of(report.begin(), report.end(),
                     [label](const Correction& line) { return line.label == label; });
}

void ExpectOnlyTold(const CaveRecord& before, const CaveRecord& after,
                    const std::vector<Correction>& report) {
  const Formality was = FormalityOf(before);
  const Formality is = FormalityOf(after);
  for (const NumberRow& row : kNumberRows) {
    EXPECT_EQ(was.Number(row.number) != is.Number(row.number), IsTold(report, row.label)) << row.control;
  }
  EXPECT_EQ(before.Name != after.Name, IsTold(report, TextId::Name));
  EXPECT_EQ(before.Description != after.Description, IsTold(report, TextId::Description));
  EXPECT_EQ(before.Colouring != after.Colouring, IsTold(report, TextId::Colouring));
  EXPECT_EQ(before.Script, after.Script);
  if (IsTold(report, TextId::Dog)) return;
  for (std::size_t x = 0; x < std::min(before.Width, after.Width); ++x) {
    for (std::size_t y = 0; y < std::min(before.Height, after.Height); ++y) {
      EXPECT_EQ(before.Cells[x][y], after.Cells[x][y]);
    }
  }
}

TEST(UntouchedCaves, AreHandedBackAsTheyAreButForWhatIsTold) {
  Chance chance(11);
  int untold = 0;
  for (int round = 0; round < test::HowMany(500); ++round) {
    const std::string text = *BuildCaveText(AnyCave(chance));
    CaveModel model;
    const auto report = model.OpenCave(text);
    ASSERT_TRUE(report);
    if (report->empty()) {
      ++untold;
      EXPECT_EQ(*model.Text(), text);
      continue;
    }
    const auto back = ParseCaveText(*model.Text());
    ASSERT_TRUE(back);
    ExpectOnlyTold(*ParseCaveText(text), *back, *report);
    CaveModel again;
    EXPECT_TRUE(again.OpenCave(*model.Text())->empty()) << "what was put right once is right";
  }
  EXPECT_LT(untold, 500);
}

TEST(UntouchedCaves, OfRandomRunsAreHandedBackByteForByte) {
  int untold = 0;
  for (int number = 0; number < test::HowMany(200); ++number) {
    const std::string text = test::MakeRun(static_cast<std::uint64_t>(number)).caveText;
    CaveModel model;
    const auto report = model.OpenCave(text);
    ASSERT_TRUE(report);
    if (!report->empty()) continue;
    ++untold;
    EXPECT_EQ(*model.Text(), text);
  }
  EXPECT_GT(untold, 0);
}

TEST(UntouchedCaves, StayInTheirCollectionWhenItIsSaved) {
  Chance chance(12);
  for (int round = 0; round < test::HowMany(40); ++round) {
    EditedCollection collection;
    collection.Name = "Sada";
    collection.CongratulationText = "Hura";
    for (std::uint32_t i = chance.Below(20) + 1; i > 0; --i) {
      collection.CaveList.push_back(*BuildCaveText(AnyCave(chance)));
    }
    const std::string file = *BuildCollection(collection, chance);
    EXPECT_TRUE(FaultsOfCollection(file).empty());
    auto opened = ReadForEditor(file);
    ASSERT_TRUE(opened);
    for (std::string& cave : opened->CaveList) {
      CaveModel model;
      if (model.OpenCave(cave)->empty()) cave = *model.Text();
    }
    EXPECT_EQ(PlainLines(*BuildCollection(*opened, chance)), PlainLines(file));
  }
}

}  // namespace
}  // namespace zorik
