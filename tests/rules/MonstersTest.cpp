#include <gtest/gtest.h>

#include "support/Scene.h"

namespace zorik::test {
namespace {

const RecordTick kQuiet{.before = {2}};

constexpr std::array<Step, 5> kWays{Step{}, kLeft, kUp, kRight, kDown};

// One row of the table of turns: where a monster of a heading looks first and next, and to what it turns.
struct TurnRow {
  char letter;
  int first, then, blocked;
};
constexpr std::array<TurnRow, 8> kTurnRows{{{'F', 4, 1, 2},
                                            {'O', 1, 2, 3},
                                            {'P', 2, 3, 4},
                                            {'Q', 3, 4, 1},
                                            {'U', 2, 1, 4},
                                            {'Y', 3, 2, 1},
                                            {'Z', 4, 3, 2},
                                            {'B', 1, 4, 3}}};

constexpr Cell kMiddle(2, 2);

// A monster in the open, with some of its ways walled up.
Hra Open(char letter, std::initializer_list<int> walls = {}, Stage* stage = nullptr) {
  Hra hra = Play({"1....", ".....", ".....", ".....", "....."}, {}, stage);
  Put(hra, 2, 2, letter);
  for (const int wall : walls) {
    const Cell c = kMiddle + kWays[static_cast<std::size_t>(wall)];
    Put(hra, c.x(), c.y(), 'W');
  }
  return hra;
}

void ExpectGone(const Hra& hra, char letter, int heading) {
  const Cell target = kMiddle + kWays[static_cast<std::size_t>(heading)];
  EXPECT_EQ(hra.Field(target), FindLetter(letter)->code) << letter;
  EXPECT_EQ(hra.FieldMark(target), heading * 10) << letter;
  EXPECT_EQ(hra.Field(kMiddle), kVacated) << letter;
  EXPECT_EQ(hra.FieldMark(kMiddle), 0) << letter;
}

TEST(WallFollower, GoesToTheSideOfItsWallWhenThatIsFree) {
  for (const TurnRow& row : kTurnRows) {
    Hra hra = Open(row.letter);
    Potvory(hra, kMiddle);
    ExpectGone(hra, row.letter, row.first);
  }
}

TEST(WallFollower, GoesStraightOnWhenTheSideOfItsWallIsBlocked) {
  for (const TurnRow& row : kTurnRows) {
    Hra hra = Open(row.letter, {row.first});
    Potvory(hra, kMiddle);
    ExpectGone(hra, row.letter, row.then);
  }
}

TEST(WallFollower, TurnsAwayFromItsWallWithoutAStepWhenBothAreBlocked) {
  for (const TurnRow& row : kTurnRows) {
    Hra hra = Open(row.letter, {row.first, row.then});
    Potvory(hra, kMiddle);
    EXPECT_EQ(hra.Field(kMiddle), FindLetter(row.letter)->code) << row.letter;
    EXPECT_EQ(hra.FieldMark(kMiddle), row.blocked * 10) << row.letter;
  }
}

TEST(WallFollower, TakesSpaceOnlyForFree) {
  for (const char thing : {';', 'D', '1', 'K'}) {
    Hra hra = Open('F');
    Put(hra, 2, 3, thing);
    Put(hra, 1, 2, thing);
    Potvory(hra, kMiddle);
    EXPECT_EQ(hra.FieldMark(kMiddle), 20) << thing;
  }
  Hra vacated = Open('F');
  vacated.SetField({2, 3}, kVacated);
  vacated.SetField({1, 2}, kVacated);
  Potvory(vacated, kMiddle);
  EXPECT_EQ(vacated.FieldMark(kMiddle), 20);
}

TEST(WallFollower, ThatHasActedInThisTickDoesNothing) {
  for (const std::uint8_t mark : std::initializer_list<std::uint8_t>{10, 20, 30, 40}) {
    for (const char letter : {'F', 'U'}) {
      Hra hra = Open(letter);
      hra.SetFieldMark(kMiddle, mark);
      const Picture before = Drawn(hra);
      Potvory(hra, kMiddle);
      EXPECT_EQ(Drawn(hra), before);
      EXPECT_EQ(hra.FieldMark(kMiddle), mark);
    }
  }
}

TEST(WallFollower, WritesNoStateAndRepaintsNothingBeforeTheTickEnds) {
  Diary diary;
  Hra hra = Open('F', {}, &diary);
  hra.SetFieldState({2, 3}, kResting);
  diary.Clear();
  Potvory(hra, kMiddle);
  EXPECT_EQ(hra.FieldState({2, 3}), kResting);
  EXPECT_TRUE(diary.entries.empty());
}

TEST(Monsters, GoOneCellInATickAlsoInTheDirectionOfTheScan) {
  Hra hra = Play({"1WWWWWW", "WP...WB", "WWWWWW.", "WWWWWW."});
  Pass(hra);
  EXPECT_EQ(Drawn(hra), (Picture{"1WWWWWW", "W.F..W.", "WWWWWWU", "WWWWWW."}));
  EXPECT_EQ(hra.FieldMark({2, 1}), 3);
  EXPECT_EQ(hra.FieldMark({6, 2}), 4);
}

TEST(Monsters, AFireFlyShutInAllRoundTurnsByOneHeadingATick) {
  Hra hra = Play({"1WWW", "WWFW", "WWWW"});
  for (const int heading : {2, 3, 4, 1, 2}) {
    Pass(hra);
    EXPECT_EQ(hra.FieldMark({2, 1}), heading);
  }
  EXPECT_EQ(Drawn(hra), (Picture{"1WWW", "WWFW", "WWWW"}));
}

TEST(Monsters, AButterFlyShutInAllRoundTurnsTheOtherWay) {
  Hra hra = Play({"1WWW", "WWUW", "WWWW"});
  for (const int heading : {4, 3, 2, 1, 4}) {
    Pass(hra);
    EXPECT_EQ(hra.FieldMark({2, 1}), heading);
  }
}

TEST(Monsters, AFireFlyKeepsTheWallAtItsLeftRoundAPillar) {
  Hra hra = Play({"1WWWWW", "W.F.WW", "W.W.WW", "W...WW", "WWWWWW"});
  Pass(hra);  // heading left: first down, which is the pillar, so straight on
  EXPECT_EQ(Drawn(hra)[1], "WF..WW");
  Pass(hra, 2);  // down along the pillar
  EXPECT_EQ(Drawn(hra)[3], "WF..WW");
  Pass(hra, 2);
  EXPECT_EQ(Drawn(hra)[3], "W..FWW");
  Pass(hra, 3);
  EXPECT_EQ(Drawn(hra)[1], "W.F.WW");
}

TEST(Monsters, CannotEnterACellThatAnotherOneHasLeftInTheSameTick) {
  Hra hra = Play({"1WWWWW", "W.FFWW", "WWWWWW"});
  Pass(hra);
  EXPECT_EQ(Drawn(hra)[1], "WF.FWW");
  EXPECT_EQ(hra.FieldMark({3, 1}), 2);
}

TEST(Monsters, CannotSwapCells) {
  Hra hra = Play({"1WWWWW", "WPFWWW", "WWWWWW"});
  Pass(hra);
  EXPECT_EQ(Drawn(hra)[1], "WFFWWW");
  EXPECT_EQ(hra.FieldMark({1, 1}), 4);
  EXPECT_EQ(hra.FieldMark({2, 1}), 2);
}

TEST(Monsters, LeaveAMarkThatNothingElseCanEnterBeforeTheTickEnds) {
  // The boulder would roll into the firefly's old cell if that were free.
  Hra hra = Play({"1WWWWW", "W.FRWW", "WW;RWW", "WWWWWW"});
  AmoebaList room;
  ObjectScan(hra, room);
  EXPECT_EQ(Drawn(hra), (Picture{"1WWWWW", "WF-RWW", "WW;RWW", "WWWWWW"}));
}

TEST(Monsters, EndTheTickWithPlainHeadingsAndPlainSpaceBehindThemBothRepainted) {
  Diary diary;
  Hra hra = Play({"1WWWWW", "W.FWWW", "WWWWWW"}, {}, &diary);
  AmoebaList room;
  ObjectScan(hra, room);
  diary.Clear();
  ClosingScan(hra);
  EXPECT_EQ(hra.FieldMark({1, 1}), 1);
  EXPECT_EQ(hra.Field({2, 1}), kSpace);
  EXPECT_EQ(diary.entries, (std::vector<std::string>{"cell 1,1", "cell 2,1"}));
}

TEST(Monsters, OddMarksEndAtTheNearestTenthWithTiesToTheEvenOne) {
  struct Row {
    std::uint8_t mark, end;
  };
  for (const auto& [mark, end] : {Row{4, 4},
                                  {5, 0},
                                  {6, 1},
                                  {14, 1},
                                  {15, 2},
                                  {16, 2},
                                  {24, 2},
                                  {25, 2},
                                  {26, 3},
                                  {35, 4},
                                  {45, 4},
                                  {190, 19},
                                  {255, 26}}) {
    Hra hra = Play({"1WW", "WFW"});
    hra.SetFieldMark({1, 1}, mark);
    ClosingScan(hra);
    EXPECT_EQ(hra.FieldMark({1, 1}), end) << int{mark};
  }
}

TEST(Monsters, MarksOfExplosionsAndSensorsAreNotDivided) {
  Hra hra = Live({"1WWW", "WxWG"});
  hra.SetFieldMark({1, 1}, 13);
  hra.SetFieldMark({3, 1}, 13);
  ClosingScan(hra);
  EXPECT_EQ(hra.FieldMark({1, 1}), 13);
  EXPECT_EQ(hra.FieldMark({3, 1}), 14);
}

TEST(Monsters, CanFallFromACellThatAMagicWallHasEmptied) {
  Hra hra = Live({"1WWWW", "WWdWW", "WWMWW", "WW;WW", "WWWWW"});
  Pass(hra);
  ASSERT_EQ(hra.FieldState({2, 1}), kResting);
  Put(hra, 3, 1, 'F');
  Pass(hra);
  ASSERT_EQ(Drawn(hra)[1], "WWF.W");
  Put(hra, 2, 2, '.');
  Pass(hra);
  EXPECT_EQ(hra.Field({2, 2}), kFireFly);
  EXPECT_EQ(hra.FieldState({2, 2}), kFalling);
}

// --- Contact -----------------------------------------------------------------------------------------

struct Victim {
  char letter;
  int mark;  // of the explosion in its place
};
constexpr std::array<Victim, 4> kVictims{{{'F', 0}, {'U', 12}, {'L', 8}, {':', 0}}};

TEST(Contact, WithTheDogTheCatOrAmoebaAtAnySideBlowsUpEachMonsterInItsOwnKind) {
  for (const Victim& victim : kVictims) {
    for (const char toucher : {'1', 'J', 'A'}) {
      for (const int side : {1, 2, 3, 4}) {
        Diary diary;
        Hra hra = Open(victim.letter, {}, &diary);
        const Cell beside = kMiddle + kWays[static_cast<std::size_t>(side)];
        Put(hra, beside.x(), beside.y(), toucher);
        diary.Clear();
        Contact(hra, kMiddle);
        EXPECT_EQ(hra.Field(kMiddle), kExplosion) << victim.letter << toucher << side;
        EXPECT_EQ(hra.FieldMark(kMiddle), victim.mark) << victim.letter;
        EXPECT_EQ(hra.Field(beside), kExplosion);
        EXPECT_EQ(diary.Count("sound 5"), 1);
      }
    }
  }
}

TEST(Contact, NeedsASharedSide) {
  for (const Victim& victim : kVictims) {
    Hra hra = Open(victim.letter);
    Put(hra, 1, 1, 'A');
    Put(hra, 3, 1, '1');
    Put(hra, 1, 3, 'J');
    Put(hra, 3, 3, 'A');
    Contact(hra, kMiddle);
    EXPECT_NE(hra.Field(kMiddle), kExplosion) << victim.letter;
  }
}

TEST(Contact, WithAnythingElseDoesNothing) {
  for (const char thing : std::string(".;RDXFUWTKIEVSLCNG:!%$")) {
    Hra hra = Open('F');
    for (const int side : {1, 2, 3, 4}) {
      const Cell beside = kMiddle + kWays[static_cast<std::size_t>(side)];
      Put(hra, beside.x(), beside.y(), thing);
    }
    Contact(hra, kMiddle);
    EXPECT_EQ(hra.Field(kMiddle), kFireFly) << thing;
  }
}

TEST(Contact, OfAFleaKillsItOnlyBesideAmoeba) {
  for (const int side : {1, 2, 3, 4}) {
    const Cell beside = kMiddle + kWays[static_cast<std::size_t>(side)];
    for (const char toucher : {'1', 'J'}) {
      Hra hra = Open('N');
      Put(hra, beside.x(), beside.y(), toucher);
      Contact(hra, kMiddle);
      EXPECT_EQ(hra.Field(kMiddle), kFlea) << toucher;
    }
    Hra hra = Open('N');
    Put(hra, beside.x(), beside.y(), 'A');
    Contact(hra, kMiddle);
    EXPECT_EQ(hra.Field(kMiddle), kExplosion);
    EXPECT_EQ(hra.FieldMark(kMiddle), 0);
  }
}

TEST(Contact, OfThingsThatAreNoMonstersDoesNothing) {
  for (const char thing : std::string(".;RDXWTKIEVSCG!%$")) {
    Hra hra = Open(thing, {});
    Put(hra, 1, 2, 'A');
    Put(hra, 3, 2, '1');
    Contact(hra, kMiddle);
    EXPECT_EQ(hra.Field(kMiddle), FindLetter(thing)->code) << thing;
  }
}

TEST(Contact, IsTestedAtTheEndOfTheTickInWhichTheDogStepsBesideTheMonster) {
  Hra hra = PlayBack({"1.FWW", "WWWWW"}, {{.before = {2}, .direction = 39, .after = {2}}, kQuiet});
  hra.SetFieldMark({2, 0}, 0);  // without a heading it stays where it is
  Pass(hra);
  EXPECT_EQ(Drawn(hra)[0], ".xxWW");
  EXPECT_TRUE(hra.Dog[1].Alive);
  Pass(hra);
  EXPECT_FALSE(hra.Dog[1].Alive);
}

TEST(Contact, IsTestedInTheClosingScanForAllOfThemAlsoForOnesThatHaveNotActed) {
  for (const char letter : std::string("FULN:")) {
    Hra hra = Open(letter);
    Put(hra, 3, 2, 'A');
    hra.AmoebaRoom = 1;
    ClosingScan(hra);
    EXPECT_EQ(hra.Field(kMiddle), kExplosion) << letter;
  }
}

TEST(Contact, WithAmoebaThatHasTurnedToGemsInTheSameScanIsNone) {
  // Each amoeba is enclosed: the left one is a gem already when the scan comes to the firefly.
  Hra behind = PlayBack({"1WWWWW", "WWAFWW", "WWWWWW", "WWWWWW"}, {kQuiet});
  Pass(behind);
  EXPECT_EQ(Drawn(behind)[1], "WWDFWW");
  Hra before = PlayBack({"1WWWWW", "WWFAWW", "WWWWWW", "WWWWWW"}, {kQuiet});
  Pass(before);
  EXPECT_EQ(Drawn(before)[1], "WWxxWW");
}

TEST(Contact, OfAMonsterAtTheEdgeSparesTheSteelRing) {
  Hra hra = PlayBack({"1F", ";;"}, {kQuiet});
  Pass(hra);
  EXPECT_EQ(hra.Field({1, -1}), kSteel);
  EXPECT_EQ(Drawn(hra), (Picture{"xx", "xx"}));
}

TEST(Contact, LightsABombLaterThatTheScanHasPassedAlready) {
  // The firefly in the middle burns in the closing scan. The bomb left of it keeps its moved mark into the
  // next tick, the one right of it loses it in the same scan.
  Hra hra = PlayBack({"WW1WWWWW", "WIFIWWWW", "WWWWWWWW", "WWWWWWWW"}, {kQuiet, kQuiet, kQuiet});
  Pass(hra);
  EXPECT_EQ(Drawn(hra)[1], "W*x*WWWW");
  EXPECT_TRUE(hra.FieldMoved({1, 1}));
  EXPECT_FALSE(hra.FieldMoved({3, 1}));
  Pass(hra);
  EXPECT_EQ(hra.Field({1, 1}), kBoulder);
  EXPECT_EQ(hra.Field({3, 1}), kExplosion);
  Pass(hra);
  EXPECT_EQ(hra.Field({1, 1}), kExplosion);
}

}  // namespace
}  // namespace zorik::test
