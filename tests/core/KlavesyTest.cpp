#include <gtest/gtest.h>

#include "support/Scene.h"

namespace zorik::test {
namespace {

// What Klavesy writes into the record for one tick's keys.
std::string Written(Hra& hra, const KeySnapshot& keys) {
  const std::size_t before = hra.RecordText.size();
  Klavesy(hra, keys);
  return hra.RecordText.substr(before);
}

std::string Written(Hra& hra, std::string_view keys) {
  return Written(hra, Keys(keys));
}

KeySnapshot Joystick(int direction, int buttons, std::string_view keys = "") {
  KeySnapshot snapshot = Keys(keys);
  snapshot.joyDirection = direction;
  snapshot.joyButtons = buttons;
  return snapshot;
}

KeySnapshot Key(int code) {
  KeySnapshot snapshot;
  snapshot.down.set(static_cast<std::size_t>(code));
  return snapshot;
}

TEST(Klavesy, WritesDirectionActionAndUnitInThisOrder) {
  Hra hra = Play({"1.2"});
  EXPECT_EQ(Written(hra, ""), "AAB");
  EXPECT_EQ(Written(hra, "L"), "fAB");
  EXPECT_EQ(Written(hra, "U"), "gAB");
  EXPECT_EQ(Written(hra, "R"), "hAB");
  EXPECT_EQ(Written(hra, "D"), "iAB");
  EXPECT_EQ(Written(hra, "R!"), "hBB");
  EXPECT_EQ(Written(hra, "2"), "AAC");
}

TEST(Klavesy, StartsEachTickWithoutDirectionAndAction) {
  Hra hra = Play({"1"});
  Klavesy(hra, Keys("R!"));
  EXPECT_EQ(hra.KeyDirection, 39);
  EXPECT_EQ(hra.KeyAction, 1);
  Klavesy(hra, {});
  EXPECT_EQ(hra.KeyDirection, 0);
  EXPECT_EQ(hra.KeyAction, 0);
}

TEST(Klavesy, CountsForHowManyTicksEachArrowHasBeenDown) {
  Hra hra = Play({"1"});
  Klavesy(hra, Keys("L"));
  Klavesy(hra, Keys("LD"));
  Klavesy(hra, Keys("LD"));
  EXPECT_EQ(hra.KeyHeld, (std::array<int, 4>{3, 0, 0, 2}));
  Klavesy(hra, Keys("D"));
  EXPECT_EQ(hra.KeyHeld, (std::array<int, 4>{0, 0, 0, 3}));
}

TEST(Klavesy, FollowsTheKeyPressedLastAndReturnsToTheOlderOneWithoutAGap) {
  Hra hra = Play({"1"});
  EXPECT_EQ(Written(hra, "L")[0], 'f');
  EXPECT_EQ(Written(hra, "LU")[0], 'g');
  EXPECT_EQ(Written(hra, "LU")[0], 'g');
  EXPECT_EQ(Written(hra, "L")[0], 'f');
  EXPECT_EQ(hra.KeyHeld[0], 4);
}

TEST(Klavesy, TakesLeftThenUpThenRightThenDownWhenKeysWentDownTogether) {
  const auto first = [](std::string_view keys) {
    Hra hra = Play({"1"});
    return Written(hra, keys)[0];
  };
  EXPECT_EQ(first("LURD"), 'f');
  EXPECT_EQ(first("URD"), 'g');
  EXPECT_EQ(first("RD"), 'h');
}

TEST(Klavesy, LetsTheJoystickReplaceTheArrows) {
  Hra hra = Play({"1"});
  EXPECT_EQ(Written(hra, Joystick(1, 0, "R")), "fAB");
  EXPECT_EQ(Written(hra, Joystick(2, 0)), "gAB");
  EXPECT_EQ(Written(hra, Joystick(3, 0)), "hAB");
  EXPECT_EQ(Written(hra, Joystick(4, 0)), "iAB");
  EXPECT_EQ(Written(hra, Joystick(0, 0, "D")), "iAB");
}

TEST(Klavesy, ActsWithTheFirstButtonOfTheJoystickAlsoTogetherWithTheSecond) {
  Hra hra = Play({"1"});
  EXPECT_EQ(Written(hra, Joystick(3, 1)), "hBB");
  EXPECT_EQ(Written(hra, Joystick(3, 2)), "hAB");
  EXPECT_EQ(Written(hra, Joystick(3, 3)), "hBB");
}

TEST(Klavesy, ActsWithShiftCtrlOrSpaceAndNoOtherKey) {
  Hra hra = Play({"1"});
  for (const int code : {16, 17, 32}) EXPECT_EQ(Written(hra, Key(code)), "ABB") << code;
  for (const int code : {13, 15, 18, 31, 33, 65, 83}) EXPECT_EQ(Written(hra, Key(code)), "AAB") << code;
}

TEST(TheLatch, ArmsOneActingStepForTheNextDirection) {
  Hra hra = Play({"1"});
  EXPECT_EQ(Written(hra, "s"), "AAB");
  EXPECT_EQ(Written(hra, ""), "AAB");
  EXPECT_EQ(Written(hra, "R"), "hBB");
  EXPECT_EQ(Written(hra, "R"), "hAB");
}

TEST(TheLatch, ArmedWithADirectionInTheSameTickWaitsForTheNextOne) {
  Hra hra = Play({"1"});
  EXPECT_EQ(Written(hra, "sR"), "hAB");
  EXPECT_EQ(Written(hra, "R"), "hBB");
}

TEST(TheLatch, SpentAndArmedInTheSameTickIsArmed) {
  Hra hra = Play({"1"});
  Klavesy(hra, Keys("s"));
  EXPECT_EQ(Written(hra, "sR"), "hBB");
  EXPECT_EQ(Written(hra, "R"), "hBB");
}

TEST(TheLatch, IsDisarmedByAWhichWinsOverS) {
  Hra hra = Play({"1"});
  Klavesy(hra, Keys("s"));
  Klavesy(hra, Keys("a"));
  EXPECT_EQ(Written(hra, "R"), "hAB");
  Klavesy(hra, Keys("sa"));
  EXPECT_EQ(Written(hra, "R"), "hAB");
}

TEST(TheLatch, IsSpentOnADirectionOfTheJoystickToo) {
  Hra hra = Play({"1"});
  Klavesy(hra, Keys("s"));
  EXPECT_EQ(Written(hra, Joystick(2, 0)), "gBB");
  EXPECT_FALSE(hra.ActionLatch);
}

TEST(Tab, GoesToTheNextDogAndWithTheActionKeyToThePreviousOne) {
  Hra hra = Play({"123"});
  EXPECT_EQ(Written(hra, ">"), "AAC");
  EXPECT_EQ(Written(hra, ">!"), "ABB");
  EXPECT_EQ(Written(hra, ">!"), "ABD");
}

TEST(Tab, GoesBackWithALatchedActionToo) {
  Hra hra = Play({"123"});
  Klavesy(hra, Keys("s"));
  EXPECT_EQ(Written(hra, "R>"), "hBD");
}

TEST(TheSecondButton, GoesToTheNextDogAndBothButtonsToThePreviousOne) {
  Hra hra = Play({"123"});
  EXPECT_EQ(Written(hra, Joystick(0, 2)), "AAC");
  EXPECT_EQ(Written(hra, Joystick(0, 3)), "ABB");
  EXPECT_EQ(Written(hra, Joystick(0, 1)), "ABB");
}

TEST(TheKeypad, SelectsTheUnitOfItsLowestDigit) {
  Hra hra = Play({"123N"});
  EXPECT_EQ(Written(hra, "3"), "AAD");
  EXPECT_EQ(Written(hra, "32"), "AAC");
  EXPECT_EQ(Written(hra, "0123"), "AAA");
}

TEST(TheKeypad, HasTheLastWordOverTabInOneTick) {
  Hra hra = Play({"123"});
  EXPECT_EQ(Written(hra, ">1"), "AAB");
  EXPECT_EQ(Written(hra, ">3"), "AAD");
}

TEST(TheKeypad, TriesOnlyItsLowestDigitEvenWhenThatUnitIsAbsent) {
  Hra hra = Play({"1.3"});
  EXPECT_EQ(Written(hra, "23"), "AAB");
}

TEST(TheRecord, HoldsTheUnitAfterTheChangeSoTheChangeComesBeforeTheStepOfItsTick) {
  Hra hra = Play({"1...", "2..."});
  const std::size_t before = hra.RecordText.size();
  Pass(hra, 1, "2R");
  const std::string line = hra.RecordText.substr(before);
  EXPECT_EQ(line.substr(1, 3), "hAC");
  EXPECT_EQ(Drawn(hra), (Picture{"1...", ".2.."}));
}

TEST(AReplay, TakesDirectionActionAndUnitFromItsLineAndNoneFromTheKeys) {
  Hra hra =
      PlayBack({"1;;.", "2;;."}, {{.before = {9}, .direction = 39, .action = 1, .unit = 2, .after = {2}}});
  Tick(hra, Keys("L1"));
  EXPECT_EQ(Drawn(hra), (Picture{"1;;.", "2.;."}));
  EXPECT_EQ(hra.ActiveDog, 2);
  EXPECT_EQ(hra.KeyHeld, (std::array<int, 4>{}));
}

// A press in vain is not in the record, so nothing in the cave may come of it.
TEST(Klavesy, SetsOffNoSensorByARepaintThatChangesNoUnit) {
  Hra hra = Play({"W1G", "W2W"});
  hra.SensorsListen = true;
  Klavesy(hra, Keys("1"));
  Klavesy(hra, Keys("7"));
  Klavesy(hra, Keys(">1"));
  EXPECT_EQ(hra.FieldMark({2, 0}), 0);
}

TEST(Klavesy, SetsOffTheSensorsBesideTheOldAndTheNewUnitWhenTheUnitChanges) {
  Hra hra = Play({"G1WW", "WW2G", "G3WW"});
  Klavesy(hra, Keys("3"));
  Klavesy(hra, Keys("1"));
  EXPECT_EQ(hra.FieldMark({0, 0}), 0) << "no tick runs";
  hra.SensorsListen = true;
  Klavesy(hra, Keys("2"));
  EXPECT_EQ(hra.FieldMark({0, 0}), 1);
  EXPECT_EQ(hra.FieldMark({3, 1}), 1);
  EXPECT_EQ(hra.FieldMark({0, 2}), 0);
}

TEST(Klavesy, SetsOffNoSensorBesideAUnitThatItOnlyPasses) {
  Hra hra = Play({"1WW", "W2G", "3WW"});
  hra.SensorsListen = true;
  Klavesy(hra, Keys(">3"));
  EXPECT_EQ(hra.ActiveDog, 3);
  EXPECT_EQ(hra.FieldMark({2, 1}), 0);
}

}  // namespace
}  // namespace zorik::test
