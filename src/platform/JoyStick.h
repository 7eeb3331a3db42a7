#pragma once

#include <array>

namespace zorik {

// What a joystick reports: its axes, 0 to 65535 each, and its buttons, one bit each.
struct JoyInfo {
  int x = 0;
  int y = 0;
  unsigned buttons = 0;

  bool operator==(const JoyInfo&) const = default;
};

// Turns the axes of a stick into the directions of the arrow keys. There is nothing to calibrate: where the
// axes are when the stick is first read counts as the centre.
class JoyStick {
 public:
  // The stick is there; its axes now are the centre.
  void JoyInit(const JoyInfo& info);
  // The stick's latest state. While it cannot be read, the last one stands.
  void Read(const JoyInfo& info) { info_ = info; }

  // 1 left, 2 up, 3 right, 4 down, 0 none. Meant to be asked once a tick, since it counts how long each
  // direction has been pushed: the one that was pushed last wins, and two that were pushed in the same tick
  // cancel each other until one is let go. The dead zone is 1 / sensitivity of the centre's value to either
  // side; sensitivity is above 0.
  int JoyDirection(int sensitivity);

  // The button word, 0 to 3.
  int JoyButtons() const { return static_cast<int>(info_.buttons & 3U); }

 private:
  static constexpr int kNotPushed = 1000;
  static constexpr int kLongest = kNotPushed - 1;

  std::array<bool, 4> Pushed(int sensitivity) const;

  JoyInfo info_;
  int JoyCentreX_ = 0;
  int JoyCentreY_ = 0;
  std::array<int, 4> JoyHeld_{kNotPushed, kNotPushed, kNotPushed,
                              kNotPushed};  // ticks: left, up, right, down
};

}  // namespace zorik
