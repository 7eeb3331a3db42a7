#include <gtest/gtest.h>

#include "support/Scene.h"

namespace zorik::test {
namespace {

using Sounds = std::vector<SoundId>;

// Lets the thing with the letter of its own in the middle of a hall be struck by another.
struct Struck {
  Struck(char falling, char hit) {
    hra = Play({"...", "...", "...", "..."}, {}, &diary);
    Put(hra, 1, 1, falling);
    hra.SetFieldState({1, 1}, kFalling);
    Put(hra, 1, 2, hit);
    diary.Clear();
    Dopad(hra, {1, 1});
  }
  Diary diary;
  Hra hra;
};

TEST(Impact, KillsEveryMonsterTheDogTheFleaAndTheCatWithAnExplosionOfTheThingThatWasHit) {
  const std::vector<std::pair<char, int>> marks{{'F', 0}, {'U', 12}, {'L', 8}, {'1', 4},
                                                {'N', 0}, {'J', 0},  {':', 0}};
  for (const auto& [hit, mark] : marks) {
    SCOPED_TRACE(hit);
    Struck scene('R', hit);
    EXPECT_EQ(Drawn(scene.hra), (Picture{"...", "xxx", "xxx", "xxx"}));
    EXPECT_EQ(scene.hra.FieldMark({1, 2}), mark);
    EXPECT_EQ(SoundsOf(scene.diary), Sounds{SoundId::Explosion});  // and none of a landing
  }
}

TEST(Impact, ABoulderThatFallsOnADogIsConsumedByTheDogsExplosion) {
  Hra hra = Live({
      ".....",
      "..r..",
      "..1..",
      ".....",
      "WWWWW",
  });
  Pass(hra);
  EXPECT_EQ(Drawn(hra), (Picture{
                            ".....",
                            ".xxx.",
                            ".xxx.",
                            ".xxx.",
                            "WWWWW",
                        }));
  EXPECT_EQ(hra.FieldMark({2, 1}), 4);
  EXPECT_FALSE(hra.Dog[1].Alive);
}

TEST(Impact, EveryFallingObjectIsEquallyDeadly) {
  for (const char falling : std::string_view("RD!@#$")) {
    SCOPED_TRACE(falling);
    Struck scene(falling, 'U');
    EXPECT_EQ(Drawn(scene.hra), (Picture{"...", "xxx", "xxx", "xxx"}));
    EXPECT_EQ(scene.hra.FieldMark({1, 1}), 12);
  }
}

TEST(Impact, LightsABombWithoutASound) {
  Struck scene('R', 'I');
  EXPECT_EQ(Drawn(scene.hra), (Picture{"...", ".r.", ".*.", "..."}));
  EXPECT_TRUE(scene.hra.FieldMoved({1, 2}));
  EXPECT_EQ(scene.diary.entries, (std::vector<std::string>{"cell 1,2"}));
}

TEST(Impact, ABombThatWasStruckGoesOffInTheNextObjectScanOnly) {
  Diary diary;
  Hra hra = Live({"...", ".r.", ".I.", "..."}, {}, &diary);
  diary.Clear();
  Pass(hra);
  EXPECT_EQ(Drawn(hra), (Picture{"...", ".R.", ".*.", "..."}));
  EXPECT_EQ(SoundsOf(diary), Sounds{});
  Pass(hra);
  EXPECT_EQ(Drawn(hra), (Picture{"...", "xxx", "xxx", "xxx"}));
  EXPECT_EQ(SoundsOf(diary), Sounds{SoundId::Explosion});
}

TEST(Impact, ABoxStopsAFallWithoutHarm) {
  Struck scene('R', 'K');
  EXPECT_EQ(Drawn(scene.hra), (Picture{"...", ".r.", ".K.", "..."}));
  EXPECT_EQ(scene.hra.FieldState({1, 2}), kRounded);
  EXPECT_EQ(SoundsOf(scene.diary), Sounds{SoundId::Boulder});
}

TEST(Impact, AMagicWallGivesTheSoundOfAGemWhateverFell) {
  for (const char falling : std::string_view("RD!@#$")) {
    SCOPED_TRACE(falling);
    EXPECT_EQ(SoundsOf(Struck(falling, 'M').diary), Sounds{SoundId::FallGem});
  }
}

TEST(Impact, TheEmptiedCellOverAMagicWallSoundsLikeAGemThoughABoulderFell) {
  Diary diary;
  Hra hra = Live({"r", "M", "."}, {}, &diary);
  hra.MagicState = kMagicRunning;
  diary.Clear();
  NewGravitace(hra, {0, 0});
  EXPECT_EQ(SoundsOf(diary), Sounds{SoundId::FallGem});
}

TEST(Impact, OnAllElseGemsAndKeysTinkleAndTheOthersThud) {
  for (const char hit : std::string_view(";WXSTAEVKCG%^&RD!@#$")) {
    for (const auto& [falling, sound] :
         std::vector<std::pair<char, int>>{{'D', 1}, {'!', 1}, {'@', 1}, {'#', 1}, {'R', 3}, {'$', 3}}) {
      SCOPED_TRACE(std::string(1, falling) + hit);
      Struck scene(falling, hit);
      EXPECT_EQ(scene.diary.entries, (std::vector<std::string>{"sound " + std::to_string(sound)}));
      EXPECT_EQ(scene.hra.FieldState({1, 1}), kFalling);  // gravity goes on with it
    }
  }
}

TEST(Impact, OnTheFrameOfTheCaveOnlySounds) {
  Diary diary;
  Hra hra = Live({"r"}, {}, &diary);
  diary.Clear();
  Dopad(hra, {0, 0});
  EXPECT_EQ(SoundsOf(diary), Sounds{SoundId::Boulder});
  EXPECT_EQ(hra.Field({0, 1}), kSteel);
}

}  // namespace
}  // namespace zorik::test
