#pragma once

#include <memory>
#include <optional>

#include "core/Keys.h"
#include "platform/JoyStick.h"
#include "platform/PadMap.h"

namespace zorik {

// The first joystick or pad that is plugged in, also while the game runs. Without one, nothing is pushed. Its
// centre is read when it appears, which may be at once.
class JoyPad {
 public:
  JoyPad();
  ~JoyPad();
  JoyPad(const JoyPad&) = delete;
  JoyPad& operator=(const JoyPad&) = delete;

  // What its buttons do. What was pushed up to now is forgotten.
  void SetButtons(const PadMap& map);

  // Adds the stick's direction and buttons to the snapshot of a tick, and what the player commands with it as
  // if by the keys.
  void Sample(KeySnapshot& keys);

  // Whether the button of the pause went down. What else was pushed up to now is forgotten.
  bool PausePressed();

  // A button that went down since this was last asked, whatever it does.
  std::optional<int> PressedButton();

  // Whether there is one.
  bool IsThere() { return Listen(); }

  // What was pushed up to now is forgotten, as it was not meant for the game.
  void Forget();

 private:
  struct Device;

  bool Listen();

  std::unique_ptr<Device> device_;
  JoyStick stick_;
};

}  // namespace zorik
