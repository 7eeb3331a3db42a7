#pragma once

#include <cstdint>
#include <limits>
#include <map>
#include <optional>
#include <unordered_map>
#include <vector>

#include "core/Hra.h"
#include "solve/Move.h"
#include "solve/Snapshot.h"
#include "solve/Ways.h"

namespace zorik {

// How a search chooses where to go on.
struct Temper {
  int haste = 0;  // how much a long way counts against a moment, 0 not at all
  std::uint32_t greed =
      3;  // at each step down from the best moments it stays with a chance of one in so many
};

// Looks for a plan that wins: it keeps an archive of promising moments of runs, returns to one of them, tries
// from there something that a player may want (fetch a gem, push a boulder, wait, take another dog), and
// keeps what is new. The run's own chance is never chosen: it follows from the seed and what was done.
class Search {
 public:
  // begin: a run at its start, with its chance seeded; seed: of the search's own choices.
  Search(const Hra& begin, std::uint64_t seed, Temper temper);

  // Goes on for about so many ticks. True when a plan was found; then it need not be called again.
  bool Go(std::uint64_t ticks);

  // From now on only plans of fewer ticks count.
  void SetBound(int ticks) { bound_ = ticks; }

  // From now on no dog enters these cells.
  void Avoid(Avoided avoided) { avoided_ = std::move(avoided); }

  std::uint64_t Ticks() const { return ticks_; }
  int MostGems() const { return mostGems_; }
  std::size_t Bytes() const { return bytes_; }  // that the archive takes, about

  // The plan that wins, once found.
  const std::optional<Plan>& Found() const { return found_; }

  // The plan that leads to the best moment so far, the shortest of several; empty if that is the beginning.
  Plan BestPlan() const;

 private:
  struct Node {
    Snapshots::Snapshot snapshot;
    std::int32_t parent = -1;
    Plan moves;  // from the parent
    int level = 0;
    int length = 0;  // ticks from the start
    int visits = 0;
    int promise = 4;  // gems that can be walked to, up to 8, once they have been counted
  };

  std::size_t Pick();
  void Explore(std::size_t node);
  void Try();
  void Keep();
  bool Do(Move move);
  void Follow(Cell goal);
  void FetchSomething();
  void PushSomething();
  void WalkAnywhere();
  void Wander();
  void Wait();
  void SwarmAbout();
  void ChooseUnit();
  void FindWays();
  bool Risky(Cell target) const;
  int Level() const;
  std::uint64_t Key(int level) const;
  int ReachableGems() const;
  Plan PlanTo(std::int32_t node) const;
  std::uint32_t Below(std::uint32_t range) { return chance_.Below(range); }
  bool OneIn(std::uint32_t n) { return chance_.Below(n) == 0; }

  Hra run_;
  Snapshots snapshots_;
  Chance chance_;
  Temper temper_;
  Ways ways_;
  mutable std::array<std::uint8_t, Cell::kPlaces> seen_{};
  mutable std::vector<Cell> due_;
  std::vector<Node> nodes_;
  std::unordered_map<std::uint64_t, std::int32_t> known_;
  std::map<int, std::vector<std::int32_t>, std::greater<>> levels_;
  std::int32_t parent_ = 0;
  int parentLength_ = 0;
  Plan moves_;
  bool over_ = false;
  int keysAtStart_ = 0, dogsAtStart_ = 0, gemsAtStart_ = 0, wallsAtStart_ = 0;
  int limit_ = 1;  // ticks
  int bound_ = std::numeric_limits<int>::max();
  int mostGems_ = 0;
  Avoided avoided_;
  std::size_t bytes_ = 0;
  std::uint64_t ticks_ = 0;
  std::optional<Plan> found_;
};

}  // namespace zorik
