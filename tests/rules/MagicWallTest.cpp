#include <gtest/gtest.h>

#include "support/Scene.h"

namespace zorik::test {
namespace {

using Sounds = std::vector<SoundId>;

constexpr int kPlaceOfC = 5;  // in the program below: where the cat goes on when a magic wall wakes
const std::string kCatProgram = "*A-M*B-M*C-M*D-M/Z";

TEST(MagicWall, AGemOnADormantMagicWallWakesItAndComesOutTwoCellsBelowAsAFallingBoulder) {
  Diary diary;
  Hra hra = Live({"dJ", "M.", ".."}, {.script = kCatProgram}, &diary);
  hra.Elapsed = 37;
  diary.Clear();
  NewGravitace(hra, {0, 0});
  EXPECT_EQ(Drawn(hra), (Picture{".J", "M.", "r."}));
  EXPECT_TRUE(hra.FieldMoved({0, 2}));
  EXPECT_EQ(hra.MagicState, kMagicRunning);
  EXPECT_EQ(hra.MagicStart, 37);
  EXPECT_EQ(hra.CatPC, kPlaceOfC);
  EXPECT_EQ(diary.Count("message 96 yellow"), 1);
  EXPECT_EQ(SoundsOf(diary), (Sounds{SoundId::MagicWall, SoundId::FallGem}));
  EXPECT_TRUE(diary.Has("cell 0,0"));
  EXPECT_TRUE(diary.Has("cell 0,2"));
}

TEST(MagicWall, ARunningMagicWallWorksOnWithoutWakingAgain) {
  Diary diary;
  Hra hra = Live({"rJ", "M.", ".."}, {.script = kCatProgram}, &diary);
  hra.MagicState = kMagicRunning;
  hra.MagicStart = 20;
  hra.Elapsed = 37;
  diary.Clear();
  NewGravitace(hra, {0, 0});
  EXPECT_EQ(Drawn(hra), (Picture{".J", "M.", "d."}));
  EXPECT_EQ(hra.MagicStart, 20);
  EXPECT_EQ(hra.CatPC, 1);
  EXPECT_EQ(diary.Count("message*"), 0);
  EXPECT_EQ(SoundsOf(diary), Sounds{SoundId::FallGem});
}

TEST(MagicWall, OnAWorkingMagicWallBouldersAndGemsTurnIntoEachOtherAndAllElseIntoGems) {
  for (const char letter : std::string_view("RD!@#$F1")) {
    SCOPED_TRACE(letter);
    Hra hra = Play({".", "M", "."});
    Put(hra, 0, 0, letter);
    hra.SetFieldState({0, 0}, kFalling);
    NewGravitace(hra, {0, 0});
    EXPECT_EQ(hra.Field({0, 0}), kSpace);
    EXPECT_EQ(hra.Field({0, 2}), letter == 'D' ? kBoulder : kGem);
    EXPECT_EQ(hra.FieldState({0, 2}), kFalling);
  }
}

TEST(MagicWall, AFallingObjectOnASpentMagicWallVanishesWithNoConversionAndNoMessage) {
  Diary diary;
  Hra hra = Live({"d", "M", "."}, {}, &diary);
  hra.MagicState = kMagicSpent;
  diary.Clear();
  NewGravitace(hra, {0, 0});
  EXPECT_EQ(Drawn(hra), (Picture{".", "M", "."}));
  EXPECT_EQ(hra.MagicState, kMagicSpent);
  EXPECT_EQ(diary.Count("message*"), 0);
}

TEST(MagicWall, AFallingObjectOnAWorkingMagicWallWithNoRoomBelowVanishesAndWakesIt) {
  for (const char below : std::string_view(";WR-")) {
    SCOPED_TRACE(below);
    const std::string taken(1, below);
    Hra hra = Live({"d", "M", taken});
    NewGravitace(hra, {0, 0});
    EXPECT_EQ(Drawn(hra), (Picture{".", "M", taken}));
    EXPECT_EQ(hra.MagicState, kMagicRunning);
  }
}

TEST(MagicWall, AMagicWallInTheLastRowOnlySwallows) {
  Hra hra = Live({"d", "M"});
  NewGravitace(hra, {0, 0});
  EXPECT_EQ(Drawn(hra), (Picture{".", "M"}));
}

TEST(MagicWall, TheEmptiedCellOverAMagicWallKeepsTheStateOfARestingObject) {
  for (const int magic : {kMagicDormant, kMagicRunning, kMagicSpent}) {
    SCOPED_TRACE(magic);
    Diary diary;
    Hra hra = Live({".r.", ".M.", "..."}, {}, &diary);
    hra.MagicState = magic;
    diary.Clear();
    NewGravitace(hra, {1, 0});
    EXPECT_EQ(hra.Field({1, 0}), kSpace);
    EXPECT_EQ(hra.FieldState({1, 0}), kResting);
    EXPECT_EQ(diary.Count("sound 1"), 1);
  }
}

TEST(MagicWall, AMonsterInTheEmptiedCellOverAMagicWallFallsWhenTheWallIsGone) {
  Hra hra = Live({
      "WWW",
      "PdW",
      "WMW",
      "W.W",
  });
  NewGravitace(hra, {1, 1});
  Potvory(hra, {0, 1});
  ASSERT_EQ(Drawn(hra), (Picture{
                            "WWW",
                            "-FW",
                            "WMW",
                            "WrW",
                        }));
  hra.SetField({1, 2}, kSpace);
  NewGravitace(hra, {1, 1});
  EXPECT_EQ(Drawn(hra), (Picture{
                            "WWW",
                            "-.W",
                            "WFW",
                            "WrW",
                        }));
}

TEST(MagicWall, AnyMagicWallOfTheCaveWakesAllOfThem) {
  Hra hra = Live({"d.r", "M.M", "..."});
  NewGravitace(hra, {0, 0});
  const int start = hra.MagicStart;
  hra.Elapsed += 5;
  NewGravitace(hra, {2, 0});
  EXPECT_EQ(Drawn(hra), (Picture{"...", "M.M", "r.d"}));
  EXPECT_EQ(hra.MagicStart, start);
}

TEST(MagicWall, ABrickIsNoMagicWall) {
  Hra hra = Live({";d;", "WXW", "..."});
  NewGravitace(hra, {1, 0});
  EXPECT_EQ(Drawn(hra), (Picture{";D;", "WXW", "..."}));
  EXPECT_EQ(hra.MagicState, kMagicDormant);
}

TEST(MagicWall, AMagicWallIsSpentOnceItHasRunLongerThanItsTime) {
  Diary diary;
  Hra hra = Live({"dJ", "M.", ".."}, {.magicTime = 1, .script = kCatProgram}, &diary);
  Pass(hra, 11);  // woken at 0, and 10 ticks have passed when the eleventh begins
  EXPECT_EQ(hra.MagicState, kMagicRunning);
  EXPECT_EQ(diary.Count("message 104 yellow"), 0);
  Pass(hra);
  EXPECT_EQ(hra.MagicState, kMagicSpent);
  EXPECT_EQ(diary.Count("message 104 yellow"), 1);
  EXPECT_EQ(diary.Count("stop 9"), 1);
  EXPECT_EQ(hra.CatPC, 7);  // behind the label of the wall's end
  Pass(hra, 30);
  EXPECT_EQ(hra.MagicState, kMagicSpent);
  EXPECT_EQ(diary.Count("message 104 yellow"), 1);
}

}  // namespace
}  // namespace zorik::test
