#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "core/Hra.h"
#include "data/Chance.h"

namespace zorik {

// How far a dog has to go to each cell of a cave as it stands, digging and pushing on the way. What moves
// meanwhile is not foreseen.
class Ways {
 public:
  // From a cell of the cave. With roughness above 0 each cell is made dearer by chance, by up to so much, so
  // that asking again gives other ways.
  void Find(const Hra& run, Cell from, std::uint32_t roughness, Chance& chance);

  bool Reaches(Cell c) const { return cost_[c.place()] < kNever; }
  int Cost(Cell c) const { return cost_[c.place()]; }

  // Directions, 0 left, 1 up, 2 right, 3 down, that lead to a cell that is reached.
  std::vector<std::uint8_t> To(Cell c) const;

  // The cells that are reached, the nearest first.
  const std::vector<Cell>& Reached() const { return reached_; }

 private:
  static constexpr int kNever = 1 << 20;
  static constexpr std::size_t kBuckets = 32;

  int Price(const Hra& run, Cell to, Step step) const;
  void Offer(Cell c, int cost, std::uint8_t direction);

  std::array<int, Cell::kPlaces> cost_{};
  std::array<std::uint8_t, Cell::kPlaces> by_{};
  std::array<std::vector<Cell>, kBuckets> due_;
  std::vector<Cell> reached_;
  Cell from_;
};

// What a dog can enter without pushing.
bool CanEnter(const Hra& run, Cell c);

}  // namespace zorik
