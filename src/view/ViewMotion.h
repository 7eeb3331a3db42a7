#pragma once

#include <optional>
#include <vector>

#include "view/CellPictures.h"
#include "view/DrawnView.h"
#include "view/FrameTable.h"
#include "view/Motion.h"
#include "view/ZornePole.h"

namespace zorik {

struct Hra;

// A pixel of a drawn view.
struct PixelPlace {
  int x = 0;
  int y = 0;
};

// Where the upper left corner of a place of the cave, in cells, stands in a drawn view, whether it is seen or
// not.
PixelPlace PlaceIn(const DrawnView& drawn, double x, double y);

// What is on its way in a view between the end of one tick and the end of the next: the view itself, and what
// has gone from cell to cell. Everything else looks from the beginning as it will in the end.
class ViewMotion {
 public:
  struct Mover {
    Cell from, to;
    CellPicture picture;
    std::optional<DrawnView::Shown> under;  // what it goes over: seen as long as it is not there

    // Where its upper left corner is in a drawn view: way goes from 0 to 1.
    PixelPlace PlaceOn(const DrawnView& drawn, double way) const;
  };

  // A tick begins, and all starts from what can be seen now.
  void Begin(const CellPictures& pictures, const ViewArea& view);
  // What stands in the cell has come from the other one in this tick.
  void Add(const Hra& hra, Cell from, Cell to);
  // Nothing is on its way.
  void Forget();

  // The tick is over: what of all that is still there.
  void Settle(const Hra& hra, const CellPictures& pictures, const FrameTable& frames);

  // Whether anything is, if the view is now this one.
  bool Moves(const ViewArea& view) const { return !movers_.empty() || ViewAt(view, 0) != view; }
  const std::vector<Mover>& Movers() const { return movers_; }
  const MovingCells& Cells() const { return cells_; }

  // The view on its way to where it will be: way goes from 0 to 1.
  ViewArea ViewAt(const ViewArea& view, double way) const;

 private:
  void Touch(const Mover& mover);
  std::optional<DrawnView::Shown> Under(Cell c, const FrameTable& frames) const;

  Motion motion_;
  CellPictures before_;
  std::optional<ViewArea> from_;
  std::vector<Mover> movers_;
  MovingCells cells_;
};

}  // namespace zorik
