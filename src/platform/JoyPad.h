#pragma once

#include <memory>

#include "core/Keys.h"
#include "platform/JoyStick.h"

namespace zorik {

// The first joystick or pad that is plugged in, also while the game runs. Without one, nothing is pushed. Its
// centre is read when it appears, which may be at once.
class JoyPad {
 public:
  JoyPad();
  ~JoyPad();
  JoyPad(const JoyPad&) = delete;
  JoyPad& operator=(const JoyPad&) = delete;

  // Adds the stick's direction and buttons to the snapshot of a tick.
  void Sample(KeySnapshot& keys);

  // What was pushed up to now is forgotten, as it was not meant for the game.
  void Forget();

 private:
  struct Device;

  bool Listen();

  std::unique_ptr<Device> device_;
  JoyStick stick_;
};

}  // namespace zorik
