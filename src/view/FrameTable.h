#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

#include "view/CellPictures.h"

namespace zorik {

// What a cell shows, as far as the edges of the earth go.
enum class Ground : std::uint8_t {
  Bare,     // space, or what stands on it
  Earth,    // dirt
  Covered,  // what fills its cell: walls, slime, amoeba
};

// What there is to be drawn: the frames of all tile sets of a skin in one scheme, without their pictures.
class FrameTable {
 public:
  using Numbers = std::array<int, kTileSetCount>;

  // One frame a set.
  FrameTable();

  // Columns and rows of frames of each set, at least 1. grounds: what each frame covers, set by set and row
  // by row; none where the skin has no picture of edges.
  FrameTable(const Numbers& columns, const Numbers& rows, std::vector<Ground> grounds = {});

  const Numbers& Columns() const { return columns_; }
  const Numbers& Rows() const { return rows_; }
  std::size_t Count() const { return count_; }

  // Whether the skin brings a picture of the edges of the earth.
  bool HasEdges() const { return !grounds_.empty(); }

  // The frame that is drawn: sets, columns and rows beyond the last are the last.
  CellPicture Drawn(const CellPicture& picture) const {
    const std::size_t set = std::min<std::size_t>(picture.Pic, kTileSetCount - 1);
    return {static_cast<std::uint8_t>(set),
            static_cast<std::uint16_t>(std::min<int>(picture.Col, columns_[set] - 1)),
            static_cast<std::uint16_t>(std::min<int>(picture.Row, rows_[set] - 1))};
  }

  // The place of that frame among all.
  std::size_t PlaceOf(const CellPicture& picture) const {
    const CellPicture drawn = Drawn(picture);
    return first_[drawn.Pic] + static_cast<std::size_t>(drawn.Row * columns_[drawn.Pic] + drawn.Col);
  }

  // What it covers; there must be edges.
  Ground GroundOf(const CellPicture& picture) const { return grounds_[PlaceOf(picture)]; }

 private:
  Numbers columns_{};
  Numbers rows_{};
  std::array<std::size_t, kTileSetCount> first_{};  // place of each set's first frame among all
  std::size_t count_ = 0;
  std::vector<Ground> grounds_;
};

}  // namespace zorik
