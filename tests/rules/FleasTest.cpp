#include <gtest/gtest.h>

#include "support/Scene.h"

namespace zorik::test {
namespace {

void StepSwarm(Hra& hra, int direction) {
  hra.KeyDirection = direction;
  PohybB(hra);
}

struct Way {
  int direction;
  Picture before;
  Picture after;
};

TEST(Fleas, AllStepAtOnceThoseInFrontFirst) {
  const std::vector<Way> ways{
      {kKeyLeft, {".NNN", "....", ".N.N"}, {"NNN.", "....", "N.N."}},
      {kKeyRight, {"NNN.", "....", "N.N."}, {".NNN", "....", ".N.N"}},
      {kKeyUp, {"..", "N.", "N.", "NN"}, {"N.", "N.", "NN", ".."}},
      {kKeyDown, {"NN", "N.", "N.", ".."}, {"..", "NN", "N.", "N."}},
  };
  for (const Way& way : ways) {
    SCOPED_TRACE(way.direction);
    Hra hra = Play(way.before);
    StepSwarm(hra, way.direction);
    EXPECT_EQ(Drawn(hra), way.after);
  }
}

TEST(Fleas, EachMovesOneCellHoweverFreeTheWayIs) {
  const std::vector<Way> ways{
      {kKeyLeft, {"....N"}, {"...N."}},
      {kKeyRight, {"N...."}, {".N..."}},
      {kKeyUp, {".", ".", ".", "N"}, {".", ".", "N", "."}},
      {kKeyDown, {"N", ".", ".", "."}, {".", "N", ".", "."}},
  };
  for (const Way& way : ways) {
    SCOPED_TRACE(way.direction);
    Hra hra = Play(way.before);
    StepSwarm(hra, way.direction);
    EXPECT_EQ(Drawn(hra), way.after);
  }
}

TEST(Fleas, OneThatIsBlockedBlocksThoseBehindItAndNoOthers) {
  Hra hra = Play({"NNNW", "NN.W"});
  StepSwarm(hra, kKeyRight);
  EXPECT_EQ(Drawn(hra), (Picture{"NNNW", ".NNW"}));
}

TEST(Fleas, GoIntoSpaceOnlyAndTakeDigAndPushNothing) {
  for (const ObjectLetter& object : kObjectLetters) {
    if (object.letter == '.' || object.letter == 'N') continue;
    SCOPED_TRACE(object.letter);
    Hra hra = Play({"N.."});
    Put(hra, 1, 0, object.letter);
    StepSwarm(hra, kKeyRight);
    EXPECT_EQ(hra.Field({0, 0}), kFlea);
    EXPECT_EQ(hra.Field({1, 0}), object.code);
    EXPECT_EQ(hra.Field({2, 0}), kSpace);
    EXPECT_EQ(hra.GemsCollected, 0);
  }
}

TEST(Fleas, DoNotEnterACellThatAMonsterLeftInThisTick) {
  Hra hra = Live({"N-"});
  StepSwarm(hra, kKeyRight);
  EXPECT_EQ(Drawn(hra), (Picture{"N-"}));
}

TEST(Fleas, DoNotLeaveTheCave) {
  for (const int direction : {kKeyLeft, kKeyUp, kKeyRight, kKeyDown}) {
    SCOPED_TRACE(direction);
    Hra hra = Play({"N"});
    StepSwarm(hra, direction);
    EXPECT_EQ(Drawn(hra), (Picture{"N"}));
  }
}

TEST(Fleas, AStepEndsTheIdlenessAlsoWhenNoneCanMove) {
  Hra hra = Play({"NW"});
  hra.DogIdleTicks = 50;
  StepSwarm(hra, kKeyRight);
  EXPECT_EQ(hra.DogIdleTicks, 0);
}

TEST(Fleas, WithNoneAbleToMoveTheViewDoesNotShift) {
  Hra hra = Play({"N.;", ";;;"});
  Put(hra, 1, 0, ';');
  hra.Dog[0].x = 7;
  hra.Dog[0].y = 5;
  StepSwarm(hra, kKeyRight);
  EXPECT_EQ(hra.Dog[0].x, 7);
  EXPECT_EQ(hra.Dog[0].y, 5);
}

TEST(Fleas, TheirPlaceIsTheMeanOfThoseThatMoved) {
  // Those in column 4 stay; the others come to (1, 0), (2, 0) and (3, 2): 6 / 3 and 2 / 3.
  Hra hra = Play({
      "NN..NW",
      "....NW",
      "..N..W",
  });
  StepSwarm(hra, kKeyRight);
  EXPECT_EQ(Drawn(hra), (Picture{
                            ".NN.NW",
                            "....NW",
                            "...N.W",
                        }));
  EXPECT_EQ(hra.Dog[0].x, 2);
  EXPECT_EQ(hra.Dog[0].y, 1);
}

TEST(Fleas, TheMeanIsRoundedToTheNearestAndTiesToTheEvenNumber) {
  struct Mean {
    Picture before;
    int x;
    int y;
  };
  const std::vector<Mean> means{
      {{"N.....", "NN...."}, 1, 1},           // 1 1 2: 4 / 3, and 0 1 1: 2 / 3
      {{"NN...."}, 2, 0},                     // 1 2: 1.5
      {{".NN..."}, 2, 0},                     // 2 3: 2.5
      {{"..NN.."}, 4, 0},                     // 3 4: 3.5
      {{"N.....", "N....."}, 1, 0},           // 0 1: 0.5
      {{"......", "N.....", "N....."}, 1, 2}  // 1 2: 1.5
  };
  for (const Mean& mean : means) {
    Hra hra = Play(mean.before);
    StepSwarm(hra, kKeyRight);
    EXPECT_EQ(hra.Dog[0].x, mean.x);
    EXPECT_EQ(hra.Dog[0].y, mean.y);
    EXPECT_TRUE(hra.Dog[0].Alive);
  }
}

TEST(Fleas, RepaintTheCellsThatTheyLeftAndMakeNoSound) {
  Diary diary;
  Hra hra = Play({"NN.W"}, {}, &diary);
  diary.Clear();
  StepSwarm(hra, kKeyRight);
  EXPECT_EQ(diary.entries, (std::vector<std::string>{"cell 1,0", "cell 0,0"}));
}

TEST(Fleas, TouchNoState) {
  Hra hra = Play({"N."});
  hra.SetFieldState({0, 0}, kResting);
  hra.SetFieldState({1, 0}, kRounded);
  StepSwarm(hra, kKeyRight);
  EXPECT_EQ(hra.FieldState({0, 0}), kResting);
  EXPECT_EQ(hra.FieldState({1, 0}), kRounded);
}

TEST(Fleas, TheSwarmIsNeverDeclaredDead) {
  Hra hra = Play({"N.1"});
  hra.SetField({0, 0}, kSpace);
  Pass(hra, 3);
  EXPECT_TRUE(hra.Dog[0].Alive);
  Pass(hra, 1, "0");
  EXPECT_EQ(hra.ActiveDog, 0);
  Pass(hra, 1, "R");
  EXPECT_EQ(Drawn(hra), (Picture{"..1"}));
}

TEST(Fleas, AreSteeredByTheArrowKeysWhileTheSwarmIsTheUnitAndDrawNothing) {
  Diary diary;
  Hra hra = Play({"N.1"}, {}, &diary);
  Pass(hra, 1, "0");
  ASSERT_EQ(hra.ActiveDog, 0);
  const std::size_t before = hra.RecordText.size();
  diary.Clear();
  Pass(hra, 1, "R");
  EXPECT_EQ(Drawn(hra), (Picture{".N1"}));
  EXPECT_EQ(hra.RecordText.size() - before, 1U + 3U + 2U);
  EXPECT_TRUE(diary.Has("cell 1,0"));  // by the end of the tick
}

}  // namespace
}  // namespace zorik::test
