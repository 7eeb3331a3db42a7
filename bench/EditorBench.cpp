// What a repaint of the cave editor's picture costs, in copies. A copy is one memcpy of an image of its size;
// it is measured in turn with the repaints, so that a noisy machine slows both alike.
#include <cstdlib>
#include <random>
#include <string>

#include "bench/Copies.h"
#include "data/CaveO.h"
#include "data/Result.h"
#include "editors/EditKom.h"

namespace zorik {
namespace {

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
  if (!cave.OpenCave(MixedCave())) std::abort();
  EditTiles tiles;
  tiles.Load({ZORIK_SKINS}, "Classic");
  EditKom picture(cave, tiles, nullptr);
  picture.SetCellSize(static_cast<int>(state.range(0)));
  QImage drawn(picture.size(), QImage::Format_RGB32);
  MeasureInCopies(state, drawn, [&] { picture.render(&drawn); });
}
BENCHMARK(Repaint)->Arg(14)->Arg(26)->Arg(52);

}  // namespace
}  // namespace zorik
