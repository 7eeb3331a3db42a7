#include "soundmaker/Wave.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

#include "common/LittleEndian.h"
#include "soundmaker/Arithmetic.h"

namespace zorik::sound {

namespace {

void PutSample(std::string& bytes, double sample) {
  const double scaled = std::floor(std::clamp(sample, -1.0, 1.0) * 32767 + 0.5);
  Put16(bytes, static_cast<std::uint32_t>(static_cast<std::int32_t>(scaled)) & 0xFFFFU);
}

}  // namespace

std::string WaveFile(const Stereo& stereo) {
  constexpr std::uint32_t kPcm = 1, kChannels = 2, kBits = 16, kFrame = kChannels * kBits / 8;
  const auto data = static_cast<std::uint32_t>(stereo.left.size()) * kFrame;
  std::string bytes = "RIFF";
  Put32(bytes, 36 + data);
  bytes += "WAVEfmt ";
  Put32(bytes, 16);
  Put16(bytes, kPcm);
  Put16(bytes, kChannels);
  Put32(bytes, kRate);
  Put32(bytes, kRate * kFrame);
  Put16(bytes, kFrame);
  Put16(bytes, kBits);
  bytes += "data";
  Put32(bytes, data);
  for (std::size_t i = 0; i < stereo.left.size(); ++i) {
    PutSample(bytes, stereo.left[i]);
    PutSample(bytes, stereo.right[i]);
  }
  return bytes;
}

}  // namespace zorik::sound
