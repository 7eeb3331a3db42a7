// What a picture of the cave costs, in copies. A copy is one memcpy of the same image; it is measured in turn
// with the pictures, so that a noisy machine slows both alike. The same without soft edges, to see what those
// cost. And what loading the tile sets of a cave costs the first time, in loads when it is there already.
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "bench/Copies.h"
#include "bench/Mixed.h"
#include "data/Result.h"
#include "skin/CavePainter.h"
#include "tests/skin/WholeView.h"

namespace zorik {
namespace {

namespace fs = std::filesystem;

constexpr QSize kFrame(1920, 1132);  // 19.5 x 11.5 cells on a screen that is 1920 pixels wide

SkinPlaces BuiltSkin() {
  return {ZORIK_SKINS};
}

// A cave that is pictured but not played.
class Pictured : public Stage {
 public:
  explicit Pictured(SkinPlaces places) : places_(std::move(places)) {
    hra_.SetStage(*this);
    if (!PaintCave(hra_, MixedCave(), RunKind::Play)) std::abort();
  }

  void Draw(const ViewArea& area, QImage& drawn) {
    const QSize cell = ToQSize(DrawnCell(area, kFrame.width(), kFrame.height()));
    test::DrawView(area, cell, pictures_, tiles_, drawn);
  }

 private:
  void CaveOpens() override {
    PictureCache cache;
    tiles_.Load(cache, places_, hra_.Scheme);
    pictures_.SetFrames(tiles_.Frames());
    pictures_.Open(hra_);
  }
  void CellChanged(int x, int y) override { pictures_.Change(hra_, x, y); }

  SkinPlaces places_;
  Hra hra_{1};
  TileSets tiles_;
  CellPictures pictures_;
};

// The built skin without its soft edges, in a folder that is gone in the end.
class HardSkin {
 public:
  HardSkin() : folder_(fs::temp_directory_path() / ("zorik-hard-" + std::to_string(getpid()))) {
    fs::create_directories(folder_ / "Default");
    fs::copy(ZORIK_SKINS "/Default/Game", folder_ / "Default/Game", fs::copy_options::recursive);
    for (const auto& entry : fs::recursive_directory_iterator(folder_)) {
      if (entry.path().filename() == "Edges.bmp") edges_.push_back(entry.path());
    }
    for (const fs::path& path : edges_) fs::remove(path);
  }
  ~HardSkin() {
    std::error_code error;
    fs::remove_all(folder_, error);
  }

  SkinPlaces Places() const { return {folder_.string()}; }

 private:
  fs::path folder_;
  std::vector<fs::path> edges_;
};

void PicturesInCopies(benchmark::State& state, const SkinPlaces& places, const ViewArea& area) {
  Pictured pictured(places);
  QImage drawn;
  pictured.Draw(area, drawn);  // it has its size now
  MeasureInCopies(state, drawn, [&] { pictured.Draw(area, drawn); });
}

constexpr ViewArea kScrolled{1237, 777, 1560, 920};  // on no cell's edge, on either axis

void ScrolledView(benchmark::State& state) {
  PicturesInCopies(state, BuiltSkin(), kScrolled);
}
void WholeCave(benchmark::State& state) {
  PicturesInCopies(state, BuiltSkin(), ZornePole::Whole(kMixedWidth, kMixedHeight));
}
void ScrolledViewOfHardEdges(benchmark::State& state) {
  PicturesInCopies(state, HardSkin().Places(), kScrolled);
}
void WholeCaveOfHardEdges(benchmark::State& state) {
  PicturesInCopies(state, HardSkin().Places(), ZornePole::Whole(kMixedWidth, kMixedHeight));
}
BENCHMARK(ScrolledView);
BENCHMARK(ScrolledViewOfHardEdges);
BENCHMARK(WholeCave);
BENCHMARK(WholeCaveOfHardEdges);

// A picture between two ticks: the view scrolls, and everywhere things are on their way.
class Moving : public Stage {
 public:
  Moving() {
    hra_.SetStage(*this);
    if (!PaintCave(hra_, MixedCave(), RunKind::Play)) std::abort();
    for (int tick = 0; tick < 2; ++tick) {
      moves_ = 0;
      painter_.TickBegins(true);
      hra_.Dog[1].x += 6;  // so that the view goes on
      Tick(hra_, {});
      painter_.TickEnds(hra_);
    }
    Draw();
  }

  void Draw() {
    constexpr QSize kMovingFrame(1760, 1038);
    way_ = way_ > 0.9 ? 0.05 : way_ + 0.1;
    painter_.Look(hra_, kMovingFrame, way_);
    if (image_.size() != painter_.Size()) image_ = QImage(painter_.Size(), QImage::Format_RGB32);
    painter_.PaintPart(image_.rect(), image_, {});
  }
  const QImage& Image() const { return image_; }
  int Moves() const { return moves_; }  // in the whole cave

 private:
  void CaveOpens() override { painter_.CaveOpens(hra_); }
  void CellChanged(int x, int y) override { painter_.CellChanged(hra_, x, y); }
  void Moved(Cell from, Cell to) override {
    painter_.Moved(hra_, from, to);
    ++moves_;
  }
  void MoveView(bool jump) override { painter_.MoveView(hra_, jump); }

  Hra hra_{1};
  CavePainter painter_{BuiltSkin()};
  QImage image_;
  double way_ = 0;
  int moves_ = 0;
};

void MovingView(benchmark::State& state) {
  Moving moving;
  for (int i = 0; i < 10; ++i) moving.Draw();
  state.counters["moves"] = moving.Moves();
  MeasureInCopies(state, moving.Image(), [&] { moving.Draw(); });
}
BENCHMARK(MovingView);

void LoadTileSets(benchmark::State& state) {
  InTurn turns;
  for (auto _ : state) {
    PictureCache cache;
    TileSets tiles;
    const auto load = [&] { tiles.Load(cache, BuiltSkin(), "Classic"); };
    turns.Measure(1, load, load);
  }
  turns.Report(state, "first", "second");
}
BENCHMARK(LoadTileSets);

// Everything that the start of a cave loads: tile sets and the pictures around.
void RestartCave(benchmark::State& state) {
  InTurn turns;
  const Hra hra;
  for (auto _ : state) {
    CavePainter painter(BuiltSkin());
    const auto open = [&] { painter.CaveOpens(hra); };
    turns.Measure(1, open, open);
  }
  turns.Report(state, "first", "second");
}
BENCHMARK(RestartCave);

}  // namespace
}  // namespace zorik
