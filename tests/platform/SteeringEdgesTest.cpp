#include <SDL.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <utility>
#include <vector>

#include "platform/JoyPad.h"
#include "platform/JoyStick.h"
#include "platform/Keyboard.h"
#include "support/VirtualPad.h"

namespace zorik {
namespace {

using test::VirtualPad;

constexpr Sint16 kLeast = -32768;

using Heard = std::pair<int, int>;  // of a pad in a tick: direction and buttons

Heard Sample(JoyPad& joyPad) {
  KeySnapshot keys;
  joyPad.Sample(keys);
  return {keys.joyDirection, keys.joyButtons};
}

TEST(SteeringEdges, NothingIsHeardOfASecondPad) {
  JoyPad joyPad;
  VirtualPad first;
  VirtualPad second;
  EXPECT_EQ(Sample(joyPad), Heard(0, 0));
  second.Axes(kLeast, 0);
  EXPECT_EQ(Sample(joyPad), Heard(0, 0)) << "its axes";
  second.Axes(0, 0);
  second.Hat(SDL_HAT_UP);
  EXPECT_EQ(Sample(joyPad), Heard(0, 0)) << "its hat";
  second.Hat(SDL_HAT_CENTERED);
  second.Button(0, true);
  second.Button(1, true);
  EXPECT_EQ(Sample(joyPad), Heard(0, 0)) << "its buttons";
  first.Axes(kLeast, 0);
  EXPECT_EQ(Sample(joyPad), Heard(1, 0));
}

// A second stick, and shoulder keys that can be pushed half.
TEST(SteeringEdges, NothingIsHeardOfAThirdAxis) {
  JoyPad joyPad;
  VirtualPad pad(6);
  EXPECT_EQ(Sample(joyPad), Heard(0, 0));
  for (int axis = 2; axis < 6; ++axis) {
    pad.Axis(axis, kLeast);
    EXPECT_EQ(Sample(joyPad), Heard(0, 0)) << axis;
  }
  pad.Axis(1, kLeast);
  EXPECT_EQ(Sample(joyPad), Heard(2, 0));
}

// A counter goes up by one a tick and stops at 999, where nobody knows any more which push was later.
TEST(SteeringEdges, TheLaterPushWinsForNineHundredTicksAndMore) {
  JoyStick stick;
  stick.JoyInit({32768, 32768, 0});
  stick.Read({0, 32768, 0});
  EXPECT_EQ(stick.JoyDirection(2), 1);
  stick.Read({0, 0, 0});
  for (int tick = 1; tick < 999; ++tick) ASSERT_EQ(stick.JoyDirection(2), 2) << "tick " << tick;
  EXPECT_EQ(stick.JoyDirection(2), 0) << "both have been pushed for 999 ticks";
}

std::vector<int> Down(const KeySnapshot& keys) {
  std::vector<int> down;
  for (int key = 0; key < 256; ++key) {
    if (keys.Down(key)) down.push_back(key);
  }
  return down;
}

TEST(SteeringEdges, TheKeypadHasTenDigits) {
  Keyboard keyboard;
  for (int digit = 0; digit <= 9; ++digit) {
    const QKeyEvent press(QEvent::KeyPress, Qt::Key_0 + digit, Qt::KeypadModifier);
    EXPECT_EQ(GameKey(press), kKeyPad0 + digit);
    keyboard.Press(press);
    EXPECT_EQ(Down(keyboard.Take()), std::vector<int>{kKeyPad0 + digit});
    EXPECT_EQ(Down(keyboard.Take()), std::vector<int>{}) << "it acts once, however long it is held";
  }
  for (const Qt::Key key : {Qt::Key_Slash, Qt::Key_Colon}) {
    EXPECT_EQ(GameKey(QKeyEvent(QEvent::KeyPress, key, Qt::KeypadModifier)), -1) << "beside the digits";
  }
}

// A release and a press of one moment are a key that goes on, unless the window lost its keys in between.
TEST(SteeringEdges, APressAfterTheFocusWasLostIsNew) {
  Keyboard keyboard;
  QKeyEvent press(QEvent::KeyPress, Qt::Key_Right, {});
  QKeyEvent release(QEvent::KeyRelease, Qt::Key_Right, {});
  keyboard.Press(press);
  keyboard.Take();
  release.setTimestamp(600);
  keyboard.Release(release);
  keyboard.ReleaseAll();
  press.setTimestamp(600);
  keyboard.Press(press);
  release.setTimestamp(610);
  keyboard.Release(release);
  EXPECT_EQ(Down(keyboard.Take()), std::vector<int>{kKeyRight});
}

TEST(SteeringEdges, NoKeyIsHeldWhenThePlayerHasChosenOthers) {
  Keyboard keyboard;
  keyboard.Press(QKeyEvent(QEvent::KeyPress, Qt::Key_Left, Qt::NoModifier));
  KeyMap keys;
  keys.Choose(KeyUse::Right, {Qt::Key_Left});
  keyboard.SetKeys(keys);
  EXPECT_EQ(Down(keyboard.Take()), std::vector<int>{});
}

// Ctrl went down while another window had the keys, so that the game hears of it with the R; Shift went down
// just before. The three are one chord, which the next tick reads whole.
TEST(SteeringEdges, AChordTakesWhatItsLastKeyTells) {
  Keyboard keyboard;
  keyboard.Press(QKeyEvent(QEvent::KeyPress, Qt::Key_Shift, Qt::NoModifier));
  keyboard.Press(QKeyEvent(QEvent::KeyPress, Qt::Key_R, Qt::ShiftModifier | Qt::ControlModifier));
  const std::vector<int> down = Down(keyboard.Take());
  for (const int key : {kKeyShift, kKeyCtrl, kKeyR})
    EXPECT_TRUE(std::count(down.begin(), down.end(), key)) << key;
  EXPECT_EQ(down.size(), 3U);
}

// The same with a Tab in between: that one has been pressed with Shift alone.
TEST(SteeringEdges, AChordLeavesAloneWhatWasPressedWithLess) {
  Keyboard keyboard;
  keyboard.Press(QKeyEvent(QEvent::KeyPress, Qt::Key_Shift, Qt::NoModifier));
  keyboard.Press(QKeyEvent(QEvent::KeyPress, Qt::Key_Tab, Qt::ShiftModifier));
  keyboard.Press(QKeyEvent(QEvent::KeyPress, Qt::Key_Left, Qt::ShiftModifier | Qt::ControlModifier));
  const KeySnapshot first = keyboard.Take();
  EXPECT_TRUE(first.Down(kKeyTab));
  EXPECT_FALSE(first.Down(kKeyCtrl));
  const KeySnapshot second = keyboard.Take();
  EXPECT_TRUE(second.Down(kKeyLeft));
  EXPECT_TRUE(second.Down(kKeyCtrl));
}

// To change the dog while an arrow is held with Ctrl leaves that chord alone: when Ctrl is let go of a little
// sooner than the arrow, the dog does not step to where it has only reached.
TEST(SteeringEdges, AChordOutlivesAnotherKeyThatIsTapped) {
  Keyboard keyboard([] { return 0; });
  keyboard.Press(QKeyEvent(QEvent::KeyPress, Qt::Key_Control, Qt::NoModifier));
  keyboard.Press(QKeyEvent(QEvent::KeyPress, Qt::Key_Left, Qt::ControlModifier));
  EXPECT_EQ(Down(keyboard.Take()), (std::vector<int>{kKeyCtrl, kKeyLeft}));
  keyboard.Press(QKeyEvent(QEvent::KeyPress, Qt::Key_Tab, Qt::ControlModifier));
  keyboard.Release(QKeyEvent(QEvent::KeyRelease, Qt::Key_Tab, Qt::ControlModifier));
  EXPECT_TRUE(keyboard.Take().Down(kKeyTab));
  keyboard.Release(QKeyEvent(QEvent::KeyRelease, Qt::Key_Control, Qt::ControlModifier));
  EXPECT_EQ(Down(keyboard.Take()), (std::vector<int>{kKeyCtrl, kKeyLeft}));
}

TEST(SteeringEdges, ATapOfActionBeforeAnArrowIsNoChord) {
  Keyboard keyboard;
  keyboard.Press(QKeyEvent(QEvent::KeyPress, Qt::Key_Shift, Qt::NoModifier));
  keyboard.Release(QKeyEvent(QEvent::KeyRelease, Qt::Key_Shift, Qt::ShiftModifier));
  keyboard.Press(QKeyEvent(QEvent::KeyPress, Qt::Key_Left, Qt::NoModifier));
  EXPECT_EQ(Down(keyboard.Take()), std::vector<int>{kKeyShift});
  EXPECT_EQ(Down(keyboard.Take()), std::vector<int>{kKeyLeft});
}

}  // namespace
}  // namespace zorik
