#include <SDL.h>
#include <gtest/gtest.h>

#include <utility>

#include "platform/JoyPad.h"
#include "support/VirtualPad.h"

namespace zorik {
namespace {

using test::VirtualPad;

constexpr Sint16 kLeast = -32768;
constexpr Sint16 kMost = 32767;

// What a tick hears of the pad: its direction and its buttons.
using Heard = std::pair<int, int>;

class JoyPadTest : public testing::Test {
 protected:
  Heard Sample() {
    KeySnapshot keys;
    pad_.Sample(keys);
    return {keys.joyDirection, keys.joyButtons};
  }

  JoyPad pad_;
};

TEST_F(JoyPadTest, HearsNothingWhereThereIsNoPad) {
  EXPECT_EQ(Sample(), Heard(0, 0));
}

TEST_F(JoyPadTest, TellsTheDirectionOfTheAxes) {
  VirtualPad pad;
  EXPECT_EQ(Sample(), Heard(0, 0));
  pad.Axes(kLeast, 0);
  EXPECT_EQ(Sample(), Heard(1, 0));
  pad.Axes(0, kLeast);
  EXPECT_EQ(Sample(), Heard(2, 0));
  pad.Axes(kMost, 0);
  EXPECT_EQ(Sample(), Heard(3, 0));
  pad.Axes(0, kMost);
  EXPECT_EQ(Sample(), Heard(4, 0));
  pad.Axes(0, 0);
  EXPECT_EQ(Sample(), Heard(0, 0));
}

TEST_F(JoyPadTest, ShiftsTheAxesSoThatTheDeadZoneIsHalfTheWay) {
  VirtualPad pad;
  EXPECT_EQ(Sample(), Heard(0, 0));
  pad.Axes(-16384, 0);
  EXPECT_EQ(Sample(), Heard(0, 0));
  pad.Axes(-16385, 0);
  EXPECT_EQ(Sample(), Heard(1, 0));
  pad.Axes(16384, 0);
  EXPECT_EQ(Sample(), Heard(0, 0));
  pad.Axes(16385, 0);
  EXPECT_EQ(Sample(), Heard(3, 0));
}

TEST_F(JoyPadTest, TakesAPushedHatForAnAxisAtItsEnd) {
  VirtualPad pad;
  EXPECT_EQ(Sample(), Heard(0, 0));
  const std::pair<Uint8, int> directions[] = {
      {SDL_HAT_LEFT, 1}, {SDL_HAT_UP, 2}, {SDL_HAT_RIGHT, 3}, {SDL_HAT_DOWN, 4}, {SDL_HAT_CENTERED, 0}};
  for (const auto& [hat, direction] : directions) {
    pad.Hat(hat);
    EXPECT_EQ(Sample(), Heard(direction, 0));
  }
}

TEST_F(JoyPadTest, HasItsCentreWhereTheAxesAreWhenAHatIsPushedAtFirst) {
  VirtualPad pad;
  pad.Axes(-8768, 0);  // 24000 of 65535
  pad.Hat(SDL_HAT_LEFT);
  EXPECT_EQ(Sample(), Heard(1, 0));
  pad.Hat(SDL_HAT_CENTERED);
  EXPECT_EQ(Sample(), Heard(0, 0));
  pad.Axes(-20768, 0);  // 12000, no less than a half of it
  EXPECT_EQ(Sample(), Heard(0, 0));
  pad.Axes(-20769, 0);
  EXPECT_EQ(Sample(), Heard(1, 0));
}

TEST_F(JoyPadTest, TakesWhereItStandsAtFirstForTheCentre) {
  VirtualPad pad;
  pad.Axes(-8768, 0);  // 24000 of 65535
  EXPECT_EQ(Sample(), Heard(0, 0));
  pad.Axes(-20769, 0);  // 11999, below a half of it
  EXPECT_EQ(Sample(), Heard(1, 0));
}

TEST_F(JoyPadTest, KnowsTwoButtons) {
  VirtualPad pad;
  pad.Button(0, true);
  EXPECT_EQ(Sample(), Heard(0, 1));
  pad.Button(1, true);
  EXPECT_EQ(Sample(), Heard(0, 3));
  pad.Button(0, false);
  pad.Button(1, false);
  pad.Button(2, true);
  EXPECT_EQ(Sample(), Heard(0, 0));
  pad.Button(1, true);
  EXPECT_EQ(Sample(), Heard(0, 2));
}

TEST_F(JoyPadTest, CountsTheSecondButtonOnceForEachPressAndTheFirstForAsLongAsItIsHeld) {
  VirtualPad pad;
  EXPECT_EQ(Sample(), Heard(0, 0));
  pad.Button(0, true);
  pad.Button(1, true);
  EXPECT_EQ(Sample(), Heard(0, 3));
  EXPECT_EQ(Sample(), Heard(0, 1));
  pad.Button(1, false);
  pad.Button(0, false);
  EXPECT_EQ(Sample(), Heard(0, 0));
}

TEST_F(JoyPadTest, KeepsWhatIsPushedAndLetGoBetweenTwoTicks) {
  VirtualPad pad;
  EXPECT_EQ(Sample(), Heard(0, 0));
  pad.Axes(kLeast, 0);
  pad.Axes(0, 0);
  EXPECT_EQ(Sample(), Heard(1, 0));
  EXPECT_EQ(Sample(), Heard(0, 0));
  pad.Hat(SDL_HAT_DOWN);
  pad.Hat(SDL_HAT_CENTERED);
  EXPECT_EQ(Sample(), Heard(4, 0));
  EXPECT_EQ(Sample(), Heard(0, 0));
  for (const int button : {0, 1}) {
    pad.Button(button, true);
    pad.Button(button, false);
    EXPECT_EQ(Sample(), Heard(0, 1 << button));
    EXPECT_EQ(Sample(), Heard(0, 0));
  }
}

TEST_F(JoyPadTest, TakesTheFirstButtonWithThePressOfTheSecondHoweverSoonItIsUp) {
  VirtualPad pad;
  EXPECT_EQ(Sample(), Heard(0, 0));
  pad.Button(0, true);
  pad.Button(1, true);
  pad.Button(0, false);
  pad.Button(1, false);
  EXPECT_EQ(Sample(), Heard(0, 3));
  EXPECT_EQ(Sample(), Heard(0, 0));
  pad.Button(1, true);
  pad.Button(0, true);
  pad.Button(0, false);
  EXPECT_EQ(Sample(), Heard(0, 2));
  EXPECT_EQ(Sample(), Heard(0, 1));
}

TEST_F(JoyPadTest, DoesWithItsButtonsWhatThePlayerHasChosen) {
  PadMap map;
  map.Choose(PadUse::Action, 3);
  map.Choose(PadUse::NextUnit, 0);
  map.Choose(PadUse::Pause, 1);
  map.Choose(PadUse::Restart, 2);
  pad_.SetButtons(map);
  VirtualPad pad;
  const auto tap = [&](int button) {
    pad.Button(button, true);
    pad.Button(button, false);
    KeySnapshot keys;
    pad_.Sample(keys);
    return keys;
  };
  tap(0);  // makes the pad known
  EXPECT_EQ(tap(3).joyButtons, 1);
  EXPECT_EQ(tap(0).joyButtons, 2);
  const KeySnapshot pause = tap(1);
  EXPECT_TRUE(pause.Down(kKeyP));
  EXPECT_EQ(pause.down.count(), 1U);
  EXPECT_EQ(pause.joyButtons, 0);
  const KeySnapshot restart = tap(2);
  EXPECT_TRUE(restart.Down(kKeyR) && restart.Down(kKeyCtrl));
  EXPECT_EQ(restart.down.count(), 2U);
  EXPECT_EQ(restart.joyButtons, 0);
}

TEST_F(JoyPadTest, CommandsOnceForEachPress) {
  PadMap map;
  map.Choose(PadUse::Pause, 2);
  pad_.SetButtons(map);
  VirtualPad pad;
  Sample();
  pad.Button(2, true);
  KeySnapshot keys;
  pad_.Sample(keys);
  EXPECT_TRUE(keys.Down(kKeyP));
  KeySnapshot next;
  pad_.Sample(next);
  EXPECT_FALSE(next.Down(kKeyP)) << "it is held";
  pad.Button(2, false);
  pad.Button(2, true);
  EXPECT_TRUE(pad_.PausePressed());
  EXPECT_FALSE(pad_.PausePressed());
  pad.Button(2, false);
  pad.Button(2, true);
  pad_.Forget();
  EXPECT_FALSE(pad_.PausePressed());
}

TEST_F(JoyPadTest, CommandsNothingWithAButtonThatWasHeldWhenItWasChosen) {
  VirtualPad pad;
  Sample();
  pad.Button(3, true);
  PadMap map;
  map.Choose(PadUse::Pause, 3);
  pad_.SetButtons(map);
  EXPECT_FALSE(pad_.PausePressed());
}

TEST_F(JoyPadTest, TellsWhichButtonWentDownWhateverItDoes) {
  EXPECT_FALSE(pad_.IsThere());
  VirtualPad pad;
  EXPECT_TRUE(pad_.IsThere());
  EXPECT_EQ(pad_.PressedButton(), std::nullopt);
  pad.Button(3, true);
  pad.Button(3, false);
  EXPECT_EQ(pad_.PressedButton(), 3);
  EXPECT_EQ(pad_.PressedButton(), std::nullopt);
  pad.Button(0, true);
  EXPECT_EQ(pad_.PressedButton(), 0);
  EXPECT_EQ(pad_.PressedButton(), std::nullopt) << "it is held";
}

TEST_F(JoyPadTest, DoesNotTellOfAButtonThatWasDownWhenThePadCame) {
  VirtualPad pad;
  pad.Button(2, true);
  pad.Button(3, true);
  pad.Button(3, false);
  EXPECT_EQ(pad_.PressedButton(), std::nullopt);
  pad.Button(2, false);
  EXPECT_EQ(pad_.PressedButton(), std::nullopt);
  pad.Button(2, true);
  EXPECT_EQ(pad_.PressedButton(), 2);
}

TEST_F(JoyPadTest, DoesNotTellOfAButtonOfAPadThatIsGone) {
  {
    VirtualPad pad;
    EXPECT_EQ(Sample(), Heard(0, 0));
    pad.Button(2, true);
    Sample();
  }
  EXPECT_FALSE(pad_.IsThere());
  const VirtualPad another;
  EXPECT_EQ(pad_.PressedButton(), std::nullopt);
}

TEST_F(JoyPadTest, ForgetsWhatWasPushedForAnotherWindow) {
  VirtualPad pad;
  EXPECT_EQ(Sample(), Heard(0, 0));
  pad.Axes(kLeast, 0);
  pad.Axes(0, 0);
  pad.Button(1, true);
  pad_.Forget();
  EXPECT_EQ(Sample(), Heard(0, 0));
}

TEST(JoyPad, HasItsCentreInTheMiddleWhenTheStickIsPushedByThen) {
  VirtualPad pad;
  pad.Axes(kLeast, kMost);
  JoyPad late;
  KeySnapshot keys;
  pad.Axes(0, 0);
  late.Forget();
  late.Sample(keys);
  EXPECT_EQ(keys.joyDirection, 0) << "at rest, whatever was pushed when it was first read";
  pad.Axes(kMost, 0);
  late.Sample(keys);
  EXPECT_EQ(keys.joyDirection, 3);
}

TEST(JoyPad, ReadsItsCentreWhenItIsMadeAndNotWhenItIsFirstAsked) {
  VirtualPad pad;
  JoyPad early;
  pad.Axes(-10000, 0);
  KeySnapshot keys;
  early.Sample(keys);
  pad.Axes(-16385, 0);
  early.Sample(keys);
  EXPECT_EQ(keys.joyDirection, 1);
}

TEST_F(JoyPadTest, KnowsNothingOfHowLongAnotherPadWasPushed) {
  {
    VirtualPad pad;
    EXPECT_EQ(Sample(), Heard(0, 0));
    pad.Axes(kLeast, 0);
    EXPECT_EQ(Sample(), Heard(1, 0));
  }
  EXPECT_EQ(Sample(), Heard(0, 0));
  VirtualPad another;
  another.Axes(kLeast, kLeast);
  EXPECT_EQ(Sample(), Heard(0, 0)) << "two directions of one tick, of which none is older";
}

TEST_F(JoyPadTest, MayBePluggedInAndOutWhileTheGameRuns) {
  EXPECT_EQ(Sample(), Heard(0, 0));
  {
    VirtualPad pad;
    EXPECT_EQ(Sample(), Heard(0, 0));
    pad.Axes(kLeast, 0);
    EXPECT_EQ(Sample(), Heard(1, 0));
  }
  EXPECT_EQ(Sample(), Heard(0, 0)) << "a pad that is gone pushes nothing";
  VirtualPad another;
  EXPECT_EQ(Sample(), Heard(0, 0));
  another.Axes(0, kMost);
  EXPECT_EQ(Sample(), Heard(4, 0));
}

}  // namespace
}  // namespace zorik
