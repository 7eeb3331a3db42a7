#pragma once

#include <benchmark/benchmark.h>

#include <chrono>
#include <ctime>
#include <string>

namespace zorik {

// The processor time of this thread: other programs do not count.
inline std::chrono::nanoseconds Now() {
  timespec now{};
  clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
  return std::chrono::seconds(now.tv_sec) + std::chrono::nanoseconds(now.tv_nsec);
}

// Two pieces of work that are done in turn, so that a noisy machine slows both alike, and their times. The
// second is the unit in which the first is measured.
class InTurn {
 public:
  // Does each so many times.
  template <class Work, class Unit>
  void Measure(int times, Work&& work, Unit&& unit) {
    const auto begin = Now();
    for (int i = 0; i < times; ++i) {
      work();
      benchmark::ClobberMemory();
    }
    const auto middle = Now();
    for (int i = 0; i < times; ++i) {
      unit();
      benchmark::ClobberMemory();
    }
    units_ += Now() - middle;
    works_ += middle - begin;
    times_ += times;
  }

  // Counters of what one of each took, in microseconds, and of their ratio: NAME_in_UNITs.
  void Report(benchmark::State& state, const std::string& work, const std::string& unit) const {
    using Micro = std::chrono::duration<double, std::micro>;
    state.counters["us_a_" + work] = Micro(works_).count() / times_;
    state.counters["us_a_" + unit] = Micro(units_).count() / times_;
    state.counters[work + "_in_" + unit] = Micro(works_) / Micro(units_);
  }

 private:
  std::chrono::nanoseconds works_{}, units_{};
  double times_ = 0;
};

}  // namespace zorik
