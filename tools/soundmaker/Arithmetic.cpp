#include "soundmaker/Arithmetic.h"

#include <cmath>

namespace zorik::sound {

double SineOfTurns(double turns) {
  constexpr double kPi = 3.14159265358979323846;
  double x = turns - std::floor(turns + 0.5);
  if (x > 0.25) x = 0.5 - x;
  if (x < -0.25) x = -0.5 - x;
  const double angle = 2 * kPi * x;
  double term = angle, sum = angle;
  for (int n = 3; n <= 17; n += 2) {
    term *= -angle * angle / (n * (n - 1));
    sum += term;
  }
  return sum;
}

double PowerOfTwo(double x) {
  constexpr double kLogOfTwo = 0.69314718055994530942;
  const double whole = std::floor(x);
  const double exponent = (x - whole) * kLogOfTwo;
  double term = 1, sum = 1;
  for (int n = 1; n <= 18; ++n) {
    term *= exponent / n;
    sum += term;
  }
  return std::ldexp(sum, static_cast<int>(whole));
}

double Gain(double decibels) {
  constexpr double kTwosPerDecibel = 0.16609640474436811739;
  return PowerOfTwo(decibels * kTwosPerDecibel);
}

double FadeFactor(double seconds) {
  return Gain(-60 / (seconds * kRate));
}

}  // namespace zorik::sound
