#pragma once

#include <gtest/gtest.h>

#include <string>

#include "data/Result.h"
#include "platform/DSound.h"
#include "support/Waves.h"

namespace zorik::test {

// A folder for the files of sounds.
class WaveFolder : public testing::Test {
 protected:
  std::string Wave(const std::string& name, const Samples& samples) const {
    return folder_.Write(name, WaveFileOf(samples));
  }

  SoundFolder folder_;
};

// Sound without a sound card.
class SilentSound : public WaveFolder {
 protected:
  SilentSound() { EXPECT_TRUE(sound_.DSInit()); }

  Environment driver_{"SDL_AUDIODRIVER", "dummy"};
  DSound sound_;
};

}  // namespace zorik::test
