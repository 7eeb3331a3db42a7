#include "platform/DSound.h"

#include <SDL.h>
#include <SDL_mixer.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <deque>
#include <filesystem>
#include <map>
#include <optional>
#include <span>
#include <system_error>
#include <utility>

#include "data/Result.h"
#include "platform/MixBus.h"
#include "platform/WaveFile.h"

namespace zorik {
namespace {

constexpr int kBuffer = 512;                    // frames: 23 ms from a deed to its sound
constexpr std::size_t kMostUnused = 32U << 20;  // bytes of recordings that are kept though no buffer has them

struct ChunkFree {
  void operator()(Mix_Chunk* chunk) const { Mix_FreeChunk(chunk); }
};

// A file as it was when it was read. The chunk is the mixer's view of the samples.
struct Recording {
  std::filesystem::file_time_type time;
  std::uintmax_t size = 0;
  std::vector<std::int16_t> samples;  // none: the file is no sound
  std::unique_ptr<Mix_Chunk, ChunkFree> chunk;
};

// What the mixer's thread needs of a channel that plays; it does not change while the channel plays.
struct Sounding {
  MixBus* bus = nullptr;
  std::size_t voice = 0;
  std::span<const std::int16_t> samples;
  bool looping = false;
};

struct Slot {
  std::shared_ptr<const Recording> recording;  // none: the slot is free
  DSound::State state = DSound::State::Empty;
  bool looping = false;
  std::string file;
  Sounding sounding;
};

// The mixer holds its lock in each of these three. What the bus made takes the place of what the mixer added
// up and may have clipped.
void SDLCALL AddPiece(int /*channel*/, void* stream, int length, void* user) {
  const auto& sounding = *static_cast<const Sounding*>(user);
  const auto* const samples = static_cast<const std::int16_t*>(stream);
  sounding.bus->Add(sounding.voice, sounding.samples, sounding.looping,
                    {samples, static_cast<std::size_t>(length) / sizeof(std::int16_t)});
}

void SDLCALL EndPiece(int /*channel*/, void* user) {
  const auto& sounding = *static_cast<const Sounding*>(user);
  sounding.bus->Break(sounding.voice);
}

void SDLCALL FinishBuffer(void* user, Uint8* stream, int length) {
  auto* const samples = reinterpret_cast<std::int16_t*>(stream);
  static_cast<MixBus*>(user)->Finish({samples, static_cast<std::size_t>(length) / sizeof(std::int16_t)});
}

bool OpenDriver(const std::string& name) {
  if (!name.empty()) SDL_SetHintWithPriority(SDL_HINT_AUDIODRIVER, name.c_str(), SDL_HINT_OVERRIDE);
  bool open = SDL_InitSubSystem(SDL_INIT_AUDIO) == 0;
  if (!name.empty()) SDL_ResetHint(SDL_HINT_AUDIODRIVER);
  if (!open) return false;
  open = Mix_OpenAudioDevice(kSoundRate, AUDIO_S16SYS, kSoundChannels, kBuffer, nullptr, 0) == 0;
  if (!open) SDL_QuitSubSystem(SDL_INIT_AUDIO);
  return open;
}

}  // namespace

struct DSound::Device {
  std::vector<std::string> drivers;
  bool open = false;
  std::map<std::string, std::shared_ptr<const Recording>> recordings;  // by path
  std::deque<Slot> slots;  // the mixer's thread knows their addresses
  MixBus bus{kBuffer};

