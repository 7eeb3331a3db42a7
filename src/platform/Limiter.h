#pragma once

#include <array>
#include <cstddef>

namespace zorik {

// One moment of sound; full scale is 1.
struct SoundFrame {
  float left = 0;
  float right = 0;
};

// Keeps a sound below its ceiling by turning it down just as far as needed, and slowly up again. It looks
// ahead, so the turning is a glide and no peak is cut off; what stays below the ceiling passes unchanged.
class Limiter {
 public:
  static constexpr float kCeiling = 0.89F;    // 1 dB below full scale
  static constexpr std::size_t kGlide = 64;   // frames
  static constexpr std::size_t kDelay = 128;  // frames between what goes in and the same coming out
  static constexpr float kRecovery =
      1.0F / 86;  // of full volume in a glide: all of it in a quarter of a second

  SoundFrame Next(SoundFrame in);

 private:
  void StartGlide();

  std::array<SoundFrame, kDelay> coming_{};
  std::size_t at_ = 0;
  float volume_ = 1;
  float target_ = 1;       // the volume at the end of this glide
  float allowed_ = 1;      // the most for the frames that came in during this glide
  float allowedThen_ = 1;  // the same for those of the glide before, which go out next
};

}  // namespace zorik
