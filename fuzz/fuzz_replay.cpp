// Any bytes as a record.
#include <cstdint>
#include <memory>
#include <string>

#include "core/Hra.h"
#include "data/Result.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  auto hra = std::make_unique<zorik::Hra>(1);
  if (!zorik::Replay(*hra, std::string(reinterpret_cast<const char*>(data), size))) return 0;
  for (int i = 0; i < 300; ++i) {
    if (zorik::Tick(*hra, {}) != zorik::TickEnd::Running) break;
  }
  return 0;
}