  Slot* Used(int handle);
  std::shared_ptr<const Recording> Fetch(const std::string& path, bool looping);
  void DropUnused();
  std::optional<int> FreeSlot();
  int Fill(const std::string& path, std::shared_ptr<const Recording> recording, bool looping);
  void Start(int handle, Slot& slot);
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
  if (auto samples = ReadWave(path, looping ? kLoopLimits : kSoundLimits)) {
    recording->samples = std::move(*samples);
    auto* const bytes = reinterpret_cast<Uint8*>(recording->samples.data());
    const std::size_t length = recording->samples.size() * sizeof(std::int16_t);
    recording->chunk.reset(Mix_QuickLoad_RAW(bytes, static_cast<Uint32>(length)));
  }
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
  Mix_AllocateChannels(static_cast<int>(slots.size()));
  return static_cast<int>(slots.size()) - 1;
}

int DSound::Device::Fill(const std::string& path, std::shared_ptr<const Recording> recording, bool looping) {
  if (!recording || !recording->chunk) return kNoBuffer;
  const std::optional<int> handle = FreeSlot();
  if (!handle) return kNoBuffer;
  Slot& slot = slots[static_cast<std::size_t>(*handle)];
  slot.recording = std::move(recording);
  slot.looping = looping;
  slot.file = path;
  slot.state = State::Loaded;
  return *handle;
}

// A halted channel has let go of the slot, so that it can be given to the mixer anew.
void DSound::Device::Start(int handle, Slot& slot) {
  Mix_HaltChannel(handle);
  slot.sounding = {&bus, static_cast<std::size_t>(handle), slot.recording->samples, slot.looping};
  Mix_RegisterEffect(handle, &AddPiece, &EndPiece, &slot.sounding);
  if (Mix_PlayChannel(handle, slot.recording->chunk.get(), slot.looping ? -1 : 0) < 0)
    Mix_UnregisterAllEffects(handle);
}

DSound::DSound(std::vector<std::string> drivers) : device_(std::make_unique<Device>()) {
  device_->drivers = std::move(drivers);
}

DSound::~DSound() {
  if (!device_->open) return;
  DSFreeAll();
  Mix_SetPostMix(nullptr, nullptr);
  device_->recordings.clear();
  Mix_CloseAudio();
  SDL_QuitSubSystem(SDL_INIT_AUDIO);
}

Result<Done> DSound::DSInit() {
  if (device_->open) return Done{};
  SDL_SetHint(SDL_HINT_NO_SIGNAL_HANDLERS, "1");
  SDL_SetHint(SDL_HINT_AUDIO_DEVICE_APP_NAME, "Zorík");
  SDL_SetHint(SDL_HINT_AUDIO_DEVICE_STREAM_ROLE, "game");
  for (const std::string& name : device_->drivers) {
    device_->open = OpenDriver(name);
    if (!device_->open) continue;
    Mix_AllocateChannels(0);
    Mix_SetPostMix(&FinishBuffer, &device_->bus);
    return Done{};
  }
  return Failure{"Unable to initialize DirectSound."};
}

int DSound::DSLoad(const std::string& path, bool looping) {
  return device_->open ? device_->Fill(path, device_->Fetch(path, looping), looping) : kNoBuffer;
}

int DSound::DSReload(int handle, const std::string& path, bool looping) {
  if (!device_->open) return kNoBuffer;
  auto recording = device_->Fetch(path, looping);
  const Slot* const slot = device_->Used(handle);
  if (slot != nullptr && slot->recording == recording && slot->looping == looping) return handle;
  DSFree(handle);
  return device_->Fill(path, std::move(recording), looping);
}

void DSound::DSFree(int handle) {
  Slot* const slot = device_->Used(handle);
  if (slot == nullptr) return;
  Mix_HaltChannel(handle);
  *slot = Slot();
}

void DSound::DSFreeAll() {
  for (std::size_t i = 0; i < device_->slots.size(); ++i) DSFree(static_cast<int>(i));
}

void DSound::DSPlay(int handle) {
  Slot* const slot = device_->Used(handle);
  if (slot == nullptr) return;
  if (slot->state == State::Paused) {
    Mix_Resume(handle);
  } else {
    device_->Start(handle, *slot);
  }
  slot->state = State::Playing;
}

void DSound::DSStop(int handle) {
  Slot* const slot = device_->Used(handle);
  if (slot == nullptr) return;
  Mix_HaltChannel(handle);
  slot->state = State::Stopped;
}

void DSound::DSPauseAll() {
  for (std::size_t i = 0; i < device_->slots.size(); ++i) {
    const int handle = static_cast<int>(i);
    Slot* const slot = device_->Used(handle);
    if (slot == nullptr || slot->state != State::Playing || Mix_Playing(handle) == 0) continue;
    Mix_Pause(handle);
    slot->state = State::Paused;
  }
}

void DSound::DSResumeAll() {
  for (std::size_t i = 0; i < device_->slots.size(); ++i) {
    const int handle = static_cast<int>(i);
    if (StateOf(handle) == State::Paused) DSPlay(handle);
  }
}

void DSound::DSSetVolume(float volume) {
  device_->bus.SetVolume(volume);
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
  const char* const name = device_->open ? SDL_GetCurrentAudioDriver() : nullptr;
  return name == nullptr ? "" : name;
}

std::string_view NameOf(DSound::State state) {
  constexpr std::array<std::string_view, 5> kNames{"empty", "Stopped", "playing", "paused", "stopped"};
  return kNames[static_cast<std::size_t>(state)];
}

}  // namespace zorik
