#include "platform/SoundDevice.h"

#include <algorithm>
#include <span>

#include "data/Result.h"
#include "platform/Sdl.h"
#include "platform/WaveFile.h"

namespace zorik {
namespace {

constexpr Uint16 kBuffer = 512;                    // frames: 23 ms from a deed to its sound
constexpr std::size_t kPatience = 2 * kSoundRate;  // frames of silence after which the device rests

}  // namespace

SoundDevice::~SoundDevice() {
  if (!chosen_) return;
  watch_.request_stop();
  watch_.join();
  if (device_ != 0) sdl_->CloseAudioDevice(device_);
  sdl_->QuitSubSystem(SDL_INIT_AUDIO);
}

Result<Done> SoundDevice::Choose(const std::vector<std::string>& drivers) {
  if (chosen_) return Done{};
  sdl_ = FindSdl();
  if (sdl_ == nullptr) return Failure{"there is no library of sound"};
  sdl_->SetHint(SDL_HINT_NO_SIGNAL_HANDLERS, "1");
  sdl_->SetHint(SDL_HINT_AUDIO_DEVICE_APP_NAME, "Zorík");
  sdl_->SetHint(SDL_HINT_AUDIO_DEVICE_STREAM_ROLE, "game");
  Result<Done> opened = Failure{"there is no driver of sound"};
  for (const std::string& name : drivers) {
    opened = OpenDriver(name);
    if (opened) break;
  }
  chosen_ = static_cast<bool>(opened);
  if (chosen_) watch_ = std::jthread([this](const std::stop_token& end) { Watch(end); });
  return opened;
}

Result<Done> SoundDevice::OpenDriver(const std::string& name) {
  if (!name.empty()) sdl_->SetHintWithPriority(SDL_HINT_AUDIODRIVER, name.c_str(), SDL_HINT_OVERRIDE);
  const bool begun = sdl_->InitSubSystem(SDL_INIT_AUDIO) == 0;
  if (!name.empty()) sdl_->ResetHint(SDL_HINT_AUDIODRIVER);
  if (!begun) return Failure{"the driver of sound \"" + name + "\" does not begin"};
  device_ = OpenDevice();
  if (device_ != 0) return Done{};
  sdl_->QuitSubSystem(SDL_INIT_AUDIO);
  return Failure{"the driver of sound \"" + name + "\" opens no device"};
}

std::uint32_t SoundDevice::OpenDevice() {
  SDL_AudioSpec wanted{};
  wanted.freq = kSoundRate;
  wanted.format = AUDIO_S16SYS;
  wanted.channels = kSoundChannels;
  wanted.samples = kBuffer;
  wanted.callback = &Fill;
  wanted.userdata = this;
  const SDL_AudioDeviceID device = sdl_->OpenAudioDevice(nullptr, 0, &wanted, nullptr, 0);
  if (device != 0) sdl_->PauseAudioDevice(device, 0);
  return device;
}

std::string SoundDevice::Driver() const {
  const char* const name = chosen_ ? sdl_->GetCurrentAudioDriver() : nullptr;
  return name == nullptr ? "" : name;
}

void SoundDevice::Fill(void* self, std::uint8_t* stream, int length) {
  auto& device = *static_cast<SoundDevice*>(self);
  const std::span out(reinterpret_cast<std::int16_t*>(stream),
                      static_cast<std::size_t>(length) / sizeof(std::int16_t));
  const std::scoped_lock lock(device.mutex_);
  if (device.resting_) {
    std::fill(out.begin(), out.end(), std::int16_t{0});
    return;
  }
  device.bus_.Mix(out);
  if (device.bus_.Quiet() >= kPatience) device.change_.notify_one();
}

void SoundDevice::Watch(const std::stop_token& end) {
  std::unique_lock lock(mutex_);
  while (!end.stop_requested()) {
    if (device_ == 0) {
      if (change_.wait(lock, end, [this] { return asked_ && bus_.Sounds(); })) Wake(lock);
    } else {
      const auto idle = [this] { return !bus_.Sounds() && bus_.Quiet() >= kPatience; };
      if (change_.wait(lock, end, idle)) Rest(lock);
    }
  }
}

// A card may have been pulled out meanwhile. The next sound tries again.
void SoundDevice::Wake(std::unique_lock<std::mutex>& lock) {
  asked_ = false;
  lock.unlock();
  const std::uint32_t device = OpenDevice();
  lock.lock();
  device_ = device;
  if (device_ == 0) bus_.ForgetShort();
}

void SoundDevice::Rest(std::unique_lock<std::mutex>& lock) {
  resting_ = true;
  lock.unlock();
  sdl_->CloseAudioDevice(device_);
  lock.lock();
  device_ = 0;
  resting_ = false;
}

}  // namespace zorik
