#pragma once

#include <cstdint>
#include <string>

namespace zorik {

// Numbers as the heads of bitmaps and waves have them, lowest byte first.

inline void Put16(std::string& bytes, std::uint32_t value) {
  bytes += static_cast<char>(value & 255U);
  bytes += static_cast<char>(value >> 8U & 255U);
}

inline void Put32(std::string& bytes, std::uint32_t value) {
  Put16(bytes, value & 0xFFFFU);
  Put16(bytes, value >> 16U);
}

}  // namespace zorik
