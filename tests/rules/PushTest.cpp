#include <gtest/gtest.h>

#include "rules/Push.h"
#include "support/Scene.h"

namespace zorik::test {
namespace {

using Sounds = std::vector<SoundId>;

constexpr std::array<int, 4> kDirections{kKeyLeft, kKeyUp, kKeyRight, kKeyDown};

// Boxes and bombs

TEST(PushBox, IntoAFreeCellSucceedsInAllFourDirectionsWithAnyDraw) {
  for (const int direction : kDirections) {
    for (const char letter : std::string_view("KI")) {
      for (const int chance : {1, 2, 3, 4}) {
        SCOPED_TRACE(std::to_string(direction) + letter + std::to_string(chance));
        Hra hra = PlayBack({".....", ".....", "..1..", ".....", "....."}, {});
        const Step step = StepOf(direction);
        const Cell box = Cell(2, 2) + step;
        Put(hra, box.x(), box.y(), letter);
        const std::uint8_t state = hra.FieldState(box);
        StepDog(hra, direction, chance);
        EXPECT_EQ(hra.Field(box + step), kBox);
        EXPECT_EQ(hra.FieldState(box + step), state);
        EXPECT_EQ(hra.Field(box), kDog);
        EXPECT_EQ(hra.FieldState(box), kFlat);
        EXPECT_EQ(hra.Field({2, 2}), kSpace);
      }
    }
  }
}

TEST(PushBox, ScrapesOnceAndRepaintsTheBoxInItsNewCell) {
  Diary diary;
  Hra hra = PlayBack({"1K."}, {}, {}, &diary);
  diary.Clear();
  StepDog(hra, kKeyRight, 2);
  EXPECT_EQ(SoundsOf(diary), Sounds{SoundId::BoxPush});
  EXPECT_TRUE(diary.Has("cell 2,0"));
}

TEST(PushBox, WorksAtArmsLength) {
  Diary diary;
  Hra hra = PlayBack({"1K."}, {}, {}, &diary);
  diary.Clear();
  StepDog(hra, kKeyRight, 2, 1);
  EXPECT_EQ(Drawn(hra), (Picture{"1.K"}));
  EXPECT_EQ(hra.FieldState({1, 0}), kFlat);
  EXPECT_EQ(SoundsOf(diary), Sounds{SoundId::BoxPush});
}

TEST(PushBox, WithAWallBehindStopsTheDogInThreeStepsOfFour) {
  for (const int chance : {2, 3, 4}) {
    SCOPED_TRACE(chance);
    Diary diary;
    Hra hra = PlayBack({"1KW"}, {}, {}, &diary);
    diary.Clear();
    StepDog(hra, kKeyRight, chance);
    EXPECT_EQ(Drawn(hra), (Picture{"1KW"}));
    EXPECT_EQ(SoundsOf(diary), Sounds{});
  }
}

TEST(PushBox, WithAWallBehindChangesPlacesWithTheDogInOneStepOfFourAndDoesNotHarmIt) {
  for (const char letter : std::string_view("KI")) {
    SCOPED_TRACE(letter);
    Diary diary;
    Hra hra = PlayBack({std::string("1") + letter + "W"}, {}, {}, &diary);
    const std::uint8_t state = hra.FieldState({1, 0});
    diary.Clear();
    StepDog(hra, kKeyRight, 1);
    EXPECT_EQ(Drawn(hra), (Picture{letter + std::string("1W")}));
    EXPECT_EQ(hra.FieldState({0, 0}), state);
    EXPECT_EQ(hra.FieldState({1, 0}), kFlat);
    EXPECT_TRUE(hra.Dog[1].Alive);
    EXPECT_EQ(hra.Dog[1].x, 1);
    EXPECT_EQ(SoundsOf(diary), (Sounds{SoundId::BoxPush, SoundId::BoxPush}));
  }
}

TEST(PushBox, ChangesPlacesUpAndDownToo) {
  Hra up = PlayBack({"W", "K", "1"}, {});
  StepDog(up, kKeyUp, 1);
  EXPECT_EQ(Drawn(up), (Picture{"W", "1", "K"}));
  Hra down = PlayBack({"1", "K", "W"}, {});
  StepDog(down, kKeyDown, 1);
  EXPECT_EQ(Drawn(down), (Picture{"K", "1", "W"}));
}

TEST(PushBox, WithTheActionKeyNeverChangesPlaces) {
  for (const int chance : {1, 2, 3, 4}) {
    SCOPED_TRACE(chance);
    Diary diary;
    Hra hra = PlayBack({"1KW"}, {}, {}, &diary);
    diary.Clear();
    StepDog(hra, kKeyRight, chance, 1);
    EXPECT_EQ(Drawn(hra), (Picture{"1KW"}));
    EXPECT_EQ(SoundsOf(diary), Sounds{});
  }
}

TEST(PushBox, IsBlockedByAnythingButSpaceAlsoByAVacatedCell) {
  for (const std::uint16_t behind : {kDirt, kGem, kDog, kBox, kFinish, kVacated}) {
    SCOPED_TRACE(behind);
    Hra hra = PlayBack({"1K."}, {});
    hra.SetField({2, 0}, behind);
    StepDog(hra, kKeyRight, 4);
    EXPECT_EQ(hra.Field({1, 0}), kBox);
    EXPECT_EQ(hra.Field({2, 0}), behind);
  }
}

TEST(PushBox, APushedBombStaysABombAndABoxABoxAndNeitherFalls) {
  for (const char letter : std::string_view("KI")) {
    SCOPED_TRACE(letter);
    const std::string pushed = std::string(".1") + letter + ".";
    const RecordTick quiet{.before = {32}};
    Hra hra = PlayBack({std::string("1") + letter + "..", "WW.."},
                       {{.before = {32}, .direction = kKeyRight, .after = {2}}, quiet, quiet});
    Pass(hra);
    EXPECT_EQ(Drawn(hra), (Picture{pushed, "WW.."}));
    Pass(hra, 2);
    EXPECT_EQ(Drawn(hra), (Picture{pushed, "WW.."}));
  }
}

// Boulders

TEST(PushBoulder, SidewaysWithOneDrawOfFourOnly) {
  for (const int chance : {1, 2, 3, 4}) {
    SCOPED_TRACE(chance);
    Diary diary;
    Hra right = PlayBack({"1R."}, {}, {}, &diary);
    diary.Clear();
    StepDog(right, kKeyRight, chance);
    EXPECT_EQ(Drawn(right), chance == 1 ? (Picture{".1R"}) : (Picture{"1R."}));
    EXPECT_EQ(SoundsOf(diary), chance == 1 ? Sounds{SoundId::BoulderPush} : Sounds{});
    EXPECT_EQ(diary.Has("cell 2,0"), chance == 1);
    Hra left = PlayBack({".R1"}, {});
    StepDog(left, kKeyLeft, chance);
    EXPECT_EQ(Drawn(left), chance == 1 ? (Picture{"R1."}) : (Picture{".R1"}));
  }
}

TEST(PushBoulder, RestsInItsNewCellAndLeavesAFlatOne) {
  Hra hra = PlayBack({"1R."}, {});
  StepDog(hra, kKeyRight, 1);
  EXPECT_EQ(hra.FieldState({2, 0}), kResting);
  EXPECT_EQ(hra.FieldState({1, 0}), kFlat);
}

TEST(PushBoulder, NeverUpOrDown) {
  Hra up = PlayBack({".", "R", "1"}, {});
  StepDog(up, kKeyUp, 1);
  EXPECT_EQ(Drawn(up), (Picture{".", "R", "1"}));
  Hra down = PlayBack({"1", "R", "."}, {});
  StepDog(down, kKeyDown, 1);
  EXPECT_EQ(Drawn(down), (Picture{"1", "R", "."}));
}

TEST(PushBoulder, OnlyWhileItRests) {
  for (const std::uint8_t state : {kFalling, kFlat}) {
    SCOPED_TRACE(state);
    Hra hra = PlayBack({"1R."}, {});
    hra.SetFieldState({1, 0}, state);
    StepDog(hra, kKeyRight, 1);
    EXPECT_EQ(hra.Field({0, 0}), kDog);
    EXPECT_EQ(hra.Field({1, 0}), kBoulder);
    EXPECT_EQ(hra.Field({2, 0}), kSpace);
  }
}

TEST(PushBoulder, OnlyIntoSpace) {
  for (const std::uint16_t behind : {kDirt, kGem, kBoulder, kVacated}) {
    SCOPED_TRACE(behind);
    Hra hra = PlayBack({"1R."}, {});
    hra.SetField({2, 0}, behind);
    StepDog(hra, kKeyRight, 1);
    EXPECT_EQ(hra.Field({1, 0}), kBoulder);
    EXPECT_EQ(hra.Field({2, 0}), behind);
  }
}

TEST(PushBoulder, AtArmsLengthLeavesTheDogBehind) {
  Hra hra = PlayBack({"1R."}, {});
  StepDog(hra, kKeyRight, 1, 1);
  EXPECT_EQ(Drawn(hra), (Picture{"1.R"}));
}

TEST(PushBoulder, ByTheDogCountsAsMovedOverAFloorThatIsNotFlat) {
  for (const char floor : std::string_view("XKR;W.")) {
    SCOPED_TRACE(floor);
    Hra hra = PlayBack({"1R.", "WW."}, {});
    Put(hra, 2, 1, floor);
    StepDog(hra, kKeyRight, 1);
    EXPECT_EQ(hra.FieldMoved({2, 0}), hra.FieldState({2, 1}) != kFlat);
  }
}

TEST(PushBoulder, ByTheCatCountsAsMovedOverAFloorThatIsFlat) {
  for (const char floor : std::string_view("XKR;W.")) {
    SCOPED_TRACE(floor);
    Hra hra = Play({"JR.", "WW."});
    Put(hra, 2, 1, floor);
    ASSERT_TRUE(PushBoulder(hra, {1, 0}, kRight, kFlat));
    EXPECT_EQ(hra.FieldMoved({2, 0}), hra.FieldState({2, 1}) == kFlat);
  }
}

TEST(PushBoulder, OverTheEdgeOfADropFallsInALaterTick) {
  Hra hra = PlayBack({"1R.", "WW.", "WW."},
                     {{.before = {32}, .direction = kKeyRight, .after = {1}}, {.before = {32}}});
  Pass(hra);
  EXPECT_EQ(Drawn(hra), (Picture{".1R", "WW.", "WW."}));
  Pass(hra);
  EXPECT_EQ(Drawn(hra), (Picture{".1.", "WWr", "WW."}));
}

TEST(PushBoulder, AGemCannotBePushed) {
  Hra hra = PlayBack({"1D."}, {});
  StepDog(hra, kKeyRight, 1);
  EXPECT_EQ(Drawn(hra), (Picture{".1."}));
  EXPECT_EQ(hra.GemsCollected, 1);
}

}  // namespace
}  // namespace zorik::test
