#include "platform/EndSignals.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstddef>

namespace zorik {

// Without a pipe the signals do what they always do.
EndSignals::EndSignals(std::function<void()> told) : told_(std::move(told)) {
  std::array<int, 2> ends{};
  if (pipe2(ends.data(), O_CLOEXEC | O_NONBLOCK) != 0) return;
  fromHandler_ = ends[0];
  toLoop_ = ends[1];
  notifier_ = std::make_unique<QSocketNotifier>(fromHandler_, QSocketNotifier::Read);
  QObject::connect(notifier_.get(), &QSocketNotifier::activated, [this] { Take(); });
  struct sigaction action = {};
  action.sa_handler = &EndSignals::Handle;
  action.sa_flags = SA_RESTART | static_cast<int>(SA_RESETHAND);
  for (std::size_t i = 0; i < kSignals.size(); ++i) {
    sigaction(kSignals[i], nullptr, &before_[i]);
    if (before_[i].sa_handler != SIG_IGN) sigaction(kSignals[i], &action, nullptr);
  }
}

EndSignals::~EndSignals() {
  if (!notifier_) return;
  for (std::size_t i = 0; i < kSignals.size(); ++i) sigaction(kSignals[i], &before_[i], nullptr);
  notifier_.reset();
  close(toLoop_);
  close(fromHandler_);
  toLoop_ = -1;
}

void EndSignals::Handle(int /*number*/) {
  const int error = errno;
  constexpr char kWord = 'e';
  static_cast<void>(!write(toLoop_, &kWord, 1));  // a full pipe has told it already
  errno = error;
}

void EndSignals::Take() {
  char word = 0;
  while (read(fromHandler_, &word, 1) > 0) {
  }
  told_();
}

}  // namespace zorik
