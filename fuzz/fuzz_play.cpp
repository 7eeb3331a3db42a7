// Any bytes as a cave, played with any keys; the record of the run must replay to the same cave.
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <string>

#include "core/Hra.h"
#include "data/Result.h"
#include "trace/Trace.h"

namespace {

using namespace zorik;

// Most inputs are played for a moment, so that many caves are tried; one in sixteen is played for long.
int TicksOf(const std::string& script) {
  return script.back() % 16 == 15 ? 300 : 20;
}

// A key script of the first bytes, four bits a tick.
KeySnapshot KeysAt(const std::string& bytes, int tick) {
  KeySnapshot keys;
  if (bytes.empty()) return keys;
  const unsigned byte = static_cast<unsigned char>(bytes[static_cast<std::size_t>(tick / 2) % bytes.size()]);
  const unsigned bits = tick % 2 == 0 ? byte & 15U : byte >> 4U;
  if (bits >= 1 && bits <= 4) keys.down.set(kKeyLeft + bits - 1);
  if (bits >= 5 && bits <= 8) keys.down.set(kKeyLeft + bits - 5).set(kKeySpace);
  if (bits == 9) keys.down.set(kKeyTab);
  if (bits >= 10) keys.down.set(kKeyPad0 + bits - 10).set(kKeyTab);
  return keys;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string bytes(reinterpret_cast<const char*>(data), size);
  const std::string script = bytes.substr(0, 16);
  auto live = std::make_unique<Hra>(size);
  if (size < 16 || !PaintCave(*live, bytes.substr(16), RunKind::Play)) return 0;
  TickEnd end = TickEnd::Running;
  for (int i = 0; i < TicksOf(script) && end == TickEnd::Running; ++i) end = Tick(*live, KeysAt(script, i));

  auto again = std::make_unique<Hra>(1);
  if (!Replay(*again, SaveRecord(*live, 0))) std::abort();
  const int ticks = live->Ticks;
  TickEnd replayed = TickEnd::Running;
  for (int i = 0; i < ticks && replayed == TickEnd::Running; ++i) replayed = Tick(*again, {});
  // A run whose time is over may hold an empty line, at which a replay starts afresh.
  if (replayed == TickEnd::Restarted) return 0;
  if (CellHash(*again) != CellHash(*live) || replayed != end || again->RanDry) std::abort();
  return 0;
}
