// What it costs to bring a run to any of its ticks, in plain ticks of the same cave, and what the whole of
// its timeline takes in memory, in states of a run: of an 80 x 50 cave, for runs of several lengths.
#include <algorithm>
#include <chrono>
#include <memory>
#include <random>
#include <string>

#include "bench/Framed.h"
#include "bench/InTurn.h"
#include "core/Hra.h"
#include "data/Result.h"
#include "run/Timeline.h"
#include "solve/Move.h"

namespace zorik {
namespace {

constexpr int kSeeks = 20;  // in a turn

// Quiet: dirt and boulders. Busy: a sixth of all cells moves by itself. The dog has a corridor of its own.
std::string LargeCave(bool busy) {
  CaveRecord cave = FramedCave(80, 50, 4, busy ? "......RDFUL:FUL:....RD;;X" : ";;;;;;;.RD;;X");
  cave.AmoebaTime = 190;
  for (std::size_t x = 1; x + 1 < cave.Width; ++x) {
    if (x > 1) cave.Cells[x][1] = ';';
    cave.Cells[x][2] = 'W';
  }
  return *BuildCaveText(cave);
}

Timeline LongRun(Hra& run, int ticks) {
  Timeline timeline(run);
  std::mt19937 random(5);
  for (int tick = 0; tick < ticks; ++tick) {
    const KeySnapshot keys = KeysOf(static_cast<Move>(random() % kChooseBase));
    Tick(run, keys);
    timeline.Add(run, keys);
  }
  return timeline;
}

void SeekInTicks(benchmark::State& state) {
  const auto run = std::make_unique<Hra>(1);
  if (!PaintCave(*run, LargeCave(state.range(0) != 0), RunKind::Practice))
    return state.SkipWithError("no cave");
  const auto ticks = static_cast<int>(state.range(1));
  const Timeline timeline = LongRun(*run, ticks);
  const auto plain = std::make_unique<Hra>(*run);
  std::mt19937 random(6);
  InTurn turns;
  std::chrono::nanoseconds longest{};
  for (auto _ : state) {
    *plain = *run;
    turns.Measure(
        kSeeks,
        [&] {
          const auto begin = Now();
          timeline.MoveTo(*run, static_cast<int>(random() % static_cast<unsigned>(ticks + 1)));
          longest = std::max(longest, Now() - begin);
        },
        [&] { Tick(*plain, {}); });
  }
  turns.Report(state, "seek", "tick");
  state.counters["longest_ms"] = std::chrono::duration<double, std::milli>(longest).count();
  state.counters["megabytes"] = static_cast<double>(timeline.Bytes()) / (1 << 20U);
  state.counters["bytes_in_states"] =
      static_cast<double>(timeline.Bytes()) / static_cast<double>(sizeof(RunState));
}
BENCHMARK(SeekInTicks)->ArgsProduct({{0, 1}, {1'000, 10'000, 100'000}})->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace zorik
