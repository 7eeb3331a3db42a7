#include <gtest/gtest.h>

#include <cstdint>
#include <filesystem>
#include <map>
#include <string>
#include <vector>

#include "SoundsScene.h"
#include "data/Result.h"

// Which recordings the sounds have, and which of them is picked.
namespace zorik {
namespace {

namespace fs = std::filesystem;
using State = DSound::State;
using test::Environment;
using test::Names;
using test::SoundsSilent;
using test::SoundsTest;
using test::WaveFileOf;

// All of them, in the order of their numbers.
std::vector<SoundId> AllSounds() {
  std::vector<SoundId> sounds;
  for (std::size_t place = 0; place < kSoundCount; ++place) sounds.push_back(static_cast<SoundId>(place));
  return sounds;
}

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
  ASSERT_EQ(stems.size(), kSoundCount);
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
  ASSERT_EQ(order.size(), kSoundCount);
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

}  // namespace
}  // namespace zorik
