#pragma once

#include <cstdint>
#include <span>
#include <string_view>

namespace zorik {

// What the value of a key of the skin's table must be: a colour, or a number of one of the other kinds.
enum class SkinKind : std::uint8_t { Colour, Place, Size, Window, Lines, Border };

struct SkinKey {
  std::string_view name;  // in lower case
  SkinKind kind;
};

// All keys that windows read as numbers or colours. A skin with a value among these that does not parse
// cannot be worn.
std::span<const SkinKey> CheckedSkinKeys();

// What a screen can show; -1, which is absent, is no matter of it.
struct SkinRange {
  int least;
  int most;
};
SkinRange RangeOf(SkinKind kind);

}  // namespace zorik
