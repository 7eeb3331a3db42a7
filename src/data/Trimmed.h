#pragma once

#include <string_view>

namespace zorik {

// Text without its outer blanks; tabs stay.
inline std::string_view Trimmed(std::string_view text) {
  const std::size_t start = text.find_first_not_of(' ');
  if (start == std::string_view::npos) return {};
  return text.substr(start, text.find_last_not_of(' ') - start + 1);
}

}  // namespace zorik
