#include <gtest/gtest.h>

#include <algorithm>
#include <limits>

#include "support/Scene.h"

namespace zorik::test {
namespace {

using Sounds = std::vector<SoundId>;

constexpr std::array<int, 4> kDirections{kKeyLeft, kKeyUp, kKeyRight, kKeyDown};

// The step as such

TEST(DogStep, GoesLeftUpRightAndDown) {
  const std::array<Picture, 4> after{{{"...", "1..", "..."},  //
                                      {".1.", "...", "..."},
                                      {"...", "..1", "..."},
                                      {"...", "...", ".1."}}};
  for (std::size_t i = 0; i < kDirections.size(); ++i) {
    SCOPED_TRACE(kDirections[i]);
    Hra hra = PlayBack({"...", ".1.", "..."}, {});
    StepDog(hra, kDirections[i], 2);
    EXPECT_EQ(Drawn(hra), after[i]);
    EXPECT_EQ(hra.DogPose, kDirections[i]);
  }
}

TEST(DogStep, RepaintsTheCellThatWasLeftAndTheOneInWhichTheDogEnds) {
  Diary diary;
  Hra hra = PlayBack({"1."}, {}, {}, &diary);
  diary.Clear();
  StepDog(hra, kKeyRight, 2);
  EXPECT_EQ(diary.entries, (std::vector<std::string>{"cell 0,0", "cell 1,0"}));
}

TEST(DogStep, EndsTheIdlenessAndTurnsTheDogAlsoWhenItIsBlocked) {
  Diary diary;
  Hra hra = PlayBack({"1W"}, {}, {}, &diary);
  hra.DogIdleTicks = 50;
  diary.Clear();
  StepDog(hra, kKeyRight, 2);
  EXPECT_EQ(Drawn(hra), (Picture{"1W"}));
  EXPECT_EQ(hra.DogIdleTicks, 0);
  EXPECT_EQ(hra.DogPose, kKeyRight);
  EXPECT_EQ(hra.Dog[1].x, 0);
  EXPECT_EQ(diary.entries, (std::vector<std::string>{"cell 0,0"}));
}

TEST(DogStep, DrawsOnceWhateverTheTargetHolds) {
  for (const char letter : std::string_view(".;RDX1WTAKIESLF!%CNGJ:$")) {
    SCOPED_TRACE(letter);
    Hra hra = Play({"1.."});
    Put(hra, 1, 0, letter);
    hra.KeyDirection = kKeyRight;
    hra.KeyAction = 0;
    const std::size_t before = hra.RecordText.size();
    PohybH(hra);
    // A key writes a pair of its own for the locks that it does not find.
    EXPECT_EQ(hra.RecordText.size() - before, letter == '!' ? 3U : 1U);
    const int draw = hra.RecordText[before] - 'A';
    EXPECT_GE(draw, 1);
    EXPECT_LE(draw, 4);
  }
}

TEST(DogStep, WithNothingLeftInTheRecordPushesNothingAndChangesWithNobody) {
  for (const Picture& picture : {Picture{"1R."}, Picture{"1KW"}, Picture{"12."}}) {
    SCOPED_TRACE(picture.front());
    Hra hra = PlayBack(picture, {});
    hra.RecordLine = {};
    hra.KeyDirection = kKeyRight;
    PohybH(hra);
    EXPECT_EQ(Drawn(hra), picture);
    EXPECT_EQ(hra.ActiveDog, 1);
    EXPECT_TRUE(hra.RanDry);
  }
}

class Clock : public Stage {
 public:
  std::optional<std::uint64_t> Reseed() override { return seed; }
  std::uint64_t seed = 0;
};

TEST(DogStep, StartsTheGamesChanceAfreshBeforeItDraws) {
  Clock clock;
  Hra hra = Play({"1.........."}, {}, &clock);
  for (std::uint64_t seed = 0; seed < 10; ++seed) {
    clock.seed = seed;
    hra.KeyDirection = kKeyRight;
    PohybH(hra);
    Chance fresh(seed);
    EXPECT_EQ(hra.RecordText.back() - 'A', static_cast<int>(fresh.Below(4)) + 1);
  }
}

// What blocks

TEST(DogStep, EntersSpaceDirtRestingGemsAndKeysAndNothingElse) {
  for (const ObjectLetter& object : kObjectLetters) {
    for (const int action : {0, 1}) {
      SCOPED_TRACE(std::string{object.letter} + std::to_string(action));
      Hra hra = PlayBack({"1.W"}, {});
      Put(hra, 1, 0, object.letter);
      StepDog(hra, kKeyRight, 2, action);
      const bool enters = std::string_view(".;D!@#$").find(object.letter) != std::string_view::npos;
      const bool entered = enters && action == 0;
      EXPECT_EQ(hra.Field({1, 0}), entered ? kDog : enters ? kSpace : object.code);
      EXPECT_EQ(hra.FieldState({1, 0}), enters ? kFlat : object.state);
      EXPECT_EQ(hra.Field({0, 0}), entered ? kSpace : kDog);
      EXPECT_EQ(hra.Dog[1].x, entered ? 1 : 0);
    }
  }
}

TEST(DogStep, IsStoppedByAListOfObjectsWhateverTheirState) {
  const std::vector<int> open{kSpace,   kDirt,   kGem,           kKeyRed, kKeyGreen,
                              kKeyBlue, kCatKey, kFleaInTransit, kVacated};
  std::vector<int> codes{kFleaInTransit, kVacated};
  for (const ObjectRow& object : kObjects) codes.push_back(object.code);
  for (const int code : codes) {
    for (const std::uint8_t state : {kFlat, kResting}) {
      SCOPED_TRACE(code);
      Hra hra = PlayBack({"1.W"}, {});
      hra.SetField({1, 0}, static_cast<std::uint16_t>(code));
      hra.SetFieldState({1, 0}, state);
      StepDog(hra, kKeyRight, 2);
      EXPECT_EQ(hra.Dog[1].x, std::ranges::count(open, code));
    }
  }
}

TEST(DogStep, IsStoppedByExplosionsAndStruckBombs) {
  for (const auto code : std::initializer_list<std::uint16_t>{kExplosion, kBoulder}) {
    SCOPED_TRACE(code);
    Hra hra = PlayBack({"1."}, {});
    hra.SetField({1, 0}, code);
    StepDog(hra, kKeyRight, 1);
    EXPECT_EQ(hra.Field({1, 0}), code);
    EXPECT_EQ(hra.Field({0, 0}), kDog);
  }
}

TEST(DogStep, IsStoppedByWhatFallsAndByWhatIsRoundedAndFixed) {
  for (const char letter : std::string_view(".;D!@#$")) {
    for (const std::uint8_t state : {kFalling, kRounded}) {
      SCOPED_TRACE(std::string{letter} + std::to_string(state));
      Hra hra = PlayBack({"1."}, {});
      Put(hra, 1, 0, letter);
      const std::uint16_t code = hra.Field({1, 0});
      hra.SetFieldState({1, 0}, state);
      StepDog(hra, kKeyRight, 1);
      EXPECT_EQ(hra.Field({1, 0}), code);
      EXPECT_EQ(hra.FieldState({1, 0}), state);
      EXPECT_EQ(hra.GemsCollected, 0);
    }
  }
}

TEST(DogStep, AFallingGemStopsTheDogAndTheSameGemAtRestIsCollected) {
  Hra hra = PlayBack({"1D"}, {});
  hra.SetFieldState({1, 0}, kFalling);
  StepDog(hra, kKeyRight, 2);
  EXPECT_EQ(Drawn(hra), (Picture{"1d"}));
  EXPECT_EQ(hra.GemsCollected, 0);
  hra.SetFieldState({1, 0}, kResting);
  StepDog(hra, kKeyRight, 2);
  EXPECT_EQ(Drawn(hra), (Picture{".1"}));
  EXPECT_EQ(hra.GemsCollected, 1);
}

TEST(DogStep, AStepIntoALockIsStopped) {
  for (const char lock : std::string_view("%^&")) {
    for (const int chance : {1, 2, 3, 4}) {
      SCOPED_TRACE(lock);
      const Picture picture{std::string("1") + lock + "."};
      Hra hra = PlayBack(picture, {});
      StepDog(hra, kKeyRight, chance);
      EXPECT_EQ(Drawn(hra), picture);
    }
  }
}

TEST(DogStep, MayEnterOrClearACellThatAMonsterLeftInThisTick) {
  Hra entered = Live({"1-"});
  entered.Kind = RunKind::Replay;
  StepDog(entered, kKeyRight, 2);
  EXPECT_EQ(Drawn(entered), (Picture{".1"}));
  Hra snapped = Live({"1-"});
  snapped.Kind = RunKind::Replay;
  StepDog(snapped, kKeyRight, 2, 1);
  EXPECT_EQ(Drawn(snapped), (Picture{"1."}));
}

TEST(DogStep, EntersTheEmptiedCellOverAMagicWallAndFlattensIt) {
  Hra hra = PlayBack({"1."}, {});
  hra.SetFieldState({1, 0}, kResting);
  StepDog(hra, kKeyRight, 2);
  EXPECT_EQ(Drawn(hra), (Picture{".1"}));
  EXPECT_EQ(hra.FieldState({1, 0}), kFlat);
}

// Digging and collecting

TEST(DogStep, DigsDirtWithASoundAlsoAtArmsLength) {
  for (const int action : {0, 1}) {
    SCOPED_TRACE(action);
    Diary diary;
    Hra hra = PlayBack({"1;"}, {}, {}, &diary);
    diary.Clear();
    StepDog(hra, kKeyRight, 2, action);
    EXPECT_EQ(Drawn(hra), action == 0 ? (Picture{".1"}) : (Picture{"1."}));
    EXPECT_EQ(SoundsOf(diary), Sounds{SoundId::Dirt});
  }
}

TEST(DogStep, CollectsAGemAlsoAtArmsLengthWhereTheDogStaysInItsCell) {
  for (const int action : {0, 1}) {
    SCOPED_TRACE(action);
    Diary diary;
    Hra hra = PlayBack({"1D"}, {}, {.before = 7}, &diary);
    hra.GemsCollected = 4;
    hra.Score = 100;
    diary.Clear();
    StepDog(hra, kKeyRight, 2, action);
    EXPECT_EQ(Drawn(hra), action == 0 ? (Picture{".1"}) : (Picture{"1."}));
    EXPECT_EQ(hra.Dog[1].x, action == 0 ? 1 : 0);
    EXPECT_EQ(hra.FieldState({1, 0}), kFlat);
    EXPECT_EQ(hra.GemsCollected, 5);
    EXPECT_EQ(hra.Score, 107);
    EXPECT_EQ(diary.Count("gems 5"), 1);
    EXPECT_EQ(SoundsOf(diary), Sounds{SoundId::CollectGem});
    EXPECT_TRUE(diary.Has("cell 1,0"));
  }
}

TEST(DogStep, TheScoreStopsAtItsHighestNumber) {
  Hra hra = PlayBack({"1D"}, {}, {.before = 10});
  hra.Score = std::numeric_limits<int>::max() - 3;
  StepDog(hra, kKeyRight, 2);
  EXPECT_EQ(hra.Score, std::numeric_limits<int>::max());
}

TEST(DogStep, AKeyOpensItsLockBeforeItIsCleared) {
  for (const int action : {0, 1}) {
    SCOPED_TRACE(action);
    Hra hra = Play({"1#.&"});
    hra.KeyDirection = kKeyRight;
    hra.KeyAction = action;
    PohybH(hra);
    EXPECT_EQ(Drawn(hra), action == 0 ? (Picture{".1.."}) : (Picture{"1..."}));
    EXPECT_EQ(hra.GemsCollected, 0);
  }
}

TEST(DogStep, TheCatKeyCallsTheCat) {
  Hra hra = PlayBack({"1$J"}, {}, {.script = "*A-M*I-M/Z"});
  StepDog(hra, kKeyRight, 2);
  EXPECT_EQ(Drawn(hra), (Picture{".1J"}));
  EXPECT_EQ(hra.CatPC, 3);
}

// Other dogs

TEST(DogStep, WalkingIntoALivingDogChangesToItInOneStepOfFour) {
  for (const int chance : {1, 2, 3, 4}) {
    for (const int action : {0, 1}) {
      SCOPED_TRACE(chance);
      Diary diary;
      Hra hra = PlayBack({"12"}, {}, {}, &diary);
      diary.Clear();
      StepDog(hra, kKeyRight, chance, action);
      EXPECT_EQ(Drawn(hra), (Picture{"12"}));
      EXPECT_EQ(hra.ActiveDog, chance == 1 ? 2 : 1);
      // The change ends the step: the new dog faces us, and the old one does not turn.
      EXPECT_EQ(hra.DogPose, chance == 1 ? 0 : kKeyRight);
      EXPECT_EQ(SoundsOf(diary), chance == 1 ? Sounds{SoundId::Dog} : Sounds{});
      EXPECT_EQ(diary.Has("dog 2 0"), chance == 1);
    }
  }
}

TEST(DogStep, OfTwoDogsEnteredInOneCellTheLowerNumberTakesOver) {
  Hra hra = PlayBack({"12.3"}, {});
  hra.Dog[3] = hra.Dog[2];
  StepDog(hra, kKeyRight, 1);
  EXPECT_EQ(hra.ActiveDog, 2);
}

TEST(DogStep, ADogThatWasDeclaredDeadDoesNotTakeOver) {
  Hra hra = PlayBack({"12"}, {});
  hra.Dog[2].Alive = false;
  StepDog(hra, kKeyRight, 1);
  EXPECT_EQ(hra.ActiveDog, 1);
}

TEST(DogStep, TheEntryOfADeadDogHidesALivingOneOfAHigherNumberInItsCell) {
  Hra hra = PlayBack({"12.3"}, {});
  hra.Dog[3] = hra.Dog[2];
  hra.Dog[2].Alive = false;
  StepDog(hra, kKeyRight, 1);
  EXPECT_EQ(hra.ActiveDog, 1);
}

// The finish

// Notes how things stand at the moments that matter in a win.
class Witness : public Stage {
 public:
  void Won(const WinResult& /*win*/) override { dogAtWin = {hra->Dog[1].x, hra->Dog[1].y}; }
  void CellChanged(int x, int y) override {
    if (hra != nullptr && x == 1 && y == 0) {
      poseInFinish = hra->DogPose;
      dogWhenPainted = {hra->Dog[1].x, hra->Dog[1].y};
    }
  }
  const Hra* hra = nullptr;
  std::pair<int, int> dogAtWin{-9, -9}, dogWhenPainted{-9, -9};
  int poseInFinish = -1;
};

TEST(DogStep, IntoTheOpenFinishWinsTheRun) {
  Diary diary;
  Hra hra = PlayBack({"1T"}, {}, {}, &diary);
  hra.ExitOpen = true;
  diary.Clear();
  StepDog(hra, kKeyRight, 2);
  EXPECT_EQ(Drawn(hra), (Picture{".1"}));
  EXPECT_EQ(hra.Dog[1].x, 1);
  EXPECT_EQ(hra.DogPose, kKeyRight);
  ASSERT_TRUE(hra.Win.has_value());
  EXPECT_EQ(diary.Count("won*"), 1);
  EXPECT_LT(diary.Place("cell 0,0"), diary.Place("cell 1,0"));
  EXPECT_GE(diary.Place("cell 0,0"), 0);
}

TEST(DogStep, InTheFinishTheDogIsPaintedBeforeItsPlaceIsWrittenAndThenTheRunIsWon) {
  Witness witness;
  Hra hra = PlayBack({"1T"}, {}, {}, &witness);
  witness.hra = &hra;
  hra.ExitOpen = true;
  StepDog(hra, kKeyRight, 2);
  EXPECT_EQ(witness.poseInFinish, kKeyRight);
  EXPECT_EQ(witness.dogWhenPainted, (std::pair{0, 0}));
  EXPECT_EQ(witness.dogAtWin, (std::pair{1, 0}));
}

TEST(DogStep, TheWinningStepSetsOffNoSensorAndAnyOtherDoes) {
  Hra won = PlayBack({"1T", "GG"}, {});
  won.ExitOpen = true;
  won.SensorsListen = true;
  StepDog(won, kKeyRight, 2);
  EXPECT_EQ(won.FieldMark({0, 1}), 0);
  EXPECT_EQ(won.FieldMark({1, 1}), 0);
  Hra gone = PlayBack({"1.", "GG"}, {});
  gone.SensorsListen = true;
  StepDog(gone, kKeyRight, 2);
  EXPECT_EQ(gone.FieldMark({0, 1}), 1);
  EXPECT_EQ(gone.FieldMark({1, 1}), 1);
}

TEST(DogStep, AClosedFinishIsSteelForAllThatTheDogCanTell) {
  for (const int action : {0, 1}) {
    Diary diary;
    Hra hra = PlayBack({"1T"}, {}, {}, &diary);
    diary.Clear();
    StepDog(hra, kKeyRight, 1, action);
    EXPECT_EQ(Drawn(hra), (Picture{"1T"}));
    EXPECT_FALSE(hra.Win.has_value());
    EXPECT_EQ(SoundsOf(diary), Sounds{});
  }
}

TEST(DogStep, TheActionKeyTurnsTheOpenFinishIntoAWall) {
  Hra hra = PlayBack({"1T"}, {});
  hra.ExitOpen = true;
  StepDog(hra, kKeyRight, 1, 1);
  EXPECT_EQ(Drawn(hra), (Picture{"1T"}));
  EXPECT_FALSE(hra.Win.has_value());
}

// In the tick

TEST(DogStep, ComesAfterTheObjectsOfTheTickHaveMoved) {
  // The boulder has fallen beside the dog when the dog steps.
  Hra hra = PlayBack({"..", "1.", "WW"}, {{.before = {32}, .direction = kKeyRight, .after = {2}}});
  hra.SetField({1, 0}, kBoulder);
  hra.SetFieldState({1, 0}, kFalling);
  Pass(hra);
  EXPECT_EQ(Drawn(hra), (Picture{"..", "1r", "WW"}));
}

TEST(DogStep, TakesNoStepWithoutADirectionKey) {
  Hra hra = Play({".1."});
  const std::size_t before = hra.RecordText.size();
  Pass(hra, 1, "!");
  EXPECT_EQ(Drawn(hra), (Picture{".1."}));
  EXPECT_EQ(hra.RecordText.size() - before, 1U + 3U + 2U);  // no draw of a step
}

}  // namespace
}  // namespace zorik::test
