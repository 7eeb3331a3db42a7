#include <gtest/gtest.h>

#include "rules/CatScene.h"

namespace zorik::test {
namespace {

const std::array<std::string, 4> kSteps{"-A", "-B", "-C", "-D"};
const std::array<std::string, 4> kWalks{"-E", "-F", "-G", "-H"};
const std::array<std::string, 4> kPushes{"-I", "-J", "-K", "-L"};
const std::array<std::string, 4> kRuns{"/E", "/F", "/G", "/H"};

void Stands(Hra& hra, int ticks) {
  const Cell c = CatCell(hra);
  const int pc = hra.CatPC;
  for (int i = 0; i < ticks; ++i) {
    LetAct(hra);
    EXPECT_EQ(CatCell(hra), c);
    EXPECT_EQ(hra.CatPC, pc);
    EXPECT_EQ(hra.CatWait, 0);
    EXPECT_EQ(hra.CatLastDir, -1);
    EXPECT_FALSE(hra.CatLastAdvanced);
  }
}

// The start

TEST(CatScript, StartsBehindTheFirstLabelWithoutAMemory) {
  const Hra hra = CatIn({"J"}, "*A-B/Z");
  EXPECT_EQ(hra.CatProgram, "*A-B/Z");
  EXPECT_EQ(hra.CatPC, 1);
  EXPECT_EQ(hra.CatWait, 0);
  EXPECT_EQ(hra.CatLastDir, -1);
  EXPECT_FALSE(hra.CatLastAdvanced);
}

TEST(CatScript, WithNothingToDoTheCatStandsForGood) {
  for (const char* program :
       {"", "*", "*A", "*A-", "*A/Z", "*A*B", "*A-M", "*A??", "*A-Q", "*A/C", "*A/I", "*A+B", "*A@A"}) {
    SCOPED_TRACE(program);
    Hra hra = CatIn(kOpen, program);
    Stands(hra, 120);
  }
}

// Steps

TEST(CatScript, AStepTakesOneTickAndGoesOn) {
  for (std::size_t way = 0; way < 4; ++way) {
    SCOPED_TRACE(kSteps[way]);
    Hra hra = CatIn(kOpen, "*A" + kSteps[way] + "-M");
    LetAct(hra, {2});
    EXPECT_EQ(CatCell(hra), kMiddle + kWays[way]);
    EXPECT_EQ(hra.CatPC, 2);
    EXPECT_EQ(hra.CatLastDir, static_cast<int>(way));
    EXPECT_TRUE(hra.CatLastAdvanced);
  }
}

TEST(CatScript, ABlockedStepIsLost) {
  for (std::size_t way = 0; way < 4; ++way) {
    SCOPED_TRACE(kSteps[way]);
    Hra hra = CatIn(kWalled, "*A" + kSteps[way] + "-M");
    LetAct(hra, {2});
    EXPECT_EQ(Drawn(hra), kWalled);
    EXPECT_EQ(hra.CatPC, 2);
    EXPECT_TRUE(hra.CatLastAdvanced);
  }
}

TEST(CatScript, ARandomStepDrawsItsDirectionBeforeTheMove) {
  for (int drawn = 1; drawn <= 4; ++drawn) {
    SCOPED_TRACE(drawn);
    Hra hra = CatIn(kOpen, "*A-P/Z");
    const int chance = drawn % 4 + 1;  // an outcome that names another way
    LetAct(hra, {drawn, chance});
    EXPECT_EQ(CatCell(hra), kMiddle + kWays[static_cast<std::size_t>(drawn - 1)]);
    EXPECT_EQ(hra.CatPC, 2);
    EXPECT_TRUE(hra.CatLastAdvanced);
  }
}

TEST(CatScript, ARandomStepOfARecordThatHasRunDryHasNoDirection) {
  Hra hra = CatIn(kOpen, "*A-P/Z");
  Foretell(hra, {});
  Kocka(hra);
  EXPECT_TRUE(hra.RanDry);
  EXPECT_EQ(CatCell(hra), kMiddle);
  EXPECT_EQ(hra.CatPC, 1);
  EXPECT_EQ(hra.CatLastDir, -1);
}

TEST(CatScript, ARandomStepWithAnOutcomeThatNamesNoWayDrawsAndGoesOnAndLeadsNowhere) {
  for (const int drawn : {5, 9, 190, -3}) {
    SCOPED_TRACE(drawn);
    Hra hra = CatIn(kOpen, "*A-P/D");
    LetAct(hra, {drawn, 1});
    EXPECT_EQ(CatCell(hra), kMiddle);
    EXPECT_EQ(Drawn(hra), kOpen);
    EXPECT_EQ(hra.CatPC, 2);
    EXPECT_EQ(hra.CatPose, 1);
    EXPECT_TRUE(hra.CatLastAdvanced);
    // To wander on from it is as from no direction: not to heading 2, the right.
    LetAct(hra, {2, 1, 3});
    EXPECT_EQ(CatCell(hra), kMiddle + kUp);
  }
}

// Walks

TEST(CatScript, AWalkGoesOnWithTheLastPossibleStep) {
  for (std::size_t way = 0; way < 4; ++way) {
    SCOPED_TRACE(kWalks[way]);
    Hra hra = CatIn(kOpen, "*A" + kWalks[way] + "/Z");
    LetAct(hra, {1});
    EXPECT_EQ(CatCell(hra), kMiddle + kWays[way]);
    EXPECT_EQ(hra.CatPC, 1);
    EXPECT_FALSE(hra.CatLastAdvanced);
    LetAct(hra, {1});
    EXPECT_EQ(CatCell(hra), kMiddle + kWays[way] + kWays[way]);
    EXPECT_EQ(hra.CatPC, 2);
    EXPECT_TRUE(hra.CatLastAdvanced);
    Stands(hra, 2);
  }
}

TEST(CatScript, TheTokenBehindAWalkRunsInTheNextTick) {
  Hra hra = CatIn({"J..", "WW."}, "*A-F-D/Z");
  LetAct(hra, {2});
  LetAct(hra, {2});
  EXPECT_EQ(CatCell(hra), Cell(2, 0));
  LetAct(hra, {2});
  EXPECT_EQ(CatCell(hra), Cell(2, 1));
}

TEST(CatScript, AWalkWhoseNextCellIsBlockedGoesOnWithoutAStep) {
  Hra hra = CatIn({".WJ"}, "*A-E/Z");
  LetAct(hra, {1});
  EXPECT_EQ(Drawn(hra), (Picture{".WJ"}));
  EXPECT_EQ(hra.CatPC, 2);
}

TEST(CatScript, AWalkDigsAndTakesWhatTheCatCanEnter) {
  Hra hra = CatIn({"W;D;J"}, "*A-E/Z");
  for (const int pc : {1, 1, 2}) {
    LetAct(hra, {2});
    EXPECT_EQ(hra.CatPC, pc);
  }
  EXPECT_EQ(Drawn(hra), (Picture{"WJ..."}));
}

TEST(CatScript, AWalkEndsBeforeAFallingGem) {
  Hra hra = CatIn({"J.d"}, "*A-F/Z");
  LetAct(hra, {2});
  EXPECT_EQ(Drawn(hra), (Picture{".Jd"}));
  EXPECT_EQ(hra.CatPC, 2);
}

TEST(CatScript, ABoxEndsAWalkAlsoWhereItCanBePushed) {
  Hra hra = CatIn({"JK.."}, "*A-F/Z");
  LetAct(hra, {2});
  EXPECT_EQ(Drawn(hra), (Picture{".JK."}));
  EXPECT_EQ(hra.CatPC, 2);
}

// Pushes

TEST(CatScript, APushWalksAndTriesAgainAtAWallForEver) {
  for (std::size_t way = 0; way < 4; ++way) {
    SCOPED_TRACE(kPushes[way]);
    Hra hra = CatIn(kOpen, "*A" + kPushes[way] + "/Z");
    for (int tick = 1; tick <= 20; ++tick) {
      LetAct(hra, {tick % 4 + 1});
      EXPECT_EQ(CatCell(hra), tick == 1 ? kMiddle + kWays[way] : kMiddle + kWays[way] + kWays[way]);
      EXPECT_EQ(hra.CatPC, 1);
      EXPECT_EQ(hra.CatLastDir, static_cast<int>(way));
      EXPECT_FALSE(hra.CatLastAdvanced);
    }
  }
}

TEST(CatScript, APushEndsWithTheBoxThatChangesPlacesAndNotWithOneThatMoves) {
  Hra hra = CatIn({"JK..W"}, "*A-J/Z");
  LetAct(hra, {1});
  EXPECT_EQ(Drawn(hra), (Picture{".JK.W"}));
  EXPECT_EQ(hra.CatPC, 1);
  LetAct(hra, {1});
  EXPECT_EQ(Drawn(hra), (Picture{"..JKW"}));
  EXPECT_EQ(hra.CatPC, 1);
  for (const int chance : {2, 3, 4}) {
    LetAct(hra, {chance});
    EXPECT_EQ(Drawn(hra), (Picture{"..JKW"}));
    EXPECT_EQ(hra.CatPC, 1);
    EXPECT_FALSE(hra.CatLastAdvanced);
  }
  LetAct(hra, {1});
  EXPECT_EQ(Drawn(hra), (Picture{"..KJW"}));
  EXPECT_EQ(hra.CatPC, 2);
  EXPECT_TRUE(hra.CatLastAdvanced);
}

TEST(CatScript, APushEndsWithTheBoulderThatMoves) {
  Hra hra = CatIn({"..RJ"}, "*A-I/Z");
  LetAct(hra, {3});
  EXPECT_EQ(Drawn(hra), (Picture{"..RJ"}));
  EXPECT_EQ(hra.CatPC, 1);
  LetAct(hra, {1});
  EXPECT_EQ(Drawn(hra), (Picture{".RJ."}));
  EXPECT_EQ(hra.CatPC, 2);
  EXPECT_TRUE(hra.CatLastAdvanced);
}

// Runs

TEST(CatScript, ARunNeverGoesOn) {
  for (std::size_t way = 0; way < 4; ++way) {
    SCOPED_TRACE(kRuns[way]);
    Hra hra = CatIn(kOpen, "*A" + kRuns[way] + "/Z");
    for (int tick = 1; tick <= 5; ++tick) {
      LetAct(hra, {tick % 4 + 1});
      EXPECT_EQ(CatCell(hra), tick == 1 ? kMiddle + kWays[way] : kMiddle + kWays[way] + kWays[way]);
      EXPECT_EQ(hra.CatPC, 1);
      EXPECT_EQ(hra.CatLastDir, static_cast<int>(way));
      EXPECT_FALSE(hra.CatLastAdvanced);
    }
  }
}

TEST(CatScript, ARunGoesOnPushing) {
  Hra box = CatIn({"JKW"}, "*A/F");
  LetAct(box, {1});
  EXPECT_EQ(Drawn(box), (Picture{"KJW"}));
  EXPECT_EQ(box.CatPC, 1);
  Hra boulder = CatIn({"JR."}, "*A/F");
  LetAct(boulder, {1});
  EXPECT_EQ(Drawn(boulder), (Picture{".JR"}));
  EXPECT_EQ(boulder.CatPC, 1);
}

// Waits

TEST(CatScript, AWaitTakesItsTicks) {
  struct Wait {
    std::string token;
    int ticks;
  };
  for (const auto& [token, ticks] : {Wait{"-N", 10}, Wait{"-O", 100}}) {
    SCOPED_TRACE(token);
    Hra hra = CatIn(kOpen, "*A" + token + "-B/Z");
    for (int tick = 1; tick <= ticks; ++tick) {
      LetAct(hra);
      EXPECT_EQ(hra.CatWait, ticks - tick);
      EXPECT_EQ(hra.CatPC, tick < ticks ? 1 : 2);
      EXPECT_EQ(hra.CatPose, 1);
      EXPECT_EQ(CatCell(hra), kMiddle);
    }
    LetAct(hra, {2});
    EXPECT_EQ(CatCell(hra), kMiddle + kRight);
    EXPECT_EQ(hra.CatPC, 3);
  }
}

TEST(CatScript, AStopEndsWithAnEventOnly) {
  Hra hra = CatIn(kOpen, "*A-M/Z*B-A/Z");
  Stands(hra, 30);
  KockaEvent(hra, 'B');
  LetAct(hra, {2});
  EXPECT_EQ(CatCell(hra), kMiddle + kLeft);
  EXPECT_EQ(hra.CatPC, 5);
  Stands(hra, 3);
}

TEST(CatScript, AnEventDuringAWaitJumpsAtOnceAndTheWaitRunsOn) {
  Hra hra = CatIn(kOpen, "*A-N/Z*B-B-M/Z");
  for (int tick = 1; tick <= 3; ++tick) LetAct(hra);
  KockaEvent(hra, 'B');
  EXPECT_EQ(hra.CatPC, 4);
  EXPECT_EQ(hra.CatWait, 7);
  for (int wait = 6; wait >= 1; --wait) {
    LetAct(hra);
    EXPECT_EQ(hra.CatWait, wait);
    EXPECT_EQ(hra.CatPC, 4);
    EXPECT_EQ(CatCell(hra), kMiddle);
    EXPECT_EQ(hra.CatPose, 2);
  }
  // The end of the wait goes on by one and lets the cat move, and so does the step itself.
  LetAct(hra, {2});
  EXPECT_EQ(CatCell(hra), kMiddle + kRight);
  EXPECT_EQ(hra.CatPC, 6);
}

TEST(CatScript, TheEndOfAWaitGoesOnByOneAlsoFromALabel) {
  Hra hra = CatIn(kOpen, "*A-N/Z*B*C-A/Z");
  for (int tick = 1; tick <= 3; ++tick) LetAct(hra);
  KockaEvent(hra, 'B');
  for (int wait = 6; wait >= 1; --wait) LetAct(hra);
  EXPECT_EQ(hra.CatPC, 4);
  LetAct(hra);
  EXPECT_EQ(hra.CatWait, 0);
  EXPECT_EQ(hra.CatPC, 5);
  LetAct(hra, {2});
  EXPECT_EQ(CatCell(hra), kMiddle + kLeft);
}

TEST(CatScript, TokensThatDrawDoSoWhileTheCatWaitsToo) {
  Hra random = CatIn(kOpen, "*A-P/Z");
  random.CatWait = 3;
  LetAct(random, {2});
  EXPECT_EQ(random.CatWait, 2);
  EXPECT_EQ(random.CatPC, 1);
  EXPECT_EQ(CatCell(random), kMiddle);
  Hra wander = CatIn(kOpen, "*A/D");
  wander.CatWait = 3;
  wander.CatLastDir = 0;
  LetAct(wander, {1});
  EXPECT_EQ(wander.CatWait, 2);
  EXPECT_EQ(wander.CatLastDir, 2);
  EXPECT_EQ(CatCell(wander), kMiddle);
}

// Collecting

TEST(CatScript, CollectTakesAGemStraightAheadAtOnce) {
  for (std::size_t way = 0; way < 4; ++way) {
    SCOPED_TRACE(way);
    Hra hra = CatIn(kOpen, "*A+A/Z");
    const Cell gem = kMiddle + kWays[way];
    hra.SetObject(gem, kGem, kResting);
    hra.CatLastDir = static_cast<int>(way);
    LetAct(hra, {2});
    EXPECT_EQ(CatCell(hra), gem);
    EXPECT_EQ(hra.CatPC, 1);
    EXPECT_EQ(hra.CatWait, 0);
    EXPECT_FALSE(hra.CatLastAdvanced);
    LetAct(hra);
    EXPECT_EQ(hra.CatPC, 2);
  }
}

TEST(CatScript, CollectLosesATickWithATurn) {
  Hra hra = CatIn({"D.", "J."}, "*A+A/Z");
  hra.CatLastDir = 1;
  LetAct(hra);
  EXPECT_EQ(CatCell(hra), Cell(0, 1));
  EXPECT_EQ(hra.CatWait, 1);
  EXPECT_EQ(hra.CatPC, 1);
  EXPECT_EQ(hra.CatPose, 3);
  EXPECT_EQ(hra.CatLastDir, 2);
  LetAct(hra, {2});
  EXPECT_EQ(CatCell(hra), Cell(0, 0));
  EXPECT_EQ(hra.CatWait, 0);
  EXPECT_EQ(hra.CatPC, 1);
}

TEST(CatScript, CollectTurnsForNothingAfterATokenThatHasJustEnded) {
  Hra hra = CatIn({"D.", "J."}, "*A+A/Z");
  hra.CatLastDir = 1;
  hra.CatLastAdvanced = true;
  LetAct(hra, {2});
  EXPECT_EQ(CatCell(hra), Cell(0, 0));
  EXPECT_EQ(hra.CatPC, 1);
}

TEST(CatScript, CollectPrefersSidewaysAndThereTheWayAheadAndUpToDown) {
  struct Choice {
    Picture gems;
    int lastDir;
    int taken;
  };
  const Picture all{".D.", "DJD", ".D."};
  const std::vector<Choice> choices{
      {all, -1, 0},
      {all, 0, 0},
      {all, 1, 1},
      {all, 2, 0},
      {all, 3, 0},
      {{".D.", ".JD", ".D."}, 2, 1},
      {{".D.", ".JD", ".D."}, 0, 1},
      {{".D.", "DJ.", ".D."}, 1, 0},
      {{".D.", ".J.", ".D."}, 3, 2},
      {{"...", ".J.", ".D."}, 2, 3},
  };
  for (const Choice& choice : choices) {
    SCOPED_TRACE(choice.gems[0] + choice.gems[1] + choice.gems[2] + std::to_string(choice.lastDir));
    Hra hra = CatIn(choice.gems, "*A+A/Z");
    hra.CatLastDir = choice.lastDir;
    hra.CatLastAdvanced = true;
    LetAct(hra, {2});
    EXPECT_EQ(hra.CatLastDir, choice.taken);
    EXPECT_EQ(CatCell(hra), Cell(1, 1) + kWays[static_cast<std::size_t>(choice.taken)]);
  }
}

TEST(CatScript, CollectWithNoRestingGemBesideTheCatGoesOnByOneInOneTick) {
  for (const std::uint8_t state : {kFlat, kRounded, kFalling}) {
    for (const int lastDir : {-1, 1}) {
      SCOPED_TRACE(std::to_string(state) + " " + std::to_string(lastDir));
      Hra hra = CatIn({"D..", ".J.", "..D"}, "*A+A/Z");
      hra.SetObject({2, 1}, kGem, state);
      hra.CatLastDir = lastDir;
      LetAct(hra);
      EXPECT_EQ(CatCell(hra), Cell(1, 1));
      EXPECT_EQ(hra.CatPC, 2);
      EXPECT_EQ(hra.CatWait, 0);
      EXPECT_EQ(hra.CatLastDir, -1);
      EXPECT_TRUE(hra.CatLastAdvanced);
    }
  }
}

// Events

TEST(CatScript, AnEventJumpsBehindTheLabelOfItsLetter) {
  const std::string program = "*A-M*B-M*C-M*D-M*E-M*F-M*I-M/Z";
  const std::string letters = "ABCDEFI";
  for (std::size_t i = 0; i < letters.size(); ++i) {
    SCOPED_TRACE(letters[i]);
    Hra hra = CatIn({"J"}, program);
    hra.CatPC = 0;
    KockaEvent(hra, letters[i]);
    EXPECT_EQ(hra.CatPC, static_cast<int>(2 * i + 1));
  }
}

TEST(CatScript, OfTwoLabelsWithTheSameLetterTheLaterOneWins) {
  Hra hra = CatIn({"J"}, "*A-M*B-A*C-M*B-B/Z");
  KockaEvent(hra, 'B');
  EXPECT_EQ(hra.CatPC, 7);
}

TEST(CatScript, AnEventWithoutALabelChangesNothing) {
  Hra hra = CatIn({"J"}, "*A-M*C-M/B-*B-*b/Z");
  hra.CatPC = 3;
  hra.CatWait = 4;
  KockaEvent(hra, 'B');
  EXPECT_EQ(hra.CatPC, 3);
  EXPECT_EQ(hra.CatWait, 4);
}

TEST(CatScript, AProgramOfOneTokenHearsNoEvent) {
  Hra one = CatIn({"J"}, "*B");
  one.CatPC = 5;
  KockaEvent(one, 'B');
  EXPECT_EQ(one.CatPC, 5);
  Hra more = CatIn({"J"}, "*B-");
  more.CatPC = 5;
  KockaEvent(more, 'B');
  EXPECT_EQ(more.CatPC, 1);
}

TEST(CatScript, AHandlerEndsWhereTheNextLabelBegins) {
  Hra hra = CatIn(kOpen, "*A-M*B-B*C-A/Z");
  KockaEvent(hra, 'B');
  LetAct(hra, {2});
  EXPECT_EQ(CatCell(hra), kMiddle + kRight);
  EXPECT_EQ(hra.CatPC, 4);
  Stands(hra, 3);
}

}  // namespace
}  // namespace zorik::test
