#include "skin/HslColor.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>

namespace zorik {
namespace {

constexpr int kCircle = 360;
constexpr int kSector = 60;
constexpr double kFull = 255;

using Channels = std::array<double, 3>;  // red, green, blue

// At the start of each sector one or two channels are full; within it one of them rises or falls.
Channels PureHue(int hue) {
  const double rising = kFull * (hue % kSector) / kSector;
  const double falling = kFull - rising;
  const std::array<Channels, kCircle / kSector> sectors{{{kFull, rising, 0},
                                                         {falling, kFull, 0},
                                                         {0, kFull, rising},
                                                         {0, falling, kFull},
                                                         {rising, 0, kFull},
                                                         {kFull, 0, falling}}};
  return sectors[static_cast<std::size_t>(hue / kSector)];
}

std::uint32_t Limited(double channel) {
  return static_cast<std::uint32_t>(std::lround(std::clamp(channel, 0.0, kFull)));
}

}  // namespace

std::uint32_t HslColor(int hue, int saturation, int lightness) {
  Channels channels = PureHue((hue % kCircle + kCircle) % kCircle);
  for (double& channel : channels) channel += (lightness - 127) * 2;
  const double average = (channels[0] + channels[1] + channels[2]) / 3;
  for (double& channel : channels) channel = average + (channel - average) * saturation / 256;
  return Limited(channels[0]) | Limited(channels[1]) << 8U | Limited(channels[2]) << 16U;
}

}  // namespace zorik
