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
  // The key is there, and opens nothing.
  EXPECT_EQ(JudgedIn(opens, {"WWWWWWWWW", "W1D#;;;;W", "WWWWWWWWW"}).missing,
            (ProofFlaw{ProofBreak::Missing, 2, Cell(3, 1), 1, '#'}));
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

// The second dog is chosen, the first digs at arm's length and goes on, and the second one wins.
TEST(AProof, SteersTheSameDogsWhereChanceIsAnother) {
  const Walk walk{{"WWWWWWWWWW", "WA;;W..L.W", "W;;;W....W", "WWWWWWWWWW", "W1;;W2;D;T", "WWWWWWWWWW"},
                  {.needed = 1, .amoebaTime = 1},
                  "R2RR1r.R2lRR"};
  Picture luckier = walk.picture;
  luckier[2][5] = 'L';
  ASSERT_TRUE(JudgedIn(walk, walk.picture).wins);
  const ProofVerdict verdict = JudgedIn(walk, luckier);
  EXPECT_TRUE(verdict.wins);
  EXPECT_GE(verdict.otherChance, 8);
  const std::vector<Footstep> expected{{Cell(1, 4), 1, 0},  {Cell(5, 4), 2, 0}, {Cell(2, 4), 1, 1},
                                       {Cell(6, 4), 2, 3},  {Cell(7, 4), 2, 4}, {Cell(3, 4), 1, 8},
                                       {Cell(8, 4), 2, 11}, {Cell(9, 4), 2, 12}};
  ASSERT_EQ(verdict.way.size(), expected.size());
  for (std::size_t i = 0; i < expected.size(); ++i) {
    EXPECT_EQ(verdict.way[i].cell, expected[i].cell) << i;
    EXPECT_EQ(verdict.way[i].unit, expected[i].unit) << i;
    EXPECT_EQ(verdict.way[i].tick, expected[i].tick) << i;
  }
}

// Each tick asks for chance before its keys, and one line holds nothing else.
TEST(AProof, KnowsWhatWasHeldInEachOfItsTicks) {
  const Picture picture{"WWWWWW", "W1D.TW", "WWWWWW"};
  const std::vector<std::string> lines{LineOf({.before = {1}, .direction = 39, .action = 1, .after = {1}}),
                                       LineOf({.before = {1}}).substr(0, 1),
                                       LineOf({.before = {1}, .direction = 39, .after = {1}}),
                                       LineOf({.before = {1}, .direction = 39, .after = {1}}),
                                       LineOf({.before = {1}, .direction = 39, .after = {1}})};
  const auto proof = Proof::Read(RecordOfLines(picture, lines, {.needed = 1}));
  ASSERT_TRUE(proof) << proof.Message();
  const std::vector<ProofTick>& ticks = (*proof)->Ticks();
  ASSERT_EQ(ticks.size(), lines.size());
  for (std::size_t i = 0; i < ticks.size(); ++i) {
    EXPECT_EQ(ticks[i].line, lines[i]) << i;
    EXPECT_EQ(ticks[i].keys, i != 1) << i;
    EXPECT_EQ(ticks[i].direction, i != 1 ? 39 : 0) << i;
    EXPECT_EQ(ticks[i].action, i == 0 ? 1 : 0) << i;
    EXPECT_EQ(ticks[i].unit, 1) << i;
    EXPECT_EQ(ticks[i].steered, 1) << i;
    EXPECT_EQ(ticks[i].gems, 1) << i;
    EXPECT_EQ(ticks[i].won, i == 4) << i;
  }
}

