#pragma once

#include <cstdint>
#include <vector>

#include "core/Hra.h"

namespace zorik {

// Runs of one cave, each kept as what differs from the cave's beginning: thousands of them fit into memory.
class Snapshots {
 public:
  // A run at one moment. The record so far is not in it: a plan that is played again makes it anew.
  struct Snapshot {
    RunFacts facts;
    int score = 0;
    std::vector<std::uint16_t> lines;  // of the grids and of the chance, those that differ
    std::vector<std::uint64_t> words;  // kWords for each
  };

  // begin: the run at its start.
  explicit Snapshots(const Hra& begin);

  Snapshot Keep(const Hra& run) const;

  // Brings a run of the same cave back to that moment.
  void Restore(Hra& run, const Snapshot& snapshot) const;

  // Alike where all cells are, whatever the chance and the counters.
  static std::uint64_t HashOfCells(const Snapshot& snapshot);

  // Bytes that a snapshot takes.
  static std::size_t SizeOf(const Snapshot& snapshot);

 private:
  static constexpr std::size_t kWords = 2;

  Grids grids_;
  Chance luck_;
};

}  // namespace zorik
