#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "data/ResultFwd.h"

namespace zorik {

// The sound buffers: each holds one wave file and plays on a channel of its own, so a buffer that is played
// while it sounds starts anew, and different buffers sound together. A buffer is known by its handle; a
// handle that belongs to none does nothing. There is one of these at a time, used by one thread.
class DSound {
 public:
  static constexpr int kNoBuffer = -1;
  static constexpr int kMostBuffers = 256;

  enum class State { Empty, Loaded, Playing, Paused, Stopped };

  // The sound drivers to try one after another; an empty name is the system's choice. The last resort plays
  // in silence, for computers without a sound card.
  explicit DSound(std::vector<std::string> drivers = {"", "dummy"});
  ~DSound();
  DSound(const DSound&) = delete;
  DSound& operator=(const DSound&) = delete;

  // Opens the sound, once; without that no buffer can be loaded. Fails, in the words for the player, if no
  // driver can be opened.
  Result<Done> DSInit();

  // Loads a wave file into the first free slot. kNoBuffer if it cannot be read or is no sound (ReadWave), or
  // if there are too many buffers; a loop may be longer. A file that has not changed since it was loaded is
  // not read again.
  int DSLoad(const std::string& path, bool looping);

  // The same in place of a buffer: one that holds this very file, unchanged, is kept and plays on.
  int DSReload(int handle, const std::string& path, bool looping);

  void DSFree(int handle);
  void DSFreeAll();

  // Plays from the start, or on from where the buffer was paused; once, or until it is stopped if it loops.
  void DSPlay(int handle);
  void DSStop(int handle);

  // Pauses what sounds, and lets all that is paused play on.
  void DSPauseAll();
  void DSResumeAll();

  // How loud all buffers together are, 0 to 1. A change glides.
  void DSSetVolume(float volume);

  // What was last asked of the buffer: one that has come to its end is still called playing.
  State StateOf(int handle) const;

  // The file that the buffer was loaded from, empty if there is no such buffer.
  std::string FileOf(int handle) const;

  // The driver that was opened, empty if none.
  std::string Driver() const;

 private:
  struct Device;
  std::unique_ptr<Device> device_;
};

std::string_view NameOf(DSound::State state);

}  // namespace zorik
