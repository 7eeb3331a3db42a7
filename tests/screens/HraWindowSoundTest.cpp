#include <algorithm>
#include <utility>
#include <vector>

#include "screens/HraScreen.h"
#include "screens/SkinButton.h"
#include "screens/SkinScale.h"
#include "support/Waves.h"

namespace zorik {
namespace {

using test::Answers;
using test::Corridor;
using test::Samples;
using test::Wait;

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

TEST_F(HraWindowSoundTest, IsSilentWhileThePauseIsOpen) {
  OpenCave();
  Answers answers(0);
  answers.Linger(5, [this] { return Playing(); });
  QTest::keyClick(window.get(), Qt::Key_P);
  ASSERT_TRUE(Wait([&] { return !answers.said.isEmpty(); }));
  EXPECT_EQ(answers.seen, QSet<int>{0});
  EXPECT_EQ(Playing(), 1) << "and goes on behind it";
}

TEST_F(HraWindowSoundTest, IsSilentWhileItIsHidden) {
  OpenCave();
  QTest::keyClick(window.get(), Qt::Key_F12);
  ASSERT_TRUE(Wait([&] { return !window->isVisible(); }));
  EXPECT_EQ(Playing(), 0);
  const_cast<HideAway*>(&window->Hidden())->close();
  EXPECT_EQ(Playing(), 1);
}

TEST_F(HraWindowSoundTest, IsSilentWhileItIsMinimised) {
  OpenCave();
  window->setWindowState(Qt::WindowMinimized);
  ASSERT_TRUE(Wait([&] { return !window->Ticking(); }));
  EXPECT_EQ(Playing(), 0);
  window->setWindowState(Qt::WindowNoState);
  EXPECT_EQ(Playing(), 1);
}

TEST_F(HraWindowSoundTest, LetsNothingBeHeardBehindAPauseThatWasSilentBeforeIt) {
  OpenCave();
  ClickSetting("check2");
  ASSERT_EQ(Playing(), 0);
  QTest::keyClick(window.get(), Qt::Key_F12);
  ASSERT_TRUE(Wait([&] { return !window->isVisible(); }));
  const_cast<HideAway*>(&window->Hidden())->close();
  EXPECT_EQ(Playing(), 0);
}

TEST_F(HraWindowSoundTest, IsSilentWhenTheRunIsOver) {
  OpenCave();
  window->Stop();
  EXPECT_EQ(Playing(), 0);
}

TEST_F(HraWindowSoundTest, EndsTheSoundsOfOneCaveWhereTheNextBegins) {
  OpenCave();
  ASSERT_TRUE(window->Start(test::CaveTextOf(Corridor()), RunKind::Play));
  EXPECT_EQ(Playing(), 0);
}

TEST_F(HraWindowSoundTest, OpensACaveInSilenceWhereSoundIsSwitchedOff) {
  settings.Sound = false;
  OpenCave();
  EXPECT_EQ(Playing(), 0);
}

TEST_F(HraWindowSoundTest, EndsTheSoundOfAnAmoebaThatCannotGrow) {
  Open({"WWWWWWW", "W1..WAW", "WWWWWWW"});
  ASSERT_TRUE(TicksPass(5));
  EXPECT_EQ(Playing(), 0);
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
