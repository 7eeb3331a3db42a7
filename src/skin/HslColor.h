#pragma once

#include <cstdint>

namespace zorik {

// A colour with red in the low byte. hue is in degrees, any number of them; saturation goes from 0, grey, to
// 256; lightness from 0 to 255, of which 127 leaves the hue as it is.
std::uint32_t HslColor(int hue, int saturation, int lightness);

}  // namespace zorik
