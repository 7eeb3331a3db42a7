// What a repaint of the cave editor's picture costs, in copies. A copy is one memcpy of an image of its size;
// it is measured in turn with the repaints, so that a noisy machine slows both alike.
#include <benchmark/benchmark.h>

#include <QApplication>
#include <chrono>
#include <cstring>
#include <ctime>
#include <random>
#include <string>

#include "data/CaveO.h"
#include "editors/EditKom.h"

namespace zorik {
namespace {

constexpr int kTurns = 10;

// The processor time of this thread: other programs do not count.
std::chrono::nanoseconds Now() {
  timespec now{};
  clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
  return std::chrono::seconds(now.tv_sec) + std::chrono::nanoseconds(now.tv_nsec);
}

// The largest cave of the editor, with everything in it.
std::string MixedCave() {
  std::mt19937 random(3);
  const std::string letters = ".;RDX!@WTAMK#%SLFOPQUYZBEV&^INGJ:123456789";
  CaveRecord cave;
  cave.Name = "Test";
  cave.Time = 900;
  cave.MagicWallTime = cave.AmoebaTime = 1;
  cave.Colouring = 4;
  cave.Width = CaveModel::kMostWidth;
  cave.Height = CaveModel::kMostHeight;
  for (std::size_t x = 0; x < cave.Width; ++x) {
    for (std::size_t y = 0; y < cave.Height; ++y) cave.Cells[x][y] = letters[random() % letters.size()];
  }
  return *BuildCaveText(cave);
}

// A repaint as the window asks for it, of all cells, each so many pixels wide and high.
void Repaint(benchmark::State& state) {
  CaveModel cave;
  (void)cave.OpenCave(MixedCave());
  EditTiles tiles;
  tiles.Load({ZORIK_SKINS}, "Classic");
  EditKom picture(cave, tiles, nullptr);
  picture.SetCellSize(static_cast<int>(state.range(0)));
  QImage drawn(picture.size(), QImage::Format_RGB32);
  picture.render(&drawn);  // tiles are scaled now
  QImage copy(drawn.size(), drawn.format());
  copy.fill(Qt::black);
  std::chrono::nanoseconds repaints{}, copies{};
  for (auto _ : state) {
    const auto begin = Now();
    for (int i = 0; i < kTurns; ++i) {
      picture.render(&drawn);
      benchmark::ClobberMemory();
    }
    const auto middle = Now();
    for (int i = 0; i < kTurns; ++i) {
      std::memcpy(copy.bits(), drawn.constBits(), static_cast<std::size_t>(drawn.sizeInBytes()));
      benchmark::ClobberMemory();
    }
    copies += Now() - middle;
    repaints += middle - begin;
  }
  const double turns = static_cast<double>(state.iterations()) * kTurns;
  state.counters["width"] = drawn.width();
  state.counters["height"] = drawn.height();
  state.counters["us_a_copy"] = static_cast<double>(copies.count()) / turns / 1000;
  state.counters["us_a_repaint"] = static_cast<double>(repaints.count()) / turns / 1000;
  state.counters["copies_a_repaint"] =
      std::chrono::duration<double>(repaints) / std::chrono::duration<double>(copies);
}
BENCHMARK(Repaint)->Arg(14)->Arg(26)->Arg(52);

}  // namespace
}  // namespace zorik

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication application(argc, argv);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
}
