#include "platform/WaveFile.h"

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <filesystem>
#include <memory>
#include <system_error>
#include <utility>

#include "data/Files.h"
#include "data/Result.h"
#include "platform/Sdl.h"

namespace zorik {
namespace {

constexpr int kMostRate = 384000;  // far beyond hearing, and what the converter takes in its stride

struct Wave {
  WaveState state = WaveState::Broken;
  std::string fault;  // what is the matter with it
  SDL_AudioSpec spec{};
  std::unique_ptr<Uint8, decltype(Sdl::FreeWAV)> bytes{nullptr, nullptr};
  Uint32 size = 0;
};

Wave Decode(const std::string& file) {
  Wave wave;
  const Sdl* const sdl = FindSdl();
  if (sdl == nullptr) return wave;
  Uint8* bytes = nullptr;
  SDL_RWops* const source = sdl->RWFromConstMem(file.data(), static_cast<int>(file.size()));
  if (source != nullptr && sdl->LoadWAV_RW(source, 1, &wave.spec, &bytes, &wave.size) != nullptr)
    wave.bytes = {bytes, sdl->FreeWAV};
  return wave;
}

bool IsTooLong(const Wave& wave, int seconds) {
  const std::size_t frame = std::size_t{wave.spec.channels} * SDL_AUDIO_BITSIZE(wave.spec.format) / 8;
  return frame == 0 ||
         wave.size / frame > static_cast<std::size_t>(wave.spec.freq) * static_cast<std::size_t>(seconds);
}

// Of the two converters at hand, the one that streams leaves out the end of what it stretches.
std::vector<std::int16_t> Convert(const Sdl& sdl, const Wave& wave) {
  SDL_AudioCVT converter;
  if (sdl.BuildAudioCVT(&converter, wave.spec.format, wave.spec.channels, wave.spec.freq, AUDIO_S16SYS,
                        kSoundChannels, kSoundRate) < 0)
    return {};
  std::vector<Uint8> bytes(std::size_t{wave.size} * static_cast<std::size_t>(converter.len_mult));
  std::copy_n(wave.bytes.get(), wave.size, bytes.begin());
  converter.buf = bytes.data();
  converter.len = static_cast<int>(wave.size);
  converter.len_cvt = converter.len;
  if (converter.needed != 0 && sdl.ConvertAudio(&converter) != 0) return {};
  constexpr std::size_t kFrame = kSoundChannels * sizeof(std::int16_t);
  const std::size_t frames = static_cast<std::size_t>(converter.len_cvt) / kFrame;
  if (frames == 0) return {};
  std::vector<std::int16_t> samples(frames * kSoundChannels);
  std::memcpy(samples.data(), bytes.data(), frames * kFrame);
  return samples;
}

Wave Faulty(WaveState state, std::string fault) {
  Wave wave;
  wave.state = state;
  wave.fault = std::move(fault);
  return wave;
}

Wave Load(const std::string& path, const WaveLimits& limits) {
  std::error_code error;
  const std::uintmax_t size = std::filesystem::file_size(path, error);
  if (error) return Faulty(WaveState::Broken, error.message());
  if (size > limits.bytes) return Faulty(WaveState::TooLong, "the sound is too large");
  const Result<std::string> file = ReadWhole(path);
  if (!file) return Faulty(WaveState::Broken, file.Message());
  Wave wave = Decode(*file);
  if (!wave.bytes) return Faulty(WaveState::Broken, "it is no wave file");
  if (wave.spec.freq > kMostRate) return Faulty(WaveState::Broken, "no sound has such a rate");
  if (IsTooLong(wave, limits.seconds)) return Faulty(WaveState::TooLong, "the sound is too long");
  wave.state = WaveState::Good;
  return wave;
}

}  // namespace

WaveState StateOfWave(const std::string& path, const WaveLimits& limits) {
  return Load(path, limits).state;
}

Result<std::vector<std::int16_t>> ReadWave(const std::string& path, const WaveLimits& limits) {
  const Wave wave = Load(path, limits);
  if (wave.state != WaveState::Good) return Failure{"cannot read " + path + ": " + wave.fault};
  std::vector<std::int16_t> samples = Convert(*FindSdl(), wave);  // which has read it
  if (samples.empty()) return Failure{"cannot read " + path + ": it holds no sound"};
  return samples;
}

}  // namespace zorik
