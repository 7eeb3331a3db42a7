#pragma once

#include <QImage>
#include <QRegion>

#include "skin/CellPictures.h"
#include "skin/Decoration.h"
#include "skin/DrawView.h"
#include "skin/Overlay.h"
#include "skin/PartPainter.h"
#include "skin/TileSets.h"
#include "skin/ZornePole.h"

namespace zorik {

// The picture of a run: what a stage needs to show a cave. It follows the run by the stage's calls of the
// same meaning and never changes it.
class CavePainter final : public PartPainter {
 public:
  explicit CavePainter(SkinPlaces places, std::uint64_t seed = 0)
      : places_(std::move(places)), pictures_(seed) {}

  // A cave is about to be set up: its pictures are loaded, those of them that have changed.
  void CaveOpens(const Hra& hra);
  void CellChanged(const Hra& hra, int x, int y) { pictures_.Change(hra, x, y); }
  void MoveView(const Hra& hra, bool jump);

  // The run is at a moment that no call has led to.
  void ShowMoment(const Hra& hra, bool jump);

  // Another skin, from the next cave on.
  void SetPlaces(SkinPlaces places) { places_ = std::move(places); }

  // Whether hidden things are shown, from the next change of each cell on.
  void SetNoSurprise(bool on) { pictures_.SetNoSurprise(on); }

  // Whether the view follows the steered unit; if not it holds the whole cave.
  void SetScrollView(bool on) { scrollView_ = on; }
  bool ScrollView() const { return scrollView_; }

  // Looks at the cave as it is now, for a picture as large as fits into a frame of this size in pixels, and
  // answers what has changed in it since the last look.
  const QRegion& Look(const Hra& hra, QSize frame);

  // What the last look has found changed.
  const QRegion& Changed() const { return changed_; }

  // The picture of the last look.
  QSize Size() const override { return drawn_.size; }
  void PaintPart(const QRegion& part, QImage& target, QPoint corner) override;

  // Looks, and answers the whole picture.
  QImage Compose(const Hra& hra, QSize frame);

  // Lays things over the picture of the last look.
  LaidOverlay Lay(const Overlay& overlay) { return {overlay, drawn_.view, drawn_.cell, tiles_}; }

  // How a cell of another run in the same cave looks.
  CellPicture PictureOf(const Hra& other, Cell c) { return pictures_.Choose(other, c); }

  // The picture of a cell as it is drawn next.
  CellPicture PictureAt(int x, int y) const { return pictures_.At(x, y); }

  // The pictures around the play picture, for the cave that opened last.
  const Decoration& Around() const { return around_; }

 private:
  SkinPlaces places_;
  PictureCache cache_;
  TileSets tiles_;
  CellPictures pictures_;
  ZornePole view_;
  Decoration around_;
  bool scrollView_ = true;
  DrawnView drawn_;
  QRegion changed_;
};

}  // namespace zorik
