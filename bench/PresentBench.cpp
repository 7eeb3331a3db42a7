// What showing a picture of the cave in its frame costs, in copies: the whole picture, or what a tick has
// changed in it. A copy is one memcpy of the same image; it is measured in turn with the showing, so that a
// noisy machine slows both alike.
#include <QApplication>
#include <QRegion>
#include <cstdlib>

#include "bench/Copies.h"
#include "screens/Ram.h"

namespace zorik {
namespace {

constexpr QSize kFrame(1920, 1132);  // 19.5 x 11.5 cells on a screen that is 1920 pixels wide
constexpr QSize kPicture(1911, 1127);
constexpr int kCell = 98;

// So many cells, scattered over the picture.
QRegion Cells(int count) {
  QRegion cells;
  for (int i = 0; i < count; ++i) cells += QRect(i * 7 % 19 * kCell, i * 5 % 11 * kCell, kCell, kCell);
  return cells;
}

void Present(benchmark::State& state, const QRegion& changed) {
  QWidget window;
  Ram ram(&window);
  ram.resize(kFrame);
  window.resize(kFrame);
  window.show();
  QApplication::processEvents();
  QImage picture(kPicture, QImage::Format_RGB32);
  picture.fill(Qt::darkGreen);
  ram.Show(picture);
  MeasureInCopies(state, picture, [&] { ram.ShowChanges(picture, changed); });
}

void PresentAll(benchmark::State& state) {
  Present(state, QRect(QPoint(), kPicture));
}
void PresentCells(benchmark::State& state) {
  Present(state, Cells(static_cast<int>(state.range(0))));
}
BENCHMARK(PresentAll);
BENCHMARK(PresentCells)->Arg(1)->Arg(20)->Arg(80);

}  // namespace
}  // namespace zorik

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication application(argc, argv);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
}
