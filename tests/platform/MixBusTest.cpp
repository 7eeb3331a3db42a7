#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <span>

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
  // Adds so many frames of a recording to the buffer.
  void Add(std::size_t voice, const Samples& samples, std::size_t from, std::size_t frames,
           bool looping = false) {
    bus.Add(voice, samples, looping, std::span(samples).subspan(2 * from, 2 * frames));
  }

  void Finish() {
    Samples out(2 * kFrames, 12345);
    bus.Finish(out);
    for (std::size_t i = 0; i < out.size(); i += 2) {
      EXPECT_EQ(out[i], out[i + 1]);
      heard.push_back(out[i]);
    }
  }

  // What was heard of the frames that were added: the limiter's delay taken off.
  int At(std::size_t frame) const { return heard.at(frame + Limiter::kDelay); }

  MixBus bus{kFrames};
  std::vector<int> heard;
};

TEST(MixBus, IsSilentWhenNothingSounds) {
  Player player;
  player.Finish();
  EXPECT_EQ(player.heard, std::vector<int>(kFrames, 0));
}

TEST(MixBus, PlaysASingleSoundUnchanged) {
  Player player;
  const Samples tone = Tone(50, 2 * kFrames, 23000);
  player.Add(0, tone, 0, kFrames);
  player.Finish();
  player.Add(0, tone, kFrames, kFrames);
  player.Finish();
  for (std::size_t i = 0; i < 2 * kFrames - Limiter::kDelay; ++i)
    ASSERT_EQ(player.At(i), tone[2 * i]) << "frame " << i;
}

TEST(MixBus, GlidesToAnotherVolumeWithinABuffer) {
  Player player;
  const Samples level(2 * 3 * kFrames, 8000);
  player.Add(0, level, 0, kFrames);
  player.Finish();
  player.bus.SetVolume(0.25F);
  for (std::size_t i = 1; i < 3; ++i) {
    player.Add(0, level, i * kFrames, kFrames);
    player.Finish();
  }
  EXPECT_EQ(player.At(kFrames - 1), 8000);
  EXPECT_NEAR(player.At(kFrames + kFrames / 2), 5000, 20) << "half of the way";
  for (std::size_t i = kFrames; i < 2 * kFrames; ++i) {
    ASSERT_LE(std::abs(player.At(i) - player.At(i - 1)), 6000 / kFrames + 2) << "frame " << i;
  }
  EXPECT_EQ(player.At(2 * kFrames), 2000);
}

TEST(MixBus, IsSilentWithoutVolume) {
  Player player;
  player.bus.SetVolume(0);
  const Samples level(2 * 2 * kFrames, 8000);
  for (std::size_t i = 0; i < 2; ++i) {
    player.Add(0, level, i * kFrames, kFrames);
    player.Finish();
  }
  EXPECT_EQ(player.At(kFrames), 0);
}

TEST(MixBus, AddsSoundsThatSoundTogether) {
  Player player;
  const Samples one(2 * kFrames, 1000);
  const Samples other(2 * kFrames, 4000);
  player.Add(0, one, 0, kFrames);
  player.Add(5, other, 0, kFrames);
  player.Finish();
  EXPECT_EQ(player.At(300), 5000);
}

TEST(MixBus, LetsASoundThatComesToItsEndEndThere) {
  Player player;
  const Samples sound(2 * 200, 8000);
  player.Add(0, sound, 0, 200);
  player.bus.Break(0);
  player.Finish();
  player.Finish();
  EXPECT_EQ(player.At(199), 8000);
  EXPECT_EQ(player.At(200), 0);
}

TEST(MixBus, LetsABrokenSoundSinkInFiveMilliseconds) {
  Player player;
  const Samples sound(8 * kFrames, 8000);
  player.Add(0, sound, 0, kFrames);
  player.Finish();
  player.bus.Break(0);
  player.Finish();
  player.Finish();
  EXPECT_EQ(player.At(kFrames - 1), 8000);
  for (std::size_t i = kFrames; i < kFrames + MixBus::kSink; ++i)
    ASSERT_LT(std::abs(player.At(i) - player.At(i - 1)), 80) << "frame " << i;
  for (std::size_t i = kFrames + MixBus::kSink; i < 2 * kFrames; ++i) ASSERT_EQ(player.At(i), 0);
}

