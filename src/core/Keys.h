#pragma once

#include <bitset>

namespace zorik {

// Key codes that a tick looks at.
enum Key : int {
  kKeyTab = 9,
  kKeyShift = 16,
  kKeyCtrl = 17,
  kKeySpace = 32,
  kKeyLeft = 37,
  kKeyUp = 38,
  kKeyRight = 39,
  kKeyDown = 40,
  kKeyA = 65,
  kKeyC = 67,
  kKeyP = 80,
  kKeyR = 82,
  kKeyS = 83,
  kKeyPad0 = 96,
  kKeyPad9 = 105,
  kKeyPadPlus = 107,
  kKeyPadMinus = 109,
  kKeyF12 = 123,
};

// What the player holds in one tick. The window makes one for each tick: a key that is held, or was tapped
// since the last tick, is down; keys that give commands (Tab, the keypad, R, C, P, F12, plus, minus) are
// down once for each press.
struct KeySnapshot {
  std::bitset<256> down;
  int joyDirection = 0;  // 1 left, 2 up, 3 right, 4 down, 0 none or no joystick
  int joyButtons = 0;    // button word, 0 to 3

  bool operator==(const KeySnapshot&) const = default;

  bool Down(int key) const { return down[static_cast<std::size_t>(key)]; }
};

}  // namespace zorik
