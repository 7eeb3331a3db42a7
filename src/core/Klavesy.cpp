// Klavesy, the keys: what a player holds becomes the input of the tick and goes into the record; in a replay
// the input comes from there.
#include <algorithm>

#include "core/Machine.h"

namespace zorik {
namespace {

constexpr int kFirstCode = 65;

void Write(Hra& hra, int value) {
  hra.RecordText.push_back(static_cast<char>(value + kFirstCode));
}

// Of the arrow keys that are down the one pressed last wins, so a player can roll from one to the next.
int ArrowDirection(Hra& hra, const KeySnapshot& keys) {
  int direction = 0;
  int shortest = 0;
  for (int key = kKeyLeft; key <= kKeyDown; ++key) {
    int& held = hra.KeyHeld[static_cast<std::size_t>(key - kKeyLeft)];
    held = keys.Down(key) ? held + 1 : 0;
    if (held > 0 && (direction == 0 || held < shortest)) {
      direction = key;
      shortest = held;
    }
  }
  return direction;
}

// S arms one acting step for the next direction, A disarms it.
void UseLatch(Hra& hra, const KeySnapshot& keys) {
  if (hra.ActionLatch && hra.KeyDirection != 0) {
    hra.KeyAction = 1;
    hra.ActionLatch = false;
  }
  if (keys.Down(kKeyS)) hra.ActionLatch = true;
  if (keys.Down(kKeyA)) hra.ActionLatch = false;
}

void ChooseUnit(Hra& hra, const KeySnapshot& keys) {
  if (keys.Down(kKeyTab) || keys.joyButtons == 2 || keys.joyButtons == 3) {
    ZmenitPsa(hra, 1 - 2 * hra.KeyAction);
  }
  for (int key = kKeyPad0; key <= kKeyPad9; ++key) {
    if (!keys.Down(key)) continue;
    ZmenitPsa(hra, (key - kKeyPad0 + 1) * 10);
    return;
  }
}

// A replay changes the unit at most once where the player may have done it twice or in vain. So what the
// sensors hear of it must come from the outcome alone.
void ChooseUnitQuietly(Hra& hra, const KeySnapshot& keys) {
  const int old = hra.ActiveDog;
  const bool listened = hra.SensorsListen;
  hra.SensorsListen = false;
  ChooseUnit(hra, keys);
  hra.SensorsListen = listened;
  if (!listened || hra.ActiveDog == old) return;
  for (const int n : {old, hra.ActiveDog}) {
    if (const auto c = UnitCell(hra, n)) Stir(hra, *c);
  }
}

}  // namespace

void Klavesy(Hra& hra, const KeySnapshot& keys) {
  hra.KeyAction = keys.joyButtons == 1 || keys.joyButtons == 3 ? 1 : 0;
  hra.KeyDirection = ArrowDirection(hra, keys);
  if (keys.joyDirection != 0) hra.KeyDirection = keys.joyDirection + kKeyLeft - 1;
  Write(hra, hra.KeyDirection);
  if (keys.Down(kKeyShift) || keys.Down(kKeyCtrl) || keys.Down(kKeySpace)) hra.KeyAction = 1;
  UseLatch(hra, keys);
  Write(hra, hra.KeyAction);
  ChooseUnitQuietly(hra, keys);
  Write(hra, hra.ActiveDog);
}

void ReadInput(Hra& hra) {
  std::string_view& line = hra.RecordLine;
  if (line.size() <= 1) return;
  const auto value = [&line](std::size_t place) {
    return static_cast<unsigned char>(line[place]) - kFirstCode;
  };
  hra.KeyDirection = value(0);
  hra.KeyAction = value(1);
  if (line.size() > 2 && value(2) != hra.ActiveDog) ZmenitPsa(hra, (value(2) + 1) * 10);
  line.remove_prefix(std::min<std::size_t>(line.size(), 3));
}

}  // namespace zorik
