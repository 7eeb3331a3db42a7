#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "data/Result.h"
#include "skin/Sounds.h"
#include "support/Waves.h"

namespace zorik {
namespace {

namespace fs = std::filesystem;
using State = DSound::State;
using test::Environment;
using test::Samples;
using test::SoundFolder;
using test::SoundOnDisk;
using test::Tone;
using test::WaveFileOf;

using Names = std::set<std::string>;

// All of them, in the order of their numbers.
std::vector<SoundId> AllSounds() {
  std::vector<SoundId> sounds;
  for (std::size_t place = 0; place < kSoundCount; ++place) sounds.push_back(static_cast<SoundId>(place));
  return sounds;
}

// A folder of skins.
class SoundsTest : public testing::Test {
 protected:
  SoundsTest() { places_.SkinsPath = folder_.At("Skins"); }

  std::string Wave(const std::string& name, const Samples& samples = Tone(50, 500, 20000)) const {
    return folder_.Write("Skins/" + name, WaveFileOf(samples));
  }

  // The buffers in a state, by their files below the folder of skins.
  Names In(const DSound& device, State state) const {
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
  Names Loaded() const { return In(device_, State::Loaded); }
  Names Playing() const { return In(device_, State::Playing); }

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

class SoundsHeard : public SoundsTest {
 protected:
  SoundOnDisk disk_{folder_};
};

TEST_F(SoundsSilent, WithoutAFileHaveACountOfZeroAndStaySilent) {
  Load();
  for (const SoundId sound : AllSounds()) {
    EXPECT_EQ(sounds_.SoundCount(sound), 0);
    EXPECT_EQ(Picks(sound, 5), (std::map<std::string, int>{{"", 5}}));
    sounds_.PZvukStop(sound);
  }
}

TEST_F(SoundsSilent, WithTwoFilesInTheSkinLeaveTheDefaultsAlone) {
  places_.Skin = "Mine";
  Wave("Mine/Sound/dirt.wav");
  Wave("Mine/Sound/dirt2.wav");
  Wave("Default/Sound/dirt.wav");
  Wave("Default/Sound/dirt3.wav");
  Load();
  EXPECT_EQ(sounds_.SoundCount(SoundId::Dirt), 2);
  EXPECT_EQ(Loaded(), (Names{"Mine/Sound/dirt.wav", "Mine/Sound/dirt2.wav"}));
}

TEST_F(SoundsSilent, WithTwoFilesPlayEachAboutHalfTheTime) {
  Wave("Default/Sound/dirt.wav");
  Wave("Default/Sound/dirt2.wav");
  Load();
  const auto picks = Picks(SoundId::Dirt, 400);
  ASSERT_EQ(picks.size(), 2U);
  for (const auto& [file, times] : picks) EXPECT_NEAR(times, 200, 50) << file;
}

TEST_F(SoundsSilent, WithASingleFileInTheSkinTakeTheDefaultsInItsPlaceAndCountOn) {
  places_.Skin = "Mine";
  Wave("Mine/Sound/dirt.wav");
  Wave("Default/Sound/dirt.wav");
  Wave("Default/Sound/dirt2.wav");
  Load();
  EXPECT_EQ(sounds_.SoundCount(SoundId::Dirt), 3);
  EXPECT_EQ(Loaded(), (Names{"Default/Sound/dirt.wav", "Default/Sound/dirt2.wav"}));
  const auto picks = Picks(SoundId::Dirt, 300);
  ASSERT_EQ(picks.size(), 3U);
  EXPECT_NEAR(picks.at(""), 100, 40) << "the third of three has no file";
}

TEST_F(SoundsSilent, WithASingleLaterFileInTheSkinLoseItToTheDefaults) {
  places_.Skin = "Mine";
  Wave("Mine/Sound/dirt3.wav");
  Wave("Default/Sound/dirt.wav");
  Load();
  EXPECT_EQ(sounds_.SoundCount(SoundId::Dirt), 2);
  EXPECT_EQ(Loaded(), (Names{"Default/Sound/dirt.wav"}));
}

TEST_F(SoundsSilent, WithASingleFileInTheDefaultSkinCountItTwiceAndAreSilentHalfTheTime) {
  Wave("Default/Sound/dirt.wav");
  Load();
  EXPECT_EQ(sounds_.SoundCount(SoundId::Dirt), 2);
  const auto picks = Picks(SoundId::Dirt, 400);
  ASSERT_EQ(picks.size(), 2U);
  EXPECT_NEAR(picks.at(""), 200, 50);
}

TEST_F(SoundsSilent, CountTenWhenNineJoinASingleOneAndTheTenthIsSilent) {
  places_.Skin = "Mine";
  Wave("Mine/Sound/dirt.wav");
  Wave("Default/Sound/dirt.wav");
  for (int v = 2; v <= 9; ++v) Wave("Default/Sound/dirt" + std::to_string(v) + ".wav");
  Wave("Default/Sound/dirt10.wav");
  Load();
  EXPECT_EQ(sounds_.SoundCount(SoundId::Dirt), 10);
  EXPECT_EQ(Loaded().size(), 9U);
  const auto picks = Picks(SoundId::Dirt, 500);
  EXPECT_EQ(picks.size(), 10U);
  EXPECT_GT(picks.at(""), 0);
}

TEST_F(SoundsSilent, WithAGapInTheNumbersAreSilentThereAndNeverReachTheLast) {
  Wave("Default/Sound/dirt.wav");
  Wave("Default/Sound/dirt3.wav");
  Load();
  EXPECT_EQ(sounds_.SoundCount(SoundId::Dirt), 2);
  const auto picks = Picks(SoundId::Dirt, 400);
  ASSERT_EQ(picks.size(), 2U);
  EXPECT_NEAR(picks.at(""), 200, 50);
  EXPECT_NEAR(picks.at("Default/Sound/dirt.wav"), 200, 50);
}

TEST_F(SoundsSilent, CountAMidiFileAsAVariantThatIsSilent) {
  folder_.Write("Skins/Default/Sound/dirt.mid", "MThd");
  Wave("Default/Sound/dirt2.wav");
  Load();
  EXPECT_EQ(sounds_.SoundCount(SoundId::Dirt), 2);
  const auto picks = Picks(SoundId::Dirt, 400);
  ASSERT_EQ(picks.size(), 2U);
  EXPECT_NEAR(picks.at(""), 200, 50);
}

TEST_F(SoundsSilent, TakeAWaveBeforeAMidiFileOfTheSameName) {
  folder_.Write("Skins/Default/Sound/dirt.mid", "MThd");
  Wave("Default/Sound/dirt.wav");
  Wave("Default/Sound/dirt2.wav");
  Load();
  EXPECT_EQ(sounds_.SoundCount(SoundId::Dirt), 2);
  EXPECT_EQ(Loaded(), (Names{"Default/Sound/dirt.wav", "Default/Sound/dirt2.wav"}));
}

TEST_F(SoundsSilent, CountABrokenFileAsAVariantThatIsSilent) {
  folder_.Write("Skins/Default/Sound/dirt.wav", "RIFF and no more");
  Wave("Default/Sound/dirt2.wav");
  Load();
  EXPECT_EQ(sounds_.SoundCount(SoundId::Dirt), 2);
  EXPECT_EQ(Picks(SoundId::Dirt, 100).size(), 2U);
}

TEST_F(SoundsSilent, CareForNoLetterCaseAndForNoFolderOfThatName) {
  Wave("default/SOUND/Dirt.WAV");
  Wave("default/SOUND/DIRT2.wav");
  fs::create_directories(folder_.At("Skins/default/SOUND/dirt3.wav"));
  Load();
  EXPECT_EQ(sounds_.SoundCount(SoundId::Dirt), 2);
  EXPECT_EQ(Loaded(), (Names{"default/SOUND/Dirt.WAV", "default/SOUND/DIRT2.wav"}));
}

TEST_F(SoundsSilent, TakeTheNameInLowerCaseBeforeOthers) {
  Wave("Default/Sound/Dirt.wav");
  Wave("Default/Sound/dirt.wav");
  Wave("Default/Sound/dirt.WAV");
  Wave("Default/Sound/DIRT2.wav");
  Wave("Default/Sound/Dirt2.wav");
  Load();
  EXPECT_EQ(Loaded(), (Names{"Default/Sound/dirt.wav", "Default/Sound/DIRT2.wav"}));
}

TEST_F(SoundsSilent, HaveTheirGivenStems) {
  const std::vector<std::string> stems{
      "dirt",     "fallgem",   "collectgem", "boulder", "boulderpush", "explosion", "boxpush",   "dog",
      "exitopen", "magicwall", "back",       "sensor",  "asuffocate",  "amoeba",    "sensorout", "adeath"};
  for (const std::string& stem : stems) {
    Wave("Default/Sound/" + stem + ".wav");
    Wave("Default/Sound/" + stem + "2.wav");
  }
  Load();
  for (const SoundId sound : AllSounds()) {
    const std::string path = "Default/Sound/" + stems[static_cast<std::size_t>(sound)];
    const auto picks = Picks(sound, 30);
    EXPECT_EQ(picks.size(), 2U);
    EXPECT_TRUE(picks.contains(path + ".wav") && picks.contains(path + "2.wav")) << path;
  }
}

TEST_F(SoundsSilent, AreLoadedInTheGivenOrder) {
  const std::vector<std::string> order{
      "dirt", "fallgem", "collectgem", "boulder",    "boulderpush", "explosion", "boxpush", "exitopen",
      "back", "dog",     "sensor",     "asuffocate", "amoeba",      "sensorout", "adeath",  "magicwall"};
  for (const std::string& stem : order) {
    Wave("Default/Sound/" + stem + ".wav");
    Wave("Default/Sound/" + stem + "2.wav");
  }
  Load();
  for (int handle = 0; handle < 2 * static_cast<int>(kSoundCount); ++handle) {
    const std::string& stem = order[static_cast<std::size_t>(handle / 2)];
    EXPECT_EQ(device_.FileOf(handle),
              places_.SkinsPath + "/Default/Sound/" + stem + (handle % 2 == 0 ? "" : "2") + ".wav");
  }
}

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

TEST_F(SoundsSilent, ThatPlayGoOnWhenTheSameSkinIsLoadedAgain) {
  Wave("Default/Sound/amoeba.wav");
  Wave("Default/Sound/amoeba2.wav");
  Load();
  sounds_.PZvuk(SoundId::Amoeba);
  const Names playing = Playing();
  ASSERT_EQ(playing.size(), 1U);
  Load();
  EXPECT_EQ(Playing(), playing);
  EXPECT_EQ(sounds_.SoundCount(SoundId::Amoeba), 2);
}

TEST_F(SoundsSilent, OfAnotherSkinReplaceThoseOfTheOld) {
  for (const char* skin : {"Default", "Mine"}) {
    Wave(std::string(skin) + "/Sound/amoeba.wav");
    Wave(std::string(skin) + "/Sound/amoeba2.wav");
  }
  Wave("Default/Sound/amoeba3.wav");
  Load();
  sounds_.PZvuk(SoundId::Amoeba);
  places_.Skin = "Mine";
  Load();
  EXPECT_EQ(Playing(), Names());
  EXPECT_EQ(Loaded(), (Names{"Mine/Sound/amoeba.wav", "Mine/Sound/amoeba2.wav"}));
}

TEST_F(SoundsSilent, WhoseFilesAreGoneAreForgotten) {
  const std::string path = Wave("Default/Sound/dirt.wav");
  Wave("Default/Sound/dirt2.wav");
  Load();
  fs::remove_all(folder_.At("Skins"));
  Load();
  EXPECT_EQ(sounds_.SoundCount(SoundId::Dirt), 0);
  EXPECT_EQ(Loaded(), Names());
}

TEST_F(SoundsSilent, AreThePlayersOwnFileByFileAndElseTheInstallations) {
  places_.Skin = "Mine";
  places_.ShippedSkins = places_.SkinsPath + "/shipped";
  Wave("shipped/Mine/Sound/dirt.wav");
  Wave("shipped/Mine/Sound/dirt2.wav");
  Wave("Mine/Sound/dirt.wav");
  Wave("shipped/Default/Sound/dirt3.wav");
  Wave("Default/Sound/fallgem.wav");
  Wave("shipped/Default/Sound/fallgem2.wav");
  const std::string seconds = Wave("shipped/Mine/Sound/O5.wav");
  Wave("Default/Sound/O5.wav");
  Load();
  EXPECT_EQ(Loaded(), (Names{"Mine/Sound/dirt.wav", "shipped/Mine/Sound/dirt2.wav",
                             "Default/Sound/fallgem.wav", "shipped/Default/Sound/fallgem2.wav"}));
  EXPECT_EQ(sounds_.PZvukTime(5), seconds);
}

TEST_F(SoundsSilent, MayBeLongWhereTheySoundOnAndOn) {
  const std::string minute = WaveFileOf(std::string(60 * 8000, 'a'), {8000, 1, 8});
  for (const char* const stem : {"dirt", "amoeba", "magicwall"})
    folder_.Write("Skins/Default/Sound/" + std::string(stem) + ".wav", minute);
  Load();
  EXPECT_EQ(Loaded(), (Names{"Default/Sound/amoeba.wav", "Default/Sound/magicwall.wav"}));
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

TEST_F(SoundsTest, WithoutAnyDriverFailInTheGivenWordsAndStaySilent) {
  Wave("Default/Sound/dirt.wav");
  DSound device({"nonsense"});
  Sounds sounds(device);
  const Result<Done> opened = sounds.InicializaceZvuku(places_);
  ASSERT_FALSE(opened);
  EXPECT_EQ(opened.Message(), "Unable to initialize DirectSound.");
  sounds.PZvuk(SoundId::Dirt);
  sounds.PZvukStop(SoundId::Dirt);
  sounds.PauseAll();
}

TEST_F(SoundsTest, OfOneSeedArePickedAlike) {
  const Environment dummy("SDL_AUDIODRIVER", "dummy");
  for (const char* name : {"dirt", "dirt2", "dirt3"}) Wave("Default/Sound/" + std::string(name) + ".wav");
  std::vector<std::vector<Names>> runs;
  for (const std::uint64_t seed : {7U, 7U, 8U}) {
    DSound device;
    Sounds sounds(device, seed);
    ASSERT_TRUE(sounds.InicializaceZvuku(places_));
    runs.emplace_back();
    for (int i = 0; i < 30; ++i) {
      sounds.PZvuk(SoundId::Dirt);
      runs.back().push_back(In(device, State::Playing));
      sounds.StopAll();
    }
  }
  EXPECT_EQ(runs[0], runs[1]);
  EXPECT_NE(runs[0], runs[2]);
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
