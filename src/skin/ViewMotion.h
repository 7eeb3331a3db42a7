#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>
#include <optional>
#include <vector>

#include "skin/CellPictures.h"
#include "skin/DrawView.h"
#include "skin/Motion.h"
#include "skin/Pixels.h"
#include "skin/TileSets.h"
#include "skin/ZornePole.h"

namespace zorik {

struct Hra;

// What is on its way in a view between the end of one tick and the end of the next: the view itself, and what
// has gone from cell to cell. Everything else looks from the beginning as it will in the end.
class ViewMotion {
 public:
  // A tick begins, and all starts from what can be seen now.
  void Begin(const CellPictures& pictures, const ViewArea& view);
  // What stands in the cell has come from the other one in this tick.
  void Add(const Hra& hra, Cell from, Cell to);
  // Nothing is on its way.
  void Forget();

  // The tick is over: what of all that is still there.
  void Settle(const Hra& hra, const CellPictures& pictures, const TileSets& tiles);

  // Whether anything is, if the view is now this one.
  bool Moves(const ViewArea& view) const { return !movers_.empty() || ViewAt(view, 0) != view; }
  const MovingCells& Cells() const { return cells_; }

  // The view on its way to where it will be: way goes from 0 to 1.
  ViewArea ViewAt(const ViewArea& view, double way) const;

  // Paints what is on its way over a rectangle of the view that has been painted without it.
  void Paint(const DrawnView& drawn, TileSets& tiles, double way, const QRect& rect,
             const Pixels& pixels) const;

 private:
  struct Mover {
    Cell from, to;
    CellPicture picture;
    std::optional<DrawnView::Shown> under;  // what it goes over: seen as long as it is not there
  };

  void Touch(const Mover& mover);
  std::optional<DrawnView::Shown> Under(Cell c, const TileSets& tiles) const;

  Motion motion_;
  CellPictures before_;
  std::optional<ViewArea> from_;
  std::vector<Mover> movers_;
  MovingCells cells_;
};

}  // namespace zorik
