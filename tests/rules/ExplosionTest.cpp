#include <gtest/gtest.h>

#include "support/Scene.h"

namespace zorik::test {
namespace {

using Sounds = std::vector<SoundId>;

// Lets the explosion scan of so many ticks run.
void BurnOn(Hra& hra, int ticks) {
  for (int i = 0; i < ticks; ++i) ExplosionScan(hra);
}

TEST(Explosion, FillsTheBlockOfThreeByThreeAroundItsCentreWithOneSound) {
  Diary diary;
  Hra hra = Play({".....", ".....", "..F..", ".....", "....."}, {}, &diary);
  diary.Clear();
  Exploze(hra, {2, 2});
  EXPECT_EQ(Drawn(hra), (Picture{
                            ".....",
                            ".xxx.",
                            ".xxx.",
                            ".xxx.",
                            ".....",
                        }));
  EXPECT_EQ(SoundsOf(diary), Sounds{SoundId::Explosion});
  EXPECT_EQ(diary.entries.front(), "sound 5");
  EXPECT_EQ(diary.Count("cell*"), 9);
}

TEST(Explosion, ItsKindFollowsFromTheCentre) {
  for (const ObjectLetter& object : kObjectLetters) {
    if (object.code == kSteel || (object.code == kBox && object.state == kFlat)) continue;
    SCOPED_TRACE(object.letter);
    Hra hra = Play({"...", "...", "..."});
    Put(hra, 1, 1, object.letter);
    Put(hra, 0, 0, 'L');  // has no part in it
    Exploze(hra, {1, 1});
    const int kind = object.code == kDog ? 1 : object.code == kFly ? 2 : object.code == kButterFly ? 3 : 0;
    ForEachCell(hra, [&](Cell c) {
      EXPECT_EQ(hra.Field(c), kExplosion);
      EXPECT_EQ(hra.FieldMark(c), kind * 4);
      EXPECT_EQ(hra.FieldState(c), kFlat);
      EXPECT_TRUE(hra.FieldMoved(c));
    });
  }
}

TEST(Explosion, AStruckBombInTheCentreIsConsumed) {
  Hra hra = Live({"...", ".*.", "..."});
  Exploze(hra, {1, 1});
  EXPECT_EQ(Drawn(hra), (Picture{"xxx", "xxx", "xxx"}));
  EXPECT_EQ(hra.FieldMark({1, 1}), 0);
}

TEST(Explosion, DestroysEverythingButSteelAndBombs) {
  for (const ObjectLetter& object : kObjectLetters) {
    SCOPED_TRACE(object.letter);
    Hra hra = Play({"...", ".F.", "..."});
    Put(hra, 2, 2, object.letter);
    Exploze(hra, {1, 1});
    const bool bomb = object.code == kBox && object.state == kFlat;
    EXPECT_EQ(hra.Field({2, 2}), object.code == kSteel ? kSteel : bomb ? kBoulder : kExplosion);
    EXPECT_EQ(hra.FieldState({2, 2}), kFlat);
  }
}

TEST(Explosion, SteelInTheBlockStaysAndSoDoesTheFrameOfTheCave) {
  Diary diary;
  Hra hra = Play({"FW", ".."}, {}, &diary);
  diary.Clear();
  Exploze(hra, {0, 0});
  EXPECT_EQ(Drawn(hra), (Picture{"xW", "xx"}));
  EXPECT_EQ(diary.Count("cell*"), 3);
  for (const Cell frame : {Cell(-1, -1), Cell(0, -1), Cell(1, -1), Cell(-1, 0), Cell(-1, 1)}) {
    EXPECT_EQ(hra.Field(frame), kSteel);
    EXPECT_EQ(hra.FieldMark(frame), 0);
  }
}

TEST(Explosion, AGemOnItsWayDownIsDestroyedLikeAnyOtherObject) {
  Hra hra = Live({"d..", ".F.", "..r"});
  Exploze(hra, {1, 1});
  EXPECT_EQ(Drawn(hra), (Picture{"xxx", "xxx", "xxx"}));
  EXPECT_EQ(hra.FieldState({0, 0}), kFlat);
}

TEST(Explosion, InsideASecondOneStartsAgainWithTheKindOfTheSecond) {
  Hra hra = Play({".....", ".F.U.", "....."});
  Exploze(hra, {1, 1});
  BurnOn(hra, 2);
  Exploze(hra, {3, 1});
  for (int y = 0; y < 3; ++y) {
    EXPECT_EQ(hra.FieldMark({0, y}), 2);
    EXPECT_EQ(hra.FieldMark({1, y}), 2);
    for (int x = 2; x < 5; ++x) EXPECT_EQ(hra.FieldMark({x, y}), 12);
  }
}

TEST(Explosion, AFinishInTheBlockIsDestroyedAndTheCaveCannotBeLeftThroughIt) {
  Hra hra = Play({"1;TF"}, {.needed = 0});
  Exploze(hra, {3, 0});
  EXPECT_EQ(hra.Field({2, 0}), kExplosion);
  Pass(hra, 5);
  EXPECT_TRUE(hra.ExitOpen);
  Pass(hra, 3, "R");
  EXPECT_EQ(Drawn(hra), (Picture{"...1"}));
  EXPECT_FALSE(hra.Win.has_value());
}

// Bombs

TEST(Explosion, LightsABombInTheBlockInsteadOfDestroyingIt) {
  Diary diary;
  Hra hra = Play({"...", ".F.", "..I"}, {}, &diary);
  diary.Clear();
  Exploze(hra, {1, 1});
  EXPECT_EQ(Drawn(hra), (Picture{"xxx", "xxx", "xx*"}));
  EXPECT_TRUE(hra.FieldMoved({2, 2}));
  EXPECT_EQ(hra.FieldMark({2, 2}), 0);
  EXPECT_EQ(diary.Count("cell 2,2"), 1);
}

TEST(Explosion, SparesAStruckBombBesideIt) {
  Diary diary;
  Hra hra = Live({"*..", ".F.", "..."}, {}, &diary);
  diary.Clear();
  Exploze(hra, {1, 1});
  EXPECT_EQ(Drawn(hra), (Picture{"*xx", "xxx", "xxx"}));
  EXPECT_FALSE(hra.FieldMoved({0, 0}));
  EXPECT_EQ(diary.Count("cell 0,0"), 0);
}

TEST(Explosion, ABoulderAndABoxAreNoBombs) {
  Hra hra = Play({"R..", ".F.", "..K"});
  Exploze(hra, {1, 1});
  EXPECT_EQ(Drawn(hra), (Picture{"xxx", "xxx", "xxx"}));
}

TEST(Explosion, ARowOfBombsGoesOffOneTickAfterTheOther) {
  Hra hra = Live({"*IIII"});
  Pass(hra);
  EXPECT_EQ(Drawn(hra), (Picture{"x*III"}));
  Pass(hra);
  EXPECT_EQ(Drawn(hra), (Picture{"xx*II"}));
  Pass(hra);
  EXPECT_EQ(Drawn(hra), (Picture{"xxx*I"}));
  Pass(hra);
  EXPECT_EQ(Drawn(hra), (Picture{"xxxx*"}));
}

TEST(Explosion, AtTheEndOfATickLightsBombsBelowForTheNextTickAndBombsAboveForTheOneAfterIt) {
  Hra hra = Play({
      "WWWWWW",
      "W;;;;W",
      "W;I;;W",
      "W;;FHW",
      "W;;;IW",
      "W;;;;W",
      "WWWWWW",
  });
  Pass(hra);
  EXPECT_EQ(Drawn(hra), (Picture{
                            "WWWWWW",
                            "W;;;;W",
                            "W;*xxW",
                            "W;xxxW",
                            "W;xx*W",
                            "W;;;;W",
                            "WWWWWW",
                        }));
  EXPECT_TRUE(hra.FieldMoved({2, 2}));
  EXPECT_FALSE(hra.FieldMoved({4, 4}));
  Pass(hra);
  EXPECT_EQ(Drawn(hra), (Picture{
                            "WWWWWW",
                            "W;;;;W",
                            "W;*xxW",
                            "W;xxxW",
                            "W;xxxW",
                            "W;;xxW",
                            "WWWWWW",
                        }));
  Pass(hra);
  EXPECT_EQ(Drawn(hra), (Picture{
                            "WWWWWW",
                            "Wxxx;W",
                            "WxxxxW",
                            "WxxxxW",
                            "W;xxxW",
                            "W;;xxW",
                            "WWWWWW",
                        }));
}

// The splitter, the cat, the dog

TEST(Explosion, ADestroyedMouthOfASplitterRepaintsItsTwoSteelsAfterItIsGone) {
  Diary diary;
  Hra hra = Play({"WEW", ".F.", "..."}, {}, &diary);
  diary.Clear();
  Exploze(hra, {1, 1});
  EXPECT_EQ(Drawn(hra), (Picture{"WxW", "xxx", "xxx"}));
  ASSERT_EQ(diary.Count("cell 0,0"), 1);
  ASSERT_EQ(diary.Count("cell 2,0"), 1);
  EXPECT_LT(diary.Place("cell 1,0"), diary.Place("cell 0,0"));
  EXPECT_LT(diary.Place("cell 1,0"), diary.Place("cell 2,0"));
}

TEST(Explosion, AGrowingWallBesideOneSteelIsNoMouth) {
  Diary diary;
  Hra hra = Play({"WE;", ".F.", "..."}, {}, &diary);
  diary.Clear();
  Exploze(hra, {1, 1});
  EXPECT_EQ(diary.Count("cell 0,0"), 0);
}

TEST(Explosion, KillsTheCatInTheBlockAndNoOther) {
  Hra dead = Play({"F.", ".J"});
  Exploze(dead, {0, 0});
  EXPECT_FALSE(dead.CatPresent);
  Hra alive = Play({"F.J", "..."});
  Exploze(alive, {0, 0});
  EXPECT_TRUE(alive.CatPresent);
}

TEST(Explosion, ADogIsNotToldThatItDiesTheTickFindsIt) {
  Diary diary;
  Hra hra = Play({"F1", ".."}, {}, &diary);
  Exploze(hra, {0, 0});
  EXPECT_TRUE(hra.Dog[1].Alive);
  EXPECT_FALSE(diary.Has("dog 1 2"));
  Pass(hra);
  EXPECT_FALSE(hra.Dog[1].Alive);
  EXPECT_TRUE(diary.Has("dog 1 2"));
}

// Burning

TEST(Explosion, BurnsForFourTicksAndLeavesWhatItsKindTells) {
  struct Kind {
    char centre;
    int mark;
    Object code;
    State state;
  };
  for (const Kind& kind : {Kind{'F', 0, kSpace, kFlat}, Kind{'1', 4, kSpace, kFlat},
                           Kind{'L', 8, kBoulder, kResting}, Kind{'U', 12, kGem, kResting}}) {
    SCOPED_TRACE(kind.centre);
    Diary diary;
    Hra hra = Play({"."}, {}, &diary);
    Put(hra, 0, 0, kind.centre);
    Exploze(hra, {0, 0});
    EXPECT_EQ(hra.FieldMark({0, 0}), kind.mark);
    for (int phase = 1; phase <= 4; ++phase) {
      hra.SetFieldMoved({0, 0}, false);
      diary.Clear();
      ExplosionScan(hra);
      const bool over = phase == 4;
      EXPECT_EQ(hra.Field({0, 0}), over ? kind.code : kExplosion);
      EXPECT_EQ(hra.FieldState({0, 0}), over ? kind.state : kFlat);
      EXPECT_EQ(hra.FieldMark({0, 0}), over ? 0 : kind.mark + phase);
      EXPECT_TRUE(hra.FieldMoved({0, 0}));
      EXPECT_EQ(diary.entries, (std::vector<std::string>{"cell 0,0"}));
    }
    hra.SetFieldMoved({0, 0}, false);
    ExplosionScan(hra);
    EXPECT_FALSE(hra.FieldMoved({0, 0}));
  }
}

TEST(Explosion, AFlyKilledByABoulderGivesNineBouldersAndAButterflyNineGemsButForSteel) {
  for (const auto& [monster, left] : std::vector<std::pair<char, char>>{{'L', 'R'}, {'U', 'D'}}) {
    SCOPED_TRACE(monster);
    Hra hra = Live({
        ";;;;;",
        ";;r;;",
        ";;;;;",
        ";;;;W",
        ";;;;;",
    });
    Put(hra, 2, 2, monster);
    Pass(hra);
    EXPECT_EQ(Drawn(hra)[1], ";xxx;");
    Pass(hra, 3);
    EXPECT_EQ(Drawn(hra)[1], ";xxx;");
    Pass(hra);
    const std::string row = std::string(";") + left + left + left + ";";
    EXPECT_EQ(Drawn(hra), (Picture{";;;;;", row, row, row.substr(0, 4) + "W", ";;;;;"}));
  }
}

TEST(Explosion, SteelInTheBlockOfAButterflyMakesOneGemLess) {
  Hra hra = Play({"..W", ".U.", "..."});
  Exploze(hra, {1, 1});
  BurnOn(hra, 4);
  EXPECT_EQ(Drawn(hra), (Picture{"DDW", "DDD", "DDD"}));
}

TEST(Explosion, WhatComesOutOfItIsInertForTheRestOfItsTickAndFallsInTheNext) {
  Hra hra = Live({"x", ".", "."});
  hra.SetFieldMark({0, 0}, 11);
  Pass(hra);
  EXPECT_EQ(Drawn(hra), (Picture{"R", ".", "."}));
  Pass(hra);
  EXPECT_EQ(Drawn(hra), (Picture{".", "r", "."}));
}

TEST(Explosion, TheSpaceThatItLeavesKeepsTheStateOfItsCell) {
  Hra hra = Live({"x"});
  hra.SetFieldState({0, 0}, kResting);  // as over a monster that was struck over a magic wall
  hra.SetFieldMark({0, 0}, 3);
  BurnOn(hra, 1);
  EXPECT_EQ(hra.Field({0, 0}), kSpace);
  EXPECT_EQ(hra.FieldState({0, 0}), kResting);
}

TEST(Explosion, ABoulderOverItStaysUpAsLongAsItBurns) {
  Hra hra = Live({"R", "x", "."});
  Pass(hra, 3);
  EXPECT_EQ(Drawn(hra), (Picture{"R", "x", "."}));
  Pass(hra);
  EXPECT_EQ(Drawn(hra), (Picture{".", "r", "."}));
}

}  // namespace
}  // namespace zorik::test
