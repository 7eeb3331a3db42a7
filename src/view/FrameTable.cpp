#include "view/FrameTable.h"

#include <utility>

namespace zorik {
namespace {

constexpr FrameTable::Numbers kOneEach = [] {
  FrameTable::Numbers numbers{};
  numbers.fill(1);
  return numbers;
}();

}  // namespace

FrameTable::FrameTable() : FrameTable(kOneEach, kOneEach) {}

FrameTable::FrameTable(const Numbers& columns, const Numbers& rows, std::vector<Ground> grounds)
    : columns_(columns), rows_(rows), grounds_(std::move(grounds)) {
  for (std::size_t set = 0; set < kTileSetCount; ++set) {
    first_[set] = count_;
    count_ += static_cast<std::size_t>(columns_[set] * rows_[set]);
  }
}

}  // namespace zorik
