#include "platform/JoyStick.h"

#include <algorithm>
#include <utility>

namespace zorik {

namespace {

constexpr int kAxisMost = 65535;
constexpr int kMiddle = 32768;

int CentreOf(int axis) {
  const bool rests = axis >= kAxisMost / 3 && axis <= kAxisMost * 2 / 3;
  return rests ? axis : kMiddle;
}

}  // namespace

void JoyStick::JoyInit(const JoyInfo& info) {
  info_ = info;
  JoyCentreX_ = CentreOf(info.x);
  JoyCentreY_ = CentreOf(info.y);
  Forget();
}

void JoyStick::Read(const JoyInfo& info) {
  const std::array<bool, 4> before = Pushed();
  const unsigned pressed = info.buttons & ~info_.buttons;
  first_ |= pressed & kFirst;
  commands_ |= pressed & (kRestart | kPause);
  if ((pressed & kSecond) != 0) chord_ = info.buttons & (kFirst | kSecond);
  info_ = info;
  const std::array<bool, 4> now = Pushed();
  for (std::size_t i = 0; i < now.size(); ++i) tapped_[i] = tapped_[i] || (now[i] && !before[i]);
}

void JoyStick::Forget() {
  tapped_ = {};
  first_ = 0;
  commands_ = 0;
  chord_ = 0;
}

// In whole numbers: x < centre (1 - 1/s) is x s < centre (s - 1).
std::array<bool, 4> JoyStick::Pushed() const {
  const auto below = [this](int axis, int centre) {
    return axis * sensitivity_ < centre * (sensitivity_ - 1);
  };
  const auto above = [this](int axis, int centre) {
    return axis * sensitivity_ > centre * (sensitivity_ + 1);
  };
  return {below(info_.x, JoyCentreX_), below(info_.y, JoyCentreY_), above(info_.x, JoyCentreX_),
          above(info_.y, JoyCentreY_)};
}

// An axis that is back at rest tells where it was.
std::array<bool, 4> JoyStick::PushedOrTapped() const {
  std::array<bool, 4> pushed = Pushed();
  for (const std::size_t side : {0U, 1U}) {
    if (pushed[side] || pushed[side + 2]) continue;
    pushed[side] = tapped_[side];
    pushed[side + 2] = tapped_[side + 2];
  }
  return pushed;
}

int JoyStick::JoyDirection(int sensitivity) {
  sensitivity_ = sensitivity;
  const std::array<bool, 4> pushed = PushedOrTapped();
  tapped_ = {};
  for (std::size_t i = 0; i < JoyHeld_.size(); ++i) {
    const int before = JoyHeld_[i] == kNotPushed ? 0 : JoyHeld_[i];
    JoyHeld_[i] = pushed[i] ? std::min(before + 1, kLongest) : kNotPushed;
  }
  const auto* const least = std::min_element(JoyHeld_.begin(), JoyHeld_.end());
  if (std::count(JoyHeld_.begin(), JoyHeld_.end(), *least) > 1) return 0;
  return static_cast<int>(least - JoyHeld_.begin()) + 1;
}

// The first button's tap, if the second one was pressed without it, waits for the next tick.
int JoyStick::JoyButtons() {
  const unsigned chord = std::exchange(chord_, 0);
  if (chord != 0) {
    if ((chord & kFirst) != 0) first_ = 0;
    return static_cast<int>(chord);
  }
  return static_cast<int>((info_.buttons & kFirst) | std::exchange(first_, 0));
}

}  // namespace zorik
