#pragma once

#include <QImage>

#include "skin/CellPictures.h"
#include "skin/DrawView.h"
#include "skin/TileSets.h"
#include "skin/ZornePole.h"

namespace zorik {

// The picture of a run: what a stage needs to show a cave. It follows the run by the stage's calls of the
// same meaning and never changes it.
class CavePainter {
 public:
  explicit CavePainter(SkinPlaces places, std::uint64_t seed = 0)
      : places_(std::move(places)), pictures_(seed) {}

  void CaveOpens(const Hra& hra);
  void CellChanged(const Hra& hra, int x, int y) { pictures_.Change(hra, x, y); }
  void View(const Hra& hra, bool jump);

  // Whether hidden things are shown, from the next change of each cell on.
  void SetNoSurprise(bool on) { pictures_.SetNoSurprise(on); }

  // Whether the view follows the steered unit; if not it holds the whole cave.
  void SetScrollView(bool on) { scrollView_ = on; }
  bool ScrollView() const { return scrollView_; }

  // The cave as it is now, as large as fits into a frame of this size in pixels.
  QImage Compose(const Hra& hra, QSize frame);

 private:
  SkinPlaces places_;
  TileSets tiles_;
  CellPictures pictures_;
  ZornePole view_;
  bool scrollView_ = true;
};

}  // namespace zorik
