#pragma once

#include <QKeyEvent>
#include <bitset>
#include <cstdint>
#include <map>

#include "core/Keys.h"

namespace zorik {

// The key code of an event as the game counts it, -1 for a key that it does not know. Digits, plus and minus
// are those of the numeric keypad; its arrows, with the number lock off, are arrows.
int GameKey(const QKeyEvent& event);

// Gathers key events into one snapshot for each tick. A key that is held, or was tapped since the last tick,
// is down. Keys that give commands are down once for each press and each repeat; a repeat of any other key
// means nothing.
class Keyboard {
 public:
  void Press(const QKeyEvent& event);
  void Release(const QKeyEvent& event);

  // All keys are let go and forgotten: the window lost the focus, or a dialog stood in its place.
  void ReleaseAll();

  // What the tick reads; the taps are used up.
  KeySnapshot Take();

 private:
  // A key is known again by its place on the keyboard: what it means may change with other keys while it is
  // held.
  static std::uint64_t PlaceOf(const QKeyEvent& event);

  std::map<std::uint64_t, int> held_;  // game key by place
  std::bitset<256> tapped_;            // since the last tick
};

}  // namespace zorik
