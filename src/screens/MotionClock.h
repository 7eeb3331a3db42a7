#pragma once

#include <QElapsedTimer>
#include <QTimer>

namespace zorik {

// The time between two ticks, in which what moves is drawn on its way, as often as the screen shows pictures.
class MotionClock : public QObject {
  Q_OBJECT

 public:
  MotionClock();

  // A tick is over, the next one comes in so many milliseconds. Where that is too soon for a picture between
  // the two nothing begins.
  void Begin(int interval, qreal picturesPerSecond);
  void End();

  bool Runs() const { return timer_.isActive(); }

  // How far the time has gone, from 0 to 1; 1 when it does not run.
  double Way() const;

 signals:
  // It is time for another picture.
  void Due();

 private:
  QTimer timer_;
  QElapsedTimer since_;
  int interval_ = 1;
};

}  // namespace zorik
