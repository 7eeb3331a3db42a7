#pragma once

#include "view/CellPictures.h"
#include "view/DrawnView.h"
#include "view/FrameTable.h"
#include "view/ViewMotion.h"
#include "view/ZornePole.h"

namespace zorik {

// What is to be seen of a run: which cell shows which frame, and where in the view. It follows the run by the
// stage's calls of the same meaning and never changes it. It knows no pictures: who draws has them.
class SeenCave {
 public:
  explicit SeenCave(std::uint64_t seed = 0) : pictures_(seed) {}

  // A cave is about to be set up, to be drawn with these frames.
  void CaveOpens(const Hra& hra, const FrameTable& frames);
  void CellChanged(const Hra& hra, int x, int y) { pictures_.Change(hra, x, y); }
  void MoveView(const Hra& hra, bool jump);

  // The run is at a moment that no call has led to.
  void ShowMoment(const Hra& hra, bool jump);

  // With smooth motion what moves in a tick can be drawn on its way afterwards.
  void TickBegins(bool smooth);
  void Moved(const Hra& hra, Cell from, Cell to) { motion_.Add(hra, from, to); }
  void TickEnds(const Hra& hra, const FrameTable& frames) { motion_.Settle(hra, pictures_, frames); }

  // Whether the last tick has left anything to be drawn on its way.
  bool Moves(const Hra& hra) const { return motion_.Moves(Area(hra)); }

  // Whether hidden things are shown, from the next change of each cell on.
  void SetNoSurprise(bool on) { pictures_.SetNoSurprise(on); }

  // Whether nothing glitters, from the next change of each cell on.
  void SetStill(bool on) { pictures_.SetStill(on); }

  // The most cells that the view shows while it follows the unit, at once. Nothing is on its way any more.
  void SetReach(const Hra& hra, double columns, double rows);

  // Whether the view follows the steered unit; if not it holds the whole cave.
  void SetScrollView(bool on) { scrollView_ = on; }
  bool ScrollView() const { return scrollView_; }

  // Looks at the cave as it is now, for a picture as large as fits into a frame of this size. With a way from
  // 0 to 1 it is that far from the end of the tick before to the end of the last one.
  const DrawnView& Look(const Hra& hra, const FrameTable& frames, PixelSize frame, double way = 1);

  // The last look: what it saw, how far on its way, and what was on its way in it.
  const DrawnView& Drawn() const { return drawn_; }
  double Way() const { return way_; }
  const ViewMotion& OnTheWay() const { return motion_; }

  // How a cell of another run in the same cave looks.
  CellPicture PictureOf(const Hra& other, Cell c) { return pictures_.Choose(other, c); }

  // The picture of a cell as it is drawn next.
  CellPicture PictureAt(int x, int y) const { return pictures_.At(x, y); }

 private:
  ViewArea Area(const Hra& hra) const;

  CellPictures pictures_;
  ZornePole view_;
  bool scrollView_ = true;
  DrawnView drawn_;
  ViewMotion motion_;
  double way_ = 1;  // of the last look
};

}  // namespace zorik
