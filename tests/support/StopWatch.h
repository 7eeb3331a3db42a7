#pragma once

#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QTest>
#include <QTimer>
#include <functional>
#include <utility>

namespace zorik::test {

// Tells when something happens, from now on. What is too late is told by a timer in the same event loop:
// where a busy machine lets the program stand, both come late, but in their order.
class StopWatch {
 public:
  StopWatch(std::function<bool()> happened, int most) : happened_(std::move(happened)) {
    end_.setSingleShot(true);
    end_.callOnTimeout([this] { late_ = !happened_(); });
    end_.start(most);
    clock_.start();
  }

  // Waits for it, and expects that it took so many milliseconds at least.
  void ExpectNotBefore(int least) const {
    EXPECT_TRUE(QTest::qWaitFor([this] { return late_ || happened_(); }, kLongest));
    EXPECT_FALSE(late_);
    EXPECT_GE(clock_.elapsed(), least);
  }

 private:
  static constexpr int kLongest = 60000;  // milliseconds

  std::function<bool()> happened_;
  QTimer end_;
  QElapsedTimer clock_;
  bool late_ = false;
};

}  // namespace zorik::test
