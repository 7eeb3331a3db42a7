// What a tick's picture costs from the look at the cave until it stands in its frame, in copies: where the
// view scrolls, and where it stands still and so many cells have changed. A copy is one memcpy of the whole
// picture; it is measured in turn with the showing, so that a noisy machine slows both alike.
#include <QApplication>
#include <cstdlib>

#include "bench/Copies.h"
#include "bench/Mixed.h"
#include "data/Result.h"
#include "screens/Ram.h"
#include "skin/CavePainter.h"

namespace zorik {
namespace {

constexpr QSize kFrame(1920, 1132);  // 19.5 x 11.5 cells on a screen that is 1920 pixels wide

// A cave in a window of its own.
class Presented : public Stage {
 public:
  Presented() {
    hra_.SetStage(*this);
    if (!PaintCave(hra_, MixedCave(), RunKind::Play)) std::abort();
    ram_.resize(kFrame);
    window_.resize(kFrame);
    window_.show();
    QApplication::processEvents();
  }

  void Show() { ram_.ShowChanges(painter_, painter_.Look(hra_, kFrame)); }
  // The view goes a little to one side or the other.
  void Scroll(bool there) {
    hra_.Dog[1].x = there ? 20 : 60;
    painter_.MoveView(hra_, false);
  }
  // So many cells, scattered over the view, show another frame.
  void Change(int cells) {
    for (int i = 0; i < cells; ++i) {
      const Cell c(32 + i * 7 % 17, 21 + i * 5 % 9);
      hra_.SetObject(c, hra_.Field(c) == kGem ? kBoulder : kGem, kResting);
      CellChanged(c.x(), c.y());
    }
  }
  QImage Picture() const { return ram_.Picture(); }

 private:
  void CaveOpens() override { painter_.CaveOpens(hra_); }
  void CellChanged(int x, int y) override { painter_.CellChanged(hra_, x, y); }
  void MoveView(bool jump) override { painter_.MoveView(hra_, jump); }

  Hra hra_{1};
  CavePainter painter_{{ZORIK_SKINS}};
  QWidget window_;
  Ram ram_{&window_};
};

void PresentScrolled(benchmark::State& state) {
  Presented cave;
  cave.Show();
  bool there = false;
  MeasureInCopies(state, cave.Picture(), [&] {
    cave.Scroll(there = !there);
    cave.Show();
  });
}
void PresentCells(benchmark::State& state) {
  Presented cave;
  cave.Show();
  MeasureInCopies(state, cave.Picture(), [&] {
    cave.Change(static_cast<int>(state.range(0)));
    cave.Show();
  });
}
BENCHMARK(PresentScrolled);
BENCHMARK(PresentCells)->Arg(0)->Arg(1)->Arg(20)->Arg(80);

}  // namespace
}  // namespace zorik
