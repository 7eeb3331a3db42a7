#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "SoundsScene.h"

// What is heard of the sounds as they are switched, stopped and paused.
namespace zorik {
namespace {

using State = DSound::State;
using test::Names;
using test::Samples;
using test::SoundOnDisk;
using test::SoundsSilent;
using test::SoundsTest;

class SoundsHeard : public SoundsTest {
 protected:
  SoundOnDisk disk_{folder_};
};

TEST_F(SoundsSilent, SwitchedOffAreLoadedButDoNotPlay) {
  Wave("Default/Sound/dirt.wav");
  Wave("Default/Sound/dirt2.wav");
  sounds_.SetSound(false);
  Load();
  EXPECT_EQ(sounds_.SoundCount(SoundId::Dirt), 2);
  EXPECT_EQ(Picks(SoundId::Dirt, 20), (std::map<std::string, int>{{"", 20}}));
  sounds_.SetSound(true);
  EXPECT_EQ(Picks(SoundId::Dirt, 20).size(), 2U);
}

TEST_F(SoundsSilent, SwitchedOffCanStillBeStopped) {
  Wave("Default/Sound/amoeba.wav");
  Wave("Default/Sound/amoeba2.wav");
  Load();
  sounds_.PZvuk(SoundId::Amoeba);
  ASSERT_EQ(Playing().size(), 1U);
  sounds_.SetSound(false);
  sounds_.PZvukStop(SoundId::Amoeba);
  EXPECT_EQ(Playing(), Names());
}

TEST_F(SoundsSilent, ThatGoOnAndOnAreMutedByThemselves) {
  for (const char* name : {"amoeba", "amoeba2", "dirt", "dirt2"})
    Wave("Default/Sound/" + std::string(name) + ".wav");
  Load();
  sounds_.PZvuk(SoundId::Amoeba);
  sounds_.PZvuk(SoundId::Dirt);
  ASSERT_EQ(Playing().size(), 2U);
  sounds_.SwitchLoops(false);
  ASSERT_EQ(Playing().size(), 1U);
  EXPECT_EQ(Playing().begin()->substr(0, 18), "Default/Sound/dirt");
  sounds_.StopAll();
  sounds_.PZvuk(SoundId::Amoeba);
  EXPECT_EQ(Playing(), Names()) << "nor do they start";
}

TEST_F(SoundsSilent, ThatWereMutedAreHeardAgainWhereTheyStillGoOn) {
  for (const char* name : {"amoeba", "amoeba2", "magicwall", "magicwall2"})
    Wave("Default/Sound/" + std::string(name) + ".wav");
  Load();
  sounds_.SetLoops(false);
  sounds_.PZvuk(SoundId::Amoeba);
  sounds_.PZvuk(SoundId::MagicWall);
  sounds_.PZvukStop(SoundId::MagicWall);
  sounds_.SwitchLoops(true);
  ASSERT_EQ(Playing().size(), 1U);
  EXPECT_EQ(Playing().begin()->substr(0, 20), "Default/Sound/amoeba");
  sounds_.SwitchLoops(true);
  EXPECT_EQ(Playing().size(), 1U) << "it goes on";
}

TEST_F(SoundsSilent, ThatAreMutedStaySoWhenAllOthersAreSwitchedOn) {
  for (const char* name : {"amoeba", "amoeba2"}) Wave("Default/Sound/" + std::string(name) + ".wav");
  Load();
  sounds_.SetSound(false);
  sounds_.PZvuk(SoundId::Amoeba);
  sounds_.SwitchLoops(false);
  sounds_.Switch(true);
  EXPECT_EQ(Playing(), Names());
  sounds_.Switch(false);
  sounds_.SwitchLoops(true);
  EXPECT_EQ(Playing(), Names()) << "all are off";
  sounds_.Switch(true);
  EXPECT_EQ(Playing().size(), 1U);
}

TEST_F(SoundsSilent, ThatGoOnAreHeardAgainWhenSoundIsSwitchedOn) {
  for (const char* name : {"amoeba", "amoeba2", "magicwall", "magicwall2", "dirt", "dirt2"})
    Wave("Default/Sound/" + std::string(name) + ".wav");
  sounds_.SetSound(false);
  Load();
  sounds_.PZvuk(SoundId::Amoeba);
  sounds_.PZvuk(SoundId::Dirt);
  ASSERT_EQ(Playing(), Names());
  sounds_.Switch(true);
  EXPECT_EQ(Playing().size(), 1U) << "a sound that is short is over";
  sounds_.PZvuk(SoundId::MagicWall);
  ASSERT_EQ(Playing().size(), 2U);
  sounds_.Switch(false);
  EXPECT_EQ(Playing(), Names());
  sounds_.PZvukStop(SoundId::Amoeba);
  sounds_.Switch(true);
  EXPECT_EQ(Playing().size(), 1U) << "what was stopped meanwhile stays so";
  sounds_.StopAll();
  sounds_.Switch(false);
  sounds_.Switch(true);
  EXPECT_EQ(Playing(), Names());
}

TEST_F(SoundsSilent, AreStoppedInAllTheirVariantsAndNoOthers) {
  for (const char* name : {"amoeba", "amoeba2", "amoeba3", "dirt", "dirt2"})
    Wave("Default/Sound/" + std::string(name) + ".wav");
  Load();
  for (int i = 0; i < 50; ++i) sounds_.PZvuk(SoundId::Amoeba);
  ASSERT_EQ(Playing().size(), 3U);
  sounds_.PZvuk(SoundId::Dirt);
  ASSERT_EQ(Playing().size(), 4U);
  sounds_.PZvukStop(SoundId::Amoeba);
  EXPECT_EQ(Playing().size(), 1U);
  sounds_.StopAll();
  EXPECT_EQ(Playing(), Names());
}

TEST_F(SoundsSilent, MakeTheNameForTheLastSecondsAndPlayNothing) {
  places_.Skin = "Mine";
  const std::string own = Wave("Mine/Sound/O7.wav");
  const std::string other = Wave("Default/Sound/O10.wav");
  Load();
  EXPECT_EQ(sounds_.PZvukTime(7), own);
  EXPECT_EQ(sounds_.PZvukTime(10), other);
  EXPECT_EQ(sounds_.PZvukTime(3), places_.SkinsPath + "/Default/Sound/O3.wav") << "it need not be there";
  EXPECT_EQ(Playing(), Names());
  EXPECT_EQ(Loaded(), Names());
  sounds_.SetSound(false);
  EXPECT_EQ(sounds_.PZvukTime(7), "");
}

TEST_F(SoundsSilent, PauseTogetherAndGoOnTogether) {
  Wave("Default/Sound/amoeba.wav");
  Wave("Default/Sound/amoeba2.wav");
  Load();
  sounds_.PZvuk(SoundId::Amoeba);
  const Names playing = Playing();
  sounds_.PauseAll();
  EXPECT_EQ(In(device_, State::Paused), playing);
  sounds_.ResumeAll();
  EXPECT_EQ(Playing(), playing);
}

TEST_F(SoundsHeard, SwitchedOffAreSilence) {
  Wave("Default/Sound/dirt.wav");
  Wave("Default/Sound/dirt2.wav");
  Samples heard;
  {
    DSound device;
    Sounds sounds(device);
    sounds.SetSound(false);
    ASSERT_TRUE(sounds.InicializaceZvuku(places_));
    for (int i = 0; i < 20; ++i) sounds.PZvuk(SoundId::Dirt);
    ASSERT_TRUE(disk_.Await(3000));
  }
  heard = disk_.Heard();
  ASSERT_GT(heard.size(), 4000U);
  EXPECT_EQ(std::count(heard.begin(), heard.end(), 0), static_cast<std::ptrdiff_t>(heard.size()));
}

TEST_F(SoundsHeard, OfMagicWallAmoebaAndBackgroundLoopAndNoOther) {
  const std::map<SoundId, std::string> stems{{SoundId::Dirt, "dirt"},
                                             {SoundId::Explosion, "explosion"},
                                             {SoundId::MagicWall, "magicwall"},
                                             {SoundId::Back, "back"},
                                             {SoundId::Amoeba, "amoeba"}};
  for (const auto& [sound, stem] : stems) {
    const Samples steady(2 * 1000, 2000);
    Wave("Default/Sound/" + stem + ".wav", steady);
    Wave("Default/Sound/" + stem + "2.wav", steady);
  }
  for (const auto& [sound, stem] : stems) {
    SCOPED_TRACE(stem);
    {
      DSound device;
      Sounds sounds(device);
      ASSERT_TRUE(sounds.InicializaceZvuku(places_));
      sounds.PZvuk(sound);
      ASSERT_TRUE(disk_.Await(5000));
    }
    const std::vector<int> heard = disk_.HeardLeft();
    const auto sounding = std::count(heard.begin(), heard.end(), 2000);
    const bool loops = sound == SoundId::MagicWall || sound == SoundId::Back || sound == SoundId::Amoeba;
    EXPECT_TRUE(loops ? sounding > 2500 : sounding == 1000) << sounding;
  }
}

// Half the way to the left is a quarter as loud.
TEST_F(SoundsHeard, AreAsLoudAsTheVolumeSays) {
  for (const char* name : {"amoeba", "amoeba2"})
    Wave("Default/Sound/" + std::string(name) + ".wav", Samples(2 * 1000, 2000));
  for (const auto& [volume, loudness] : {std::pair(10, 2000), {5, 500}, {0, 0}, {99, 2000}, {-1, 0}}) {
    {
      DSound device;
      Sounds sounds(device);
      ASSERT_TRUE(sounds.InicializaceZvuku(places_));
      sounds.SetVolume(volume);
      sounds.PZvuk(SoundId::Amoeba);
      ASSERT_TRUE(disk_.Await(5000));
    }
    const std::vector<int> heard = disk_.HeardLeft();
    const auto so = std::count_if(heard.begin(), heard.end(),
                                  [wanted = loudness](int sample) { return std::abs(sample - wanted) < 2; });
    EXPECT_GT(so, 2500) << volume;
  }
}

}  // namespace
}  // namespace zorik
