#pragma once

#include <array>
#include <string_view>

namespace zorik {

// A scheme of colours in which a cave is drawn.
struct SchemeRow {
  std::string_view name;  // of its folder in a skin, too
  int hue;                // of the figures above the cave, in degrees
};
inline constexpr std::array<SchemeRow, 5> kSchemes{
    {{"Classic", 300}, {"Cold", 120}, {"Hot", 340}, {"Natural", 230}, {"Mystery", 60}}};

}  // namespace zorik
