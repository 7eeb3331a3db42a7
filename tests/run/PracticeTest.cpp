#include <gtest/gtest.h>

#include <memory>

#include "data/Result.h"
#include "run/Timeline.h"
#include "support/Scene.h"

namespace zorik::test {
namespace {

// Gives another seed for each step, and counts how often it was asked.
struct Seeds : Stage {
  std::optional<std::uint64_t> Reseed() override { return ++given; }
  std::uint64_t given = 0;
};

std::unique_ptr<Hra> Practise(const Picture& picture, const Numbers& numbers, Stage& stage) {
  auto run = std::make_unique<Hra>(5);
  run->SetStage(stage);
  EXPECT_TRUE(PaintCave(*run, CaveTextOf(picture, numbers), RunKind::Practice));
  return run;
}

TEST(Practice, TakesItsChanceFromNobodyElse) {
  Seeds seeds;
  auto run = Practise({"1;;;;;;;;;"}, {}, seeds);
  Pass(*run, 5, "R");
  EXPECT_EQ(seeds.given, 0U);
  ASSERT_TRUE(PaintCave(*run, run->CaveText, RunKind::Play));
  Pass(*run, 5, "R");
  EXPECT_EQ(seeds.given, 5U);
}

TEST(Practice, HasNoRecordEvenOfAWinAndEvenAfterARunInPlay) {
  Seeds seeds;
  auto run = Practise({"1DT"}, {.needed = 1}, seeds);
  ASSERT_TRUE(PaintCave(*run, run->CaveText, RunKind::Play));
  ASSERT_TRUE(run->Recording);
  ASSERT_TRUE(PaintCave(*run, run->CaveText, RunKind::Practice));
  Pass(*run, 1, "R");
  Pass(*run, 1);
  EXPECT_EQ(run->RecordText, "");
  EXPECT_EQ(Pass(*run, 1, "R"), TickEnd::Won);
  ASSERT_TRUE(run->Win);
  EXPECT_EQ(SaveRecord(*run, run->Win->Score), "");
}

TEST(Practice, StaysPracticeWhenItIsBegunAgain) {
  Seeds seeds;
  auto run = Practise({"1;;;;"}, {}, seeds);
  Pass(*run, 2, "R");
  RestartCave(*run);
  EXPECT_TRUE(run->Practising());
  EXPECT_EQ(run->Ticks, 0);
}

TEST(Practice, ThatWasTakenOverBeginsAgainWithItsCave) {
  auto run = std::make_unique<Hra>(PlayBack({"1;;;;"}, {{.before = {9}, .direction = 39, .after = {2}},
                                                        {.before = {9}, .direction = 39, .after = {2}}}));
  Pass(*run, 1);
  TakeOver(*run);
  EXPECT_EQ(Pass(*run, 1, "R"), TickEnd::Running);
  EXPECT_EQ(run->Dog[1].x, 2);
  RestartCave(*run);
  EXPECT_TRUE(run->Practising());
  EXPECT_EQ(run->Dog[1].x, 0);
}

TEST(TakingOver, LeavesWhatIsNoReplayAsItIs) {
  auto run = std::make_unique<Hra>(Play({"1;;;;"}));
  TakeOver(*run);
  EXPECT_EQ(run->Kind, RunKind::Play);
}

TEST(AReplay, AsksForNoSeeds) {
  Seeds seeds;
  auto run = std::make_unique<Hra>(
      PlayBack({"1;;;;"}, {{.before = {9}, .direction = 39, .after = {2}}}, {}, &seeds));
  Pass(*run, 1);
  EXPECT_EQ(run->Dog[1].x, 1);
  EXPECT_EQ(seeds.given, 0U);
}

TEST(TakingOver, LeavesNothingOfTheRecord) {
  auto run = std::make_unique<Hra>(PlayBack({"1;;;;"}, {{.before = {9}, .direction = 39}, {.before = {9}}}));
  Pass(*run, 1);
  ASSERT_TRUE(run->RanDry) << "the step asks for an outcome that the record does not hold";
  TakeOver(*run);
  EXPECT_TRUE(run->Practising());
  EXPECT_FALSE(run->RanDry);
  EXPECT_TRUE(run->Record.AtEnd());
  EXPECT_TRUE(run->RecordText.empty());
}

}  // namespace
}  // namespace zorik::test
