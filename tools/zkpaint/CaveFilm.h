#pragma once

#include <QImage>
#include <memory>
#include <string>

#include "core/Hra.h"
#include "skin/CavePainter.h"
#include "zktool/PictureTerms.h"

namespace zorik {

// The pictures of a run, tick by tick. The same run gives the same pictures each time.
class CaveFilm final : public Stage {
 public:
  CaveFilm(SkinPlaces places, const PictureTerms& terms);

  // Begins with a cave, in which nobody holds a key, or with a record; at tick 0. Fails as PaintCave does.
  Result<Done> OpenCave(const std::string& text);
  Result<Done> OpenRecord(const std::string& bytes);

  // One tick on. False when the run is over and nothing has changed.
  bool Next();

  QImage Picture();

  void CellChanged(int x, int y) override { painter_.CellChanged(*hra_, x, y); }
  void MoveView(bool jump) override { painter_.MoveView(*hra_, jump); }

 private:
  void Begin();

  PictureTerms terms_;
  std::unique_ptr<Hra> hra_ = std::make_unique<Hra>();
  CavePainter painter_;
  bool over_ = false;
};

}  // namespace zorik