TEST(MixBus, GoesOnWithTheSoundItselfWhileItSinks) {
  Player player;
  const Samples tone = Tone(20, 4 * kFrames, 20000);
  player.Add(0, tone, 0, kFrames);
  player.Finish();
  player.bus.Break(0);
  player.Finish();
  for (std::size_t i = 0; i < MixBus::kSink; ++i) {
    const double loudness = 1 - static_cast<double>(i + 1) / MixBus::kSink;
    ASSERT_NEAR(player.At(kFrames + i), loudness * tone[2 * (kFrames + i)], 1) << "frame " << i;
  }
}

TEST(MixBus, StartsABrokenSoundAgainWhileItsEndSinks) {
  Player player;
  const Samples ruler = Ruler(100000);
  for (std::size_t i = 0; i < 100; ++i) {
    player.Add(0, ruler, i * kFrames, kFrames);
    player.Finish();
  }
  const std::size_t again = 100 * kFrames;
  player.bus.Break(0);
  player.Add(0, ruler, 0, kFrames);
  player.Finish();
  player.Add(0, ruler, kFrames, kFrames);
  player.Finish();
  EXPECT_EQ(player.At(again - 1), 3199);
  EXPECT_NEAR(player.At(again), 3200, 32);
  for (std::size_t i = MixBus::kSink; i < 2 * kFrames - Limiter::kDelay; ++i)
    ASSERT_EQ(player.At(again + i), static_cast<int>(i / 16)) << "frame " << i;
}

TEST(MixBus, SinksAroundTheSeamOfALoop) {
  Player player;
  const Samples loop = Tone(64, 64, 20000);
  for (std::size_t i = 0; i < kFrames; i += 64) player.Add(0, loop, 0, 64, true);
  player.Finish();
  player.bus.Break(0);
  player.Finish();
  for (std::size_t i = 0; i < MixBus::kSink; ++i) {
    const double loudness = 1 - static_cast<double>(i + 1) / MixBus::kSink;
    ASSERT_NEAR(player.At(kFrames + i), loudness * loop[2 * (i % 64)], 1) << "frame " << i;
  }
}

TEST(MixBus, LetsAPausedSoundSinkAndRiseAgainWhereItStood) {
  Player player;
  const Samples ruler = Ruler(100000);
  for (std::size_t i = 0; i < 100; ++i) {
    player.Add(0, ruler, i * kFrames, kFrames);
    player.Finish();
  }
  player.Finish();
  player.Finish();
  const std::size_t rest = 100 * kFrames;
  EXPECT_NEAR(player.At(rest), 3200, 32);
  for (std::size_t i = MixBus::kSink; i < kFrames; ++i) ASSERT_EQ(player.At(rest + i), 0);
  player.Add(0, ruler, 100 * kFrames, kFrames);
  player.Finish();
  player.Finish();
  const std::size_t on = 102 * kFrames;
  EXPECT_NEAR(player.At(on), 0, 32);
  for (std::size_t i = MixBus::kSink; i < kFrames; ++i)
    ASSERT_EQ(player.At(on + i), static_cast<int>((100 * kFrames + i) / 16)) << "frame " << i;
}

TEST(MixBus, HasNothingMoreToSayOfASoundThatIsBrokenWhilePaused) {
  Player player;
  const Samples sound(8 * kFrames, 8000);
  player.Add(0, sound, 0, kFrames);
  player.Finish();
  player.Finish();
  player.bus.Break(0);
  player.Finish();
  player.Finish();
  for (std::size_t i = kFrames + MixBus::kSink; i < 3 * kFrames; ++i) ASSERT_EQ(player.At(i), 0);
}

TEST(MixBus, DoesNotClipSixteenTonesInStep) {
  Player player;
  const Samples tone = Tone(64, kFrames, 23197);  // 3 dB below full scale
  for (int buffer = 0; buffer < 20; ++buffer) {
    for (std::size_t voice = 0; voice < 16; ++voice) player.Add(voice, tone, 0, kFrames, true);
    player.Finish();
  }
  const int most = *std::max_element(player.heard.begin(), player.heard.end());
  EXPECT_LE(most, 29164) << "more than 1 dB below full scale";
  EXPECT_GE(most, 29000);
  for (std::size_t i = 1024; i < 10 * kFrames; ++i)
    ASSERT_NEAR(player.At(i), 29163.0 / 23197 * tone[2 * (i % 64)], 40) << "the tone is bent in frame " << i;
}

TEST(MixBus, CaresForNoVoiceThatItDoesNotKnow) {
  Player player;
  player.bus.Break(17);
  player.bus.Add(3, {}, true, {});
  player.Finish();
  EXPECT_EQ(player.heard, std::vector<int>(kFrames, 0));
}

}  // namespace
}  // namespace zorik
