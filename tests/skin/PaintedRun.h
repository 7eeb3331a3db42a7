#pragma once

#include <memory>

#include "PictureFolder.h"
#include "data/Result.h"
#include "skin/CavePainter.h"
#include "support/Scene.h"

namespace zorik::test {

// A cave larger than the view in which a lot falls and flies.
inline Picture Bustle() {
  Picture picture(23, std::string(39, ';'));
  for (std::size_t x = 3; x < 39; x += 4) {
    picture[2][x] = 'R';
    picture[3][x] = '.';
    picture[4][x] = '.';
    for (std::size_t y = 8; y < 11; ++y) picture[y].replace(x - 2, 3, "...");
    picture[8][x - 1] = x % 8 == 3 ? 'F' : 'U';
  }
  picture[6][5] = '1';
  return picture;
}

// A run and its painter, in a skin of plain colours.
class PaintedRun : public PictureFolder, public Stage {
 protected:
  static constexpr QRgb kSpaceColour = 0xFF101010, kDirtColour = 0xFF20C020, kDogColour = 0xFFF0F0F0,
                        kOther = 0xFFFF00FF;

  explicit PaintedRun(std::uint64_t seed = 0) : hra_(seed) {
    Paint("error.bmp", kOther);
    Paint("Default/Game/Space.bmp", kSpaceColour);
    Paint("Default/Game/Dirt.bmp", kDirtColour);
    Paint("Default/Game/Dog.bmp", kDogColour);
    painter_ = std::make_unique<CavePainter>(places_);
    hra_.SetStage(*this);
  }

  void Start(const Picture& picture) { ASSERT_TRUE(PaintCave(hra_, CaveTextOf(picture), RunKind::Play)); }

  void CaveOpens() override { painter_->CaveOpens(hra_); }
  void CellChanged(int x, int y) override { painter_->CellChanged(hra_, x, y); }
  void MoveView(bool jump) override { painter_->MoveView(hra_, jump); }

  std::unique_ptr<CavePainter> painter_;
  Hra hra_;
};

}  // namespace zorik::test
