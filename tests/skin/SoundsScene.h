#pragma once

#include <gtest/gtest.h>

#include <map>
#include <set>
#include <string>

#include "data/Result.h"
#include "skin/Sounds.h"
#include "support/Waves.h"

namespace zorik::test {

using Names = std::set<std::string>;

// A folder of skins.
class SoundsTest : public testing::Test {
 protected:
  SoundsTest() { places_.SkinsPath = folder_.At("Skins"); }

  std::string Wave(const std::string& name, const Samples& samples = Tone(50, 500, 20000)) const {
    return folder_.Write("Skins/" + name, WaveFileOf(samples));
  }

  // The buffers in a state, by their files below the folder of skins.
  Names In(const DSound& device, DSound::State state) const {
    Names names;
    for (int handle = 0; handle < DSound::kMostBuffers; ++handle) {
      if (device.StateOf(handle) != state || device.FileOf(handle).empty()) continue;
      names.insert(device.FileOf(handle).substr(places_.SkinsPath.size() + 1));
    }
    return names;
  }

  SoundFolder folder_;
  SkinPlaces places_;
};

// Without a sound card: what is asked of the buffers.
class SoundsSilent : public SoundsTest {
 protected:
  void Load() { ASSERT_TRUE(sounds_.InicializaceZvuku(places_)); }
  Names Loaded() const { return In(device_, DSound::State::Loaded); }
  Names Playing() const { return In(device_, DSound::State::Playing); }

  // How often each file is picked, an empty name standing for none; every pick is stopped again.
  std::map<std::string, int> Picks(SoundId sound, int times) {
    std::map<std::string, int> picks;
    for (int i = 0; i < times; ++i) {
      sounds_.PZvuk(sound);
      const Names playing = Playing();
      EXPECT_LE(playing.size(), 1U);
      ++picks[playing.empty() ? "" : *playing.begin()];
      sounds_.StopAll();
    }
    return picks;
  }

  Environment driver_{"SDL_AUDIODRIVER", "dummy"};
  DSound device_;
  Sounds sounds_{device_, 1};
};

}  // namespace zorik::test
