#include <algorithm>
#include <utility>
#include <vector>

#include "screens/HraScreen.h"
#include "screens/SkinButton.h"
#include "screens/SkinScale.h"
#include "support/Waves.h"

namespace zorik {
namespace {

using test::Samples;

// A run in a cave with an amoeba, of which something is heard all the time.
class HraWindowSoundTest : public test::HraScreen {
 protected:
  HraWindowSoundTest() {
    settings.Sound = true;
    Sound(Samples(2 * 1000, 2000));
  }

  void Sound(const Samples& samples) const {
    for (const char* const name : {"amoeba", "amoeba2"})
      folder.File("Skins/Default/Sound/" + std::string(name) + ".wav", test::WaveFileOf(samples));
  }

  void OpenCave() { Open({"WWWWWWW", "W1..;AW", "W...;AW", "WWWWWWW"}); }

  int Playing() const {
    int playing = 0;
    for (int i = 0; i < DSound::kMostBuffers; ++i)
      playing += sound.StateOf(i) == DSound::State::Playing ? 1 : 0;
    return playing;
  }

  void ClickSetting(const char* check) {
    EditSettings([check](QWidget& dialog) {
      dialog.findChild<SkinCheck*>(check)->click();
      QTest::keyClick(&dialog, Qt::Key_Return);
    });
  }
};

TEST_F(HraWindowSoundTest, MutesTheLoopsOfTheRunningCaveAndLetsThemBeHeardAgain) {
  OpenCave();
  ASSERT_EQ(Playing(), 1);
  ClickSetting("check4");
  EXPECT_EQ(Playing(), 0);
  ClickSetting("check4");
  EXPECT_EQ(Playing(), 1);
}

TEST_F(HraWindowSoundTest, IsHeardAgainInTheRunningCaveWhenSoundIsSwitchedOnAgain) {
  OpenCave();
  ClickSetting("check2");
  EXPECT_EQ(Playing(), 0);
  ASSERT_TRUE(TicksPass(2));
  ClickSetting("check2");
  EXPECT_EQ(Playing(), 1);
}

TEST_F(HraWindowSoundTest, OpensACaveAsMuteAsTheSettingsSay) {
  settings.Loops = false;
  OpenCave();
  EXPECT_EQ(Playing(), 0);
  ClickSetting("check4");
  EXPECT_EQ(Playing(), 1);
}

// Half the way to the left is a quarter as loud.
TEST_F(HraWindowSoundTest, IsAsLoudAsTheSettingsSayFromItsStartAndAfterTheirChange) {
  const test::SoundFolder files;
  const test::SoundOnDisk disk(files);
  {
    DSound heard;
    window = std::make_unique<test::AnyRun>(skin, heard, settings);
    settings.Volume = 5;
    OpenCave();
    EXPECT_TRUE(disk.Await(5000));
    EditSettings([](QWidget& dialog) {
      dialog.findChild<SkinScale*>("Volume")->setValue(10);
      QTest::keyClick(&dialog, Qt::Key_Return);
    });
    EXPECT_TRUE(disk.Await(5000));
    window.reset();
  }
  const std::vector<int> all = disk.HeardLeft();
  const auto frames = [&all](int loudness) {
    return std::count_if(all.begin(), all.end(),
                         [loudness](int sample) { return std::abs(sample - loudness) < 2; });
  };
  EXPECT_GT(frames(500), 2500);
  EXPECT_GT(frames(2000), 2500);
}

}  // namespace
}  // namespace zorik
