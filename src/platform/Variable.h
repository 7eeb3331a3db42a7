#pragma once

#include <cstdlib>
#include <string>

namespace zorik {

// What the environment says under a name; empty where it says nothing.
inline std::string Variable(const char* name) {
  const char* const value = std::getenv(name);
  return value == nullptr ? std::string() : std::string(value);
}

}  // namespace zorik
