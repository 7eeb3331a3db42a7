#pragma once

#include <cstdint>
#include <limits>
#include <optional>
#include <vector>

#include "core/Hra.h"
#include "solve/Archive.h"
#include "solve/Move.h"
#include "solve/Snapshot.h"
#include "solve/Ways.h"
#include "solve/Worth.h"

namespace zorik {

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
  std::size_t Bytes() const { return archive_.Bytes(); }  // that the archive takes, about

  // The plan that wins, once found.
  const std::optional<Plan>& Found() const { return found_; }

  // The plan that leads to the best moment so far, the shortest of several; empty if that is the beginning.
  Plan BestPlan() const;

 private:
  void Explore(std::int32_t number);
  void Try();
  void Keep();
  bool Lost();
  bool Do(Move move);
  void Follow(Cell goal);
  void FetchSomething();
  void PushSomething();
  void Push(std::uint8_t direction, int cells);
  void DropSomething();
  void WalkAnywhere();
  void Wander();
  void Wait();
  void SwarmAbout();
  void ChooseUnit();
  void FindWays();
  bool Risky(Cell target) const;
  std::uint32_t Below(std::uint32_t range) { return chance_.Below(range); }
  bool OneIn(std::uint32_t n) { return chance_.Below(n) == 0; }

  Hra run_;
  Snapshots snapshots_;
  Chance chance_;
  Temper temper_;
  int turnings_ = -1;
  Ways ways_;
  Worth worth_;
  Archive archive_;
  std::int32_t parent_ = 0;
  int parentLength_ = 0;
  Plan moves_;
  bool over_ = false;
  int bound_ = std::numeric_limits<int>::max();
  int mostGems_ = 0;
  Avoided avoided_;
  std::uint64_t ticks_ = 0;
  std::optional<Plan> found_;
};

}  // namespace zorik
