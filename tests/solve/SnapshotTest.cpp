#include <gtest/gtest.h>

#include "solve/Move.h"
#include "solve/Snapshot.h"
#include "support/RandomCave.h"
#include "support/Scene.h"
#include "trace/Trace.h"

namespace zorik::test {
namespace {

TEST(Snapshot, OfARunGoesOnAsTheRunDid) {
  const Picture picture{"WWWWWWWWWWWW", "W1;;R;D;FF.W", "W;;;;;;;...W", "W;A;D;U.;;;W",
                        "W;;;XXX;;;;W", "W;R;;;;;;;;T", "WWWWWWWWWWWW"};
  Hra run = Play(picture, {.needed = 3});
  const Snapshots snapshots(run);
  Chance keys(5);
  const auto pass = [&keys](Hra& hra, int ticks) {
    std::string trace;
    for (int i = 0; i < ticks; ++i) {
      Tick(hra, KeysOf(static_cast<Move>(keys.Below(9))));
      trace += TickLine(hra) + "\n";
    }
    return trace;
  };
  pass(run, 37);
  const auto kept = snapshots.Keep(run);
  const Chance then = keys;
  const std::string first = pass(run, 200);
  keys = then;
  snapshots.Restore(run, kept);
  EXPECT_EQ(pass(run, 200), first);
}

TEST(Snapshot, OfABeginningTakesLittle) {
  const Hra run = Play({"WWWWWWWWWWWW", "W1;;R;D;FF.W", "WWWWWWWWWWWW"});
  const Snapshots snapshots(run);
  EXPECT_LT(Snapshots::SizeOf(snapshots.Keep(run)), sizeof(RunFacts) + 200);
}

TEST(Snapshot, TellsHowMuchItTakes) {
  Hra run = Play({"WWWWWWWWWWWW", "W1;;R;D;FF.W", "W;;;;;;;...W", "W;A;D;U.;;;W", "WWWWWWWWWWWW"});
  const Snapshots snapshots(run);
  for (int i = 0; i < 50; ++i) Tick(run, {});
  const auto kept = snapshots.Keep(run);
  EXPECT_GT(kept.lines.size(), 3U);
  EXPECT_GE(Snapshots::SizeOf(kept), sizeof(RunFacts) + kept.lines.size() * 2 + kept.words.size() * 8);
}

TEST(Snapshot, BringsBackTheScoreAndTheGems) {
  Hra run = Play({"WWWWWW", "W1DD;W", "WWWWWW"}, {.needed = 1});
  const Snapshots snapshots(run);
  Pass(run, 1, "R");
  const int score = run.Score;
  const Picture drawn = Drawn(run);
  const auto kept = snapshots.Keep(run);
  Pass(run, 1, "R");
  ASSERT_NE(run.Score, score);
  snapshots.Restore(run, kept);
  EXPECT_EQ(run.Score, score);
  EXPECT_EQ(run.GemsCollected, 1);
  EXPECT_EQ(Drawn(run), drawn);
}

// A plan that is played again makes it anew.
TEST(Snapshot, HoldsNothingOfTheRecord) {
  Hra run = Play({"WWWWWW", "W1;;;W", "WWWWWW"});
  const Snapshots snapshots(run);
  Pass(run, 3, "R");
  ASSERT_FALSE(run.RecordText.empty());
  const auto kept = snapshots.Keep(run);
  EXPECT_TRUE(kept.facts.RecordText.empty());
  Pass(run, 2);
  snapshots.Restore(run, kept);
  EXPECT_TRUE(run.RecordText.empty());
  EXPECT_EQ(UnitCell(run, 1), Cell(4, 1));
}

}  // namespace
}  // namespace zorik::test
