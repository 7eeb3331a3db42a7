#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "core/Cell.h"
#include "core/Grids.h"

namespace zorik {

// What has gone from cell to cell in a tick, as a stage is told of it.
class Motion {
 public:
  struct Move {
    Cell from, to;  // the same: it is no move any more
    std::uint16_t code = 0;
  };

  void Clear();
  void Add(Cell from, Cell to, std::uint16_t code);

  const std::vector<Move>& Moves() const { return moves_; }
  bool HasLeft(Cell c) const { return left_.Has(c); }  // what stood in it

 private:
  std::vector<Move> moves_;
  std::array<std::uint16_t, Cell::kPlaces> arrived_{};  // by cell: the move that ended there, counted from 1
  CellSet left_;
};

}  // namespace zorik
