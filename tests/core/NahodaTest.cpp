#include <gtest/gtest.h>

#include <array>

#include "data/Result.h"
#include "support/Scene.h"

namespace zorik::test {
namespace {

// A run in which draws can be made by hand.
Hra InPlay() {
  Hra hra = Play({"1"});
  hra.RecordText.clear();
  return hra;
}

TEST(Nahoda, AnswersEachNumberFromOneToTheRangeAndNoOther) {
  Hra hra = InPlay();
  std::array<int, 7> count{};
  for (int i = 0; i < 6000; ++i) {
    const int drawn = Nahoda(hra, 6);
    ASSERT_GE(drawn, 1);
    ASSERT_LE(drawn, 6);
    ++count[static_cast<std::size_t>(drawn)];
  }
  for (std::size_t n = 1; n <= 6; ++n) EXPECT_NEAR(count[n], 1000, 150) << n;
}

TEST(Nahoda, WritesEachOutcomeIntoTheRecordAsTheCharacter65Above) {
  Hra hra = InPlay();
  std::string expected;
  for (int i = 0; i < 200; ++i) expected += static_cast<char>(Nahoda(hra, 190) + 65);
  EXPECT_EQ(hra.RecordText, expected);
}

TEST(Nahoda, OfNoughtIsOne) {
  Hra hra = InPlay();
  EXPECT_EQ(Nahoda(hra, 0), 1);
  EXPECT_EQ(hra.RecordText, "B");
}

TEST(Nahoda, OfAnyRangeAbove190IsAtMost190AndFitsAByte) {
  Hra hra = InPlay();
  int highest = 0;
  for (int i = 0; i < 5000; ++i) highest = std::max(highest, Nahoda(hra, i % 2 == 0 ? 200 : 6000));
  EXPECT_EQ(highest, 190);
  EXPECT_EQ(hra.RecordText.size(), 5000U);
}

TEST(Nahoda, WritesInPlayAlsoWhenNothingIsRecorded) {
  Hra hra = InPlay();
  hra.Recording = false;
  Nahoda(hra, 4);
  EXPECT_EQ(hra.RecordText.size(), 1U);
}

TEST(Nahoda, ReadsInAReplayWhateverTheRangeAndWritesNothing) {
  Hra hra = InPlay();
  Foretell(hra, {7, 190, 0, 1});
  const std::string text = hra.RecordText;
  EXPECT_EQ(Nahoda(hra, 4), 7);
  EXPECT_EQ(Nahoda(hra, 1), 190);
  EXPECT_EQ(Nahoda(hra, 32), 0);
  EXPECT_EQ(hra.RecordLine, "B");
  EXPECT_EQ(Nahoda(hra, 0), 1);
  EXPECT_TRUE(Drained(hra));
  EXPECT_EQ(hra.RecordText, text);
}

TEST(Nahoda, InAReplayWithNothingLeftAnswersNoughtAndTellsSo) {
  Hra hra = InPlay();
  Foretell(hra, {});
  EXPECT_EQ(Nahoda(hra, 4), 0);
  EXPECT_TRUE(hra.RanDry);
}

TEST(Nahoda, DrawsNothingFromTheGamesChanceInAReplay) {
  Hra hra = InPlay();
  Chance before = hra.Luck;
  Foretell(hra, {3});
  Nahoda(hra, 4);
  EXPECT_EQ(hra.Luck.Below(1000000), before.Below(1000000));
}

TEST(PseudoNahoda, WritesWhatNahodaReadsBackAsOneMore) {
  for (const int value : {-1, 0, 5, 99, 189}) {
    Hra hra = InPlay();
    PseudoNahoda(hra, value);
    ASSERT_EQ(hra.RecordText.size(), 1U);
    EXPECT_EQ(static_cast<unsigned char>(hra.RecordText[0]), value + 1 + 65);
    hra.Kind = RunKind::Replay;
    hra.RecordLine = hra.RecordText;
    EXPECT_EQ(Nahoda(hra, 3) - 1, value);
  }
}

// Scrambling a record and painting draw from the other stream.
TEST(Decoration, NeverTouchesTheChanceOfTheGame) {
  Hra hra = InPlay();
  Chance before = hra.Luck;
  SaveRecord(hra, 100);
  ASSERT_TRUE(PaintCave(hra, hra.CaveText, RunKind::Play));
  EXPECT_EQ(hra.Luck.Below(1000000), before.Below(1000000));
}

}  // namespace
}  // namespace zorik::test
