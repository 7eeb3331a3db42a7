// What a proof tells of its way through a cave that has become another one.
#include <gtest/gtest.h>

#include "run/ProofRun.h"
#include "run/Proofs.h"
#include "solve/Walks.h"

namespace zorik::test {
namespace {

// Two gems and two keys, one behind the other.
const Walk kCollector{{"WWWWWWWWWW", "W1DD!@;;;T", "WWWWWWWWWW"}, {.needed = 1}, "RRRRRRRR"};

TEST(AProof, NamesWhatIsMissingThoughTheLikeOfItWasThereBefore) {
  ASSERT_TRUE(JudgedIn(kCollector, kCollector.picture).wins);
  struct Case {
    const char* row;
    int tick;
  };
  for (const Case& lacking : {Case{"W1D;!@;;;W", 2}, Case{"W1DD!;;;;W", 4}}) {
    const ProofVerdict verdict = JudgedIn(kCollector, {"WWWWWWWWWW", lacking.row, "WWWWWWWWWW"});
    EXPECT_EQ(verdict.missing,
              (ProofFlaw{ProofBreak::Missing, lacking.tick, Cell(1 + lacking.tick, 1), 1, ';'}))
        << lacking.row;
  }
}

TEST(AProof, NamesTheFirstOfTheThingsThatAreMissing) {
  const ProofVerdict verdict = JudgedIn(kCollector, {"WWWWWWWWWW", "W1;;!@;;;W", "WWWWWWWWWW"});
  EXPECT_EQ(verdict.missing, (ProofFlaw{ProofBreak::Missing, 1, Cell(2, 1), 1, ';'}));
}

TEST(AProof, HasNoFlawWhereItWinsByAnotherWay) {
  const Walk bumps{{"WWWWWWWWW", "W1;D;;;;T", "WXXXXXXXW", "WWWWWWWWW"}, {.needed = 1}, "RDURRRRRR"};
  const ProofVerdict around = JudgedIn(bumps, {"WWWWWWWWW", "W1;D;;;;T", "WX;XXXXXW", "WWWWWWWWW"});
  EXPECT_TRUE(around.wins);
  EXPECT_FALSE(around.flaw) << "it went down where it had only tried to";
  const ProofVerdict later = JudgedIn(bumps, {"WWWWWWWWW", "W1;;;D;;T", "WXXXXXXXW", "WWWWWWWWW"});
  EXPECT_TRUE(later.wins);
  EXPECT_FALSE(later.missing) << "the gem is still on the way";
}

// Above the dog's way the boulder falls as soon as it has nothing below it.
TEST(AProof, TouchesWhatItSetsInMotion) {
  const Walk under{{"WWWWWWWWW", "W;R;;;;;W", "W1;D;;;;T", "WWWWWWWWW"}, {.needed = 1}, "RRRRRRR"};
  const ProofVerdict verdict = JudgedIn(under, under.picture);
  EXPECT_TRUE(verdict.touched[Cell(2, 1).place()]) << "where the boulder has left";
  EXPECT_FALSE(verdict.touched[Cell(1, 1).place()]);
  EXPECT_FALSE(verdict.touched[Cell(3, 1).place()]);
}

TEST(AProof, TouchesTheSlimeThroughWhichSomethingFalls) {
  const Walk beside{{"WWWWWWWWW", "WR;W;;;;W", "WSSW;;;;W", "W..W;;;;W", "W..W1;D;T", "WWWWWWWWW"},
                    {.needed = 1, .permeability = 8},
                    "......RRRR"};
  const ProofVerdict verdict = JudgedIn(beside, beside.picture);
  EXPECT_TRUE(verdict.touched[Cell(1, 2).place()]);
  EXPECT_FALSE(verdict.touched[Cell(2, 2).place()]) << "nothing fell through the slime beside it";
}

// Amoeba and a dragonfly draw all the time, and another dragonfly draws more; the dog goes all ways
// meanwhile.
TEST(AProof, HoldsTheSameKeysWhereChanceIsAnother) {
  const Walk walk{
      {"WWWWWWWWWW", "WA;;W..L.W", "W;;;W....W", "WWWWWWWWWW", "W1;D;WWWWW", "WWW;;;;;;T", "WWWWWWWWWW"},
      {.needed = 1, .amoebaTime = 1},
      "RRRDLRUDRRRRR"};
  const ProofVerdict same = JudgedIn(walk, walk.picture);
  const ProofVerdict other = JudgedIn(walk, {"WWWWWWWWWW", "WA;;W..L.W", "W;;;WL...W", "WWWWWWWWWW",
                                             "W1;D;WWWWW", "WWW;;;;;;T", "WWWWWWWWWW"});
  EXPECT_TRUE(same.wins);
  EXPECT_TRUE(other.wins);
  EXPECT_GE(other.otherChance, 10);
  ASSERT_EQ(same.way.size(), 14U);
  ASSERT_EQ(other.way.size(), same.way.size());
  for (std::size_t i = 0; i < same.way.size(); ++i) EXPECT_EQ(other.way[i].cell, same.way[i].cell) << i;
}

TEST(AProof, HasAChanceOfItsOwnByItsMoves) {
  Walk slower = kCollector;
  slower.keys = "." + slower.keys;
  EXPECT_EQ(ProofOf(kCollector)->Seed(), ProofOf(kCollector)->Seed());
  EXPECT_NE(ProofOf(kCollector)->Seed(), ProofOf(slower)->Seed());
}

// The finish is gone, so that what was missing on the way is told.
TEST(AProof, MissesNothingWhereItsGemsKeysAndLocksAreAllThere) {
  const Walk opens{{"WWWWWWWWW", "W1D#&;;;T", "WWWWWWWWW"}, {.needed = 1}, "RRRRRRR"};
  ASSERT_TRUE(JudgedIn(opens, opens.picture).wins);
  const ProofVerdict verdict = JudgedIn(opens, {"WWWWWWWWW", "W1D#&;;;W", "WWWWWWWWW"});
  EXPECT_FALSE(verdict.wins);
  EXPECT_FALSE(verdict.missing);
}

// Cave texts have no letter of their own for a boulder that falls. This one has just come down the shaft.
TEST(AProof, NamesWhatIsInItsWayByItsKindThoughItIsOnItsWay) {
  const Walk walk{{"WWWWWWWWW", "WWWWW.WWW", "WWWWW.WWW", "WWWWW.WWW", "W1;D;.;;T", "WWWWWWWWW"},
                  {.needed = 1},
                  "RRRRRRR"};
  ASSERT_TRUE(JudgedIn(walk, walk.picture).wins);
  Picture changed = walk.picture;
  changed[1][5] = 'R';
  const ProofVerdict verdict = JudgedIn(walk, changed);
  EXPECT_EQ(verdict.flaw, (ProofFlaw{ProofBreak::NoEffect, 4, Cell(5, 4), 1, 'R'}));
}

// The marker tells where a cave stands in its collection, and is no part of it.
TEST(AProof, IsOfItsCaveWithoutTheMarker) {
  const std::string cave = CaveTextOf(kCollector.picture, kCollector.numbers);
  for (const char* marker : {"", "---04"}) {
    const auto proof = Proof::Read(RecordOfPlan({cave + marker, "sada"}, PlanOf(kCollector.keys)));
    ASSERT_TRUE(proof) << marker;
    EXPECT_EQ((*proof)->CaveText(), cave) << marker;
  }
}

TEST(AProof, EndsWithItsWinWhateverItsRecordHoldsBehindIt) {
  const std::string record = RecordOf(kCollector);
  const auto proof =
      Proof::Read(record + "\r\n" + LineOf({.before = {1}}) + "\r\n" + LineOf({.before = {1}}));
  ASSERT_TRUE(proof);
  EXPECT_EQ((*proof)->Ticks().size(), kCollector.keys.size());
}

}  // namespace
}  // namespace zorik::test
