#include <gtest/gtest.h>

#include "support/Scene.h"

namespace zorik::test {
namespace {

using Sounds = std::vector<SoundId>;

// Objects of state 0, so nothing rolls off them.
constexpr std::string_view kFlatThings = ";W1TMAIEVSLFUCNGJ:";
// With state 2 themselves, all of them fall alike.
constexpr std::string_view kFallingThings = "RD!@#$";

struct Scene {
  std::string what;
  Picture before;
  Picture after;
};

// Resting

TEST(Gravity, ARestingObjectFallsStraightDownIntoSpaceEvenWhereItCouldRoll) {
  Hra hra = Play({
      ".R.",
      "...",
      ".X.",
  });
  NewGravitace(hra, {1, 0});
  EXPECT_EQ(Drawn(hra), (Picture{
                            "...",
                            ".r.",
                            ".X.",
                        }));
  EXPECT_EQ(hra.FieldState({1, 0}), kFlat);
  EXPECT_TRUE(hra.FieldMoved({1, 1}));
  EXPECT_FALSE(hra.FieldMoved({1, 0}));
}

TEST(Gravity, AFallRepaintsTheCellThatWasLeftAndThenTheNewOne) {
  Diary diary;
  Hra hra = Play({"R", "."}, {}, &diary);
  diary.Clear();
  NewGravitace(hra, {0, 0});
  EXPECT_EQ(diary.entries, (std::vector<std::string>{"cell 0,0", "cell 0,1"}));
}

TEST(Gravity, EveryObjectOfStateTwoFallsWhateverItIs) {
  for (const char letter : std::string_view("RD!@#$F1A;")) {
    SCOPED_TRACE(letter);
    Hra hra = Play({".", "."});
    Put(hra, 0, 0, letter);
    const std::uint16_t code = hra.Field({0, 0});
    hra.SetFieldState({0, 0}, kResting);
    NewGravitace(hra, {0, 0});
    EXPECT_EQ(hra.Field({0, 0}), kSpace);
    EXPECT_EQ(hra.Field({0, 1}), code);
    EXPECT_EQ(hra.FieldState({0, 1}), kFalling);
  }
}

TEST(Gravity, WhatHasStateOneOrNoneStaysInTheAir) {
  Hra hra = Play({"XK%I1F;", "......."});
  for (int x = 0; x < 7; ++x) NewGravitace(hra, {x, 0});
  EXPECT_EQ(Drawn(hra), (Picture{"XK%I1F;", "......."}));
}

TEST(Gravity, ABoulderOnAGemOnABrickRollsLeftAndNeverRight) {
  Hra hra = Play({
      ".R.",
      ".D.",
      ".X.",
  });
  NewGravitace(hra, {1, 0});
  EXPECT_EQ(Drawn(hra), (Picture{
                            "r..",
                            ".D.",
                            ".X.",
                        }));
  EXPECT_TRUE(hra.FieldMoved({0, 0}));
}

TEST(Gravity, ARestingObjectRollsOffAllThatIsRounded) {
  for (const char below : std::string_view("XK%^&RD!@#$rd")) {
    SCOPED_TRACE(below);
    Hra hra = Live({"WR.", std::string("W") + below + "."});
    NewGravitace(hra, {1, 0});
    EXPECT_EQ(Drawn(hra), (Picture{"W.r", std::string("W") + below + "."}));
  }
}

TEST(Gravity, RollingNeedsTheCellBesideAndTheOneBelowItFree) {
  const std::vector<Scene> scenes{
      {"both free on both sides", {".R.", ".X."}, {"r..", ".X."}},
      {"left one taken", {";R.", ".X."}, {";.r", ".X."}},
      {"left one below taken", {".R.", ";X."}, {"..r", ";X."}},
      {"right one taken too", {";R;", ".X."}, {";R;", ".X."}},
      {"right one below taken too", {".R.", ";X;"}, {".R.", ";X;"}},
  };
  for (const Scene& scene : scenes) {
    SCOPED_TRACE(scene.what);
    Hra hra = Play(scene.before);
    NewGravitace(hra, {1, 0});
    EXPECT_EQ(Drawn(hra), scene.after);
  }
}

TEST(Gravity, ARestingObjectOnAFlatCellStaysWithNoSoundAndNoImpact) {
  for (const char below : kFlatThings) {
    SCOPED_TRACE(below);
    Diary diary;
    Hra hra = Play({".R.", "..."}, {}, &diary);
    Put(hra, 1, 1, below);
    const Picture before = Drawn(hra);
    diary.Clear();
    NewGravitace(hra, {1, 0});
    EXPECT_EQ(Drawn(hra), before);
    EXPECT_EQ(hra.FieldState({1, 0}), kResting);
    EXPECT_TRUE(diary.entries.empty());
  }
}

TEST(Gravity, ARestingObjectOnAMagicWallLiesThereAndLetsItSleep) {
  Hra hra = Play({"D", "M", "."});
  NewGravitace(hra, {0, 0});
  EXPECT_EQ(Drawn(hra), (Picture{"D", "M", "."}));
  EXPECT_EQ(hra.MagicState, kMagicDormant);
}

TEST(Gravity, ACellThatAMonsterVacatedStopsARollAndAFall) {
  const std::vector<Scene> scenes{
      {"beside", {"-RW", ".XW"}, {"-RW", ".XW"}},
      {"beside and below", {".RW", "-XW"}, {".RW", "-XW"}},
      {"below", {"WRW", "W-W"}, {"WRW", "W-W"}},
  };
  for (const Scene& scene : scenes) {
    SCOPED_TRACE(scene.what);
    Hra hra = Live(scene.before);
    NewGravitace(hra, {1, 0});
    EXPECT_EQ(Drawn(hra), scene.after);
  }
}

TEST(Gravity, ABoulderRollsIntoTheCellThatAFireflyLeftOnlyInTheNextTick) {
  Hra hra = Play({
      "W.WW",
      "WORW",
      "W.XW",
      "WWWW",
  });
  Pass(hra);
  EXPECT_EQ(Drawn(hra), (Picture{
                            "WFWW",
                            "W.RW",
                            "W.XW",
                            "WWWW",
                        }));
  Pass(hra);
  EXPECT_EQ(Drawn(hra), (Picture{
                            "WFWW",
                            "Wr.W",
                            "W.XW",
                            "WWWW",
                        }));
}

TEST(Gravity, AnObjectInTheLastRowFallsNoFurther) {
  Hra hra = Live({"r.R"});
  Pass(hra, 3);
  EXPECT_EQ(Drawn(hra), (Picture{"R.R"}));
}

// Falling

TEST(Gravity, AFallingObjectFallsOnAsFallingWithoutASound) {
  Diary diary;
  Hra hra = Live({"r", "."}, {}, &diary);
  diary.Clear();
  NewGravitace(hra, {0, 0});
  EXPECT_EQ(Drawn(hra), (Picture{".", "r"}));
  EXPECT_TRUE(hra.FieldMoved({0, 1}));
  EXPECT_EQ(SoundsOf(diary), Sounds{});
}

TEST(Gravity, AFallingObjectThatLandsOnSomethingRoundedSoundsAndRollsOnInTheSameTick) {
  const std::vector<Scene> scenes{
      {"left first", {".d.", ".X."}, {"d..", ".X."}},
      {"right when left is taken", {";d.", ".X."}, {";.d", ".X."}},
      {"right when left below is taken", {".d.", ";X."}, {"..d", ";X."}},
      {"nowhere", {".d;", ";X."}, {".D;", ";X."}},
  };
  for (const Scene& scene : scenes) {
    SCOPED_TRACE(scene.what);
    Diary diary;
    Hra hra = Live(scene.before, {}, &diary);
    diary.Clear();
    NewGravitace(hra, {1, 0});
    EXPECT_EQ(Drawn(hra), scene.after);
    // The sound of a gem: it is still in its cell when it strikes.
    EXPECT_EQ(SoundsOf(diary), Sounds{SoundId::FallGem});
  }
}

TEST(Gravity, AFallingObjectThatLandsOnSomethingFlatComesToRestAndNeverRolls) {
  for (const char below : std::string_view(";WTAEVSCG")) {
    SCOPED_TRACE(below);
    Diary diary;
    Hra hra = Live({".r.", "..."}, {}, &diary);
    Put(hra, 1, 1, below);
    diary.Clear();
    NewGravitace(hra, {1, 0});
    EXPECT_EQ(hra.Field({1, 0}), kBoulder);
    EXPECT_EQ(hra.FieldState({1, 0}), kResting);
    EXPECT_FALSE(hra.FieldMoved({1, 0}));
    EXPECT_EQ(SoundsOf(diary), Sounds{SoundId::Boulder});
  }
}

TEST(Gravity, WhatStrikesAFlatMonsterIsAtRestBeforeItBurns) {
  Hra hra = Live({"...", ".r.", ".F.", "..."});
  NewGravitace(hra, {1, 1});
  EXPECT_EQ(hra.Field({1, 1}), kExplosion);
  EXPECT_EQ(hra.FieldState({1, 1}), kFlat);
}

TEST(Gravity, WhatStrikesARoundedMonsterBurnsBeforeItComesToRest) {
  Hra hra = Live({"...", ".r.", ".F.", "..."});
  hra.SetFieldState({1, 2}, kResting);  // as a firefly has over a magic wall
  NewGravitace(hra, {1, 1});
  EXPECT_EQ(hra.Field({1, 1}), kExplosion);
  EXPECT_EQ(hra.FieldState({1, 1}), kResting);
}

TEST(Gravity, AnObjectMovesOneCellATickDownAndToTheRight) {
  Hra hra = Play({
      "WR..W",
      "WX..W",
      "WWX.W",
      "WWWWW",
  });
  Pass(hra);
  EXPECT_EQ(Drawn(hra), (Picture{
                            "W.r.W",
                            "WX..W",
                            "WWX.W",
                            "WWWWW",
                        }));
  Pass(hra);
  EXPECT_EQ(Drawn(hra), (Picture{
                            "W...W",
                            "WXr.W",
                            "WWX.W",
                            "WWWWW",
                        }));
}

TEST(Gravity, EachLandingOnTheWayDownASlopeSounds) {
  Diary diary;
  Hra hra = Play(
      {
          "WR..W",
          "WX..W",
          "WWX.W",
          "WWWWW",
      },
      {}, &diary);
  diary.Clear();
  Pass(hra, 2);
  EXPECT_EQ(SoundsOf(diary), Sounds{});
  Pass(hra);  // off the second brick
  EXPECT_EQ(SoundsOf(diary), Sounds{SoundId::Boulder});
  Pass(hra);
  EXPECT_EQ(SoundsOf(diary), Sounds{SoundId::Boulder});
  Pass(hra);  // on steel
  EXPECT_EQ(SoundsOf(diary), (Sounds{SoundId::Boulder, SoundId::Boulder}));
  Pass(hra, 3);
  EXPECT_EQ(SoundsOf(diary), (Sounds{SoundId::Boulder, SoundId::Boulder}));
  EXPECT_EQ(Drawn(hra), (Picture{
                            "W...W",
                            "WX..W",
                            "WWXRW",
                            "WWWWW",
                        }));
}

// The splitter

TEST(Gravity, AnObjectOnTheMouthOfASplitterComesOutOfEachFreeOutlet) {
  const std::vector<Scene> scenes{
      {"both free", {".R.", "WEW", "..."}, {"...", "WEW", "r.r"}},
      {"left taken", {".R.", "WEW", ";.."}, {"...", "WEW", ";.r"}},
      {"right taken", {".R.", "WEW", "..;"}, {"...", "WEW", "r.;"}},
      {"both taken", {".R.", "WEW", ";.;"}, {"...", "WEW", ";.;"}},
      {"one vacated", {".R.", "WEW", "-.."}, {"...", "WEW", "-.r"}},
  };
  for (const Scene& scene : scenes) {
    SCOPED_TRACE(scene.what);
    Hra hra = Live(scene.before);
    NewGravitace(hra, {1, 0});
    EXPECT_EQ(Drawn(hra), scene.after);
    EXPECT_EQ(hra.FieldState({1, 0}), kFlat);
    for (const int x : {0, 2}) EXPECT_EQ(hra.FieldMoved({x, 2}), hra.Field({x, 2}) == kBoulder);
  }
}

TEST(Gravity, WhatTheSplitterMakesTwoOfKeepsItsKind) {
  for (const char letter : kFallingThings) {
    SCOPED_TRACE(letter);
    Hra hra = Play({"...", "WEW", "..."});
    Put(hra, 1, 0, letter);
    const std::uint16_t code = hra.Field({1, 0});
    NewGravitace(hra, {1, 0});
    for (const int x : {0, 2}) {
      EXPECT_EQ(hra.Field({x, 2}), code);
      EXPECT_EQ(hra.FieldState({x, 2}), kFalling);
    }
  }
}

TEST(Gravity, AnObjectThatFallsIntoTheMouthOfASplitterLandsFirst) {
  Diary diary;
  Hra hra = Live({".r.", "WEW", "..."}, {}, &diary);
  diary.Clear();
  NewGravitace(hra, {1, 0});
  EXPECT_EQ(Drawn(hra), (Picture{"...", "WEW", "r.r"}));
  EXPECT_EQ(SoundsOf(diary), Sounds{SoundId::Boulder});
}

TEST(Gravity, AnObjectAtRestGoesThroughTheSplitterWithoutASound) {
  Diary diary;
  Hra hra = Play({".R.", "WEW", "..."}, {}, &diary);
  diary.Clear();
  NewGravitace(hra, {1, 0});
  EXPECT_EQ(SoundsOf(diary), Sounds{});
  EXPECT_TRUE(diary.Has("cell 0,2"));
  EXPECT_TRUE(diary.Has("cell 2,2"));
  EXPECT_TRUE(diary.Has("cell 1,0"));
}

TEST(Gravity, AGrowingWallIsASplitterOnlyBetweenTwoSteelsAndOnlyIfItGrowsSideways) {
  for (const std::string row : {"WE;", ";EW", "WVW", "XEX"}) {
    SCOPED_TRACE(row);
    Hra hra = Play({".R.", row, "..."});
    NewGravitace(hra, {1, 0});
    EXPECT_EQ(Drawn(hra), (Picture{".R.", row, "..."}));
  }
}

TEST(Gravity, WhatASplitterDropsDoesNotMoveInTheSameTick) {
  Hra hra = Play({".R.", "WEW", "...", "...", "..."});
  Pass(hra);
  EXPECT_EQ(Drawn(hra), (Picture{"...", "WEW", "r.r", "...", "..."}));
}

// Clearing

TEST(ClearField, EmptiesACellAndLeavesItsMarkAndWhetherItHasMoved) {
  Diary diary;
  Hra hra = Play({"R"}, {}, &diary);
  hra.SetFieldMark({0, 0}, 7);
  hra.SetFieldMoved({0, 0}, true);
  diary.Clear();
  ClearField(hra, {0, 0});
  EXPECT_EQ(hra.Field({0, 0}), kSpace);
  EXPECT_EQ(hra.FieldState({0, 0}), kFlat);
  EXPECT_EQ(hra.FieldMark({0, 0}), 7);
  EXPECT_TRUE(hra.FieldMoved({0, 0}));
  EXPECT_EQ(diary.entries, (std::vector<std::string>{"cell 0,0"}));
}

}  // namespace
}  // namespace zorik::test
