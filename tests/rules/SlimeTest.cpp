#include <gtest/gtest.h>

#include <algorithm>

#include "support/Scene.h"

namespace zorik::test {
namespace {

// A gem that rests on slime over a free cell, and deep room below.
const Picture kLoaded{"1DW", "WSW", "W.W", "W.W"};
constexpr Cell kAbove(1, 0), kSlimeCell(1, 1), kBelow(1, 2);

TEST(Slime, AtPermeabilityEightLetsARestingGemOutBelowInTheNextObjectScanFalling) {
  Hra hra = Play({"WWWWW",  //
                  "W1.DW", "WWWSW", "W...W", "WWWWW"},
                 {.permeability = 8});
  Pass(hra);
  EXPECT_EQ(Drawn(hra), (Picture{"WWWWW",  //
                                 "W1..W", "WWWSW", "W..dW", "WWWWW"}));
}

TEST(Slime, AtPermeabilityNoughtHoldsEverythingAndDrawsNothing) {
  Hra hra = Play({"1D", "WS", "W."}, {.permeability = 0});
  const std::size_t before = hra.RecordText.size();
  Pass(hra, 1);
  EXPECT_EQ(hra.Field({1, 0}), kGem);
  // The amoeba's draw, three of input and the line end.
  EXPECT_EQ(hra.RecordText.size() - before, 1U + 3U + 2U);
}

TEST(Slime, DrawsOneInAPowerOfTwoThatHalvesWithEachDegreeOfPermeability) {
  for (int permeability = 1; permeability <= 8; ++permeability) {
    Hra hra = Play(kLoaded, {.permeability = permeability});
    hra.RecordText.clear();
    for (int i = 0; i < 4000; ++i) {
      Put(hra, 1, 0, 'D');
      Put(hra, 1, 2, '.');
      Slime(hra, kSlimeCell);
    }
    std::vector<int> outcomes;
    for (const char letter : hra.RecordText) outcomes.push_back(static_cast<unsigned char>(letter) - 65);
    const auto [least, most] = std::minmax_element(outcomes.begin(), outcomes.end());
    EXPECT_EQ(*least, 1) << permeability;
    EXPECT_EQ(*most, 256 >> permeability) << permeability;
  }
}

TEST(Slime, DrawsInEveryTickAsLongAsItsLoadWaits) {
  Hra hra =
      PlayBack(kLoaded, {{.before = {2, 2}}, {.before = {16, 2}}, {.before = {1, 2}}}, {.permeability = 4});
  Pass(hra, 2);
  EXPECT_EQ(Drawn(hra), kLoaded);
  Pass(hra);
  EXPECT_EQ(Drawn(hra), (Picture{"1.W", "WSW", "WdW", "W.W"}));
  EXPECT_TRUE(Drained(hra));
}

TEST(Slime, DrawsNothingWhenTheCellBelowIsNotFree) {
  for (const char blocked : {';', 'W', 'R'}) {
    Hra hra = Play(kLoaded, {.permeability = 8});
    Put(hra, 1, 2, blocked);
    Foretell(hra, {});
    Slime(hra, kSlimeCell);
    EXPECT_TRUE(Drained(hra)) << blocked;
    EXPECT_EQ(hra.Field(kAbove), kGem) << blocked;
  }
  Hra vacated = Live({"1DW", "WSW", "W-W"}, {.permeability = 8});
  Slime(vacated, kSlimeCell);
  EXPECT_EQ(vacated.Field(kAbove), kGem);
}

TEST(Slime, LetsNothingThroughThatDoesNotRest) {
  for (const State state : {kFlat, kRounded, kFalling}) {
    Hra hra = Play(kLoaded, {.permeability = 8});
    hra.SetFieldState(kAbove, state);
    Foretell(hra, {});
    Slime(hra, kSlimeCell);
    EXPECT_TRUE(Drained(hra));
    EXPECT_EQ(hra.Field(kAbove), kGem);
    EXPECT_EQ(hra.Field(kBelow), kSpace);
  }
}

TEST(Slime, TakesInTheSameTickWhatHasJustComeToRestOnIt) {
  Hra hra = Live({"1dW", "WSW", "W.W", "W.W"}, {.permeability = 8});
  Pass(hra);
  EXPECT_EQ(Drawn(hra), (Picture{"1.W", "WSW", "WdW", "W.W"}));
}

TEST(Slime, TakesAlsoWhatHasComeToRestAsAMovedThing) {
  // The explosion ends as a gem, which counts as moved in this tick.
  Hra hra = Live({"1xW", "WSW", "W.W", "W.W"}, {.permeability = 8});
  hra.SetFieldMark(kAbove, 15);
  Pass(hra);
  EXPECT_EQ(Drawn(hra), (Picture{"1.W", "WSW", "WdW", "W.W"}));
}

TEST(Slime, PassesTheCodeFallingAndMovedAndClearsTheCellAboveAfterwards) {
  for (const char letter : {'D', 'R', '!', '@', '#', '$'}) {
    Diary diary;
    Hra hra = Play(kLoaded, {.permeability = 8}, &diary);
    Put(hra, 1, 0, letter);
    hra.SetFieldMark(kAbove, 3);
    hra.SetFieldMark(kBelow, 2);
    const std::uint16_t code = hra.Field(kAbove);
    diary.Clear();
    Slime(hra, kSlimeCell);
    EXPECT_EQ(hra.Field(kBelow), code);
    EXPECT_EQ(hra.FieldState(kBelow), kFalling);
    EXPECT_TRUE(hra.FieldMoved(kBelow));
    EXPECT_EQ(hra.FieldMark(kBelow), 2);
    EXPECT_EQ(hra.Field(kAbove), kSpace);
    EXPECT_EQ(hra.FieldState(kAbove), kFlat);
    EXPECT_EQ(hra.FieldMark(kAbove), 3);
    EXPECT_EQ(diary.entries, (std::vector<std::string>{"cell 1,2", "cell 1,0"}));
  }
}

TEST(Slime, LetsOneThingFallOneCellInATick) {
  Hra hra = Play(kLoaded, {.permeability = 8});
  Pass(hra);
  EXPECT_EQ(Drawn(hra), (Picture{"1.W", "WSW", "WdW", "W.W"}));
  Pass(hra);
  EXPECT_EQ(Drawn(hra), (Picture{"1.W", "WSW", "W.W", "WdW"}));
}

TEST(Slime, IsRepaintedInEveryTick) {
  Diary diary;
  Hra hra = Play({"1XX", "XSX", ";;;"}, {}, &diary);
  diary.Clear();
  Pass(hra);
  EXPECT_EQ(diary.Count("cell 1,1"), 1);
}

}  // namespace
}  // namespace zorik::test
