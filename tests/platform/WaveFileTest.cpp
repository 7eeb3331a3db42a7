#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <filesystem>
#include <numbers>

#include "data/Result.h"
#include "platform/WaveFile.h"
#include "support/Waves.h"

namespace zorik {
namespace {

using test::Samples;
using test::SoundFolder;
using test::Tone;
using test::WaveFileOf;
using test::WaveForm;

constexpr double kHertz = 441;

// A second of a tone of half the full loudness in any form.
std::string ToneIn(const WaveForm& form) {
  std::string data;
  for (std::uint32_t i = 0; i < form.rate; ++i) {
    const double value = 0.5 * std::sin(2 * std::numbers::pi * kHertz * i / form.rate);
    for (int channel = 0; channel < form.channels; ++channel) {
      if (form.bits == 8) {
        test::PutNumber(data, static_cast<std::uint32_t>(std::lround(128 + 127 * value)), 1);
      } else {
        const double most = std::ldexp(1, form.bits - 1) - 1;
        test::PutNumber(data, static_cast<std::uint32_t>(std::lround(most * value)), form.bits / 8);
      }
    }
  }
  return WaveFileOf(data, form);
}

// How loud the tone is in a channel, of full scale, measured in the middle of the second.
double LoudnessIn(const std::vector<std::int16_t>& samples, std::size_t channel) {
  double sine = 0;
  double cosine = 0;
  constexpr std::size_t kFrames = 10000;  // two hundred periods
  for (std::size_t i = 5000; i < 5000 + kFrames; ++i) {
    const double angle = 2 * std::numbers::pi * kHertz * static_cast<double>(i) / kSoundRate;
    sine += samples[2 * i + channel] * std::sin(angle);
    cosine += samples[2 * i + channel] * std::cos(angle);
  }
  return std::hypot(sine, cosine) * 2 / kFrames / 32768;
}

class WaveFile : public testing::Test {
 protected:
  auto Read(const std::string& bytes) const { return ReadWave(folder_.Write("a.wav", bytes)); }

