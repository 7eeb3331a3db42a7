#pragma once

#include <signal.h>

#include <QSocketNotifier>
#include <array>
#include <functional>
#include <memory>

namespace zorik {

// The desktop, or somebody at a terminal, asks the program to end: SIGTERM, SIGHUP and SIGINT are told to the
// event loop, where anything may be done. Who asks twice ends it at once. What was to be ignored from the
// start on, as by nohup, stays so. There is one of it at a time.
class EndSignals {
 public:
  explicit EndSignals(std::function<void()> told);
  ~EndSignals();
  EndSignals(const EndSignals&) = delete;
  EndSignals& operator=(const EndSignals&) = delete;

 private:
  static constexpr std::array kSignals{SIGTERM, SIGHUP, SIGINT};

  static void Handle(int number);
  void Take();

  static inline int toLoop_ = -1;  // the only thing that a handler may use
  int fromHandler_ = -1;
  std::function<void()> told_;
  std::unique_ptr<QSocketNotifier> notifier_;
  std::array<struct sigaction, kSignals.size()> before_{};
};

}  // namespace zorik
