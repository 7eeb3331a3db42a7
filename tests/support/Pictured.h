#pragma once

#include <gtest/gtest.h>

#include <ostream>

#include "data/Result.h"
#include "support/Scene.h"
#include "view/CellPictures.h"

namespace zorik {

inline void PrintTo(const CellPicture& picture, std::ostream* out) {
  *out << "set " << int{picture.Pic} << " column " << picture.Col << " row " << picture.Row;
}

namespace test {

// A run whose cells are pictured as on the screen. Sets have as many rows as the test says.
class Pictured : public Stage {
 public:
  explicit Pictured(const Picture& picture, const Numbers& numbers = {}, int rowsOfSets = 8) {
    std::array<int, kTileSetCount> frames{};
    frames.fill(rowsOfSets);
    pictures.SetFrames(frames);
    hra.SetStage(*this);
    EXPECT_TRUE(PaintCave(hra, CaveTextOf(picture, numbers), RunKind::Play));
  }

  void CaveOpens() override { pictures.Open(hra); }
  void CellChanged(int x, int y) override { pictures.Change(hra, x, y); }
  void MoveView(bool jump) override {
    if (jump) pictures.Placed(hra);
  }

  CellPicture At(int x, int y) const { return pictures.At(x, y); }
  CellPicture Again(int x, int y) {
    pictures.Change(hra, x, y);
    return pictures.At(x, y);
  }

  Hra hra;
  CellPictures pictures;
};

inline CellPicture Of(int set, int column = 0, int row = 0) {
  return {static_cast<std::uint8_t>(set), static_cast<std::uint16_t>(column),
          static_cast<std::uint16_t>(row)};
}

}  // namespace test
}  // namespace zorik
