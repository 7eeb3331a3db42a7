#pragma once

#include <condition_variable>
#include <cstdint>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

#include "data/ResultFwd.h"
#include "platform/MixBus.h"

namespace zorik {

struct Sdl;

// What the mixer plays on. After two seconds in which nothing sounds the device is closed, so that silence
// costs nothing; the next sound opens it again. A thread of its own does both, for some systems take their
// time. There is one of these at a time.
class SoundDevice {
 public:
  SoundDevice() = default;
  ~SoundDevice();
  SoundDevice(const SoundDevice&) = delete;
  SoundDevice& operator=(const SoundDevice&) = delete;

  // Chooses the first of these drivers that can be opened, once; an empty name is the system's choice. Fails
  // if there is none.
  Result<Done> Choose(const std::vector<std::string>& drivers);

  // The driver that was chosen, empty if none.
  std::string Driver() const;

  // Does something with the mixer.
  template <typename Order>
  auto With(Order order) {
    const std::scoped_lock lock(mutex_);
    if (device_ == 0 || resting_) {
      asked_ = true;
      change_.notify_one();
    }
    return order(bus_);
  }

 private:
  static void Fill(void* self, std::uint8_t* stream, int length);

  Result<Done> OpenDriver(const std::string& name);
  std::uint32_t OpenDevice();
  void Watch(const std::stop_token& end);
  void Wake(std::unique_lock<std::mutex>& lock);
  void Rest(std::unique_lock<std::mutex>& lock);

  const Sdl* sdl_ = nullptr;  // from the choice on
  bool chosen_ = false;
  std::mutex mutex_;  // of all below
  std::condition_variable_any change_;
  MixBus bus_;
  std::uint32_t device_ = 0;  // none: it is closed
  bool resting_ = false;      // about to be closed: what starts now waits for the next opening
  bool asked_ = false;        // something was asked of the mixer since the last try to open it
  std::jthread watch_;
};

}  // namespace zorik
