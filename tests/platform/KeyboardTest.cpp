#include <gtest/gtest.h>

#include <vector>

#include "platform/Keyboard.h"

namespace zorik {
namespace {

QKeyEvent Pressed(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier, bool repeat = false) {
  return QKeyEvent(QEvent::KeyPress, key, modifiers, {}, repeat);
}

QKeyEvent Released(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier, bool repeat = false) {
  return QKeyEvent(QEvent::KeyRelease, key, modifiers, {}, repeat);
}

// An event of a key at a place of the keyboard.
QKeyEvent AtPlace(QEvent::Type type, quint32 place, int key, Qt::KeyboardModifiers modifiers) {
  return QKeyEvent(type, key, modifiers, place, 0, 0);
}

std::vector<int> Down(const KeySnapshot& keys) {
  std::vector<int> down;
  for (int key = 0; key < 256; ++key) {
    if (keys.Down(key)) down.push_back(key);
  }
  return down;
}

using Codes = std::vector<int>;

TEST(Keyboard, ReportsAHeldKeyInEveryTick) {
  Keyboard keyboard;
  keyboard.Press(Pressed(Qt::Key_Left));
  EXPECT_EQ(Down(keyboard.Take()), Codes{kKeyLeft});
  EXPECT_EQ(Down(keyboard.Take()), Codes{kKeyLeft});
  keyboard.Release(Released(Qt::Key_Left));
  EXPECT_EQ(Down(keyboard.Take()), Codes{});
}

TEST(Keyboard, CountsATapBetweenTwoTicksForOneTick) {
  Keyboard keyboard;
  keyboard.Press(Pressed(Qt::Key_Up));
  keyboard.Release(Released(Qt::Key_Up));
  EXPECT_EQ(Down(keyboard.Take()), Codes{kKeyUp});
  EXPECT_EQ(Down(keyboard.Take()), Codes{});
}

TEST(Keyboard, CountsSeveralTapsBetweenTwoTicksOnce) {
  Keyboard keyboard;
  for (int i = 0; i < 3; ++i) {
    keyboard.Press(Pressed(Qt::Key_Down));
    keyboard.Release(Released(Qt::Key_Down));
  }
  EXPECT_EQ(Down(keyboard.Take()), Codes{kKeyDown});
  EXPECT_EQ(Down(keyboard.Take()), Codes{});
}

TEST(Keyboard, IsNotSteeredByRepeats) {
  Keyboard keyboard;
  keyboard.Press(Pressed(Qt::Key_Right, Qt::NoModifier, true));
  EXPECT_EQ(Down(keyboard.Take()), Codes{});
  keyboard.Press(Pressed(Qt::Key_Right));
  keyboard.Release(Released(Qt::Key_Right, Qt::NoModifier, true));
  EXPECT_EQ(Down(keyboard.Take()), Codes{kKeyRight}) << "the release between two repeats lets nothing go";
  EXPECT_EQ(Down(keyboard.Take()), Codes{kKeyRight});
}

TEST(Keyboard, GivesACommandOnceForEachPressAndEachRepeat) {
  for (const int key : {Qt::Key_Tab, Qt::Key_R, Qt::Key_C, Qt::Key_P, Qt::Key_F12}) {
    Keyboard keyboard;
    keyboard.Press(Pressed(key));
    EXPECT_EQ(keyboard.Take().down.count(), 1U) << key;
    EXPECT_EQ(keyboard.Take().down.count(), 0U) << "still held, " << key;
    keyboard.Press(Pressed(key, Qt::NoModifier, true));
    EXPECT_EQ(keyboard.Take().down.count(), 1U) << key;
    keyboard.Release(Released(key));
    EXPECT_EQ(keyboard.Take().down.count(), 0U) << key;
  }
}

TEST(Keyboard, KnowsRWithCtrlForARestart) {
  Keyboard keyboard;
  keyboard.Press(Pressed(Qt::Key_Control, Qt::ControlModifier));
  keyboard.Press(Pressed(Qt::Key_R, Qt::ControlModifier));
  EXPECT_EQ(Down(keyboard.Take()), (Codes{kKeyCtrl, kKeyR}));
  EXPECT_EQ(Down(keyboard.Take()), Codes{kKeyCtrl});
}

TEST(Keyboard, TakesTabWithShiftForTab) {
  Keyboard keyboard;
  keyboard.Press(Pressed(Qt::Key_Shift, Qt::ShiftModifier));
  keyboard.Press(Pressed(Qt::Key_Backtab, Qt::ShiftModifier));
  EXPECT_EQ(Down(keyboard.Take()), (Codes{kKeyTab, kKeyShift}));
}

TEST(Keyboard, TakesDigitsFromTheKeypadOnly) {
  Keyboard keyboard;
  keyboard.Press(Pressed(Qt::Key_3));
  EXPECT_EQ(Down(keyboard.Take()), Codes{});
  keyboard.Press(Pressed(Qt::Key_3, Qt::KeypadModifier));
  EXPECT_EQ(Down(keyboard.Take()), Codes{kKeyPad0 + 3});
  EXPECT_EQ(Down(keyboard.Take()), Codes{}) << "a digit is a command";
}

TEST(Keyboard, TakesPlusAndMinusFromTheKeypadOnly) {
  Keyboard keyboard;
  keyboard.Press(Pressed(Qt::Key_Plus));
  keyboard.Press(Pressed(Qt::Key_Minus));
  EXPECT_EQ(Down(keyboard.Take()), Codes{});
  keyboard.Press(Pressed(Qt::Key_Plus, Qt::KeypadModifier));
  keyboard.Press(Pressed(Qt::Key_Minus, Qt::KeypadModifier));
  EXPECT_EQ(Down(keyboard.Take()), (Codes{kKeyPadPlus, kKeyPadMinus}));
}

TEST(Keyboard, SteersWithTheKeypadsArrowsWhenTheNumberLockIsOff) {
  Keyboard keyboard;
  keyboard.Press(Pressed(Qt::Key_Left, Qt::KeypadModifier));
  EXPECT_EQ(Down(keyboard.Take()), Codes{kKeyLeft});
  EXPECT_EQ(Down(keyboard.Take()), Codes{kKeyLeft}) << "an arrow steers while it is held";
}

TEST(Keyboard, LetsGoAKeyWhoseMeaningChangedWhileItWasHeld) {
  Keyboard keyboard;
  keyboard.Press(AtPlace(QEvent::KeyPress, 83, Qt::Key_Left, Qt::KeypadModifier));
  keyboard.Release(AtPlace(QEvent::KeyRelease, 83, Qt::Key_4, Qt::KeypadModifier));
  keyboard.Take();
  EXPECT_EQ(Down(keyboard.Take()), Codes{});
}

TEST(Keyboard, HoldsShiftWhileOneOfTwoShiftsIsHeld) {
  Keyboard keyboard;
  keyboard.Press(AtPlace(QEvent::KeyPress, 50, Qt::Key_Shift, Qt::ShiftModifier));
  keyboard.Press(AtPlace(QEvent::KeyPress, 62, Qt::Key_Shift, Qt::ShiftModifier));
  keyboard.Take();
  keyboard.Release(AtPlace(QEvent::KeyRelease, 50, Qt::Key_Shift, Qt::ShiftModifier));
  EXPECT_EQ(Down(keyboard.Take()), Codes{kKeyShift});
  keyboard.Release(AtPlace(QEvent::KeyRelease, 62, Qt::Key_Shift, Qt::NoModifier));
  EXPECT_EQ(Down(keyboard.Take()), Codes{});
}

TEST(Keyboard, LetsEverythingGoWhenTheFocusIsLost) {
  Keyboard keyboard;
  keyboard.Press(Pressed(Qt::Key_Left));
  keyboard.Press(Pressed(Qt::Key_Space));
  keyboard.Press(Pressed(Qt::Key_Tab));
  keyboard.ReleaseAll();
  EXPECT_EQ(Down(keyboard.Take()), Codes{});
}

TEST(Keyboard, KnowsTheKeysOfAction) {
  Keyboard keyboard;
  for (const int key : {Qt::Key_Shift, Qt::Key_Control, Qt::Key_Space, Qt::Key_S, Qt::Key_A}) {
    keyboard.Press(Pressed(key));
  }
  EXPECT_EQ(Down(keyboard.Take()), (Codes{kKeyShift, kKeyCtrl, kKeySpace, kKeyA, kKeyS}));
}

TEST(Keyboard, DisregardsAllOtherKeys) {
  Keyboard keyboard;
  for (const int key : {Qt::Key_Q, Qt::Key_Return, Qt::Key_F1, Qt::Key_Clear}) keyboard.Press(Pressed(key));
  EXPECT_EQ(Down(keyboard.Take()), Codes{});
}

}  // namespace
}  // namespace zorik
