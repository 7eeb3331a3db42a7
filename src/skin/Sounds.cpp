#include "skin/Sounds.h"

#include <algorithm>
#include <filesystem>
#include <system_error>
#include <utility>
#include <vector>

#include "data/Cp1250.h"
#include "data/Files.h"
#include "data/Result.h"
#include "platform/WaveFile.h"
#include "view/SoundStems.h"

namespace zorik {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t PlaceOf(SoundId id) {
  return static_cast<std::size_t>(id);
}

bool IsLoop(SoundId id) {
  return std::any_of(kSoundStems.begin(), kSoundStems.end(),
                     [id](const SoundStem& stem) { return stem.id == id && stem.looping; });
}

// Adds the files of a folder whose names are new. Of those that differ in letter case only, the one in lower
// case counts, then the first in byte order.
void AddFilesIn(const std::string& path, SoundFiles& all) {
  std::vector<std::string> names;
  std::error_code error;
  const std::string folder = ResolvePath(path) + "/";
  for (fs::directory_iterator entry(folder, error); !error && entry != fs::directory_iterator();
       entry.increment(error)) {
    std::error_code unreadable;
    if (entry->is_regular_file(unreadable)) names.push_back(entry->path().filename().string());
  }
  std::sort(names.begin(), names.end());
  SoundFiles files;
  for (const std::string& name : names) {
    const std::string lower = FoldFileName(name);
    if (name == lower || !files.contains(lower)) files[lower] = folder + name;
  }
  all.merge(files);
}

SoundFiles FilesOf(const SkinPlaces& places, std::string_view skin) {
  SoundFiles files;
  for (const std::string& folder : FoldersOf(places, skin, "Sound")) AddFilesIn(folder, files);
  return files;
}

struct Recording {
  SoundKind kind = SoundKind::None;
  std::string path;
};

// What was found of one sound so far.
struct Search {
  int count = 0;
  std::array<Recording, kVariants> recordings;

  void LookInto(const SoundFiles& files, std::string_view stem);
};

// What an earlier folder had under the same number gives way, though it stays counted.
void Search::LookInto(const SoundFiles& files, std::string_view stem) {
  for (std::size_t v = 0; v < kVariants; ++v) {
    recordings[v] = {};
    const std::string name = std::string(stem) + (v == 0 ? "" : std::to_string(v + 1));
    auto file = files.find(name + ".wav");
    const SoundKind kind = file != files.end() ? SoundKind::Wave : SoundKind::Midi;
    if (kind == SoundKind::Midi) file = files.find(name + ".mid");
    if (file == files.end()) continue;
    recordings[v] = {kind, file->second};
    ++count;
  }
}

}  // namespace

void AddSoundFlaws(const std::vector<std::string>& folders, SkinFlaws& flaws) {
  SoundFiles files;
  for (const std::string& folder : folders) AddFilesIn(folder, files);
  for (const SoundStem& stem : kSoundStems) {
    Search search;
    search.LookInto(files, stem.name);
    for (const Recording& recording : search.recordings) {
      if (recording.kind != SoundKind::Wave) continue;
      const WaveState state = StateOfWave(recording.path, stem.looping ? kLoopLimits : kSoundLimits);
      if (state == WaveState::Good) continue;
      const bool broken = state == WaveState::Broken;
      flaws.push_back(
          {broken ? SkinFlaw::Kind::SoundBroken : SkinFlaw::Kind::SoundTooLong, {}, recording.path});
    }
  }
}

Sounds::Sounds(DSound& device, std::uint64_t seed) : device_(device), rnd_(seed) {}

void Sounds::LoadSounds(SoundId id, std::string_view stem, bool looping,
                        const std::array<SoundFiles, 2>& folders) {
  Search search;
  search.LookInto(folders[0], stem);
  if (search.count <= 1) search.LookInto(folders[1], stem);
  Sound& sound = sounds_[PlaceOf(id)];
  sound.count = search.count;
  for (std::size_t v = 0; v < kVariants; ++v) {
    Variant& variant = sound.variants[v];
    const Recording& recording = search.recordings[v];
    variant.kind = recording.kind;
    if (recording.kind == SoundKind::Wave) {
      variant.buffer = device_.DSReload(variant.buffer, recording.path, looping);
    } else {
      device_.DSFree(variant.buffer);
      variant.buffer = DSound::kNoBuffer;
    }
  }
}

Result<Done> Sounds::InicializaceZvuku(const SkinPlaces& places) {
  places_ = places;
  const Result<Done> opened = device_.DSInit();
  if (!opened) return opened;
  const std::array<SoundFiles, 2> folders{FilesOf(places, places.Skin), FilesOf(places, kDefaultSkin)};
  for (const SoundStem& stem : kSoundStems) LoadSounds(stem.id, stem.name, stem.looping, folders);
  return Done{};
}

// The count can lead beyond the last variant, or to a number that no file has: then nothing sounds.
void Sounds::Play(SoundId id) {
  const Sound& sound = sounds_[PlaceOf(id)];
  const std::size_t pick = rnd_.Below(static_cast<std::uint32_t>(sound.count));
  if (pick >= sound.variants.size()) return;
  const Variant& variant = sound.variants[pick];
  if (variant.kind == SoundKind::Wave) device_.DSPlay(variant.buffer);
}

void Sounds::PZvuk(SoundId sound) {
  const bool loop = IsLoop(sound);
  if (loop) loops_.set(PlaceOf(sound));
  if (on_ && (loopsOn_ || !loop)) Play(sound);
}

void Sounds::Switch(bool on) {
  if (std::exchange(on_, on) == on) return;
  if (!on) return Silence();
  if (loopsOn_) PlayLoops();
}

void Sounds::SwitchLoops(bool on) {
  if (std::exchange(loopsOn_, on) == on || !on_) return;
  if (on) return PlayLoops();
  for (const SoundStem& stem : kSoundStems) {
    if (stem.looping) Halt(stem.id);
  }
}

void Sounds::PlayLoops() {
  for (std::size_t place = 0; place < kSoundCount; ++place) {
    if (loops_[place]) Play(static_cast<SoundId>(place));
  }
}

// Ears count in ratios: each step down is about as much softer as the one before.
void Sounds::SetVolume(int volume) {
  const float part = static_cast<float>(std::clamp(volume, 0, kFullVolume)) / kFullVolume;
  device_.DSSetVolume(part * part);
}

void Sounds::PZvukStop(SoundId sound) {
  loops_.reset(PlaceOf(sound));
  Halt(sound);
}

void Sounds::Halt(SoundId id) {
  const Sound& sound = sounds_[PlaceOf(id)];
  for (int v = 0; v < std::min(sound.count, kVariants); ++v) {
    const Variant& variant = sound.variants[static_cast<std::size_t>(v)];
    if (variant.kind == SoundKind::Wave) device_.DSStop(variant.buffer);
  }
}

std::string Sounds::PZvukTime(int seconds) const {
  if (!on_) return {};
  const std::string name = "/O" + std::to_string(seconds) + ".wav";
  std::string path;
  for (const std::string& folder : SearchFolders(places_, "Sound")) {
    path = ResolvePath(folder + name);
    std::error_code error;
    if (fs::is_regular_file(path, error)) break;
  }
  return path;
}

void Sounds::StopAll() {
  loops_.reset();
  Silence();
}

void Sounds::Silence() {
  for (const Sound& sound : sounds_) {
    for (const Variant& variant : sound.variants) device_.DSStop(variant.buffer);
  }
}

}  // namespace zorik
