#include <gtest/gtest.h>

#include "support/Scene.h"

namespace zorik::test {
namespace {

using Entries = std::vector<std::string>;

// A run whose diary starts empty, in the letters of Drawn.
struct Cave {
  explicit Cave(const Picture& picture, const Numbers& numbers = {}) : hra(Live(picture, numbers, &diary)) {
    hra.SensorsListen = true;
    diary.Clear();
  }
  Cave(const Cave&) = delete;
  Cave& operator=(const Cave&) = delete;

  AmoebaList Objects() {
    AmoebaList room;
    ObjectScan(hra, room);
    return room;
  }
  std::vector<Cell> Room() {
    const AmoebaList room = Objects();
    std::vector<Cell> cells;
    for (int i = 0; i < room.count; ++i)
      cells.push_back(Cell::AtPlace(room.places[static_cast<std::size_t>(i)]));
    return cells;
  }

  Diary diary;
  Hra hra;
};

struct Ending {
  int start;
  std::uint16_t code;
  int state;
};

TEST(AnExplosion, EndsAfterFourScansInWhatItsKindLeaves) {
  for (const Ending& ending : {Ending{0, kSpace, 0}, {4, kSpace, 0}, {8, kBoulder, 2}, {12, kGem, 2}}) {
    Cave cave({"1.x"});
    cave.hra.SetFieldMark({2, 0}, static_cast<std::uint8_t>(ending.start));
    for (int i = 1; i <= 3; ++i) {
      ExplosionScan(cave.hra);
      EXPECT_EQ(cave.hra.Field({2, 0}), kExplosion);
      EXPECT_EQ(cave.hra.FieldMark({2, 0}), ending.start + i);
    }
    ExplosionScan(cave.hra);
    EXPECT_EQ(cave.hra.Field({2, 0}), ending.code) << ending.start;
    EXPECT_EQ(cave.hra.FieldState({2, 0}), ending.state) << ending.start;
    EXPECT_EQ(cave.hra.FieldMark({2, 0}), 0) << ending.start;
  }
}

TEST(AnExplosion, IsRepaintedAndMarkedAsMovedInEachScanTheLastOneToo) {
  for (const int mark : {0, 1, 2, 3, 5, 7, 11, 15}) {
    Cave cave({"1.x"});
    cave.hra.SetFieldMark({2, 0}, static_cast<std::uint8_t>(mark));
    ExplosionScan(cave.hra);
    EXPECT_EQ(cave.diary.entries, Entries{"cell 2,0"}) << mark;
    EXPECT_TRUE(cave.hra.FieldMoved({2, 0})) << mark;
  }
}

TEST(AnExplosionThatEndsInABoulder, IsInertForTheRestOfItsTickAndFallsInTheNext) {
  Cave cave({"1x", "W.", "WW"});
  cave.hra.SetFieldMark({1, 0}, 11);
  Pass(cave.hra);
  EXPECT_EQ(Drawn(cave.hra), (Picture{"1R", "W.", "WW"}));
  Pass(cave.hra);
  EXPECT_EQ(Drawn(cave.hra), (Picture{"1.", "Wr", "WW"}));
}

TEST(ASensor, ThatWasSetOffStartsToCountInTheExplosionScan) {
  Cave cave({"1.GGG"});
  cave.hra.SetFieldMark({2, 0}, 1);
  cave.hra.SetFieldMark({3, 0}, 7);
  ExplosionScan(cave.hra);
  EXPECT_EQ(cave.hra.FieldMark({2, 0}), 2);
  EXPECT_EQ(cave.hra.FieldMark({3, 0}), 7);
  EXPECT_EQ(cave.hra.FieldMark({4, 0}), 0);
}

TEST(TheExplosionScan, StartsAtOnceASensorThatItSetsOffFurtherOnButNoneBehindIt) {
  Cave cave({"WGW1", "GxGW", "WGWW"});
  ExplosionScan(cave.hra);
  EXPECT_EQ(cave.hra.FieldMark({1, 0}), 1);
  EXPECT_EQ(cave.hra.FieldMark({0, 1}), 1);
  EXPECT_EQ(cave.hra.FieldMark({2, 1}), 2);
  EXPECT_EQ(cave.hra.FieldMark({1, 2}), 2);
}

TEST(TheObjectScan, GoesRowByRow) {
  Cave cave({"WV1", "E.W"});
  cave.Objects();
  EXPECT_EQ(Drawn(cave.hra), (Picture{"WV1", "EVW"}));
}

TEST(TheObjectScan, GoesFromLeftToRight) {
  Cave cave({"D.R1", "X.XW", "WWWW"});
  cave.Objects();
  EXPECT_EQ(Drawn(cave.hra), (Picture{".dR1", "X.XW", "WWWW"}));
}

TEST(TheObjectScan, GoesFromTopToBottomSoTheUpperOfTwoBouldersRollsOffTheLower) {
  Cave cave({".R1", ".RW", "..W"});
  cave.Objects();
  EXPECT_EQ(Drawn(cave.hra), (Picture{"r.1", "..W", ".rW"}));
}

TEST(ABoulderThatFalls, IsMarkedAsMovedAndNotTouchedAgainInTheScan) {
  Cave cave({"R1", ".W", ".W", ".W"});
  cave.Objects();
  EXPECT_EQ(Drawn(cave.hra), (Picture{".1", "rW", ".W", ".W"}));
  EXPECT_TRUE(cave.hra.FieldMoved({0, 1}));
}

TEST(ACellMarkedAsMoved, IsPassedByWhateverItHolds) {
  Cave cave({"R*ESF:L1", "........", "WWWWWWWW"}, {.permeability = 8});
  for (int x = 0; x < 7; ++x) cave.hra.SetFieldMoved({x, 0}, true);
  const Picture before = Drawn(cave.hra);
  cave.Objects();
  EXPECT_EQ(Drawn(cave.hra), before);
  EXPECT_EQ(cave.diary.entries, Entries{});
}

TEST(RestingAndFallingThings, AreHandedToGravityWhateverTheyAre) {
  Cave cave({"NC1", "..W", "..W"});
  cave.hra.SetFieldState({0, 0}, kResting);
  cave.hra.SetFieldState({1, 0}, kFalling);
  cave.Objects();
  EXPECT_EQ(Drawn(cave.hra), (Picture{"..1", "NCW", "..W"}));
}

TEST(EachKindOfMonster, MovesInTheObjectScan) {
  for (const char monster : {'P', 'Z', 'L', ':'}) {
    Cave cave({std::string("W") + monster + "..1", "WWWWW"});
    if (monster == 'L') cave.hra.SetFieldMark({1, 0}, 2);
    cave.Objects();
    EXPECT_NE(Drawn(cave.hra)[0][1], monster) << monster;
    EXPECT_NE(Drawn(cave.hra)[0][2], '.') << monster;
  }
}

TEST(Slime, PassesInTheObjectScan) {
  Cave cave({"D1", "SW", ".W"}, {.permeability = 8});
  cave.Objects();
  EXPECT_EQ(Drawn(cave.hra), (Picture{".1", "SW", "dW"}));
}

TEST(AWallThatGrowsSideways, GrowsBothWaysInOneScanByOneCellOnly) {
  Cave cave({"..E..1", "WWWWWW"});
  cave.Objects();
  EXPECT_EQ(Drawn(cave.hra)[0], ".EEE.1");
  EXPECT_TRUE(cave.hra.FieldMoved({1, 0}));
  EXPECT_TRUE(cave.hra.FieldMoved({3, 0}));
  EXPECT_EQ(cave.diary.entries, (Entries{"cell 1,0", "cell 3,0"}));
}

TEST(AWallThatGrowsUpAndDown, GrowsBothWaysInOneScanByOneCellOnly) {
  Cave cave({"1.", "W.", "WV", "W.", "W."});
  cave.Objects();
  EXPECT_EQ(Drawn(cave.hra), (Picture{"1.", "WV", "WV", "WV", "W."}));
  EXPECT_TRUE(cave.hra.FieldMoved({1, 1}));
  EXPECT_TRUE(cave.hra.FieldMoved({1, 3}));
  EXPECT_EQ(cave.diary.entries, (Entries{"cell 1,1", "cell 1,3"}));
}

TEST(TheRoomOfTheAmoeba, IsTheSpaceAndDirtBesideItInTheOrderOfTheScan) {
  Cave cave({"1.W", ";A.", "W;."});
  EXPECT_EQ(cave.Room(), (std::vector<Cell>{{1, 0}, {0, 1}, {2, 1}, {1, 2}}));
}

TEST(TheRoomOfTheAmoeba, HasNoOtherThingThanSpaceAndDirt) {
  Cave cave({"1XRW", "KAAD", "WSCW"});
  EXPECT_TRUE(cave.Room().empty());
}

TEST(TheRoomOfTheAmoeba, LeavesOutCellsThatMovedInThisTick) {
  Cave cave({"1.W", ".A.", "W.W"});
  cave.hra.SetFieldMoved({0, 1}, true);
  EXPECT_EQ(cave.Room(), (std::vector<Cell>{{1, 0}, {2, 1}, {1, 2}}));
}

TEST(TheRoomOfTheAmoeba, HoldsACellThatABoulderLeavesInTheScan) {
  Cave cave({"1WWW", "WARW", "WW.W", "WWWW"});
  EXPECT_EQ(cave.Room(), (std::vector<Cell>{{2, 1}}));
}

TEST(TheRoomOfTheAmoeba, IsCountedBeyondItsListWhichHoldsTheFirst2501Cells) {
  Picture picture;
  for (int y = 0; y < 60; ++y) {
    std::string row;
    for (int x = 0; x < 100; ++x) row += (x + y) % 2 == 0 ? 'A' : '.';
    picture.push_back(row);
  }
  Cave cave(picture);
  const AmoebaList room = cave.Objects();
  EXPECT_EQ(room.count, 3000);
  EXPECT_EQ(Cell::AtPlace(room.places.front()), Cell(1, 0));
  // 50 cells a row: number 2500, from 0, is the first of row 50.
  EXPECT_EQ(Cell::AtPlace(room.places.back()), Cell(1, 50));
  GrowAmoeba(cave.hra, room);
  EXPECT_EQ(cave.hra.AmoebaRoom, 3000);
}

TEST(Biomass, DoesNotSpread) {
  Cave cave({"1....", "..C..", ";;C;;", "....."});
  const std::size_t before = cave.hra.RecordText.size();
  Pass(cave.hra, 60);
  EXPECT_EQ(Drawn(cave.hra), (Picture{"1....", "..C..", ";;C;;", "....."}));
  EXPECT_EQ(cave.hra.RecordText.size() - before, 60U * 6U);
}

TEST(AStruckBomb, ExplodesInTheObjectScan) {
  Cave cave({"...1", ".*.W", "...W"});
  cave.Objects();
  EXPECT_EQ(Drawn(cave.hra), (Picture{"xxx1", "xxxW", "xxxW"}));
  EXPECT_EQ(cave.diary.Count("sound 5"), 1);
}

TEST(AStruckBomb, ThatHasMovedInThisTickWaits) {
  Cave cave({"...1", ".*.W", "...W"});
  cave.hra.SetFieldMoved({1, 1}, true);
  cave.Objects();
  EXPECT_EQ(Drawn(cave.hra), (Picture{"...1", ".*.W", "...W"}));
}

TEST(TheClosingScan, RepaintsSlimeFleasAndAmoeba) {
  Cave cave({"1.", "SN", "DR", "A."});
  cave.hra.AmoebaRoom = 1;
  ClosingScan(cave.hra);
  EXPECT_EQ(cave.diary.entries, (Entries{"cell 0,1", "cell 1,1", "cell 0,3"}));
}

TEST(ASensor, CountsOnInTheClosingScanFromTwoOn) {
  Cave cave({"1.GGG"});
  cave.hra.SetFieldMark({2, 0}, 1);
  cave.hra.SetFieldMark({3, 0}, 2);
  ClosingScan(cave.hra);
  EXPECT_EQ(cave.hra.FieldMark({2, 0}), 1);
  EXPECT_EQ(cave.hra.FieldMark({3, 0}), 3);
  EXPECT_EQ(cave.hra.FieldMark({4, 0}), 0);
}

TEST(ASensor, IsRepaintedAtEvenCountsAndSoundsAtEveryFourth) {
  for (int mark = 2; mark <= 28; ++mark) {
    Cave cave({"1.G"});
    cave.hra.SetFieldMark({2, 0}, static_cast<std::uint8_t>(mark));
    const std::optional<SoundId> sound = ClosingScan(cave.hra);
    EXPECT_EQ(cave.hra.FieldMark({2, 0}), mark + 1);
    EXPECT_EQ(cave.diary.Count("cell 2,0"), (mark + 1) % 2 == 0 ? 1 : 0) << mark;
    EXPECT_EQ(sound, (mark + 1) % 4 == 0 ? std::optional(SoundId::Sensor) : std::nullopt) << mark;
  }
}

TEST(ASensor, AtThirtyBecomesAShortExplosionWithItsSoundAndNoRepaint) {
  Cave cave({"1.G"});
  cave.hra.SetFieldMark({2, 0}, 29);
  EXPECT_EQ(ClosingScan(cave.hra), std::nullopt);
  EXPECT_EQ(cave.hra.Field({2, 0}), kExplosion);
  EXPECT_EQ(cave.hra.FieldMark({2, 0}), 5);
  EXPECT_EQ(cave.diary.entries, Entries{"sound 14"});
  for (int i = 0; i < 3; ++i) ExplosionScan(cave.hra);
  EXPECT_EQ(Drawn(cave.hra)[0], "1..");
}

TEST(ASensor, SetOffInOneTickCountsInTheNext) {
  Cave cave({"WWW1", "..GW"});
  Put(cave.hra, 1, 1, 'K');
  cave.hra.SetFieldMark({2, 1}, 1);
  Pass(cave.hra);
  EXPECT_EQ(cave.hra.FieldMark({2, 1}), 3);
  Pass(cave.hra, 26);
  EXPECT_EQ(cave.hra.FieldMark({2, 1}), 29);
  Pass(cave.hra);
  EXPECT_EQ(cave.hra.Field({2, 1}), kExplosion);
}

TEST(TheClosingScan, ClearsTheMarkOfMovedEverywhere) {
  Cave cave({"1R;", ".W."});
  ForEachCell(cave.hra, [&](Cell c) { cave.hra.SetFieldMoved(c, true); });
  ClosingScan(cave.hra);
  ForEachCell(cave.hra, [&](Cell c) { EXPECT_FALSE(cave.hra.FieldMoved(c)); });
}

TEST(AMarkAboveFour, IsDividedByTenToTheNearestWholeNumberTiesToEven) {
  for (const auto& [mark, after] : {std::pair{4, 4},
                                    {5, 0},
                                    {6, 1},
                                    {10, 1},
                                    {14, 1},
                                    {15, 2},
                                    {16, 2},
                                    {20, 2},
                                    {25, 2},
                                    {26, 3},
                                    {30, 3},
                                    {35, 4},
                                    {40, 4},
                                    {45, 4},
                                    {46, 5}}) {
    for (const char thing : {'R', 'F', 'Y', 'L', ':', '.'}) {
      Cave cave({"1..", "WW."});
      Put(cave.hra, 2, 1, thing);
      cave.hra.SetFieldMark({2, 1}, static_cast<std::uint8_t>(mark));
      ClosingScan(cave.hra);
      EXPECT_EQ(cave.hra.FieldMark({2, 1}), after) << thing << mark;
      EXPECT_EQ(cave.diary.Count("cell 2,1"), mark > 4 ? 1 : 0) << thing << mark;
    }
  }
}

TEST(AMarkAboveFour, OfAnExplosionOrASensorStays) {
  Cave cave({"1.x"});
  cave.hra.SetFieldMark({2, 0}, 13);
  ClosingScan(cave.hra);
  EXPECT_EQ(cave.hra.FieldMark({2, 0}), 13);
  EXPECT_EQ(cave.diary.entries, Entries{});
}

TEST(AVacatedCell, IsFreeAndRepaintedAtTheTicksEnd) {
  Cave cave({"1.-"});
  ClosingScan(cave.hra);
  EXPECT_EQ(cave.hra.Field({2, 0}), kSpace);
  EXPECT_EQ(cave.diary.entries, Entries{"cell 2,0"});
}

TEST(AMonster, BesideADogTheCatOrAmoebaExplodesInTheWayOfItsKind) {
  struct Kind {
    char monster;
    int mark;
  };
  for (const Kind& kind : {Kind{'F', 0}, {'U', 12}, {'L', 8}, {':', 0}}) {
    for (const char victim : {'1', 'J', 'A'}) {
      for (const Step way : {kLeft, kRight, kUp, kDown}) {
        Cave cave({".....", ".....", ".....", ".....", "....."});
        Put(cave.hra, 2, 2, kind.monster);
        Put(cave.hra, 2 + way.dx, 2 + way.dy, victim);
        cave.hra.AmoebaRoom = 1;
        ClosingScan(cave.hra);
        EXPECT_EQ(cave.hra.Field({2, 2}), kExplosion) << kind.monster << victim;
        EXPECT_EQ(cave.hra.FieldMark({2, 2}), kind.mark) << kind.monster << victim;
        EXPECT_EQ(cave.hra.FieldMark({1, 1}), kind.mark) << kind.monster << victim;
      }
    }
  }
}

TEST(AMonster, AcrossACornerOrBesideAnythingElseStaysAlive) {
  Cave cave({"1.J.A", ".....", ";L.FW", ".R.K.", "....."});
  cave.hra.AmoebaRoom = 1;
  Put(cave.hra, 1, 2, 'L');
  ClosingScan(cave.hra);
  EXPECT_EQ(Drawn(cave.hra)[2], ";L.FW");
  EXPECT_FALSE(cave.diary.Has("sound 5"));
}

TEST(AFlea, ExplodesBesideAmoebaButNotBesideADogOrTheCat) {
  for (const auto& [neighbour, dies] : {std::pair{'A', true}, {'1', false}, {'J', false}}) {
    Cave cave({"...", "NK.", "..."});
    Put(cave.hra, 1, 1, neighbour);
    cave.hra.AmoebaRoom = 1;
    ClosingScan(cave.hra);
    EXPECT_EQ(cave.hra.Field({0, 1}) == kExplosion, dies) << neighbour;
  }
}

// A contact at the end of the tick lights bombs; those behind the scan keep their mark over the next tick.
TEST(ABombLitInTheClosingScan, GoesOffInTheNextTickIfTheScanHasStillToPassItAndOneLaterIfNot) {
  Cave cave({"WIWW", "IF1W", "WIWW", "WWWW"});
  Pass(cave.hra);
  ASSERT_EQ(Drawn(cave.hra), (Picture{"W*WW", "*xxW", "W*WW", "WWWW"}));
  EXPECT_TRUE(cave.hra.FieldMoved({1, 0}));
  EXPECT_TRUE(cave.hra.FieldMoved({0, 1}));
  EXPECT_FALSE(cave.hra.FieldMoved({1, 2}));
  cave.diary.Clear();
  Pass(cave.hra);
  EXPECT_EQ(cave.diary.Count("sound 5"), 1);
  EXPECT_EQ(Drawn(cave.hra)[0], "W*WW");
  Pass(cave.hra);
  EXPECT_EQ(Drawn(cave.hra)[0], "WxWW");
}

TEST(TheClosingScan, AnswersTheLastSoundThatWasDue) {
  Cave sensorLast({"A.1G"});
  sensorLast.hra.SetFieldMark({3, 0}, 3);
  EXPECT_EQ(ClosingScan(sensorLast.hra), SoundId::Sensor);
  Cave amoebaLast({"G.1A", "....", "....", "...."});
  amoebaLast.hra.SetFieldMark({0, 0}, 3);
  EXPECT_EQ(ClosingScan(amoebaLast.hra), SoundId::AmoebaEnclosed);
}

TEST(AnEnclosedAmoeba, BecomesGemsWithAMessageAndAnEventOnce) {
  Cave cave({"WWWWWWW", "WAWAW1W", "WWWWWWW"}, {.script = "*A/Z*F-N"});
  cave.hra.AmoebaRoom = 0;
  EXPECT_EQ(ClosingScan(cave.hra), SoundId::AmoebaEnclosed);
  EXPECT_EQ(Drawn(cave.hra)[1], "WDWDW1W");
  EXPECT_EQ(cave.hra.FieldState({1, 1}), 2);
  EXPECT_EQ(cave.hra.AmoebaState, kAmoebaEnclosed);
  EXPECT_EQ(cave.diary.Count("message 101 green"), 1);
  EXPECT_EQ(cave.diary.Count("stop 13"), 2);
}

TEST(ATooLargeAmoeba, TurnsToBouldersFromTheCellOnThatReachesTheLimitAndTheRestInTheNextTick) {
  // 11 x 2 cells: the limit of 5/22 is 5 cells.
  Cave cave({"AAAAAA....1", ";;;;;;WWWWW"});
  cave.hra.AmoebaRoom = 6;
  EXPECT_EQ(ClosingScan(cave.hra), SoundId::AmoebaDead);
  EXPECT_EQ(Drawn(cave.hra)[0], "AAAARR....1");
  EXPECT_EQ(cave.hra.FieldState({4, 0}), 2);
  EXPECT_EQ(cave.hra.AmoebaState, kAmoebaTooBig);
  EXPECT_EQ(cave.diary.Count("message 102 green"), 1);
  ClosingScan(cave.hra);
  EXPECT_EQ(Drawn(cave.hra)[0], "RRRRRR....1");
  EXPECT_EQ(cave.diary.Count("message 102 green"), 1);
}

TEST(AnAmoeba, OneCellBelowTheLimitLivesOn) {
  Cave cave({"AAAA......1", ";;;;;;WWWWW"});
  cave.hra.AmoebaRoom = 6;
  EXPECT_EQ(ClosingScan(cave.hra), std::nullopt);
  EXPECT_EQ(Drawn(cave.hra)[0], "AAAA......1");
}

TEST(AnAmoebaEnclosedAndTooLargeInOneScan, GivesGemsBeforeTheLimitAndBouldersFromItOnAndBothEvents) {
  Cave cave({"AAAAAADDDD1", "WWWWWWWWWWW"}, {.script = "*A/Z*F-N*E-N"});
  cave.hra.CatProgram = "*A/Z*F-N*E-N";
  cave.hra.AmoebaRoom = 0;
  ClosingScan(cave.hra);
  EXPECT_EQ(Drawn(cave.hra)[0], "DDDDRRDDDD1");
  EXPECT_LT(cave.diary.Place("message 101 green"), cave.diary.Place("message 102 green"));
  EXPECT_EQ(cave.hra.CatPC, 5);
}

TEST(ACaveWithoutAmoeba, TurnsNothingToGemsThoughTheAmoebaHasNoRoom) {
  Cave cave({"1..;R"});
  Pass(cave.hra, 5);
  EXPECT_EQ(Drawn(cave.hra)[0], "1..;R");
  EXPECT_EQ(cave.hra.AmoebaState, kAmoebaSlow);
}

}  // namespace
}  // namespace zorik::test