TEST(AProof, SteersTheFleasWhereChanceIsAnother) {
  const Walk walk{{"WWWWWWWWWW", "WA;;W..L.W", "W;;;W....W", "WWWWWWWWWW", "W1;;D;;;;T", "WWWWWWWWWW",
                   "WN.......W", "WWWWWWWWWW"},
                  {.needed = 1, .amoebaTime = 1},
                  "R0RR1.RRRRRRR"};
  Picture luckier = walk.picture;
  luckier[2][5] = 'L';
  ASSERT_TRUE(JudgedIn(walk, walk.picture).wins);
  const ProofVerdict verdict = JudgedIn(walk, luckier);
  EXPECT_TRUE(verdict.wins);
  EXPECT_GE(verdict.otherChance, 9);
  ASSERT_EQ(verdict.way.size(), 9U);
  for (int step = 1; step <= 8; ++step) {
    const Footstep& footstep = verdict.way[static_cast<std::size_t>(step)];
    EXPECT_EQ(footstep.cell, Cell(1 + step, 4));
    EXPECT_EQ(footstep.tick, step == 1 ? 1 : step + 5) << "six ticks are those of the fleas";
  }
}

// Records that were written by hand may hold directions beside the four, and units beyond the last.
TEST(AProof, PressesNoKeysThatNobodyHasWhereChanceIsAnother) {
  const Numbers numbers{.needed = 1, .permeability = 1};
  Picture picture{"WWWWWWWWW", "WRRWWWWWW", "W;;WWWWWW", "W..WWWWWW", "W1;DTWWWW", "WWWWWWWWW"};
  const RecordTick wait{.before = {1}}, step{.before = {1}, .direction = 39, .after = {1}};
  const auto proof = Proof::Read(RecordOf(picture,
                                          {wait,
                                           {.before = {1}, .direction = 35},
                                           {.before = {1}, .direction = 41},
                                           {.before = {1}, .unit = 10},
                                           step,
                                           step,
                                           step},
                                          numbers));
  ASSERT_TRUE(proof) << proof.Message();
  picture[2] = "WSSWWWWWW";
  const ProofVerdict verdict = Judged(*proof, CaveTextOf(picture, numbers));
  ASSERT_TRUE(verdict.wins);
  EXPECT_GE(verdict.otherChance, 6) << "the slime below the boulders asks for chance";
  const auto again = Proof::Read(verdict.record);
  ASSERT_TRUE(again) << again.Message();
  const std::vector<ProofTick>& ticks = (*again)->Ticks();
  ASSERT_EQ(ticks.size(), 7U);
  for (std::size_t i = 0; i < ticks.size(); ++i) {
    EXPECT_EQ(ticks[i].direction, i < 4 ? 0 : 39) << i;
    EXPECT_EQ(ticks[i].action, 0) << i;
    EXPECT_EQ(ticks[i].unit, 1) << i;
  }
}

TEST(AProof, TouchesNothingWhereMonstersComeAndGo) {
  const Walk walk{{"WWWWWWWWW", "W.F..W.UW", "W....W..W", "WWWWWWWWW", "W1;D;;;;T", "WWWWWWWWW"},
                  {.needed = 1},
                  "RRRRRRR"};
  const ProofVerdict verdict = JudgedIn(walk, walk.picture);
  ASSERT_TRUE(verdict.wins);
  for (int y = 0; y <= 3; ++y) {
    for (int x = 0; x <= 8; ++x) EXPECT_FALSE(verdict.touched[Cell(x, y).place()]) << x << ',' << y;
  }
}

TEST(AProof, TouchesNoSlimeOnWhichSomethingOnlyLies) {
  const Walk beside{{"WWWWWWWWW", "WRDW;;;;W", "WSSW;;;;W", "W;;W;;;;W", "W..W1;D;T", "WWWWWWWWW"},
                    {.needed = 1, .permeability = 8},
                    "......RRRR"};
  const ProofVerdict verdict = JudgedIn(beside, beside.picture);
  ASSERT_TRUE(verdict.wins);
  for (int y = 1; y <= 4; ++y) {
    for (int x = 1; x <= 2; ++x) EXPECT_FALSE(verdict.touched[Cell(x, y).place()]) << x << ',' << y;
  }
}

}  // namespace
}  // namespace zorik::test
