#pragma once

#include <string>
#include <string_view>

#include "data/ResultFwd.h"

namespace zorik {

// What the last call answers.
std::string& Answer();

// What a call that may fail has come to: bytes, or why there are none. Answers what the call shall answer.
int AnswerWith(Result<std::string> outcome);

// What a page hands over: bytes with their number.
inline std::string_view Bytes(const char* bytes, int size) {
  return {bytes, static_cast<std::size_t>(size)};
}

}  // namespace zorik
