#include "platform/Limiter.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace zorik {

SoundFrame Limiter::Next(SoundFrame in) {
  const float peak = std::max(std::abs(in.left), std::abs(in.right));
  if (peak * allowed_ > kCeiling) allowed_ = kCeiling / peak;
  SoundFrame out = std::exchange(coming_[at_], in);
  out.left *= volume_;
  out.right *= volume_;
  at_ = (at_ + 1) % kDelay;
  const std::size_t left = kGlide - at_ % kGlide;
  if (left == kGlide) {
    StartGlide();
  } else {
    volume_ += (target_ - volume_) / static_cast<float>(left);
  }
  return out;
}

// Both ends of a glide are low enough for all that goes out during it: the end before has seen to the start.
void Limiter::StartGlide() {
  volume_ = target_;
  target_ = std::min({allowedThen_, allowed_, volume_ + kRecovery});
  allowedThen_ = std::exchange(allowed_, 1.0F);
}

}  // namespace zorik
