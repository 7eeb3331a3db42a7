#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>
#include <vector>

// What the fuzz targets share.
namespace zorik::fuzz {

inline std::string_view TextOf(const std::uint8_t* data, std::size_t size) {
  return {reinterpret_cast<const char*>(data), size};
}

// Ends the program, so that the fuzzer keeps the input, when a promise is broken.
inline void Require(bool promise) {
  if (!promise) std::abort();
}

// The pieces of an input that holds several texts: they lie between bytes of code 30, so that line breaks can
// stand within them.
inline std::vector<std::string> PiecesOf(std::string_view input) {
  constexpr char kSeparator = 30;
  std::vector<std::string> pieces;
  for (std::size_t end = input.find(kSeparator); end != std::string_view::npos;
       end = input.find(kSeparator)) {
    pieces.emplace_back(input.substr(0, end));
    input.remove_prefix(end + 1);
  }
  pieces.emplace_back(input);
  return pieces;
}

}  // namespace zorik::fuzz
