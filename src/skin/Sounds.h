#pragma once

#include <array>
#include <bitset>
#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "core/SoundId.h"
#include "data/Chance.h"
#include "data/ResultFwd.h"
#include "platform/DSound.h"
#include "platform/Settings.h"
#include "skin/SkinFlaw.h"
#include "skin/SkinPlaces.h"

namespace zorik {

inline constexpr int kVariants = 9;

enum class SoundKind : std::uint8_t { None = 0, Wave = 1, Midi = 2 };

// Paths of the files of a folder by their names in lower case.
using SoundFiles = std::map<std::string, std::string>;

// Adds the recordings in these folders, of which the first has precedence, that cannot be read.
void AddSoundFlaws(const std::vector<std::string>& folders, SkinFlaws& flaws);

// The sounds of a skin by their numbers, each with up to nine recordings of which one is picked at random.
// The chance is the interface's, never the game's.
class Sounds {
 public:
  explicit Sounds(DSound& device, std::uint64_t seed = 0);

  // Loads all sounds of the skin; those of which it has fewer than two recordings from the default skin too.
  // Files that have not changed since the last time are not read again, and if they sound, they go on. Fails,
  // in the words for the player, if sound cannot be opened at all; the game ends then.
  Result<Done> InicializaceZvuku(const SkinPlaces& places);

  // Whether sounds are wanted; without that nothing starts, but all can be stopped.
  void SetSound(bool on) { on_ = on; }
  // The same in the middle of a run: all falls silent, or what goes on and on is heard again.
  void Switch(bool on);

  // Likewise whether those are wanted that go on and on.
  void SetLoops(bool on) { loopsOn_ = on; }
  void SwitchLoops(bool on);

  // How loud all of them are, 0 to 10.
  void SetVolume(int volume);

  // Plays a sound; one that sounds starts anew.
  void PZvuk(SoundId sound);
  void PZvukStop(SoundId sound);
  // Makes the name of the sound for one of the last seconds, and plays nothing: the seconds are silent. Empty
  // while sounds are not wanted.
  std::string PZvukTime(int seconds) const;
  void StopAll();
  // Holds what sounds, and lets it go on: the game hides or stands still.
  void PauseAll() { device_.DSPauseAll(); }
  void ResumeAll() { device_.DSResumeAll(); }

  // Recordings that were found in the one folder or the two, 0 to 10.
  int SoundCount(SoundId sound) const { return sounds_[static_cast<std::size_t>(sound)].count; }

 private:
  struct Variant {
    SoundKind kind = SoundKind::None;
    int buffer = DSound::kNoBuffer;
  };
  struct Sound {
    int count = 0;
    std::array<Variant, kVariants> variants{};  // number 1 first
  };

  void Play(SoundId id);
  void PlayLoops();
  void Halt(SoundId id);
  void Silence();
  void LoadSounds(SoundId id, std::string_view stem, bool looping, const std::array<SoundFiles, 2>& folders);

  DSound& device_;
  SkinPlaces places_;
  std::array<Sound, kSoundCount> sounds_{};
  Chance rnd_;
  bool on_ = true;
  bool loopsOn_ = true;
  std::bitset<kSoundCount> loops_;  // that were started and not stopped, heard or not
};

}  // namespace zorik
