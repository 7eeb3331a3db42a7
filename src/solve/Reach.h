#pragma once

#include <array>
#include <cstdint>
#include <limits>
#include <vector>

#include "core/Hra.h"

namespace zorik {

// Where dogs and cat could ever come in a cave, and from where something could ever come to them, at the very
// most: what it says nobody reaches nobody does, whatever the chance. Steel stands for ever; without anything
// that could blow up, so do bricks, biomass, slime, magic and growing walls; locks stand until there is a key
// that somebody could take.
class Reach {
 public:
  // run: at its start.
  explicit Reach(const Hra& run);

  // Whether a dog could stand there.
  bool Dogs(Cell c) const { return dogs_.steps[c.place()] < kNever; }

  // The fewest ticks in which a dog could be there; only where Dogs.
  int Ticks(Cell c) const { return dogs_.steps[c.place()]; }

  // Whether something that lies there, or arises there, could come to a dog; to a dog or the cat.
  bool FeedsDogs(Cell c) const { return feedsDogs_[c.place()]; }
  bool FeedsAnybody(Cell c) const { return feedsAnybody_[c.place()]; }

  // Whether what stands there can ever give way.
  bool Opens(Cell c) const;

  // Whether the cell could ever be the middle of a splitter.
  bool MaybeSplits(Cell c) const;

 private:
  static constexpr int kNever = std::numeric_limits<int>::max();
  using Cells = std::vector<bool>;
  struct Distances {
    std::vector<int> steps;
  };

  bool AnythingBlowsUp() const;
  std::vector<Cell> Starts(bool cat) const;
  Distances From(const std::vector<Cell>& starts) const;
  Cells WhatFeeds(const Distances& reached) const;
  void AddSources(Cell c, std::vector<Cell>& sources) const;
  bool OpenMoreLocks();

  const Hra& run_;
  bool blasts_ = false;
  bool growing_ = false;  // there is a wall that grows sideways
  bool wide_ = false;     // explosions leave things
  std::array<bool, 3> unlocked_{};
  Distances dogs_;
  Cells feedsDogs_, feedsAnybody_;
};

// How many gems the dogs of a cave can come to at the very most; none where nobody can tell.
std::optional<int> MostGems(const Hra& run, const Reach& reach);

}  // namespace zorik
