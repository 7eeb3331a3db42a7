#pragma once

#include <optional>
#include <set>
#include <vector>

#include "editors/EditKom.h"
#include "run/ProofRun.h"

namespace zorik {

// A proof as it is seen on the picture of the cave: the way of its dogs, the cells that it leaves alone, and
// where it breaks.
class ProofOverlay : public PictureLayer {
 public:
  explicit ProofOverlay(const CaveModel& cave) : cave_(cave) {}

  // Null for none; it is copied.
  void SetVerdict(const ProofVerdict* verdict);
  void ShowWay(bool shown) { way_ = shown; }
  void ShowUntouched(bool shown) { untouched_ = shown; }
  // The tick from which the author would like to go on; the dogs are marked where they are then.
  void SetTick(int tick) { tick_ = tick; }

  // The tick at which a dog comes to a cell on the way that is shown: the next one behind the tick above,
  // else the first one.
  std::optional<int> TickAt(QPoint cell) const;

  // Whether there is anything to be seen of it.
  bool Shows() const { return verdict_ && (way_ || untouched_ || verdict_->flaw); }

  void Paint(QPainter& painter, const QRect& cells, int cellSize) const override;

 private:
  void PaintUntouched(QPainter& painter, const QRect& cells, int cellSize) const;
  void PaintWay(QPainter& painter, const QRect& cells, int cellSize) const;
  void PaintDogs(QPainter& painter, int cellSize) const;
  void PaintFlaw(QPainter& painter, const ProofFlaw& flaw, const QColor& colour, int cellSize) const;

  // A part of a dog's way, once, however often the dog takes it.
  struct Stretch {
    int unit = 1;
    std::size_t from = 0, to = 0;  // places of cells, the lower one first

    auto operator<=>(const Stretch&) const = default;
  };

  const CaveModel& cave_;
  std::optional<ProofVerdict> verdict_;
  std::set<Stretch> stretches_;
  bool way_ = true;
  bool untouched_ = false;
  int tick_ = 0;
};

}  // namespace zorik
