#pragma once

#include <array>
#include <utility>

namespace zorik {

// What a joystick reports: its axes, 0 to 65535 each, and its buttons, one bit each.
struct JoyInfo {
  int x = 0;
  int y = 0;
  unsigned buttons = 0;

  bool operator==(const JoyInfo&) const = default;
};

// Turns the axes of a stick into the directions of the arrow keys. There is nothing to calibrate: where the
// axes are when the stick is first read counts as the centre, unless it is pushed by then. What was pushed
// and let go between two ticks counts for the next one.
class JoyStick {
 public:
  // The stick is there; its axes now are the centre. One outside of the middle third is pushed: its centre
  // is the middle.
  void JoyInit(const JoyInfo& info);
  // The stick's latest state, as often as it changes. While it cannot be read, the last one stands.
  void Read(const JoyInfo& info);
  // What was let go by now is forgotten, and what is held was not pressed just now.
  void Forget();

  // 1 left, 2 up, 3 right, 4 down, 0 none. Meant to be asked once a tick, since it counts how long each
  // direction has been pushed: the one that was pushed last wins, and two that were pushed in the same tick
  // cancel each other until one is let go. The dead zone is 1 / sensitivity of the centre's value to either
  // side; sensitivity is above 0.
  int JoyDirection(int sensitivity);

  // The button word, 0 to 3, asked once a tick as well. The first button counts for as long as it is held, as
  // the keys of action do; the second once for each press, together with what the first one was then.
  int JoyButtons();

  // Two more buttons give commands.
  static constexpr unsigned kRestart = 4;
  static constexpr unsigned kPause = 8;

  // Those that went down since this was last asked.
  unsigned JoyCommands() { return std::exchange(commands_, 0U); }

 private:
  static constexpr unsigned kFirst = 1;
  static constexpr unsigned kSecond = 2;

  static constexpr int kNotPushed = 1000;
  static constexpr int kLongest = kNotPushed - 1;

  std::array<bool, 4> Pushed() const;
  std::array<bool, 4> PushedOrTapped() const;

  JoyInfo info_;
  int sensitivity_ = 2;
  std::array<bool, 4> tapped_{};  // directions that were entered since the last tick
  unsigned first_ = 0;            // the first button's tap since then
  unsigned commands_ = 0;         // the commands given since then
  unsigned chord_ = 0;            // what the second button was pressed with, and itself
  int JoyCentreX_ = 0;
  int JoyCentreY_ = 0;
  std::array<int, 4> JoyHeld_{kNotPushed, kNotPushed, kNotPushed,
                              kNotPushed};  // ticks: left, up, right, down
};

}  // namespace zorik
