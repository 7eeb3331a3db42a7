#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <span>
#include <vector>

#include "data/Result.h"
#include "platform/MixBus.h"
#include "support/Waves.h"

namespace zorik {
namespace {

using test::Ruler;
using test::Samples;
using test::Tone;

constexpr std::size_t kFrames = 512;

// Buffers that are played one after another.
class Player {
 public:
  void Mix(std::size_t buffers = 1, std::size_t frames = kFrames) {
    for (std::size_t n = 0; n < buffers; ++n) {
      Samples out(2 * frames, 12345);
      bus.Mix(out);
      for (std::size_t i = 0; i < out.size(); i += 2) {
        EXPECT_EQ(out[i], out[i + 1]);
        heard.push_back(out[i]);
      }
    }
  }

  // What was heard of the frames that were mixed: the limiter's delay taken off.
  int At(std::size_t frame) const { return heard.at(frame + Limiter::kDelay); }

  MixBus bus;
  std::vector<int> heard;
};

TEST(MixBus, IsSilentWhenNothingSounds) {
  Player player;
  player.Mix();
  EXPECT_EQ(player.heard, std::vector<int>(kFrames, 0));
}

TEST(MixBus, PlaysASingleSoundUnchanged) {
  Player player;
  const Samples tone = Tone(50, 2 * kFrames, 23000);
  player.bus.Start(0, tone, false);
  player.Mix(2);
  for (std::size_t i = 0; i < 2 * kFrames - Limiter::kDelay; ++i)
    ASSERT_EQ(player.At(i), tone[2 * i]) << "frame " << i;
}

TEST(MixBus, KeepsLeftAndRightApart) {
  Samples sides;
  for (std::size_t i = 0; i < 2 * kFrames; ++i) {
    sides.push_back(1000);
    sides.push_back(-3000);
  }
  MixBus bus;
  bus.Start(0, sides, false);
  Samples out(2 * kFrames, 12345);
  bus.Mix(out);
  for (std::size_t i = Limiter::kDelay; i < kFrames; ++i) {
    ASSERT_EQ(out[2 * i], 1000) << "frame " << i;
    ASSERT_EQ(out[2 * i + 1], -3000) << "frame " << i;
  }
}

TEST(MixBus, GlidesToAnotherVolumeWithinABuffer) {
  Player player;
  const Samples level(2 * 3 * kFrames, 8000);
  player.bus.Start(0, level, false);
  player.Mix();
  player.bus.SetVolume(0.25F);
  player.Mix(2);
  EXPECT_EQ(player.At(kFrames - 1), 8000);
  EXPECT_NEAR(player.At(kFrames + kFrames / 2), 5000, 20) << "half of the way";
  for (std::size_t i = kFrames; i < 2 * kFrames; ++i) {
    ASSERT_LE(std::abs(player.At(i) - player.At(i - 1)), 6000 / kFrames + 2) << "frame " << i;
  }
  EXPECT_EQ(player.At(2 * kFrames), 2000);
}

TEST(MixBus, HasAnotherVolumeAtOnceAfterSilence) {
  const Samples level(2 * 2 * kFrames, 8000);
  for (const std::size_t buffers : {0U, 1U}) {
    Player player;
    player.Mix(buffers);
    player.bus.SetVolume(0.25F);
    player.bus.Start(0, level, false);
    player.Mix(2);
    EXPECT_EQ(player.At(buffers * kFrames), 2000) << buffers;
  }
}

TEST(MixBus, IsSilentWithoutVolume) {
  Player player;
  player.bus.SetVolume(0);
  const Samples level(2 * 2 * kFrames, 8000);
  player.bus.Start(0, level, false);
  player.Mix(2);
  EXPECT_EQ(player.heard, std::vector<int>(2 * kFrames, 0));
}

TEST(MixBus, AddsSoundsThatSoundTogether) {
  Player player;
  const Samples one(2 * kFrames, 1000);
  const Samples other(2 * kFrames, 4000);
  player.bus.Start(0, one, false);
  player.bus.Start(5, other, false);
  player.Mix();
  EXPECT_EQ(player.At(300), 5000);
}

TEST(MixBus, LetsASoundThatComesToItsEndEndThere) {
  Player player;
  const Samples sound(2 * 200, 8000);
  player.bus.Start(0, sound, false);
  EXPECT_TRUE(player.bus.Sounds(0));
  player.Mix();
  EXPECT_FALSE(player.bus.Sounds(0));
  player.Mix();
  EXPECT_EQ(player.At(199), 8000);
  EXPECT_EQ(player.At(200), 0);
}

TEST(MixBus, PlaysALoopOnWithoutASeamInBuffersOfAnySize) {
  Player player;
  const Samples tone = Tone(50, 300, 20000);
  player.bus.Start(0, tone, true);
  for (const std::size_t frames : {1U, 700U, 64U, 2000U}) player.Mix(1, frames);
  for (std::size_t i = 0; i < 2765 - Limiter::kDelay; ++i)
    ASSERT_EQ(player.At(i), tone[2 * (i % 300)]) << "frame " << i;
}

TEST(MixBus, LetsABrokenSoundSinkInFiveMilliseconds) {
  Player player;
  const Samples sound(8 * kFrames, 8000);
  player.bus.Start(0, sound, false);
  player.Mix();
  player.bus.Stop(0);
  player.Mix(2);
  EXPECT_EQ(player.At(kFrames - 1), 8000);
  for (std::size_t i = kFrames; i < kFrames + MixBus::kSink; ++i)
    ASSERT_LT(std::abs(player.At(i) - player.At(i - 1)), 80) << "frame " << i;
  for (std::size_t i = kFrames + MixBus::kSink; i < 2 * kFrames; ++i) ASSERT_EQ(player.At(i), 0);
}

// Another sound lies behind it in memory.
TEST(MixBus, LetsASoundThatIsBrokenJustBeforeItsEndSinkNoFartherThanToThat) {
  constexpr std::size_t kRest = 10;
  Player player;
  const Samples sounds(2 * (kFrames + kRest + MixBus::kSink), 8000);
  player.bus.Start(0, std::span(sounds).first(2 * (kFrames + kRest)), false);
  player.Mix();
  player.bus.Stop(0);
  player.Mix();
  EXPECT_GT(player.At(kFrames + kRest - 1), 0);
  for (std::size_t i = kFrames + kRest; i < kFrames + MixBus::kSink; ++i)
    ASSERT_EQ(player.At(i), 0) << "frame " << i;
}

TEST(MixBus, GoesOnWithTheSoundItselfWhileItSinksAlsoInSmallBuffers) {
  for (const std::size_t frames : {kFrames, std::size_t{32}}) {
    Player player;
    const Samples tone = Tone(20, 4 * kFrames, 20000);
    player.bus.Start(0, tone, false);
    player.Mix();
    player.bus.Stop(0);
    player.Mix(2 * kFrames / frames, frames);
    for (std::size_t i = 0; i < MixBus::kSink; ++i) {
      const double loudness = 1 - static_cast<double>(i + 1) / MixBus::kSink;
      ASSERT_NEAR(player.At(kFrames + i), loudness * tone[2 * (kFrames + i)], 1) << "frame " << i;
    }
  }
}

TEST(MixBus, StartsABrokenSoundAgainWhileItsEndSinks) {
  Player player;
  const Samples ruler = Ruler(100000);
  player.bus.Start(0, ruler, false);
  player.Mix(100);
  const std::size_t again = 100 * kFrames;
  player.bus.Start(0, ruler, false);
  player.Mix(2);
  EXPECT_EQ(player.At(again - 1), 3199);
  EXPECT_NEAR(player.At(again), 3200, 32);
  for (std::size_t i = MixBus::kSink; i < 2 * kFrames - Limiter::kDelay; ++i)
    ASSERT_EQ(player.At(again + i), static_cast<int>(i / 16)) << "frame " << i;
}

TEST(MixBus, SinksAroundTheSeamOfALoop) {
  Player player;
  const Samples loop = Tone(64, 64, 20000);
  player.bus.Start(0, loop, true);
  player.Mix();
  player.bus.Stop(0);
  player.Mix();
  for (std::size_t i = 0; i < MixBus::kSink; ++i) {
    const double loudness = 1 - static_cast<double>(i + 1) / MixBus::kSink;
    ASSERT_NEAR(player.At(kFrames + i), loudness * loop[2 * (i % 64)], 1) << "frame " << i;
  }
}

TEST(MixBus, LetsAPausedSoundSinkAndRiseAgainWhereItStood) {
  Player player;
  const Samples ruler = Ruler(100000);
  player.bus.Start(0, ruler, false);
  player.Mix(100);
  player.bus.Hold(0);
  EXPECT_FALSE(player.bus.Sounds());
  player.Mix(2);
  const std::size_t rest = 100 * kFrames;
  EXPECT_NEAR(player.At(rest), 3200, 32);
  for (std::size_t i = MixBus::kSink; i < kFrames; ++i) ASSERT_EQ(player.At(rest + i), 0);
  player.bus.GoOn(0);
  EXPECT_TRUE(player.bus.Sounds());
  player.Mix(2);
  const std::size_t on = 102 * kFrames;
  EXPECT_NEAR(player.At(on), 0, 32);
  for (std::size_t i = MixBus::kSink; i < kFrames; ++i)
    ASSERT_EQ(player.At(on + i), static_cast<int>((100 * kFrames + i) / 16)) << "frame " << i;
}

TEST(MixBus, HasNothingMoreToSayOfASoundThatIsBrokenWhilePaused) {
  Player player;
  const Samples sound(8 * kFrames, 8000);
  player.bus.Start(0, sound, false);
  player.Mix();
  player.bus.Hold(0);
  player.Mix();
  player.bus.Stop(0);
  player.bus.GoOn(0);
  player.Mix(2);
  for (std::size_t i = kFrames + MixBus::kSink; i < 3 * kFrames; ++i) ASSERT_EQ(player.At(i), 0);
}

TEST(MixBus, CountsTheFramesSinceAVoiceLastSounded) {
  Player player;
  const Samples sound(2 * kFrames, 8000);
  player.bus.Start(0, sound, true);
  player.Mix(3);
  EXPECT_EQ(player.bus.Quiet(), 0U);
  player.bus.Hold(0);
  player.Mix(3);
  EXPECT_EQ(player.bus.Quiet(), 3 * kFrames) << "what stands still does not sound";
  player.bus.GoOn(0);
  player.Mix();
  EXPECT_EQ(player.bus.Quiet(), 0U);
}

TEST(MixBus, ForgetsWhatDoesNotLoopWithoutASound) {
  Player player;
  const Samples low(2 * kFrames, 1000);
  const Samples high(2 * kFrames, 8000);
  player.bus.Start(0, high, false);
  player.bus.Start(1, low, true);
  player.bus.ForgetShort();
  player.Mix();
  EXPECT_EQ(player.At(0), 1000);
}

TEST(MixBus, ForgetsNothingThatIsPaused) {
  Player player;
  const Samples sound(4 * kFrames, 8000);
  player.bus.Start(0, sound, false);
  player.Mix();
  player.bus.Hold(0);
  player.bus.ForgetShort();
  player.bus.GoOn(0);
  EXPECT_TRUE(player.bus.Sounds(0));
}

TEST(MixBus, DoesNotClipSixteenTonesInStep) {
  Player player;
  const Samples tone = Tone(64, kFrames, 23197);  // 3 dB below full scale
  for (std::size_t voice = 0; voice < 16; ++voice) player.bus.Start(voice, tone, true);
  player.Mix(20);
  const int most = *std::max_element(player.heard.begin(), player.heard.end());
  EXPECT_LE(most, 29164) << "more than 1 dB below full scale";
  EXPECT_GE(most, 29000);
  for (std::size_t i = 1024; i < 10 * kFrames; ++i)
    ASSERT_NEAR(player.At(i), 29163.0 / 23197 * tone[2 * (i % 64)], 40) << "the tone is bent in frame " << i;
}

TEST(MixBus, CaresForNoVoiceThatItDoesNotKnow) {
  Player player;
  player.bus.Stop(17);
  player.bus.Hold(17);
  player.bus.GoOn(17);
  EXPECT_FALSE(player.bus.Sounds(17));
  player.bus.Start(3, {}, true);
  player.Mix();
  EXPECT_EQ(player.heard, std::vector<int>(kFrames, 0));
}

}  // namespace
}  // namespace zorik
