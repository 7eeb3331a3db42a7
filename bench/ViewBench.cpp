// What a picture of the cave costs, in copies. A copy is one memcpy of the same image; it is measured in turn
// with the pictures, so that a noisy machine slows both alike. And what loading the tile sets of a cave costs
// the second time, as a share of the first.
#include <benchmark/benchmark.h>

#include <chrono>
#include <cstring>
#include <ctime>
#include <memory>
#include <random>
#include <string>

#include "core/Machine.h"
#include "data/CaveO.h"
#include "skin/CavePainter.h"

namespace zorik {
namespace {

constexpr QSize kFrame(1920, 1132);  // 19.5 x 11.5 cells on a screen that is 1920 pixels wide
constexpr int kWidth = 80;
constexpr int kHeight = 50;
constexpr int kTurns = 10;

// The processor time of this thread: other programs do not count.
std::chrono::nanoseconds Now() {
  timespec now{};
  clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
  return std::chrono::seconds(now.tv_sec) + std::chrono::nanoseconds(now.tv_nsec);
}

double Share(std::chrono::nanoseconds part, std::chrono::nanoseconds whole) {
  return std::chrono::duration<double>(part) / std::chrono::duration<double>(whole);
}

SkinPlaces BuiltSkin() {
  return {ZORIK_SKINS};
}

// A cave of everything, so that hardly any two neighbours show the same frame.
std::string MixedCave() {
  std::mt19937 random(3);
  const std::string letters = ";;;;....RRRDXXWFUL:SNCKI$!@#%^&GJTEVM";
  CaveRecord cave;
  cave.Time = 900;
  cave.Width = kWidth;
  cave.Height = kHeight;
  for (int x = 0; x < kWidth; ++x) {
    for (int y = 0; y < kHeight; ++y) {
      cave.Cells[static_cast<std::size_t>(x)][static_cast<std::size_t>(y)] =
          letters[random() % letters.size()];
    }
  }
  cave.Cells[40][25] = '1';
  return *BuildCaveText(cave);
}

// A cave that is pictured but not played.
class Pictured : public Stage {
 public:
  Pictured() {
    hra_.SetStage(*this);
    PaintCave(hra_, MixedCave(), RunKind::Play);
  }

  void Draw(const ViewArea& area, QImage& drawn) {
    DrawView(area, DrawnCell(area, kFrame), pictures_, tiles_, drawn);
  }

 private:
  void CaveOpens() override {
    PictureCache cache;
    tiles_.Load(cache, BuiltSkin(), hra_.Scheme);
    pictures_.SetFrames(tiles_.Frames());
    pictures_.Open();
  }
  void CellChanged(int x, int y) override { pictures_.Change(hra_, x, y); }

  Hra hra_{1};
  TileSets tiles_;
  CellPictures pictures_;
};

void PicturesInCopies(benchmark::State& state, const ViewArea& area) {
  Pictured pictured;
  QImage drawn;
  pictured.Draw(area, drawn);  // frames are scaled now
  QImage copy(drawn.size(), drawn.format());
  copy.fill(Qt::black);
  std::chrono::nanoseconds pictures{}, copies{};
  for (auto _ : state) {
    const auto begin = Now();
    for (int i = 0; i < kTurns; ++i) {
      pictured.Draw(area, drawn);
      benchmark::ClobberMemory();
    }
    const auto middle = Now();
    for (int i = 0; i < kTurns; ++i) {
      std::memcpy(copy.bits(), drawn.constBits(), static_cast<std::size_t>(drawn.sizeInBytes()));
      benchmark::ClobberMemory();
    }
    copies += Now() - middle;
    pictures += middle - begin;
  }
  const double turns = static_cast<double>(state.iterations()) * kTurns;
  state.counters["width"] = drawn.width();
  state.counters["height"] = drawn.height();
  state.counters["us_a_copy"] = static_cast<double>(copies.count()) / turns / 1000;
  state.counters["us_a_picture"] = static_cast<double>(pictures.count()) / turns / 1000;
  state.counters["copies_a_picture"] = Share(pictures, copies);
}

// An offset that lies on no cell's edge, on either axis.
void ScrolledView(benchmark::State& state) {
  PicturesInCopies(state, {1237, 777, 1560, 920});
}
void WholeCave(benchmark::State& state) {
  PicturesInCopies(state, ZornePole::Whole(kWidth, kHeight));
}
BENCHMARK(ScrolledView);
BENCHMARK(WholeCave);

void LoadTileSets(benchmark::State& state) {
  std::chrono::nanoseconds first{}, second{};
  for (auto _ : state) {
    PictureCache cache;
    TileSets tiles;
    const auto begin = Now();
    tiles.Load(cache, BuiltSkin(), "Classic");
    const auto middle = Now();
    tiles.Load(cache, BuiltSkin(), "Classic");
    second += Now() - middle;
    first += middle - begin;
  }
  const auto turns = static_cast<double>(state.iterations());
  state.counters["us_first"] = static_cast<double>(first.count()) / turns / 1000;
  state.counters["us_second"] = static_cast<double>(second.count()) / turns / 1000;
  state.counters["of_the_first"] = Share(second, first);
}
BENCHMARK(LoadTileSets);

// Everything that the start of a cave loads: tile sets and the pictures around.
void RestartCave(benchmark::State& state) {
  std::chrono::nanoseconds first{}, second{};
  const Hra hra;
  for (auto _ : state) {
    CavePainter painter(BuiltSkin());
    const auto begin = Now();
    painter.CaveOpens(hra);
    const auto middle = Now();
    painter.CaveOpens(hra);
    second += Now() - middle;
    first += middle - begin;
  }
  const auto turns = static_cast<double>(state.iterations());
  state.counters["us_first"] = static_cast<double>(first.count()) / turns / 1000;
  state.counters["us_second"] = static_cast<double>(second.count()) / turns / 1000;
  state.counters["of_the_first"] = Share(second, first);
}
BENCHMARK(RestartCave);

}  // namespace
}  // namespace zorik