  SoundFolder folder_;
};

TEST_F(WaveFile, InTheFormOfTheBuffersIsReadSampleBySample) {
  const Samples tone = Tone(50, 4321, 30000);
  const auto read = Read(WaveFileOf(tone));
  ASSERT_TRUE(read);
  EXPECT_EQ(*read, tone);
}

TEST_F(WaveFile, OfAnyFormIsConverted) {
  for (const WaveForm form : {WaveForm{22050, 1, 16}, WaveForm{22050, 2, 8}, WaveForm{11025, 1, 8},
                              WaveForm{44100, 2, 16}, WaveForm{48000, 1, 24}, WaveForm{8000, 2, 32}}) {
    SCOPED_TRACE(testing::Message() << form.rate << " Hz, " << form.channels << " x " << form.bits);
    const auto read = Read(ToneIn(form));
    ASSERT_TRUE(read);
    ASSERT_NEAR(static_cast<double>(read->size()), 2 * kSoundRate, 2 * 10);
    EXPECT_NEAR(LoudnessIn(*read, 0), 0.5, 0.01);
    EXPECT_NEAR(LoudnessIn(*read, 1), 0.5, 0.01);
  }
}

TEST_F(WaveFile, ThatIsCutShortGivesWhatItHolds) {
  const Samples tone = Tone(50, 1000, 30000);
  std::string bytes = WaveFileOf(tone);
  bytes.resize(bytes.size() - 2 * 400 - 1);
  const auto read = Read(bytes);
  ASSERT_TRUE(read);
  EXPECT_EQ(*read, Samples(tone.begin(), tone.begin() + 2 * (1000 - 200 - 1)));
}

TEST_F(WaveFile, WithoutASampleIsRefused) {
  EXPECT_FALSE(Read(WaveFileOf(std::string())));
  EXPECT_FALSE(Read(WaveFileOf(std::string("abc"))));
}

TEST_F(WaveFile, ThatIsNoneIsRefused) {
  EXPECT_FALSE(Read(""));
  EXPECT_FALSE(Read("R"));
  EXPECT_FALSE(Read("RIFF"));
  EXPECT_FALSE(Read("ID3 this is no wave but a long enough text to be looked at"));
  EXPECT_FALSE(Read("MThd" + std::string(500, '\1')));
  EXPECT_FALSE(Read(std::string(100000, '\0')));
}

TEST_F(WaveFile, CutAnywhereInItsHeadIsRefused) {
  const std::string whole = WaveFileOf(Tone(50, 10, 30000));
  for (std::size_t size = 0; size <= 44; ++size) EXPECT_FALSE(Read(whole.substr(0, size))) << size;
}

TEST_F(WaveFile, WithAnyByteOfItsHeadSpoiltIsReadOrRefused) {
  const std::string whole = WaveFileOf(Tone(50, 10, 30000));
  int refused = 0;
  for (std::size_t place = 0; place < 44; ++place) {
    for (const int value : {0, 1, 0x7F, 0x80, 0xFF}) {
      std::string spoilt = whole;
      spoilt[place] = static_cast<char>(value);
      const auto read = Read(spoilt);
      if (read) {
        EXPECT_LE(read->size(), 2U * kSoundRate * static_cast<unsigned>(kSoundLimits.seconds));
      } else {
        ++refused;
      }
    }
  }
  EXPECT_GT(refused, 20);
}

TEST_F(WaveFile, OfAnAbsurdRateIsRefused) {
  for (const std::uint32_t rate : {400000U, 2000000000U}) {
    const auto read = Read(WaveFileOf(std::string(400, 'a'), {rate, 1, 8}));
    ASSERT_FALSE(read) << rate;
    EXPECT_EQ(read.Message(), "cannot read " + folder_.At("a.wav") + ": no sound has such a rate") << rate;
  }
  for (const std::uint32_t rate : {0U, 4000000000U})
    EXPECT_FALSE(Read(WaveFileOf(std::string(400, 'a'), {rate, 1, 8}))) << rate;
}

TEST_F(WaveFile, OfAVerySlowRateIsReadIfItIsShortEnough) {
  const auto read = Read(WaveFileOf(std::string(20, 'a'), {1, 1, 8}));
  ASSERT_TRUE(read);
  EXPECT_NEAR(static_cast<double>(read->size()), 20 * 2 * kSoundRate, 2 * kSoundRate);
}

TEST_F(WaveFile, OfMoreThanHalfAMinuteIsRefused) {
  EXPECT_TRUE(Read(WaveFileOf(std::string(30 * 8000, 'a'), {8000, 1, 8})));
  EXPECT_FALSE(Read(WaveFileOf(std::string(30 * 8000 + 1, 'a'), {8000, 1, 8})));
  EXPECT_FALSE(Read(WaveFileOf(std::string(31, 'a'), {1, 1, 8})));
}

TEST_F(WaveFile, ThatSoundsOnAndOnMayLastFiveMinutes) {
  const std::string path = folder_.Write("a.wav", WaveFileOf(std::string(300 * 8000, 'a'), {8000, 1, 8}));
  EXPECT_FALSE(ReadWave(path));
  EXPECT_EQ(StateOfWave(path), WaveState::TooLong);
  const auto read = ReadWave(path, kLoopLimits);
  ASSERT_TRUE(read);
  EXPECT_NEAR(static_cast<double>(read->size()), 300 * 2 * kSoundRate, 2 * 10);
  EXPECT_EQ(StateOfWave(path, kLoopLimits), WaveState::Good);
  folder_.Write("a.wav", WaveFileOf(std::string(300 * 8000 + 1, 'a'), {8000, 1, 8}));
  EXPECT_EQ(StateOfWave(path, kLoopLimits), WaveState::TooLong);
  folder_.Write("a.wav", "no sound");
  EXPECT_EQ(StateOfWave(path, kLoopLimits), WaveState::Broken);
}

TEST_F(WaveFile, ThatIsTooLargeIsNotEvenRead) {
  const std::string path = folder_.Write("a.wav", WaveFileOf(Tone(50, 10, 30000)));
  ASSERT_TRUE(ReadWave(path));
  std::filesystem::resize_file(path, kSoundLimits.bytes);
  EXPECT_TRUE(ReadWave(path));
  std::filesystem::resize_file(path, kSoundLimits.bytes + 1);
  const auto read = ReadWave(path);
  ASSERT_FALSE(read);
  EXPECT_EQ(read.Message(), "cannot read " + path + ": the sound is too large");
}

TEST_F(WaveFile, ThatIsNotThereOrAFolderIsRefused) {
  EXPECT_FALSE(ReadWave(folder_.At("none.wav")));
  std::filesystem::create_directory(folder_.At("folder.wav"));
  EXPECT_FALSE(ReadWave(folder_.At("folder.wav")));
}

}  // namespace
}  // namespace zorik
