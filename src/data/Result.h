#pragma once

#include <string>
#include <utility>
#include <variant>

namespace zorik {

// What went wrong, in a sentence for people: what it is and where.
struct Failure {
  std::string message;
};

// What there is to say about an action that went well.
struct Done {};

// A value, or the reason why there is none. No exception leaves this library.
template <class T>
class Result {
 public:
  Result(T value) : content_(std::move(value)) {}
  Result(Failure failure) : content_(std::move(failure)) {}

  explicit operator bool() const { return std::holds_alternative<T>(content_); }

  // Only when there is a value.
  const T& operator*() const { return std::get<T>(content_); }
  T& operator*() { return std::get<T>(content_); }
  const T* operator->() const { return &std::get<T>(content_); }
  T* operator->() { return &std::get<T>(content_); }

  // Only when there is none.
  const std::string& Message() const { return std::get<Failure>(content_).message; }

 private:
  std::variant<T, Failure> content_;
};

}  // namespace zorik
