#pragma once

#include <memory>

#include "core/Keys.h"
#include "platform/JoyStick.h"

namespace zorik {

// The first joystick or pad that is plugged in, also while the game runs. Without one, nothing is pushed.
class JoyPad {
 public:
  JoyPad();
  ~JoyPad();
  JoyPad(const JoyPad&) = delete;
  JoyPad& operator=(const JoyPad&) = delete;

  // Adds the stick's direction and buttons to the snapshot of a tick.
  void Sample(KeySnapshot& keys);

 private:
  struct Device;
  std::unique_ptr<Device> device_;
  JoyStick stick_;
};

}  // namespace zorik
