// What the build has made of the recipes, read as the game finds it: measured by a reader of its own.

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "data/Files.h"
#include "data/Result.h"
#include "soundmaker/SoundList.h"

namespace zorik::sound::test {
namespace {

struct Known {
  std::string_view stem;
  std::size_t recordings;
  double seconds;
  bool loop = false;
};

// Every sound that the game asks for.
constexpr auto kKnown = std::to_array<Known>({{"dirt", 3, 0.08},
                                              {"fallgem", 2, 0.15},
                                              {"collectgem", 3, 0.25},
                                              {"boulder", 3, 0.20},
                                              {"boulderpush", 2, 0.30},
                                              {"explosion", 2, 0.90},
                                              {"boxpush", 2, 0.25},
                                              {"dog", 2, 0.25},
                                              {"exitopen", 2, 0.80},
                                              {"magicwall", 2, 2.0, true},
                                              {"back", 2, 2.0, true},
                                              {"sensor", 2, 0.12},
                                              {"asuffocate", 2, 0.70},
                                              {"amoeba", 2, 2.0, true},
                                              {"sensorout", 2, 0.60},
                                              {"adeath", 2, 0.80}});
constexpr std::size_t kHead = 44;
constexpr std::size_t kRate = 22050;

using Ear = std::vector<double>;

struct Recording {
  std::string file;
  std::string bytes;
  std::array<Ear, 2> ears;  // left and right; 1 is full scale
  bool loop = false;

  double Peak() const {
    double peak = 0;
    for (const Ear& ear : ears) {
      for (const double sample : ear) peak = std::max(peak, std::abs(sample));
    }
    return peak;
  }
};

std::uint32_t Number(const std::string& bytes, std::size_t at, std::size_t size) {
  std::uint32_t number = 0;
  for (std::size_t i = size; i-- > 0;) number = number << 8U | static_cast<unsigned char>(bytes.at(at + i));
  return number;
}

Recording Read(const Known& known, std::size_t number) {
  Recording recording;
  recording.loop = known.loop;
  recording.file = std::string(known.stem) + (number > 1 ? std::to_string(number) : "") + ".wav";
  const Result<std::string> bytes = ReadWhole(ZORIK_BUILT_SOUNDS "/" + recording.file);
  if (!bytes) return recording;
  recording.bytes = *bytes;
  for (std::size_t at = kHead; at + 4 <= bytes->size(); at += 4) {
    for (std::size_t e = 0; e < 2; ++e) {
      const auto sample = static_cast<std::int16_t>(Number(*bytes, at + 2 * e, 2));
      recording.ears[e].push_back(sample / 32768.0);
    }
  }
  return recording;
}

class BuiltSounds : public ::testing::Test {
 protected:
  void SetUp() override {
    for (const Known& known : kKnown) {
      for (std::size_t number = 1; number <= known.recordings; ++number) {
        all_.push_back(Read(known, number));
        ASSERT_GT(all_.back().bytes.size(), kHead + kRate / 10)
            << all_.back().file << " is not there or is empty";
      }
    }
  }

  const std::vector<Recording>& All() const { return all_; }

  const Recording& Of(std::string_view stem, std::size_t number = 1) const {
    const std::string file = std::string(stem) + (number > 1 ? std::to_string(number) : "") + ".wav";
    return *std::find_if(all_.begin(), all_.end(), [&](const Recording& one) { return one.file == file; });
  }

