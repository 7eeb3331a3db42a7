#include <gtest/gtest.h>

#include "soundmaker/Wave.h"

namespace zorik::sound {
namespace {

TEST(WaveFile, IsAHeadAndTheSamplesOfBothEarsInTurn) {
  const std::string bytes = WaveFile({{0.5, -1}, {0, 2}});
  const unsigned char expected[] = {'R',  'I',  'F', 'F', 44,   0,    0,    0,
                                    'W',  'A',  'V', 'E',  // 44 bytes follow
                                    'f',  'm',  't', ' ', 16,   0,    0,    0,
                                    1,    0,    2,   0,  // PCM, two channels
                                    0x22, 0x56, 0,   0,   0x88, 0x58, 1,    0,
                                    4,    0,    16,  0,  // 22050 and 88200 a second, 4 bytes, 16 bits
                                    'd',  'a',  't', 'a', 8,    0,    0,    0,      // 8 bytes follow
                                    0x00, 0x40, 0,   0,   0x01, 0x80, 0xFF, 0x7F};  // 16384, 0, -32767, 32767
  EXPECT_EQ(bytes, std::string(std::begin(expected), std::end(expected)));
}

}  // namespace
}  // namespace zorik::sound
