#pragma once

#include <optional>
#include <string>
#include <utility>

#include "data/ResultFwd.h"

namespace zorik {

// The one way to fail: what may go wrong answers a Result, and who asks for it has to look at it. A bool
// answers a question, and an optional is empty where there is nothing; neither stands for a failure.

// What went wrong, in a sentence for people: what it is and where.
struct Failure {
  std::string message;
};

// What there is to say about an action that went well.
struct Done {};

// A value, or the reason why there is none. A reason of another kind than Failure is one with more to tell,
// and derived from that. No exception leaves this library.
template <class T, class Reason>
class [[nodiscard]] Result {
 public:
  Result(T value) : value_(std::move(value)) {}
  Result(Reason reason) : reason_(std::move(reason)) {}

  explicit operator bool() const { return value_.has_value(); }

  // Only when there is a value.
  const T& operator*() const { return value_.value(); }
  T& operator*() { return value_.value(); }
  const T* operator->() const { return &value_.value(); }
  T* operator->() { return &value_.value(); }

  // Only when there is none.
  const Reason& Why() const { return reason_; }
  const std::string& Message() const { return reason_.message; }

 private:
  std::optional<T> value_;
  Reason reason_{};
};

// Lets a failure go. Who calls this says beside it why nobody need be told.
template <class T, class Reason>
void Disregard(const Result<T, Reason>&) {}

}  // namespace zorik
