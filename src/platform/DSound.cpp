#include "platform/DSound.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <filesystem>
#include <map>
#include <optional>
#include <system_error>
#include <utility>

#include "data/Result.h"
#include "platform/SoundDevice.h"
#include "platform/WaveFile.h"

namespace zorik {
namespace {

constexpr std::size_t kMostUnused = 32U << 20;  // bytes of recordings that are kept though no buffer has them

// A file as it was when it was read.
struct Recording {
  std::filesystem::file_time_type time;
  std::uintmax_t size = 0;
  std::vector<std::int16_t> samples;  // none: the file is no sound
};

struct Slot {
  std::shared_ptr<const Recording> recording;  // none: the slot is free
  DSound::State state = DSound::State::Empty;
  bool looping = false;
  std::string file;
};

}  // namespace

struct DSound::Device {
  std::vector<std::string> drivers;
  bool open = false;
  std::map<std::string, std::shared_ptr<const Recording>> recordings;  // by path
  std::vector<Slot> slots;
  SoundDevice player;  // a slot's handle is its voice

  Slot* Used(int handle);
  std::shared_ptr<const Recording> Fetch(const std::string& path, bool looping);
  void DropUnused();
  std::optional<int> FreeSlot();
  int Fill(const std::string& path, std::shared_ptr<const Recording> recording, bool looping);
  void Stop(int handle);
};

Slot* DSound::Device::Used(int handle) {
  if (handle < 0 || static_cast<std::size_t>(handle) >= slots.size()) return nullptr;
  Slot& slot = slots[static_cast<std::size_t>(handle)];
  return slot.recording ? &slot : nullptr;
}

// The file's recording, also when it is no sound; none if there is no file.
std::shared_ptr<const Recording> DSound::Device::Fetch(const std::string& path, bool looping) {
  std::error_code error;
  const auto time = std::filesystem::last_write_time(path, error);
  if (error) return nullptr;
  const std::uintmax_t size = std::filesystem::file_size(path, error);
  if (error) return nullptr;
  if (const auto known = recordings.find(path); known != recordings.end()) {
    if (known->second->time == time && known->second->size == size) return known->second;
  }
  auto recording = std::make_shared<Recording>();
  recording->time = time;
  recording->size = size;
  if (auto samples = ReadWave(path, looping ? kLoopLimits : kSoundLimits))
    recording->samples = std::move(*samples);
  DropUnused();
  recordings[path] = recording;
  return recording;
}

void DSound::Device::DropUnused() {
  const auto unused = [](const auto& entry) { return entry.second.use_count() == 1; };
  std::size_t size = 0;
  for (const auto& entry : recordings) {
    if (unused(entry)) size += entry.second->samples.size() * sizeof(std::int16_t);
  }
  if (size > kMostUnused) std::erase_if(recordings, unused);
}

// The first slot that is free, or one more.
std::optional<int> DSound::Device::FreeSlot() {
  for (std::size_t i = 0; i < slots.size(); ++i) {
    if (!slots[i].recording) return static_cast<int>(i);
  }
  if (slots.size() == kMostBuffers) return std::nullopt;
  slots.emplace_back();
  return static_cast<int>(slots.size()) - 1;
}

int DSound::Device::Fill(const std::string& path, std::shared_ptr<const Recording> recording, bool looping) {
  if (!recording || recording->samples.empty()) return kNoBuffer;
  const std::optional<int> handle = FreeSlot();
  if (!handle) return kNoBuffer;
  Slot& slot = slots[static_cast<std::size_t>(*handle)];
  slot.recording = std::move(recording);
  slot.looping = looping;
  slot.file = path;
  slot.state = State::Loaded;
  return *handle;
}

void DSound::Device::Stop(int handle) {
  player.With([voice = static_cast<std::size_t>(handle)](MixBus& bus) { bus.Stop(voice); });
}

DSound::DSound(std::vector<std::string> drivers) : device_(std::make_unique<Device>()) {
  device_->drivers = std::move(drivers);
}

DSound::~DSound() = default;

Result<Done> DSound::DSInit() {
  if (device_->open) return Done{};
  device_->open = static_cast<bool>(device_->player.Choose(device_->drivers));
  return device_->open ? Result<Done>(Done{}) : Failure{"Unable to initialize DirectSound."};
}

int DSound::DSLoad(const std::string& path, bool looping) {
  return device_->open ? device_->Fill(path, device_->Fetch(path, looping), looping) : kNoBuffer;
}

int DSound::DSReload(int handle, const std::string& path, bool looping) {
  if (!device_->open) return kNoBuffer;
  const auto recording = device_->Fetch(path, looping);
  const Slot* const slot = device_->Used(handle);
  if (slot != nullptr && slot->recording == recording && slot->looping == looping) return handle;
  DSFree(handle);
  return DSLoad(path, looping);
}

void DSound::DSFree(int handle) {
  Slot* const slot = device_->Used(handle);
  if (slot == nullptr) return;
  device_->Stop(handle);
  *slot = Slot();
}

void DSound::DSFreeAll() {
  for (std::size_t i = 0; i < device_->slots.size(); ++i) DSFree(static_cast<int>(i));
}

void DSound::DSPlay(int handle) {
  Slot* const slot = device_->Used(handle);
  if (slot == nullptr) return;
  device_->player.With([slot, voice = static_cast<std::size_t>(handle)](MixBus& bus) {
    if (slot->state == State::Paused) {
      bus.GoOn(voice);
    } else {
      bus.Start(voice, slot->recording->samples, slot->looping);
    }
  });
  slot->state = State::Playing;
}

void DSound::DSStop(int handle) {
  Slot* const slot = device_->Used(handle);
  if (slot == nullptr) return;
  device_->Stop(handle);
  slot->state = State::Stopped;
}

void DSound::DSPauseAll() {
  device_->player.With([this](MixBus& bus) {
    for (std::size_t voice = 0; voice < device_->slots.size(); ++voice) {
      if (!bus.Sounds(voice)) continue;
      bus.Hold(voice);
      device_->slots[voice].state = State::Paused;
    }
  });
}

void DSound::DSResumeAll() {
  for (std::size_t i = 0; i < device_->slots.size(); ++i) {
    const int handle = static_cast<int>(i);
    if (StateOf(handle) == State::Paused) DSPlay(handle);
  }
}

void DSound::DSSetVolume(float volume) {
  device_->player.With([volume](MixBus& bus) { bus.SetVolume(volume); });
}

DSound::State DSound::StateOf(int handle) const {
  const Slot* const slot = device_->Used(handle);
  return slot == nullptr ? State::Empty : slot->state;
}

std::string DSound::FileOf(int handle) const {
  const Slot* const slot = device_->Used(handle);
  return slot == nullptr ? "" : slot->file;
}

std::string DSound::Driver() const {
  return device_->player.Driver();
}

std::string_view NameOf(DSound::State state) {
  constexpr std::array<std::string_view, 5> kNames{"empty", "Stopped", "playing", "paused", "stopped"};
  return kNames[static_cast<std::size_t>(state)];
}

}  // namespace zorik
