#include "screens/MotionClock.h"

#include <algorithm>
#include <cmath>

namespace zorik {

MotionClock::MotionClock() {
  timer_.setTimerType(Qt::PreciseTimer);
  connect(&timer_, &QTimer::timeout, this, &MotionClock::Due);
}

void MotionClock::Begin(int interval, qreal picturesPerSecond) {
  const int between = static_cast<int>(std::ceil(1000 / std::max(1.0, picturesPerSecond)));
  if (interval < 2 * between) return End();
  interval_ = interval;
  since_.start();
  timer_.start(between);
}

void MotionClock::End() {
  timer_.stop();
}

double MotionClock::Way() const {
  if (!Runs()) return 1;
  return std::min(1.0, static_cast<double>(since_.nsecsElapsed()) / 1e6 / interval_);
}

}  // namespace zorik
