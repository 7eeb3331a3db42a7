#pragma once

#include <unistd.h>

#include <chrono>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <numbers>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include "support/TempFolder.h"

namespace zorik::test {

// Samples of 16 bit, left and right in turn.
using Samples = std::vector<std::int16_t>;

// What a wave file says about its samples.
struct WaveForm {
  std::uint32_t rate = 22050;
  std::uint16_t channels = 2;
  std::uint16_t bits = 16;
};

inline void PutNumber(std::string& bytes, std::uint32_t number, int size) {
  for (int i = 0; i < size; ++i) bytes += static_cast<char>(number >> (8 * i) & 0xFFU);
}

// A wave file around these bytes.
inline std::string WaveFileOf(const std::string& data, const WaveForm& form = {}) {
  const std::uint32_t frame = form.channels * form.bits / 8U;
  std::string bytes = "RIFF";
  PutNumber(bytes, static_cast<std::uint32_t>(36 + data.size()), 4);
  bytes += "WAVEfmt ";
  PutNumber(bytes, 16, 4);
  PutNumber(bytes, 1, 2);
  PutNumber(bytes, form.channels, 2);
  PutNumber(bytes, form.rate, 4);
  PutNumber(bytes, form.rate * frame, 4);
  PutNumber(bytes, frame, 2);
  PutNumber(bytes, form.bits, 2);
  bytes += "data";
  PutNumber(bytes, static_cast<std::uint32_t>(data.size()), 4);
  return bytes + data;
}

inline std::string WaveFileOf(const Samples& samples) {
  std::string data;
  for (const std::int16_t sample : samples) PutNumber(data, static_cast<std::uint16_t>(sample), 2);
  return WaveFileOf(data);
}

// The same tone left and right, starting at 0 and rising; `period` in frames.
inline Samples Tone(double period, std::size_t frames, double amplitude) {
  Samples samples;
  for (std::size_t i = 0; i < frames; ++i) {
    const double value = amplitude * std::sin(2 * std::numbers::pi * static_cast<double>(i) / period);
    samples.insert(samples.end(), 2, static_cast<std::int16_t>(std::lround(value)));
  }
  return samples;
}

// A sound that tells how far it has come: it rises by 1 every 16 frames. At most 20 seconds.
inline Samples Ruler(std::size_t frames) {
  Samples samples;
  for (std::size_t i = 0; i < frames; ++i)
    samples.insert(samples.end(), 2, static_cast<std::int16_t>(i / 16));
  return samples;
}

// A folder for the sounds of one test, gone when the test is over.
class SoundFolder {
 public:
  std::string At(const std::string& name) const { return root_ + "/" + name; }

  // Writes a file, with the folders above it, and answers its path.
  std::string Write(const std::string& name, const std::string& bytes) const {
    std::filesystem::create_directories(std::filesystem::path(At(name)).parent_path());
    std::ofstream(At(name), std::ios::binary) << bytes;
    return At(name);
  }

 private:
  TempFolder temp_{"sound"};
  const std::string root_ = temp_.Path();
};

// Sets a variable of the environment, and puts it back in the end.
class Environment {
 public:
  Environment(std::string name, const std::string& value) : name_(std::move(name)) {
    const char* const old = std::getenv(name_.c_str());
    was_ = old != nullptr;
    if (was_) old_ = old;
    setenv(name_.c_str(), value.c_str(), 1);
  }
  ~Environment() { was_ ? setenv(name_.c_str(), old_.c_str(), 1) : unsetenv(name_.c_str()); }
  Environment(const Environment&) = delete;
  Environment& operator=(const Environment&) = delete;

 private:
  std::string name_;
  std::string old_;
  bool was_ = false;
};

// Lets the sound that is opened next be written to a file, about twenty times as fast as it would be heard.
class SoundOnDisk {
 public:
  explicit SoundOnDisk(const SoundFolder& folder)
      : path_(folder.At("heard.raw")), file_("SDL_DISKAUDIOFILE", path_) {}

  // Waits until so many more frames are written. False if that takes far too long.
  bool Await(std::size_t frames) const {
    const std::uintmax_t wanted = Size() + frames * 4;
    const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(20);
    while (Size() < wanted) {
      if (std::chrono::steady_clock::now() > end) return false;
      std::this_thread::sleep_for(std::chrono::microseconds(200));
    }
    return true;
  }

  // Waits until nothing more is written for a while, and answers how many frames there are then. 0 if it
  // takes far too long.
  std::uintmax_t AwaitRest() const {
    const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(20);
    for (std::uintmax_t size = Size(); std::chrono::steady_clock::now() < end;) {
      std::this_thread::sleep_for(std::chrono::milliseconds(300));
      const std::uintmax_t before = std::exchange(size, Size());
      if (before == size) return size / 4;
    }
    return 0;
  }

  // Waits until the file is begun anew, which had so many frames. False if that takes far too long.
  bool AwaitWaking(std::uintmax_t frames) const {
    const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(20);
    while (Size() == frames * 4) {
      if (std::chrono::steady_clock::now() > end) return false;
      std::this_thread::sleep_for(std::chrono::microseconds(200));
    }
    return true;
  }

  // What was written so far is thrown away.
  void Forget() const { std::filesystem::remove(path_); }

  // All that was written so far, left and right in turn.
  Samples Heard() const {
    std::ifstream file(path_, std::ios::binary);
    const std::string bytes((std::istreambuf_iterator<char>(file)), std::istreambuf_iterator<char>());
    Samples samples;
    for (std::size_t i = 0; i + 1 < bytes.size(); i += 2) {
      const auto low = static_cast<unsigned char>(bytes[i]);
      const auto high = static_cast<unsigned char>(bytes[i + 1]);
      samples.push_back(static_cast<std::int16_t>(low | high << 8));
    }
    return samples;
  }

  // The same, left only.
  std::vector<int> HeardLeft() const {
    const Samples samples = Heard();
    std::vector<int> left;
    for (std::size_t i = 0; i < samples.size(); i += 2) left.push_back(samples[i]);
    return left;
  }

 private:
  std::uintmax_t Size() const {
    std::error_code error;
    const std::uintmax_t size = std::filesystem::file_size(path_, error);
    return error ? 0 : size;
  }

  std::string path_;
  Environment driver_{"SDL_AUDIODRIVER", "disk"};
  Environment delay_{"SDL_DISKAUDIODELAY", "1"};
  Environment file_;
};

}  // namespace zorik::test
