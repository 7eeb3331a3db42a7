#include <gtest/gtest.h>

#include "support/Scene.h"

namespace zorik::test {
namespace {

int PoseAfter(int idleTicks, int before) {
  Hra hra = Play({"1"});
  hra.DogPose = before;
  hra.DogIdleTicks = idleTicks;
  PREKR(hra, {0, 0});
  return hra.DogPose;
}

TEST(ThePose, OfAnIdleDogFollowsItsTicks) {
  constexpr int kOther = 39;
  struct Span {
    int first, last, pose;
  };
  for (const Span& span : std::vector<Span>{{0, 2, kOther},
                                            {3, 3, 0},
                                            {4, 100, kOther},
                                            {101, 139, 2},
                                            {140, 160, kOther},
                                            {171, 190, 0},
                                            {191, 220, 2},
                                            {221, 280, 3},
                                            {281, 299, 4},
                                            {301, 400, 4}}) {
    for (int idle = span.first; idle <= span.last; ++idle)
      EXPECT_EQ(PoseAfter(idle, kOther), span.pose) << idle;
  }
}

TEST(ThePose, BlinksBetween160And170) {
  for (int idle = 161; idle <= 170; ++idle) EXPECT_EQ(PoseAfter(idle, 39), idle % 2 == 1 ? 0 : 1) << idle;
}

TEST(ThePose, At150IdleTicksIsWhateverItWasAt139) {
  Hra hra = Play({"1"});
  Pass(hra, 139);
  EXPECT_EQ(hra.DogIdleTicks, 139);
  EXPECT_EQ(hra.DogPose, 2);
  Pass(hra, 11);
  EXPECT_EQ(hra.DogPose, 2);
}

TEST(ThePose, FollowsTheSteeredDogAndADogWithoutANumberButNoOther) {
  Hra hra = Play({"1.2.."});
  Put(hra, 4, 0, 'H');
  hra.DogIdleTicks = 200;
  hra.DogPose = 38;
  PREKR(hra, {2, 0});
  EXPECT_EQ(hra.DogPose, 38);
  PREKR(hra, {4, 0});
  EXPECT_EQ(hra.DogPose, 2);
  hra.DogPose = 38;
  PREKR(hra, {0, 0});
  EXPECT_EQ(hra.DogPose, 2);
}

TEST(ThePose, OfTwoDogsInOneCellIsThatOfTheHigherNumber) {
  Hra hra = Play({"1.2"});
  hra.Dog[2] = {0, 0, true};
  EXPECT_EQ(DogIn(hra, {0, 0}), 2);
  hra.DogIdleTicks = 200;
  hra.DogPose = 38;
  PREKR(hra, {0, 0});
  EXPECT_EQ(hra.DogPose, 38);
}

TEST(ThePose, ChangesWithTheDogsOwnCellOnly) {
  Hra hra = Play({"1.R"});
  hra.DogIdleTicks = 200;
  hra.DogPose = 38;
  PREKR(hra, {1, 0});
  PREKR(hra, {2, 0});
  EXPECT_EQ(hra.DogPose, 38);
}

TEST(TheIdleQuestion, IsAskedAfter300TicksAndThenTheyStartAnew) {
  Diary diary;
  Hra hra = Play({"1"}, {}, &diary);
  Pass(hra, 299);
  EXPECT_FALSE(diary.Has("question"));
  Pass(hra);
  EXPECT_EQ(diary.Count("question"), 1);
  EXPECT_EQ(hra.DogIdleTicks, 0);
  Pass(hra, 300);
  EXPECT_EQ(diary.Count("question"), 2);
}

TEST(TheIdleQuestion, IsNotAskedWhenTheClockIsAtNought) {
  Diary diary;
  Hra hra = Play({"1"}, {.time = 30}, &diary);
  Pass(hra, 320);
  EXPECT_FALSE(diary.Has("question"));
  EXPECT_EQ(hra.DogIdleTicks, 320);
}

TEST(TheIdleQuestion, IsNotAskedInAReplay) {
  Diary diary;
  Hra hra = PlayBack({"1"}, std::vector<RecordTick>(310, {.before = {9}}), {}, &diary);
  Pass(hra, 310);
  EXPECT_FALSE(diary.Has("question"));
  EXPECT_EQ(hra.DogIdleTicks, 310);
}

// Puts a thing beside a sensor, repaints it, and tells whether the sensor noticed.
bool Noticed(std::uint16_t code, std::uint8_t state) {
  Hra hra = Play({"...1", ".G..", "...."});
  hra.SetObject({1, 0}, code, state);
  hra.SensorsListen = true;
  PREKR(hra, {1, 0});
  return hra.FieldMark({1, 1}) == 1;
}

TEST(ARepaint, OfAListedThingIsNoticedByTheSensorsBesideIt) {
  for (const int code : {0, 4, 6, 7, 9, 11, 12, 13, 15, 16, 24, 26, 27}) {
    EXPECT_TRUE(Noticed(static_cast<std::uint16_t>(code), 0)) << code;
  }
}

TEST(ARepaint, OfAnyOtherFlatThingIsNotNoticed) {
  for (const int code : {1, 2, 3, 5, 8, 10, 14, 17, 18, 19, 20, 21, 22, 23, 25, 28, 65534, 65535}) {
    EXPECT_FALSE(Noticed(static_cast<std::uint16_t>(code), 0)) << code;
  }
}

TEST(ARepaint, OfAThingThatIsNotFlatIsNoticedWhateverItIs) {
  for (const int code : {1, 2, 3, 5, 8, 10, 14, 17, 20, 23, 28, 65535}) {
    for (const State state : {kRounded, kResting, kFalling}) {
      EXPECT_TRUE(Noticed(static_cast<std::uint16_t>(code), state)) << code << ' ' << int{state};
    }
  }
}

TEST(ARepaint, IsNoticedByTheFourNeighboursOnlyAndDoesNotResetACount) {
  Hra hra = Play({"GGG", "G.G", "GGG", "1.."});
  hra.SetFieldMark({1, 0}, 17);
  hra.SensorsListen = true;
  PREKR(hra, {1, 1});
  EXPECT_EQ(hra.FieldMark({1, 0}), 17);
  for (const Cell c : {Cell(0, 1), Cell(2, 1), Cell(1, 2)}) EXPECT_EQ(hra.FieldMark(c), 1);
  for (const Cell c : {Cell(0, 0), Cell(2, 0), Cell(0, 2), Cell(2, 2)}) EXPECT_EQ(hra.FieldMark(c), 0);
}

TEST(ARepaint, IsNoticedOnlyWhileATickRuns) {
  Hra hra = Play({".G.1"});
  PREKR(hra, {0, 0});
  EXPECT_EQ(hra.FieldMark({1, 0}), 0);
  Pass(hra);
  EXPECT_FALSE(hra.SensorsListen);
}

TEST(ADogThatStandsBesideASensor, SetsItOff) {
  Hra hra = Play({"1G"});
  Pass(hra);
  EXPECT_EQ(hra.FieldMark({1, 0}), 1);
}

// Notes the cell at the moment of the call.
class Witness : public Stage {
 public:
  explicit Witness(const Hra& hra) : hra_(hra) {}
  void CellChanged(int x, int y) override {
    if (x == 0 && y == 0) marks.push_back(hra_.FieldMark({1, 0}));
  }

  std::vector<int> marks;

 private:
  const Hra& hra_;
};

TEST(TheStage, IsToldOfARepaintWhenItsEffectsOnTheGameAreDone) {
  Hra hra = Play({".G1"});
  Witness witness(hra);
  hra.SetStage(witness);
  hra.SensorsListen = true;
  PREKR(hra, {0, 0});
  EXPECT_EQ(witness.marks, std::vector<int>{1});
}

TEST(TheWinningStep, SetsOffNoSensor) {
  Hra hra = Play({"1TG", "GWW"}, {.needed = 0});
  hra.SensorsListen = true;
  hra.ExitOpen = true;
  hra.KeyDirection = 39;
  PohybH(hra);
  ASSERT_TRUE(hra.Win);
  EXPECT_EQ(hra.FieldMark({2, 0}), 0);
  EXPECT_EQ(hra.FieldMark({0, 1}), 0);
}

}  // namespace
}  // namespace zorik::test
