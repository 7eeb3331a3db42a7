#pragma once

#include <QImage>
#include <QRegion>

#include "skin/Decoration.h"
#include "skin/DrawView.h"
#include "skin/Overlay.h"
#include "skin/PartPainter.h"
#include "skin/TileSets.h"
#include "view/SeenCave.h"

namespace zorik {

// The picture of a run: what a stage needs to show a cave. It follows the run by the stage's calls of the
// same meaning and never changes it.
class CavePainter final : public PartPainter {
 public:
  explicit CavePainter(SkinPlaces places, std::uint64_t seed = 0) : places_(std::move(places)), view_(seed) {}

  // A cave is about to be set up: its pictures are loaded, those of them that have changed.
  void CaveOpens(const Hra& hra);
  void CellChanged(const Hra& hra, int x, int y) { view_.CellChanged(hra, x, y); }
  void MoveView(const Hra& hra, bool jump) { view_.MoveView(hra, jump); }

  // The run is at a moment that no call has led to.
  void ShowMoment(const Hra& hra, bool jump) { view_.ShowMoment(hra, jump); }

  // With smooth motion what moves in a tick can be drawn on its way afterwards.
  void TickBegins(bool smooth) { view_.TickBegins(smooth); }
  void Moved(const Hra& hra, Cell from, Cell to) { view_.Moved(hra, from, to); }
  void TickEnds(const Hra& hra) { view_.TickEnds(hra, tiles_.Table()); }

  // Whether the last tick has left anything to be drawn on its way.
  bool Moves(const Hra& hra) const { return view_.Moves(hra); }

  // Another skin, from the next cave on.
  void SetPlaces(SkinPlaces places) { places_ = std::move(places); }

  // Whether hidden things are shown, from the next change of each cell on.
  void SetNoSurprise(bool on) { view_.SetNoSurprise(on); }

  // Whether nothing glitters, from the next change of each cell on.
  void SetStill(bool on) { view_.SetStill(on); }

  // Whether the view follows the steered unit; if not it holds the whole cave.
  void SetScrollView(bool on) { view_.SetScrollView(on); }
  bool ScrollView() const { return view_.ScrollView(); }

  // Looks at the cave as it is now, for a picture as large as fits into a frame of this size in pixels, and
  // answers what has changed in it since the last look. With a way from 0 to 1 it is that far from the end of
  // the tick before to the end of the last one.
  const QRegion& Look(const Hra& hra, QSize frame, double way = 1);

  // Whether the last look saw what moves on its way.
  bool OnTheWay() const { return view_.Way() < 1; }

  // What the last look has found changed.
  const QRegion& Changed() const { return changed_; }

  // The picture of the last look.
  QSize Size() const override { return ToQSize(view_.Drawn().size); }
  void PaintPart(const QRegion& part, QImage& target, QPoint corner) override;

  // Looks, and answers the whole picture.
  QImage Compose(const Hra& hra, QSize frame);

  // Lays things over the picture of the last look.
  LaidOverlay Lay(const Overlay& overlay) {
    const DrawnView& drawn = view_.Drawn();
    return {overlay, drawn.view, ToQSize(drawn.cell), tiles_};
  }

  // How a cell of another run in the same cave looks.
  CellPicture PictureOf(const Hra& other, Cell c) { return view_.PictureOf(other, c); }

  // The picture of a cell as it is drawn next.
  CellPicture PictureAt(int x, int y) const { return view_.PictureAt(x, y); }

  // The pictures around the play picture, for the cave that opened last.
  const Decoration& Around() const { return around_; }

 private:
  SkinPlaces places_;
  PictureCache cache_;
  TileSets tiles_;
  SeenCave view_;
  Decoration around_;
  QRegion changed_;
};

}  // namespace zorik
