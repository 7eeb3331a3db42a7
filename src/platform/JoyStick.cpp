#include "platform/JoyStick.h"

#include <algorithm>

namespace zorik {

void JoyStick::JoyInit(const JoyInfo& info) {
  info_ = info;
  JoyCentreX_ = info.x;
  JoyCentreY_ = info.y;
}

// In whole numbers: x < centre (1 - 1/s) is x s < centre (s - 1).
std::array<bool, 4> JoyStick::Pushed(int sensitivity) const {
  const int x = info_.x * sensitivity;
  const int y = info_.y * sensitivity;
  return {
      x<JoyCentreX_*(sensitivity - 1), y<JoyCentreY_*(sensitivity - 1), x> JoyCentreX_*(sensitivity + 1), y>
          JoyCentreY_ *
      (sensitivity + 1)};
}

int JoyStick::JoyDirection(int sensitivity) {
  const std::array<bool, 4> pushed = Pushed(sensitivity);
  for (std::size_t i = 0; i < JoyHeld_.size(); ++i) {
    const int before = JoyHeld_[i] == kNotPushed ? 0 : JoyHeld_[i];
    JoyHeld_[i] = pushed[i] ? std::min(before + 1, kLongest) : kNotPushed;
  }
  const auto* const least = std::min_element(JoyHeld_.begin(), JoyHeld_.end());
  if (std::count(JoyHeld_.begin(), JoyHeld_.end(), *least) > 1) return 0;
  return static_cast<int>(least - JoyHeld_.begin()) + 1;
}

}  // namespace zorik
