#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <memory>

#include "data/Files.h"
#include "data/Result.h"
#include "platform/DSound.h"
#include "platform/SilentSound.h"

namespace zorik {
namespace {

namespace fs = std::filesystem;
using State = DSound::State;
using test::SoundFolder;
using test::SoundOnDisk;
using test::Tone;
using test::WaveFileOf;

// What the buffers keep of files and of what was asked before.
class DSoundKept : public test::SilentSound {
 protected:
  // Leaves no sound in a file, which looks as before from outside.
  static void SpoilUnseen(const std::string& path) {
    const auto time = fs::last_write_time(path);
    ASSERT_TRUE(WriteWhole(path, std::string(fs::file_size(path), 'x')));
    fs::last_write_time(path, time);
  }
};

TEST_F(DSoundKept, IsNoSoundThatWasStoppedBeforeThePause) {
  const std::string path = Wave("a.wav", Tone(50, 500, 20000));
  const int stopped = sound_.DSLoad(path, true);
  const int never = sound_.DSLoad(path, true);
  const int sounding = sound_.DSLoad(path, true);
  sound_.DSPlay(stopped);
  sound_.DSPlay(sounding);
  sound_.DSStop(stopped);
  sound_.DSPauseAll();
  sound_.DSResumeAll();
  EXPECT_EQ(sound_.StateOf(stopped), State::Stopped);
  EXPECT_EQ(sound_.StateOf(never), State::Loaded);
  EXPECT_EQ(sound_.StateOf(sounding), State::Playing);
}

// Another file can bear the time of the one before, such as one that was copied with it.
TEST_F(DSoundKept, IsNoFileThatHasGotAnotherLengthUnderTheSameTime) {
  const std::string path = Wave("a.wav", Tone(50, 500, 20000));
  const int handle = sound_.DSLoad(path, true);
  sound_.DSPlay(handle);
  const auto time = fs::last_write_time(path);
  Wave("a.wav", Tone(50, 700, 20000));
  fs::last_write_time(path, time);
  EXPECT_EQ(sound_.DSReload(handle, path, true), handle);
  EXPECT_EQ(sound_.StateOf(handle), State::Loaded) << "the old recording plays on";
}

TEST_F(DSoundKept, IsAFileThatNoBufferHasWhileOthersAreRead) {
  const std::string path = Wave("a.wav", Tone(50, 500, 20000));
  ASSERT_NE(sound_.DSLoad(path, false), DSound::kNoBuffer);
  sound_.DSFreeAll();
  ASSERT_NE(sound_.DSLoad(Wave("b.wav", Tone(50, 500, 20000)), false), DSound::kNoBuffer);
  SpoilUnseen(path);
  EXPECT_NE(sound_.DSLoad(path, false), DSound::kNoBuffer) << "it was read again";
}

// Three hundred seconds take 26 million bytes once they are read. One such may lie there unused, two may not.
TEST_F(DSoundKept, IsNotMuchThatNoBufferHas) {
  const std::string silence = WaveFileOf(std::string(300 * 8000, 'a'), {8000, 1, 8});
  const std::string path = folder_.Write("a.wav", silence);
  for (const char* name : {"a.wav", "b.wav"})
    ASSERT_NE(sound_.DSLoad(folder_.Write(name, silence), true), DSound::kNoBuffer);
  sound_.DSFreeAll();
  ASSERT_NE(sound_.DSLoad(Wave("c.wav", Tone(50, 500, 20000)), false), DSound::kNoBuffer);
  SpoilUnseen(path);
  EXPECT_EQ(sound_.DSLoad(path, true), DSound::kNoBuffer) << "it was kept";
}

// The driver makes its file when the way to the card is opened.
TEST(DSoundResting, IsNotWokenByWhatMakesNoSound) {
  const SoundFolder folder;
  const SoundOnDisk disk(folder);
  DSound sound;
  ASSERT_TRUE(sound.DSInit());
  const int handle = sound.DSLoad(folder.Write("a.wav", WaveFileOf(Tone(50, 500, 20000))), false);
  ASSERT_GT(disk.AwaitRest(), 0U);
  disk.Forget();
  sound.DSSetVolume(0.5F);
  sound.DSStop(handle);
  sound.DSPauseAll();
  sound.DSResumeAll();
  EXPECT_EQ(disk.AwaitRest(), 0U);
  EXPECT_FALSE(fs::exists(folder.At("heard.raw"))) << "the way to the card was opened";
  sound.DSPlay(handle);
  EXPECT_TRUE(disk.Await(400)) << "the next sound is heard";
}

}  // namespace
}  // namespace zorik