 private:
  std::vector<Recording> all_;
};

double Decibels(double factor) {
  return 20 * std::log10(factor);
}

double RootMeanSquare(Ear::const_iterator from, Ear::const_iterator to) {
  double sum = 0;
  for (auto sample = from; sample != to; ++sample) sum += *sample * *sample;
  return std::sqrt(sum / static_cast<double>(to - from));
}

double RootMeanSquare(const Ear& ear) {
  return RootMeanSquare(ear.begin(), ear.end());
}

// The way from each sample to the next; to that of a loop belongs no way round its end.
Ear Steps(const Ear& ear) {
  Ear steps;
  for (std::size_t i = 1; i < ear.size(); ++i) steps.push_back(ear[i] - ear[i - 1]);
  return steps;
}

// The loudest tenth of a second, tried at every hundredth; in decibels.
double LoudestTenth(const Recording& recording) {
  Ear squares;
  for (std::size_t i = 0; i < recording.ears[0].size(); ++i) {
    squares.push_back((std::pow(recording.ears[0][i], 2) + std::pow(recording.ears[1][i], 2)) / 2);
  }
  const std::size_t tenth = kRate / 10, size = squares.size();
  double loudest = 0;
  for (std::size_t from = 0; from < size; from += 20) {
    double sum = 0;
    for (std::size_t i = from; i < from + tenth && (recording.loop || i < size); ++i)
      sum += squares[i % size];
    loudest = std::max(loudest, sum / static_cast<double>(tenth));
  }
  return 10 * std::log10(loudest);
}

TEST_F(BuiltSounds, AreAsLongAsTheyShouldBe) {
  for (const Known& known : kKnown) {
    for (std::size_t number = 1; number <= known.recordings; ++number) {
      EXPECT_EQ(Of(known.stem, number).ears[0].size(), std::lround(known.seconds * kRate))
          << known.stem << number;
    }
  }
}

TEST_F(BuiltSounds, HaveTwoChannelsOf16BitsAt22050) {
  for (const Recording& recording : All()) {
    const std::string& bytes = recording.bytes;
    EXPECT_EQ(bytes.substr(0, 4) + bytes.substr(8, 8) + bytes.substr(36, 4), "RIFFWAVEfmt data");
    EXPECT_EQ(Number(bytes, 4, 4), bytes.size() - 8);
    EXPECT_EQ(Number(bytes, 16, 4), 16U);
    EXPECT_EQ(Number(bytes, 20, 2), 1U);
    EXPECT_EQ(Number(bytes, 22, 2), 2U);
    EXPECT_EQ(Number(bytes, 24, 4), kRate);
    EXPECT_EQ(Number(bytes, 28, 4), kRate * 4);
    EXPECT_EQ(Number(bytes, 32, 2), 4U);
    EXPECT_EQ(Number(bytes, 34, 2), 16U);
    EXPECT_EQ(Number(bytes, 40, 4), bytes.size() - kHead);
  }
}

TEST_F(BuiltSounds, DifferFromOneAnother) {
  std::set<std::string> different;
  for (const Recording& recording : All()) different.insert(recording.bytes);
  EXPECT_EQ(different.size(), All().size());
}

TEST_F(BuiltSounds, StayThreeDecibelsBelowFullScale) {
  for (const Recording& recording : All()) {
    EXPECT_LE(Decibels(recording.Peak()), -3) << recording.file;
    EXPECT_GE(Decibels(recording.Peak()), -45) << recording.file;
  }
}

TEST_F(BuiltSounds, AreAsLoudAsTheListSays) {
  const Result<std::string> text = ReadWhole(ZORIK_SOUND_LIST);
  ASSERT_TRUE(text) << text.Message();
  const Result<std::vector<SoundEntry>> list = ParseSoundList(*text);
  ASSERT_TRUE(list) << list.Message();
  EXPECT_EQ(list->size(), kKnown.size());
  for (const Known& known : kKnown) {
    const auto entry =
        std::find_if(list->begin(), list->end(), [&](const auto& e) { return e.name == known.stem; });
    ASSERT_NE(entry, list->end()) << known.stem;
    ASSERT_EQ(entry->pitches.size(), known.recordings) << known.stem;
    for (std::size_t number = 1; number <= known.recordings; ++number) {
      EXPECT_NEAR(LoudestTenth(Of(known.stem, number)), entry->loudness, 0.2) << known.stem << number;
    }
  }
}

TEST_F(BuiltSounds, AreLoudByWhatTheyTell) {
  std::map<std::string_view, double> loudness;
  for (const Known& known : kKnown) loudness[known.stem] = LoudestTenth(Of(known.stem));
  for (const auto& [stem, level] : loudness) {
    if (stem != "explosion") {
      EXPECT_LT(level, loudness["explosion"] - 6) << stem << " is not half as loud as a blast";
    }
    if (stem != "back" && stem != "magicwall" && stem != "dirt") {
      EXPECT_GT(level, loudness["dirt"] + 3) << stem;
    }
  }
  EXPECT_LT(loudness["boulder"], loudness["explosion"] - 10);
  EXPECT_LT(loudness["back"], -45);
}

TEST_F(BuiltSounds, HaveNoOffset) {
  for (const Recording& recording : All()) {
    for (const Ear& ear : recording.ears) {
      double sum = 0;
      for (const double sample : ear) sum += sample;
      EXPECT_LT(std::abs(sum / static_cast<double>(ear.size())), 0.01 * RootMeanSquare(ear))
          << recording.file;
    }
  }
}

TEST_F(BuiltSounds, BeginAndEndNearZero) {
  for (const Recording& recording : All()) {
    const double near = recording.loop ? 0.03 * recording.Peak() : 2 / 32768.0;
    for (const Ear& ear : recording.ears) {
      EXPECT_LE(std::abs(ear.front()), near) << recording.file;
      EXPECT_LE(std::abs(ear.back()), near) << recording.file;
    }
  }
}

TEST_F(BuiltSounds, RiseSoftlyAndSinkIntoSilence) {
  for (const Recording& recording : All()) {
    if (recording.loop) continue;
    for (const Ear& ear : recording.ears) {
      const Ear start(ear.begin(), ear.begin() + 8), end(ear.end() - 22, ear.end());
      EXPECT_LT(RootMeanSquare(start), 0.1 * recording.Peak()) << recording.file;
      EXPECT_LT(RootMeanSquare(end), 0.01 * recording.Peak()) << recording.file;
    }
  }
}

TEST_F(BuiltSounds, LoopWithoutASeam) {
  for (const Recording& recording : All()) {
    if (!recording.loop) continue;
    for (const Ear& ear : recording.ears) {
      const Ear steps = Steps(ear);
      const double typical = RootMeanSquare(steps), last = steps.back(), first = steps.front();
      const double seam = ear.front() - ear.back();
      EXPECT_LE(std::abs(seam), typical) << recording.file;
      // No kink either: the way changes its slope no more than it does everywhere.
      const double bend = std::max(std::abs(seam - last), std::abs(first - seam));
      EXPECT_LE(bend, 2 * RootMeanSquare(Steps(steps))) << recording.file;
    }
  }
}

// White noise would have 1.41 here, a sine of 2500 Hertz 0.7.
TEST_F(BuiltSounds, AreWarmRatherThanShrill) {
  for (const Recording& recording : All()) {
    for (const Ear& ear : recording.ears) {
      EXPECT_LT(RootMeanSquare(Steps(ear)) / RootMeanSquare(ear), 0.7)
          << recording.file << " is shrill: let its recipe pass less of what is high, with low";
    }
  }
}

TEST_F(BuiltSounds, LeaveRoomForABlastThreeBouldersAndALoopAtOnce) {
  for (const std::size_t blast : {1U, 2U}) {
    for (const std::string_view loop : {"magicwall", "amoeba"}) {
      std::vector<const Recording*> crowd{&Of("explosion", blast), &Of(loop)};
      for (const std::size_t number : {1U, 2U, 3U}) crowd.push_back(&Of("boulder", number));
      for (std::size_t e = 0; e < 2; ++e) {
        Ear sum(2 * kRate, 0.0);
        for (const Recording* one : crowd) {
          for (std::size_t i = 0; i < one->ears[e].size(); ++i) sum[i] += one->ears[e][i];
        }
        for (const double sample : sum) ASSERT_LT(std::abs(sample), 1) << loop << blast;
      }
    }
  }
}

}  // namespace
}  // namespace zorik::sound::test
