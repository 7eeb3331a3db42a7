// What a tick costs, in floors. A floor is one plain walk over the cave's cells that looks each up in a table
// and adds it up; it is measured in turn with the ticks, so that a noisy machine slows both alike.
#include <functional>
#include <memory>
#include <random>
#include <string>

#include "bench/InTurn.h"
#include "core/Machine.h"
#include "data/CaveO.h"
#include "data/Result.h"

namespace zorik {
namespace {

constexpr int kTicksInTurn = 40;

struct Size {
  std::uint8_t width = kMaxWidth;
  std::uint8_t height = kMaxHeight;
};

std::string CaveOf(Size size, const std::function<char(int, int)>& letter) {
  CaveRecord cave;
  cave.Time = 1900;
  cave.GemsNeeded = 900;
  cave.AmoebaTime = 1;
  cave.Colouring = 4;
  cave.Width = size.width;
  cave.Height = size.height;
  for (int x = 0; x < size.width; ++x) {
    for (int y = 0; y < size.height; ++y) {
      cave.Cells[static_cast<std::size_t>(x)][static_cast<std::size_t>(y)] = letter(x, y);
    }
  }
  cave.Cells[1][1] = '1';
  return *BuildCaveText(cave);
}

char OneOf(std::mt19937& random, const std::string& letters) {
  return letters[random() % letters.size()];
}

// Dirt with a quarter of resting boulders.
std::string QuietCave() {
  std::mt19937 random(1);
  return CaveOf({}, [&](int, int) { return OneOf(random, ";;;R"); });
}

// Four parts behind walls: shafts in which boulders and gems fall; round corridors in which monsters follow
// the wall, four to each; a cavern where flies and dragonflies swarm; dirt in which amoeba grows. A sixth of
// all cells are monsters.
std::string BusyCave() {
  std::mt19937 random(2);
  return CaveOf({}, [&](int x, int y) {
    if (x == 16 || x == 72 || x == 82) return 'W';
    if (x < 16) return y < 30 ? OneOf(random, "..R.D") : '.';
    if (x < 72) {
      const bool ring = x % 4 != 0 && y % 4 != 0 && !(x % 4 == 2 && y % 4 == 2);
      const bool monster = ring && (x + y) % 2 == 0;
      return monster ? (x / 4 % 2 == 0 ? 'F' : 'U') : (ring ? '.' : 'X');
    }
    if (x < 82) return OneOf(random, "L:L......");
    return x > 85 && x < 95 && y > 20 && y < 40 ? OneOf(random, "AAA;;") : OneOf(random, ";;;.RX");
  });
}

// Boulders and gems that fall for as long as it is measured.
std::string FallingCave(Size size) {
  std::mt19937 random(3);
  return CaveOf(size, [&](int, int y) { return y < size.height / 3 ? OneOf(random, "..R.D") : '.'; });
}

// The unit of measurement. It stands by itself, at the start of a line of the processor's cache: where the
// compiler happens to lay so short a loop changes its time by half.
[[gnu::noinline, gnu::aligned(64)]] std::uint32_t Floor(const Hra& hra,
                                                        const std::array<std::uint32_t, 256>& table) {
  std::uint32_t sum = 0;
  for (int y = 0; y < hra.CaveHeight; ++y) {
    Cell c(0, y);
    for (int x = 0; x < hra.CaveWidth; ++x, c = c + kRight) sum += table[hra.Field(c) & 0xFFU];
  }
  return sum;
}

int Monsters(const Hra& hra) {
  int monsters = 0;
  ForEachCell(hra, [&](Cell c) {
    const std::uint16_t code = hra.Field(c);
    if (code == kFireFly || code == kButterFly || code == kFly || code == kDragonFly) ++monsters;
  });
  return monsters;
}

Hra Started(const std::string& caveText, int warmUp) {
  Hra hra(1);
  static_cast<void>(*PaintCave(hra, caveText, RunKind::Play));
  for (int i = 0; i < warmUp; ++i) Tick(hra, {});
  return hra;
}

void TicksInFloors(benchmark::State& state, const Hra& start, int ticks = kTicksInTurn) {
  std::array<std::uint32_t, 256> table{};
  for (std::uint32_t i = 0; i < table.size(); ++i) table[i] = i * 7;

  InTurn turns;
  auto hra = std::make_unique<Hra>(start);
  for (auto _ : state) {
    *hra = start;
    hra->RecordText.reserve(hra->RecordText.size() + 100000);
    turns.Measure(
        ticks, [&] { Tick(*hra, {}); }, [&] { benchmark::DoNotOptimize(Floor(*hra, table)); });
  }
  state.counters["monsters"] = Monsters(*hra);
  turns.Report(state, "tick", "floor");
}

void QuietTick(benchmark::State& state) {
  TicksInFloors(state, Started(QuietCave(), 5));
}
void BusyTick(benchmark::State& state) {
  TicksInFloors(state, Started(BusyCave(), 0));
}
// In caves of several sizes: what it costs in floors shall not grow with the cave.
void FallingTick(benchmark::State& state) {
  const Size size{static_cast<std::uint8_t>(state.range(0)), static_cast<std::uint8_t>(state.range(1))};
  TicksInFloors(state, Started(FallingCave(size), 1), size.height / 2);
}
// Nothing stirs but the finish, which is open, and a magic wall that runs.
void StillTick(benchmark::State& state) {
  Hra start = Started(CaveOf({}, [](int x, int y) { return x == 50 && y == 30 ? 'T' : ';'; }), 5);
  start.GemsCollected = start.GemsNeeded;
  start.MagicState = kMagicRunning;
  TicksInFloors(state, start);
}
// What a search pays for a look ahead: a copy of the run, in quiet ticks.
void CopyOfARun(benchmark::State& state) {
  const auto start = std::make_unique<Hra>(Started(QuietCave(), 5));
  auto hra = std::make_unique<Hra>(*start);
  InTurn turns;
  for (auto _ : state) {
    *hra = *start;
    hra->RecordText.reserve(hra->RecordText.size() + 100000);
    const auto copy = std::make_unique<RunState>();
    turns.Measure(
        kTicksInTurn, [&] { *copy = *start; }, [&] { Tick(*hra, {}); });
  }
  state.counters["bytes"] = sizeof(RunState);
  turns.Report(state, "copy", "tick");
}
BENCHMARK(QuietTick);
BENCHMARK(BusyTick);
BENCHMARK(FallingTick)->Args({25, 15})->Args({50, 30})->Args({100, 60});
BENCHMARK(StillTick);
BENCHMARK(CopyOfARun);

}  // namespace
}  // namespace zorik
