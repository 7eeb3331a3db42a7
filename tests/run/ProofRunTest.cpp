#include <gtest/gtest.h>

#include <filesystem>

#include "core/Machine.h"
#include "data/Files.h"
#include "data/Lines.h"
#include "data/RecordFile.h"
#include "data/Result.h"
#include "run/ProofRun.h"
#include "run/Proofs.h"
#include "solve/Walks.h"

namespace zorik::test {
namespace {

const Walk kPlain{{"WWWWWWWWW", "W1;D;;;;T", "W;;;;;;;W", "WWWWWWWWW"}, {.needed = 1}, "RRRRRRR"};

// The tick and the cell at which it breaks, and why.
ProofFlaw FlawOf(const ProofVerdict& verdict) {
  EXPECT_FALSE(verdict.wins);
  EXPECT_TRUE(verdict.flaw);
  return verdict.flaw.value_or(ProofFlaw{ProofBreak::NoCave, -1, {}, 1, 0});
}

bool Wins(const std::string& record) {
  Hra hra;
  if (!Replay(hra, record)) return false;
  while (Tick(hra, {}) == TickEnd::Running) continue;
  return hra.Win.has_value();
}

TEST(AProof, WinsInItsOwnCaveInTheSameTick) {
  const ProofVerdict verdict = JudgedIn(kPlain, kPlain.picture);
  EXPECT_TRUE(verdict.wins);
  EXPECT_EQ(verdict.ticks, 7);
  EXPECT_FALSE(verdict.flaw);
  EXPECT_EQ(verdict.otherChance, 0);
}

TEST(AProof, IsNoneWhereTheRecordDoesNotWin) {
  EXPECT_FALSE(Proof::Read("rubbish"));
  const std::string record = RecordOf(kPlain);
  EXPECT_FALSE(Proof::Read(record.substr(0, record.rfind("\r\n"))));
}

TEST(AProof, LeavesWhoIsSteeredWhereItsRecordNamesNobody) {
  std::string record = RecordOf(kPlain);
  const std::string lineEnd = "AB\r\n";  // no action, unit 1
  for (std::size_t at = record.find(lineEnd); at != std::string::npos; at = record.find(lineEnd, at))
    record.erase(at + 1, 1);
  ASSERT_TRUE(Wins(record));
  const auto proof = Proof::Read(record);
  ASSERT_TRUE(proof);
  ASSERT_EQ((*proof)->Ticks().size(), 7U);
  for (const ProofTick& tick : (*proof)->Ticks()) EXPECT_EQ(tick.unit, 1);
}

TEST(AProof, StillWinsWhereSomethingWasPutBesideItsWay) {
  EXPECT_TRUE(JudgedIn(kPlain, {"WWWWWWWWW", "W1;D;;;;T", "W;RR;X;;W", "WWWWWWWWW"}).wins);
}

TEST(AProof, BreaksInTheTickAndTheCellWhereItsWayIsWalledUp) {
  const ProofFlaw flaw = FlawOf(JudgedIn(kPlain, {"WWWWWWWWW", "W1;D;X;;T", "W;;;;;;;W", "WWWWWWWWW"}));
  EXPECT_EQ(flaw, (ProofFlaw{ProofBreak::NoEffect, 4, Cell(5, 1), 1, 'X'}));
}

TEST(AProof, BreaksBeforeTheWallInEachDirection) {
  const Walk left{{"WWWWWWWWW", "T;;;;D;1W", "WWWWWWWWW"}, {.needed = 1}, "LLLLLLL"};
  EXPECT_EQ(FlawOf(JudgedIn(left, {"WWWWWWWWW", "T;;X;D;1W", "WWWWWWWWW"})),
            (ProofFlaw{ProofBreak::NoEffect, 4, Cell(3, 1), 1, 'X'}));
  const Walk down{{"W1W", "WDW", "W;W", "WTW"}, {.needed = 1}, "DDD"};
  EXPECT_EQ(FlawOf(JudgedIn(down, {"W1W", "WDW", "WXW", "WTW"})),
            (ProofFlaw{ProofBreak::NoEffect, 2, Cell(1, 2), 1, 'X'}));
  const Walk up{{"WTW", "W;W", "WDW", "W1W"}, {.needed = 1}, "UUU"};
  EXPECT_EQ(FlawOf(JudgedIn(up, {"WTW", "WXW", "WDW", "W1W"})),
            (ProofFlaw{ProofBreak::NoEffect, 2, Cell(1, 1), 1, 'X'}));
}

TEST(AProof, BreaksWhereItsDogDies) {
  const Walk walk{{"WWWWWWWWW", "W;;;;;;;W", "W1;D;;;;T", "WWWWWWWWW"}, {.needed = 1}, "RR....RRRRR"};
  const ProofVerdict verdict = JudgedIn(walk, {"WWWFWWWWW", "W;;.W;;;W", "W1;D;;;;T", "WWWWWWWWW"});
  const ProofFlaw flaw = FlawOf(verdict);
  EXPECT_EQ(flaw.why, ProofBreak::DogDies);
  EXPECT_LT(flaw.tick, static_cast<int>(walk.keys.size()));
  EXPECT_EQ(verdict.ticks, flaw.tick) << "nobody is left who could go on";
  EXPECT_EQ(flaw.cell, Cell(3, 2));
}

TEST(AProof, BreaksAtAFinishThatStaysShutAndNamesTheGemThatWasMissing) {
  const ProofVerdict verdict = JudgedIn(kPlain, {"WWWWWWWWW", "W1;;;;;;T", "W;;;;;;;W", "WWWWWWWWW"});
  EXPECT_EQ(FlawOf(verdict), (ProofFlaw{ProofBreak::FinishShut, 7, Cell(8, 1), 1, 'T'}));
  EXPECT_EQ(verdict.missing, (ProofFlaw{ProofBreak::Missing, 2, Cell(3, 1), 1, ';'}));
}

TEST(AProof, BreaksAtTheFinishWhereMoreGemsAreNeeded) {
  const ProofVerdict verdict = JudgedIn(kPlain, kPlain.picture, {.needed = 2});
  EXPECT_EQ(FlawOf(verdict).why, ProofBreak::FinishShut);
  EXPECT_FALSE(verdict.missing);
}

TEST(AProof, BreaksWhereItsFinishIsGone) {
  EXPECT_EQ(FlawOf(JudgedIn(kPlain, {"WWWWWWWWW", "W1;D;;;;W", "W;;;;;;;T", "WWWWWWWWW"})),
            (ProofFlaw{ProofBreak::NoEffect, 7, Cell(8, 1), 1, 'W'}));
}

TEST(AProof, BreaksInTheTickInWhichTheTimeIsUp) {
  const Walk slow{kPlain.picture, {.time = 5, .needed = 1}, "R............RRRRRR"};
  EXPECT_TRUE(JudgedIn(slow, kPlain.picture).wins);
  const ProofFlaw flaw = FlawOf(JudgedIn(slow, kPlain.picture, {.time = 1, .needed = 1}));
  EXPECT_EQ(flaw.why, ProofBreak::TimeUp);
  EXPECT_EQ(flaw.tick, 11);
}

TEST(AProof, BreaksAtOnceInACaveThatCannotBePlayed) {
  EXPECT_EQ(FlawOf(Judged(ProofOf(kPlain), "")).why, ProofBreak::NoCave);
  EXPECT_EQ(FlawOf(JudgedIn(kPlain, {"WWWWWWWWW", "W;;D;;;;T", "W;;;;;;;W", "WWWWWWWWW"})).tick, 1)
      << "there is no dog";
  // What is nowhere counts as if it were in the first corner.
  const Walk waits{kPlain.picture, {.needed = 1}, ".RRRRRRR"};
  const Picture nobody{"WWWWWWWWW", "W;;D;;;;T", "W;;;;;;;W", "WWWWWWWWW"};
  EXPECT_EQ(FlawOf(JudgedIn(kPlain, nobody)).cell, Cell(1, 0)) << "a step to the right of it";
  EXPECT_EQ(FlawOf(JudgedIn(waits, nobody)).cell, Cell(0, 0));
}

TEST(AProof, TellsTheWayOfItsDogsAndWhatItTouches) {
  const ProofVerdict verdict = JudgedIn(kPlain, kPlain.picture);
  ASSERT_EQ(verdict.way.size(), 8U);
  for (int tick = 0; tick < 8; ++tick) {
    EXPECT_EQ(verdict.way[static_cast<std::size_t>(tick)].cell, Cell(1 + tick, 1));
    EXPECT_EQ(verdict.way[static_cast<std::size_t>(tick)].tick, tick);
  }
  for (int x = 1; x < 9; ++x) EXPECT_TRUE(verdict.touched[Cell(x, 1).place()]) << x;
  for (int x = 1; x < 8; ++x) EXPECT_FALSE(verdict.touched[Cell(x, 2).place()]) << x;
}

TEST(AProof, TellsOfItsWayNoFurtherThanItHolds) {
  const Walk walk{{"WWWWWWWWW", "W1;;;D;;W", "W;;;;;;;T", "WWWWWWWWW"}, {.needed = 1}, "RRRRDRRR"};
  EXPECT_TRUE(JudgedIn(walk, walk.picture).wins);
  const ProofVerdict verdict = JudgedIn(walk, {"WWWWWWWWW", "W1;;XD;;W", "W;;;;;;;T", "WWWWWWWWW"});
  EXPECT_EQ(FlawOf(verdict).cell, Cell(4, 1));
  EXPECT_EQ(verdict.way.back().cell, Cell(3, 1));
  EXPECT_FALSE(verdict.touched[Cell(3, 2).place()]) << "where the keys lead from there on";
}

TEST(AProof, IsJudgedTheSameInOneGoAndInSlices) {
  const auto proof = ProofOf(kPlain);
  ProofRun run(proof, CaveTextOf(kPlain.picture, kPlain.numbers));
  EXPECT_FALSE(run.Go(6));
  EXPECT_FALSE(run.Go(0));
  EXPECT_TRUE(run.Go(1));
  EXPECT_EQ(run.Verdict().ticks, 7);
}

// Amoeba and a dragonfly, which draw all the time, each in a room of its own.
const Walk kLuck{{"WWWWWWWWWW", "WA;;W..L.W", "W;;;W....W", "WWWWWWWWWW", "W1;D;;;;;T", "WWWWWWWWWW"},
                 {.needed = 1, .amoebaTime = 1},
                 "RR..............RRRRRR"};
const Picture kMoreLuck{"WWWWWWWWWW", "WA;;W..L.W", "W;;;WL...W", "WWWWWWWWWW", "W1;D;;;;;T", "WWWWWWWWWW"};

TEST(AProof, GetsTheSameChanceInTheSameTicks) {
  const auto proof = ProofOf(kLuck);
  ASSERT_TRUE(proof);
  const ProofVerdict same = Judged(proof, CaveTextOf(kLuck.picture, kLuck.numbers));
  EXPECT_TRUE(same.wins);
  EXPECT_EQ(same.otherChance, 0);
  EXPECT_EQ(MovesOf(same.record), MovesOf(proof->Record()));
}

TEST(AProof, OfEveryCaveThatComesWithTheGameWinsThereAsItDid) {
  int proofs = 0;
  for (const auto& file : std::filesystem::recursive_directory_iterator(ZORIK_CAVE_SOURCES)) {
    if (file.path().extension() != ".zkr") continue;
    const auto proof = Proof::Read(*ReadWhole(file.path().string()));
    ASSERT_TRUE(proof) << file.path();
    const ProofVerdict verdict = Judged(*proof, (*proof)->CaveText());
    EXPECT_TRUE(verdict.wins) << file.path();
    EXPECT_EQ(verdict.otherChance, 0) << file.path();
    EXPECT_EQ(MovesOf(verdict.record), MovesOf((*proof)->Record())) << file.path();
    ++proofs;
  }
  EXPECT_GE(proofs, 50);
}

TEST(AProof, GetsAChanceOfItsOwnWhereMoreIsAskedFor) {
  const auto proof = ProofOf(kLuck);
  ASSERT_TRUE(proof);
  const std::string text = CaveTextOf(kMoreLuck, kLuck.numbers);
  const ProofVerdict verdict = Judged(proof, text);
  EXPECT_GT(verdict.otherChance, 0);
  EXPECT_EQ(MovesOf(verdict.record), MovesOf(Judged(proof, text).record)) << "and the same one again";
}

TEST(AProof, MakesARecordOfItsWinThatWinsInTheChangedCave) {
  const auto proof = ProofOf(kLuck);
  ASSERT_TRUE(proof);
  const std::string text = CaveTextOf(kMoreLuck, kLuck.numbers);
  const ProofVerdict verdict = Judged(proof, text);
  ASSERT_TRUE(verdict.wins);
  EXPECT_TRUE(Wins(verdict.record));
  RecordLines lines(verdict.record);
  const RecordHead head = ReadRecordHead(lines);
  EXPECT_EQ(head.CaveText, text);
  EXPECT_EQ(head.Player, "");
  EXPECT_EQ(head.CollectionName, "sada");
  EXPECT_GT(head.Score, 0);
}

// A boulder comes down on the second dog while the first one waits.
TEST(AProof, MayLoseADogThatItHasLostItself) {
  const Walk walk{
      {"WRWWWWWWW", "W.WWWWWWW", "W.WWWWWWW", "W2W1;D;;T", "WWWWWWWWW"}, {.needed = 1}, "......RRRRR"};
  const auto proof = ProofOf(walk);
  ASSERT_TRUE(proof);
  EXPECT_FALSE(proof->Ticks()[5].dogs[2].Alive);
  const ProofVerdict verdict =
      JudgedIn(walk, {walk.picture[0], walk.picture[1], walk.picture[2], "W2W1;DX;T", walk.picture[4]});
  EXPECT_EQ(FlawOf(verdict), (ProofFlaw{ProofBreak::NoEffect, 9, Cell(6, 3), 1, 'X'}));
}

}  // namespace
}  // namespace zorik::test
