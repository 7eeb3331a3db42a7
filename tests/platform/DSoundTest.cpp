#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <memory>
#include <thread>

#include "data/Result.h"
#include "platform/DSound.h"
#include "platform/SilentSound.h"

namespace zorik {
namespace {

namespace fs = std::filesystem;
using State = DSound::State;
using test::Environment;
using test::Ruler;
using test::Samples;
using test::SoundOnDisk;
using test::Tone;
using test::WaveFileOf;

constexpr std::size_t kSink = 110;  // frames in which what is broken off sinks

using DSoundTest = test::WaveFolder;

// What is asked of the buffers.
using DSoundSlots = test::SilentSound;

// What is heard, taken from the file that the driver writes.
class DSoundHeard : public DSoundTest {
 protected:
  DSoundHeard() { EXPECT_TRUE(sound_->DSInit()); }

  int Load(const Samples& samples, bool looping = false) {
    return sound_->DSLoad(Wave("wave" + std::to_string(waves_++) + ".wav", samples), looping);
  }

  void Await(std::size_t frames) const { ASSERT_TRUE(disk_.Await(frames)); }

  // Closes the sound, so that all is in the file.
  std::vector<int> Heard() {
    sound_.reset();
    return disk_.HeardLeft();
  }

  SoundOnDisk disk_{folder_};
  std::unique_ptr<DSound> sound_ = std::make_unique<DSound>();
  int waves_ = 0;
};

// The frame from which on something is heard.
std::size_t Onset(const std::vector<int>& heard) {
  const auto first = std::find_if(heard.begin(), heard.end(), [](int sample) { return sample != 0; });
  return static_cast<std::size_t>(first - heard.begin());
}

// The first frame at which a ruler falls back.
std::size_t Fall(const std::vector<int>& heard) {
  const auto falls = std::adjacent_find(heard.begin(), heard.end(), [](int a, int b) { return b < a; });
  return static_cast<std::size_t>(falls - heard.begin()) + 1;
}

TEST_F(DSoundTest, WithoutASoundCardRunsInSilence) {
  const Environment none("SDL_AUDIODRIVER", "nonsense");
  DSound sound;
  ASSERT_TRUE(sound.DSInit());
  EXPECT_EQ(sound.Driver(), "dummy");
  const int handle = sound.DSLoad(Wave("a.wav", Tone(50, 500, 20000)), false);
  sound.DSPlay(handle);
  EXPECT_EQ(sound.StateOf(handle), State::Playing);
}

TEST_F(DSoundTest, LeavesTheChoiceOfTheDriverToTheSystemAfterwards) {
  const Environment dummy("SDL_AUDIODRIVER", "dummy");
  {
    DSound silent({"nonsense", "dummy"});
    ASSERT_TRUE(silent.DSInit());
  }
  const Environment none("SDL_AUDIODRIVER", "nonsense");
  EXPECT_FALSE(DSound({""}).DSInit());
}

TEST_F(DSoundTest, WithoutAnyDriverSaysSoInTheGivenWordsAndLoadsNothing) {
  DSound sound({"nonsense", "rubbish"});
  const Result<Done> opened = sound.DSInit();
  ASSERT_FALSE(opened);
  EXPECT_EQ(opened.Message(), "Unable to initialize DirectSound.");
  EXPECT_EQ(sound.Driver(), "");
  const int handle = sound.DSLoad(Wave("a.wav", Tone(50, 500, 20000)), false);
  EXPECT_EQ(handle, DSound::kNoBuffer);
  EXPECT_EQ(sound.DSReload(handle, folder_.At("a.wav"), false), DSound::kNoBuffer);
  sound.DSPlay(handle);
  sound.DSPlay(0);
  sound.DSPauseAll();
  sound.DSFreeAll();
  EXPECT_EQ(sound.StateOf(0), State::Empty);
}

TEST_F(DSoundSlots, IsOpenedOnce) {
  const int handle = sound_.DSLoad(Wave("a.wav", Tone(50, 500, 20000)), true);
  sound_.DSPlay(handle);
  ASSERT_TRUE(sound_.DSInit());
  EXPECT_EQ(sound_.StateOf(handle), State::Playing);
}

TEST_F(DSoundSlots, GoThroughTheirStates) {
  const int handle = sound_.DSLoad(Wave("a.wav", Tone(50, 500, 20000)), true);
  ASSERT_NE(handle, DSound::kNoBuffer);
  EXPECT_EQ(NameOf(sound_.StateOf(handle)), "Stopped");
  sound_.DSPlay(handle);
  EXPECT_EQ(NameOf(sound_.StateOf(handle)), "playing");
  sound_.DSPauseAll();
  EXPECT_EQ(NameOf(sound_.StateOf(handle)), "paused");
  sound_.DSResumeAll();
  EXPECT_EQ(NameOf(sound_.StateOf(handle)), "playing");
  sound_.DSStop(handle);
  EXPECT_EQ(NameOf(sound_.StateOf(handle)), "stopped");
  sound_.DSPlay(handle);
  EXPECT_EQ(NameOf(sound_.StateOf(handle)), "playing");
  sound_.DSFree(handle);
  EXPECT_EQ(NameOf(sound_.StateOf(handle)), "empty");
}

TEST_F(DSoundSlots, ThatAreFreeAreUsedAgainTheFirstFirst) {
  const std::string path = Wave("a.wav", Tone(50, 500, 20000));
  const int first = sound_.DSLoad(path, false);
  const int second = sound_.DSLoad(path, false);
  const int third = sound_.DSLoad(path, false);
  EXPECT_NE(first, second);
  EXPECT_NE(second, third);
  sound_.DSFree(third);
  sound_.DSFree(first);
  EXPECT_EQ(sound_.DSLoad(path, false), first);
  EXPECT_EQ(sound_.DSLoad(path, false), third);
}

TEST_F(DSoundSlots, AreAllFreeAfterDSFreeAll) {
  const std::string path = Wave("a.wav", Tone(50, 500, 20000));
  const int first = sound_.DSLoad(path, true);
  const int second = sound_.DSLoad(path, true);
  sound_.DSPlay(second);
  sound_.DSFreeAll();
  EXPECT_EQ(sound_.StateOf(first), State::Empty);
  EXPECT_EQ(sound_.StateOf(second), State::Empty);
  EXPECT_EQ(sound_.DSLoad(path, true), first);
}

TEST_F(DSoundSlots, AreLimitedInNumber) {
  const std::string path = Wave("a.wav", Tone(50, 500, 20000));
  for (int i = 0; i < DSound::kMostBuffers; ++i) ASSERT_NE(sound_.DSLoad(path, false), DSound::kNoBuffer);
  EXPECT_EQ(sound_.DSLoad(path, false), DSound::kNoBuffer);
  sound_.DSFree(77);
  EXPECT_EQ(sound_.DSLoad(path, false), 77);
}

TEST_F(DSoundSlots, ThatNobodyHasDoNothing) {
  for (const int handle : {DSound::kNoBuffer, 0, 1, 1000000}) {
    sound_.DSPlay(handle);
    sound_.DSStop(handle);
    sound_.DSFree(handle);
    EXPECT_EQ(sound_.StateOf(handle), State::Empty);
    EXPECT_EQ(sound_.FileOf(handle), "");
  }
}

TEST_F(DSoundSlots, AreNotTakenByFilesThatAreNoSounds) {
  EXPECT_EQ(sound_.DSLoad(folder_.Write("junk.wav", "RIFF and no more"), false), DSound::kNoBuffer);
  EXPECT_EQ(sound_.DSLoad(folder_.Write("empty.wav", ""), true), DSound::kNoBuffer);
  EXPECT_EQ(sound_.DSLoad(folder_.Write("silent.wav", WaveFileOf(Samples())), true), DSound::kNoBuffer);
  EXPECT_EQ(sound_.DSLoad(folder_.At("none.wav"), false), DSound::kNoBuffer);
  EXPECT_EQ(sound_.DSLoad(Wave("a.wav", Tone(50, 500, 20000)), false), 0);
}

TEST_F(DSoundSlots, HoldAFileThatHasNotChangedWithoutReadingItAgain) {
  const std::string path = Wave("a.wav", Tone(50, 500, 20000));
  ASSERT_NE(sound_.DSLoad(path, false), DSound::kNoBuffer);
  sound_.DSFreeAll();
  const auto time = fs::last_write_time(path);
  folder_.Write("a.wav", std::string(fs::file_size(path), 'x'));
  fs::last_write_time(path, time);
  EXPECT_NE(sound_.DSLoad(path, false), DSound::kNoBuffer) << "it was read again";
  fs::last_write_time(path, time + std::chrono::seconds(1));
  EXPECT_EQ(sound_.DSLoad(path, false), DSound::kNoBuffer) << "it was not read again";
}

TEST_F(DSoundSlots, RememberThatAFileIsNoSoundUntilItChanges) {
  const std::string path = folder_.Write("a.wav", std::string(4044, 'x'));
  EXPECT_EQ(sound_.DSLoad(path, false), DSound::kNoBuffer);
  const auto time = fs::last_write_time(path);
  Wave("a.wav", Tone(50, 1000, 20000));
  ASSERT_EQ(fs::file_size(path), 4044U);
  fs::last_write_time(path, time);
  EXPECT_EQ(sound_.DSLoad(path, false), DSound::kNoBuffer);
  fs::last_write_time(path, time + std::chrono::seconds(1));
  EXPECT_NE(sound_.DSLoad(path, false), DSound::kNoBuffer);
}

TEST_F(DSoundSlots, ThatAreReloadedWithTheSameFilePlayOn) {
  const std::string path = Wave("a.wav", Tone(50, 500, 20000));
  const int handle = sound_.DSLoad(path, true);
  sound_.DSPlay(handle);
  EXPECT_EQ(sound_.DSReload(handle, path, true), handle);
  EXPECT_EQ(sound_.StateOf(handle), State::Playing);
  EXPECT_EQ(sound_.DSReload(handle, path, false), handle);
  EXPECT_EQ(sound_.StateOf(handle), State::Loaded) << "one that does not loop any more is another";
}

TEST_F(DSoundSlots, ThatAreReloadedWithAnotherFileAreLoadedAnew) {
  const int handle = sound_.DSLoad(Wave("a.wav", Tone(50, 500, 20000)), true);
  sound_.DSPlay(handle);
  const std::string other = Wave("b.wav", Tone(50, 500, 20000));
  EXPECT_EQ(sound_.DSReload(handle, other, true), handle);
  EXPECT_EQ(sound_.StateOf(handle), State::Loaded);
  EXPECT_EQ(sound_.FileOf(handle), other);
  EXPECT_EQ(sound_.DSReload(handle, folder_.At("none.wav"), true), DSound::kNoBuffer);
  EXPECT_EQ(sound_.StateOf(handle), State::Empty);
}

TEST_F(DSoundHeard, NothingWhenNothingIsPlayed) {
  Load(Tone(50, 500, 20000));
  Await(3000);
  const std::vector<int> heard = Heard();
  ASSERT_GT(heard.size(), 2000U);
  EXPECT_EQ(Onset(heard), heard.size());
}

TEST_F(DSoundHeard, ASoundThatIsPlayedOnceSampleBySample) {
  const Samples tone = Tone(50, 3000, 20000);
  const int handle = Load(tone);
  sound_->DSPlay(handle);
  Await(8000);
  const std::vector<int> heard = Heard();
  const std::size_t start = Onset(heard) - 1;  // the tone's first sample is 0
  ASSERT_GT(heard.size(), start + 4000);
  for (std::size_t i = 0; i < 3000; ++i) ASSERT_EQ(heard[start + i], tone[2 * i]) << i;
  for (std::size_t i = start + 3000; i < heard.size(); ++i) ASSERT_EQ(heard[i], 0);
}

TEST_F(DSoundHeard, ARetriggerRestartsAndDoesNotOverlap) {
  const int handle = Load(Ruler(400000));
  sound_->DSPlay(handle);
  Await(20000);
  sound_->DSPlay(handle);
  Await(20000);
  const std::vector<int> heard = Heard();
  const std::size_t start = Onset(heard) - 16;
  const std::size_t again = Fall(heard);
  ASSERT_GT(again, start + 10000);
  ASSERT_GT(heard.size(), again + 10000);
  for (std::size_t i = start; i < again; ++i)
    ASSERT_NEAR(heard[i], static_cast<double>(i - start) / 16, 1) << "before, frame " << i;
  const double drift = heard[again + 5000] * 16.0 - 5000;  // the fall is seen some frames late
  ASSERT_LT(std::abs(drift), 64) << "it did not start from its beginning";
  for (std::size_t i = again + kSink; i < again + 10000; ++i)
    ASSERT_NEAR(heard[i], (static_cast<double>(i - again) + drift) / 16, 2) << "after, frame " << i;
}

TEST_F(DSoundHeard, ALoopGoesOnWithoutASeam) {
  const Samples tone = Tone(50, 1000, 20000);
  const int handle = Load(tone, true);
  sound_->DSPlay(handle);
  Await(20000);
  const std::vector<int> heard = Heard();
  const std::size_t start = Onset(heard) - 1;
  ASSERT_GT(heard.size(), start + 15000);
  for (std::size_t i = 0; i < 15000; ++i) ASSERT_EQ(heard[start + i], tone[2 * (i % 1000)]) << "frame " << i;
}

TEST_F(DSoundHeard, ALoopOfASingleFrameGoesOn) {
  const int handle = Load({8000, 8000}, true);
  sound_->DSPlay(handle);
  Await(5000);
  const std::vector<int> heard = Heard();
  const std::size_t start = Onset(heard);
  ASSERT_GT(heard.size(), start + 3000);
  EXPECT_EQ(std::count(heard.begin(), heard.end(), 8000), static_cast<std::ptrdiff_t>(heard.size() - start));
}

TEST_F(DSoundHeard, SilenceAfterAStopWhichIsNoClick) {
  const int handle = Load(Samples(2 * 1000, 16000), true);
  sound_->DSPlay(handle);
  Await(5000);
  sound_->DSStop(handle);
  Await(5000);
  const std::vector<int> heard = Heard();
  const std::size_t end = Fall(heard);
  ASSERT_GT(heard.size(), end + 2000);
  EXPECT_EQ(heard[end - 1], 16000);
  for (std::size_t i = end; i < end + kSink; ++i) ASSERT_LE(heard[i - 1] - heard[i], 160) << "frame " << i;
  for (std::size_t i = end + kSink; i < heard.size(); ++i) ASSERT_EQ(heard[i], 0);
}

TEST_F(DSoundHeard, ASoundThatWasStoppedFromItsStart) {
  const int handle = Load(Ruler(400000));
  sound_->DSPlay(handle);
  Await(10000);
  sound_->DSStop(handle);
  Await(5000);
  sound_->DSPlay(handle);
  Await(10000);
  const std::vector<int> heard = Heard();
  const std::size_t silent = Fall(heard) + kSink;
  ASSERT_GT(heard.size(), silent);
  const std::size_t again =
      silent + Onset({heard.begin() + static_cast<std::ptrdiff_t>(silent), heard.end()});
  ASSERT_GT(again, silent + 1000);
  ASSERT_GT(heard.size(), again + 3000);
  for (std::size_t i = 0; i < 3000; ++i)
    ASSERT_NEAR(heard[again + i], 1 + static_cast<double>(i) / 16, 1) << "frame " << i;
}

TEST_F(DSoundHeard, APausedSoundFromWhereItStoodAlsoIfItIsPlayed) {
  for (const bool play : {false, true}) {
    if (!sound_) {
      sound_ = std::make_unique<DSound>();
      ASSERT_TRUE(sound_->DSInit());
    }
    const int handle = Load(Ruler(400000));
    sound_->DSPlay(handle);
    Await(20000);
    sound_->DSPauseAll();
    Await(5000);
    play ? sound_->DSPlay(handle) : sound_->DSResumeAll();
    Await(10000);
    const std::vector<int> heard = Heard();
    const std::size_t rest = Fall(heard);
    ASSERT_GT(rest, 10000U);
    const std::size_t silent = rest + kSink;
    const std::size_t on = silent + Onset({heard.begin() + static_cast<std::ptrdiff_t>(silent), heard.end()});
    ASSERT_GT(on, silent + 1000);
    ASSERT_GT(heard.size(), on + 5000);
    for (std::size_t i = kSink; i < 5000; ++i)
      ASSERT_NEAR(heard[on + i], heard[rest - 1] + static_cast<double>(i) / 16, 2) << "frame " << i;
  }
}

TEST_F(DSoundHeard, NoPauseOfWhatHasComeToItsEnd) {
  const int handle = Load(Tone(64, 640, 20000));
  sound_->DSPlay(handle);
  Await(5000);
  sound_->DSPauseAll();
  EXPECT_EQ(sound_->StateOf(handle), State::Playing);
  sound_->DSPlay(handle);
  Await(5000);
  const std::vector<int> heard = Heard();
  EXPECT_EQ(std::count(heard.begin(), heard.end(), 20000), 2 * 10) << "ten periods, played twice";
}

TEST_F(DSoundHeard, NothingOfABufferThatWasFreed) {
  const int handle = Load(Tone(50, 1000, 20000), true);
  sound_->DSPlay(handle);
  Await(3000);
  sound_->DSFree(handle);
  Await(5000);
  const std::vector<int> heard = Heard();
  ASSERT_LT(Onset(heard), heard.size());
  for (std::size_t i = heard.size() - 2000; i < heard.size(); ++i) ASSERT_EQ(heard[i], 0);
}

TEST_F(DSoundHeard, SixteenLoudSoundsAtOnceWithoutClipping) {
  const Samples tone = Tone(64, 6400, 23197);  // 3 dB below full scale
  std::array<int, 16> handles{};
  for (int& handle : handles) handle = Load(tone, true);
  for (const int handle : handles) sound_->DSPlay(handle);
  Await(20000);
  for (const int handle : handles) sound_->DSStop(handle);
  Await(2000);
  const std::vector<int> heard = Heard();
  EXPECT_GT(*std::max_element(heard.begin(), heard.end()), 29000) << "they did not sound together";
  for (std::size_t i = 2; i < heard.size(); ++i) {
    ASSERT_LE(std::abs(heard[i]), 29164) << "less than 1 dB is left in frame " << i;
    const bool flat = heard[i] == heard[i - 1] && heard[i] == heard[i - 2];
    ASSERT_FALSE(flat && std::abs(heard[i]) > 28000) << "a peak is cut off in frame " << i;
  }
}

TEST_F(DSoundHeard, TheSameWhenTheBuffersGrowWhileOneSounds) {
  const Samples tone = Tone(50, 1000, 20000);
  const int handle = Load(tone, true);
  sound_->DSPlay(handle);
  Await(3000);
  for (int i = 0; i < 40; ++i) Load(tone);
  Await(3000);
  const std::vector<int> heard = Heard();
  const std::size_t start = Onset(heard) - 1;
  for (std::size_t i = start; i < heard.size(); ++i)
    ASSERT_EQ(heard[i], tone[2 * ((i - start) % 1000)]) << "frame " << i;
}

TEST_F(DSoundHeard, NoWorkAfterTwoSecondsOfSilence) {
  const std::uintmax_t silent = disk_.AwaitRest();
  EXPECT_GE(silent, 2U * 22050 - 512) << "it rests too early";
  EXPECT_LE(silent, 3U * 22050);
  EXPECT_EQ(disk_.AwaitRest(), silent);
}

TEST_F(DSoundHeard, NoRestWhileALoopSounds) {
  const int handle = Load(Tone(50, 1000, 20000), true);
  sound_->DSPlay(handle);
  Await(5 * 22050);
  sound_->DSPauseAll();
  EXPECT_GE(disk_.AwaitRest(), 7U * 22050) << "what stands still is silent";
}

// The driver begins a new file when it is opened again.
TEST_F(DSoundHeard, ASoundFromItsFirstSampleOnAfterARest) {
  const Samples tone = Tone(50, 3000, 20000);
  const int handle = Load(tone);
  for (int turn = 0; turn < 2; ++turn) {
    const std::uintmax_t silent = disk_.AwaitRest();
    ASSERT_GT(silent, 0U);
    sound_->DSPlay(handle);
    ASSERT_TRUE(disk_.AwaitWaking(silent));
    ASSERT_GT(disk_.AwaitRest(), 0U);
    const std::vector<int> heard = disk_.HeardLeft();
    const std::size_t start = Onset(heard) - 1;
    ASSERT_LT(start, 4096U) << "it comes late";
    for (std::size_t i = 0; i < 3000; ++i) ASSERT_EQ(heard[start + i], tone[2 * i]) << i;
  }
}

TEST_F(DSoundHeard, APausedLoopAgainAfterARest) {
  const int handle = Load(Samples(2 * 1000, 16000), true);
  sound_->DSPlay(handle);
  Await(2000);
  sound_->DSPauseAll();
  const std::uintmax_t silent = disk_.AwaitRest();
  sound_->DSResumeAll();
  ASSERT_TRUE(disk_.AwaitWaking(silent));
  Await(3000);
  const std::vector<int> heard = Heard();
  EXPECT_EQ(*std::max_element(heard.begin(), heard.end()), 16000);
}

TEST_F(DSoundHeard, NoEndlessTriesWhileTheCardIsGone) {
  const int handle = Load(Samples(2 * 1000, 16000), true);
  ASSERT_GT(disk_.AwaitRest(), 0U);
  const Environment gone("SDL_DISKAUDIOFILE", folder_.At("none/none.raw"));
  sound_->DSPlay(handle);
  std::this_thread::sleep_for(std::chrono::milliseconds(200));
  const std::clock_t start = std::clock();
  std::this_thread::sleep_for(std::chrono::milliseconds(500));
  EXPECT_LT(std::clock() - start, CLOCKS_PER_SEC / 10) << "the next sound tries again, and nothing else";
}

TEST_F(DSoundHeard, NothingThatWasMissedWhileTheCardWasGone) {
  const int missed = Load(Samples(2 * 4000, 16000));
  const int later = Load(Samples(2 * 4000, 2000));
  ASSERT_GT(disk_.AwaitRest(), 0U);
  {
    const Environment gone("SDL_DISKAUDIOFILE", folder_.At("none/none.raw"));
    sound_->DSPlay(missed);
    std::this_thread::sleep_for(std::chrono::milliseconds(200));
  }
  disk_.Forget();
  sound_->DSPlay(later);
  ASSERT_TRUE(disk_.Await(3000));
  const std::vector<int> heard = Heard();
  EXPECT_EQ(*std::max_element(heard.begin(), heard.end()), 2000);
}

}  // namespace
}  // namespace zorik
