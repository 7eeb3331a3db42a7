#include "soundmaker/Room.h"

#include <algorithm>
#include <array>

#include "soundmaker/Arithmetic.h"

namespace zorik::sound {

namespace {

// A way from wall to wall and back, again and again. Walls of earth swallow what is high first.
class Echo {
 public:
  Echo(double seconds, double fade) : ring_(static_cast<std::size_t>(std::max(1.0, seconds * kRate)), 0.0) {
    back_ = Gain(-60 * static_cast<double>(ring_.size()) / (fade * kRate));
  }

  double Next(double in) {
    constexpr double kSwallowed = 0.35;
    const double out = ring_[place_];
    dull_ = out * (1 - kSwallowed) + dull_ * kSwallowed;
    ring_[place_] = in + dull_ * back_;
    place_ = (place_ + 1) % ring_.size();
    return out;
  }

 private:
  Samples ring_;
  std::size_t place_ = 0;
  double back_ = 0, dull_ = 0;
};

// Smears what passes without colouring it.
class Smear {
 public:
  explicit Smear(double seconds) : ring_(static_cast<std::size_t>(std::max(1.0, seconds * kRate)), 0.0) {}

  double Next(double in) {
    constexpr double kBack = 0.6;
    const double old = ring_[place_];
    const double kept = in + kBack * old;
    ring_[place_] = kept;
    place_ = (place_ + 1) % ring_.size();
    return old - kBack * kept;
  }

 private:
  Samples ring_;
  std::size_t place_ = 0;
};

// Ways that have no common measure, so that no pitch stands out. The right ear's are a little longer.
struct Walls {
  std::array<Echo, 4> echoes;
  std::array<Smear, 2> smears;

  Walls(const Room& room, double stretch)
      : echoes{Echo(stretch * room.size, room.fade), Echo(stretch * room.size * 0.877, room.fade),
               Echo(stretch * room.size * 0.763, room.fade), Echo(stretch * room.size * 0.641, room.fade)},
        smears{Smear(stretch * room.size * 0.223), Smear(stretch * room.size * 0.081)} {}

  double Next(double in) {
    double sum = 0;
    for (Echo& echo : echoes) sum += echo.Next(in) / 4;
    for (Smear& smear : smears) sum = smear.Next(sum);
    return sum;
  }
};

}  // namespace

void AddRoom(const Room& room, bool endless, Stereo& stereo) {
  constexpr double kRightEar = 1.043;
  Walls left(room, 1), right(room, kRightEar);
  const double gain = Gain(room.gain);
  const Stereo dry = stereo;
  for (int turn = endless ? 0 : 1; turn < 2; ++turn) {
    for (std::size_t i = 0; i < dry.left.size(); ++i) {
      const double middle = (dry.left[i] + dry.right[i]) / 2;
      stereo.left[i] = dry.left[i] + gain * left.Next(middle);
      stereo.right[i] = dry.right[i] + gain * right.Next(middle);
    }
  }
}

}  // namespace zorik::sound
